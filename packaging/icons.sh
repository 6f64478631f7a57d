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

# For macOS: a list of pictures in PNG, each with its kind (for a screen of usual or double density) and its length.
python3 - <<'TEXT'
from pathlib import Path

KINDS = {"ic11": 32, "ic12": 64, "ic07": 128, "ic08": 256, "ic13": 256, "ic09": 512, "ic14": 512}


def part(kind, content):
    return kind.encode() + (len(content) + 8).to_bytes(4, "big") + content


parts = [part(kind, Path(f"tavimor-{size}.png").read_bytes()) for kind, size in KINDS.items()]
Path("tavimor.icns").write_bytes(part("icns", b"".join(parts)))
TEXT
