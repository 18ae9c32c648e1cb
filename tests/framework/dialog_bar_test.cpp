#include "framework/dialog.h"
#include "resources/resource_ids.h"
#include "tests/framework/dialog_ids.h"
#include "tests/framework/test_dialog.h"
#include "tests/support/replaced_calls.h"

namespace {

constexpr int BarHeight = 26;

int ScreenWidth240(int index) {
    if (index == SM_CXSCREEN) return 240;
    if (index == SM_CYSCREEN) return 320;
    return GetSystemMetrics(index);
}

int ScreenWidth640(int index) {
    if (index == SM_CXSCREEN) return 640;
    if (index == SM_CYSCREEN) return 240;
    return GetSystemMetrics(index);
}

TBBUTTON ButtonOf(HWND bar, int index) {
    TBBUTTON button{};
    EXPECT_TRUE(
        SendMessageW(bar, TB_GETBUTTON, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&button)));
    return button;
}

std::wstring LabelOf(HWND bar, int command) {
    NMTTDISPINFOW question{};
    question.hdr.idFrom = static_cast<UINT_PTR>(command);
    question.hdr.code = TTN_GETDISPINFOW;
    SendMessageW(bar, WM_NOTIFY, question.hdr.idFrom, reinterpret_cast<LPARAM>(&question));
    return question.lpszText != nullptr ? question.lpszText : L"";
}

void ClickButton(HWND bar, int command) {
    const HWND toolBar = GetWindow(bar, GW_CHILD);
    RECT place{};
    SendMessageW(toolBar, TB_GETRECT, static_cast<WPARAM>(command), reinterpret_cast<LPARAM>(&place));
    const LPARAM middle = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
    SendMessageW(toolBar, WM_LBUTTONDOWN, MK_LBUTTON, middle);
    SendMessageW(toolBar, WM_LBUTTONUP, 0, middle);
}

class DialogBars : public FrameworkTest {
  protected:
    Listener listener_;
};

TEST_F(DialogBars, hold_cancel_and_ok) {
    TestDialog dialog(L"Plain_E");
    dialog.CreateModeless();
    const HWND bar = dialog.MenuBar();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(GetParent(bar), dialog.Handle());
    ASSERT_EQ(SendMessageW(bar, TB_BUTTONCOUNT, 0, 0), 2);
    EXPECT_EQ(ButtonOf(bar, 0).idCommand, 2);
    EXPECT_EQ(ButtonOf(bar, 0).iBitmap, 0);
    EXPECT_EQ(ButtonOf(bar, 1).idCommand, 1);
    EXPECT_EQ(ButtonOf(bar, 1).iBitmap, 1);
    EXPECT_TRUE(SendMessageW(bar, TB_ISBUTTONENABLED, IDCANCEL, 0));
    EXPECT_TRUE(SendMessageW(bar, TB_ISBUTTONENABLED, IDOK, 0));
    EXPECT_EQ(LabelOf(bar, IDCANCEL), L"Cancel");
    EXPECT_EQ(LabelOf(bar, IDOK), L"OK");
}

TEST_F(DialogBars, have_english_labels_on_a_japanese_surface_as_well) {
    ContextForStartUp().uiLanguage = UiLanguage::Japanese;
    TestDialog dialog(L"Plain_E");
    dialog.CreateModeless();
    ASSERT_NE(dialog.MenuBar(), nullptr);
    EXPECT_EQ(LabelOf(dialog.MenuBar(), IDCANCEL), L"Cancel");
    EXPECT_EQ(LabelOf(dialog.MenuBar(), IDOK), L"OK");
}

TEST_F(DialogBars, may_hold_cancel_alone) {
    TestDialog dialog(L"Plain_E");
    dialog.bar = DialogBar::Cancel;
    dialog.CreateModeless();
    const HWND bar = dialog.MenuBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(SendMessageW(bar, TB_BUTTONCOUNT, 0, 0), 1);
    EXPECT_EQ(ButtonOf(bar, 0).idCommand, 2);
    EXPECT_EQ(ButtonOf(bar, 0).iBitmap, 0);
    EXPECT_TRUE(SendMessageW(bar, TB_ISBUTTONENABLED, IDCANCEL, 0));
}

