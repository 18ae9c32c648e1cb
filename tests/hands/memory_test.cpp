// Memory that gives out: every piece that the program asks for, from its start to the end of a search and in
// each command, is refused once. The program goes on, and closes with its settings saved.

#include <commctrl.h>

#include <functional>
#include <vector>

#include "resources/resource_ids.h"
#include "tests/hands/refusing_program.h"
#include "tests/program/program_test.h"
#include "tests/support/user_input.h"

namespace {

constexpr wchar_t ProductKey[] = L"Software\\QuorinSoft\\QuorinSearch";

// In each run every piece fails whose number leaves one remainder: together the runs refuse all of them.
constexpr LONG Runs = 60;
// Each of the four worlds has a quarter of the runs.
constexpr LONG WorldCount = 4;

constexpr DWORD ExitWithoutWindow = 2;

LONG FirstRunOfWorld() {
    const LONG language = World().japaneseSystem ? 2 : 0;
    return language + (World().screenWidth > World().screenHeight ? 1 : 0);
}

bool AreSettingsSaved() {
    DWORD number = 0;
    DWORD size = sizeof number;
    return RegGetValueW(HKEY_CURRENT_USER, ProductKey, L"Sub Folder", RRF_RT_REG_DWORD, nullptr, &number,
                        &size) == ERROR_SUCCESS;
}

}  // namespace

class MemoryByHand : public testing::Test {
  protected:
    MemoryByHand() : tree(L"QuorinMemory"), drive(tree.Root()) {
        tree.AddFile(L"alpha.txt");
        tree.AddFile(L"beta.log");
        tree.AddFile(L"gamma\\alpha too.txt");
    }

    void ExpectOrderlyEnd() {
        const bool hasNamePage = program.PageWith(CHECK_SUBFOLDERS) != nullptr;
        EXPECT_EQ(program.Close(), 0u);
        EXPECT_EQ(AreSettingsSaved(), hasNamePage);
    }

    [[nodiscard]] LRESULT RowCount() const {
        return SendMessageW(program.Child(WC_LISTVIEWW), LVM_GETITEMCOUNT, 0, 0);
    }

    [[nodiscard]] bool IsAnythingOpen() const {
        const HWND list = program.Child(WC_LISTVIEWW);
        return program.OpenDialog() != nullptr || FindWindowW(L"#32768", nullptr) != nullptr ||
               FindWindowExW(list, nullptr, WC_EDITW, nullptr) != nullptr;
    }

    // Esc until nothing is open.
    void Dismiss() {
        program.WaitForQueue();
        WaitUntil("the program to wait for commands", [this] {
            if (!IsAnythingOpen()) return IsWindowEnabled(program.Window()) != FALSE;
            PressKey(VK_ESCAPE);
            static_cast<void>(HoldsWithin(LongestClosing, [this] { return !IsAnythingOpen(); }));
            return false;
        });
        program.WaitForQueue();
    }

    void Post(UINT command) { PostMessageW(program.Window(), WM_COMMAND, command, 0); }

    struct Command {
        const char* name;
        std::function<void()> act;
    };
    // Each opens something.
    std::vector<Command> Commands() {
        return {{"delete", [this] { Post(COMMAND_DELETE); }},
                {"rename", [this] { Post(COMMAND_RENAME); }},
                {"properties", [this] { Post(COMMAND_PROPERTIES); }},
                {"about", [this] { Post(COMMAND_ABOUT); }},
                {"browse", [this] { PostMessageW(program.Control(BUTTON_BROWSE), BM_CLICK, 0, 0); }}};
    }

    static constexpr DWORD LongestClosing = 300;

    DeviceTree tree;
    DeviceDrive drive;
    RefusingProgram program;
};

TEST_F(MemoryByHand, whatever_piece_is_refused_at_a_start_or_in_a_search_the_program_goes_on) {
    int runsWithRows = 0;
    int runsWithoutRows = 0;
    for (LONG remainder = FirstRunOfWorld(); remainder < Runs; remainder += WorldCount) {
        SCOPED_TRACE(testing::Message() << "every piece " << remainder << " of " << Runs);
        PrepareRegistry();
        program.Refuse(0);
        program.RefuseMemory(Runs, remainder);
        program.Start(drive.Root());
        if (!program.IsRunning()) {
            EXPECT_TRUE(program.HasComplained());
            EXPECT_EQ(program.ExitCode(), ExitWithoutWindow);
            continue;
        }
        program.Run(COMMAND_FIND);
        EXPECT_GT(program.PiecesAsked(), Runs);
        program.RefuseMemory(0);
        program.Run(COMMAND_FIND);
        ASSERT_TRUE(program.IsRunning());
        // A piece may be what the search itself hangs on; most are not.
        ++(RowCount() > 0 ? runsWithRows : runsWithoutRows);
        ExpectOrderlyEnd();
    }
    EXPECT_GT(runsWithRows, 2 * runsWithoutRows);
}

TEST_F(MemoryByHand, whatever_piece_is_refused_in_a_command_the_program_goes_on) {
    PrepareRegistry();
    program.Refuse(0);
    program.RefuseMemory(0);
    program.Start(drive.Root());
    program.Run(COMMAND_FIND);
    const LRESULT rows = RowCount();
    ASSERT_GT(rows, 0);
    constexpr LONG Divisor = 7;
    for (const auto& [name, act] : Commands()) {
        for (LONG remainder = 0; remainder < Divisor; ++remainder) {
            SCOPED_TRACE(testing::Message() << name << ", every piece " << remainder << " of " << Divisor);
            program.RefuseMemory(Divisor, remainder);
            act();
            Dismiss();
            program.RefuseMemory(0);
            ASSERT_TRUE(program.IsRunning());
            EXPECT_EQ(RowCount(), rows);
        }
        act();
        EXPECT_TRUE(HoldsWithin(StepDeadline, [this] { return IsAnythingOpen(); })) << name;
        Dismiss();
    }
    ExpectOrderlyEnd();
}
