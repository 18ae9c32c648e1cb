#include "platform/desktop/menu_bar.h"

#include <algorithm>

#include "platform/handles.h"

namespace ce {

namespace {

constexpr wchar_t ClassName[] = L"QuorinMenuBar";
constexpr int ImageSize = 16;
// The line along the top edge, above which the window's own area ends.
constexpr int EdgeHeight = 1;
constexpr DWORD ToolBarStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | TBSTYLE_FLAT | TBSTYLE_LIST |
                               TBSTYLE_TOOLTIPS | CCS_NODIVIDER | CCS_NORESIZE | CCS_NOPARENTALIGN;
// All messages of a tool bar lie here, below the bar's own.
constexpr UINT FirstToolBarMessage = WM_USER;
constexpr UINT LastToolBarMessage = WM_USER + 0xFF;

HINSTANCE OwnInstance() {
    return GetModuleHandleW(nullptr);
}

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

HGDIOBJ FontOf(HWND toolBar) {
    return reinterpret_cast<HGDIOBJ>(SendMessageW(toolBar, WM_GETFONT, 0, 0));
}

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

// Gives each button just the width of its caption or picture. By itself the tool bar makes all of them as
// wide as the widest, and three captions with two pictures would not fit a screen of 240 pixels.
void FitMenuBarButtons(HWND toolBar) {
    const WindowContext device(toolBar);
    const SelectedObject font(device.Get(), FontOf(toolBar));
    const auto count = static_cast<WPARAM>(SendMessageW(toolBar, TB_BUTTONCOUNT, 0, 0));
    for (WPARAM index = 0; index < count; ++index) {
        TBBUTTONINFOW info{};
        info.cbSize = sizeof(info);
        info.dwMask = TBIF_BYINDEX | TBIF_SIZE;
        info.cx = static_cast<WORD>(WidthOf(device.Get(), ReadButton(toolBar, index, TBIF_BYINDEX)));
        SendMessageW(toolBar, TB_SETBUTTONINFOW, index, reinterpret_cast<LPARAM>(&info));
    }
}

// The answer to the tool bar's NM_CUSTOMDRAW. Draws a button that has only a caption, beside which the tool
// bar would keep room for a picture; all others are left to the tool bar.
LRESULT DrawMenuBarCaption(HWND toolBar, const NMTBCUSTOMDRAW& request) {
    if (request.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (request.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
    const Button button = ReadButton(toolBar, request.nmcd.dwItemSpec, 0);
    if (button.caption[0] == L'\0' || button.image != I_IMAGENONE) return CDRF_DODEFAULT;
    const SelectedObject font(request.nmcd.hdc, FontOf(toolBar));
    DrawCaption(request.nmcd, button.caption);
    return CDRF_SKIPDEFAULT;
}

}  // namespace

HWND MenuBar::Create(const MenuBarInfo& info, const MenuBarLayout& layout) {
    if (!RegisterOnce()) return nullptr;
    // A group of its own, so that arrow keys in a dialog do not wander from its last group into the bar.
    const HWND window = ::CreateWindowExW(
        0, ClassName, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_GROUP, 0, 0, 0,
        0, info.hwndParent, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(info.nToolBarId)), OwnInstance(),
        nullptr);
    if (window == nullptr) return nullptr;
    MenuBar* const created = Of(window);
    if (created == nullptr || !created->Build(info, layout)) {
        DestroyWindow(window);
        return nullptr;
    }
    return window;
}

bool MenuBar::RegisterOnce() {
    WNDCLASSW known{};
    if (GetClassInfoW(OwnInstance(), ClassName, &known)) return true;
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = Procedure;
    windowClass.cbWndExtra = sizeof(LONG_PTR);  // the MenuBar
    windowClass.hInstance = OwnInstance();
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<ULONG_PTR>(COLOR_BTNFACE + 1));
    windowClass.lpszClassName = ClassName;
    return ::RegisterClassW(&windowClass) != 0;
}

MenuBar* MenuBar::Of(HWND window) {
    return reinterpret_cast<MenuBar*>(GetWindowLongPtrW(window, 0));
}

LRESULT CALLBACK MenuBar::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* created = new MenuBar(window, reinterpret_cast<const CREATESTRUCTW*>(lParam)->hwndParent);
        SetWindowLongPtrW(window, 0, reinterpret_cast<LONG_PTR>(created));
        // A window that cannot keep it is of no use.
        if (Of(window) == nullptr) delete created;
    }
    MenuBar* object = Of(window);
    if (object == nullptr) return DefWindowProcW(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, 0, 0);
        delete object;
        return DefWindowProcW(window, message, wParam, lParam);
    }
    return object->Handle(message, wParam, lParam);
}

LRESULT MenuBar::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE:
            // Both its own and the parent's, which the parent passes on unchanged.
            Place();
            return 0;
        case WM_DESTROY:
            dropDowns_.Detach();
            return 0;
        case WM_PAINT:
            Paint();
            return 0;
        case WM_GETDLGCODE:
            return DLGC_STATIC;
        case WM_COMMAND:
            // Posted: the handler may destroy this bar, or open a dialog that lives for minutes, and the tool
            // bar has not finished with the click.
            PostMessageW(parent_, WM_COMMAND, MAKEWPARAM(LOWORD(wParam), 0), 0);
            return 0;
        case WM_NOTIFY:
            return OnNotify(*reinterpret_cast<NMHDR*>(lParam));
        case MenuBarOpenDropDown:
            dropDowns_.Run(static_cast<int>(wParam), lParam != 0);
            return 0;
        case MenuBarGetMenu:
            return reinterpret_cast<LRESULT>(dropDowns_.WholeMenu());
        case MenuBarGetSubMenu:
            return reinterpret_cast<LRESULT>(dropDowns_.MenuOfCommand(static_cast<WORD>(lParam)));
        case ToolBarSetToolTips:
            KeepToolTips(wParam, lParam);
            return TRUE;
        default:
            if (message >= FirstToolBarMessage && message <= LastToolBarMessage) {
                return ForwardToToolBar(message, wParam, lParam);
            }
            return DefWindowProcW(bar_, message, wParam, lParam);
    }
}

