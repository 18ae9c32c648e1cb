#pragma once

// The size condition as the size page states it.

#include <cstdint>

enum class SizeAnswer { None, Min, Max };

// What the File Size combo's selected index and the spin's whole answer to UDM_GETPOS (KB, error word and
// all) mean. Writes the bound in bytes; index 0 writes 0, and an index other than 0, 1 and 2 (nothing
// selected) leaves the bound alone.
[[nodiscard]] SizeAnswer SizeBoundOf(int selectedIndex, std::uint32_t position, std::uint32_t& bound);
