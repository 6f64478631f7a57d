#!/bin/sh
# Removes what packaging/install.sh has installed under a prefix.
# Usage: packaging/uninstall.sh PREFIX.
set -eu
prefix=$1
installed=$prefix/share/tavimor/installed-files
[ -f "$installed" ] || { echo "uninstall.sh: nothing was installed under $prefix" >&2; exit 1; }
tr '\n' '\0' <"$installed" | xargs -0 rm -f
rm "$installed"
for folder in share/tavimor share/doc/tavimor share/doc/tavimor-cli libexec/tavimor; do
  if [ -d "$prefix/$folder" ]; then find "$prefix/$folder" -depth -type d -empty -delete; fi
done
"$(dirname "$0")/tell_desktop.sh" "$prefix"
