#pragma once

// How a menu bar is written down in the resources: an RCDATA block of 16-bit words, a MenuBarResource and
// right behind it `buttonCount` times a MenuBarResourceButton. The block's id is the bar's id;
// SHCreateMenuBar reads it, and a bar without buttons of its own is the header alone.

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

}  // namespace ce
