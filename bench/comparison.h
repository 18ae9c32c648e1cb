#pragma once

// The program's way of doing something against the bare way, run in turns so that both meet the same machine.

#include <functional>
#include <string>

struct Comparison {
    std::string name;
    std::function<void()> ours;
    std::function<void()> bare;
    // Done after each of the two, and not measured.
    std::function<void()> tidyUp = [] {};
};

// Milliseconds by the system's finest clock.
[[nodiscard]] double MillisecondsNow();

// Runs both once unmeasured and then `runs` times in turns, and prints one line: the best time of each in
// milliseconds, the ratio of the two, and the ratio of the medians.
void MeasureAndPrint(const Comparison& comparison, int runs);

// A line of the same table for what was measured in another way. Both numbers alike are milliseconds or
// counts.
void PrintLine(const std::string& name, double ours, double bare);

// The heading of those lines.
void PrintHeading();
