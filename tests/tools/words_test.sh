#!/bin/bash
# How the scripts speak: paths that can be opened from where the user is, progress on a terminal only, and whom they
# wait for.
# shellcheck disable=SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"
source "$root/tools/lib/common.sh"
source "$root/tools/lib/screen.sh"
source "$root/tools/lib/build.sh"
buildDir=$scratch/build

# on_terminal COMMAND: what the shell command shows on a terminal. A terminal ends its lines in CR LF.
on_terminal() {
    cat >"$scratch/shown.sh" <<TEXT
root=$(printf %q "$root")
source "\$root/tools/lib/common.sh"
source "\$root/tools/lib/build.sh"
$1
TEXT
    script -qec "bash $(printf %q "$scratch/shown.sh")" /dev/null </dev/null
}

test_a_path_below_the_users_folder_is_short_and_one_elsewhere_is_whole() {
    mkdir -p "$scratch/here/below" "$scratch/beside"
    cd "$scratch/here" || exit 1
    expect_equal 'below' 'below/page.html' "$(path_from_here "$scratch/here/below/page.html")"
    expect_equal 'beside' "$scratch/beside/page.html" "$(path_from_here "$scratch/beside/page.html")"
    ln -s "$scratch/here/below" "$scratch/link"
    expect_equal 'by way of a link' 'below/page.html' "$(path_from_here "$scratch/link/page.html")"
}

test_a_path_can_be_pasted_behind_a_prompt() {
    local path
    expect_equal 'a plain one' '/a/日本語/b.png' "$(in_shell_quotes /a/日本語/b.png)"
    # shellcheck disable=SC2016 # nothing of it is to be expanded
    for path in '/a b' "/it's" '/a&b' '/(c)' '/$HOME' '/d;e' '/"q"' $'/tab\tbed' '/~x' '/#' '/a*b?' '/[x]' '/back\slash' '/`x`' '/!x'; do
        expect_equal "pasting $path" "$path" "$(eval "printf '%s' $(in_shell_quotes "$path")")"
        expect_match "quotes of $path" "'*'" "$(in_shell_quotes "$path")"
    done
}

test_progress_is_for_a_terminal() {
    expect_equal 'without one' '' "$(progress "3 of 7" 2>&1; end_progress 2>&1)"
    expect_match 'on one' $'\r3 of 7 *\r' "$(on_terminal 'progress "3 of 7"; end_progress')"
}

test_progress_gives_way_to_what_is_said() {
    expect_match 'the line' $'*\r*\rdone\r' "$(on_terminal 'progress "3 of 7"; say done')"
}

test_a_long_step_counts_its_seconds_on_a_terminal() {
    expect_match 'on a terminal' $'*\rworking: 1 s *\r' "$(on_terminal 'with_clock working sleep 2.5')"
    expect_equal 'without one' '' "$(with_clock working sleep 0.1 2>&1)"
}

test_a_long_step_keeps_its_status() {
    local status=0
    with_clock working false || status=$?
    expect_equal 'without a terminal' 1 "$status"
    expect_match 'on one' '*status 3?' "$(on_terminal 'with_clock working bash -c "exit 3" || echo "status $?"')"
}

test_the_steps_of_a_build_are_counted_on_a_terminal() {
    local steps='printf "[1/20] Building a\nwords\n[2/20] Building b\n" | show_build_steps release'
    expect_equal 'without one' 'building: release' "$(eval "$steps" 2>&1)"
    expect_match 'on one' $'building: release\r\n*\r1 of 20 *\r2 of 20 *' "$(on_terminal "$steps")"
}

test_a_build_with_nothing_to_do_says_nothing() {
    expect_equal 'words' '' "$(echo 'ninja: no work to do.' | show_build_steps release 2>&1)"
}

# Holds the lock until the test is over.
hold_lock() {
    mkdir -p "$buildDir"
    exec 9>"$buildDir/.$1.lock"
    flock 9
}

test_who_holds_a_lock_is_told_in_the_users_words() {
    local said status=0
    hold_lock thing
    said=$(with_lock thing 0 "it is already open" echo never 2>&1) || status=$?
    expect_equal 'status' 1 "$status"
    expect_match 'words' '*: it is already open' "$said"
}

test_a_lock_without_a_command_is_a_mistake() {
    local said status=0
    said=$(with_lock thing 0 make_something 2>&1) || status=$?
    expect_equal 'status' 1 "$status"
    expect_match 'words' "*: there is nothing to do under the lock 'thing'" "$said"
}

test_a_long_wait_is_announced() {
    hold_lock thing
    (
        with_lock thing 30 "another one is building" echo mine >"$scratch/got" 2>"$scratch/said"
    ) 9>&- &
    expect_that 'the wait is announced' wait_until 10 grep -qs '^waiting: another one is building$' "$scratch/said"
    exec 9>&-
    wait "$!"
    expect_equal 'what ran in the end' mine "$(<"$scratch/got")"
}

test_a_missing_display_is_told_from_one_that_cannot_be_reached() {
    expect_equal 'none' 'there is no display to open a window on (DISPLAY is not set)' "$(DISPLAY='' why_no_display)"
    expect_equal 'a wrong one' "the display ':250' cannot be reached" "$(DISPLAY=:250 why_no_display)"
}

run_test_functions Words
