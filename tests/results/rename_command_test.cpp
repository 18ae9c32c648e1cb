// Renaming the selected row's file: whatever happens, the file stands under exactly one name and the row
// tells which.

#include <cstdio>

#include "tests/results/result_commands_test.h"
#include "tests/support/message_pump.h"

namespace {

using Names = std::vector<std::wstring>;

DWORD failureCode = 0;

BOOL FailToMove(const wchar_t*, const wchar_t*) {
    SetLastError(failureCode);
    return FALSE;
}

}  // namespace

class RenameCommand : public ResultCommandsTest {
  protected:
    RenameCommand() { AddFileRow(L"a.txt", "of a"); }

    // As the list tells it when the editing of the first row ends with this text.
    void EndWith(const std::wstring& newName) {
        std::wstring text = newName;
        NMLVDISPINFOW edited = {};
        edited.item.mask = LVIF_TEXT;
        edited.item.pszText = text.data();
        Commands().EndRename(edited);
    }
    // The rename is refused with these two boxes and nothing has changed.
    void ExpectRefused(const std::wstring& newName, const wchar_t* reason) {
        const AnsweredBoxes boxes{IDOK};
        EndWith(newName);
        ASSERT_EQ(boxes.Seen().size(), 2u);
        for (const SeenBox& box : boxes.Seen()) {
            EXPECT_EQ(box.caption, L"Error");
            EXPECT_EQ(box.owner, OwnerHandle());
        }
        EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], reason))
            << testing::PrintToString(boxes.Seen()[0].texts);
        EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[1], L"Can't rename the file"));
        EXPECT_EQ(RowNames()[0], L"a.txt");
    }
    [[nodiscard]] std::string ContentOf(const std::wstring& relative) const {
        std::FILE* file = _wfopen(tree.Path(relative).c_str(), L"rb");
        if (file == nullptr) return "(missing)";
        char bytes[16] = {};
        const std::size_t size = std::fread(bytes, 1, sizeof bytes, file);
        std::fclose(file);
        return std::string(bytes, size);
    }
    // The names of everything in the tree's root.
    [[nodiscard]] Names Files() const {
        Names names;
        WIN32_FIND_DATAW data;
        const HANDLE search = ce::FindFirstFileW(tree.Path(L"*.*").c_str(), &data);
        if (search == INVALID_HANDLE_VALUE) return names;
        do
            names.emplace_back(data.cFileName);
        while (ce::FindNextFileW(search, &data));
        ce::FindClose(search);
        return names;
    }
};

TEST_F(RenameCommand, moves_the_file_and_shows_its_new_name) {
    const AnsweredBoxes boxes{IDOK};
    EndWith(L"b.doc");
    EXPECT_TRUE(boxes.Seen().empty());
    EXPECT_EQ(Files(), (Names{L"b.doc"}));
    EXPECT_EQ(ContentOf(L"b.doc"), "of a");
    EXPECT_EQ(RowNames(), (Names{L"b.doc"}));
}

TEST_F(RenameCommand, leaves_the_other_cells_even_when_the_ending_changed) {
    const std::vector<std::wstring> before = CellsOf(List().Handle(), 0);
    EndWith(L"a.doc");
    std::vector<std::wstring> expected = before;
    expected[0] = L"a.doc";
    EXPECT_EQ(CellsOf(List().Handle(), 0), expected);
}

TEST_F(RenameCommand, that_was_cancelled_does_nothing) {
    std::wstring text = L"b.txt";
    NMLVDISPINFOW edited = {};
    edited.item.pszText = text.data();
    Commands().EndRename(edited);
    edited.item.mask = LVIF_TEXT;
    edited.item.pszText = nullptr;
    Commands().EndRename(edited);
    EXPECT_EQ(Files(), (Names{L"a.txt"}));
    EXPECT_EQ(RowNames(), (Names{L"a.txt"}));
}

TEST_F(RenameCommand, onto_an_existing_file_keeps_both) {
    tree.AddFile(L"b.txt", "of b");
    ExpectRefused(L"b.txt", L"Error Move file 183");
    EXPECT_EQ(ContentOf(L"a.txt"), "of a");
    EXPECT_EQ(ContentOf(L"b.txt"), "of b");
}

TEST_F(RenameCommand, to_nothing_is_refused) {
    const AnsweredBoxes boxes{IDOK};
    EndWith(L"");
    EXPECT_EQ(boxes.Seen().size(), 2u);
    EXPECT_EQ(Files(), (Names{L"a.txt"}));
    EXPECT_EQ(RowNames(), (Names{L"a.txt"}));
}

TEST_F(RenameCommand, into_a_missing_folder_is_refused) {
    ExpectRefused(L"missing\\b.txt", L"Error Move file 3");
    EXPECT_EQ(Files(), (Names{L"a.txt"}));
}

TEST_F(RenameCommand, into_an_existing_folder_moves_the_file_there) {
    tree.AddFolder(L"sub");
    EndWith(L"sub\\b.txt");
    EXPECT_EQ(ContentOf(L"sub\\b.txt"), "of a");
    EXPECT_EQ(Files(), (Names{L"sub"}));
    wchar_t path[MAX_PATH] = L"";
    List().SelectRow(0);
    EXPECT_EQ(List().SelectedPath(path), 0);
    EXPECT_EQ(path, tree.Path(L"sub\\b.txt"));
}

