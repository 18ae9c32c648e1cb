#pragma once

// A tree view, an operation a line: it sends the messages and keeps nothing but the window's handle.

#include <span>

#include "platform/windows_ce.h"

class TreeView {
  public:
    // The image of an item, and the one that it has while it is selected.
    struct Images {
        int usual;
        int selected;
    };

    explicit TreeView(HWND window) : window_(window) {}

    // The items that there are, or null.
    [[nodiscard]] HTREEITEM Root() const { return Next(TVGN_ROOT, nullptr); }
    [[nodiscard]] HTREEITEM Selected() const { return Next(TVGN_CARET, nullptr); }
    [[nodiscard]] HTREEITEM ParentOf(HTREEITEM item) const { return Next(TVGN_PARENT, item); }

    // Puts a new item before the others below this one; TVI_ROOT for the first of all.
    HTREEITEM InsertFirst(HTREEITEM parent, const wchar_t* text, Images images) const;
    // What fits of it; empty if there is no such item.
    void ReadText(HTREEITEM item, std::span<wchar_t> text) const;
    void Expand(HTREEITEM item) const { Send(TVM_EXPAND, TVE_EXPAND, item); }

    // The images stay the caller's and outlive the tree.
    void SetImages(HIMAGELIST images) const { Send(TVM_SETIMAGELIST, TVSIL_NORMAL, images); }
    // Drawing is suspended while many items are inserted.
    void SetDrawing(bool on) const { Send(WM_SETREDRAW, on ? TRUE : FALSE); }

  private:
    LRESULT Send(UINT message, WPARAM wParam, const void* argument = nullptr) const {
        return SendMessageW(window_, message, wParam, reinterpret_cast<LPARAM>(argument));
    }
    [[nodiscard]] HTREEITEM Next(UINT relation, HTREEITEM item) const {
        return reinterpret_cast<HTREEITEM>(Send(TVM_GETNEXTITEM, relation, item));
    }

    HWND window_;
};
