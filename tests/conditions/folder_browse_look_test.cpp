// What the folder browser shows and where.

#include "tests/conditions/folder_browse_test.h"

namespace {

RECT PlaceIn(HWND dialog, int id) {
    RECT place{};
    GetWindowRect(GetDlgItem(dialog, id), &place);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

HICON IconOfResource(int id) {
    return static_cast<HICON>(
        LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(id), IMAGE_ICON, 16, 16, LR_DEFAULTCOLOR));
}

// The icon's pixels on white; the icon goes.
std::vector<COLORREF> PictureOf(HICON icon) {
    const HDC screen = GetDC(nullptr);
    const HDC surface = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, 16, 16);
    const HGDIOBJ before = SelectObject(surface, bitmap);
    PatBlt(surface, 0, 0, 16, 16, WHITENESS);
    DrawIconEx(surface, 0, 0, icon, 16, 16, 0, nullptr, DI_NORMAL);
    std::vector<COLORREF> pixels;
    for (int place = 0; place < 16 * 16; ++place)
        pixels.push_back(GetPixel(surface, place % 16, place / 16));
    SelectObject(surface, before);
    DeleteObject(bitmap);
    DeleteDC(surface);
    ReleaseDC(nullptr, screen);
    DestroyIcon(icon);
    return pixels;
}

// What the tree was told, in order: its drawing switched off (0) and on (1), an item inserted (i).
std::string drawingSwitches;

LRESULT CALLBACK WatchDrawing(int code, WPARAM wParam, LPARAM lParam) {
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && GetDlgCtrlID(sent.hwnd) == TREE_FOLDERS) {
        if (sent.message == WM_SETREDRAW) drawingSwitches += sent.wParam != 0 ? '1' : '0';
        if (sent.message == TVM_INSERTITEMW) drawingSwitches += 'i';
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

TEST_F(FolderBrowse, shows_the_caption_that_it_is_given) {
    FolderBrowseDialog dialog(Host(), L"Elsewhere");
    Run(dialog, [](HWND window) {
        EXPECT_EQ(TextOfWindow(window), L"Elsewhere");
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
}

TEST_F(FolderBrowse, the_tree_leaves_the_same_margin_at_its_sides_and_above_the_menu_bar) {
    FolderBrowseDialog dialog(Host(), L"Select Folder");
    Run(dialog, [](HWND window) {
        RECT client{};
        GetClientRect(window, &client);
        const RECT tree = PlaceIn(window, TREE_FOLDERS);
        EXPECT_GT(tree.left, 0);
        EXPECT_EQ(client.right - tree.right, tree.left);
        EXPECT_EQ(client.bottom - 26 - tree.bottom, tree.left);
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
}

TEST_F(FolderBrowse, the_heading_ends_above_the_title_line) {
    for (const UiLanguage language : {UiLanguage::English, UiLanguage::Japanese}) {
        ContextForStartUp().uiLanguage = language;
        FolderBrowseDialog dialog(Host(), L"Select Folder");
        Run(dialog, [](HWND window) {
            EXPECT_LE(PlaceIn(window, STATIC_TITLE).bottom, 24);
            PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        });
    }
}

TEST_F(FolderBrowse, the_images_are_the_kind_of_device_a_folder_and_an_open_folder) {
    for (const bool pocketPc : {true, false}) {
        ContextForStartUp().pocketPc = pocketPc;
        FolderBrowseDialog dialog(Host(), L"Select Folder");
        Run(dialog, [pocketPc](HWND window) {
            const auto images =
                reinterpret_cast<HIMAGELIST>(SendMessageW(TreeIn(window), TVM_GETIMAGELIST, TVSIL_NORMAL, 0));
            int index = 0;
            for (const int id : {pocketPc ? ICON_DEVICE : ICON_HANDHELD, ICON_FOLDER, ICON_OPEN_FOLDER})
                EXPECT_EQ(PictureOf(IconOfResource(id)),
                          PictureOf(ImageList_GetIcon(images, index++, ILD_NORMAL)))
                    << id;
            PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        });
    }
    EXPECT_NE(PictureOf(IconOfResource(ICON_DEVICE)), PictureOf(IconOfResource(ICON_HANDHELD)));
    EXPECT_NE(PictureOf(IconOfResource(ICON_FOLDER)), PictureOf(IconOfResource(ICON_OPEN_FOLDER)));
}

TEST_F(FolderBrowse, the_tree_draws_nothing_while_it_is_filled_and_again_afterwards) {
    drawingSwitches.clear();
    const HHOOK switches = SetWindowsHookExW(WH_CALLWNDPROC, WatchDrawing, nullptr, GetCurrentThreadId());
    FolderBrowseDialog dialog(Host(), L"Select Folder");
    Run(dialog, [](HWND window) { PostMessageW(window, WM_COMMAND, IDCANCEL, 0); });
    UnhookWindowsHookEx(switches);
    // Off, the root and its three folders, on.
    EXPECT_EQ(drawingSwitches, "0iiii1");
}
