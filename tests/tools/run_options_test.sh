#!/bin/bash
# What ./run and ./test answer to their command lines before anything is set up: help, or one line and status 2.
# shellcheck disable=SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"

# A copy that anybody may read. It has no build tools behind it, so that only what comes before them can work.
copy_scripts() {
    mkdir -p "$1/tools"
    cp "$root/run" "$root/test" "$1/"
    cp -r "$root/tools/lib" "$1/tools/"
    chmod -R a+rX "$scratch"
}

# expect_refusal TEXT OPTION...
expect_refusal() {
    local text=$1 status=0
    shift
    bash "$root/run" "$@" >"$scratch/out" 2>"$scratch/err" </dev/null || status=$?
    expect_equal "status of ./run $*" 2 "$status"
    expect_equal "lines of ./run $*" 1 "$(wc -l <"$scratch/err")"
    expect_equal "output of ./run $*" '' "$(<"$scratch/out")"
    expect_match "what ./run $* says" "run: $text (see *run --help)" "$(<"$scratch/err")"
}

test_an_unknown_option_is_refused() {
    expect_refusal "unknown option '--sideways'" --sideways
    expect_refusal "unknown option '-x'" -x
    expect_refusal "unknown option '--sideways=2'" --sideways=2
    expect_refusal "'folder' is not an option" folder
    expect_refusal "'' is not an option" ''
}

test_an_option_without_its_value_is_refused() {
    local option
    for option in --folder --name --contains --location; do
        expect_refusal "option $option needs a value" --tour "$option"
    done
}

test_an_option_in_place_of_a_value_is_refused() {
    local option
    for option in --folder --name --contains --location; do
        expect_refusal "option $option needs a value, but '--tour' looks like an option*" "$option" --tour
        expect_refusal "option $option needs a value, but '-x' looks like an option; if it is meant, write $option='-x'" \
            "$option" -x
    done
}

test_a_value_may_follow_an_equals_sign() {
    expect_refusal "no such folder: $scratch/a=b" --folder="$scratch/a=b"
    expect_refusal "the folder's name is empty" --folder=
    expect_refusal "no such folder: $scratch/nowhere" --name=-x --contains= --location='\a b' --folder="$scratch/nowhere"
}

test_an_option_that_takes_no_value_refuses_one() {
    local option
    for option in --handheld --japanese --tour --subfolders --help; do
        expect_refusal "option $option takes no value" "$option=yes"
    done
}

test_a_missing_folder_is_refused() {
    expect_refusal "no such folder: $scratch/nowhere" --folder "$scratch/nowhere"
    ln -s nowhere "$scratch/dangling"
    expect_refusal "no such folder: $scratch/dangling" --folder "$scratch/dangling"
}

test_a_file_in_place_of_a_folder_is_refused() {
    : >"$scratch/file"
    expect_refusal "not a folder: $scratch/file" --folder "$scratch/file"
    (cd "$scratch" && expect_refusal "not a folder: file" --folder file)
}

test_an_empty_folder_name_is_refused() {
    expect_refusal "the folder's name is empty" --folder ''
}

# as_nobody COMMAND WORD...: root may read everything, so that it has to be somebody else.
as_nobody() {
    if ((EUID == 0)); then
        setpriv --reuid=65534 --regid=65534 --clear-groups "$@"
    else
        "$@"
    fi
}

# words_for_nobody FOLDER: what ./run says to somebody without rights.
words_for_nobody() {
    local status=0
    as_nobody bash "$scratch/copy/run" --folder "$1" 2>"$scratch/err" </dev/null || status=$?
    expect_equal 'status' 2 "$status"
    sed 's/ (see .*//' "$scratch/err"
}

test_a_folder_without_permission_is_told_from_a_missing_one() {
    copy_scripts "$scratch/copy"
    mkdir -p "$scratch/closed/inner"
    chmod 700 "$scratch/closed/inner"
    ((EUID == 0)) || chmod 000 "$scratch/closed/inner"
    expect_equal 'a closed folder' "run: no permission to read the folder: $scratch/closed/inner" \
        "$(words_for_nobody "$scratch/closed/inner")"
    chmod 700 "$scratch/closed"
    ((EUID == 0)) || chmod 000 "$scratch/closed"
    expect_equal 'a folder in a closed one' "run: no permission to look for the folder: $scratch/closed/inner" \
        "$(words_for_nobody "$scratch/closed/inner")"
    expect_equal 'a missing one' "run: no such folder: $scratch/nowhere" "$(words_for_nobody "$scratch/nowhere")"
    chmod 700 "$scratch/closed"
}

test_a_tree_that_nobody_may_write_to_is_told() {
    local status=0
    copy_scripts "$scratch/copy"
    ((EUID == 0)) || chmod -R a-w "$scratch/copy"
    as_nobody bash "$scratch/copy/run" >"$scratch/out" 2>"$scratch/err" </dev/null || status=$?
    chmod -R u+w "$scratch/copy"
    expect_equal 'status' 1 "$status"
    expect_equal 'words' "run: no permission to write in $scratch/copy, where QuorinSearch is built" "$(<"$scratch/err")"
}

test_help_is_not_an_error() {
    local option
    for option in -h --help; do
        expect_match 'help of ./run' 'Usage: ./run *--subfolders*' "$(bash "$root/run" --tour "$option")"
        expect_match 'help of ./test' 'Usage: ./test *' "$(bash "$root/test" "$option")"
    done
}

test_a_link_to_the_scripts_does_as_well() {
    local script
    for script in run test; do
        ln -s "$root/$script" "$scratch/link to $script"
        ln -s "link to $script" "$scratch/$script"
        expect_match "help of a link to $script" "Usage: ./$script *" "$(bash "$scratch/$script" --help)"
        expect_match "help of a relative link to $script" "Usage: ./$script *" "$(cd "$scratch" && bash "$script" --help)"
    done
}

test_help_comes_in_a_folder_of_any_name() {
    local name
    for name in "a b & 'c' \"d\" (e) \$f; #g %h [i] \\j 日本語" $'two\nlines\n' '-n'; do
        copy_scripts "$scratch/$name"
        expect_match "help in '$name'" 'Usage: ./run *' "$(cd "$scratch/./$name" && ./run --help)"
        expect_match "help of '$name'" 'Usage: ./run *' "$("$scratch/$name/run" --help)"
    done
}

run_test_functions RunOptions
