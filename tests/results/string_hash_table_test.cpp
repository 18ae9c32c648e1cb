#include "results/string_hash_table.h"

#include <gtest/gtest.h>

#include <string>

TEST(StringHashTable, an_unknown_key_is_answered_with_0) {
    const StringHashTable table;
    EXPECT_EQ(table.Lookup(L"txt"), 0U);
    EXPECT_EQ(table.Lookup(L""), 0U);
}

TEST(StringHashTable, a_key_is_answered_with_its_value) {
    StringHashTable table;
    table.Insert(L".txt", 7);
    table.Insert(L".log", 8);
    EXPECT_EQ(table.Lookup(L".txt"), 7U);
    EXPECT_EQ(table.Lookup(L".log"), 8U);
    EXPECT_EQ(table.Lookup(L".tx"), 0U);
}

TEST(StringHashTable, the_empty_text_is_a_key_in_bucket_0) {
    EXPECT_EQ(StringHashTable::BucketOf(L"", 113), 0U);
    StringHashTable table;
    table.Insert(L"", 9);
    EXPECT_EQ(table.Lookup(L""), 9U);
}

TEST(StringHashTable, keys_that_differ_in_letter_case_are_different) {
    StringHashTable table;
    table.Insert(L".txt", 7);
    EXPECT_EQ(table.Lookup(L".TXT"), 0U);
}

TEST(StringHashTable, the_bucket_is_the_sum_of_the_units_each_modulo_the_count_modulo_the_count) {
    EXPECT_EQ(StringHashTable::BucketOf(L"a", 113), 97U);
    EXPECT_EQ(StringHashTable::BucketOf(L"q", 113), 0U);      // 113
    EXPECT_EQ(StringHashTable::BucketOf(L"r", 113), 1U);      // 114
    EXPECT_EQ(StringHashTable::BucketOf(L"ab", 113), 82U);    // 97 + 98 = 195
    EXPECT_EQ(StringHashTable::BucketOf(L".txt", 113), 59U);  // 46 + 3 + 7 + 3
}

TEST(StringHashTable, a_unit_above_32767_counts_with_its_own_number) {
    EXPECT_EQ(StringHashTable::BucketOf(L"\uFF71", 113), 79U);
}

TEST(StringHashTable, a_newer_entry_of_the_same_key_hides_the_older_one) {
    StringHashTable table;
    table.Insert(L".txt", 7);
    table.Insert(L".txt", 8);
    EXPECT_EQ(table.Lookup(L".txt"), 8U);
}

TEST(StringHashTable, keys_of_one_bucket_are_kept_apart) {
    ASSERT_EQ(StringHashTable::BucketOf(L"ab", 113), StringHashTable::BucketOf(L"ba", 113));
    StringHashTable table;
    table.Insert(L"ab", 1);
    table.Insert(L"ba", 2);
    EXPECT_EQ(table.Lookup(L"ab"), 1U);
    EXPECT_EQ(table.Lookup(L"ba"), 2U);
}

TEST(StringHashTable, the_table_keeps_its_own_copy_of_a_key) {
    StringHashTable table;
    wchar_t key[] = L"abc";
    table.Insert(key, 3);
    key[0] = L'x';
    EXPECT_EQ(table.Lookup(L"abc"), 3U);
    EXPECT_EQ(table.Lookup(L"xbc"), 0U);
}

TEST(StringHashTable, one_bucket_holds_any_number_of_keys) {
    StringHashTable table(1);
    for (std::uintptr_t i = 1; i <= 500; ++i)
        table.Insert(std::to_wstring(i).c_str(), i);
    for (std::uintptr_t i = 1; i <= 500; ++i)
        EXPECT_EQ(table.Lookup(std::to_wstring(i).c_str()), i);
}
