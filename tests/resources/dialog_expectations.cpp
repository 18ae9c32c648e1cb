#include "tests/resources/dialog_expectations.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/resources/dialog_template.h"

void ExpectControls(const wchar_t* name, const std::vector<ExpectedControl>& expected) {
    DialogTemplate dialog;
    ASSERT_TRUE(ReadDialogTemplate(name, dialog));
    ASSERT_EQ(dialog.controls.size(), expected.size());
    for (std::size_t index = 0; index < expected.size(); ++index) {
        SCOPED_TRACE("control " + std::to_string(index));
        const TemplateControl& control = dialog.controls[index];
        // A class is found whatever the case of its name; the resource compiler writes capitals.
        EXPECT_EQ(lstrcmpiW(control.className.c_str(), expected[index].className), 0)
            << testing::PrintToString(control.className);
        EXPECT_EQ(control.id, expected[index].id);
        EXPECT_EQ(control.text, expected[index].text);
        EXPECT_EQ(control.style & expected[index].styleMask, expected[index].style);
        EXPECT_EQ(control.style & (WS_CHILD | WS_VISIBLE), DWORD{WS_CHILD | WS_VISIBLE});
    }
}

void ExpectPlaces(const wchar_t* name, const std::vector<ExpectedPlace>& expected) {
    DialogTemplate dialog;
    ASSERT_TRUE(ReadDialogTemplate(name, dialog));
    for (const ExpectedPlace& place : expected) {
        SCOPED_TRACE("control " + std::to_string(place.id));
        const TemplateControl* control = FindControl(dialog, place.id);
        ASSERT_NE(control, nullptr);
        EXPECT_EQ(control->x, place.x);
        EXPECT_EQ(control->y, place.y);
        EXPECT_EQ(control->width, place.width);
        EXPECT_EQ(control->height, place.height);
    }
}

void ExpectCaptionedPopUp(const wchar_t* name, const wchar_t* title, int width, int height) {
    DialogTemplate dialog;
    ASSERT_TRUE(ReadDialogTemplate(name, dialog));
    EXPECT_EQ(dialog.title, title);
    EXPECT_EQ(dialog.width, width);
    EXPECT_EQ(dialog.height, height);
    EXPECT_EQ(dialog.fontName, L"Tahoma");
    EXPECT_EQ(dialog.fontSize, 9);
    EXPECT_EQ(dialog.style & (WS_CHILD | WS_POPUP | WS_CAPTION), DWORD{WS_POPUP | WS_CAPTION});
}
