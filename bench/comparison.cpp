#include "bench/comparison.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "platform/system_types.h"

namespace {

double MillisecondsOf(const std::function<void()>& work) {
    LARGE_INTEGER frequency;
    LARGE_INTEGER begin;
    LARGE_INTEGER end;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&begin);
    work();
    QueryPerformanceCounter(&end);
    return 1000.0 * static_cast<double>(end.QuadPart - begin.QuadPart) /
           static_cast<double>(frequency.QuadPart);
}

}  // namespace

void PrintHeading() {
    std::printf("%-52s %10s %10s %7s %8s\n", "program / bare", "best ms", "best ms", "ratio", "medians");
}

void MeasureAndPrint(const Comparison& comparison, int runs) {
    comparison.bare();
    comparison.ours();
    std::vector<double> ours;
    std::vector<double> bare;
    for (int run = 0; run < runs; ++run) {
        bare.push_back(MillisecondsOf(comparison.bare));
        ours.push_back(MillisecondsOf(comparison.ours));
    }
    std::sort(ours.begin(), ours.end());
    std::sort(bare.begin(), bare.end());
    const std::size_t middle = ours.size() / 2;
    std::printf("%-52s %10.1f %10.1f %7.2f %8.2f\n", comparison.name.c_str(), ours[0], bare[0],
                ours[0] / bare[0], ours[middle] / bare[middle]);
    std::fflush(stdout);
}
