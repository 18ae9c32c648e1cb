#include "results/shortcut_target.h"

#include <cwchar>

namespace {

// QUIRK: ending-alone-is-no-file-type
constexpr std::size_t ShortestShortcut = 5;

bool IsBlank(wchar_t unit) {
    return unit == L' ' || unit == L'\t';
}

const wchar_t* SkipBlanks(const wchar_t* text) {
    while (IsBlank(*text))
        ++text;
    return text;
}

wchar_t ToLowerAscii(wchar_t unit) {
    return unit >= L'A' && unit <= L'Z' ? static_cast<wchar_t>(unit - L'A' + L'a') : unit;
}

// Copies the program part and returns where it ends, behind a closing quote.
const wchar_t* CopyProgram(const wchar_t* text, wchar_t (&program)[TargetCapacity]) {
    const bool quoted = *text == L'"';
    if (quoted) ++text;
    int length = 0;
    for (; *text != L'\0' && (quoted ? *text != L'"' : !IsBlank(*text)); ++text) {
        if (length < TargetCapacity - 1) program[length++] = *text;
    }
    program[length] = L'\0';
    return quoted && *text == L'"' ? text + 1 : text;
}

}  // namespace

ShortcutTarget SplitTarget(const wchar_t* target) {
    ShortcutTarget parts;
    const wchar_t* rest = SkipBlanks(CopyProgram(SkipBlanks(target), parts.program));
    int length = 0;
    for (; *rest != L'\0' && length < 2 * TargetCapacity - 2; ++rest) {
        parts.arguments[length++] = *rest;
        // QUIRK: argument-quotes-are-doubled
        if (*rest == L'"') parts.arguments[length++] = L'"';
    }
    parts.arguments[length] = L'\0';
    return parts;
}

bool IsShortcut(const wchar_t* path) {
    const std::size_t length = std::wcslen(path);
    if (length < ShortestShortcut) return false;
    const wchar_t* end = path + length - 4;
    const wchar_t* suffix = L".lnk";
    while (*end != L'\0' && ToLowerAscii(*end) == *suffix) {
        ++end;
        ++suffix;
    }
    return *end == L'\0';
}

void RemoveEnclosingQuotes(wchar_t* text) {
    const std::size_t length = std::wcslen(text);
    if (length < 2 || text[0] != L'"' || text[length - 1] != L'"') return;
    std::wmemmove(text, text + 1, length - 2);
    text[length - 2] = L'\0';
}
