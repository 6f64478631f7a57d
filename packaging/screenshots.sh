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

start() {
  "$tavimor" "$@" &
  pid=$!
  focus '^Tavimor$'
}

stop() {
  kill "$pid"
  wait "$pid" 2>/dev/null || true
}

focus() { xdotool search --sync --onlyvisible --name "$1" windowfocus --sync; }
keys() { xdotool key --delay 30 "$@"; }
typed() { xdotool type --delay 15 -- "$1"; }

# picture NAME TITLE: the window with this title.
picture() {
  focus "$2"
  sleep 1
  import -window "$(xdotool search --onlyvisible --name "$2" | head -n 1)" -strip "$folder/$1.png"
}

# block LOWER UPPER COUNT: a variable's specifications of degree 1 about 0.
block() {
  typed "$1"; keys Tab
  typed "$2"; keys Tab
  typed "$3"; keys Return
  typed 1; keys Tab
  typed 0
}

"$cli" fit examples/sound-speed --output "$work/sound-speed" >/dev/null
start "$work/sound-speed"
picture main-window '^Tavimor$'
stop

# The tour of the README: f = 1 + 2 x + 3 y + 4 x y on x = 0, 1, 2 and y = 0, 1.
cd "$work"
folder=$OLDPWD/$folder
start
typed 2; keys Tab
typed x,y; keys Return
block 0 2 3
keys Tab Tab Tab Tab Tab space # Next
block 0 1 2
keys Tab Tab Tab Tab Tab Tab space # Edit function
focus '^Review of function$'
typed 0,0; keys Return
focus '^Enter/Edit values of function$'
for value in 1 4 3 10 5; do typed "$value"; keys Return; done
typed 16
picture function-window '^Enter/Edit values of function$'
keys shift+Tab shift+Tab shift+Tab space # Done
focus '^Tavimor$'
keys Tab space Tab space # Compute, Evaluations
focus '^Evaluations$'
typed 0.5; keys Tab
typed 0.25; keys Tab space # Compute
picture evaluations-window '^Evaluations$'
focus '^Tavimor$'
keys shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab space # Edit values
picture values-window '^Enter/edit values of variable'
stop
