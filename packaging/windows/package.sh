#!/bin/bash
# Makes a zip of tavimor-cli for Windows that runs from any folder, with its examples and the licences of all that is in
# it.
# Usage: package.sh BUILD_FOLDER OUT_FOLDER.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$(realpath "$1")
sources=${XDG_CACHE_HOME:-$HOME/.cache}/tavimor-windows/sources
triple=x86_64-w64-mingw32
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
name=tavimor-cli-$version-windows
rm -rf "$2"
mkdir -p "$2"
out=$(realpath "$2")
folder=$out/$name

cmake --install "$build" --prefix "$folder" --component tavimor-cli --strip >/dev/null
mkdir -p "$folder/libexec/tavimor"
$triple-strip -o "$folder/libexec/tavimor/tavimor-workbook.exe" "$build/bin/tavimor-workbook.exe"

# Each library that a program loads is one that Windows brings.
wine_libraries=$(dirname "$(find /usr/lib -path '*x86_64-windows/kernel32.dll' -print -quit)")
find "$folder" -name '*.exe' -exec $triple-objdump -p {} + | sed -n 's/.*DLL Name: //p' | sort -u |
  while read -r library; do
    [ -e "$wine_libraries/${library,,}" ] || { echo "package.sh: nobody brings $library" >&2; exit 1; }
  done

documents=$folder/share/doc/tavimor-cli
cp -r "$here/../../examples" "$documents"
rm -rf "$documents"/examples/{.gitattributes,__pycache__}
mkdir "$documents/licences"
for library in muparser libxlsxwriter libcsv zlib; do
  cp "$sources/$library/debian/copyright" "$documents/licences/$library.txt"
done
for package in gcc-mingw-w64-base mingw-w64-x86-64-dev libcli11-dev nlohmann-json3-dev libboost1.74-dev; do
  cp "/usr/share/doc/$package/copyright" "$documents/licences/$package.txt"
done

(cd "$out" && zip -q -9 -r "$name.zip" "$name")
rm -r "$folder"
ls -l "$out/$name.zip"
