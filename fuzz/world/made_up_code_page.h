#pragma once

// The one code page of the made-up system: built like Shift-JIS, with a third of its places empty.

// 0 for what is no pair of a lead and a trail byte, and for an empty place.
[[nodiscard]] unsigned short MadeUpUnit(unsigned char lead, unsigned char trail);

// Up to 0xFF a single byte; 0 for a unit that the code page lacks.
[[nodiscard]] unsigned short MadeUpCode(unsigned short unit);
