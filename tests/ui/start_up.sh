#!/bin/bash
# The start and the end of the real program, as a whole process, for users with a decimal point and with a decimal comma.
# Usage: start_up.sh TAVIMOR TAVIMOR_CLI
set -euo pipefail
source "$(dirname "$0")/support/driven_program.sh"

comma=de_DE.UTF-8
[ "$(LC_ALL=$comma locale decimal_point)" = , ] || fail "the locale $comma is not installed"

milliseconds() { date +%s%3N; }

shows() { window "$1" >/dev/null 2>&1; }

# begin LOCALE ARGUMENT...: the program in this locale.
begin() {
  LC_ALL=$1 "$tavimor" "${@:2}" &
  pid=$!
}

# answer KEY: to the question about the decimal comma.
answer() {
  focus '^Decimal Comma Warning!$'
  shows '^About Tavimor$' && fail "the About window came before the answer"
  keys "$1"
}

# With a point nothing is asked, and the About window stands for two to three seconds before the main window.
begin C.UTF-8
waitFor shows '^About Tavimor$'
shown=$(milliseconds)
shows '^Tavimor$' && fail "the main window is there beside the About window"
focus '^Tavimor$'
lasted=$(($(milliseconds) - shown))
[ "$lasted" -ge 1900 ] && [ "$lasted" -le 5000 ] || fail "the About window stood for $lasted ms"
shows '^About Tavimor$' && fail "the About window is still there"
shows '^Decimal Comma' && fail "a question came"
endPolitely

# With a comma, No, Cancel and Escape end the program.
for key in alt+n Escape; do
  begin "$comma"
  answer "$key"
  endsWith 0
  xdotool search --onlyvisible --name Tavimor >/dev/null 2>&1 && fail "a window is left"
done
begin "$comma"
focus '^Decimal Comma Warning!$'
keys Tab Tab space # Cancel
endsWith 0

# What the program does not understand it says before anything else.
"$tavimor" --no-such-option 2>usage &
pid=$!
endsWith 2
[ "$(cat usage)" = 'tavimor: unexpected argument "--no-such-option"; see tavimor --help' ] || fail "$(cat usage)"

# Without a display it says so in one line, after wrong usage.
for display in "" :99999; do
  env -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb DISPLAY="$display" "$tavimor" 2>no_display &
  pid=$!
  endsWith 1
  [ "$(wc -l <no_display)" = 1 ] && grep -q '^tavimor: no window can be shown: ' no_display || fail "$(cat no_display)"
  env -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb DISPLAY="$display" "$tavimor" --no-such-option 2>usage &
  pid=$!
  endsWith 2
  [ "$(wc -l <usage)" = 1 ] || fail "$(cat usage)"
done

# What it is asked to print and cannot is an error.
for option in --help --version; do
  "$tavimor" "$option" >/dev/full 2>full &
  pid=$!
  endsWith 1
  [ "$(cat full)" = "tavimor: standard output: Run-time error '61': Disk full" ] || fail "$(cat full)"
done

# Yes goes on; every number that is read, shown and written has a point.
printf ' 0 \r\n"x",-1,1.5,1.25,#TRUE#,.25,1\r\n#FALSE#\r\n' >problem
printf ' 0 \r\n 2 \r\n#TRUE#\r\n-1 \r\n .25 \r\n 1.5 \r\n-.5 \r\n .75 \r\n 2 \r\n' >problem.dat
cp problem problem.before
cp problem.dat problem.dat.before
begin "$comma" "$folder/problem"
answer alt+y
focus '^Tavimor$'
waitUntilOpen problem
cmp problem problem.before
cmp problem.dat problem.dat.before
keys Tab ctrl+a
typed 2,5 # the comma ends the number
keys Tab ctrl+s
isTwo() { grep -q '^"x",-1,2,1.25,' problem; }
waitFor isTwo

# A request to end is followed with another window open over the main window, and with a dialog open: nothing is saved.
cp problem problem.before
keys shift+Tab ctrl+a
typed 7
keys ctrl+shift+s
focus '^Save As$'
endPolitely
cmp problem problem.before

begin C.UTF-8 "$folder/problem"
focus '^Tavimor$'
waitUntilOpen problem
keys Tab Tab Tab Tab Tab Tab space # Edit values
focus '^Enter/edit values of variable'
endPolitely

# The command line asks nothing, and its numbers have a point too.
"$cli" fit problem >with_point
LC_ALL=$comma "$cli" fit problem | cmp - with_point
grep -q 'AVERAGE OF FUNCTION(GIVEN)=.75' with_point || grep -q 'AVERAGE OF FUNCTION(GIVEN)=0.75' with_point ||
  fail "the average is not that of the values"
echo "passed"
