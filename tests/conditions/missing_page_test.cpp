// Pages, or their controls, that could not be created: what they would restrict is not restricted.

#include "conditions/date_page.h"
#include "conditions/name_page.h"
#include "conditions/size_page.h"
#include "tests/conditions/page_test.h"
#include "tests/support/refused_windows.h"

namespace {

constexpr wchar_t UnusedKey[] = L"Software\\QuorinMissingPageTest";

}  // namespace

class MissingPages : public PageTest {
  protected:
    // The page's window is refused, or one of its controls.
    template <typename Page>
    void CreateRefused(Page& page, int number) {
        const RefusedWindows refusal = RefusedWindows::Only(number);
        page.CreateModeless();
        ASSERT_TRUE(refusal.HasRefused());
        ASSERT_EQ(page.Handle(), nullptr);
    }
};

TEST_F(MissingPages, without_the_date_page_any_date_will_do) {
    DatePage page(Host());
    CreateRefused(page, 1);
    EXPECT_FALSE(QueryOf(page).dateRange);
}

TEST_F(MissingPages, a_date_page_without_one_of_its_controls_does_not_exist) {
    DatePage page(Host());
    CreateRefused(page, 2);
    EXPECT_FALSE(QueryOf(page).dateRange);
}

TEST_F(MissingPages, without_the_size_page_there_is_neither_type_nor_bound) {
    SizePage page(Host(), nullptr);
    CreateRefused(page, 1);
    const SearchQuery query = QueryOf(page);
    EXPECT_FALSE(query.typeFilter);
    EXPECT_EQ(std::wstring(query.extensions), L"");
    EXPECT_EQ(query.sizeBound.limit, SizeLimit::None);
}

TEST_F(MissingPages, a_size_page_that_has_lost_its_combos_has_neither_type_nor_bound) {
    SizePage page(Host(), nullptr);
    Open(page);
    DestroyWindow(Item(COMBO_FILE_TYPE));
    DestroyWindow(Item(COMBO_FILE_SIZE));
    const SearchQuery query = QueryOf(page);
    EXPECT_FALSE(query.typeFilter);
    EXPECT_EQ(std::wstring(query.extensions), L"");
    EXPECT_EQ(query.sizeBound.limit, SizeLimit::None);
}

TEST_F(MissingPages, without_the_name_page_every_name_in_the_root_is_meant) {
    NamePage page(Host(), HostHandle());
    CreateRefused(page, 1);
    const SearchQuery query = QueryOf(page);
    EXPECT_EQ(std::wstring(query.name), L"");
    EXPECT_EQ(std::wstring(query.location), L"");
    EXPECT_EQ(std::wstring(query.content), L"");
    EXPECT_FALSE(query.subFolders);
}

TEST_F(MissingPages, without_the_name_page_nothing_is_saved_over_an_earlier_run) {
    NamePage page(Host(), HostHandle());
    CreateRefused(page, 1);
    page.LoadSettings(UnusedKey);
    page.SaveSettings(UnusedKey);
    HKEY key = nullptr;
    EXPECT_NE(ERROR_SUCCESS, RegOpenKeyExW(HKEY_CURRENT_USER, UnusedKey, 0, KEY_READ, &key));
}

TEST_F(MissingPages, without_the_name_page_what_an_earlier_run_saved_is_left_alone) {
    const std::wstring list = std::wstring(UnusedKey) + L"\\Name";
    const wchar_t entry[] = L"*.qsa";
    RegSetKeyValueW(HKEY_CURRENT_USER, list.c_str(), L"0", REG_SZ, entry, sizeof entry);
    NamePage page(Host(), HostHandle());
    CreateRefused(page, 1);
    page.LoadSettings(UnusedKey);
    page.SaveSettings(UnusedKey);
    wchar_t kept[MAX_PATH] = L"";
    DWORD size = sizeof kept;
    EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, list.c_str(), L"0", RRF_RT_REG_SZ, nullptr, kept, &size),
              ERROR_SUCCESS);
    EXPECT_STREQ(entry, kept);
    RegDeleteTreeW(HKEY_CURRENT_USER, UnusedKey);
}

TEST_F(MissingPages, a_page_that_could_not_be_created_is_shown_hidden_and_reset_without_effect) {
    NamePage name(Host(), HostHandle());
    DatePage date(Host());
    SizePage size(Host(), nullptr);
    for (ConditionPage* page : {static_cast<ConditionPage*>(&name), static_cast<ConditionPage*>(&date),
                                static_cast<ConditionPage*>(&size)}) {
        CreateRefused(*page, 1);
        page->Show();
        page->Reset();
        page->Hide();
        EXPECT_EQ(page->Handle(), nullptr);
    }
    EXPECT_TRUE(IsWindowVisible(HostHandle()));
}

TEST_F(MissingPages, a_page_is_created_by_a_later_try) {
    DatePage page(Host());
    CreateRefused(page, 1);
    page.CreateModeless();
    ASSERT_NE(nullptr, page.Handle());
    EXPECT_FALSE(QueryOf(page).dateRange);
}
