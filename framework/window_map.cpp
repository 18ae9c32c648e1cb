#include "framework/window_map.h"

#include <cstdint>
#include <new>

WindowMap::~WindowMap() {
    for (Entry* entry : buckets_) {
        while (entry != nullptr) {
            Entry* next = entry->next;
            delete entry;
            entry = next;
        }
    }
}

bool WindowMap::Insert(HWND window, WindowObject* object) {
    Entry*& head = buckets_[BucketOf(window)];
    auto* entry = new (std::nothrow) Entry{window, object, head};
    if (entry != nullptr) head = entry;
    return entry != nullptr;
}

WindowObject* WindowMap::Find(HWND window) const {
    for (const Entry* entry = buckets_[BucketOf(window)]; entry != nullptr; entry = entry->next) {
        if (entry->window == window) return entry->object;
    }
    return nullptr;
}

bool WindowMap::Remove(HWND window) {
    const WindowObject* newest = Find(window);
    return newest != nullptr && Remove(window, newest);
}

bool WindowMap::Remove(HWND window, const WindowObject* object) {
    for (Entry** link = &buckets_[BucketOf(window)]; *link != nullptr; link = &(*link)->next) {
        if ((*link)->window != window || (*link)->object != object) continue;
        Entry* entry = *link;
        *link = entry->next;
        delete entry;
        return true;
    }
    return false;
}

std::size_t WindowMap::BucketOf(HWND window) {
    return reinterpret_cast<std::uintptr_t>(window) % BucketCount;
}
