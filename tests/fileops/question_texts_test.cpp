// What the questions about deleting, and about replacing a folder, say.

#include "fileops/question_texts.h"

#include <gtest/gtest.h>

#include <string>

#include "resources/resource_ids.h"
#include "tests/fileops/asked_question.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/test_world.h"

namespace {

// Folders by name; everything else has no attributes that count.
DWORD AttributesByName(const wchar_t* path) {
    const std::wstring name = path;
    if (name == L"\\read-only" || name == L"\\read-only.exe")
        return FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY;
    if (name == L"\\system" || name == L"\\system.exe")
        return FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_SYSTEM;
    if (name == L"\\unreadable") return INVALID_FILE_ATTRIBUTES;
    if (name == L"\\plain\\read-only.txt") return FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_SYSTEM;
    return FILE_ATTRIBUTE_DIRECTORY;
}

struct QuestionRow {
    const char* name;
    const wchar_t* path;
    const wchar_t* english;
    const wchar_t* japanese;
};

constexpr QuestionRow DeleteRows[] = {
    {"in_a_read_only_folder", L"\\read-only\\a.txt",
     L"The file 'a.txt' is a read-only file. Are you sure you want to delete it?",
     L"ﾌｧｲﾙ 'a.txt' は読み取り専用です。削除してもよろしいですか?"},
    {"in_a_read_only_folder_that_looks_like_a_program", L"\\read-only.exe\\a.txt",
     L"The file 'a.txt' is a read-only file. Are you sure you want to delete it?",
     L"ﾌｧｲﾙ 'a.txt' は読み取り専用です。削除してもよろしいですか?"},
    {"in_a_folder_that_looks_like_a_program", L"\\tools.exe\\a.txt",
     L"The file 'a.txt' is a program.\n\nIf you remove it, you will no longer be able to run this program or "
     L"edit some documents. Are you sure you want to delete it?",
     L"ﾌｧｲﾙ 'a.txt' "
     L"はﾌﾟﾛｸﾞﾗﾑです。\n\n削除すると、このﾌﾟﾛｸﾞﾗﾑは実行できなくなり、また一部の文書は編集できなくなります。\n"
     L"削除してもよろしいですか?"},
    {"in_a_system_folder_that_looks_like_a_program", L"\\system.exe\\a.txt",
     L"The file 'a.txt' is a program.\n\nIf you remove it, you will no longer be able to run this program or "
     L"edit some documents. Are you sure you want to delete it?",
     L"ﾌｧｲﾙ 'a.txt' "
     L"はﾌﾟﾛｸﾞﾗﾑです。\n\n削除すると、このﾌﾟﾛｸﾞﾗﾑは実行できなくなり、また一部の文書は編集できなくなります。\n"
     L"削除してもよろしいですか?"},
    {"in_a_system_folder", L"\\system\\a.txt",
     L"The file 'a.txt' is a system file.\n\nIf you remove it, your computer or one of your programs may no "
     L"longer work correctly.",
     L"ﾌｧｲﾙ 'a.txt' はｼｽﾃﾑ "
     L"ﾌｧｲﾙです。\n\n削除すると、ｼｽﾃﾑやｱﾌﾟﾘｹｰｼｮﾝが正しく作動しなくなる可能性があります。\n"
     L"削除してもよろしいですか?"},
    {"in_an_ordinary_folder", L"\\plain\\a.txt", L"Are you sure you want to delete 'a.txt'?",
     L"'a.txt' を削除してもよろしいですか?"},
    {"that_is_a_program_in_an_ordinary_folder", L"\\My Documents\\a.exe",
     L"Are you sure you want to delete 'a.exe'?", L"'a.exe' を削除してもよろしいですか?"},
    {"that_is_read_only_in_an_ordinary_folder", L"\\plain\\read-only.txt",
     L"Are you sure you want to delete 'read-only.txt'?", L"'read-only.txt' を削除してもよろしいですか?"},
    {"in_a_folder_that_cannot_be_read", L"\\unreadable\\a.txt", L"Are you sure you want to delete 'a.txt'?",
     L"'a.txt' を削除してもよろしいですか?"},
    {"with_a_percent_sign", L"\\plain\\100%s.txt", L"Are you sure you want to delete '100%s.txt'?",
     L"'100%s.txt' を削除してもよろしいですか?"},
};

void PrintTo(const QuestionRow& row, std::ostream* out) {
    *out << row.name;
}

HICON ProgramIcon(int id) {
    return LoadIconW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(id));
}

}  // namespace

class QuestionTexts : public testing::Test {
  protected:
    static void UseJapanese() { ContextForStartUp().uiLanguage = UiLanguage::Japanese; }

    ShownQuestion Shown(const wchar_t* templateName, void (*fill)(HWND, const wchar_t*),
                        const std::wstring& path) {
        return AskAndClick(&host_.Object(), {templateName, fill, path.c_str()}).shown;
    }

