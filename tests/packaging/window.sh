#!/bin/bash
# Starts the installed program on the display of $DISPLAY, waits for its window and ends it.
# Usage: window.sh TAVIMOR.
set -euo pipefail
source "$(dirname "$0")/checks.sh"
source "$source_folder/packaging/keys.sh"
folder=$(mktemp -d)
cd "$folder"
HOME=$folder "$1" &
pid=$!
trap 'kill "$pid" 2>/dev/null || true; rm -rf "$folder"' EXIT

focus '^Tavimor$'
kill -TERM "$pid"
wait "$pid" || fail "the program ended with exit code $?"
