#!/bin/bash
# The counting of test results: nothing that went wrong may be counted as a success.
# shellcheck disable=SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"
source "$root/tools/lib/tally.sh"

# log LINE...: a test program's output.
log() {
    printf '%s\n' "$@" >"$scratch/log"
}

# counts STATUS NEEDS_TESTS: the three numbers.
counts() {
    tally "$scratch/log" "$1" "$2"
    printf '%d %d %d' "$passed" "$failed" "$skipped"
}

good='[       OK ] Suite.good (0 ms)'
bad='[  FAILED  ] Suite.bad (12 ms)'
left='[  SKIPPED ] Suite.left (0 ms)'

test_each_kind_of_result_is_counted() {
    log '[ RUN      ] Suite.good' "$good" "$bad" "$left" '[==========] 3 tests from 1 test suite ran. (12 ms total)' \
        '[  PASSED  ] 1 test.' '[  SKIPPED ] 1 test, listed below:' '[  SKIPPED ] Suite.left' \
        '[  FAILED  ] 1 test, listed below:' '[  FAILED  ] Suite.bad'
    expect_equal 'passed, failed, skipped' '1 1 1' "$(counts 1 yes)"
}

test_a_result_behind_other_output_on_its_line_is_counted() {
    log "some words without an end $good" '[==========] 1 test from 1 test suite ran. (0 ms total)'
    expect_equal 'passed, failed, skipped' '1 0 0' "$(counts 0 yes)"
}

test_a_failure_with_a_parameter_is_counted() {
    log '[  FAILED  ] Suite.bad/1, where GetParam() = 7 (3 ms)' '[==========] 1 test from 1 test suite ran. (3 ms total)'
    expect_equal 'passed, failed, skipped' '0 1 0' "$(counts 1 yes)"
}

test_a_crash_is_a_failure_beside_what_ran_before() {
    log "$good" '[ RUN      ] Suite.crashing'
    expect_equal 'passed, failed, skipped' '1 1 0' "$(counts 5 yes)"
}

test_an_early_end_with_status_0_is_a_failure() {
    log "$good" '[ RUN      ] Suite.leaving'
    expect_equal 'passed, failed, skipped' '1 1 0' "$(counts 0 yes)"
}

test_a_program_that_does_not_end_is_a_failure() {
    log "$good" '[==========] 1 test from 1 test suite ran. (0 ms total)'
    expect_equal 'passed, failed, skipped' '1 1 0' "$(counts 124 yes)"
}

test_a_program_that_cannot_start_is_a_failure() {
    : >"$scratch/log"
    expect_equal 'passed, failed, skipped' '0 1 0' "$(counts 127 yes)"
}

test_a_bad_status_after_good_tests_is_a_failure() {
    log "$good" '[==========] 1 test from 1 test suite ran. (0 ms total)'
    expect_equal 'passed, failed, skipped' '1 1 0' "$(counts 1 yes)"
}

test_a_missing_result_is_a_failure() {
    log "$good" '[==========] 2 tests from 1 test suite ran. (0 ms total)'
    expect_equal 'passed, failed, skipped' '1 1 0' "$(counts 0 yes)"
}

test_no_test_at_all_is_a_failure_unless_a_filter_chose() {
    log '[==========] 0 tests from 0 test suites ran. (0 ms total)'
    expect_equal 'without a filter' '0 1 0' "$(counts 0 yes)"
    expect_equal 'with a filter' '0 0 0' "$(counts 0 no)"
}

run_test_functions Tally
