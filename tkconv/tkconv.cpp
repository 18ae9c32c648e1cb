#include "tkconv/tkconv.h"

#include <windows.h>

namespace {

constexpr UINT ShiftJis = 932;

}  // namespace

extern "C" unsigned short unicode2sjis(unsigned short unit) {
    const wchar_t source = static_cast<wchar_t>(unit);
    unsigned char code[2] = {};
    BOOL replaced = FALSE;
    // Without best fit, since a letter that only looks alike would find text that is not there.
    const int length = WideCharToMultiByte(ShiftJis, WC_NO_BEST_FIT_CHARS, &source, 1,
                                           reinterpret_cast<char*>(code), sizeof(code), nullptr, &replaced);
    if (replaced || length < 1) return 0;
    return length == 1 ? code[0] : static_cast<unsigned short>(code[0] << 8 | code[1]);
}

extern "C" unsigned short sjis2unicode(unsigned char lead, unsigned char trail) {
    const unsigned char code[2] = {lead, trail};
    // Two units mean that the first byte is no lead byte.
    wchar_t units[2] = {};
    const int length = MultiByteToWideChar(ShiftJis, MB_ERR_INVALID_CHARS,
                                           reinterpret_cast<const char*>(code), sizeof(code), units, 2);
    return length == 1 ? static_cast<unsigned short>(units[0]) : static_cast<unsigned short>(0);
}

extern "C" unsigned short jis2unicode(unsigned char row, unsigned char cell) {
    if (row < 0x21 || row > 0x7E || cell < 0x21 || cell > 0x7E) return 0;
    // Two rows share a lead byte. Lead bytes leave out 0xA0 to 0xDF, trail bytes leave out 0x7F.
    int lead = (row - 0x21) / 2 + 0x81;
    if (lead > 0x9F) lead += 0x40;
    const bool firstOfPair = row % 2 != 0;
    int trail = cell + (firstOfPair ? 0x1F : 0x7E);
    if (firstOfPair && cell >= 0x60) ++trail;
    return sjis2unicode(static_cast<unsigned char>(lead), static_cast<unsigned char>(trail));
}
