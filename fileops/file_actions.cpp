#include "fileops/file_actions.h"

#include <cwchar>
#include <span>

#include "base/program_context.h"
#include "fileops/file_facts.h"
#include "framework/message_boxes.h"
#include "platform/windows_ce.h"

namespace {

// The text for a failure code. A "%s" in it is the first path given to the call.
struct FailureText {
    DWORD code;
    TextPair text;
};
using FailureTexts = std::span<const FailureText>;

// A code that only the handheld has.
constexpr DWORD ErrorSwapError = 999;

constexpr FailureText DeleteTexts[] = {{ERROR_ACCESS_DENIED, {L"Access denied", L"ﾌｧｲﾙにｱｸｾｽできません"}}};

// QUIRK: full-disk-has-three-wordings. Here, in CopyTexts and in CreateDirectoryTexts.
constexpr FailureText MoveTexts[] = {
    {ERROR_SHARING_VIOLATION, {L"%s is in use", L"%s は使用中です"}},
    {ERROR_DISK_FULL, {L"There is not enough space on the disk", L"ﾃﾞｨｽｸがいっぱいです"}},
};

// QUIRK: wrong-parameter-reads-damaged. In Japanese.
constexpr FailureText CopyTexts[] = {
    {ERROR_DISK_FULL, {L"The disk is full", L"ﾃﾞｨｽｸがいっぱいです"}},
    {ERROR_CRC, {L"CRC ERROR %s", L"CRCｴﾗｰ %s"}},
    {ERROR_INVALID_PARAMETER, {L"Invalid parameter", L"ﾌｧｲﾙが壊れているかもしれません"}},
    {ErrorSwapError, {L"SWAP ERROR %s", L"ｽﾜｯﾌﾟｴﾗｰ %s"}},
    {ERROR_SHARING_VIOLATION, {L"%s is in use", L"%s は使用中です"}},
    {ERROR_USER_MAPPED_FILE, {L"%s is in use", L"%s は使用中です"}},
};

constexpr FailureText CreateDirectoryTexts[] = {
    {ERROR_PATH_NOT_FOUND, {L"Can't find the path specified. '%s'", L"ﾃﾞｨﾚｸﾄﾘﾊﾟｽ '%s'が見つかりません。"}},
    {ERROR_DISK_FULL, {L"There is not enough space on the disk.", L"ﾃﾞｨｽｸに十分な空き領域がありません。"}},
};

constexpr FailureText RemoveDirectoryTexts[] = {
    {ERROR_DIR_NOT_EMPTY, {L"Folder not empty", L"ﾌｫﾙﾀﾞが空でありません"}}};

// Reports the last error: by its own text, or by the other one with its number.
bool Report(HWND owner, const wchar_t* path, FailureTexts texts, const wchar_t* anyOther) {
    const DWORD code = GetLastError();
    for (const FailureText& failure : texts) {
        if (failure.code != code) continue;
        ShowError(owner, failure.text.Text(), path);
        return false;
    }
    // QUIRK: numbered-errors-are-english
    ShowError(owner, anyOther, static_cast<int>(code));
    return false;
}

// Creates the folder itself; those above it exist.
bool CreateIfMissing(HWND owner, const wchar_t* folder) {
    if (PathExists(folder)) return IsFolder(folder);
    return CreateDirectoryOrReport(owner, folder, nullptr);
}

}  // namespace

bool DeleteFileOrReport(HWND owner, const wchar_t* path) {
    return ce::DeleteFileW(path) || Report(owner, path, DeleteTexts, L"Error DeleteFile %d");
}

bool MoveFileOrReport(HWND owner, const wchar_t* from, const wchar_t* to) {
    return ce::MoveFileW(from, to) || Report(owner, from, MoveTexts, L"Error Move file %d");
}

bool CopyFileOrReport(HWND owner, const wchar_t* from, const wchar_t* to, bool failIfExists) {
    // QUIRK: in-use-names-the-source
    return ce::CopyFileW(from, to, failIfExists) || Report(owner, from, CopyTexts, L"Error CopyFile %d");
}

bool CreateDirectoryOrReport(HWND owner, const wchar_t* path, SECURITY_ATTRIBUTES* security) {
    return ce::CreateDirectoryW(path, security) ||
           Report(owner, path, CreateDirectoryTexts, L"Error CreateDirectory %d");
}

bool SetAttributesOrReport(HWND owner, const wchar_t* path, DWORD attributes) {
    return ce::SetFileAttributesW(path, attributes) || Report(owner, path, {}, L"Error SetFileAttribute %d");
}

bool RemoveDirectoryOrReport(HWND owner, const wchar_t* path) {
    return ce::RemoveDirectoryW(path) ||
           Report(owner, path, RemoveDirectoryTexts, L"Error RemoveDirectory %d");
}

bool CreateFolderPath(HWND owner, const wchar_t* path) {
    // QUIRK: file-in-a-folders-place-is-silent
    if (PathExists(path)) return IsFolder(path);
    if (std::wcslen(path) >= MAX_PATH) return false;

    // Before the first separator is another machine's name, a drive or nothing: not to be created.
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
