#!/usr/bin/env bash
# Makes resources/Velmora.ico from resources/Velmora.svg; needs the package librsvg2-bin. The same
# drawing gives the same file.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../resources"
# The sizes that Windows shows at its usual scales: small and large icons at 100 to 200 %, and its large views.
readonly sizes=(16 20 24 32 40 48 64 256)

pictures=$(mktemp -d)
trap 'rm -rf "$pictures"' EXIT
files=()
for size in "${sizes[@]}"; do
  rsvg-convert --width "$size" --height "$size" --output "$pictures/$size.png" Velmora.svg
  files+=("$pictures/$size.png")
done
convert "${files[@]}" Velmora.ico
