# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# Counting what a test program did, from what it printed: a program that crashed, hung or ended early has printed
# a part, and that part counts as well as the failure that it is.

# tally LOG STATUS NEEDS_TESTS: sets passed, failed, skipped and, when the program itself failed, tallyNote.
# NEEDS_TESTS is "yes" unless a filter may have left nothing to run.
tally() {
    local announced
    passed=$(grep -c '\[       OK \] .* ms)' "$1") || true
    failed=$(grep -c '\[  FAILED  \] .* ms)' "$1") || true
    skipped=$(grep -c '\[  SKIPPED \] .* ms)' "$1") || true
    announced=$(sed -n 's/.*\[==========\] \([0-9]*\) tests\{0,1\} from .* ran\..*/\1/p' "$1" | tail -n 1)
    tallyNote=
    if [[ $2 == 124 || $2 == 137 ]]; then
        tallyNote='did not end in time'
    elif [[ -z $announced ]]; then
        tallyNote="ended early with status $2"
    elif ((passed + failed + skipped != announced)); then
        tallyNote="ran $announced tests but reported on $((passed + failed + skipped))"
    elif (($2 != 0 && failed == 0)); then
        tallyNote="ended with status $2 though no test failed"
    elif [[ $3 == yes ]] && ((announced == 0)); then
        tallyNote='ran no test'
    fi
    [[ -z $tallyNote ]] || failed=$((failed + 1))
}

# failure_report LOG: the output of the tests that failed, or the end of the log when none says so.
failure_report() {
    local report
    report=$(awk '
        /\[ RUN      \]/ { block = "" }
        { block = block $0 "\n" }
        /\[  FAILED  \] .* ms\)/ { printf "%s", block; block = "" }
        /\[       OK \]/ { block = "" }' "$1" | head -n 120)
    [[ -n $report ]] && printf '%s\n' "$report"
    [[ -z $tallyNote ]] || tail -n 25 "$1"
}
