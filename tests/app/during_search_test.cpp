// Messages that arrive in the middle of a search. The test's own enumeration lists as many files as the
// search will take, and does something to the program when the tenth of them is listed.

#include <functional>

#include "app/product.h"
#include "tests/app/main_window_test.h"
#include "tests/support/answered_boxes.h"
#include "tests/support/replaced_calls.h"

namespace {

constexpr int LastFile = 400;
constexpr int Disturbed = 10;

const HANDLE Listing = reinterpret_cast<HANDLE>(0x77);

int listed = 0;
int listings = 0;
std::function<void()> disturbance;

BOOL NextFile(HANDLE, WIN32_FIND_DATAW* data) {
    if (++listed > LastFile) {
        SetLastError(ERROR_NO_MORE_FILES);
        return FALSE;
    }
    if (listed == Disturbed && disturbance) disturbance();
    // From here on each look at the queue is due, so that what was posted arrives.
    if (listed >= Disturbed && listed < Disturbed + 20) Sleep(15);
    *data = FileEntry(L"file" + std::to_wstring(listed) + L".txt");
    return TRUE;
}

HANDLE FirstFile(const wchar_t*, WIN32_FIND_DATAW* data) {
    ++listings;
    listed = 0;
    return NextFile(Listing, data) ? Listing : INVALID_HANDLE_VALUE;
}

// What happens once the list begins to be cleared.
std::function<void()> inTheClearing;

LRESULT CALLBACK WatchClearing(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    if (message == WM_ENABLE && wParam == FALSE && inTheClearing) {
        inTheClearing();
        inTheClearing = nullptr;
    }
    return DefSubclassProc(list, message, wParam, lParam);
}

}  // namespace

class DuringSearch : public MainWindowTest {
  protected:
    void SetUp() override {
        listings = 0;
        Open();
        SetText(NamePageIndex, COMBO_NAME, L"*");
    }
    void TearDown() override { disturbance = nullptr; }

    // A whole search in which this happens.
    void FindWith(const std::function<void()>& event) {
        disturbance = event;
        PostCommand(COMMAND_FIND);
        PumpQueue();
    }
    // The same in the program's own loop, up to its end.
    int EndIn(const std::function<void()>& event) {
        disturbance = event;
        return RunToTheEnd(COMMAND_FIND);
    }
    static HWND Dialog() { return FindWindowW(L"#32770", L"Finding..."); }
    void ExpectStoppedEarly() const {
        EXPECT_GE(listed, Disturbed);
        EXPECT_LT(listed, LastFile / 2);
    }

  private:
    Replaced<decltype(ce::fileCalls.findFirstFile)> first_{ce::fileCalls.findFirstFile, &FirstFile};
    Replaced<decltype(ce::fileCalls.findNextFile)> next_{ce::fileCalls.findNextFile, &NextFile};
    Replaced<decltype(ce::fileCalls.findClose)> close_{ce::fileCalls.findClose,
                                                       [](HANDLE) -> BOOL { return TRUE; }};
};

TEST_F(DuringSearch, undisturbed_it_finds_every_file_once) {
    FindWith(nullptr);
    EXPECT_EQ(RowCount(), LastFile);
    EXPECT_EQ(listings, 1);
    EXPECT_EQ(Dialog(), nullptr);
}

TEST_F(DuringSearch, abort_keeps_what_was_found_and_selects_the_first_row) {
    FindWith([] { PostMessageW(Dialog(), WM_COMMAND, IDCANCEL, 0); });
    ExpectStoppedEarly();
    EXPECT_GE(RowCount(), Disturbed - 1);
    EXPECT_LT(RowCount(), LastFile / 2);
    EXPECT_TRUE(IsRowSelected(List(), 0));
    EXPECT_EQ(GetFocus(), List());
    EXPECT_EQ(Dialog(), nullptr);
}

