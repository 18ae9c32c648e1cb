// The same thing again and again: what the program holds of memory and of the system is the same before and
// after.

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <functional>

#include "fileops/confirmation_dialog.h"
#include "tests/app/main_window_test.h"
#include "tests/program/program_test.h"
#include "tests/soak/holding.h"
#include "tests/support/answered_boxes.h"
#include "tests/support/deadline.h"
#include "tests/support/running_program.h"
#include "tests/support/temp_tree.h"

namespace {

// What tools/soak asks for, in hundredths of the whole.
int Rounds(int all) {
    wchar_t percent[8] = L"";
    if (GetEnvironmentVariableW(L"QUORIN_SOAK_PERCENT", percent, 8) == 0) return all;
    return std::max(1, all * static_cast<int>(std::wcstol(percent, nullptr, 10)) / 100);
}

constexpr int Searches = 2000;
constexpr int Openings = 500;
constexpr int Lives = 200;

// What the system makes once and keeps comes with the first rounds.
constexpr int RoundsBefore = 12;

// The heap's own blocks come and go by a few; a block a round would be far more.
constexpr long long HeapSlack = 2048;
constexpr long long PrivateSlack = 1 << 20;

}  // namespace

class Soak : public MainWindowTest {
  protected:
    void SetUp() override {
        tree_.AddNumberedFiles(L"files", 200);
        tree_.AddFile(L"a.txt", "text");
        tree_.AddFile(L"b.lnk", "3#\\b\"");
        tree_.AddFolder(L"d");
    }

    void OpenOnFiles(const wchar_t* folder, const wchar_t* name) {
        Open();
        SetText(NamePageIndex, COMBO_LOCATION, folder[0] == L'\0' ? tree_.Root() : tree_.Path(folder));
        SetText(NamePageIndex, COMBO_NAME, name);
        Find();
    }
    void Find() {
        PostCommand(COMMAND_FIND);
        PumpQueue();
    }

    // The same afterwards as before, so many rounds later.
    void ExpectFlat(const char* what, int rounds, const std::function<void(int)>& round) {
        for (int number = 0; number < RoundsBefore; ++number)
            round(number);
        PumpQueue();
        const Holding before = HeldNow();
        for (int number = 0; number < rounds; ++number)
            round(number);
        PumpQueue();
        const Holding after = HeldNow();
        std::printf("%-28s %5d rounds: %s\n", what, rounds, Growth(before, after).c_str());
        std::fflush(stdout);
        EXPECT_LE(after.heapBytes, before.heapBytes + HeapSlack);
        EXPECT_LE(after.privateBytes, before.privateBytes + PrivateSlack);
        EXPECT_LE(after.handles, before.handles);
        EXPECT_LE(after.drawingObjects, before.drawingObjects);
        EXPECT_LE(after.userObjects, before.userObjects);
        EXPECT_LE(after.windows, before.windows);
        EXPECT_EQ(after.mapEntries, before.mapEntries);
    }

    // A dialog that this opens, left with this answer.
    void ExpectFlatDialog(const char* what, int answer, const std::function<void()>& open) {
        ExpectFlat(what, Rounds(Openings), [&](int) {
            const AnsweredBoxes boxes{answer};
            open();
            PumpQueue();
            ASSERT_FALSE(boxes.Seen().empty()) << what;
        });
    }
    void Ask(const Question& question) { static_cast<void>(ConfirmationDialog(&Window(), question).Ask()); }

    TempTree tree_;
};

TEST_F(Soak, searches_leave_nothing_behind) {
    OpenOnFiles(L"files", L"*");
    ASSERT_EQ(RowCount(), 200);
    ExpectFlat("searches, a third aborted", Rounds(Searches), [this](int number) {
        // The dialog of the search is answered as it comes up.
        const auto boxes =
            number % 3 == 0 ? std::make_unique<AnsweredBoxes>(std::initializer_list<int>{IDCANCEL}) : nullptr;
        Find();
    });
}

