#pragma once

// The calls that the program has imported from the system's libraries.

namespace probe {

// Puts a routine in the place of the call of this name, whatever library it is from; false where the program
// imports no such call.
bool ReplaceImportedCall(const char* name, void* replacement);

}  // namespace probe
