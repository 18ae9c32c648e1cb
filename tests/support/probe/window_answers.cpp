#include <windows.h>

#include "tests/support/probe/answers.h"
#include "tests/support/probe/program_windows.h"

namespace probe {
namespace {

constexpr int TextCapacity = 1024;

BOOL CALLBACK WriteDialogControl(HWND control, LPARAM writer) {
    wchar_t text[TextCapacity] = L"";
    SendMessageW(control, WM_GETTEXT, TextCapacity, reinterpret_cast<LPARAM>(text));
    reinterpret_cast<AnswerWriter*>(writer)->Number(GetDlgCtrlID(control)).Text(text);
    return TRUE;
}

BOOL CALLBACK WriteDialog(HWND window, LPARAM parameter) {
    auto& writer = *reinterpret_cast<AnswerWriter*>(parameter);
    wchar_t name[TextCapacity] = L"";
    GetClassNameW(window, name, TextCapacity);
    if (lstrcmpW(name, L"#32770") != 0 || !IsWindowVisible(window)) return TRUE;
    wchar_t caption[TextCapacity] = L"";
    GetWindowTextW(window, caption, TextCapacity);
    RECT rectangle = {};
    GetWindowRect(window, &rectangle);
    writer.Text(caption).Rectangle(rectangle);
    EnumChildWindows(window, WriteDialogControl, parameter);
    writer.End();
    return TRUE;
}

}  // namespace

void AnswerFocus(AnswerWriter& writer) {
    for (HWND window = GetFocus(); window != nullptr; window = GetAncestor(window, GA_PARENT)) {
        if (window == GetDesktopWindow()) return;
        wchar_t name[TextCapacity] = L"";
        GetClassNameW(window, name, TextCapacity);
        const bool child = (GetWindowLongW(window, GWL_STYLE) & WS_CHILD) != 0;
        writer.Text(name).Number(child ? GetDlgCtrlID(window) : 0).End();
        if (!child) return;
    }
}

void AnswerDialogs(AnswerWriter& writer) {
    EnumThreadWindows(GetCurrentThreadId(), WriteDialog, reinterpret_cast<LPARAM>(&writer));
}

void Repaint() {
    constexpr UINT Everything = RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW;
    RedrawWindow(MainWindow(), nullptr, nullptr, Everything);
    const HWND finding = FindingDialog();
    if (finding != nullptr) RedrawWindow(finding, nullptr, nullptr, Everything);
}

}  // namespace probe
