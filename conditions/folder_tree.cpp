#include "conditions/folder_tree.h"

#include <cwchar>

#include "base/folder_entries.h"
#include "base/message_pump.h"
#include "base/paths.h"

namespace {

// Fills one tree and lets messages be answered meanwhile.
class TreeFilling {
  public:
    explicit TreeFilling(TreeView treeView) : tree_(treeView), cursor_(SetCursor(nullptr)) {
        SetCursor(cursor_);
        ExpectMessages();
    }

    // False if it was to stop in the middle.
    bool Fill(HTREEITEM item, const wchar_t* folder) {
        FolderEntries entries(folder, L"*.*");
        if (!entries.HasEntry()) return true;
        do {
            if (!MayGoOn()) return false;
            const WIN32_FIND_DATAW& entry = entries.Entry();
            if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0 || IsSkippedName(entry.cFileName))
                continue;
            // QUIRK: folder-tree-is-reversed. Each child is inserted before its siblings.
            const HTREEITEM child = tree_.InsertFirst(item, entry.cFileName, {FolderImage, OpenFolderImage});
            wchar_t path[MAX_PATH];
            // QUIRK: links-are-not-entered. The target is elsewhere in the tree, or the link makes a loop.
            if (!JoinPath(path, folder, entry.cFileName) || ce::IsFolderLink(path, entry)) continue;
            if (!Fill(child, path)) return false;
        } while (entries.MoveOn());
        return true;
    }

  private:
    // A message may end the program, or destroy the tree with its dialog; and the window under the pointer
    // may have chosen another cursor.
    [[nodiscard]] bool MayGoOn() const {
        const PumpOutcome outcome = PumpOneMessage();
        if (outcome != PumpOutcome::NotYet) SetCursor(cursor_);
        return outcome != PumpOutcome::Quit && (outcome != PumpOutcome::Dispatched || tree_.Exists());
    }

    TreeView tree_;
    HCURSOR cursor_;
};

}  // namespace

void FillFolderItem(TreeView tree, HTREEITEM item, const wchar_t* folder) {
    static_cast<void>(TreeFilling(tree).Fill(item, folder));
}

HTREEITEM FillFolderTree(TreeView tree, const wchar_t* rootName) {
    const HTREEITEM root = tree.InsertFirst(TVI_ROOT, rootName, {RootImage, RootImage});
    FillFolderItem(tree, root, L"\\");
    return root;
}

bool PathOfItem(TreeView tree, HTREEITEM item, wchar_t (&path)[MAX_PATH]) {
    const HTREEITEM root = tree.Root();
    if (item == root) {
        std::wcscpy(path, L"\\");
        return true;
    }
    path[0] = L'\0';
    for (; item != nullptr && item != root; item = tree.ParentOf(item)) {
        wchar_t text[MAX_PATH];
        tree.ReadText(item, text);
        const std::size_t added = std::wcslen(text) + 1;
        const std::size_t length = std::wcslen(path);
        if (added + length >= MAX_PATH) return false;
        std::wmemmove(path + added, path, length + 1);
        path[0] = L'\\';
        std::wmemcpy(path + 1, text, added - 1);
    }
    return true;
}
