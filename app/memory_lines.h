#pragma once

// The lines of the About box about free memory.

#include <cstddef>

#include "platform/ce_system.h"

constexpr int MemoryLineCapacity = 400;

// How many storage cards are listed.
constexpr int ListedStorageCards = 2;

// The label with the free kilobytes, the total and the percentage free, all truncated. A total below one
// kilobyte gives 0 percent. Figures go no higher than 2 terabytes; the percentage is right all the same.
void FormatMemoryLine(const wchar_t* label, const ce::FreeAndTotal& bytes,
                      wchar_t (&line)[MemoryLineCapacity]);

// Each writes its line in the user's language. Returns false, with the line empty, if the system does not
// answer.
bool ProgramMemoryLine(wchar_t (&line)[MemoryLineCapacity]);
bool DataStoreLine(wchar_t (&line)[MemoryLineCapacity]);
bool StorageCardLine(int index, wchar_t (&line)[MemoryLineCapacity]);
