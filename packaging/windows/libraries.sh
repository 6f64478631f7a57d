#!/bin/bash
# Builds for Windows, once, the libraries that the programs and their tests need, from Debian's source packages in the
# versions of this system. What is there already is left alone: a run that was interrupted goes on where it stood.
# Usage: libraries.sh.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
folder=${XDG_CACHE_HOME:-$HOME/.cache}/tavimor-windows
sysroot=$folder/sysroot
triple=x86_64-w64-mingw32
mkdir -p "$folder"/{build,done,sources,apt/{lists,cache/archives}/partial} "$sysroot"/{include,lib/pkgconfig,share/cmake}

say() { printf 'windows: %s\n' "$*" >&2; }

# step NAME WHAT: runs the function NAME unless that has succeeded before; its output goes to a file.
step() {
  [ ! -e "$folder/done/$1" ] || return 0
  local log=$folder/build/$1.log seconds=$SECONDS status=0
  say "$2 (output in $log)"
  set +e
  (set -e; "$1") >"$log" 2>&1
  status=$?
  set -e
  if [ $status -ne 0 ]; then
    tail -n 20 "$log" >&2
    say "not done: $2"
    exit 1
  fi
  say "done in $((SECONDS - seconds)) s"
  touch "$folder/done/$1"
}

# A configuration of apt of our own, so that the system's lists stay as they are.
package_lists() {
  . /etc/os-release
  [ "$ID" = debian ] || { echo "this takes Debian's source packages, and this system is $ID"; return 1; }
  echo "deb-src http://deb.debian.org/debian $VERSION_CODENAME main" >"$folder/apt/sources.list"
  cat >"$folder/apt/apt.conf" <<TEXT
Dir::Etc::SourceList "$folder/apt/sources.list";
Dir::Etc::SourceParts "/dev/null";
Dir::State::Lists "$folder/apt/lists";
Dir::Cache "$folder/apt/cache";
APT::Sandbox::User "";
TEXT
  APT_CONFIG=$folder/apt/apt.conf apt-get update -q
}

# from_source PACKAGE...: what `apt-get source` gives, unpacked in sources/PACKAGE.
from_source() {
  cd "$folder/sources"
  for package; do
    APT_CONFIG=$folder/apt/apt.conf apt-get source -q --download-only "$package"
    rm -rf "$package"
    dpkg-source --no-check -x "$package"_*.dsc "$package"
  done
}
sources() { from_source zlib muparser libxlsxwriter libcsv gmp; }
window_sources() { from_source qt6-base qcustomplot; }

# install_with_cmake SOURCE BUILD [OPTION...]
install_with_cmake() {
  cmake -S "$1" -B "$folder/build/$2" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$here/../../cmake/windows.cmake" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$sysroot" "${@:3}"
  cmake --build "$folder/build/$2" --target install
}

# Headers are the same for every system.
headers() {
  cp -r /usr/include/{CLI,nlohmann} "$sysroot/include"
  cp -r /usr/share/cmake/{CLI11,nlohmann_json} "$sysroot/share/cmake"
  ln -sfn /usr/include/boost "$sysroot/include/boost"
}

googletest() { install_with_cmake /usr/src/googletest googletest; }

# Debian's source is without the resources of a DLL: the static library needs none.
zlib() {
  cd "$folder/sources/zlib"
  cmake -S . -B "$folder/build/zlib" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$here/../../cmake/windows.cmake" \
    -DCMAKE_BUILD_TYPE=Release
  cmake --build "$folder/build/zlib" --target zlibstatic
  cp "$folder/build/zlib/libzlibstatic.a" "$sysroot/lib/libz.a"
  cp zlib.h "$folder/build/zlib/zconf.h" "$sysroot/include"
}

muparser() {
  install_with_cmake "$folder/sources/muparser" muparser -DBUILD_SHARED_LIBS=OFF -DENABLE_SAMPLES=OFF -DENABLE_OPENMP=OFF
}

libxlsxwriter() { install_with_cmake "$folder/sources/libxlsxwriter" libxlsxwriter -DBUILD_SHARED_LIBS=OFF; }

libcsv() {
  cd "$folder/sources/libcsv"
  $triple-gcc-posix -O2 -c libcsv.c -o "$folder/build/libcsv.o"
  $triple-ar rcs "$sysroot/lib/libcsv.a" "$folder/build/libcsv.o"
  cp csv.h "$sysroot/include"
}

# For the tests, which solve the problem in exact arithmetic too. Debian's source is without the manual.
gmp() {
  mkdir -p "$folder/sources/gmp/doc"
  printf 'all install:\n' >"$folder/sources/gmp/doc/Makefile.in"
  mkdir -p "$folder/build/gmp"
  cd "$folder/build/gmp"
  "$folder/sources/gmp/configure" --host=$triple --build="$(gcc -dumpmachine)" --enable-cxx --disable-shared \
    --prefix="$sysroot" CC=$triple-gcc-posix CXX=$triple-g++-posix
  make -j "$(nproc)"
  make install
}

# What no window of ours uses is left out. Debian's source has no header for tablets.
qt() {
  local off
  off=$(printf -- '-DFEATURE_%s=OFF ' network sql dbus xml testlib vulkan opengl opengl_dynamic direct2d1_1 icu \
    tabletevent graphicsview mdiarea wizard textodfwriter textmarkdownreader textmarkdownwriter jpeg gif qmake \
    androiddeployqt macdeployqt windeployqt pkg_config system_zlib system_png system_freetype system_harfbuzz \
    system_pcre2 system_doubleconversion)
  # shellcheck disable=SC2086
  install_with_cmake "$folder/sources/qt6-base" qt -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DINPUT_opengl=no \
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF $off
  rm -r "$folder/build/qt" # half a gigabyte
}

qcustomplot() { install_with_cmake "$folder/sources/qcustomplot" qcustomplot -DUSE_QT_VERSION=6; }

step package_lists "reading the list of source packages: seconds"
step headers "copying headers that need no building: seconds"
step googletest "building googletest: a minute"
step sources "fetching the sources of five small libraries, 24 MB: a minute"
step zlib "building zlib: seconds"
step muparser "building muparser: a minute"
step libxlsxwriter "building libxlsxwriter: seconds"
step libcsv "building libcsv: seconds"
step gmp "building GMP: three minutes"
step window_sources "fetching the sources of Qt and QCustomPlot, 50 MB: a minute"
step qt "building Qt, once: 35 minutes on two idle cores"
step qcustomplot "building QCustomPlot: a minute"
