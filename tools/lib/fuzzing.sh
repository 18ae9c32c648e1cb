# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# Running the fuzzer's targets. A corpus is kept as one text, an input a line, two digits a byte; the fuzzer wants
# a folder with a file for each.

corpusDir=$root/fuzz/corpus
fuzzDir=$buildDir/fuzz

# What the fuzzer needs beyond nothing else of this house: no Wine, no screen.
set_up_fuzzing() {
    neededPackages=(clang-14 libclang-rt-14-dev g++ cmake ninja-build)
    install_missing_packages
}

all_targets() {
    sed -n 's|^    \([a-z_]*\):[A-Za-z]*)\{0,1\}$|\1|p' "$root/fuzz/CMakeLists.txt"
}

# choose_targets NAME: sets targets; `all` stands for every one.
choose_targets() {
    mapfile -t targets < <(all_targets)
    [[ $1 != all ]] || return 0
    [[ " ${targets[*]} " == *" $1 "* ]] || usage_error "no target '$1'; there are: ${targets[*]}"
    targets=("$1")
}

# unpack_corpus TEXT FOLDER: adds to what is there.
unpack_corpus() {
    local line number=0
    mkdir -p "$2"
    [[ -e $1 ]] || return 0
    while read -r line; do
        number=$((number + 1))
        basenc --base16 -d <<<"${line^^}" >"$2/kept-$number"
    done <"$1"
}

# pack_corpus FOLDER TEXT: the shortest first.
pack_corpus() {
    local file
    for file in "$1"/*; do
        basenc --base16 -w0 "$file"
        echo
    done | awk '{ print length, $0 }' | sort -k1,1n -k2 | cut -d' ' -f2 >"$2"
}

# longest_input TARGET: in bytes. Longer ones only take longer.
longest_input() {
    local length
    length=$(sed -n 's|^// Longest input: \([0-9]*\).*|\1|p' "$root/fuzz/$1.cpp")
    echo "${length:-512}"
}

# fuzz TARGET SECONDS: status 1 when a rule was broken.
fuzz() {
    local corpus=$fuzzDir/corpus/$1 log=$fuzzDir/$1.log status=0
    mkdir -p "$fuzzDir/findings"
    unpack_corpus "$corpusDir/$1.txt" "$corpus"
    # Little memory is remembered after it was freed, and little of who asked for it: that is half of the time.
    ASAN_OPTIONS=quarantine_size_mb=4:malloc_context_size=2 "$fuzzDir/fuzz_$1" -max_total_time="$2" \
        -max_len="$(longest_input "$1")" -timeout=10 -print_final_stats=1 -artifact_prefix="$fuzzDir/findings/$1-" "$corpus" \
        </dev/null >"$log" 2>&1 || status=1
    printf '%-20s %10s executions %7s a second %5d inputs\n' "$1" "$(statistic "$log" number_of_executed_units)" \
        "$(statistic "$log" average_exec_per_sec)" "$(find "$corpus" -type f | wc -l)"
    ((status == 0)) || grep -E 'ERROR|runtime error|what\(\)|Test unit written' "$log" >&2
    return "$status"
}

statistic() {
    sed -n "s/^stat::$2: *//p" "$1"
}

# keep_corpus TARGET: the fewest inputs that reach as much of the program as all together.
keep_corpus() {
    local merged=$fuzzDir/merged
    rm -rf "$merged"
    mkdir -p "$merged" "$corpusDir"
    "$fuzzDir/fuzz_$1" -merge=1 -max_len="$(longest_input "$1")" "$merged" "$fuzzDir/corpus/$1" \
        </dev/null >"$fuzzDir/$1-merge.log" 2>&1 || fail "the corpus of $1 could not be merged"
    pack_corpus "$merged" "$corpusDir/$1.txt"
}
