// The dialogs as real windows with long texts: nothing clipped, nothing outside, nothing covered, in both
// languages on both screens.

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "fileops/question_texts.h"
#include "framework/dialog_fit.h"
#include "tests/resources/dialog_window.h"

namespace {

struct LayoutCase {
    UiLanguage language;
    Screen screen;

    [[nodiscard]] const wchar_t* Pick(const wchar_t* english, const wchar_t* japanese) const {
        return language == UiLanguage::Japanese ? japanese : english;
    }
};

void PrintTo(const LayoutCase& layout, std::ostream* out) {
    *out << (layout.language == UiLanguage::Japanese ? "japanese_on_" : "english_on_")
         << SizeOfScreen(layout.screen).cx << "_by_" << SizeOfScreen(layout.screen).cy;
}

std::vector<LayoutCase> Everywhere() {
    std::vector<LayoutCase> cases;
    for (const UiLanguage language : {UiLanguage::English, UiLanguage::Japanese})
        for (const Screen screen :
             {Screen::Pocket, Screen::Handheld, Screen::Low, Screen::Square, Screen::Tall, Screen::Desktop})
            cases.push_back({language, screen});
    return cases;
}

constexpr const wchar_t* LongEnglishName = L"Quarterly sales report of the northern branch 2008.xls";
constexpr const wchar_t* LongJapaneseName = L"四半期営業報告書2008年第三四半期北支店.xls";

void ExpectAllShown(DialogWindow& dialog) {
    dialog.SetUpByShell();
    dialog.ExpectOnScreen();
    dialog.ExpectControlsInside();
    dialog.ExpectTextsWhole();
    dialog.ExpectNothingCovered();
}

class QuestionLayout : public testing::TestWithParam<LayoutCase> {
  protected:
    [[nodiscard]] std::wstring Name() const { return GetParam().Pick(LongEnglishName, LongJapaneseName); }

    // Asks as the program does, and looks.
    template <class Subject>
    void Ask(const wchar_t* english, const wchar_t* japanese, void (*fill)(HWND, const Subject*),
             const Subject* argument, const wchar_t* partOfText) {
        DialogWindow dialog(GetParam().Pick(english, japanese), GetParam().screen, GetParam().language);
        ASSERT_NE(dialog.Handle(), nullptr);
        fill(dialog.Handle(), argument);
        ASSERT_NE(dialog.TextOf(11901).find(partOfText), std::wstring::npos);
        GrowToText(dialog.Handle(), 11901);
        FitToScreen(dialog.Handle(), 11901);
        ExpectAllShown(dialog);
    }

