#!/bin/bash
# 200,000 random actions in the program's windows: without a display, and on one without and with a window manager.
# Usage: windows.sh FOLDER_OF_PROGRAMS [ACTIONS]
set -euo pipefail
monkey=$(realpath "$1")/monkey
actions=${2:-200000}
with_display=$(realpath "$(dirname "$0")/../../packaging/with_display.sh")
logs=$(mktemp -d)

# unleash NAME COMMAND...: what crashes leaves its log, which the monkey replays.
unleash() {
  "${@:2}" "$seed" "$logs/$1" || { echo "FAILED: $1; to see it again: $monkey $actions $seed replayed $logs/$1"; exit 1; }
  rm "$logs/$1"
}

seed=$RANDOM
QT_QPA_PLATFORM=offscreen unleash offscreen "$monkey" $((actions / 2))
unleash no-manager "$with_display" 1024x768 "$monkey" $((actions / 4))
unleash manager "$with_display" 1024x768 bash -c 'openbox & trap "kill $!" EXIT; sleep 1; "$@"' bash "$monkey" $((actions / 4))
rmdir "$logs"
