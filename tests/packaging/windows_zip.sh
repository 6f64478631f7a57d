#!/bin/bash
# The zip for Windows, unpacked in a folder with any name and run under a Wine of its own.
# Usage: windows_zip.sh FOLDER_OF_PACKAGES.
set -euo pipefail
source "$(dirname "$0")/checks.sh"
needed unzip
packages=$(realpath "$1")
work=$(mktemp -d)
export TAVIMOR_WINEPREFIX=$work/wine
wine() { "$source_folder/packaging/windows/wine.sh" "$@" 2>/dev/null; }
# Wine writes its registry after its last program has ended.
tidy() {
  wine wineboot --kill || true
  waitFor rm -rf "$work"
}
trap tidy EXIT
wine wineboot --init

zip=$(echo "$packages"/tavimor-cli-*-windows.zip)
name=$(basename "$zip" .zip)
version=${name#tavimor-cli-}
mkdir "$work/Größe η"
unzip -q "$zip" -d "$work/Größe η"
cd "$work/Größe η/$name"
cli() { wine bin/tavimor-cli.exe "$@"; }
examples='share\doc\tavimor-cli\examples'

expectEqual "the version" "tavimor-cli ${version%-windows}" "$(cli --version)"

echo "-- a problem is fitted and kept"
cli fit "$examples\\heat-index" -o 'C:\täglich' >"$work/listing"
grep -q 'CORRELATION COEFFICIENT=' "$work/listing" || fail "no listing"
if grep -q $'\r' "$work/listing"; then fail "the listing's lines end with CR LF"; fi
[ -s "$work/wine/drive_c/täglich.dat" ] || fail "nothing is saved under a name in UTF-8"
expectEqual "the report is read back" "$(cat "$work/listing")" "$(cli fit 'C:\täglich')"

echo "-- a table comes from standard input"
printf 'x;f\n0;1,5\n1;2,5\n2;3,5\n' | cli import - 'C:\table' >/dev/null
expectEqual "an estimate" 3 "$(cli fit 'C:\table' -o 'C:\table' >/dev/null && cli eval 'C:\table' 1.5)"

echo "-- a workbook is written by the program that comes with it"
cli export "$examples\\ozone" --to xlsx -o 'C:\Größe.xlsx' || fail "no workbook"
unzip -tq "$work/wine/drive_c/Größe.xlsx" >/dev/null || fail "the workbook is none"

echo "-- a device is no file"
status=0
"$source_folder/packaging/windows/wine.sh" bin/tavimor-cli.exe copy "$examples\\ozone" 'C:\nul.txt' 2>"$work/complaint" ||
  status=$?
expectEqual "the exit status" 1 "$status"
expectEqual "the complaint" "tavimor-cli: C:\\nul.txt: Run-time error '75': Path/File access error" \
  "$(cat "$work/complaint")"

echo "-- licences of all that is in it"
for library in zlib libcsv libxlsxwriter gcc-mingw-w64-base libcli11-dev; do
  [ -s "share/doc/tavimor-cli/licences/$library.txt" ] || fail "no licence of $library"
done
echo "passed"
