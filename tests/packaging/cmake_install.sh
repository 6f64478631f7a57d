#!/bin/bash
# Installs into a prefix, into a staging folder by DESTDIR, and one component alone; and removes what was installed.
# Usage: cmake_install.sh BUILD_FOLDER.
set -euo pipefail
source "$(dirname "$0")/checks.sh"
needed desktop-file-validate appstreamcli update-mime-database gio identify mandoc fish zsh Xvfb xdotool
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$source_folder/packaging/install.sh" "$build" "$work/prefix" >"$work/log" 2>&1 || fail "$(cat "$work/log")"
"$here/installed_tree.sh" "$work/prefix"

DESTDIR=$work/stage cmake --install "$build" --prefix /opt/tavimor >/dev/null
installed() { (cd "$1" && find . -type f ! -path './share/mime/[!p]*' ! -name installed-files ! -name mimeinfo.cache -exec md5sum {} + | sort -k 2); }
expectEqual "what DESTDIR installs" "$(installed "$work/prefix")" "$(installed "$work/stage/opt/tavimor")"

DESTDIR=$work/cli cmake --install "$build" --prefix /usr --component tavimor-cli >/dev/null
[ -x "$work/cli/usr/bin/tavimor-cli" ] || fail "the component tavimor-cli has no program"
[ ! -e "$work/cli/usr/bin/tavimor" ] || fail "the component tavimor-cli has the windows too"

"$source_folder/packaging/uninstall.sh" "$work/prefix"
expectEqual "what is left" "" "$(cd "$work/prefix" && find . -type f ! -path './share/mime/*' ! -name mimeinfo.cache)"
echo "passed"
