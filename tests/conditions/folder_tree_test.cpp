// The tree of folders over made listings: order, images, links, and the way back to a path.

#include "conditions/folder_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tests/conditions/tree_reading.h"
#include "tests/search/fake_folders.h"
#include "tests/support/temp_tree.h"
#include "tests/support/test_world.h"

using Names = std::vector<std::wstring>;

namespace {

HWND MakeTree(HWND parent) {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_TREEVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    return CreateWindowExW(0, WC_TREEVIEWW, L"", WS_CHILD, 0, 0, 200, 200, parent, nullptr, nullptr, nullptr);
}

}  // namespace

class FolderTree : public testing::Test {
  protected:
    FolderTree() : tree_(MakeTree(host_.Handle())) {}

    HTREEITEM Fill() { return FillFolderTree(TreeView(tree_), L"My Pocket PC"); }
    // The path of the item found by the names from the root down.
    std::wstring PathTo(const Names& names) {
        wchar_t path[MAX_PATH] = L"";
        EXPECT_TRUE(PathOfItem(TreeView(tree_), ItemAt(tree_, names), path));
        return path;
    }

    TestWorld world_;
    HostWindow host_;
    FakeFolders folders_;
    HWND tree_;
};

TEST_F(FolderTree, has_the_root_with_its_name_alone_at_the_top) {
    folders_.AddFolder(L"\\", L"Windows");
    const HTREEITEM root = Fill();
    EXPECT_EQ(TreeView_GetRoot(tree_), root);
    EXPECT_EQ(TreeView_GetNextSibling(tree_, root), nullptr);
    EXPECT_EQ(TextOfItem(tree_, root), L"My Pocket PC");
}

TEST_F(FolderTree, lists_each_level_in_the_reverse_of_the_systems_order) {
    folders_.AddFolder(L"\\", L"b");
    folders_.AddFolder(L"\\", L"c");
    folders_.AddFolder(L"\\", L"a");
    folders_.AddFolder(L"\\c", L"2");
    folders_.AddFolder(L"\\c", L"1");
    const HTREEITEM root = Fill();
    EXPECT_EQ(ChildrenOf(tree_, root), (Names{L"a", L"c", L"b"}));
    EXPECT_EQ(ChildrenOf(tree_, ItemAt(tree_, {L"c"})), (Names{L"1", L"2"}));
    EXPECT_EQ(ChildrenOf(tree_, ItemAt(tree_, {L"a"})), Names());
}

TEST_F(FolderTree, leaves_files_out) {
    folders_.AddFile(L"\\", L"a.txt");
    folders_.AddFolder(L"\\", L"b");
    folders_.AddFile(L"\\", L"c.txt");
    EXPECT_EQ(ChildrenOf(tree_, Fill()), (Names{L"b"}));
}

TEST_F(FolderTree, shows_hidden_and_system_folders_too) {
    folders_.AddFolder(L"\\", L"hidden", FILE_ATTRIBUTE_HIDDEN);
    folders_.AddFolder(L"\\", L"system", FILE_ATTRIBUTE_SYSTEM);
    EXPECT_EQ(ChildrenOf(tree_, Fill()), (Names{L"system", L"hidden"}));
}

TEST_F(FolderTree, shows_the_device_and_closed_and_open_folders) {
    folders_.AddFolder(L"\\", L"a");
    const HTREEITEM root = Fill();
    EXPECT_EQ(ImagesOf(tree_, root), (std::pair{0, 0}));
    EXPECT_EQ(ImagesOf(tree_, ItemAt(tree_, {L"a"})), (std::pair{1, 2}));
}

TEST_F(FolderTree, asks_for_every_name_in_every_folder_once) {
    folders_.AddFolder(L"\\", L"a");
    folders_.AddFolder(L"\\a", L"b");
    Fill();
    EXPECT_EQ(folders_.listed, (Names{L"\\*.*", L"\\a\\*.*", L"\\a\\b\\*.*"}));
}

TEST_F(FolderTree, goes_on_after_a_folder_that_cannot_be_listed) {
    folders_.AddFolder(L"\\", L"a");
    folders_.AddFolder(L"\\", L"b");
    folders_.AddFolder(L"\\b", L"c");
    folders_.FailListing(L"\\a", ERROR_ACCESS_DENIED);
    EXPECT_EQ(ChildrenOf(tree_, Fill()), (Names{L"b", L"a"}));
    EXPECT_EQ(ChildrenOf(tree_, ItemAt(tree_, {L"b"})), (Names{L"c"}));
}

