#include "conditions/name_page.h"

#include "tests/conditions/page_test.h"

using Texts = std::vector<std::wstring>;

class NamePageTest : public PageTest {
  protected:
    void OpenPage() {
        page_ = std::make_unique<NamePage>(Host(), HostHandle());
        Open(*page_);
    }

    std::unique_ptr<NamePage> page_;
};

TEST_F(NamePageTest, the_name_starts_with_log_and_offers_log_and_txt) {
    OpenPage();
    EXPECT_EQ(TextOf(COMBO_NAME), L"*.log");
    EXPECT_EQ(EntriesOf(COMBO_NAME), (Texts{L"*.log", L"*.txt"}));
    EXPECT_EQ(Send(COMBO_NAME, CB_GETCURSEL), 0);
}

TEST_F(NamePageTest, the_other_fields_start_empty_and_the_box_clear) {
    OpenPage();
    EXPECT_EQ(TextOf(COMBO_LOCATION), L"");
    EXPECT_EQ(EntriesOf(COMBO_LOCATION), Texts());
    EXPECT_EQ(TextOf(EDIT_CONTENT), L"");
    EXPECT_FALSE(QueryOf(*page_).subFolders);
}

TEST_F(NamePageTest, the_content_takes_260_units) {
    OpenPage();
    EXPECT_EQ(Send(EDIT_CONTENT, EM_GETLIMITTEXT), 260);
}

TEST_F(NamePageTest, the_template_is_the_english_one) {
    OpenPage();
    EXPECT_EQ(TextOf(CHECK_SUBFOLDERS), L"Include &Subfolders");
    EXPECT_EQ(TextOf(BUTTON_BROWSE), L"&Browse");
}

TEST_F(NamePageTest, the_template_is_the_japanese_one_on_a_japanese_surface) {
    UseJapanese();
    OpenPage();
    EXPECT_EQ(TextOf(CHECK_SUBFOLDERS), L"ｻﾌﾞﾌｫﾙﾀﾞも探す(&S)");
    EXPECT_EQ(TextOf(BUTTON_BROWSE), L"参照(&B)");
    EXPECT_EQ(EntriesOf(COMBO_NAME), (Texts{L"*.log", L"*.txt"}));
}

TEST_F(NamePageTest, a_reset_empties_name_and_location_alone) {
    OpenPage();
    SetText(COMBO_NAME, L"abc");
    SetText(COMBO_LOCATION, L"\\f");
    SetText(EDIT_CONTENT, L"kept");
    Click(CHECK_SUBFOLDERS);
    page_->Reset();
    EXPECT_EQ(TextOf(COMBO_NAME), L"");
    EXPECT_EQ(TextOf(COMBO_LOCATION), L"");
    EXPECT_EQ(TextOf(EDIT_CONTENT), L"kept");
    EXPECT_TRUE(QueryOf(*page_).subFolders);
    EXPECT_EQ(EntriesOf(COMBO_NAME), (Texts{L"*.log", L"*.txt"}));
}

TEST_F(NamePageTest, the_search_reads_the_fields_as_they_stand) {
    OpenPage();
    SetText(COMBO_NAME, L"*.日本");
    SetText(COMBO_LOCATION, L"\\My Documents");
    SetText(EDIT_CONTENT, L"  ");
    Click(CHECK_SUBFOLDERS);
    const SearchQuery query = QueryOf(*page_);
    EXPECT_EQ(std::wstring(query.name), L"*.日本");
    EXPECT_EQ(std::wstring(query.location), L"\\My Documents");
    EXPECT_EQ(std::wstring(query.content), L"  ");
    EXPECT_TRUE(query.subFolders);
}

TEST_F(NamePageTest, texts_longer_than_the_search_takes_are_cut_at_259_units_and_at_260) {
    OpenPage();
    const std::wstring longText(300, L'x');
    for (const int id : {COMBO_NAME, COMBO_LOCATION, EDIT_CONTENT})
        SetText(id, longText);
    const SearchQuery query = QueryOf(*page_);
    EXPECT_EQ(std::wstring(query.name), std::wstring(259, L'x'));
    EXPECT_EQ(std::wstring(query.location), std::wstring(259, L'x'));
    EXPECT_EQ(std::wstring(query.content), std::wstring(260, L'x'));
}

TEST_F(NamePageTest, empty_fields_read_as_empty_texts) {
    OpenPage();
    page_->Reset();
    const SearchQuery query = QueryOf(*page_);
    EXPECT_EQ(std::wstring(query.name), L"");
    EXPECT_EQ(std::wstring(query.location), L"");
    EXPECT_EQ(std::wstring(query.content), L"");
}
