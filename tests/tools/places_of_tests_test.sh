#!/bin/bash
# Where the tests run: ./test and ctest run the same, every place is taken once, and nothing that failed passes.
# shellcheck disable=SC1090,SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"
for part in common setup screen prefix world tally lanes; do
    source "$root/tools/lib/$part.sh"
done

# names_of CTEST WORD...: the tests that ctest would run, but for the opening and closing of worlds.
names_of() {
    (cd "$root" && ctest -N "$@") | sed -n 's|^ *Test *#[0-9]*: ||p' | grep -v '/open$\|/close$' | sort
}

presets() {
    (cd "$root" && ctest --list-presets) | sed -n 's|^ *"\([^"]*\)".*|\1|p'
}

test_ctest_has_the_tests_of_the_list_that_dot_test_reads() {
    local preset
    for preset in native release; do
        expect_equal "tests of $preset" "$(tests_of "$preset" | tr ' ' / | sort)" "$(names_of --preset "$preset")"
    done
}

test_the_kinds_are_together_all_that_is_not_native() {
    local preset
    expect_equal 'tests of all kinds' "$(names_of --preset release)" \
        "$(for preset in scripts windows program hands; do names_of --preset "$preset"; done | sort)"
}

test_every_preset_chooses_tests() {
    local preset
    expect_that 'there are presets' test -n "$(presets)"
    for preset in $(presets); do
        expect_that "$preset chooses tests" test -n "$(names_of --preset "$preset")"
    done
}

test_the_worlds_are_all_that_is_neither_native_nor_a_scripts_test() {
    local preset
    expect_equal 'tests of all worlds' "$(names_of --preset release -LE '^scripts$')" \
        "$(for preset in {en,ja}-{240x320,640x240}; do names_of --preset "$preset"; done | sort)"
}

test_every_script_here_is_a_test() {
    expect_equal 'scripts' "$(cd "$root/tests/tools" && printf 'scripts/%s\n' *_test.sh | sed 's/\.sh$//' | sort)" \
        "$(names_of --preset scripts)"
}

test_each_place_is_taken_once_and_those_that_take_longest_first() {
    all_tests() {
        printf '%s\n' 'native a_tests' 'en-240x320-0 b_tests' 'ja-640x240 c_tests' 'ja-640x240 d_tests' \
            'ja-640x240-hands e_tests' 'scripts f_test' 'native g_tests'
    }
    expect_equal 'places' 'ja-640x240-hands scripts ja-640x240 native en-240x320-0' "$(places | paste -sd' ')"
}

# run_told STATUS LINE...: a program that prints these lines and ends with that status; prints the status of its run.
run_told() {
    local status=$1 result=0
    shift
    logDir=$scratch/logs
    printf '%s\n' "$@" >"$scratch/lines"
    printf '#!/bin/bash\ncat %q\nexit %d\n' "$scratch/lines" "$status" >"$scratch/program"
    chmod +x "$scratch/program"
    run_tests place some_tests "$scratch/program" >"$scratch/said" || result=$?
    printf '%d' "$result"
}

sum='[==========] 1 test from 1 test suite ran. (0 ms total)'

test_a_program_whose_tests_all_passed_passes() {
    expect_equal 'status' 0 "$(run_told 0 '[       OK ] Suite.good (0 ms)' "$sum")"
}

test_a_failed_test_fails_its_program_and_is_shown() {
    expect_equal 'status' 1 "$(run_told 1 '[ RUN      ] Suite.bad' 'the reason' '[  FAILED  ] Suite.bad (0 ms)' "$sum")"
    expect_that 'the reason is shown' grep -q 'the reason' "$scratch/said"
}

test_a_program_that_crashed_asks_for_a_new_world() {
    expect_equal 'status' 2 "$(run_told 5 '[ RUN      ] Suite.crashing')"
}

test_a_program_without_tests_fails() {
    expect_equal 'status' 2 "$(run_told 0 '[==========] 0 tests from 0 test suites ran. (0 ms total)')"
}

run_test_functions PlacesOfTests
