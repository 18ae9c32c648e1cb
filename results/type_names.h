#pragma once

// The shell's names for kinds of files ("Text Document"). Asking costs more than the rest of a row, so the
// shell is asked once for each extension as it is spelled: ".TXT" may have another name than ".txt", and two
// extensions of one registered type may have two names.

#include <string>
#include <vector>

#include "platform/system_types.h"

class TypeNames {
  public:
    // The type name of the file at this path, empty for some types. If the shell has no answer it is empty
    // and asked for again next time. The text is valid until the next call.
    [[nodiscard]] const wchar_t* Of(const wchar_t* fullPath, DWORD attributes);

  private:
    struct Name {
        std::wstring key;  // what KeyOf makes of a path
        std::wstring text;
    };

    // Sorted by key. A few dozen entries as a rule; a hash table would make the program 4 KB larger.
    std::vector<Name> names_;
};
