# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# Running the test programs: those for this machine first, then all lanes at once. Each language has one for the
# programs that use the screen by hand, which mostly wait, and one for all others, each going from screen to
# screen; beside them run the scripts' own tests.

logDir=$buildDir/test-logs
programDeadline=${QUORIN_TEST_DEADLINE:-240}
testFilter='*'

# No zone of the machine's: nine hours ahead of UTC, so that a mix-up of the two cannot pass unseen.
testZone=JST-9

# test_programs PRESET: the names of all that the build declares, whether they could be built or not.
test_programs() {
    ninja -C "$buildDir/$1" -t targets all | sed -n 's|^tests/\([A-Za-z0-9_]*_tests\)\(\.exe\)\{0,1\}: .*|\1|p' | sort -u
}

# check_test_programs PRESET...: a build without tests must not pass for one whose tests passed.
check_test_programs() {
    local preset
    for preset in "$@"; do
        [[ -n $(test_programs "$preset") ]] || fail "the build '$preset' declares no test program"
    done
}

# try_tests LOG FILTER COMMAND WORD...: runs one program once, writes its log and sets what tally sets.
try_tests() {
    local log=$1 filter=$2 status=0 needsTests=yes
    shift 2
    mkdir -p "${log%/*}"
    [[ $filter == '*' ]] || needsTests=no
    timeout -k 10 "$programDeadline" "$@" --gtest_color=no --gtest_filter="$filter" \
        </dev/null >"$log" 2>&1 || status=$?
    sed -i 's/\r$//' "$log"
    tally "$log" "$status" "$needsTests"
}

# report_try PLACE PROGRAM SECONDS: one line of what try_tests has set.
report_try() {
    printf '%-16s %-26s %5d passed %3d failed %3d s\n' "$1" "$2" "$passed" "$failed" "$3"
}

# run_tests PLACE PROGRAM COMMAND WORD...: runs one program, writes its log and one line of results. Status 1 when
# the program itself failed, so that the caller makes its world anew.
run_tests() {
    local place=$1 program=$2 log=$logDir/$1/$2.log began=$SECONDS
    shift 2
    try_tests "$log" "$testFilter" "$@"
    if ((failed > 0)) && takes_real_input "$program"; then
        report_try "$place" "$program" "$((SECONDS - began))"
        try_again "$log" "$@"
    fi
    printf '%d %d %d\n' "$passed" "$failed" "$skipped" >>"$logDir/$place/results"
    report_try "$place" "$program" "$((SECONDS - began))"
    if ((failed > 0)); then
        printf -- '--- %s, %s: %s\n%s\n---\n' "$place" "$program" "${tallyNote:-tests failed}" "$(failure_report "$log")"
    fi
    [[ -z $tallyNote ]]
}

# try_again LOG COMMAND WORD...: what failed is tried once more, and alone: Wine loses a movement of the pointer
# or a key now and then where much else is going on. A program that failed as a whole is tried as a whole. What
# the first try said stays in its log, and is shown.
try_again() {
    local log=$1 again=$testFilter passedBefore=0 skippedBefore=0
    shift
    cp "$log" "${log%.log}.first.log"
    echo "--- once more, since it failed: $(failure_report "$log")"
    if [[ -z $tallyNote ]]; then
        again=$(sed -n 's/^\[  FAILED  \] \([^ ,]*\).* ms)$/\1/p' "$log" | paste -sd:)
        passedBefore=$passed skippedBefore=$skipped
    fi
    try_tests "$log" "$again" "$@"
    passed=$((passed + passedBefore)) skipped=$((skipped + skippedBefore))
}

# run_native_tests: the rules, with sanitizers.
run_native_tests() {
    local program scratch
    scratch=$(mktemp -d "$buildDir/native-tests.XXXXXX")
    at_exit rm -rf "$scratch"
    for program in $(test_programs native); do
        (cd "$scratch" && TZ=$testZone run_tests native "$program" "$buildDir/native/tests/$program") || true
    done
}

