#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/system_types.h"

// Another current folder for as long as it lives.
class CurrentFolder {
  public:
    explicit CurrentFolder(const std::wstring& folder) {
        GetCurrentDirectoryW(MAX_PATH, before_);
        EXPECT_TRUE(SetCurrentDirectoryW(folder.c_str()));
    }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;
    ~CurrentFolder() {
        // One that cannot be gone back to would keep the tree from being deleted.
        if (!SetCurrentDirectoryW(before_)) SetCurrentDirectoryW(L"\\");
    }

  private:
    wchar_t before_[MAX_PATH] = {};
};
