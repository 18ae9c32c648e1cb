#include "search/double_byte_text.h"

void UpperCaseBytes(char* bytes, bool doubleByteAware) {
    for (char* at = bytes; *at != '\0'; ++at) {
        const auto byte = static_cast<unsigned char>(*at);
        if (doubleByteAware && IsLeadByte(byte)) {
            ++at;
            if (*at == '\0') return;
        } else {
            *at = static_cast<char>(UpperCaseByte(byte));
        }
    }
}
