#!/bin/bash
# What looks wrong and is meant: docs/compatibility.md, the marks in the code and the tests name the same things.
# shellcheck disable=SC1091,SC2016,SC2154,SC2317 # tests are called by name, variables are shared, backticks are text
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"

page=docs/compatibility.md

# quoted_in_entries TREE PATTERN: a line "NAME WORD" for each word between backticks that has this form, in the
# entry of this name.
quoted_in_entries() {
    awk -v form="^($2)\$" '
        /^#/ { name = "" }
        match($0, /^- \*\*`[^`]*`\*\*/) {
            name = substr($0, 6, RLENGTH - 8)
            $0 = substr($0, RLENGTH + 1)
        }
        name != "" {
            count = split($0, parts, "`")
            for (i = 2; i <= count; i += 2) if (parts[i] ~ form) print name, parts[i]
        }' "$1/$page" | sort
}

listed_names() {
    sed -n 's/^- \*\*`\([^`]*\)`\*\*.*/\1/p' "$1/$page" | sort
}

listed_places() {
    quoted_in_entries "$1" '[a-z_]+/[a-z0-9_/]+[.](cpp|h|rc)'
}

listed_tests() {
    quoted_in_entries "$1" '[A-Z][A-Za-z0-9]*[.][a-z0-9_]+(/[a-z0-9_]+)?'
}

# in_sources TREE PATTERN: "FILE:LINE:TEXT" for every line of the program that holds the pattern.
in_sources() {
    (cd "$1" && grep -rnE --include='*.cpp' --include='*.h' --include='*.rc' --exclude-dir=build \
        --exclude-dir=tests --exclude-dir='.?*' -- "$2" . | sed 's|^\./||') || true
}

# marked_places TREE: a line "NAME FILE" for each mark, with an empty name for one that has no proper one.
marked_places() {
    in_sources "$1" 'QUIRK' | awk -F: '{
        file = $1
        count = split($0, parts, "QUIRK")
        for (i = 2; i <= count; ++i) {
            name = match(parts[i], /^: [a-z0-9]+(-[a-z0-9]+)+/) ? substr(parts[i], 3, RLENGTH - 2) : "?"
            print name, file
        }
    }' | sort -u
}

# declared_tests TREE: "Suite.name" of each.
declared_tests() {
    find "$1/tests" -name '*.cpp' -exec cat {} + | tr '\n' ' ' |
        grep -oE '\bTEST(_F|_P)?\( *[A-Za-z0-9_]+, *[A-Za-z0-9_]+' | sed -E 's/^TEST[_FP]*\( *//; s/, */./' | sort -u
}

