// Values of the registry, of every type and size, into texts, numbers and the histories.

#include <cstring>
#include <cwchar>

#include "conditions/search_history.h"
#include "fuzz/fuzz_targets.h"
#include "fuzz/fuzz_texts.h"
#include "fuzz/world/made_up_registry.h"
#include "base/registry_key.h"

namespace {

constexpr std::size_t Unit = sizeof(wchar_t);

bool IsText(DWORD type) {
    return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
}

// Units as bytes, with or without an end, and a byte too many or too few now and then.
std::vector<BYTE> SomeData(FuzzInput& input, std::size_t mostUnits) {
    std::wstring text = SomeText(input, mostUnits);
    const std::size_t kind = input.UpTo(7);
    if (kind == 0) text += L'\0';
    if (kind == 1) text.insert(text.size() / 2, 1, L'\0');
    const auto* const bytes = reinterpret_cast<const BYTE*>(text.data());
    std::vector<BYTE> data(bytes, bytes + text.size() * Unit);
    if (kind == 2 && !data.empty()) data.pop_back();
    if (kind == 3) data.push_back(input.Byte());
    return data;
}

MadeUpValue SomeValue(FuzzInput& input, std::size_t mostUnits) {
    const DWORD type = static_cast<DWORD>(input.UpTo(11));
    return {type, SomeData(input, mostUnits)};
}

// The units that are whole, up to the first end or as far as there is room.
std::wstring TextPlainly(const MadeUpValue& value, std::size_t capacity) {
    std::wstring text(value.data.size() / Unit, L'\0');
    if (!text.empty()) std::memcpy(text.data(), value.data.data(), text.size() * Unit);
    return text.substr(0, std::min(text.find(L'\0'), capacity - 1));
}

void Reset() {
    TheRegistry() = {};
}

void RequireAllClosed() {
    Require(TheRegistry().openKeys == 0, "a key that was opened is closed");
}

void ReadAText(FuzzInput& input) {
    const MadeUpValue value = SomeValue(input, 40);
    static constexpr const wchar_t* Names[] = {L"name", L"Default", L"other"};
    const std::wstring stored = input.Flag() ? L"name" : L"";
    TheRegistry().values[stored] = value;
    const std::wstring asked = input.OneOf(Names);
    const bool isThere = asked == stored || (asked == L"Default" && stored.empty());
    if (input.UpTo(7) == 0) TheRegistry().fullAccessError = ERROR_ACCESS_DENIED;
    const std::size_t capacity = 1 + input.UpTo(44);
    // Empty, as the histories give it: what is no text is not terminated for them.
    std::vector<wchar_t> buffer(capacity, L'\0');
    {
        RegistryKey key(nullptr);
        Require(key.Open(L"path"), "a key that can be read is opened");
        const bool read = key.QueryString(asked.c_str(), buffer.data(), static_cast<DWORD>(capacity * Unit));
        const bool fits = value.data.size() <= capacity * Unit;
        Require(read == (isThere && fits), "a value that is there and fits is read, and no other");
        const std::wstring text(buffer.data(), wcsnlen(buffer.data(), capacity));
        Require(text.size() < capacity, "the text has an end");
        // Half a unit at the end of what is no text is taken as it was read.
        const bool isCut = !IsText(value.type) && value.data.size() % Unit != 0;
        const std::wstring plain = read ? TextPlainly(value, capacity) : std::wstring();
        Require(isCut ? text.compare(0, plain.size(), plain) == 0 : text == plain,
                "the text is the plain one");
    }
    RequireAllClosed();
}

void ReadANumber(FuzzInput& input) {
    const MadeUpValue value{static_cast<DWORD>(input.UpTo(11)),
                            std::vector<BYTE>(input.UpTo(6), input.Byte())};
    const bool isThere = input.UpTo(7) != 0;
    if (isThere) TheRegistry().values[L"name"] = value;
    if (input.UpTo(7) == 0) TheRegistry().openError = ERROR_FILE_NOT_FOUND;
    constexpr DWORD Before = 0x12345678;
    DWORD number = Before;
    const bool read = ReadRegistryDword(nullptr, L"path", L"name", number) == ERROR_SUCCESS;
    const bool fits = value.data.size() <= sizeof number;
    Require(read == (isThere && fits && TheRegistry().openError == ERROR_SUCCESS),
            "a number that is there is read");
    DWORD plain = Before;
    if (read && !value.data.empty()) std::memcpy(&plain, value.data.data(), value.data.size());
    Require(number == plain, "the number is as much as fits in it");
    if (TheRegistry().openError == ERROR_SUCCESS) {
        const DWORD written = input.DoubleWord();
        Require(WriteRegistryDword(nullptr, L"path", L"name", written) == ERROR_SUCCESS,
                "a number is written");
        Require(ReadRegistryDword(nullptr, L"path", L"name", number) == ERROR_SUCCESS && number == written,
                "and read back");
    }
    RequireAllClosed();
}

// At most nine, up to the first that cannot be read; the first one ends at the bottom.
std::vector<std::wstring> HistoryPlainly() {
    std::vector<std::wstring> entries;
    for (int number = 0; number < 9; ++number) {
        const auto found = TheRegistry().values.find(std::to_wstring(number));
        if (found == TheRegistry().values.end() || found->second.data.size() > MAX_PATH * Unit) break;
        entries.insert(entries.begin(), TextPlainly(found->second, MAX_PATH));
    }
    return entries;
}

void LoadAHistory(FuzzInput& input) {
    HistoryCombo combo;
    combo.entries = {L"of before"};
    for (std::size_t number = 0; number < 11 && !input.IsUsedUp(); ++number) {
        MadeUpValue value = SomeValue(input, MAX_PATH + 4);
        value.data.resize(value.data.size() / Unit * Unit);
        if (input.UpTo(31) != 0) TheRegistry().values[std::to_wstring(number)] = value;
    }
    if (input.UpTo(15) == 1) TheRegistry().openError = ERROR_FILE_NOT_FOUND;
    const bool opened = TheRegistry().openError == ERROR_SUCCESS;
    const std::vector<std::wstring> plain = opened ? HistoryPlainly() : combo.entries;
    Require(LoadHistory(combo, nullptr, L"path") == opened, "a history whose key is there is loaded");
    Require(combo.entries == plain, "the entries are the plain ones");
    RequireAllClosed();
}

// Ten are saved, and the newest of them is not read back.
void SaveAHistory(FuzzInput& input) {
    HistoryCombo combo;
    for (std::size_t count = input.UpTo(10); count > 0; --count)
        combo.entries.push_back(SomeText(input, MAX_PATH + 4));
    std::vector<std::wstring> kept = combo.entries;
    for (std::wstring& text : kept)
        if (text.size() >= MAX_PATH) text.clear();
    Require(SaveHistory(combo, nullptr, L"path"), "a history is saved");
    Require(TheRegistry().values.size() == kept.size(), "each entry in a value of its own");
    if (kept.size() > 9) kept.erase(kept.begin());
    Require(LoadHistory(combo, nullptr, L"path") && combo.entries == kept, "and loaded again");
    RequireAllClosed();
}

}  // namespace

void FuzzRegistryValues(FuzzInput& input) {
    static constexpr decltype(&ReadAText) Kinds[] = {ReadAText, ReadANumber, LoadAHistory, SaveAHistory};
    Reset();
    input.OneOf(Kinds)(input);
}
