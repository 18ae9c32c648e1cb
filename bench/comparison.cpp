#include "bench/comparison.h"

#include <algorithm>
#include <cstdio>

#include "platform/system_types.h"

namespace {

// The middle of the sorted numbers, and the bounds of their middle half.
struct Spread {
    double low;
    double middle;
    double high;
};

Spread SpreadOf(std::vector<double> numbers) {
    std::sort(numbers.begin(), numbers.end());
    const std::size_t quarter = numbers.size() / 4;
    return {numbers[quarter], numbers[numbers.size() / 2], numbers[numbers.size() - 1 - quarter]};
}

}  // namespace

double MillisecondsNow() {
    LARGE_INTEGER frequency;
    LARGE_INTEGER now;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&now);
    return 1000.0 * static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

double MillisecondsOf(const std::function<void()>& work) {
    const double begin = MillisecondsNow();
    work();
    return MillisecondsNow() - begin;
}

void Pairs::Add(double ours, double bare) {
    pairs_.push_back({ours, bare});
}

void Pairs::Print(const std::string& name, double goal) const {
    if (pairs_.empty()) return;
    std::vector<double> ours;
    std::vector<double> bare;
    std::vector<double> ratios;
    for (const Pair& pair : pairs_) {
        ours.push_back(pair.ours);
        bare.push_back(pair.bare);
        ratios.push_back(pair.ours / pair.bare);
    }
    const Spread ratio = SpreadOf(ratios);
    std::printf("%-54s %9.1f %9.1f %6.2f  %.2f..%.2f", name.c_str(), SpreadOf(ours).middle,
                SpreadOf(bare).middle, ratio.middle, ratio.low, ratio.high);
    if (goal > 0) std::printf("  %5.2f%s", goal, ratio.middle > goal ? " missed" : "");
    std::printf("\n");
    std::fflush(stdout);
}

void PrintHeading() {
    std::printf("%-54s %9s %9s %6s  %-10s  %5s\n", "medians, in milliseconds unless said otherwise",
                "program", "bare", "ratio", "spread", "reach");
}

void Compare(const std::string& name, double goal, int turns, const Side& ours, const Side& bare) {
    static_cast<void>(ours());
    static_cast<void>(bare());
    Pairs pairs;
    double took = 0;
    double tookBarely = 0;
    for (int turn = 0; turn < turns; ++turn) {
        TakeTurn(
            turn, [&] { took = ours(); }, [&] { tookBarely = bare(); });
        pairs.Add(took, tookBarely);
    }
    pairs.Print(name, goal);
}
