#pragma once

// The conversion pair of a Japanese system: the system's own code page. Each routine has the type of its slot
// in the program context. A text that does not fit is cut at the last character that does.

void SystemToMultiByte(const wchar_t* source, char* destination, int destinationSize);
void SystemToWide(const char* source, wchar_t* destination, int destinationSize);
