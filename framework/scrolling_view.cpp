#include "framework/scrolling_view.h"

#include "framework/property_set.h"

namespace {

constexpr int DefaultLineStep = 16;
constexpr int DefaultSecondStep = 2;

int NumberOr(const PropertySet& properties, PropertyKey key, int otherwise) {
    PropertyValue value = 0;
    return properties.Lookup(key, value) ? static_cast<int>(value) : otherwise;
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

ScrollingView::ScrollingView(WindowObject* parentObject, const wchar_t* title, PropertySet& properties)
    : ContainerWindow(parentObject, title, properties),
      lineStep_(NumberOr(properties, property::LineStep, DefaultLineStep)),
      secondStep_(NumberOr(properties, property::SecondStep, DefaultSecondStep)),
      thumbTracking_(properties.Get(property::ThumbTracking) != 0) {
    SetUpBars(properties);
    if (properties.Has(property::ViewIcon)) {
        SetClassLongPtrW(Handle(), GCLP_HICON, static_cast<LONG_PTR>(properties.Get(property::ViewIcon)));
    }
    OnMessage(WM_HSCROLL, this, &ScrollingView::OnWmHScroll);
    OnMessage(WM_VSCROLL, this, &ScrollingView::OnWmVScroll);
    const auto self = reinterpret_cast<EventSource>(Handle());
    OnEvent(event::HorizontalScroll, self, this, &ScrollingView::OnHorizontalScroll);
    OnEvent(event::VerticalScroll, self, this, &ScrollingView::OnVerticalScroll);
}

// Each end of a range keeps the other as it is.
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

// Twice, since a bar that appears or goes changes the area.
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
    // A box that is being dragged is not put back.
    if (request == ScrollRequest::ThumbTrack && !thumbTracking_) return 0;
    const ScrollBar own = Bar(bar);
    const ScrollState before = own.State();
    own.SetPosition(ScrolledViewPosition(before, request, ThumbOf(record), thumbTracking_));
    // The content goes as far as the bar went, which ends where its range does.
    return before.position - own.Position();
}

// A scroll-bar control's messages come to the view and are handed back to the control's object, which knows
// its steps; one without an object stays where it is.
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
