#include "app/memory_lines.h"

#include <algorithm>

#include "base/format_text.h"
#include "base/program_context.h"

namespace {

constexpr int KilobyteShift = 10;

// "%d" shows no more: 2 terabytes in kilobytes.
constexpr std::uint64_t LargestShown = 0x7FFFFFFF;

int Shown(std::uint64_t number) {
    return static_cast<int>(std::min(number, LargestShown));
}

}  // namespace

void FormatMemoryLine(const wchar_t* label, const ce::FreeAndTotal& bytes,
                      wchar_t (&line)[MemoryLineCapacity]) {
    const std::uint64_t free = bytes.free >> KilobyteShift;
    const std::uint64_t total = bytes.total >> KilobyteShift;
    // Computed from whole kilobytes, as shown: 1,023 free bytes count as none.
    const std::uint64_t percentage = total != 0 ? free * 100 / total : 0;
    FormatText(line, MemoryLineCapacity, L"%s: %d/%dKB (%d%%)", label, Shown(free), Shown(total),
               Shown(percentage));
}

bool ProgramMemoryLine(wchar_t (&line)[MemoryLineCapacity]) {
    line[0] = L'\0';
    ce::FreeAndTotal bytes;
    if (!ce::storageCalls.programMemory(bytes)) return false;
    FormatMemoryLine(InLanguage(L"Program", L"ﾌﾟﾛｸﾞﾗﾑ"), bytes, line);
    return true;
}

bool DataStoreLine(wchar_t (&line)[MemoryLineCapacity]) {
    line[0] = L'\0';
    ce::FreeAndTotal bytes;
    if (!ce::storageCalls.objectStore(bytes)) return false;
    FormatMemoryLine(InLanguage(L"Data", L"ﾃﾞｰﾀ"), bytes, line);
    return true;
}

bool StorageCardLine(int index, wchar_t (&line)[MemoryLineCapacity]) {
    line[0] = L'\0';
    wchar_t name[MAX_PATH];
    ce::FreeAndTotal bytes;
    // QUIRK: card-is-named-as-listed
    if (!ce::storageCalls.storageCard(index, name) || !ce::storageCalls.diskSpace(name, bytes)) return false;
    FormatMemoryLine(name, bytes, line);
    return true;
}
