# A Wine with registry and drives of its own, which goes with the script; to be sourced behind checks.sh. Gives `work`, an
# empty folder, `drive`, where C: is, and `wine`.
work=$(mktemp -d)
export TAVIMOR_WINEPREFIX=$work/wine
drive=$TAVIMOR_WINEPREFIX/drive_c
wine() { "$source_folder/packaging/windows/wine.sh" "$@" 2>/dev/null; }
# Wine writes its registry after its last program has ended.
tidy() {
  wine wineboot --kill || true
  waitFor rm -rf "$work"
}
trap tidy EXIT
wine wineboot --init