TEST_F(DuringSearch, a_second_find_is_dropped) {
    FindWith([this] {
        PostCommand(COMMAND_FIND);
        PostCommand(COMMAND_FIND);
    });
    EXPECT_EQ(listings, 1);
    EXPECT_EQ(RowCount(), LastFile);
}

TEST_F(DuringSearch, other_commands_are_dropped) {
    FindWith([this] {
        for (const int command :
             {COMMAND_LARGE_ICON, COMMAND_CHECK_CASE, COMMAND_NEW_CONDITION, COMMAND_ABOUT, COMMAND_DELETE,
              COMMAND_PROPERTIES, COMMAND_RENAME, COMMAND_OPEN}) {
            PostCommand(command);
        }
    });
    EXPECT_EQ(RowCount(), LastFile);
    EXPECT_EQ(GetWindowLongW(List(), GWL_STYLE) & LVS_TYPEMASK, LVS_REPORT);
    EXPECT_TRUE(IsMarked(COMMAND_CHECK_CASE));
    EXPECT_EQ(TextOf(NamePageIndex, COMBO_NAME), L"*");
}

// F1 on the dialog's button goes up to the main window.
TEST_F(DuringSearch, the_help_key_opens_no_about_box) {
    const AnsweredBoxes boxes{IDOK};
    FindWith([this] {
        HELPINFO help = {};
        help.cbSize = sizeof help;
        SendMessageW(Handle(), WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
    });
    EXPECT_EQ(RowCount(), LastFile);
    for (const SeenBox& box : boxes.Seen())
        EXPECT_EQ(box.caption, L"Finding...");
}

TEST_F(DuringSearch, after_the_search_commands_work_again) {
    FindWith([this] { PostCommand(COMMAND_CHECK_CASE); });
    Command(COMMAND_CHECK_CASE);
    EXPECT_FALSE(IsMarked(COMMAND_CHECK_CASE));
    FindWith(nullptr);
    EXPECT_EQ(listings, 2);
    EXPECT_EQ(RowCount(), LastFile);
}

TEST_F(DuringSearch, rows_arrive_while_it_runs) {
    LRESULT rows = 0;
    FindWith([&] { rows = SendMessageW(List(), LVM_GETITEMCOUNT, 0, 0); });
    EXPECT_EQ(rows, Disturbed - 1);
}

TEST_F(DuringSearch, paints_of_every_window_do_no_harm) {
    FindWith([this] {
        RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
        RedrawWindow(Dialog(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    });
    EXPECT_EQ(RowCount(), LastFile);
}

TEST_F(DuringSearch, the_main_window_takes_no_input_meanwhile) {
    bool enabled = true;
    FindWith([&] { enabled = IsWindowEnabled(Handle()) != FALSE; });
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(IsWindowEnabled(Handle()));
}

TEST_F(DuringSearch, closing_the_window_ends_the_search_and_then_the_program) {
    const HWND main = Handle();
    EXPECT_EQ(EndIn([main] { PostMessageW(main, WM_CLOSE, 0, 0); }), 0);
    ExpectStoppedEarly();
    EXPECT_FALSE(IsWindow(main));
    EXPECT_EQ(Dialog(), nullptr);
}

TEST_F(DuringSearch, closing_in_the_middle_saves_the_settings) {
    const HWND main = Handle();
    EXPECT_EQ(EndIn([main] { PostMessageW(main, WM_CLOSE, 0, 0); }), 0);
    HKEY key = nullptr;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, ProductRegistryKey, 0, KEY_READ, &key), ERROR_SUCCESS);
    RegCloseKey(key);
}

TEST_F(DuringSearch, exit_in_the_middle_ends_the_search_and_the_program) {
    const HWND main = Handle();
    EXPECT_EQ(EndIn([main] { PostMessageW(main, WM_COMMAND, COMMAND_EXIT, 0); }), 0);
    ExpectStoppedEarly();
    EXPECT_FALSE(IsWindow(main));
}

TEST_F(DuringSearch, a_quit_in_the_middle_ends_the_search_and_the_program_with_its_code) {
    EXPECT_EQ(EndIn([] { PostQuitMessage(7); }), 7);
    ExpectStoppedEarly();
    EXPECT_EQ(Dialog(), nullptr);
    EXPECT_TRUE(IsWindow(Handle())) << "a quit destroys no window";
    EXPECT_GE(RowCount(), Disturbed - 1);
}

TEST_F(DuringSearch, a_window_that_is_closed_twice_closes_once) {
    const HWND main = Handle();
    EXPECT_EQ(EndIn([main] {
                  PostMessageW(main, WM_CLOSE, 0, 0);
                  PostMessageW(main, WM_CLOSE, 0, 0);
              }),
              0);
    EXPECT_FALSE(IsWindow(main));
}

TEST_F(DuringSearch, abort_and_close_at_once_end_the_program) {
    const HWND main = Handle();
    EXPECT_EQ(EndIn([main] {
                  PostMessageW(Dialog(), WM_COMMAND, IDCANCEL, 0);
                  PostMessageW(main, WM_CLOSE, 0, 0);
              }),
              0);
    ExpectStoppedEarly();
    EXPECT_FALSE(IsWindow(main));
}

class DuringClearing : public DuringSearch {
  protected:
    // A list that is too long to be cleared at once.
    void SetUp() override {
        DuringSearch::SetUp();
        LVITEMW item = {};
        for (int row = 0; row < 12'000; ++row)
            SendMessageW(List(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        SelectRow(0);
        ASSERT_FALSE(IsGray(COMMAND_OPEN));
        SetWindowSubclass(List(), &WatchClearing, 1, 0);
    }
    void TearDown() override {
        inTheClearing = nullptr;
        DuringSearch::TearDown();
    }
    // The list is empty and nothing was searched.
    void ExpectEmpty() const {
        EXPECT_EQ(listings, 0);
        EXPECT_EQ(RowCount(), 0);
        EXPECT_TRUE(IsGray(COMMAND_OPEN) && IsGray(COMMAND_DELETE));
        EXPECT_TRUE(IsWindowEnabled(List()));
        EXPECT_EQ(GetFocus(), List());
        EXPECT_EQ(Dialog(), nullptr);
    }
};

TEST_F(DuringClearing, undisturbed_a_search_follows_it) {
    FindWith(nullptr);
    EXPECT_EQ(listings, 1);
    EXPECT_EQ(RowCount(), LastFile);
    EXPECT_TRUE(IsRowSelected(List(), 0));
}

TEST_F(DuringClearing, abort_closes_the_dialog_and_leaves_an_empty_list) {
    bool seen = false;
    inTheClearing = [&] {
        seen = Dialog() != nullptr;
        PostMessageW(Dialog(), WM_COMMAND, IDCANCEL, 0);
    };
    FindWith(nullptr);
    EXPECT_TRUE(seen);
    ExpectEmpty();
}

TEST_F(DuringClearing, after_an_abort_nothing_acts_on_the_rows_that_are_left) {
    inTheClearing = [this] {
        PostMessageW(Dialog(), WM_COMMAND, IDCANCEL, 0);
        for (const int command : {COMMAND_FIND, COMMAND_OPEN, COMMAND_DELETE, COMMAND_LARGE_ICON})
            PostCommand(command);
    };
    FindWith(nullptr);
    ExpectEmpty();
    EXPECT_EQ(GetWindowLongW(List(), GWL_STYLE) & LVS_TYPEMASK, LVS_REPORT);
    FindWith(nullptr);
    EXPECT_EQ(RowCount(), LastFile);
}

TEST_F(DuringClearing, a_close_ends_the_program_without_a_search) {
    inTheClearing = [this] { PostMessageW(Handle(), WM_CLOSE, 0, 0); };
    EXPECT_EQ(EndIn(nullptr), 0);
    EXPECT_FALSE(IsWindow(Handle()));
    EXPECT_EQ(listings, 0);
}
