#include "bench/comparison.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "platform/system_types.h"

namespace {

double MillisecondsOf(const std::function<void()>& work, const std::function<void()>& tidyUp) {
    const double begin = MillisecondsNow();
    work();
    const double end = MillisecondsNow();
    tidyUp();
    return end - begin;
}

}  // namespace

double MillisecondsNow() {
    LARGE_INTEGER frequency;
    LARGE_INTEGER now;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&now);
    return 1000.0 * static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

void PrintHeading() {
    std::printf("%-52s %10s %10s %7s %8s\n", "program / bare", "best", "best", "ratio", "medians");
}

void PrintLine(const std::string& name, double ours, double bare) {
    std::printf("%-52s %10.1f %10.1f %7.2f\n", name.c_str(), ours, bare, ours / bare);
    std::fflush(stdout);
}

void MeasureAndPrint(const Comparison& comparison, int runs) {
    MillisecondsOf(comparison.bare, comparison.tidyUp);
    MillisecondsOf(comparison.ours, comparison.tidyUp);
    std::vector<double> ours;
    std::vector<double> bare;
    for (int run = 0; run < runs; ++run) {
        bare.push_back(MillisecondsOf(comparison.bare, comparison.tidyUp));
        ours.push_back(MillisecondsOf(comparison.ours, comparison.tidyUp));
    }
    std::sort(ours.begin(), ours.end());
    std::sort(bare.begin(), bare.end());
    const std::size_t middle = ours.size() / 2;
    std::printf("%-52s %10.1f %10.1f %7.2f %8.2f\n", comparison.name.c_str(), ours[0], bare[0],
                ours[0] / bare[0], ours[middle] / bare[middle]);
    std::fflush(stdout);
}
