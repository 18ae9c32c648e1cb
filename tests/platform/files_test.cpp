#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/windows_ce.h"
#include "tests/support/temp_tree.h"

namespace {

using Names = std::vector<std::wstring>;

// The names in the order of the listing, which is the system's own, and how it ended.
struct ListingAnswer {
    Names names;
    DWORD ending = 0;
};

ListingAnswer List(const std::wstring& pattern) {
    ListingAnswer answer;
    WIN32_FIND_DATAW data;
    const HANDLE search = ce::FindFirstFileW(pattern.c_str(), &data);
    if (search == INVALID_HANDLE_VALUE) {
        answer.ending = GetLastError();
        return answer;
    }
    do {
        answer.names.emplace_back(data.cFileName);
    } while (ce::FindNextFileW(search, &data));
    answer.ending = GetLastError();
    EXPECT_TRUE(ce::FindClose(search));
    return answer;
}

Names Sorted(Names names) {
    std::sort(names.begin(), names.end());
    return names;
}

std::string ContentOf(const std::wstring& path) {
    std::FILE* const file = ce::OpenForReading(path.c_str());
    if (file == nullptr) return "(not opened)";
    char bytes[100];
    const std::size_t read = std::fread(bytes, 1, sizeof(bytes), file);
    std::fclose(file);
    return std::string(bytes, read);
}

// Another current folder for as long as it lives.
class CurrentFolder {
  public:
    explicit CurrentFolder(const std::wstring& folder) {
        GetCurrentDirectoryW(MAX_PATH, before);
        EXPECT_TRUE(SetCurrentDirectoryW(folder.c_str()));
    }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder() {
        // One that cannot be gone back to would keep the tree from being deleted.
        if (!SetCurrentDirectoryW(before)) SetCurrentDirectoryW(L"\\");
    }

  private:
    wchar_t before[MAX_PATH] = {};
};

}  // namespace

TEST(FolderListing, has_no_entries_for_the_folder_itself_and_its_parent) {
    TempTree tree;
    tree.AddFile(L"a.txt");
    tree.AddFolder(L"sub");
    EXPECT_EQ(Sorted(List(tree.Path(L"*")).names), (Names{L"a.txt", L"sub"}));
    EXPECT_EQ(Sorted(List(tree.Path(L"*.*")).names), (Names{L"a.txt", L"sub"}));
    EXPECT_EQ(List(tree.Path(L".*")).names, Names{});
    EXPECT_EQ(List(tree.Path(L".")).names, Names{});
}

TEST(FolderListing, ends_with_no_more_files) {
    TempTree tree;
    tree.AddFile(L"a.txt");
    EXPECT_EQ(List(tree.Path(L"*")).ending, static_cast<DWORD>(ERROR_NO_MORE_FILES));
}

