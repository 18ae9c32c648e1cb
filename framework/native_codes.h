#pragma once

// From the system's notification codes to event codes: one table per control class.

#include <cstdint>
#include <span>

#include "framework/event_codes.h"

// One pair; a table is sorted by the native code as an unsigned number, so the positive codes come first.
struct NativeCode {
    std::uint32_t native;
    EventCode code;
};
using NativeCodeTable = std::span<const NativeCode>;

// The event code of a native code; missing when the table lacks it.
[[nodiscard]] EventCode TranslateNativeCode(NativeCodeTable table, std::uint32_t native,
                                            EventCode missing = event::Command);

// The table of a window class, by its exact spelling; empty for an unknown class. The combo box stands in
// lower case, unlike the others, and is not known by any other spelling (combobox-in-lower-case).
[[nodiscard]] NativeCodeTable NativeCodesOfClass(const wchar_t* className);

// What every window translates itself before it asks the control: the notifications common to all classes.
[[nodiscard]] NativeCodeTable CommonNotificationCodes();
