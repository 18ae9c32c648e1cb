// The questions against the written controls, in both languages.

#include <gtest/gtest.h>
#include <windows.h>

#include <vector>

#include "tests/resources/dialog_expectations.h"

namespace {

using Controls = std::vector<ExpectedControl>;

// An ampersand in a name is shown, a long name without a blank breaks.
constexpr DWORD QuestionStyle = SS_NOPREFIX | SS_EDITCONTROL;
constexpr DWORD StaticKind = SS_TYPEMASK;
constexpr DWORD ButtonStyle = ButtonKind | WS_TABSTOP;
constexpr DWORD Default = BS_DEFPUSHBUTTON | WS_TABSTOP;
constexpr DWORD Push = BS_PUSHBUTTON | WS_TABSTOP;

// In the order of the Tab key: heading, icon and question, then the given controls.
Controls QuestionWith(const wchar_t* heading, const wchar_t* icon, const Controls& others) {
    Controls all = {
        {L"Static", 12500, heading, StaticKind, SS_LEFT},
        {L"Static", 10901, icon, StaticKind, SS_ICON},
        {L"Static", 11901, L"", StaticKind | QuestionStyle, SS_LEFT | QuestionStyle},
    };
    all.insert(all.end(), others.begin(), others.end());
    return all;
}

// What stands between the question and the buttons when a file is to be replaced.
Controls BothFiles(const wchar_t* existing, const wchar_t* replacing, const Controls& buttons) {
    Controls all = {
        {L"Static", Label, existing, StaticKind, SS_LEFT},
        {L"Static", 10902, L"#10004", StaticKind, SS_ICON},
        {L"Static", 11904, L"", StaticKind, SS_LEFT},
        {L"Static", Label, replacing, StaticKind, SS_LEFT},
        {L"Static", 10903, L"#10000", StaticKind, SS_ICON},
        {L"Static", 11905, L"", StaticKind, SS_LEFT},
    };
    all.insert(all.end(), buttons.begin(), buttons.end());
    return all;
}

const Controls YesNoEnglish = {
    {L"Button", 6, L"&Yes", ButtonStyle, Default},
    {L"Button", 7, L"&No", ButtonStyle, Push},
};
const Controls YesNoJapanese = {
    {L"Button", 6, L"はい(&Y)", ButtonStyle, Default},
    {L"Button", 7, L"いいえ(&N)", ButtonStyle, Push},
};
const Controls FourEnglish = {
    {L"Button", 6, L"&Yes", ButtonStyle, Default},
    {L"Button", 20, L"Yes to &All", ButtonStyle, Push},
    {L"Button", 7, L"&No", ButtonStyle, Push},
    {L"Button", 2, L"Cancel", ButtonStyle, Push},
};

// "Yes to All" reads otherwise where it deletes and where it overwrites.
Controls FourJapanese(const wchar_t* yesToAll) {
    return {
        {L"Button", 6, L"はい(&Y)", ButtonStyle, Default},
        {L"Button", 20, yesToAll, ButtonStyle, Push},
        {L"Button", 7, L"いいえ(&N)", ButtonStyle, Push},
        {L"Button", 2, L"ｷｬﾝｾﾙ", ButtonStyle, Push},
    };
}

constexpr const wchar_t* ExistingEnglish = L"Would you like to replace the existing file";
constexpr const wchar_t* NewEnglish = L"with this one?";
constexpr const wchar_t* ExistingJapanese = L"現在のﾌｧｲﾙ";
constexpr const wchar_t* NewJapanese = L"新しいﾌｧｲﾙ";

TEST(QuestionTemplates, the_english_yes_and_no_question_reads_as_written) {
    ExpectControls(L"EConfirmYesNoDialog_E", QuestionWith(L"Confirm", L"#10011", YesNoEnglish));
}
TEST(QuestionTemplates, the_japanese_yes_and_no_question_reads_as_written) {
    ExpectControls(L"EConfirmYesNoDialog_J", QuestionWith(L"確認", L"#10011", YesNoJapanese));
}
TEST(QuestionTemplates, the_english_question_with_four_answers_reads_as_written) {
    ExpectControls(L"EConfirmYesAllNoCancelDialog_E", QuestionWith(L"Confirm", L"#10011", FourEnglish));
}
TEST(QuestionTemplates, the_japanese_question_with_four_answers_reads_as_written) {
    ExpectControls(L"EConfirmYesAllNoCancelDialog_J",
                   QuestionWith(L"確認", L"#10011", FourJapanese(L"全削除(&A)")));
}
TEST(QuestionTemplates, the_english_question_about_replacing_a_file_reads_as_written) {
    ExpectControls(L"EConfirmFileReplaceDialog_E",
                   QuestionWith(L"Confirm File Replace", L"#10022",
                                BothFiles(ExistingEnglish, NewEnglish, YesNoEnglish)));
}
TEST(QuestionTemplates, the_japanese_question_about_replacing_a_file_reads_as_written) {
    ExpectControls(L"EConfirmFileReplaceDialog_J",
                   QuestionWith(L"ﾌｧｲﾙの置換の確認", L"#10022",
                                BothFiles(ExistingJapanese, NewJapanese, YesNoJapanese)));
}
TEST(QuestionTemplates, the_english_question_about_replacing_one_of_many_files_reads_as_written) {
    ExpectControls(L"EConfirmMultipleFileReplaceDialog_E",
                   QuestionWith(L"Confirm File Replace", L"#10022",
                                BothFiles(ExistingEnglish, NewEnglish, FourEnglish)));
}
TEST(QuestionTemplates, the_japanese_question_about_replacing_one_of_many_files_reads_as_written) {
    ExpectControls(L"EConfirmMultipleFileReplaceDialog_J",
                   QuestionWith(L"ﾌｧｲﾙの置換の確認", L"#10022",
                                BothFiles(ExistingJapanese, NewJapanese, FourJapanese(L"全上書(&A)"))));
}

TEST(QuestionTemplates, all_have_their_title_and_one_size) {
    for (const wchar_t* const name : {L"EConfirmYesNoDialog_E", L"EConfirmYesAllNoCancelDialog_E"})
        ExpectCaptionedPopUp(name, L"Confirm", 134, 152);
    for (const wchar_t* const name : {L"EConfirmYesNoDialog_J", L"EConfirmYesAllNoCancelDialog_J"})
        ExpectCaptionedPopUp(name, L"確認", 134, 152);
    for (const wchar_t* const name : {L"EConfirmFileReplaceDialog_E", L"EConfirmMultipleFileReplaceDialog_E"})
        ExpectCaptionedPopUp(name, L"Confirm File Replace", 134, 152);
    for (const wchar_t* const name : {L"EConfirmFileReplaceDialog_J", L"EConfirmMultipleFileReplaceDialog_J"})
        ExpectCaptionedPopUp(name, L"ﾌｧｲﾙの置換の確認", 134, 152);
}

TEST(QuestionTemplates, icon_and_text_stand_where_they_are_laid_down) {
    for (const wchar_t* const name : {L"EConfirmYesNoDialog_E", L"EConfirmYesNoDialog_J"})
        ExpectPlaces(name, {{10901, 4, 20, 20, 20}, {11901, 28, 20, 98, 68}});
    for (const wchar_t* const name : {L"EConfirmYesAllNoCancelDialog_E", L"EConfirmYesAllNoCancelDialog_J"})
        ExpectPlaces(name, {{10901, 4, 20, 20, 20}, {11901, 32, 20, 98, 36}});
    for (const wchar_t* const name :
         {L"EConfirmFileReplaceDialog_E", L"EConfirmFileReplaceDialog_J",
          L"EConfirmMultipleFileReplaceDialog_E", L"EConfirmMultipleFileReplaceDialog_J"})
        ExpectPlaces(name, {{10901, 4, 20, 20, 20}});
}

}  // namespace
