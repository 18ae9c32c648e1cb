#include "fileops/folder_path.h"

#include <cwchar>

#include "fileops/file_actions.h"
#include "fileops/path_kind.h"

namespace {

// The folder itself; those above it stand.
bool CreateIfMissing(HWND owner, const wchar_t* folder) {
    if (PathExists(folder)) return IsFolder(folder);
    return CreateDirectoryOrReport(owner, folder, nullptr);
}

}  // namespace

bool CreateFolderPath(HWND owner, const wchar_t* path) {
    if (PathExists(path)) return IsFolder(path);
    if (std::wcslen(path) >= MAX_PATH) return false;

    // The name of another machine, a drive or nothing stands before the first separator: not to be made.
    const bool isOnAnotherMachine = std::wcsncmp(path, L"\\\\", 2) == 0;
    const wchar_t* separator = std::wcschr(isOnAnotherMachine ? path + 2 : path, L'\\');
    if (separator == nullptr) return false;

    wchar_t prefix[MAX_PATH];
    while ((separator = std::wcschr(separator + 1, L'\\')) != nullptr) {
        const auto units = static_cast<std::size_t>(separator - path);
        std::wmemcpy(prefix, path, units);
        prefix[units] = L'\0';
        if (!CreateIfMissing(owner, prefix)) return false;
    }
    return CreateDirectoryOrReport(owner, path, nullptr);
}
