#!/bin/bash
# What the system hands out is released in its owner's destructor and nowhere else. The owners are platform/handles.h,
# platform/unique_handle.h and, behind the seam, whatever platform/desktop/ needs besides.
# shellcheck disable=SC1091,SC2154,SC2317 # tests are called by name, variables are shared
source "$(dirname "${BASH_SOURCE[0]}")/expect.sh"

program_folders='app base conditions fileops framework platform results search'

release_calls='DeleteObject|DeleteDC|ReleaseDC|EndPaint|DestroyIcon|DestroyCursor|DestroyMenu|ImageList_Destroy'
release_calls+='|RegCloseKey|CloseHandle|FindClose|FreeLibrary|GlobalFree|LocalFree|CoTaskMemFree|fclose'

# release_faults TREE: a line "file:line" for each release call outside the owners. The seam's definition of a function is
# no call.
release_faults() {
    # shellcheck disable=SC2086 # a list of words
    (cd "$1" && find $program_folders -name '*.h' -o -name '*.cpp' 2>"$scratch/missing folders") |
        grep -vE '^platform/(desktop/|handles\.h$|unique_handle\.h$)' |
        (cd "$1" && xargs -r grep -nE "\\b($release_calls)\\(" /dev/null) |
        grep -vE "^[^:]*:[0-9]*: *(//|inline BOOL ($release_calls)\\()" | cut -d : -f 1,2
}

# made_up FILE LINE...: a file of a made-up tree.
made_up() {
    local file=$1
    shift
    mkdir -p "$(dirname "$scratch/tree/$file")"
    printf '%s\n' "$@" >"$scratch/tree/$file"
}

test_nothing_of_the_project_is_released_outside_its_owner() {
    expect_equal 'release calls' '' "$(release_faults "$root")"
}

test_the_check_knows_the_calls_that_the_owners_make() {
    local call
    for call in DeleteObject ReleaseDC EndPaint DestroyIcon DestroyMenu ImageList_Destroy RegCloseKey CloseHandle \
        FindClose FreeLibrary fclose; do
        grep -qE "\\b$call\\(" "$root/platform/handles.h" || expect_equal 'no call in platform/handles.h' '' "$call"
        [[ $release_calls =~ (^|\|)$call(\||$) ]] || expect_equal 'not looked for' '' "$call"
    done
}

test_a_release_in_the_middle_of_a_function_is_found() {
    made_up app/box.cpp 'Box::~Box() {' '    if (font_ != nullptr) DeleteObject(font_);' '}'
    made_up search/file.cpp '    std::fclose(file);'
    made_up conditions/tree.cpp '    ce::FindClose(search);'
    expect_equal 'places' $'app/box.cpp:2\nconditions/tree.cpp:1\nsearch/file.cpp:1' "$(release_faults "$scratch/tree" | sort)"
}

test_owners_the_seam_and_comments_are_no_faults() {
    rm -rf "$scratch/tree"
    made_up platform/handles.h 'static void Release(HKEY key) { RegCloseKey(key); }'
    made_up platform/desktop/files.cpp '    CloseHandle(file);'
    made_up platform/files.h 'inline BOOL FindClose(HANDLE search) {'
    made_up app/box.h '// DeleteObject(font) is the owner'"'"'s.'
    expect_equal 'places' '' "$(release_faults "$scratch/tree")"
}

run_test_functions Owners
