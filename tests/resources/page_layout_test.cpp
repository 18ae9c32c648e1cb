// The condition pages as real windows: nothing clipped, nothing outside, nothing on top of another, in both
// languages on both screens.

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include <commctrl.h>

#include "tests/resources/page_window.h"

namespace {

class PageLayout : public PageWindow {};

TEST_P(PageLayout, the_tabs_stand_in_one_row) {
    EXPECT_EQ(TabCtrl_GetRowCount(tabs_), 1);
}

TEST_P(PageLayout, every_control_is_inside_the_page) {
    RECT area = {};
    GetClientRect(page_, &area);
    for (const ChildWindow& child : children_) {
        SCOPED_TRACE(testing::PrintToString(child.className + L" " + child.text));
        EXPECT_GE(child.rectangle.left, 0);
        EXPECT_GE(child.rectangle.top, 0);
        EXPECT_LE(child.rectangle.right, area.right);
        EXPECT_LE(child.rectangle.bottom, area.bottom);
    }
}

// A spin takes its place out of its buddy, of which only the frame may reach under it.
bool IsSpinOf(const ChildWindow& spin, const ChildWindow& buddy) {
    return spin.className == L"msctls_updown32" &&
           reinterpret_cast<HWND>(SendMessageW(spin.window, UDM_GETBUDDY, 0, 0)) == buddy.window;
}

TEST_P(PageLayout, no_control_covers_another) {
    for (std::size_t first = 0; first < children_.size(); ++first)
        for (std::size_t second = first + 1; second < children_.size(); ++second) {
            SCOPED_TRACE(testing::PrintToString(children_[first].className + L" " + children_[first].text) +
                         " and " +
                         testing::PrintToString(children_[second].className + L" " + children_[second].text));
            RECT common = {};
            IntersectRect(&common, &children_[first].rectangle, &children_[second].rectangle);
            const int allowed =
                IsSpinOf(children_[second], children_[first]) ? GetSystemMetrics(SM_CXEDGE) : 0;
            EXPECT_LE(common.right - common.left, allowed);
        }
}

TEST_P(PageLayout, every_text_is_shown_whole) {
    constexpr LONG BoxAndGap = 13 + 4;  // of a check box or a radio button
    constexpr LONG ButtonBorders = 2 * 4;
    int texts = 0;
    for (const ChildWindow& child : children_) {
        if (child.className != L"Static" && child.className != L"Button") continue;
        ++texts;
        RECT area = {};
        GetClientRect(child.window, &area);
        LONG width = area.right;
        if (child.className == L"Button") {
            const LONG_PTR kind = GetWindowLongPtrW(child.window, GWL_STYLE) & BS_TYPEMASK;
            width -= kind == BS_PUSHBUTTON ? ButtonBorders : BoxAndGap;
        }
        ExpectFits(child.text, width, area.bottom);
    }
    EXPECT_GE(texts, 3);
}

TEST_P(PageLayout, every_field_is_high_enough_for_its_text) {
    int fields = 0;
    for (const ChildWindow& child : children_) {
        RECT area = {};
        if (child.className == L"Edit" || child.className == L"SysDateTimePick32") {
            GetClientRect(child.window, &area);
        } else if (child.className == L"ComboBox") {
            COMBOBOXINFO info = {};
            info.cbSize = sizeof(info);
            ASSERT_TRUE(GetComboBoxInfo(child.window, &info));
            area = info.rcItem;
        } else {
            continue;
        }
        ++fields;
        ExpectFits(L"Äg表", 1000, area.bottom - area.top);
    }
    EXPECT_GE(fields, 3);
}

TEST_P(PageLayout, a_drop_down_list_has_room_for_five_lines) {
    for (const ChildWindow& child : children_) {
        if (child.className != L"ComboBox") continue;
        RECT dropped = {};
        SendMessageW(child.window, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
        const LONG line = static_cast<LONG>(SendMessageW(child.window, CB_GETITEMHEIGHT, 0, 0));
        // "", "Min" and "Max" are all that the size list ever holds.
        const LONG lines =
            std::wstring(GetParam().templateName, 4) == L"SIZE" && child.window == Item(10402) ? 3 : 5;
        EXPECT_GE(dropped.bottom - dropped.top - (child.rectangle.bottom - child.rectangle.top),
                  lines * line);
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, PageLayout,
                         testing::ValuesIn(OnBothScreens({{L"NAME_E", false, 0},
                                                          {L"NAME_J", true, 0},
                                                          {L"DATE_E", false, 0},
                                                          {L"DATE_J", true, 0},
                                                          {L"SIZE_E", false, 0},
                                                          {L"SIZE_J", true, 0}})),
                         testing::PrintToStringParamName());

class DatePageLayout : public PageWindow {};

TEST_P(DatePageLayout, a_date_is_shown_whole_in_both_pickers) {
    for (const int id : {12101, 12102}) {
        SendMessageW(Item(id), DTM_SETFORMATW, 0, reinterpret_cast<LPARAM>(L"yyyy/MM/dd"));
        RECT area = {};
        GetClientRect(Item(id), &area);
        const LONG buttonAndMargins = GetSystemMetrics(SM_CXVSCROLL) + 8;
        ExpectFits(L"2008/08/28", area.right - buttonAndMargins, area.bottom);
    }
}

TEST_P(DatePageLayout, the_controls_answer_to_the_names_of_their_classes) {
    wchar_t name[64] = {};
    GetClassNameW(Item(12101), name, 64);
    EXPECT_STREQ(name, L"SysDateTimePick32");
    GetClassNameW(Item(11602), name, 64);
    EXPECT_STREQ(name, L"msctls_updown32");
}

TEST_P(DatePageLayout, the_spin_belongs_to_the_days_and_three_digits_fit_beside_it) {
    EXPECT_EQ(reinterpret_cast<HWND>(SendMessageW(Item(11602), UDM_GETBUDDY, 0, 0)), Item(10702));
    RECT area = {};
    GetClientRect(Item(10702), &area);
    ExpectFits(L"999", area.right - 4, area.bottom);
}

INSTANTIATE_TEST_SUITE_P(Pages, DatePageLayout,
                         testing::ValuesIn(OnBothScreens({{L"DATE_E", false, 0}, {L"DATE_J", true, 0}})),
                         testing::PrintToStringParamName());

class SizePageLayout : public PageWindow {};

TEST_P(SizePageLayout, the_spin_belongs_to_the_kilobytes_and_the_largest_number_fits_beside_it) {
    EXPECT_EQ(reinterpret_cast<HWND>(SendMessageW(Item(11601), UDM_GETBUDDY, 0, 0)), Item(10701));
    RECT area = {};
    GetClientRect(Item(10701), &area);
    ExpectFits(L"32,767", area.right - 4, area.bottom);
}

TEST_P(SizePageLayout, the_first_entries_of_both_lists_are_shown_whole) {
    const bool japanese = GetParam().japanese;
    COMBOBOXINFO info = {};
    info.cbSize = sizeof(info);
    ASSERT_TRUE(GetComboBoxInfo(Item(10401), &info));
    ExpectFits(japanese ? L"すべてのﾌｧｲﾙとﾌｫﾙﾀﾞ" : L"All files and folders",
               info.rcItem.right - info.rcItem.left - 4, info.rcItem.bottom - info.rcItem.top);
    ASSERT_TRUE(GetComboBoxInfo(Item(10402), &info));
    ExpectFits(japanese ? L"最高" : L"Max", info.rcItem.right - info.rcItem.left - 4,
               info.rcItem.bottom - info.rcItem.top);
}

INSTANTIATE_TEST_SUITE_P(Pages, SizePageLayout,
                         testing::ValuesIn(OnBothScreens({{L"SIZE_E", false, 0}, {L"SIZE_J", true, 0}})),
                         testing::PrintToStringParamName());

}  // namespace
