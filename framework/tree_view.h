#pragma once

// What a tree view can be asked to do, one line each. It holds the window's handle and no state.

#include <span>

#include "platform/windows_ce.h"

class TreeView {
  public:
    // The image of an item, and its image while it is selected.
    struct Images {
        int usual;
        int selected;
    };

    explicit TreeView(HWND window) : window_(window) {}

    // False once the window has been destroyed.
    [[nodiscard]] bool Exists() const { return IsWindow(window_) != FALSE; }

    // Null if there is no such item.
    [[nodiscard]] HTREEITEM Root() const { return Next(TVGN_ROOT, nullptr); }
    [[nodiscard]] HTREEITEM Selected() const { return Next(TVGN_CARET, nullptr); }
    [[nodiscard]] HTREEITEM ParentOf(HTREEITEM item) const { return Next(TVGN_PARENT, item); }

    // Inserts a new item as the parent's first child; TVI_ROOT is the parent of the root.
    HTREEITEM InsertFirst(HTREEITEM parent, const wchar_t* text, Images images) const;
    // Reads as much as fits; leaves an empty text if there is no such item.
    void ReadText(HTREEITEM item, std::span<wchar_t> text) const;
    void Expand(HTREEITEM item) const { Send(TVM_EXPAND, TVE_EXPAND, item); }

    // The caller keeps the images, which must outlive the tree.
    void SetImages(HIMAGELIST images) const { Send(TVM_SETIMAGELIST, TVSIL_NORMAL, images); }
    // Suspend drawing while inserting many items.
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
