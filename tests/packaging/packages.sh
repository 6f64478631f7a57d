#!/bin/bash
# Makes the Debian packages, installs them into an empty root, tries what they installed and removes them again.
# Usage: packages.sh BUILD_FOLDER. As an ordinary user it needs fakeroot.
set -euo pipefail
source "$(dirname "$0")/checks.sh"
needed dpkg dpkg-deb dpkg-shlibdeps lintian desktop-file-validate appstreamcli update-mime-database gio identify mandoc \
  fish zsh Xvfb xdotool
[ "$(id -u)" -eq 0 ] || needed fakeroot
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
root=$work/root

echo "-- the packages are made"
cpack --config "$build/CPackConfig.cmake" -B "$work/packages" >"$work/log" 2>&1 || fail "$(cat "$work/log")"
cd "$work/packages"
remarks=$(TMPDIR=$work lintian --allow-root --display-info --pedantic ./*.deb 2>&1 || true)
expectEqual "what lintian remarks" "" "$remarks"
field() { dpkg-deb --field "$1"_*.deb "$2"; }
expectEqual "what tavimor-cli depends on" "" "$(field tavimor-cli Depends)"
for library in libc6 libqt6widgets6 libqt6printsupport6 libmuparser2v5 libxlsxwriter4; do
  field tavimor Depends | grep -q "$library (>= " || fail "tavimor does not depend on $library"
done
for package in tavimor tavimor-cli; do
  expectEqual "the changelog's version" "$(field "$package" Version)" \
    "$(dpkg-deb --fsys-tarfile "$package"_*.deb | tar -xO "./usr/share/doc/$package/changelog.gz" | gzip -d |
      sed -n '1s/^tavimor (\(.*\)) .*/\1/p')"
done
if command -v apt-get >/dev/null; then
  apt-get install --simulate --no-install-recommends ./*.deb >"$work/log" 2>&1 || fail "$(cat "$work/log")"
  grep -q '^Inst tavimor ' "$work/log" || fail "apt would not install tavimor: $(cat "$work/log")"
fi

echo "-- they are installed into an empty root"
# What they depend on stands in the real root, from which the programs then take it.
inRoot() {
  local as_root=
  [ "$(id -u)" -eq 0 ] || as_root=fakeroot
  PATH=$PATH:/usr/sbin:/sbin $as_root dpkg --root="$root" --force-depends --log=/dev/null "$@" >"$work/log" 2>&1 ||
    fail "$(cat "$work/log")"
}
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
: >"$root/var/lib/dpkg/status"
inRoot --install ./*.deb
for package in tavimor tavimor-cli; do
  expectEqual "state of $package" "install ok installed" \
    "$(dpkg-query --admindir="$root/var/lib/dpkg" -W -f='${Status}' "$package")"
done
"$here/installed_tree.sh" "$root/usr"

echo "-- they are removed"
inRoot --purge tavimor tavimor-cli
expectEqual "what is left" "" "$(find "$root" -mindepth 1 ! -path "$root/var*")"
echo "passed"
