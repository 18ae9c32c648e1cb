#!/bin/bash
# The tour: whole searches by ./run through the real window, on the sample device and on a folder of the user's.
# shellcheck disable=SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"

# tour OPTION...: the paths found, sorted, without a trailing line end.
tour() {
    bash "$root/run" --tour "$@" >"$scratch/rows" 2>"$scratch/said" </dev/null || {
        cat "$scratch/said"
        exit 1
    }
    cut -f 1 "$scratch/rows" | LC_ALL=C sort
}

lines() {
    printf '%s\n' "$@"
}

test_without_conditions_every_text_file_of_the_sample_device_is_found() {
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
        '\Storage Card\Backup\Meeting notes.txt')" "$(tour)"
    expect_match 'the row of a file' '*\\Meeting notes.txt'$'\t62\t*\t''02/07/15 09:05:30' \
        "$(grep -F 'Business\Meeting notes.txt' "$scratch/rows")"
    expect_that 'there is a picture of the results' compgen -G "$root/build/tour/*-results.png" >/dev/null
    expect_that 'there is a picture of the sorted rows' compgen -G "$root/build/tour/*-sorted.png" >/dev/null
    expect_that 'there is a picture of the question' compgen -G "$root/build/tour/*-delete-question.png" >/dev/null
    expect_that 'there is a picture of the properties' compgen -G "$root/build/tour/*-properties.png" >/dev/null
    expect_that 'there is a picture of the folder browser' compgen -G "$root/build/tour/*-browser.png" >/dev/null
    expect_that 'there is a picture of the About box' compgen -G "$root/build/tour/*-about.png" >/dev/null
}

test_a_content_search_finds_exactly_the_files_with_the_text() {
    expect_equal 'paths' "$(lines \
        '\My Documents\Business\Budget 2001.txt' \
        '\My Documents\Business\Budget 2002.csv' \
        '\My Documents\Business\Meeting notes.txt')" \
        "$(tour --handheld --contains budget --location '\My Documents\Business' --subfolders)"
}

test_shift_jis_text_is_found_on_an_english_and_a_japanese_system() {
    expect_equal 'English' '\My Documents\日本語\会議メモ.txt' "$(tour --contains 予算 --subfolders)"
    expect_equal 'Japanese' '\My Documents\日本語\会議メモ.txt' \
        "$(tour --japanese --handheld --contains 予算 --subfolders)"
}

test_no_rows_is_an_answer() {
    expect_equal 'paths' '' "$(tour --contains 予算)"
    expect_match 'the last line' 'rows found: 0; *' "$(tail -n 1 "$scratch/said")"
    expect_that 'there is a picture of the results' compgen -G "$root/build/tour/*-results.png" >/dev/null
    expect_that 'there is a picture of the About box' compgen -G "$root/build/tour/*-about.png" >/dev/null
}

test_a_folder_of_the_user_is_the_root() {
    mkdir -p "$scratch/own/sub folder"
    echo one >"$scratch/own/one.txt"
    echo two >"$scratch/own/sub folder/二.dat"
    expect_equal 'paths' "$(lines '\one.txt' '\sub folder' '\sub folder\二.dat')" "$(tour --folder "$scratch/own")"
}

run_test_functions Tour
