#include "tests/conditions/tree_reading.h"

std::wstring TextOfItem(HWND tree, HTREEITEM treeItem) {
    wchar_t text[MAX_PATH] = L"";
    TVITEMW item = {};
    item.mask = TVIF_TEXT;
    item.hItem = treeItem;
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return text;
}

std::vector<std::wstring> ChildrenOf(HWND tree, HTREEITEM item) {
    std::vector<std::wstring> names;
    for (HTREEITEM child = TreeView_GetChild(tree, item); child != nullptr;
         child = TreeView_GetNextSibling(tree, child))
        names.push_back(TextOfItem(tree, child));
    return names;
}

HTREEITEM ItemAt(HWND tree, const std::vector<std::wstring>& names) {
    HTREEITEM item = TreeView_GetRoot(tree);
    for (const std::wstring& name : names) {
        item = TreeView_GetChild(tree, item);
        while (item != nullptr && TextOfItem(tree, item) != name)
            item = TreeView_GetNextSibling(tree, item);
    }
    return item;
}

std::pair<int, int> ImagesOf(HWND tree, HTREEITEM treeItem) {
    TVITEMW item = {};
    item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    item.hItem = treeItem;
    SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return {item.iImage, item.iSelectedImage};
}
