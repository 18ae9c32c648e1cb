#pragma once

// The window behind SHCreateMenuBar: a child at the bottom of its parent with a tool bar as its first child.
// The object lives as long as its window.

#include "platform/ce_shell.h"
#include "platform/desktop/menu_bar_layout.h"
#include "platform/desktop/menu_drop_downs.h"

namespace ce {

class MenuBar {
  public:
    // Makes the bar from a checked layout; null, with no window left behind, when that fails.
    static HWND Create(const MenuBarInfo& info, const MenuBarLayout& layout);

    ~MenuBar() = default;
    MenuBar(const MenuBar&) = delete;
    MenuBar& operator=(const MenuBar&) = delete;

  private:
    MenuBar(HWND window, HWND parentWindow) : bar_(window), parent_(parentWindow) {}

    // Null before WM_NCCREATE and after WM_NCDESTROY.
    static MenuBar* Of(HWND window);
    static bool RegisterOnce();
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    bool Build(const MenuBarInfo& info, const MenuBarLayout& layout);
    void AddButton(HINSTANCE instance, const MenuBarResourceButton& description);
    LRESULT ForwardToToolBar(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT OnNotify(NMHDR& header);
    void KeepToolTips(WPARAM count, LPARAM texts);
    void Paint();
    void Place();

    HWND bar_;
    HWND parent_;
    HWND toolBar_ = nullptr;
    MenuDropDowns dropDowns_;
    const wchar_t* toolTips_[MaxMenuBarButtons]{};
    int toolTipCount_ = 0;
};

}  // namespace ce
