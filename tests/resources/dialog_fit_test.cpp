// Fitting a dialog to its texts and the screen, in the corners that the program's own texts do not reach.

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "framework/dialog_fit.h"
#include "tests/resources/dialog_window.h"

namespace {

constexpr const wchar_t* YesNo = L"EConfirmYesNoDialog_E";

RECT PlaceOf(const DialogWindow& dialog, int id) {
    RECT place = {};
    GetWindowRect(dialog.Item(id), &place);
    MapWindowPoints(nullptr, dialog.Handle(), reinterpret_cast<POINT*>(&place), 2);
    return place;
}

bool operator==(const RECT& one, const RECT& other) {
    return EqualRect(&one, &other);
}

TEST(DialogFit, a_short_question_moves_nothing) {
    DialogWindow dialog(YesNo, Screen::Pocket, UiLanguage::English);
    SetDlgItemTextW(dialog.Handle(), 11901, L"Really?");
    const RECT text = PlaceOf(dialog, 11901);
    const RECT button = PlaceOf(dialog, 6);
    GrowToText(dialog.Handle(), 11901);
    FitToScreen(dialog.Handle(), 11901);
    EXPECT_TRUE(PlaceOf(dialog, 11901) == text);
    EXPECT_TRUE(PlaceOf(dialog, 6) == button);
}

TEST(DialogFit, what_stands_above_a_growing_text_stays) {
    DialogWindow dialog(YesNo, Screen::Pocket, UiLanguage::English);
    SetDlgItemTextW(dialog.Handle(), 11901, L"1\n2\n3\n4\n5\n6\n7\n8\n9\n10");
    const RECT heading = PlaceOf(dialog, 12500);
    const RECT icon = PlaceOf(dialog, 10901);
    const RECT text = PlaceOf(dialog, 11901);
    const RECT button = PlaceOf(dialog, 6);
    GrowToText(dialog.Handle(), 11901);
    EXPECT_TRUE(PlaceOf(dialog, 12500) == heading);
    EXPECT_TRUE(PlaceOf(dialog, 10901) == icon);
    EXPECT_EQ(PlaceOf(dialog, 11901).top, text.top);
    EXPECT_GT(PlaceOf(dialog, 11901).bottom, text.bottom);
    EXPECT_GT(PlaceOf(dialog, 6).top, button.top);
    EXPECT_EQ(PlaceOf(dialog, 6).top, PlaceOf(dialog, 7).top);
}

TEST(DialogFit, a_text_with_nothing_below_it_grows) {
    DialogWindow dialog(YesNo, Screen::Pocket, UiLanguage::English);
    for (const int id : {6, 7})
        DestroyWindow(dialog.Item(id));
    const RECT text = PlaceOf(dialog, 11901);
    SetDlgItemTextW(dialog.Handle(), 11901, L"1\n2\n3\n4\n5\n6\n7\n8\n9\n10");
    GrowToText(dialog.Handle(), 11901);
    EXPECT_GT(PlaceOf(dialog, 11901).bottom, text.bottom);
}

TEST(DialogFit, the_longest_possible_name_never_pushes_the_buttons_off_the_screen) {
    for (const Screen screen : {Screen::Pocket, Screen::Handheld}) {
        DialogWindow dialog(YesNo, screen, UiLanguage::English);
        SetDlgItemTextW(dialog.Handle(), 11901, std::wstring(1000, L'W').c_str());
        GrowToText(dialog.Handle(), 11901);
        FitToScreen(dialog.Handle(), 11901);
        dialog.SetUpByShell();
        dialog.ExpectOnScreen();
        RECT client = {};
        GetClientRect(dialog.Handle(), &client);
        for (const int id : {6, 7}) {
            EXPECT_LE(PlaceOf(dialog, id).bottom, client.bottom - 26);
            EXPECT_LE(PlaceOf(dialog, id).right, client.right);
        }
        EXPECT_LE(PlaceOf(dialog, 11901).bottom, client.bottom - 26);
    }
}

TEST(DialogFit, a_line_is_widened_no_further_than_the_dialog) {
    DialogWindow dialog(L"EAboutDialog_E", Screen::Pocket, UiLanguage::English);
    RECT client = {};
    GetClientRect(dialog.Handle(), &client);
    const RECT before = PlaceOf(dialog, 11906);
    SetDlgItemTextW(dialog.Handle(), 11906, std::wstring(300, L'W').c_str());
    WidenToText(dialog.Handle(), 11906);
    EXPECT_GT(PlaceOf(dialog, 11906).right, before.right);
    EXPECT_LE(PlaceOf(dialog, 11906).right, client.right);
    EXPECT_EQ(PlaceOf(dialog, 11906).bottom, before.bottom);
}

TEST(DialogFit, a_short_line_keeps_its_width) {
    DialogWindow dialog(L"EAboutDialog_E", Screen::Pocket, UiLanguage::English);
    const RECT before = PlaceOf(dialog, 11906);
    SetDlgItemTextW(dialog.Handle(), 11906, L"CF");
    WidenToText(dialog.Handle(), 11906);
    EXPECT_TRUE(PlaceOf(dialog, 11906) == before);
}

TEST(DialogFit, the_lower_half_moves_to_the_right_only_where_the_screen_is_low) {
    DialogWindow pocket(L"EAboutDialog_E", Screen::Pocket, UiLanguage::English);
    const RECT before = PlaceOf(pocket, 10201);
    FitToScreen(pocket.Handle(), 11911);
    EXPECT_EQ(PlaceOf(pocket, 10201).left, before.left);
    EXPECT_EQ(PlaceOf(pocket, 10201).top, before.top);

    DialogWindow handheld(L"EAboutDialog_E", Screen::Handheld, UiLanguage::English);
    const RECT name = PlaceOf(handheld, 11901);
    FitToScreen(handheld.Handle(), 11911);
    EXPECT_EQ(PlaceOf(handheld, 11901).left, name.left);
    EXPECT_EQ(PlaceOf(handheld, 11901).top, name.top);
    EXPECT_GT(PlaceOf(handheld, 10201).left, before.right);
    EXPECT_LT(PlaceOf(handheld, 10201).top, before.top);
}

// The About box is laid out 134 units wide; the small screen has a pixel less for it.
TEST(DialogFit, a_control_at_the_edge_of_the_template_ends_at_the_edge_of_the_screen) {
    DialogWindow dialog(L"EAboutDialog_E", Screen::Pocket, UiLanguage::English);
    const RECT before = PlaceOf(dialog, 10201);
    FitToScreen(dialog.Handle(), 11911);
    dialog.SetUpByShell();
    RECT client = {};
    GetClientRect(dialog.Handle(), &client);
    EXPECT_EQ(PlaceOf(dialog, 10201).left, before.left);
    EXPECT_LE(PlaceOf(dialog, 10201).right, client.right);
    EXPECT_LE(PlaceOf(dialog, 11901).right, client.right);
}

TEST(DialogFit, an_id_that_the_dialog_does_not_have_changes_nothing) {
    DialogWindow dialog(YesNo, Screen::Handheld, UiLanguage::English);
    const RECT button = PlaceOf(dialog, 6);
    GrowToText(dialog.Handle(), 4711);
    WidenToText(dialog.Handle(), 4711);
    FitToScreen(dialog.Handle(), 4711);
    EXPECT_TRUE(PlaceOf(dialog, 6) == button);
}

}  // namespace
