# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# The tour: the real window on a screen of its own, with a picture of each step and a page that shows them. What
# changes nothing is done on the device asked for, the rest on a sample device.

tourDir=$buildDir/tour

# From resources/resource_ids.h: commands, controls and pages.
deleteCommand=40103
propertiesCommand=40105
aboutCommand=40901
datePage=1 anyTime=11201 between=11202 fromDate=12101
etcPage=2 fileType=10401
targetOfShortcut=10701
yesToAll=20

pictures=0

# picture NAME TEXT: numbered in the order of the tour; the text is its line on the page.
picture() {
    local file
    pictures=$((pictures + 1))
    progress "picture $pictures"
    file=$(printf '%02d-%s.png' "$pictures" "$1")
    take_picture "$tourDir/$file"
    printf '%s\t%s\n' "$file" "$2" >>"$tourDir/pictures.txt"
}

tour_pages() {
    picture start "The window as it opens: conditions above, rows below."
    drive fill "${conditions[@]}"
    picture name-page "What to look for: a part of the name or a pattern, a text in the file, a folder."
    drive page "$datePage" , click "$datePage" "$between" , drop "$datePage" "$fromDate"
    picture calendar "When the file was changed, with a calendar for each day."
    drive click "$datePage" "$anyTime"
    picture date-page "Files of any time, or of the last days."
    drive page "$etcPage"
    picture etc-page "The file's type and size."
    drive drop "$etcPage" "$fileType"
    picture type-list "The types that the device knows."
    drive escape , page 0
}

# The search itself, stopped once in the middle to look at its dialog.
tour_search() {
    say "searching"
    drive find --hold
    picture finding "During the search: the folder at hand, and a way to abort."
    with_clock searching drive release , wait-done "$searchDeadline"
    picture results "The rows found."
}

tour_menus() {
    drive menu 1
    picture file-menu "What can be done with the selected row."
    drive escape , menu 2
    picture view-menu "How the rows are shown, and the About box."
    drive escape , menu 3
    picture option-menu "Letter case in texts, and a new set of conditions."
    drive escape
}

# What can be done with the first row, as far as it changes nothing.
tour_row() {
    if (($(wc -l <"$tourDir/rows.txt") > 1)); then
        drive sort 0
        picture sorted "A tap on a heading sorts the rows by it, another one the other way round."
    fi
    drive command "$deleteCommand"
    picture delete-question "Nothing is deleted without a question."
    drive cancel , command "$propertiesCommand"
    picture properties "The properties of a file."
    drive cancel
}

tour_dialogs() {
    drive browse
    picture browser "The folder to start in, chosen from a tree."
    drive cancel , command "$aboutCommand"
    picture about "The About box tells the memory that is left."
    drive cancel
}

# end_tour_program: it is asked to close and must end well.
end_tour_program() {
    drive close
    await_program 30 || fail "the program did not end"
    program_ended_well
}

# tour_device DEVICE: on the device asked for; the rows go to rows.txt.
tour_device() {
    start_program "$1"
    drive wait-window 60
    tour_pages
    tour_search
    drive rows >"$tourDir/rows.txt"
    tour_menus
    [[ ! -s $tourDir/rows.txt ]] || tour_row
    tour_dialogs
    end_tour_program
}

# put_letters DEVICE LANGUAGE: two letters, a shortcut to one of them and an older copy of it. Sets letter and
# otherLetter, the names without the ending.
put_letters() {
    letter=Letter otherLetter='Old Letter'
    [[ $2 == en ]] || letter=手紙 otherLetter=古い手紙
    (
        cd "$1" || exit 1
        put "My Documents/Tour/$letter.txt" "2002-08-01 10:00:00" <<<'Dear reader, this is the newer letter.'
        put "My Documents/Tour/$otherLetter.txt" "2001-08-01 10:00:00" <<<'Dear reader.'
        put_shift_jis "My Documents/Tour/$letter.lnk" "2002-08-01 10:05:00" \
            <<<"33#\"\\My Documents\\Tour\\$letter.txt\""
        put "Storage Card/Tour/$letter.txt" "2002-07-01 09:00:00" <<<'Dear reader, this is the older one.'
    )
}

