#include "tests/support/program_driver.h"

#include <commctrl.h>

#include "resources/resource_ids.h"
#include "tests/support/user_input.h"

namespace {

BOOL CALLBACK TakeDialogWithFolder(HWND window, LPARAM result) {
    if (GetDlgItem(window, STATIC_FOLDER) == nullptr) return TRUE;
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

BOOL CALLBACK TakePage(HWND window, LPARAM result) {
    if (GetDlgItem(window, CHECK_SUBFOLDERS) != nullptr) reinterpret_cast<HWND*>(result)[NamePage] = window;
    if (GetDlgItem(window, RADIO_ALL_FILES) != nullptr) reinterpret_cast<HWND*>(result)[DatePage] = window;
    if (GetDlgItem(window, SPIN_KILOBYTES) != nullptr) reinterpret_cast<HWND*>(result)[SizePage] = window;
    return TRUE;
}

}  // namespace

void ProgramDriver::Start(const ProgramStart& start) {
    program_ = std::make_unique<RunningProgram>();
    program_->Start(start);
    WaitUntil("the main window", [this] {
        window_ = program_->MainWindow();
        if (window_ == nullptr && !program_->IsRunning())
            throw DriverError("the program ended before its window came");
        return window_ != nullptr && IsWindowVisible(window_);
    });
    Connect();
}

void ProgramDriver::Attach(DWORD milliseconds) {
    WaitUntil(
        "the main window",
        [this] {
            window_ = FindWindowW(L"QuorinSearch", nullptr);
            return window_ != nullptr && IsWindowVisible(window_);
        },
        milliseconds);
    program_ = std::make_unique<RunningProgram>();
    program_->Attach(window_);
    Connect();
}

// A window that is visible may still be under construction; it is ready when it takes posted messages and has
// its last page, unless a search is being held.
void ProgramDriver::Connect() {
    link_ = std::make_unique<ProbeLink>(window_);
    if (Searching()) return;
    link_->WaitForQueue();
    WaitUntil("the pages", [this] {
        HWND pages[3] = {};
        EnumChildWindows(window_, TakePage, reinterpret_cast<LPARAM>(pages));
        return pages[SizePage] != nullptr;
    });
}

DWORD ProgramDriver::Close() {
    PostMessageW(window_, WM_CLOSE, 0, 0);
    return WaitForEnd();
}

DWORD ProgramDriver::WaitForEnd() {
    const std::optional<DWORD> code = program_->ExitCode(StepDeadline);
    if (!code) throw DriverError("the program does not end");
    link_.reset();
    return *code;
}

void ProgramDriver::Kill() {
    if (program_ != nullptr) program_->Kill();
    link_.reset();
}

HWND ProgramDriver::ControlWindow(int page, int id) {
    HWND pages[3] = {};
    if (page >= 0) {
        EnumChildWindows(window_, TakePage, reinterpret_cast<LPARAM>(pages));
        const HWND control = GetDlgItem(pages[page], id);
        if (control != nullptr) return control;
    } else {
        HWND dialog = nullptr;
        EnumThreadWindows(GetWindowThreadProcessId(window_, nullptr), TakeDialogWithFolder,
                          reinterpret_cast<LPARAM>(&dialog));
        const HWND control = GetDlgItem(dialog, id);
        if (control != nullptr) return control;
    }
    throw DriverError("there is no control " + std::to_string(id) + " on page " + std::to_string(page));
}

void ProgramDriver::Fill(const NameConditions& conditions) {
    if (conditions.name) SetText(NamePage, COMBO_NAME, *conditions.name);
    if (conditions.contains) SetText(NamePage, EDIT_CONTENT, *conditions.contains);
    if (conditions.location) SetText(NamePage, COMBO_LOCATION, *conditions.location);
    if (conditions.subFolders) SetCheck(NamePage, CHECK_SUBFOLDERS, *conditions.subFolders);
}

void ProgramDriver::SetText(int page, int id, const std::wstring& text) {
    SendMessageW(ControlWindow(page, id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void ProgramDriver::SetCheck(int page, int id, bool checked) {
    SendMessageW(ControlWindow(page, id), BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void ProgramDriver::Click(int page, int id) {
    SendMessageW(ControlWindow(page, id), BM_CLICK, 0, 0);
}

void ProgramDriver::ClickToOpen(int page, int id) {
    PostMessageW(ControlWindow(page, id), BM_CLICK, 0, 0);
    WaitUntil("a dialog", [this] { return GetLastActivePopup(window_) != window_; });
    link_->WaitForQueue();
}

void ProgramDriver::CancelDialog() {
    const HWND dialog = GetLastActivePopup(window_);
    if (dialog == window_) throw DriverError("there is no dialog to cancel");
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    WaitUntil("the dialog to close", [&] { return !IsWindow(dialog); });
    link_->WaitForQueue();
}

void ProgramDriver::SelectEntry(int page, int id, int index) {
    SendMessageW(ControlWindow(page, id), CB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

void ProgramDriver::SetSpin(int page, int id, int position) {
    SendMessageW(ControlWindow(page, id), UDM_SETPOS, 0, position);
}

void ProgramDriver::SetDate(int page, int id, int yearMonthDay) {
    link_->Ask(probe::Question::SetPicker, page, id, yearMonthDay);
}

void ProgramDriver::ShowPage(int page) {
    const RECT tab = Tabs().at(static_cast<std::size_t>(page)).rectangle;
    const HWND control = FindWindowExW(window_, nullptr, WC_TABCONTROLW, nullptr);
    POINT centre = {(tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2};
    ScreenToClient(control, &centre);
    const LPARAM place = MAKELPARAM(centre.x, centre.y);
    PostMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, place);
    PostMessageW(control, WM_LBUTTONUP, 0, place);
    WaitUntil("page " + std::to_string(page), [&] { return CurrentPage() == page; });
    link_->WaitForQueue();
}

void ProgramDriver::SendMenuCommand(UINT command) {
    PostMessageW(window_, WM_COMMAND, command, 0);
    link_->WaitForQueue();
}

void ProgramDriver::PostFind() {
    PostMessageW(window_, WM_COMMAND, COMMAND_FIND, 0);
}

void ProgramDriver::BeginFind() {
    const int before = SearchesBegun();
    PostFind();
    WaitUntil("the search to begin", [&] { return SearchesBegun() > before; });
}

void ProgramDriver::Find() {
    BeginFind();
    WaitForEndOfSearch();
}

bool ProgramDriver::FindAndHold(int rows, DWORD longest) {
    return FindAndHold(rows, longest, false);
}

bool ProgramDriver::FindAndHoldAwake(int rows, DWORD longest) {
    return FindAndHold(rows, longest, true);
}

bool ProgramDriver::FindAndHold(int rows, DWORD longest, bool staysAwake) {
    link_->Ask(probe::Question::ArmHold, rows, static_cast<int>(longest), staysAwake ? 1 : 0);
    BeginFind();
    bool held = false;
    WaitUntil("the search to be held", [&] {
        held = link_->WaitForHold(0);
        return held || !Searching();
    });
    return held;
}

void ProgramDriver::Release() {
    link_->ReleaseHold();
}

void ProgramDriver::WaitForEndOfSearch(DWORD milliseconds) {
    WaitUntil(
        "the end of the search", [this] { return !Searching(); }, milliseconds);
    link_->WaitForQueue();
}

void ProgramDriver::PressAbort() {
    const HWND button = ControlWindow(probe::FindingDialogPage, IDCANCEL);
    PostMessageW(GetParent(button), WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
                 reinterpret_cast<LPARAM>(button));
}

void ProgramDriver::BringForward() {
    if (GetForegroundWindow() != window_) SetForegroundWindow(window_);
    WaitUntil("the main window in front", [this] { return GetForegroundWindow() == window_; });
}

void ProgramDriver::FocusControl(int page, int id) {
    BringForward();
    link_->Ask(probe::Question::SetFocus, page, id);
    WaitUntil("the focus on control " + std::to_string(id), [&] { return HasFocus(page, id); });
}

void ProgramDriver::FocusTab() {
    BringForward();
    link_->Ask(probe::Question::SetFocus, 0, 0);
    WaitUntil("the focus on the tabs", [&] { return TabHasFocus(); });
}

void ProgramDriver::SelectRow(int row, bool select) {
    link_->Ask(probe::Question::SelectRow, row, select ? 1 : 0);
}

void ProgramDriver::SelectTreeItem(int place) {
    link_->Ask(probe::Question::SelectItem, place);
}

void ProgramDriver::WaitForInput() {
    WaitUntil("the keys and clicks to be taken", [this] { return !InputWaits(); });
    link_->WaitForQueue();
}

void ProgramDriver::Repaint() {
    link_->Ask(probe::Question::Repaint);
}

void ProgramDriver::DestroyWindowOf(HWND window) {
    link_->Ask(probe::Question::Destroy, static_cast<int>(reinterpret_cast<INT_PTR>(window)));
}

void ProgramDriver::Notify(HWND control, int code) {
    link_->Ask(probe::Question::Notify, static_cast<int>(reinterpret_cast<INT_PTR>(control)), code);
}
