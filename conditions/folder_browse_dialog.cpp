#include "conditions/folder_browse_dialog.h"

#include <new>

#include "base/language.h"
#include "conditions/folder_tree.h"
#include "framework/centring.h"
#include "framework/control.h"
#include "framework/dialog_fit.h"
#include "framework/dialog_template.h"
#include "framework/wait_cursor.h"
#include "base/root_name.h"
#include "resources/resource_ids.h"

namespace {

constexpr int ImageSize = 16;
constexpr int TreeIcons[] = {ICON_DEVICE, ICON_FOLDER, ICON_OPEN_FOLDER};

}  // namespace

FolderBrowseDialog::FolderBrowseDialog(WindowObject* parentObject, const wchar_t* captionText)
    : Dialog(parentObject, TemplateProperties(InLanguage(L"EBrowseDialog_E", L"EBrowseDialog_J"))),
      caption(captionText) {
    OnCommand(IDOK, this, &FolderBrowseDialog::OnOk);
}

FolderBrowseDialog::~FolderBrowseDialog() {
    if (folderImages != nullptr) ImageList_Destroy(folderImages);
}

LRESULT FolderBrowseDialog::OnInitDialog(MessageRecord& record) {
    chosenPath.reset();
    SetWindowTextW(Handle(), caption);
    KeepTitleLineFree(Handle());
    folderTree = DialogItem(*this, TREE_FOLDERS);
    WatchTreeKeys();
    LoadImages();
    BuildTree();
    const LRESULT result = Dialog::OnInitDialog(record);
    StretchTree();
    CentreOnMainWindow();
    return result;
}

// The parent is a page, a part of the main window near its top; the system makes the whole window the owner.
void FolderBrowseDialog::CentreOnMainWindow() {
    RECT own{};
    RECT main{};
    GetWindowRect(Handle(), &own);
    const HWND owner = GetWindow(Handle(), GW_OWNER);
    const bool hasOwner = owner != nullptr && GetWindowRect(owner, &main);
    const LONG width = own.right - own.left;
    const LONG height = own.bottom - own.top;
    const POINT corner =
        CentredPosition(width, height, hasOwner ? &main : nullptr, ce::GetSystemMetrics(SM_CXSCREEN),
                        ce::GetSystemMetrics(SM_CYSCREEN));
    MoveWindow(Handle(), corner.x, corner.y, width, height, TRUE);
}

void FolderBrowseDialog::WatchTreeKeys() {
    treeKeys.reset(new (std::nothrow) Control(this, folderTree, WC_TREEVIEWW));
    if (treeKeys == nullptr) return;
    treeKeys->Subclass();
    treeKeys->OnMessage(WM_SYSKEYDOWN, this, &FolderBrowseDialog::OnTreeSystemKey);
}

// Not every system's tree lets through the key that closes a window.
LRESULT FolderBrowseDialog::OnTreeSystemKey(MessageRecord& record) {
    if (record.wParam != VK_F4) return treeKeys->DefaultProcessing(record);
    return DefWindowProcW(folderTree, record.message, record.wParam, record.lParam);
}

// Down to the menu bar, with the margin that the template leaves beside it.
void FolderBrowseDialog::StretchTree() {
    RECT client{};
    RECT tree{};
    GetClientRect(Handle(), &client);
    GetWindowRect(folderTree, &tree);
    MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&tree), 2);
    const LONG bottom = client.bottom - ce::MenuBarHeight - tree.left;
    const LONG right = client.right - tree.left;
    MoveWindow(folderTree, tree.left, tree.top, right - tree.left, bottom - tree.top, TRUE);
}

void FolderBrowseDialog::LoadImages() {
    if (folderImages != nullptr) ImageList_Destroy(folderImages);
    folderImages = ImageList_Create(ImageSize, ImageSize, ILC_COLOR32 | ILC_MASK, 0, 5);
    for (const int id : TreeIcons) {
        const auto icon = static_cast<HICON>(LoadImageW(Globals().instance, MAKEINTRESOURCEW(id), IMAGE_ICON,
                                                        ImageSize, ImageSize, LR_DEFAULTCOLOR));
        ImageList_ReplaceIcon(folderImages, -1, icon);
        if (icon != nullptr) DestroyIcon(icon);
    }
    SendMessageW(folderTree, TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(folderImages));
}

// The whole tree at once, so that it can then be browsed without the file system.
void FolderBrowseDialog::BuildTree() {
    wchar_t rootName[MAX_PATH];
    RootDisplayName(rootName);
    HTREEITEM root = nullptr;
    SendMessageW(folderTree, WM_SETREDRAW, FALSE, 0);
    {
        const WaitCursor waiting;
        root = FillFolderTree(folderTree, rootName);
    }
    SendMessageW(folderTree, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(folderTree, nullptr, TRUE);
    SendMessageW(folderTree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(root));
}

// With nothing selected the dialog stays open.
LRESULT FolderBrowseDialog::OnOk(EventArguments&) {
    const auto selected =
        reinterpret_cast<HTREEITEM>(SendMessageW(folderTree, TVM_GETNEXTITEM, TVGN_CARET, 0));
    if (selected == nullptr) return 0;
    wchar_t path[MAX_PATH];
    if (!PathOfItem(folderTree, selected, path)) return 0;
    chosenPath.reset(new (std::nothrow) wchar_t[MAX_PATH]);
    if (chosenPath == nullptr) return 0;
    std::copy(std::begin(path), std::end(path), chosenPath.get());
    End(ResultOk);
    return 0;
}
