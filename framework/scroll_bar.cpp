#include "framework/scroll_bar.h"

static_assert(static_cast<int>(ScrollRequest::LineUp) == SB_LINEUP &&
              static_cast<int>(ScrollRequest::LineDown) == SB_LINEDOWN &&
              static_cast<int>(ScrollRequest::PageUp) == SB_PAGEUP &&
              static_cast<int>(ScrollRequest::PageDown) == SB_PAGEDOWN &&
              static_cast<int>(ScrollRequest::ThumbPosition) == SB_THUMBPOSITION &&
              static_cast<int>(ScrollRequest::ThumbTrack) == SB_THUMBTRACK &&
              static_cast<int>(ScrollRequest::Top) == SB_TOP &&
              static_cast<int>(ScrollRequest::Bottom) == SB_BOTTOM);

SCROLLINFO ScrollBar::Read(UINT mask) const {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = mask;
    GetScrollInfo(window_, bar_, &info);
    return info;
}

void ScrollBar::Write(SCROLLINFO& info, bool redraw) const {
    info.cbSize = sizeof info;
    SetScrollInfo(window_, bar_, &info, redraw);
}

int ScrollBar::Position() const {
    return Read(SIF_POS).nPos;
}

ScrollRange ScrollBar::Range() const {
    const SCROLLINFO info = Read(SIF_RANGE);
    return {info.nMin, info.nMax};
}

int ScrollBar::Page() const {
    return static_cast<int>(Read(SIF_PAGE).nPage);
}

ScrollState ScrollBar::State() const {
    const SCROLLINFO info = Read(SIF_ALL);
    return {{info.nMin, info.nMax}, static_cast<int>(info.nPage), info.nPos, info.nTrackPos};
}

void ScrollBar::SetPosition(int position, bool redraw) const {
    SCROLLINFO info{};
    info.fMask = SIF_POS;
    info.nPos = position;
    Write(info, redraw);
}

void ScrollBar::SetRange(ScrollRange range, bool redraw) const {
    SCROLLINFO info{};
    info.fMask = SIF_RANGE;
    info.nMin = range.minimum;
    info.nMax = range.maximum;
    Write(info, redraw);
}

ScrollRequest RequestOf(const MessageRecord& record) {
    return static_cast<ScrollRequest>(LOWORD(record.wParam));
}

int ThumbOf(const MessageRecord& record) {
    return HIWORD(record.wParam);
}

ScrollBarControl::ScrollBarControl(WindowObject* parentObject, PropertySet& properties)
    : Control(parentObject, ClassName, properties) {
    TakeScrollMessages();
}

ScrollBarControl::ScrollBarControl(WindowObject* parentObject, HWND existing)
    : Control(parentObject, existing, ClassName) {
    TakeScrollMessages();
}

void ScrollBarControl::TakeScrollMessages() {
    OnMessage(WM_HSCROLL, this, &ScrollBarControl::OnScroll);
    OnMessage(WM_VSCROLL, this, &ScrollBarControl::OnScroll);
}

LRESULT ScrollBarControl::OnScroll(MessageRecord& record) {
    const ScrollState before = Bar().State();
    Bar().SetPosition(ScrolledControlPosition(before, RequestOf(record), steps_));
    return before.position - Bar().Position();
}
