#include "tests/fileops/operation_user.h"

#include <algorithm>

namespace {

OperationUser* present = nullptr;

std::wstring TextOf(HWND window) {
    wchar_t text[1024] = L"";
    GetWindowTextW(window, text, 1024);
    return text;
}

std::string Narrow(const std::wstring& text) {
    std::string narrow;
    for (const wchar_t unit : text)
        narrow += unit < 0x80 ? static_cast<char>(unit) : '?';
    return narrow;
}

bool IsOfClass(HWND window, const wchar_t* expected) {
    wchar_t name[32] = L"";
    GetClassNameW(window, name, 32);
    return lstrcmpiW(name, expected) == 0;
}

struct Controls {
    int buttons = 0;
    std::wstring longestText;
};

BOOL CALLBACK CollectControl(HWND window, LPARAM collected) {
    auto& controls = *reinterpret_cast<Controls*>(collected);
    if (IsOfClass(window, L"Button")) ++controls.buttons;
    const std::wstring text = TextOf(window);
    if (IsOfClass(window, L"Static") && text.size() > controls.longestText.size())
        controls.longestText = text;
    return TRUE;
}

}  // namespace

OperationUser::OperationUser(const FileOperation& watched, std::vector<int> wanted)
    : operation_(watched), answers_(std::move(wanted)) {
    present = this;
    hook_ = SetWindowsHookExW(WH_CALLWNDPROCRET, AfterMessage, nullptr, GetCurrentThreadId());
}

OperationUser::~OperationUser() {
    UnhookWindowsHookEx(hook_);
    present = nullptr;
}

// A dialog has its texts once it has initialised itself.
LRESULT CALLBACK OperationUser::AfterMessage(int code, WPARAM wParam, LPARAM lParam) {
    const auto& sent = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    if (code == HC_ACTION && sent.message == WM_INITDIALOG && present != nullptr &&
        sent.hwnd != present->operation_.Handle()) {
        present->Meet(sent.hwnd);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// The answer is posted: the dialog is not up yet.
void OperationUser::Meet(HWND box) {
    int answer = answers_[std::min(met_.size(), answers_.size() - 1)];
    Controls controls;
    EnumChildWindows(box, CollectControl, reinterpret_cast<LPARAM>(&controls));
    const std::wstring title = TextOf(box);
    const HWND owner = GetWindow(box, GW_OWNER);
    if (title == L"Error" || title == L"ｴﾗｰ") {
        met_.push_back({"Error: " + Narrow(controls.longestText), owner == operation_.Handle()});
        answer = IDOK;
    } else {
        met_.push_back(
            {Narrow(title) + "/" + std::to_string(controls.buttons), owner == operation_.ParentHandle()});
    }
    if (atBox) atBox(box);
    PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(answer), 0);
}
