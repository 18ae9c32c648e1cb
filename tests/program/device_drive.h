#pragma once

// A drive whose root is a folder of the test's: the program that is started on it has that folder as "\".

#include <windows.h>

#include <string>

class DeviceDrive {
  public:
    // Throws std::runtime_error when no letter is free or the system refuses. A removable drive
    // (DRIVE_REMOVABLE) can be had under Wine only.
    explicit DeviceDrive(const std::wstring& folder, UINT driveType = DRIVE_FIXED);
    ~DeviceDrive();
    DeviceDrive(const DeviceDrive&) = delete;
    DeviceDrive& operator=(const DeviceDrive&) = delete;

    // "Q:"
    [[nodiscard]] const std::wstring& Letter() const { return letter_; }
    // "Q:\"
    [[nodiscard]] std::wstring Root() const { return letter_ + L"\\"; }

  private:
    std::wstring letter_;
    std::wstring folder_;
};
