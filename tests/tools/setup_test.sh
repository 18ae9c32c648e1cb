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

# What apt-get answers when it is asked for its plan, and how it tells its progress.
say_as_apt_get() {
    case " $* " in
        *' --assume-no '*) printf '%s\n' "$aptPlan" ;;
        *' install '*) printf 'dlstatus:1:12.5:Retrieving file 1 of 8\npmstatus:some:75.0:Installing some\n' ;;
    esac
}

usualPlan='The following NEW packages will be installed:
  some-package
Need to get 182 MB of archives.
After this operation, 1,021 MB of additional disk space will be used.
Abort.'

test_what_is_about_to_come_is_told_in_one_line_before_it_comes() {
    aptPlan=$usualPlan
    as_root() {
        [[ " $* " != *' -y install '* ]] || echo "installing" >&3
        say_as_apt_get "$@"
    }
    install_packages some-package another 3>"$scratch/said" 2>&3
    expect_equal 'words' "now downloading Debian's lists of packages, as root
now downloading 182 MB and installing (1,021 MB on disk), as root: some-package another and what these need
installing" "$(<"$scratch/said")"
}

test_the_part_that_is_there_already_is_left_out_of_the_download() {
    aptPlan='Need to get 12.3 kB/182 MB of archives.'
    as_root() { say_as_apt_get "$@"; }
    expect_match 'words' '*now downloading 12.3 kB and installing, as root: some-package and*' \
        "$(install_packages some-package 2>&1)"
}

test_packages_are_told_even_where_their_size_is_unknown() {
    aptPlan=''
    as_root() { say_as_apt_get "$@"; }
    expect_match 'words' '*now downloading Debian packages and installing, as root: some-package and*' \
        "$(install_packages some-package 2>&1)"
}

test_nothing_is_ever_asked() {
    as_root() { printf '%s\n' "$*" >>"$scratch/commands"; }
    install_packages some-package 2>/dev/null
    expect_that 'apt-get takes its own yes' grep -q -- '-y install some-package$' "$scratch/commands"
    expect_equal 'steps that may ask' '' "$(grep -v 'DEBIAN_FRONTEND=noninteractive' "$scratch/commands")"
    expect_equal 'steps that ask about files' '' "$(grep -v -- '--force-confdef.*--force-confold' "$scratch/commands")"
    expect_equal 'a plan that installs' '' "$(grep -- '--assume-no' "$scratch/commands" | grep -- ' -y ')"
}

test_the_progress_of_download_and_installation_is_shown_on_a_terminal() {
    has_terminal() { true; }
    aptPlan=$usualPlan
    as_root() { say_as_apt_get "$@"; }
    expect_match 'words' $'*\rdownloading: 12 % *\rinstalling: 75 % *' "$(install_packages some-package 2>&1)"
}

test_somebody_who_cannot_be_root_is_told_what_to_run() {
    local said status=0
    can_be_root() { false; }
    neededPackages=(bash no-such-package-anywhere)
    said=$(set_up_machine 2>&1) || status=$?
    expect_equal 'status' 1 "$status"
    expect_match 'words' '*: packages are missing; run as root: apt-get install --no-install-recommends no-such-package-anywhere*' "$said"
    expect_equal 'lines' 1 "$(wc -l <<<"$said")"
}

test_a_system_without_debians_packages_is_told_what_is_wanted() {
    local said status=0
    neededPackages=(bash some-package)
    command() { false; }
    said=$(set_up_machine 2>&1) || status=$?
    expect_equal 'status' 1 "$status"
    expect_match 'words' '*: the set-up knows Debian only; what it would install: bash some-package' "$said"
}

test_what_is_installed_is_not_asked_for_again() {
    # shellcheck disable=SC2034 # read by missing_packages
    neededPackages=(bash no-such-package-anywhere coreutils)
    expect_equal 'missing packages' 'no-such-package-anywhere ' "$(missing_packages)"
}

run_test_functions SetUp
