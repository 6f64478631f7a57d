#!/bin/bash
# The real program, killed and ended in the middle of work: what was typed can be had again.
# Usage: restore.sh TAVIMOR TAVIMOR_CLI
set -euo pipefail
source "$(dirname "$0")/support/driven_program.sh"
sessions=$state/tavimor/sessions

killProgram() {
  kill -KILL "$pid"
  wait "$pid" 2>/dev/null || true
}

# saysOfTheEnd NOTE: the only session that is left has said this of its end; it has said nothing where NOTE is empty.
saysOfTheEnd() {
  local notes
  notes=$(cat "$sessions"/*/end 2>/dev/null || true)
  [ "$notes" = "$1" ] || fail "the session says of its end: '$notes', not '$1'"
}

# restoreAs NAME: in a new run, saved under that name.
restoreAs() {
  start
  keys ctrl+r
  focus '^Restore$'
  keys Return
  focus '^Tavimor$'
  keys ctrl+s
  focus '^Save As$'
  typed "$folder/$1"
  keys Return
  waitFor test -s "$1"
  endPolitely
}

# isTheTypedProblem NAME: f = 1 + 2 x + 3 y + 4 x y.
isTheTypedProblem() {
  "$cli" fit "$1" >fitted
  for coefficient in '1' '2  *\*x' '3  *\*y' '4  *\*x\*y'; do
    grep -qE "^$coefficient *\$" fitted || fail "no coefficient $coefficient in what was restored: $(cat fitted)"
  done
}

# kill -9 two seconds after the last key, in the function window.
start
typeProblem
sleep 2
killProgram
saysOfTheEnd ""
restoreAs killed
isTheTypedProblem killed
[ -z "$(ls "$sessions")" ] || fail "what was saved is still kept: $(ls "$sessions")"

# The End of the error box: a slip in the box of indices, one for two variables.
start
typeProblem
keys shift+Tab shift+Tab shift+Tab space # Done
focus '^Tavimor$'
keys space # Edit function
focus '^Review of function$'
typed 1; keys Return
focus '^Tavimor$' 2
keys Tab Return
endsWith 1
saysOfTheEnd "run-time error"
restoreAs ended
isTheTypedProblem ended

# A fault of the program two seconds after the last key.
ulimit -c 0
start
typeProblem
sleep 2
kill -ABRT "$pid"
endsWith $((128 + 6)) 2>/dev/null
saysOfTheEnd crashed
restoreAs crashed
isTheTypedProblem crashed

# A request from outside, as at a log-off.
start
typeProblem
endPolitely
saysOfTheEnd "told to end"
restoreAs told
isTheTypedProblem told

echo "passed"