# run_script_tests: the scripts' own tests, which no filter chooses from.
run_script_tests() {
    local script
    [[ $testFilter == '*' ]] || return 0
    for script in "$root"/tests/tools/*_test.sh; do
        run_tests scripts "$(basename "$script" .sh)" bash "$script" || true
    done
}

# open_world NAME LANGUAGE SCREEN: the rest of the subshell runs in a fresh world with an empty device.
open_world() {
    local world=$prefixDir/$1-$2-$3
    scratchDevice=$buildDir/$1-device-$2-$3
    shift
    rm -rf "$scratchDevice"
    mkdir -p "$scratchDevice"
    make_world "$world" "$1" "$2"
    map_drives "$world" "$scratchDevice"
    wine_environment "$world" "$1"
    export TZ=$testZone QUORIN_WORLD_LANGUAGE=$1 QUORIN_WORLD_SCREEN=$2
    start_screen "$2"
    at_exit stop_wine
    open_desktop "$2"
}

# run_in_world PLACE PROGRAM: a program that failed as a whole may leave others behind, so all are ended then.
run_in_world() {
    if ! (cd "$scratchDevice" && run_tests "$1" "$2" "$wine" "P:\\tests\\$2.exe"); then
        stop_wine
        open_desktop "$QUORIN_WORLD_SCREEN"
    fi
}

# uses_hands PROGRAM: whether it moves the pointer and presses keys, and so wants a screen for itself.
uses_hands() {
    [[ $1 == hands_* ]]
}

# takes_real_input PROGRAM: whether pointer and keys of the system reach it; so do they in some tests of the whole
# program.
takes_real_input() {
    uses_hands "$1" || [[ $1 == program_* ]]
}

# has_no_window PROGRAM: such programs do not care for the screen and run in a language's first world only.
has_no_window() {
    case $1 in
        search_* | tkconv_* | *_rules_tests | *_allocation_tests | platform_files_tests | platform_names_tests) true ;;
        *) false ;;
    esac
}

# run_world LANGUAGE SCREEN FIRST: every Windows test program that belongs there, but for those by hand.
run_world() (
    local program override place=$1-$2
    arm_cleanups
    open_world test "$1" "$2"
    for program in $(test_programs release); do
        if uses_hands "$program"; then
            continue
        elif [[ $program == program_*tests ]]; then
            for override in 0 1; do
                export QUORIN_WORLD_OVERRIDE=$override
                run_in_world "$place-$override" "$program"
                unset QUORIN_WORLD_OVERRIDE
            done
        elif [[ $3 == yes ]] || ! has_no_window "$program"; then
            run_in_world "$place" "$program"
        fi
    done
    rm -rf "$scratchDevice"
)

# run_hands LANGUAGE SCREEN: every program that uses the screen by hand.
run_hands() (
    local program
    arm_cleanups
    open_world hands "$1" "$2"
    for program in $(test_programs release); do
        if uses_hands "$program"; then run_in_world "$1-$2-hands" "$program"; fi
    done
    rm -rf "$scratchDevice"
)

# run_lane NAME: a language's worlds, by hand or not, or the scripts. Status 1 when a world could not be opened.
run_lane() {
    arm_cleanups
    case $1 in
        scripts)
            run_script_tests
            ;;
        *-hands)
            run_hands "${1%-hands}" 240x320
            run_hands "${1%-hands}" 640x240
            ;;
        *)
            run_world "$1" 240x320 yes
            run_world "$1" 640x240 no
            ;;
    esac
}

allLanes=(en ja en-hands ja-hands scripts)
declare -A lanes=()

# end_lanes: for a run that is broken off.
end_lanes() {
    local lane
    for lane in "${!lanes[@]}"; do
        end_tree "${lanes[$lane]}"
        wait "${lanes[$lane]}" 2>/dev/null || true
    done
}

# run_lanes: all at once. A lane that breaks is one failure more.
run_lanes() {
    local lane
    at_exit end_lanes
    for lane in "${allLanes[@]}"; do
        run_lane "$lane" &
        lanes[$lane]=$!
    done
    for lane in "${allLanes[@]}"; do
        if ! wait "${lanes[$lane]}"; then
            say "the lane '$lane' broke off"
            mkdir -p "$logDir/lane-$lane"
            echo '0 1 0' >"$logDir/lane-$lane/results"
        fi
        unset "lanes[$lane]"
    done
}

# closing_line: adds everything up; status 1 when anything failed or nothing ran.
closing_line() {
    local passed failed skipped
    read -r passed failed skipped < <(cat "$logDir"/*/results 2>/dev/null |
        awk '{ p += $1; f += $2; s += $3 } END { print p + 0, f + 0, s + 0 }')
    if ((passed + failed + skipped == 0)); then
        say "no test was run"
        failed=1
    fi
    printf '%d passed, %d failed' "$passed" "$failed"
    ((skipped == 0)) || printf ', %d skipped' "$skipped"
    printf '\n'
    ((failed == 0))
}
