#pragma once

// The user's language, as far as texts go.

#include "base/app_globals.h"

// The one of two texts that the user's language asks for. Both stand side by side where they are used.
inline const wchar_t* InLanguage(const wchar_t* english, const wchar_t* japanese) {
    return Globals().uiLanguage == UiLanguage::Japanese ? japanese : english;
}

// The same for texts in tables.
struct TextPair {
    const wchar_t* english;
    const wchar_t* japanese;

    [[nodiscard]] const wchar_t* Text() const { return InLanguage(english, japanese); }
};
