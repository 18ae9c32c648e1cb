# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# The lives in which the system refuses calls, and the table of what becomes of them.

refusalProgram=hands_refused_calls_tests
refusalDir=$buildDir/refusals
refusalPage=$root/docs/reliability.md
refusalWorlds=(en-240x320 en-640x240 ja-240x320 ja-640x240)

# The longest that all lives of a world may take on a busy machine.
refusalDeadline=7200

# refuse_in_world WORLD WANTED: the lives of one world; what they said is in a log of their own.
refuse_in_world() (
    arm_cleanups
    worldsOf=refusals
    open_world "$1"
    at_exit rm -rf "$scratchDevice" "$WINEPREFIX"
    at_exit stop_wine
    export QUORIN_TEST_REFUSALS_OF=$2 QUORIN_SECONDS_PER_TEST=$refusalDeadline
    cd "$scratchDevice"
    timeout -k 10 "$refusalDeadline" "$wine" "P:\\tests\\$refusalProgram.exe" --gtest_color=no \
        </dev/null >"$refusalDir/$1.log" 2>&1
)

# outcomes_of LOG...: call, code, how often, step and outcome of each refusal that took place, one a line.
outcomes_of() {
    sed -n 's/\r$//; s/^REFUSAL|//p' "$@" | grep -v '|not reached$'
}

# refusal_table: a line for each call, from such lines. A number in a text is the code.
refusal_table() {
    sort | awk -F'|' '
        function add(how, call, outcome) {
            if (!seen[how, call, outcome]++) order[how, call] = order[how, call] outcome "|"
            count[how, call]++
        }
        function shown(how, call,    parts, n, i, text) {
            n = split(order[how, call], parts, "|")
            for (i = 1; i < n; i++)
                text = text (i > 1 ? "; " : "") parts[i] (n > 2 ? " (" seen[how, call, parts[i]] ")" : "")
            return text == "" ? "-" : text
        }
        !($1 in known) { known[$1] = 1; calls[++total] = $1 }
        {
            gsub(/(Error [A-Za-z ]* )[0-9]+/, "&#", $5)
            while (match($5, /[0-9]+#/)) $5 = substr($5, 1, RSTART - 1) "N" substr($5, RSTART + RLENGTH)
            if (!(($1, $2) in codes)) { codes[$1, $2] = 1; list[$1] = list[$1] (list[$1] == "" ? "" : ", ") $2 }
            add($3, $1, $5)
        }
        END {
            print "| call | codes | refused once | what came of it | refused from then on | what came of it |"
            print "|---|---|---|---|---|---|"
            for (i = 1; i <= total; i++) {
                c = calls[i]
                printf "| `%s` | %s | %d | %s | %d | %s |\n", c, list[c], count["once", c], shown("once", c), \
                    count["from then on", c], shown("from then on", c)
            }
        }'
}

# write_refusals TABLE DATE: puts it into the page, between the two marks.
write_refusals() {
    local page
    page=$(mktemp "$buildDir/page.XXXXXX")
    awk -v table="$1" -v date="$2" '
        /^<!-- end of what tools\/refusals writes -->$/ { skipping = 0 }
        !skipping { print }
        /^<!-- what tools\/refusals writes -->$/ {
            skipping = 1
            print "\n" date "\n"
            while ((getline line < table) > 0) print line
            print ""
        }' "$refusalPage" >"$page"
    cat "$page" >"$refusalPage"
    rm -f "$page"
}
