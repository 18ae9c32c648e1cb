// The Shortcut page: what it shows of a shortcut's target, and the shortcut made anew.

#include <optional>

#include "resources/resource_ids.h"
#include "tests/results/properties_test.h"
#include "tests/support/answered_boxes.h"

namespace {

std::wstring targetOfAll;
std::vector<std::wstring> done;

BOOL TellTarget(const wchar_t*, wchar_t* target, int capacity) {
    EXPECT_EQ(capacity, 260);
    target[0] = L'\0';
    if (targetOfAll.empty() || targetOfAll.size() >= static_cast<std::size_t>(capacity)) return FALSE;
    lstrcpyW(target, targetOfAll.c_str());
    return TRUE;
}
BOOL NoteDelete(const wchar_t* path) {
    done.push_back(L"delete " + std::wstring(path));
    return FALSE;
}
BOOL NoteCreate(const wchar_t* path, const wchar_t* target) {
    done.push_back(L"create " + std::wstring(path) + L" -> " + target);
    return FALSE;
}

constexpr int General = 0;
constexpr int Shortcut = 1;

}  // namespace

// The shortcut is a file of any content; what it points to is told by the stand-in.
class ShortcutPageTest : public PropertiesTest {
  protected:
    ShortcutPageTest() {
        done.clear();
        targetOfAll.clear();
    }
    void ShowPage(int button, const Doing& doing) {
        ShowSheet(path_, button, [&](const OpenSheet& sheet) {
            sheet.TurnTo(Shortcut);
            doing(sheet);
        });
    }
    std::wstring SizeOfTarget(std::size_t bytes) {
        targetOfAll = tree_.AddFile(L"target.bin", std::string(bytes, 'x'));
        std::wstring shown;
        ShowPage(IDCANCEL, [&](const OpenSheet& sheet) { shown = sheet.Text(11905); });
        return shown;
    }
    [[nodiscard]] std::vector<std::wstring> MadeAnewWith(const std::wstring& target) const {
        return {L"delete " + path_, L"create " + path_ + L" -> " + target};
    }

    std::wstring path_ = tree_.AddFile(L"s.lnk", "no matter");
    Replaced<decltype(ce::shortcutCalls.getTarget)> get_{ce::shortcutCalls.getTarget, &TellTarget};
    Replaced<decltype(ce::shortcutCalls.create)> create_{ce::shortcutCalls.create, &NoteCreate};
    Replaced<decltype(ce::fileCalls.deleteFile)> remove_{ce::fileCalls.deleteFile, &NoteDelete};
};

TEST_F(ShortcutPageTest, stands_behind_the_general_page_of_a_shortcut_only) {
    const auto tabsOf = [&](const std::wstring& file) {
        std::vector<std::wstring> tabs;
        ShowSheet(file, IDCANCEL, [&](const OpenSheet& sheet) { tabs = sheet.Tabs(); });
        return tabs;
    };
    const std::vector<std::wstring> two{L"General", L"Shortcut"};
    const std::vector<std::wstring> one{L"General"};
    EXPECT_EQ(tabsOf(path_), two);
    EXPECT_EQ(tabsOf(tree_.AddFile(L"t.LNK")), two);
    EXPECT_EQ(tabsOf(tree_.AddFile(L"a.txt")), one);
    EXPECT_EQ(tabsOf(tree_.AddFile(L"a.lnk.txt")), one);
    EXPECT_EQ(tabsOf(L".lnk"), one);
    UseJapanese();
    EXPECT_EQ(tabsOf(path_), (std::vector<std::wstring>{L"全般", L"ｼｮｰﾄｶｯﾄ"}));
}

TEST_F(ShortcutPageTest, goes_when_the_sheet_gets_the_path_of_another_file) {
    FilePropertiesSheet sheet(&host_.Object(), L"");
    EXPECT_FALSE(sheet.HasShortcutPage());
    sheet.SetPath(L"\\a.lnk");
    EXPECT_TRUE(sheet.HasShortcutPage());
    sheet.SetPath(L"\\b.lnk");
    EXPECT_TRUE(sheet.HasShortcutPage());
    sheet.SetPath(L"\\b.txt");
    EXPECT_FALSE(sheet.HasShortcutPage());
}

