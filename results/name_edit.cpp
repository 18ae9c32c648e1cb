#include "results/name_edit.h"

#include <algorithm>

NameEdit::NameEdit(WindowObject* parentObject, HWND edit)
    : Control(parentObject, edit, L"Edit", Ownership::Wrapped) {
    Subclass();
    OnMessage(WM_KEYDOWN, this, &NameEdit::OnKeyDown);
    OnMessage(WM_KILLFOCUS, this, &NameEdit::OnFocusLost);
    OnMessage(WM_IME_STARTCOMPOSITION, this, &NameEdit::OnComposition, TRUE);
    OnMessage(WM_IME_ENDCOMPOSITION, this, &NameEdit::OnComposition, FALSE);
    OnMessage(WM_WINDOWPOSCHANGING, this, &NameEdit::OnMoving);
    OnMessage(WM_DESTROY, this, &NameEdit::OnDestroyed);
    OnMessage(WM_NCDESTROY, this, &NameEdit::OnDestroyed);
}

std::wstring NameEdit::Text() const {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(Handle())), L'\0');
    GetWindowTextW(Handle(), text.data(), static_cast<int>(text.size()) + 1);
    return text;
}

// Most input methods turn the keys that they take into VK_PROCESSKEY; some leave Enter and Esc as they are.
LRESULT NameEdit::OnKeyDown(MessageRecord& record) {
    const bool ends = record.wParam == VK_RETURN || record.wParam == VK_ESCAPE;
    if (ends && composing_) return 0;
    if (ends) {
        taken_ = record.wParam == VK_RETURN;
        givenUp_ = !taken_;
    }
    return DefaultProcessing(record);
}

// The list takes what stands in an edit that is left.
LRESULT NameEdit::OnFocusLost(MessageRecord& record) {
    if (!givenUp_) taken_ = true;
    return DefaultProcessing(record);
}

// The list makes the edit as wide as its text, also where the list ends before that.
LRESULT NameEdit::OnMoving(MessageRecord& record) {
    auto& place = *reinterpret_cast<WINDOWPOS*>(record.lParam);
    RECT room{};
    GetClientRect(ParentHandle(), &room);
    if ((place.flags & SWP_NOMOVE) == 0) place.x = std::max(place.x, 0);
    RECT now{};
    GetWindowRect(Handle(), &now);
    MapWindowPoints(nullptr, ParentHandle(), reinterpret_cast<POINT*>(&now), 2);
    const int left = (place.flags & SWP_NOMOVE) == 0 ? place.x : static_cast<int>(now.left);
    if ((place.flags & SWP_NOSIZE) == 0)
        place.cx = std::min(place.cx, std::max(static_cast<int>(room.right) - left, 0));
    return DefaultProcessing(record);
}

LRESULT NameEdit::OnComposition(MessageRecord& record) {
    composing_ = record.extra != FALSE;
    return DefaultProcessing(record);
}

// The list puts its own procedure out of the way before the end, and with it this object's: then the first
// of the two messages is the last that is seen.
LRESULT NameEdit::OnDestroyed(MessageRecord& record) {
    const LRESULT result = DefaultProcessing(record);
    const bool bypassed = ce::WindowProcedure(Handle()) != &FrameworkWindowProcedure;
    if (record.message == WM_NCDESTROY || bypassed) Detach();
    return result;
}
