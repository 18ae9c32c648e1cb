#include "results/type_names.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/windows_ce.h"
#include "tests/support/replaced_calls.h"

namespace {

struct Question {
    std::wstring path;
    DWORD attributes;
    UINT flags;
    bool operator==(const Question&) const = default;
};

std::vector<Question> asked;
bool hasAnswer = true;
bool answerIsEmpty = false;

// Answers with "kind of PATH".
DWORD_PTR AnswerByPath(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
    EXPECT_EQ(size, sizeof *info);
    asked.push_back({path, attributes, flags});
    if (!hasAnswer) return 0;
    if (answerIsEmpty) return 1;
    const std::wstring answer = std::wstring(L"kind of ") + path;
    answer.copy(info->szTypeName, 79);
    return 1;
}

class TypeNamesTest : public testing::Test {
  protected:
    void SetUp() override {
        asked.clear();
        hasAnswer = true;
        answerIsEmpty = false;
    }

    std::wstring Of(const wchar_t* path, DWORD attributes = FILE_ATTRIBUTE_NORMAL) {
        return names_.Of(path, attributes);
    }

    Replaced<decltype(ce::shellCalls.getFileInfo)> shell_{ce::shellCalls.getFileInfo, &AnswerByPath};
    TypeNames names_;
};

}  // namespace

TEST_F(TypeNamesTest, the_shell_is_asked_for_the_type_name_alone_without_attributes) {
    EXPECT_EQ(Of(L"\\f\\a.txt", FILE_ATTRIBUTE_HIDDEN), L"kind of \\f\\a.txt");
    EXPECT_EQ(asked, (std::vector<Question>{{L"\\f\\a.txt", 0, SHGFI_TYPENAME}}));
}

TEST_F(TypeNamesTest, files_of_one_extension_are_asked_for_once) {
    EXPECT_EQ(Of(L"\\f\\a.txt"), L"kind of \\f\\a.txt");
    EXPECT_EQ(Of(L"\\g\\b.txt"), L"kind of \\f\\a.txt");
    EXPECT_EQ(Of(L"\\g\\c.d.txt"), L"kind of \\f\\a.txt");
    EXPECT_EQ(asked.size(), 1U);
}

TEST_F(TypeNamesTest, each_other_extension_is_asked_for) {
    EXPECT_EQ(Of(L"\\f\\a.txt"), L"kind of \\f\\a.txt");
    EXPECT_EQ(Of(L"\\f\\a.tx"), L"kind of \\f\\a.tx");
    EXPECT_EQ(Of(L"\\f\\a.txt.doc"), L"kind of \\f\\a.txt.doc");
    EXPECT_EQ(asked.size(), 3U);
}

TEST_F(TypeNamesTest, a_file_without_an_extension_is_of_a_type_of_its_own) {
    EXPECT_EQ(Of(L"\\f\\a.txt"), L"kind of \\f\\a.txt");
    EXPECT_EQ(Of(L"\\f\\plain"), L"kind of \\f\\plain");
    EXPECT_EQ(Of(L"\\g\\other"), L"kind of \\f\\plain");
    EXPECT_EQ(asked.size(), 2U);
}

TEST_F(TypeNamesTest, a_dot_in_a_folders_name_is_no_files_extension) {
    EXPECT_EQ(Of(L"\\f.txt\\plain"), L"kind of \\f.txt\\plain");
    EXPECT_EQ(Of(L"\\f\\a.txt"), L"kind of \\f\\a.txt");
    EXPECT_EQ(asked.size(), 2U);
}

TEST_F(TypeNamesTest, folders_are_of_one_type_whatever_their_names) {
    EXPECT_EQ(Of(L"\\f", FILE_ATTRIBUTE_DIRECTORY), L"kind of \\f");
    EXPECT_EQ(Of(L"\\g.txt", FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN), L"kind of \\f");
    EXPECT_EQ(Of(L"\\a.txt"), L"kind of \\a.txt");
    EXPECT_EQ(asked.size(), 2U);
}

TEST_F(TypeNamesTest, where_the_shell_has_no_answer_the_name_is_empty_and_it_is_asked_again) {
    hasAnswer = false;
    EXPECT_EQ(Of(L"\\f\\a.txt"), L"");
    hasAnswer = true;
    EXPECT_EQ(Of(L"\\f\\b.txt"), L"kind of \\f\\b.txt");
    EXPECT_EQ(asked.size(), 2U);
}

TEST_F(TypeNamesTest, an_empty_name_is_an_answer_and_not_asked_for_again) {
    answerIsEmpty = true;
    EXPECT_EQ(Of(L"\\f\\plain"), L"");
    answerIsEmpty = false;
    EXPECT_EQ(Of(L"\\g\\other"), L"");
    EXPECT_EQ(asked.size(), 1U);
}

TEST_F(TypeNamesTest, an_extension_in_another_letter_case_is_asked_for_on_its_own) {
    EXPECT_EQ(Of(L"\\f\\a.txt"), L"kind of \\f\\a.txt");
    EXPECT_EQ(Of(L"\\f\\B.TXT"), L"kind of \\f\\B.TXT");
    EXPECT_EQ(Of(L"\\f\\a.ÄÖ"), L"kind of \\f\\a.ÄÖ");
    EXPECT_EQ(Of(L"\\f\\b.äö"), L"kind of \\f\\b.äö");
    EXPECT_EQ(Of(L"\\g\\c.TXT"), L"kind of \\f\\B.TXT");
    EXPECT_EQ(asked.size(), 4U);
}
