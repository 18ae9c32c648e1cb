#!/bin/bash
# How the window that ./run opens comes to its end: by the program itself, by a signal, by the virtual screen. What
# it remembers is saved each time.
# shellcheck disable=SC1090,SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"
for part in common setup screen prefix world tour; do
    source "$root/tools/lib/$part.sh"
done

# The part of ./run that opens the window, in worlds of the test's own.
write_script() {
    cat >"$scratch/open_window" <<TEXT
set -euo pipefail
root=$(printf %q "$root")
for part in common setup build screen prefix world tour; do source "\$root/tools/lib/\$part.sh"; done
prefixDir='$scratch/worlds'
conditions=()
arm_cleanups
prepare_wine
with_lock ends-test 2 "it is open" show_window '$scratch/device' en 240x320
TEXT
}

program_is_open() {
    grep -qs 'QuorinSearch is open' "$scratch/said"
}

# Opens the window, on a screen of its own, as a job of its own as in a terminal. Sets scriptPid.
open_window() {
    arm_cleanups
    mkdir -p "$scratch/device"
    write_script
    start_screen 240x320
    set -m
    bash "$scratch/open_window" >"$scratch/said" 2>&1 </dev/null &
    scriptPid=$!
    set +m
    at_exit end_process "$scriptPid"
    wait_until 60 program_is_open || fail "the window did not open: $(<"$scratch/said")"
    at_exit rm -f "$stepOutput.printed" "$stepOutput.said"
    wine_environment "$scratch/worlds/run-en-240x320" en
    drive wait-window 60
}

# expect_end STATUS: the script ends with it, nothing runs on in its world, and the settings are saved.
expect_end() {
    local status=0
    wait_until 60 process_ended "$scriptPid" || fail "the script did not end"
    wait "$scriptPid" || status=$?
    expect_equal 'status' "$1" "$status"
    expect_that 'the settings are saved' grep -q '^"Sub Folder"' "$scratch/worlds/run-en-240x320/user.reg"
}

test_ctrl_c_closes_the_program_with_its_settings_saved() {
    open_window
    # To the whole foreground job, as the terminal sends it.
    kill -INT -- "-$scriptPid"
    expect_end 130
}

test_a_request_to_end_closes_the_program_with_its_settings_saved() {
    open_window
    kill -TERM "$scriptPid"
    expect_end 143
}

test_a_closed_terminal_closes_the_program_with_its_settings_saved() {
    open_window
    kill -HUP -- "-$scriptPid"
    expect_end 129
}

test_closing_the_virtual_screen_saves_the_settings() {
    open_window
    drive close-screen
    expect_end 0
}

test_closing_the_window_saves_the_settings() {
    open_window
    drive close
    expect_end 0
}

run_test_functions Ends
