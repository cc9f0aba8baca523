#!/bin/sh
# Starts the program of the same name. The program looks for its catalogue in the folder that LOCALAPPDATA names, which
# only Windows sets.
: "${LOCALAPPDATA:=${XDG_DATA_HOME:-$HOME/.local/share}}"
export LOCALAPPDATA
exec "$(dirname "$(readlink -f "$0")")/../libexec/$(basename "$0")" "$@"
