# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# The sample device: a small tree of folders as somebody would carry it about, in English and Japanese. Names,
# contents and times are the same wherever it is made, but for two files of "today" and "yesterday".

# put PATH TIME: standard input becomes that file of the device; lines end as on the device, in CR LF.
put() {
    mkdir -p "${1%/*}"
    sed 's/$/\r/' >"$1"
    touch -d "$2" "$1"
}

# put_shift_jis PATH TIME: the same in the encoding that Japanese devices use for text.
put_shift_jis() {
    mkdir -p "${1%/*}"
    sed 's/$/\r/' | iconv -f UTF-8 -t CP932 >"$1"
    touch -d "$2" "$1"
}

# put_filled PATH TIME BYTES LINE: the line over and over up to that size.
put_filled() {
    mkdir -p "${1%/*}"
    # The pipe is cut when there is enough, which is no failure.
    { yes "$4" || true; } 2>/dev/null | head -c "$3" >"$1"
    touch -d "$2" "$1"
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

put_japanese_documents() {
    put_shift_jis "My Documents/日本語/会議メモ.txt" "2002-07-16 10:00:00" <<<$'会議の予定\n来年の予算について話した。\n表とソートの説明'
    put_shift_jis "My Documents/日本語/日記/7月の旅行.txt" "2001-07-29 22:15:00" <<<$'京都へ行った。\nbudget hotel に泊まった。'
    put_shift_jis "My Documents/日本語/ﾒﾓ.txt" "2000-01-01 00:00:00" <<<'半角ｶﾅのﾒﾓ'
    put "My Documents/日本語/utf-8.txt" "2003-04-01 12:00:00" <<<'この文書は UTF-8 です。予算'
}

put_system_files() {
    put "Windows/Start Menu/Programs/Read me first.lnk" "2001-10-19 09:00:00" <<<'33#"\My Documents\Read me first.txt"'
    put "Windows/setup.log" "2001-10-19 08:59:00" <<<$'copying files\nsetup complete'
    put_filled "Windows/fonts.dat" "1997-09-01 00:00:00" 1023 "0123456789abcde"
    put_filled "Windows/sounds.dat" "1997-09-01 00:00:00" 1024 "0123456789abcde"
    put "Program Files/Notes/notes.ini" "2002-02-02 02:02:02" <<<$'[notes]\nfont=Tahoma'
    put "Temp/error.log" "2002-07-14 03:00:00" <<<'battery low'
    mkdir -p "Application Data"
}

put_storage_card() {
    put_filled "Storage Card/Music/song.wma" "2002-03-03 03:03:03" 3500000 "la la la"
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
    put_japanese_documents
    put_system_files
    put_storage_card
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
