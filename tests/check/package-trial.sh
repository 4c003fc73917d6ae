#!/usr/bin/env bash
# Damages a package and runs package.sh on it, which must fail.
#
#   package-trial.sh WAY ZIP PROGRAM TEXT_PROGRAM SOURCE_FOLDER
#
# WAY: stray (a file too many), outside (a file beside the folder), mark (no byte order mark),
# feeds (lines that end with LF), program (another program), text (another text program)
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
readonly here way=$1 zip=$2 program=$3 text_program=$4 source=$5

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
cmake -E tar xf "$zip"

top=(Velmora)
case $way in
  stray) touch Velmora/fixture.exe ;;
  outside) touch Outside.txt && top+=(Outside.txt) ;;
  mark) sed -i '1s/^\xef\xbb\xbf//' Velmora/Readme.txt ;;
  feeds) sed -i 's/\r$//' Velmora/Readme.txt ;;
  program) echo >>Velmora/Velmora.exe ;;
  text) echo >>Velmora/VelmoraText.exe ;;
  *) echo "no such way: $way" >&2; exit 2 ;;
esac
cmake -E tar cf spoilt.zip --format=zip -- "${top[@]}"
"$here/package.sh" "$PWD/spoilt.zip" "$program" "$text_program" "$source"
