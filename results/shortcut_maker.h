#pragma once

// Makes shortcuts to files, under names that are not yet taken.

enum class ShortcutForm { Plain, ShortcutTo };

// Makes a shortcut to the file in the folder; for a file that is itself a shortcut, to that one's target.
// False when it cannot be made.
bool MakeShortcut(const wchar_t* file, const wchar_t* folder, ShortcutForm form);
