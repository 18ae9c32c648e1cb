#include <windows.h>

#include <commctrl.h>

#include "tests/support/probe/answers.h"
#include "tests/support/probe/program_windows.h"

namespace probe {
namespace {

void WriteItem(AnswerWriter& writer, HWND tree, HTREEITEM handle, int depth) {
    wchar_t text[MAX_PATH] = L"";
    TVITEMW item = {};
    item.mask = TVIF_TEXT | TVIF_STATE | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    item.hItem = handle;
    item.stateMask = static_cast<UINT>(-1);
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    writer.Number(depth).Number(item.state).Number(item.iImage).Number(item.iSelectedImage).Text(text).End();
}

// The item after this one, parents first; the depth follows.
HTREEITEM Next(HWND tree, HTREEITEM item, int& depth) {
    const HTREEITEM child = TreeView_GetChild(tree, item);
    if (child != nullptr) {
        ++depth;
        return child;
    }
    while (item != nullptr) {
        const HTREEITEM sibling = TreeView_GetNextSibling(tree, item);
        if (sibling != nullptr) return sibling;
        item = TreeView_GetParent(tree, item);
        --depth;
    }
    return nullptr;
}

}  // namespace

void AnswerTree(AnswerWriter& writer) {
    const HWND tree = BrowserTree();
    if (tree == nullptr) return;
    int depth = 0;
    for (HTREEITEM item = TreeView_GetRoot(tree); item != nullptr; item = Next(tree, item, depth))
        WriteItem(writer, tree, item, depth);
}

void SelectTreeItem(int place) {
    const HWND tree = BrowserTree();
    if (tree == nullptr) return;
    int depth = 0;
    HTREEITEM item = TreeView_GetRoot(tree);
    for (; item != nullptr && place > 0; --place)
        item = Next(tree, item, depth);
    TreeView_SelectItem(tree, item);
}

}  // namespace probe
