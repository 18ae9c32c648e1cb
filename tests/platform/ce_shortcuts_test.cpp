// Shortcuts as the handheld writes them, as the desktop writes them, and files that only look like either.

#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <sstream>
#include <string>

#include "platform/windows_ce.h"
#include "tests/support/temp_tree.h"

namespace {

// What a target comes back as; "(none)" for what is no shortcut. Room for 260 units unless said otherwise.
std::wstring TargetOf(const std::wstring& shortcut, int capacity = 260) {
    std::wstring target(static_cast<std::size_t>(capacity) + 1, L'#');
    const BOOL read = ce::SHGetShortcutTarget(shortcut.c_str(), target.data(), capacity);
    EXPECT_EQ(target.back(), L'#') << "written past the room";
    target.resize(target.find(L'\0'));
    EXPECT_EQ(read == FALSE, target.empty());
    return read != FALSE ? target : L"(none)";
}

// Whether the shell answers what the rows and the properties ask of a shortcut file.
bool ShellKnows(const std::wstring& shortcut) {
    SHFILEINFOW info = {};
    const UINT flags = SHGFI_ICON | SHGFI_DISPLAYNAME | SHGFI_TYPENAME;
    const bool answered = ce::SHGetFileInfo(shortcut.c_str(), 0, &info, sizeof info, flags) != 0;
    if (info.hIcon != nullptr) DestroyIcon(info.hIcon);
    return answered && info.szTypeName[0] != L'\0';
}

class TextShortcut : public testing::Test {
  protected:
    std::wstring Read(std::string_view bytes, int capacity = 260) {
        return TargetOf(tree_.AddFile(L"a.lnk", bytes), capacity);
    }
    TempTree tree_;
};

class LinkedShortcut : public testing::Test {
  protected:
    // Makes a shortcut with this target and reads it again.
    std::wstring RoundTrip(const std::wstring& target) {
        EXPECT_TRUE(ce::SHCreateShortcut(shortcut_.c_str(), target.c_str()));
        return TargetOf(shortcut_);
    }
    std::string BytesOfLink() {
        EXPECT_TRUE(ce::SHCreateShortcut(shortcut_.c_str(), (file_ + L" one two").c_str()));
        std::ifstream stream(shortcut_.c_str(), std::ios::binary);
        std::ostringstream bytes;
        bytes << stream.rdbuf();
        return bytes.str();
    }
    static std::wstring Quoted(const std::wstring& text) { return L'"' + text + L'"'; }

    TempTree tree_;
    std::wstring file_ = tree_.AddFile(L"a.txt", "text");
    std::wstring shortcut_ = tree_.Path(L"s.lnk");
};

}  // namespace

TEST_F(TextShortcut, is_read_as_it_stands) {
    EXPECT_EQ(Read("6#\\a.txt"), L"\\a.txt");
    EXPECT_EQ(Read("21#\"\\My Documents\\a.txt\""), L"\"\\My Documents\\a.txt\"");
    EXPECT_EQ(Read("23#\"\\p q.exe\" /o \"x y\" /z"), L"\"\\p q.exe\" /o \"x y\" /z");
}

TEST_F(TextShortcut, ends_after_the_bytes_that_it_announces) {
    EXPECT_EQ(Read("4#\\abcdef"), L"\\abc");
    EXPECT_EQ(Read("0004#\\abcdef"), L"\\abc");
}

TEST_F(TextShortcut, may_announce_more_than_follows_and_end_with_its_line) {
    EXPECT_EQ(Read("255#\\a.txt"), L"\\a.txt");
    EXPECT_EQ(Read("255#\\a.txt\r\nmore"), L"\\a.txt");
    EXPECT_EQ(Read(std::string("255#\\a.txt\0more", 15)), L"\\a.txt");
    EXPECT_EQ(Read("99999999999999999999999#\\a.txt"), L"\\a.txt");
}

