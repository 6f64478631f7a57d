#!/bin/bash
# Checks an installed tree: that nothing is missing, that the programs run from there, that desktops understand what they
# read, that the man pages are true.
# Usage: installed_tree.sh PREFIX, for instance /tmp/root/usr.
set -euo pipefail
source "$(dirname "$0")/checks.sh"
prefix=$1
share=$prefix/share
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

echo "-- the programs run"
version=$(sed -n 's/^project(Tavimor VERSION \([0-9.]*\).*/\1/p' "$source_folder/CMakeLists.txt")
expectEqual "version of tavimor" "tavimor $version" "$("$prefix/bin/tavimor" --version)"
expectEqual "version of tavimor-cli" "tavimor-cli $version" "$("$prefix/bin/tavimor-cli" --version)"
examples=$share/doc/tavimor/examples
"$prefix/bin/tavimor-cli" fit "$examples/heat-index" >"$work/listing"
grep -q '\*T^2\*R^2 *$' "$work/listing" || fail "the installed example has no fit"
"$prefix/bin/tavimor-cli" export "$examples/heat-index" --to xlsx -o "$work/heat-index.xlsx"
unzip -tq "$work/heat-index.xlsx" >/dev/null || fail "the installed program writes no workbook"
while read -r problem; do
  cmp "$problem" "$examples/${problem#"$source_folder/examples/"}" || fail "an example is not what it was"
done < <(find "$source_folder/examples" -type f ! -name '.*' ! -path '*/__pycache__/*')

echo "-- the programs are hardened"
for program in tavimor tavimor-cli; do "$here/hardening.sh" "$prefix/bin/$program"; done

echo "-- the documents link to nothing that is not installed"
while IFS=: read -r page link; do
  [ -e "$(dirname "$page")/${link%%#*}" ] || fail "$page links to $link, which is not installed"
done < <(grep -rHo --include='*.md' '](\([^):#]*\)[)#]' "$share/doc/tavimor" | sed 's/](//; s/[)#]$//')

echo "-- desktops understand what they read"
entry=$share/applications/tavimor.desktop
desktop-file-validate "$entry"
for line in 'Exec=tavimor %f' 'MimeType=application/x-tavimor-problem;' 'Icon=tavimor'; do
  grep -Fqx "$line" "$entry" || fail "the desktop entry has no line $line"
done
metainfo=$share/metainfo/example.tavimor.tavimor.metainfo.xml
appstreamcli validate --no-net "$metainfo" >"$work/metainfo" || fail "$(cat "$work/metainfo")"
date=$(sed -n "s/^## $version - //p" "$share/doc/tavimor/CHANGELOG.md")
grep -q "<release version=\"$version\" date=\"$date\"" "$metainfo" ||
  fail "the metainfo does not know the release $version of the changelog"
for size in 16 22 24 32 48 64 128 256 512; do
  picture=$share/icons/hicolor/${size}x$size/apps/tavimor.png
  expectEqual "size of $picture" "$size $size" "$(identify -format '%w %h' "$picture")"
done
[ -s "$share/icons/hicolor/scalable/apps/tavimor.svg" ] || fail "no drawing of the icon"
"$here/mime_detection.sh" "$share/mime/packages/tavimor.xml" "$examples"

echo "-- the man pages name every command and option that the help names"
for program in tavimor tavimor-cli; do
  page=$(find "$share/man/man1" -name "$program.1*")
  [ -n "$page" ] || fail "no man page of $program"
  if [ "${page##*.}" = gz ]; then gzip -dc "$page" >"$work/$program.1"; else cp "$page" "$work/$program.1"; fi
  # Which other pages are installed on this machine is of no interest, nor what a page of NetBSD's own may hold.
  expectEqual "what mandoc finds in $program.1" "" \
    "$(mandoc -T lint "$work/$program.1" | grep -v 'referenced manual not found\|operating system explicitly specified' || true)"
  manualPage "$work/$program.1" >"$work/page"
  tail -n 1 "$work/page" | grep -q "^Tavimor $version " || fail "$program.1 does not name the version $version"
  "$prefix/bin/$program" --help >"$work/help"
  commands=$(sed -n '/^Commands:/,/^$/s/^  \([a-z]*\) .*/\1/p' "$work/help")
  for command in $commands; do
    grep -q "^     $command " "$work/page" || fail "$program.1 does not describe the command $command"
    "$prefix/bin/$program" "$command" --help >>"$work/help"
  done
  options=$(grep -o -- ' -[-a-z,]*' "$work/help" | tr ',' ' ' | tr ' ' '\n' | grep '^-' | sort -u)
  [ -n "$options" ] || fail "the help of $program names no option"
  for option in $options; do
    grep -qE -- "(^|[ [])$option([], ]|\$)" "$work/page" || fail "$program.1 does not describe $option"
  done
done

echo "-- the completions"
"$here/completions.sh" "$share" "$examples"

echo "-- the window opens and shows the installed manual"
"$source_folder/packaging/with_display.sh" 1024x768 "$here/window.sh" "$prefix/bin/tavimor"
