# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# A world: a Wine system of one language on one screen, in which programs are started and ended. They run in
# sessions of their own: a Wine program that gets the terminal's signals ends at once, with nothing saved.

desktop_is_open() {
    timeout 10 xwininfo -root -tree 2>/dev/null | grep -q '"QuorinSearch - Wine desktop"'
}

# open_desktop SCREEN: the desktop on which all programs of the world stand. It must be there before they are:
# two programs that start at once and find none may end up on two, where they cannot see each other.
open_desktop() {
    setsid "$wine" explorer "/desktop=QuorinSearch,$1" </dev/null >/dev/null 2>&1 &
    wait_until 60 desktop_is_open || fail "Wine's desktop did not open"
}

# start_program DEVICE [PROGRAM WORD...]: starts QuorinSearch, or another program, with the folder's root as `\`. Sets
# programPid.
start_program() {
    local device=$1
    shift
    (($# > 0)) || set -- 'P:\quorinsearch.exe'
    (cd "$device" && exec setsid "$wine" "$@") </dev/null >"$buildDir/program.log" 2>&1 &
    programPid=$!
}

has_window_or_ended() {
    process_ended "$programPid" || try_drive wait-window 2
}

# await_window: until the program can be used; or until it has ended, of whatever cause.
await_window() {
    wait_until 60 has_window_or_ended || fail "QuorinSearch did not open its window: $(driver_words)"
}

# close_program: asks the program's window to close, as a person does, and gives it time to save what it remembers.
close_program() {
    ! process_ended "$programPid" || return 0
    timeout -k 2 15 "$wine" 'P:\quorin_driver.exe' close </dev/null >/dev/null 2>&1 || true
    wait_until 5 process_ended "$programPid" || true
}

# await_program SECONDS: waits for its end. Sets programStatus; status 1 when it still runs.
await_program() {
    wait_until "$1" process_ended "$programPid" || return 1
    programStatus=0
    wait "$programPid" || programStatus=$?
}

searchDeadline=600

# What the driver prints and says in one step. Wine speaks into the terminal that a program has, in control codes, so
# that it gets none.
stepOutput=$buildDir/.step.$$

# try_drive STEP WORD...: one step of the driver, which has a deadline of its own; this one is for a driver that hangs.
# Waited for in the background, so that a signal ends the script at once. The folder that it starts in is one that
# Wine knows, or it would complain.
try_drive() {
    (cd "$buildDir/release" && exec timeout -k 5 "$((searchDeadline + 30))" "$wine" 'P:\quorin_driver.exe' "$@") \
        </dev/null >"$stepOutput.printed" 2>"$stepOutput.said" &
    wait "$!" || return 1
    cat "$stepOutput.printed"
}

# drive STEP WORD...: the same, and the end of the script when it fails.
drive() {
    try_drive "$@" || fail "the step '$1' failed: $(driver_words)"
}

# driver_words: the driver's own words on what failed, or all that was said when there are none.
driver_words() {
    local words
    words=$(tr -d '\r' <"$stepOutput.said" | sed -n 's/^quorin_driver: //p')
    printf '%s' "${words:-$(tail -n 3 "$stepOutput.said")}"
}

program_ended_well() {
    ((programStatus == 0)) ||
        fail "QuorinSearch ended with status $programStatus; what Wine said is in $(path_from_here "$buildDir/program.log")"
}

# keep_world WORLD LANGUAGE SCREEN: made once, so that the program remembers from run to run what it was asked.
keep_world() {
    local stamp=$1/stamp
    [[ $(cat "$stamp" 2>/dev/null) != "$(cat "$basePrefix/stamp")" ]] || return 0
    make_world "$1" "$2" "$3"
    cp "$basePrefix/stamp" "$stamp"
}

# show_window DEVICE LANGUAGE SCREEN: opens the program on the user's display and returns when it has ended.
show_window() {
    local world=$prefixDir/run-$2-$3
    keep_world "$world" "$2" "$3"
    map_drives "$world" "$1"
    wine_environment "$world" "$2"
    at_exit rm -f "$stepOutput.printed" "$stepOutput.said"
    at_exit stop_wine
    open_desktop "$3"
    start_program "$1"
    at_exit close_program
    await_window
    if ! process_ended "$programPid"; then
        ((${#conditions[@]} == 0)) || drive fill "${conditions[@]}"
        say "QuorinSearch is open; this ends when its window is closed"
    fi
    programStatus=0
    wait "$programPid" || programStatus=$?
    program_ended_well
}
