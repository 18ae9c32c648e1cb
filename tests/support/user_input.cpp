#include "tests/support/user_input.h"

#include <cstdlib>
#include <vector>

#include "tests/support/deadline.h"

namespace {

constexpr DWORD MousePause = 50;

INPUT Key(WORD key, WORD unit, DWORD flags) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = unit != 0 ? unit : static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    return input;
}

void SendInputs(std::vector<INPUT>& inputs) {
    const UINT count = static_cast<UINT>(inputs.size());
    if (SendInput(count, inputs.data(), sizeof(INPUT)) != count) throw DriverError("the keys were not taken");
}

// A key that comes while no window has the focus, as in the middle of turning a sheet's page, is lost.
void WaitForFocus() {
    constexpr DWORD LongestTurning = 2000;
    static_cast<void>(HoldsWithin(LongestTurning, [] {
        GUITHREADINFO foreground = {};
        foreground.cbSize = sizeof(foreground);
        return GetGUIThreadInfo(0, &foreground) && foreground.hwndFocus != nullptr;
    }));
}

INPUT Mouse(DWORD flags, POINT point) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    // Absolute places run from 0 to 65535 over the screen; half a pixel is added so that the way back hits.
    input.mi.dx = (point.x * 65536 + 32768) / GetSystemMetrics(SM_CXSCREEN);
    input.mi.dy = (point.y * 65536 + 32768) / GetSystemMetrics(SM_CYSCREEN);
    input.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE;
    return input;
}

void SendOne(const INPUT& input) {
    std::vector<INPUT> inputs = {input};
    SendInputs(inputs);
}

bool MouseIsAt(POINT point) {
    POINT now = {};
    GetCursorPos(&now);
    return now.x == point.x && now.y == point.y;
}

}  // namespace

void MovePointerTo(POINT point) {
    // While a menu is open Wine leaves the display's own pointer alone and tells the new place for a tenth of
    // a second only, counted from a change: so each try comes from beside the point and looks soon.
    const POINT beside = {point.x > 0 ? point.x - 1 : 1, point.y};
    WaitUntil("the mouse to stay where it was moved", [&] {
        SendOne(Mouse(MOUSEEVENTF_MOVE, beside));
        SendOne(Mouse(MOUSEEVENTF_MOVE, point));
        Sleep(MousePause);
        return MouseIsAt(point);
    });
}

void GlidePointerTo(POINT point) {
    constexpr int Steps = 4;
    POINT from = {};
    GetCursorPos(&from);
    for (int step = 1; step <= Steps; ++step) {
        MovePointerTo(
            {from.x + (point.x - from.x) * step / Steps, from.y + (point.y - from.y) * step / Steps});
    }
}

void TellPointerAgain(POINT point) {
    SendOne(Mouse(MOUSEEVENTF_MOVE, point));
}

void RestPointerAt(POINT point, DWORD milliseconds) {
    MovePointerTo(point);
    Sleep(milliseconds);
}

void DragPointer(POINT from, POINT to) {
    constexpr int Steps = 8;
    MovePointerTo(from);
    SendOne(Mouse(MOUSEEVENTF_LEFTDOWN, from));
    for (int step = 1; step <= Steps; ++step) {
        Sleep(MousePause);
        const POINT place = {from.x + (to.x - from.x) * step / Steps,
                             from.y + (to.y - from.y) * step / Steps};
        SendOne(Mouse(MOUSEEVENTF_MOVE, place));
    }
    Sleep(MousePause);
    SendOne(Mouse(MOUSEEVENTF_LEFTUP, to));
}

void TurnWheelAt(POINT point, int notches) {
    MovePointerTo(point);
    UseWheel(point, notches);
}

void UseWheel(POINT point, int notches) {
    INPUT input = Mouse(MOUSEEVENTF_WHEEL, point);
    input.mi.dwFlags &= ~static_cast<DWORD>(MOUSEEVENTF_ABSOLUTE);
    input.mi.dx = input.mi.dy = 0;
    input.mi.mouseData = static_cast<DWORD>(notches * WHEEL_DELTA);
    SendOne(input);
}

