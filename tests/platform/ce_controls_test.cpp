// Spins and combo boxes as the handheld has them.

#include <gtest/gtest.h>

#include <string>

#include "platform/windows_ce.h"

namespace {

class Controls : public testing::Test {
  protected:
    Controls() {
        INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_UPDOWN_CLASS | ICC_LISTVIEW_CLASSES};
        InitCommonControlsEx(&classes);
        parent_ =
            CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 200, 100, nullptr, nullptr, nullptr, nullptr);
    }
    ~Controls() override { DestroyWindow(parent_); }

    HWND Child(const wchar_t* className, DWORD style) {
        return CreateWindowExW(0, className, L"", WS_CHILD | style, 0, 0, 80, 100, parent_, nullptr, nullptr,
                               nullptr);
    }

    HWND parent_;
};

class SpinPosition : public Controls {
  protected:
    SpinPosition() : edit_(Child(L"EDIT", 0)), spin_(Child(UPDOWN_CLASSW, UDS_SETBUDDYINT | UDS_ALIGNRIGHT)) {
        SendMessageW(spin_, UDM_SETBUDDY, reinterpret_cast<WPARAM>(edit_), 0);
        SendMessageW(spin_, UDM_SETRANGE, 0, MAKELPARAM(999, 1));
        SendMessageW(spin_, UDM_SETPOS, 0, 7);
    }
    DWORD PositionOf(const wchar_t* text) {
        SetWindowTextW(edit_, text);
        return ce::SpinPosition(spin_);
    }

    HWND edit_;
    HWND spin_;
};

class FindComboEntry : public Controls {
  protected:
    FindComboEntry() : combo_(Child(L"COMBOBOX", CBS_DROPDOWN)) {}

    void Fill(std::initializer_list<const wchar_t*> entries) {
        for (const wchar_t* entry : entries)
            SendMessageW(combo_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
    }

    HWND combo_;
};

// What a window is given as its format.
class PickerFormat : public Controls {
  protected:
    std::wstring Given(const wchar_t* format) {
        const HWND picker = Child(L"STATIC", 0);
        SetWindowLongPtrW(picker, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(TakeFormat));
        given.clear();
        ce::SetPickerFormat(picker, format);
        DestroyWindow(picker);
        return given;
    }

  private:
    static LRESULT CALLBACK TakeFormat(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == DTM_SETFORMATW) given = reinterpret_cast<const wchar_t*>(lParam);
        return DefWindowProcW(window, message, wParam, lParam);
    }

    static inline std::wstring given;
};

// What a list view says of its keys.
class ListKeys : public Controls {
  protected:
    static constexpr LPARAM Pressed = 1;
    static constexpr LPARAM Repeated = 1 | 1L << 30;

    ListKeys() : list_(Child(WC_LISTVIEWW, LVS_REPORT)) {
        reported = 0;
        otherParent = ce::SetWindowProcedure(parent_, &NoteKeys);
    }

    HWND list_;
    static inline int reported = 0;

  private:
    static LRESULT CALLBACK NoteKeys(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_NOTIFY && reinterpret_cast<const NMHDR*>(lParam)->code == UINT{LVN_KEYDOWN} &&
            reinterpret_cast<const NMLVKEYDOWN*>(lParam)->wVKey == VK_RETURN)
            ++reported;
        return CallWindowProcW(otherParent, window, message, wParam, lParam);
    }
    static inline WNDPROC otherParent = nullptr;
};

TEST_F(ListKeys, enter_with_alt_is_reported_like_any_key) {
    EXPECT_TRUE(ce::TakeAltEnter(list_, WM_SYSKEYDOWN, VK_RETURN, Pressed));
    EXPECT_EQ(reported, 1);
}

TEST_F(ListKeys, enter_with_alt_is_reported_once_while_it_is_held) {
    EXPECT_TRUE(ce::TakeAltEnter(list_, WM_SYSKEYDOWN, VK_RETURN, Pressed));
    EXPECT_TRUE(ce::TakeAltEnter(list_, WM_SYSKEYDOWN, VK_RETURN, Repeated));
    EXPECT_EQ(reported, 1);
}

TEST_F(ListKeys, the_character_of_enter_with_alt_is_taken_and_not_reported) {
    EXPECT_TRUE(ce::TakeAltEnter(list_, WM_SYSCHAR, VK_RETURN, Pressed));
    EXPECT_EQ(reported, 0);
}

TEST_F(ListKeys, other_keys_with_alt_are_the_list_s_own) {
    EXPECT_FALSE(ce::TakeAltEnter(list_, WM_SYSKEYDOWN, VK_F4, Pressed));
    EXPECT_FALSE(ce::TakeAltEnter(list_, WM_SYSCHAR, L'o', Pressed));
    EXPECT_EQ(reported, 0);
}

