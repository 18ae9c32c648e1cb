#!/bin/bash
# The window that ./run opens on a display, and what the user reads on the terminal meanwhile.
# shellcheck disable=SC1090,SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"
for part in common setup screen prefix world; do
    source "$root/tools/lib/$part.sh"
done

openWords='QuorinSearch is open; this ends when its window is closed'

window_is_open() {
    grep -aqs "$openWords" "$scratch/shown"
}

# Starts ./run on a terminal, waits for its window and closes that. Wine would speak into a terminal that it sees.
run_and_close() {
    (
        script -qec "bash $(printf %q "$root/run") $*" /dev/null </dev/null >"$scratch/shown"
    ) &
    scriptPid=$!
    at_exit end_process "$scriptPid"
    wait_until 120 window_is_open || fail "the window did not open: $(<"$scratch/shown")"
    at_exit rm -f "$stepOutput.printed" "$stepOutput.said"
    (wine_environment "$prefixDir/run-ja-640x240" ja && drive close)
    expect_that 'the script ends with its window' wait_until 30 process_ended "$scriptPid"
    wait "$scriptPid"
    sed 's/\r*$//; s/.*\r//' "$scratch/shown"
}

# Other sizes than the usual ones, so that a window that somebody has open is not in the way.
test_a_second_run_does_nothing_but_open_the_window() {
    arm_cleanups
    start_screen 800x600
    run_and_close --japanese --handheld >/dev/null
    expect_equal 'what the terminal shows' "$openWords" "$(run_and_close --japanese --handheld)"
}

test_a_window_that_is_open_already_is_told() {
    local said status=0
    arm_cleanups
    start_screen 800x600
    exec 9>"$buildDir/.run-ja-640x240.lock"
    flock 9
    said=$(bash "$root/run" --japanese --handheld 2>&1 9>&-) || status=$?
    expect_equal 'status' 1 "$status"
    expect_equal 'words' 'run: QuorinSearch is already open (Japanese, 640 x 240); close its window first' "$said"
}

test_a_program_that_does_not_start_is_told_at_once() {
    local said status=0
    keep_world() { :; }
    map_drives() { :; }
    wine_environment() { :; }
    open_desktop() { :; }
    start_program() {
        (exit 7) &
        programPid=$!
    }
    conditions=(--name x)
    said=$(show_window "$scratch" en 240x320 2>&1) || status=$?
    expect_equal 'status' 1 "$status"
    expect_match 'words' '*: QuorinSearch ended with status 7; what Wine said is in *build/program.log' "$said"
    expect_equal 'lines' 1 "$(wc -l <<<"$said")"
}

run_test_functions Window
