#!/bin/bash
# Makes the pictures of the README from the real program with a shipped example, on a display of its own.
# Usage: packaging/screenshots.sh [FOLDER]. Needs Xvfb, xdotool and ImageMagick, and a built release.
set -euo pipefail
cd "$(dirname "$0")/.."
folder=${1:-docs/images}
tavimor=$PWD/build/release/bin/tavimor
cli=$PWD/build/release/bin/tavimor-cli

if [ -z "${TAVIMOR_SCREENSHOTS_DISPLAY:-}" ]; then
  export TAVIMOR_SCREENSHOTS_DISPLAY=1
  exec packaging/with_display.sh 1600x1400 "packaging/$(basename "$0")" "$@"
fi

work=$(mktemp -d)
trap 'kill "${pid:-}" 2>/dev/null || true; rm -rf "$work"' EXIT
mkdir -p "$folder"

# picture NAME PROBLEM: the main window with the problem opened.
picture() {
  "$tavimor" "$2" &
  pid=$!
  window=$(xdotool search --sync --onlyvisible --name '^Tavimor$' | head -n 1)
  xdotool windowfocus --sync "$window"
  sleep 1
  import -window "$window" -strip "$folder/$1.png"
  kill "$pid"
  wait "$pid" 2>/dev/null || true
}

"$cli" fit examples/sound-speed --output "$work/sound-speed" >/dev/null
picture main-window "$work/sound-speed"
