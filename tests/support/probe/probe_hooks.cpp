// The two hook procedures that the driver installs on the program's thread.

#include <windows.h>

#include "tests/support/probe/answers.h"
#include "tests/support/probe/journal.h"
#include "tests/support/probe/power_loss.h"
#include "tests/support/probe/probe_protocol.h"
#include "tests/support/probe/refusals.h"
#include "tests/support/probe/search_watch.h"

namespace probe {
namespace {

// The handles of windows are numbers of 32 bits, whatever the process.
HWND WindowOf(int number) {
    return reinterpret_cast<HWND>(static_cast<INT_PTR>(number));
}

// What follows the header is empty, and as long as that of any notification.
void Notify(HWND control, int code) {
    union {
        NMHDR header;
        BYTE room[1024];
    } notification = {};
    notification.header.hwndFrom = control;
    notification.header.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID(control));
    notification.header.code = static_cast<UINT>(code);
    SendMessageW(GetParent(control), WM_NOTIFY, notification.header.idFrom,
                 reinterpret_cast<LPARAM>(&notification));
}

void Answer(Exchange& exchange) {
    AnswerWriter writer(exchange);
    const int* numbers = exchange.numbers;
    switch (exchange.question) {
        case Question::Counters:
            AnswerCounters(writer);
            break;
        case Question::List:
            AnswerList(writer);
            break;
        case Question::Rows:
            AnswerRows(writer, numbers[0], numbers[1]);
            break;
        case Question::Columns:
            AnswerColumns(writer);
            break;
        case Question::Menu:
            AnswerMenu(writer);
            break;
        case Question::Bar:
            AnswerBar(writer);
            break;
        case Question::Tabs:
            AnswerTabs(writer);
            break;
        case Question::Control:
            AnswerControl(writer, numbers[0], numbers[1]);
            break;
        case Question::Combo:
            AnswerCombo(writer, numbers[0], numbers[1]);
            break;
        case Question::Picker:
            AnswerPicker(writer, numbers[0], numbers[1]);
            break;
        case Question::Spin:
            AnswerSpin(writer, numbers[0], numbers[1]);
            break;
        case Question::Focus:
            AnswerFocus(writer);
            break;
        case Question::Dialogs:
            AnswerDialogs(writer);
            break;
        case Question::SetPicker:
            SetPicker(numbers[0], numbers[1], numbers[2]);
            break;
        case Question::SetFocus:
            FocusControl(numbers[0], numbers[1]);
            break;
        case Question::SelectRow:
            SelectRow(numbers[0], numbers[1] != 0);
            break;
        case Question::ArmHold:
            ArmHold(numbers[0], numbers[1], numbers[2] != 0);
            break;
        case Question::Repaint:
            Repaint();
            break;
        case Question::Tree:
            AnswerTree(writer);
            break;
        case Question::SelectItem:
            SelectTreeItem(numbers[0]);
            break;
        case Question::Destroy:
            DestroyWindow(WindowOf(numbers[0]));
            break;
        case Question::InputWaits:
            writer.Number(GetInputState() != FALSE ? 1 : 0).End();
            break;
        case Question::Notify:
            Notify(WindowOf(numbers[0]), numbers[1]);
            break;
        default:
            return;
    }
    exchange.answered = TRUE;
}

void AnswerThroughSection() {
    wchar_t name[64];
    wsprintfW(name, SectionNameFormat, GetCurrentProcessId());
    const HANDLE section = OpenFileMappingW(FILE_MAP_ALL_ACCESS, FALSE, name);
    if (section == nullptr) return;
    auto* exchange =
        static_cast<Exchange*>(MapViewOfFile(section, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(Exchange)));
    if (exchange != nullptr) {
        Answer(*exchange);
        UnmapViewOfFile(exchange);
    }
    CloseHandle(section);
}

}  // namespace
}  // namespace probe

extern "C" {

__declspec(dllexport) LRESULT CALLBACK ProbeSentMessage(int code, WPARAM wParam, LPARAM lParam) {
    static const UINT question = RegisterWindowMessageW(probe::QuestionMessageName);
    if (code == HC_ACTION) {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (message.message == question) probe::AnswerThroughSection();
        probe::NoteMessage(message.hwnd, message.message, message.wParam, message.lParam);
        probe::WatchSentMessage(message);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

__declspec(dllexport) LRESULT CALLBACK ProbeTakenMessage(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && wParam == PM_REMOVE) {
        const auto& message = *reinterpret_cast<const MSG*>(lParam);
        probe::NoteMessage(message.hwnd, message.message, message.wParam, message.lParam);
        probe::WatchTakenMessage(message);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// The library stays in the program until it ends: a hold outlives the hooks of the driver that asked for it.
BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH) {
        HMODULE pinned = nullptr;
        GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                           reinterpret_cast<const wchar_t*>(instance), &pinned);
        probe::PrepareRefusals();
        probe::PrepareJournal();
        probe::PreparePowerLoss();
    }
    return TRUE;
}
}
