// The folder browser from its real template, and the name page's button that opens it.

#include "tests/conditions/folder_browse_test.h"

#include "conditions/name_page.h"
#include "tests/conditions/tree_reading.h"

namespace {

void PostOk(HWND dialog) {
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
}

void Choose(HWND dialog, const Names& names) {
    TreeView_SelectItem(TreeIn(dialog), ItemAt(TreeIn(dialog), names));
    PostOk(dialog);
}

}  // namespace

TEST_F(FolderBrowse, shows_the_whole_tree_with_the_root_open_and_drawing_on) {
    FolderBrowseDialog dialog(Host(), L"Select Folder");
    Run(dialog, [](HWND window) {
        EXPECT_EQ(TextOfWindow(window), L"Select Folder");
        EXPECT_EQ(TextOfWindow(GetDlgItem(window, STATIC_TITLE)), L"Browse folder");
        const HWND tree = TreeIn(window);
        EXPECT_EQ(ChildrenOf(tree, ItemAt(tree, {})), (Names{L"A", L"My Documents"}));
        EXPECT_EQ(ChildrenOf(tree, ItemAt(tree, {L"A"})), (Names{L"B"}));
        EXPECT_NE(TreeView_GetItemState(tree, ItemAt(tree, {}), TVIS_EXPANDED) & TVIS_EXPANDED, 0u);
        const auto images =
            reinterpret_cast<HIMAGELIST>(SendMessageW(tree, TVM_GETIMAGELIST, TVSIL_NORMAL, 0));
        EXPECT_EQ(ImageList_GetImageCount(images), 3);
        int width = 0;
        int height = 0;
        EXPECT_TRUE(ImageList_GetIconSize(images, &width, &height));
        EXPECT_EQ(width, 16);
        EXPECT_EQ(height, 16);
        EXPECT_TRUE(IsWindowVisible(tree) || (GetWindowLongW(tree, GWL_STYLE) & WS_VISIBLE) != 0);
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
}

TEST_F(FolderBrowse, is_japanese_on_a_japanese_surface) {
    UseJapanese();
    FolderBrowseDialog dialog(Host(), L"ﾌｫﾙﾀﾞ選択");
    Run(dialog, [](HWND window) {
        EXPECT_EQ(TextOfWindow(window), L"ﾌｫﾙﾀﾞ選択");
        EXPECT_EQ(TextOfWindow(GetDlgItem(window, STATIC_TITLE)), L"ﾌｫﾙﾀﾞの参照");
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
}

TEST_F(FolderBrowse, returns_a_backslash_for_the_root) {
    FolderBrowseDialog dialog(Host(), L"Select Folder");
    EXPECT_EQ(Run(dialog, [](HWND window) { Choose(window, {}); }), 1);
    EXPECT_STREQ(dialog.ChosenPath(), L"\\");
}

TEST_F(FolderBrowse, returns_the_path_of_a_folder_two_levels_down) {
    FolderBrowseDialog dialog(Host(), L"Select Folder");
    EXPECT_EQ(Run(dialog, [](HWND window) { Choose(window, {L"A", L"B"}); }), 1);
    EXPECT_STREQ(dialog.ChosenPath(), L"\\A\\B");
}

TEST_F(FolderBrowse, stays_open_on_ok_without_a_selection) {
    FolderBrowseDialog dialog(Host(), L"Select Folder");
    bool stillOpen = false;
    const INT_PTR result = Run(dialog, [&](HWND window) {
        TreeView_SelectItem(TreeIn(window), nullptr);
        SendMessageW(window, WM_COMMAND, IDOK, 0);
        stillOpen = dialog.ChosenPath() == nullptr && IsWindow(window);
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_TRUE(stillOpen);
    EXPECT_EQ(result, 2);
    EXPECT_EQ(dialog.ChosenPath(), nullptr);
}

TEST_F(FolderBrowse, forgets_the_last_choice_when_it_is_cancelled) {
    FolderBrowseDialog dialog(Host(), L"Select Folder");
    ASSERT_EQ(Run(dialog, [](HWND window) { Choose(window, {L"A"}); }), 1);
    EXPECT_EQ(Run(dialog, [](HWND window) { PostMessageW(window, WM_COMMAND, IDCANCEL, 0); }), 2);
    EXPECT_EQ(dialog.ChosenPath(), nullptr);
}

TEST_F(FolderBrowse, is_cancelled_by_escape_and_by_its_close_box) {
    FolderBrowseDialog dialog(Host(), L"Select Folder");
    EXPECT_EQ(Run(dialog, [](HWND window) { PostMessageW(TreeIn(window), WM_KEYDOWN, VK_ESCAPE, 1); }), 2);
    EXPECT_EQ(Run(dialog, [](HWND window) { PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0); }), 2);
}

TEST_F(FolderBrowse, is_closed_by_enter_with_what_is_selected) {
    FolderBrowseDialog dialog(Host(), L"Select Folder");
    const INT_PTR result = Run(dialog, [](HWND window) {
        TreeView_SelectItem(TreeIn(window), ItemAt(TreeIn(window), {L"My Documents"}));
        PostMessageW(TreeIn(window), WM_KEYDOWN, VK_RETURN, 1);
    });
    EXPECT_EQ(result, 1);
    EXPECT_STREQ(dialog.ChosenPath(), L"\\My Documents");
}

class BrowseButton : public FolderBrowse {
  protected:
    void OpenPage() {
        page_ = std::make_unique<NamePage>(Host(), HostHandle());
        Open(*page_);
        SetText(COMBO_LOCATION, L"\\before");
    }

    std::unique_ptr<NamePage> page_;
};

TEST_F(BrowseButton, puts_the_chosen_folder_into_the_location_and_its_history) {
    OpenPage();
    std::wstring caption;
    nextDoing = [&](HWND window) {
        caption = TextOfWindow(window);
        Choose(window, {L"A", L"B"});
    };
    Click(BUTTON_BROWSE);
    EXPECT_EQ(caption, L"Select Folder");
    EXPECT_EQ(TextOf(COMBO_LOCATION), L"\\A\\B");
    EXPECT_EQ(EntriesOf(COMBO_LOCATION), (Names{L"\\A\\B"}));
}

TEST_F(BrowseButton, brings_the_browser_to_the_middle_of_the_main_window) {
    const Replaced<int (*)(int)> screen(ce::systemCalls.getSystemMetrics, [](int index) {
        return index == SM_CXSCREEN ? 800 : index == SM_CYSCREEN ? 600 : GetSystemMetrics(index);
    });
    MoveWindow(HostHandle(), 210, 40, 360, 500, TRUE);
    OpenPage();
    RECT place = {};
    nextDoing = [&](HWND window) {
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        GetWindowRect(window, &place);
    };
    Click(BUTTON_BROWSE);
    EXPECT_NEAR((place.left + place.right) / 2, 390, 1);
    EXPECT_NEAR((place.top + place.bottom) / 2, 290, 1);
}

TEST_F(BrowseButton, has_a_japanese_caption_on_a_japanese_surface) {
    UseJapanese();
    OpenPage();
    std::wstring caption;
    nextDoing = [&](HWND window) {
        caption = TextOfWindow(window);
        Choose(window, {});
    };
    Click(BUTTON_BROWSE);
    EXPECT_EQ(caption, L"ﾌｫﾙﾀﾞ選択");
    EXPECT_EQ(TextOf(COMBO_LOCATION), L"\\");
}

TEST_F(BrowseButton, leaves_the_location_when_the_browser_is_cancelled) {
    OpenPage();
    bool cameUp = false;
    nextDoing = [&](HWND window) {
        cameUp = true;
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    };
    Click(BUTTON_BROWSE);
    EXPECT_TRUE(cameUp);
    EXPECT_EQ(TextOf(COMBO_LOCATION), L"\\before");
    EXPECT_EQ(EntriesOf(COMBO_LOCATION), Names());
}

TEST_F(BrowseButton, takes_over_a_path_that_just_fits) {
    const std::wstring first(200, L'f');
    const std::wstring second(57, L'g');
    folders_.AddFolder(L"\\", first);
    folders_.AddFolder(L"\\" + first, second);
    OpenPage();
    nextDoing = [&](HWND window) { Choose(window, {first, second}); };
    Click(BUTTON_BROWSE);
    const std::wstring path = L"\\" + first + L"\\" + second;
    ASSERT_EQ(path.size(), 259u);
    EXPECT_EQ(TextOf(COMBO_LOCATION), path);
    EXPECT_EQ(EntriesOf(COMBO_LOCATION), Names{path});
}

TEST_F(BrowseButton, leaves_the_browser_open_on_a_folder_whose_path_does_not_fit) {
    const std::wstring first(200, L'f');
    const std::wstring second(58, L'g');
    folders_.AddFolder(L"\\", first);
    folders_.AddFolder(L"\\" + first, second);
    OpenPage();
    bool stillOpen = false;
    nextDoing = [&](HWND window) {
        TreeView_SelectItem(TreeIn(window), ItemAt(TreeIn(window), {first, second}));
        SendMessageW(window, WM_COMMAND, IDOK, 0);
        stillOpen = IsWindow(window) && IsWindowEnabled(window);
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    };
    Click(BUTTON_BROWSE);
    EXPECT_TRUE(stillOpen);
    EXPECT_EQ(TextOf(COMBO_LOCATION), L"\\before");
}

TEST_F(BrowseButton, adds_the_chosen_folder_by_the_rule_of_the_history) {
    OpenPage();
    for (const Names& choice : {Names{L"A", L"B"}, Names{L"My Documents"}, Names{L"A"}}) {
        nextDoing = [&](HWND window) { Choose(window, choice); };
        Click(BUTTON_BROWSE);
    }
    // \A removes \A\B, which begins with it.
    EXPECT_EQ(EntriesOf(COMBO_LOCATION), (Names{L"\\A", L"\\My Documents"}));
}

TEST_F(FolderBrowse, asks_for_patience_while_it_builds_its_tree) {
    static std::vector<HCURSOR> cursors;
    static decltype(ce::FileCalls::findFirstFile) listing;
    cursors.clear();
    const Replaced<decltype(ce::FileCalls::findFirstFile)> watched(
        ce::fileCalls.findFirstFile, [](const wchar_t* pattern, WIN32_FIND_DATAW* data) {
            cursors.push_back(GetCursor());
            return listing(pattern, data);
        });
    listing = watched.Original();
    FolderBrowseDialog dialog(Host(), L"Select Folder");
    HCURSOR afterwards = nullptr;
    Run(dialog, [&](HWND window) {
        afterwards = GetCursor();
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_EQ(cursors, std::vector<HCURSOR>(4, LoadCursorW(nullptr, IDC_WAIT)));
    EXPECT_EQ(afterwards, LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(FolderBrowse, ends_without_a_choice_when_its_window_is_destroyed_while_it_builds_its_tree) {
    static FolderBrowseDialog* building;
    static decltype(ce::FileCalls::findFirstFile) listing;
    const Replaced<decltype(ce::FileCalls::findFirstFile)> destroying(
        ce::fileCalls.findFirstFile, [](const wchar_t* pattern, WIN32_FIND_DATAW* data) {
            if (building->Handle() != nullptr) DestroyWindow(building->Handle());
            return listing(pattern, data);
        });
    listing = destroying.Original();
    FolderBrowseDialog dialog(Host(), L"Select Folder");
    building = &dialog;
    EXPECT_NE(dialog.RunModal(), Dialog::ResultOk);
    EXPECT_EQ(dialog.Handle(), nullptr);
    EXPECT_EQ(dialog.ChosenPath(), nullptr);
    EXPECT_TRUE(IsWindowEnabled(GetAncestor(Host()->Handle(), GA_ROOT)));
}

TEST_F(FolderBrowse, names_its_root_after_the_kind_of_device) {
    for (const bool pocketPc : {true, false}) {
        ContextForStartUp().pocketPc = pocketPc;
        FolderBrowseDialog dialog(Host(), L"Select Folder");
        Run(dialog, [&](HWND window) {
            EXPECT_EQ(TextOfItem(TreeIn(window), ItemAt(TreeIn(window), {})),
                      pocketPc ? L"My Pocket PC" : L"My Handheld PC");
            PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        });
    }
}

TEST_F(FolderBrowse, shows_the_icon_of_its_owner_in_its_caption) {
    const auto icon = reinterpret_cast<LPARAM>(LoadIconW(nullptr, IDI_QUESTION));
    SendMessageW(HostHandle(), WM_SETICON, ICON_SMALL, icon);
    FolderBrowseDialog dialog(Host(), L"Select Folder");
    Run(dialog, [&](HWND window) {
        EXPECT_EQ(SendMessageW(window, WM_GETICON, ICON_SMALL, 0), icon);
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
}
