#include "platform/desktop/menu_bar_layout.h"

#include <cwctype>

namespace ce {

namespace {

wchar_t Capital(wchar_t unit) {
    return static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(unit)));
}

}  // namespace

bool ReadMenuBarLayout(const void* block, std::size_t size, MenuBarLayout& layout) {
    if (block == nullptr || size < sizeof(MenuBarResource)) return false;
    const auto* header = static_cast<const MenuBarResource*>(block);
    const std::size_t count = header->buttonCount;
    if (count > MaxMenuBarButtons) return false;
    if (size - sizeof(MenuBarResource) < count * sizeof(MenuBarResourceButton)) return false;
    layout.menuId = header->menuId;
    layout.buttonCount = header->buttonCount;
    layout.buttons = reinterpret_cast<const MenuBarResourceButton*>(header + 1);
    return true;
}

wchar_t Mnemonic(const wchar_t* text) {
    while (*text != L'\0') {
        if (*text != L'&') {
            ++text;
        } else if (text[1] == L'&') {
            text += 2;
        } else {
            return Capital(text[1]);
        }
    }
    return L'\0';
}

int CaptionForKey(const wchar_t* const* captions, int count, wchar_t key) {
    const wchar_t wanted = Capital(key);
    if (wanted == L'\0') return -1;
    for (int index = 0; index < count; ++index) {
        if (Mnemonic(captions[index]) == wanted) return index;
    }
    for (int index = 0; index < count; ++index) {
        const bool marksNothing = Mnemonic(captions[index]) == L'\0';
        if (marksNothing && Capital(captions[index][0]) == wanted) return index;
    }
    return -1;
}

}  // namespace ce