TEST(FolderListing, of_an_empty_folder_finds_nothing) {
    TempTree tree;
    const ListingAnswer answer = List(tree.Path(L"*"));
    EXPECT_EQ(answer.names, Names{});
    EXPECT_EQ(answer.ending, static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
}

TEST(FolderListing, in_which_nothing_matches_finds_nothing) {
    TempTree tree;
    tree.AddFile(L"a.txt");
    const ListingAnswer answer = List(tree.Path(L"*.doc"));
    EXPECT_EQ(answer.names, Names{});
    EXPECT_EQ(answer.ending, static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
}

TEST(FolderListing, of_what_is_no_folder_says_that_the_path_is_not_found) {
    TempTree tree;
    tree.AddFile(L"a.txt");
    for (const wchar_t* pattern : {L"missing\\*", L"a.txt\\*", L"mis*ing\\*", L"missing\\deeper\\*.txt"}) {
        const ListingAnswer answer = List(tree.Path(pattern));
        EXPECT_EQ(answer.names, Names{}) << testing::PrintToString(std::wstring(pattern));
        EXPECT_EQ(answer.ending, static_cast<DWORD>(ERROR_PATH_NOT_FOUND))
            << testing::PrintToString(std::wstring(pattern));
    }
}

TEST(FolderListing, matches_names_by_their_own_text_and_not_by_short_names) {
    TempTree tree;
    tree.AddFile(L"page.htm");
    tree.AddFile(L"longer page.html");
    EXPECT_EQ(List(tree.Path(L"*.htm")).names, Names{L"page.htm"});
    EXPECT_EQ(List(tree.Path(L"*~*")).names, Names{});
}

TEST(FolderListing, is_blind_to_case) {
    TempTree tree;
    tree.AddFile(L"ABC.TXT");
    EXPECT_EQ(List(tree.Path(L"abc*")).names, Names{L"ABC.TXT"});
}

TEST(FolderListing, of_every_name_includes_names_without_a_dot) {
    TempTree tree;
    tree.AddFile(L"readme");
    EXPECT_EQ(List(tree.Path(L"*.*")).names, Names{L"readme"});
}

TEST(FolderListing, takes_a_question_mark_as_exactly_one_unit) {
    TempTree tree;
    tree.AddFile(L"ab");
    tree.AddFile(L"abc");
    tree.AddFile(L"abcd");
    EXPECT_EQ(List(tree.Path(L"ab?")).names, Names{L"abc"});
}

TEST(FolderListing, takes_folders_that_the_pattern_names) {
    TempTree tree;
    tree.AddFile(L"a.txt");
    tree.AddFile(L"sub\\b.txt");
    EXPECT_EQ(List(tree.Path(L"sub\\*.txt")).names, Names{L"b.txt"});
    EXPECT_EQ(List(tree.Path(L"sub/*.txt")).names, Names{L"b.txt"});
}

TEST(FolderListing, of_a_path_without_wildcards_answers_that_one) {
    TempTree tree;
    tree.AddFile(L"a.txt", "12345");
    tree.AddFile(L"a.txt.bak");
    tree.AddFolder(L"sub");
    EXPECT_EQ(List(tree.Path(L"a.txt")).names, Names{L"a.txt"});
    EXPECT_EQ(List(tree.Path(L"sub")).names, Names{L"sub"});
    EXPECT_EQ(List(tree.Path(L"b.txt")).ending, static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(List(tree.Path(L"missing\\a.txt")).ending, static_cast<DWORD>(ERROR_PATH_NOT_FOUND));

    WIN32_FIND_DATAW data = {};
    const HANDLE search = ce::FindFirstFileW(tree.Path(L"a.txt").c_str(), &data);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    ce::FindClose(search);
    EXPECT_EQ(data.nFileSizeLow, 5U);
}

TEST(FolderListing, of_a_path_without_a_name_finds_nothing) {
    TempTree tree;
    EXPECT_EQ(List(tree.Root() + L"\\").ending, static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(List(L"\\").ending, static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(List(L"").ending, static_cast<DWORD>(ERROR_PATH_NOT_FOUND));
}

TEST(FolderListing, of_a_pattern_that_is_too_long_finds_no_path) {
    EXPECT_EQ(List(L"\\" + std::wstring(MAX_PATH, L'a') + L"\\*").ending,
              static_cast<DWORD>(ERROR_PATH_NOT_FOUND));
}

TEST(FolderListing, starts_at_the_root_of_the_current_drive_or_in_the_current_folder) {
    TempTree tree;
    tree.AddFile(L"sub\\b.txt");
    const CurrentFolder current(tree.Path(L"sub"));
    EXPECT_EQ(List(tree.Path(L"sub\\*").substr(2)).names, Names{L"b.txt"});
    EXPECT_EQ(List(L"*").names, Names{L"b.txt"});
    EXPECT_EQ(List(L".\\*").names, Names{L"b.txt"});
    EXPECT_EQ(List(L"..\\*").names, Names{L"sub"});
    EXPECT_EQ(List(tree.Root().substr(0, 2) + L"*").names, Names{L"b.txt"});
}

TEST(FolderListing, keeps_folders_apart_whose_names_end_in_dots_or_spaces) {
    TempTree tree;
    tree.AddFile(L"a\\plain");
    tree.AddFile(L"a.\\with dot");
    tree.AddFile(L"a \\with space");
    EXPECT_EQ(List(tree.Path(L"a\\*")).names, Names{L"plain"});
    EXPECT_EQ(List(tree.Path(L"a.\\*")).names, Names{L"with dot"});
    EXPECT_EQ(List(tree.Path(L"a \\*")).names, Names{L"with space"});
}

TEST(FolderListing, refuses_handles_that_are_none) {
    WIN32_FIND_DATAW data;
    SetLastError(0);
    EXPECT_FALSE(ce::FindNextFileW(INVALID_HANDLE_VALUE, &data));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
    SetLastError(0);
    EXPECT_FALSE(ce::FindClose(INVALID_HANDLE_VALUE));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_HANDLE));
    EXPECT_FALSE(ce::FindClose(nullptr));
}

TEST(OpenForReading, reads_bytes_as_they_stand) {
    TempTree tree;
    EXPECT_EQ(ContentOf(tree.AddFile(L"a", "x\r\ny\x1Az")), "x\r\ny\x1Az");
}

TEST(OpenForReading, opens_files_whose_names_the_desktop_takes_for_something_else) {
    TempTree tree;
    tree.AddFile(L"a", "plain");
    EXPECT_EQ(ContentOf(tree.AddFile(L"a.", "with dot")), "with dot");
    EXPECT_EQ(ContentOf(tree.AddFile(L"con", "no console")), "no console");
    EXPECT_EQ(ContentOf(tree.AddFile(L"aux.c", "no port")), "no port");
    EXPECT_EQ(ContentOf(tree.AddFile(L"nul.txt", "not nothing")), "not nothing");
}

TEST(OpenForReading, does_not_open_folders_missing_or_locked_files) {
    TempTree tree;
    EXPECT_EQ(ce::OpenForReading(tree.AddFolder(L"sub").c_str()), nullptr);
    EXPECT_EQ(ce::OpenForReading(tree.Path(L"missing").c_str()), nullptr);
    EXPECT_EQ(ce::OpenForReading(std::wstring(MAX_PATH, L'a').c_str()), nullptr);
    const std::wstring path = tree.AddFile(L"locked", "x");
    const HANDLE lock = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    EXPECT_EQ(ce::OpenForReading(path.c_str()), nullptr);
    CloseHandle(lock);
    EXPECT_EQ(ContentOf(path), "x");
}

TEST(OpenForReading, does_not_open_what_is_no_file_on_a_disk) {
    const wchar_t name[] = L"\\\\.\\pipe\\quorin_open_test";
    const HANDLE pipe = CreateNamedPipeW(name, PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 1, 100, 100, 0, nullptr);
    ASSERT_NE(pipe, INVALID_HANDLE_VALUE);
    EXPECT_EQ(ce::OpenForReading(name), nullptr);
    CloseHandle(pipe);
}

TEST(OpenForReading, lets_others_write_and_delete_meanwhile) {
    TempTree tree;
    const std::wstring path = tree.AddFile(L"a", "x");
    std::FILE* const file = ce::OpenForReading(path.c_str());
    ASSERT_NE(file, nullptr);
    const HANDLE writer =
        CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(writer, INVALID_HANDLE_VALUE);
    CloseHandle(writer);
    EXPECT_TRUE(DeleteFileW(path.c_str()));
    std::fclose(file);
}

TEST(FileCalls, touch_the_very_name_that_they_are_given) {
    TempTree tree;
    tree.AddFile(L"a", "plain");
    const std::wstring dotted = tree.AddFile(L"a.", "with dot");
    ASSERT_TRUE(ce::SetFileAttributesW(dotted.c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_NE(ce::GetFileAttributesW(dotted.c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
    EXPECT_EQ(ce::GetFileAttributesW(tree.Path(L"a").c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
    ASSERT_TRUE(ce::SetFileAttributesW(dotted.c_str(), FILE_ATTRIBUTE_NORMAL));

    ASSERT_TRUE(ce::CopyFileW(dotted.c_str(), tree.Path(L"copy.").c_str(), TRUE));
    ASSERT_TRUE(ce::MoveFileW(tree.Path(L"copy.").c_str(), tree.Path(L"moved ").c_str()));
    ASSERT_TRUE(ce::DeleteFileW(dotted.c_str()));
    ASSERT_TRUE(ce::CreateDirectoryW(tree.Path(L"con").c_str(), nullptr));
    EXPECT_EQ(Sorted(List(tree.Path(L"*")).names), (Names{L"a", L"con", L"moved "}));
    EXPECT_EQ(ContentOf(tree.Path(L"moved ")), "with dot");
    ASSERT_TRUE(ce::RemoveDirectoryW(tree.Path(L"con").c_str()));
    EXPECT_EQ(Sorted(List(tree.Path(L"*")).names), (Names{L"a", L"moved "}));
}

TEST(FileCalls, fail_with_the_systems_code) {
    TempTree tree;
    const std::wstring missing = tree.Path(L"missing");
    EXPECT_FALSE(ce::DeleteFileW(missing.c_str()));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    EXPECT_EQ(ce::GetFileAttributesW(missing.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
    const std::wstring tooLong(MAX_PATH, L'a');
    EXPECT_FALSE(ce::MoveFileW(missing.c_str(), tooLong.c_str()));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILENAME_EXCED_RANGE));
}

TEST(FolderLinks, are_told_from_folders_that_stand_where_they_are_named) {
    TempTree tree;
    const std::wstring real = tree.AddFolder(L"real\\below");
    if (!tree.AddFolderLink(L"link", L"real")) GTEST_SKIP() << "no links here";
    if (!tree.AddFolderLink(L"real\\parent", L"real")) GTEST_SKIP() << "no links here";
    WIN32_FIND_DATAW marked = {};
    marked.dwFileAttributes = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    EXPECT_TRUE(ce::IsFolderLink(tree.Path(L"link").c_str(), marked));
    EXPECT_TRUE(ce::IsFolderLink(tree.Path(L"real\\parent").c_str(), marked));
    // As a mounted volume is marked.
    EXPECT_FALSE(ce::IsFolderLink(real.c_str(), marked));
    // Reached through a link, but itself none.
    EXPECT_FALSE(ce::IsFolderLink(tree.Path(L"link\\below").c_str(), marked));
    // Cannot be opened.
    EXPECT_TRUE(ce::IsFolderLink(tree.Path(L"missing").c_str(), marked));
}

TEST(FolderLinks, are_looked_for_only_where_the_listing_marks_one) {
    WIN32_FIND_DATAW ordinary = {};
    ordinary.dwFileAttributes = FILE_ATTRIBUTE_DIRECTORY;
    EXPECT_FALSE(ce::IsFolderLink(L"\\missing", ordinary));
}

TEST(FolderLinks, are_marked_in_the_listing) {
    TempTree tree;
    tree.AddFolder(L"real");
    if (!tree.AddFolderLink(L"link", L"real")) GTEST_SKIP() << "no links here";
    WIN32_FIND_DATAW data;
    const HANDLE search = ce::FindFirstFileW(tree.Path(L"link*").c_str(), &data);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    ce::FindClose(search);
    EXPECT_TRUE(ce::IsFolderLink(tree.Path(L"link").c_str(), data));
}

TEST(SystemCalls, find_routines_by_wide_names_and_by_number) {
    const HMODULE kernel = GetModuleHandleW(L"kernel32.dll");
    EXPECT_EQ(ce::GetProcAddressW(kernel, L"GetTickCount"), GetProcAddress(kernel, "GetTickCount"));
    EXPECT_EQ(ce::GetProcAddressW(kernel, L"NoSuchRoutineHere"), nullptr);
    // The low bytes of these units would name a routine that exists.
    const wchar_t disguised[] = {L'S', static_cast<wchar_t>(0x100 + 'l'), L'e', L'e', L'p', L'\0'};
    EXPECT_EQ(ce::GetProcAddressW(kernel, disguised), nullptr);
    EXPECT_EQ(ce::GetProcAddressW(kernel, std::wstring(1000, L'a').c_str()), nullptr);
}

TEST(SystemCalls, load_no_library_from_the_current_folder) {
    TempTree tree;
    wchar_t system[MAX_PATH];
    GetSystemDirectoryW(system, MAX_PATH);
    ASSERT_TRUE(CopyFileW((std::wstring(system) + L"\\version.dll").c_str(),
                          tree.Path(L"quorintest.dll").c_str(), TRUE));
    const CurrentFolder current(tree.Root());
    EXPECT_EQ(ce::LoadLibraryW(L"quorintest.dll"), nullptr);
    const HMODULE library = ce::LoadLibraryW(L"version.dll");
    EXPECT_NE(library, nullptr);
    EXPECT_TRUE(ce::FreeLibrary(library));
}

TEST(SystemCalls, convert_times_by_the_zone) {
    TIME_ZONE_INFORMATION zone = {};
    const bool summer = GetTimeZoneInformation(&zone) == TIME_ZONE_ID_DAYLIGHT;
    const LONG minutes = zone.Bias + (summer ? zone.DaylightBias : zone.StandardBias);
    const FILETIME utc = {0x10000000, 0x01C1DE00};
    FILETIME local = {};
    FILETIME back = {};
    ASSERT_TRUE(ce::FileTimeToLocalFileTime(&utc, &local));
    ASSERT_TRUE(ce::LocalFileTimeToFileTime(&local, &back));
    EXPECT_EQ(CompareFileTime(&utc, &back), 0);
    const auto ticks = [](const FILETIME& time) {
        return static_cast<long long>(time.dwHighDateTime) * 0x100000000LL + time.dwLowDateTime;
    };
    EXPECT_EQ(ticks(utc) - ticks(local), minutes * 60LL * 10000000LL);
}
