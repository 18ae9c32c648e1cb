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
    libxml2-utils              # xmllint: the tests read the tour's page with it
    cmark-gfm                  # the package's page for users
    zip                        # the package
)

wine=/usr/lib/wine/wine64
wineServer=/usr/lib/wine/wineserver64
japaneseLocale=ja_JP.UTF-8

missing_packages() {
    local package installed
    installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' "${neededPackages[@]}" 2>/dev/null) || true
    for package in "${neededPackages[@]}"; do
        grep -qxF "$package installed" <<<"$installed" || printf '%s ' "$package"
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

# Never asks anything: a question that a package has gets its default answer.
aptGet=(env LC_ALL=C DEBIAN_FRONTEND=noninteractive timeout -k 10 1800 apt-get -q --no-install-recommends
    -o Acquire::Retries=2 -o Acquire::http::Timeout=60 -o DPkg::Lock::Timeout=120
    -o Dpkg::Options::=--force-confdef -o Dpkg::Options::=--force-confold -o APT::Status-Fd=1)

# apt_get WORD...: what it says goes to the log, how far it is to the terminal.
apt_get() {
    as_root "${aptGet[@]}" "$@" </dev/null 2>&1 | tee -a "$setupLog" | show_apt_progress
    return "${PIPESTATUS[0]}"
}

# Its lines for programs are "dlstatus:...:PER CENT:..." while it fetches, "pmstatus:...:PER CENT:..." afterwards.
show_apt_progress() {
    local line
    while IFS= read -r line; do
        if [[ $line =~ ^dlstatus:[^:]*:([0-9]+) ]]; then
            progress "downloading: ${BASH_REMATCH[1]} %"
        elif [[ $line =~ ^pmstatus:[^:]*:([0-9]+) ]]; then
            progress "installing: ${BASH_REMATCH[1]} %"
        fi
    done
    end_progress
}

# announce_packages PACKAGE...: one line of what is about to come, with the sizes that apt-get tells.
announce_packages() {
    local plan download disk
    plan=$(as_root "${aptGet[@]}" --assume-no install "$@" </dev/null 2>/dev/null) || true
    download=$(sed -n 's|^Need to get \([0-9.,]* [kMG]\{0,1\}B\)\(/.*\)\{0,1\} of archives\.$|\1|p' <<<"$plan")
    disk=$(sed -n 's|^After this operation, \(.*\) of additional disk space will be used\.$|\1|p' <<<"$plan")
    say "now downloading ${download:-Debian packages} and installing${disk:+ ($disk on disk)}, as root: $*" \
        "and what these need"
}

# install_packages PACKAGE...: tries several times, since a mirror may hiccup.
install_packages() {
    local pause announced=no
    setupLog=$buildDir/setup.log
    : >"$setupLog"
    say "now downloading Debian's lists of packages, as root"
    for pause in 5 15 30 0; do
        if apt_get update; then
            [[ $announced == yes ]] || announce_packages "$@"
            announced=yes
            ! apt_get -y install "$@" || return 0
        fi
        ((pause == 0)) && break
        say "apt-get failed; trying again in $pause seconds"
        sleep "$pause"
    done
    grep -v '^[dp][lm]status:' "$setupLog" | tail -n 5 >&2
    fail "could not install the packages; what apt-get said is in $(path_from_here "$setupLog"). Wanted: $*"
}

has_japanese_locale() {
    locale -a 2>/dev/null | grep -qix 'ja_JP\.utf-\?8'
}

make_japanese_locale() {
    can_be_root || fail "the locale $japaneseLocale is missing; run as root: localedef -i ja_JP -f UTF-8 $japaneseLocale"
    say "making the locale $japaneseLocale"
    as_root localedef -i ja_JP -f UTF-8 "$japaneseLocale" >>"$buildDir/setup.log" 2>&1 ||
        fail "could not make the locale $japaneseLocale; see $(path_from_here "$buildDir/setup.log")"
}

install_missing_packages() {
    local missing
    command -v dpkg-query >/dev/null || fail "the set-up knows Debian only; what it would install: ${neededPackages[*]}"
    missing=$(missing_packages)
    [[ -n $missing ]] || return 0
    can_be_root || fail "packages are missing; run as root: apt-get install --no-install-recommends $missing"
    # shellcheck disable=SC2086 # a list of words on purpose
    install_packages $missing
}

# set_up_machine: after it, everything that the other scripts call is there; ends the script otherwise.
set_up_machine() {
    install_missing_packages
    has_japanese_locale || make_japanese_locale
    [[ -x $wine && -x $wineServer ]] || fail "Wine is not where Debian's package puts it ($wine)"
}

# set_up_once: one set-up at a time.
set_up_once() {
    with_lock setup 3600 "another ./run or ./test in this folder is setting up" set_up_machine
}
