#pragma once

// Every target of the fuzzer: a function that takes one input and throws a Finding where a rule does not
// hold.

#include "fuzz/fuzz_input.h"

void FuzzCommandLines(FuzzInput& input);
void FuzzContainers(FuzzInput& input);
void FuzzContentSearch(FuzzInput& input);
void FuzzDates(FuzzInput& input);
void FuzzDialogs(FuzzInput& input);
void FuzzFileOperations(FuzzInput& input);
void FuzzLineReaders(FuzzInput& input);
void FuzzMenuBars(FuzzInput& input);
void FuzzNames(FuzzInput& input);
void FuzzPaths(FuzzInput& input);
void FuzzQueries(FuzzInput& input);
void FuzzRegistryValues(FuzzInput& input);
void FuzzShortcuts(FuzzInput& input);
void FuzzSizes(FuzzInput& input);
void FuzzTextConversion(FuzzInput& input);
void FuzzWalks(FuzzInput& input);

struct FuzzTarget {
    // The name of the source and of the corpus.
    const char* name;
    void (*run)(FuzzInput& input);
};

inline constexpr FuzzTarget FuzzTargets[] = {
    {"command_lines", FuzzCommandLines},
    {"containers", FuzzContainers},
    {"content_search", FuzzContentSearch},
    {"dates", FuzzDates},
    {"dialogs", FuzzDialogs},
    {"file_operations", FuzzFileOperations},
    {"line_readers", FuzzLineReaders},
    {"menu_bars", FuzzMenuBars},
    {"names", FuzzNames},
    {"paths", FuzzPaths},
    {"queries", FuzzQueries},
    {"registry_values", FuzzRegistryValues},
    {"shortcuts", FuzzShortcuts},
    {"sizes", FuzzSizes},
    {"text_conversion", FuzzTextConversion},
    {"walks", FuzzWalks},
};