TEST_F(DialogBars, are_left_out_where_the_dialog_wants_none) {
    TestDialog dialog(L"Plain_E");
    dialog.bar = DialogBar::None;
    dialog.CreateModeless();
    ASSERT_NE(dialog.Handle(), nullptr);
    EXPECT_EQ(dialog.MenuBar(), nullptr);
}

// From the moment of its call on, the resources are looked for where there are none.
class ResourceThief : public Listener {
  public:
    LRESULT Steal(EventArguments&) {
        ContextForStartUp().instance = GetModuleHandleW(L"kernel32.dll");
        return 0;
    }
};

TEST_F(DialogBars, that_cannot_be_made_leave_the_dialog_without_one) {
    TestDialog dialog(L"Plain_E");
    ResourceThief thief;
    dialog.OnInitialise(&thief, &ResourceThief::Steal);
    HWND bar = dialog.Handle();
    EXPECT_EQ(dialog.RunWith([&] {
        bar = dialog.MenuBar();
        dialog.End(9);
    }),
              9);
    EXPECT_EQ(bar, nullptr);
}

TEST_F(DialogBars, end_the_dialog_by_a_click_on_cancel) {
    TestDialog dialog(L"Plain_E");
    // The click is posted on by the bar, so the dialog is still up when the steps return.
    class Clicker : public Listener {
      public:
        explicit Clicker(TestDialog& watched) : dialog(watched) {}
        LRESULT Click(MessageRecord&) {
            ClickButton(dialog.MenuBar(), IDCANCEL);
            return 1;
        }
        TestDialog& dialog;
    };
    Clicker clicker(dialog);
    dialog.OnMessage(WM_APP, &clicker, &Clicker::Click);
    class Poster : public Listener {
      public:
        explicit Poster(TestDialog& watched) : dialog(watched) {}
        LRESULT Post(EventArguments&) {
            PostMessageW(dialog.Handle(), WM_APP, 0, 0);
            return 0;
        }
        TestDialog& dialog;
    };
    Poster poster(dialog);
    dialog.OnInitialise(&poster, &Poster::Post);
    EXPECT_EQ(dialog.RunModal(), 2);
}

TEST_F(DialogBars, raise_ok_as_a_command) {
    TestDialog dialog(L"Plain_E");
    dialog.OnCommand(IDOK, &listener_, &Listener::TakeEvent);
    dialog.CreateModeless();
    ClickButton(dialog.MenuBar(), IDOK);
    PumpMessages();
    EXPECT_EQ(listener_.events.size(), 1U);
}

TEST_F(DialogBars, go_before_the_dialog_when_it_ends) {
    TestDialog dialog(L"Plain_E");
    HWND bar = nullptr;
    dialog.RunWith([&] {
        bar = dialog.MenuBar();
        ASSERT_TRUE(IsWindow(bar));
        dialog.End(1);
        EXPECT_FALSE(IsWindow(bar));
        EXPECT_TRUE(IsWindow(dialog.Handle()));
        EXPECT_EQ(dialog.MenuBar(), nullptr);
    });
    EXPECT_NE(bar, nullptr);
}

TEST_F(DialogBars, are_made_anew_when_the_dialog_is_run_again) {
    TestDialog dialog(L"Plain_E");
    for (int run = 0; run < 2; ++run) {
        LRESULT count = 0;
        dialog.RunWith([&] {
            count = SendMessageW(dialog.MenuBar(), TB_BUTTONCOUNT, 0, 0);
            EndDialog(dialog.Handle(), 1);  // past the dialog's own way to its end
        });
        EXPECT_EQ(count, 2) << run;
        EXPECT_EQ(dialog.MenuBar(), nullptr) << run;
    }
}

