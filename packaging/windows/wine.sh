#!/bin/sh
# Runs a Windows program under Wine, with a registry and drives of its own that no other use of Wine sees.
# Usage: wine.sh PROGRAM [ARGUMENT...].
set -eu
export WINEPREFIX="${TAVIMOR_WINEPREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/tavimor-windows/wine}"
export LC_ALL="${LC_ALL:-C.UTF-8}" WINEARCH=win64 WINEDEBUG="${WINEDEBUG:--all}" WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
mkdir -p "$(dirname "$WINEPREFIX")"
exec "$(command -v wine64 || echo /usr/lib/wine/wine64)" "$@"
