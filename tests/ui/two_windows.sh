#!/bin/bash
# New window starts a further program, and each of the two keeps its own problem: what a living one keeps the other never
# shows or removes, and what a dead one has left can be had in the other.
# Usage: two_windows.sh TAVIMOR TAVIMOR_CLI
set -euo pipefail
source "$(dirname "$0")/support/driven_program.sh"
sessions=$state/tavimor/sessions
programs=()
trap 'kill "${programs[@]}" 2>/dev/null || true; rm -rf "$folder" "$state"' EXIT

# startedBeside PID...: `pid` is the process of a main window that is of none of these.
startedBeside() {
  local windows one
  windows=$(pid='' window '^Tavimor$')
  for one in $windows; do
    pid=$(xdotool getwindowpid "$one")
    case " $* " in *" $pid "*) ;; *) return 0 ;; esac
  done
  return 1
}
# followNewOne: until the main window of a program that another one has started is there; `pid` is its process then.
followNewOne() {
  waitFor startedBeside "${programs[@]}"
  programs+=("$pid")
  focus '^Tavimor$'
}

# typeOneVariable NAME LOWER
typeOneVariable() {
  typed 1; keys Tab
  typed "$1"; keys Tab
  typed "$2"; keys Tab
}

isKept() { grep -qs "\"lower\": \"$1\"" "$sessions"/*/*/description.json; }
isGone() { ! kill -0 "$1"; }

start
programs+=("$pid")
typeOneVariable x 11
waitFor isKept 11

keys ctrl+n
followNewOne
first=${programs[0]} second=${programs[1]}
[ "$(readlink "/proc/$second/exe")" = "$(readlink "/proc/$first/exe")" ] || fail "the new window is of another program"
[ "$(readlink "/proc/$second/cwd")" = "$folder" ] || fail "the new window works in another folder"
typeOneVariable y 22
waitFor isKept 22
isKept 11 || fail "the second program has removed what the first one keeps"

# Remove, if there were anything to remove; then Enter, if there were anything to open.
keys ctrl+r
focus '^Restore$'
keys alt+r Return Escape
focus '^Tavimor$'
sleep 1
[ "$(pid='' window '^Tavimor$' | wc -l)" = 2 ] || fail "what a living program keeps was opened"
isKept 11 && isKept 22 || fail "what a living program keeps was removed"

# The first one is killed. The second one has its problem already: a third one opens the copy.
kill -KILL "$first"
wait "$first" 2>/dev/null || true
keys ctrl+r
focus '^Restore$'
keys Return
followNewOne
third=${programs[2]}
keys ctrl+s
focus '^Save As$'
typed "$folder/restored"
keys Return
waitFor test -s restored
grep -q '^"x",11,' restored || fail "not what the first program kept: $(cat restored)"
isKept 22 || fail "the third program has removed what the second one keeps"
waitFor eval '! isKept 11'

kill "$second" "$third"
waitFor isGone "$second"
waitFor isGone "$third"
isKept 22 || fail "what the second program kept is lost"
echo "passed"
