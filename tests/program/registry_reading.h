#pragma once

// The registry under the user's own root, read and written as another program would.

#include <windows.h>

#include <map>
#include <string>
#include <vector>

constexpr const wchar_t* MakerKey = L"Software\\QuorinSoft";
constexpr const wchar_t* ProductKey = L"Software\\QuorinSoft\\QuorinSearch";
constexpr const wchar_t* NameKey = L"Software\\QuorinSoft\\QuorinSearch\\Name";
constexpr const wchar_t* LocationKey = L"Software\\QuorinSoft\\QuorinSearch\\Location";

struct StoredValue {
    DWORD type = REG_NONE;
    std::vector<BYTE> data;
    bool operator==(const StoredValue&) const = default;
};
void PrintTo(const StoredValue& value, std::ostream* stream);

// As the program is to store them.
StoredValue StoredText(const std::wstring& text);
StoredValue StoredDword(DWORD number);

[[nodiscard]] bool KeyExists(const wchar_t* path);
// All values of the key, by name; none for a key that is not there.
[[nodiscard]] std::map<std::wstring, StoredValue> ValuesOf(const wchar_t* path);
// The names of its sub-keys, in alphabetical order.
[[nodiscard]] std::vector<std::wstring> SubKeysOf(const wchar_t* path);
// Creates the key where it is missing.
void Store(const wchar_t* path, const std::wstring& name, DWORD type, const void* data, std::size_t size);
void StoreText(const wchar_t* path, const std::wstring& name, const std::wstring& text);
