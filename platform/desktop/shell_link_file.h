#pragma once

// What the desktop's shortcut file says of its target. It is read here and not by the system: shortcuts come
// from anywhere, and not every system's own reader survives one that is damaged.

#include <string>
#include <string_view>

struct ShellLinkTarget {
    std::wstring program;
    std::wstring arguments;
};

// From the system's code page, in which the file keeps some of its texts.
using CodePageReader = std::wstring (*)(std::string_view bytes);

// False, with both texts empty, for what is no shortcut file, is damaged where it matters, or leads to
// something that is neither a file nor a folder. No byte outside of `bytes` is ever looked at.
[[nodiscard]] bool ReadShellLinkFile(std::string_view bytes, CodePageReader read, ShellLinkTarget& target);