# tour_files DEVICE: renaming, which another file's name prevents, and a shortcut's target.
tour_files() {
    start_program "$1"
    drive wait-window 60 , fill --name "$letter" --contains '' --location '\My Documents\Tour' --subfolders 0 , \
        find , wait-done , select "$letter.txt" , rename "$otherLetter.txt"
    picture rename "A file is renamed in its row."
    # The system's reason first, then what it means.
    drive press-enter , wait-dialog , cancel , wait-dialog
    picture error "What cannot be done is told: another file has that name."
    drive cancel , select "$letter.lnk" , command "$propertiesCommand" , turn 1 "$targetOfShortcut"
    picture shortcut "A shortcut's properties tell its target as well."
    drive cancel
    end_tour_program
}

# tour_operation DEVICE: a copy that meets an older file.
tour_operation() {
    start_program "$1" 'P:\quorin_operation.exe' "\\My Documents\\Tour\\$letter.txt" '\Storage Card\Tour'
    drive wait-window 60 , wait-dialog "$yesToAll"
    picture replace-question "A file operation in progress asks before it replaces a file."
    drive cancel
    end_tour_program
}

# page_start LANGUAGE SCREEN ROWS and page_end: what is around the pictures. The text is well-formed XML as well.
page_start() {
    local words=English
    [[ $1 == en ]] || words=Japanese
    cat <<TEXT
<!DOCTYPE html>
<html lang="en" xmlns="http://www.w3.org/1999/xhtml">
<head>
<meta charset="utf-8" />
<meta name="viewport" content="width=device-width, initial-scale=1" />
<title>QuorinSearch: a tour</title>
<style>
body { font-family: sans-serif; margin: 2em; background: #f4f4f0; color: #222; }
.step { display: inline-block; vertical-align: top; margin: 0 1.5em 2em 0; width: $((2 * ${2%x*}))px; max-width: 100%; }
.step p { margin: 0.3em 0 0 0; }
.step img { max-width: 100%; height: auto; image-rendering: pixelated; box-shadow: 0 0 0 1px #888; }
</style>
</head>
<body>
<h1>QuorinSearch: a tour</h1>
<p>$words, ${2/x/ x } pixels, shown at twice their size. Rows found: $3.</p>
TEXT
}

page_end() {
    printf '</body>\n</html>\n'
}

# page_steps SCREEN: each picture with its line.
page_steps() {
    local file text number=0
    while IFS=$'\t' read -r file text; do
        number=$((number + 1))
        printf '<div class="step">\n<img src="%s" width="%d" height="%d" alt="%s" />\n<p>%d. %s</p>\n</div>\n' \
            "$file" "$((2 * ${1%x*}))" "$((2 * ${1#*x}))" "$text" "$number" "$text"
    done <"$tourDir/pictures.txt"
}

# write_page LANGUAGE SCREEN ROWS
write_page() {
    {
        page_start "$@"
        page_steps "$2"
        page_end
    } >"$tourDir/index.html"
}

# open_tour_world DEVICE LANGUAGE SCREEN: E: is the sample device.
open_tour_world() {
    local world=$prefixDir/tour
    at_exit rm -rf "$world" "$world.unfinished" "$stepOutput.printed" "$stepOutput.said"
    make_world "$world" "$2" "$3"
    map_drives "$world" "$1"
    ln -sfn "$tourDir/device" "$world/dosdevices/e:"
    wine_environment "$world" "$2"
    start_screen "$3"
    at_exit stop_wine
    say "starting QuorinSearch"
    open_desktop "$3"
}

# take_tour DEVICE LANGUAGE SCREEN: prints the rows found, one per line, on standard output. Without a device it is
# the sample device.
take_tour() {
    local device=${1:-$tourDir/device} rows letter otherLetter
    rm -f "$tourDir"/*.png "$tourDir"/{rows.txt,pictures.txt,index.html}
    mkdir -p "$tourDir"
    make_device "$tourDir/device"
    open_tour_world "$device" "$2" "$3"
    tour_device "$device"
    end_progress
    tr -d '\r' <"$tourDir/rows.txt"
    put_letters "$tourDir/device" "$2"
    tour_files "$tourDir/device"
    tour_operation "$tourDir/device"
    rows=$(wc -l <"$tourDir/rows.txt")
    write_page "$2" "$3" "$rows"
    say "rows found: $rows"
    say "the pictures: $(path_from_here "$tourDir/index.html")"
}
