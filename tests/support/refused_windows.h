#pragma once

// Windows that cannot be created: of those that the calling thread makes while this object lives, whoever
// makes them, dialogs and their controls among them, some are refused as by a system that has run out of
// them.

#include <windows.h>

#include <limits>

class RefusedWindows {
  public:
    static constexpr int AllBehind = std::numeric_limits<int>::max();

    // The one counted as `first` from 1, and those up to `last`. Only one such object may live at a time.
    explicit RefusedWindows(int first = 1, int last = AllBehind);
    // The one alone.
    [[nodiscard]] static RefusedWindows Only(int number) { return RefusedWindows(number, number); }
    ~RefusedWindows();
    RefusedWindows(const RefusedWindows&) = delete;
    RefusedWindows& operator=(const RefusedWindows&) = delete;

    // Whether the first of them was asked for.
    [[nodiscard]] bool HasRefused() const;

  private:
    HHOOK hook_;
};
