// The one routine that the program's process and the test's have in common.

#include "tests/support/probe/journal.h"
#include "tests/support/probe/probe_protocol.h"

namespace probe {
namespace {

void Put(Journal& journal, wchar_t unit) {
    if (journal.length < JournalCapacity) {
        journal.text[journal.length++] = unit;
    } else {
        journal.isFull = TRUE;
    }
}

}  // namespace

void AppendTo(Journal& journal, std::initializer_list<std::wstring_view> fields) {
    for (const std::wstring_view field : fields) {
        for (const wchar_t unit : field)
            Put(journal, unit);
        Put(journal, FieldEnd);
    }
    Put(journal, RecordEnd);
}

}  // namespace probe
