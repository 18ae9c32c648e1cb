#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <cwchar>
#include <new>

#include "search/name_patterns.h"
#include "search/object_list.h"

namespace {

// Which of the next allocations that may fail do: bit 0 the first, bit 1 the second, and so on.
unsigned refusedAllocations = 0;

void* AllocateUnlessRefused(std::size_t size) {
    const bool refused = (refusedAllocations & 1U) != 0;
    refusedAllocations >>= 1U;
    return refused ? nullptr : std::malloc(size != 0 ? size : 1);
}

class Refuse {
  public:
    explicit Refuse(unsigned allocations) { refusedAllocations = allocations; }
    ~Refuse() { refusedAllocations = 0; }
};
constexpr unsigned First = 1;
constexpr unsigned Second = 2;
constexpr unsigned Third = 4;
constexpr unsigned All = ~0U;

class DeletionNote final : public ListObject {
  public:
    explicit DeletionNote(bool& deletedFlag) : deleted(deletedFlag) {}
    ~DeletionNote() override { deleted = true; }

  private:
    bool& deleted;
};

}  // namespace

void* operator new(std::size_t size) {
    void* const memory = std::malloc(size != 0 ? size : 1);
    if (memory == nullptr) std::abort();
    return memory;
}
void* operator new[](std::size_t size) {
    return operator new(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return AllocateUnlessRefused(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return AllocateUnlessRefused(size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}

TEST(FailingAllocation, an_item_without_a_node_is_neither_kept_nor_deleted) {
    bool deleted = false;
    auto* const item = new DeletionNote(deleted);
    {
        ObjectList list;
        bool appended = true;
        {
            const Refuse refuse(First);
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
    for (const unsigned allocation : {First, Second}) {
        const Refuse refuse(allocation);
        EXPECT_EQ(StringObject::Create(L"text"), nullptr) << "refused: " << allocation;
    }
    StringObject* const object = StringObject::Create(L"text");
    ASSERT_NE(object, nullptr);
    EXPECT_STREQ(object->Text(), L"text");
    delete object;
}

TEST(FailingAllocation, a_text_object_without_its_copy_is_an_empty_text) {
    const Refuse refuse(First);
    const StringObject object(L"text");
    EXPECT_STREQ(object.Text(), L"");
    EXPECT_EQ(object.Length(), 0U);
}

TEST(FailingAllocation, a_name_that_cannot_be_allocated_is_appended_as_a_null_item) {
    for (const unsigned allocation : {First, Second}) {
        ObjectList patterns;
        wchar_t extensions[] = L"";
        {
            const Refuse refuse(allocation);
            EXPECT_STREQ(BuildNamePatterns(SearchConditions(), L"*.txt", extensions, patterns), L"");
        }
        EXPECT_EQ(patterns.Count(), 1U) << "refused: " << allocation;
        EXPECT_EQ(patterns.First(), nullptr) << "refused: " << allocation;
    }
}

TEST(FailingAllocation,
     an_extension_that_cannot_be_allocated_is_appended_as_a_null_item_and_the_next_is_tried) {
    SearchConditions conditions;
    conditions.flags = SearchConditions::TypeFilter;
    for (const unsigned allocation : {First, Second, Third}) {
        ObjectList patterns;
        wchar_t extensions[] = L".htm.html";
        {
            const Refuse refuse(allocation);
            EXPECT_STREQ(BuildNamePatterns(conditions, L"", extensions, patterns), L"");
        }
        EXPECT_EQ(patterns.Count(), 2U) << "refused: " << allocation;
        EXPECT_EQ(patterns.First(), nullptr) << "refused: " << allocation;
        auto* const second = static_cast<StringObject*>(patterns.Next());
        ASSERT_NE(second, nullptr) << "refused: " << allocation;
        EXPECT_STREQ(second->Text(), L"*.htm");
    }
}

TEST(FailingAllocation, without_any_memory_the_pattern_list_stays_empty) {
    ObjectList patterns;
    wchar_t extensions[] = L"";
    {
        const Refuse refuse(All);
        EXPECT_STREQ(BuildNamePatterns(SearchConditions(), L"abc", extensions, patterns), L"abc");
    }
    EXPECT_EQ(patterns.Count(), 0U);
}
