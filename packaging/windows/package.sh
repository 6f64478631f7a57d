#!/bin/bash
# Makes of a build for Windows a zip that runs from any folder, and an installer: both programs, manual, documents,
# examples and the licences of all that is in them.
# Usage: package.sh BUILD_FOLDER OUT_FOLDER.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$(realpath "$1")
libraries=${XDG_CACHE_HOME:-$HOME/.cache}/tavimor-windows
triple=x86_64-w64-mingw32
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
name=tavimor-$version
rm -rf "$2"
mkdir -p "$2"
out=$(realpath "$2")
folder=$out/$name

cmake --install "$build" --prefix "$folder" >/dev/null

# The libraries that the program with windows loads, and the parts of Qt that Qt itself loads.
qt=$libraries/sysroot
cp "$qt"/bin/{Qt6{Concurrent,Core,Gui,PrintSupport,Widgets},libQCustomPlotQt6}.dll "$folder/bin"
for plugin in platforms/qwindows platforms/qoffscreen styles/qwindowsvistastyle; do
  mkdir -p "$folder/bin/${plugin%/*}"
  cp "$qt/plugins/$plugin.dll" "$folder/bin/${plugin%/*}"
done
for library in libgcc_s_seh-1 libstdc++-6 libwinpthread-1; do
  cp "$($triple-g++-posix -print-file-name=$library.dll)" "$folder/bin"
done
find "$folder" \( -name '*.exe' -o -name '*.dll' \) -exec $triple-strip --strip-unneeded {} +

# Each library that is loaded stands beside the programs or is one that Windows brings.
wine_libraries=$(dirname "$(find /usr/lib -path '*x86_64-windows/kernel32.dll' -print -quit)")
find "$folder" \( -name '*.exe' -o -name '*.dll' \) -exec $triple-objdump -p {} + | sed -n 's/.*DLL Name: //p' | sort -uf |
  while read -r library; do
    case ${library,,} in api-ms-win-*) continue ;; esac # names that Windows has for parts of its own libraries
    [ -e "$folder/bin/$library" ] || [ -e "$wine_libraries/${library,,}" ] ||
      { echo "package.sh: nobody brings $library" >&2; exit 1; }
  done

licences=$folder/share/doc/tavimor/licences
mkdir -p "$licences"
cp "$libraries/sources/qt6-base/LICENSES"/{LGPL-3.0-only,GPL-3.0-only}.txt "$licences"
for library in qt6-base qcustomplot muparser libxlsxwriter libcsv zlib; do
  cp "$libraries/sources/$library/debian/copyright" "$licences/$library.txt"
done
for package in gcc-mingw-w64-base mingw-w64-x86-64-dev libcli11-dev nlohmann-json3-dev libboost1.74-dev; do
  cp "/usr/share/doc/$package/copyright" "$licences/$package.txt"
done

(cd "$out" && zip -q -9 -r "$name-windows.zip" "$name")

# The uninstaller removes what was installed: the files, then the folders from the innermost one.
removed=$out/removed.nsh
(
  cd "$folder"
  find . -type f -printf 'Delete "$INSTDIR/%P"\n'
  find . -mindepth 1 -depth -type d -printf 'RMDir "$INSTDIR/%P"\n'
) | tr / '\\' >"$removed"
makensis -V2 -DVERSION="$version" -DPROGRAM="$folder" -DSIZE="$(du -sk "$folder" | cut -f1)" -DREMOVED="$removed" \
  -DICON="$here/../icons/tavimor.ico" -DOUT="$out/$name-windows.exe" "$here/tavimor.nsi"
rm -r "$removed" "$folder"
ls -l "$out"
