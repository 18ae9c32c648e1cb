// What the question about replacing a file says and shows of both files.

#include <gtest/gtest.h>

#include <cwchar>
#include <string>
#include <vector>

#include "fileops/file_details.h"
#include "fileops/question_texts.h"
#include "resources/resource_ids.h"
#include "tests/fileops/asked_question.h"
#include "tests/support/replaced_calls.h"
#include "tests/support/temp_tree.h"
#include "tests/support/test_world.h"

namespace {

DWORD existingAttributes = 0;

struct IconQuestion {
    std::wstring path;
    DWORD attributes;
    UINT flags;
    HICON answer;
};
std::vector<IconQuestion> iconQuestions;
bool shellHasIcons = true;

// Like the shell, a new icon for every question.
DWORD_PTR IconOfFile(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT, UINT flags) {
    if (shellHasIcons) info->hIcon = CopyIcon(LoadIconW(nullptr, IDI_APPLICATION));
    iconQuestions.push_back({path, attributes, flags, info->hIcon});
    return shellHasIcons ? 1 : 0;
}

bool IsIconAlive(HICON icon) {
    ICONINFO info = {};
    if (!GetIconInfo(icon, &info)) return false;
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    return true;
}

std::wstring DetailsOf(const std::wstring& path) {
    wchar_t text[FileDetailsCapacity];
    FormatFileDetails(path.c_str(), text);
    return text;
}

struct CaseRow {
    DWORD attributes;
    const wchar_t* english;
    const wchar_t* japanese;
};

constexpr CaseRow Cases[] = {
    {FILE_ATTRIBUTE_SYSTEM, L"This folder already contains a system file called 'old.txt'.",
     L"このﾌｫﾙﾀﾞには既にｼｽﾃﾑﾌｧｲﾙ old.txt が存在します。現在あるﾌｧｲﾙを、新しいﾌｧｲﾙで上書きしますか?"},
    {FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY,
     L"This folder already contains a system file called 'old.txt'.",
     L"このﾌｫﾙﾀﾞには既にｼｽﾃﾑﾌｧｲﾙ old.txt が存在します。現在あるﾌｧｲﾙを、新しいﾌｧｲﾙで上書きしますか?"},
    {FILE_ATTRIBUTE_READONLY, L"This folder already contains a read-only file called 'old.txt'.",
     L"このﾌｫﾙﾀﾞには既に読み取り専用ﾌｧｲﾙ old.txt が存在します。現在あるﾌｧｲﾙを、新しいﾌｧｲﾙで上書きしますか?"},
    {FILE_ATTRIBUTE_ARCHIVE, L"This folder already contains a file called 'old.txt'.",
     L"このﾌｫﾙﾀﾞには既に old.txt というﾌｧｲﾙが存在します。現在あるﾌｧｲﾙを、新しいﾌｧｲﾙで上書きしますか?"},
    {INVALID_FILE_ATTRIBUTES, L"This folder already contains a file called 'old.txt'.",
     L"このﾌｫﾙﾀﾞには既に old.txt というﾌｧｲﾙが存在します。現在あるﾌｧｲﾙを、新しいﾌｧｲﾙで上書きしますか?"},
};

}  // namespace

class FileReplaceQuestion : public testing::Test {
  protected:
    FileReplaceQuestion() {
        existingAttributes = FILE_ATTRIBUTE_ARCHIVE;
        shellHasIcons = true;
        iconQuestions.clear();
    }

    ShownQuestion Shown(const wchar_t* templateName, const wchar_t* newFile, const wchar_t* existingFile) {
        const ReplacePaths paths = {newFile, existingFile};
        return AskAndClick(&host_.Object(), {templateName, FillFileReplaceText, &paths}).shown;
    }

    TestWorld world_;
    HostWindow host_;
    TempTree tree_;
    std::wstring existing_ = tree_.AddFile(L"old.txt", std::string(102400, 'x'));
    std::wstring replacing_ = tree_.AddFile(L"new\\new.txt", "fresh");
    // Only the existing file's own attributes matter.
    Replaced<decltype(ce::FileCalls::getFileAttributes)> attributes_{
        ce::fileCalls.getFileAttributes, [](const wchar_t* path) -> DWORD {
            return std::wcsstr(path, L"\\old.txt") != nullptr ? existingAttributes : FILE_ATTRIBUTE_SYSTEM;
        }};
    Replaced<decltype(ce::ShellCalls::getFileInfo)> icons_{ce::shellCalls.getFileInfo, &IconOfFile};
};

TEST_F(FileReplaceQuestion, tells_system_before_read_only_files_in_english) {
    for (const CaseRow& row : Cases) {
        existingAttributes = row.attributes;
        const ShownQuestion shown = Shown(FileReplaceTemplate(), replacing_.c_str(), existing_.c_str());
        EXPECT_EQ(shown.title, L"Confirm File Replace");
        EXPECT_EQ(shown.question, row.english);
    }
}

