#pragma once

// A map from a text to a word, with a fixed number of buckets. Keys are compared exactly; callers bring them
// to lower case first where case should not matter. Nothing is ever removed but the whole table.

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

    // Keeps a copy of the key. A newer entry of the same key hides an older one; lost silently when there is
    // no memory for it.
    void Insert(const wchar_t* key, std::uintptr_t value);

    // The value, or 0 for an unknown key; so 0 is never stored to mean something.
    [[nodiscard]] std::uintptr_t Lookup(const wchar_t* key) const;

    // The sum of the units, each modulo the bucket count, modulo the bucket count.
    [[nodiscard]] static std::size_t BucketOf(const wchar_t* key, std::size_t bucketCount);

  private:
    struct Entry;

    std::size_t count_;
    std::unique_ptr<Entry*[]> buckets_;
};