  private:
    TestWorld world_;
    HostWindow host_;
    Replaced<decltype(ce::FileCalls::getFileAttributes)> attributes_{ce::fileCalls.getFileAttributes,
                                                                     &AttributesByName};
};

class FileDeleteQuestion : public QuestionTexts, public testing::WithParamInterface<QuestionRow> {};

TEST_P(FileDeleteQuestion, reads_so_in_english) {
    const ShownQuestion shown = Shown(YesNoTemplate(), FillFileDeleteText, GetParam().path);
    EXPECT_EQ(shown.title, L"Confirm File Delete");
    EXPECT_EQ(shown.question, GetParam().english);
    EXPECT_EQ(shown.icon, ProgramIcon(10011));
}

TEST_P(FileDeleteQuestion, reads_so_in_japanese) {
    UseJapanese();
    const ShownQuestion shown = Shown(YesNoTemplate(), FillFileDeleteText, GetParam().path);
    EXPECT_EQ(shown.title, L"ﾌｧｲﾙの削除の確認");
    EXPECT_EQ(shown.question, GetParam().japanese);
    EXPECT_EQ(shown.icon, ProgramIcon(10011));
}

INSTANTIATE_TEST_SUITE_P(AboutAFile, FileDeleteQuestion, testing::ValuesIn(DeleteRows),
                         [](const testing::TestParamInfo<QuestionRow>& row) {
                             return std::string(row.param.name);
                         });

TEST_F(QuestionTexts, the_folder_delete_question_in_english) {
    const ShownQuestion shown =
        Shown(YesAllNoCancelTemplate(), FillFolderDeleteText, L"\\My Documents\\Business");
    EXPECT_EQ(shown.title, L"Confirm Folder Delete");
    EXPECT_EQ(shown.question, L"Are you sure you want to remove the folder 'Business' and all its contents?");
    EXPECT_EQ(shown.icon, ProgramIcon(10011));
    EXPECT_EQ(shown.yesToAll, L"Yes to &All");
}

TEST_F(QuestionTexts, the_folder_delete_question_in_japanese) {
    UseJapanese();
    const ShownQuestion shown =
        Shown(YesAllNoCancelTemplate(), FillFolderDeleteText, L"\\My Documents\\書類");
    EXPECT_EQ(shown.title, L"ﾌｫﾙﾀﾞの削除の確認");
    EXPECT_EQ(shown.question, L"ﾌｫﾙﾀﾞ'書類'とﾌｫﾙﾀﾞ内のすべてのﾌｧｲﾙを削除してもよろしいですか?");
    EXPECT_EQ(shown.icon, ProgramIcon(10011));
    EXPECT_EQ(shown.yesToAll, L"全削除(&A)");
}

TEST_F(QuestionTexts, the_folder_replace_question_names_the_whole_path_in_english) {
    const ShownQuestion shown =
        Shown(YesAllNoCancelTemplate(), FillFolderReplaceText, L"\\Storage Card\\Business");
    EXPECT_EQ(shown.title, L"Confirm Folder Replace");
    EXPECT_EQ(
        shown.question,
        L"This folder already contains a folder called '\\Storage Card\\Business'.\n\nIf the files in the "
        L"existing folder have the same name as files in the folder you are moving, do you want to replace "
        L"the existing files?");
    EXPECT_EQ(shown.icon, ProgramIcon(10032));
    EXPECT_EQ(shown.yesToAll, L"Yes to &All");
}

TEST_F(QuestionTexts, the_folder_replace_question_in_japanese_has_its_own_yes_to_all) {
    UseJapanese();
    const ShownQuestion shown = Shown(YesAllNoCancelTemplate(), FillFolderReplaceText, L"\\書類");
    EXPECT_EQ(shown.title, L"ﾌｫﾙﾀﾞの置換の確認");
    EXPECT_EQ(shown.question,
              L"このﾌｫﾙﾀﾞにはすでに'\\書類'"
              L"というﾌｫﾙﾀﾞが存在します。\n\n現在のﾌｫﾙﾀﾞのﾌｧｲﾙと新しいﾌｫﾙﾀﾞのﾌｧｲﾙが同じ名前の場合、"
              L"新しいﾌｧｲﾙで上書きしますか?");
    EXPECT_EQ(shown.icon, ProgramIcon(10032));
    EXPECT_EQ(shown.yesToAll, L"すべて上書き(&A)");
}

TEST_F(QuestionTexts, the_longest_path_is_shown_whole) {
    const std::wstring path = L"\\" + std::wstring(258, L'n');
    EXPECT_EQ(Shown(YesNoTemplate(), FillFileDeleteText, path).question,
              L"Are you sure you want to delete '" + path.substr(1) + L"'?");
    EXPECT_NE(Shown(YesAllNoCancelTemplate(), FillFolderReplaceText, path).question.find(L"'" + path + L"'."),
              std::wstring::npos);
}
