#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

#include "framework/handler_tables.h"
#include "framework/window_map.h"

namespace {

bool refuseMemory = false;

class NoMemory {
  public:
    NoMemory() { refuseMemory = true; }
    ~NoMemory() { refuseMemory = false; }
    NoMemory(const NoMemory&) = delete;
    NoMemory& operator=(const NoMemory&) = delete;
};

WindowObject* Object(std::uintptr_t number) {
    return reinterpret_cast<WindowObject*>(number);
}

}  // namespace

void* operator new(std::size_t size) {
    void* const memory = std::malloc(size != 0 ? size : 1);
    if (memory == nullptr) std::abort();
    return memory;
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return refuseMemory ? nullptr : std::malloc(size != 0 ? size : 1);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}

namespace {

TEST(FailingAllocation, of_a_map_entry_loses_the_entry_and_nothing_else) {
    const auto window = reinterpret_cast<HWND>(std::uintptr_t{0x10020});
    const auto neighbour = reinterpret_cast<HWND>(std::uintptr_t{0x10020 + 113});
    WindowMap map;
    map.Insert(neighbour, Object(1));
    {
        const NoMemory noMemory;
        map.Insert(window, Object(2));
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
        const NoMemory noMemory;
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
        const NoMemory noMemory;
        table.Add(event::Command, 40100, Object(8), nullptr, 2);
        table.Add(event::Command, 40101, Object(8), nullptr, 3);
    }
    ASSERT_NE(table.Find(event::Command, 40100), nullptr);
    EXPECT_EQ(table.Find(event::Command, 40100)->extra, 1U);
    EXPECT_EQ(table.Find(event::Command, 40101), nullptr);
}

}  // namespace
