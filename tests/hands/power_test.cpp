// The power goes in the middle of what a person does: before each change of files and registry, and at any
// time. The next start works, every file has one name and its whole content, and what is remembered is old or
// new.

#include <commctrl.h>

#include <algorithm>
#include <functional>
#include <map>
#include <random>

#include "tests/hands/hands_test.h"
#include "tests/program/registry_reading.h"
#include "tests/support/probe/power_loss.h"

namespace {

using Values = std::map<std::wstring, StoredValue>;

constexpr LONG MostChanges = 50;
// Each of the four worlds has a quarter of the places where there are many.
constexpr LONG WorldCount = 4;

LONG FirstPlaceOfWorld() {
    return 1 + (World().japaneseSystem ? 2 : 0) + (World().screenWidth > World().screenHeight ? 1 : 0);
}

// How many ends at any time: more than usual where the environment says so.
int Kills() {
    wchar_t text[16] = L"";
    return GetEnvironmentVariableW(L"QUORIN_POWER_KILLS", text, 16) > 0 ? _wtoi(text) : 1;
}

Values ValuesOfTexts(const Names& texts) {
    Values values;
    for (std::size_t n = 0; n < texts.size(); ++n)
        values[std::to_wstring(n)] = StoredText(texts[n]);
    return values;
}

}  // namespace

