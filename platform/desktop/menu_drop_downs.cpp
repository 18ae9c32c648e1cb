#include "platform/desktop/menu_drop_downs.h"

#include <commctrl.h>

#include "platform/desktop/system_handles.h"

namespace ce {

namespace {

constexpr LPARAM AltIsDown = 1L << 29;
constexpr LPARAM WasDownBefore = 1L << 30;

// Hook and window procedures are given no word of their own, so what they serve is kept here: the one open
// menu of the thread, the bars whose parents are watched, and the hook that these share.
MenuDropDowns* openMenus = nullptr;
MenuDropDowns* firstWatcher = nullptr;
UniqueHook keyHook;
// Whether another key or a click came while Alt was held: letting go of Alt then asks for no menu. The system
// knows that of keys which reach its default processing, and some never do.
bool altWasUsed = false;

void NoteUseOfAlt(const MSG& message) {
    switch (message.message) {
        case WM_SYSKEYDOWN:
        case WM_KEYDOWN:
            if (message.wParam != VK_MENU)
                altWasUsed = (message.lParam & AltIsDown) != 0;
            else if ((message.lParam & WasDownBefore) == 0)
                altWasUsed = false;
            break;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDOWN:
            altWasUsed = GetKeyState(VK_MENU) < 0;
            break;
        default:
            break;
    }
}

bool HasNestedMenu(HMENU menu) {
    const int items = GetMenuItemCount(menu);
    for (int position = 0; position < items; ++position) {
        if (GetSubMenu(menu, position) != nullptr) return true;
    }
    return false;
}

}  // namespace

void MenuDropDowns::Add(WORD command, int position) {
    HMENU subMenu = menu_ ? GetSubMenu(menu_.Get(), position) : nullptr;
    if (subMenu == nullptr || count_ == MaxMenuBarButtons) return;
    dropDowns_[count_++] = DropDown{command, position, subMenu};
}

// The parent's window procedure is replaced for good, and by the plain means: the system's own chain of
// subclasses would look the chain up anew for every message of the parent, a list's thousands among them.
void MenuDropDowns::Attach(HWND barWindow, HWND toolBarWindow, HWND parentWindow) {
    bar_ = barWindow;
    toolBar_ = toolBarWindow;
    parent_ = parentWindow;
    if (count_ == 0 || GetAncestor(parent_, GA_ROOT) != parent_ || WatcherOf(parent_) != nullptr) return;
    parentProcedure_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(parent_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&WatchParent)));
    if (parentProcedure_ == nullptr) return;
    nextWatcher_ = firstWatcher;
    firstWatcher = this;
    if (!keyHook) keyHook.Reset(SetWindowsHookExW(WH_GETMESSAGE, WatchKeys, nullptr, GetCurrentThreadId()));
}

void MenuDropDowns::Detach() {
    if (openMenus == this) {
        EndMenu();
        openMenus = nullptr;
    }
    if (parentProcedure_ == nullptr) return;
    // Whoever has replaced the procedure since goes on calling this one, which then has no watcher to ask.
    if (GetWindowLongPtrW(parent_, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&WatchParent))
        SetWindowLongPtrW(parent_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(parentProcedure_));
    parentProcedure_ = nullptr;
    MenuDropDowns** link = &firstWatcher;
    while (*link != nullptr && *link != this)
        link = &(*link)->nextWatcher_;
    if (*link != nullptr) *link = nextWatcher_;
    if (firstWatcher == nullptr) keyHook.Reset();
}

MenuDropDowns* MenuDropDowns::WatcherOf(HWND window) {
    MenuDropDowns* watcher = firstWatcher;
    while (watcher != nullptr && watcher->parent_ != window)
        watcher = watcher->nextWatcher_;
    return watcher;
}

HMENU MenuDropDowns::MenuOfCommand(WORD command) const {
    const int index = IndexOfCommand(command);
    return index >= 0 ? dropDowns_[index].menu : nullptr;
}

int MenuDropDowns::IndexOfCommand(WORD command) const {
    for (int index = 0; index < count_; ++index) {
        if (dropDowns_[index].command == command) return index;
    }
    return -1;
}

bool MenuDropDowns::RequestByKey(wchar_t key) {
    if (openMenus != nullptr || count_ == 0 || !IsWindowEnabled(parent_)) return false;
    int index = 0;
    if (key != L'\0') {
        wchar_t texts[MaxMenuBarButtons][MenuBarCaptionCapacity];
        const wchar_t* captions[MaxMenuBarButtons];
        for (int each = 0; each < count_; ++each) {
            texts[each][0] = L'\0';
            GetMenuStringW(menu_.Get(), static_cast<UINT>(dropDowns_[each].position), texts[each],
                           MenuBarCaptionCapacity, MF_BYPOSITION);
            captions[each] = texts[each];
        }
        index = CaptionForKey(captions, count_, key);
    }
    if (index < 0) return false;
    Request(index, true);
    return true;
}

void MenuDropDowns::Request(int index, bool byKeyboard) const {
    // Posted, so that the menu's own loop does not run inside the tool bar's or the message queue's code.
    PostMessageW(bar_, MenuBarOpenDropDown, static_cast<WPARAM>(index), byKeyboard ? 1 : 0);
}

