# What the packaging tests share; to be sourced.
source_folder=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
export LC_ALL=C.UTF-8 # what other programs print is read here
here=$source_folder/tests/packaging

source "$source_folder/tests/support/checks.sh"

# needed TOOL...: ends the test with 77, skipped, where one is not to be had.
needed() {
  for tool; do
    command -v "$tool" >/dev/null || { echo "SKIPPED: $tool is not installed"; exit 77; }
  done
}

# expectEqual WHAT EXPECTED FOUND
expectEqual() {
  [ "$2" = "$3" ] || fail "$1: expected:
$2
found:
$3"
}

# manualPage FILE: its text, without the overstriking of bold letters.
manualPage() { mandoc -T ascii "$1" | sed 's/.\x08//g'; }
