# shellcheck shell=bash disable=SC2034,SC2154 # variables are shared between these files

# What the machine must have: Debian packages and the Japanese locale. Looks first and fetches only what is
# missing, so that a second run needs no network.

# Each package with what it is for.
neededPackages=(
    g++                        # the rules' tests, compiled for this machine with sanitizers
    g++-mingw-w64-x86-64-posix # the program and its tests
    binutils-mingw-w64-x86-64  # windres, for the resources
    cmake
    ninja-build
    googletest                 # as source, compiled for either machine
    wine64
    fonts-wine                 # Tahoma
    fonts-ipafont-gothic       # Japanese glyphs
    locales                    # the definition of ja_JP
    xvfb
    x11-utils                  # xdpyinfo: is the display there?
    imagemagick                # pictures of the screen
)

wine=/usr/lib/wine/wine64
wineServer=/usr/lib/wine/wineserver64
japaneseLocale=ja_JP.UTF-8

missing_packages() {
    local package
    for package in "${neededPackages[@]}"; do
        [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || printf '%s ' "$package"
    done
}

# as_root COMMAND WORD...: as it is for root, through sudo for anybody else.
as_root() {
    if ((EUID == 0)); then
        "$@"
    else
        sudo -n "$@"
    fi
}

can_be_root() {
    ((EUID == 0)) || sudo -n true 2>/dev/null
}

# install_packages PACKAGE...: tries several times, since a mirror may hiccup.
install_packages() {
    local log=$buildDir/setup.log pause
    local -a apt=(env DEBIAN_FRONTEND=noninteractive timeout -k 10 1800 apt-get -q -y
        -o Acquire::Retries=2 -o Acquire::http::Timeout=60 -o DPkg::Lock::Timeout=120)
    : >"$log"
    for pause in 5 15 30 0; do
        if as_root "${apt[@]}" update </dev/null >>"$log" 2>&1 &&
            as_root "${apt[@]}" install --no-install-recommends "$@" </dev/null >>"$log" 2>&1; then
            return 0
        fi
        ((pause == 0)) && break
        say "apt-get failed; trying again in $pause seconds"
        sleep "$pause"
    done
    tail -n 5 "$log" >&2
    fail "could not install the packages; what apt-get said is in build/setup.log. Wanted: $*"
}

has_japanese_locale() {
    locale -a 2>/dev/null | grep -qix 'ja_JP\.utf-\?8'
}

make_japanese_locale() {
    can_be_root || fail "the locale $japaneseLocale is missing; as root: localedef -i ja_JP -f UTF-8 $japaneseLocale"
    say "making the locale $japaneseLocale"
    as_root localedef -i ja_JP -f UTF-8 "$japaneseLocale" >>"$buildDir/setup.log" 2>&1 ||
        fail "could not make the locale $japaneseLocale; see build/setup.log"
}

# set_up_machine: after it, everything that the other scripts call is there; ends the script otherwise.
set_up_machine() {
    local missing
    mkdir -p "$buildDir"
    command -v dpkg-query >/dev/null || fail "the set-up knows Debian's packages only; wanted: ${neededPackages[*]}"
    missing=$(missing_packages)
    if [[ -n $missing ]]; then
        can_be_root || fail "packages are missing; as root: apt-get install --no-install-recommends $missing"
        say "installing: $missing"
        # shellcheck disable=SC2086 # a list of words on purpose
        install_packages $missing
    fi
    has_japanese_locale || make_japanese_locale
    [[ -x $wine && -x $wineServer ]] || fail "Wine is not where Debian's package puts it ($wine)"
}