void MenuDropDowns::Run(int first, bool byKeyboard) {
    if (openMenus != nullptr || first < 0 || first >= count_ || !IsWindowEnabled(parent_)) return;
    const HWND window = bar_;
    const UniqueHook menuHook(SetWindowsHookExW(WH_MSGFILTER, WatchOpenMenu, nullptr, GetCurrentThreadId()));
    openMenus = this;
    GetCursorPos(&pointer_);
    GoOnTo(first, byKeyboard);
    while (openMenus == this && next_ >= 0) {
        FollowPointer();
        open_ = next_;
        next_ = -1;
        TrackOpenOne();
        // The bar may have been destroyed while its menu was open: nothing of this object is read then.
        if (!IsWindow(window)) break;
    }
    if (openMenus == this) {
        open_ = -1;
        openMenus = nullptr;
    }
}

// The news of a pointer that moves on while one menu closes and the next opens may be lost.
void MenuDropDowns::FollowPointer() {
    const POINT before = pointer_;
    GetCursorPos(&pointer_);
    if (pointer_.x == before.x && pointer_.y == before.y) return;
    const int hit = DropDownAt(pointer_);
    if (hit < 0) return;
    next_ = hit;
    openedByKeyboard_ = false;
}

void MenuDropDowns::TrackOpenOne() {
    const HWND window = bar_;
    const int index = open_;
    TPMPARAMS around{};
    around.cbSize = sizeof(around);
    around.rcExclude = ButtonOnScreen(index);
    // A menu opens with nothing marked; the keyboard starts at its first item.
    if (openedByKeyboard_) PostMessageW(parent_, WM_KEYDOWN, VK_DOWN, 0);
    Press(index, true);
    TrackPopupMenuEx(dropDowns_[index].menu, TPM_LEFTALIGN | TPM_BOTTOMALIGN | TPM_VERTICAL,
                     around.rcExclude.left, around.rcExclude.top, parent_, &around);
    if (IsWindow(window)) Press(index, false);
}

bool MenuDropDowns::TakeMenuMessage(const MSG& message) {
    switch (message.message) {
        case WM_KEYDOWN:
            if (HasNestedMenu(dropDowns_[open_].menu)) return false;  // left and right move inside it
            if (message.wParam == VK_RIGHT)
                GoOnTo((open_ + 1) % count_, true);
            else if (message.wParam == VK_LEFT)
                GoOnTo((open_ + count_ - 1) % count_, true);
            else
                return false;
            return true;
        case WM_LBUTTONDOWN:
            // A click on the button whose menu is open closes it; the tool bar would open it again.
            if (DropDownAt(message.pt) != open_) return false;
            GoOnTo(-1, false);
            return true;
        case WM_MOUSEMOVE: {
            // The system tells of a pointer that has not moved whenever a window opens or closes under it.
            // That marks no item and changes no menu.
            if (message.pt.x == pointer_.x && message.pt.y == pointer_.y) return true;
            pointer_ = message.pt;
            const int hit = DropDownAt(message.pt);
            if (hit < 0 || hit == open_) return false;
            GoOnTo(hit, false);
            return true;
        }
        default:
            return false;
    }
}

void MenuDropDowns::GoOnTo(int index, bool byKeyboard) {
    next_ = index;
    openedByKeyboard_ = byKeyboard;
    if (open_ >= 0) EndMenu();
}

void MenuDropDowns::Press(int index, bool pressed) const {
    SendMessageW(toolBar_, TB_PRESSBUTTON, dropDowns_[index].command, MAKELPARAM(pressed ? TRUE : FALSE, 0));
}

RECT MenuDropDowns::ButtonOnScreen(int index) const {
    RECT button{};
    SendMessageW(toolBar_, TB_GETRECT, dropDowns_[index].command, reinterpret_cast<LPARAM>(&button));
    MapWindowPoints(toolBar_, HWND_DESKTOP, reinterpret_cast<POINT*>(&button), 2);
    return button;
}

int MenuDropDowns::DropDownAt(POINT onScreen) const {
    for (int index = 0; index < count_; ++index) {
        const RECT button = ButtonOnScreen(index);
        if (PtInRect(&button, onScreen)) return index;
    }
    return -1;
}

LRESULT CALLBACK MenuDropDowns::WatchParent(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    MenuDropDowns* const watcher = WatcherOf(window);
    if (watcher == nullptr) return DefWindowProcW(window, message, wParam, lParam);
    if (message == WM_SYSCOMMAND && (wParam & 0xFFF0) == SC_KEYMENU && lParam != VK_SPACE) {
        if (lParam == 0 && altWasUsed) return 0;
        if (watcher->RequestByKey(static_cast<wchar_t>(lParam))) return 0;
    }
    return CallWindowProcW(watcher->parentProcedure_, window, message, wParam, lParam);
}

// Alt with a letter goes to the window that has the focus, and a control keeps it to itself instead of
// passing it on to the top-level window.
LRESULT CALLBACK MenuDropDowns::WatchKeys(int code, WPARAM removed, LPARAM lParam) {
    auto* message = reinterpret_cast<MSG*>(lParam);
    if (code == HC_ACTION && removed == PM_REMOVE) {
        NoteUseOfAlt(*message);
        if (message->message == WM_SYSCHAR && (message->lParam & AltIsDown) != 0 &&
            message->wParam > VK_SPACE) {
            MenuDropDowns* const watcher = WatcherOf(GetAncestor(message->hwnd, GA_ROOT));
            if (watcher != nullptr && watcher->RequestByKey(static_cast<wchar_t>(message->wParam))) {
                message->message = WM_NULL;
            }
        }
    }
    return CallNextHookEx(nullptr, code, removed, lParam);
}

LRESULT CALLBACK MenuDropDowns::WatchOpenMenu(int code, WPARAM wParam, LPARAM lParam) {
    if (code == MSGF_MENU && openMenus != nullptr &&
        openMenus->TakeMenuMessage(*reinterpret_cast<const MSG*>(lParam))) {
        return 1;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace ce
