# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# Everything that ./test runs: the places of all tests, a few at once, each one's programs one after the other.

# shellcheck source=tools/lib/test_runs.sh
source "$root/tools/lib/test_runs.sh"

# tests_of PRESET: a line "PLACE PROGRAM" for each test that the build declares, whether it could be built or not.
tests_of() {
    cat "$buildDir/$1/tests.txt" 2>/dev/null || true
}

all_tests() {
    tests_of native
    tests_of release
}

# check_test_programs PRESET...: a build without tests must not pass for one whose tests passed.
check_test_programs() {
    local preset
    for preset in "$@"; do
        [[ -n $(tests_of "$preset") ]] || fail "the build '$preset' declares no test program"
    done
}

# How many are tested at once. Programs that are used by hand leave a processor idle four fifths of the time, those in
# their own processes half of it.
placesAtOnce=${QUORIN_TEST_PLACES:-$((3 * $(nproc)))}

# places: of all tests, those that take longest first, so that no long one is left over at the end.
places() {
    all_tests | cut -d ' ' -f 1 | awk '
        seen[$0]++ { next }
        /-hands$/ { print 1, $0; next }
        /^scripts$/ { print 2, $0; next }
        /^(en|ja)-[0-9x]+$/ { print 3, $0; next }
        { print 4, $0 }' | sort -k 1,1n -s | cut -d ' ' -f 2
}

# run_place PLACE: no filter chooses from the scripts' own tests. Status 1 when a world could not be opened.
run_place() {
    local place=$1 program
    arm_cleanups
    [[ $place != scripts || $testFilter == '*' ]] || return 0
    ! is_world "$place" || open_world "$place"
    for program in $(all_tests | sed -n "s/^$place //p"); do
        run_at "$place" "$program" || true
    done
    ! is_world "$place" || rm -rf "$scratchDevice"
}

# The places that are being tested, by the number of their process.
declare -A lanes=()

# end_lanes: for a run that is broken off.
end_lanes() {
    local pid
    for pid in "${!lanes[@]}"; do
        end_tree "$pid"
        wait "$pid" 2>/dev/null || true
    done
}

# await_lane: until one of them has come to its end. One that breaks off is one failure more.
await_lane() {
    local pid status=0
    wait -n -p pid "${!lanes[@]}" || status=$?
    if ((status != 0)); then
        say "the tests of '${lanes[$pid]}' broke off"
        mkdir -p "$logDir/broken-${lanes[$pid]}"
        echo '0 1 0' >"$logDir/broken-${lanes[$pid]}/results"
    fi
    unset "lanes[$pid]"
}

run_lanes() {
    local place
    at_exit end_lanes
    for place in $(places); do
        ((${#lanes[@]} < placesAtOnce)) || await_lane
        run_place "$place" &
        lanes[$!]=$place
    done
    while ((${#lanes[@]} > 0)); do
        await_lane
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
