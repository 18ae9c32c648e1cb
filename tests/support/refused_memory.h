#pragma once

// Memory that gives out when a test wants it to. It replaces the memory of the whole program, so a test
// program that links `refused_memory` stands alone. Only allocations that may fail are ever refused.

#include <limits>

// Refuses some of the allocations made while it lives.
class RefusedMemory {
  public:
    static constexpr int AllBehind = std::numeric_limits<int>::max();

    // Of the allocations from now on, the one counted as `first` from 1, and those up to `last`.
    explicit RefusedMemory(int first = 1, int last = AllBehind);
    // The one alone.
    [[nodiscard]] static RefusedMemory Only(int number) { return RefusedMemory(number, number); }
    RefusedMemory(const RefusedMemory&) = delete;
    RefusedMemory& operator=(const RefusedMemory&) = delete;
    ~RefusedMemory();

    // The allocations that have been asked for since it was made.
    [[nodiscard]] int Asked() const;
};
