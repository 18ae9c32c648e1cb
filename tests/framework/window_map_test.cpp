#include "framework/dispatch_tables.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

// The map looks at no window and no object; numbers do for both.
HWND Window(std::uintptr_t number) {
    return reinterpret_cast<HWND>(number);
}

WindowObject* Object(std::uintptr_t number) {
    return reinterpret_cast<WindowObject*>(number);
}

TEST(WindowMap, finds_nothing_when_empty) {
    WindowMap map;
    EXPECT_EQ(map.Find(Window(0x10020)), nullptr);
    EXPECT_EQ(map.Find(nullptr), nullptr);
    EXPECT_FALSE(map.Remove(Window(0x10020)));
}

TEST(WindowMap, finds_what_was_inserted) {
    WindowMap map;
    map.Insert(Window(0x10020), Object(8));
    EXPECT_EQ(map.Find(Window(0x10020)), Object(8));
    EXPECT_EQ(map.Find(Window(0x10021)), nullptr);
}

TEST(WindowMap, removes_once) {
    WindowMap map;
    map.Insert(Window(0x10020), Object(8));
    EXPECT_TRUE(map.Remove(Window(0x10020)));
    EXPECT_EQ(map.Find(Window(0x10020)), nullptr);
    EXPECT_FALSE(map.Remove(Window(0x10020)));
}

TEST(WindowMap, has_113_buckets_by_the_unsigned_remainder) {
    EXPECT_EQ(WindowMap::BucketCount, 113U);
    EXPECT_EQ(WindowMap::BucketOf(nullptr), 0U);
    EXPECT_EQ(WindowMap::BucketOf(Window(112)), 112U);
    EXPECT_EQ(WindowMap::BucketOf(Window(113)), 0U);
    EXPECT_EQ(WindowMap::BucketOf(Window(300)), 74U);
    // 4294967294 = 113 x 38008560 + 14.
    EXPECT_EQ(WindowMap::BucketOf(Window(0xFFFFFFFE)), 14U);
}

TEST(WindowMap, keeps_handles_of_one_bucket_apart) {
    WindowMap map;
    map.Insert(Window(5), Object(1));
    map.Insert(Window(5 + 113), Object(2));
    map.Insert(Window(5 + 226), Object(3));
    EXPECT_EQ(map.Find(Window(5)), Object(1));
    EXPECT_EQ(map.Find(Window(118)), Object(2));
    EXPECT_EQ(map.Find(Window(231)), Object(3));

    EXPECT_TRUE(map.Remove(Window(118)));
    EXPECT_EQ(map.Find(Window(5)), Object(1));
    EXPECT_EQ(map.Find(Window(118)), nullptr);
    EXPECT_EQ(map.Find(Window(231)), Object(3));
}

TEST(WindowMap, puts_a_new_entry_before_an_older_one_of_the_same_handle) {
    WindowMap map;
    map.Insert(Window(77), Object(1));
    map.Insert(Window(77), Object(2));
    EXPECT_EQ(map.Find(Window(77)), Object(2));
    EXPECT_TRUE(map.Remove(Window(77)));
    EXPECT_EQ(map.Find(Window(77)), Object(1));
}

TEST(WindowMap, removes_the_entry_of_one_object_and_leaves_the_others) {
    for (const std::uintptr_t gone : {1U, 2U}) {
        WindowMap map;
        map.Insert(Window(77), Object(1));
        map.Insert(Window(77), Object(2));
        EXPECT_TRUE(map.Remove(Window(77), Object(gone)));
        EXPECT_FALSE(map.Remove(Window(77), Object(gone)));
        EXPECT_FALSE(map.Remove(Window(77), Object(9)));
        EXPECT_EQ(map.Find(Window(77)), Object(3 - gone));
    }
}

TEST(WindowMap, finds_each_of_a_thousand_windows) {
    WindowMap map;
    for (std::uintptr_t i = 1; i <= 1000; ++i)
        map.Insert(Window(i * 2), Object(i));
    for (std::uintptr_t i = 1; i <= 1000; ++i)
        ASSERT_EQ(map.Find(Window(i * 2)), Object(i)) << i;
    for (std::uintptr_t i = 1; i <= 1000; i += 2)
        ASSERT_TRUE(map.Remove(Window(i * 2))) << i;
    for (std::uintptr_t i = 1; i <= 1000; ++i) {
        ASSERT_EQ(map.Find(Window(i * 2)), i % 2 == 0 ? Object(i) : nullptr) << i;
    }
}

}  // namespace
