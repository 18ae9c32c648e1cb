#pragma once

// The shell's names for kinds of files ("Text Document"). A question costs more than the whole rest of a row,
// so the shell is asked once for each extension, just as it is written: what it says for ".TXT" may be
// another name than that for ".txt", and two extensions of one registered type may have two.

#include <string>
#include <vector>

#include "platform/system_types.h"

class TypeNames {
  public:
    // The type name of the file at this path, empty for some types. Empty, and asked for again next time,
    // where the shell has no answer. The text lives until the next call.
    [[nodiscard]] const wchar_t* Of(const wchar_t* fullPath, DWORD attributes);

  private:
    struct Name {
        std::wstring key;  // what KeyOf makes of a path
        std::wstring text;
    };

    // In the order of the keys: a few dozen as a rule, and 4 KB less of the program than a hash table.
    std::vector<Name> names_;
};
