#pragma once

// The world that the whole program is tested in: the system's language, the screen, and whether the registry
// asks for the other language. It is announced by the environment:
//   QUORIN_WORLD_LANGUAGE=en|ja  QUORIN_WORLD_SCREEN=240x320|640x240  QUORIN_WORLD_OVERRIDE=0|1

#include <windows.h>

#include <string>

struct ProgramWorld {
    bool japaneseSystem = false;
    int screenWidth = 240;
    int screenHeight = 320;
    bool languageOverride = false;

    // What the program shows: the system's language, or the other one where the registry asks for it.
    [[nodiscard]] bool ShowsJapanese() const { return japaneseSystem != languageOverride; }
};

// Read once from the environment; the defaults stand for what it does not say.
const ProgramWorld& World();

// The text in the language that the program shows in this world.
std::wstring Shown(const wchar_t* english, const wchar_t* japanese);

// Makes the registry fit the world: nothing is remembered from an earlier run, and "Change language" is set
// where the world asks for it and absent otherwise.
void PrepareRegistry();

// How far the time zone of these tests and of the program is ahead of UTC, in minutes; ./test runs them nine
// hours ahead.
int MinutesAheadOfUtc();
constexpr int NineHours = 540;
