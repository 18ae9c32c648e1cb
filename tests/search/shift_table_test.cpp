#include "search/shift_table.h"

#include <gtest/gtest.h>

#include <memory>

TEST(ShiftTable, a_new_table_holds_nothing_but_0) {
    const auto table = std::make_unique<ShiftTable>();
    for (int index = 0; index < ShiftTable::Entries; ++index)
        ASSERT_EQ(table->EntryAt(index), 0);
}

TEST(ShiftTable, it_has_65792_entries) {
    EXPECT_EQ(ShiftTable::Entries, 65792);
}

TEST(ShiftTable, filling_again_with_the_same_shift_forgets_the_units_and_the_bytes_set_since) {
    const auto table = std::make_unique<ShiftTable>();
    table->FillUnits(3);
    table->SetUnit(L'a', 2);
    table->SetUnit(L'b', 1);
    table->SetByte('\x80', 7);
    table->SetByte('\xFF', 8);
    table->FillUnits(3);
    for (int index = 0; index < ShiftTable::UnitEntries; ++index)
        ASSERT_EQ(table->EntryAt(index), 3);
}

TEST(ShiftTable, filling_with_another_shift_writes_every_entry_of_units) {
    const auto table = std::make_unique<ShiftTable>();
    table->FillUnits(3);
    table->SetUnit(L'a', 2);
    table->FillUnits(5);
    for (int index = 0; index < ShiftTable::UnitEntries; ++index)
        ASSERT_EQ(table->EntryAt(index), 5);
    for (int index = ShiftTable::UnitEntries; index < ShiftTable::Entries; ++index) {
        ASSERT_EQ(table->EntryAt(index), 0);
    }
}

TEST(ShiftTable, clearing_brings_back_the_start) {
    const auto table = std::make_unique<ShiftTable>();
    table->FillUnits(3);
    table->SetUnit(L'a', 2);
    table->FillBytes(4);
    table->Clear();
    for (int index = 0; index < ShiftTable::Entries; ++index)
        ASSERT_EQ(table->EntryAt(index), 0);
    // And the table does not take the old shift for still standing.
    table->FillUnits(3);
    EXPECT_EQ(table->ForUnit(L'a'), 3);
    EXPECT_EQ(table->ForUnit(L'z'), 3);
}
