#include "results/row_texts.h"

#include <cstdint>
#include <cwchar>
#include <iterator>

#include "platform/format_text.h"
#include "search/split_path.h"

namespace {

constexpr std::int32_t Kilobyte = 1024;
constexpr std::int32_t Megabyte = 1024 * 1024;

// Given to the system's formatting as the most that a date or a time may take.
constexpr int FormatRoom = 255;

}  // namespace

void FormatResultSize(DWORD lowSize, wchar_t (&text)[RowTextCapacity]) {
    const auto size = static_cast<std::int32_t>(lowSize);
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
    wchar_t date[RowTextCapacity] = L"";
    wchar_t time[RowTextCapacity] = L"";
    GetDateFormatW(LOCALE_SYSTEM_DEFAULT, 0, &local, L"yy'/'MM'/'dd", date, FormatRoom);
    GetTimeFormatW(LOCALE_SYSTEM_DEFAULT, 0, &local, L"HH':'mm':'ss", time, FormatRoom);
    FormatText(text, std::size(text), L"%ls %ls", date, time);
}
