#!/bin/bash
# An expectation names what it has got first and what it expects second, in every test.
# shellcheck disable=SC1091,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"

# What can only be expected: numbers, texts, truth values, lists that are written out.
expected='-?[0-9][0-9A-Za-z.'\'']*|(L|u8)?"([^"\\]|\\.)*"|true|false|nullptr|\(?(Names|Texts)[{(][^;]*[})]\)?|Shown\([^()]*\)'

# turned_round FOLDER...: the lines of expectations that begin with it.
turned_round() {
    grep -rnE --include='*.cpp' --include='*.h' "(EXPECT|ASSERT)_(EQ|STREQ)\(($expected), " "$@" || true
}

test_what_a_test_has_got_comes_first() {
    cd "$root" || exit
    expect_equal 'expectations' '' "$(turned_round tests fuzz bench)"
}

test_an_expected_number_text_or_list_in_first_place_is_found() {
    local line
    for line in 'EXPECT_EQ(0u, Close());' 'ASSERT_EQ(-1, Found());' 'EXPECT_STREQ(L"a, b", text);' \
        'EXPECT_EQ((Names{L"a", L"b"}), Found());' 'EXPECT_EQ(nullptr, window);' 'EXPECT_EQ(Shown(L"x", L"y"), Title());'; do
        printf '    %s\n' "$line" >"$scratch/some_test.cpp"
        expect_match "$line" "*$line" "$(turned_round "$scratch")"
    done
}

test_what_was_got_is_left_alone() {
    printf '%s\n' 'EXPECT_EQ(Close(), 0u);' 'EXPECT_EQ(rows, Found());' 'EXPECT_NE(nullptr, window);' \
        'EXPECT_EQ(10 * size, bytes);' >"$scratch/some_test.cpp"
    expect_equal 'found' '' "$(turned_round "$scratch")"
}

run_test_functions Expectations