TEST_F(TextShortcut, keeps_its_tabs_and_whatever_else_ends_no_line) {
    EXPECT_EQ(Read("14#\\plain.exe\tx y"), L"\\plain.exe\tx y");
    EXPECT_EQ(Read("255#\\plain.exe\tx\ty\tz\r\n"), L"\\plain.exe\tx\ty\tz");
    EXPECT_EQ(Read("255#\\a.exe \x01\x1F z\nmore"), L"\\a.exe \x01\x1F z");
    EXPECT_EQ(Read("255#\\a.exe x\rmore"), L"\\a.exe x");
}

TEST_F(TextShortcut, is_in_the_systems_code_page) {
    if (GetACP() == 932) {
        EXPECT_EQ(Read("7#\\\x93\xFA\x96\x7B\xB1.x"), L"\\日本ｱ.");
    } else {
        EXPECT_EQ(Read("5#\\\xE9\xFC.xy"), L"\\éü.x");
    }
}

TEST_F(TextShortcut, that_is_damaged_is_none) {
    for (const std::string_view bytes :
         {"", "#", "#\\a", "6", "6#", "6\\a.txt", "x6#\\a.txt", "-6#\\a.txt", "+6#\\a.txt", " 6#\\a.txt",
          "0x6#\\a.txt", "6 #\\a.txt", "0#\\a.txt", "6#\r\n\\a.txt",
          "\xEF\xBB\xBF"
          "6#\\a.txt"}) {
        EXPECT_EQ(Read(bytes), L"(none)") << testing::PrintToString(std::string(bytes));
    }
    EXPECT_EQ(Read(std::string_view("6#\0\\a.txt", 9)), L"(none)");
}

TEST_F(TextShortcut, that_is_anything_else_is_none) {
    EXPECT_EQ(Read("MZ\x90 this program cannot be run"), L"(none)");
    EXPECT_EQ(Read("[InternetShortcut]\r\nURL=http://localhost/\r\n"), L"(none)");
    EXPECT_EQ(Read(std::string(100000, 'x')), L"(none)");
    EXPECT_EQ(Read(std::string(100000, '9')), L"(none)");
    EXPECT_EQ(Read(std::string(100000, '\0')), L"(none)");
}

TEST_F(TextShortcut, fits_the_room_or_is_none) {
    const std::string name = "\\" + std::string(1038, 'n');
    EXPECT_EQ(Read("1039#" + name, 1040).size(), 1039u);
    EXPECT_EQ(Read("1040#" + name + "n", 1040), L"(none)");
    EXPECT_EQ(Read("9999#\\" + std::string(9998, 'n'), 1040), L"(none)");
    EXPECT_EQ(Read("6#\\a.txt", 6), L"(none)");
    EXPECT_EQ(Read("6#\\a.txt", 7), L"\\a.txt");
}

TEST_F(TextShortcut, is_no_folder_and_no_missing_file) {
    EXPECT_EQ(TargetOf(tree_.AddFolder(L"folder.lnk")), L"(none)");
    EXPECT_EQ(TargetOf(tree_.Path(L"missing.lnk")), L"(none)");
    EXPECT_EQ(TargetOf(L""), L"(none)");
    EXPECT_EQ(TargetOf(tree_.Path(std::wstring(300, L'n'))), L"(none)");
}

TEST_F(TextShortcut, writes_nothing_where_there_is_no_room) {
    const std::wstring path = tree_.AddFile(L"a.lnk", "6#\\a.txt");
    wchar_t unit = L'#';
    EXPECT_FALSE(ce::SHGetShortcutTarget(path.c_str(), &unit, 0));
    EXPECT_EQ(unit, L'#');
    EXPECT_FALSE(ce::SHGetShortcutTarget(path.c_str(), &unit, 1));
    EXPECT_EQ(unit, L'\0');
}

