#!/bin/bash
# The sample device: what is on it, and that it is the same wherever it is made.
# shellcheck disable=SC1091,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"
for part in common device device_types; do
    # shellcheck source=/dev/null
    source "$root/tools/lib/$part.sh"
done

# What no document is.
filesOfPrograms='dat bak exe'

extensions_of() {
    find "$1" -type f -name '*.*' -printf '%f\n' | sed 's/.*\.//' | sort -u
}

known_extensions() {
    cut -d '|' -f 2 <<<"$deviceTypes" | tr -s ' ' '\n' | sed -n 's/^\.//p' | sort -u
}

# Names, sizes, times and permissions, and what is in the files.
description_of() {
    (cd "$1" && find . -printf '%p %s %T+ %m\n' | sort && find . -type f -exec sha256sum {} + | sort -k 2)
}

test_it_is_the_same_wherever_it_is_made() {
    make_device "$scratch/one"
    sleep 1.1
    make_device "$scratch/two"
    expect_that 'there are files' test -s "$scratch/one/My Documents/Read me first.txt"
    expect_equal 'the two devices' "$(description_of "$scratch/one")" "$(description_of "$scratch/two")"
}

test_what_a_first_start_asks_for_is_in_the_root() {
    make_device "$scratch/device"
    expect_that 'there is a *.log in the root' compgen -G "$scratch/device/*.log" >/dev/null
}

test_the_first_find_of_a_first_start_finds_something() {
    bash "$root/run" --tour --name '*.log' >"$scratch/rows" 2>"$scratch/said" </dev/null
    expect_equal 'the rows' $'\\Battery.log\n\\Install.log\n\\Synchronisation of 2002-07-15 with the desktop at home.log' \
        "$(cut -f 1 "$scratch/rows" | LC_ALL=C sort)"
}

# attributes_of FILE: as Wine keeps them, in hexadecimal; nothing where the file system has no room for them.
attributes_of() {
    perl -e 'my ($path, $name, $value) = (@ARGV, "\0" x 8); syscall(191, $path, $name, $value, 8); print $value =~ /^(\w*)/' \
        "$1" user.DOSATTRIB
}

test_some_files_are_read_only_hidden_or_of_the_system() {
    make_device "$scratch/device"
    expect_equal 'a text to be read' '444' "$(stat -c %a "$scratch/device/My Documents/Personal/Addresses.txt")"
    expect_equal 'the registry' '444' "$(stat -c %a "$scratch/device/Windows/registry.dat")"
    [[ -n $(attributes_of "$scratch/device/My Documents/Personal/Addresses.txt") ]] || return 0
    expect_equal 'a hidden file' '0x2' "$(attributes_of "$scratch/device/Application Data/Today/last.ini")"
    expect_equal 'a hidden read-only file of the system' '0x7' "$(attributes_of "$scratch/device/Windows/registry.dat")"
}

test_every_document_is_of_a_kind_that_the_device_knows() {
    local extension
    make_device "$scratch/device"
    while read -r extension; do
        [[ " $filesOfPrograms " != *" $extension "* ]] || continue
        expect_that ".$extension is known" grep -qx "$extension" <(known_extensions)
    done < <(extensions_of "$scratch/device")
}

test_every_kind_that_the_device_knows_is_there() {
    local extension
    make_device "$scratch/device"
    while read -r extension; do
        [[ $extension != html ]] || continue
        expect_that "there is a .$extension" grep -qx "$extension" <(extensions_of "$scratch/device")
    done < <(known_extensions)
}

test_there_are_old_and_new_large_and_empty_files() {
    make_device "$scratch/device"
    expect_that 'one is of the last century' test -n "$(find "$scratch/device" -type f ! -newermt 2000-01-01)"
    expect_that 'one is of this week' test -n "$(find "$scratch/device" -type f -mtime -7)"
    expect_that 'one is empty' test -n "$(find "$scratch/device" -type f -empty)"
    expect_that 'one is larger than 20 MB' test -n "$(find "$scratch/device" -type f -size +20M)"
}

test_there_are_japanese_texts_in_both_encodings() {
    make_device "$scratch/device"
    expect_match 'in Shift-JIS' '*会議の予定*' "$(iconv -f CP932 -t UTF-8 "$scratch/device/My Documents/日本語/会議メモ.txt")"
    expect_match 'in UTF-8' '*この文書*' "$(cat "$scratch/device/My Documents/日本語/utf-8.txt")"
}

test_a_shortcut_carries_the_length_of_its_target() {
    make_device "$scratch/device"
    expect_equal 'the text' $'40#"\\My Documents\\Business\\Budget 2001.txt"\r' "$(cat "$scratch/device/My Documents/Budget.lnk")"
}

run_test_functions SampleDevice
