#pragma once

// The start-up record: written once before any window exists, read everywhere afterwards. It stands on the
// lowest floor, because every floor above reads it, and includes nothing but the system's own records.

#include "platform/system_types.h"

enum class UiLanguage { English, Japanese };

// Brings a terminated text into the device's bytes: at most destinationSize - 1 bytes and a NUL. A
// destination of no size is left alone.
using ToMultiByteRoutine = void (*)(const wchar_t* source, char* destination, int destinationSize);

// The way back: at most destinationSize - 1 units and a terminator.
using ToWideRoutine = void (*)(const char* source, wchar_t* destination, int destinationSize);

struct AppGlobals {
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
    // Double-byte characters are known to the content search: TKCONV.DLL was loaded on a system that is
    // not Japanese.
    bool codeConversionAvailable = false;
    // The default pair until start-up has chosen another.
    ToMultiByteRoutine toMultiByte = nullptr;
    ToWideRoutine toWide = nullptr;
    HMODULE conversionLibrary = nullptr;
};

// What the program reads.
[[nodiscard]] const AppGlobals& Globals();

// What start-up (and a test that sets its own world) writes.
[[nodiscard]] AppGlobals& GlobalsForStartUp();
