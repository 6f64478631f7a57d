#!/bin/bash
# A problem stays one whole pair, whatever happens while it is saved.
# Usage: saves.sh FOLDER_OF_PROGRAMS short|long
set -euo pipefail
programs=$(realpath "$1")
cli=$programs/tavimor-cli
driver=$programs/pair-driver
examples=$(realpath "$(dirname "$0")/../../examples")
source "$(dirname "$0")/../support/checks.sh"

case $2 in
  short) rounds=20 saves=100 readings=1000 every=5 ;;
  long) rounds=500 saves=1000 readings=10000 every=1 ;;
esac

strace -qq -o /dev/null true 2>/dev/null || { echo "SKIPPED: strace cannot be used here"; exit 77; }

folder=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$folder"' EXIT
cd "$folder"
mkdir sources place
for name in old:ozone new:load-cell third:offset-print; do
  "$cli" copy "$examples/${name#*:}" "sources/${name%:*}"
done

place() { rm -rf place; mkdir place; cp sources/old place/p; cp sources/old.dat place/p.dat; }
isPair() { cmp -s "$1" "sources/$2" && cmp -s "$1.dat" "sources/$2.dat"; }
standsAlone() { [ "$(ls -A place)" = $'p\np.dat' ]; }

# expectWholePair WHAT: who opens the problem finds the old pair or the new one; the next save leaves its own, alone.
expectWholePair() {
  "$cli" copy place/p opened || fail "$1: the problem cannot be opened"
  isPair opened old || isPair opened new || fail "$1: the files are of two saves"
  "$cli" copy sources/third place/p || fail "$1: the next save is refused"
  isPair place/p third || fail "$1: the next save is not whole"
  standsAlone || fail "$1: this is left over: $(ls -A place)"
}

# saveUnder WHAT CALL INJECTION: saves with something happening at one system call; gives the exit status in $status.
saveUnder() {
  place
  status=0
  { strace -qq -o /dev/null -e trace="$2" -e inject="$2:$3" "$cli" copy sources/new place/p; } 2>complaint || status=$?
}

# The calls of a save, each as "name number", from the one with which the reading of its source has begun.
place
strace -qq -o log "$cli" copy sources/new place/p
awk -F'(' '/^[a-z]/ { n[$1]++; if (/"sources\/new/ && !/^execve/) begun = 1; if (begun) print $1, n[$1] }' log |
  grep -v '^exit_group\|^execve' >calls
[ "$(wc -l <calls)" -gt 50 ] || fail "only $(wc -l <calls) system calls are known"

# eachCall: the calls of a short run are every fifth one, another fifth at each run; a long run takes all.
eachCall() { awk -v every="$every" -v first=$((RANDOM % every)) 'NR % every == first' calls; }

killed=0
while read -r call number; do
  saveUnder kill "$call" "signal=KILL:when=$number"
  [ "$status" = 137 ] || fail "$call $number: not killed, but status $status"
  expectWholePair "killed at $call $number"
  killed=$((killed + 1))
done < <(eachCall)
echo "$killed kills"

asked=0
for signal in INT TERM HUP; do
  while read -r call number; do
    saveUnder "$signal" "$call" "signal=$signal:when=$number"
    [ "$status" -gt 128 ] || fail "$call $number: SIG$signal ended in status $status"
    standsAlone || fail "SIG$signal at $call $number: this is left over: $(ls -A place)"
    expectWholePair "SIG$signal at $call $number"
    asked=$((asked + 1))
  done < <(eachCall)
done
echo "$asked requests to end"

refused=0
for error in EIO ENOSPC EACCES; do
  while read -r call number; do
    case $call in brk | mmap | munmap | mprotect | rt_sig* | futex) continue ;; esac
    saveUnder "$error" "$call" "error=$error:when=$number"
    case $status in
      0) isPair place/p new || fail "$call $number refused with $error: status 0 without the new pair" ;;
      1) [ -s complaint ] || fail "$call $number refused with $error: no complaint" ;;
      *) fail "$call $number refused with $error: status $status, $(cat complaint)" ;;
    esac
    expectWholePair "$call $number refused with $error"
    refused=$((refused + 1))
  done < <(eachCall)
done
echo "$refused refused calls"

# Two savers at once: one of the two pairs, and nothing else.
for round in $(seq "$rounds"); do
  place
  "$cli" copy sources/old place/p &
  first=$!
  "$cli" copy sources/new place/p || fail "round $round: the second saver was refused"
  wait $first || fail "round $round: the first saver was refused"
  standsAlone || fail "round $round: this is left over: $(ls -A place)"
  isPair place/p old || isPair place/p new || fail "round $round: the files are of two saves"
  expectWholePair "round $round"
done
echo "$rounds rounds of two savers"

# A reader beside a saver.
place
"$driver" place/p "$saves" "$readings" || fail "a reader beside a saver"
standsAlone || fail "beside a reader this is left over: $(ls -A place)"
