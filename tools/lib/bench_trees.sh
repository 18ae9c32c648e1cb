# shellcheck shell=bash

# The folders that the benchmark works on. Made on this side: Wine would take minutes for what takes seconds here.
# Each stays where it is for the next run.

# make_files_for_rows FOLDER FILES: in folders of forty, of eight types, with random names, sizes and times; the
# same ones every time. The files are holes: nothing reads them.
make_files_for_rows() {
    perl -e '
        my ($root, $files) = @ARGV;
        my @types = qw(txt htm html dat doc bmp wav xyz);
        srand 20020715;
        for my $number (0 .. $files - 1) {
            my $folder = sprintf "%s/folder %05d", $root, $number / 40;
            if ($number % 40 == 0) { mkdir $folder or die "$folder: $!\n" }
            my $path = sprintf "%s/file %08x.%s", $folder, int(rand 2 ** 32), $types[$number % 8];
            open my $file, ">", $path or die "$path: $!\n";
            truncate $file, int(rand(2 ** 21) / 2 ** int(rand 21));
            close $file;
            my $time = 946684800 + int(rand 63072000);
            utime $time, $time, $path;
        }' "$1" "$2"
}

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

# english_text BYTES [END]: lines of common words with this end (\n); "that" and "thing" are in each.
english_text() {
    perl -e '
        my ($size, $end) = @ARGV;
        my @words = qw(the of and to in is it you was for on are with as his they be at one have this from or had by
            hot but some what there we can out other were all your when up use word how said an each she which do
            their time if will way about many then them would write like so these her long make see him two has
            look more day could go come did my sound no most number who over know water than call first people may
            down side been now find any new work part take get place made live where after back little only round
            man year came show every good me give our under name very through just form great think say help low);
        srand 1;
        while ($size > 0) {
            my $line = join " ", (map { $words[rand @words] } 1 .. 5), "that thing",
                (map { $words[rand @words] } 1 .. 4);
            $line = ucfirst($line) . $end;
            print substr $line, 0, $size;
            $size -= length $line;
        }' "$1" "${2:-$'.\n'}"
}

# japanese_text BYTES: lines of kana and a few hundred kanji, in Shift-JIS.
japanese_text() {
    perl -e '
        my $size = $ARGV[0];
        srand 2;
        while ($size > 0) {
            my $line = join "", map {
                my $kind = rand;
                $kind < 0.6 ? pack("CC", 0x82, 0x9f + int rand 83)
                    : $kind < 0.8 ? pack("CC", 0x83, 0x40 + int rand 63)
                    : pack("CC", 0x88 + int rand 8, 0x9f + int rand 94)
            } 1 .. 10 + int rand 30;
            $line .= "\r\n";
            print substr $line, 0, $size;
            $size -= length $line;
        }' "$1"
}

random_bytes() {
    perl -e 'srand 3; for (1 .. $ARGV[0] / 4) { print pack "L", int rand 2 ** 32 }' "$1"
}

# make_corpus FOLDER COMMAND WORD...: 100 MB in four files, of what the command writes when it is told how much.
make_corpus() {
    local folder=$1 number
    shift
    mkdir -p "$folder"
    "$@" 26214400 >"$folder/1.txt"
    for number in 2 3 4; do
        cp "$folder/1.txt" "$folder/$number.txt"
    done
}

crlf_text() {
    english_text "$1" $'.\r\n'
}

make_corpora() {
    make_corpus "$1/english" english_text
    make_corpus "$1/crlf" crlf_text
    make_corpus "$1/japanese" japanese_text
    make_corpus "$1/random" random_bytes
}

# make_small_texts FOLDER: 10,000 that are 100 MB together.
make_small_texts() {
    mkdir -p "$1"
    english_text 104860000 | split --bytes=10486 --numeric-suffixes --suffix-length=5 --additional-suffix=.txt - "$1/"
}

# make_kinds FOLDER: ten folders, in each an application, a file with an icon of its own and one of each type.
make_kinds() {
    local number
    for number in {0..9}; do
        mkdir -p "$1/folder $number"
        touch "$1/folder $number"/{program.exe,picture.ico,one.txt,one.htm,one.html,one.dat,one.doc,one.bmp,one}
    done
}

# make_like FOLDER SOURCE: the names of a folder of this machine, without links and without what is in the files.
make_like() {
    (cd "$2" && find . -xdev -type d ! -path '*\\*' -print0) | (cd "$1" && xargs -0 mkdir -p)
    (cd "$2" && find . -xdev -type f ! -path '*\\*' -print0) | (cd "$1" && xargs -0 touch)
}

# make_real FOLDER SOURCE: anew for another source than the last one.
make_real() {
    [[ $(cat "$1/source of real" 2>/dev/null) == "$2" ]] || rm -rf "$1/real"
    make_once "$1/real" make_like "$2"
    printf '%s\n' "$2" >"$1/source of real"
}

# make_once FOLDER COMMAND WORD...: unless it is there from an earlier run.
make_once() {
    local folder=$1 command=$2
    shift 2
    [[ -e $folder ]] && return 0
    rm -rf "$folder.unfinished"
    mkdir -p "$folder.unfinished"
    "$command" "$folder.unfinished" "$@"
    mv -T "$folder.unfinished" "$folder"
}

# make_bench_trees FOLDER SOURCE PART...: what these parts work on.
make_bench_trees() {
    local folder=$1 source=$2 part
    shift 2
    mkdir -p "$folder/empty"
    for part; do
        case $part in
            rows-* | sort-*) make_once "$folder/rows ${part#*-}" make_files_for_rows "${part#*-}" ;;
            memory)
                make_once "$folder/rows 20000" make_files_for_rows 20000
                make_once "$folder/rows 100000" make_files_for_rows 100000
                ;;
            walk) make_once "$folder/files" make_folders_of_files ;;
            real) make_real "$folder" "$source" ;;
            large) make_once "$folder/corpora" make_corpora ;;
            small) make_once "$folder/small" make_small_texts ;;
            shell) make_once "$folder/kinds" make_kinds ;;
            browser) make_once "$folder/folders" make_many_folders ;;
        esac
    done
}
