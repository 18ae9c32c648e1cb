#pragma once

// The rules of a menu bar that need no window: its resource block, and the drop-down that a key opens. The
// block (RCDATA, of 16-bit words) is a MenuBarResource and right behind it `buttonCount` times a
// MenuBarResourceButton. The block's id is the bar's id; SHCreateMenuBar reads it, and a bar without buttons
// of its own is the header alone.

#include <cstddef>

#include "platform/system_types.h"

namespace ce {

// A button without a picture (the word reads as I_IMAGENONE, -2).
constexpr WORD MenuBarNoImage = 0xFFFE;
// A button without a text, and a button that opens no sub-menu.
constexpr WORD MenuBarNoString = 0;
constexpr WORD MenuBarNoMenu = 0xFFFF;

#pragma pack(push, 1)

struct MenuBarResource {
    WORD menuId;       // the menu whose sub-menus the buttons open; one that does not exist means none
    WORD buttonCount;  // how many buttons follow
};

struct MenuBarResourceButton {
    WORD image;     // index in the bar's bitmap, or MenuBarNoImage
    WORD command;   // the button's command; names the drop-down for MenuBarGetSubMenu
    WORD state;     // TBSTATE_ bits
    WORD style;     // TBSTYLE_ bits
    WORD stringId;  // the string with the button's text, or MenuBarNoString
    WORD subMenu;   // position of the sub-menu in the menu, or MenuBarNoMenu
};

#pragma pack(pop)

static_assert(sizeof(MenuBarResource) == 4);
static_assert(sizeof(MenuBarResourceButton) == 12);

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
[[nodiscard]] wchar_t Mnemonic(const wchar_t* text);

// Which of the captions answers to the key: the one that marks it, else the first one that marks nothing and
// begins with it; -1 for none. Case does not matter.
[[nodiscard]] int CaptionForKey(const wchar_t* const* captions, int count, wchar_t key);

}  // namespace ce
