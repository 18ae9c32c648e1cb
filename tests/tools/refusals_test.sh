#!/bin/bash
# What tools/refusals answers to a wrong command line, and the table that it makes.
# shellcheck disable=SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"
source "$root/tools/lib/common.sh"
buildDir=$scratch
source "$root/tools/lib/refusals.sh"
refusalPage=$scratch/page.md

# expect_refusal TEXT WORD...
expect_refusal() {
    local text=$1 status=0
    shift
    bash "$root/tools/refusals" "$@" >"$scratch/out" 2>"$scratch/err" </dev/null || status=$?
    expect_equal "status of tools/refusals $*" 2 "$status"
    expect_match "what tools/refusals $* says" "*$text*" "$(<"$scratch/err")"
}

test_what_is_no_name_of_a_call_is_refused() {
    expect_refusal "not a name of a call: '1 2'" '1 2'
    expect_refusal "unknown option '--all'" --all
    expect_refusal 'one call at most' one two
}

test_a_call_has_one_line_with_its_codes_and_the_numbers_of_its_outcomes() {
    printf 'noise\nREFUSAL|%s\r\n' 'Move|5|once|rename|told: Error Move file 5' \
        'Move|32|once|rename|goes on' 'Move|5|once|search|not reached' 'Move|19|once|rename|told: Error Move file 19' \
        'Move|5|from then on|rename|goes on' 'Read|23|once|search|goes on' >"$scratch/log"
    expect_equal 'the lines of the table' '| `Move` | 19, 32, 5 | 3 | told: Error Move file N (2); goes on (1) | 1 | goes on |
| `Read` | 23 | 1 | goes on | 0 | - |' \
        "$(outcomes_of "$scratch/log" | refusal_table | tail -n +3)"
}

test_the_table_stands_between_its_marks_and_nothing_else_changes() {
    printf '%s\n' before '<!-- what tools/refusals writes -->' old '<!-- end of what tools/refusals writes -->' after \
        >"$refusalPage"
    echo '| new |' >"$scratch/table"
    write_refusals "$scratch/table" '1 May 2026'
    expect_equal 'the page' "$(printf '%s\n' before '<!-- what tools/refusals writes -->' '' '1 May 2026' '' '| new |' '' \
        '<!-- end of what tools/refusals writes -->' after)" "$(<"$refusalPage")"
}

run_test_functions Refusals
