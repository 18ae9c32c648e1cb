#include "bench/shipped_program.h"

#include <windows.h>

#include <commctrl.h>
#include <psapi.h>

#include "app/product.h"
#include "bench/comparison.h"
#include "resources/resource_ids.h"
#include "results/result_column.h"
#include "tests/support/deadline.h"

namespace {

// What is on screen sooner than the usual pause between two looks.
constexpr DWORD ShortPause = 1;

// Of the result list, from the left.
constexpr int ColumnWidths[ResultColumnCount] = {100, 140, 40, 74, 104};
constexpr int AllColumns = 100 + 140 + 40 + 74 + 104;
constexpr int FirstRightColumn = 2;
constexpr int HeadingY = 5;

struct WantedPage {
    int controlId;
    HWND page;
};

BOOL CALLBACK TakePage(HWND window, LPARAM parameter) {
    auto& wanted = *reinterpret_cast<WantedPage*>(parameter);
    if (GetDlgItem(window, wanted.controlId) == nullptr) return TRUE;
    wanted.page = window;
    return FALSE;
}

LPARAM MiddleOfHeading(int column) {
    int left = 0;
    for (int i = 0; i < column; ++i)
        left += ColumnWidths[i];
    return MAKELPARAM(left + ColumnWidths[column] / 2, HeadingY);
}

template <typename Condition>
void WaitClosely(const char* what, Condition condition) {
    const ULONGLONG end = GetTickCount64() + StepDeadline;
    while (!condition()) {
        if (GetTickCount64() >= end) throw DriverError(std::string("waited in vain: ") + what);
        Sleep(ShortPause);
    }
}

}  // namespace

std::wstring ShippedProgramPath() {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring whole = path;
    return whole.substr(0, whole.rfind(L'\\')) + L"\\..\\quorinsearch.exe";
}

HWND WindowOfProcess(const wchar_t* className, DWORD process) {
    for (HWND window = FindWindowExW(nullptr, nullptr, className, nullptr); window != nullptr;
         window = FindWindowExW(nullptr, window, className, nullptr)) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == process) return window;
    }
    return nullptr;
}

HWND PageWith(HWND mainWindow, int controlId) {
    WantedPage wanted = {controlId, nullptr};
    EnumChildWindows(mainWindow, TakePage, reinterpret_cast<LPARAM>(&wanted));
    return wanted.page;
}

double PrivateBytesOf(DWORD process) {
    const HANDLE handle = OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, process);
    PROCESS_MEMORY_COUNTERS counters = {};
    GetProcessMemoryInfo(handle, &counters, sizeof counters);
    CloseHandle(handle);
    return static_cast<double>(counters.PagefileUsage);
}

ShippedProgram::ShippedProgram() {
    ProgramStart start;
    start.path = ShippedProgramPath();
    process_.Start(start);
    WaitUntil("the main window", [this] {
        window_ = WindowOfProcess(MainWindowClass, process_.ProcessId());
        return window_ != nullptr && IsWindowVisible(window_) && PageWith(window_, SPIN_KILOBYTES) != nullptr;
    });
    // The message is answered when all that is being made now has been made.
    SendMessageW(window_, WM_NULL, 0, 0);
    namePage_ = PageWith(window_, CHECK_SUBFOLDERS);
    list_ = FindWindowExW(window_, nullptr, WC_LISTVIEWW, nullptr);
    Raise();
}

void ShippedProgram::Raise() {
    SetForegroundWindow(window_);
    Draw();
}

void ShippedProgram::SetText(int id, const std::wstring& text) {
    SendMessageW(GetDlgItem(namePage_, id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void ShippedProgram::Ask(const std::wstring& location, const std::wstring& name) {
    SetText(COMBO_NAME, name);
    SetText(COMBO_LOCATION, location);
    SendMessageW(GetDlgItem(namePage_, CHECK_SUBFOLDERS), BM_SETCHECK, BST_CHECKED, 0);
}

void ShippedProgram::Draw() {
    RedrawWindow(window_, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

// The command returns when the search has ended.
double ShippedProgram::Find() {
    return MillisecondsOf([this] {
        SendMessageW(window_, WM_COMMAND, COMMAND_FIND, 0);
        Draw();
    });
}

int ShippedProgram::Rows() const {
    return static_cast<int>(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0));
}

double ShippedProgram::ClickHeading(int column) {
    const auto header = reinterpret_cast<HWND>(SendMessageW(list_, LVM_GETHEADER, 0, 0));
    const LPARAM place = MiddleOfHeading(column);
    // As far to the left as it will go, and as far to the right: a heading takes clicks where it is seen.
    SendMessageW(list_, LVM_SCROLL, static_cast<WPARAM>(column < FirstRightColumn ? -AllColumns : AllColumns),
                 0);
    Draw();
    return MillisecondsOf([&] {
        SendMessageW(header, WM_LBUTTONDOWN, MK_LBUTTON, place);
        SendMessageW(header, WM_LBUTTONUP, 0, place);
        Draw();
    });
}

void ShippedProgram::SelectLastRow() {
    SendMessageW(list_, WM_KEYDOWN, VK_END, 0);
    SendMessageW(list_, WM_KEYUP, VK_END, 0);
}

int ShippedProgram::SelectedRow() const {
    return static_cast<int>(
        SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), MAKELPARAM(LVNI_SELECTED, 0)));
}

double ShippedProgram::PrivateBytes() const {
    return PrivateBytesOf(process_.ProcessId());
}

ShippedProgram::Closing ShippedProgram::Close() {
    const double begin = MillisecondsNow();
    PostMessageW(window_, WM_CLOSE, 0, 0);
    WaitClosely("the window to leave the screen", [this] { return !IsWindowVisible(window_); });
    const double gone = MillisecondsNow();
    if (!process_.ExitCode(StepDeadline)) throw DriverError("the program does not end");
    return {gone - begin, MillisecondsNow() - begin};
}

RECT ShippedProgram::ListPlace() const {
    RECT place = {};
    GetWindowRect(list_, &place);
    MapWindowPoints(nullptr, window_, reinterpret_cast<POINT*>(&place), 2);
    return place;
}
