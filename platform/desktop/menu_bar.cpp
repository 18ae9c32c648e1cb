#include "platform/desktop/menu_bar.h"

#include <algorithm>

#include "platform/desktop/menu_bar_captions.h"

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

}  // namespace

HWND MenuBar::Create(const MenuBarInfo& info, const MenuBarLayout& layout) {
    if (!RegisterOnce()) return nullptr;
    // A group of its own, so that arrow keys in a dialog do not wander from its last group into the bar.
    const HWND window = ::CreateWindowExW(
        0, ClassName, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | WS_GROUP, 0, 0, 0,
        0, info.hwndParent, reinterpret_cast<HMENU>(static_cast<UINT_PTR>(info.nToolBarId)), OwnInstance(),
        nullptr);
    if (window == nullptr) return nullptr;
    if (!Of(window)->Build(info, layout)) {
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
    windowClass.cbWndExtra = sizeof(MenuBar*);
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
    PAINTSTRUCT paint;
    const HDC device = BeginPaint(bar_, &paint);
    RECT area{};
    GetClientRect(bar_, &area);
    area.bottom = EdgeHeight;
    FillRect(device, &area, ::GetSysColorBrush(COLOR_BTNSHADOW));
    EndPaint(bar_, &paint);
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
