#pragma once

// The device's memory: program memory, the object store, and storage cards. Every answer can be replaced by a
// test.

#include <cstdint>

#include "platform/system_types.h"

namespace ce {

// Counts of bytes.
struct FreeAndTotal {
    std::uint64_t free = 0;
    std::uint64_t total = 0;
};

struct StorageCalls {
    bool (*programMemory)(FreeAndTotal& bytes);
    bool (*objectStore)(FreeAndTotal& bytes);
    // The (index + 1)-th storage card's name, as the enumeration returns it; false when there are fewer.
    bool (*storageCard)(int index, wchar_t (&name)[MAX_PATH]);
    bool (*diskSpace)(const wchar_t* name, FreeAndTotal& bytes);
};
extern StorageCalls storageCalls;

// The desktop asks for a disk where a drive is empty. From here on the calls of this thread fail instead, as
// they do on a handheld.
void FailOnEmptyDrives();

}  // namespace ce