    void AskAboutReplacing(const wchar_t* english, const wchar_t* japanese, LONG size = 102399999) {
        wchar_t folder[MAX_PATH] = {};
        GetTempPathW(MAX_PATH, folder);
        const std::wstring existing = folder + Name();
        const std::wstring replacing = existing + L".new";
        for (const std::wstring& path : {existing, replacing}) {
            const HANDLE file =
                CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
            ASSERT_NE(file, INVALID_HANDLE_VALUE);
            SetFilePointer(file, size, nullptr, FILE_BEGIN);
            SetEndOfFile(file);
            CloseHandle(file);
        }
        SetFileAttributesW(existing.c_str(), FILE_ATTRIBUTE_READONLY);
        const ReplacePaths paths = {replacing.c_str(), existing.c_str()};
        Ask(english, japanese, FillFileReplaceText, &paths,
            GetParam().Pick(L"a read-only file called", L"読み取り専用ﾌｧｲﾙ"));
        SetFileAttributesW(existing.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileW(existing.c_str());
        DeleteFileW(replacing.c_str());
    }
};

TEST_P(QuestionLayout, the_longest_question_about_deleting_one_file_is_shown_whole) {
    const std::wstring path = L"\\tools.exe\\" + Name();
    Ask(L"EConfirmYesNoDialog_E", L"EConfirmYesNoDialog_J", FillFileDeleteText, path.c_str(),
        GetParam().Pick(L"no longer be able to run", L"実行できなくなり"));
}

TEST_P(QuestionLayout, the_longest_question_about_deleting_one_of_many_files_is_shown_whole) {
    const std::wstring path = L"\\tools.exe\\" + Name();
    Ask(L"EConfirmYesAllNoCancelDialog_E", L"EConfirmYesAllNoCancelDialog_J", FillFileDeleteText,
        path.c_str(), GetParam().Pick(L"no longer be able to run", L"実行できなくなり"));
}

TEST_P(QuestionLayout, the_question_about_deleting_a_folder_is_shown_whole) {
    const std::wstring path = L"\\My Documents\\" + Name();
    Ask(L"EConfirmYesAllNoCancelDialog_E", L"EConfirmYesAllNoCancelDialog_J", FillFolderDeleteText,
        path.c_str(), GetParam().Pick(L"all its contents", L"すべてのﾌｧｲﾙ"));
}

TEST_P(QuestionLayout, the_question_about_replacing_a_folder_with_its_whole_path_is_shown_whole) {
    const std::wstring path = L"\\Storage Card\\" + Name();
    Ask(L"EConfirmYesAllNoCancelDialog_E", L"EConfirmYesAllNoCancelDialog_J", FillFolderReplaceText,
        path.c_str(), GetParam().Pick(L"replace the existing files?", L"上書きしますか"));
}

TEST_P(QuestionLayout, the_longest_question_about_replacing_one_file_is_shown_whole) {
    AskAboutReplacing(L"EConfirmFileReplaceDialog_E", L"EConfirmFileReplaceDialog_J");
}

TEST_P(QuestionLayout, the_longest_question_about_replacing_one_of_many_files_is_shown_whole) {
    AskAboutReplacing(L"EConfirmMultipleFileReplaceDialog_E", L"EConfirmMultipleFileReplaceDialog_J");
}

// Nearly as many as a name of 255 bytes holds.
TEST_P(QuestionLayout, a_question_about_a_name_of_76_wide_letters_is_shown_whole) {
    const std::wstring path = L"\\tools.exe\\" + std::wstring(72, L'報') + L".xls";
    Ask(L"EConfirmYesNoDialog_E", L"EConfirmYesNoDialog_J", FillFileDeleteText, path.c_str(),
        GetParam().Pick(L"no longer be able to run", L"実行できなくなり"));
    Ask(L"EConfirmYesAllNoCancelDialog_E", L"EConfirmYesAllNoCancelDialog_J", FillFileDeleteText,
        path.c_str(), GetParam().Pick(L"no longer be able to run", L"実行できなくなり"));
}

TEST_P(QuestionLayout, a_question_about_a_path_of_259_letters_is_shown_whole) {
    const std::wstring path = L"\\" + std::wstring(129, L'n') + L"\\" + std::wstring(128, L'm');
    Ask(L"EConfirmYesAllNoCancelDialog_E", L"EConfirmYesAllNoCancelDialog_J", FillFolderReplaceText,
        path.c_str(), GetParam().Pick(L"replace the existing files?", L"上書きしますか"));
}

TEST_P(QuestionLayout, the_size_and_the_date_of_a_large_file_are_both_shown) {
    AskAboutReplacing(L"EConfirmFileReplaceDialog_E", L"EConfirmFileReplaceDialog_J", 1500000000);
    AskAboutReplacing(L"EConfirmMultipleFileReplaceDialog_E", L"EConfirmMultipleFileReplaceDialog_J",
                      1500000000);
}

INSTANTIATE_TEST_SUITE_P(Screens, QuestionLayout, testing::ValuesIn(Everywhere()),
                         testing::PrintToStringParamName());

class DialogLayout : public testing::TestWithParam<LayoutCase> {};

TEST_P(DialogLayout, the_about_box_is_shown_whole) {
    DialogWindow about(GetParam().Pick(L"EAboutDialog_E", L"EAboutDialog_J"), GetParam().screen,
                       GetParam().language);
    for (const auto& [id, string] :
         {std::pair{11901, 101}, {11902, 102}, {11903, 103}, {11910, 104}, {11911, 105}}) {
        wchar_t text[260] = {};
        ASSERT_GT(LoadStringW(Context().instance, static_cast<UINT>(string), text, 260), 0);
        SetDlgItemTextW(about.Handle(), id, text);
    }
    const wchar_t* const lines[] = {
        GetParam().Pick(L"Program: 4194302/4194303KB (99%)", L"ﾌﾟﾛｸﾞﾗﾑ: 4194302/4194303KB (99%)"),
        GetParam().Pick(L"Data: 4194302/4194303KB (99%)", L"ﾃﾞｰﾀ: 4194302/4194303KB (99%)"),
        L"Storage Card: 61234/125000KB (48%)", L"Storage Card2: 61234/125000KB (48%)"};
    for (int line = 0; line < 4; ++line) {
        SetDlgItemTextW(about.Handle(), 11904 + line, lines[line]);
        WidenToText(about.Handle(), 11904 + line);
    }
    KeepTitleLineFree(about.Handle());
    FitToScreen(about.Handle(), 11911);
    ExpectAllShown(about);
}

TEST_P(DialogLayout, the_folder_browser_is_shown_whole) {
    DialogWindow browser(GetParam().Pick(L"EBrowseDialog_E", L"EBrowseDialog_J"), GetParam().screen,
                         GetParam().language);
    ExpectAllShown(browser);
}

TEST_P(DialogLayout, the_progress_dialog_is_shown_whole) {
    DialogWindow progress(GetParam().Pick(L"EFileOpDialog_E", L"EFileOpDialog_J"), GetParam().screen,
                          GetParam().language);
    SetDlgItemTextW(progress.Handle(), 11901, GetParam().Pick(L"Source file:", L"ｱｯﾌﾟﾃﾞｰﾄ元"));
    SetDlgItemTextW(progress.Handle(), 11902, L"\\My Documents\\Business\\a.xls");
    SetDlgItemTextW(progress.Handle(), 11903, GetParam().Pick(L"Destination file:", L"ｱｯﾌﾟﾃﾞｰﾄ先"));
    SetDlgItemTextW(progress.Handle(), 11904, L"\\Storage Card\\Business\\a.xls");
    ExpectAllShown(progress);
}

// The line that the dialog draws below the heading.
TEST_P(DialogLayout, a_heading_ends_above_the_title_line) {
    for (const wchar_t* const name :
         {L"EAboutDialog_", L"EBrowseDialog_", L"EConfirmYesNoDialog_", L"EConfirmYesAllNoCancelDialog_",
          L"EConfirmFileReplaceDialog_", L"EConfirmMultipleFileReplaceDialog_"}) {
        DialogWindow dialog((name + std::wstring(GetParam().Pick(L"E", L"J"))).c_str(), GetParam().screen,
                            GetParam().language);
        KeepTitleLineFree(dialog.Handle());
        RECT heading = {};
        GetWindowRect(dialog.Item(12500), &heading);
        MapWindowPoints(nullptr, dialog.Handle(), reinterpret_cast<POINT*>(&heading), 2);
        EXPECT_LE(heading.bottom, 24);
        EXPECT_LE(TextRoom(dialog.Item(12500), dialog.TextOf(12500), 1000).cy, heading.bottom - heading.top);
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, DialogLayout, testing::ValuesIn(Everywhere()),
                         testing::PrintToStringParamName());

}  // namespace
