# What the scripts share that drive the real program by keys on a display of its own; to be sourced first. Gives them
# `tavimor` and `cli`, an empty `folder` to work in, and the functions below. A script leaves with 77 where there is no such
# display to be had.
tavimor=$1
cli=$2
script=$(realpath "$0")
source_folder=$(realpath "$(dirname "${BASH_SOURCE[0]}")/../../..")
packaging=$source_folder/packaging
source "$source_folder/tests/support/checks.sh"

for tool in Xvfb xdotool xclip; do
  command -v "$tool" >/dev/null || { echo "SKIPPED: $tool is not installed, so the program cannot be driven"; exit 77; }
done
if [ -z "${TAVIMOR_DISPLAY:-}" ]; then
  export TAVIMOR_DISPLAY=1
  exec "$packaging/with_display.sh" 1024x768 "$script" "$@"
fi

source "$packaging/keys.sh"
folder=$(mktemp -d)
state=$(mktemp -d)
export XDG_STATE_HOME=$state # what the program keeps for restoring: never the user's own
trap 'kill "${pid:-}" 2>/dev/null || true; rm -rf "$folder" "$state"' EXIT
cd "$folder"
unset LANG LC_NUMERIC
export LC_ALL=C.UTF-8 # whatever the locale of the tests is

# waitUntilOpen PROBLEM: as soon as it is open, Save is to be had and writes its files anew.
waitUntilOpen() {
  touch "$folder/before"
  waitFor isSavedAnew "$1"
}
isSavedAnew() { keys ctrl+s; sleep 0.2; [ "$1.dat" -nt "$folder/before" ]; }

# start ARGUMENT...: the program, until its main window is there.
start() {
  "$tavimor" "$@" &
  pid=$!
  focus '^Tavimor$'
}

# A request to end, which the program follows by itself.
endPolitely() {
  kill "$pid"
  endsWith 0
}

# endsWith EXITCODE: waits for the program's end.
endsWith() {
  local exitCode=0
  wait "$pid" || exitCode=$?
  [ "$exitCode" = "$1" ] || fail "the program ended with exit code $exitCode, not $1"
}
