# shellcheck shell=bash disable=SC2034 # variables are for the tests
# What the scripts' tests share: each test is a function, run in a subshell of its own, and reported in the words
# that the other test programs use. A test fails at the first `expect` that does not hold.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# expect_equal WHAT EXPECTED ACTUAL
expect_equal() {
    [[ $2 == "$3" ]] && return
    printf '%s\n expected: %s\n but was:  %s\n' "$1" "$2" "$3"
    exit 1
}

# expect_match WHAT PATTERN ACTUAL: the pattern is a glob.
expect_match() {
    # shellcheck disable=SC2053 # a pattern on purpose
    [[ $3 == $2 ]] && return
    printf '%s\n expected: %s\n but was:  %s\n' "$1" "$2" "$3"
    exit 1
}

# expect_that WHAT COMMAND WORD...: the command succeeds.
expect_that() {
    local what=$1
    shift
    "$@" && return
    printf 'it does not hold that %s\n' "$what"
    exit 1
}

# run_test_functions SUITE: all functions whose names begin with test_, in alphabetical order.
run_test_functions() {
    local suite=$1 name began verdict ran=0 failures=0
    while read -r name; do
        printf '[ RUN      ] %s.%s\n' "$suite" "${name#test_}"
        rm -rf "${scratch:?}"/*
        began=$(date +%s%3N)
        verdict='[       OK ]'
        ("$name") || {
            verdict='[  FAILED  ]'
            failures=$((failures + 1))
        }
        printf '%s %s.%s (%d ms)\n' "$verdict" "$suite" "${name#test_}" "$(($(date +%s%3N) - began))"
        ran=$((ran + 1))
    done < <(compgen -A function test_ | sort)
    printf '[==========] %d tests from 1 test suite ran.\n' "$ran"
    exit "$((failures > 0))"
}
