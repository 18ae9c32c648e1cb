#include <gtest/gtest.h>

#include <string>

#include "platform/windows_ce.h"
#include "tests/platform/current_folder.h"
#include "tests/support/temp_tree.h"

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
