#include "base/object_list.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

// Writes its number when it is deleted.
class NumberedObject final : public ListObject {
  public:
    NumberedObject(int ownNumber, std::vector<int>& deletedNumbers)
        : number(ownNumber), deleted_(deletedNumbers) {}
    ~NumberedObject() override { deleted_.push_back(number); }

    const int number;

  private:
    std::vector<int>& deleted_;
};

const wchar_t* TextOf(ListObject* item) {
    return item != nullptr ? static_cast<StringObject*>(item)->Text() : nullptr;
}

void Fill(ObjectList& list) {
    for (const wchar_t* text : {L"one", L"two", L"three"})
        ASSERT_TRUE(list.Append(new StringObject(text)));
}

}  // namespace

TEST(StringObject, it_holds_a_copy_and_the_length_without_the_terminator) {
    wchar_t source[] = L"*.txt";
    const StringObject object(source);
    source[0] = L'x';
    EXPECT_STREQ(object.Text(), L"*.txt");
    EXPECT_EQ(object.Length(), 5U);
}

TEST(StringObject, an_empty_text_has_the_length_0) {
    const StringObject object(L"");
    EXPECT_STREQ(object.Text(), L"");
    EXPECT_EQ(object.Length(), 0U);
}

TEST(ObjectList, a_new_list_is_empty) {
    ObjectList list;
    EXPECT_EQ(list.Count(), 0U);
    EXPECT_EQ(list.First(), nullptr);
    EXPECT_EQ(list.Next(), nullptr);
    EXPECT_EQ(list.ItemAt(0), nullptr);
}

TEST(ObjectList, items_come_back_in_the_order_in_which_they_were_appended) {
    ObjectList list;
    Fill(list);
    EXPECT_EQ(list.Count(), 3U);
    EXPECT_STREQ(TextOf(list.First()), L"one");
    EXPECT_STREQ(TextOf(list.Next()), L"two");
    EXPECT_STREQ(TextOf(list.Next()), L"three");
    EXPECT_EQ(list.Next(), nullptr);
}

TEST(ObjectList, at_the_end_the_cursor_stays_on_the_last_item) {
    ObjectList list;
    Fill(list);
    ASSERT_NE(list.ItemAt(2), nullptr);
    EXPECT_EQ(list.Next(), nullptr);
    ASSERT_TRUE(list.Append(new StringObject(L"four")));
    EXPECT_EQ(list.Next(), nullptr);
    EXPECT_STREQ(TextOf(list.First()), L"one");
}

TEST(ObjectList, appending_puts_the_cursor_on_the_new_item) {
    ObjectList list;
    Fill(list);
    EXPECT_STREQ(TextOf(list.First()), L"one");
    ASSERT_TRUE(list.Append(new StringObject(L"four")));
    EXPECT_EQ(list.Next(), nullptr);
}

TEST(ObjectList, an_item_by_its_number_becomes_the_place_of_the_cursor) {
    ObjectList list;
    Fill(list);
    EXPECT_STREQ(TextOf(list.ItemAt(0)), L"one");
    EXPECT_STREQ(TextOf(list.ItemAt(1)), L"two");
    EXPECT_STREQ(TextOf(list.Next()), L"three");
    EXPECT_STREQ(TextOf(list.ItemAt(2)), L"three");
    EXPECT_EQ(list.ItemAt(3), nullptr);
    EXPECT_EQ(list.ItemAt(0xFFFFFFFFU), nullptr);
}

TEST(ObjectList, a_null_item_is_counted_and_looks_like_the_end) {
    ObjectList list;
    ASSERT_TRUE(list.Append(new StringObject(L"one")));
    ASSERT_TRUE(list.Append(nullptr));
    ASSERT_TRUE(list.Append(new StringObject(L"three")));
    EXPECT_EQ(list.Count(), 3U);
    EXPECT_STREQ(TextOf(list.First()), L"one");
    EXPECT_EQ(list.Next(), nullptr);
    // The cursor did move onto it.
    EXPECT_STREQ(TextOf(list.Next()), L"three");
}

TEST(ObjectList, the_items_are_deleted_with_the_list_front_to_back) {
    std::vector<int> deleted;
    {
        ObjectList list;
        for (const int number : {1, 2, 3})
            ASSERT_TRUE(list.Append(new NumberedObject(number, deleted)));
        EXPECT_TRUE(deleted.empty());
    }
    EXPECT_EQ(deleted, (std::vector<int>{1, 2, 3}));
}
