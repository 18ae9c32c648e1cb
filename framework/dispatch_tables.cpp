#include "framework/dispatch_tables.h"

#include <new>

namespace {

template <class Entry>
void DeleteAll(Entry* entry) {
    while (entry != nullptr) {
        Entry* next = entry->next;
        delete entry;
        entry = next;
    }
}

template <class Entry>
void DeleteEntriesOf(const WindowObject* target, Entry** link) {
    while (*link != nullptr) {
        Entry* entry = *link;
        if (entry->target != target) {
            link = &entry->next;
            continue;
        }
        *link = entry->next;
        delete entry;
    }
}

}  // namespace

MessageTable::~MessageTable() {
    DeleteAll(head_);
}

void MessageTable::Add(UINT message, WindowObject* target, MessageMethod method, std::uintptr_t extra) {
    auto* entry = new (std::nothrow) MessageEntry{message, target, method, extra, head_};
    if (entry != nullptr) head_ = entry;
}

const MessageEntry* MessageTable::Find(UINT message) const {
    const MessageEntry* entry = head_;
    while (entry != nullptr && entry->message != message)
        entry = entry->next;
    return entry;
}

void MessageTable::RemoveTarget(const WindowObject* target) {
    DeleteEntriesOf(target, &head_);
}

EventTable::~EventTable() {
    DeleteAll(head_);
}

void EventTable::Add(EventCode code, EventSource source, WindowObject* target, EventMethod method,
                     std::uintptr_t extra) {
    auto* entry = new (std::nothrow) EventEntry{code, source, target, method, extra, head_};
    if (entry != nullptr) head_ = entry;
}

const EventEntry* EventTable::Find(EventCode code, EventSource source) const {
    const EventEntry* entry = head_;
    while (entry != nullptr && (entry->code != code || entry->source != source))
        entry = entry->next;
    return entry;
}

void EventTable::RemoveTarget(const WindowObject* target) {
    DeleteEntriesOf(target, &head_);
}

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

std::size_t WindowMap::Count() const {
    std::size_t count = 0;
    for (const Entry* entry : buckets_) {
        for (; entry != nullptr; entry = entry->next)
            ++count;
    }
    return count;
}

std::size_t WindowMap::BucketOf(HWND window) {
    return reinterpret_cast<std::uintptr_t>(window) % BucketCount;
}
