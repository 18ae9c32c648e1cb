#pragma once

// The search rule of names and lines, step by step as it is written, over a table of its own: what FindWide
// and FindBytes are compared with.

#include <cstdint>
#include <string>
#include <vector>

class PlainFind {
  public:
    static constexpr int None = -1;

    // The position of the occurrence, or None.
    int Wide(const std::vector<std::uint16_t>& text, const std::vector<std::uint16_t>& pattern);
    int Bytes(const std::string& text, const std::string& pattern);

    // The table as it is before the first call.
    void Clear();

    // All 65,536 + 256 entries, carried from call to call.
    const std::vector<std::int32_t>& Table() const { return table_; }

    // Since the beginning, or since Clear.
    bool HasSearchedUnits() const { return hasSearchedUnits_; }

  private:
    std::vector<std::int32_t> table_ = std::vector<std::int32_t>(65536 + 256, 0);
    bool hasSearchedUnits_ = false;
};
