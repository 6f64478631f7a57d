#!/bin/bash
# Checks that a program is hardened: position-independent, its relocations read-only and bound at once, its stack
# protected.
# Usage: hardening.sh PROGRAM.
set -euo pipefail
source "$(dirname "$0")/checks.sh"
program=$1

readelf -hW "$program" | grep -q 'Type: *DYN' || fail "$program is not position-independent"
readelf -lW "$program" | grep -q 'GNU_RELRO' || fail "$program has no read-only relocations"
readelf -dW "$program" | grep -q 'BIND_NOW\|Flags:.* NOW' || fail "$program does not bind its symbols at once"
readelf -lW "$program" | grep 'GNU_STACK' | grep -q 'RWE' && fail "the stack of $program is executable"
# What is linked statically and stripped has no functions left to tell.
symbols=$(readelf -sW "$program" | grep FUNC || true)
if [ -n "$symbols" ]; then
  grep -q '__stack_chk_fail' <<<"$symbols" || fail "the stack of $program is not protected"
  grep -q '__[a-z]*_chk\b' <<<"$symbols" || fail "$program is not fortified"
fi
