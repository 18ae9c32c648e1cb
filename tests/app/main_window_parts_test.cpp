// What a start makes later than its first picture.

#include "tests/app/main_window_test.h"
#include "tests/support/temp_tree.h"

class MainWindowParts : public MainWindowTest {
  protected:
    // The pages that stand, in tab order.
    std::vector<bool> Standing() {
        FindPages();
        std::vector<bool> standing;
        for (const int page : {NamePageIndex, DatePageIndex, SizePageIndex})
            standing.push_back(Page(page) != nullptr);
        return standing;
    }
    [[nodiscard]] HIMAGELIST Images() const {
        return reinterpret_cast<HIMAGELIST>(SendMessageW(List(), LVM_GETIMAGELIST, LVSIL_SMALL, 0));
    }
    // As a click on it does: the control has turned already when it tells.
    void ClickTab(int index) const {
        TabCtrl_SetCurSel(Tab(), index);
        NMHDR header = {Tab(), static_cast<UINT_PTR>(GetDlgCtrlID(Tab())), static_cast<UINT>(TCN_SELCHANGE)};
        SendMessageW(Handle(), WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    }

    const std::vector<bool> first_ = {true, false, false};
    const std::vector<bool> all_ = {true, true, true};
};

TEST_F(MainWindowParts, the_first_picture_has_the_name_page_alone_and_no_icons) {
    OpenFirstPicture();
    EXPECT_EQ(Standing(), first_);
    EXPECT_EQ(ShownPage(), NamePageIndex);
    EXPECT_EQ(Images(), nullptr);
    EXPECT_FALSE(GetUpdateRect(Handle(), nullptr, FALSE)) << "something waits to be painted";
}

TEST_F(MainWindowParts, the_rest_is_made_in_the_first_quiet_moment) {
    OpenFirstPicture();
    ASSERT_TRUE(PumpUntil([&] { return Standing() == all_; }));
    EXPECT_EQ(ShownPage(), NamePageIndex);
    EXPECT_EQ(GetFocus(), Tab());
    ASSERT_NE(Images(), nullptr);
    EXPECT_EQ(ImageList_GetImageCount(Images()), 4);
    EXPECT_GT(Send(SizePageIndex, COMBO_FILE_TYPE, CB_GETCOUNT), 1) << "no registered types";
}

TEST_F(MainWindowParts, the_rest_is_made_once) {
    OpenFirstPicture();
    Window().CompleteParts();
    Window().CompleteParts();
    Command(COMMAND_NEW_CONDITION);
    PumpQueue();
    int dialogs = 0;
    for (HWND next = nullptr; (next = FindWindowExW(Tab(), next, L"#32770", nullptr)) != nullptr;)
        ++dialogs;
    EXPECT_EQ(dialogs, 3);
}

TEST_F(MainWindowParts, no_timer_runs_on_when_the_rest_is_made) {
    OpenFirstPicture();
    ASSERT_TRUE(PumpUntil([&] { return Standing() == all_; }));
    EXPECT_FALSE(KillTimer(Handle(), 1));
}

TEST_F(MainWindowParts, a_tab_that_is_chosen_before_that_shows_its_page) {
    OpenFirstPicture();
    ClickTab(SizePageIndex);
    EXPECT_EQ(Standing(), all_);
    EXPECT_EQ(ShownPage(), SizePageIndex);
    PumpQueue();
    EXPECT_EQ(ShownPage(), SizePageIndex);
}

TEST_F(MainWindowParts, a_search_before_that_finds_and_has_its_icons) {
    TempTree tree;
    tree.AddFile(L"a.txt", "alpha");
    tree.AddFolder(L"sub");
    OpenFirstPicture();
    Standing();
    SetText(NamePageIndex, COMBO_NAME, L"*");
    SetText(NamePageIndex, COMBO_LOCATION, tree.Root());
    Command(COMMAND_FIND);
    EXPECT_EQ(Standing(), all_);
    EXPECT_EQ(RowNames(), (Texts{L"a.txt", L"sub"}));
    ASSERT_NE(Images(), nullptr);
    EXPECT_GE(ImageList_GetImageCount(Images()), 4);
}

TEST_F(MainWindowParts, new_condition_before_that_leaves_the_pages_as_after_a_reset) {
    OpenFirstPicture();
    Command(COMMAND_NEW_CONDITION);
    ASSERT_EQ(Standing(), all_);
    EXPECT_EQ(TextOf(NamePageIndex, COMBO_NAME), L"");
    EXPECT_EQ(Send(DatePageIndex, RADIO_ALL_FILES, BM_GETCHECK), BST_CHECKED);
    EXPECT_EQ(Send(SizePageIndex, COMBO_FILE_TYPE, CB_GETCURSEL), 0);
}

TEST_F(MainWindowParts, a_window_that_closes_before_that_saves_its_settings) {
    OpenFirstPicture();
    FindPages();
    Send(NamePageIndex, CHECK_SUBFOLDERS, BM_SETCHECK, BST_CHECKED);
    SendMessageW(Handle(), WM_CLOSE, 0, 0);
    EXPECT_EQ(world_.TheApplication().Run(), 0);
    Discard();
    OpenFirstPicture();
    FindPages();
    EXPECT_EQ(Send(NamePageIndex, CHECK_SUBFOLDERS, BM_GETCHECK), BST_CHECKED);
}