TEST_F(ShortcutPageTest, shows_name_target_and_the_targets_type_size_and_time) {
    const std::wstring target = tree_.AddFile(L"my target.txt", std::string(2048, 'x'));
    SetWritten(target);
    targetOfAll = L'"' + target + L'"';
    SHFILEINFOW shortcutInfo = {};
    SHGetFileInfoW(path_.c_str(), 0, &shortcutInfo, sizeof shortcutInfo, SHGFI_DISPLAYNAME);
    SHFILEINFOW targetInfo = {};
    SHGetFileInfoW(target.c_str(), 0, &targetInfo, sizeof targetInfo, SHGFI_TYPENAME);
    ASSERT_NE(targetInfo.szTypeName[0], L'\0');
    ShowPage(IDCANCEL, [&](const OpenSheet& sheet) {
        EXPECT_TRUE(sheet.HasIcon());
        EXPECT_EQ(sheet.Text(11901), shortcutInfo.szDisplayName);
        EXPECT_EQ(sheet.Text(11902), targetInfo.szTypeName);
        EXPECT_EQ(sheet.Text(10701), targetOfAll);
        EXPECT_EQ(sheet.Text(11903), L"Size:");
        EXPECT_EQ(sheet.Text(11904), L"Modified:");
        EXPECT_EQ(sheet.Text(11905), L"2.0KB (2048 bytes)");
        EXPECT_EQ(sheet.Text(11906), ShortForms());
    });
}

TEST_F(ShortcutPageTest, knows_plain_bytes_below_a_kilobyte) {
    EXPECT_EQ(SizeOfTarget(0), L"0 bytes");
    EXPECT_EQ(SizeOfTarget(1000), L"1000 bytes");
    EXPECT_EQ(SizeOfTarget(1023), L"1023 bytes");
    EXPECT_EQ(SizeOfTarget(1024), L"1.0KB (1024 bytes)");
}

TEST_F(ShortcutPageTest, shows_whole_kilobytes_from_100) {
    EXPECT_EQ(SizeOfTarget(102399), L"99.9KB (102399 bytes)");
    EXPECT_EQ(SizeOfTarget(102400), L"100KB (102400 bytes)");
}

TEST_F(ShortcutPageTest, of_a_folder_as_target_hides_size_and_time) {
    targetOfAll = tree_.AddFolder(L"folder");
    ShowPage(IDCANCEL, [&](const OpenSheet& sheet) {
        for (const int id : {11903, 11904, 11905, 11906})
            EXPECT_FALSE(sheet.IsShown(id)) << id;
        for (const int id : {10901, 11901, 11902, 10701})
            EXPECT_TRUE(sheet.IsShown(id)) << id;
        EXPECT_EQ(sheet.Text(10701), targetOfAll);
        EXPECT_NE(sheet.Text(11902), L"");
    });
}

TEST_F(ShortcutPageTest, of_a_missing_target_leaves_size_and_time_empty) {
    targetOfAll = tree_.Path(L"missing.txt") + L" one";
    ShowPage(IDCANCEL, [&](const OpenSheet& sheet) {
        EXPECT_EQ(sheet.Text(10701), targetOfAll);
        EXPECT_EQ(sheet.Text(11905), L"");
        EXPECT_EQ(sheet.Text(11906), L"");
        for (const int id : {11903, 11904, 11905, 11906})
            EXPECT_TRUE(sheet.IsShown(id)) << id;
    });
}

TEST_F(ShortcutPageTest, whose_target_cannot_be_read_or_is_too_long_stays_empty) {
    for (const std::wstring& target : {std::wstring(), L"\\" + std::wstring(259, L'n')}) {
        targetOfAll = target;
        ShowPage(IDCANCEL, [&](const OpenSheet& sheet) {
            EXPECT_NE(sheet.Text(11901), L"");
            for (const int id : {10701, 11902, 11905, 11906})
                EXPECT_EQ(sheet.Text(id), L"") << id;
        });
    }
}

TEST_F(ShortcutPageTest, shows_the_longest_target_that_there_is_room_for) {
    targetOfAll = L"\\" + std::wstring(258, L'n');
    ShowPage(IDOK, [&](const OpenSheet& sheet) { EXPECT_EQ(sheet.Text(10701), targetOfAll); });
    EXPECT_EQ(done, MadeAnewWith(targetOfAll));
}

TEST_F(ShortcutPageTest, makes_the_shortcut_anew_though_nothing_was_edited) {
    targetOfAll = L"\"\\my docs\\a.txt\" one";
    ShowPage(IDOK, [](const OpenSheet&) {});
    EXPECT_EQ(done, MadeAnewWith(targetOfAll));
}

TEST_F(ShortcutPageTest, writes_the_text_as_it_was_typed) {
    targetOfAll = L"\\a.txt";
    ShowPage(IDOK, [](const OpenSheet& sheet) { sheet.SetText(EDIT_TARGET, L" \\my docs\\b.txt "); });
    EXPECT_EQ(done, MadeAnewWith(L" \\my docs\\b.txt "));
    done.clear();
    ShowPage(IDOK, [](const OpenSheet& sheet) { sheet.SetText(EDIT_TARGET, L""); });
    EXPECT_EQ(done, MadeAnewWith(L""));
}

