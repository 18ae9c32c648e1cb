#pragma once

// No test may hang: one that runs longer than its deadline ends the whole test program with a message that
// names it, and a status that says failure.

#include <gtest/gtest.h>

// Watches the tests that are run from now on, each for at most this long.
void WatchTests(int secondsPerTest);