TEST_F(LinkedShortcut, gives_back_the_target_that_it_was_made_with) {
    EXPECT_EQ(RoundTrip(file_), file_);
    EXPECT_EQ(RoundTrip(file_ + L" one two"), file_ + L" one two");
    const std::wstring spaced = tree_.AddFile(L"a b.txt");
    EXPECT_EQ(RoundTrip(Quoted(spaced)), Quoted(spaced));
    EXPECT_EQ(RoundTrip(Quoted(spaced) + L" /o \"x y\""), Quoted(spaced) + L" /o \"x y\"");
    const std::wstring japanese = tree_.AddFile(L"日報.txt");
    EXPECT_EQ(RoundTrip(japanese), japanese);
}

TEST_F(LinkedShortcut, may_point_to_a_folder_to_a_shortcut_and_to_nothing) {
    const std::wstring folder = tree_.AddFolder(L"folder");
    EXPECT_EQ(RoundTrip(folder), folder);
    const std::wstring missing = tree_.Path(L"missing.txt");
    EXPECT_EQ(RoundTrip(missing), missing);
    const std::wstring second = tree_.Path(L"second.lnk");
    ASSERT_TRUE(ce::SHCreateShortcut(second.c_str(), shortcut_.c_str()));
    EXPECT_EQ(TargetOf(second), shortcut_);
}

TEST_F(LinkedShortcut, is_made_over_one_that_is_there) {
    EXPECT_EQ(RoundTrip(file_), file_);
    const std::wstring other = tree_.AddFile(L"b.txt");
    EXPECT_EQ(RoundTrip(other), other);
}

TEST_F(LinkedShortcut, has_a_drive_even_where_the_target_has_none) {
    wchar_t current[MAX_PATH] = L"";
    ASSERT_NE(GetCurrentDirectoryW(MAX_PATH, current), 0u);
    EXPECT_EQ(RoundTrip(L"\\a.txt"), std::wstring(current, 2) + L"\\a.txt");
}

TEST_F(LinkedShortcut, is_not_made_without_a_target_nor_where_there_is_no_folder) {
    for (const wchar_t* target : {L"", L"\"\"", L"\"\" one", L" one"}) {
        EXPECT_FALSE(ce::SHCreateShortcut(shortcut_.c_str(), target)) << testing::PrintToString(target);
        EXPECT_EQ(GetFileAttributesW(shortcut_.c_str()), INVALID_FILE_ATTRIBUTES);
    }
    EXPECT_FALSE(ce::SHCreateShortcut(shortcut_.c_str(), (L"\\" + std::wstring(300, L'n')).c_str()));
    EXPECT_FALSE(ce::SHCreateShortcut(tree_.Path(L"missing\\s.lnk").c_str(), file_.c_str()));
}

TEST_F(LinkedShortcut, too_long_for_the_room_is_none) {
    const std::wstring target = file_ + L" " + std::wstring(260, L'n');
    ASSERT_TRUE(ce::SHCreateShortcut(shortcut_.c_str(), target.c_str()));
    EXPECT_EQ(TargetOf(shortcut_), L"(none)");
    EXPECT_EQ(TargetOf(shortcut_, 1040), target);
}

TEST_F(LinkedShortcut, cut_off_anywhere_ends_in_silence) {
    const std::string whole = BytesOfLink();
    ASSERT_GT(whole.size(), 76u) << "no more than a header";
    int unread = 0;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::wstring cut = tree_.AddFile(L"cut.lnk", whole.substr(0, length));
        unread += TargetOf(cut) == L"(none)" ? 1 : 0;
        EXPECT_TRUE(ShellKnows(cut));
    }
    EXPECT_GE(unread, 76) << "a link without even its header was read";
}

TEST_F(LinkedShortcut, with_changed_bytes_ends_in_silence) {
    const std::string whole = BytesOfLink();
    std::mt19937 random(20020715);
    for (int round = 0; round < 300; ++round) {
        std::string bytes = whole;
        for (int change = 0; change < 4; ++change)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        const std::wstring changed = tree_.AddFile(L"changed.lnk", bytes);
        TargetOf(changed);
        EXPECT_TRUE(ShellKnows(changed));
    }
}
