#!/bin/bash
# The zip and the installer for Windows, under a Wine of their own: unpacked and run, installed for one user and for all,
# removed again.
# Usage: windows_packages.sh FOLDER_OF_PACKAGES.
set -euo pipefail
source "$(dirname "$0")/checks.sh"
needed unzip
packages=$(realpath "$1")
source "$here/own_wine.sh"

installer=$(echo "$packages"/tavimor-*-windows.exe)
version=$(basename "$installer" -windows.exe)
version=${version#tavimor-}
files() { (cd "$1" && find . -type f ! -name uninstall.exe | sort); }

# value KEY [OPTION...]: of the registry, the default one of the key with /ve; nothing where there is none.
value() { wine reg query "$@" | tr -d '\r' | sed -n 's/.*REG_[A-Z]*  *//p' || true; }

# expectToRun FOLDER: what stands there tells its version, fits, and opens a window.
expectToRun() {
  expectEqual "$1: the version" "tavimor-cli $version" "$(wine "$1/bin/tavimor-cli.exe" --version)"
  expectEqual "$1: the version" "tavimor $version" "$(wine "$1/bin/tavimor.exe" --version)"
}

echo "-- the zip runs from a folder with any name"
mkdir "$work/Größe η"
unzip -q "$packages/tavimor-$version-windows.zip" -d "$work/Größe η"
program="$work/Größe η/tavimor-$version"
expectToRun "$program"
cd "$program"
cli() { wine bin/tavimor-cli.exe "$@"; }
examples='share\doc\tavimor\examples'

echo "-- a problem is fitted and kept"
cli fit "$examples\\heat-index" -o 'C:\täglich' >"$work/listing"
grep -q 'CORRELATION COEFFICIENT=' "$work/listing" || fail "no listing"
if grep -q $'\r' "$work/listing"; then fail "the listing's lines end with CR LF"; fi
[ -s "$drive/täglich.dat" ] || fail "nothing is saved under a name in UTF-8"
expectEqual "the report is read back" "$(cat "$work/listing")" "$(cli fit 'C:\täglich')"

echo "-- a table comes from standard input"
printf 'x;f\n0;1,5\n1;2,5\n2;3,5\n' | cli import - 'C:\table' >/dev/null
expectEqual "an estimate" 3 "$(cli fit 'C:\table' -o 'C:\table' >/dev/null && cli eval 'C:\table' 1.5)"

echo "-- a workbook is written by the program that comes with it"
cli export "$examples\\ozone" --to xlsx -o 'C:\Größe.xlsx' || fail "no workbook"
unzip -tq "$drive/Größe.xlsx" >/dev/null || fail "the workbook is none"

echo "-- a picture is drawn without a window"
wine bin/tavimor.exe --picture section -o 'C:\section.png' "$examples\\ozone" || fail "no picture"
expectEqual "the picture's size" "1920 1280" "$(identify -format '%w %h' "$drive/section.png")"

echo "-- a device is no file"
status=0
"$source_folder/packaging/windows/wine.sh" bin/tavimor-cli.exe copy "$examples\\ozone" 'C:\nul.txt' 2>"$work/complaint" ||
  status=$?
expectEqual "the exit status" 1 "$status"
expectEqual "the complaint" "tavimor-cli: C:\\nul.txt: Run-time error '75': Path/File access error" \
  "$(cat "$work/complaint")"

echo "-- the manual, and licences of all that is in it"
for text in share/tavimor/tavimor.hlp share/doc/tavimor/README.md share/doc/tavimor/licences/{LGPL-3.0-only,GPL-3.0-only}.txt \
  share/doc/tavimor/licences/{qt6-base,qcustomplot,zlib,libcsv,libxlsxwriter,gcc-mingw-w64-base,libcli11-dev}.txt; do
  [ -s "$text" ] || fail "there is no $text"
done

echo "-- the program with windows"
"$here/windows_program.sh" "$program"

# expectInstallAndRemoval MODE ROOT FOLDER
expectInstallAndRemoval() {
  local classes="$2\\Software\\Classes" folder=$3
  wine "$installer" /S "/$1"
  expectEqual "/$1: what is installed" "$(files "$program")" "$(files "$folder")"
  expectToRun "$folder"
  expectEqual "/$1: the type of *.tavimor" Tavimor.Problem "$(value "$classes\\.tavimor" /ve)"
  case $(value "$classes\\Tavimor.Problem\\shell\\open\\command" /ve) in
    *'\bin\tavimor.exe" "%1"') ;;
    *) fail "/$1: nothing opens problems" ;;
  esac
  expectEqual "/$1: the version in the list of programs" "$version" \
    "$(value "$2\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Tavimor" /v DisplayVersion)"
  [ -n "$(find "$drive" -name Tavimor.lnk)" ] || fail "/$1: the start menu has no entry"

  touch "$folder/mine"
  wine "$folder/uninstall.exe" /S "/$1" # goes on in a copy of itself
  waitFor test ! -e "$folder/uninstall.exe"
  expectEqual "/$1: what is left" "./mine" "$(files "$folder")"
  expectEqual "/$1: what is left in the registry" "" \
    "$(value "$classes\\.tavimor" /ve; value "$classes\\Tavimor.Problem" /ve; value "$2\\Software\\Tavimor Installer" /v Folder)"
  [ -z "$(find "$drive" -name Tavimor.lnk)" ] || fail "/$1: the start menu still has an entry"
  rm -r "$folder"
}

echo "-- the installer, for one user and for all"
expectInstallAndRemoval CurrentUser HKCU "$drive/users/$(id -un)/AppData/Local/Programs/Tavimor"
expectInstallAndRemoval AllUsers HKLM "$drive/Program Files/Tavimor"
echo "passed"
