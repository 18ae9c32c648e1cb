// What the desktop reads of the program without starting it: its version, in both languages, and its
// manifest.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/resources/program_module.h"

namespace {

std::vector<unsigned char> VersionBytes() {
    const std::wstring path = ProgramPath();
    std::vector<unsigned char> bytes(GetFileVersionInfoSizeW(path.c_str(), nullptr));
    if (!GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(bytes.size()), bytes.data())) bytes.clear();
    return bytes;
}

// One text of the version resource; empty if there is none.
std::wstring VersionText(const wchar_t* language, const wchar_t* name) {
    const std::vector<unsigned char> bytes = VersionBytes();
    const std::wstring place = std::wstring(L"\\StringFileInfo\\") + language + L"\\" + name;
    void* text = nullptr;
    UINT length = 0;
    if (bytes.empty() || !VerQueryValueW(bytes.data(), place.c_str(), &text, &length)) return {};
    return static_cast<const wchar_t*>(text);
}

constexpr const wchar_t* English = L"040904B0";
constexpr const wchar_t* Japanese = L"041104B0";

std::string Manifest() {
    const std::vector<unsigned char> bytes = ResourceBytes(MAKEINTRESOURCEW(1), RT_MANIFEST);
    return {bytes.begin(), bytes.end()};
}

bool ManifestSays(const char* text) {
    return Manifest().find(text) != std::string::npos;
}

TEST(Version, stands_in_the_file_properties_of_both_languages) {
    for (const wchar_t* const language : {English, Japanese}) {
        EXPECT_EQ(VersionText(language, L"FileVersion"), L"" QUORIN_VERSION);
        EXPECT_EQ(VersionText(language, L"ProductVersion"), L"" QUORIN_VERSION);
        EXPECT_EQ(VersionText(language, L"ProductName"), L"QuorinSearch");
        EXPECT_EQ(VersionText(language, L"CompanyName"), L"QuorinSoft");
        EXPECT_EQ(VersionText(language, L"OriginalFilename"), L"quorinsearch.exe");
    }
}

TEST(Version, says_what_the_program_is_in_both_languages) {
    EXPECT_EQ(VersionText(English, L"FileDescription"), L"QuorinSearch file finder");
    EXPECT_EQ(VersionText(Japanese, L"FileDescription"), L"QuorinSearch ファイル検索");
    EXPECT_EQ(VersionText(English, L"LegalCopyright"), L"(C) 2026 QuorinSoft and contributors. MIT licence.");
    EXPECT_EQ(VersionText(Japanese, L"LegalCopyright"), L"(C) 2026 QuorinSoft と協力者。MIT ライセンス。");
}

TEST(Version, offers_both_languages_to_who_asks_which_there_are) {
    const std::vector<unsigned char> bytes = VersionBytes();
    ASSERT_FALSE(bytes.empty());
    void* found = nullptr;
    UINT size = 0;
    ASSERT_TRUE(VerQueryValueW(bytes.data(), L"\\VarFileInfo\\Translation", &found, &size));
    const auto* words = static_cast<const WORD*>(found);
    EXPECT_EQ(std::vector<WORD>(words, words + size / sizeof(WORD)),
              (std::vector<WORD>{0x409, 1200, 0x411, 1200}));
}

TEST(Version, stands_in_numbers_as_well) {
    const std::vector<unsigned char> bytes = VersionBytes();
    ASSERT_FALSE(bytes.empty());
    void* found = nullptr;
    UINT size = 0;
    ASSERT_TRUE(VerQueryValueW(bytes.data(), L"\\", &found, &size));
    const auto& numbers = *static_cast<const VS_FIXEDFILEINFO*>(found);
    const std::string text = std::to_string(HIWORD(numbers.dwFileVersionMS)) + "." +
                             std::to_string(LOWORD(numbers.dwFileVersionMS));
    EXPECT_EQ(text, QUORIN_VERSION);
    EXPECT_EQ(numbers.dwFileVersionLS, 0u);
    EXPECT_EQ(numbers.dwProductVersionMS, numbers.dwFileVersionMS);
}

TEST(Manifest, asks_for_no_more_rights_than_the_user_has) {
    EXPECT_TRUE(ManifestSays(R"(<requestedExecutionLevel level="asInvoker" uiAccess="false"/>)"));
}

// This test program carries the same manifest.
TEST(Manifest, has_the_program_drawn_in_the_resolution_of_the_screen) {
    EXPECT_TRUE(ManifestSays(">true</dpiAware>"));
    EXPECT_TRUE(IsProcessDPIAware());
}

TEST(Manifest, names_the_systems_from_windows_7_on) {
    EXPECT_TRUE(ManifestSays("{35138b9a-5d96-4fbd-8e2d-a2440225f93a}"));
    EXPECT_TRUE(ManifestSays("{4a2f28e3-53b9-4441-ba9c-d69d4a4a6e38}"));
    EXPECT_TRUE(ManifestSays("{1f676c76-80e1-4239-95bb-83d0f6d0da78}"));
    EXPECT_TRUE(ManifestSays("{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}"));
}

// Version 6 stands in a folder of its own, beside the system's.
TEST(Manifest, keeps_the_common_controls_of_programs_without_a_manifest) {
    EXPECT_FALSE(ManifestSays("Common-Controls"));
    wchar_t path[MAX_PATH] = {};
    ASSERT_GT(GetModuleFileNameW(LoadLibraryW(L"comctl32.dll"), path, MAX_PATH), 0u);
    EXPECT_EQ(std::wstring(path).find(L"winsxs"), std::wstring::npos);
}

}  // namespace
