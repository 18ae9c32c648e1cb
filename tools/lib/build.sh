# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# Configuring and compiling a preset, quietly: what the tools said is in build/NAME.log.

build_preset() {
    local preset=$1 log=$buildDir/$1.log cache=$buildDir/$1/CMakeCache.txt
    shift
    # A tree that was moved or copied carries the old place in its cache.
    if [[ -e $cache ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache"; then
        rm -rf "${buildDir:?}/$preset"
    fi
    say "building: $preset"
    if ! (cd "$root" && cmake --preset "$preset" && cmake --build "$buildDir/$preset" "$@") </dev/null >"$log" 2>&1; then
        grep -m 20 -E ': (fatal )?error[: ]|undefined reference|CMake Error|^FAILED' "$log" >&2 || tail -n 20 "$log" >&2
        fail "the build of '$preset' failed; all of it is in build/$preset.log"
    fi
}

# build PRESET [CMAKE BUILD WORD...]
build() {
    with_lock "$1" 1800 build_preset "$@"
}
