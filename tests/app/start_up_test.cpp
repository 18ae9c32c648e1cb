// What start-up finds out about the platform and decides about the language.

#include "app/start_up.h"

#include <gtest/gtest.h>

#include <string>

#include "base/registry_key.h"
#include "platform/windows_ce.h"
#include "search/text_conversion.h"
#include "tests/support/replaced_calls.h"

namespace {

constexpr const wchar_t* MakerKey = L"Software\\QuorinSoft";
constexpr const wchar_t* ChangeLanguage = L"Change language";

constexpr LANGID English = 0x0409;
constexpr LANGID Japanese = 0x0411;

// The system that start-up asks.
struct FakeSystem {
    int width = 640;
    int height = 240;
    LANGID language = English;
    bool hasShell = false;
    bool shellHasInputPanel = false;
    bool hasConversionLibrary = false;
    bool conversionHasExports = true;
    int shellLoads = 0;
    int shellFrees = 0;
    int conversionLoads = 0;
    int conversionFrees = 0;
};
FakeSystem fake;

const HMODULE Shell = reinterpret_cast<HMODULE>(0x1000);
const HMODULE Library = reinterpret_cast<HMODULE>(0x2000);

unsigned short HiraganaA(unsigned short unit) {
    return unit == 0x3042 ? 0x82A0 : unit;
}
unsigned short HiraganaAFrom(unsigned char lead, unsigned char trail) {
    return lead == 0x82 && trail == 0xA0 ? 0x3042 : 0;
}

HMODULE LoadFake(const wchar_t* name) {
    if (std::wstring(name) == L"aygshell.dll") {
        fake.shellLoads += fake.hasShell;
        return fake.hasShell ? Shell : nullptr;
    }
    EXPECT_EQ(std::wstring(name), L"TKCONV.DLL");
    fake.conversionLoads += fake.hasConversionLibrary;
    return fake.hasConversionLibrary ? Library : nullptr;
}

BOOL FreeFake(HMODULE module) {
    EXPECT_TRUE(module == Shell || module == Library);
    ++(module == Shell ? fake.shellFrees : fake.conversionFrees);
    return TRUE;
}

FARPROC FindFake(HMODULE module, const wchar_t* name) {
    const std::wstring wanted = name;
    if (module == Shell)
        return fake.shellHasInputPanel && wanted == L"SHSipInfo" ? FARPROC(&HiraganaA) : nullptr;
    if (!fake.conversionHasExports) return nullptr;
    if (wanted == L"unicode2sjis") return FARPROC(&HiraganaA);
    if (wanted == L"sjis2unicode") return FARPROC(&HiraganaAFrom);
    return nullptr;
}

class StartUpTest : public testing::Test {
  protected:
    void SetUp() override {
        fake = FakeSystem();
        hadChange_ =
            ReadRegistryDword(HKEY_CURRENT_USER, MakerKey, ChangeLanguage, changeBefore_) == ERROR_SUCCESS;
        RemoveChange();
    }
    void TearDown() override {
        ReleaseConversionLibrary(context_);
        UseConversionLibrary(nullptr, nullptr);
        RemoveChange();
        if (hadChange_) WriteRegistryDword(HKEY_CURRENT_USER, MakerKey, ChangeLanguage, changeBefore_);
    }

    static void RemoveChange() {
        RegistryKey key(HKEY_CURRENT_USER);
        if (key.Open(MakerKey)) RegDeleteValueW(key.Handle(), ChangeLanguage);
    }
    static void SetChange(DWORD value) {
        ASSERT_EQ(WriteRegistryDword(HKEY_CURRENT_USER, MakerKey, ChangeLanguage, value), ERROR_SUCCESS);
    }
    static void SetChange(DWORD type, const void* data, DWORD size) {
        RegistryKey key(HKEY_CURRENT_USER);
        ASSERT_TRUE(key.Create(MakerKey));
        RegSetValueExW(key.Handle(), ChangeLanguage, 0, type, static_cast<const BYTE*>(data), size);
    }

    bool IsPocketPc() {
        ProbePlatform(context_);
        return context_.pocketPc;
    }
    void Decide() { DecideLanguage(context_); }
    void ExpectLanguage(UiLanguage expected) const {
        EXPECT_EQ(context_.uiLanguage, expected);
        EXPECT_EQ(context_.menuLanguage, expected);
    }
    void ExpectPair(ToMultiByteRoutine toMultiByte, ToWideRoutine toWide, bool available) const {
        EXPECT_EQ(context_.toMultiByte, toMultiByte);
        EXPECT_EQ(context_.toWide, toWide);
        EXPECT_EQ(context_.codeConversionAvailable, available);
    }
    [[nodiscard]] std::string BytesOf(const wchar_t* text) const {
        char bytes[16];
        context_.toMultiByte(text, bytes, sizeof bytes);
        return bytes;
    }

