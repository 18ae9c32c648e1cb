// Links to single files, which some systems follow even where the link itself is meant; and files that are
// none.

#include <gtest/gtest.h>

#include "tests/platform/listing.h"
#include "tests/support/deadline.h"
#include "tests/support/temp_tree.h"

namespace {

bool Exists(const std::wstring& path) {
    return GetFileAttributesW(Literal(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

DWORD AttributesOf(const std::wstring& path) {
    return GetFileAttributesW(Literal(path).c_str()) & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY);
}

std::string ContentOf(const std::wstring& path) {
    std::FILE* const file = ce::OpenForReading(path.c_str());
    if (file == nullptr) return "(not opened)";
    char bytes[100];
    const std::size_t read = std::fread(bytes, 1, sizeof(bytes), file);
    std::fclose(file);
    return std::string(bytes, read);
}

// A system that cannot reach the link itself says so.
bool DoneOrRefused(BOOL done) {
    return done || GetLastError() == ERROR_NOT_SUPPORTED;
}

}  // namespace

TEST(FileLinks, keep_what_they_lead_to_when_they_are_deleted) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"a", "1");
    tree.AddFolder(L"sub");
    if (!tree.AddFileLink(L"link", L"a") || !tree.AddFileLink(L"sub\\a", L"a"))
        GTEST_SKIP() << "the system makes no links";
    EXPECT_TRUE(DoneOrRefused(ce::DeleteFileW(tree.Path(L"link").c_str())));
    EXPECT_TRUE(DoneOrRefused(ce::DeleteFileW(tree.Path(L"sub\\a").c_str())));
    EXPECT_TRUE(Exists(file));
}

TEST(FileLinks, keep_what_they_lead_to_where_it_stands_when_they_are_moved) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"sub\\a", "1");
    if (!tree.AddFileLink(L"link", L"sub\\a")) GTEST_SKIP() << "the system makes no links";
    EXPECT_TRUE(DoneOrRefused(ce::MoveFileW(tree.Path(L"link").c_str(), tree.Path(L"moved").c_str())));
    EXPECT_TRUE(Exists(file));
}

TEST(FileLinks, keep_the_attributes_of_what_they_lead_to) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"a", "1");
    const std::wstring folder = tree.AddFolder(L"folder");
    if (!tree.AddFileLink(L"link", L"a") || !tree.AddFolderLink(L"to folder", L"folder"))
        GTEST_SKIP() << "the system makes no links";
    ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_TRUE(DoneOrRefused(ce::SetFileAttributesW(tree.Path(L"link").c_str(), FILE_ATTRIBUTE_NORMAL)));
    EXPECT_TRUE(
        DoneOrRefused(ce::SetFileAttributesW(tree.Path(L"to folder").c_str(), FILE_ATTRIBUTE_READONLY)));
    EXPECT_EQ(AttributesOf(file), static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(AttributesOf(folder), static_cast<DWORD>(FILE_ATTRIBUTE_DIRECTORY));
    EXPECT_TRUE(ce::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL));
    EXPECT_EQ(AttributesOf(file), 0U);
}

TEST(FileLinks, keep_the_bytes_of_what_they_lead_to_when_they_are_copied_onto) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"sub\\a", "kept");
    const std::wstring other = tree.AddFile(L"b", "other");
    if (!tree.AddFileLink(L"link", L"sub\\a")) GTEST_SKIP() << "the system makes no links";
    EXPECT_FALSE(ce::CopyFileW(other.c_str(), tree.Path(L"link").c_str(), FALSE));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NOT_SUPPORTED));
    EXPECT_EQ(ContentOf(file), "kept");
}

TEST(FileLinks, that_lead_nowhere_are_not_copied_through) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"a", "1");
    const std::wstring target = tree.AddFile(L"target");
    if (!tree.AddFileLink(L"link", L"target")) GTEST_SKIP() << "the system makes no links";
    ASSERT_TRUE(DeleteFileW(target.c_str()));
    EXPECT_FALSE(ce::CopyFileW(file.c_str(), tree.Path(L"link").c_str(), FALSE));
    EXPECT_FALSE(Exists(target));
}

TEST(FileLinks, give_their_bytes_to_a_copy) {
    TempTree tree;
    tree.AddFile(L"sub\\a", "1");
    if (!tree.AddFileLink(L"link", L"sub\\a")) GTEST_SKIP() << "the system makes no links";
    EXPECT_TRUE(ce::CopyFileW(tree.Path(L"link").c_str(), tree.Path(L"copy").c_str(), FALSE));
    EXPECT_EQ(ContentOf(tree.Path(L"copy")), "1");
}

