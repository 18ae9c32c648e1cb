#include <windows.h>

#include <commctrl.h>

#include "tests/support/probe/answers.h"
#include "tests/support/probe/program_windows.h"

namespace probe {
namespace {

constexpr int TextCapacity = 1024;

}  // namespace

void AnswerControl(AnswerWriter& writer, int page, int id) {
    const HWND control = PageControl(page, id);
    if (control == nullptr) return;
    wchar_t text[TextCapacity] = L"";
    wchar_t className[TextCapacity] = L"";
    SendMessageW(control, WM_GETTEXT, TextCapacity, reinterpret_cast<LPARAM>(text));
    GetClassNameW(control, className, TextCapacity);
    const bool button = lstrcmpiW(className, WC_BUTTONW) == 0;
    const bool edit = lstrcmpiW(className, WC_EDITW) == 0;
    RECT rectangle = {};
    GetWindowRect(control, &rectangle);
    writer.Text(className).Text(text).Number(IsWindowEnabled(control)).Number(IsWindowVisible(control));
    writer.Number(button ? SendMessageW(control, BM_GETCHECK, 0, 0) : 0)
        .Number(GetWindowLongW(control, GWL_STYLE));
    writer.Number(edit ? SendMessageW(control, EM_GETLIMITTEXT, 0, 0) : 0).Rectangle(rectangle).End();
}

void AnswerCombo(AnswerWriter& writer, int page, int id) {
    const HWND combo = PageControl(page, id);
    if (combo == nullptr) return;
    writer.Number(SendMessageW(combo, CB_GETCURSEL, 0, 0)).End();
    const LRESULT count = SendMessageW(combo, CB_GETCOUNT, 0, 0);
    for (LRESULT entry = 0; entry < count; ++entry) {
        wchar_t text[TextCapacity] = L"";
        const auto index = static_cast<WPARAM>(entry);
        if (SendMessageW(combo, CB_GETLBTEXTLEN, index, 0) < TextCapacity) {
            SendMessageW(combo, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text));
        }
        writer.Text(text).End();
    }
}

void AnswerPicker(AnswerWriter& writer, int page, int id) {
    const HWND picker = PageControl(page, id);
    if (picker == nullptr) return;
    wchar_t text[TextCapacity] = L"";
    SendMessageW(picker, WM_GETTEXT, TextCapacity, reinterpret_cast<LPARAM>(text));
    SYSTEMTIME time = {};
    SendMessageW(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time));
    writer.Text(text).Number(time.wYear).Number(time.wMonth).Number(time.wDay);
    writer.Number(time.wHour).Number(time.wMinute).Number(time.wSecond).End();
}

void AnswerSpin(AnswerWriter& writer, int page, int id) {
    const HWND spin = PageControl(page, id);
    if (spin == nullptr) return;
    const LRESULT range = SendMessageW(spin, UDM_GETRANGE, 0, 0);
    const LRESULT position = SendMessageW(spin, UDM_GETPOS, 0, 0);
    writer.Number(HIWORD(range))
        .Number(LOWORD(range))
        .Number(LOWORD(position))
        .Number(HIWORD(position))
        .End();
}

void SetPicker(int page, int id, int yearMonthDay) {
    SYSTEMTIME time = {};
    time.wYear = static_cast<WORD>(yearMonthDay / 10000);
    time.wMonth = static_cast<WORD>(yearMonthDay / 100 % 100);
    time.wDay = static_cast<WORD>(yearMonthDay % 100);
    SendMessageW(PageControl(page, id), DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&time));
}

void FocusControl(int page, int id) {
    const HWND window = id == 0 ? TabWindow() : PageControl(page, id);
    if (window != nullptr) SetFocus(window);
}

}  // namespace probe