    ProgramContext context_;

  private:
    Replaced<decltype(ce::systemCalls.getSystemMetrics)> replacedMetrics_{
        ce::systemCalls.getSystemMetrics, [](int index) {
            return index == SM_CXSCREEN ? fake.width : index == SM_CYSCREEN ? fake.height : -1;
        }};
    Replaced<decltype(ce::systemCalls.getSystemDefaultLangId)> replacedLanguage_{
        ce::systemCalls.getSystemDefaultLangId, []() -> LANGID { return fake.language; }};
    Replaced<decltype(ce::systemCalls.loadLibrary)> replacedLoad_{ce::systemCalls.loadLibrary, &LoadFake};
    Replaced<decltype(ce::systemCalls.freeLibrary)> replacedFree_{ce::systemCalls.freeLibrary, &FreeFake};
    Replaced<decltype(ce::systemCalls.getProcAddress)> replacedFind_{ce::systemCalls.getProcAddress,
                                                                     &FindFake};

    bool hadChange_ = false;
    DWORD changeBefore_ = 0;
};

}  // namespace

class PlatformProbe : public StartUpTest {
  protected:
    bool IsPocketPc(int width, int height) {
        fake.width = width;
        fake.height = height;
        return StartUpTest::IsPocketPc();
    }
};

TEST_F(PlatformProbe, without_a_shell_library_only_a_screen_of_exactly_240_x_320_is_a_pocket_pc) {
    EXPECT_TRUE(IsPocketPc(240, 320));
    EXPECT_FALSE(IsPocketPc(320, 240));
    EXPECT_FALSE(IsPocketPc(640, 240));
    EXPECT_FALSE(IsPocketPc(240, 321));
    EXPECT_FALSE(IsPocketPc(241, 320));
    EXPECT_FALSE(IsPocketPc(480, 640));
}

TEST_F(PlatformProbe, a_shell_with_the_input_panel_makes_a_pocket_pc_of_any_screen) {
    fake.hasShell = true;
    fake.shellHasInputPanel = true;
    EXPECT_TRUE(IsPocketPc(240, 320));
    EXPECT_TRUE(IsPocketPc(320, 240));
    EXPECT_TRUE(IsPocketPc(640, 240));
}

TEST_F(PlatformProbe, a_shell_without_the_input_panel_leaves_it_to_the_screen) {
    fake.hasShell = true;
    EXPECT_TRUE(IsPocketPc(240, 320));
    EXPECT_FALSE(IsPocketPc(640, 240));
}

TEST_F(PlatformProbe, the_shell_library_is_freed_at_once) {
    fake.hasShell = true;
    fake.shellHasInputPanel = true;
    EXPECT_TRUE(IsPocketPc(640, 240));
    EXPECT_EQ(fake.shellLoads, 1);
    EXPECT_EQ(fake.shellFrees, 1);
}

TEST_F(PlatformProbe, the_screens_size_is_recorded) {
    EXPECT_FALSE(IsPocketPc(640, 240));
    EXPECT_EQ(context_.screenWidth, 640);
    EXPECT_EQ(context_.screenHeight, 240);
}

class LanguageDecision : public StartUpTest {};

TEST_F(LanguageDecision, a_japanese_system_speaks_japanese_and_converts_by_its_code_page) {
    fake.language = Japanese;
    fake.hasConversionLibrary = true;
    Decide();
    ExpectLanguage(UiLanguage::Japanese);
    ExpectPair(&SystemToMultiByte, &SystemToWide, false);
    EXPECT_EQ(fake.conversionLoads, 0);
}

TEST_F(LanguageDecision, only_the_primary_language_counts) {
    for (const LANGID language : {LANGID{0x0011}, LANGID{0x0811}, LANGID{0xFC11}}) {
        fake.language = language;
        Decide();
        EXPECT_EQ(context_.uiLanguage, UiLanguage::Japanese) << language;
    }
    for (const LANGID language : {LANGID{0x0412}, LANGID{0x0404}, LANGID{0x0407}, LANGID{0x0000}}) {
        fake.language = language;
        Decide();
        EXPECT_EQ(context_.uiLanguage, UiLanguage::English) << language;
    }
}

