#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "bench/benches.h"
#include "bench/comparison.h"
#include "conditions/folder_tree.h"

namespace {

// The tree of the browser on the smaller device's screen.
constexpr int TreeWidth = 230;
constexpr int TreeHeight = 240;

// A folder with those below it, in the order in which the system lists them.
struct Folder {
    std::wstring name;
    std::vector<Folder> below;
};

// The folders below this one, listed by the system's own calls.
std::vector<Folder> ListBarely(const std::wstring& folder) {
    std::vector<Folder> found;
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileExW((folder + L"\\*").c_str(), FindExInfoBasic, &data,
                                           FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE) return found;
    do {
        if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0 || data.cFileName[0] == L'.') continue;
        found.push_back({data.cFileName, ListBarely(folder + L"\\" + data.cFileName)});
    } while (FindNextFileW(search, &data));
    FindClose(search);
    return found;
}

std::size_t Count(const std::vector<Folder>& folders) {
    std::size_t count = folders.size();
    for (const Folder& folder : folders)
        count += Count(folder.below);
    return count;
}

HTREEITEM Insert(HWND tree, HTREEITEM parent, const wchar_t* text) {
    TVINSERTSTRUCTW insertion = {};
    insertion.hParent = parent;
    insertion.hInsertAfter = TVI_FIRST;
    insertion.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insertion.item.pszText = const_cast<wchar_t*>(text);
    insertion.item.iImage = FolderImage;
    insertion.item.iSelectedImage = OpenFolderImage;
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insertion)));
}

void InsertBarely(HWND tree, HTREEITEM parent, const std::vector<Folder>& folders) {
    for (const Folder& folder : folders)
        InsertBarely(tree, Insert(tree, parent, folder.name.c_str()), folder.below);
}

// Empties the tree and has it filled with drawing suspended.
void Refill(HWND tree, const std::function<void(HTREEITEM)>& fill) {
    SendMessageW(tree, WM_SETREDRAW, FALSE, 0);
    SendMessageW(tree, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    const HTREEITEM root = Insert(tree, TVI_ROOT, L"root");
    fill(root);
    SendMessageW(tree, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(tree, nullptr, TRUE);
    SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(root));
    UpdateWindow(tree);
}

std::size_t ItemsOf(HWND tree) {
    return static_cast<std::size_t>(SendMessageW(tree, TVM_GETCOUNT, 0, 0)) - 1;
}

}  // namespace

bool CompareBrowser(const BenchTree& tree, int turns) {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_TREEVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    const HWND view =
        CreateWindowExW(0, WC_TREEVIEWW, L"", WS_POPUP | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES, 0, 0,
                        TreeWidth, TreeHeight, nullptr, nullptr, nullptr, nullptr);
    const std::wstring folder = tree.Folders();
    const auto browse = [&](HTREEITEM root) { FillFolderItem(TreeView(view), root, folder.c_str()); };
    const auto barely = [&](HTREEITEM root) { InsertBarely(view, root, ListBarely(folder)); };

    Refill(view, browse);
    const std::size_t filled = ItemsOf(view);
    const bool same = filled == Count(ListBarely(folder)) && filled > 0;
    if (same) {
        Compare(
            "folder browser of 20,000 / the same items, bare listing", 1.2, turns,
            [&] { return MillisecondsOf([&] { Refill(view, browse); }); },
            [&] { return MillisecondsOf([&] { Refill(view, barely); }); });
    } else {
        std::printf("the browser shows %zu of %zu folders\n", filled, Count(ListBarely(folder)));
    }
    DestroyWindow(view);
    return same;
}
