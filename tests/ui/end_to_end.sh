#!/bin/bash
# The real program on a display of its own, driven by keys alone: a typed specification, Save, reopen, Compute; a whole
# problem typed, fitted and evaluated.
# Usage: end_to_end.sh TAVIMOR TAVIMOR_CLI. Leaves with 77 where there is no such display to be had.
set -euo pipefail
tavimor=$1
cli=$2

for tool in Xvfb xdotool xclip; do
  command -v "$tool" >/dev/null || { echo "SKIPPED: $tool is not installed, so the program cannot be driven"; exit 77; }
done
if [ -z "${TAVIMOR_END_TO_END_DISPLAY:-}" ]; then
  export TAVIMOR_END_TO_END_DISPLAY=1
  exec "$(dirname "$0")/../../packaging/with_display.sh" 1024x768 "$0" "$tavimor" "$cli"
fi

source "$(dirname "$0")/../../packaging/keys.sh"
folder=$(mktemp -d)
trap 'kill "${pid:-}" 2>/dev/null || true; rm -rf "$folder"' EXIT
cd "$folder"

fail() { echo "FAILED: $*"; exit 1; }

start() {
  "$tavimor" "$@" &
  pid=$!
  focus '^Tavimor$'
}

waitFor() {
  for _ in $(seq 100); do "$@" && return; sleep 0.1; done
  fail "waited in vain for: $*"
}

# One variable, x on [-1, 3], 5 values, degree 2, about 1: each field typed and left by Tab or Enter.
start
typed 1; keys Tab
typed x; keys Return
typed -1; keys Tab
typed 3; keys Tab
typed 5; keys Return
typed 2; keys Tab
typed 1; keys Tab
keys ctrl+s
focus '^Save As$'
typed "$folder/typed"
keys Return
waitFor test -s typed.dat
waitFor test -s typed
kill "$pid"

printf ' 0 \r\n"x",-1,3,1,#TRUE#,0,2\r\n#FALSE#\r\n' | cmp - typed || fail "the specification is not what was typed"
grep -q '^ 4 ' typed.dat || fail "the number of values is not what was typed"

# f = 2 + 3 (x-1) + 4 (x-1)^2 at x = -1, 0, 1, 2, 3; reopened, fitted by the button and saved.
printf ' 0 \r\n 4 \r\n#TRUE#\r\n-1 \r\n 0 \r\n 1 \r\n 2 \r\n 3 \r\n 12 \r\n 3 \r\n 2 \r\n 9 \r\n 24 \r\n' >typed.dat
start "$folder/typed"
# Save is to be had, and writes the files anew, as soon as the problem is open.
touch started
isOpened() { keys ctrl+s; sleep 0.2; [ typed.dat -nt started ]; }
waitFor isOpened
# From the lower limit, which has the focus, to Compute; the number of values is passed over, since it is fixed.
keys Tab Tab Tab Tab Tab Tab Tab Tab Tab Tab space
keys ctrl+s
isFitted() { [ "$(sed -n 3p typed)" = $'#TRUE#\r' ]; }
waitFor isFitted
"$cli" fit typed | grep -A 3 COEFFICIENTS >expected
"$cli" show typed | grep -A 3 COEFFICIENTS | cmp - expected || fail "the window's fit is not that of the command line"
for coefficient in 2 3 4; do grep -q "^$coefficient " expected || fail "no coefficient $coefficient"; done

# A path that cannot be written is a run-time error: the box's End ends the program with exit code 1.
keys ctrl+shift+s
focus '^Save As$'
typed "$folder/missing/problem"
keys Return
waitFor xdotool search --onlyvisible --name '^Tavimor$' getwindowname %2 >/dev/null
xdotool search --onlyvisible --name '^Tavimor$' windowfocus --sync %2
keys Return
exitCode=0
wait "$pid" || exitCode=$?
[ "$exitCode" = 1 ] || fail "the program ended with exit code $exitCode"
# A whole problem typed from the first number to the last, fitted and evaluated at a point.
start
typeProblem
fitAndEvaluate
keys Tab ctrl+a ctrl+c
isEstimated() { [ "$(xclip -o -selection clipboard 2>/dev/null)" = 3.25 ]; }
waitFor isEstimated
kill "$pid"
echo "passed"
