#!/bin/bash
# What ./run answers to a wrong command line: one line, status 2, before anything is set up.
# shellcheck disable=SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"

# expect_refusal TEXT OPTION...
expect_refusal() {
    local text=$1 status=0
    shift
    bash "$root/run" "$@" >"$scratch/out" 2>"$scratch/err" </dev/null || status=$?
    expect_equal "status of ./run $*" 2 "$status"
    expect_equal "lines of ./run $*" 1 "$(wc -l <"$scratch/err")"
    expect_equal "output of ./run $*" '' "$(<"$scratch/out")"
    expect_match "what ./run $* says" "*$text*" "$(<"$scratch/err")"
}

test_an_unknown_option_is_refused() {
    expect_refusal "unknown option '--sideways'" --sideways
    expect_refusal "unknown option 'folder'" folder
}

test_an_option_without_its_value_is_refused() {
    local option
    for option in --folder --name --contains --location; do
        expect_refusal "option $option needs a value" --tour "$option"
    done
}

test_a_missing_folder_is_refused() {
    expect_refusal "no such folder: $scratch/nowhere" --folder "$scratch/nowhere"
}

test_a_file_in_place_of_a_folder_is_refused() {
    : >"$scratch/file"
    expect_refusal "no such folder: $scratch/file" --folder "$scratch/file"
}

test_an_empty_folder_name_is_refused() {
    expect_refusal "the folder's name is empty" --folder ''
}

test_help_is_not_an_error() {
    expect_match 'help' 'Usage: ./run *--subfolders*' "$(bash "$root/run" --help)"
}

run_test_functions RunOptions
