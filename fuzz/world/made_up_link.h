#pragma once

// What the shell's shortcut object was told last.

#include <string>

struct MadeUpLink {
    std::wstring program, arguments;
    bool saved = false;
};

[[nodiscard]] MadeUpLink& TheLink();
