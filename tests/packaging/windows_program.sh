#!/bin/bash
# The program with windows for Windows, under a Wine and on a display of its own, driven by keys alone.
# Usage: windows_program.sh FOLDER_OF_PROGRAM [FOLDER_FOR_PICTURES]
set -euo pipefail
source "$(dirname "$0")/checks.sh"
needed Xvfb xdotool xclip openbox pdftotext import
if [ -z "${TAVIMOR_DISPLAY:-}" ]; then
  export TAVIMOR_DISPLAY=1
  exec "$source_folder/packaging/with_display.sh" 1280x1024 "$0" "$@"
fi
source "$source_folder/packaging/keys.sh"
# Wine follows a window manager.
giveKeyboard() { [ -n "$1" ] && timeout 5 xdotool windowactivate --sync "$1"; }
program=$(realpath "$1")
pictures=${2:+$(realpath "$2")}
source "$here/own_wine.sh"
openbox >/dev/null 2>&1 & # ends with the display

# separator: as the registry has it.
formats='HKCU\Control Panel\International'
separator() { wine reg query "$formats" /v sDecimal | tr -d '\r' | sed -n 's/.*REG_SZ *//p'; }

# begin ARGUMENT...: the program.
begin() {
  "$source_folder/packaging/windows/wine.sh" "$program/bin/tavimor.exe" "$@" 2>"$work/errors" &
  pid=$!
}
start() {
  begin "$@"
  focus '^Tavimor$'
}
# As a click on the cross does.
close() {
  wine taskkill /IM tavimor.exe >/dev/null
  endsWith 0
}
endsWith() {
  local status=0
  wait "$pid" || status=$?
  expectEqual "the exit status" "$1" "$status"
}
cli() { wine "$program/bin/tavimor-cli.exe" "$@"; }

# picture NAME TITLE: of the window with this title, where pictures are wanted.
picture() {
  focus "$2"
  [ -n "$pictures" ] || return 0
  sleep 2
  import -window "$(window "$2" | head -n 1)" -strip "$pictures/$1.png"
}

# answerFile TITLE PATH: to a dialog of the system that asks for a file.
answerFile() {
  focus "$1"
  keys ctrl+a
  typed "$2"
  keys Return
  focus '^Tavimor$'
}

echo "-- a problem is typed, fitted and evaluated"
start
typeProblem
picture function-window '^Enter/Edit values of function$'
fitAndEvaluate
keys Tab ctrl+a ctrl+c
isEstimated() { [ "$(xclip -o -selection clipboard 2>/dev/null)" = 3.25 ]; }
waitFor isEstimated
picture evaluations-window '^Evaluations$'
focus '^Tavimor$'
keys ctrl+s
answerFile '^Save As$' 'C:\typed'
waitFor test -s "$drive/typed"
close
expectEqual "the fit of the window" "$(cli fit 'C:\typed' 2>&1)" "$(cli show 'C:\typed' | sed -n '/CORRELATION/,$p')"

echo "-- an example is opened and computed, a value typed, the report printed"
cp "$program"/share/doc/tavimor/examples/sound-speed{,.dat} "$drive"
start 'C:\sound-speed'
keys Tab Tab Tab Tab Tab Tab Tab Tab Tab Tab space # Compute
picture main-window '^Tavimor$'
keys ctrl+p
answerFile '^Print to PDF$' 'C:\report.pdf'
waitFor test -s "$drive/report.pdf"
pdftotext -layout "$drive/report.pdf" - | grep -q 'CORRELATION COEFFICIENT=1.00000000000002' || fail "not the report"
keys F9
picture analysis-window '^Analysis$'
focus '^Tavimor$'
keys F1
picture help-window '^Tavimor Help$'
focus '^Tavimor$'
keys shift+Tab shift+Tab shift+Tab shift+Tab space # from Compute to Edit values
picture values-window '^Enter/edit values of variable: T$'
close

echo "-- a decimal comma is asked about, changed for the run and written back"
wine reg add "$formats" /v sDecimal /d , /f >/dev/null
begin
focus '^Decimal Comma Warning!$'
keys alt+n
endsWith 0
expectEqual "the separator after No" , "$(separator)"
begin
picture decimal-comma '^Decimal Comma Warning!$'
keys alt+y
focus '^Tavimor$'
expectEqual "the separator after Yes" . "$(separator)"
close
expectEqual "the separator at the end" , "$(separator)"
echo "passed"