TEST_F(FolderTree, is_the_root_alone_when_nothing_can_be_listed) {
    folders_.FailListing(L"\\", ERROR_NOT_READY);
    EXPECT_EQ(ChildrenOf(tree_, Fill()), Names());
}

TEST_F(FolderTree, shows_a_link_but_does_not_follow_it) {
    folders_.AddFolder(L"\\", L"loop", FILE_ATTRIBUTE_REPARSE_POINT);
    folders_.AddFolder(L"\\loop", L"inside");
    folders_.SetFolderLink(L"\\loop");
    EXPECT_EQ(ChildrenOf(tree_, Fill()), (Names{L"loop"}));
    EXPECT_EQ(ChildrenOf(tree_, ItemAt(tree_, {L"loop"})), Names());
}

TEST_F(FolderTree, gives_the_root_as_a_backslash) {
    Fill();
    EXPECT_EQ(PathTo({}), L"\\");
}

TEST_F(FolderTree, gives_full_paths_without_a_closing_backslash) {
    folders_.AddFolder(L"\\", L"A");
    folders_.AddFolder(L"\\A", L"B");
    folders_.AddFolder(L"\\A\\B", L"日本 語");
    Fill();
    EXPECT_EQ(PathTo({L"A"}), L"\\A");
    EXPECT_EQ(PathTo({L"A", L"B"}), L"\\A\\B");
    EXPECT_EQ(PathTo({L"A", L"B", L"日本 語"}), L"\\A\\B\\日本 語");
}

TEST_F(FolderTree, gives_a_path_of_259_units_and_refuses_a_longer_one) {
    const std::wstring first(200, L'f');
    const std::wstring fits(57, L'g');
    const std::wstring tooLong(58, L'h');
    folders_.AddFolder(L"\\", first);
    folders_.AddFolder(L"\\" + first, fits);
    folders_.AddFolder(L"\\" + first, tooLong);
    Fill();
    EXPECT_EQ(PathTo({first, fits}), L"\\" + first + L"\\" + fits);
    wchar_t path[MAX_PATH];
    EXPECT_FALSE(PathOfItem(TreeView(tree_), ItemAt(tree_, {first, tooLong}), path));
}

TEST_F(FolderTree, ends_where_paths_become_too_long) {
    std::wstring folder;
    for (int level = 0; level < 200; ++level) {
        folders_.AddFolder(folder.empty() ? L"\\" : folder, L"f");
        folder += L"\\f";
    }
    HTREEITEM item = Fill();
    int depth = 0;
    while ((item = TreeView_GetChild(tree_, item)) != nullptr)
        ++depth;
    // The deepest listing is of 255 units with its "\*.*": 127 levels of "\f", whose children are shown.
    EXPECT_EQ(depth, 128);
}

TEST_F(FolderTree, closes_every_listing_that_it_opens) {
    for (const wchar_t* name : {L"a", L"b", L"c"}) {
        folders_.AddFolder(L"\\", name);
        folders_.AddFolder(std::wstring(L"\\") + name, L"below");
    }
    folders_.FailListing(L"\\b", ERROR_ACCESS_DENIED);
    Fill();
    EXPECT_EQ(folders_.openListings, 0);
}

TEST_F(FolderTree, gives_no_path_where_the_last_unit_of_the_buffer_would_be_lost) {
    // Twice 85 units with their separators are 172; a separator and 86 more make 259.
    const std::wstring name(85, L'n');
    folders_.AddFolder(L"\\", name);
    folders_.AddFolder(L"\\" + name, name);
    for (const std::size_t units : {std::size_t{86}, std::size_t{87}})
        folders_.AddFolder(L"\\" + name + L"\\" + name, std::wstring(units, L'm'));
    Fill();
    EXPECT_EQ(PathTo({name, name, std::wstring(86, L'm')}).size(), 259u);
    wchar_t path[MAX_PATH + 1];
    path[MAX_PATH] = L'#';
    EXPECT_FALSE(PathOfItem(TreeView(tree_), ItemAt(tree_, {name, name, std::wstring(87, L'm')}),
                            reinterpret_cast<wchar_t(&)[MAX_PATH]>(path)));
    EXPECT_EQ(path[MAX_PATH], L'#');
}

