#!/bin/bash
# Starts the installed program on the display of $DISPLAY in a folder without a manual, has it show the installed one
# and ends it.
# Usage: window.sh TAVIMOR.
set -euo pipefail
source "$(dirname "$0")/checks.sh"
source "$source_folder/packaging/keys.sh"
folder=$(mktemp -d)
cd "$folder"
HOME=$folder XDG_STATE_HOME=$folder/state "$1" &
pid=$!
trap 'kill "$pid" 2>/dev/null || true; rm -rf "$folder"' EXIT

isOpen() { window "$1" >/dev/null; }
focus '^Tavimor$'
showsManual() { keys F1 && isOpen '^Tavimor Help$'; }
waitFor showsManual
kill -TERM "$pid"
wait "$pid" || fail "the program ended with exit code $?"
