#include "results/shortcut_maker.h"

#include <cwchar>
#include <iterator>

#include "base/format_text.h"
#include "base/paths.h"
#include "base/program_context.h"
#include "platform/windows_ce.h"
#include "results/shortcut_target.h"

namespace {

// Room for a path between double quotes.
constexpr int QuotedPathCapacity = MAX_PATH + 2;

// What the shortcut is to point to. Returns false if a shortcut's own target cannot be read.
bool FindTarget(const wchar_t* file, wchar_t (&target)[QuotedPathCapacity]) {
    if (!IsShortcut(file)) {
        FormatText(target, std::size(target), L"%s", file);
        return true;
    }
    if (!ce::SHGetShortcutTarget(file, target, MAX_PATH)) return false;
    RemoveEnclosingQuotes(target);
    return true;
}

const wchar_t* NameFormat(ShortcutForm form) {
    if (form == ShortcutForm::Plain) return L"%s%s.lnk";
    return InLanguage(L"Shortcut to %s%s.lnk", L"%sへのｼｮｰﾄｶｯﾄ%s.lnk");
}

// The first free path: Notes.lnk, Notes (2).lnk, Notes (3).lnk, and so on. Returns false if it does not fit.
bool FindFreePath(const wchar_t* displayName, const wchar_t* folder, ShortcutForm form,
                  wchar_t (&path)[MAX_PATH]) {
    wchar_t suffix[16] = L"";
    for (int counter = 2;; ++counter) {
        wchar_t name[2 * MAX_PATH];
        FormatText(name, std::size(name), NameFormat(form), displayName, suffix);
        if (!JoinPath(path, folder, name)) return false;
        if (ce::GetFileAttributesW(path) == INVALID_FILE_ATTRIBUTES) return true;
        FormatText(suffix, std::size(suffix), L" (%d)", counter);
    }
}

void EncloseInQuotes(wchar_t (&text)[QuotedPathCapacity]) {
    wchar_t quoted[QuotedPathCapacity];
    FormatText(quoted, std::size(quoted), L"\"%s\"", text);
    std::wmemcpy(text, quoted, QuotedPathCapacity);
}

}  // namespace

bool MakeShortcut(const wchar_t* file, const wchar_t* folder, ShortcutForm form) {
    wchar_t target[QuotedPathCapacity] = L"";
    if (!FindTarget(file, target)) return false;
    SHFILEINFOW info{};
    ce::SHGetFileInfo(target, 0, &info, sizeof info, SHGFI_DISPLAYNAME);
    wchar_t path[MAX_PATH];
    if (!FindFreePath(info.szDisplayName, folder, form, path)) return false;
    if (std::wcschr(target, L' ') != nullptr) EncloseInQuotes(target);
    return ce::SHCreateShortcut(path, target) != FALSE;
}
