#!/bin/bash
# Makes the pictures of the README and the documents from the real program, on a display of its own.
# Usage: packaging/screenshots.sh [FOLDER]. Needs Xvfb, xdotool and ImageMagick, and a built release.
set -euo pipefail
cd "$(dirname "$0")/.."
folder=${1:-docs/images}
tavimor=$PWD/build/release/bin/tavimor
cli=$PWD/build/release/bin/tavimor-cli

if [ -z "${TAVIMOR_SCREENSHOTS_DISPLAY:-}" ]; then
  export TAVIMOR_SCREENSHOTS_DISPLAY=1
  exec packaging/with_display.sh 2000x1400 "packaging/$(basename "$0")" "$@"
fi

work=$(mktemp -d)
trap 'kill "${pid:-}" 2>/dev/null || true; rm -rf "$work"' EXIT
mkdir -p "$folder" help/pictures
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

# analysis NAME PROBLEM: all pages of the analysis window, six in a picture. They stay in $work.
analysis() {
  start "$2"
  keys F9
  for page in c s e p r d; do # the keys of the pages
    focus '^Analysis$'
    keys alt+$page
    sleep 3
    import -window "$(window '^Analysis$' | head -n 1)" -strip "$work/page-$page.png"
  done
  stop
  montage "$work"/page-{c,s,e,p,r,d}.png -tile 2x3 -geometry 500x320+3+3 -dither FloydSteinberg -colors 255 -strip "PNG8:$folder/$1.png"
}

# A desktop with light letters on a dark ground, 200 %.
darkAndLarge() {
  mkdir -p "$work/config"
  for ground in Button=60,65,70 Tooltip=49,54,59 View=35,38,41 Window=49,54,59; do
    printf '[Colors:%s]\nBackgroundNormal=%s\nForegroundNormal=239,240,241\n' "${ground%=*}" "${ground#*=}"
  done >"$work/config/kdeglobals"
  printf '[Colors:Selection]\nBackgroundNormal=61,174,233\nForegroundNormal=252,252,252\n' >>"$work/config/kdeglobals"
  export XDG_CONFIG_HOME=$work/config XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5 QT_SCALE_FACTOR=2
}

# Pictures of fits for the manual, for which no window opens.
for picture in section map; do
  "$tavimor" --picture $picture -o "$work/$picture.png" examples/silicon-index
  convert "$work/$picture.png" -resize 560 +dither -colors 128 -strip "PNG8:help/pictures/$picture.png"
done

problems=(load-cell silicon-index sound-speed offset-print) # of one to four variables
for n in 1 2 3 4; do
  "$cli" fit "examples/${problems[n - 1]}" --output "$work/fitted-$n" >/dev/null 2>&1
  analysis "analysis-$n" "$work/fitted-$n"
  [ "$n" = 2 ] || continue
  for page in map:p residuals:r; do # the two of the README
    cp "$work/page-${page#*:}.png" "$folder/analysis-${page%:*}.png"
  done
done
(
  darkAndLarge
  for n in 1 2 3 4; do analysis "analysis-$n-dark" "$work/fitted-$n"; done
)

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
