#pragma once

// A fixed generator, the same on every system: a seed repeats a run.

#include <cstddef>
#include <cstdint>

class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed) {}
    // Independent of its neighbours: what one step takes changes no other.
    Random(std::uint64_t seed, std::uint64_t life, std::uint64_t step)
        : state_(Mixed(Mixed(Mixed(seed) + life) + step)) {}

    std::uint64_t Next() { return Mixed(state_ += Odd); }
    // 0 up to one below; 0 for nothing to choose from.
    int Below(std::size_t count) { return count == 0 ? 0 : static_cast<int>(Next() % count); }
    int Between(int first, int last) { return first + Below(static_cast<std::size_t>(last - first) + 1); }
    bool Chance(int percent) { return Below(100) < percent; }

    template <typename List>
    const auto& Of(const List& list) {
        return list[static_cast<std::size_t>(Below(std::size(list)))];
    }

  private:
    static constexpr std::uint64_t Odd = 0x9E3779B97F4A7C15u;

    static std::uint64_t Mixed(std::uint64_t value) {
        value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9u;
        value = (value ^ (value >> 27)) * 0x94D049BB133111EBu;
        return value ^ (value >> 31);
    }

    std::uint64_t state_;
};
