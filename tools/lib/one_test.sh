#!/bin/bash
# What ctest calls, as declared in cmake/test_places.cmake:
#
#   one_test.sh open PLACE          opens the world; it stays open until it is closed or ctest ends
#   one_test.sh run PLACE PROGRAM   runs one test program in its open world, or on this machine
#   one_test.sh close PLACE         closes the world
#
# The programs must have been built. QUORIN_TEST_FILTER chooses tests by name, as ./test's FILTER does.
# shellcheck disable=SC2034,SC2154 # variables are shared with the files beside this one
set -euo pipefail

root=$(readlink -f -- "${BASH_SOURCE[0]}")
root=${root%/tools/lib/*}
for part in common setup screen prefix world tally test_runs; do
    # shellcheck source=/dev/null
    source "$root/tools/lib/$part.sh"
done

worldsOf=ctest

# Where the process that holds a world writes the name of its screen; the world is closed when the file goes.
open_file() {
    printf '%s' "$buildDir/.ctest-$1.open"
}

# hold_world PLACE CTEST: until it is closed, or the process CTEST ends without having closed it.
hold_world() (
    local file
    file=$(open_file "$1")
    arm_cleanups
    at_exit rm -rf "$file" "$buildDir/ctest-device-$1"
    open_world "$1"
    printf '%s\n' "$DISPLAY" >"$file.new"
    mv "$file.new" "$file"
    while [[ -e $file ]] && ! process_ended "$2"; do
        sleep 0.2
    done
)

hold() {
    with_lock "ctest-$1" 30 "another ctest is running in this folder" hold_world "$@"
}

is_open_or_broken() {
    [[ -e $(open_file "$1") ]] || process_ended "$2"
}

# open PLACE: returns when programs can be run there.
open() {
    local said=$logDir/$1/world.log
    # One that was left over ends by itself; one that is in use does not.
    with_lock "ctest-$1" 5 "another ctest is running in this folder" rm -f "$(open_file "$1")"
    prepare_wine
    mkdir -p "${said%/*}"
    setsid "$0" hold "$1" "$PPID" </dev/null >"$said" 2>&1 &
    wait_until 120 is_open_or_broken "$1" "$!" || true
    [[ -e $(open_file "$1") ]] || fail "the world did not open: $(tail -n 3 "$said")"
}

run() {
    if is_world "$1"; then
        [[ -e $(open_file "$1") ]] || fail "the world '$1' is not open"
        name_world "$1"
        tell_world "$1"
        DISPLAY=$(<"$(open_file "$1")")
        export DISPLAY
        unset XAUTHORITY WAYLAND_DISPLAY
    fi
    run_at "$@"
}

close() {
    rm -f "$(open_file "$1")"
    with_lock "ctest-$1" 60 "the world does not close" true
}

case ${1:-} in
    open | hold | run | close) "$@" ;;
    *) usage_error "it is called by ctest" ;;
esac
