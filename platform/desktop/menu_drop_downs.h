#pragma once

// The drop-down menus of a menu bar: which button opens which sub-menu, the keys that open them, and the way
// from one open menu to the next by arrow keys and pointer. It owns the whole menu.

#include "platform/desktop/menu_bar_layout.h"
#include "platform/handles.h"

namespace ce {

class MenuDropDowns {
  public:
    MenuDropDowns() = default;
    MenuDropDowns(const MenuDropDowns&) = delete;
    MenuDropDowns& operator=(const MenuDropDowns&) = delete;

    // Takes over the menu (which may be null).
    void TakeMenu(HMENU wholeMenu) { menu_.Reset(wholeMenu); }
    // A button that opens the sub-menu at this position; one that does not exist is left out.
    void Add(WORD command, int position);
    // From here on the keys of the parent, when it is a top-level window, open the drop-downs: F10 or Alt the
    // first one, Alt with a letter the one that the letter names.
    void Attach(HWND barWindow, HWND toolBarWindow, HWND parentWindow);
    // To be called before the bar's window is gone.
    void Detach();

    [[nodiscard]] HMENU WholeMenu() const { return menu_.Get(); }
    // The menu behind the button with this command, or null.
    [[nodiscard]] HMENU MenuOfCommand(WORD command) const;
    [[nodiscard]] int IndexOfCommand(WORD command) const;

    // Asks for the drop-down of the key, of the first one when key is 0; false when there is none, one is
    // open already or the parent takes no input. It opens when the bar gets its OpenDropDown message.
    bool RequestByKey(wchar_t key);
    void Request(int index, bool byKeyboard) const;
    // Opens the drop-down and whatever the user goes on to from there; returns when all are closed. The
    // object may be gone by then.
    void Run(int first, bool byKeyboard);

  private:
    struct DropDown {
        WORD command;
        int position;
        HMENU menu;
    };

    static LRESULT CALLBACK WatchParent(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK WatchKeys(int code, WPARAM removed, LPARAM lParam);
    static LRESULT CALLBACK WatchOpenMenu(int code, WPARAM wParam, LPARAM lParam);

    // The one that watches this top-level window, or null.
    static MenuDropDowns* WatcherOf(HWND window);

    void FollowPointer();
    void TrackOpenOne();
    bool TakeMenuMessage(const MSG& message);
    void GoOnTo(int index, bool byKeyboard);
    void Press(int index, bool pressed) const;
    [[nodiscard]] RECT ButtonOnScreen(int index) const;
    [[nodiscard]] int DropDownAt(POINT onScreen) const;

    HWND bar_ = nullptr;
    HWND toolBar_ = nullptr;
    HWND parent_ = nullptr;
    UniqueMenu menu_;
    DropDown dropDowns_[MaxMenuBarButtons]{};
    int count_ = 0;
    // The parent's own, while it is watched; null otherwise.
    WNDPROC parentProcedure_ = nullptr;
    MenuDropDowns* nextWatcher_ = nullptr;
    // While one is open: which, which comes after it (-1: none), and whether its first item is to be marked.
    int open_ = -1;
    int next_ = -1;
    bool openedByKeyboard_ = false;
    POINT pointer_{};  // on the screen, where it was last seen
};

// To a bar: open drop-down number wParam; lParam is 1 when the keyboard asked.
constexpr UINT MenuBarOpenDropDown = WM_APP + 1;

}  // namespace ce
