// Names that change in nothing but their spelling.

#include "platform/desktop/file_identity.h"

#include "tests/platform/listing.h"
#include "tests/support/temp_tree.h"

namespace {

Names NamesIn(const TempTree& tree) {
    return Sorted(List(tree.Path(L"*")).names);
}

bool Renames(const TempTree& tree, const wchar_t* from, const wchar_t* to) {
    return ce::MoveFileW(tree.Path(from).c_str(), tree.Path(to).c_str()) != FALSE;
}

// The call of this number, from 1, fails.
int failingCall = 0;
int calls = 0;

BOOL WINAPI MoveOrFail(const wchar_t* from, const wchar_t* to) {
    if (++calls != failingCall) return MoveFileW(from, to);
    SetLastError(ERROR_SHARING_VIOLATION);
    return FALSE;
}

// Nothing is done from the call of this number on.
int lastCall = 0;

BOOL WINAPI MoveUntilTheEnd(const wchar_t* from, const wchar_t* to) {
    return ++calls <= lastCall && MoveFileW(from, to);
}

}  // namespace

TEST(RenamingByCase, changes_the_name_in_the_folder) {
    TempTree tree;
    tree.AddFile(L"notes.txt", "1");
    EXPECT_TRUE(Renames(tree, L"notes.txt", L"NOTES.txt")) << GetLastError();
    EXPECT_EQ(NamesIn(tree), Names{L"NOTES.txt"});
    EXPECT_TRUE(Renames(tree, L"NOTES.txt", L"Notes.TXT")) << GetLastError();
    EXPECT_EQ(NamesIn(tree), Names{L"Notes.TXT"});
}

TEST(RenamingByCase, changes_letters_of_every_language) {
    TempTree tree;
    tree.AddFile(L"Äпａ", "1");
    EXPECT_TRUE(Renames(tree, L"Äпａ", L"äПＡ")) << GetLastError();
    EXPECT_EQ(NamesIn(tree), Names{L"äПＡ"});
}

TEST(RenamingByCase, changes_the_name_of_a_folder_and_nothing_in_it) {
    TempTree tree;
    tree.AddFile(L"sub\\a.txt", "1");
    EXPECT_TRUE(Renames(tree, L"sub", L"Sub")) << GetLastError();
    EXPECT_EQ(NamesIn(tree), Names{L"Sub"});
    EXPECT_EQ(List(tree.Path(L"Sub\\*")).names, Names{L"a.txt"});
}

TEST(RenamingByCase, leaves_files_alone_that_have_the_third_name) {
    TempTree tree;
    tree.AddFile(L"a", "1");
    tree.AddFile(L"rename~1 a", "2");
    EXPECT_TRUE(Renames(tree, L"a", L"A")) << GetLastError();
    EXPECT_EQ(NamesIn(tree), (Names{L"A", L"rename~1 a"}));
}

TEST(RenamingByCase, to_the_very_same_name_changes_nothing) {
    TempTree tree;
    tree.AddFile(L"a", "1");
    EXPECT_TRUE(Renames(tree, L"a", L"a")) << GetLastError();
    EXPECT_EQ(NamesIn(tree), Names{L"a"});
}

TEST(RenamingByCase, works_up_to_the_longest_path) {
    TempTree tree;
    const std::wstring folder(100, L'f');
    const std::wstring name(MAX_PATH - 1 - tree.Path(folder).size() - 1, L'n');
    tree.AddFile(folder + L"\\" + name, "1");
    const std::wstring upper(name.size(), L'N');
    ASSERT_EQ(tree.Path(folder + L"\\" + upper).size(), static_cast<std::size_t>(MAX_PATH - 1));
    EXPECT_TRUE(Renames(tree, (folder + L"\\" + name).c_str(), (folder + L"\\" + upper).c_str()))
        << GetLastError();
    EXPECT_EQ(List(tree.Path(folder + L"\\*")).names, Names{upper});
}

TEST(RenamingByCase, of_a_file_in_use_leaves_it_alone) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"a", "1");
    const HANDLE lock = CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    EXPECT_FALSE(Renames(tree, L"a", L"A"));
    CloseHandle(lock);
    EXPECT_EQ(NamesIn(tree), Names{L"a"});
}

TEST(RenamingByCase, is_undone_whichever_of_its_steps_fails) {
    for (failingCall = 1; failingCall <= 3; ++failingCall) {
        TempTree tree;
        const std::wstring from = Literal(tree.AddFile(L"a", "1"));
        const std::wstring to = Literal(tree.Path(L"A"));
        calls = 0;
        const BOOL renamed = RespellEntry(from.c_str(), to.c_str(), &MoveOrFail);
        // Where the first call does it all, there are no others.
        if (calls < failingCall) {
            EXPECT_TRUE(renamed);
            EXPECT_EQ(NamesIn(tree), Names{L"A"});
            continue;
        }
        EXPECT_FALSE(renamed);
        EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_SHARING_VIOLATION));
        EXPECT_EQ(NamesIn(tree), Names{L"a"}) << "step " << failingCall;
    }
}

TEST(RenamingByCase, that_ends_in_the_middle_leaves_a_name_with_the_whole_old_one_in_it) {
    for (const std::wstring& name : {std::wstring(L"notes.txt"), std::wstring(60, L'n')}) {
        TempTree tree;
        const std::wstring from = Literal(tree.AddFile(name, "1"));
        std::wstring upper = name;
        CharUpperW(upper.data());
        calls = 0;
        lastCall = 2;
        const BOOL renamed = RespellEntry(from.c_str(), Literal(tree.Path(upper)).c_str(), &MoveUntilTheEnd);
        EXPECT_EQ(NamesIn(tree), Names{renamed ? upper : L"rename~1 " + name});
    }
}

TEST(RenamingByCase, of_the_longest_names_ends_with_the_new_one) {
    TempTree tree;
    // 255 bytes, more than which many file systems have no room for; one begins in the middle of a character.
    for (const wchar_t* begin : {L"", L"x"}) {
        std::wstring name = begin;
        while (name.size() < 116)
            name += L"\U0001F600";
        tree.AddFile(name + L"a", "1");
        EXPECT_TRUE(Renames(tree, (name + L"a").c_str(), (name + L"A").c_str())) << GetLastError();
        EXPECT_EQ(NamesIn(tree), Names{name + L"A"});
        EXPECT_TRUE(DeleteFileW(Literal(tree.Path(name + L"A")).c_str()));
    }
}

TEST(Renaming, to_the_name_of_a_link_to_the_file_is_refused) {
    TempTree tree;
    tree.AddFile(L"a", "1");
    if (!tree.AddFileLink(L"link", L"a")) GTEST_SKIP() << "the system makes no links";
    EXPECT_FALSE(Renames(tree, L"a", L"link"));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ALREADY_EXISTS));
    EXPECT_EQ(NamesIn(tree), (Names{L"a", L"link"}));
}

TEST(Renaming, to_the_name_of_another_hard_link_is_refused) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"a", "1");
    if (!CreateHardLinkW(tree.Path(L"b").c_str(), file.c_str(), nullptr))
        GTEST_SKIP() << "the system makes no links";
    EXPECT_FALSE(Renames(tree, L"a", L"b"));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ALREADY_EXISTS));
    EXPECT_EQ(NamesIn(tree), (Names{L"a", L"b"}));
}
