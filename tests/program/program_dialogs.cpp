#include "tests/program/program_dialogs.h"

#include <commctrl.h>
#include <prsht.h>

#include "tests/support/deadline.h"

namespace {

constexpr UINT AnswerTime = 10000;

std::wstring TextOf(HWND window) {
    wchar_t text[2048] = L"";
    DWORD_PTR length = 0;
    SendMessageTimeoutW(window, WM_GETTEXT, 2048, reinterpret_cast<LPARAM>(text), SMTO_NORMAL, AnswerTime,
                        &length);
    return text;
}

LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, AnswerTime, &answer);
    return static_cast<LRESULT>(answer);
}

bool IsDialog(HWND window) {
    wchar_t name[16] = L"";
    GetClassNameW(window, name, 16);
    return lstrcmpW(name, L"#32770") == 0;
}

BOOL CALLBACK TakeOpenDialog(HWND window, LPARAM result) {
    if (!IsDialog(window) || !IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

struct TextSearch {
    const std::wstring* text;
    bool found;
};

BOOL CALLBACK LookForText(HWND control, LPARAM parameter) {
    auto& search = *reinterpret_cast<TextSearch*>(parameter);
    search.found = search.found || TextOf(control) == *search.text;
    return !search.found;
}

HWND TabsOf(HWND sheet) {
    return FindWindowExW(sheet, nullptr, WC_TABCONTROLW, nullptr);
}

HWND VisiblePage(HWND sheet) {
    HWND page = nullptr;
    do
        page = FindWindowExW(sheet, page, L"#32770", nullptr);
    while (page != nullptr && !IsWindowVisible(page));
    return page;
}

}  // namespace

std::wstring ProgramDialog::Caption() const {
    return TextOf(window_);
}

HWND ProgramDialog::Control(int id) const {
    const HWND page = VisiblePage(window_);
    const HWND onPage = page != nullptr ? GetDlgItem(page, id) : nullptr;
    const HWND control = onPage != nullptr ? onPage : GetDlgItem(window_, id);
    if (control == nullptr) throw DriverError("the dialog has no control " + std::to_string(id));
    return control;
}

std::wstring ProgramDialog::Text(int id) const {
    return TextOf(Control(id));
}

bool ProgramDialog::HasText(const std::wstring& text) const {
    TextSearch search = {&text, false};
    EnumChildWindows(window_, LookForText, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

RECT ProgramDialog::Place() const {
    RECT place = {};
    GetWindowRect(window_, &place);
    return place;
}

bool ProgramDialog::IsChecked(int id) const {
    return Ask(Control(id), BM_GETCHECK) == BST_CHECKED;
}

void ProgramDialog::Click(int id) const {
    PostMessageW(Control(id), BM_CLICK, 0, 0);
}

void ProgramDialog::Press(int id) const {
    Click(id);
    WaitUntil("the dialog to close", [this] { return !IsWindow(window_) || !IsWindowVisible(window_); });
}

bool ProgramDialog::IsSheet() const {
    return TabsOf(window_) != nullptr;
}

int ProgramDialog::PageCount() const {
    return static_cast<int>(Ask(TabsOf(window_), TCM_GETITEMCOUNT));
}

void ProgramDialog::TurnTo(int page) const {
    Ask(window_, PSM_SETCURSEL, static_cast<WPARAM>(page));
}

HWND ProgramDialog::Focus() const {
    GUITHREADINFO thread = {};
    thread.cbSize = sizeof(thread);
    if (!GetGUIThreadInfo(GetWindowThreadProcessId(window_, nullptr), &thread)) return nullptr;
    return IsChild(window_, thread.hwndFocus) ? thread.hwndFocus : nullptr;
}

std::optional<ProgramDialog> OpenDialogOf(HWND mainWindow) {
    HWND dialog = nullptr;
    EnumThreadWindows(GetWindowThreadProcessId(mainWindow, nullptr), TakeOpenDialog,
                      reinterpret_cast<LPARAM>(&dialog));
    if (dialog == nullptr) return std::nullopt;
    return ProgramDialog(dialog);
}

ProgramDialog WaitForDialog(HWND mainWindow) {
    std::optional<ProgramDialog> dialog;
    WaitUntil("a dialog to open", [&] {
        dialog = OpenDialogOf(mainWindow);
        return dialog.has_value();
    });
    constexpr DWORD LongestOpening = 1000;
    static_cast<void>(HoldsWithin(LongestOpening, [&] { return dialog->Focus() != nullptr; }));
    return *dialog;
}
