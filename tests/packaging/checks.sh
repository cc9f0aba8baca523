# shellcheck shell=bash disable=SC2034 # the tests use what is set here
# Shared by the tests of the packages. A script sources it from the repository's root.

export LC_ALL=C.UTF-8
failures=0

# check WHAT COMMAND...
check() {
    local what=$1
    shift
    if "$@"; then
        echo "ok - $what"
    else
        echo "not ok - $what"
        failures=$((failures + 1))
    fi
}

gone() { [[ ! -e $1 ]]; }
ended() { ! kill -0 "$1" 2>/dev/null; }
ends_with_code() { [[ $1 -eq ${code:?} ]]; }

# window TITLE: puts the visible window with this title into $window.
window() {
    window=$(timeout 10 xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1) && [[ -n $window ]]
}
no_window() { ! window "$1"; }

# press KEY...: gives $window the focus first, since there is no window manager.
press() {
    timeout 5 xdotool windowfocus "$window"
    sleep 0.3
    timeout 5 xdotool key --delay 80 "$@"
    sleep 0.3
}

# summary: the last line of a test; fails if a check did.
summary() {
    echo "# $failures failed"
    [[ $failures -eq 0 ]]
}
