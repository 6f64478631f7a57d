#!/bin/bash
# The real program on a display of its own, driven by keys alone: a typed specification, Save, reopen, Compute; a whole
# problem typed, fitted and evaluated.
# Usage: end_to_end.sh TAVIMOR TAVIMOR_CLI
set -euo pipefail
source "$(dirname "$0")/support/driven_program.sh"

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
endPolitely

printf ' 0 \r\n"x",-1,3,1,#TRUE#,0,2\r\n#FALSE#\r\n' | cmp - typed || fail "the specification is not what was typed"
grep -q '^ 4 ' typed.dat || fail "the number of values is not what was typed"

# f = 2 + 3 (x-1) + 4 (x-1)^2 at x = -1, 0, 1, 2, 3; reopened, fitted by the button and saved.
printf ' 0 \r\n 4 \r\n#TRUE#\r\n-1 \r\n 0 \r\n 1 \r\n 2 \r\n 3 \r\n 12 \r\n 3 \r\n 2 \r\n 9 \r\n 24 \r\n' >typed.dat
start "$folder/typed"
waitUntilOpen typed
# From the lower limit, which has the focus, to Compute; the number of values is passed over, since it is fixed.
keys Tab Tab Tab Tab Tab Tab Tab Tab Tab Tab space
keys ctrl+s
isFitted() { [ "$(sed -n 3p typed)" = $'#TRUE#\r' ]; }
waitFor isFitted
"$cli" fit typed | grep -A 3 COEFFICIENTS >expected
"$cli" show typed | grep -A 3 COEFFICIENTS | cmp - expected || fail "the window's fit is not that of the command line"
for coefficient in 2 3 4; do grep -qE "^$coefficient( |\$)" expected || fail "no coefficient $coefficient"; done

# Ctrl+E is the menu's in a field, too, where some desktops take it for a way to the field's end.
keys shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab shift+Tab # from Compute to the centre
keys ctrl+e
focus '^Export formula$'
keys Escape
focus '^Tavimor$'
keys Tab Tab Tab Tab Tab Tab Tab

# What the middle button pastes into a value passes the filter of its keys.
keys shift+Tab shift+Tab shift+Tab shift+Tab space # from Compute to Edit values
focus '^Enter/edit values of variable: x$'
values=$(window '^Enter/edit values of variable: x$')
xdotool mousemove --window "$values" 300 20 click 1
keys ctrl+a Delete
printf 'x=-1,5\n' | xclip -selection primary
xdotool mousemove --window "$values" 300 20 click 2
sleep 0.3
keys ctrl+a ctrl+c
[ "$(xclip -o -selection clipboard)" = -15 ] || fail "pasted: $(xclip -o -selection clipboard)"
endPolitely
start "$folder/typed"
waitUntilOpen typed

# A path that cannot be written is a run-time error: the box's End, behind "Save a copy...", ends the program with exit
# code 1.
keys ctrl+shift+s
focus '^Save As$'
typed "$folder/missing/problem"
keys Return
focus '^Tavimor$' 2
keys Tab Return
endsWith 1

# A whole problem typed from the first number to the last, fitted and evaluated at a point.
start
typeProblem
fitAndEvaluate
keys Tab ctrl+a ctrl+c
isEstimated() { [ "$(xclip -o -selection clipboard 2>/dev/null)" = 3.25 ]; }
waitFor isEstimated
endPolitely
echo "passed"
