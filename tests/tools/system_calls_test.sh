#!/bin/bash
# The program proper calls nothing of the system but what docs/windows_ce_calls.md lists: what Windows CE has.
# shellcheck disable=SC1091,SC2016,SC2154,SC2317 # tests are called by name, variables are shared, backticks are text
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"

page=docs/windows_ce_calls.md
program_folders='platform base framework search fileops results conditions app'
binutils=x86_64-w64-mingw32
compiler=$binutils-g++-posix

# What the compiler brings along itself: its check of the stack, and the ends of static objects.
compiler_calls='___chkstk_ms atexit'

# sources TREE: the sources above platform/desktop/, from the tree's root.
sources() {
    # shellcheck disable=SC2086 # a list of words
    (cd "$1" && find $program_folders -name '*.cpp' 2>"$scratch/missing folders" | grep -v '^platform/desktop/' | sort)
}

# built_sources BUILD: a line "SOURCE OBJECT" for each object above platform/desktop/.
built_sources() {
    # shellcheck disable=SC2086 # a list of words
    (cd "$1" && find $program_folders -name '*.cpp.obj' 2>"$scratch/missing folders") |
        sed -nE 's|^([a-z]+)/CMakeFiles/[^/]*\.dir/(.*)\.obj$|\1/\2 &|p' | grep -v '^platform/desktop/' | sort
}

# unbuilt_sources TREE BUILD: what cannot be checked.
unbuilt_sources() {
    comm -23 <(sources "$1") <(built_sources "$2" | cut -d ' ' -f 1)
}

# called_names TREE BUILD: a line "CALL SOURCE" for each call of the system or the C library. C++ names are the
# program's own and those of the C++ library, which the program brings with it. What was made of a source that is gone
# may still lie there, and is not looked at.
called_names() {
    join <(sources "$1") <(built_sources "$2") | cut -d ' ' -f 2 | (cd "$2" && xargs -r "$binutils-nm" -A -u) |
        awk -v brought=" $compiler_calls " '
            $(NF - 1) == "U" {
                name = $NF; sub(/^__imp_/, "", name)
                source = $1; sub(/\.obj:.*/, "", source); sub(/\/CMakeFiles\/[^\/]*\.dir/, "", source)
                if (name !~ /^_Z/ && !index(brought, " " name " ")) print name, source
            }' | sort -u
}

# listed_names TREE [SECTION]: the names between backticks in the entries, before their colons; only of the section.
listed_names() {
    awk -v wanted="${2:-}" '
        function read_entry(    count, parts, i) {
            sub(/:.*/, "", entry)
            count = split(entry, parts, "`")
            for (i = 2; i <= count; i += 2) print parts[i]
            entry = ""
        }
        /^## / { read_entry(); section = substr($0, 4) }
        /^- / { read_entry(); if (wanted == "" || section == wanted) entry = $0; next }
        /^  / { if (entry != "") entry = entry $0; next }
        { read_entry() }
        END { read_entry() }' "$1/$page" | sort
}

# unlisted_calls TREE BUILD: a line "CALL SOURCE" for each call that the page does not list.
unlisted_calls() {
    join -v 1 <(called_names "$1" "$2") <(listed_names "$1" | sort -u)
}

# uncalled_names TREE BUILD: what the page lists and nothing calls. The compiler decides on the C library.
uncalled_names() {
    listed_names "$1" | comm -23 - <(listed_names "$1" 'The C library') |
        comm -23 - <(called_names "$1" "$2" | cut -d ' ' -f 1 | sort -u)
}

# without_build: says so where nothing has been built at all, as in a fresh checkout; ./test builds first.
without_build() {
    [[ ! -e $root/build/release/quorinsearch.exe ]] || return 1
    echo 'nothing is built, so nothing is checked: cmake --build --preset release --target quorinsearch'
}

# made_up FILE LINE...: a file of a made-up tree; compiled NAME: builds a source of it, as the project does.
made_up() {
    local file=$1
    shift
    mkdir -p "$(dirname "$scratch/tree/$file")"
    printf '%s\n' "$@" >"$scratch/tree/$file"
}
compiled() {
    local object=$scratch/build/${1%%/*}/CMakeFiles/${1%%/*}.dir/${1#*/}.obj
    mkdir -p "$(dirname "$object")"
    "$compiler" -std=c++20 -O1 -c "$scratch/tree/$1" -o "$object"
}

test_every_call_of_the_program_is_one_of_windows_ce() {
    without_build && return
    expect_equal 'sources that are not built' '' "$(unbuilt_sources "$root" "$root/build/release")"
    expect_equal 'calls that Windows CE does not have' '' "$(unlisted_calls "$root" "$root/build/release")"
}

test_the_page_lists_no_call_that_the_program_does_not_make() {
    without_build && return
    expect_equal 'not called' '' "$(uncalled_names "$root" "$root/build/release")"
}

test_the_page_lists_each_call_once() {
    expect_equal 'listed twice' '' "$(listed_names "$root" | uniq -d)"
}

test_the_check_reads_all_folders_of_the_program() {
    local folder
    without_build && return
    called_names "$root" "$root/build/release" >"$scratch/calls"
    for folder in $program_folders; do
        grep -q " $folder/" "$scratch/calls" || expect_equal 'folder without calls' '' "$folder"
    done
}

test_a_call_of_the_desktop_is_found() {
    made_up "$page" '## Times' '- `GetTickCount`: not `GetTickCount64`'
    made_up base/clock.cpp '#include <windows.h>' 'unsigned long long Both() { return GetTickCount() + GetTickCount64(); }'
    compiled base/clock.cpp
    expect_equal 'calls' 'GetTickCount64 base/clock.cpp' "$(unlisted_calls "$scratch/tree" "$scratch/build")"
}

test_a_call_of_the_c_library_is_found() {
    made_up "$page" '## The C library' '- `fread`'
    made_up search/file.cpp '#include <io.h>' 'int Read(int file, void* block) { return _read(file, block, 1); }'
    compiled search/file.cpp
    expect_equal 'calls' '_read search/file.cpp' "$(unlisted_calls "$scratch/tree" "$scratch/build")"
}

test_the_program_s_own_functions_and_the_seam_s_are_no_calls() {
    made_up "$page" '## Nothing'
    made_up app/main.cpp 'namespace ce { unsigned GetTickCount64(); }' 'int Own();' 'int Both() { return Own() + ce::GetTickCount64(); }'
    made_up platform/desktop/clock.cpp '#include <windows.h>' 'unsigned long long Ticks() { return GetTickCount64(); }'
    compiled app/main.cpp
    compiled platform/desktop/clock.cpp
    expect_equal 'calls' '' "$(unlisted_calls "$scratch/tree" "$scratch/build")"
}

test_a_source_that_is_not_built_is_found() {
    made_up "$page" '## Nothing'
    made_up app/main.cpp 'int Nothing() { return 0; }'
    made_up app/window.cpp 'int Nothing() { return 0; }'
    compiled app/main.cpp
    expect_equal 'sources' 'app/window.cpp' "$(unbuilt_sources "$scratch/tree" "$scratch/build")"
}

test_a_name_that_nothing_calls_any_more_is_found() {
    made_up "$page" '## Windows' '- `ShowWindow`,' '  `MoveWindow`' '## The C library' '- `memcpy`' '' 'Not `listed`.'
    made_up app/main.cpp '#include <windows.h>' 'int Show(HWND window) { return ShowWindow(window, 1); }'
    compiled app/main.cpp
    expect_equal 'names' 'MoveWindow' "$(uncalled_names "$scratch/tree" "$scratch/build")"
}

run_test_functions SystemCalls
