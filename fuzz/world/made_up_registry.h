#pragma once

// The one key of the made-up registry, at whatever path it is opened.

#include <windows.h>

#include <map>
#include <string>
#include <vector>

struct MadeUpValue {
    DWORD type;
    std::vector<BYTE> data;
};

struct MadeUpRegistry {
    // What opening, creating and closing answer and have counted.
    LONG openError = ERROR_SUCCESS;
    LONG fullAccessError = ERROR_SUCCESS;
    int openKeys = 0;
    // The unnamed value has the empty name.
    std::map<std::wstring, MadeUpValue> values;
};

[[nodiscard]] MadeUpRegistry& TheRegistry();
