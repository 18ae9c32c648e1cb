// The registry work of an uninstall, under a key of the test's own.

#include "app/uninstall.h"

#include <gtest/gtest.h>

#include <string>

class UninstallTest : public testing::Test {
  protected:
    UninstallTest() { RegDeleteTreeW(HKEY_CURRENT_USER, Top); }
    ~UninstallTest() override { RegDeleteTreeW(HKEY_CURRENT_USER, Top); }

    static void Create(const std::wstring& path) {
        HKEY key = nullptr;
        ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                                  &key, nullptr),
                  ERROR_SUCCESS);
        RegCloseKey(key);
    }
    [[nodiscard]] static bool Exists(const std::wstring& path) {
        HKEY key = nullptr;
        if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
        RegCloseKey(key);
        return true;
    }

    static constexpr const wchar_t* Top = L"Software\\QuorinUninstallTest";
    const std::wstring maker_ = std::wstring(Top) + L"\\Maker";
    const std::wstring product_ = maker_ + L"\\Product";
};

TEST_F(UninstallTest, a_missing_key_has_no_sub_key) {
    EXPECT_FALSE(HasSubKey(HKEY_CURRENT_USER, maker_.c_str()));
}

TEST_F(UninstallTest, a_key_with_nothing_but_values_has_no_sub_key) {
    Create(maker_);
    const DWORD value = 1;
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, maker_.c_str(), L"Change language", REG_DWORD, &value,
                              sizeof value),
              ERROR_SUCCESS);
    EXPECT_FALSE(HasSubKey(HKEY_CURRENT_USER, maker_.c_str()));
}

TEST_F(UninstallTest, one_sub_key_is_enough_also_with_the_longest_name) {
    Create(maker_ + L"\\" + std::wstring(255, L'n'));
    EXPECT_TRUE(HasSubKey(HKEY_CURRENT_USER, maker_.c_str()));
}

TEST_F(UninstallTest, a_key_goes_with_all_its_sub_keys) {
    Create(product_ + L"\\Name\\deeper");
    Create(product_ + L"\\Location");
    EXPECT_EQ(DeleteRegistryKey(HKEY_CURRENT_USER, product_.c_str()), ERROR_SUCCESS);
    EXPECT_FALSE(Exists(product_));
    EXPECT_TRUE(Exists(maker_));
}

TEST_F(UninstallTest, a_missing_key_cannot_be_removed) {
    EXPECT_EQ(DeleteRegistryKey(HKEY_CURRENT_USER, product_.c_str()), ERROR_FILE_NOT_FOUND);
}

TEST_F(UninstallTest, a_wrong_parameter_counts_as_removed) {
    EXPECT_EQ(ce::RegDeleteKeyW(HKEY_CURRENT_USER, L""), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(DeleteRegistryKey(HKEY_CURRENT_USER, L""), ERROR_SUCCESS);
    EXPECT_TRUE(Exists(L"Software"));
}

TEST_F(UninstallTest, the_makers_key_goes_with_its_last_product) {
    Create(product_ + L"\\Name");
    EXPECT_TRUE(RemoveRegistryKeys(HKEY_CURRENT_USER, maker_.c_str(), product_.c_str()));
    EXPECT_FALSE(Exists(product_));
    EXPECT_FALSE(Exists(maker_));
    EXPECT_TRUE(Exists(Top));
}

TEST_F(UninstallTest, the_makers_key_stays_for_another_product) {
    Create(product_);
    Create(maker_ + L"\\Another");
    EXPECT_TRUE(RemoveRegistryKeys(HKEY_CURRENT_USER, maker_.c_str(), product_.c_str()));
    EXPECT_FALSE(Exists(product_));
    EXPECT_TRUE(Exists(maker_ + L"\\Another"));
}

TEST_F(UninstallTest, the_makers_key_stays_when_the_products_cannot_be_removed) {
    Create(maker_);
    EXPECT_FALSE(RemoveRegistryKeys(HKEY_CURRENT_USER, maker_.c_str(), product_.c_str()));
    EXPECT_TRUE(Exists(maker_));
}
