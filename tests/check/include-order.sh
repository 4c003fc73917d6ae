#!/usr/bin/env bash
# No file includes from a floor above its own, and no two rooms (X.h with X.cpp) include each other
# in a circle.
#
#   include-order.sh SOURCES FLOORS      the folder src/ and the table of its floors
set -euo pipefail
# The messages of the tools are read here.
export LC_ALL=C

sources=$(realpath "$1")
floors=$(realpath "$2")
cd "$sources"
circle_input=$(mktemp)
trap 'rm -f "$circle_input"' EXIT

# Quoted includes as lines "FILE INCLUDED"; a path is written from src/, in whichever file it is.
includes() {
  grep -rE '^[[:space:]]*#[[:space:]]*include[[:space:]]*"' --include='*.h' --include='*.cpp' \
    --include='*.rc' . | sed -E 's|^\./([^:]+):[^"]*"([^"]+)".*|\1 \2|'
}

status=0
{
  find . -type f \( -name '*.h' -o -name '*.cpp' \) | sed -E 's|^\./(.*)|FILE \1|'
  includes
} | awk -v floors="$floors" '
  function complain(text) { print text; failed = 1 }
  BEGIN {
    while ((getline line < floors) > 0) {
      if (line ~ /^#/ || line == "") continue
      split(line, words, " ")
      floor[words[2]] = words[1]
    }
  }
  { split($1, own, "/"); split($2, other, "/") }
  $1 == "FILE" {
    if (!(other[1] in floor)) complain("src/" $2 ": " other[1] " has no floor in floors.txt")
    next
  }
  !(other[1] in floor) { complain("src/" $1 ": includes \"" $2 "\", which has no floor"); next }
  own[1] in floor && own[1] != other[1] && floor[other[1]] >= floor[own[1]] {
    complain("src/" $1 ": includes \"" $2 "\" from floor " floor[other[1]] " above its own " \
             "floor " floor[own[1]])
  }
  END { exit failed }
' || status=1

includes | sed -E 's/\.(h|cpp|rc)\b//g' | awk '$1 != $2' >"$circle_input"
if ! tsort "$circle_input" >/dev/null 2>&1; then
  echo "These rooms include each other in a circle:"
  tsort "$circle_input" 2>&1 >/dev/null | grep -v 'contains a loop' | sed 's/^tsort: /  /'
  status=1
fi
exit "$status"
