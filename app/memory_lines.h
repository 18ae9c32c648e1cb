#pragma once

// The lines of the About box about free memory.

#include <cstddef>

#include "platform/ce_system.h"

constexpr int MemoryLineCapacity = 400;

// How many storage cards are listed.
constexpr int ListedStorageCards = 2;

// Free and total kilobytes and the percentage of these, all truncated, under the label; 0 percent of less
// than a kilobyte. Of more than 2 terabytes the figure stands still; the percentage is true all the same.
void FormatMemoryLine(const wchar_t* label, const ce::FreeAndTotal& bytes,
                      wchar_t (&line)[MemoryLineCapacity]);

// Each writes its line in the user's language and answers false, with the line empty, when the system does
// not tell.
bool ProgramMemoryLine(wchar_t (&line)[MemoryLineCapacity]);
bool DataStoreLine(wchar_t (&line)[MemoryLineCapacity]);
bool StorageCardLine(int index, wchar_t (&line)[MemoryLineCapacity]);
