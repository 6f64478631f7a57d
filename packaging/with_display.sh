#!/bin/bash
# Runs a command on a display of its own.
# Usage: packaging/with_display.sh WIDTHxHEIGHT COMMAND [ARGUMENT...]. Needs Xvfb.
set -euo pipefail
size=$1
shift

# The server picks a free number and tells it when it is ready, so that two of these never share a display. It stays as it
# is when the last program on it ends: another one may be about to start.
number=$(mktemp)
Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset 3>"$number" 2>/dev/null &
server=$!
trap 'kill "$server" 2>/dev/null || true; rm -f "$number"' EXIT
for _ in $(seq 100); do
  [ -s "$number" ] && break
  sleep 0.1
done
[ -s "$number" ] || { echo "with_display.sh: Xvfb did not start" >&2; exit 1; }

DISPLAY=:$(cat "$number") QT_QPA_PLATFORM=xcb "$@"
