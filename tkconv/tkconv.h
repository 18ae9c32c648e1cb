#pragma once

/* TKCONV.DLL: conversion between UTF-16 and Shift-JIS for systems whose own code page is another one. The
   program loads it by name when it is there. Plain C, so that any tool can use it. */

#ifdef __cplusplus
extern "C" {
#endif

/* The exports keep these spellings; they are looked up by name. */

/* One UTF-16 unit to its Shift-JIS code: up to 0xFF a single byte, above it the lead byte in the high half
   and the trail byte in the low half. 0 when there is none. */
unsigned short unicode2sjis(unsigned short unit);

/* A lead byte and its trail byte to one UTF-16 unit. 0 when they are no double-byte character. */
unsigned short sjis2unicode(unsigned char lead, unsigned char trail);

/* Row and cell of JIS X 0208 (both 0x21 to 0x7E) to one UTF-16 unit. 0 when the place is empty. */
unsigned short jis2unicode(unsigned char row, unsigned char cell);

#ifdef __cplusplus
}
#endif