class ListLook : public Controls {
  protected:
    ListLook() : list_(Child(WC_LISTVIEWW, LVS_REPORT | LVS_SINGLESEL | WS_VISIBLE)) {
        ShowWindow(parent_, SW_SHOWNOACTIVATE);
        UpdateWindow(list_);
    }
    HWND list_;
};

TEST_F(ListLook, a_view_takes_the_place_of_the_one_before_and_leaves_the_other_styles) {
    ce::SetListView(list_, LVS_SMALLICON);
    const LONG style = GetWindowLongW(list_, GWL_STYLE);
    EXPECT_EQ(style & LVS_TYPEMASK, LVS_SMALLICON);
    EXPECT_NE(style & LVS_SINGLESEL, 0);
}

TEST_F(ListLook, a_new_view_is_drawn_on_a_clean_ground) {
    ce::SetListView(list_, LVS_ICON);
    RECT everything{};
    RECT toBeDrawn{};
    GetClientRect(list_, &everything);
    ASSERT_TRUE(GetUpdateRect(list_, &toBeDrawn, FALSE));
    EXPECT_TRUE(EqualRect(&toBeDrawn, &everything));
}

TEST_F(ListLook, no_list_has_no_view) {
    ce::SetListView(nullptr, LVS_ICON);
    RECT toBeDrawn{};
    EXPECT_FALSE(GetUpdateRect(list_, &toBeDrawn, FALSE));
}

TEST_F(ListLook, rows_are_written_in_tahoma_whatever_the_system_s_icons_have) {
    const UniqueFont font = ce::ListFont();
    LOGFONTW measures{};
    ASSERT_NE(GetObjectW(font.Get(), sizeof measures, &measures), 0);
    EXPECT_STREQ(measures.lfFaceName, L"Tahoma");
}

TEST(IconList, keeps_the_colours_of_its_icons) {
    const UniqueImageList images = ce::CreateIconList(16, 1, 1);
    IMAGEINFO image{};
    ImageList_ReplaceIcon(images.Get(), -1, LoadIconW(nullptr, IDI_WARNING));
    ASSERT_TRUE(ImageList_GetImageInfo(images.Get(), 0, &image));
    BITMAP bitmap{};
    GetObjectW(image.hbmImage, sizeof bitmap, &bitmap);
    EXPECT_EQ(bitmap.bmBitsPixel, 32);
}

}  // namespace

TEST_F(SpinPosition, what_the_spin_itself_has_set_is_its_position) {
    EXPECT_EQ(ce::SpinPosition(spin_), 7U);
    SendMessageW(spin_, UDM_SETPOS, 0, 999);
    EXPECT_EQ(ce::SpinPosition(spin_), 999U);
}

TEST_F(SpinPosition, a_typed_number_is_read_as_typed) {
    EXPECT_EQ(PositionOf(L"1"), 1U);
    EXPECT_EQ(PositionOf(L"0042"), 42U);
    EXPECT_EQ(PositionOf(L"999"), 999U);
}

TEST_F(SpinPosition, a_typed_number_outside_the_range_is_read_as_typed_too) {
    EXPECT_EQ(PositionOf(L"0"), 0U);
    EXPECT_EQ(PositionOf(L"1000"), 1000U);
    EXPECT_EQ(PositionOf(L"65535"), 65535U);
}

TEST_F(SpinPosition, an_empty_text_gives_the_last_position_with_the_error_word) {
    EXPECT_EQ(PositionOf(L""), 0x10007U);
    SendMessageW(spin_, UDM_SETRANGE, 0, MAKELPARAM(32767, 0));
    EXPECT_EQ(HIWORD(PositionOf(L"")), 1U);
}

TEST_F(SpinPosition, a_text_that_is_no_number_gives_the_last_position_with_the_error_word) {
    for (const wchar_t* text : {L"x", L"1x", L"-1", L"1.5", L" "})
        EXPECT_EQ(PositionOf(text), 0x10007U) << testing::PrintToString(std::wstring(text));
}

TEST_F(SpinPosition, a_number_beyond_16_bits_carries_the_error_word) {
    EXPECT_EQ(PositionOf(L"65536"), 0x10007U);
    EXPECT_EQ(PositionOf(L"9999999999999999999"), 0x10007U);
}

TEST_F(SpinPosition, the_groups_of_thousands_that_the_spin_writes_are_read_back) {
    SendMessageW(spin_, UDM_SETRANGE, 0, MAKELPARAM(32767, 0));
    SendMessageW(spin_, UDM_SETPOS, 0, 12345);
    EXPECT_EQ(ce::SpinPosition(spin_), 12345U);
}

