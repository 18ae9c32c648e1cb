#include "tests/program/device_tree.h"

#include <stdexcept>

namespace {

void DeleteTree(const std::wstring& folder) {
    WIN32_FIND_DATAW data;
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &data);
    if (search != INVALID_HANDLE_VALUE) {
        do {
            const std::wstring name = data.cFileName;
            if (name == L"." || name == L"..") continue;
            const std::wstring path = folder + L"\\" + name;
            SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
            if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
                DeleteTree(path);
            } else {
                DeleteFileW(path.c_str());
            }
        } while (FindNextFileW(search, &data));
        FindClose(search);
    }
    RemoveDirectoryW(folder.c_str());
}

HANDLE Open(const std::wstring& path, DWORD disposition) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    disposition, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) throw std::runtime_error("a file of the device tree cannot be opened");
    return file;
}

constexpr LONGLONG UnitsPerHour = 36000000000LL;

}  // namespace

DeviceTree::DeviceTree(const std::wstring& name) {
    wchar_t folder[MAX_PATH] = L"";
    GetTempPathW(MAX_PATH, folder);
    root_ = std::wstring(folder) + name + L"-" + std::to_wstring(GetCurrentProcessId());
    DeleteTree(root_);
    if (!CreateDirectoryW(root_.c_str(), nullptr)) throw std::runtime_error("the device tree cannot be made");
}

DeviceTree::~DeviceTree() {
    DeleteTree(root_);
}

void DeviceTree::AddFolder(const std::wstring& path) const {
    for (std::size_t end = path.find(L'\\'); end != std::wstring::npos; end = path.find(L'\\', end + 1)) {
        CreateDirectoryW(Full(path.substr(0, end)).c_str(), nullptr);
    }
    CreateDirectoryW(Full(path).c_str(), nullptr);
}

void DeviceTree::AddFile(const std::wstring& path, const std::string& bytes) const {
    const std::size_t separator = path.find_last_of(L'\\');
    if (separator != std::wstring::npos) AddFolder(path.substr(0, separator));
    const HANDLE file = Open(Full(path), CREATE_ALWAYS);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
    if (written != bytes.size()) throw std::runtime_error("a file of the device tree cannot be written");
}

void DeviceTree::AddFileOfSize(const std::wstring& path, long long size) const {
    AddFile(path);
    const HANDLE file = Open(Full(path), OPEN_EXISTING);
    LARGE_INTEGER end;
    end.QuadPart = size;
    const bool done = SetFilePointerEx(file, end, nullptr, FILE_BEGIN) && SetEndOfFile(file);
    CloseHandle(file);
    if (!done) throw std::runtime_error("a file of the device tree cannot be given its size");
}

void DeviceTree::SetTime(const std::wstring& path, const FILETIME& utc) const {
    const HANDLE file = Open(Full(path), OPEN_EXISTING);
    SetFileTime(file, nullptr, nullptr, &utc);
    CloseHandle(file);
}

void DeviceTree::SetLocalTime(const std::wstring& path, const SYSTEMTIME& local) const {
    FILETIME localTime, utc;
    SystemTimeToFileTime(&local, &localTime);
    LocalFileTimeToFileTime(&localTime, &utc);
    SetTime(path, utc);
}

void DeviceTree::SetUtcTime(const std::wstring& path, const SYSTEMTIME& utc) const {
    FILETIME time;
    SystemTimeToFileTime(&utc, &time);
    SetTime(path, time);
}

void DeviceTree::SetAge(const std::wstring& path, int days, int hours) const {
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    ULARGE_INTEGER time;
    time.LowPart = now.dwLowDateTime;
    time.HighPart = now.dwHighDateTime;
    time.QuadPart -= static_cast<ULONGLONG>((days * 24LL + hours) * UnitsPerHour);
    const FILETIME then = {time.LowPart, time.HighPart};
    SetTime(path, then);
}

void DeviceTree::SetAttributes(const std::wstring& path, DWORD attributes) const {
    SetFileAttributesW(Full(path).c_str(), attributes);
}

SYSTEMTIME TimeOf(int year, int month, int day, int hour, int minute, int second) {
    SYSTEMTIME time = {};
    time.wYear = static_cast<WORD>(year);
    time.wMonth = static_cast<WORD>(month);
    time.wDay = static_cast<WORD>(day);
    time.wHour = static_cast<WORD>(hour);
    time.wMinute = static_cast<WORD>(minute);
    time.wSecond = static_cast<WORD>(second);
    return time;
}
