#include "platform/ce_files.h"

#include <fcntl.h>
#include <io.h>

#include <cstdint>
#include <cwchar>

#include "platform/desktop/file_identity.h"
#include "platform/desktop/folder_listing.h"
#include "platform/desktop/system_path.h"
#include "platform/handles.h"

namespace {

std::FILE* OpenShared(const wchar_t* path) {
    const SystemPath literal(path);
    if (!literal.Fits()) return nullptr;
    // The C library's own opening would keep others from deleting the file.
    UniqueFile file(CreateFileW(literal.Text(), GENERIC_READ,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    // Reading from a pipe that nobody writes to would never end.
    if (!file || GetFileType(file.Get()) != FILE_TYPE_DISK) return nullptr;
    const int descriptor =
        _open_osfhandle(reinterpret_cast<std::intptr_t>(file.Get()), _O_RDONLY | _O_BINARY);
    if (descriptor < 0) return nullptr;
    // The descriptor owns the handle from here on, and the stream the descriptor.
    static_cast<void>(file.Detach());
    std::FILE* const stream = _fdopen(descriptor, "rb");
    if (stream == nullptr) _close(descriptor);
    return stream;
}

// An empty path is no path; made absolute it would be the current folder.
bool IsPath(const wchar_t* path) {
    if (path[0] != L'\0') return true;
    SetLastError(ERROR_PATH_NOT_FOUND);
    return false;
}

// The system's answer for the literal path, or the failure's answer for a path that is too long.
template <typename Answer, typename Call>
Answer WithPath(const wchar_t* path, Answer failure, Call call) {
    if (!IsPath(path)) return failure;
    const SystemPath literal(path);
    return literal.Fits() ? call(literal.Text()) : failure;
}

template <typename Call>
BOOL WithTwoPaths(const wchar_t* from, const wchar_t* to, Call call) {
    if (!IsPath(from) || !IsPath(to)) return FALSE;
    const SystemPath literalFrom(from);
    if (!literalFrom.Fits()) return FALSE;
    const SystemPath literalTo(to);
    return literalTo.Fits() ? call(literalFrom.Text(), literalTo.Text()) : FALSE;
}

DWORD GetAttributes(const wchar_t* path) {
    return WithPath(path, INVALID_FILE_ATTRIBUTES,
                    [](const wchar_t* literal) { return GetFileAttributesW(literal); });
}

// What is done to a link must not be done to what it leads to.
bool MayBeChanged(const wchar_t* path) {
    if (!IsOutOfReach(path)) return true;
    SetLastError(ERROR_NOT_SUPPORTED);
    return false;
}

// Every system writes through a link to a file.
bool MayBeWritten(const wchar_t* path) {
    if (!LeadsToAnotherFile(path)) return true;
    SetLastError(ERROR_NOT_SUPPORTED);
    return false;
}

BOOL SetAttributes(const wchar_t* path, DWORD attributes) {
    if (!MayBeChanged(path)) return FALSE;
    return WithPath(path, FALSE,
                    [attributes](const wchar_t* literal) { return SetFileAttributesW(literal, attributes); });
}

BOOL Delete(const wchar_t* path) {
    if (!MayBeChanged(path)) return FALSE;
    return WithPath(path, FALSE, [](const wchar_t* literal) { return DeleteFileW(literal); });
}

// No name of the handheld holds a colon. On the desktop a stream of another file would come of it, or a file
// that many programs cannot open.
bool IsNewName(const wchar_t* literal) {
    constexpr std::size_t MarkAndDrive = 6;
    const bool marked = std::wcsncmp(literal, L"\\\\?\\", 4) == 0 && std::wcslen(literal) >= MarkAndDrive;
    if (std::wcschr(marked ? literal + MarkAndDrive : literal, L':') == nullptr) return true;
    SetLastError(ERROR_INVALID_NAME);
    return false;
}

// Not every system tells that the new name is taken where it is found to lead to the same file: by a link, or
// as another spelling of the old one.
BOOL MoveEntry(const wchar_t* literalFrom, const wchar_t* literalTo) {
    if (std::wcscmp(literalFrom, literalTo) == 0 || !OpensSameFile(literalFrom, literalTo))
        return MoveFileW(literalFrom, literalTo);
    if (IsSameEntry(literalFrom, literalTo)) return RespellEntry(literalFrom, literalTo, &MoveFileW);
    SetLastError(ERROR_ALREADY_EXISTS);
    return FALSE;
}

BOOL Move(const wchar_t* from, const wchar_t* to) {
    if (!MayBeChanged(from)) return FALSE;
    return WithTwoPaths(from, to, [](const wchar_t* literalFrom, const wchar_t* literalTo) -> BOOL {
        return IsNewName(literalTo) && MoveEntry(literalFrom, literalTo);
    });
}

bool IsMissing(const wchar_t* literal) {
    return GetFileAttributesW(literal) == INVALID_FILE_ATTRIBUTES && GetLastError() == ERROR_FILE_NOT_FOUND;
}

BOOL Copy(const wchar_t* from, const wchar_t* to, BOOL failIfExists) {
    if (!MayBeWritten(to)) return FALSE;
    return WithTwoPaths(from, to,
                        [failIfExists](const wchar_t* literalFrom, const wchar_t* literalTo) -> BOOL {
                            // A link that leads nowhere looks missing, and the file would be made where it
                            // leads to.
                            const BOOL madeAnew = failIfExists || IsMissing(literalTo);
                            return IsNewName(literalTo) && CopyFileW(literalFrom, literalTo, madeAnew);
                        });
}

BOOL CreateFolder(const wchar_t* path, SECURITY_ATTRIBUTES* security) {
    return WithPath(path, FALSE,
                    [security](const wchar_t* literal) { return CreateDirectoryW(literal, security); });
}

BOOL RemoveFolder(const wchar_t* path) {
    if (!MayBeChanged(path)) return FALSE;
    return WithPath(path, FALSE, [](const wchar_t* literal) { return RemoveDirectoryW(literal); });
}

}  // namespace

ce::FileCalls ce::fileCalls = {
    StartListing, NextOfListing, EndListing, OpenShared,   GetAttributes, SetAttributes,
    Delete,       Move,          Copy,       CreateFolder, RemoveFolder,  LeadsElsewhere,
};

std::size_t ce::ReadBlock(std::FILE* file, unsigned char* block, std::size_t size) {
    const int count = _read(_fileno(file), block, static_cast<unsigned>(size));
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}
