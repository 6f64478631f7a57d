#!/bin/bash
# A fit of half a minute in the real program: Escape calls it off, and a request to end is followed within a second.
# Usage: long_work.sh TAVIMOR TAVIMOR_CLI
set -euo pipefail
source "$(dirname "$0")/support/driven_program.sh"

milliseconds() { date +%s%3N; }

# 26 values and degree 25 in each of four variables: 200,000,000,000 multiplications and additions.
{
  printf ' 3 \r\n'
  for name in a b c d; do printf '"%s",0,25,0,#TRUE#,0,25\r\n' $name; done
  printf '#FALSE#\r\n'
} >long
awk 'BEGIN {
  printf " 3 \r\n"
  for (v = 0; v < 4; ++v) { printf " 25 \r\n#TRUE#\r\n" }
  for (v = 0; v < 4; ++v) for (i = 0; i < 26; ++i) printf " %d \r\n", i
  for (n = 0; n < 26 * 26 * 26 * 26; ++n) printf " 0 \r\n"
}' >long.dat
"$cli" show long >/dev/null

# computes: the processor is at work for us.
ticks() { awk '{ print $14 + $15 }' "/proc/$pid/stat"; }
computes() {
  local before
  before=$(ticks)
  sleep 0.2
  [ $(($(ticks) - before)) -ge 5 ]
}
isIdle() { ! computes; }

start "$folder/long"
waitUntilOpen long
keys Tab Tab Tab Tab Tab Tab Tab Tab Tab Tab space # from the lower limit to Compute
sleep 0.5
waitFor computes
keys Escape
waitFor isIdle
cp long before
keys ctrl+s
sleep 0.5
cmp long before || fail "a fit that was called off was saved"

keys space
sleep 0.5
waitFor computes
asked=$(milliseconds)
endPolitely
lasted=$(($(milliseconds) - asked))
[ "$lasted" -lt 1000 ] || fail "the program ended $lasted ms after it was asked to"
echo "passed"
