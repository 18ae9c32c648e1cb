#include "app/memory_lines.h"

#include "app/language.h"
#include "platform/format_text.h"

namespace {

constexpr int KilobyteShift = 10;

}  // namespace

void FormatMemoryLine(const wchar_t* label, const ce::FreeAndTotal& bytes,
                      wchar_t (&line)[MemoryLineCapacity]) {
    const std::uint64_t free = bytes.free >> KilobyteShift;
    const std::uint64_t total = bytes.total >> KilobyteShift;
    // Of whole kilobytes, as they are shown: 1,023 free bytes are none.
    const std::uint64_t percentage = total != 0 ? free * 100 / total : 0;
    // Kilobytes of today's memories still fit in the 32 bits of the format.
    FormatText(line, MemoryLineCapacity, L"%s: %d/%dKB (%d%%)", label, static_cast<std::uint32_t>(free),
               static_cast<std::uint32_t>(total), static_cast<std::uint32_t>(percentage));
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
    if (!ce::storageCalls.storageCard(index, name) || !ce::storageCalls.diskSpace(name, bytes)) return false;
    FormatMemoryLine(name, bytes, line);
    return true;
}
