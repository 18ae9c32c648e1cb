// What the shell is told and asked about files whose names it takes for other ones.

#include "platform/desktop/shell_files.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/windows_ce.h"
#include "tests/platform/current_folder.h"
#include "tests/results/registered_types.h"
#include "tests/support/temp_tree.h"

namespace {

// As any program opens what the shell tells it.
std::string ContentOf(const wchar_t* path) {
    const HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return "(not opened)";
    char bytes[100];
    DWORD read = 0;
    ReadFile(file, bytes, sizeof bytes, &read, nullptr);
    CloseHandle(file);
    return std::string(bytes, read);
}

std::wstring LongPathIn(TempTree& tree, int units, const std::wstring& extension) {
    const std::wstring folder(100, L'f');
    const std::size_t taken = tree.Path(folder).size() + 1 + extension.size();
    return folder + L"\\" + std::wstring(static_cast<std::size_t>(units) - taken, L'n') + extension;
}

class ShellFiles : public testing::Test {
  protected:
    ShellFiles() {
        types_.Add(L".qzz", L"qzz.kind");
        types_.Add(L"qzz.kind", L"Kind of qzz");
    }
    static SHFILEINFOW Info(const std::wstring& path) {
        SHFILEINFOW info = {};
        const UINT flags = SHGFI_ICON | SHGFI_DISPLAYNAME | SHGFI_TYPENAME;
        EXPECT_NE(ce::SHGetFileInfo(path.c_str(), 0, &info, sizeof info, flags), 0U);
        if (info.hIcon != nullptr) DestroyIcon(info.hIcon);
        return info;
    }
    static std::wstring TypeOf(const std::wstring& path) { return Info(path).szTypeName; }
    static std::wstring NameOf(const std::wstring& path) { return Info(path).szDisplayName; }

    RegisteredTypes types_;
    TempTree tree_;
};

}  // namespace

TEST(ShellPath, of_an_ordinary_file_is_its_own_path) {
    TempTree tree;
    wchar_t found[MAX_PATH];
    for (const wchar_t* name : {L"a.txt", L"A b", L" a", L".x", L"日本.txt", L"missing.txt"}) {
        const std::wstring path = tree.Path(name);
        EXPECT_TRUE(ShellTakesPath(path.c_str()));
        ASSERT_TRUE(FindShellPath(path.c_str(), found));
        EXPECT_EQ(path, found);
        // The same without a drive.
        ASSERT_TRUE(FindShellPath((L"\\" + std::wstring(name)).c_str(), found));
        EXPECT_EQ(path.substr(1, 2) + name, std::wstring(found).substr(1));
    }
}

TEST(ShellPath, leads_to_the_very_file_or_is_none) {
    TempTree tree;
    for (const wchar_t* beside : {L"a.txt", L"a", L"f\\in.txt"})
        tree.AddFile(beside, "another");
    for (const wchar_t* name :
         {L"a.txt.", L"a.txt ", L"a.", L"a ", L"a. .", L"con", L"aux.txt", L"f.\\in.txt"}) {
        const std::wstring path = tree.AddFile(name, "this");
        EXPECT_FALSE(ShellTakesPath(path.c_str())) << testing::PrintToString(std::wstring(name));
        wchar_t found[MAX_PATH];
        if (!FindShellPath(path.c_str(), found)) continue;
        EXPECT_EQ(ContentOf(found), "this") << testing::PrintToString(std::wstring(name));
    }
}

TEST(ShellPath, of_a_missing_file_is_none_where_another_one_would_be_taken_for_it) {
    TempTree tree;
    tree.AddFile(L"a.txt", "another");
    wchar_t found[MAX_PATH];
    EXPECT_FALSE(FindShellPath(tree.Path(L"a.txt.").c_str(), found));
    EXPECT_FALSE(FindShellPath(tree.Path(L"a.txt ").c_str(), found));
}

TEST(ShellPath, of_an_address_is_not_looked_at) {
    EXPECT_TRUE(ShellTakesPath(L"http://localhost/a."));
    EXPECT_TRUE(ShellTakesPath(L"mailto:a."));
}

TEST_F(ShellFiles, whose_names_end_in_a_dot_or_a_blank_are_not_taken_for_others) {
    for (const wchar_t* beside : {L"a.qzz", L"a", L"a.exe"})
        tree_.AddFile(beside, "another");
    const std::wstring typeOfPlain = TypeOf(tree_.AddFile(L"plain"));
    for (const wchar_t* name : {L"a.qzz.", L"a.qzz ", L"a.", L"a ", L"a.exe."}) {
        const std::wstring path = tree_.AddFile(name);
        EXPECT_EQ(NameOf(path), name);
        EXPECT_EQ(TypeOf(path), typeOfPlain) << testing::PrintToString(std::wstring(name));
    }
}

