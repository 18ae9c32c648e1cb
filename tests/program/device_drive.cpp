#include "tests/program/device_drive.h"

#include <windows.h>

#include <winioctl.h>

#include <cstring>
#include <stdexcept>
#include <vector>

namespace {

// Wine keeps its drives in its mount manager; the system's own call for it makes a name that paths do not
// see.
struct UnixDrive {
    ULONG size;
    ULONG type;
    ULONG fileSystemType;
    DWORD serial;
    ULONGLONG unixDevice;
    WCHAR letter;
    USHORT mountPointOffset;
    USHORT deviceOffset;
    USHORT labelOffset;
};
constexpr DWORD DefineUnixDrive = CTL_CODE('m', 32, METHOD_BUFFERED, FILE_READ_ACCESS | FILE_WRITE_ACCESS);

using UnixFileName = char*(__cdecl*)(const wchar_t*);

UnixFileName WineUnixFileName() {
    const HMODULE kernel = GetModuleHandleW(L"kernel32.dll");
    return reinterpret_cast<UnixFileName>(GetProcAddress(kernel, "wine_get_unix_file_name"));
}

// An empty path takes the drive away.
bool SetUnixDrive(wchar_t letter, const std::string& path, UINT type = DRIVE_NO_ROOT_DIR) {
    const HANDLE manager =
        CreateFileW(L"\\\\.\\MountPointManager", GENERIC_READ | GENERIC_WRITE,
                    FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (manager == INVALID_HANDLE_VALUE) return false;
    const std::size_t pathSize = path.empty() ? 0 : path.size() + 1;
    std::vector<char> input(sizeof(UnixDrive) + pathSize);
    UnixDrive drive = {};
    drive.size = static_cast<ULONG>(input.size());
    drive.type = type;
    drive.letter = letter;
    if (!path.empty()) drive.mountPointOffset = sizeof(UnixDrive);
    std::memcpy(input.data(), &drive, sizeof(drive));
    if (!path.empty()) std::memcpy(input.data() + sizeof(drive), path.c_str(), pathSize);
    DWORD answered = 0;
    const BOOL done =
        DeviceIoControl(manager, DefineUnixDrive, input.data(), drive.size, nullptr, 0, &answered, nullptr);
    CloseHandle(manager);
    return done != FALSE;
}

bool DefineDrive(const std::wstring& letter, const std::wstring& folder, UINT type) {
    const UnixFileName unixName = WineUnixFileName();
    if (unixName == nullptr) return DefineDosDeviceW(0, letter.c_str(), folder.c_str()) != FALSE;
    char* path = unixName(folder.c_str());
    if (path == nullptr) return false;
    const bool done = SetUnixDrive(letter[0], path, type);
    HeapFree(GetProcessHeap(), 0, path);
    return done;
}

std::wstring FreeLetter() {
    const DWORD drives = GetLogicalDrives();
    for (wchar_t letter = L'Q'; letter < L'Z'; ++letter) {
        if ((drives & (1u << (letter - L'A'))) == 0) return std::wstring(1, letter) + L":";
    }
    throw std::runtime_error("no drive letter is free");
}

}  // namespace

DeviceDrive::DeviceDrive(const std::wstring& rootFolder, UINT driveType)
    : letter_(FreeLetter()), folder_(rootFolder) {
    if (!DefineDrive(letter_, folder_, driveType))
        throw std::runtime_error("the device's drive could not be made");
}

DeviceDrive::~DeviceDrive() {
    if (WineUnixFileName() != nullptr) {
        SetUnixDrive(letter_[0], "");
    } else {
        DefineDosDeviceW(DDD_REMOVE_DEFINITION, letter_.c_str(), folder_.c_str());
    }
}
