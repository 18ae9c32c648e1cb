#include "framework/application_view.h"

#include <algorithm>
#include <iterator>

#include "base/program_context.h"
#include "framework/property_set.h"

namespace {

// Lists, trees, bars, tabs, up-downs, progress bars, hot keys, animations, rebars.
constexpr DWORD StandardControlClasses = 0x4FF;

constexpr int SmallIconSize = 16;

PropertySet& WithViewDefaults(PropertySet& properties) {
    properties.Add(property::Style, WS_VISIBLE);
    properties.AddText(property::ClassName, L"ApplicationView");
    for (const PropertyKey place : {property::X, property::Y, property::Width, property::Height}) {
        properties.Add(place, static_cast<PropertyValue>(CW_USEDEFAULT));
    }
    return properties;
}

void InitialiseControls(const PropertySet& properties) {
    INITCOMMONCONTROLSEX classes{};
    classes.dwSize = sizeof classes;
    classes.dwICC =
        StandardControlClasses | static_cast<DWORD>(properties.Get(property::ExtraControlClasses));
    InitCommonControlsEx(&classes);
}

const wchar_t* ResourceName(const PropertySet& properties, PropertyKey key) {
    return MAKEINTRESOURCEW(static_cast<WORD>(properties.Get(key)));
}

}  // namespace

ApplicationView::ApplicationView(WindowObject* parentObject, const wchar_t* title, PropertySet& properties,
                                 Application* application)
    : ScrollingView(parentObject, title, WithViewDefaults(properties)), isMainView_(application != nullptr) {
    if (application != nullptr) application->SetMainView(this);
    SetSmallIcon(properties);
    InitialiseControls(properties);
    CreateMenuBar(properties);
    if (properties.Has(property::HasRebar)) CreateCommandBar();
    if (properties.Has(property::Accelerators)) {
        accelerators_ =
            LoadAcceleratorsW(Context().instance, ResourceName(properties, property::Accelerators));
    }
    if (properties.Has(property::HasStatusBar)) {
        statusBar_ = std::make_unique<StatusBar>(*this, rebar_ != nullptr);
    }
    OnMessage(WM_SIZE, this, &ApplicationView::OnWmSize);
    OnMessage(WM_HELP, this, &ApplicationView::OnWmHelp);
}

ApplicationView::~ApplicationView() = default;

void ApplicationView::SetSmallIcon(const PropertySet& properties) {
    if (!properties.Has(property::SmallIcon)) return;
    smallIcon_.Reset(
        static_cast<HICON>(LoadImageW(Context().instance, ResourceName(properties, property::SmallIcon),
                                      IMAGE_ICON, SmallIconSize, SmallIconSize, LR_DEFAULTCOLOR)));
    SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(smallIcon_.Get()));
}

void ApplicationView::CreateMenuBar(const PropertySet& properties) {
    if (!properties.Has(property::MenuBar)) return;
    ce::MenuBarInfo info{};
    info.cbSize = sizeof info;
    info.hwndParent = Handle();
    info.nToolBarId = static_cast<UINT>(properties.Get(property::MenuBar));
    info.hInstRes = Context().instance;
    if (!ce::SHCreateMenuBar(&info)) return;
    menuBar_ = std::make_unique<WindowObject>(this, info.hwndMB);
    menu_ = reinterpret_cast<HMENU>(SendMessageW(info.hwndMB, ce::MenuBarGetMenu, 0, 0));
    menuBarToolBar_ = std::make_unique<WindowObject>(this, GetWindow(info.hwndMB, GW_CHILD));
}

void ApplicationView::CreateCommandBar() {
    commandBar_ = std::make_unique<CommandBarInRebar>(*this);
    AddBand(commandBar_->AsBand());
}

int ApplicationView::AddBand(const REBARBANDINFOW& band) {
    if (rebar_ == nullptr) rebar_ = std::make_unique<Rebar>(*this);
    const int index = rebar_->AddBand(band);
    rebar_->Place(rebar_->IsAtTop());
    return index;
}

WindowObject* ApplicationView::CommandBar() const {
    if (commandBar_ != nullptr) return commandBar_.get();
    return menuBar_.get();
}

RECT ApplicationView::LayoutRectangle() const {
    RECT area = ScrollingView::LayoutRectangle();
    if (statusBar_ != nullptr && statusBar_->TakesPlace()) area.bottom -= statusBar_->BarHeight();
    if (rebar_ != nullptr && rebar_->TakesPlace()) {
        LONG& edge = rebar_->IsAtTop() ? area.top : area.bottom;
        edge += rebar_->IsAtTop() ? rebar_->BarHeight() : -rebar_->BarHeight();
    }
    // QUIRK: bar-space-without-a-bar
    area.bottom -= ce::MenuBarHeight;
    // A view smaller than its bars, such as a minimised one, has no area left.
    area.bottom = std::max(area.bottom, area.top);
    return area;
}

void ApplicationView::Show() {
    ShowWindow(Handle(), isMainView_ ? Context().showCommand : SW_SHOWNORMAL);
    UpdateWindow(Handle());
}

bool ApplicationView::PreTranslate(MSG& message) {
    return TranslateAcceleratorW(Handle(), accelerators_, &message) != 0;
}

void ApplicationView::EndWithoutMessages() {
    DestroyWindow(Handle());
}

LRESULT ApplicationView::OnWmDestroy(MessageRecord&) {
    PostQuitMessage(0);
    return 0;
}

LRESULT ApplicationView::OnWmHelp(MessageRecord&) {
    ShowAbout();
    UpdateWindow(Handle());
    return 1;
}

// QUIRK: new-size-moves-no-children. A view is laid out once, when it is created.
LRESULT ApplicationView::OnWmSize(MessageRecord& record) {
    for (const WindowObject* bar : {menuBar_.get(), static_cast<WindowObject*>(statusBar_.get())}) {
        if (bar != nullptr) SendMessageW(bar->Handle(), record.message, record.wParam, record.lParam);
    }
    Reclamp();
    return 0;
}

// The bars are children, which scroll along with the window's content: they are moved back.
void ApplicationView::ScrollContent(int x, int y) {
    const WindowObject* const bars[] = {menuBar_.get(), rebar_.get(), statusBar_.get()};
    RECT places[std::size(bars)]{};
    for (std::size_t i = 0; i < std::size(bars); ++i) {
        if (bars[i] == nullptr) continue;
        GetWindowRect(bars[i]->Handle(), &places[i]);
        MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&places[i]), 2);
    }
    ScrollingView::ScrollContent(x, y);
    for (std::size_t i = 0; i < std::size(bars); ++i) {
        if (bars[i] == nullptr) continue;
        SetWindowPos(bars[i]->Handle(), nullptr, places[i].left, places[i].top, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}
