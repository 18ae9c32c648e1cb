# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# The tour: a search through the real window on a screen of its own, with a picture of each step.

tourDir=$buildDir/tour

searchDeadline=600

# Delete, Properties and About..., as in resources/resource_ids.h.
deleteCommand=40103
propertiesCommand=40105
aboutCommand=40901

# drive STEP WORD...: one step of the driver, which has a deadline of its own; this one is for a driver that hangs.
# Waited for in the background, so that a signal ends the script at once.
drive() {
    timeout -k 5 "$((searchDeadline + 30))" "$wine" 'P:\quorin_driver.exe' "$@" </dev/null &
    wait "$!" || fail "the step '$1' failed"
}

# fill_conditions: types what was asked for into the "Name" page.
fill_conditions() {
    drive fill "${conditions[@]}"
}

pictures=0

# picture NAME: numbered in the order of the tour.
picture() {
    pictures=$((pictures + 1))
    take_picture "$(printf '%s/%02d-%s.png' "$tourDir" "$pictures" "$1")"
}

# The search itself, stopped once in the middle to look at its dialog.
tour_search() {
    say "searching"
    drive find --hold
    picture finding
    drive release
    drive wait-done "$searchDeadline"
    picture results
}

tour_pages() {
    picture start
    fill_conditions
    picture name-page
    drive page 1
    picture date-page
    drive page 2
    picture etc-page
    drive page 0
}

# What can be done with the first row, as far as it changes nothing.
tour_row() {
    drive sort 0
    picture sorted
    drive command "$deleteCommand"
    picture delete-question
    drive cancel
    drive command "$propertiesCommand"
    picture properties
    drive cancel
}

tour_dialogs() {
    drive browse
    picture browser
    drive cancel
    drive command "$aboutCommand"
    picture about
    drive cancel
}

# Runs on the screen that is there; the rows go to the file $1.
tour_steps() {
    drive wait-window 60
    tour_pages
    tour_search
    drive rows >"$1"
    [[ ! -s $1 ]] || tour_row
    tour_dialogs
    drive close
    await_program 30 || fail "the program did not end"
    ((programStatus == 0)) || fail "the program ended with status $programStatus"
}

# take_tour DEVICE LANGUAGE SCREEN: prints the rows found, one per line, on standard output.
take_tour() {
    local world=$prefixDir/tour
    rm -f "$tourDir"/*.png "$tourDir/rows.txt"
    mkdir -p "$tourDir"
    at_exit rm -rf "$world" "$world.unfinished"
    make_world "$world" "$2" "$3"
    map_drives "$world" "$1"
    wine_environment "$world" "$2"
    start_screen "$3"
    at_exit stop_wine
    say "starting QuorinSearch"
    open_desktop "$3"
    start_program "$1"
    tour_steps "$tourDir/rows.txt"
    tr -d '\r' <"$tourDir/rows.txt"
    say "rows found: $(wc -l <"$tourDir/rows.txt"); pictures are in build/tour/"
}
