#include "tests/search/plain_find.h"

#include <algorithm>
#include <cstddef>

namespace {

// The fourth step of the rule; `entry` answers the table's entry for one element of the text.
template <typename Sequence, typename Entry>
int Scan(const Sequence& text, const Sequence& pattern, Entry entry) {
    const auto n = static_cast<std::int64_t>(text.size());
    const auto m = static_cast<std::int64_t>(pattern.size());
    if (m == 0) return PlainFind::None;
    std::int64_t i = m - 1;
    if (i >= n) return PlainFind::None;
    while (i < n) {
        std::int64_t j = m - 1;
        while (text.at(static_cast<std::size_t>(i)) == pattern.at(static_cast<std::size_t>(j))) {
            if (j == 0) return static_cast<int>(i);
            i -= 1;
            j -= 1;
        }
        const std::int64_t s = entry(text.at(static_cast<std::size_t>(i)));
        if (s > m - j) {
            i += s;
        } else {
            i += m - j;
        }
    }
    return PlainFind::None;
}

std::size_t ByteIndex(char byte) {
    const int value = static_cast<unsigned char>(byte);
    const int asSigned = value >= 0x80 ? value - 0x100 : value;
    return static_cast<std::size_t>(65536 + asSigned);
}

}  // namespace

// Searches of bytes alone leave most of the table as it was.
void PlainFind::Clear() {
    std::fill(table_.begin() + (hasSearchedUnits_ ? 0 : 65536 - 128), table_.end(), 0);
    hasSearchedUnits_ = false;
}

int PlainFind::Wide(const std::vector<std::uint16_t>& text, const std::vector<std::uint16_t>& pattern) {
    hasSearchedUnits_ = true;
    const auto m = static_cast<std::int32_t>(pattern.size());
    for (std::size_t unit = 0; unit < 65536; ++unit)
        table_.at(unit) = m;
    for (std::int32_t i = 0; i <= m - 2; ++i)
        table_.at(pattern.at(static_cast<std::size_t>(i))) = m - 1 - i;
    return Scan(text, pattern, [this](std::uint16_t unit) { return table_.at(unit); });
}

int PlainFind::Bytes(const std::string& text, const std::string& pattern) {
    const auto m = static_cast<std::int32_t>(pattern.size());
    for (std::size_t index = 0; index < 256; ++index)
        table_.at(65536 + index) = m;
    for (std::int32_t i = 0; i <= m - 2; ++i) {
        table_.at(ByteIndex(pattern.at(static_cast<std::size_t>(i)))) = m - 1 - i;
    }
    return Scan(text, pattern, [this](char byte) { return table_.at(ByteIndex(byte)); });
}
