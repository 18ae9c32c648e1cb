#include "made_up_code_page.h"

#include <windows.h>

#include <cstdlib>

namespace {

constexpr unsigned FirstUnit = 0x3000;
constexpr unsigned TrailCount = 188;
constexpr unsigned LeadCount = 60;

bool IsLead(unsigned byte) {
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}
bool IsTrail(unsigned byte) {
    return byte >= 0x40 && byte <= 0xFC && byte != 0x7F;
}
bool IsEmpty(unsigned place) {
    return place % 3 == 1;
}

}  // namespace

unsigned short MadeUpUnit(unsigned char lead, unsigned char trail) {
    if (!IsLead(lead) || !IsTrail(trail)) return 0;
    const unsigned row = lead <= 0x9F ? lead - 0x81U : lead - 0xC1U;
    const unsigned place = row * TrailCount + (trail < 0x7F ? trail - 0x40U : trail - 0x41U);
    return IsEmpty(place) ? static_cast<unsigned short>(0) : static_cast<unsigned short>(FirstUnit + place);
}

unsigned short MadeUpCode(unsigned short unit) {
    if (unit <= 0x80) return unit;
    if (unit >= 0xFF61 && unit <= 0xFF9F) return static_cast<unsigned short>(unit - 0xFF61 + 0xA1);
    const unsigned place = unit - FirstUnit;
    if (unit < FirstUnit || place >= LeadCount * TrailCount || IsEmpty(place)) return 0;
    const unsigned row = place / TrailCount, column = place % TrailCount;
    const unsigned lead = row < 31 ? 0x81 + row : 0xC1 + row;
    const unsigned trail = column < 63 ? 0x40 + column : 0x41 + column;
    return static_cast<unsigned short>(lead << 8 | trail);
}

// One unit, and a place for what it becomes.
int WideCharToMultiByte(UINT, DWORD, const wchar_t* units, int unitCount, char* bytes, int byteCount,
                        const char*, BOOL* replaced) {
    if (unitCount != 1 || byteCount != 2) std::abort();
    const auto unit = static_cast<unsigned short>(units[0]);
    const unsigned code = MadeUpCode(unit);
    *replaced = code == 0 && unit != 0 ? TRUE : FALSE;
    if (code > 0xFF) bytes[0] = static_cast<char>(code >> 8);
    bytes[code > 0xFF ? 1 : 0] = *replaced ? '?' : static_cast<char>(code);
    return code > 0xFF ? 2 : 1;
}

// What is asked to be valid are two bytes: a pair, or two of their own. Anything else is taken as it comes,
// an empty place for the katakana's dot.
int MultiByteToWideChar(UINT, DWORD flags, const char* bytes, int byteCount, wchar_t* units, int unitCount) {
    constexpr wchar_t Unknown = 0x30FB;
    const bool hasToBeValid = (flags & MB_ERR_INVALID_CHARS) != 0;
    int count = 0;
    for (int at = 0; at < byteCount && count < unitCount; ++at) {
        const auto byte = static_cast<unsigned char>(bytes[at]);
        if (!IsLead(byte)) {
            units[count++] = byte;
            continue;
        }
        const auto trail = static_cast<unsigned char>(at + 1 < byteCount ? bytes[++at] : '\0');
        const unsigned short unit = MadeUpUnit(byte, trail);
        if (unit == 0 && hasToBeValid) return 0;
        units[count++] = unit == 0 ? Unknown : static_cast<wchar_t>(unit);
    }
    return count;
}
