#!/bin/bash
# The tour: whole searches by ./run through the real window, on the sample device and on a folder of the user's, with
# the pictures and the page that are left.
# shellcheck disable=SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"

tourDir=$root/build/tour

# tour OPTION...: the paths found, sorted, without a trailing line end.
tour() {
    bash "$root/run" "$@" >"$scratch/rows" 2>"$scratch/said" </dev/null || {
        cat "$scratch/said"
        exit 1
    }
    cut -f 1 "$scratch/rows" | LC_ALL=C sort
}

lines() {
    printf '%s\n' "$@"
}

# from_page PATH: what stands there in the page, which is read as XML.
from_page() {
    xmllint --xpath "$1" "$tourDir/index.html"
}

steps=(start name-page calendar date-page etc-page type-list finding results file-menu view-menu option-menu)
rowSteps=(sorted delete-question properties)
lastSteps=(browser about rename error shortcut replace-question)

# expect_page SCREEN STEP...: the page shows exactly these pictures, each with a line of its own, of the screen's size,
# with something in it and unlike every other.
expect_page() {
    local screen=$1 number=0 step file texts
    shift
    expect_equal 'what is wrong with the page as XML' '' "$(xmllint --noout "$tourDir/index.html" 2>&1)"
    expect_equal 'what is wrong with the page as HTML' '' "$(xmllint --html --noout "$tourDir/index.html" 2>&1)"
    expect_equal 'pictures of the page' $# "$(from_page 'count(//*[local-name()="img"])')"
    for step; do
        number=$((number + 1))
        file=$(printf '%02d-%s.png' "$number" "$step")
        expect_equal "picture $number" "$file" "$(from_page "string((//*[local-name()='img'])[$number]/@src)")"
        expect_match "line $number" "$number. [A-Z]*." "$(from_page "string((//*[local-name()='div'])[$number]/*[local-name()='p'])")"
        expect_equal "size of $file" "$screen" "$(identify -format '%wx%h' "$tourDir/$file")"
        expect_that "$file has more than one colour" test "$(identify -format '%k' "$tourDir/$file")" -gt 4
    done
    expect_equal 'files' "$(printf '%s\n' "$tourDir"/*.png | wc -l)" $#
    expect_equal 'pictures that are there twice' '' "$(identify -format '%#\n' "$tourDir"/*.png | sort | uniq -d)"
    texts=$(from_page '//*[local-name()="img"]/@alt' | sort)
    expect_equal 'lines that are there twice' '' "$(uniq -d <<<"$texts")"
}

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
    # Without the steps of a set-up that may have come before.
    shown=$(tr -d '\r' <"$scratch/shown" | sed -n '/^ *starting/,$p')
    expect_equal 'what the terminal shows' "$(lines 'starting QuorinSearch' searching 'rows found: 14' \
        "the pictures: $(cd "$root" && realpath --relative-base="$OLDPWD" build/tour/index.html)")" "$shown"
    expect_page 240x320 "${steps[@]}" "${rowSteps[@]}" "${lastSteps[@]}"
}

test_a_display_that_cannot_be_reached_leads_to_the_tour_and_no_rows_are_an_answer() {
    expect_equal 'paths' '' "$(DISPLAY=:250 tour --japanese --contains 予算)"
    expect_match 'words' "*the display ':250' cannot be reached, so this is the tour*" "$(<"$scratch/said")"
    expect_that 'no rows are told' grep -qx 'rows found: 0' "$scratch/said"
    expect_page 240x320 "${steps[@]}" "${lastSteps[@]}"
    expect_match 'the page tells its world' '*Japanese, 240 x 320 pixels*Rows found: 0.*' "$(<"$tourDir/index.html")"
}

test_shift_jis_text_is_found_on_an_english_system() {
    expect_equal 'paths' '\My Documents\日本語\会議メモ.txt' \
        "$(DISPLAY='' tour --handheld --contains=予算 --location='\My Documents' --subfolders)"
    expect_match 'words' '*there is no display to open a window on (DISPLAY is not set), so this is the tour*' \
        "$(<"$scratch/said")"
    expect_page 640x240 "${steps[@]}" "${rowSteps[@]}" "${lastSteps[@]}"
    expect_match 'the page tells its world' '*English, 640 x 240 pixels*Rows found: 1.*' "$(<"$tourDir/index.html")"
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
    expect_page 640x240 "${steps[@]}" "${rowSteps[@]}" "${lastSteps[@]}"
}

run_test_functions Tour
