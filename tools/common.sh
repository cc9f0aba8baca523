# shellcheck shell=bash disable=SC2034 # the scripts use the lists
# Shared by the commands of this folder. A script sources it from the repository's root.

version=$(<VERSION) # "1.0." and the day of the release
release_day=${version: -8:4}-${version: -4:2}-${version: -2}

build_packages=(g++ cmake ninja-build libwxgtk3.2-dev)
test_packages=(libgtest-dev locales python3)
display_packages=(xvfb xauth xdotool imagemagick fonts-dejavu-core)
lint_packages=(clang-format clang-tidy jq shellcheck)
long_packages=(clang gcovr valgrind)
deb_packages=(dpkg-dev librsvg2-bin)
deb_test_packages=(appstream desktop-file-utils devscripts lintian x11-utils)
windows_packages=(
    g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 cmake ninja-build # the build
    dpkg-dev xz-utils googletest                                           # the toolkit's sources
    wine wine64 fonts-wine xvfb xauth                                      # the tests
)
setup_packages=(xauth zip nsis librsvg2-bin imagemagick)

tests_at_once=$(($(nproc) + 3)) # more than processors, since the window tests mostly wait

say() { echo "== $*" >&2; }
fail() { echo "$*" >&2; exit 1; }

# within SECONDS COMMAND...: true if the command succeeds within the time.
within() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < end)) || return 1
        sleep 0.2
    done
}

# as_root COMMAND...: runs a command as root, with sudo if needed; fails if it can do neither.
as_root() {
    if [[ $EUID -eq 0 ]]; then "$@"; else sudo "$@"; fi
}

# Fetches the system's package lists again. A failing source does not stop this: another source, or the existing lists,
# may be enough.
update_lists() {
    as_root apt-get update -q >&2 || say "apt-get update failed; going on with the lists that there are"
}

# Installs those of the system's packages that are missing, as root or through sudo.
need_packages() {
    command -v dpkg-query >/dev/null || fail "This script installs Debian packages. Install these yourself: $*"
    local missing=() package
    for package; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || missing+=("$package")
    done
    [[ ${#missing[@]} -gt 0 ]] || return 0

    [[ $EUID -eq 0 ]] || command -v sudo >/dev/null ||
        fail "These packages are missing and only root can install them: ${missing[*]}"
    say "installing ${missing[*]}"
    update_lists
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}" >&2 ||
        fail "These packages could not be installed: ${missing[*]}"
}

# build PRESET [TARGET...]: configures and builds.
build() {
    local preset=$1
    shift
    say "building ($preset)"
    # With VARLO_WERROR=ON a warning is an error.
    cmake --preset "$preset" -DCMAKE_COMPILE_WARNING_AS_ERROR="${VARLO_WERROR:-OFF}" >&2
    cmake --build --preset "$preset" ${1:+--target "$@"} >&2
}

# build_windows [TARGET...]: the same for Windows, with the toolkit that it needs.
build_windows() {
    VARLO_WINDOWS_TOOLKIT=$(tools/windows-toolkit) || return 1
    export VARLO_WINDOWS_TOOLKIT
    build windows "$@"
}

# Sets the rights and the time of all files, so that a package is the same wherever and whenever it is built.
prepare_packing() {
    umask 022
    SOURCE_DATE_EPOCH=$(date --utc --date="$release_day" +%s)
    export SOURCE_DATE_EPOCH
}

# settle FOLDER: gives all its files the time of the release, and the same rights in every checkout.
settle() {
    chmod -R u=rwX,go=rX "$1"
    find "$1" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
}

# Runs a command on a separate virtual display.
on_virtual_display() {
    # Without the accessibility bus there would only be warnings. The windows must not go to a Wayland desktop. Two
    # displays that start at once could get the same number, so begin at a random one. Without -noreset the display
    # starts afresh when its last client leaves, and refuses a client that comes just then.
    env -u WAYLAND_DISPLAY NO_AT_BRIDGE=1 xvfb-run -a -n $((100 + RANDOM % 900)) \
        -s "-screen 0 1280x800x24 -nolisten tcp -noreset" "$@"
}

# use_wine FOLDER: sets up a new Wine folder and silences Wine's own messages.
use_wine() {
    rm -rf "$1"
    mkdir -p "$1/drive_c/windows/Fonts"
    WINEPREFIX=$(cd "$1" && pwd)
    export WINEPREFIX WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe=d"
    say "setting up Wine"
    # Debian's Wine does not find its own fonts.
    cp /usr/share/wine/fonts/*.ttf "$1/drive_c/windows/Fonts/"
    on_virtual_display wine wineboot --init >/dev/null 2>&1
    # Without a window manager Wine would wait for one whenever a window closes.
    wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
    wineserver --wait
    # A running server makes the start of each program faster.
    wineserver --persistent=60
}