TEST(FileLinks, are_told_from_a_file_that_differs_in_letter_case_or_in_a_last_dot_only) {
    for (const wchar_t* link : {L"A", L"a.", L"a "}) {
        TempTree tree;
        const std::wstring file = tree.AddFile(L"a", "1");
        if (!tree.AddFileLink(link, L"a")) GTEST_SKIP() << "the system makes no links";
        // Until the host has made it, the file answers to the link's name.
        WaitUntil("the link", [&] { return List(tree.Path(L"*")).names.size() == 2; });
        EXPECT_TRUE(DoneOrRefused(ce::SetFileAttributesW(tree.Path(link).c_str(), FILE_ATTRIBUTE_READONLY)));
        EXPECT_TRUE(DoneOrRefused(ce::DeleteFileW(tree.Path(link).c_str())));
        EXPECT_EQ(AttributesOf(file), 0U) << "with the link " << testing::PrintToString(std::wstring(link));
        EXPECT_TRUE(Exists(file)) << "with the link " << testing::PrintToString(std::wstring(link));
        // The link is gone when nothing of its name is left, in any letter case.
        EXPECT_TRUE(DeleteFileW(Literal(file).c_str()));
    }
}

TEST(FileLinks, are_not_seen_in_files_that_differ_in_a_last_dot_only) {
    TempTree tree;
    for (const wchar_t* name : {L"a", L"a.", L"a ", L"a.."})
        tree.AddFile(name, "1");
    for (const wchar_t* name : {L"a.", L"a ", L"a..", L"a"}) {
        EXPECT_TRUE(ce::SetFileAttributesW(tree.Path(name).c_str(), FILE_ATTRIBUTE_NORMAL)) << GetLastError();
        EXPECT_TRUE(ce::DeleteFileW(tree.Path(name).c_str())) << GetLastError();
        EXPECT_FALSE(Exists(tree.Path(name)));
    }
}

TEST(FileLinks, are_not_seen_in_files_that_are_copied_over) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"a", "1");
    for (const wchar_t* name : {L"b", L"a.", L"con", L"ärger", L"long name with blanks.html"}) {
        tree.AddFile(name, "before");
        EXPECT_TRUE(ce::CopyFileW(file.c_str(), tree.Path(name).c_str(), FALSE)) << GetLastError();
        EXPECT_EQ(ContentOf(tree.Path(name)), "1");
    }
    EXPECT_TRUE(ce::CopyFileW(file.c_str(), tree.Path(L"ÄRGER").c_str(), FALSE)) << GetLastError();
}

TEST(FileLinks, do_not_keep_what_they_lead_to_from_being_deleted_by_its_own_name) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"a", "1");
    if (!tree.AddFileLink(L"link", L"a")) GTEST_SKIP() << "the system makes no links";
    EXPECT_TRUE(ce::DeleteFileW(file.c_str()));
    EXPECT_FALSE(Exists(file));
}

TEST(FileLinks, are_not_seen_in_a_file_that_is_reached_through_a_link_to_its_folder) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"sub\\a", "1");
    if (!tree.AddFolderLink(L"link", L"sub")) GTEST_SKIP() << "the system makes no links";
    EXPECT_TRUE(ce::DeleteFileW(tree.Path(L"link\\a").c_str()));
    EXPECT_FALSE(Exists(file));
}

TEST(FileLinks, are_not_seen_in_files_of_odd_names) {
    TempTree tree;
    for (const wchar_t* name :
         {L"a.", L"con", L" x", L"long name with blanks.html", L"日本語.txt", L"ä~1.b"}) {
        const std::wstring file = tree.AddFile(name, "1");
        EXPECT_TRUE(ce::MoveFileW(file.c_str(), tree.Path(L"moved").c_str())) << GetLastError();
        EXPECT_TRUE(ce::MoveFileW(tree.Path(L"moved").c_str(), file.c_str())) << GetLastError();
        EXPECT_TRUE(ce::DeleteFileW(file.c_str())) << GetLastError();
        EXPECT_FALSE(Exists(file));
    }
}

TEST(FileLinks, are_not_seen_in_a_file_that_is_called_by_its_short_name) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"long name with blanks.html", "1");
    wchar_t shortPath[MAX_PATH] = L"";
    ASSERT_NE(GetShortPathNameW(file.c_str(), shortPath, MAX_PATH), 0U);
    const std::wstring called = shortPath;
    const std::wstring shortName = called.substr(called.rfind(L'\\') + 1);
    if (shortName == L"long name with blanks.html") GTEST_SKIP() << "the system gives no short names";
    EXPECT_TRUE(ce::DeleteFileW(tree.Path(shortName).c_str())) << GetLastError();
    EXPECT_FALSE(Exists(file));
}

TEST(FileLinks, are_not_seen_where_letter_case_is_all_that_differs) {
    TempTree tree;
    tree.AddFile(L"ärger.txt", "1");
    EXPECT_TRUE(ce::DeleteFileW(tree.Path(L"ÄRGER.TXT").c_str())) << GetLastError();
}

TEST(FileLinks, are_not_seen_in_a_file_that_another_program_keeps_to_itself) {
    TempTree tree;
    const std::wstring file = tree.AddFile(L"a", "1");
    const HANDLE lock = CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    EXPECT_FALSE(ce::DeleteFileW(file.c_str()));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_SHARING_VIOLATION));
    CloseHandle(lock);
}
