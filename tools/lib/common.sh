# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# What every script here uses: where things are, how to speak, how to clean up, how to wait no longer than
# a deadline. Sourced by ./run and ./test, which set `root` to the top of the source tree first.

# Everything that the scripts make goes here, and nowhere else but to the system's packages.
buildDir=$root/build

# say TEXT...: a line of progress. Standard output is kept for results.
say() {
    printf '%s\n' "$*" >&2
}

# fail TEXT...: ends the script with status 1 and one clear line.
fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# usage_error TEXT...: ends the script with status 2, for what the caller typed wrongly.
usage_error() {
    printf '%s: %s (see %s --help)\n' "${0##*/}" "$*" "$0" >&2
    exit 2
}

cleanups=()

# at_exit COMMAND WORD...: has the command run when the script or subshell ends, the last registered first.
at_exit() {
    cleanups=("$(printf '%q ' "$@")" "${cleanups[@]}")
}

run_cleanups() {
    local status=$? command
    trap '' INT TERM HUP
    for command in "${cleanups[@]}"; do
        eval "$command" || true
    done
    cleanups=()
    exit "$status"
}

# arm_cleanups: called once by a script and again at the start of each subshell that starts processes itself.
arm_cleanups() {
    cleanups=()
    trap run_cleanups EXIT
    trap 'exit 129' HUP
    trap 'exit 130' INT
    trap 'exit 143' TERM
}

# wait_until SECONDS COMMAND WORD...: polls the command; status 1 when the deadline passes first.
wait_until() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < deadline)) || return 1
        sleep 0.1
    done
}

process_ended() {
    ! kill -0 "$1" 2>/dev/null
}

# end_process PID: ends a process that this script started; one that does not listen is killed.
end_process() {
    kill "$1" 2>/dev/null || return 0
    wait_until 5 process_ended "$1" || kill -9 "$1" 2>/dev/null || true
    wait "$1" 2>/dev/null || true
}

lockDepth=0

# end_tree PID: asks a process and all that it started to end.
end_tree() {
    local child children
    children=$(cat "/proc/$1/task/$1/children" 2>/dev/null || true)
    kill "$1" 2>/dev/null || true
    for child in $children; do
        end_tree "$child"
    done
}

# with_lock NAME SECONDS COMMAND WORD...: one at a time in this source tree; fails when it waits too long. What
# the command starts does not inherit the lock, so that a left-over process cannot keep it.
with_lock() {
    local name=$1 seconds=$2 descriptor=$((20 + lockDepth))
    shift 2
    mkdir -p "$buildDir"
    eval "exec $descriptor>\"\$buildDir/.\$name.lock\""
    flock -w "$seconds" "$descriptor" ||
        fail "another run in this folder holds build/.$name.lock; try again when it has ended"
    lockDepth=$((lockDepth + 1))
    eval "\"\$@\" $descriptor>&-"
    lockDepth=$((lockDepth - 1))
    eval "exec $descriptor>&-"
}
