#!/bin/bash
# The tour: whole searches by ./run through the real window, on the sample device and on a folder of the user's, with
# the pictures and the page that are left.
# shellcheck disable=SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"
source "$(dirname "${BASH_SOURCE[0]}")/tour_page.sh"

# On a terminal, where a Wine that can see it would speak into it.
test_without_conditions_every_text_file_of_the_sample_device_is_found() {
    local shown
    script -qec "bash $(printf %q "$root/run") --tour >$(printf %q "$scratch/rows")" /dev/null </dev/null >"$scratch/shown"
    expect_equal 'paths' "$(lines \
        '\My Documents\Business\Budget 2001.txt' \
        '\My Documents\Business\Letters\Letter to the landlord.txt' \
        '\My Documents\Business\Meeting notes.txt' \
        '\My Documents\Personal\Addresses.txt' \
        '\My Documents\Personal\Empty note.txt' \
        '\My Documents\Personal\Recipes\pancakes.txt' \
        '\My Documents\Read me first.txt' \
        '\My Documents\Shopping list.txt' \
        '\My Documents\Today.txt' \
        '\My Documents\日本語\utf-8.txt' \
        '\My Documents\日本語\会議メモ.txt' \
        '\My Documents\日本語\日記\7月の旅行.txt' \
        '\My Documents\日本語\ﾒﾓ.txt' \
        '\Storage Card\Backup\Meeting notes.txt')" "$(cut -f 1 "$scratch/rows" | LC_ALL=C sort)"
    expect_match 'the row of a file' '*\\Meeting notes.txt'$'\t62\t*\t''02/07/15 09:05:30' \
        "$(grep -F 'Business\Meeting notes.txt' "$scratch/rows")"
    # Without the progress, and without the steps of a set-up that may have come before.
    shown=$(sed 's/\r*$//; s/.*\r//' "$scratch/shown" | sed -n '/^starting/,$p')
    expect_equal 'what the terminal shows' "$(lines 'starting QuorinSearch' searching 'rows found: 14' \
        "the pictures: $(cd "$root" && realpath --relative-base="$OLDPWD" build/tour/index.html)")" "$shown"
    expect_match 'the progress' $'*\rpicture 9 *' "$(<"$scratch/shown")"
    expect_page 240x320 "${steps[@]}" sorted "${rowSteps[@]}" "${lastSteps[@]}"
    expect_browser_shows 240x320
}

# all_of FOLDER: names, times and bytes.
all_of() {
    (cd "$1" && find . -printf '%p %T@ %s\n' && find . -type f -exec sha256sum {} +) | LC_ALL=C sort
}

test_a_folder_of_the_user_is_the_root_and_stays_as_it_is() {
    local before page
    mkdir -p "$scratch/own it & more/sub folder"
    cd "$scratch/own it & more" || exit 1
    echo one >one.txt
    echo two >"sub folder/二.dat"
    before=$(all_of .)
    expect_equal 'paths' "$(lines '\one.txt' '\sub folder' '\sub folder\二.dat')" \
        "$(tour --tour --japanese --handheld --folder .)"
    expect_equal 'the folder' "$before" "$(all_of .)"
    page=$(sed -n 's/^the pictures: //p' "$scratch/said")
    expect_that 'the page can be opened from here' bash -c "test -s $page"
    expect_page 640x240 "${steps[@]}" sorted "${rowSteps[@]}" "${lastSteps[@]}"
}

run_test_functions Tour
