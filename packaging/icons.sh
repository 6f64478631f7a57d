#!/bin/sh
# Makes the icon's pictures again from its two drawings. Needs rsvg-convert.
set -eu
cd "$(dirname "$0")/icons"

# picture DRAWING SIZE
picture() { rsvg-convert --width "$2" --height "$2" --output "tavimor-$2.png" "$1"; }

for size in 16 22 24 32; do picture tavimor-small.svg "$size"; done
for size in 48 64 128 256 512; do picture tavimor.svg "$size"; done