# complain_of_tests TREE: a test that is named with a row has this row among the texts of the tests.
complain_of_tests() {
    local declared name wanted row
    declared=$(declared_tests "$1")
    while read -r name wanted; do
        row=
        if [[ $wanted == */* ]]; then row=${wanted#*/}; fi
        grep -qxF -- "${wanted%%/*}" <<<"$declared" || echo "$page: $name names the test $wanted, which does not exist"
        [[ -z $row ]] || grep -rqF --include='*.cpp' -- "\"$row\"" "$1/tests" ||
            echo "$page: $name names the row '$row' of ${wanted%%/*}, which does not exist"
    done < <(listed_tests "$1")
}

# complaints TREE: a line for everything in which page, marks and tests disagree.
complaints() {
    local names places marks name file
    names=$(listed_names "$1")
    places=$(listed_places "$1")
    marks=$(marked_places "$1")
    [[ -n $names ]] || echo "$page lists nothing"
    uniq -d <<<"$names" | sed "s|.*|$page: & is listed twice|"
    while read -r name file; do
        [[ -n $name ]] || continue
        grep -qxF -- "$name $file" <<<"$marks" ||
            echo "$page: $name is said to stand in $file, where nothing says 'QUIRK: $name'"
    done <<<"$places"
    while read -r name file; do
        [[ -n $name ]] || continue
        if [[ $name == '?' ]]; then
            echo "$file: a mark without a name; on one line it says 'QUIRK: some-name'"
        else
            grep -qxF -- "$name $file" <<<"$places" ||
                echo "$file: says 'QUIRK: $name', but $page has no entry '$name' that names this file"
        fi
    done <<<"$marks"
    comm -23 <(sort -u <<<"$names") <(cut -d' ' -f1 <<<"$places" | sort -u) | sed -n "s|..*|$page: & names no file|p"
    comm -23 <(sort -u <<<"$names") <(listed_tests "$1" | cut -d' ' -f1 | sort -u) |
        sed -n "s|..*|$page: & names no test|p"
    complain_of_tests "$1"
}

# make_tree: a tree in which everything agrees, for a test to break.
make_tree() {
    mkdir -p "$scratch/docs" "$scratch/search" "$scratch/tests"
    printf '%s\n' '# Title' '' '- **`odd-thing`**: Seen `*.*`. Kept.' '  `search/odd.cpp` ·' '  `Odd.is_kept`,' \
        '  `Odd.has_rows/one`' >"$scratch/$page"
    printf '%s\n' '// QUIRK: odd-thing. Why.' 'int odd;' >"$scratch/search/odd.cpp"
    printf '%s\n' 'TEST(Odd, is_kept) {}' 'TEST_P(Odd,' '       has_rows) {}' 'x = {"one"};' >"$scratch/tests/odd.cpp"
}

# expect_complaint TEXT: about the tree that was made, and no other.
expect_complaint() {
    expect_equal 'what is said of it' "$1" "$(complaints "$scratch")"
}

test_the_page_the_marks_and_the_tests_agree() {
    expect_equal 'disagreements' '' "$(complaints "$root")"
}

test_what_is_meant_is_marked_and_not_worded_in_another_way() {
    expect_equal 'lines to mark with QUIRK and a name, or to word without these words' '' \
        "$(in_sources "$root" '[Dd]eliberate|[Oo]n purpose')"
}

test_a_tree_in_which_all_agree_is_not_complained_of() {
    make_tree
    expect_complaint ''
}

test_an_entry_without_its_mark_is_told() {
    make_tree
    echo 'int odd;' >"$scratch/search/odd.cpp"
    expect_complaint "$page: odd-thing is said to stand in search/odd.cpp, where nothing says 'QUIRK: odd-thing'"
}

test_a_mark_that_has_moved_to_another_file_is_told_from_both_sides() {
    make_tree
    mv "$scratch/search/odd.cpp" "$scratch/search/even.cpp"
    expect_complaint "$page: odd-thing is said to stand in search/odd.cpp, where nothing says 'QUIRK: odd-thing'
search/even.cpp: says 'QUIRK: odd-thing', but $page has no entry 'odd-thing' that names this file"
}

test_a_mark_without_an_entry_is_told() {
    make_tree
    echo '    // QUIRK: other-thing' >>"$scratch/search/odd.cpp"
    expect_complaint "search/odd.cpp: says 'QUIRK: other-thing', but $page has no entry 'other-thing' that names this file"
}

test_a_mark_without_a_name_is_told() {
    make_tree
    echo '// kept: QUIRK' >>"$scratch/search/odd.cpp"
    expect_complaint "search/odd.cpp: a mark without a name; on one line it says 'QUIRK: some-name'"
}

test_a_test_that_does_not_exist_is_told() {
    make_tree
    sed -i 's/has_rows/had_rows/' "$scratch/tests/odd.cpp"
    expect_complaint "$page: odd-thing names the test Odd.has_rows/one, which does not exist"
}

test_a_row_that_does_not_exist_is_told() {
    make_tree
    sed -i 's/"one"/"two"/' "$scratch/tests/odd.cpp"
    expect_complaint "$page: odd-thing names the row 'one' of Odd.has_rows, which does not exist"
}

test_an_entry_without_file_and_test_is_told() {
    make_tree
    printf '%s\n' '- **`bare-thing`**: Seen.' >>"$scratch/$page"
    expect_complaint "$page: bare-thing names no file
$page: bare-thing names no test"
}

test_an_entry_that_is_listed_twice_is_told() {
    make_tree
    sed -n 3,6p "$scratch/$page" >"$scratch/again"
    cat "$scratch/again" >>"$scratch/$page"
    expect_complaint "$page: odd-thing is listed twice"
}

test_a_page_without_entries_is_told() {
    make_tree
    echo '# Title' >"$scratch/$page"
    echo 'int odd;' >"$scratch/search/odd.cpp"
    expect_complaint "$page lists nothing"
}

run_test_functions Quirks
