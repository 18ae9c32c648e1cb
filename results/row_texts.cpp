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

// A day with its text, as short as nearly every locale writes it.
struct WrittenDay {
    WORD year, month, day;
    wchar_t text[9];

    [[nodiscard]] bool IsOf(const SYSTEMTIME& time) const {
        return text[0] != L'\0' && day == time.wDay && month == time.wMonth && year == time.wYear;
    }
    void Keep(const SYSTEMTIME& time, const wchar_t* written) {
        if (std::wcslen(written) >= std::size(text)) return;
        year = time.wYear;
        month = time.wMonth;
        day = time.wDay;
        std::wcscpy(text, written);
    }
};

// Each day of two and a half years has a place of its own; days that are further apart may share one.
WrittenDay& PlaceOf(const SYSTEMTIME& time) {
    constexpr unsigned Places = 1024;
    static WrittenDay places[Places];
    return places[(time.wYear * 384U + time.wMonth * 32U + time.wDay) % Places];
}

// The system takes longer to format a date than the list takes for half of a row, so the last dates are kept.
// Hours, minutes and seconds are the same two digits in every locale.
const wchar_t* DateText(const SYSTEMTIME& local) {
    WrittenDay& place = PlaceOf(local);
    if (place.IsOf(local)) return place.text;
    static wchar_t text[RowTextCapacity];
    text[0] = L'\0';
    // QUIRK: year-99-sorts-after-02. The cell is what is sorted by.
    GetDateFormatW(LOCALE_SYSTEM_DEFAULT, 0, &local, L"yy'/'MM'/'dd", text, FormatRoom);
    place.Keep(local, text);
    return text;
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