TEST_F(LanguageDecision, any_other_system_speaks_english_and_converts_by_the_library) {
    fake.hasConversionLibrary = true;
    Decide();
    ExpectLanguage(UiLanguage::English);
    ExpectPair(&LibraryToMultiByte, &LibraryToWide, true);
    EXPECT_EQ(context_.conversionLibrary, Library);
    EXPECT_EQ(BytesOf(L"aあ"), "a\x82\xA0");
}

TEST_F(LanguageDecision, without_the_library_the_low_bytes_are_all_there_is) {
    Decide();
    ExpectLanguage(UiLanguage::English);
    ExpectPair(&DefaultToMultiByte, &DefaultToWide, false);
    EXPECT_EQ(context_.conversionLibrary, nullptr);
    EXPECT_EQ(BytesOf(L"aあ"), "a\x42");
}

TEST_F(LanguageDecision, a_library_without_exports_converts_like_none) {
    fake.hasConversionLibrary = true;
    fake.conversionHasExports = false;
    Decide();
    EXPECT_TRUE(context_.codeConversionAvailable);
    EXPECT_EQ(BytesOf(L"aあ"), "a\x42");
    wchar_t units[8];
    context_.toWide("a\x82\xA0", units, 8);
    EXPECT_EQ(std::wstring(units), L"a\x82\xA0");
}

TEST_F(LanguageDecision, an_english_system_that_is_swapped_speaks_japanese_and_keeps_the_library) {
    fake.hasConversionLibrary = true;
    SetChange(1);
    Decide();
    ExpectLanguage(UiLanguage::Japanese);
    ExpectPair(&LibraryToMultiByte, &LibraryToWide, true);
}

TEST_F(LanguageDecision, a_japanese_system_that_is_swapped_speaks_english_and_keeps_its_code_page) {
    fake.language = Japanese;
    fake.hasConversionLibrary = true;
    SetChange(1);
    Decide();
    ExpectLanguage(UiLanguage::English);
    ExpectPair(&SystemToMultiByte, &SystemToWide, false);
    EXPECT_EQ(fake.conversionLoads, 0);
}

TEST_F(LanguageDecision, any_number_but_0_swaps) {
    SetChange(0);
    Decide();
    ExpectLanguage(UiLanguage::English);
    for (const DWORD value : {DWORD{2}, DWORD{0x80000000}, DWORD{0xFFFFFFFF}}) {
        SetChange(value);
        Decide();
        ExpectLanguage(UiLanguage::Japanese);
    }
}

TEST_F(LanguageDecision, a_0_leaves_a_japanese_system_japanese) {
    fake.language = Japanese;
    SetChange(0);
    Decide();
    ExpectLanguage(UiLanguage::Japanese);
}

TEST_F(LanguageDecision, a_value_that_does_not_fit_in_a_number_swaps_nothing) {
    SetChange(REG_SZ, L"yes", 8);
    Decide();
    ExpectLanguage(UiLanguage::English);
    const BYTE bytes[5] = {1, 0, 0, 0, 0};
    SetChange(REG_BINARY, bytes, sizeof bytes);
    Decide();
    ExpectLanguage(UiLanguage::English);
}

TEST_F(LanguageDecision, a_value_of_another_type_that_fits_is_read_by_its_bytes) {
    const BYTE one = 1;
    SetChange(REG_BINARY, &one, sizeof one);
    Decide();
    ExpectLanguage(UiLanguage::Japanese);
    const BYTE zeros[4] = {};
    SetChange(REG_BINARY, zeros, sizeof zeros);
    Decide();
    ExpectLanguage(UiLanguage::English);
}

TEST_F(LanguageDecision, start_up_writes_no_override) {
    Decide();
    DWORD value = 0;
    EXPECT_EQ(ReadRegistryDword(HKEY_CURRENT_USER, MakerKey, ChangeLanguage, value), ERROR_FILE_NOT_FOUND);
}

TEST_F(LanguageDecision, a_library_that_is_loaded_already_is_not_loaded_again) {
    fake.hasConversionLibrary = true;
    Decide();
    Decide();
    EXPECT_EQ(fake.conversionLoads, 1);
    EXPECT_TRUE(context_.codeConversionAvailable);
}

TEST_F(LanguageDecision, the_library_is_freed_once_at_the_end) {
    fake.hasConversionLibrary = true;
    Decide();
    ReleaseConversionLibrary(context_);
    ReleaseConversionLibrary(context_);
    EXPECT_EQ(fake.conversionFrees, 1);
    EXPECT_EQ(context_.conversionLibrary, nullptr);
}

TEST_F(LanguageDecision, without_the_library_there_is_nothing_to_free) {
    Decide();
    ReleaseConversionLibrary(context_);
    EXPECT_EQ(fake.conversionFrees, 0);
}
