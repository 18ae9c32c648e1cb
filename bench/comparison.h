#pragma once

// The program's way of doing something against the bare way, in pairs of turns. The two take the lead in
// turn, so that neither always meets what the other one has left behind; what counts is the ratio within a
// pair.

#include <functional>
#include <string>
#include <vector>

// Does its side of a comparison once and returns the milliseconds that count.
using Side = std::function<double()>;

// Milliseconds by the system's finest clock.
[[nodiscard]] double MillisecondsNow();

[[nodiscard]] double MillisecondsOf(const std::function<void()>& work);

// What the pairs of one comparison took.
class Pairs {
  public:
    void Add(double ours, double bare);
    // One line: the median of each side, the median of the ratios with the bounds of their middle half, and
    // the ratio to reach; a goal of 0 is none. Two numbers of a kind other than milliseconds do as well.
    void Print(const std::string& name, double goal) const;

  private:
    struct Pair {
        double ours;
        double bare;
    };
    std::vector<Pair> pairs_;
};

// The heading of those lines.
void PrintHeading();

// Calls both: the one first in even turns, the other first in odd ones.
template <typename One, typename Other>
void TakeTurn(int turn, const One& one, const Other& other) {
    if (turn % 2 == 0) one();
    other();
    if (turn % 2 != 0) one();
}

// Runs both once unmeasured, then in pairs, and prints the line.
void Compare(const std::string& name, double goal, int turns, const Side& ours, const Side& bare);
