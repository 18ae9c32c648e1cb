#pragma once

// What start-up finds out about the program and its device. Written once before any window exists, read
// everywhere afterwards.

#include "platform/system_types.h"

enum class UiLanguage { English, Japanese };

// Converts a terminated text to the device's bytes: at most destinationSize - 1 bytes and a NUL. A
// destination of no size is left alone.
using ToMultiByteRoutine = void (*)(const wchar_t* source, char* destination, int destinationSize);

// Converts them back: at most destinationSize - 1 units and a terminator.
using ToWideRoutine = void (*)(const char* source, wchar_t* destination, int destinationSize);

struct ProgramContext {
    HINSTANCE instance = nullptr;
    const wchar_t* commandLine = L"";
    // Used only for the first showing of the main window.
    int showCommand = 1;
    int screenWidth = 0;
    int screenHeight = 0;
    bool pocketPc = false;
    UiLanguage uiLanguage = UiLanguage::English;
    // Picks the menu-bar resource; always the same as uiLanguage.
    UiLanguage menuLanguage = UiLanguage::English;
    // The content search knows double-byte characters: TKCONV.DLL was loaded on a system that is
    // not Japanese.
    bool codeConversionAvailable = false;
    // The default pair until start-up has chosen another.
    ToMultiByteRoutine toMultiByte = nullptr;
    ToWideRoutine toWide = nullptr;
    HMODULE conversionLibrary = nullptr;
};

// What the program reads.
[[nodiscard]] const ProgramContext& Context();

// What start-up (and a test that sets its own world) writes.
[[nodiscard]] ProgramContext& ContextForStartUp();

// The text in the user's language. Both are written side by side where they are used.
inline const wchar_t* InLanguage(const wchar_t* english, const wchar_t* japanese) {
    return Context().uiLanguage == UiLanguage::Japanese ? japanese : english;
}

// The same for texts in tables.
struct TextPair {
    const wchar_t* english;
    const wchar_t* japanese;

    [[nodiscard]] const wchar_t* Text() const { return InLanguage(english, japanese); }
};
