// The boxes of errors and confirmations on the screen of this world, with texts as long as they can be.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "framework/message_boxes.h"
#include "tests/support/answered_boxes.h"
#include "tests/support/test_world.h"

namespace {

struct SeenPlace {
    RECT box;
    RECT client;
    std::vector<RECT> controls;  // in the box's client area
    RECT text;
    LONG neededHeight = 0;
};
SeenPlace* place = nullptr;

RECT PlaceIn(HWND box, HWND control) {
    RECT rectangle = {};
    GetWindowRect(control, &rectangle);
    MapWindowPoints(nullptr, box, reinterpret_cast<POINT*>(&rectangle), 2);
    return rectangle;
}

LONG NeededHeight(HWND control, LONG width) {
    wchar_t text[2048] = L"";
    const int length = GetWindowTextW(control, text, 2048);
    const HDC context = GetDC(control);
    const HGDIOBJ before =
        SelectObject(context, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
    RECT area = {0, 0, width, 0};
    const bool breaksWords = (GetWindowLongPtrW(control, GWL_STYLE) & SS_EDITCONTROL) != 0;
    DrawTextW(context, text, length, &area,
              DT_CALCRECT | DT_NOPREFIX | DT_WORDBREAK | DT_EXPANDTABS | (breaksWords ? DT_EDITCONTROL : 0u));
    SelectObject(context, before);
    ReleaseDC(control, context);
    // A word that is wider than the static cannot be read whole, however high the static is.
    return area.right <= width ? area.bottom : LONG_MAX;
}

// When the box goes: it is laid out in several steps, some of them after it has been activated.
LRESULT CALLBACK Measure(int code, WPARAM wParam, LPARAM lParam) {
    const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    const HWND box = message.hwnd;
    if (code == HC_ACTION && message.message == WM_DESTROY && GetDlgItem(box, IDOK) != nullptr) {
        GetWindowRect(box, &place->box);
        GetClientRect(box, &place->client);
        place->controls.clear();
        for (HWND child = GetWindow(box, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
            if ((GetWindowLongPtrW(child, GWL_STYLE) & WS_VISIBLE) == 0) continue;
            place->controls.push_back(PlaceIn(box, child));
            if (GetWindowTextLengthW(child) < 20) continue;
            place->text = place->controls.back();
            place->neededHeight = NeededHeight(child, place->text.right - place->text.left);
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

class MessageBoxFit : public testing::Test {
  protected:
    MessageBoxFit() { place = &seen_; }
    ~MessageBoxFit() override {
        place = nullptr;
        if (hook_ != nullptr) UnhookWindowsHookEx(hook_);
    }
    void Show(const std::wstring& path) {
        const AnsweredBoxes boxes{IDOK};
        hook_ = SetWindowsHookExW(WH_CALLWNDPROC, Measure, nullptr, GetCurrentThreadId());
        ShowError(host_.Handle(), L"Can't find the path specified. '%s'", path.c_str());
        UnhookWindowsHookEx(hook_);
        hook_ = nullptr;
        ASSERT_EQ(boxes.Seen().size(), 1u);
    }
    void ExpectWhole() const {
        RECT area = {};
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
        EXPECT_GE(seen_.box.left, area.left);
        EXPECT_GE(seen_.box.top, area.top);
        EXPECT_LE(seen_.box.right, area.right);
        EXPECT_LE(seen_.box.bottom, area.bottom);
        for (const RECT& control : seen_.controls) {
            EXPECT_GE(control.left, 0);
            EXPECT_LE(control.right, seen_.client.right);
            EXPECT_LE(control.bottom, seen_.client.bottom);
        }
        EXPECT_LE(seen_.neededHeight, seen_.text.bottom - seen_.text.top);
        EXPECT_GT(seen_.neededHeight, 0);
    }

    TestWorld world_;
    HostWindow host_;
    SeenPlace seen_;
    HHOOK hook_ = nullptr;
};

}  // namespace

TEST_F(MessageBoxFit, a_short_path_is_shown_whole) {
    Show(L"\\My Documents\\a.txt");
    ExpectWhole();
}

TEST_F(MessageBoxFit, a_path_of_259_letters_without_a_blank_is_shown_whole) {
    Show(L"\\" + std::wstring(129, L'n') + L"\\" + std::wstring(128, L'm'));
    ExpectWhole();
}

TEST_F(MessageBoxFit, a_path_of_259_wide_letters_is_shown_whole) {
    Show(L"\\" + std::wstring(129, L'報') + L"\\" + std::wstring(128, L'告'));
    ExpectWhole();
}
