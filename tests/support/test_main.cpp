#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/support/test_deadline.h"

// Long enough for the slowest test on a busy machine with two cores.
constexpr int SecondsPerTest = 120;

namespace {

// A test that goes on for as long as it is told says so.
int TimeOfTest() {
    const char* const seconds = std::getenv("QUORIN_SECONDS_PER_TEST");
    return seconds != nullptr ? std::atoi(seconds) : SecondsPerTest;
}

}  // namespace

#ifdef _WIN32
int wmain(int argumentCount, wchar_t** arguments) {
#else
int main(int argumentCount, char** arguments) {
#endif
    testing::InitGoogleTest(&argumentCount, arguments);
    WatchTests(TimeOfTest());
    return RUN_ALL_TESTS();
}
