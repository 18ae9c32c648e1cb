// The About box from its real templates, and its own way to uninstall.

#include "app/about_box.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "platform/windows_ce.h"
#include "resources/resource_ids.h"
#include "tests/app/replaced_storage.h"
#include "tests/support/answered_boxes.h"
#include "tests/support/key_presses.h"
#include "tests/support/message_pump.h"
#include "tests/support/test_world.h"

namespace {

constexpr const wchar_t* MakerKey = L"Software\\QuorinAboutTest";
constexpr const wchar_t* ProductKey = L"Software\\QuorinAboutTest\\Product";

bool Exists(const wchar_t* path) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
    RegCloseKey(key);
    return true;
}

void Create(const wchar_t* path) {
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr),
              ERROR_SUCCESS);
    RegCloseKey(key);
}

}  // namespace

class AboutBoxTest : public testing::Test {
  protected:
    AboutBoxTest() { RegDeleteTreeW(HKEY_CURRENT_USER, MakerKey); }
    ~AboutBoxTest() override { RegDeleteTreeW(HKEY_CURRENT_USER, MakerKey); }

    AboutBox& Box() {
        if (!box_.has_value()) box_.emplace(&host_.Object());
        return *box_;
    }
    void UseJapanese() { ContextForStartUp().uiLanguage = UiLanguage::Japanese; }
    [[nodiscard]] HWND Item(int id) { return GetDlgItem(Box().Handle(), id); }
    [[nodiscard]] std::wstring TextOf(int id) {
        wchar_t text[512] = L"";
        GetWindowTextW(Item(id), text, 512);
        return text;
    }
    [[nodiscard]] std::wstring Title() {
        wchar_t text[64] = L"";
        GetWindowTextW(Box().Handle(), text, 64);
        return text;
    }

    TestWorld world_;
    ReplacedStorage storage_;
    HostWindow host_;

  private:
    std::optional<AboutBox> box_;
};

TEST_F(AboutBoxTest, shows_the_products_strings) {
    Box().CreateModeless();
    EXPECT_EQ(Title(), L"About");
    EXPECT_EQ(TextOf(STATIC_PRODUCT_NAME), L"QuorinSearch");
    EXPECT_EQ(TextOf(STATIC_VERSION), L"Version " QUORIN_VERSION);
    for (const int id : {STATIC_LEGAL_NOTICE, STATIC_CONTACT_1, STATIC_CONTACT_2}) {
        wchar_t expected[260] = L"";
        const UINT string = id == STATIC_LEGAL_NOTICE ? STRING_LEGAL_NOTICE
                            : id == STATIC_CONTACT_1  ? STRING_CONTACT_1
                                                      : STRING_CONTACT_2;
        ASSERT_GT(LoadStringW(Context().instance, string, expected, 260), 0);
        EXPECT_EQ(TextOf(id), expected);
    }
}

TEST_F(AboutBoxTest, is_japanese_on_a_japanese_surface) {
    UseJapanese();
    Box().CreateModeless();
    EXPECT_EQ(Title(), L"ﾊﾞｰｼﾞｮﾝ情報");
    EXPECT_EQ(TextOf(BUTTON_UNINSTALL), L"ｱﾝｲﾝｽﾄ(&U)");
    EXPECT_EQ(TextOf(STATIC_PROGRAM_MEMORY), L"ﾌﾟﾛｸﾞﾗﾑ: 4096/16384KB (25%)");
    EXPECT_EQ(TextOf(STATIC_DATA_STORE), L"ﾃﾞｰﾀ: 8192/16384KB (50%)");
}

TEST_F(AboutBoxTest, has_the_products_name_in_bold) {
    Box().CreateModeless();
    const auto font = reinterpret_cast<HFONT>(SendMessageW(Item(STATIC_PRODUCT_NAME), WM_GETFONT, 0, 0));
    LOGFONTW description = {};
    ASSERT_NE(GetObjectW(font, sizeof description, &description), 0);
    EXPECT_EQ(description.lfWeight, 700);
    EXPECT_EQ(description.lfHeight, -12);
}

TEST_F(AboutBoxTest, lists_memory_and_store_without_cards) {
    Box().CreateModeless();
    EXPECT_EQ(TextOf(STATIC_PROGRAM_MEMORY), L"Program: 4096/16384KB (25%)");
    EXPECT_EQ(TextOf(STATIC_DATA_STORE), L"Data: 8192/16384KB (50%)");
    EXPECT_EQ(TextOf(STATIC_STORAGE_CARD), L"");
    EXPECT_EQ(TextOf(STATIC_SECOND_STORAGE_CARD), L"");
}

