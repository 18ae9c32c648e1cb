#include "base/registry_key.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <string>

namespace {

constexpr const wchar_t* Path = L"Software\\QuorinSoftTests\\RegistryKey";

class RegistryKeyTest : public testing::Test {
  protected:
    void SetUp() override { ce::RegDeleteKeyW(HKEY_CURRENT_USER, Path); }
    void TearDown() override { ce::RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\QuorinSoftTests"); }

    // The data of a text without a terminator goes on behind its size: the system would add a terminator that
    // it finds there.
    void Write(const wchar_t* name, DWORD type, const void* data, DWORD size) {
        ASSERT_TRUE(key_.Create(Path));
        ASSERT_EQ(RegSetValueExW(key_.Handle(), name, 0, type, static_cast<const BYTE*>(data), size),
                  ERROR_SUCCESS);
    }
    // What the query makes of a buffer that holds nothing but "#".
    std::wstring Query(const wchar_t* name, bool expected) {
        wchar_t buffer[8];
        std::wmemset(buffer, L'#', 8);
        EXPECT_EQ(key_.QueryString(name, buffer, sizeof buffer), expected);
        EXPECT_LT(wcsnlen(buffer, 8), 8U) << "the text has no end";
        return {buffer, wcsnlen(buffer, 8)};
    }

    RegistryKey key_{HKEY_CURRENT_USER};
};

}  // namespace

TEST_F(RegistryKeyTest, a_key_that_is_not_there_cannot_be_opened) {
    EXPECT_FALSE(key_.Open(Path));
    EXPECT_EQ(key_.Handle(), nullptr);
}

TEST_F(RegistryKeyTest, a_created_key_can_be_opened) {
    EXPECT_TRUE(key_.Create(Path));
    EXPECT_NE(key_.Handle(), nullptr);
    RegistryKey other(HKEY_CURRENT_USER);
    EXPECT_TRUE(other.Open(Path));
}

TEST_F(RegistryKeyTest, an_open_key_is_closed_before_another_is_opened) {
    ASSERT_TRUE(key_.Create(Path));
    EXPECT_FALSE(key_.Open(L"Software\\QuorinSoftTests\\Missing"));
    EXPECT_EQ(key_.Handle(), nullptr);
    ASSERT_TRUE(key_.Open(Path));
    key_.Close();
    EXPECT_EQ(key_.Handle(), nullptr);
    key_.Close();
}

TEST_F(RegistryKeyTest, a_text_is_read_with_its_end) {
    Write(L"t", REG_SZ, L"abc", 8);
    EXPECT_EQ(Query(L"t", true), L"abc");
}

TEST_F(RegistryKeyTest, each_text_type_without_a_terminator_gets_one) {
    for (const DWORD type : {DWORD{REG_SZ}, DWORD{REG_EXPAND_SZ}, DWORD{REG_MULTI_SZ}}) {
        Write(L"t", type, L"abc#", 6);
        EXPECT_EQ(Query(L"t", true), L"abc") << type;
    }
}

TEST_F(RegistryKeyTest, a_text_with_half_a_unit_at_its_end_is_cut_before_it) {
    Write(L"t", REG_SZ, L"abc", 5);
    EXPECT_EQ(Query(L"t", true), L"ab");
}

TEST_F(RegistryKeyTest, a_text_that_fills_the_buffer_is_cut_for_its_terminator) {
    Write(L"t", REG_SZ, L"12345678#", 16);
    EXPECT_EQ(Query(L"t", true), L"1234567");
}

TEST_F(RegistryKeyTest, a_text_that_does_not_fit_is_none) {
    Write(L"t", REG_SZ, L"123456789", 18);
    EXPECT_EQ(Query(L"t", false), L"");
}

TEST_F(RegistryKeyTest, a_value_that_is_not_there_gives_an_empty_text) {
    ASSERT_TRUE(key_.Create(Path));
    EXPECT_EQ(Query(L"missing", false), L"");
}

TEST_F(RegistryKeyTest, a_value_of_another_type_is_left_as_read) {
    Write(L"b", REG_BINARY, L"ab", 4);
    wchar_t buffer[8];
    std::wmemset(buffer, L'#', 8);
    EXPECT_TRUE(key_.QueryString(L"b", buffer, sizeof buffer));
    EXPECT_EQ(std::wstring(buffer, 3), L"ab#");
}

TEST_F(RegistryKeyTest, a_text_of_no_size_is_empty) {
    Write(L"t", REG_SZ, L"", 0);
    EXPECT_EQ(Query(L"t", true), L"");
}

TEST_F(RegistryKeyTest, a_query_without_an_open_key_fails_with_an_empty_text) {
    EXPECT_EQ(Query(L"t", false), L"");
}

TEST_F(RegistryKeyTest, a_dword_is_written_and_read_back) {
    ASSERT_EQ(WriteRegistryDword(HKEY_CURRENT_USER, Path, L"d", 0xFEDCBA98), ERROR_SUCCESS);
    DWORD value = 0;
    EXPECT_EQ(ReadRegistryDword(HKEY_CURRENT_USER, Path, L"d", value), ERROR_SUCCESS);
    EXPECT_EQ(value, 0xFEDCBA98);
    ASSERT_TRUE(key_.Open(Path));
    DWORD type = 0;
    DWORD size = 0;
    EXPECT_EQ(RegQueryValueExW(key_.Handle(), L"d", nullptr, &type, nullptr, &size), ERROR_SUCCESS);
    EXPECT_EQ(type, DWORD{REG_DWORD});
    EXPECT_EQ(size, 4U);
}

TEST_F(RegistryKeyTest, a_missing_key_or_value_answers_the_systems_error) {
    DWORD value = 3;
    EXPECT_EQ(ReadRegistryDword(HKEY_CURRENT_USER, Path, L"d", value), ERROR_FILE_NOT_FOUND);
    ASSERT_TRUE(key_.Create(Path));
    EXPECT_EQ(ReadRegistryDword(HKEY_CURRENT_USER, Path, L"d", value), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(value, 3U);
}

TEST_F(RegistryKeyTest, a_value_larger_than_a_dword_is_refused) {
    Write(L"q", REG_QWORD, L"abc", 8);
    DWORD value = 0;
    EXPECT_EQ(ReadRegistryDword(HKEY_CURRENT_USER, Path, L"q", value), ERROR_MORE_DATA);
}
