#include "conditions/search_history.h"

#include <cwchar>
#include <iterator>

#include "base/format_text.h"
#include "base/registry_key.h"

namespace {

// QUIRK: newest-of-ten-is-not-read-back. One fewer than the combo holds.
constexpr int MostLoadedEntries = 9;

constexpr int EntryCapacity = MAX_PATH;

// A value's name is its entry's number.
struct ValueName {
    explicit ValueName(int number) { FormatText(text, std::size(text), L"%d", number); }
    wchar_t text[16];
};

}  // namespace

bool LoadHistory(HistoryCombo& combo, HKEY root, const wchar_t* path) {
    RegistryKey key(root);
    if (!key.Open(path)) return false;
    combo.Box().Clear();
    for (int n = 0; n < MostLoadedEntries; ++n) {
        // Zeroed throughout: a value that is not a string is used as it was read, without a terminator.
        wchar_t text[EntryCapacity] = L"";
        if (!key.QueryString(ValueName(n).text, text, sizeof text)) break;
        combo.AddToHistory(text);
    }
    return true;
}

bool SaveHistory(const HistoryCombo& combo, HKEY root, const wchar_t* path) {
    RegistryKey key(root);
    if (!key.Create(path)) return false;
    const int count = combo.Box().Count();
    // QUIRK: longer-history-stays-stored. Values from the count on are left alone.
    for (int n = 0; n < count; ++n) {
        wchar_t text[EntryCapacity];
        // One that is longer than an entry may be is saved empty.
        combo.Box().ReadText(count - 1 - n, text);
        const auto size = static_cast<DWORD>((std::wcslen(text) + 1) * sizeof(wchar_t));
        RegSetValueExW(key.Handle(), ValueName(n).text, 0, REG_SZ, reinterpret_cast<const BYTE*>(text), size);
    }
    return true;
}