class PowerByHand : public HandsTest {
  public:
    static void SetUpTestSuite() {
        const std::wstring name = L"Local\\QuorinPower-" + std::to_wstring(GetCurrentProcessId());
        section = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(probe::Power),
                                     name.c_str());
        power = static_cast<probe::Power*>(
            MapViewOfFile(section, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(probe::Power)));
        ASSERT_NE(nullptr, power);
        power->ownerId = GetCurrentProcessId();
        SetEnvironmentVariableW(probe::PowerVariable, name.c_str());
        HandsTest::SetUpTestSuite();
    }
    static void TearDownTestSuite() {
        HandsTest::TearDownTestSuite();
        SetEnvironmentVariableW(probe::PowerVariable, nullptr);
        UnmapViewOfFile(power);
        CloseHandle(section);
    }

  protected:
    void TearDown() override {
        EndBefore(0);
        HandsTest::TearDown();
    }

    // Changes are counted from now on, and the program ends before the one with this number; 0 for none.
    static void EndBefore(LONG change) {
        power->endBefore = 0;
        power->changes = 0;
        power->endBefore = change;
    }

    struct Deed {
        std::function<void()> prepare;  // starts the program
        std::function<void()> act;
        std::function<bool()> isDone;
        std::function<void()> expectNothingLost;
    };
    // Does it again and again, with the power going before its first change, its second, and so on, until it
    // is done before that.
    void ExpectAtEveryChange(const Deed& deed, LONG first = 1, LONG step = 1) {
        for (LONG change = first;; change += step) {
            SCOPED_TRACE(testing::Message() << "change " << change);
            ASSERT_LT(change, MostChanges);
            deed.prepare();
            EndBefore(change);
            deed.act();
            ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return !Program().IsRunning() || deed.isDone(); }));
            const bool isDone = deed.isDone();
            EndBefore(0);
            EXPECT_TRUE(!isDone || change > 1) << "nothing was counted";
            deed.expectNothingLost();
            if (isDone) return;
        }
    }
    // Does it as often as there are kills, and ends the program a short time after.
    void ExpectAtAnyTime(const Deed& deed, DWORD longestLife) {
        std::random_device seeds;
        for (int kill = 0; kill < Kills(); ++kill) {
            const DWORD life = seeds() % longestLife;
            SCOPED_TRACE(testing::Message() << "after " << life << " ms");
            deed.prepare();
            deed.act();
            Sleep(life);
            Program().Kill();
            deed.expectNothingLost();
        }
    }

    // The files of the test's folder, and "sub" in it, with their content.
    [[nodiscard]] std::map<std::wstring, std::string> FilesOnDisk(const std::wstring& folder = L"") const {
        std::map<std::wstring, std::string> files;
        WIN32_FIND_DATAW entry;
        const HANDLE listing = FindFirstFileW(Real(folder + L"*").c_str(), &entry);
        if (listing == INVALID_HANDLE_VALUE) return files;
        do {
            const std::wstring name = entry.cFileName;
            if (name == L"." || name == L"..") continue;
            if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
                files.merge(FilesOnDisk(folder + name + L"\\"));
            } else {
                files[folder + name] = ContentOf(folder + name);
            }
        } while (FindNextFileW(listing, &entry));
        FindClose(listing);
        return files;
    }
    // Two files, and the program with their rows; the first is selected.
    void StartWithRows() {
        for (const auto& [name, content] : FilesOnDisk()) {
            SetFileAttributesW(Real(name).c_str(), FILE_ATTRIBUTE_NORMAL);
            DeleteFileW(Real(name).c_str());
        }
        AddFile(L"notes.qsa", "mine");
        AddFile(L"other.qsa", "theirs");
        Tree().AddFolder(Path(L"sub").substr(1));
        StartAgain();
        Program().BringForward();
        Find(L"*.qsa");
        SelectRow(L"notes.qsa");
    }
    // "mine" in a file of one of these names, and the other one as it was.
    void ExpectBothFiles(const Names& names) const {
        auto files = FilesOnDisk();
        EXPECT_EQ(files[L"other.qsa"], "theirs");
        files.erase(L"other.qsa");
        ASSERT_EQ(files.size(), 1u);
        EXPECT_EQ(files.begin()->second, "mine");
        EXPECT_NE(names.end(), std::find(names.begin(), names.end(), files.begin()->first))
            << testing::PrintToString(files.begin()->first);
    }
    void BeginRename() {
        StartWithRows();
        PostMessageW(Program().Window(), WM_COMMAND, COMMAND_RENAME, 0);
        ASSERT_TRUE(HoldsWithin(StepDeadline, [] { return Program().FocusPath().rfind(L"edit:", 0) == 0; }));
    }
    [[nodiscard]] static HWND NameEdit() {
        const HWND list = FindWindowExW(Program().Window(), nullptr, WC_LISTVIEWW, nullptr);
        return list != nullptr ? FindWindowExW(list, nullptr, WC_EDITW, nullptr) : nullptr;
    }
    // Enter, again where the system has lost it.
    static void EndEditing(const std::wstring& name) {
        SendMessageW(NameEdit(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
        for (int press = 0; press < 3 && NameEdit() != nullptr; ++press) {
            if (GetForegroundWindow() != Program().Window()) SetForegroundWindow(Program().Window());
            PressKey(VK_RETURN);
            if (HoldsWithin(1500, [] { return NameEdit() == nullptr; })) return;
        }
    }
    Deed Renaming(const std::wstring& name, const Names& possible) {
        return {[this] { BeginRename(); }, [name] { EndEditing(name); },
                [this, name] { return FilesOnDisk().count(name) > 0; },
                [this, possible] { ExpectBothFiles(possible); }};
    }

  private:
    static inline HANDLE section = nullptr;
    static inline probe::Power* power = nullptr;
};

TEST_F(PowerByHand, before_a_rename_the_file_has_its_old_name) {
    ExpectAtEveryChange(Renaming(L"new name.qsa", {L"notes.qsa", L"new name.qsa"}));
}

// Some systems get to another letter case by way of a third name only.
TEST_F(PowerByHand, before_any_step_of_a_rename_by_letter_case_the_file_has_one_name_with_the_old_one_in_it) {
    ExpectAtEveryChange(Renaming(L"Notes.QSA", {L"notes.qsa", L"rename~1 notes.qsa", L"Notes.QSA"}));
    StartAgain();
    EXPECT_EQ(Sorted(Find(L"*.qsa")), (Names{L"Notes.QSA", L"other.qsa"}));
}

TEST_F(PowerByHand, at_any_time_of_a_rename_the_file_has_one_name) {
    Deed renaming = Renaming(L"Notes.QSA", {L"notes.qsa", L"rename~1 notes.qsa", L"Notes.QSA"});
    renaming.act = [] {
        SendMessageW(NameEdit(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"Notes.QSA"));
        PressKey(VK_RETURN);
    };
    ExpectAtAnyTime(renaming, 100);
}

TEST_F(PowerByHand, before_a_delete_the_file_is_whole) {
    ExpectAtEveryChange({[this] { StartWithRows(); },
                         [this] {
                             static_cast<void>(Opened(COMMAND_DELETE));
                             PressKey('Y', {VK_MENU});
                         },
                         [this] { return !Stands(L"notes.qsa"); },
                         [this] {
                             EXPECT_EQ(ContentOf(L"other.qsa"), "theirs");
                             if (Stands(L"notes.qsa")) {
                                 EXPECT_EQ(ContentOf(L"notes.qsa"), "mine");
                             }
                         }});
}

TEST_F(PowerByHand, before_a_change_of_attributes_the_file_is_what_it_was) {
    const auto isReadOnly = [this] {
        return (GetFileAttributesW(Real(L"notes.qsa").c_str()) & FILE_ATTRIBUTE_READONLY) != 0;
    };
    ExpectAtEveryChange({[this] { StartWithRows(); },
                         [this] {
                             const ProgramDialog sheet = Opened(COMMAND_PROPERTIES);
                             sheet.Click(CHECK_READ_ONLY);
                             PressKey(VK_RETURN);
                         },
                         isReadOnly, [this] { ExpectBothFiles({L"notes.qsa"}); }});
}

TEST_F(PowerByHand, before_a_shortcut_is_made_anew_it_stands) {
    const auto prepare = [this] {
        StartWithRows();
        AddShortcut(L"to notes.lnk", Path(L"notes.qsa"));
        Find(L"*.lnk");
        SelectRow(L"to notes.lnk");
    };
    const std::string before = std::to_string(Path(L"notes.qsa").size()) + "#";
    const auto isMadeAnew = [this, before] {
        return Stands(L"to notes.lnk") && ContentOf(L"to notes.lnk").rfind(before, 0) != 0;
    };
    ExpectAtEveryChange({prepare,
                         [this] {
                             const ProgramDialog sheet = Opened(COMMAND_PROPERTIES);
                             sheet.TurnTo(1);
                             PressKey(VK_RETURN);
                         },
                         isMadeAnew, [this] { EXPECT_TRUE(Stands(L"to notes.lnk")); }});
}

class PowerAndSettings : public PowerByHand {
  protected:
    // The names that are remembered, the oldest first, before and after two searches.
    const Names oldNames = {L"a*", L"b*", L"c*"};
    const Names newNames = {L"b*", L"c*", L"a*", L"d*"};
    const Names oldLocations = {L"\\names", L"\\walk"};
    const Names newLocations = {L"\\walk", L"\\names"};

    void StartWithSettings() {
        Program().Kill();
        PrepareRegistry();
        for (std::size_t n = 0; n < oldNames.size(); ++n)
            StoreText(NameKey, std::to_wstring(n), oldNames[n]);
        for (std::size_t n = 0; n < oldLocations.size(); ++n)
            StoreText(LocationKey, std::to_wstring(n), oldLocations[n]);
        const DWORD clear = 0;
        Store(ProductKey, L"Sub Folder", REG_DWORD, &clear, sizeof clear);
        StartAgain();
        Program().BringForward();
    }
    void Enter(int comboId, const std::wstring& text) {
        Program().SetText(NamePage, comboId, text);
        Program().FocusControl(NamePage, comboId);
        const int before = Program().SearchesBegun();
        PressKey(VK_RETURN);
        ASSERT_TRUE(HoldsWithin(StepDeadline, [&] { return Program().SearchesBegun() > before; }));
        Program().WaitForEndOfSearch();
    }
    // What the program is to save at its end is not what it has found.
    void UseSettings() {
        StartWithSettings();
        Enter(COMBO_LOCATION, L"\\names");
        Enter(COMBO_NAME, L"a*");
        Enter(COMBO_NAME, L"d*");
        Program().SetCheck(NamePage, CHECK_SUBFOLDERS, true);
    }
    // The first so many values are those of the new list, the others still those of the old one.
    static bool IsSavedUpTo(const Values& values, const Names& oldTexts, const Names& newTexts,
                            std::size_t saved) {
        Values expected = ValuesOfTexts(oldTexts);
        for (std::size_t n = 0; n < saved; ++n)
            expected[std::to_wstring(n)] = StoredText(newTexts[n]);
        return values == expected;
    }
    static void ExpectOldOrNew(const wchar_t* key, const Names& oldTexts, const Names& newTexts) {
        const Values values = ValuesOf(key);
        bool isKnown = false;
        for (std::size_t saved = 0; saved <= newTexts.size(); ++saved)
            isKnown = isKnown || IsSavedUpTo(values, oldTexts, newTexts, saved);
        EXPECT_TRUE(isKnown) << testing::PrintToString(values);
    }
    // The last value that is written.
    static bool IsSaved() { return ValuesOf(ProductKey)[L"Sub Folder"] == StoredDword(1); }
    void ExpectSettingsOldOrNew() {
        ExpectOldOrNew(NameKey, oldNames, newNames);
        ExpectOldOrNew(LocationKey, oldLocations, newLocations);
        const StoredValue subFolders = ValuesOf(ProductKey)[L"Sub Folder"];
        EXPECT_TRUE(subFolders == StoredDword(0) || subFolders == StoredDword(1));
    }
    // Each that is remembered is one that was entered once.
    void ExpectStartWithKnownEntries() {
        StartAgain();
        for (const std::wstring& entry : Program().Combo(NamePage, COMBO_NAME).entries)
            EXPECT_NE(newNames.end(), std::find(newNames.begin(), newNames.end(), entry));
        EXPECT_EQ(NamesFoundBy(Named(L"abc", L"\\names")).size(), 2u);
    }
};

TEST_F(PowerAndSettings, before_any_value_is_saved_the_others_are_old_or_new) {
    ExpectAtEveryChange({[this] { UseSettings(); }, [] { PostMessageW(Program().Window(), WM_CLOSE, 0, 0); },
                         [] { return IsSaved(); },
                         [this] {
                             ExpectSettingsOldOrNew();
                             ExpectStartWithKnownEntries();
                         }},
                        FirstPlaceOfWorld(), WorldCount);
}

TEST_F(PowerAndSettings, at_any_time_of_the_end_the_values_are_old_or_new) {
    ExpectAtAnyTime({[this] { UseSettings(); },
                     [] { PostMessageW(Program().Window(), WM_CLOSE, 0, 0); },
                     {},
                     [this] {
                         ExpectSettingsOldOrNew();
                         ExpectStartWithKnownEntries();
                     }},
                    200);
}

TEST_F(PowerAndSettings, before_any_key_is_removed_the_others_are_whole_and_uninstalling_again_removes_them) {
    const auto expectWholeKeys = [this] {
        if (KeyExists(NameKey)) {
            EXPECT_EQ(ValuesOf(NameKey), ValuesOfTexts(oldNames));
        }
        if (KeyExists(LocationKey)) {
            EXPECT_EQ(ValuesOf(LocationKey), ValuesOfTexts(oldLocations));
        }
    };
    const auto uninstall = [this] { Opened(COMMAND_ABOUT).Click(BUTTON_UNINSTALL); };
    ExpectAtEveryChange({[this] { StartWithSettings(); }, uninstall, [] { return !KeyExists(MakerKey); },
                         [&] {
                             expectWholeKeys();
                             if (!KeyExists(ProductKey)) return;
                             StartAgain();
                             Program().BringForward();
                             uninstall();
                             EXPECT_EQ(Program().WaitForEnd(), 0u);
                             EXPECT_FALSE(KeyExists(ProductKey));
                         }},
                        FirstPlaceOfWorld(), WorldCount);
}
