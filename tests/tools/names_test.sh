#!/bin/bash
# The project in a folder of any name: with the real build tools and the real Wine, but with a program of a few lines,
# since a name that a tool cannot bear breaks that as well.
# shellcheck disable=SC1090,SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"

realBuild=$root/build
oddName=$'a b & \'c\' "d" (e) $f; #g %d [h] {i} \\j 日本語 ~ ! * =,@+:x|<y>?'

# As for the whole program, there are a source, a header and a resource that names a file beside it.
write_project() {
    mkdir -p "$1/cmake" "$1/parts"
    cp "$root/CMakePresets.json" "$1/"
    cp "$root/cmake/mingw-w64.cmake" "$1/cmake/"
    cat >"$1/CMakeLists.txt" <<'TEXT'
cmake_minimum_required(VERSION 3.23)
project(Small LANGUAGES CXX RC)
add_executable(small parts/small.cpp parts/small.rc)
target_include_directories(small PRIVATE ${CMAKE_SOURCE_DIR})
target_link_options(small PRIVATE -municode -static)
TEXT
    printf '#define ICON_SMALL 1\n' >"$1/parts/small.h"
    printf '#include "parts/small.h"\nICON_SMALL ICON "parts/small.ico"\n' >"$1/parts/small.rc"
    printf '#include "parts/small.h"\nint wmain() { return ICON_SMALL - 1; }\n' >"$1/parts/small.cpp"
    cp "$root/resources/images/program.ico" "$1/parts/small.ico"
}

# take_built_program: this tree's own program and its Wine, as if they had been made in the other tree.
take_built_program() {
    mkdir -p "$buildDir/release/tests" "$basePrefix"
    cp "$realBuild"/release/{quorinsearch.exe,TKCONV.DLL,quorin_driver.exe} "$buildDir/release/"
    cp "$realBuild/release/tests/quorin_probe.dll" "$buildDir/release/tests/"
    copy_of_prefix "$realBuild/wine/base/en" "$basePrefix/en"
}

# Everything below is done with the other tree's scripts.
use_tree() {
    root=$1
    for part in common setup build screen prefix device world tour; do
        source "$root/tools/lib/$part.sh"
    done
    arm_cleanups
    [[ $plainRoot == "$root" ]] || at_exit rm -f "$plainRoot"
}

# find_in FOLDER: opens the program with it as the device and searches; the rows go to the file "rows", the screen to a
# picture.
find_in() {
    wine_environment "$basePrefix/en" en
    map_drives "$basePrefix/en" "$1"
    start_screen 240x320
    at_exit stop_wine
    open_desktop 240x320
    start_program "$1"
    drive wait-window 60
    drive fill --name '' --contains '' --location "\\" --subfolders 0
    drive find
    drive wait-done
    drive rows | cut -f 1 >"$buildDir/rows"
    take_picture "$buildDir/a picture.png"
    end_tour_program
}

# expect_work_in NAME: a tree of that name, beside this tree's files so that Wine's can be shared.
expect_work_in() {
    local near
    near=$(mktemp -d "$realBuild/names-test.XXXXXX")
    mkdir -p "$near/$1/tools" "$near/device $1"
    cp -r "$root/tools/lib" "$near/$1/tools/"
    echo one >"$near/device $1/one.txt"
    write_project "$near/$1"
    use_tree "$near/$1"
    at_exit rm -rf "$near"
    build release
    expect_that "the program is built in '$1'" test -s "$root/build/release/small.exe"
    expect_that "its icon is in it" grep -qaF "$(head -c 200 "$root/parts/small.ico" | tail -c 40 | tr -d '\0')" \
        "$root/build/release/small.exe"
    take_built_program
    find_in "$near/device $1"
    expect_equal "rows of a device in '$1'" '\one.txt' "$(<"$buildDir/rows")"
    expect_equal "the size of its picture" 240x320 "$(identify -format '%wx%h' - <"$root/build/a picture.png")"
}

test_letters_that_a_shell_and_the_build_tools_read_differently() {
    expect_work_in "$oddName"
}

test_a_line_end_in_the_name() {
    expect_work_in $'two\nlines'
}

test_a_plain_name_needs_no_link() {
    root=/a/Plain-name_1.0
    source "$realBuild/../tools/lib/common.sh"
    expect_equal 'the build folder' '/a/Plain-name_1.0/build' "$buildDir"
}

test_a_link_of_somebody_else_is_not_followed() {
    local said status=0
    mkdir -p "$scratch/a tree/tools" "$scratch/elsewhere"
    cp -r "$root/tools/lib" "$scratch/a tree/tools/"
    use_tree "$scratch/a tree"
    ln -s "$scratch/elsewhere" "$plainRoot"
    said=$(make_build_folder 2>&1) || status=$?
    expect_equal 'status' 1 "$status"
    expect_match 'words' "*: $plainRoot is in the way" "$said"
    expect_equal 'what is elsewhere' '' "$(ls "$scratch/elsewhere")"
}

run_test_functions Names
