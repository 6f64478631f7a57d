# What all scripts of the tests share; to be sourced.
fail() { echo "FAILED: $*"; exit 1; }

# waitFor COMMAND...: until it succeeds, twenty seconds or more.
waitFor() {
  for _ in $(seq 200); do
    if "$@" 2>/dev/null; then return; fi
    sleep 0.1
  done
  fail "waited in vain for: $*"
}
