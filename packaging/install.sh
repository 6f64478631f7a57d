#!/bin/sh
# Installs a build under a prefix, keeps the list of what it installed there, and tells the desktop.
# Usage: packaging/install.sh BUILD_FOLDER PREFIX.
set -eu
build=$1
mkdir -p "$2/share/tavimor"
prefix=$(cd "$2" && pwd)
cmake --install "$build" --prefix "$prefix"
# Moved, so that the superuser leaves no file in the build folder.
mv "$build/install_manifest.txt" "$prefix/share/tavimor/installed-files"
"$(dirname "$0")/tell_desktop.sh" "$prefix"