TEST_F(RenameCommand, to_a_name_that_makes_the_path_too_long_is_refused) {
    ExpectRefused(std::wstring(259, L'n'), L"Error Move file 206");
    EXPECT_EQ(Files(), (Names{L"a.txt"}));
}

TEST_F(RenameCommand, of_a_file_that_vanished_is_refused) {
    ASSERT_TRUE(DeleteFileW(tree.Path(L"a.txt").c_str()));
    ExpectRefused(L"b.txt", L"Error Move file 2");
    EXPECT_EQ(Files(), Names());
}

TEST_F(RenameCommand, of_a_file_in_use_tells_its_path) {
    const Replaced failing(ce::fileCalls.moveFile, &FailToMove);
    failureCode = ERROR_SHARING_VIOLATION;
    ExpectRefused(L"b.txt", (tree.Path(L"a.txt") + L" is in use").c_str());
}

TEST_F(RenameCommand, is_refused_in_japanese_on_a_japanese_surface) {
    const Replaced failing(ce::fileCalls.moveFile, &FailToMove);
    failureCode = ERROR_DISK_FULL;
    UseJapanese();
    const AnsweredBoxes boxes{IDOK};
    EndWith(L"b.txt");
    ASSERT_EQ(boxes.Seen().size(), 2u);
    EXPECT_EQ(boxes.Seen()[1].caption, L"ｴﾗｰ");
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[0], L"ﾃﾞｨｽｸがいっぱいです"));
    EXPECT_TRUE(AnsweredBoxes::Shows(boxes.Seen()[1], L"名前の変更に失敗しました"));
    EXPECT_EQ(RowNames(), (Names{L"a.txt"}));
}

TEST_F(RenameCommand, to_the_same_name_changes_nothing) {
    const AnsweredBoxes boxes{IDOK};
    EndWith(L"a.txt");
    EXPECT_TRUE(boxes.Seen().empty());
    EXPECT_EQ(Files(), (Names{L"a.txt"}));
    EXPECT_EQ(RowNames(), (Names{L"a.txt"}));
}

// The editing in place with the list's own edit, whose end reaches the command as the main window passes it.
class RenameInPlace : public RenameCommand {
  protected:
    class Listener : public WindowObject {
      public:
        explicit Listener(ResultCommands& resultCommands)
            : WindowObject(nullptr, nullptr), commands(resultCommands) {}
        LRESULT OnEnd(EventArguments& arguments) {
            commands.EndRename(*reinterpret_cast<const NMLVDISPINFOW*>(arguments.argument));
            return FALSE;
        }

      private:
        ResultCommands& commands;
    };

    // Starts the editing of the first row and types a name and a key into its edit.
    void EditInPlace(const wchar_t* newName, WPARAM lastKey) {
        List().OnNotification(event::EndLabelEdit, &listener, &Listener::OnEnd);
        List().SelectRow(0);
        SetFocus(List().Handle());
        Commands().BeginRename();
        const auto edit = reinterpret_cast<HWND>(SendMessageW(List().Handle(), LVM_GETEDITCONTROL, 0, 0));
        ASSERT_NE(edit, nullptr);
        wchar_t offered[MAX_PATH] = L"";
        GetWindowTextW(edit, offered, MAX_PATH);
        EXPECT_STREQ(offered, L"a.txt");
        SetWindowTextW(edit, newName);
        SendMessageW(edit, WM_KEYDOWN, lastKey, 1);
        PumpQueue();
        EXPECT_EQ(SendMessageW(List().Handle(), LVM_GETEDITCONTROL, 0, 0), 0);
    }

  private:
    Listener listener{Commands()};
};

TEST_F(RenameInPlace, ends_with_enter) {
    const AnsweredBoxes boxes{IDOK};
    EditInPlace(L"b.txt", VK_RETURN);
    EXPECT_TRUE(boxes.Seen().empty());
    EXPECT_EQ(Files(), (Names{L"b.txt"}));
    EXPECT_EQ(RowNames(), (Names{L"b.txt"}));
}

TEST_F(RenameInPlace, is_given_up_with_escape) {
    EditInPlace(L"b.txt", VK_ESCAPE);
    EXPECT_EQ(Files(), (Names{L"a.txt"}));
    EXPECT_EQ(RowNames(), (Names{L"a.txt"}));
}

TEST_F(RenameInPlace, that_fails_shows_two_boxes_and_the_old_name) {
    tree.AddFile(L"b.txt", "of b");
    const AnsweredBoxes boxes{IDOK};
    EditInPlace(L"b.txt", VK_RETURN);
    EXPECT_EQ(boxes.Seen().size(), 2u);
    EXPECT_EQ(RowNames(), (Names{L"a.txt"}));
    EXPECT_EQ(ContentOf(L"a.txt"), "of a");
    EXPECT_EQ(ContentOf(L"b.txt"), "of b");
}
