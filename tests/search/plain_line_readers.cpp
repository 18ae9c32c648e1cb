#include "tests/search/plain_line_readers.h"

#include <cctype>

std::string PlainReadLineExact(int size, PlainFile& file) {
    std::string stored;
    int steps = size - 1;
    while (steps-- > 0) {
        const int byte = file.Get();
        if (byte == -1) return stored;
        if (byte != 13) stored += static_cast<char>(byte);
        if (byte == 10) return stored;
    }
    return stored;
}

std::string PlainReadLineUpper(int size, PlainFile& file, bool doubleByteAware) {
    std::string stored;
    int steps = size - 2;
    while (steps-- > 0) {
        const int byte = file.Get();
        if (byte == -1 || byte == 10) return stored;
        if (byte == 13) continue;
        const bool lead = (byte > 0x80 && byte < 0xA0) || (byte > 0xDF && byte < 0xFE);
        if (doubleByteAware && lead) {
            const int trail = file.Get();
            if (trail == -1) return stored;
            stored += static_cast<char>(byte);
            stored += static_cast<char>(trail);
        } else {
            // The tests run in the C library's default locale.
            stored += static_cast<char>(std::toupper(byte));
        }
    }
    return stored;
}
