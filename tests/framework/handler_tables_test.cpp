#include "framework/dispatch_tables.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

// The tables call nobody; numbers do for the targets, and no method is needed.
WindowObject* Target(std::uintptr_t number) {
    return reinterpret_cast<WindowObject*>(number);
}

TEST(MessageTable, finds_nothing_when_empty) {
    const MessageTable table;
    EXPECT_EQ(table.Find(0x000F), nullptr);
}

TEST(MessageTable, gives_target_and_extra_word_of_the_message) {
    MessageTable table;
    table.Add(0x0005, Target(8), nullptr, 50);
    table.Add(0x0053, Target(16), nullptr, 51);
    const MessageEntry* entry = table.Find(0x0005);
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->target, Target(8));
    EXPECT_EQ(entry->extra, 50U);
    entry = table.Find(0x0053);
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->target, Target(16));
    EXPECT_EQ(entry->extra, 51U);
    EXPECT_EQ(table.Find(0x0006), nullptr);
}

TEST(MessageTable, lets_a_later_registration_hide_an_earlier_one) {
    MessageTable table;
    table.Add(0x0100, Target(8), nullptr, 1);
    table.Add(0x0102, Target(8), nullptr, 2);
    table.Add(0x0100, Target(16), nullptr, 3);
    const MessageEntry* entry = table.Find(0x0100);
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->target, Target(16));
    EXPECT_EQ(entry->extra, 3U);
}

TEST(EventTable, finds_nothing_when_empty) {
    const EventTable table;
    EXPECT_EQ(table.Find(event::Command, 40100), nullptr);
}

TEST(EventTable, wants_both_code_and_source) {
    EventTable table;
    table.Add(event::Command, 40100, Target(8), nullptr, 1);
    table.Add(event::KeyDown, 40100, Target(8), nullptr, 2);
    table.Add(event::Command, 40101, Target(8), nullptr, 3);
    ASSERT_NE(table.Find(event::Command, 40100), nullptr);
    EXPECT_EQ(table.Find(event::Command, 40100)->extra, 1U);
    ASSERT_NE(table.Find(event::KeyDown, 40100), nullptr);
    EXPECT_EQ(table.Find(event::KeyDown, 40100)->extra, 2U);
    ASSERT_NE(table.Find(event::Command, 40101), nullptr);
    EXPECT_EQ(table.Find(event::Command, 40101)->extra, 3U);
    EXPECT_EQ(table.Find(event::KeyDown, 40101), nullptr);
}

TEST(EventTable, takes_the_newest_entry_first) {
    EventTable table;
    table.Add(event::DoubleClick, 0x10020, Target(8), nullptr, 1);
    table.Add(event::DoubleClick, 0x10020, Target(16), nullptr, 2);
    const EventEntry* entry = table.Find(event::DoubleClick, 0x10020);
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->target, Target(16));
    EXPECT_EQ(entry->extra, 2U);
}

TEST(EventTable, keeps_a_source_of_full_width) {
    EventTable table;
    table.Add(event::Command, 0x100010020, Target(8), nullptr, 1);
    EXPECT_NE(table.Find(event::Command, 0x100010020), nullptr);
    EXPECT_EQ(table.Find(event::Command, 0x10020), nullptr);
}

}  // namespace
