#pragma once

// Shift-JIS in the content search: which bytes start a character of two, and folding that leaves those alone.

// True for 0x81 to 0x9F and 0xE0 to 0xFD.
// QUIRK: fd-is-a-lead-byte. Shift-JIS ends at 0xFC.
constexpr bool IsLeadByte(unsigned char byte) {
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFD);
}

// Only "a" to "z" change, as in the C library's default locale.
constexpr unsigned char UpperCaseByte(unsigned char byte) {
    return byte >= 'a' && byte <= 'z' ? static_cast<unsigned char>(byte - ('a' - 'A')) : byte;
}

// Folds the terminated bytes in place. When doubleByteAware is set, a lead byte and the byte behind it stay
// as they are; otherwise every byte is folded, trail bytes included, which the folding line reader mirrors.
void UpperCaseBytes(char* bytes, bool doubleByteAware);
