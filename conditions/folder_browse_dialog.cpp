#include "conditions/folder_browse_dialog.h"

#include <new>

#include "base/program_context.h"
#include "base/root_name.h"
#include "conditions/folder_tree.h"
#include "framework/application.h"
#include "framework/control.h"
#include "framework/dialog_fit.h"
#include "framework/layout.h"
#include "framework/property_set.h"
#include "resources/resource_ids.h"

namespace {

constexpr int ImageSize = 16;

// The root is the device itself, which looks as its name in RootDisplayName says.
int RootIcon() {
    return Context().pocketPc ? ICON_DEVICE : ICON_HANDHELD;
}

}  // namespace

FolderBrowseDialog::FolderBrowseDialog(WindowObject* parentObject, const wchar_t* captionText)
    : Dialog(parentObject, TemplateProperties(InLanguage(L"EBrowseDialog_E", L"EBrowseDialog_J"))),
      caption_(captionText) {
    OnCommand(IDOK, this, &FolderBrowseDialog::OnOk);
}

LRESULT FolderBrowseDialog::OnInitDialog(MessageRecord& record) {
    chosenPath_.reset();
    SetWindowTextW(Handle(), caption_);
    KeepTitleLineFree(Handle());
    folderTree_ = DialogItem(*this, TREE_FOLDERS);
    WatchTreeKeys();
    LoadImages();
    BuildTree();
    // Gone with the main window, which something closed meanwhile.
    if (Handle() == nullptr) return 0;
    const LRESULT result = Dialog::OnInitDialog(record);
    StretchTree();
    CentreOnMainWindow();
    return result;
}

// The parent is a page, a part of the main window near its top; the system makes the whole window the owner.
void FolderBrowseDialog::CentreOnMainWindow() {
    CentreOn(Handle(), GetWindow(Handle(), GW_OWNER));
}

void FolderBrowseDialog::WatchTreeKeys() {
    treeKeys_.reset(new (std::nothrow) Control(this, folderTree_, WC_TREEVIEWW));
    if (treeKeys_ == nullptr) return;
    treeKeys_->Subclass();
    treeKeys_->OnMessage(WM_SYSKEYDOWN, this, &FolderBrowseDialog::OnTreeSystemKey);
}

// Some systems' tree views do not let through the key that closes a window.
LRESULT FolderBrowseDialog::OnTreeSystemKey(MessageRecord& record) {
    if (record.wParam != VK_F4) return treeKeys_->DefaultProcessing(record);
    return DefWindowProcW(folderTree_, record.message, record.wParam, record.lParam);
}

// Extends the tree down to the menu bar, leaving the same margin that the template leaves at its side.
void FolderBrowseDialog::StretchTree() {
    RECT client{};
    RECT tree{};
    GetClientRect(Handle(), &client);
    GetWindowRect(folderTree_, &tree);
    MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&tree), 2);
    const LONG bottom = client.bottom - ce::MenuBarHeight - tree.left;
    const LONG right = client.right - tree.left;
    MoveWindow(folderTree_, tree.left, tree.top, right - tree.left, bottom - tree.top, TRUE);
}

void FolderBrowseDialog::LoadImages() {
    folderImages_ = ce::CreateIconList(ImageSize, 0, 5);
    for (const int id : {RootIcon(), ICON_FOLDER, ICON_OPEN_FOLDER}) {
        const UniqueIcon icon(static_cast<HICON>(LoadImageW(
            Context().instance, MAKEINTRESOURCEW(id), IMAGE_ICON, ImageSize, ImageSize, LR_DEFAULTCOLOR)));
        ImageList_ReplaceIcon(folderImages_.Get(), -1, icon.Get());
    }
    TreeView(folderTree_).SetImages(folderImages_.Get());
}

// The whole tree is read at once, so that browsing it does not touch the file system. Messages are dispatched
// meanwhile, but the dialog is not shown yet and nothing else is to be worked with.
void FolderBrowseDialog::BuildTree() {
    const HWND owner = GetWindow(Handle(), GW_OWNER);
    const bool ownerTakesInput = EnableWindow(owner, FALSE) == FALSE;
    wchar_t rootName[MAX_PATH];
    RootDisplayName(rootName);
    const TreeView tree(folderTree_);
    HTREEITEM root = nullptr;
    tree.SetDrawing(false);
    {
        const WaitCursor waiting;
        root = FillFolderTree(tree, rootName);
    }
    if (ownerTakesInput) EnableWindow(owner, TRUE);
    if (Handle() == nullptr) return;
    tree.SetDrawing(true);
    InvalidateRect(folderTree_, nullptr, TRUE);
    tree.Expand(root);
}

// With nothing selected the dialog stays open.
LRESULT FolderBrowseDialog::OnOk(EventArguments&) {
    const TreeView tree(folderTree_);
    const HTREEITEM selected = tree.Selected();
    if (selected == nullptr) return 0;
    wchar_t path[MAX_PATH];
    if (!PathOfItem(tree, selected, path)) return 0;
    chosenPath_.reset(new (std::nothrow) wchar_t[MAX_PATH]);
    if (chosenPath_ == nullptr) return 0;
    std::copy(std::begin(path), std::end(path), chosenPath_.get());
    End(ResultOk);
    return 0;
}
