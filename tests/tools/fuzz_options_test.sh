#!/bin/bash
# What tools/fuzz answers to a wrong command line, and how a corpus is packed.
# shellcheck disable=SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"
source "$root/tools/lib/common.sh"
buildDir=$scratch
source "$root/tools/lib/fuzzing.sh"

# expect_refusal TEXT WORD...
expect_refusal() {
    local text=$1 status=0
    shift
    bash "$root/tools/fuzz" "$@" >"$scratch/out" 2>"$scratch/err" </dev/null || status=$?
    expect_equal "status of tools/fuzz $*" 2 "$status"
    expect_equal "output of tools/fuzz $*" '' "$(<"$scratch/out")"
    expect_match "what tools/fuzz $* says" "*$text*" "$(<"$scratch/err")"
}

test_an_unknown_target_is_refused_with_the_names_of_all() {
    expect_refusal "no target 'nothing'; there are: command_lines *walks" nothing
}

test_what_is_no_number_of_seconds_is_refused() {
    expect_refusal "not a number of seconds: '1h'" names 1h
    expect_refusal "not a number of seconds: '0'" names 0
}

test_every_target_has_a_source_and_a_corpus() {
    local target
    for target in $(all_targets); do
        expect_that "fuzz/$target.cpp is there" test -s "$root/fuzz/$target.cpp"
        expect_that "fuzz/corpus/$target.txt is there" test -s "$root/fuzz/corpus/$target.txt"
    done
    expect_equal 'sources with a target' "$(all_targets)" \
        "$(sed -n 's|^    {"\([a-z_]*\)", Fuzz.*|\1|p' "$root/fuzz/fuzz_targets.h")"
}

test_a_corpus_comes_back_as_it_was_packed() {
    mkdir "$scratch/inputs"
    printf 'ab\0\n\xFF' >"$scratch/inputs/one"
    : >"$scratch/inputs/none"
    printf 'c' >"$scratch/inputs/short"
    pack_corpus "$scratch/inputs" "$scratch/corpus.txt"
    expect_equal 'the corpus' $'\n63\n6162000AFF' "$(<"$scratch/corpus.txt")"
    unpack_corpus "$scratch/corpus.txt" "$scratch/again"
    expect_equal 'the inputs' "$(cat "$scratch"/inputs/{none,short,one} | od -c)" \
        "$(cat "$scratch"/again/kept-{1,2,3} | od -c)"
}

run_test_functions FuzzOptions
