#include "framework/tree_view.h"

HTREEITEM TreeView::InsertFirst(HTREEITEM parent, const wchar_t* text, Images images) const {
    TVINSERTSTRUCTW insertion{};
    insertion.hParent = parent;
    insertion.hInsertAfter = TVI_FIRST;
    insertion.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insertion.item.pszText = const_cast<wchar_t*>(text);
    insertion.item.iImage = images.usual;
    insertion.item.iSelectedImage = images.selected;
    return reinterpret_cast<HTREEITEM>(Send(TVM_INSERTITEMW, 0, &insertion));
}

void TreeView::ReadText(HTREEITEM treeItem, std::span<wchar_t> text) const {
    text[0] = L'\0';
    TVITEMW item{};
    item.mask = TVIF_TEXT;
    item.hItem = treeItem;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    Send(TVM_GETITEMW, 0, &item);
}
