#pragma once

// The numbered properties that configure a window object before it is created. Constructors add their
// defaults, callers set their values first, and the first pair with a key wins.

#include <array>
#include <cstdint>

#include "framework/property_keys.h"

// A number, a handle, or the address of something that the caller keeps alive until construction ends.
using PropertyValue = std::uintptr_t;

class PropertySet {
  public:
    static constexpr int Capacity = 50;

    // Changes the first pair with the key, or appends one. The two style keys are or-ed into, any other
    // value is replaced. In a full set an appended pair is not kept.
    void Set(PropertyKey key, PropertyValue value);

    // Or-s into the style keys like Set; any other pair is appended even when the key is present, and so
    // acts as set-unless-already-set.
    void Add(PropertyKey key, PropertyValue value);

    // The value of the first pair with the key, 0 when there is none.
    [[nodiscard]] PropertyValue Get(PropertyKey key) const;

    // Whether the key is there; value gets its first value, or 0.
    bool Lookup(PropertyKey key, PropertyValue& value) const;

    [[nodiscard]] bool Has(PropertyKey key) const;
    [[nodiscard]] int Count() const { return count_; }
    void Clear() { count_ = 0; }

    // The same for what is stored as an address.
    void SetText(PropertyKey key, const wchar_t* text) { Set(key, reinterpret_cast<PropertyValue>(text)); }
    void AddText(PropertyKey key, const wchar_t* text) { Add(key, reinterpret_cast<PropertyValue>(text)); }
    [[nodiscard]] const wchar_t* GetText(PropertyKey key) const {
        return reinterpret_cast<const wchar_t*>(Get(key));
    }

  private:
    struct Pair {
        PropertyKey key;
        PropertyValue value;
    };

    [[nodiscard]] int IndexOf(PropertyKey key) const;
    void Append(PropertyKey key, PropertyValue value);

    int count_ = 0;
    std::array<Pair, Capacity> pairs_{};
};
