#include "tests/conditions/message_log.h"

#include <commctrl.h>

#include <algorithm>

namespace {
MessageLog* current = nullptr;
}

MessageLog::MessageLog(std::vector<UINT> messages)
    : wanted_(std::move(messages)),
      hook_(SetWindowsHookExW(WH_CALLWNDPROC, &HookProcedure, nullptr, GetCurrentThreadId())) {
    current = this;
}

MessageLog::~MessageLog() {
    UnhookWindowsHookEx(hook_);
    current = nullptr;
}

std::vector<SentMessage> MessageLog::To(int controlId, UINT message) const {
    std::vector<SentMessage> found;
    std::copy_if(sent_.begin(), sent_.end(), std::back_inserter(found), [&](const SentMessage& one) {
        return one.controlId == controlId && one.message == message;
    });
    return found;
}

LRESULT CALLBACK MessageLog::HookProcedure(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && current != nullptr) current->Keep(*reinterpret_cast<const CWPSTRUCT*>(lParam));
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void MessageLog::Keep(const CWPSTRUCT& call) {
    if (std::find(wanted_.begin(), wanted_.end(), call.message) == wanted_.end()) return;
    SentMessage one = {call.hwnd, GetDlgCtrlID(call.hwnd), call.message, call.wParam, call.lParam, {}, {}};
    if (call.message == DTM_SETFORMATW) one.text = reinterpret_cast<const wchar_t*>(call.lParam);
    if (call.message == DTM_SETSYSTEMTIME) one.time = *reinterpret_cast<const SYSTEMTIME*>(call.lParam);
    sent_.push_back(one);
}
