#include "search/text_conversion.h"

#include "search/double_byte_text.h"

namespace {

UnicodeToSjisFunction libraryUnicodeToSjis = nullptr;
SjisToUnicodeFunction librarySjisToUnicode = nullptr;

// One unit of the terminated text, which starts at `source` and is stepped over.
wchar_t NextLibraryUnit(const char*& source) {
    const auto byte = static_cast<unsigned char>(*source++);
    if (IsLeadByte(byte)) {
        const auto trail = static_cast<unsigned char>(*source);
        if (trail == 0) return L'?';
        ++source;
        const unsigned short unit = librarySjisToUnicode(byte, trail);
        return unit != 0 ? static_cast<wchar_t>(unit) : L'?';
    }
    // Half-width katakana: the difference to U+FF61 to U+FF9F in 16 bits.
    if (byte >= 0xA1 && byte <= 0xDF) return static_cast<wchar_t>(static_cast<unsigned short>(byte - 320));
    return static_cast<wchar_t>(byte);
}

}  // namespace

void DefaultToMultiByte(const wchar_t* source, char* destination, int destinationSize) {
    if (destinationSize <= 0) return;
    int stored = 0;
    for (; *source != L'\0' && stored < destinationSize - 1; ++source) {
        // QUIRK: low-bytes-without-library
        destination[stored++] = static_cast<char>(static_cast<unsigned char>(*source));
        // A unit like U+0100 has the low byte 0 and ends the text.
        if (destination[stored - 1] == '\0') return;
    }
    destination[stored] = '\0';
}

void DefaultToWide(const char* source, wchar_t* destination, int destinationSize) {
    if (destinationSize <= 0) return;
    int stored = 0;
    for (; *source != '\0' && stored < destinationSize - 1; ++source) {
        destination[stored++] = static_cast<wchar_t>(static_cast<unsigned char>(*source));
    }
    destination[stored] = L'\0';
}

void UseConversionLibrary(UnicodeToSjisFunction unicode2sjis, SjisToUnicodeFunction sjis2unicode) {
    libraryUnicodeToSjis = unicode2sjis;
    librarySjisToUnicode = sjis2unicode;
}

void LibraryToMultiByte(const wchar_t* source, char* destination, int destinationSize) {
    if (libraryUnicodeToSjis == nullptr) {
        DefaultToMultiByte(source, destination, destinationSize);
        return;
    }
    if (destinationSize <= 0) return;
    int stored = 0;
    for (; *source != L'\0' && stored < destinationSize - 1; ++source) {
        unsigned short code = libraryUnicodeToSjis(static_cast<unsigned short>(*source));
        if (code == 0) code = '?';
        // QUIRK: half-a-character-at-the-cut. The first byte of a code may be the last one that fits.
        if (code > 0xFF) destination[stored++] = static_cast<char>(code >> 8);
        if (stored < destinationSize - 1) destination[stored++] = static_cast<char>(code & 0xFF);
    }
    destination[stored] = '\0';
}

void LibraryToWide(const char* source, wchar_t* destination, int destinationSize) {
    if (librarySjisToUnicode == nullptr) {
        DefaultToWide(source, destination, destinationSize);
        return;
    }
    if (destinationSize <= 0) return;
    int stored = 0;
    while (*source != '\0' && stored < destinationSize - 1)
        destination[stored++] = NextLibraryUnit(source);
    destination[stored] = L'\0';
}
