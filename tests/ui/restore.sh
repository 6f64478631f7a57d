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
[ ! -e "$(echo "$sessions"/*/end)" ] || fail "a killed session says how it has ended"
restoreAs killed
isTheTypedProblem killed
[ -z "$(ls "$sessions")" ] || fail "what was saved is still kept: $(ls "$sessions")"

# The End of the error box: a folder that is missing.
start
typeProblem
keys shift+Tab shift+Tab shift+Tab space # Done
focus '^Tavimor$'
keys ctrl+s
focus '^Save As$'
typed "$folder/missing/problem"
keys Return
focus '^Tavimor$' 2
keys Tab Return
endsWith 1
[ "$(cat "$sessions"/*/end)" = "run-time error" ] || fail "the error box's End is not told"
restoreAs ended
isTheTypedProblem ended

# Two programs at once, both killed.
start
typed 1; keys Tab
typed x; keys Tab
typed 11; keys Tab
first=$pid
start
typed 1; keys Tab
typed y; keys Tab
typed 22; keys Tab
sleep 2
killProgram
pid=$first
killProgram
grep -l '"lower": "11"' "$sessions"/*/*/description.json >/dev/null || fail "the first program's work is lost"
grep -l '"lower": "22"' "$sessions"/*/*/description.json >/dev/null || fail "the second program's work is lost"
echo "passed"
