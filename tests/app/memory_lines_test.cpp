#include "app/memory_lines.h"

#include <gtest/gtest.h>

#include <cwchar>
#include <string>

#include "tests/app/replaced_storage.h"
#include "tests/support/test_world.h"

namespace {

constexpr std::uint64_t Kilobyte = 1024;
constexpr std::uint64_t Gigabyte = Kilobyte * 1024 * 1024;

std::wstring Line(std::uint64_t free, std::uint64_t total) {
    wchar_t line[MemoryLineCapacity] = L"as before";
    FormatMemoryLine(L"Program", {free, total}, line);
    return line;
}

std::wstring Filled(bool (*fill)(wchar_t (&line)[MemoryLineCapacity])) {
    wchar_t line[MemoryLineCapacity] = L"as before";
    const bool filled = fill(line);
    EXPECT_EQ(filled, line[0] != L'\0');
    return line;
}

std::wstring CardLine(int index) {
    wchar_t line[MemoryLineCapacity] = L"as before";
    const bool filled = StorageCardLine(index, line);
    EXPECT_EQ(filled, line[0] != L'\0');
    return line;
}

}  // namespace

TEST(MemoryLines, show_kilobytes_and_a_percentage) {
    EXPECT_EQ(Line(4096 * Kilobyte, 16384 * Kilobyte), L"Program: 4096/16384KB (25%)");
    EXPECT_EQ(Line(16384 * Kilobyte, 16384 * Kilobyte), L"Program: 16384/16384KB (100%)");
    EXPECT_EQ(Line(0, 16384 * Kilobyte), L"Program: 0/16384KB (0%)");
}

TEST(MemoryLines, cut_off_parts_of_kilobytes_and_of_percents) {
    EXPECT_EQ(Line(1023, 16384 * Kilobyte), L"Program: 0/16384KB (0%)");
    EXPECT_EQ(Line(1023, 2047), L"Program: 0/1KB (0%)");
    EXPECT_EQ(Line(2 * Kilobyte + 1023, 3 * Kilobyte + 1023), L"Program: 2/3KB (66%)");
    EXPECT_EQ(Line(199 * Kilobyte, 200 * Kilobyte), L"Program: 199/200KB (99%)");
}

TEST(MemoryLines, show_no_percent_of_less_than_a_kilobyte) {
    EXPECT_EQ(Line(0, 0), L"Program: 0/0KB (0%)");
    EXPECT_EQ(Line(1023, 1023), L"Program: 0/0KB (0%)");
}

TEST(MemoryLines, are_true_for_more_memory_than_32_bits_count) {
    EXPECT_EQ(Line(16 * Gigabyte, 64 * Gigabyte), L"Program: 16777216/67108864KB (25%)");
    EXPECT_EQ(Line(1024 * Gigabyte, 2048 * Gigabyte - Kilobyte), L"Program: 1073741824/2147483647KB (50%)");
}

TEST(MemoryLines, stand_still_at_the_most_that_the_format_shows) {
    EXPECT_EQ(Line(2048 * Gigabyte - Kilobyte, 2048 * Gigabyte), L"Program: 2147483647/2147483647KB (99%)");
    EXPECT_EQ(Line(1024 * Gigabyte, 4096 * Gigabyte), L"Program: 1073741824/2147483647KB (25%)");
    EXPECT_EQ(Line(6144 * Gigabyte, 8192 * Gigabyte), L"Program: 2147483647/2147483647KB (75%)");
}

TEST(MemoryLines, are_true_for_the_largest_counts_of_all) {
    constexpr std::uint64_t Most = UINT64_MAX;
    EXPECT_EQ(Line(Most, Most), L"Program: 2147483647/2147483647KB (100%)");
    EXPECT_EQ(Line(0, Most), L"Program: 0/2147483647KB (0%)");
    // More free than there is makes no sense, and no harm.
    EXPECT_EQ(Line(Most, Kilobyte), L"Program: 2147483647/1KB (2147483647%)");
}