bool MenuBar::Build(const MenuBarInfo& info, const MenuBarLayout& layout) {
    toolBar_ = ::CreateWindowExW(0, TOOLBARCLASSNAMEW, nullptr, ToolBarStyle, 0, 0, 0, 0, bar_, nullptr,
                                 OwnInstance(), nullptr);
    if (toolBar_ == nullptr) return false;
    SendMessageW(toolBar_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SendMessageW(toolBar_, TB_SETBITMAPSIZE, 0, MAKELPARAM(ImageSize, ImageSize));
    if (info.nBmpId != 0 && info.cBmpImages > 0) {
        const TBADDBITMAP images{info.hInstRes, static_cast<UINT_PTR>(info.nBmpId)};
        SendMessageW(toolBar_, TB_ADDBITMAP, static_cast<WPARAM>(info.cBmpImages),
                     reinterpret_cast<LPARAM>(&images));
    }
    if (layout.menuId != 0) dropDowns_.TakeMenu(LoadMenuW(info.hInstRes, MAKEINTRESOURCEW(layout.menuId)));
    for (int index = 0; index < layout.buttonCount; ++index)
        AddButton(info.hInstRes, layout.buttons[index]);
    dropDowns_.Attach(bar_, toolBar_, parent_);
    FitMenuBarButtons(toolBar_);
    Place();
    return true;
}

void MenuBar::AddButton(HINSTANCE instance, const MenuBarResourceButton& description) {
    wchar_t caption[MenuBarCaptionCapacity];
    const int length = description.stringId == MenuBarNoString
                           ? 0
                           : LoadStringW(instance, description.stringId, caption, MenuBarCaptionCapacity);
    TBBUTTON button{};
    button.iBitmap = static_cast<short>(description.image);
    button.idCommand = description.command;
    button.fsState = static_cast<BYTE>(description.state);
    button.fsStyle = static_cast<BYTE>(description.style);
    if (length > 0) button.iString = reinterpret_cast<INT_PTR>(caption);
    SendMessageW(toolBar_, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&button));
    if (description.subMenu != MenuBarNoMenu) dropDowns_.Add(description.command, description.subMenu);
}

LRESULT MenuBar::ForwardToToolBar(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = SendMessageW(toolBar_, message, wParam, lParam);
    if (message == TB_ADDBITMAP || message == TB_LOADIMAGES || message == TB_ADDBUTTONSW) {
        FitMenuBarButtons(toolBar_);
        Place();
    }
    return result;
}

LRESULT MenuBar::OnNotify(NMHDR& header) {
    if (header.code == TBN_DROPDOWN) {
        const auto& dropDown = reinterpret_cast<const NMTOOLBARW&>(header);
        const int index = dropDowns_.IndexOfCommand(static_cast<WORD>(dropDown.iItem));
        if (index >= 0) dropDowns_.Request(index, false);
        return TBDDRET_DEFAULT;
    }
    if (header.code == NM_CUSTOMDRAW)
        return DrawMenuBarCaption(toolBar_, reinterpret_cast<const NMTBCUSTOMDRAW&>(header));
    if (header.code == TTN_GETDISPINFOW) {
        auto& question = reinterpret_cast<NMTTDISPINFOW&>(header);
        const LRESULT index = SendMessageW(toolBar_, TB_COMMANDTOINDEX, header.idFrom, 0);
        if (index >= 0 && index < toolTipCount_ && toolTips_[index] != nullptr) {
            question.lpszText = const_cast<wchar_t*>(toolTips_[index]);
        }
    }
    return 0;
}

void MenuBar::KeepToolTips(WPARAM count, LPARAM texts) {
    toolTipCount_ = texts == 0 ? 0 : static_cast<int>(std::min<WPARAM>(count, MaxMenuBarButtons));
    std::copy_n(reinterpret_cast<const wchar_t* const*>(texts), toolTipCount_, toolTips_);
}

void MenuBar::Paint() {
    const PaintContext paint(bar_);
    RECT area{};
    GetClientRect(bar_, &area);
    area.bottom = EdgeHeight;
    FillRect(paint.Get(), &area, ::GetSysColorBrush(COLOR_BTNSHADOW));
}

void MenuBar::Place() {
    RECT area{};
    GetClientRect(parent_, &area);
    ::SetWindowPos(bar_, nullptr, 0, area.bottom - MenuBarHeight, area.right, MenuBarHeight,
                   SWP_NOZORDER | SWP_NOACTIVATE);
    const int buttonHeight = HIWORD(SendMessageW(toolBar_, TB_GETBUTTONSIZE, 0, 0));
    const int height = std::min(buttonHeight, MenuBarHeight - EdgeHeight);
    const int top = EdgeHeight + (MenuBarHeight - EdgeHeight - height) / 2;
    ::SetWindowPos(toolBar_, nullptr, 0, top, area.right, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace ce
