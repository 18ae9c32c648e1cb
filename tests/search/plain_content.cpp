#include "tests/search/plain_content.h"

#include "tests/search/plain_line_readers.h"

PlainContentAnswer PlainContentSearch(PlainFind& find, const std::string& bytes,
                                      const ContentPattern& pattern) {
    PlainFile file{bytes};
    PlainContentAnswer answer = {false, 0};
    const std::string sought(pattern.bytes, pattern.length);
    for (;;) {
        const std::string line = pattern.folding ? PlainReadLineUpper(4096, file, pattern.doubleByteAware)
                                                 : PlainReadLineExact(4096, file);
        if (line.empty()) return answer;
        ++answer.lines;
        // Up to the line's first NUL.
        if (find.Bytes(line.c_str(), sought) != PlainFind::None) {
            answer.found = true;
            return answer;
        }
    }
}
