#!/bin/sh
# Removes what packaging/install.sh has installed under a prefix.
# Usage: packaging/uninstall.sh PREFIX.
set -eu
prefix=$1
installed=$prefix/share/tavimor/installed-files
[ -f "$installed" ] || { echo "uninstall.sh: nothing was installed under $prefix" >&2; exit 1; }
tr '\n' '\0' <"$installed" | xargs -0 rm -f
rm "$installed"
for folder in tavimor doc/tavimor doc/tavimor-cli; do
  if [ -d "$prefix/share/$folder" ]; then find "$prefix/share/$folder" -depth -type d -empty -delete; fi
done
"$(dirname "$0")/tell_desktop.sh" "$prefix"
