#include "fileops/file_details.h"

#include <cwchar>
#include <iterator>

#include "base/format_text.h"
#include "fileops/file_facts.h"
#include "platform/windows_ce.h"

namespace {

constexpr DWORD BytesInKilobyte = 1024;
// From here on the tenths of a kilobyte are not worth showing.
constexpr DWORD WholeKilobytesFrom = 102400;

// QUIRK: ending-alone-is-no-file-type
constexpr std::size_t ShortestProgramName = 5;

}  // namespace

bool IsProgramFile(const wchar_t* text) {
    const std::size_t length = std::wcslen(text);
    if (length < ShortestProgramName) return false;
    const wchar_t* end = text + length - 4;
    return _wcsicmp(end, L".exe") == 0 || _wcsicmp(end, L".com") == 0;
}

void FormatSizeDetails(DWORD lowSize, wchar_t* text, std::size_t capacity) {
    const DWORD kilobytes = lowSize / BytesInKilobyte;
    const DWORD rest = lowSize % BytesInKilobyte;
    // QUIRK: two-gigabytes-read-negative. The formats know no unsigned number.
    if (lowSize - rest >= WholeKilobytesFrom) {
        FormatText(text, capacity, L"%dKB (%d bytes)", kilobytes, lowSize);
    } else {
        FormatText(text, capacity, L"%d.%dKB (%d bytes)", kilobytes, rest * 10 / BytesInKilobyte, lowSize);
    }
}

void FormatTimeDetails(const FILETIME& time, wchar_t* text, std::size_t capacity) {
    FILETIME localFileTime{};
    SYSTEMTIME local{};
    ce::FileTimeToLocalFileTime(&time, &localFileTime);
    FileTimeToSystemTime(&localFileTime, &local);
    wchar_t date[256] = L"";
    wchar_t clock[256] = L"";
    GetDateFormatW(LOCALE_SYSTEM_DEFAULT, 0, &local, nullptr, date, static_cast<int>(std::size(date)));
    GetTimeFormatW(LOCALE_SYSTEM_DEFAULT, 0, &local, nullptr, clock, static_cast<int>(std::size(clock)));
    FormatText(text, capacity, L"%s %s", date, clock);
}

void FormatFileDetails(const wchar_t* path, wchar_t (&text)[FileDetailsCapacity]) {
    text[0] = L'\0';
    WIN32_FIND_DATAW data{};
    if (!FindFile(path, data)) return;
    FormatSizeDetails(data.nFileSizeLow, text, FileDetailsCapacity);
    const std::size_t length = std::wcslen(text);
    text[length] = L'\n';
    FormatTimeDetails(data.ftLastWriteTime, text + length + 1, FileDetailsCapacity - length - 1);
}
