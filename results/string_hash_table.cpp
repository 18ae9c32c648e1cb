#include "results/string_hash_table.h"

#include <cwchar>
#include <new>

struct StringHashTable::Entry {
    std::unique_ptr<wchar_t[]> key;
    std::uintptr_t value;
    Entry* next;
};

StringHashTable::StringHashTable(std::size_t bucketCount)
    : count_(bucketCount), buckets_(new (std::nothrow) Entry*[bucketCount]()) {}

StringHashTable::~StringHashTable() {
    for (std::size_t i = 0; buckets_ != nullptr && i < count_; ++i) {
        for (Entry* entry = buckets_[i]; entry != nullptr;) {
            Entry* next = entry->next;
            delete entry;
            entry = next;
        }
    }
}

void StringHashTable::Insert(const wchar_t* key, std::uintptr_t value) {
    if (buckets_ == nullptr) return;
    const std::size_t size = std::wcslen(key) + 1;
    std::unique_ptr<wchar_t[]> copy(new (std::nothrow) wchar_t[size]);
    if (copy == nullptr) return;
    std::wmemcpy(copy.get(), key, size);
    Entry*& head = buckets_[BucketOf(key, count_)];
    auto* entry = new (std::nothrow) Entry{std::move(copy), value, head};
    if (entry != nullptr) head = entry;
}

std::uintptr_t StringHashTable::Lookup(const wchar_t* key) const {
    if (buckets_ == nullptr) return 0;
    for (const Entry* entry = buckets_[BucketOf(key, count_)]; entry != nullptr; entry = entry->next) {
        if (std::wcscmp(entry->key.get(), key) == 0) return entry->value;
    }
    return 0;
}

std::size_t StringHashTable::BucketOf(const wchar_t* key, std::size_t bucketCount) {
    std::size_t sum = 0;
    for (; *key != L'\0'; ++key)
        sum += static_cast<std::uint16_t>(*key) % bucketCount;
    return sum % bucketCount;
}