TEST_F(AboutBoxTest, lists_the_one_card_there_is) {
    storage_.cards = {{L"Storage Card", {1024, 4096}, true}};
    Box().CreateModeless();
    EXPECT_EQ(TextOf(STATIC_STORAGE_CARD), L"Storage Card: 1/4KB (25%)");
    EXPECT_EQ(TextOf(STATIC_SECOND_STORAGE_CARD), L"");
}

TEST_F(AboutBoxTest, lists_the_first_two_of_three_cards) {
    storage_.cards = {
        {L"One", {1024, 4096}, true}, {L"Two", {2048, 4096}, true}, {L"Three", {3072, 4096}, true}};
    Box().CreateModeless();
    EXPECT_EQ(TextOf(STATIC_STORAGE_CARD), L"One: 1/4KB (25%)");
    EXPECT_EQ(TextOf(STATIC_SECOND_STORAGE_CARD), L"Two: 2/4KB (50%)");
    EXPECT_EQ(storage_.askedNames, (std::vector<std::wstring>{L"One", L"Two"}));
}

TEST_F(AboutBoxTest, leaves_the_lines_empty_whose_query_fails) {
    storage_.answersMemory = false;
    storage_.cards = {{L"One", {}, false}, {L"Two", {2048, 4096}, true}};
    Box().CreateModeless();
    EXPECT_EQ(TextOf(STATIC_PROGRAM_MEMORY), L"");
    EXPECT_EQ(TextOf(STATIC_DATA_STORE), L"");
    EXPECT_EQ(TextOf(STATIC_STORAGE_CARD), L"");
    EXPECT_EQ(TextOf(STATIC_SECOND_STORAGE_CARD), L"Two: 2/4KB (50%)");
}

TEST_F(AboutBoxTest, reads_the_memory_anew_each_time) {
    {
        const AnsweredBoxes boxes{IDOK};
        Box().RunModal();
        ASSERT_EQ(boxes.Seen().size(), 1u);
        EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"Program: 4096/16384KB (25%)"));
    }
    storage_.program.free = 8192 * 1024;
    const AnsweredBoxes boxes{IDOK};
    Box().RunModal();
    ASSERT_EQ(boxes.Seen().size(), 1u);
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"Program: 8192/16384KB (50%)"));
}

TEST_F(AboutBoxTest, has_the_focus_itself_and_not_on_the_button_that_removes_the_settings) {
    Box().SetRegistryKeys(MakerKey, ProductKey);
    Box().ShowModeless();
    PumpQueue();
    EXPECT_EQ(GetFocus(), Box().Handle());
    MSG tab = KeyDownMessage(Box().Handle(), VK_TAB);
    EXPECT_TRUE(IsDialogMessageW(Box().Handle(), &tab));
    EXPECT_EQ(GetFocus(), Item(BUTTON_UNINSTALL));
}

TEST_F(AboutBoxTest, hides_the_uninstall_button_without_a_product_key) {
    Box().CreateModeless();
    EXPECT_EQ(GetWindowLongW(Item(BUTTON_UNINSTALL), GWL_STYLE) & WS_VISIBLE, 0);
}

TEST_F(AboutBoxTest, shows_the_uninstall_button_with_a_product_key) {
    Box().SetRegistryKeys(MakerKey, ProductKey);
    Box().CreateModeless();
    EXPECT_NE(GetWindowLongW(Item(BUTTON_UNINSTALL), GWL_STYLE) & WS_VISIBLE, 0);
    EXPECT_EQ(TextOf(BUTTON_UNINSTALL), L"&Uninstall");
}

TEST_F(AboutBoxTest, ends_with_1_for_ok_and_2_for_cancel) {
    {
        const AnsweredBoxes boxes{IDOK};
        EXPECT_EQ(Box().RunModal(), 1);
    }
    const AnsweredBoxes boxes{IDCANCEL};
    EXPECT_EQ(Box().RunModal(), 2);
}

// The box's parent, which ends the box when it is asked to close.
class AboutBoxUninstall : public AboutBoxTest {
  protected:
    class Closing : public WindowObject {
      public:
        explicit Closing(AboutBox& aboutBox) : WindowObject(nullptr, nullptr), about_(aboutBox) {}
        LRESULT OnClose(MessageRecord&) {
            ++asked;
            about_.End(Dialog::ResultCancel);
            return 0;
        }
        int asked = 0;

      private:
        AboutBox& about_;
    };

    AboutBoxUninstall() {
        Box().SetRegistryKeys(MakerKey, ProductKey);
        host_.Object().OnMessage(WM_CLOSE, &closing_, &Closing::OnClose);
    }

    Closing closing_{Box()};
};

