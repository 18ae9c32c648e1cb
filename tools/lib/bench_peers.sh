# shellcheck shell=bash disable=SC2154 # variables are shared with tools/bench

# Other programs on the same files, for orientation: they run without Wine, as processes of their own, and answer
# something else than the program does.

# milliseconds_of COMMAND WORD...: of its fastest run out of five. What it says, and whether it finds, is of no
# interest.
milliseconds_of() {
    local begin took least=
    for _ in 1 2 3 4 5; do
        begin=$(date +%s%N)
        "$@" >/dev/null 2>&1 || true
        took=$((($(date +%s%N) - begin) / 100000))
        [[ -n $least ]] && ((took >= least)) || least=$took
    done
    printf '%d.%d' $((least / 10)) $((least % 10))
}

# show_peer TEXT COMMAND WORD...: a line, if the command is there.
show_peer() {
    local text=$1
    shift
    command -v "$1" >/dev/null || return 0
    printf '%-54s %9s ms\n' "$text: $1" "$(milliseconds_of "$@")"
}

# show_peers FOLDER: the folders of the benchmark.
show_peers() {
    local corpus
    make_bench_trees "$1" "$tree" walk large
    printf 'other programs on the same files, in processes of their own, the best of five\n'
    show_peer 'walk of 20,500 entries' find "$1/files" -name '*no such name*'
    show_peer 'walk of 20,500 entries' fd --threads 1 --unrestricted 'no such name' "$1/files"
    show_peer 'walk of 20,500 entries' fdfind --threads 1 --unrestricted 'no such name' "$1/files"
    for corpus in english crlf japanese random; do
        show_peer "content, $corpus, nothing found" cat "$1/corpora/$corpus"/{1,2,3,4}.txt
        show_peer "content, $corpus, nothing found" grep -c -a -F 'zqxj vkw' "$1/corpora/$corpus"/{1,2,3,4}.txt
        show_peer "content, $corpus, nothing found" rg -j1 -a -F -c 'zqxj vkw' "$1/corpora/$corpus"
    done
}
