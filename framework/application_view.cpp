#include "framework/application_view.h"

#include "app/app_globals.h"
#include "framework/property_keys.h"

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
    : ContainerWindow(parentObject, title, WithViewDefaults(properties)), isMainView(application != nullptr) {
    if (application != nullptr) application->SetMainView(this);
    SetSmallIcon(properties);
    InitialiseControls(properties);
    CreateMenuBar(properties);
    if (properties.Has(property::Accelerators)) {
        accelerators =
            LoadAcceleratorsW(Globals().instance, ResourceName(properties, property::Accelerators));
    }
    OnMessage(WM_SIZE, this, &ApplicationView::OnWmSize);
    OnMessage(WM_HELP, this, &ApplicationView::OnWmHelp);
}

ApplicationView::~ApplicationView() = default;

void ApplicationView::SetSmallIcon(const PropertySet& properties) {
    if (!properties.Has(property::SmallIcon)) return;
    const HANDLE icon = LoadImageW(Globals().instance, ResourceName(properties, property::SmallIcon),
                                   IMAGE_ICON, SmallIconSize, SmallIconSize, LR_DEFAULTCOLOR);
    SendMessageW(Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon));
}

void ApplicationView::CreateMenuBar(const PropertySet& properties) {
    if (!properties.Has(property::MenuBar)) return;
    ce::MenuBarInfo info{};
    info.cbSize = sizeof info;
    info.hwndParent = Handle();
    info.nToolBarId = static_cast<UINT>(properties.Get(property::MenuBar));
    info.hInstRes = Globals().instance;
    if (!ce::SHCreateMenuBar(&info)) return;
    menuBar = std::make_unique<WindowObject>(this, info.hwndMB);
    menu = reinterpret_cast<HMENU>(SendMessageW(info.hwndMB, ce::MenuBarGetMenu, 0, 0));
    menuBarToolBar = std::make_unique<WindowObject>(this, GetWindow(info.hwndMB, GW_CHILD));
}

RECT ApplicationView::LayoutRectangle() const {
    RECT area = ContainerWindow::LayoutRectangle();
    area.bottom -= ce::MenuBarHeight;
    return area;
}

void ApplicationView::Show() {
    ShowWindow(Handle(), isMainView ? Globals().showCommand : SW_SHOWNORMAL);
    UpdateWindow(Handle());
}

bool ApplicationView::PreTranslate(MSG& message) {
    return TranslateAcceleratorW(Handle(), accelerators, &message) != 0;
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

// The children stay where they are: a view is laid out once, when it is made.
LRESULT ApplicationView::OnWmSize(MessageRecord& record) {
    if (menuBar != nullptr) SendMessageW(menuBar->Handle(), record.message, record.wParam, record.lParam);
    return 0;
}
