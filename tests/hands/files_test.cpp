// What is done with the file of a row: that very file, whatever its name is and whatever stands beside it.

#include "tests/hands/hands_test.h"

namespace {

std::wstring Literal(const std::wstring& path) {
    return L"\\\\?\\" + path;
}

}  // namespace

class FilesInHand : public HandsTest {
  protected:
    void TearDown() override {
        for (const std::wstring& name : NamesOnDisk())
            DeleteFileW(Literal(Real(name)).c_str());
        HandsTest::TearDown();
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
    bool NameIsEdited() {
        return HoldsWithin(5000, [&] { return Program().FocusPath().rfind(L"edit:", 0) == 0; });
    }
    bool IsOnDisk(const Names& names) {
        return HoldsWithin(5000, [&] { return NamesOnDisk() == names; });
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
    EXPECT_EQ((Names{L"Notes.QSA"}), Program().RowNames());
    EXPECT_EQ("mine", ContentOf(L"Notes.QSA"));
    EXPECT_TRUE(NoDialogOpen());

    OpenMenuByKeys(FileMenu);
    TakeMenuItemByKeys(COMMAND_RENAME);
    ASSERT_TRUE(NameIsEdited());
    TypeText(L"NOTES.qsa");
    PressKey(VK_RETURN);
    EXPECT_TRUE(IsOnDisk({L"NOTES.qsa"}));
    EXPECT_EQ((Names{L"NOTES.qsa"}), NamesFoundBy(Named(L"*.qsa", Folder())));
}
