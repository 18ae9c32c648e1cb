#!/bin/bash
# The set-up of the machine, with apt-get and root's rights played by functions.
# shellcheck disable=SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"
source "$root/tools/lib/common.sh"
source "$root/tools/lib/setup.sh"
buildDir=$scratch

sleep() { :; }
can_be_root() { true; }

# A mirror that answers from its attempt number $answersFrom on; each attempt begins with an update.
as_root() {
    [[ " $* " != *' update '* ]] || echo attempt >>"$scratch/attempts"
    (($(wc -l <"$scratch/attempts") >= answersFrom))
}

test_a_mirror_that_hiccups_is_tried_again() {
    answersFrom=3
    expect_that 'the packages are installed' install_packages some-package 2>/dev/null
    expect_equal 'attempts' 3 "$(wc -l <"$scratch/attempts")"
}

test_a_dead_mirror_is_given_up_with_a_clear_message() {
    local said status=0
    answersFrom=99
    said=$(install_packages some-package 2>&1) || status=$?
    expect_equal 'status' 1 "$status"
    expect_equal 'attempts' 4 "$(wc -l <"$scratch/attempts")"
    expect_match 'last line' '*could not install the packages*some-package' "${said##*$'\n'}"
}

test_what_is_installed_is_not_asked_for_again() {
    # shellcheck disable=SC2034 # read by missing_packages
    neededPackages=(bash no-such-package-anywhere coreutils)
    expect_equal 'missing packages' 'no-such-package-anywhere ' "$(missing_packages)"
}

run_test_functions SetUp
