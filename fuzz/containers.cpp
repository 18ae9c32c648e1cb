// The framework's sets, maps and tables, and the lists and hash tables of the others, driven by random
// operations beside containers of the C++ library.

#include <algorithm>
#include <deque>
#include <map>

#include "base/object_list.h"
#include "framework/dispatch_tables.h"
#include "framework/property_set.h"
#include "fuzz/fuzz_targets.h"
#include "fuzz/fuzz_texts.h"
#include "results/string_hash_table.h"

namespace {

// Nobody looks into what stands there.
template <class Object>
Object* Numbered(std::size_t number) {
    return reinterpret_cast<Object*>(number * 8);
}

using Pairs = std::vector<std::pair<PropertyKey, PropertyValue>>;

Pairs::iterator FindPair(Pairs& pairs, PropertyKey key) {
    return std::find_if(pairs.begin(), pairs.end(), [key](const auto& pair) { return pair.first == key; });
}

bool IsStyle(PropertyKey key) {
    return key == 1115 || key == 1032;
}

void StorePlainly(Pairs& pairs, PropertyKey key, PropertyValue value, bool adding) {
    const auto found = FindPair(pairs, key);
    if (found == pairs.end() || (adding && !IsStyle(key))) {
        if (pairs.size() < 50) pairs.emplace_back(key, value);
    } else {
        found->second = IsStyle(key) ? found->second | value : value;
    }
}

void DriveProperties(FuzzInput& input) {
    PropertySet properties;
    Pairs plain;
    while (!input.IsUsedUp()) {
        const std::size_t operation = input.UpTo(15);
        const std::size_t choice = input.UpTo(63);
        const PropertyKey key = choice == 0   ? 1115
                                : choice == 1 ? 1032
                                              : static_cast<PropertyKey>(1000 + choice);
        const PropertyValue value = input.Byte();
        if (operation == 15) {
            properties.Clear();
            plain.clear();
        } else if (operation % 2 == 0) {
            properties.Set(key, value);
            StorePlainly(plain, key, value, false);
        } else {
            properties.Add(key, value);
            StorePlainly(plain, key, value, true);
        }
        const auto found = FindPair(plain, key);
        Require(properties.Has(key) == (found != plain.end()), "a key that was stored is there");
        Require(properties.Get(key, 999) == (found != plain.end() ? found->second : 999),
                "its first value counts");
        Require(properties.Get(key) == properties.Get(key, 0), "a key that is not there is 0");
        Require(properties.Count() == static_cast<int>(plain.size()), "there are as many pairs");
    }
}

// The newest in front.
using Entries = std::deque<std::pair<std::size_t, std::size_t>>;

void DriveWindowMap(FuzzInput& input) {
    WindowMap map;
    Entries plain;
    const auto newest = [&plain](std::size_t window) {
        return std::find_if(plain.begin(), plain.end(),
                            [window](const auto& entry) { return entry.first == window; });
    };
    while (!input.IsUsedUp()) {
        const std::size_t operation = input.UpTo(3);
        // Two that meet in a bucket are 113 bytes apart.
        const std::size_t window = input.UpTo(3) * 113 + input.UpTo(2);
        const std::size_t object = 1 + input.UpTo(3);
        auto* const handle = reinterpret_cast<HWND>(window);
        if (operation <= 1) {
            Require(map.Insert(handle, Numbered<WindowObject>(object)), "there is memory for an entry");
            plain.emplace_front(window, object);
        } else {
            const auto found = operation == 2
                                   ? newest(window)
                                   : std::find(plain.begin(), plain.end(), std::pair(window, object));
            const bool removed =
                operation == 2 ? map.Remove(handle) : map.Remove(handle, Numbered<WindowObject>(object));
            Require(removed == (found != plain.end()), "an entry that is there is removed");
            if (found != plain.end()) plain.erase(found);
        }
        const auto found = newest(window);
        Require(map.Find(handle) == (found == plain.end() ? nullptr : Numbered<WindowObject>(found->second)),
                "the newest entry is found");
    }
}

struct PlainHandler {
    std::size_t message, source, target, extra;
};

void DriveHandlerTables(FuzzInput& input) {
    MessageTable messages;
    EventTable events;
    std::deque<PlainHandler> plain;
    while (!input.IsUsedUp()) {
        const PlainHandler handler{input.UpTo(3), input.UpTo(3), input.UpTo(3), input.Byte()};
        auto* const target = Numbered<WindowObject>(handler.target);
        if (input.UpTo(5) == 0) {
            messages.RemoveTarget(target);
            events.RemoveTarget(target);
            std::erase_if(plain, [&](const PlainHandler& entry) { return entry.target == handler.target; });
        } else {
            messages.Add(static_cast<UINT>(handler.message), target, nullptr, handler.extra);
            events.Add(static_cast<EventCode>(handler.message), handler.source, target, nullptr,
                       handler.extra);
            plain.push_front(handler);
        }
        const auto byMessage = std::find_if(plain.begin(), plain.end(), [&](const PlainHandler& entry) {
            return entry.message == handler.message;
        });
        const MessageEntry* const message = messages.Find(static_cast<UINT>(handler.message));
        Require((message == nullptr) == (byMessage == plain.end()),
                "a message finds a handler if there is one");
        Require(message == nullptr || (message->target == Numbered<WindowObject>(byMessage->target) &&
                                       message->extra == byMessage->extra),
                "the newest one");
        const auto bySource = std::find_if(plain.begin(), plain.end(), [&](const PlainHandler& entry) {
            return entry.message == handler.message && entry.source == handler.source;
        });
        const EventEntry* const event = events.Find(static_cast<EventCode>(handler.message), handler.source);
        Require((event == nullptr) == (bySource == plain.end()), "an event finds a handler if there is one");
        Require(event == nullptr || (event->target == Numbered<WindowObject>(bySource->target) &&
                                     event->extra == bySource->extra),
                "the newest one of its source");
    }
}

void DriveHashTable(FuzzInput& input) {
    StringHashTable table(1 + input.UpTo(7));
    std::map<std::wstring, std::uintptr_t> plain;
    while (!input.IsUsedUp()) {
        const std::wstring key = SomeTextOf(input, L"abcd", 3);
        const std::uintptr_t value = input.Byte();
        if (value != 0) {
            table.Insert(ExactText<wchar_t>(key).Get(), value);
            plain[key] = value;
        }
        const auto found = plain.find(key);
        Require(table.Lookup(ExactText<wchar_t>(key).Get()) == (found == plain.end() ? 0 : found->second),
                "the newest value of a key is found");
    }
}

std::wstring TextAt(const ListObject* item) {
    return item == nullptr ? L"(none)" : static_cast<const StringObject*>(item)->Text();
}

void DriveList(FuzzInput& input) {
    ObjectList list;
    std::vector<std::wstring> plain;
    // The size stands for no item at all.
    std::size_t cursor = 0;
    const auto textAt = [&plain](std::size_t at) { return at < plain.size() ? plain[at] : L"(none)"; };
    while (!input.IsUsedUp()) {
        const std::size_t operation = input.UpTo(3);
        if (operation == 0) {
            plain.push_back(SomeTextOf(input, L"abcd", 3));
            StringObject* const item = StringObject::Create(ExactText<wchar_t>(plain.back()).Get());
            Require(item != nullptr && item->Length() == plain.back().size(), "a text is kept whole");
            Require(list.Append(item), "there is memory for an item");
            cursor = plain.size() - 1;
        } else if (operation == 1) {
            cursor = 0;
            Require(TextAt(list.First()) == textAt(0), "the first item is the first");
        } else if (operation == 2) {
            const bool goesOn = cursor + 1 < plain.size();
            Require(TextAt(list.Next()) == (goesOn ? plain[cursor + 1] : L"(none)"),
                    "the next item is the next");
            if (goesOn) ++cursor;
        } else {
            cursor = std::min(input.UpTo(9), plain.size());
            Require(TextAt(list.ItemAt(static_cast<std::uint32_t>(cursor))) == textAt(cursor),
                    "an item is found by its number");
        }
        Require(list.Count() == plain.size(), "there are as many items");
    }
}

}  // namespace

void FuzzContainers(FuzzInput& input) {
    static constexpr decltype(&DriveList) Kinds[] = {DriveProperties, DriveWindowMap, DriveHandlerTables,
                                                     DriveHashTable, DriveList};
    input.OneOf(Kinds)(input);
}
