#pragma once

// The tables that dispatch a message: from the window to its object, and from the message or its event to the
// handler. A handler is a target object, one of its methods and an extra word; the newest entry hides older
// ones.

#include <array>
#include <cstddef>
#include <cstdint>

#include "framework/event_codes.h"
#include "platform/system_types.h"

class WindowObject;

// One message on its way through an object.
struct MessageRecord {
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    std::uintptr_t extra = 0;  // of the handler that receives it
    LRESULT result = 0;
};

// What an event's handler receives.
struct EventArguments {
    std::uintptr_t extra;    // of the handler
    std::intptr_t argument;  // of whoever raised the event
    MessageRecord& record;   // the message that caused it
};

using MessageMethod = LRESULT (WindowObject::*)(MessageRecord&);
using EventMethod = LRESULT (WindowObject::*)(EventArguments&);

// A window handle, a control id or a command id.
using EventSource = std::uintptr_t;

struct MessageEntry {
    UINT message;
    WindowObject* target;
    MessageMethod method;
    std::uintptr_t extra;
    MessageEntry* next;
};

class MessageTable {
  public:
    MessageTable() = default;
    ~MessageTable();
    MessageTable(const MessageTable&) = delete;
    MessageTable& operator=(const MessageTable&) = delete;

    // Lost silently if there is no memory for it.
    void Add(UINT message, WindowObject* target, MessageMethod method, std::uintptr_t extra);
    // The newest entry for the message, or null.
    [[nodiscard]] const MessageEntry* Find(UINT message) const;
    // Removes the entries of an object that is gone.
    void RemoveTarget(const WindowObject* target);

  private:
    MessageEntry* head_ = nullptr;
};

struct EventEntry {
    EventCode code;
    EventSource source;
    WindowObject* target;
    EventMethod method;
    std::uintptr_t extra;
    EventEntry* next;
};

class EventTable {
  public:
    EventTable() = default;
    ~EventTable();
    EventTable(const EventTable&) = delete;
    EventTable& operator=(const EventTable&) = delete;

    // Lost silently if there is no memory for it.
    void Add(EventCode code, EventSource source, WindowObject* target, EventMethod method,
             std::uintptr_t extra);
    // The newest entry for the event from this source, or null.
    [[nodiscard]] const EventEntry* Find(EventCode code, EventSource source) const;
    // Removes the entries of an object that is gone.
    void RemoveTarget(const WindowObject* target);

  private:
    EventEntry* head_ = nullptr;
};

// From a window handle to its object. The application owns the only map.
class WindowMap {
  public:
    static constexpr std::size_t BucketCount = 113;

    WindowMap() = default;
    ~WindowMap();
    WindowMap(const WindowMap&) = delete;
    WindowMap& operator=(const WindowMap&) = delete;

    // A newer entry of the same handle hides an older one. Returns false if there is no memory for it.
    bool Insert(HWND window, WindowObject* object);
    [[nodiscard]] WindowObject* Find(HWND window) const;
    // Removes the newest entry of the handle. Returns false if there is none.
    bool Remove(HWND window);
    // Removes this object's entry of the handle, whether or not it is the newest.
    bool Remove(HWND window, const WindowObject* object);

    [[nodiscard]] static std::size_t BucketOf(HWND window);
    // Its entries, hidden ones too; for those who look for one that was left behind.
    [[nodiscard]] std::size_t Count() const;

  private:
    struct Entry {
        HWND window;
        WindowObject* object;
        Entry* next;
    };
    std::array<Entry*, BucketCount> buckets_{};
};