TEST_F(ShortcutPageTest, cuts_a_text_that_is_too_long) {
    ShowPage(IDOK, [](const OpenSheet& sheet) { sheet.SetText(EDIT_TARGET, std::wstring(1000, L'n')); });
    ASSERT_EQ(done.size(), 2u);
    EXPECT_EQ(done[1], L"create " + path_ + L" -> " + std::wstring(259, L'n'));
}

TEST_F(ShortcutPageTest, that_was_not_turned_to_takes_no_part) {
    targetOfAll = L"\\a.txt";
    EXPECT_FALSE(ShowSheet(path_, IDOK));
    EXPECT_TRUE(done.empty());
}

TEST_F(ShortcutPageTest, takes_part_once_it_was_turned_to) {
    targetOfAll = L"\\a.txt";
    EXPECT_TRUE(ShowSheet(path_, IDOK, [](const OpenSheet& sheet) {
        sheet.TurnTo(Shortcut);
        sheet.TurnTo(General);
    }));
    EXPECT_EQ(done, MadeAnewWith(L"\\a.txt"));
}

TEST_F(ShortcutPageTest, that_is_cancelled_changes_nothing) {
    targetOfAll = L"\\a.txt";
    ShowPage(IDCANCEL, [](const OpenSheet& sheet) { sheet.SetText(EDIT_TARGET, L"\\b.txt"); });
    EXPECT_TRUE(done.empty());
    EXPECT_EQ(BytesOf(path_), "no matter");
}

TEST_F(ShortcutPageTest, says_nothing_when_the_shortcut_cannot_be_made_anew) {
    std::optional<AnsweredBoxes> boxes;
    ShowPage(IDOK, [&](const OpenSheet&) { boxes.emplace(std::initializer_list<int>{IDOK}); });
    EXPECT_EQ(done.size(), 2u);
    EXPECT_TRUE(boxes->Seen().empty());
}

// With the real shortcuts of the system.
class RealShortcutPage : public PropertiesTest {
  protected:
    std::wstring target_ = tree_.AddFile(L"a.txt", std::string(10, 'x'));
    std::wstring path_ = tree_.Path(L"s.lnk");
    [[nodiscard]] std::wstring TargetNow() const {
        wchar_t text[MAX_PATH] = L"";
        return ce::SHGetShortcutTarget(path_.c_str(), text, MAX_PATH) ? text : L"(none)";
    }
};

TEST_F(RealShortcutPage, points_the_shortcut_to_another_file) {
    ASSERT_TRUE(ce::SHCreateShortcut(path_.c_str(), target_.c_str()));
    const std::wstring other = L'"' + tree_.AddFile(L"b c.txt") + L'"';
    ShowSheet(path_, IDOK, [&](const OpenSheet& sheet) {
        sheet.TurnTo(Shortcut);
        EXPECT_EQ(sheet.Text(EDIT_TARGET), target_);
        EXPECT_EQ(sheet.Text(STATIC_TARGET_SIZE), L"10 bytes");
        sheet.SetText(EDIT_TARGET, other);
    });
    EXPECT_EQ(TargetNow(), other);
}

TEST_F(RealShortcutPage, of_a_text_shortcut_shows_its_target) {
    tree_.AddFile(L"s.lnk", "12#\\missing.txt");
    ShowSheet(path_, IDCANCEL, [&](const OpenSheet& sheet) {
        sheet.TurnTo(Shortcut);
        EXPECT_EQ(sheet.Text(EDIT_TARGET), L"\\missing.txt");
    });
    EXPECT_EQ(BytesOf(path_), "12#\\missing.txt");
}

TEST_F(RealShortcutPage, of_a_foreign_file_is_empty_and_survives) {
    tree_.AddFile(L"s.lnk", std::string(3000, '\x90'));
    ShowSheet(path_, IDCANCEL, [&](const OpenSheet& sheet) {
        sheet.TurnTo(Shortcut);
        EXPECT_EQ(sheet.Text(EDIT_TARGET), L"");
    });
    EXPECT_EQ(BytesOf(path_), std::string(3000, '\x90'));
}

TEST_F(RealShortcutPage, without_a_target_takes_the_shortcut_away) {
    ASSERT_TRUE(ce::SHCreateShortcut(path_.c_str(), target_.c_str()));
    ShowSheet(path_, IDOK, [&](const OpenSheet& sheet) {
        sheet.TurnTo(Shortcut);
        sheet.SetText(EDIT_TARGET, L"");
    });
    // The old one is deleted first, and nothing can be made of an empty text.
    EXPECT_EQ(GetFileAttributesW(path_.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(BytesOf(target_), std::string(10, 'x'));
}