namespace {

// A window that does something when it is told to, and keeps how many folders had been listed by then.
class Listener {
  public:
    Listener(HWND parent, const FakeFolders& fakeFolders) : folders_(fakeFolders) {
        window_ =
            CreateWindowExW(0, WC_STATICW, L"", WS_CHILD, 0, 0, 1, 1, parent, nullptr, nullptr, nullptr);
        SetWindowSubclass(window_, &Listen, 1, reinterpret_cast<DWORD_PTR>(this));
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    ~Listener() { DestroyWindow(window_); }

    void Tell(std::function<void()> doing) {
        doing_ = std::move(doing);
        PostMessageW(window_, WM_APP, 0, 0);
    }

    std::optional<std::size_t> listedBefore;

  private:
    static LRESULT CALLBACK Listen(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                   DWORD_PTR object) {
        auto& self = *reinterpret_cast<Listener*>(object);
        if (message != WM_APP) return DefSubclassProc(window, message, wParam, lParam);
        self.listedBefore = self.folders_.listed.size();
        if (self.doing_) self.doing_();
        return 0;
    }

    const FakeFolders& folders_;
    HWND window_;
    std::function<void()> doing_;
};

}  // namespace

class FolderTreeMessages : public FolderTree {
  protected:
    FolderTreeMessages() : listener_(host_.Handle(), folders_) {
        for (const wchar_t* name : {L"a", L"b", L"c"})
            folders_.AddFolder(L"\\", name);
    }
    static constexpr std::size_t AllFolders = 4;

    Listener listener_;
};

TEST_F(FolderTreeMessages, are_answered_while_it_is_built) {
    listener_.Tell({});
    const HTREEITEM root = Fill();
    EXPECT_EQ(listener_.listedBefore, 1U);
    EXPECT_EQ(folders_.listed.size(), AllFolders);
    EXPECT_EQ(ChildrenOf(tree_, root), (Names{L"c", L"b", L"a"}));
}

TEST_F(FolderTreeMessages, end_the_building_when_the_program_ends) {
    listener_.Tell([] { PostQuitMessage(7); });
    Fill();
    EXPECT_LT(folders_.listed.size(), AllFolders);
    EXPECT_EQ(folders_.openListings, 0);
    MSG message;
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7U);
}

TEST_F(FolderTreeMessages, end_the_building_when_the_tree_is_destroyed) {
    listener_.Tell([this] { DestroyWindow(tree_); });
    Fill();
    EXPECT_LT(folders_.listed.size(), AllFolders);
    EXPECT_EQ(folders_.openListings, 0);
}

class FolderTreeOfDisk : public testing::Test {
  protected:
    TestWorld world_;
    HostWindow host_;
    TempTree disk_;
    HWND tree_ = MakeTree(host_.Handle());
};

TEST_F(FolderTreeOfDisk, ends_where_a_link_leads_back_up) {
    disk_.AddFolder(L"a\\b");
    if (!disk_.AddFolderLink(L"a\\b\\loop", L"")) GTEST_SKIP() << "this system makes no links";
    if (!disk_.AddFolderLink(L"side", L"a")) GTEST_SKIP() << "this system makes no links";
    FillFolderItem(TreeView(tree_), nullptr, disk_.Root().c_str());
    Names top;
    for (HTREEITEM item = TreeView_GetRoot(tree_); item != nullptr;
         item = TreeView_GetNextSibling(tree_, item))
        top.push_back(TextOfItem(tree_, item));
    std::sort(top.begin(), top.end());
    EXPECT_EQ(top, (Names{L"a", L"side"}));
    EXPECT_EQ(TreeView_GetCount(tree_), 4u) << "a, side, b and loop, each once";
}

TEST_F(FolderTreeOfDisk, has_no_items_for_the_folder_itself_and_its_parent) {
    disk_.AddFolder(L"one");
    FillFolderItem(TreeView(tree_), nullptr, disk_.Root().c_str());
    EXPECT_EQ(TreeView_GetCount(tree_), 1u);
    EXPECT_EQ(TextOfItem(tree_, TreeView_GetRoot(tree_)), L"one");
}