class FullScreenFlags : public FrameworkTest {
  protected:
    // The outer size that the dialog has when the flags are given, the default ones when they are negative.
    SIZE SizeWith(int flags) {
        PropertySet properties = TemplateProperties(L"Plain_E");
        if (flags >= 0) properties.Set(property::FullScreenFlags, static_cast<PropertyValue>(flags));
        TestDialog dialog(properties);
        dialog.CreateModeless();
        RECT place{};
        GetWindowRect(dialog.Handle(), &place);
        return {place.right - place.left, place.bottom - place.top};
    }

    // The size that the template itself asks for.
    SIZE TemplateSize() {
        TestDialog dialog(L"Plain_E");
        dialog.bar = DialogBar::None;
        const Replaced screen(ce::systemCalls.getSystemMetrics, ScreenWidth640);
        dialog.CreateModeless();
        RECT place{};
        GetWindowRect(dialog.Handle(), &place);
        return {place.right - place.left, place.bottom - place.top};
    }
};

TEST_F(FullScreenFlags, are_5_by_default_and_fill_a_pocket_screen) {
    const Replaced screen(ce::systemCalls.getSystemMetrics, ScreenWidth240);
    for (const int flags : {-1, 5, 13}) {
        const SIZE size = SizeWith(flags);
        EXPECT_EQ(size.cx, 240) << flags;
        EXPECT_EQ(size.cy, 320) << flags;
    }
}

TEST_F(FullScreenFlags, of_8_or_0_keep_the_template_s_size_and_make_room_for_the_bar) {
    const SIZE own = TemplateSize();
    const Replaced screen(ce::systemCalls.getSystemMetrics, ScreenWidth240);
    for (const int flags : {8, 0}) {
        const SIZE size = SizeWith(flags);
        EXPECT_EQ(size.cx, own.cx) << flags;
        EXPECT_EQ(size.cy, own.cy + BarHeight) << flags;
    }
}

class Centred : public FrameworkTest {
  protected:
    // Where a dialog of 100 x 60 ends up.
    static RECT Place(WindowObject* parent, int (*screen)(int), int width = 100, int height = 60) {
        const Replaced metrics(ce::systemCalls.getSystemMetrics, screen);
        TestDialog dialog(L"Titled_E", parent);
        dialog.bar = DialogBar::None;
        dialog.CreateModeless();
        MoveWindow(dialog.Handle(), 3, 4, width, height, FALSE);
        dialog.Centre();
        RECT place{};
        GetWindowRect(dialog.Handle(), &place);
        EXPECT_EQ(place.right - place.left, width);
        EXPECT_EQ(place.bottom - place.top, height);
        return place;
    }
};

TEST_F(Centred, dialogs_without_a_parent_are_in_the_middle_of_the_screen) {
    const RECT pocket = Place(nullptr, ScreenWidth240);
    EXPECT_EQ(pocket.left, 70);
    EXPECT_EQ(pocket.top, 130);
    const RECT wide = Place(nullptr, ScreenWidth640);
    EXPECT_EQ(wide.left, 270);
    EXPECT_EQ(wide.top, 90);
}

TEST_F(Centred, dialogs_are_in_the_middle_of_their_parent) {
    TestWindow parent;
    parent.Move(40, 20, 160, 100);
    const RECT place = Place(&parent, ScreenWidth640);
    EXPECT_EQ(place.left, 70);  // 40 + (160 - 100) / 2
    EXPECT_EQ(place.top, 40);   // 20 + (100 - 60) / 2
}

TEST_F(Centred, dialogs_over_a_parent_that_reaches_the_bottom_are_above_the_input_panel) {
    TestWindow parent;
    parent.Move(0, 26, 240, 294);
    const RECT place = Place(&parent, ScreenWidth240);
    EXPECT_EQ(place.left, 70);
    EXPECT_EQ(place.top, 90);  // 26 + (320 - 106 - 26 - 60) / 2
}

TEST_F(Centred, dialogs_larger_than_the_screen_are_at_0) {
    TestWindow parent;
    parent.Move(10, 10, 100, 100);
    const RECT place = Place(&parent, ScreenWidth240, 250, 330);
    EXPECT_EQ(place.left, 0);
    EXPECT_EQ(place.top, 0);
}

}  // namespace
