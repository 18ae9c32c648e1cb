#include <gtest/gtest.h>

#include <string>

#include "platform/windows_ce.h"

namespace {

constexpr wchar_t Home[] = L"Software\\QuorinSeamTest";

class Registry : public testing::Test {
  protected:
    void SetUp() override {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, Home);
        Create(Home);
    }
    void TearDown() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, Home); }

    static void Create(const std::wstring& path) {
        HKEY key = nullptr;
        ASSERT_EQ(ce::RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                                      &key, nullptr),
                  ERROR_SUCCESS);
        RegCloseKey(key);
    }
    static void SetText(const wchar_t* name, const std::wstring& text) {
        ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, Home, name, REG_SZ, text.c_str(),
                                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
                  ERROR_SUCCESS);
    }
    // The value's text, or "error N".
    static std::wstring Query(const wchar_t* name, DWORD capacity = 64) {
        HKEY key = nullptr;
        EXPECT_EQ(ce::RegOpenKeyExW(HKEY_CURRENT_USER, Home, 0, KEY_ALL_ACCESS, &key), ERROR_SUCCESS);
        std::wstring text(32, L'\0');
        DWORD size = capacity;
        DWORD type = 0;
        const LONG result =
            ce::RegQueryValueExW(key, name, nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size);
        RegCloseKey(key);
        return result == ERROR_SUCCESS ? std::wstring(text.c_str()) : L"error " + std::to_wstring(result);
    }
    static bool Exists(const std::wstring& path) {
        HKEY key = nullptr;
        if (ce::RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
            return false;
        RegCloseKey(key);
        return true;
    }
};

TEST_F(Registry, the_value_default_is_the_key_s_own_value) {
    SetText(nullptr, L"own");
    EXPECT_EQ(Query(L"Default"), L"own");
    EXPECT_EQ(Query(L"default"), L"own");
    EXPECT_EQ(Query(nullptr), L"own");
}

TEST_F(Registry, a_value_that_is_really_named_default_goes_first) {
    SetText(nullptr, L"own");
    SetText(L"Default", L"named");
    EXPECT_EQ(Query(L"Default"), L"named");
}

TEST_F(Registry, default_of_a_key_without_any_value_is_not_found) {
    EXPECT_EQ(Query(L"Default"), L"error 2");
}

TEST_F(Registry, another_missing_value_is_not_found) {
    SetText(nullptr, L"own");
    EXPECT_EQ(Query(L"Missing"), L"error 2");
}

TEST_F(Registry, a_value_too_long_for_the_buffer_says_so) {
    SetText(nullptr, L"own");
    EXPECT_EQ(Query(L"Default", 4), L"error 234");
}

TEST_F(Registry, a_key_that_is_not_there_is_not_opened) {
    HKEY key = nullptr;
    EXPECT_EQ(
        ce::RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\QuorinSeamTest\\Missing", 0, KEY_ALL_ACCESS, &key),
        ERROR_FILE_NOT_FOUND);
}

TEST_F(Registry, a_key_that_only_may_be_read_opens_when_everything_is_asked_for) {
    HKEY key = nullptr;
    // The right to read the system's security records is refused to a handle that asks for it plainly.
    ASSERT_EQ(ce::RegOpenKeyExW(HKEY_CURRENT_USER, Home, 0, KEY_ALL_ACCESS | ACCESS_SYSTEM_SECURITY, &key),
              ERROR_SUCCESS);
    wchar_t text[8];
    DWORD size = sizeof(text);
    EXPECT_EQ(ce::RegQueryValueExW(key, L"Missing", nullptr, nullptr, reinterpret_cast<BYTE*>(text), &size),
              ERROR_FILE_NOT_FOUND);
    RegCloseKey(key);
}

TEST_F(Registry, deleting_a_key_takes_its_sub_keys_along) {
    const std::wstring home = Home;
    Create(home + L"\\Product\\Name\\Deep");
    Create(home + L"\\Product\\Location");
    Create(home + L"\\Other");
    EXPECT_EQ(ce::RegDeleteKeyW(HKEY_CURRENT_USER, (home + L"\\Product").c_str()), ERROR_SUCCESS);
    EXPECT_FALSE(Exists(home + L"\\Product"));
    EXPECT_TRUE(Exists(home + L"\\Other"));
}

TEST_F(Registry, deleting_a_key_without_sub_keys_removes_it) {
    EXPECT_EQ(ce::RegDeleteKeyW(HKEY_CURRENT_USER, Home), ERROR_SUCCESS);
    EXPECT_FALSE(Exists(Home));
}

TEST_F(Registry, deleting_a_missing_key_says_so) {
    EXPECT_EQ(ce::RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\QuorinSeamTest\\Missing"),
              ERROR_FILE_NOT_FOUND);
}

TEST_F(Registry, deleting_no_key_in_particular_leaves_everything_in_place) {
    HKEY key = nullptr;
    ASSERT_EQ(ce::RegOpenKeyExW(HKEY_CURRENT_USER, Home, 0, KEY_ALL_ACCESS, &key), ERROR_SUCCESS);
    Create(std::wstring(Home) + L"\\Kept");
    EXPECT_EQ(ce::RegDeleteKeyW(key, L""), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(ce::RegDeleteKeyW(key, nullptr), ERROR_INVALID_PARAMETER);
    RegCloseKey(key);
    EXPECT_TRUE(Exists(std::wstring(Home) + L"\\Kept"));
}

TEST_F(Registry, creating_a_key_tells_whether_it_is_new) {
    const std::wstring path = std::wstring(Home) + L"\\New";
    HKEY key = nullptr;
    DWORD disposition = 0;
    const auto create = [&] {
        const LONG result = ce::RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0,
                                                KEY_ALL_ACCESS, nullptr, &key, &disposition);
        RegCloseKey(key);
        return result;
    };
    EXPECT_EQ(create(), ERROR_SUCCESS);
    EXPECT_EQ(disposition, static_cast<DWORD>(REG_CREATED_NEW_KEY));
    EXPECT_EQ(create(), ERROR_SUCCESS);
    EXPECT_EQ(disposition, static_cast<DWORD>(REG_OPENED_EXISTING_KEY));
}

}  // namespace
