#include "tests/program/registry_reading.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace {

constexpr DWORD LongestName = 300;

class OpenKey {
  public:
    explicit OpenKey(const wchar_t* path) {
        if (RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_READ, &key_) != ERROR_SUCCESS) key_ = nullptr;
    }
    ~OpenKey() {
        if (key_ != nullptr) RegCloseKey(key_);
    }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    [[nodiscard]] HKEY Handle() const { return key_; }

  private:
    HKEY key_ = nullptr;
};

}  // namespace

void PrintTo(const StoredValue& value, std::ostream* stream) {
    *stream << "type " << value.type << ": " << testing::PrintToString(value.data);
}

StoredValue StoredText(const std::wstring& text) {
    StoredValue value = {REG_SZ, std::vector<BYTE>((text.size() + 1) * sizeof(wchar_t))};
    std::memcpy(value.data.data(), text.c_str(), value.data.size());
    return value;
}

StoredValue StoredDword(DWORD number) {
    StoredValue value = {REG_DWORD, std::vector<BYTE>(sizeof number)};
    std::memcpy(value.data.data(), &number, sizeof number);
    return value;
}

bool KeyExists(const wchar_t* path) {
    return OpenKey(path).Handle() != nullptr;
}

std::map<std::wstring, StoredValue> ValuesOf(const wchar_t* path) {
    std::map<std::wstring, StoredValue> values;
    const OpenKey key(path);
    if (key.Handle() == nullptr) return values;
    for (DWORD index = 0;; ++index) {
        wchar_t name[LongestName] = L"";
        DWORD nameLength = LongestName;
        StoredValue value;
        value.data.resize(4096);
        auto size = static_cast<DWORD>(value.data.size());
        if (RegEnumValueW(key.Handle(), index, name, &nameLength, nullptr, &value.type, value.data.data(),
                          &size) != ERROR_SUCCESS)
            return values;
        value.data.resize(size);
        values[name] = value;
    }
}

std::vector<std::wstring> SubKeysOf(const wchar_t* path) {
    std::vector<std::wstring> names;
    const OpenKey key(path);
    wchar_t name[LongestName] = L"";
    for (DWORD index = 0; key.Handle() != nullptr; ++index) {
        DWORD length = LongestName;
        if (RegEnumKeyExW(key.Handle(), index, name, &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS)
            break;
        names.emplace_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

void Store(const wchar_t* path, const std::wstring& name, DWORD type, const void* data, std::size_t size) {
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, path, name.c_str(), type, data, static_cast<DWORD>(size)),
              ERROR_SUCCESS);
}

void StoreText(const wchar_t* path, const std::wstring& name, const std::wstring& text) {
    Store(path, name, REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
}
