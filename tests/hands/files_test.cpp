// What is done with the file of a row: that very file, whatever its name is and whatever stands beside it.

#include <algorithm>

#include "tests/hands/hands_test.h"

namespace {

std::wstring Literal(const std::wstring& path) {
    return L"\\\\?\\" + path;
}

}  // namespace

class FilesInHand : public HandsTest {
  protected:
    void SetUp() override {
        HandsTest::SetUp();
        Tree().AddFolder(StartMenu().substr(1));
    }
    void TearDown() override {
        for (const std::wstring& name : NamesOnDisk()) {
            SetFileAttributesW(Literal(Real(name)).c_str(), FILE_ATTRIBUTE_NORMAL);
            DeleteFileW(Literal(Real(name)).c_str());
        }
        HandsTest::TearDown();
    }
    static std::wstring StartMenu() {
        return Shown(L"\\Windows\\Start Menu\\Programs", L"\\Windows\\ｽﾀｰﾄ ﾒﾆｭｰ\\ﾌﾟﾛｸﾞﾗﾑ");
    }
    // A file whose name is taken unit by unit.
    void AddOddFile(const std::wstring& name, const std::string& bytes) const {
        const HANDLE file = CreateFileW(Literal(Real(name)).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
        ASSERT_NE(INVALID_HANDLE_VALUE, file);
        DWORD written = 0;
        WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
        CloseHandle(file);
    }
    // "mine" in a file of each odd name, beside one for which it might be taken.
    void AddOddFiles() {
        AddFile(L"a.qsa", "another file");
        AddOddFile(L"a.qsa.", "mine");
        AddOddFile(L"a.qsa ", "mine");
        Find();
    }
    // What a program reads that is started with a path as its one argument.
    [[nodiscard]] static std::string ReadByArgument(std::wstring argument) {
        if (argument.size() >= 2 && argument.front() == L'"')
            argument = argument.substr(1, argument.size() - 2);
        const HANDLE file =
            CreateFileW(argument.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        if (file == INVALID_HANDLE_VALUE) return "(not opened)";
        char bytes[100];
        DWORD read = 0;
        ReadFile(file, bytes, sizeof(bytes), &read, nullptr);
        CloseHandle(file);
        return std::string(bytes, read);
    }
    [[nodiscard]] bool IsReadOnly(const std::wstring& name) const {
        return (GetFileAttributesW(Literal(Real(name)).c_str()) & FILE_ATTRIBUTE_READONLY) != 0;
    }
    static void ClickControl(const ProgramDialog& dialog, int id) {
        RECT place = {};
        GetWindowRect(dialog.Control(id), &place);
        ClickAt(CentreOf(place));
    }
    static bool IsGone(const ProgramDialog& dialog) {
        return HoldsWithin(StepDeadline, [&] { return !IsWindow(dialog.Window()); });
    }
    void TakeFileMenu(UINT command) {
        OpenMenuByPointer(FileMenu);
        ClickMenuItem(command);
    }
    // What the folder of the test lists itself.
    [[nodiscard]] Names NamesOnDisk() const {
        Names names;
        WIN32_FIND_DATAW entry;
        const HANDLE listing = FindFirstFileW(Real(L"*").c_str(), &entry);
        if (listing == INVALID_HANDLE_VALUE) return names;
        do {
            if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) names.emplace_back(entry.cFileName);
        } while (FindNextFileW(listing, &entry));
        FindClose(listing);
        return Sorted(names);
    }
    bool IsOnDisk(const Names& names) {
        return HoldsWithin(StepDeadline, [&] { return NamesOnDisk() == names; });
    }
};

TEST_F(FilesInHand, a_name_typed_in_another_letter_case_is_the_files_name_on_the_disk) {
    AddFile(L"notes.qsa", "mine");
    Find();
    ClickAt(PlaceOf(L"notes.qsa"));
    OpenMenuByPointer(FileMenu);
    ClickMenuItem(COMMAND_RENAME);
    ASSERT_TRUE(NameIsEdited());
    TypeText(L"Notes.QSA");
    PressKey(VK_RETURN);
    EXPECT_TRUE(IsOnDisk({L"Notes.QSA"}));
    EXPECT_EQ(Program().RowNames(), (Names{L"Notes.QSA"}));
    EXPECT_EQ(ContentOf(L"Notes.QSA"), "mine");
    EXPECT_TRUE(NoDialogOpen());

    OpenMenuByKeys(FileMenu);
    TakeMenuItemByKeys(COMMAND_RENAME);
    ASSERT_TRUE(NameIsEdited());
    TypeText(L"NOTES.qsa");
    PressKey(VK_RETURN);
    EXPECT_TRUE(IsOnDisk({L"NOTES.qsa"}));
    EXPECT_EQ(NamesFoundBy(Named(L"*.qsa", Folder())), (Names{L"NOTES.qsa"}));
}

TEST_F(FilesInHand, a_name_that_ends_in_a_dot_or_a_blank_is_opened_itself) {
    AddOddFiles();
    ClickAt(PlaceOf(L"a.qsa."));
    PressKey(VK_RETURN);
    EXPECT_EQ(ReadByArgument(Started(1).at(0)), "mine");
    // What was started took the foreground.
    Program().BringForward();
    ClickAt(PlaceOf(L"a.qsa "));
    TakeFileMenu(COMMAND_OPEN);
    EXPECT_EQ(ReadByArgument(Started(2).at(1)), "mine");
}

TEST_F(FilesInHand, a_name_that_ends_in_a_dot_or_a_blank_has_its_own_properties) {
    AddOddFiles();
    for (const std::wstring name : {L"a.qsa.", L"a.qsa "}) {
        SCOPED_TRACE(testing::PrintToString(name));
        EXPECT_NE(L"Alpha kind", Row(name).type);
        ClickAt(PlaceOf(name));
        PressKey(VK_RETURN, {VK_MENU});
        const ProgramDialog sheet = Dialog();
        EXPECT_EQ(sheet.Text(STATIC_DISPLAY_NAME), name);
        EXPECT_EQ(sheet.Text(STATIC_TYPE), Row(name).type);
        EXPECT_EQ(sheet.Text(STATIC_SIZE), L"0.0KB (4 bytes)");
        ClickControl(sheet, CHECK_READ_ONLY);
        EXPECT_TRUE(HoldsWithin(StepDeadline, [&] { return sheet.IsChecked(CHECK_READ_ONLY); }));
        PressKey(VK_RETURN);
        EXPECT_TRUE(IsGone(sheet));
        EXPECT_TRUE(IsReadOnly(name));
        EXPECT_FALSE(IsReadOnly(L"a.qsa"));
    }
}

TEST_F(FilesInHand, a_name_that_ends_in_a_dot_or_a_blank_is_added_to_the_start_menu_itself) {
    AddOddFiles();
    for (const std::wstring name : {L"a.qsa.", L"a.qsa "}) {
        ClickAt(PlaceOf(name));
        // No menu has this command.
        Program().SendMenuCommand(COMMAND_ADD_TO_START_MENU);
        Program().WaitForQueue();
    }
    EXPECT_EQ(Sorted(NamesFoundBy(Where(StartMenu()))), (Names{L"a.qsa .lnk", L"a.qsa..lnk"}));
    std::size_t opened = 0;
    for (const wchar_t* shortcut : {L"a.qsa .lnk", L"a.qsa..lnk"}) {
        ClickAt(PlaceOf(shortcut));
        PressKey(VK_RETURN);
        EXPECT_EQ(ReadByArgument(Started(++opened).back()), "mine");
        Program().BringForward();
        DeleteFileW((Drive().Letter() + StartMenu() + L"\\" + shortcut).c_str());
    }
}

TEST_F(FilesInHand, a_name_that_ends_in_a_dot_or_a_blank_is_deleted_itself) {
    AddOddFiles();
    for (const wchar_t* name : {L"a.qsa.", L"a.qsa "}) {
        ClickAt(PlaceOf(name));
        TakeFileMenu(COMMAND_DELETE);
        ClickControl(Dialog(), IDYES);
        // The rows below move up.
        WaitUntil("the row to go", [&] {
            const Names rows = Program().RowNames();
            return std::find(rows.begin(), rows.end(), name) == rows.end();
        });
    }
    EXPECT_TRUE(IsOnDisk({L"a.qsa"}));
    EXPECT_EQ(ContentOf(L"a.qsa"), "another file");
}

TEST_F(FilesInHand, a_name_without_an_extension_is_not_opened_as_the_program_beside_it) {
    AddFile(L"recorder", "no program");
    AddProgram(L"recorder.exe");
    Find();
    ClickAt(PlaceOf(L"recorder"));
    PressKey(VK_RETURN);
    EXPECT_TRUE(NothingStarted());
    // The shell may tell that it knows no program for the file.
    if (const std::optional<ProgramDialog> told = OpenDialogOf(Program().Window())) told->Press(IDOK);
}

TEST_F(FilesInHand, a_tab_before_the_arguments_of_a_shortcut_keeps_them) {
    AddProgram(L"recorder.exe");
    const std::wstring target = L"\"" + Path(L"recorder.exe") + L"\"\tx y";
    AddShortcut(L"s.lnk", target);
    Find(L"s.lnk");
    ClickAt(PlaceOf(L"s.lnk"));
    PressKey(VK_RETURN);
    EXPECT_EQ(Started(1), (Names{L"x y"}));

    // What was started took the foreground.
    Program().BringForward();
    ClickBarButton(COMMAND_PROPERTIES);
    const ProgramDialog sheet = Dialog();
    sheet.TurnTo(1);
    EXPECT_EQ(sheet.Text(EDIT_TARGET), target);
    PressKey(VK_RETURN);
    EXPECT_TRUE(IsGone(sheet));
    TakeFileMenu(COMMAND_OPEN);
    EXPECT_EQ(Started(2).back(), L"x y");
}
