# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# Virtual screens (Xvfb): each of exactly the size of the device's screen, so that a picture of the whole
# screen is a picture of the device.

# display_usable: is there a display to open a window on?
display_usable() {
    [[ -n ${DISPLAY:-} ]] && timeout 10 xdpyinfo >/dev/null 2>&1
}

# why_no_display: in the user's words.
why_no_display() {
    if [[ -z ${DISPLAY:-} ]]; then
        printf 'there is no display to open a window on (DISPLAY is not set)'
    else
        printf "the display '%s' cannot be reached" "$DISPLAY"
    fi
}

# start_screen WIDTHxHEIGHT: starts one and points DISPLAY at it; it ends with the script. Sets screenPid.
start_screen() {
    local numberFile
    numberFile=$(mktemp "$buildDir/.display.XXXXXX")
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset 3>"$numberFile" </dev/null >/dev/null 2>&1 &
    screenPid=$!
    at_exit end_process "$screenPid"
    if ! wait_until 20 test -s "$numberFile"; then
        rm -f "$numberFile"
        fail "the virtual screen did not start (Xvfb)"
    fi
    DISPLAY=:$(tr -d '\n' <"$numberFile")
    export DISPLAY
    unset XAUTHORITY WAYLAND_DISPLAY
    rm -f "$numberFile"
}

# take_picture FILE: the whole screen as PNG, once it stands still: programs paint a moment after they are asked. The
# tools get no name of a file, since they read more into it than the place where it is.
take_picture() {
    local before='' now
    local deadline=$((SECONDS + 6))
    while true; do
        sleep 0.4
        timeout 30 import -window root png:- </dev/null 2>/dev/null >"$1" || fail "could not take the picture $1"
        now=$(identify -format '%#' png:- <"$1")
        [[ $now != "$before" ]] || return 0
        ((SECONDS < deadline)) || return 0
        before=$now
    done
}
