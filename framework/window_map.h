#pragma once

// From a window handle to the object that it belongs to. One map exists, made by the application.

#include <array>
#include <cstddef>

#include "platform/system_types.h"

class WindowObject;

class WindowMap {
  public:
    static constexpr std::size_t BucketCount = 113;

    WindowMap() = default;
    ~WindowMap();
    WindowMap(const WindowMap&) = delete;
    WindowMap& operator=(const WindowMap&) = delete;

    // A newer entry of the same handle hides an older one. Answers whether there was memory for it.
    bool Insert(HWND window, WindowObject* object);
    [[nodiscard]] WindowObject* Find(HWND window) const;
    // Removes the newest entry of the handle; answers whether there was one.
    bool Remove(HWND window);
    // Removes this object's entry of the handle, be it the newest or not.
    bool Remove(HWND window, const WindowObject* object);

    [[nodiscard]] static std::size_t BucketOf(HWND window);

  private:
    struct Entry {
        HWND window;
        WindowObject* object;
        Entry* next;
    };
    std::array<Entry*, BucketCount> buckets_{};
};
