#include "platform/desktop/menu_bar_captions.h"

#include "platform/desktop/menu_bar_layout.h"

namespace ce {

namespace {

// Left and right of a caption together.
constexpr int CaptionPadding = 12;
constexpr int PictureButtonWidth = 24;

struct Button {
    wchar_t caption[MenuBarCaptionCapacity];
    int image;
};

// The number is a button's index with TBIF_BYINDEX, else its command.
Button ReadButton(HWND toolBar, WPARAM number, DWORD flags) {
    Button button{};
    TBBUTTONINFOW info{};
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_TEXT | TBIF_IMAGE | flags;
    info.pszText = button.caption;
    info.cchText = MenuBarCaptionCapacity;
    SendMessageW(toolBar, TB_GETBUTTONINFOW, number, reinterpret_cast<LPARAM>(&info));
    button.image = info.iImage;
    return button;
}

// The tool bar's font in a device context, for as long as this lives.
class ToolBarFont {
  public:
    ToolBarFont(HWND toolBar, HDC context) : device_(context) {
        before_ = SelectObject(device_, reinterpret_cast<HGDIOBJ>(SendMessageW(toolBar, WM_GETFONT, 0, 0)));
    }
    ~ToolBarFont() { SelectObject(device_, before_); }
    ToolBarFont(const ToolBarFont&) = delete;
    ToolBarFont& operator=(const ToolBarFont&) = delete;

  private:
    HDC device_;
    HGDIOBJ before_;
};

int WidthOf(HDC device, const Button& button) {
    if (button.caption[0] == L'\0') return PictureButtonWidth;
    SIZE extent{};
    GetTextExtentPoint32W(device, button.caption, lstrlenW(button.caption), &extent);
    return static_cast<int>(extent.cx) + CaptionPadding;
}

void DrawCaption(const NMCUSTOMDRAW& request, const wchar_t* caption) {
    RECT area = request.rc;
    FillRect(request.hdc, &area, ::GetSysColorBrush(COLOR_BTNFACE));
    if ((request.uItemState & CDIS_SELECTED) != 0) {
        DrawEdge(request.hdc, &area, BDR_SUNKENOUTER, BF_RECT);
        OffsetRect(&area, 1, 1);
    } else if ((request.uItemState & CDIS_HOT) != 0) {
        DrawEdge(request.hdc, &area, BDR_RAISEDINNER, BF_RECT);
    }
    const bool disabled = (request.uItemState & CDIS_DISABLED) != 0;
    SetTextColor(request.hdc, ::GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
    SetBkMode(request.hdc, TRANSPARENT);
    DrawTextW(request.hdc, caption, -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

}  // namespace

void FitMenuBarButtons(HWND toolBar) {
    const HDC device = GetDC(toolBar);
    {
        const ToolBarFont font(toolBar, device);
        const auto count = static_cast<WPARAM>(SendMessageW(toolBar, TB_BUTTONCOUNT, 0, 0));
        for (WPARAM index = 0; index < count; ++index) {
            TBBUTTONINFOW info{};
            info.cbSize = sizeof(info);
            info.dwMask = TBIF_BYINDEX | TBIF_SIZE;
            info.cx = static_cast<WORD>(WidthOf(device, ReadButton(toolBar, index, TBIF_BYINDEX)));
            SendMessageW(toolBar, TB_SETBUTTONINFOW, index, reinterpret_cast<LPARAM>(&info));
        }
    }
    ReleaseDC(toolBar, device);
}

LRESULT DrawMenuBarCaption(HWND toolBar, const NMTBCUSTOMDRAW& request) {
    if (request.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (request.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
    const Button button = ReadButton(toolBar, request.nmcd.dwItemSpec, 0);
    if (button.caption[0] == L'\0' || button.image != I_IMAGENONE) return CDRF_DODEFAULT;
    const ToolBarFont font(toolBar, request.nmcd.hdc);
    DrawCaption(request.nmcd, button.caption);
    return CDRF_SKIPDEFAULT;
}

}  // namespace ce