TEST_F(FileReplaceQuestion, tells_system_before_read_only_files_in_japanese) {
    ContextForStartUp().uiLanguage = UiLanguage::Japanese;
    for (const CaseRow& row : Cases) {
        existingAttributes = row.attributes;
        const ShownQuestion shown =
            Shown(MultipleFileReplaceTemplate(), replacing_.c_str(), existing_.c_str());
        EXPECT_EQ(shown.title, L"ﾌｧｲﾙの置換の確認");
        EXPECT_EQ(shown.question, row.japanese);
        EXPECT_EQ(shown.yesToAll, L"全上書(&A)");
    }
}

TEST_F(FileReplaceQuestion, describes_both_files) {
    const ShownQuestion shown = Shown(FileReplaceTemplate(), replacing_.c_str(), existing_.c_str());
    EXPECT_EQ(shown.existingDetails.substr(0, 21), L"100KB (102400 bytes)\n");
    EXPECT_EQ(shown.existingDetails, DetailsOf(existing_));
    EXPECT_EQ(shown.newDetails.substr(0, 16), L"0.0KB (5 bytes)\n");
    EXPECT_EQ(shown.newDetails, DetailsOf(replacing_));
}

TEST_F(FileReplaceQuestion, shows_the_shells_icons_of_both_files) {
    const ShownQuestion shown = Shown(MultipleFileReplaceTemplate(), replacing_.c_str(), existing_.c_str());
    ASSERT_EQ(iconQuestions.size(), 2u);
    for (const IconQuestion& question : iconQuestions) {
        EXPECT_EQ(question.attributes, 0u);
        EXPECT_EQ(question.flags, 0x700u);
    }
    EXPECT_EQ(iconQuestions[0].path, existing_);
    EXPECT_EQ(shown.existingIcon, iconQuestions[0].answer);
    EXPECT_EQ(iconQuestions[1].path, replacing_);
    EXPECT_EQ(shown.newIcon, iconQuestions[1].answer);
}

TEST_F(FileReplaceQuestion, frees_the_shells_icons_when_it_is_over) {
    const ReplacePaths paths = {replacing_.c_str(), existing_.c_str()};
    bool aliveWhileShown = false;
    const AskedQuestion asked =
        Ask(&host_.Object(), {FileReplaceTemplate(), FillFileReplaceText, &paths}, [&](HWND dialog) {
            aliveWhileShown = IsIconAlive(iconQuestions[0].answer) && IsIconAlive(iconQuestions[1].answer);
            PostMessageW(dialog, WM_COMMAND, IDYES, 0);
        });
    EXPECT_EQ(asked.result, ConfirmResult::Yes);
    EXPECT_TRUE(aliveWhileShown);
    ASSERT_EQ(iconQuestions.size(), 2u);
    EXPECT_FALSE(IsIconAlive(iconQuestions[0].answer));
    EXPECT_FALSE(IsIconAlive(iconQuestions[1].answer));
}

TEST_F(FileReplaceQuestion, keeps_the_templates_icons_where_the_shell_has_none) {
    shellHasIcons = false;
    const ShownQuestion shown = Shown(FileReplaceTemplate(), replacing_.c_str(), existing_.c_str());
    EXPECT_NE(shown.existingIcon, nullptr);
    EXPECT_NE(shown.newIcon, nullptr);
    EXPECT_NE(shown.existingIcon, shown.newIcon);
}

TEST_F(FileReplaceQuestion, without_an_existing_file_shows_the_new_one_only) {
    const ShownQuestion shown = Shown(FileReplaceTemplate(), replacing_.c_str(), nullptr);
    EXPECT_EQ(shown.existingDetails, L"");
    EXPECT_EQ(shown.newDetails, DetailsOf(replacing_));
    EXPECT_EQ(iconQuestions.size(), 1u);
}

TEST_F(FileReplaceQuestion, without_a_new_file_shows_the_existing_one_only) {
    const ShownQuestion shown = Shown(FileReplaceTemplate(), nullptr, existing_.c_str());
    EXPECT_EQ(shown.existingDetails, DetailsOf(existing_));
    EXPECT_EQ(shown.newDetails, L"");
    EXPECT_EQ(iconQuestions.size(), 1u);
}

TEST_F(FileReplaceQuestion, leaves_the_details_of_a_vanished_file_empty) {
    ASSERT_TRUE(DeleteFileW(existing_.c_str()));
    const ShownQuestion shown = Shown(FileReplaceTemplate(), replacing_.c_str(), existing_.c_str());
    EXPECT_EQ(shown.question, L"This folder already contains a file called 'old.txt'.");
    EXPECT_EQ(shown.existingDetails, L"");
}
