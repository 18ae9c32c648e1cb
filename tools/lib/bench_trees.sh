# shellcheck shell=bash

# The folders that the benchmark works on. Made on this side: Wine would take minutes for what takes seconds here.

# make_folders_of_files FOLDER: 20,000 files of one byte in 500 folders of two levels, of eight types.
make_folders_of_files() {
    local folder type types=(txt htm html dat doc bmp wav xyz) number
    mkdir -p "$1"/folder\ {0..24}/folder\ {1..19}
    for folder in "$1"/folder*/ "$1"/folder*/folder*/; do
        for number in {0..39}; do
            type=${types[number % 8]}
            printf x >"$folder/document $number.$type"
        done
    done
}

# make_many_folders FOLDER: 20,000 in three levels, and nothing else.
make_many_folders() {
    mkdir -p "$1"/loose\ {1..100} "$1"/folder\ {1..10}
    (cd "$1" && printf '%s\0' folder\ {1..10}/folder\ {1..39}/folder\ {1..50} | xargs -0 mkdir -p)
}

# text_of BYTES: lines such as texts have, none of which holds what is searched for.
text_of() {
    awk -v size="$1" 'BEGIN {
        while (size > 0) {
            text = sprintf("Line %d of a text that goes on about nothing in particular.\r\n", ++line)
            printf "%s", substr(text, 1, size)
            size -= length(text)
        }
    }'
}

# make_texts FOLDER: 4 of 25 MB, and 10,000 that are 100 MB together.
make_texts() {
    local number
    mkdir -p "$1/large" "$1/small"
    text_of 26214400 >"$1/large/1.txt"
    for number in 2 3 4; do
        cp "$1/large/1.txt" "$1/large/$number.txt"
    done
    cat "$1"/large/*.txt | split --bytes=10486 --numeric-suffixes --suffix-length=5 --additional-suffix=.txt - "$1/small/"
}

# make_kinds FOLDER: ten folders, in each an application, a file with an icon of its own and one of each type.
make_kinds() {
    local number
    for number in {0..9}; do
        mkdir -p "$1/folder $number"
        touch "$1/folder $number"/{program.exe,picture.ico,one.txt,one.htm,one.html,one.dat,one.doc,one.bmp,one}
    done
}

# make_like SOURCE FOLDER: the names of a folder of this machine, without links and without what is in the files.
make_like() {
    mkdir -p "$2"
    (cd "$1" && find . -xdev -type d ! -path '*\\*' -print0) | (cd "$2" && xargs -0 mkdir -p)
    (cd "$1" && find . -xdev -type f ! -path '*\\*' -print0) | (cd "$2" && xargs -0 touch)
}

# make_bench_trees FOLDER SOURCE: all of them, each by the name that the benchmark knows.
make_bench_trees() {
    make_folders_of_files "$1/files"
    make_many_folders "$1/folders"
    make_texts "$1/texts"
    make_kinds "$1/kinds"
    make_like "$2" "$1/real"
}
