#pragma once

// The search as a plain reader of the rule would write it, over what stands on the device.

#include <string>
#include <vector>

#include "tests/monkey/device.h"

struct PlainConditions {
    std::wstring name, contains, location;
    bool subFolders = false;
    bool matchCase = true;
};

// Whether the rule is plain for these: a whole path without oddities, a content in ASCII.
[[nodiscard]] bool IsPlain(const PlainConditions& conditions);

// The paths found, in lower case and in order.
[[nodiscard]] std::vector<std::wstring> PlainSearch(const DeviceEntries& entries,
                                                    const PlainConditions& conditions);

// Whether it is plain what its lines are.
[[nodiscard]] bool IsPlainContent(const DeviceEntry& entry);
