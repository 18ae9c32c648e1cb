#include "conditions/folder_tree.h"

#include <cwchar>

#include "base/folder_entries.h"
#include "base/paths.h"

namespace {

HTREEITEM InsertItem(HWND tree, HTREEITEM parent, const wchar_t* text, int image, int selectedImage) {
    TVINSERTSTRUCTW insertion{};
    insertion.hParent = parent;
    // QUIRK: folder-tree-is-reversed. Each child is inserted before its siblings.
    insertion.hInsertAfter = TVI_FIRST;
    insertion.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insertion.item.pszText = const_cast<wchar_t*>(text);
    insertion.item.iImage = image;
    insertion.item.iSelectedImage = selectedImage;
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insertion)));
}

HTREEITEM Relative(HWND tree, UINT relation, HTREEITEM item) {
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

void ReadText(HWND tree, HTREEITEM treeItem, wchar_t (&text)[MAX_PATH]) {
    text[0] = L'\0';
    TVITEMW item{};
    item.mask = TVIF_TEXT;
    item.hItem = treeItem;
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

}  // namespace

void FillFolderItem(HWND tree, HTREEITEM item, const wchar_t* folder) {
    FolderEntries entries(folder, L"*.*");
    if (!entries.HasEntry()) return;
    do {
        const WIN32_FIND_DATAW& entry = entries.Entry();
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0 || IsSkippedName(entry.cFileName))
            continue;
        const HTREEITEM child = InsertItem(tree, item, entry.cFileName, FolderImage, OpenFolderImage);
        wchar_t path[MAX_PATH];
        // QUIRK: links-are-not-entered. The target is elsewhere in the tree, or the link makes a loop.
        if (JoinPath(path, folder, entry.cFileName) && !ce::IsFolderLink(path, entry))
            FillFolderItem(tree, child, path);
    } while (entries.MoveOn());
}

HTREEITEM FillFolderTree(HWND tree, const wchar_t* rootName) {
    const HTREEITEM root = InsertItem(tree, TVI_ROOT, rootName, RootImage, RootImage);
    FillFolderItem(tree, root, L"\\");
    return root;
}

bool PathOfItem(HWND tree, HTREEITEM item, wchar_t (&path)[MAX_PATH]) {
    const HTREEITEM root = Relative(tree, TVGN_ROOT, nullptr);
    if (item == root) {
        std::wcscpy(path, L"\\");
        return true;
    }
    path[0] = L'\0';
    for (; item != nullptr && item != root; item = Relative(tree, TVGN_PARENT, item)) {
        wchar_t text[MAX_PATH];
        ReadText(tree, item, text);
        const std::size_t added = std::wcslen(text) + 1;
        const std::size_t length = std::wcslen(path);
        if (added + length >= MAX_PATH) return false;
        std::wmemmove(path + added, path, length + 1);
        path[0] = L'\\';
        std::wmemcpy(path + 1, text, added - 1);
    }
    return true;
}
