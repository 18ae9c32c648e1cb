#include "platform/ce_files.h"

#include <gtest/gtest.h>

#include "tests/support/temp_tree.h"

class SameFile : public testing::Test {
  protected:
    SameFile() {
        tree_.AddFile(L"a\\f", "1");
        tree_.AddFile(L"a\\g", "1");
        tree_.AddFile(L"b\\f", "1");
    }
    [[nodiscard]] bool Same(const wchar_t* first, const wchar_t* second) const {
        return ce::IsSameFile(tree_.Path(first).c_str(), tree_.Path(second).c_str());
    }

    TempTree tree_;
};

TEST_F(SameFile, is_what_two_spellings_lead_to) {
    EXPECT_TRUE(Same(L"a\\f", L"a\\f"));
    EXPECT_TRUE(Same(L"a\\f", L"A\\F"));
    EXPECT_TRUE(Same(L"a\\f", L"b\\..\\a\\.\\f"));
    EXPECT_TRUE(Same(L"a\\f", L"a/f"));
    EXPECT_TRUE(Same(L"a", L"a\\."));
}

TEST_F(SameFile, is_what_a_link_leads_to) {
    if (!tree_.AddFolderLink(L"link", L"a")) GTEST_SKIP() << "the system makes no links";
    EXPECT_TRUE(Same(L"link\\f", L"a\\f"));
    EXPECT_FALSE(Same(L"link\\f", L"b\\f"));
}

TEST_F(SameFile, is_not_one_of_the_same_contents_or_name) {
    EXPECT_FALSE(Same(L"a\\f", L"a\\g"));
    EXPECT_FALSE(Same(L"a\\f", L"b\\f"));
    EXPECT_FALSE(Same(L"a", L"b"));
}

TEST_F(SameFile, is_not_what_cannot_be_opened) {
    EXPECT_FALSE(Same(L"missing", L"missing"));
    EXPECT_FALSE(Same(L"a\\f", L"missing"));
    const std::wstring tooLong(300, L'x');
    EXPECT_FALSE(ce::IsSameFile(tooLong.c_str(), tooLong.c_str()));
}
