#include "framework/property_set.h"

namespace {

bool IsStyleKey(PropertyKey key) {
    return key == property::Style || key == property::ExtendedStyle;
}

}  // namespace

void PropertySet::Set(PropertyKey key, PropertyValue value) {
    const int index = IndexOf(key);
    if (index < 0) {
        Append(key, value);
    } else if (IsStyleKey(key)) {
        pairs_[static_cast<std::size_t>(index)].value |= value;
    } else {
        pairs_[static_cast<std::size_t>(index)].value = value;
    }
}

void PropertySet::Add(PropertyKey key, PropertyValue value) {
    if (IsStyleKey(key)) {
        Set(key, value);
    } else {
        // QUIRK: added-properties-replace-nothing. The first pair with a key is the one that is read.
        Append(key, value);
    }
}

PropertyValue PropertySet::Get(PropertyKey key, PropertyValue otherwise) const {
    const int index = IndexOf(key);
    return index < 0 ? otherwise : pairs_[static_cast<std::size_t>(index)].value;
}

bool PropertySet::Has(PropertyKey key) const {
    return IndexOf(key) >= 0;
}

int PropertySet::IndexOf(PropertyKey key) const {
    for (int i = 0; i < count_; ++i) {
        if (pairs_[static_cast<std::size_t>(i)].key == key) return i;
    }
    return -1;
}

void PropertySet::Append(PropertyKey key, PropertyValue value) {
    // QUIRK: fifty-first-property-is-dropped
    if (count_ == Capacity) return;
    pairs_[static_cast<std::size_t>(count_++)] = {key, value};
}
