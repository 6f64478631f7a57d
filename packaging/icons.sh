#!/bin/sh
# Makes the icon's pictures again from its two drawings. Needs rsvg-convert and ImageMagick.
set -eu
cd "$(dirname "$0")/icons"

# picture DRAWING SIZE
picture() { rsvg-convert --width "$2" --height "$2" --output "tavimor-$2.png" "$1"; }

for size in 16 22 24 32; do picture tavimor-small.svg "$size"; done
for size in 48 64 128 256 512; do picture tavimor.svg "$size"; done

# For Windows, all in one file.
convert tavimor-16.png tavimor-24.png tavimor-32.png tavimor-48.png tavimor-256.png tavimor.ico