TEST_F(Soak, the_about_box_leaves_nothing_behind) {
    Open();
    ExpectFlatDialog("About", IDOK, [this] { Command(COMMAND_ABOUT); });
}

TEST_F(Soak, the_folder_browser_leaves_nothing_behind) {
    Open();
    ExpectFlatDialog("Select Folder", IDCANCEL, [this] { Send(NamePageIndex, BUTTON_BROWSE, BM_CLICK); });
}

TEST_F(Soak, the_properties_leave_nothing_behind) {
    OpenOnFiles(L"", L"a.txt");
    ExpectFlatDialog("properties of a file", IDCANCEL, [this] { Command(COMMAND_PROPERTIES); });
    SetText(NamePageIndex, COMBO_NAME, L"b.lnk");
    Find();
    ASSERT_EQ(RowNames(), Texts{L"b.lnk"});
    ExpectFlatDialog("properties of a shortcut", IDCANCEL, [this] { Command(COMMAND_PROPERTIES); });
}

TEST_F(Soak, the_questions_leave_nothing_behind) {
    OpenOnFiles(L"", L"a.txt");
    const std::wstring file = tree_.Path(L"a.txt");
    const std::wstring folder = tree_.Path(L"d");
    const ReplacePaths paths = {file.c_str(), file.c_str()};
    ExpectFlatDialog("delete a file", IDNO, [this] { Command(COMMAND_DELETE); });
    ExpectFlatDialog("delete a folder", IDNO, [&] { Ask(DeleteFolderQuestion(folder.c_str())); });
    ExpectFlatDialog("replace a file", IDNO, [&] { Ask(ReplaceFileQuestion(paths, Answers::YesNo)); });
    ExpectFlatDialog("replace one of many", IDNO,
                     [&] { Ask(ReplaceFileQuestion(paths, Answers::YesAllNoCancel)); });
    ExpectFlatDialog("replace a folder", IDNO, [&] { Ask(ReplaceFolderQuestion(folder.c_str())); });
}

// A file that is moved onto itself in another folder's place fails, which is told twice.
TEST_F(Soak, a_name_that_cannot_be_taken_leaves_nothing_behind) {
    OpenOnFiles(L"", L"a.txt");
    ExpectFlatDialog("a failed renaming", IDOK, [this] {
        Command(COMMAND_RENAME);
        const auto edit = reinterpret_cast<HWND>(SendMessageW(List(), LVM_GETEDITCONTROL, 0, 0));
        SetWindowTextW(edit, L"nowhere\\a.txt");
        SendMessageW(edit, WM_KEYDOWN, VK_RETURN, 1);
    });
}

TEST_F(Soak, file_operations_leave_nothing_behind) {
    Open();
    FileOperation& operation = Window().Operation();
    operation.operation = FileOperationKind::Copy;
    operation.confirm = false;
    ASSERT_TRUE(operation.SetDestination(tree_.Path(L"d").c_str()));
    ExpectFlat("copies", Rounds(Openings), [&](int) {
        operation.ClearSources();
        ASSERT_TRUE(operation.AddSource(tree_.Path(L"a.txt").c_str()));
        operation.RunModal();
    });
}

TEST_F(Soak, a_main_window_leaves_nothing_behind) {
    ExpectFlat("main windows", Rounds(Lives), [this](int) {
        Open();
        Discard();
        PumpQueue();
        // What closing a main window asks for.
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        }
    });
}

TEST_F(Soak, a_program_that_has_ended_leaves_nothing_behind) {
    const auto live = [](int) {
        RunningProgram program;
        ProgramStart start;
        start.path = ProgramPath();
        program.Start(start);
        WaitUntil("the main window",
                  [&] { return program.MainWindow() != nullptr && IsWindowVisible(program.MainWindow()); });
        PostMessageW(program.MainWindow(), WM_CLOSE, 0, 0);
        ASSERT_EQ(program.ExitCode(StepDeadline).value_or(999), 0u);
    };
    ExpectFlat("starts and ends", Rounds(Lives), live);
}