void HoldKey(WORD key) {
    WaitForFocus();
    SendOne(Key(key, 0, 0));
}

void ReleaseKey(WORD key) {
    SendOne(Key(key, 0, KEYEVENTF_KEYUP));
}

void RepeatKey(WORD key, int times) {
    WaitForFocus();
    std::vector<INPUT> inputs;
    for (int time = 0; time < times; ++time)
        inputs.push_back(Key(key, 0, 0));
    inputs.push_back(Key(key, 0, KEYEVENTF_KEYUP));
    SendInputs(inputs);
}

namespace {

// With the place in the same piece of news: the display's late word of an earlier place may come between.
void Click(POINT point) {
    SendOne(Mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_LEFTDOWN, point));
    Sleep(MousePause);
    SendOne(Mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_LEFTUP, point));
}

void HoldKeys(std::initializer_list<WORD> keys, DWORD flags) {
    std::vector<INPUT> inputs;
    for (const WORD key : keys)
        inputs.push_back(Key(key, 0, flags));
    if (!inputs.empty()) SendInputs(inputs);
}

}  // namespace

void PressKey(WORD key, std::initializer_list<WORD> modifiers) {
    WaitForFocus();
    StrikeKey(key, modifiers);
}

void StrikeKey(WORD key, std::initializer_list<WORD> modifiers) {
    std::vector<INPUT> inputs;
    for (const WORD modifier : modifiers)
        inputs.push_back(Key(modifier, 0, 0));
    inputs.push_back(Key(key, 0, 0));
    inputs.push_back(Key(key, 0, KEYEVENTF_KEYUP));
    for (const WORD modifier : modifiers)
        inputs.push_back(Key(modifier, 0, KEYEVENTF_KEYUP));
    SendInputs(inputs);
}

void TypeText(const std::wstring& text) {
    WaitForFocus();
    std::vector<INPUT> inputs;
    for (const wchar_t unit : text) {
        inputs.push_back(Key(0, unit, KEYEVENTF_UNICODE));
        inputs.push_back(Key(0, unit, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP));
    }
    SendInputs(inputs);
}

namespace {

// Two clicks of two steps are no double click, however fast the steps follow each other.
class ClickHistory {
  public:
    void KeepApart(POINT point) const {
        const bool isNear = std::abs(point.x - lastPoint_.x) <= GetSystemMetrics(SM_CXDOUBLECLK) &&
                            std::abs(point.y - lastPoint_.y) <= GetSystemMetrics(SM_CYDOUBLECLK);
        const DWORD since = GetTickCount() - lastTime_;
        if (isNear && since <= GetDoubleClickTime()) Sleep(GetDoubleClickTime() - since + 2 * MousePause);
    }
    void Note(POINT point) {
        lastPoint_ = point;
        lastTime_ = GetTickCount();
    }

  private:
    POINT lastPoint_ = {};
    DWORD lastTime_ = 0;
};

}  // namespace

void ClickAt(POINT point) {
    static ClickHistory history;
    history.KeepApart(point);
    MovePointerTo(point);
    Click(point);
    history.Note(point);
}

void DoubleClickAt(POINT point, std::initializer_list<WORD> modifiers) {
    // Wine reads the real keyboard whenever the mouse comes into a window, and finds the keys let go of.
    MovePointerTo(point);
    if (modifiers.size() > 0) Sleep(4 * MousePause);
    HoldKeys(modifiers, 0);
    Click(point);
    Sleep(MousePause);
    Click(point);
    // Let go of later than the button, as by a hand.
    if (modifiers.size() > 0) Sleep(4 * MousePause);
    HoldKeys(modifiers, KEYEVENTF_KEYUP);
}

void FlickPointerTo(POINT point) {
    SendOne(Mouse(MOUSEEVENTF_MOVE, point));
}

void UseButtons(POINT point, DWORD flags) {
    SendOne(Mouse(MOUSEEVENTF_MOVE | flags, point));
}
