# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# Running one test program where it belongs, by ./test and by ctest: its log, its line of results, its status. Where
# each runs is declared in cmake/test_places.cmake.

logDir=$buildDir/test-logs
programDeadline=${QUORIN_TEST_DEADLINE:-240}
testFilter=${QUORIN_TEST_FILTER:-*}

# No zone of the machine's: nine hours ahead of UTC, so that a mix-up of the two cannot pass unseen.
testZone=JST-9

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
    printf '%-18s %-26s %5d passed %3d failed %3d s\n' "$1" "$2" "$passed" "$failed" "$3"
}

# run_tests PLACE PROGRAM COMMAND WORD...: runs one program, writes its log and one line of results. Status 1 when
# a test failed, 2 when the program itself did, so that the caller makes its world anew.
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
    ((failed > 0)) || return 0
    printf -- '--- %s, %s: %s\n%s\n---\n' "$place" "$program" "${tallyNote:-tests failed}" "$(failure_report "$log")"
    [[ -z $tallyNote ]] || return 2
    return 1
}

# takes_real_input PROGRAM: whether pointer and keys of the system reach it; so do they in some tests of the whole
# program.
takes_real_input() {
    [[ $1 == hands_* || $1 == program_* ]]
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

# is_world PLACE: the other places are this machine itself.
is_world() {
    [[ $1 == en-* || $1 == ja-* ]]
}

# The beginning of all worlds' names: ctest's lie beside those of ./test.
worldsOf='test'

# name_world PLACE: sets language, screen, world and scratchDevice, which is the device's root there.
name_world() {
    IFS=- read -r language screen _ <<<"$1"
    world=$prefixDir/$worldsOf-$1
    scratchDevice=$buildDir/$worldsOf-device-$1
}

# tell_world PLACE: what a test program is told of its world.
tell_world() {
    wine_environment "$world" "$language"
    export TZ=$testZone QUORIN_WORLD_LANGUAGE=$language QUORIN_WORLD_SCREEN=$screen
    case $1 in
        *-[01]) export QUORIN_WORLD_OVERRIDE=${1##*-} ;;
        *) unset QUORIN_WORLD_OVERRIDE ;;
    esac
}

# open_world PLACE: a fresh world with an empty device, until the end of the subshell.
open_world() {
    name_world "$1"
    rm -rf "$scratchDevice"
    mkdir -p "$scratchDevice"
    make_world "$world" "$language" "$screen"
    map_drives "$world" "$scratchDevice"
    tell_world "$1"
    start_screen "$screen"
    at_exit stop_wine
    open_desktop "$screen"
}

# run_in_world PLACE PROGRAM: a program that failed as a whole may leave others behind, so all are ended then.
run_in_world() {
    local status=0
    (cd "$scratchDevice" && run_tests "$1" "$2" "$wine" "P:\\tests\\$2.exe") || status=$?
    if ((status > 1)); then
        stop_wine
        open_desktop "$screen"
    fi
    return "$status"
}

# run_here PROGRAM: one that is compiled for this machine, with sanitizers.
run_here() (
    local scratch
    arm_cleanups
    scratch=$(mktemp -d "$buildDir/native-tests.XXXXXX")
    at_exit rm -rf "$scratch"
    cd "$scratch" || exit
    TZ=$testZone run_tests native "$1" "$buildDir/native/tests/$1"
)

# run_script SCRIPT: one of the scripts' own tests.
run_script() {
    run_tests scripts "$1" bash "$root/tests/tools/$1.sh"
}

# run_at PLACE PROGRAM: status 0 when all its tests passed. A world must be open.
run_at() {
    case $1 in
        native) run_here "$2" ;;
        scripts) run_script "$2" ;;
        *) run_in_world "$1" "$2" ;;
    esac
}