TEST_F(SpinPosition, the_groups_that_the_spin_writes_are_read_back_whatever_the_system_puts_between_them) {
    wchar_t before[8] = L"";
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, before, 8);
    SendMessageW(spin_, UDM_SETRANGE, 0, MAKELPARAM(32767, 0));
    for (const wchar_t* separator : {L".", L",", L"'", L"\u00A0"}) {
        ASSERT_TRUE(SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, separator));
        SendMessageW(spin_, UDM_SETPOS, 0, 1);
        SendMessageW(spin_, UDM_SETPOS, 0, 12345);
        EXPECT_EQ(ce::SpinPosition(spin_), 12345U) << testing::PrintToString(std::wstring(separator));
        EXPECT_EQ(PositionOf(L"1x"), 0x10000U + 12345U);
    }
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, before);
}

TEST_F(SpinPosition, a_spin_without_a_buddy_answers_for_itself) {
    const HWND alone = Child(UPDOWN_CLASSW, 0);
    SendMessageW(alone, UDM_SETRANGE, 0, MAKELPARAM(50, 0));
    SendMessageW(alone, UDM_SETPOS, 0, 9);
    EXPECT_EQ(LOWORD(ce::SpinPosition(alone)), 9);
}

TEST_F(FindComboEntry, in_an_empty_combo_nothing_is_found) {
    EXPECT_EQ(ce::FindComboEntry(combo_, 0, L"a"), CB_ERR);
    EXPECT_EQ(ce::FindComboEntry(combo_, 0, L""), CB_ERR);
}

TEST_F(FindComboEntry, an_entry_that_begins_with_the_text_is_found_whatever_its_case) {
    Fill({L"x", L"abcdef", L"y"});
    EXPECT_EQ(ce::FindComboEntry(combo_, 0, L"ABC"), 1);
    EXPECT_EQ(ce::FindComboEntry(combo_, 0, L"abcdef"), 1);
    EXPECT_EQ(ce::FindComboEntry(combo_, 0, L"abcdefg"), CB_ERR);
    EXPECT_EQ(ce::FindComboEntry(combo_, 0, L"bcd"), CB_ERR);
}

TEST_F(FindComboEntry, letters_of_other_scripts_are_compared_without_case_as_well) {
    Fill({L"x", L"Äпример"});
    EXPECT_EQ(ce::FindComboEntry(combo_, 0, L"äПРИ"), 1);
}

TEST_F(FindComboEntry, the_start_is_looked_at_last) {
    Fill({L"ab", L"ac", L"ad"});
    EXPECT_EQ(ce::FindComboEntry(combo_, 0, L"a"), 1);
    EXPECT_EQ(ce::FindComboEntry(combo_, 2, L"a"), 0);
    EXPECT_EQ(ce::FindComboEntry(combo_, 0, L"ab"), 0);
}

TEST_F(FindComboEntry, every_entry_begins_with_an_empty_text) {
    Fill({L"a"});
    EXPECT_EQ(ce::FindComboEntry(combo_, 0, L""), 0);
    Fill({L"b", L"c"});
    EXPECT_EQ(ce::FindComboEntry(combo_, 0, L""), 1);
}

TEST_F(FindComboEntry, a_bracket_counts_as_any_other_unit) {
    Fill({L"x", L"[abc]", L"[-d-]"});
    EXPECT_EQ(ce::FindComboEntry(combo_, 0, L"abc"), CB_ERR);
    EXPECT_EQ(ce::FindComboEntry(combo_, 0, L"d"), CB_ERR);
    EXPECT_EQ(ce::FindComboEntry(combo_, 0, L"[a"), 1);
}

TEST_F(PickerFormat, a_year_of_three_letters_is_given_as_four) {
    EXPECT_EQ(Given(L"yyy/MM/dd"), L"yyyy/MM/dd");
    EXPECT_EQ(Given(L"dd.MM.yyy"), L"dd.MM.yyyy");
}

TEST_F(PickerFormat, any_other_format_is_given_as_it_is) {
    for (const wchar_t* format : {L"yyyy/MM/dd", L"yy/MM/dd", L"HH:mm", L""})
        EXPECT_EQ(Given(format), format);
}

TEST_F(PickerFormat, a_format_too_long_for_another_letter_is_given_within_its_room) {
    const std::wstring longest = L"yyy" + std::wstring(28, L'/');
    EXPECT_EQ(Given(longest.c_str()), longest);
    EXPECT_EQ(Given((longest + L"dd").c_str()), longest);
}