TEST_F(ShellFiles, that_are_missing_are_not_answered_by_others) {
    tree_.AddFile(L"a.qzz", "another");
    SHFILEINFOW info = {};
    EXPECT_EQ(ce::SHGetFileInfo(tree_.Path(L"a.qzz.").c_str(), 0, &info, sizeof info, SHGFI_TYPENAME), 0U);
    EXPECT_EQ(ce::SHGetFileInfo(tree_.Path(L"a.qzz ").c_str(), 0, &info, sizeof info, SHGFI_TYPENAME), 0U);
    EXPECT_STREQ(info.szTypeName, L"");
}

TEST_F(ShellFiles, with_names_of_devices_are_files_of_their_extension) {
    const std::wstring path = tree_.AddFile(L"aux.qzz");
    EXPECT_EQ(TypeOf(path), L"Kind of qzz");
    EXPECT_EQ(NameOf(path), L"aux.qzz");
    EXPECT_EQ(TypeOf(tree_.AddFile(L"con")), TypeOf(tree_.AddFile(L"plain")));
}

TEST_F(ShellFiles, in_folders_whose_names_end_in_a_dot_have_their_own_name_and_type) {
    tree_.AddFile(L"f\\in.qzz");
    const std::wstring path = tree_.AddFile(L"f.\\in.qzz");
    EXPECT_EQ(TypeOf(path), L"Kind of qzz");
    EXPECT_EQ(NameOf(path), L"in.qzz");
    EXPECT_EQ(TypeOf(tree_.AddFolder(L"f.\\deep")), TypeOf(tree_.AddFolder(L"deep")));
}

TEST_F(ShellFiles, of_the_longest_paths_have_their_name_and_type) {
    const CurrentFolder current(tree_.Root());
    for (int units = MAX_PATH - 6; units < MAX_PATH; ++units) {
        // Without its drive the path is one of the program's, with it one of the system's.
        const std::wstring relative = LongPathIn(tree_, units + 2, L".qzz");
        const std::wstring path = tree_.AddFile(relative).substr(2);
        ASSERT_EQ(path.size(), static_cast<std::size_t>(units));
        EXPECT_EQ(TypeOf(path), L"Kind of qzz") << units << " units";
        EXPECT_EQ(NameOf(path), relative.substr(101)) << units << " units";
    }
}

TEST_F(ShellFiles, get_shortcuts_that_lead_to_the_very_file) {
    for (const wchar_t* beside : {L"a.txt", L"a"})
        tree_.AddFile(beside, "another");
    for (const wchar_t* name : {L"a.txt.", L"a ", L"con"}) {
        const std::wstring path = tree_.AddFile(name, "this");
        const std::wstring shortcut = tree_.Path(L"s.lnk");
        wchar_t target[MAX_PATH] = L"";
        if (!ce::SHCreateShortcut(shortcut.c_str(), (L'"' + path + L'"').c_str())) continue;
        ASSERT_TRUE(ce::SHGetShortcutTarget(shortcut.c_str(), target, MAX_PATH));
        const std::wstring text = target;
        const std::wstring unquoted = text[0] == L'"' ? text.substr(1, text.size() - 2) : text;
        EXPECT_EQ(ContentOf(unquoted.c_str()), "this") << testing::PrintToString(std::wstring(name));
    }
}

TEST_F(ShellFiles, get_shortcuts_in_the_very_folder) {
    const std::wstring file = tree_.AddFile(L"a.txt");
    tree_.AddFolder(L"f");
    tree_.AddFolder(L"f.");
    ASSERT_TRUE(ce::SHCreateShortcut(tree_.Path(L"f.\\s.lnk").c_str(), file.c_str()));
    EXPECT_EQ(ce::GetFileAttributesW(tree_.Path(L"f\\s.lnk").c_str()), INVALID_FILE_ATTRIBUTES);
    wchar_t target[MAX_PATH] = L"";
    EXPECT_TRUE(ce::SHGetShortcutTarget(tree_.Path(L"f.\\s.lnk").c_str(), target, MAX_PATH));
    EXPECT_EQ(file, target);
}

TEST_F(ShellFiles, keep_their_bytes_where_a_shortcut_would_be_written_through_a_link) {
    const std::wstring file = tree_.AddFile(L"a.lnk", "6#\\a.txt");
    if (!tree_.AddFileLink(L"link.lnk", L"a.lnk")) GTEST_SKIP() << "the system makes no links";
    EXPECT_FALSE(ce::SHCreateShortcut(tree_.Path(L"link.lnk").c_str(), file.c_str()));
    EXPECT_EQ(ContentOf(file.c_str()), "6#\\a.txt");
}
