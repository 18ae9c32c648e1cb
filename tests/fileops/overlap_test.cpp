#include "fileops/operation_paths.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct OverlapCase {
    const char* name;
    const wchar_t* source;
    const wchar_t* destination;
    bool overlaps;
};

const OverlapCase OverlapCases[] = {
    {"folder_that_holds_it", L"\\a\\b", L"\\a", true},
    {"folder_that_holds_it_in_another_case", L"\\a\\b", L"\\A", true},
    {"root_that_holds_it", L"\\a", L"\\", true},
    {"folder_that_holds_a_file_of_a_quoted_path", L"\"\\a\\b\"", L"\\a", true},
    {"itself", L"\\a", L"\\a", true},
    {"itself_in_another_case", L"\\a\\x", L"\\A\\X", true},
    {"inside_itself", L"\\a", L"\\a\\x", true},
    {"inside_itself_in_another_case", L"\\a", L"\\A\\x", true},
    {"inside_itself_by_a_slash", L"\\a", L"\\a/x", true},
    {"deep_inside_itself", L"\\a", L"\\a\\b\\c\\d", true},
    {"inside_a_root", L"\\", L"\\a\\x", true},
    {"inside_the_root_of_a_drive", L"D:\\", L"d:\\a", true},
    {"root_of_another_drive", L"D:\\", L"E:\\a", false},
    {"destination_shorter_than_itself", L"\\a\\bcd", L"\\a\\b", false},
#ifdef _WIN32
    {"itself_in_another_case_of_german", L"\\Ärger", L"\\ärger", true},
    {"inside_itself_in_another_case_of_russian", L"\\ДОМ", L"\\дом\\x", true},
    {"folder_that_holds_it_in_another_case_of_full_width", L"\\ａｂｃ\\x", L"\\ＡＢＣ", true},
    {"inside_itself_in_another_case_of_greek", L"\\σ", L"\\Σ\\x", true},
    {"letter_with_another_accent", L"\\ä", L"\\á\\x", false},
    {"half_width_of_the_same_letter", L"\\ア", L"\\ｱ\\x", false},
#endif
    {"name_that_begins_alike", L"\\a", L"\\ab", false},
    {"folder_of_a_name_that_begins_alike", L"\\a", L"\\ab\\a", false},
    {"another_folder", L"\\a\\b", L"\\c", false},
    {"folder_above_the_one_that_holds_it", L"\\a\\b\\c", L"\\a", false},
    {"longer_folder_of_the_same_beginning", L"\\a\\b", L"\\aa", false},
    {"another_drive", L"D:\\a\\b", L"E:\\a", false},
    {"folder_beside_it", L"\\a\\b", L"\\a\\c", false},
};

void PrintTo(const OverlapCase& row, std::ostream* out) {
    *out << row.name;
}

}  // namespace

class InsideSource : public testing::TestWithParam<OverlapCase> {};

TEST_P(InsideSource, is_told_by_the_texts_of_the_paths) {
    EXPECT_EQ(IsInsideSource(GetParam().source, GetParam().destination), GetParam().overlaps);
}

INSTANTIATE_TEST_SUITE_P(Destinations, InsideSource, testing::ValuesIn(OverlapCases),
                         testing::PrintToStringParamName());
