# shellcheck shell=bash disable=SC2034 # the scripts use the lists
# What the commands of this folder share. To be sourced by a script that has gone to the repository's root.

version=$(<VERSION) # "1.0." and the day of the release

build_packages=(g++ cmake ninja-build libwxgtk3.2-dev)
test_packages=(libgtest-dev locales python3)
display_packages=(xvfb xauth xdotool imagemagick fonts-dejavu-core)

say() { echo "== $*" >&2; }
fail() { echo "$*" >&2; exit 1; }

# Installs those of the system's packages that are missing, as root or through sudo.
need_packages() {
    command -v dpkg-query >/dev/null || fail "This script installs Debian packages. Install these yourself: $*"
    local missing=() package
    for package; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || missing+=("$package")
    done
    [[ ${#missing[@]} -gt 0 ]] || return 0

    local root=()
    if [[ $EUID -ne 0 ]]; then
        command -v sudo >/dev/null || fail "These packages are missing and only root can install them: ${missing[*]}"
        root=(sudo)
    fi
    say "installing ${missing[*]}"
    "${root[@]}" apt-get update -q >&2
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}" >&2
}

# build PRESET [TARGET...]: configures and builds.
build() {
    local preset=$1
    shift
    say "building ($preset)"
    cmake --preset "$preset" >&2
    cmake --build --preset "$preset" ${1:+--target "$@"} >&2
}

# Runs a command on a display of its own.
on_virtual_display() {
    # The accessibility bus would only be missed in warnings, and a Wayland desktop must not take the windows.
    env -u WAYLAND_DISPLAY NO_AT_BRIDGE=1 xvfb-run -a -s "-screen 0 1280x800x24 -nolisten tcp" "$@"
}

# use_wine FOLDER: lets Wine work in a folder of its own, set up anew, and without its own remarks.
use_wine() {
    rm -rf "$1"
    mkdir -p "$1/drive_c/windows/Fonts"
    WINEPREFIX=$(cd "$1" && pwd)
    export WINEPREFIX WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=d"
    say "setting up Wine"
    # Debian's Wine does not look for its own fonts where they are.
    cp /usr/share/wine/fonts/*.ttf "$1/drive_c/windows/Fonts/"
    on_virtual_display wine wineboot --init >/dev/null 2>&1
    # There is no window manager: left to itself, Wine waits for one whenever a window goes.
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
    wineserver --wait
    # Kept running, the server saves every program the start of one.
    wineserver --persistent=60
}
