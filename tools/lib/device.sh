# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# The sample device: a small tree of folders as somebody would carry it about, in English and Japanese. Names,
# contents and times are the same wherever it is made, but for two files of "today" and "yesterday". Each of its
# documents is of a kind that the device opens (device_types.sh), and what the program asks for when it is started
# for the first time, "*.log" in the root alone, is there.

# make_folder_of PATH
make_folder_of() {
    [[ $1 != */* ]] || mkdir -p "${1%/*}"
}

# put PATH TIME: standard input becomes that file of the device; lines end as on the device, in CR LF.
put() {
    make_folder_of "$1"
    sed 's/$/\r/' >"$1"
    touch -d "$2" "$1"
}

# put_shift_jis PATH TIME: the same in the encoding that Japanese devices use for text.
put_shift_jis() {
    make_folder_of "$1"
    sed 's/$/\r/' | iconv -f UTF-8 -t CP932 >"$1"
    touch -d "$2" "$1"
}

# put_filled PATH TIME BYTES LINE: the line over and over up to that size.
put_filled() {
    make_folder_of "$1"
    # The pipe is cut when there is enough, which is no failure.
    { yes "$4" || true; } 2>/dev/null | head -c "$3" >"$1"
    touch -d "$2" "$1"
}

# put_shortcut PATH TIME TARGET: as the device writes them, with the length of the target in front.
put_shortcut() {
    put "$1" "$2" <<<"${#3}#$3"
}

# words NUMBER...: each as two bytes, the low one first.
words() {
    local number bytes
    for number; do
        printf -v bytes '\\x%02x\\x%02x' "$((number & 255))" "$((number >> 8 & 255))"
        printf '%b' "$bytes"
    done
}

# record FUNCTION WORD...: one step of a drawing.
record() {
    words "$(($# + 2))" 0 "$@"
}

# In colour RED GREEN BLUE draws a rectangle or an ellipse LEFT TOP RIGHT BOTTOM. The first brush is number 0.
brushes=0
choose_colour() {
    record 0x02fc 0 "$(($2 << 8 | $1))" "$3" 0
    record 0x012d "$brushes"
    brushes=$((brushes + 1))
}
draw_rectangle() {
    record 0x041b "$4" "$3" "$2" "$1"
}
draw_ellipse() {
    record 0x0418 "$4" "$3" "$2" "$1"
}

# put_picture PATH TIME: standard input, the steps of a drawing of 200 x 120, becomes a picture file.
put_picture() {
    local steps=$1.steps size sum=0 word
    local -a place=(0xcdd7 0x9ac6 0 0 0 200 120 96 0 0)
    make_folder_of "$1"
    { record 0x020b 0 0 && record 0x020c 120 200 && cat && record 0; } >"$steps"
    size=$(($(stat -c %s "$steps") / 2 + 9))
    for word in "${place[@]}"; do
        sum=$((sum ^ word))
    done
    { words "${place[@]}" "$sum" 1 9 0x300 "$size" 0 16 10 0 0 && cat "$steps"; } >"$1"
    rm "$steps"
    touch -d "$2" "$1"
}

# set_attributes PATH NUMBER: 1 read-only, 2 hidden, 4 system, as Wine keeps them. A file system without room for
# them has plain files.
set_attributes() {
    (($2 & 1)) && chmod a-w "$1"
    # Nothing that every machine has sets such a property but the system call itself.
    perl -e 'my ($path, $name, $value) = @ARGV; syscall(188, $path, $name, $value, length $value, 0)' \
        "$1" user.DOSATTRIB "$(printf '0x%x' "$2")" || true
}

put_documents() {
    put "My Documents/Read me first.txt" "2001-10-19 09:00:00" <<<'This is a sample device. Look for *.txt, or for files that contain "budget".'
    put "My Documents/Shopping list.txt" "yesterday 12:00" <<<$'milk\nbread\nbatteries for the handheld'
    put "My Documents/Today.txt" "today 00:00" <<<'Made when the sample device was made.'
    put "My Documents/Business/Budget 2001.txt" "2001-11-30 16:20:00" <<<$'Budget 2001\n\nbudget for travel: 1200\nbudget for paper: 80'
    put "My Documents/Business/Budget 2002.csv" "2002-01-07 08:45:10" <<<$'item,amount\ntravel budget,1350\npaper,95'
    put "My Documents/Business/Meeting notes.txt" "2002-07-15 09:05:30" <<<$'Present: all\nWe talked about the budget and the new office.'
    put "My Documents/Business/Letters/Letter to the landlord.txt" "1998-03-02 18:30:00" <<<'Dear Sir, the heating is cold again.'
    put "My Documents/Personal/Addresses.txt" "2002-05-20 21:11:00" <<<$'Aunt May, 12 Elm Street\nBob, 3 River Lane'
    put "My Documents/Personal/Recipes/pancakes.txt" "1999-12-31 23:59:59" <<<$'two eggs\na cup of milk\nflour'
    put "My Documents/Personal/Empty note.txt" "2000-02-29 00:00:00" </dev/null
}

put_rich_documents() {
    put "My Documents/Business/Letters/Invitation.rtf" "2002-06-03 10:20:00" <<'TEXT'
{\rtf1\ansi\deff0{\fonttbl{\f0 Tahoma;}}\f0\fs24 Dear friends,\par\par
the new office is \b open\b0 . Come and see it on \i Friday\i0 !\par}
TEXT
    put "My Documents/Personal/Travel/Places to see.htm" "2002-05-11 20:15:00" <<'TEXT'
<html>
<head><title>Places to see</title></head>
<body><h1>Places to see</h1><ul><li>the harbour<li>the old library<li>the night train</ul></body>
</html>
TEXT
    put "My Documents/Personal/Travel/Trains.csv" "2002-05-12 07:30:00" <<<$'from,to,leaves\nharbour,library,8:05\nlibrary,harbour,17:40'
}

draw_house() {
    choose_colour 160 200 240 && draw_rectangle 0 0 200 120
    choose_colour 255 224 64 && draw_ellipse 150 10 186 46
    choose_colour 64 160 64 && draw_rectangle 0 90 200 120
    choose_colour 200 72 48 && draw_rectangle 50 50 130 100
    choose_colour 255 255 255 && draw_rectangle 62 60 86 80 && draw_rectangle 98 64 116 100
}

draw_mountain() {
    choose_colour 255 200 160 && draw_rectangle 0 0 200 120
    choose_colour 232 64 48 && draw_ellipse 120 14 164 58
    choose_colour 80 96 160 && draw_ellipse -20 50 140 220
    choose_colour 255 255 255 && draw_ellipse 38 46 82 66
}

put_pictures() {
    draw_house | put_picture "My Documents/Pictures/The new house.wmf" "2002-04-21 15:00:00"
    draw_mountain | put_picture "My Documents/Pictures/富士山.wmf" "2001-07-28 05:40:00"
}

put_shortcuts() {
    put_shortcut "My Documents/Budget.lnk" "2002-01-07 09:00:00" '"\My Documents\Business\Budget 2001.txt"'
    put_shortcut "My Documents/Storage Card.lnk" "2002-01-07 09:01:00" '"\Storage Card"'
    put_shortcut "My Documents/Lost letter.lnk" "1999-05-05 05:05:00" '"\My Documents\Business\Lost letter.txt"'
    put_shortcut "Windows/Start Menu/Programs/Read me first.lnk" "2001-10-19 09:00:00" '"\My Documents\Read me first.txt"'
    put_shortcut "Windows/Start Menu/Programs/Notepad.lnk" "2001-10-19 09:00:00" 'C:\windows\system32\notepad.exe'
    put_shortcut "Windows/Start Menu/Programs/Today.lnk" "2002-02-02 02:03:00" '"\Program Files\Today\Today.exe"'
}

put_logs() {
    put "Install.log" "2001-10-19 08:58:00" <<<$'copying files\ninstalled: Today'
    put "Battery.log" "2002-07-14 03:00:00" <<<$'low\ncharging\nfull'
    put "Synchronisation of 2002-07-15 with the desktop at home.log" "2002-07-15 21:30:00" <<<'12 files changed'
}

put_program() {
    mkdir -p "Program Files/Today"
    [[ ! -e $buildDir/release/sample_program.exe ]] ||
        cp "$buildDir/release/sample_program.exe" "Program Files/Today/Today.exe"
    put "Program Files/Today/Today.ini" "2002-02-02 02:02:02" <<<$'[Today]\nlong=1'
    touch -d "2002-02-02 02:02:02" "Program Files/Today"/*
}

put_hidden_files() {
    put "Application Data/Today/last.ini" "2002-07-15 07:00:00" <<<$'[Today]\nasked=42'
    set_attributes "Application Data/Today/last.ini" 2
    put_filled "Windows/registry.dat" "2002-07-15 21:31:00" 65536 "0123456789abcde"
    set_attributes "Windows/registry.dat" 7
    set_attributes "My Documents/Personal/Addresses.txt" 1
}

put_japanese_documents() {
    put_shift_jis "My Documents/日本語/会議メモ.txt" "2002-07-16 10:00:00" <<<$'会議の予定\n来年の予算について話した。\n表とソートの説明'
    put_shift_jis "My Documents/日本語/日記/7月の旅行.txt" "2001-07-29 22:15:00" <<<$'京都へ行った。\nbudget hotel に泊まった。'
    put_shift_jis "My Documents/日本語/ﾒﾓ.txt" "2000-01-01 00:00:00" <<<'半角ｶﾅのﾒﾓ'
    put "My Documents/日本語/utf-8.txt" "2003-04-01 12:00:00" <<<'この文書は UTF-8 です。予算'
}

put_system_files() {
    put "Windows/setup.log" "2001-10-19 08:59:00" <<<$'copying files\nsetup complete'
    put_filled "Windows/fonts.dat" "1997-09-01 00:00:00" 1023 "0123456789abcde"
    put_filled "Windows/sounds.dat" "1997-09-01 00:00:00" 1024 "0123456789abcde"
    put "Temp/error.log" "2002-07-14 03:00:00" <<<'battery low'
}

put_storage_card() {
    put_filled "Storage Card/Backup/Mail.bak" "2002-03-03 03:03:03" 3500000 "Dear friends, nothing new here."
    # Zeros that take no room on the disk.
    truncate -s 24M "Storage Card/Backup/Object store.bak"
    touch -d "2002-03-04 19:00:00" "Storage Card/Backup/Object store.bak"
    put_filled "Storage Card/Logs/device.log" "2002-06-30 23:00:00" 1048576 "2002-06-30 23:00:00 nothing happened"
    put "Storage Card/Logs/short.log" "2002-06-30 23:00:01" <<<'one line about the budget'
    put "Storage Card/Backup/Meeting notes.txt" "2002-07-15 09:05:30" <<<$'Present: all\nWe talked about the budget and the new office.'
    put "Storage Card/Backup/index.htm" "2002-04-10 11:00:00" <<<'<html><body>My files</body></html>'
}

# Folders get their times last, since every file put into one changes it.
set_folder_times() {
    find . -depth -type d -exec touch -d "2001-10-19 08:00:00" {} +
}

fill_device() (
    set -euo pipefail
    cd "$1"
    put_documents
    put_rich_documents
    put_pictures
    put_japanese_documents
    put_shortcuts
    put_logs
    put_program
    put_system_files
    put_storage_card
    put_hidden_files
    set_folder_times
)

# make_device FOLDER: makes the sample device there anew.
make_device() {
    local target=$1
    rm -rf "$target" "$target.unfinished"
    mkdir -p "$target.unfinished"
    LC_ALL=C.UTF-8 fill_device "$target.unfinished"
    sha256sum <"$root/tools/lib/device.sh" >"$target.unfinished.stamp"
    mv -T "$target.unfinished" "$target"
    mv -T "$target.unfinished.stamp" "$target.stamp"
}

# keep_device FOLDER: the same, but what the user did to an earlier one stays.
keep_device() {
    if [[ ! -d $1 || $(cat "$1.stamp" 2>/dev/null) != "$(sha256sum <"$root/tools/lib/device.sh")" ]]; then
        make_device "$1"
    fi
}
