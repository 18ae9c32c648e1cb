// The name of the root folder: from the registry, or by device and language.

#include "base/root_name.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <string>

#include "base/program_context.h"
#include "platform/windows_ce.h"

namespace {

constexpr const wchar_t* Class = L"{000214A0-0000-0000-C000-000000000046}";

}  // namespace

class RootName : public testing::Test {
  protected:
    RootName() : before_(Context()) { RegDeleteTreeW(HKEY_CLASSES_ROOT, Class); }
    ~RootName() override {
        RegDeleteTreeW(HKEY_CLASSES_ROOT, Class);
        ContextForStartUp() = before_;
    }

    static void Store(DWORD type, const void* data, std::size_t size) {
        ASSERT_EQ(
            RegSetKeyValueW(HKEY_CLASSES_ROOT, Class, L"DisplayName", type, data, static_cast<DWORD>(size)),
            ERROR_SUCCESS);
    }
    static void StoreText(const std::wstring& text) {
        Store(REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
    }
    // Written over what stood in the buffer before.
    static std::wstring Name() {
        wchar_t name[MAX_PATH];
        std::wmemset(name, L'#', MAX_PATH);
        RootDisplayName(name);
        EXPECT_LT(wcsnlen(name, MAX_PATH), std::size_t{MAX_PATH}) << "the name has no end";
        return {name, wcsnlen(name, MAX_PATH)};
    }
    static void UseDevice(bool pocketPc, UiLanguage language) {
        ContextForStartUp().pocketPc = pocketPc;
        ContextForStartUp().uiLanguage = language;
    }

  private:
    ProgramContext before_;
};

TEST_F(RootName, tells_device_and_language_when_the_registry_has_no_name) {
    UseDevice(true, UiLanguage::English);
    EXPECT_EQ(Name(), L"My Pocket PC");
    UseDevice(false, UiLanguage::English);
    EXPECT_EQ(Name(), L"My Handheld PC");
    UseDevice(true, UiLanguage::Japanese);
    EXPECT_EQ(Name(), L"ﾏｲ ﾎﾟｹｯﾄ PC");
    UseDevice(false, UiLanguage::Japanese);
    EXPECT_EQ(Name(), L"ﾏｲ ﾊﾝﾄﾞﾍﾙﾄﾞ PC");
}

TEST_F(RootName, is_the_registrys_in_every_language) {
    StoreText(L"Anna's 手帳");
    UseDevice(true, UiLanguage::English);
    EXPECT_EQ(Name(), L"Anna's 手帳");
    UseDevice(false, UiLanguage::Japanese);
    EXPECT_EQ(Name(), L"Anna's 手帳");
}

TEST_F(RootName, falls_back_when_the_key_has_no_such_value) {
    const wchar_t other[] = L"other";
    ASSERT_EQ(RegSetKeyValueW(HKEY_CLASSES_ROOT, Class, L"Name", REG_SZ, other, sizeof other), ERROR_SUCCESS);
    UseDevice(false, UiLanguage::English);
    EXPECT_EQ(Name(), L"My Handheld PC");
}

TEST_F(RootName, holds_129_units_and_falls_back_for_a_longer_one) {
    UseDevice(true, UiLanguage::English);
    StoreText(std::wstring(129, L'n'));
    EXPECT_EQ(Name(), std::wstring(129, L'n'));
    StoreText(std::wstring(130, L'n'));
    EXPECT_EQ(Name(), L"My Pocket PC");
}

TEST_F(RootName, needs_no_terminator_and_no_whole_units) {
    Store(REG_SZ, L"abc#", 6);
    EXPECT_EQ(Name(), L"abc");
    Store(REG_SZ, L"abc", 5);
    EXPECT_EQ(Name(), L"ab");
    Store(REG_SZ, std::wstring(140, L'n').data(), 260);
    EXPECT_EQ(Name(), std::wstring(129, L'n'));
}

TEST_F(RootName, of_another_type_ends_where_its_bytes_do) {
    const DWORD number = 0x00420041;
    Store(REG_DWORD, &number, sizeof number);
    EXPECT_EQ(Name(), L"AB");
}
