#!/bin/bash
# The folders are floors, from the ground up, and a file includes only what is on its own floor or below.
# shellcheck disable=SC1091,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"

# The floor of each folder of the program. Two folders on one floor do not know each other.
floors='platform 1
resources 1
base 2
framework 3
search 3
fileops 4
results 5
conditions 5
app 6'
program_folders=$(cut -d ' ' -f 1 <<<"$floors" | grep -v resources)
other_folders='tkconv tests bench fuzz tools resources'

# sources TREE FOLDER...: the headers and sources of these folders, from the tree's root.
sources() {
    local tree=$1 folder
    shift
    for folder in "$@"; do
        [ ! -d "$tree/$folder" ] || (cd "$tree" && find "$folder" -name '*.h' -o -name '*.cpp')
    done
}

# includes TREE FOLDER...: a line "file included" for each include in quotes.
includes() {
    local tree=$1
    sources "$@" | (cd "$tree" && xargs -r awk '
        /^[ \t]*#[ \t]*include[ \t]*"/ { split($0, parts, "\""); print FILENAME, parts[2] }')
}

# floor_faults TREE: what goes up or across, into the desktop's folder from outside, or out of the program.
floor_faults() {
    # shellcheck disable=SC2086 # a list of words
    includes "$1" $program_folders | awk -v floors="$floors" '
        BEGIN {
            count = split(floors, lines, "\n")
            for (i = 1; i <= count; i++) { split(lines[i], words, " "); floor[words[1]] = words[2] }
        }
        {
            split($1, file, "/"); split($2, header, "/")
            from = file[1]; to = header[1]
            if (!(to in floor)) print $1 " includes " $2 ": no folder of the program"
            else if (to == "resources" && $2 != "resources/resource_ids.h") print $1 " includes " $2 ": not the ids"
            else if (floor[to] > floor[from]) print $1 " includes " $2 ": up"
            else if (floor[to] == floor[from] && to != from && to != "resources") print $1 " includes " $2 ": across"
            else if ($2 ~ /^platform\/desktop\// && from != "platform") print $1 " includes " $2 ": behind the seam"
            else if ($2 ~ /^platform\/desktop\// && $1 !~ /^platform\/desktop\//)
                print $1 " includes " $2 ": the contract knows its desktop"
        }'
}

# circle_faults TREE: modules (a header and its source) that include each other, by however many steps.
circle_faults() {
    # shellcheck disable=SC2086 # a list of words
    includes "$1" $program_folders | awk '
        function module(path) { sub(/\.[a-z]+$/, "", path); return path }
        module($1) != module($2) { print module($2), module($1) }' | tsort 2>&1 >"$scratch/order" |
        sed -n 's/^tsort: -: input contains a loop:/a circle:/p; s/^tsort: \([^ ]*\)$/  \1/p'
}

# place_faults TREE: includes in quotes for which the disk has no file spelled just so.
place_faults() {
    # shellcheck disable=SC2086 # lists of words
    {
        (cd "$1" && find $program_folders $other_folders -type f 2>"$scratch/missing folders") | sed 's/^/file /'
        includes "$1" $program_folders $other_folders
    } | awk '
        $1 == "file" { exists[substr($0, 6)] = 1; next }
        {
            own = $1; sub(/[^\/]*$/, "", own)
            if (!($2 in exists) && !((own $2) in exists) && !(("fuzz/world/" $2) in exists))
                print $1 " includes " $2 ": no such file"
        }'
}

# spelling_faults TREE: system headers that are not in lower case, and backslashes.
spelling_faults() {
    # shellcheck disable=SC2086 # lists of words
    sources "$1" $program_folders $other_folders | (cd "$1" && xargs -r awk '
        /^[ \t]*#[ \t]*include[ \t]*</ && (/[A-Z]/ || /\\/) { print FILENAME ": " $0 }')
}

# unproved_headers TREE: the headers that no source of the build includes first, which would show that they compile
# alone.
unproved_headers() {
    # shellcheck disable=SC2086 # lists of words
    sources "$1" $program_folders | sort >"$scratch/sources"
    # shellcheck disable=SC2086
    includes "$1" $program_folders tests | awk '
        $1 ~ /\.cpp$/ && !($1 in seen) { seen[$1] = 1; proved[$2] = 1 }
        END { for (header in proved) print header }' | sort >"$scratch/proved"
    grep '\.h$' "$scratch/sources" | comm -23 - "$scratch/proved"
}

# compile_faults TREE: what the compiler says to the other headers, each by itself.
compile_faults() {
    local tree=$1 header
    unproved_headers "$tree" | while IFS= read -r header; do
        x86_64-w64-mingw32-g++-posix -std=c++20 -fsyntax-only -municode -DUNICODE -D_UNICODE -DNOMINMAX \
            -DWIN32_LEAN_AND_MEAN -DWINVER=0x0601 -D_WIN32_WINNT=0x0601 -D_WIN32_IE=0x0600 \
            -I "$tree" -include "$tree/$header" -x c++ /dev/null 2>"$scratch/compiler" || {
            echo "$header does not compile alone"
            grep -m 1 error "$scratch/compiler"
        }
    done
}

# made_up FILE LINE...: a file of a made-up tree, which fresh_tree begins.
fresh_tree() {
    rm -rf "$scratch/tree"
    mkdir -p "$scratch/tree"
}
made_up() {
    local file=$1
    shift
    mkdir -p "$(dirname "$scratch/tree/$file")"
    printf '%s\n' "$@" >"$scratch/tree/$file"
}

test_no_include_of_the_project_goes_up_or_across() {
    expect_equal 'faults' '' "$(floor_faults "$root")"
}

test_no_modules_of_the_project_include_each_other_in_a_circle() {
    expect_equal 'faults' '' "$(circle_faults "$root")"
}

test_every_include_of_the_project_is_spelled_as_the_disk_has_it() {
    expect_equal 'places' '' "$(place_faults "$root")"
    expect_equal 'spellings' '' "$(spelling_faults "$root")"
}

test_every_header_of_the_project_compiles_alone() {
    expect_equal 'faults' '' "$(compile_faults "$root")"
}

test_the_check_reads_all_floors_of_the_project() {
    local folder
    for folder in $program_folders; do
        # shellcheck disable=SC2086
        [ -n "$(includes "$root" "$folder")" ] || expect_equal 'folder without includes' '' "$folder"
    done
}

test_an_include_that_goes_down_or_stays_is_no_fault() {
    fresh_tree
    made_up app/window.cpp '#include "results/list.h"' '#include "base/paths.h"' '#include "resources/resource_ids.h"'
    made_up platform/desktop/files.cpp '#include "platform/desktop/links.h"' '#include "platform/files.h"'
    expect_equal 'faults' '' "$(floor_faults "$scratch/tree")"
}

test_an_include_that_goes_up_is_found() {
    fresh_tree
    made_up base/paths.h '#include "app/window.h"'
    expect_equal 'faults' 'base/paths.h includes app/window.h: up' "$(floor_faults "$scratch/tree")"
}

test_an_include_that_goes_across_is_found() {
    fresh_tree
    made_up search/walk.cpp '#  include "framework/window.h"'
    made_up results/list.cpp '#include "conditions/page.h"'
    expect_equal 'faults' $'results/list.cpp includes conditions/page.h: across\nsearch/walk.cpp includes framework/window.h: across' \
        "$(floor_faults "$scratch/tree" | sort)"
}

test_an_include_from_behind_the_seam_is_found() {
    fresh_tree
    made_up framework/window.cpp '#include "platform/desktop/links.h"'
    made_up platform/files.h '#include "platform/desktop/links.h"'
    expect_equal 'faults' $'framework/window.cpp includes platform/desktop/links.h: behind the seam\nplatform/files.h includes platform/desktop/links.h: the contract knows its desktop' \
        "$(floor_faults "$scratch/tree" | sort)"
}

test_an_include_of_a_test_is_found() {
    fresh_tree
    made_up app/window.cpp '#include "tests/support/utf8.h"'
    expect_equal 'faults' 'app/window.cpp includes tests/support/utf8.h: no folder of the program' \
        "$(floor_faults "$scratch/tree")"
}

test_a_header_of_the_resources_that_is_not_the_ids_is_found() {
    fresh_tree
    made_up app/window.cpp '#include "resources/pictures.h"'
    expect_equal 'faults' 'app/window.cpp includes resources/pictures.h: not the ids' "$(floor_faults "$scratch/tree")"
}

test_a_circle_of_modules_is_found_through_header_and_source() {
    fresh_tree
    made_up search/walk.h '#include "search/entry.h"'
    made_up search/entry.cpp '#include "search/entry.h"' '#include "search/names.h"'
    made_up search/names.cpp '#include "search/walk.h"'
    expect_equal 'first line' 'a circle:' "$(circle_faults "$scratch/tree" | head -n 1)"
    expect_equal 'members' '  search/entry   search/names   search/walk' \
        "$(circle_faults "$scratch/tree" | tail -n +2 | sort | tr '\n' ' ' | sed 's/ $//')"
}

test_a_module_that_includes_its_own_header_is_no_circle() {
    fresh_tree
    made_up platform/desktop/files.cpp '#include "platform/files.h"' '#include "platform/desktop/links.h"'
    made_up platform/desktop/links.cpp '#include "platform/desktop/links.h"'
    expect_equal 'faults' '' "$(circle_faults "$scratch/tree")"
}

test_an_include_in_the_wrong_case_is_found() {
    fresh_tree
    made_up base/paths.h ''
    made_up base/paths.cpp '#include "base/Paths.h"'
    made_up base/root.cpp '#include <Windows.h>'
    expect_equal 'places' 'base/paths.cpp includes base/Paths.h: no such file' "$(place_faults "$scratch/tree")"
    expect_equal 'spellings' 'base/root.cpp: #include <Windows.h>' "$(spelling_faults "$scratch/tree")"
}

test_a_header_that_leans_on_others_is_found() {
    fresh_tree
    made_up base/leaning.h 'inline std::size_t Length();'
    made_up base/standing.h '#include <cstddef>' 'inline std::size_t Length() { return 0; }'
    made_up base/user.cpp '#include "base/standing.h"' '#include "base/leaning.h"'
    expect_equal 'headers' 'base/leaning.h' "$(unproved_headers "$scratch/tree")"
    expect_equal 'first line' 'base/leaning.h does not compile alone' "$(compile_faults "$scratch/tree" | head -n 1)"
}

run_test_functions Includes