class MemoryLinesOfDevice : public testing::Test {
  protected:
    TestWorld world_;
    ReplacedStorage storage_;
};

TEST_F(MemoryLinesOfDevice, have_english_labels) {
    storage_.program = {4096 * Kilobyte, 16384 * Kilobyte};
    storage_.store = {8 * Kilobyte, 32 * Kilobyte};
    EXPECT_EQ(Filled(ProgramMemoryLine), L"Program: 4096/16384KB (25%)");
    EXPECT_EQ(Filled(DataStoreLine), L"Data: 8/32KB (25%)");
}

TEST_F(MemoryLinesOfDevice, have_japanese_labels_on_a_japanese_surface) {
    ContextForStartUp().uiLanguage = UiLanguage::Japanese;
    storage_.program = {4096 * Kilobyte, 16384 * Kilobyte};
    storage_.store = {8 * Kilobyte, 32 * Kilobyte};
    EXPECT_EQ(Filled(ProgramMemoryLine), L"ﾌﾟﾛｸﾞﾗﾑ: 4096/16384KB (25%)");
    EXPECT_EQ(Filled(DataStoreLine), L"ﾃﾞｰﾀ: 8/32KB (25%)");
}

TEST_F(MemoryLinesOfDevice, are_empty_when_a_query_fails) {
    storage_.answersMemory = false;
    EXPECT_EQ(Filled(ProgramMemoryLine), L"");
    EXPECT_EQ(Filled(DataStoreLine), L"");
}

TEST_F(MemoryLinesOfDevice, name_a_card_as_the_enumeration_does) {
    storage_.cards = {{L"Storage Card", {10 * Kilobyte, 40 * Kilobyte}, true},
                      {L"100%d", {Kilobyte, 4 * Kilobyte}, true}};
    EXPECT_EQ(CardLine(0), L"Storage Card: 10/40KB (25%)");
    EXPECT_EQ(CardLine(1), L"100%d: 1/4KB (25%)");
    EXPECT_EQ(storage_.askedNames, (std::vector<std::wstring>{L"Storage Card", L"100%d"}));
}

TEST_F(MemoryLinesOfDevice, are_empty_without_a_card_or_its_sizes) {
    storage_.cards = {{L"Storage Card", {}, false}};
    EXPECT_EQ(CardLine(0), L"");
    EXPECT_EQ(CardLine(1), L"");
}

TEST_F(MemoryLinesOfDevice, hold_the_longest_card_name) {
    const std::wstring name(MAX_PATH - 1, L'n');
    storage_.cards = {{name, {1024 * Gigabyte, 1024 * Gigabyte}, true}};
    EXPECT_EQ(CardLine(0), name + L": 1073741824/1073741824KB (100%)");
}

TEST(MemoryOfThisMachine, has_free_and_total_program_memory_and_store) {
    ce::FreeAndTotal bytes;
    ASSERT_TRUE(ce::storageCalls.programMemory(bytes));
    EXPECT_GT(bytes.total, 0u);
    EXPECT_LE(bytes.free, bytes.total);
    ASSERT_TRUE(ce::storageCalls.objectStore(bytes));
    EXPECT_GT(bytes.total, 0u);
    EXPECT_LE(bytes.free, bytes.total);
}

TEST(MemoryOfThisMachine, has_fewer_cards_than_drive_letters) {
    wchar_t name[MAX_PATH];
    EXPECT_FALSE(ce::storageCalls.storageCard(26, name));
}

TEST(MemoryOfThisMachine, is_asked_for_without_the_system_asking_for_a_disk) {
    DWORD before = 0;
    ASSERT_TRUE(SetThreadErrorMode(0, &before));
    ce::SuppressDiskPrompts();
    EXPECT_NE(GetThreadErrorMode() & SEM_FAILCRITICALERRORS, 0u);
    SetThreadErrorMode(before, nullptr);
}
