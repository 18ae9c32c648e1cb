#pragma once

// Every target of the fuzzer: a function that takes one input and throws a Finding where a rule does not
// hold.

#include "fuzz/fuzz_input.h"

void FuzzContentSearch(FuzzInput& input);
void FuzzLineReaders(FuzzInput& input);

struct FuzzTarget {
    // The name of the source and of the corpus.
    const char* name;
    void (*run)(FuzzInput& input);
};

inline constexpr FuzzTarget FuzzTargets[] = {
    {"content_search", FuzzContentSearch},
    {"line_readers", FuzzLineReaders},
};
