#pragma once

// The folders and files that the searches of these tests run over, made in a folder of their own and deleted
// with this object. Paths are relative to the root, which is the device's "\".

#include <windows.h>

#include <string>

class DeviceTree {
  public:
    // Throws std::runtime_error when the folder cannot be made.
    explicit DeviceTree(const std::wstring& name);
    ~DeviceTree();
    DeviceTree(const DeviceTree&) = delete;
    DeviceTree& operator=(const DeviceTree&) = delete;

    void AddFolder(const std::wstring& path) const;
    void AddFile(const std::wstring& path, const std::string& bytes = "") const;
    // A file of this many bytes, all of them 0.
    void AddFileOfSize(const std::wstring& path, long long size) const;
    // The last-write time of a file, as local or as UTC time.
    void SetLocalTime(const std::wstring& path, const SYSTEMTIME& local) const;
    void SetUtcTime(const std::wstring& path, const SYSTEMTIME& utc) const;
    // The last-write time: this many days and hours before now.
    void SetAge(const std::wstring& path, int days, int hours) const;
    void SetAttributes(const std::wstring& path, DWORD attributes) const;

    [[nodiscard]] const std::wstring& Root() const { return root_; }

  private:
    [[nodiscard]] std::wstring Full(const std::wstring& path) const { return root_ + L"\\" + path; }
    void SetTime(const std::wstring& path, const FILETIME& utc) const;

    std::wstring root_;
};

// 24-hour time of a day.
SYSTEMTIME TimeOf(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
