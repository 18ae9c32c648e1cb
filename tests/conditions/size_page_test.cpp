#include "conditions/size_page.h"

#include "tests/conditions/message_log.h"
#include "tests/conditions/page_test.h"

using Texts = std::vector<std::wstring>;

namespace {

class TwoTypes : public FileTypeList {
  public:
    [[nodiscard]] int Count() const override { return 2; }
    [[nodiscard]] const wchar_t* Description(int index) const override {
        return index == 0 ? L"Web Page" : L"A Picture";
    }
    [[nodiscard]] const wchar_t* Extensions(int index) const override {
        return index == 0 ? L".htm.html" : longExtensions.c_str();
    }

    std::wstring longExtensions = L".bmp";
};

}  // namespace

class SizePageTest : public PageTest {
  protected:
    void OpenPage(const FileTypeList* fileTypes = nullptr) {
        page_ = std::make_unique<SizePage>(Host(), fileTypes);
        Open(*page_);
    }
    void ExpectBound(SizeLimit limit, std::optional<std::uint32_t> bytes) const {
        const SizeBound bound = QueryOf(*page_).sizeBound;
        EXPECT_EQ(bound.limit, limit);
        EXPECT_EQ(bound.bytes, bytes);
    }
    void Choose(int comboId, int index) const { Send(comboId, CB_SETCURSEL, static_cast<WPARAM>(index)); }
    [[nodiscard]] bool HasTypeFilter() const { return QueryOf(*page_).typeFilter; }
    [[nodiscard]] std::wstring ExtensionsOf() const { return QueryOf(*page_).extensions; }

    std::unique_ptr<SizePage> page_;
    TwoTypes types_;
};

TEST_F(SizePageTest, the_size_offers_nothing_min_and_max) {
    OpenPage();
    EXPECT_EQ(EntriesOf(COMBO_FILE_SIZE), (Texts{L"", L"Min", L"Max"}));
    EXPECT_EQ(Send(COMBO_FILE_SIZE, CB_GETCURSEL), 0);
    EXPECT_EQ(TextOf(EDIT_KILOBYTES), L"");
}

TEST_F(SizePageTest, the_size_and_the_type_speak_japanese) {
    UseJapanese();
    OpenPage();
    EXPECT_EQ(EntriesOf(COMBO_FILE_SIZE), (Texts{L"", L"最低", L"最高"}));
    EXPECT_EQ(EntriesOf(COMBO_FILE_TYPE), Texts{L"すべてのﾌｧｲﾙとﾌｫﾙﾀﾞ"});
}

TEST_F(SizePageTest, the_spin_runs_from_0_to_32767) {
    OpenPage();
    EXPECT_EQ(Send(SPIN_KILOBYTES, UDM_GETRANGE), MAKELRESULT(32767, 0));
    Send(SPIN_KILOBYTES, UDM_SETPOS, 0, 32767);
    EXPECT_EQ(LOWORD(Send(SPIN_KILOBYTES, UDM_GETPOS)), 32767);
}

TEST_F(SizePageTest, without_known_types_there_is_only_everything) {
    OpenPage();
    EXPECT_EQ(EntriesOf(COMBO_FILE_TYPE), Texts{L"All files and folders"});
    EXPECT_FALSE(HasTypeFilter());
    EXPECT_EQ(ExtensionsOf(), L".*");
}

TEST_F(SizePageTest, the_types_follow_everything_in_their_own_order) {
    OpenPage(&types_);
    EXPECT_EQ(EntriesOf(COMBO_FILE_TYPE), (Texts{L"All files and folders", L"Web Page", L"A Picture"}));
    EXPECT_FALSE(HasTypeFilter());
    EXPECT_EQ(ExtensionsOf(), L".*");
    Choose(COMBO_FILE_TYPE, 1);
    EXPECT_TRUE(HasTypeFilter());
    EXPECT_EQ(ExtensionsOf(), L".htm.html");
    Choose(COMBO_FILE_TYPE, 2);
    EXPECT_TRUE(HasTypeFilter());
    EXPECT_EQ(ExtensionsOf(), L".bmp");
}

TEST_F(SizePageTest, extensions_longer_than_the_search_takes_are_cut_at_259_units) {
    types_.longExtensions = std::wstring(400, L'e');
    OpenPage(&types_);
    Choose(COMBO_FILE_TYPE, 2);
    EXPECT_EQ(ExtensionsOf(), std::wstring(259, L'e'));
}

