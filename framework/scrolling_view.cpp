#include "framework/scrolling_view.h"

#include "framework/property_set.h"

static_assert(static_cast<int>(ScrollRequest::LineUp) == SB_LINEUP &&
              static_cast<int>(ScrollRequest::LineDown) == SB_LINEDOWN &&
              static_cast<int>(ScrollRequest::PageUp) == SB_PAGEUP &&
              static_cast<int>(ScrollRequest::PageDown) == SB_PAGEDOWN &&
              static_cast<int>(ScrollRequest::ThumbPosition) == SB_THUMBPOSITION &&
              static_cast<int>(ScrollRequest::ThumbTrack) == SB_THUMBTRACK &&
              static_cast<int>(ScrollRequest::Top) == SB_TOP &&
              static_cast<int>(ScrollRequest::Bottom) == SB_BOTTOM);

namespace {

constexpr int DefaultLineStep = 16;
constexpr int DefaultSecondStep = 2;

int NumberOr(const PropertySet& properties, PropertyKey key, int otherwise) {
    return static_cast<int>(properties.Get(key, static_cast<PropertyValue>(otherwise)));
}

struct BarKeys {
    int bar;
    PropertyKey maximum;
    PropertyKey minimum;
    PropertyKey position;
};

constexpr BarKeys KeysOfBars[] = {
    {SB_HORZ, property::HorizontalMaximum, property::HorizontalMinimum, property::HorizontalPosition},
    {SB_VERT, property::VerticalMaximum, property::VerticalMinimum, property::VerticalPosition},
};

}  // namespace

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

ScrollingView::ScrollingView(WindowObject* parentObject, const wchar_t* title, PropertySet& properties)
    : ContainerWindow(parentObject, title, properties),
      lineStep_(NumberOr(properties, property::LineStep, DefaultLineStep)),
      secondStep_(NumberOr(properties, property::SecondStep, DefaultSecondStep)),
      thumbTracking_(properties.Get(property::ThumbTracking) != 0) {
    SetUpBars(properties);
    if (properties.Has(property::ViewIcon)) {
        ce::SetClassIcon(Handle(), reinterpret_cast<HICON>(properties.Get(property::ViewIcon)));
    }
    OnMessage(WM_HSCROLL, this, &ScrollingView::OnWmHScroll);
    OnMessage(WM_VSCROLL, this, &ScrollingView::OnWmVScroll);
    const auto self = reinterpret_cast<EventSource>(Handle());
    OnEvent(event::HorizontalScroll, self, this, &ScrollingView::OnHorizontalScroll);
    OnEvent(event::VerticalScroll, self, this, &ScrollingView::OnVerticalScroll);
}

// Setting one end of a range leaves the other as it is.
void ScrollingView::SetUpBars(const PropertySet& properties) {
    for (const BarKeys& keys : KeysOfBars) {
        const ScrollBar bar = Bar(keys.bar);
        if (properties.Has(keys.maximum))
            bar.SetRange({bar.Range().minimum, NumberOr(properties, keys.maximum, 0)});
        if (properties.Has(keys.minimum))
            bar.SetRange({NumberOr(properties, keys.minimum, 0), bar.Range().maximum});
        if (properties.Has(keys.position)) bar.SetPosition(NumberOr(properties, keys.position, 0));
    }
}

void ScrollingView::SetContentSize(int width, int height) {
    contentWidth_ = width;
    contentHeight_ = height;
}

// Twice, since a bar that appears or disappears changes the area.
void ScrollingView::Reclamp() {
    for (int pass = 0; pass < 2; ++pass) {
        RECT area = LayoutRectangle();
        Bar(SB_HORZ).SetRange(HorizontalScrollRange(contentWidth_, area.right - area.left));
        area = LayoutRectangle();
        Bar(SB_VERT).SetRange(VerticalScrollRange(contentHeight_, area.bottom - area.top));
    }
}

int ScrollingView::Scroll(int bar, const MessageRecord& record) {
    const ScrollRequest request = RequestOf(record);
    // Setting the position would pull the box back while it is dragged.
    if (request == ScrollRequest::ThumbTrack && !thumbTracking_) return 0;
    const ScrollBar own = Bar(bar);
    const ScrollState before = own.State();
    own.SetPosition(ScrolledViewPosition(before, request, ThumbOf(record), thumbTracking_));
    // The content moves as far as the bar has moved, which stops at the end of its range.
    return before.position - own.Position();
}

// The view receives a scroll-bar control's messages and hands them back to the control's object, which knows
// its steps; a control without an object does not move.
void ScrollingView::RaiseScroll(EventCode code, int bar, MessageRecord& record) {
    const auto control = reinterpret_cast<HWND>(record.lParam);
    if (control == nullptr || control == Handle()) {
        RaiseEvent(code, reinterpret_cast<EventSource>(Handle()), Scroll(bar, record), record);
        return;
    }
    WindowObject* object = ObjectOf(control);
    MessageRecord handedBack = record;
    const std::intptr_t distance = object != nullptr ? object->Dispatch(handedBack) : 0;
    RaiseEvent(code, reinterpret_cast<EventSource>(control), distance, record);
}

LRESULT ScrollingView::OnWmHScroll(MessageRecord& record) {
    RaiseScroll(event::HorizontalScroll, SB_HORZ, record);
    return record.result;
}

LRESULT ScrollingView::OnWmVScroll(MessageRecord& record) {
    RaiseScroll(event::VerticalScroll, SB_VERT, record);
    return record.result;
}

LRESULT ScrollingView::OnHorizontalScroll(EventArguments& arguments) {
    ScrollContent(static_cast<int>(arguments.argument), 0);
    return 0;
}

LRESULT ScrollingView::OnVerticalScroll(EventArguments& arguments) {
    ScrollContent(0, static_cast<int>(arguments.argument));
    return 0;
}

void ScrollingView::ScrollContent(int x, int y) {
    ScrollWindowEx(Handle(), x, y, nullptr, nullptr, nullptr, nullptr,
                   SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
    UpdateWindow(Handle());
}
