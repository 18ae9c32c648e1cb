#include <gtest/gtest.h>

#include "base/object_list.h"
#include "search/name_patterns.h"
#include "tests/support/asked_query.h"
#include "tests/support/refused_memory.h"

namespace {

class DeletionNote final : public ListObject {
  public:
    explicit DeletionNote(bool& deletedFlag) : deleted_(deletedFlag) {}
    ~DeletionNote() override { deleted_ = true; }

  private:
    bool& deleted_;
};

}  // namespace

TEST(FailingAllocation, an_item_without_a_node_is_neither_kept_nor_deleted) {
    bool deleted = false;
    auto* const item = new DeletionNote(deleted);
    {
        ObjectList list;
        bool appended = true;
        {
            const RefusedMemory first = RefusedMemory::Only(1);
            appended = list.Append(item);
        }
        EXPECT_FALSE(appended);
        EXPECT_EQ(list.Count(), 0U);
        EXPECT_EQ(list.First(), nullptr);
    }
    EXPECT_FALSE(deleted);
    delete item;
    EXPECT_TRUE(deleted);
}

TEST(FailingAllocation, a_text_object_is_not_created_when_it_or_its_copy_cannot_be_allocated) {
    for (const int allocation : {1, 2}) {
        const RefusedMemory one = RefusedMemory::Only(allocation);
        EXPECT_EQ(StringObject::Create(L"text"), nullptr) << "refused: " << allocation;
    }
    StringObject* const object = StringObject::Create(L"text");
    ASSERT_NE(object, nullptr);
    EXPECT_STREQ(object->Text(), L"text");
    delete object;
}

TEST(FailingAllocation, a_text_object_without_its_copy_is_an_empty_text) {
    const RefusedMemory first = RefusedMemory::Only(1);
    const StringObject object(L"text");
    EXPECT_STREQ(object.Text(), L"");
    EXPECT_EQ(object.Length(), 0U);
}

TEST(FailingAllocation, a_name_that_cannot_be_allocated_is_appended_as_a_null_item) {
    for (const int allocation : {1, 2}) {
        AskedQuery asked;
        asked.name = L"*.txt";
        const SearchQuery query = asked;
        ObjectList patterns;
        {
            const RefusedMemory one = RefusedMemory::Only(allocation);
            EXPECT_STREQ(BuildNamePatterns(query, patterns), L"");
        }
        EXPECT_EQ(patterns.Count(), 1U) << "refused: " << allocation;
        EXPECT_EQ(patterns.First(), nullptr) << "refused: " << allocation;
    }
}

TEST(FailingAllocation,
     an_extension_that_cannot_be_allocated_is_appended_as_a_null_item_and_the_next_is_tried) {
    AskedQuery asked;
    asked.typeFilter = true;
    asked.extensions = L".htm.html";
    const SearchQuery query = asked;
    for (const int allocation : {1, 2, 3}) {
        ObjectList patterns;
        {
            const RefusedMemory one = RefusedMemory::Only(allocation);
            EXPECT_STREQ(BuildNamePatterns(query, patterns), L"");
        }
        EXPECT_EQ(patterns.Count(), 2U) << "refused: " << allocation;
        EXPECT_EQ(patterns.First(), nullptr) << "refused: " << allocation;
        auto* const second = static_cast<StringObject*>(patterns.Next());
        ASSERT_NE(second, nullptr) << "refused: " << allocation;
        EXPECT_STREQ(second->Text(), L"*.htm");
    }
}

TEST(FailingAllocation, without_any_memory_the_pattern_list_stays_empty) {
    AskedQuery asked;
    asked.name = L"abc";
    const SearchQuery query = asked;
    ObjectList patterns;
    {
        const RefusedMemory all;
        EXPECT_STREQ(BuildNamePatterns(query, patterns), L"abc");
    }
    EXPECT_EQ(patterns.Count(), 0U);
}