TEST_F(SizePageTest, with_no_type_selected_the_filter_has_no_extensions) {
    OpenPage(&types_);
    Choose(COMBO_FILE_TYPE, -1);
    EXPECT_TRUE(HasTypeFilter());
    EXPECT_EQ(ExtensionsOf(), L"");
}

TEST_F(SizePageTest, the_empty_entry_gives_no_bound) {
    OpenPage();
    SetText(EDIT_KILOBYTES, L"10");
    ExpectBound(SizeLimit::None, 0);
}

TEST_F(SizePageTest, min_and_max_give_the_kilobytes_in_bytes) {
    OpenPage();
    Send(SPIN_KILOBYTES, UDM_SETPOS, 0, 10);
    Choose(COMBO_FILE_SIZE, 1);
    ExpectBound(SizeLimit::Above, 10240);
    Choose(COMBO_FILE_SIZE, 2);
    ExpectBound(SizeLimit::Below, 10240);
}

TEST_F(SizePageTest, typed_kilobytes_are_read_as_typed) {
    OpenPage();
    Choose(COMBO_FILE_SIZE, 1);
    SetText(EDIT_KILOBYTES, L"0");
    ExpectBound(SizeLimit::Above, 0);
    SetText(EDIT_KILOBYTES, L"1");
    ExpectBound(SizeLimit::Above, 1024);
    SetText(EDIT_KILOBYTES, L"40000");
    ExpectBound(SizeLimit::Above, 40960000);
}

TEST_F(SizePageTest, kilobytes_in_groups_of_thousands_are_read_back) {
    OpenPage();
    Choose(COMBO_FILE_SIZE, 2);
    Send(SPIN_KILOBYTES, UDM_SETPOS, 0, 12345);
    ExpectBound(SizeLimit::Below, 12641280);
}

TEST_F(SizePageTest, min_and_max_with_an_untouched_spin_carry_its_error_word) {
    OpenPage();
    Choose(COMBO_FILE_SIZE, 1);
    ExpectBound(SizeLimit::Above, 67108864);
    Choose(COMBO_FILE_SIZE, 2);
    ExpectBound(SizeLimit::Below, 67108864);
}

TEST_F(SizePageTest, a_text_typed_over_the_choice_gives_no_bound_at_all) {
    OpenPage();
    Choose(COMBO_FILE_SIZE, -1);
    SetText(COMBO_FILE_SIZE, L"Mi");
    ExpectBound(SizeLimit::None, std::nullopt);
}

TEST_F(SizePageTest, a_reset_selects_the_first_entries_and_empties_the_kilobytes) {
    OpenPage(&types_);
    Choose(COMBO_FILE_TYPE, 2);
    Choose(COMBO_FILE_SIZE, 2);
    Send(SPIN_KILOBYTES, UDM_SETPOS, 0, 10);
    ASSERT_EQ(TextOf(EDIT_KILOBYTES), L"10");
    page_->Reset();
    EXPECT_EQ(Send(COMBO_FILE_TYPE, CB_GETCURSEL), 0);
    EXPECT_FALSE(HasTypeFilter());
    EXPECT_EQ(Send(COMBO_FILE_SIZE, CB_GETCURSEL), 0);
    EXPECT_EQ(TextOf(EDIT_KILOBYTES), L"");
}

TEST_F(SizePageTest, after_a_reset_min_carries_the_error_word_again) {
    OpenPage();
    Send(SPIN_KILOBYTES, UDM_SETPOS, 0, 10);
    page_->Reset();
    Choose(COMBO_FILE_SIZE, 1);
    const SizeBound bound = QueryOf(*page_).sizeBound;
    EXPECT_EQ(bound.limit, SizeLimit::Above);
    EXPECT_EQ(bound.bytes.value_or(0) >> 26, 1U) << "bit 16 of the spin's answer, ten bits further up";
}

TEST_F(SizePageTest, a_resets_position_goes_to_the_edit_and_not_to_the_spin) {
    OpenPage();
    const MessageLog log({UDM_SETPOS});
    page_->Reset();
    EXPECT_EQ(log.To(EDIT_KILOBYTES, UDM_SETPOS).size(), 1U);
    EXPECT_TRUE(log.To(SPIN_KILOBYTES, UDM_SETPOS).empty());
    EXPECT_EQ(TextOf(EDIT_KILOBYTES), L"");
}
