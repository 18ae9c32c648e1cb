#pragma once

// The conversion pairs between UTF-16 and the device's bytes: the default one, the one over the exports of
// TKCONV.DLL and that of a Japanese system. Each routine has the type, and keeps the promise, of its slot in
// the program context.

// One unit to a Shift-JIS code of one or two bytes; 0 if there is none.
using UnicodeToSjisFunction = unsigned short (*)(unsigned short unit);
// A lead byte and its trail byte to one unit; 0 if there is none.
using SjisToUnicodeFunction = unsigned short (*)(unsigned char lead, unsigned char trail);

// Keeps the low 8 bits of each unit; a unit whose low byte is 0 ends the text early.
void DefaultToMultiByte(const wchar_t* source, char* destination, int destinationSize);
// Widens each byte to a unit.
void DefaultToWide(const char* source, wchar_t* destination, int destinationSize);

// Sets the exports that the two routines below call. Either may be null; its routine then does what the
// default one does.
void UseConversionLibrary(UnicodeToSjisFunction unicode2sjis, SjisToUnicodeFunction sjis2unicode);

// A unit without a code becomes "?". A two-byte code of which only the first byte fits is cut there.
void LibraryToMultiByte(const wchar_t* source, char* destination, int destinationSize);
// A pair without a unit, and a lead byte at the end of the text, become "?".
void LibraryToWide(const char* source, wchar_t* destination, int destinationSize);

// By the system's own code page. A text that does not fit is cut at the last character that does.
void SystemToMultiByte(const wchar_t* source, char* destination, int destinationSize);
void SystemToWide(const char* source, wchar_t* destination, int destinationSize);
