#include "tests/support/probe/search_watch.h"

#include <commctrl.h>

#include "resources/resource_ids.h"
#include "tests/support/probe/program_windows.h"

namespace probe {
namespace {

struct Watch {
    int begun = 0;
    int ended = 0;
    HWND dialog = nullptr;  // of the search that is running
    bool armed = false;
    int rowsToWaitFor = 0;
    DWORD longestHold = 0;
    bool staysAwake = false;
    UINT holdMessage = 0;
    UINT syncMessage = 0;
};
Watch watch;

HANDLE NamedEvent(const wchar_t* format) {
    wchar_t name[64];
    wsprintfW(name, format, GetCurrentProcessId());
    return CreateEventW(nullptr, TRUE, FALSE, name);
}

// Nobody waits any more for one whose event is gone.
void SignalSync(DWORD number) {
    wchar_t name[64];
    wsprintfW(name, SyncEventNameFormat, GetCurrentProcessId(), number);
    const HANDLE event = OpenEventW(EVENT_MODIFY_STATE, FALSE, name);
    if (event == nullptr) return;
    SetEvent(event);
    CloseHandle(event);
}

// What the message pump of a search does.
void TakeWaitingMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

// Messages sent to the thread are still answered: the driver asks its questions during a hold.
void HoldThread() {
    const HANDLE release = NamedEvent(ReleaseEventNameFormat);
    const HANDLE held = NamedEvent(HeldEventNameFormat);
    SetEvent(held);
    const ULONGLONG end = GetTickCount64() + watch.longestHold;
    for (;;) {
        const ULONGLONG now = GetTickCount64();
        if (now >= end) break;
        const DWORD left = static_cast<DWORD>(end - now);
        const DWORD awaited = watch.staysAwake ? QS_ALLINPUT : QS_SENDMESSAGE;
        const DWORD woken = MsgWaitForMultipleObjectsEx(1, &release, left, awaited, MWMO_INPUTAVAILABLE);
        if (woken != WAIT_OBJECT_0 + 1) break;
        if (watch.staysAwake) {
            TakeWaitingMessages();
            continue;
        }
        MSG message;
        PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    }
    ResetEvent(held);
    CloseHandle(held);
    CloseHandle(release);
}

void TakeHoldMessage() {
    if (!watch.armed || watch.dialog == nullptr) return;
    const LRESULT rows = SendMessageW(ListWindow(), LVM_GETITEMCOUNT, 0, 0);
    if (rows < watch.rowsToWaitFor) {
        PostMessageW(MainWindow(), watch.holdMessage, 0, 0);
        return;
    }
    watch.armed = false;
    HoldThread();
}

void EndOfSearch() {
    ++watch.ended;
    watch.dialog = nullptr;
    watch.armed = false;
}

}  // namespace

void AnswerCounters(AnswerWriter& writer) {
    // The dialog may have gone while no hook was installed.
    if (watch.dialog != nullptr && !IsWindow(watch.dialog)) EndOfSearch();
    writer.Number(watch.begun).Number(watch.ended).End();
}

void ArmHold(int rows, int longestMilliseconds, bool staysAwake) {
    watch.rowsToWaitFor = rows;
    watch.staysAwake = staysAwake;
    watch.longestHold = static_cast<DWORD>(longestMilliseconds);
    watch.armed = true;
    // Kept open on purpose: the driver's steps may be processes of their own, none of which outlives the
    // hold.
    static const HANDLE held = NamedEvent(HeldEventNameFormat);
    static const HANDLE release = NamedEvent(ReleaseEventNameFormat);
    ResetEvent(held);
    ResetEvent(release);
}

void WatchTakenMessage(const MSG& message) {
    if (watch.holdMessage == 0) {
        watch.holdMessage = RegisterWindowMessageW(HoldMessageName);
        watch.syncMessage = RegisterWindowMessageW(SyncMessageName);
    }
    if (message.message == watch.syncMessage) SignalSync(static_cast<DWORD>(message.wParam));
    if (message.message == watch.holdMessage) TakeHoldMessage();
    const bool run = message.message == WM_COMMAND && LOWORD(message.wParam) == COMMAND_RUN;
    // A run command for the dialog of the search that is running begins no other one.
    if (!run || message.hwnd == watch.dialog || message.hwnd != FindingDialog()) return;
    ++watch.begun;
    watch.dialog = message.hwnd;
    if (watch.armed) PostMessageW(MainWindow(), watch.holdMessage, 0, 0);
}

void WatchSentMessage(const CWPSTRUCT& message) {
    if (message.message == WM_NCDESTROY && watch.dialog != nullptr && message.hwnd == watch.dialog)
        EndOfSearch();
}

}  // namespace probe
