#pragma once

// File types that a test registers. Their keys are gone when the test ends.

#include <string>
#include <vector>

#include "platform/windows_ce.h"

class RegisteredTypes {
  public:
    RegisteredTypes() = default;
    RegisteredTypes(const RegisteredTypes&) = delete;
    RegisteredTypes& operator=(const RegisteredTypes&) = delete;
    ~RegisteredTypes() {
        for (const std::wstring& key : made_)
            RegDeleteTreeW(HKEY_CLASSES_ROOT, key.c_str());
    }

    // Makes the key with this value as its own.
    void Add(const std::wstring& path, const std::wstring& value) {
        Make(path);
        RegSetValueW(HKEY_CLASSES_ROOT, path.c_str(), REG_SZ, value.c_str(), 0);
    }
    // Makes the key without any value.
    void Make(const std::wstring& path) {
        HKEY key = nullptr;
        RegCreateKeyExW(HKEY_CLASSES_ROOT, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                        nullptr);
        RegCloseKey(key);
        made_.push_back(path.substr(0, path.find(L'\\')));
    }

  private:
    std::vector<std::wstring> made_;
};
