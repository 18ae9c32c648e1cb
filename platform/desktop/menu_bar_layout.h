#pragma once

// The rules of a menu bar that need no window: reading its resource block and finding the drop-down that a
// key opens.

#include <cstddef>

#include "platform/desktop/menu_bar_resource.h"

namespace ce {

// A bar takes at most this many buttons from its resource.
constexpr int MaxMenuBarButtons = 16;

// Units that a caption may have, with its terminator; a longer one is cut.
constexpr int MenuBarCaptionCapacity = 64;

// A block that has been checked; the pointers lead into it.
struct MenuBarLayout {
    WORD menuId = 0;
    int buttonCount = 0;
    const MenuBarResourceButton* buttons = nullptr;
};

// Fills the layout; false when the block is too short for what it announces or announces too many buttons.
[[nodiscard]] bool ReadMenuBarLayout(const void* block, std::size_t size, MenuBarLayout& layout);

// The character after the first single "&", in capitals; 0 when there is none ("&&" is an ampersand).
[[nodiscard]] wchar_t MarkedLetter(const wchar_t* text);

// Which of the captions answers to the key: the one that marks it, else the first one that marks nothing and
// begins with it; -1 for none. Case does not matter.
[[nodiscard]] int CaptionForKey(const wchar_t* const* captions, int count, wchar_t key);

}  // namespace ce
