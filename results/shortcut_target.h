#pragma once

// A shortcut's target taken apart as a command line.

// Room for the longest target that is read, and for its arguments with every quote doubled.
constexpr int TargetCapacity = 1040;

struct ShortcutTarget {
    wchar_t program[TargetCapacity];
    wchar_t arguments[2 * TargetCapacity];
};

// The program is what is between the leading double quotes, or everything up to the next blank or tab. The
// arguments are the rest after the blanks and tabs that follow, with every double quote doubled. The target
// is at most TargetCapacity - 1 units long; anything longer is cut.
[[nodiscard]] ShortcutTarget SplitTarget(const wchar_t* target);

// Whether the path ends in ".lnk", in any case, and has something before that.
[[nodiscard]] bool IsShortcut(const wchar_t* path);

// Removes one pair of enclosing double quotes in place.
void RemoveEnclosingQuotes(wchar_t* text);
