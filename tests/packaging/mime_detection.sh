#!/bin/bash
# Checks that desktops know a problem by its content or by *.tavimor, and take nothing else for one.
# Usage: mime_detection.sh MIME_XML EXAMPLES.
set -euo pipefail
source "$(dirname "$0")/checks.sh"
definition=$1
examples=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

mkdir -p "$work/share/mime/packages" "$work/files"
cp "$definition" "$work/share/mime/packages"
XDG_DATA_DIRS=$work/share:/usr/share update-mime-database "$work/share/mime"

typeOf() {
  XDG_DATA_HOME=$work/none XDG_DATA_DIRS=$work/share:/usr/share gio info -a standard::content-type "$1" |
    sed -n 's/.*standard::content-type: //p'
}

expectProblem() { expectEqual "type of $1" application/x-tavimor-problem "$(typeOf "$1")"; }
expectOther() { [ "$(typeOf "$1")" != application/x-tavimor-problem ] || fail "$1 is taken for a problem"; }

for values in "$examples"/*.dat "$examples"/nist/*.dat; do
  expectProblem "${values%.dat}"
  expectOther "$values"
done
for other in "$examples"/README.md "$examples"/make_examples.py "$examples"/data/*.csv "$definition"; do
  expectOther "$other"
done

cd "$work/files"
tr -d '\r' <"$examples/heat-index" >line-feeds
printf '3\n"a",0,1,*,#FALSE#,*,2\n"b",0,1,*,#FALSE#,0,2\n' >by-hand
printf '0\r\n"a name of some length, with a comma",0,1,.5,#FALSE#,0,2\r\n' >without-blanks
cp "$examples/heat-index" named.dat
printf '01\n"x",0,1,0,#TRUE#,0,1\n' >named.tavimor # known by its name alone
for problem in *; do expectProblem "$problem"; done

mkdir others
cd others
printf ' 4 \r\n"x",0,1,0,#TRUE#,0,1\r\n#FALSE#\r\n' >five-variables
printf ' 1 \r\n 2 \r\n#TRUE#\r\n' >values
printf '2\n"x","y"\n1,2\n' >table.of-numbers
printf ' 1 \r\n"x" and "y" are names.\r\n' >prose
printf 'id,flag,x\n1,#TRUE#,2\n' >flags
printf '1\n' >digit
: >empty
for other in *; do expectOther "$other"; done
