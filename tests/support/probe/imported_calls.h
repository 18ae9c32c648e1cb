#pragma once

// The calls that the program has imported from the system's libraries.

#include <windows.h>

namespace probe {

// Where the program keeps the address of the call of this name, whatever library it is from; null where it
// imports no such call.
ULONGLONG* FindImportedCall(const char* name);

void PutCall(ULONGLONG& address, const void* routine);

// Puts a routine in the place of the call of this name; false where the program imports no such call.
bool ReplaceImportedCall(const char* name, void* replacement);

}  // namespace probe
