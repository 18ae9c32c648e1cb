// What the hands do with pointer and keys.

#include <commctrl.h>

#include "resources/resource_ids.h"
#include "tests/monkey/random_hands.h"
#include "tests/support/user_input.h"
#include "tests/support/utf8.h"

namespace {

// None of them makes a colon, takes a picture or opens what belongs to the system.
constexpr WORD Keys[] = {VK_RETURN, VK_ESCAPE,     VK_TAB,       VK_SPACE,   VK_BACK,   VK_DELETE,  VK_INSERT,
                         VK_UP,     VK_DOWN,       VK_LEFT,      VK_RIGHT,   VK_HOME,   VK_END,     VK_PRIOR,
                         VK_NEXT,   VK_F1,         VK_F2,        VK_F3,      VK_F4,     VK_F5,      VK_F6,
                         VK_F7,     VK_F8,         VK_F9,        VK_F10,     VK_F11,    VK_APPS,    VK_MENU,
                         VK_ADD,    VK_SUBTRACT,   VK_MULTIPLY,  VK_DIVIDE,  VK_KANJI,  VK_CONVERT, VK_OEM_5,
                         VK_OEM_2,  VK_OEM_PERIOD, VK_OEM_MINUS, VK_NUMPAD0, VK_NUMPAD5};
constexpr WORD OftenKeys[] = {VK_RETURN, VK_ESCAPE, VK_TAB, VK_SPACE, VK_UP, VK_DOWN, VK_DELETE};
constexpr WORD MenuKeys[] = {VK_DOWN, VK_DOWN, VK_UP, VK_LEFT, VK_RIGHT, VK_RETURN, VK_ESCAPE};

WORD AnyKey(Random& random) {
    if (random.Chance(35)) return random.Of(OftenKeys);
    if (random.Chance(50)) return random.Of(Keys);
    return static_cast<WORD>(random.Chance(70) ? random.Between('A', 'Z') : random.Between('0', '9'));
}

std::string At(POINT point) {
    return std::to_string(point.x) + "," + std::to_string(point.y);
}

}  // namespace

void RandomHands::ClickOn(POINT point, DWORD down, DWORD up) {
    constexpr DWORD TimeOfClick = 20;
    ++figures_.pointer;
    Note("click " + At(point));
    UseButtons(point, down);
    Sleep(TimeOfClick);
    UseButtons(point, up);
}

void RandomHands::MovePointer(Random& random) {
    ++figures_.pointer;
    for (int step = random.Between(1, 6); step > 0; --step) {
        FlickPointerTo(random.Chance(50) ? AnyPoint(random) : PointIn(random, AnyWindow(random)));
        Sleep(10);
    }
}

void RandomHands::RestPointer(Random& random) {
    ++figures_.pointer;
    FlickPointerTo(PointIn(random, AnyWindow(random)));
    Sleep(static_cast<DWORD>(random.Between(100, 900)));
}

void RandomHands::ClickSomewhere(Random& random) {
    ClickOn(AnyPoint(random), MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
}

void RandomHands::ClickControl(Random& random) {
    const HWND window = AnyWindow(random);
    Note("on " + std::to_string(GetDlgCtrlID(window)));
    const POINT point = PointIn(random, window);
    if (random.Chance(88)) return ClickOn(point, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
    if (random.Chance(70)) return ClickOn(point, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
    ClickOn(point, MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP);
}

void RandomHands::DoubleClickControl(Random& random) {
    const HWND window = random.Chance(50) ? List() : AnyWindow(random);
    const POINT point = PointIn(random, window);
    ClickOn(point, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
    ClickOn(point, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
}

// The button is let go of in any case.
void RandomHands::Drag(Random& random) {
    ++figures_.pointer;
    POINT point = AnyPoint(random);
    Note("drag from " + At(point));
    UseButtons(point, MOUSEEVENTF_LEFTDOWN);
    for (int step = random.Between(1, 5); step > 0; --step) {
        Sleep(15);
        point = AnyPoint(random);
        FlickPointerTo(point);
        if (random.Chance(5)) Press(VK_ESCAPE);
    }
    UseButtons(point, MOUSEEVENTF_LEFTUP);
}

void RandomHands::DragInControl(Random& random) {
    ++figures_.pointer;
    const HWND window = AnyWindow(random);
    POINT point = PointIn(random, window);
    Note("drag from " + At(point));
    UseButtons(point, MOUSEEVENTF_LEFTDOWN);
    for (int step = random.Between(1, 5); step > 0; --step) {
        Sleep(15);
        point = PointIn(random, window);
        FlickPointerTo(point);
    }
    UseButtons(point, MOUSEEVENTF_LEFTUP);
}

void RandomHands::TurnWheel(Random& random) {
    ++figures_.pointer;
    const POINT point = PointIn(random, AnyWindow(random));
    FlickPointerTo(point);
    UseWheel(point, random.Between(-5, 5));
}

void RandomHands::ClickMenu(Random& random) {
    const std::vector<ButtonState> bar = program_.Bar();
    if (bar.empty()) return;
    const RECT& button = random.Of(bar).rectangle;
    ClickOn({(button.left + button.right) / 2, (button.top + button.bottom) / 2}, MOUSEEVENTF_LEFTDOWN,
            MOUSEEVENTF_LEFTUP);
    Sleep(60);
    const HWND menu = FindWindowW(L"#32768", nullptr);
    if (menu == nullptr) return;
    const POINT point = PointIn(random, menu);
    FlickPointerTo(point);
    Sleep(20);
    ClickOn(point, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
}

void RandomHands::Press(WORD key, std::initializer_list<WORD> modifiers) {
    ++figures_.keys;
    Note("key " + std::to_string(key) + (modifiers.size() > 0 ? " with others" : ""));
    StrikeKey(key, modifiers);
}

// Not the keys by which the system changes between programs, nor those that would close the desktop.
void RandomHands::PressAnyKey(Random& random) {
    const WORD key = AnyKey(random);
    const int kind = random.Below(100);
    if (kind < 70) return Press(key);
    if (kind < 80) return Press(key, {VK_SHIFT});
    if (kind < 92 && key != VK_ESCAPE) return Press(key, {VK_CONTROL});
    if (key != VK_TAB && key != VK_ESCAPE && key != VK_F4) Press(key, {VK_MENU});
}

void RandomHands::HoldAnyKey(Random& random) {
    const WORD key = AnyKey(random);
    const int times = random.Between(2, 40);
    figures_.keys += times;
    Note("held key " + std::to_string(key) + " " + std::to_string(times) + " times");
    RepeatKey(key, times);
}

void RandomHands::TypeWord(const std::wstring& text) {
    ++figures_.keys;
    Note("type " + Utf8(text));
    TypeText(text);
}

void RandomHands::Type(Random& random) {
    TypeWord(RandomWord(random));
}

void RandomHands::PressMnemonic(Random& random) {
    Press(static_cast<WORD>(random.Between('A', 'Z')), {VK_MENU});
}

void RandomHands::WalkMenu(Random& random) {
    Press(random.Chance(50) ? VK_F10 : VK_MENU);
    for (int step = random.Between(1, 10); step > 0; --step) {
        Sleep(15);
        Press(random.Of(MenuKeys));
    }
}

void RandomHands::WalkList(Random& random) {
    const HWND list = List();
    if (list == nullptr) return;
    ClickOn(PointIn(random, list), MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
    constexpr WORD Steps[] = {VK_DOWN, VK_UP, VK_NEXT, VK_PRIOR, VK_HOME, VK_END};
    for (int step = random.Between(1, 5); step > 0; --step)
        Press(random.Of(Steps));
}
