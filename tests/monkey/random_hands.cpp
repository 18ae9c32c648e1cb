#include "tests/monkey/random_hands.h"

#include <commctrl.h>

#include <algorithm>

#include "resources/resource_ids.h"
#include "tests/support/user_input.h"
#include "tests/support/utf8.h"

namespace {

constexpr std::size_t TraceLength = 60;

struct WindowList {
    DWORD processId;
    std::vector<HWND> windows;
};

BOOL CALLBACK TakeOwnWindow(HWND window, LPARAM parameter) {
    auto& list = *reinterpret_cast<WindowList*>(parameter);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == list.processId && IsWindowVisible(window)) list.windows.push_back(window);
    return TRUE;
}

BOOL CALLBACK TakeVisible(HWND window, LPARAM parameter) {
    if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(window);
    return TRUE;
}

}  // namespace

const RandomHands::Action RandomHands::Tame[] = {
    {"move", 3, &RandomHands::MovePointer},
    {"rest", 1, &RandomHands::RestPointer},
    {"click", 4, &RandomHands::ClickSomewhere},
    {"click control", 12, &RandomHands::ClickControl},
    {"double click", 4, &RandomHands::DoubleClickControl},
    {"drag", 2, &RandomHands::Drag},
    {"drag in control", 2, &RandomHands::DragInControl},
    {"wheel", 2, &RandomHands::TurnWheel},
    {"menu by pointer", 4, &RandomHands::ClickMenu},
    {"key", 10, &RandomHands::PressAnyKey},
    {"held key", 2, &RandomHands::HoldAnyKey},
    {"type", 6, &RandomHands::Type},
    {"mnemonic", 3, &RandomHands::PressMnemonic},
    {"menu by keys", 4, &RandomHands::WalkMenu},
    {"walk list", 4, &RandomHands::WalkList},
    {"search", 6, &RandomHands::Search},
    {"fill and search", 5, &RandomHands::FillAndSearch},
    {"delete", 4, &RandomHands::Delete},
    {"rename", 6, &RandomHands::Rename},
    {"properties", 4, &RandomHands::ShowProperties},
    {"browse", 2, &RandomHands::Browse},
    {"about", 1, &RandomHands::ShowAbout},
    {"answer", 6, &RandomHands::Answer},
    {"leave dialog", 3, &RandomHands::LeaveDialog},
    {"command", 6, &RandomHands::PostCommand},
    {"control's command", 4, &RandomHands::PostToControl},
    {"message", 6, &RandomHands::PostMessageTo},
    {"notification", 2, &RandomHands::Notify},
    {"files", 6, &RandomHands::ChangeFiles},
    {"screen", 1, &RandomHands::ChangeScreen},
    {"second start", 1, &RandomHands::StartAgain},
    {"end", 1, &RandomHands::EndProgram},
};

const RandomHands::Action RandomHands::Wild[] = {
    {"destroy child", 10, &RandomHands::DestroyChild},
    {"destroy dialog", 3, &RandomHands::DestroyDialog},
};

void RandomHands::Step(Random& random, bool wild) {
    ++figures_.steps;
    EndStrangers();
    if (random.Chance(90)) ComeForward();
    int total = 0;
    for (const Action& action : Tame)
        total += action.weight;
    const int tame = total;
    if (wild) {
        for (const Action& action : Wild)
            total += action.weight;
    }
    int left = random.Below(static_cast<std::size_t>(total));
    const Action* action = left < tame ? Tame : Wild;
    if (left >= tame) left -= tame;
    for (; left >= action->weight; ++action)
        left -= action->weight;
    Note(std::string("-- ") + action->name);
    (this->*action->run)(random);
}

// Looking

std::vector<HWND> RandomHands::TopWindows() const {
    WindowList list = {processId_, {}};
    EnumWindows(TakeOwnWindow, reinterpret_cast<LPARAM>(&list));
    return list.windows;
}

std::vector<HWND> RandomHands::AllWindows() const {
    std::vector<HWND> windows;
    for (const HWND top : TopWindows()) {
        windows.push_back(top);
        EnumChildWindows(top, TakeVisible, reinterpret_cast<LPARAM>(&windows));
    }
    return windows;
}

HWND RandomHands::Front() const {
    for (const HWND window : TopWindows()) {
        if (IsWindowEnabled(window)) return window;
    }
    return program_.Window();
}

// Mostly of what takes input.
HWND RandomHands::AnyWindow(Random& random) const {
    std::vector<HWND> windows = AllWindows();
    if (random.Chance(80)) {
        windows.clear();
        windows.push_back(Front());
        EnumChildWindows(windows[0], TakeVisible, reinterpret_cast<LPARAM>(&windows));
    }
    return windows.empty() ? program_.Window() : random.Of(windows);
}

POINT RandomHands::PointIn(Random& random, HWND window) const {
    RECT place = {};
    GetWindowRect(window, &place);
    if (IsRectEmpty(&place)) return AnyPoint(random);
    return {random.Between(place.left, place.right - 1), random.Between(place.top, place.bottom - 1)};
}

POINT RandomHands::AnyPoint(Random& random) const {
    return {random.Below(static_cast<std::size_t>(GetSystemMetrics(SM_CXSCREEN))),
            random.Below(static_cast<std::size_t>(GetSystemMetrics(SM_CYSCREEN)))};
}

HWND RandomHands::List() const {
    return FindWindowExW(program_.Window(), nullptr, WC_LISTVIEWW, nullptr);
}

// What the program opened is not looked at any further.
void RandomHands::EndStrangers() const {
    const HWND foreground = GetForegroundWindow();
    DWORD owner = 0;
    GetWindowThreadProcessId(foreground, &owner);
    DWORD desktopOwner = 0;
    GetWindowThreadProcessId(GetDesktopWindow(), &desktopOwner);
    if (foreground == nullptr || foreground == GetDesktopWindow() || owner == processId_ ||
        owner == desktopOwner || owner == GetCurrentProcessId())
        return;
    const HANDLE process = OpenProcess(PROCESS_TERMINATE, FALSE, owner);
    if (process == nullptr) return;
    TerminateProcess(process, 0);
    CloseHandle(process);
}

void RandomHands::ComeForward() {
    DWORD owner = 0;
    GetWindowThreadProcessId(GetForegroundWindow(), &owner);
    if (owner != processId_) SetForegroundWindow(Front());
}

void RandomHands::Note(const std::string& words) {
    trace_.push_back(words);
    if (trace_.size() > TraceLength) trace_.pop_front();
}
