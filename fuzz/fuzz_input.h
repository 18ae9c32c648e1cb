#pragma once

// What a target is run with: bytes that the fuzzer makes up, taken apart from the front. Once they are used
// up, everything reads as 0, so that every input means something.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

class FuzzInput {
  public:
    FuzzInput(const std::uint8_t* bytes, std::size_t size) : at_(bytes), end_(bytes + size) {}

    [[nodiscard]] bool IsUsedUp() const { return at_ == end_; }
    [[nodiscard]] std::size_t Left() const { return static_cast<std::size_t>(end_ - at_); }

    std::uint8_t Byte() { return at_ == end_ ? std::uint8_t{0} : *at_++; }
    std::uint16_t Word() {
        const std::uint16_t low = Byte();
        return static_cast<std::uint16_t>(low | Byte() << 8);
    }
    std::uint32_t DoubleWord() {
        const std::uint32_t low = Word();
        return low | std::uint32_t{Word()} << 16;
    }
    bool Flag() { return (Byte() & 1) != 0; }
    // 0 to most, which is below 65,536.
    std::size_t UpTo(std::size_t most) { return (most < 256 ? Byte() : Word()) % (most + 1); }
    template <class Element, std::size_t Count>
    Element OneOf(const Element (&choices)[Count]) {
        return choices[UpTo(Count - 1)];
    }

    // As many as there are, at_ most `most`.
    std::string Bytes(std::size_t most) {
        const std::size_t count = std::min(most, Left());
        std::string taken(reinterpret_cast<const char*>(at_), count);
        at_ += count;
        return taken;
    }

  private:
    const std::uint8_t* at_;
    const std::uint8_t* end_;
};

// A rule that does not hold. The fuzzer keeps the input that led here.
class Finding : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

inline void Require(bool holds, const char* rule) {
    if (!holds) throw Finding(rule);
}

// A terminated text in memory of its very size, so that the sanitizers see a look beyond its end.
template <class Unit>
class ExactText {
  public:
    template <class Text>
    explicit ExactText(const Text& text) : units_(text.begin(), text.end()) {
        units_.push_back(Unit{});
        units_.shrink_to_fit();
    }

    [[nodiscard]] const Unit* Get() const { return units_.data(); }
    [[nodiscard]] Unit* Get() { return units_.data(); }

  private:
    std::vector<Unit> units_;
};
