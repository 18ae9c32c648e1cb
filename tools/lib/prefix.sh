# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# Wine prefixes. A base prefix for each language is made once per source tree; every world in which the program
# runs (a language, a screen size, a purpose) is a copy of it that shares the system's files by hard links and
# costs next to nothing. The user's own ~/.wine is never looked at.

# shellcheck source=tools/lib/device_types.sh
source "$root/tools/lib/device_types.sh"

prefixDir=$buildDir/wine
basePrefix=$prefixDir/base

# What the base prefix was made from: another text here has it made again.
base_stamp() {
    printf '%s\n' "$basePrefix" "$(dpkg-query -W -f='${Version}' wine64)"
    cat "$root"/tools/lib/{prefix.sh,device_look.reg,device_types.sh} | sha256sum
}

# On a screen without settings of its own, the system's drawing looks for them in the home at every choice of a
# font, again and again while there is no such file: a twentieth of a start.
make_private_home() {
    mkdir -p "$prefixDir/home"
    [[ -e $prefixDir/home/.Xdefaults ]] || echo '! No settings.' >"$prefixDir/home/.Xdefaults"
}

# wine_environment PREFIX LANGUAGE: what each Wine process of a world is given. A Japanese locale is all that
# makes a Japanese system. The private home keeps Wine out of the user's folders.
wine_environment() {
    unset LANGUAGE "${!LC_@}" WINEARCH WINESERVER WINELOADER WINEDLLPATH
    [[ -z ${DISPLAY:-} || -n ${XAUTHORITY:-} || ! -e ${HOME:-}/.Xauthority ]] || export XAUTHORITY=$HOME/.Xauthority
    make_private_home
    export HOME=$prefixDir/home WINEPREFIX=$1 WINEDEBUG=${QUORIN_WINEDEBUG:--all}
    export WINEDLLOVERRIDES='winemenubuilder.exe=d;mscoree,mshtml='
    export LANG=C.UTF-8 LC_ALL=C.UTF-8
    [[ $2 == en ]] || export LANG=$japaneseLocale LC_ALL=$japaneseLocale
}

# stop_wine: ends the processes of the current world and no other.
stop_wine() {
    timeout -k 5 20 "$wineServer" -k >/dev/null 2>&1 || true
    timeout -k 5 20 "$wineServer" -w >/dev/null 2>&1 || true
}

# Debian's Wine does not look where Debian's Wine fonts are; without Tahoma every dialog is laid out wrongly.
link_fonts() {
    local font
    for font in /usr/share/wine/fonts/*; do
        ln -sf "$font" "$1/drive_c/windows/Fonts/"
    done
}

# Makes a whole Wine system in the folder $1.
create_prefix() {
    wine_environment "$1" en
    start_screen 240x320
    at_exit stop_wine
    timeout -k 10 240 "$wine" wineboot -i </dev/null || return 1
    stop_wine
    link_fonts "$1"
}

# Applies the settings in a system of language $2 and checks that they have arrived. Wine rewrites part of them
# when it first meets another language, so that each language needs its own turn.
apply_device_look() {
    wine_environment "$1" "$2"
    start_screen 240x320
    at_exit stop_wine
    cp "$root/tools/lib/device_look.reg" "$1/drive_c/device_look.reg"
    write_device_types "$2" "$1/drive_c/device_types.reg"
    timeout -k 10 120 "$wine" regedit /S 'C:\device_look.reg' 'C:\device_types.reg' </dev/null || return 1
    stop_wine
    rm -f "$1/drive_c"/device_{look,types}.reg
    grep -q '^"QuorinSearch"="240x320"' "$1/user.reg" && grep -q '^"Tahoma"=.*"ipagp.ttf,IPAPGothic' "$1/system.reg" &&
        grep -qF '[Software\\Classes\\.txt]' "$1/system.reg"
}

# copy_of_prefix SOURCE TARGET: hard links for what never changes, true copies of what Wine writes in place.
copy_of_prefix() {
    cp -al "$1" "$2" 2>/dev/null || {
        rm -rf "$2"
        cp -a "$1" "$2"
    }
    cp -p --remove-destination -t "$2" "$1"/*.reg "$1/.update-timestamp"
}

# prepare_bases FOLDER: FOLDER/en and FOLDER/ja.
prepare_bases() (
    arm_cleanups
    create_prefix "$1/en" && apply_device_look "$1/en" en || exit 1
    copy_of_prefix "$1/en" "$1/ja" && apply_device_look "$1/ja" ja || exit 1
    # The device's folders are all that the program is to see of this machine.
    rm -f "$1"/*/dosdevices/{z:,com*,lpt*} "$1"/*/wineserver
)

prepare_bases_logged() {
    prepare_bases "$1" >"$buildDir/wineboot.log" 2>&1
}

# make_base_prefixes: does nothing when they stand. One that was interrupted leaves nothing that counts.
make_base_prefixes() {
    local unfinished
    [[ $(cat "$basePrefix/stamp" 2>/dev/null) == "$(base_stamp)" ]] && return 0
    say "preparing Wine for English and Japanese (once)"
    mkdir -p "$prefixDir"
    rm -rf "$basePrefix" "$prefixDir"/unfinished.*
    unfinished=$(mktemp -d "$prefixDir/unfinished.XXXXXX")
    mkdir "$unfinished/en"
    with_clock "preparing Wine" prepare_bases_logged "$unfinished" ||
        fail "Wine could not be prepared; what it said is in $(path_from_here "$buildDir/wineboot.log")"
    base_stamp >"$unfinished/stamp"
    mv -T "$unfinished" "$basePrefix"
}

# prepare_wine: one at a time.
prepare_wine() {
    with_lock setup 3600 "another ./run or ./test in this folder is preparing Wine" make_base_prefixes
}

# make_world FOLDER LANGUAGE SCREEN: a fresh prefix for that language and screen size.
make_world() {
    local unfinished
    unfinished=$1.unfinished
    rm -rf "$1" "$unfinished"
    mkdir -p "${1%/*}"
    copy_of_prefix "$basePrefix/$2" "$unfinished"
    sed -i "s/^\"QuorinSearch\"=\"240x320\"/\"QuorinSearch\"=\"$3\"/" "$unfinished/user.reg"
    mv -T "$unfinished" "$1"
}

# map_drives PREFIX DEVICE: D: is the device, on which `\` is its root; P: is the folder of the built program.
map_drives() {
    ln -sfn "$2" "$1/dosdevices/d:"
    ln -sfn "$buildDir/release" "$1/dosdevices/p:"
}
