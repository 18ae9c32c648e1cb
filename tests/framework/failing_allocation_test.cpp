#include <gtest/gtest.h>

#include <cstdint>

#include "framework/dispatch_tables.h"
#include "tests/support/refused_memory.h"

namespace {

WindowObject* Object(std::uintptr_t number) {
    return reinterpret_cast<WindowObject*>(number);
}

}  // namespace

TEST(FailingAllocation, of_a_map_entry_loses_the_entry_and_nothing_else) {
    const auto window = reinterpret_cast<HWND>(std::uintptr_t{0x10020});
    const auto neighbour = reinterpret_cast<HWND>(std::uintptr_t{0x10020 + 113});
    WindowMap map;
    EXPECT_TRUE(map.Insert(neighbour, Object(1)));
    {
        const RefusedMemory noMemory;
        EXPECT_FALSE(map.Insert(window, Object(2)));
    }
    EXPECT_EQ(map.Find(window), nullptr);
    EXPECT_EQ(map.Find(neighbour), Object(1));
    EXPECT_FALSE(map.Remove(window));
    map.Insert(window, Object(3));
    EXPECT_EQ(map.Find(window), Object(3));
}

TEST(FailingAllocation, of_a_message_entry_leaves_the_older_one_in_force) {
    MessageTable table;
    table.Add(0x0005, Object(8), nullptr, 1);
    {
        const RefusedMemory noMemory;
        table.Add(0x0005, Object(8), nullptr, 2);
        table.Add(0x0006, Object(8), nullptr, 3);
    }
    ASSERT_NE(table.Find(0x0005), nullptr);
    EXPECT_EQ(table.Find(0x0005)->extra, 1U);
    EXPECT_EQ(table.Find(0x0006), nullptr);
}

TEST(FailingAllocation, of_an_event_entry_leaves_the_older_one_in_force) {
    EventTable table;
    table.Add(event::Command, 40100, Object(8), nullptr, 1);
    {
        const RefusedMemory noMemory;
        table.Add(event::Command, 40100, Object(8), nullptr, 2);
        table.Add(event::Command, 40101, Object(8), nullptr, 3);
    }
    ASSERT_NE(table.Find(event::Command, 40100), nullptr);
    EXPECT_EQ(table.Find(event::Command, 40100)->extra, 1U);
    EXPECT_EQ(table.Find(event::Command, 40101), nullptr);
}
