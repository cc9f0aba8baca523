# shellcheck shell=bash
# Drives the programs of this repository as a user does: real keys, the real mouse, and a look at the screen. A script
# sources it on a separate virtual display without a window manager. $window is the current window.

export LC_ALL=C.UTF-8 # titles and typed text hold Croatian letters
export LANGUAGE=en    # the keys of the system's own buttons

# The time limits of waits, in seconds.
window_wait=30
still_wait=10

# --- Looking ---

# find_window TITLE [EXCEPT]: prints the number of the visible window whose title matches, if there is one other
# than EXCEPT.
find_window() {
    # xdotool's own search by title does not find titles with Croatian letters.
    local candidate
    for candidate in $(timeout 10 xdotool search --onlyvisible --name '.*' 2>/dev/null); do
        if [[ $candidate != "${2:-}" && $(xdotool getwindowname "$candidate" 2>/dev/null) =~ $1 ]]; then
            echo "$candidate"
            return 0
        fi
    done
    return 1
}

# wait_for TITLE SECONDS [EXCEPT]: waits for such a window and prints its number.
wait_for() {
    local end=$((SECONDS + $2))
    until find_window "$1" "${3:-}"; do
        ((SECONDS < end)) || return 1
        sleep 0.1
    done
}

# opens TITLE [EXCEPT]: waits for the window that must open; it becomes $window and gets the keys.
opens() {
    window=$(wait_for "$1" $window_wait "${2:-}") && focus "$window"
}

# closes TITLE: true if no window with this title is left in time.
closes() {
    local end=$((SECONDS + window_wait))
    while find_window "$1" >/dev/null; do
        ((SECONDS < end)) || return 1
        sleep 0.1
    done
}

# still_picture WINDOW FILE: takes a picture once it looks the same twice; "root" is the whole screen.
still_picture() {
    local before='' now='' end=$((SECONDS + still_wait))
    while ((SECONDS < end)); do
        timeout 10 import -window "$1" "$2" || return 1
        now=$(identify -format '%#' "$2")
        [[ $now != "$before" ]] || break
        before=$now
        sleep 0.7 # longer than a caret's blink, or a dark caret could pass for stillness
    done
}

# --- Driving ---

# use_croatian_keyboard: xdotool puts letters that the keyboard lacks on spare keys while it types, and would lose
# some. A display forgets its keyboard when its last window closes.
use_croatian_keyboard() { timeout 10 setxkbmap hr; }

# Without a window manager the script must raise a window and give it the focus.
focus() {
    sleep 0.3
    timeout 5 xdotool windowraise "$1" windowfocus "$1" || return 1
    sleep 0.3
}

key() { timeout 10 xdotool key --delay 80 "$@"; sleep 0.2; }
type_text() { timeout 30 xdotool type --delay 60 -- "$1"; sleep 0.2; }

# click X Y [KEY]: clicks at a place of $window while the key is held.
click() {
    timeout 5 xdotool mousemove --window "$window" "$1" "$2"
    [[ -z ${3:-} ]] || timeout 5 xdotool keydown "$3"
    timeout 5 xdotool click 1
    [[ -z ${3:-} ]] || timeout 5 xdotool keyup "$3"
    sleep 0.3
    timeout 5 xdotool mousemove 1279 799 # a pointer over a control would light it up
}
