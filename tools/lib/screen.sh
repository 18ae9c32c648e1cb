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

# take_shot FILE: the screen as it is now. The tools get no name of a file, since they read more into it than the place
# where it is.
take_shot() {
    timeout 30 import -window root ppm:- </dev/null 2>/dev/null >"$1" || fail "could not take a picture of the screen"
}

# take_picture FILE: the whole screen as PNG, once it stands still: programs paint a moment after they are asked.
take_picture() {
    local shot=$1.shot deadline=$((SECONDS + 6))
    sleep 0.2
    take_shot "$shot"
    while sleep 0.3; do
        take_shot "$shot.next"
        ! cmp -s "$shot" "$shot.next" || break
        ((SECONDS < deadline)) || break
        mv -f "$shot.next" "$shot"
    done
    # Without the hour in it, so that the same picture is the same file.
    convert ppm:- -strip png:- <"$shot" >"$1"
    rm -f "$shot" "$shot.next"
}
