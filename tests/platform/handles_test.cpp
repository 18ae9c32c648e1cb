#include "platform/handles.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace {

std::vector<int> released;

struct NumberKind {
    using Type = int;
    static int None() { return -1; }
    static void Release(int number) { released.push_back(number); }
};
using UniqueNumber = UniqueHandle<NumberKind>;

class UniqueHandleTest : public testing::Test {
  protected:
    UniqueHandleTest() { released.clear(); }
};

}  // namespace

TEST_F(UniqueHandleTest, what_an_owner_holds_is_released_once_at_its_end) {
    { const UniqueNumber owner(7); }
    EXPECT_EQ(released, std::vector<int>{7});
}

TEST_F(UniqueHandleTest, an_owner_of_nothing_releases_nothing) {
    {
        const UniqueNumber owner;
        EXPECT_FALSE(owner);
    }
    EXPECT_TRUE(released.empty());
}

TEST_F(UniqueHandleTest, a_new_handle_takes_the_place_of_the_released_old_one) {
    UniqueNumber owner(7);
    owner.Reset(8);
    EXPECT_EQ(released, std::vector<int>{7});
    EXPECT_EQ(owner.Get(), 8);
}

TEST_F(UniqueHandleTest, a_handle_that_moves_on_is_released_by_its_last_owner) {
    {
        UniqueNumber first(7);
        UniqueNumber second(std::move(first));
        EXPECT_FALSE(first);
        UniqueNumber third(9);
        third = std::move(second);
        EXPECT_EQ(released, std::vector<int>{9});
    }
    EXPECT_EQ(released, (std::vector<int>{9, 7}));
}

TEST_F(UniqueHandleTest, a_handle_that_is_given_away_is_not_released) {
    {
        UniqueNumber owner(7);
        EXPECT_EQ(owner.Detach(), 7);
    }
    EXPECT_TRUE(released.empty());
}

TEST_F(UniqueHandleTest, what_is_held_is_released_before_another_handle_is_received) {
    {
        UniqueNumber owner(7);
        int* const place = owner.Receive();
        EXPECT_EQ(released, std::vector<int>{7});
        *place = 8;
    }
    EXPECT_EQ(released, (std::vector<int>{7, 8}));
}

TEST(Handles, the_object_selected_before_comes_back) {
    const WindowContext context(nullptr);
    const HGDIOBJ before = GetCurrentObject(context.Get(), OBJ_FONT);
    {
        const HGDIOBJ font = GetStockObject(ANSI_FIXED_FONT);
        const SelectedObject selected(context.Get(), font);
        EXPECT_EQ(GetCurrentObject(context.Get(), OBJ_FONT), font);
    }
    EXPECT_EQ(GetCurrentObject(context.Get(), OBJ_FONT), before);
}
