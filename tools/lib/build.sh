# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# Configuring and compiling a preset, quietly: what the tools said is in build/NAME.log.

# compile PRESET [CMAKE BUILD WORD...]: from a plain place, since CMake looks behind the link that it is started in.
compile() {
    local preset=$1
    shift
    cd / && cmake -S "$plainRoot" --preset "$preset" && cmake --build "$buildDir/$preset" "$@"
}

# show_build_steps NAME: what a build says goes by; on a terminal its steps are counted. The first one is told in
# any case, so that nothing is told where there is nothing to do.
show_build_steps() {
    local line begun=no
    while IFS= read -r line; do
        [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]] || continue
        # What is looked at each time, whether there is anything to do or not.
        [[ $line != *'Re-checking globbed directories'* ]] || continue
        [[ $begun == yes ]] || say "building: $1"
        begun=yes
        progress "${BASH_REMATCH[1]} of ${BASH_REMATCH[2]}"
    done
    end_progress
}

build_preset() {
    local preset=$1 log=$buildDir/$1.log cache=$buildDir/$1/CMakeCache.txt
    # A tree that was moved or copied carries the old place in its cache.
    if [[ -e $cache ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$plainRoot" "$cache"; then
        rm -rf "${buildDir:?}/$preset"
    fi
    if ! (set -o pipefail && compile "$@" </dev/null 2>&1 | tee "$log" | show_build_steps "$preset"); then
        grep -m 20 -E ': (fatal )?error[: ]|undefined reference|CMake Error|^FAILED' "$log" >&2 || tail -n 20 "$log" >&2
        fail "the build of '$preset' failed; all of it is in $(path_from_here "$log")"
    fi
}

# build PRESET [CMAKE BUILD WORD...]
build() {
    with_lock "$1" 1800 "another ./run or ./test is building in this folder" build_preset "$@"
}
