#include "search/held_entry.h"

#include <cstddef>
#include <cstring>
#include <cwchar>
#include <new>

namespace {

constexpr std::size_t NameOffset = offsetof(WIN32_FIND_DATAW, cFileName);

std::size_t UsedBytes(const wchar_t* name) {
    return NameOffset + (std::wcslen(name) + 1) * sizeof(wchar_t);
}

}  // namespace

HeldEntry* HeldEntry::Create(const WIN32_FIND_DATAW& entry) {
    const std::size_t size = UsedBytes(entry.cFileName);
    auto* const bytes = new (std::nothrow) unsigned char[size];
    if (bytes == nullptr) return nullptr;
    std::memcpy(bytes, &entry, size);
    auto* const held = new (std::nothrow) HeldEntry(bytes);
    if (held == nullptr) delete[] bytes;
    return held;
}

HeldEntry::~HeldEntry() {
    delete[] used_;
}

const wchar_t* HeldEntry::Name() const {
    return reinterpret_cast<const wchar_t*>(used_ + NameOffset);
}

void HeldEntry::CopyTo(WIN32_FIND_DATAW& entry) const {
    std::memcpy(&entry, used_, UsedBytes(Name()));
}
