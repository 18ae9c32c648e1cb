#include "results/row_texts.h"

#include <cstdint>
#include <cwchar>
#include <iterator>

#include "base/format_text.h"
#include "base/paths.h"

namespace {

constexpr std::int32_t Kilobyte = 1024;
constexpr std::int32_t Megabyte = 1024 * 1024;

// The longest date or time that the system's formatting may write.
constexpr int FormatRoom = 255;

bool IsSameDay(const SYSTEMTIME& one, const SYSTEMTIME& other) {
    return one.wYear == other.wYear && one.wMonth == other.wMonth && one.wDay == other.wDay;
}

// The system takes longer to format a date and a time than the list takes for the rest of a row. Files found
// together are often of one day, so the last date is kept; and hours, minutes and seconds are the same two
// digits in every locale.
const wchar_t* DateText(const SYSTEMTIME& local) {
    static SYSTEMTIME lastDay;
    static wchar_t lastText[RowTextCapacity];
    if (lastText[0] != L'\0' && IsSameDay(local, lastDay)) return lastText;
    lastText[0] = L'\0';
    // QUIRK: year-99-sorts-after-02. The cell is what is sorted by.
    GetDateFormatW(LOCALE_SYSTEM_DEFAULT, 0, &local, L"yy'/'MM'/'dd", lastText, FormatRoom);
    lastDay = local;
    return lastText;
}

wchar_t* AppendTwoDigits(wchar_t* text, WORD number) {
    *text++ = static_cast<wchar_t>(L'0' + number / 10);
    *text++ = static_cast<wchar_t>(L'0' + number % 10);
    return text;
}

// Empty for an invalid time, as the system leaves it.
void TimeText(const SYSTEMTIME& local, wchar_t (&text)[9]) {
    wchar_t* end = text;
    if (local.wHour < 24 && local.wMinute < 60 && local.wSecond < 60 && local.wMilliseconds < 1000) {
        end = AppendTwoDigits(end, local.wHour);
        *end++ = L':';
        end = AppendTwoDigits(end, local.wMinute);
        *end++ = L':';
        end = AppendTwoDigits(end, local.wSecond);
    }
    *end = L'\0';
}

}  // namespace

void FormatResultSize(DWORD lowSize, wchar_t (&text)[RowTextCapacity]) {
    // QUIRK: two-gigabytes-read-negative
    const auto size = static_cast<std::int32_t>(lowSize);
    // QUIRK: shown-sizes-are-cut-off
    if (size >= Megabyte) {
        FormatText(text, std::size(text), L"%dM", size / Megabyte);
    } else if (size >= Kilobyte) {
        FormatText(text, std::size(text), L"%dK", size / Kilobyte);
    } else {
        FormatText(text, std::size(text), L"%d", size);
    }
}

void FolderOfResult(const wchar_t* fullPath, wchar_t (&folder)[MAX_PATH]) {
    const PathParts parts = SplitPath(fullPath);
    const std::size_t length = std::wcslen(parts.folder);
    std::wmemcpy(folder, parts.folder, length + 1);
    if (length > 1 && folder[length - 1] == L'\\') folder[length - 1] = L'\0';
}

void FormatResultTime(const SYSTEMTIME& local, wchar_t (&text)[2 * RowTextCapacity]) {
    wchar_t time[9];
    TimeText(local, time);
    const wchar_t* const date = DateText(local);
    const std::size_t dateLength = std::wcslen(date);
    std::wmemcpy(text, date, dateLength);
    text[dateLength] = L' ';
    std::wcscpy(text + dateLength + 1, time);
}