TEST_F(AboutBoxUninstall, asks_removes_both_keys_and_closes_the_parent) {
    Create(ProductKey);
    const AnsweredBoxes boxes{BUTTON_UNINSTALL, IDOK};
    EXPECT_EQ(Box().RunModal(), 2);
    ASSERT_EQ(boxes.Seen().size(), 2u);
    EXPECT_EQ(boxes.Seen()[1].caption, L"Confirmation");
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[1], L"Uninstall this program."));
    EXPECT_FALSE(Exists(MakerKey));
    EXPECT_EQ(closing_.asked, 1);
}

TEST_F(AboutBoxUninstall, takes_the_sub_keys_along) {
    Create(L"Software\\QuorinAboutTest\\Product\\Name\\deeper");
    const AnsweredBoxes boxes{BUTTON_UNINSTALL, IDOK};
    Box().RunModal();
    EXPECT_FALSE(Exists(ProductKey));
}

TEST_F(AboutBoxUninstall, leaves_the_makers_key_when_it_is_told_of_none) {
    Box().SetRegistryKeys(L"", ProductKey);
    Create(ProductKey);
    const AnsweredBoxes boxes{BUTTON_UNINSTALL, IDOK};
    Box().RunModal();
    EXPECT_FALSE(Exists(ProductKey));
    EXPECT_TRUE(Exists(MakerKey));
    EXPECT_EQ(closing_.asked, 1);
}

TEST_F(AboutBoxUninstall, gives_way_to_a_routine_that_is_bound_later) {
    class Owner : public WindowObject {
      public:
        Owner() : WindowObject(nullptr, nullptr) {}
        LRESULT OnUninstall(EventArguments&) {
            ++asked;
            return 0;
        }
        int asked = 0;
    } owner;
    Create(ProductKey);
    Box().OnCommand(BUTTON_UNINSTALL, &owner, &Owner::OnUninstall);
    Box().CreateModeless();
    SendMessageW(Item(BUTTON_UNINSTALL), BM_CLICK, 0, 0);
    EXPECT_EQ(owner.asked, 1);
    EXPECT_TRUE(Exists(ProductKey));
    EXPECT_EQ(closing_.asked, 0);
}

TEST_F(AboutBoxUninstall, leaves_the_makers_key_to_another_product) {
    Create(ProductKey);
    Create(L"Software\\QuorinAboutTest\\Another");
    const AnsweredBoxes boxes{BUTTON_UNINSTALL, IDOK};
    Box().RunModal();
    EXPECT_FALSE(Exists(ProductKey));
    EXPECT_TRUE(Exists(L"Software\\QuorinAboutTest\\Another"));
    EXPECT_EQ(closing_.asked, 1);
}

TEST_F(AboutBoxUninstall, closes_the_parent_without_a_word_when_the_key_cannot_be_removed) {
    Create(MakerKey);
    const AnsweredBoxes boxes{BUTTON_UNINSTALL, IDOK};
    Box().RunModal();
    EXPECT_EQ(boxes.Seen().size(), 2u);
    EXPECT_TRUE(Exists(MakerKey));
    EXPECT_EQ(closing_.asked, 1);
}

TEST_F(AboutBoxUninstall, asks_in_japanese_on_a_japanese_surface_and_does_nothing_when_it_is_not_confirmed) {
    Create(ProductKey);
    UseJapanese();
    Box().CreateModeless();
    const HWND about = Box().Handle();
    const AnsweredBoxes boxes{IDCANCEL};
    SendMessageW(about, WM_COMMAND, BUTTON_UNINSTALL, 0);
    PumpQueue();
    // The About box, made before the language was changed, is seen as well when it is active again.
    ASSERT_EQ(boxes.Seen().size(), 2u);
    EXPECT_EQ(boxes.Seen()[1].caption, L"About");
    EXPECT_EQ(boxes.Seen()[0].caption, L"確認");
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"ｱﾝｲﾝｽﾄｰﾙを実行します"));
    EXPECT_EQ(boxes.Seen()[0].owner, about);
    EXPECT_TRUE(Exists(ProductKey));
    EXPECT_EQ(closing_.asked, 0);
}

TEST_F(AboutBoxUninstall, does_nothing_at_all_without_a_product_key) {
    Create(ProductKey);
    Box().SetRegistryKeys(MakerKey, L"");
    Box().CreateModeless();
    const AnsweredBoxes boxes{IDOK};
    SendMessageW(Box().Handle(), WM_COMMAND, BUTTON_UNINSTALL, 0);
    PumpQueue();
    EXPECT_TRUE(boxes.Seen().empty());
    EXPECT_TRUE(Exists(ProductKey));
    EXPECT_EQ(closing_.asked, 0);
}
