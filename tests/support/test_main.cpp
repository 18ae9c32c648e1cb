#include <gtest/gtest.h>

#include "tests/support/test_deadline.h"

// Long enough for the slowest test on a busy machine with two cores.
constexpr int SecondsPerTest = 120;

#ifdef _WIN32
int wmain(int argumentCount, wchar_t** arguments) {
#else
int main(int argumentCount, char** arguments) {
#endif
    testing::InitGoogleTest(&argumentCount, arguments);
    WatchTests(SecondsPerTest);
    return RUN_ALL_TESTS();
}
