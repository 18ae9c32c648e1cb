#!/bin/bash
# Times in zones all over the world and in the nights of summer time's changes, and letters on systems of other
# languages than the two of the program: tests/places/, and beside it the tests of everything that folds or compares
# letters, in one world on one screen.
# shellcheck disable=SC1090,SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"
for part in common setup screen prefix world tally lanes; do
    source "$root/tools/lib/$part.sh"
done
# Its name is that of a test.
unset -f test_programs

# What folds, compares, writes or reads letters and numbers, by its own tests.
letterTests=(
    platform_names_tests '*'
    search_query_tests '*'
    results_tests 'SortTexts*:CompareTexts*:FileTypeTable*'
    conditions_tests 'HistoryCombo*'
)

# run_here PROGRAM FILTER: status 1 and the report of what failed when anything did, or when nothing ran.
run_here() {
    local log=$scratch/$1.log status=0
    (cd "$scratchDevice" && timeout -k 10 120 "$wine" "P:\\tests\\$1.exe" --gtest_color=no --gtest_filter="$2") \
        </dev/null >"$log" 2>&1 || status=$?
    sed -i 's/\r$//' "$log"
    tally "$log" "$status" yes
    ((failed > 0)) || return 0
    printf '%s: %s\n%s\n' "$1" "${tallyNote:-tests failed}" "$(failure_report "$log")"
    return 1
}

# minutes_ahead ZONE: as the C library of this machine has it, at present.
minutes_ahead() {
    local offset
    offset=$(TZ=$1 date +%z)
    printf '%d' "${offset:0:1}$((10#${offset:1:2} * 60 + 10#${offset:3:2}))"
}

# expect_times ZONE
expect_times() {
    export TZ=$1
    QUORIN_WORLD_ZONE=$(minutes_ahead "$1")
    export QUORIN_WORLD_ZONE
    expect_that "times are right in $1" run_here places_tests '*InPlace.*'
}

# expect_times_of_all ZONE: of the whole program as well.
expect_times_of_all() {
    expect_times "$1"
    expect_that "the program is right in $1" run_here places_whole_tests 'WholeInPlace.*'
}

# expect_language NAME: the whole system's language. The C library's description of it lies in a folder of the test's.
expect_language() {
    localedef -i "$1" -f UTF-8 "$scratch/$1.UTF-8" 2>/dev/null
    stop_wine
    # The shell, which keeps its own, says that it cannot follow.
    { export LOCPATH=$scratch LANG=$1.UTF-8 LC_ALL=$1.UTF-8; } 2>/dev/null
    open_desktop "$QUORIN_WORLD_SCREEN"
    expect_that "the language is right with $1" run_here places_tests '*InPlace.*'
    expect_that "the program is right with $1" run_here places_whole_tests 'WholeInPlace.*'
}

# expect_letters: in the language that is in force.
expect_letters() {
    local number
    for ((number = 0; number < ${#letterTests[@]}; number += 2)); do
        expect_that 'letters are right' run_here "${letterTests[@]:number:2}"
    done
}

test_three_and_a_half_hours_behind_in_newfoundland() { expect_times_of_all America/St_Johns; }
test_ten_hours_behind_in_hawaii() { expect_times Pacific/Honolulu; }
test_five_and_a_half_hours_ahead_in_india() { expect_times Asia/Kolkata; }
test_fourteen_hours_ahead_on_the_line_islands() { expect_times_of_all Pacific/Kiritimati; }
test_central_europe_with_its_summer_time() { expect_times_of_all Europe/Berlin; }

# day_of_year DAYS: counted from today, without 29 February, as rules for zones count them.
day_of_year() {
    local day
    day=$(date -u -d "$1 days" +%-j)
    (($(date -u -d "$1 days" +%-Y) % 4 > 0 || day < 60)) || day=$((day - 1))
    echo "J$day"
}

test_summer_time_at_present() { expect_times "WIN3SUM,$(day_of_year -40)/2,$(day_of_year 40)/2"; }
test_summer_time_that_ended_last_night() { expect_times "WIN-2SUM,$(day_of_year -100)/2,$(day_of_year -1)/0"; }
test_summer_time_that_begins_tomorrow_night() { expect_times "WIN-2SUM,$(day_of_year 2)/2,$(day_of_year 100)/2"; }

test_a_turkish_system() {
    expect_language tr_TR
    expect_letters
}
test_a_german_system() { expect_language de_DE; }
test_an_arabic_system() { expect_language ar_EG; }
test_a_chinese_system() { expect_language zh_CN; }

arm_cleanups
at_exit rm -rf "$scratch"
worldsOf='places'
open_world en-240x320
at_exit rm -rf "$WINEPREFIX" "$scratchDevice"
run_test_functions Places
