# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# What every script here uses: where things are, how to speak, how to clean up, how to wait no longer than
# a deadline. Sourced by ./run and ./test, which set `root` to the top of the source tree first.

# The source tree by a name that all tools can bear. The resource compiler hands its paths to a shell without quoting,
# CMake separates words at semicolons, and Wine makes no prefix below a name that Windows forbids: so a tree whose path
# has other letters than these is worked on by way of a link, which has the same name in every run.
name_plain_root() {
    local LC_ALL=C
    plainRoot=$root
    [[ $root != *[!A-Za-z0-9/._-]* ]] || plainRoot=/tmp/quorinsearch-$EUID-$(printf '%s' "$root" | sha256sum | head -c 16)
}
name_plain_root

# Everything that the scripts make goes here. Outside are only the system's packages, and that link.
buildDir=$plainRoot/build

# Whether a line of progress is on the terminal at the moment.
progressShown=no

# say TEXT...: a line of progress. Standard output is kept for results.
say() {
    end_progress
    printf '%s\n' "$*" >&2
}

# fail TEXT...: ends the script with status 1 and one clear line.
fail() {
    end_progress
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# usage_error TEXT...: ends the script with status 2, for what the caller typed wrongly.
usage_error() {
    printf '%s: %s (see %s --help)\n' "${0##*/}" "$*" "$(in_shell_quotes "$0")" >&2
    exit 2
}

# has_terminal: is somebody watching?
has_terminal() {
    [[ -t 2 ]]
}

# progress TEXT...: on a terminal, a line that the next one overwrites; nothing at all elsewhere. Blanks instead of
# control codes take away what was there, for the sake of terminals that know none.
progress() {
    local width=0
    has_terminal || return 0
    width=$(stty size <&2 2>/dev/null) || width=0
    width=${width#* }
    ((width > 1)) || width=80
    progressShown=$((width - 1))
    printf '\r%-*.*s' "$progressShown" "$progressShown" "$*" >&2
}

# end_progress: takes it off again.
end_progress() {
    [[ $progressShown != no ]] || return 0
    printf '\r%*s\r' "$progressShown" '' >&2
    progressShown=no
}

# with_clock TEXT COMMAND WORD...: for what takes long and tells nothing: on a terminal the seconds are counted.
with_clock() {
    local text=$1 clock='' status=0
    shift
    if has_terminal; then
        run_clock "$text" &
        clock=$!
        at_exit end_process "$clock"
    fi
    "$@" || status=$?
    if [[ -n $clock ]]; then
        end_process "$clock"
        progress ''
        end_progress
    fi
    return "$status"
}

run_clock() {
    local began=$SECONDS
    while sleep 1; do
        progress "$1: $((SECONDS - began)) s"
    done
}

# in_shell_quotes TEXT: the text as it can be pasted behind a prompt.
in_shell_quotes() {
    if [[ $1 == *[[:space:][:cntrl:]\'\"\\\$\&\;\(\)\<\>\|\*\?\[\]\#\~\`\!\{\}]* ]]; then
        printf "'%s'" "${1//\'/\'\\\'\'}"
    else
        printf '%s' "$1"
    fi
}

# path_from_here PATH: the path as it can be opened from where the user is: short below that folder, whole
# elsewhere.
path_from_here() {
    in_shell_quotes "$(realpath -m --relative-base=. -- "$1")"
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

# make_plain_root: the link is made again when the machine has lost it.
make_plain_root() {
    [[ $plainRoot != "$root" ]] || return 0
    [[ -L $plainRoot ]] || ln -s "$root" "$plainRoot" || fail "could not make the link $plainRoot"
    # Anybody may put something there.
    [[ $plainRoot -ef $root && $(stat -c %u "$plainRoot") == "$EUID" ]] || fail "$plainRoot is in the way"
}

# make_build_folder: everything that is made needs it.
make_build_folder() {
    make_plain_root
    mkdir -p "$buildDir" 2>/dev/null || true
    [[ -d $buildDir && -w $buildDir ]] ||
        fail "no permission to write in $(path_from_here "$root"), where QuorinSearch is built"
}

# with_lock NAME SECONDS BUSY COMMAND WORD...: one at a time in this source tree. When another one is at it, BUSY says
# so in the user's words; after so many seconds that ends the script. What the command starts does not inherit the
# lock, so that a left-over process cannot keep it.
with_lock() {
    local name=$1 seconds=$2 busy=$3 descriptor=$((20 + lockDepth))
    shift 3
    (($# > 0)) || fail "there is nothing to do under the lock '$name'"
    make_build_folder
    eval "exec $descriptor>\"\$buildDir/.\$name.lock\""
    await_lock "$descriptor" "$seconds" "$busy"
    lockDepth=$((lockDepth + 1))
    eval "\"\$@\" $descriptor>&-"
    lockDepth=$((lockDepth - 1))
    eval "exec $descriptor>&-"
}

await_lock() {
    flock -n "$1" && return
    # A moment is nothing to speak of.
    (($2 <= 5)) || say "waiting: $3"
    flock -w "$2" "$1" || fail "$3"
}
