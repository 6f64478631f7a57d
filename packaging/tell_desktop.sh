#!/bin/sh
# Has the desktop read again which types of files and which programs there are under a prefix, where it keeps an index.
# A Debian package does this by itself.
# Usage: packaging/tell_desktop.sh PREFIX.
set -eu
# refresh PROGRAM FOLDER
refresh() {
  if [ -d "$2" ] && command -v "$1" >/dev/null; then "$1" "$2"; fi
}

refresh update-mime-database "$1/share/mime" 2>/dev/null
refresh update-desktop-database "$1/share/applications"
