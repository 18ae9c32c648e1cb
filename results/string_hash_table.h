#pragma once

// A map from a text to a word, with a fixed number of buckets. Keys are compared exactly; callers lower-case
// them first where case should not matter. Entries are never removed one by one.

#include <cstddef>
#include <cstdint>
#include <memory>

class StringHashTable {
  public:
    static constexpr std::size_t UsualBucketCount = 113;

    explicit StringHashTable(std::size_t bucketCount = UsualBucketCount);
    ~StringHashTable();
    StringHashTable(const StringHashTable&) = delete;
    StringHashTable& operator=(const StringHashTable&) = delete;

    // Keeps a copy of the key. A newer entry hides an older one with the same key; without memory the entry
    // is silently lost.
    void Insert(const wchar_t* key, std::uintptr_t value);

    // The value, or 0 for an unknown key; so no caller stores 0 as a value.
    [[nodiscard]] std::uintptr_t Lookup(const wchar_t* key) const;

    // The sum of the units, each modulo the bucket count, modulo the bucket count.
    [[nodiscard]] static std::size_t BucketOf(const wchar_t* key, std::size_t bucketCount);

  private:
    struct Entry;

    std::size_t count_;
    std::unique_ptr<Entry*[]> buckets_;
};
