#pragma once

// Shortcuts and starting programs, as the handheld's shell offers them. Every call goes through
// `ShortcutCalls`, so that a test can replace it.

#include "platform/system_types.h"

#include <shellapi.h>

namespace ce {

struct ShortcutCalls {
    BOOL (*getTarget)(const wchar_t* shortcut, wchar_t* target, int capacity);
    BOOL (*create)(const wchar_t* shortcut, const wchar_t* target);
    BOOL (*execute)(SHELLEXECUTEINFOW* info);
};
extern ShortcutCalls shortcutCalls;

// The target as a command line: the program, in double quotes where it holds a blank, and its arguments.
// capacity counts units. FALSE, with an empty text, for what is no shortcut, is damaged, or does not fit.
// A text shortcut of the handheld ("26#\"\\My Documents\\a.txt\"") is read as well as the desktop's own.
inline BOOL SHGetShortcutTarget(const wchar_t* shortcut, wchar_t* target, int capacity) {
    return shortcutCalls.getTarget(shortcut, target, capacity);
}

// Makes a shortcut to the target, a command line as above. FALSE when it cannot be written.
inline BOOL SHCreateShortcut(const wchar_t* shortcut, const wchar_t* target) {
    return shortcutCalls.create(shortcut, target);
}

inline BOOL ShellExecuteExW(SHELLEXECUTEINFOW* info) {
    return shortcutCalls.execute(info);
}

}  // namespace ce
