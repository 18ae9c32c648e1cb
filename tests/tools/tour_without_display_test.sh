#!/bin/bash
# The tour that ./run takes where it cannot open a window.
# shellcheck disable=SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"
source "$(dirname "${BASH_SOURCE[0]}")/tour_page.sh"

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

run_test_functions TourWithoutDisplay
