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
export XDG_STATE_HOME=$work/state # nothing of the user's is listed or touched

source packaging/keys.sh

start() {
  "$tavimor" "$@" &
  pid=$!
  focus '^Tavimor$'
}

stop() {
  kill "$pid"
  wait "$pid" 2>/dev/null || true
}

# picture NAME TITLE: the window with this title.
picture() {
  focus "$2"
  sleep 1
  import -window "$(xdotool search --onlyvisible --name "$2" | head -n 1)" -strip "$folder/$1.png"
}

"$cli" fit examples/sound-speed --output "$work/sound-speed" >/dev/null
start "$work/sound-speed"
picture main-window '^Tavimor$'
keys F1
picture help-window '^Tavimor Help$'
stop

# Pictures of fits, for which no window opens.
"$tavimor" --picture section -o "$folder/section.png" --x C examples/offset-print
"$tavimor" --picture map -o "$folder/map.png" examples/silicon-index
"$tavimor" --picture residuals -o "$folder/residuals.png" examples/silicon-index

# The tour of the README.
folder=$PWD/$folder
cd "$work"
start
typeProblem
picture function-window '^Enter/Edit values of function$'
fitAndEvaluate
picture evaluations-window '^Evaluations$'
focus '^Tavimor$'
keys shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab space # Edit values
picture values-window '^Enter/edit values of variable'
stop
