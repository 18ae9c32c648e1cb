#include "tests/support/answered_boxes.h"

#include <algorithm>

namespace {

AnsweredBoxes* current = nullptr;

std::wstring TextOf(HWND window) {
    wchar_t text[1024] = L"";
    SendMessageW(window, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text));
    return text;
}

bool IsOfClass(HWND window, const wchar_t* expected) {
    wchar_t name[32] = L"";
    GetClassNameW(window, name, 32);
    return lstrcmpiW(name, expected) == 0;
}

bool IsMarkedVisible(HWND window) {
    return (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

BOOL CALLBACK CollectControl(HWND window, LPARAM seenBox) {
    auto& box = *reinterpret_cast<SeenBox*>(seenBox);
    box.texts.push_back(TextOf(window));
    if (IsOfClass(window, L"Button") && IsMarkedVisible(window)) box.buttons.push_back(GetDlgCtrlID(window));
    if (IsOfClass(window, L"Static") && box.icon == nullptr)
        box.icon = reinterpret_cast<HICON>(SendMessageW(window, STM_GETICON, 0, 0));
    return TRUE;
}

bool IsDialog(HWND window) {
    return IsOfClass(window, L"#32770") && (GetWindowLongW(window, GWL_STYLE) & WS_CHILD) == 0;
}

}  // namespace

AnsweredBoxes::AnsweredBoxes(std::initializer_list<int> wanted) : answers_(wanted) {
    current = this;
    hook_ = SetWindowsHookExW(WH_CBT, HookProcedure, nullptr, GetCurrentThreadId());
}

AnsweredBoxes::~AnsweredBoxes() {
    UnhookWindowsHookEx(hook_);
    current = nullptr;
}

bool AnsweredBoxes::Shows(const SeenBox& box, const std::wstring& text) {
    return std::find(box.texts.begin(), box.texts.end(), text) != box.texts.end();
}

LRESULT CALLBACK AnsweredBoxes::HookProcedure(int code, WPARAM wParam, LPARAM lParam) {
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && current != nullptr && IsDialog(window)) current->Answer(window);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// A box is activated when its controls and texts are in place; the answer is posted, since it is not shown
// yet.
void AnsweredBoxes::Answer(HWND box) {
    if (std::find(answered_.begin(), answered_.end(), box) != answered_.end()) return;
    const std::size_t next = std::min(answered_.size(), answers_.size() - 1);
    answered_.push_back(box);
    SeenBox record;
    record.caption = TextOf(box);
    record.owner = GetWindow(box, GW_OWNER);
    EnumChildWindows(box, CollectControl, reinterpret_cast<LPARAM>(&record));
    seen_.push_back(record);
    PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(answers_[next]), 0);
}
