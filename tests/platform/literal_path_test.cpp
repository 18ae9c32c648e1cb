#include "platform/desktop/literal_path.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Empty for a path that has no literal form.
std::wstring LiteralOf(const std::wstring& path, const std::wstring& base = L"D:\\base") {
    wchar_t literal[LiteralPathSize] = L"unset";
    const bool made = LiteralPath(literal, path.c_str(), base.c_str());
    EXPECT_EQ(made, literal[0] != L'\0');
    return literal;
}

}  // namespace

TEST(LiteralPath, an_absolute_path_gets_the_mark_in_front) {
    EXPECT_EQ(LiteralOf(L"C:\\docs\\a.txt"), L"\\\\?\\C:\\docs\\a.txt");
}

TEST(LiteralPath, a_path_from_the_root_gets_the_drive_of_the_base) {
    EXPECT_EQ(LiteralOf(L"\\docs\\a.txt"), L"\\\\?\\D:\\docs\\a.txt");
}

TEST(LiteralPath, a_root_keeps_its_separator) {
    EXPECT_EQ(LiteralOf(L"\\"), L"\\\\?\\D:\\");
    EXPECT_EQ(LiteralOf(L"C:\\"), L"\\\\?\\C:\\");
}

TEST(LiteralPath, a_relative_path_starts_in_the_base) {
    EXPECT_EQ(LiteralOf(L"docs"), L"\\\\?\\D:\\base\\docs");
    EXPECT_EQ(LiteralOf(L""), L"\\\\?\\D:\\base");
    EXPECT_EQ(LiteralOf(L"docs", L"D:\\"), L"\\\\?\\D:\\docs");
    EXPECT_EQ(LiteralOf(L"C:docs", L"C:\\here"), L"\\\\?\\C:\\here\\docs");
    EXPECT_EQ(LiteralOf(L"C:", L"C:\\here"), L"\\\\?\\C:\\here");
}

TEST(LiteralPath, dots_and_spaces_at_the_end_of_a_name_stay) {
    EXPECT_EQ(LiteralOf(L"\\a.\\b \\c..."), L"\\\\?\\D:\\a.\\b \\c...");
}

TEST(LiteralPath, steps_to_here_and_to_the_parent_are_worked_off) {
    EXPECT_EQ(LiteralOf(L"\\a\\.\\b\\..\\c"), L"\\\\?\\D:\\a\\c");
    EXPECT_EQ(LiteralOf(L".."), L"\\\\?\\D:\\");
    EXPECT_EQ(LiteralOf(L"..\\..\\x"), L"\\\\?\\D:\\x");
    EXPECT_EQ(LiteralOf(L"C:\\.."), L"\\\\?\\C:\\");
}

TEST(LiteralPath, doubled_closing_and_other_separators_are_put_right) {
    EXPECT_EQ(LiteralOf(L"\\a\\\\b\\"), L"\\\\?\\D:\\a\\b");
    EXPECT_EQ(LiteralOf(L"/a/b"), L"\\\\?\\D:\\a\\b");
    EXPECT_EQ(LiteralOf(L"C:/a"), L"\\\\?\\C:\\a");
}

TEST(LiteralPath, what_stands_on_another_machine_is_left_as_it_is) {
    EXPECT_EQ(LiteralOf(L"\\\\server\\share\\a."), L"\\\\server\\share\\a.");
    EXPECT_EQ(LiteralOf(L"\\\\?\\C:\\a."), L"\\\\?\\C:\\a.");
    EXPECT_EQ(LiteralOf(L"docs", L"\\\\server\\share"), L"docs");
}

TEST(LiteralPath, nowhere_to_start_gives_no_path) {
    EXPECT_EQ(LiteralOf(L"docs", L""), L"");
    EXPECT_EQ(LiteralOf(L"\\docs", L""), L"");
    EXPECT_EQ(LiteralOf(L"C:docs", L""), L"");
    EXPECT_EQ(LiteralOf(L"C:\\docs", L""), L"\\\\?\\C:\\docs");
}

TEST(LiteralPath, the_longest_path_and_base_fit_and_one_unit_more_does_not) {
    const std::wstring path(MAX_PATH - 1, L'p');
    const std::wstring base = L"D:" + std::wstring(MAX_PATH - 3, L'b');
    EXPECT_EQ(LiteralOf(path, base), L"\\\\?\\D:\\" + std::wstring(MAX_PATH - 3, L'b') + L"\\" + path);
    EXPECT_EQ(LiteralOf(path + L"p", base), L"");
    EXPECT_EQ(LiteralOf(path, base + L"b"), L"");
}

TEST(LiteralPath, tells_paths_that_need_no_base) {
    EXPECT_TRUE(IsAbsolutePath(L"C:\\a"));
    EXPECT_TRUE(IsAbsolutePath(L"C:/a"));
    EXPECT_TRUE(IsAbsolutePath(L"\\\\server\\share"));
    EXPECT_FALSE(IsAbsolutePath(L"\\a"));
    EXPECT_FALSE(IsAbsolutePath(L"C:a"));
    EXPECT_FALSE(IsAbsolutePath(L"a"));
    EXPECT_FALSE(IsAbsolutePath(L""));
}
