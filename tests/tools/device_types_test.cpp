// The kinds of documents that the system knows which stands for the device: what they are called in its
// language and that there is a program for each.

#include <gtest/gtest.h>
#include <windows.h>

#include <cstdlib>
#include <string>

#include <shellapi.h>
#include <shlwapi.h>

namespace {

struct Kind {
    const wchar_t* extension;
    const wchar_t* english;
    const wchar_t* japanese;
};

constexpr Kind Kinds[] = {
    {L".txt", L"Text Document", L"ﾃｷｽﾄ文書"},  {L".log", L"Log", L"記録"},
    {L".csv", L"CSV Table", L"CSV形式の表"},   {L".htm", L"HTML Document", L"HTML文書"},
    {L".html", L"HTML Document", L"HTML文書"}, {L".ini", L"Settings", L"設定"},
    {L".rtf", L"Rich Text", L"ﾘｯﾁﾃｷｽﾄ文書"},   {L".wmf", L"Picture", L"図"},
};

bool InJapanese() {
    const char* language = std::getenv("QUORIN_WORLD_LANGUAGE");
    return language != nullptr && std::string(language) == "ja";
}

std::wstring TypeNameOf(const std::wstring& extension) {
    SHFILEINFOW info{};
    SHGetFileInfoW((L"a" + extension).c_str(), FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                   SHGFI_TYPENAME | SHGFI_USEFILEATTRIBUTES);
    return info.szTypeName;
}

std::wstring ProgramFor(const wchar_t* extension) {
    wchar_t path[MAX_PATH] = L"";
    DWORD size = MAX_PATH;
    if (AssocQueryStringW(ASSOCF_NONE, ASSOCSTR_EXECUTABLE, extension, L"open", path, &size) != S_OK)
        return {};
    return path;
}

bool IsKnown(const wchar_t* extension) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, extension, 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
    RegCloseKey(key);
    return true;
}

TEST(DeviceTypes, each_kind_has_its_name_in_the_language_of_the_system) {
    for (const Kind& kind : Kinds)
        EXPECT_EQ(TypeNameOf(kind.extension), InJapanese() ? kind.japanese : kind.english);
}

TEST(DeviceTypes, each_kind_is_opened_by_a_program_that_is_there) {
    for (const Kind& kind : Kinds) {
        const std::wstring program = ProgramFor(kind.extension);
        EXPECT_NE(GetFileAttributesW(program.c_str()), INVALID_FILE_ATTRIBUTES)
            << testing::PrintToString(std::wstring(kind.extension)) << testing::PrintToString(program);
    }
}

TEST(DeviceTypes, kinds_that_no_handheld_has_are_not_known) {
    for (const wchar_t* extension : {L".chm", L".cpl", L".msi", L".vbs"})
        EXPECT_FALSE(IsKnown(extension)) << testing::PrintToString(std::wstring(extension));
}

}  // namespace
