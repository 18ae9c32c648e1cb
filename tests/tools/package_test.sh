#!/bin/bash
# The package: what is in it, that it is the same whoever makes it and when, and that what is in it works alone.
# shellcheck disable=SC1090,SC1091,SC2030,SC2031,SC2016,SC2034,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"
for part in common setup build screen prefix device world tour package; do
    source "$root/tools/lib/$part.sh"
done

version=$(package_version)
package=$buildDir/quorinsearch-$version.zip

make_it() {
    bash "$root/tools/package" >"$scratch/said" 2>&1 </dev/null || {
        cat "$scratch/said"
        exit 1
    }
}

# Unpacks the package with another tool than the one that packed it. Sets unpacked.
unpack_it() {
    unpacked=$scratch/unpacked/quorinsearch-$version
    mkdir -p "$scratch/unpacked"
    (cd "$scratch/unpacked" && cmake -E tar xf "$package") || exit 1
}

# The program as the build links it, once more.
link_again() {
    local command
    command=$(ninja -C "$buildDir/release" -t commands quorinsearch.exe | tail -n 1)
    [[ $command == *' -o quorinsearch.exe '* ]] || fail "the build links the program in another way: $command"
    (cd "$buildDir/release" && eval "${command/ -o quorinsearch.exe / -o $(printf %q "$1") }") || exit 1
}

starts_with_mark() {
    [[ $(head -c 3 "$1" | od -An -tx1) == ' ef bb bf' ]]
}

every_line_ends_in_cr_lf() {
    [[ $(grep -c $'\r$' "$1") == "$(wc -l <"$1")" ]] && (($(wc -l <"$1") > 10))
}

test_it_holds_the_program_its_library_the_licence_and_the_pages() {
    unpack_it
    expect_equal 'files' "LICENSE.txt README.txt TKCONV.DLL docs/using.html docs/using.ja.html quorinsearch.exe" \
        "$(cd "$unpacked" && find . -type f ! -name '*.png' -printf '%P\n' | LC_ALL=C sort | paste -sd ' ')"
    expect_that 'the program is the built one' cmp "$unpacked/quorinsearch.exe" "$buildDir/release/quorinsearch.exe"
    expect_that 'the library is the built one' cmp "$unpacked/TKCONV.DLL" "$buildDir/release/TKCONV.DLL"
    expect_equal 'the licence' "$(<"$root/LICENSE")" "$(tail -c +4 "$unpacked/LICENSE.txt" | tr -d '\r')"
}

test_the_checksum_beside_it_is_its_own() {
    cd "$buildDir" || exit
    expect_that 'the sum is right' sha256sum --status -c "$package.sha256"
}

test_its_texts_can_be_read_in_every_notepad() {
    local text
    unpack_it
    for text in README.txt LICENSE.txt; do
        expect_that "$text begins with the mark of UTF-8" starts_with_mark "$unpacked/$text"
        expect_that "each line of $text ends in CR LF" every_line_ends_in_cr_lf "$unpacked/$text"
    done
    expect_match 'the first line of README.txt' "*QuorinSearch $version"$'\r' "$(head -n 1 "$unpacked/README.txt")"
    expect_that 'README.txt speaks Japanese too' grep -q 'ファイル検索' "$unpacked/README.txt"
}

# expect_whole_page FILE: with its title, every picture, and tables that were understood.
expect_whole_page() {
    local page=$1 title=$2 picture count=0
    expect_equal "title of $page" "<title>$title</title>" "$(grep -F '<title>' "$unpacked/docs/$page")"
    while read -r picture; do
        count=$((count + 1))
        expect_equal "$picture" PNG "$(identify -format '%m' "$unpacked/docs/$picture")"
    done < <(linked_pictures <"$unpacked/docs/$page")
    expect_that "$page shows both screens in both languages and more" test "$count" -ge 8
    expect_that "the tables of $page are tables" grep -q '<td>' "$unpacked/docs/$page"
    expect_equal "rows of $page that were not understood" 0 "$(grep -c '^| ' "$unpacked/docs/$page")"
}

test_its_pages_have_their_pictures_and_tables() {
    unpack_it
    expect_whole_page using.html 'Using QuorinSearch'
    expect_whole_page using.ja.html 'QuorinSearch の使い方'
    expect_equal 'line ends in a Japanese text, shown as blanks' '' "$(grep -E '(。|、)$' "$unpacked/docs/using.ja.html")"
}

test_each_page_leads_to_the_other() {
    unpack_it
    expect_that 'English to Japanese' grep -qF '<a href="using.ja.html">日本語</a>' "$unpacked/docs/using.html"
    expect_that 'Japanese to English' grep -qF '<a href="using.html">English</a>' "$unpacked/docs/using.ja.html"
    expect_equal 'links to pages that are not there' '' "$(cat "$unpacked"/docs/*.html | grep -o 'href="[^"]*\.md"')"
}

# What is said of one condition in one language is said in the other: as many headings, rows of tables and points.
shape_of() {
    grep -oE '^(#+|\||-) ' "$1"
}
test_the_page_says_as_much_in_either_language() {
    expect_equal 'headings, rows and points' "$(shape_of "$root/docs/using.md")" "$(shape_of "$root/docs/using.ja.md")"
    expect_equal 'figures' "$(figures_of "$root/docs/using.md")" "$(figures_of "$root/docs/using.ja.md")"
}

# Examples and names in code letters, each once, in alphabetical order.
figures_of() {
    grep -oE '`[^`]+`' "$1" | LC_ALL=C sort -u
}

test_it_is_the_same_whoever_makes_it_and_when() {
    cp "$package" "$scratch/first.zip"
    (
        umask 077
        export TZ=Asia/Tokyo LC_ALL=ja_JP.UTF-8
        # The times of a zip are even seconds.
        sleep 2
        make_it
    ) || exit 1
    expect_that 'both packages are the same' cmp "$scratch/first.zip" "$package"
}

test_the_program_is_the_same_whenever_it_is_linked() {
    link_again "$scratch/again.exe"
    expect_that 'both programs are the same' cmp "$scratch/again.exe" "$buildDir/release/quorinsearch.exe"
    expect_equal 'the time stamp' ' 00 00 00 00' \
        "$(od -An -tx1 -j "$((16#$(od -An -tx4 -j 60 -N 4 "$scratch/again.exe" | tr -d ' ') + 8))" -N 4 "$scratch/again.exe")"
}

# As an English system finds Japanese text only with the library, the search tells that both came along.
test_what_is_unpacked_searches_in_a_fresh_system() {
    unpack_it
    arm_cleanups
    make_device "$scratch/device"
    prepare_wine
    world=$scratch/world
    make_world "$world" en 240x320
    map_drives "$world" "$scratch/device"
    ln -sfn "$unpacked" "$world/dosdevices/q:"
    wine_environment "$world" en
    start_screen 240x320
    at_exit stop_wine
    open_desktop 240x320
    (cd "$scratch/device" && exec setsid "$wine" 'Q:\quorinsearch.exe') </dev/null >/dev/null 2>&1 &
    drive wait-window 60
    drive fill --name '' --contains 予算 --location "\\" --subfolders 1
    drive find
    drive wait-done 60
    expect_match 'rows' '\\My Documents\\日本語\\会議メモ.txt'$'\t*' "$(drive rows)"
    drive close
}

make_it
run_test_functions Package
