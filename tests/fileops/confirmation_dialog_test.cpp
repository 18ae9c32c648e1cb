#include "fileops/confirmation_dialog.h"

#include <gtest/gtest.h>

#include <string>

#include "fileops/question_texts.h"
#include "resources/resource_ids.h"
#include "tests/fileops/asked_question.h"
#include "tests/support/test_world.h"

namespace {

constexpr const wchar_t* Path = L"\\folder\\a.txt";

struct TemplateOfLanguages {
    const wchar_t* (*pick)();
    const wchar_t* english;
    const wchar_t* japanese;
    std::vector<int> buttons;
};

const TemplateOfLanguages Templates[] = {
    {YesNoTemplate, L"EConfirmYesNoDialog_E", L"EConfirmYesNoDialog_J", {6, 7}},
    {YesAllNoCancelTemplate,
     L"EConfirmYesAllNoCancelDialog_E",
     L"EConfirmYesAllNoCancelDialog_J",
     {6, 20, 7, 2}},
    {FileReplaceTemplate, L"EConfirmFileReplaceDialog_E", L"EConfirmFileReplaceDialog_J", {6, 7}},
    {MultipleFileReplaceTemplate,
     L"EConfirmMultipleFileReplaceDialog_E",
     L"EConfirmMultipleFileReplaceDialog_J",
     {6, 20, 7, 2}},
};

void AnswerWithYes(HWND dialog, const wchar_t*) {
    PostMessageW(dialog, WM_COMMAND, IDYES, 0);
}

}  // namespace

class ConfirmationDialogTest : public testing::Test {
  protected:
    AskedQuestion AskWithKey(const wchar_t* templateName, WPARAM key) {
        return Ask(&host_.Object(), {templateName, FillFileDeleteText, Path},
                   [key](HWND dialog) { PostMessageW(dialog, WM_KEYDOWN, key, 1); });
    }
    ConfirmResult AnswerOfCommand(int command) {
        return Ask(&host_.Object(), {YesNoTemplate(), FillFileDeleteText, Path},
                   [command](HWND dialog) {
                       PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(command), 0);
                   })
            .result;
    }

    TestWorld world_;
    HostWindow host_;
};

TEST_F(ConfirmationDialogTest, takes_each_template_in_the_users_language) {
    for (const TemplateOfLanguages& entry : Templates) {
        ContextForStartUp().uiLanguage = UiLanguage::English;
        EXPECT_STREQ(entry.pick(), entry.english);
        ContextForStartUp().uiLanguage = UiLanguage::Japanese;
        EXPECT_STREQ(entry.pick(), entry.japanese);
    }
}

TEST_F(ConfirmationDialogTest, every_button_of_every_template_is_an_answer) {
    for (const TemplateOfLanguages& entry : Templates) {
        for (const wchar_t* const name : {entry.english, entry.japanese}) {
            for (const int button : entry.buttons) {
                const AskedQuestion asked =
                    AskAndClick(&host_.Object(), {name, FillFileDeleteText, Path}, button);
                EXPECT_EQ(static_cast<int>(asked.result), button) << std::string(name, name + wcslen(name));
            }
        }
    }
}

TEST_F(ConfirmationDialogTest, every_command_that_ends_it_is_its_result) {
    for (const int command : {1, 2, 3, 4, 5, 6, 7, 20})
        EXPECT_EQ(static_cast<int>(AnswerOfCommand(command)), command);
}

TEST_F(ConfirmationDialogTest, escape_cancels_with_and_without_a_cancel_button) {
    EXPECT_EQ(AskWithKey(YesNoTemplate(), VK_ESCAPE).result, ConfirmResult::Cancel);
    EXPECT_EQ(AskWithKey(YesAllNoCancelTemplate(), VK_ESCAPE).result, ConfirmResult::Cancel);
}

TEST_F(ConfirmationDialogTest, enter_says_yes) {
    EXPECT_EQ(AskWithKey(YesNoTemplate(), VK_RETURN).result, ConfirmResult::Yes);
    EXPECT_EQ(AskWithKey(YesAllNoCancelTemplate(), VK_RETURN).result, ConfirmResult::Yes);
}

TEST_F(ConfirmationDialogTest, its_owner_is_the_given_window_and_it_is_gone_afterwards) {
    const AskedQuestion asked = AskAndClick(&host_.Object(), {YesNoTemplate(), FillFileDeleteText, Path});
    EXPECT_EQ(asked.shown.owner, host_.Handle());
    ASSERT_NE(asked.shown.window, nullptr);
    EXPECT_FALSE(IsWindow(asked.shown.window));
    EXPECT_TRUE(IsWindowEnabled(host_.Handle()));
}

TEST_F(ConfirmationDialogTest, can_be_asked_again) {
    ConfirmationDialog dialog(&host_.Object(), {YesNoTemplate(), AnswerWithYes, Path});
    EXPECT_EQ(dialog.Ask(), ConfirmResult::Yes);
    EXPECT_EQ(dialog.Ask(), ConfirmResult::Yes);
}

TEST_F(ConfirmationDialogTest, the_programs_end_cancels_it_and_still_comes) {
    const AskedQuestion asked =
        Ask(&host_.Object(), {YesNoTemplate(), FillFileDeleteText, Path}, [](HWND) { PostQuitMessage(3); });
    EXPECT_EQ(asked.result, ConfirmResult::Cancel);
    MSG message = {};
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, WPARAM{3});
}

TEST_F(ConfirmationDialogTest, without_its_template_it_counts_as_cancelled) {
    EXPECT_EQ(AskQuestion(&host_.Object(), {L"EMissingDialog", FillFileDeleteText, Path}),
              ConfirmResult::Cancel);
}
