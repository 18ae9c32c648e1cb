#include "framework/bars.h"

#include "framework/property_set.h"

namespace {

constexpr int RebarId = 12200;
constexpr DWORD RebarStyle = WS_CLIPSIBLINGS | WS_CLIPCHILDREN | RBS_BANDBORDERS | RBS_VARHEIGHT |
                             CCS_NODIVIDER | CCS_NOPARENTALIGN | CCS_TOP;
constexpr int RebarY = 188;
constexpr int RebarHeight = 100;

constexpr int CommandBarId = 12300;
constexpr DWORD CommandBarStyle = WS_CLIPSIBLINGS | WS_CLIPCHILDREN | TBSTYLE_LIST | TBSTYLE_FLAT |
                                  TBSTYLE_TOOLTIPS | CCS_NODIVIDER | CCS_NORESIZE | CCS_TOP;
constexpr int CommandBarWidth = 100;
constexpr int CommandBarHeight = 22;
constexpr int ButtonImageSize = 16;
constexpr UINT BandSpace = 2;

// QUIRK: status-bar-at-248. Right above the menu bar or the rebar on a screen of 240 x 320.
constexpr int StatusBarY = 248;
constexpr int StatusBarYAboveRebar = 224;
constexpr int StatusBarWidth = 240;
constexpr int StatusBarHeight = 20;
// By itself the class would move to the bottom, behind the menu bar.
constexpr DWORD StatusBarStyle = CCS_NORESIZE | CCS_NOPARENTALIGN;

constexpr NativeCode CommandBarCodes[] = {{0, event::RaiseAsCommand}};

static_assert(RebarStyle == 0x6000649 && CommandBarStyle == 0x6001945);

PropertySet BarProperties(int id, DWORD style, int y, LONG width, int height) {
    PropertySet properties;
    properties.Set(property::ControlId, static_cast<PropertyValue>(id));
    properties.Set(property::Style, style);
    properties.Set(property::Y, static_cast<PropertyValue>(y));
    properties.Set(property::Width, static_cast<PropertyValue>(width));
    properties.Set(property::Height, static_cast<PropertyValue>(height));
    return properties;
}

SIZE WindowSize(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return {place.right - place.left, place.bottom - place.top};
}

}  // namespace

bool Bar::TakesPlace() const {
    return (GetWindowLongW(Handle(), GWL_STYLE) & WS_VISIBLE) != 0;
}

CommandBarInRebar::CommandBarInRebar(WindowObject& owner)
    : Bar(owner, ClassName,
          BarProperties(CommandBarId, CommandBarStyle, 0, CommandBarWidth, CommandBarHeight)) {
    SendMessageW(Handle(), TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SendMessageW(Handle(), TB_SETPARENT, reinterpret_cast<WPARAM>(owner.Handle()), 0);
    SendMessageW(Handle(), TB_SETBITMAPSIZE, 0, MAKELPARAM(ButtonImageSize, ButtonImageSize));
}

NativeCodeTable CommandBarInRebar::NativeCodes() const {
    return CommandBarCodes;
}

REBARBANDINFOW CommandBarInRebar::AsBand() const {
    const SIZE size = WindowSize(Handle());
    REBARBANDINFOW band{};
    band.cbSize = sizeof band;
    band.fMask = RBBIM_ID | RBBIM_CHILDSIZE | RBBIM_CHILD | RBBIM_IMAGE | RBBIM_STYLE;
    band.fStyle = RBBS_NOVERT;
    band.hwndChild = Handle();
    band.cxMinChild = static_cast<UINT>(size.cx) + BandSpace;
    band.cyMinChild = static_cast<UINT>(size.cy) + BandSpace;
    band.iImage = -1;
    return band;
}

Rebar::Rebar(WindowObject& owner)
    : Bar(owner, ClassName,
          BarProperties(RebarId, RebarStyle, RebarY, WindowSize(owner.Handle()).cx, RebarHeight)) {}

int Rebar::AddBand(REBARBANDINFOW band) {
    band.wID = static_cast<UINT>(bandCount_);
    if (SendMessageW(Handle(), RB_INSERTBANDW, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&band)) == 0)
        return -1;
    return bandCount_++;
}

void Rebar::Place(bool atTop) {
    isAtTop_ = atTop;
    RECT client{};
    GetClientRect(ParentHandle(), &client);
    const SIZE size = WindowSize(Handle());
    const LONG y = atTop ? 0 : client.bottom - ce::MenuBarHeight - size.cy;
    Move(0, y, size.cx, size.cy);
}

int Rebar::BarHeight() const {
    return static_cast<int>(SendMessageW(Handle(), RB_GETBARHEIGHT, 0, 0));
}

StatusBar::StatusBar(WindowObject& owner, bool aboveRebar)
    : Bar(owner, ClassName,
          BarProperties(0, StatusBarStyle, aboveRebar ? StatusBarYAboveRebar : StatusBarY, StatusBarWidth,
                        StatusBarHeight)) {}

void StatusBar::SetText(const wchar_t* text) {
    SendMessageW(Handle(), SB_SETTEXTW, SBT_NOBORDERS, reinterpret_cast<LPARAM>(text));
}

int StatusBar::BarHeight() const {
    return WindowSize(Handle()).cy;
}
