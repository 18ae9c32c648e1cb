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

# start_program DEVICE: starts QuorinSearch with the folder's root as `\`. Sets programPid.
start_program() {
    (cd "$1" && exec setsid "$wine" 'P:\quorinsearch.exe') </dev/null >"$buildDir/program.log" 2>&1 &
    programPid=$!
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

# show_window DEVICE LANGUAGE SCREEN: opens the program on the user's display and returns when it has ended. The
# world is kept from run to run, so that the program remembers what it was asked.
show_window() {
    local world=$prefixDir/run-$2-$3
    local stamp=$world/stamp
    if [[ $(cat "$stamp" 2>/dev/null) != "$(cat "$basePrefix/stamp")" ]]; then
        make_world "$world" "$2" "$3"
        cp "$basePrefix/stamp" "$stamp"
    fi
    map_drives "$world" "$1"
    wine_environment "$world" "$2"
    at_exit stop_wine
    open_desktop "$3"
    start_program "$1"
    at_exit close_program
    if ((${#conditions[@]} > 0)); then
        drive wait-window 60
        fill_conditions
    fi
    say "QuorinSearch is open; this ends when its window is closed"
    programStatus=0
    wait "$programPid" || programStatus=$?
    ((programStatus == 0)) || fail "QuorinSearch ended with status $programStatus"
}
