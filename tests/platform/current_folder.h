#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/system_types.h"

// Another current folder for as long as it lives.
class CurrentFolder {
  public:
    explicit CurrentFolder(const std::wstring& folder) {
        GetCurrentDirectoryW(MAX_PATH, before);
        EXPECT_TRUE(SetCurrentDirectoryW(folder.c_str()));
    }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder() {
        // One that cannot be gone back to would keep the tree from being deleted.
        if (!SetCurrentDirectoryW(before)) SetCurrentDirectoryW(L"\\");
    }

  private:
    wchar_t before[MAX_PATH] = {};
};
