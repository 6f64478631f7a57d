#!/bin/bash
# What ./dev configures and what it shows to clang-tidy, in a small project of its own and with small tools in the place
# of the real ones.
# Usage: dev.sh.
set -euo pipefail
source "$(dirname "$0")/checks.sh"
needed git cmake ninja
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# tool NAME TEXT: a program of that name for ./dev.
mkdir "$work/tools"
tool() {
  printf '#!/bin/sh\n%s\n' "$2" >"$work/tools/$1"
  chmod +x "$work/tools/$1"
}
tool dpkg-query 'echo install ok installed'
tool clang-format 'true'
tool clang-tidy "for word; do case \$word in *.cpp) echo \"\$word\" >>$work/shown ;; esac; done"
export PATH=$work/tools:$PATH

mkdir "$work/project"
cd "$work/project"
cp "$source_folder/dev" "$source_folder/CMakePresets.json" .
cat >CMakeLists.txt <<'TEXT'
cmake_minimum_required(VERSION 3.22)
project(Small NONE)
option(TAVIMOR_TESTS "" ON)
TEXT
mkdir -p src/part tests
for unit in part/own part/other main; do echo '#include "part/own.h"' >"src/$unit.cpp"; done
echo '#include "part/alone.h"' >>src/part/other.cpp
touch src/part/own.h src/part/alone.h tests/own_test.cpp
git init -q -b main .
commit() { git add . && git -c user.name=t -c user.email=t@example.com commit -q -m "$1"; }
echo build/ >.gitignore
commit first

echo "-- what was configured by hand is configured anew"
cmake --preset release -DTAVIMOR_TESTS=OFF >/dev/null
./dev build >/dev/null
grep -q '^TAVIMOR_TESTS:BOOL=ON$' build/release/CMakeCache.txt || fail "the tests are not built"

# expectLinted WHAT FILES [ARGUMENT...]
expectLinted() {
  : >"$work/shown"
  ./dev lint "${@:3}" >/dev/null
  expectEqual "$1" "$2" "$(sort "$work/shown" | paste -s -d ' ')"
}

echo "-- clang-tidy is shown what a change touches"
expectLinted "nothing has changed" ""
git checkout -q -b change
echo '// changed' >>src/part/own.h
expectLinted "a header is shown by its own unit" "src/part/own.cpp"
echo '// changed' >>src/part/alone.h
commit second
expectLinted "a header without a unit is shown by one that includes it" "src/part/other.cpp src/part/own.cpp"
touch tests/new_test.cpp
git rm -q src/main.cpp
expectLinted "a new unit is shown, one that is gone is not" "src/part/other.cpp src/part/own.cpp tests/new_test.cpp"
git add .
expectLinted "everything" "src/part/other.cpp src/part/own.cpp tests/new_test.cpp tests/own_test.cpp" --all
echo "passed"
