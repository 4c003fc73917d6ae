#!/usr/bin/env bash
# The built program shows Windows its name and version in Japanese, an icon for every scale, and
# asks for no more rights than its user has.
#
#   program-resources.sh PROGRAM WINDRES VERSION
set -euo pipefail

readonly program=$1 windres=$2 version=$3
readonly icon_sizes='16 20 24 32 40 48 64 256'
# As windres writes it.
readonly name='L"Velmora\x5217\x53d6\x5f97"'

status=0
complain() {
  echo "$(basename "$program"): $*"
  status=1
}

resources=$("$windres" --input-format=coff --input="$program" --output-format=rc)

has_line() {
  grep -qxF -- "$1" < <(sed -E 's/^[[:space:]]+//; s/[[:space:]]+$//' <<<"$resources")
}

for line in \
  'BLOCK "041104b0"' \
  'VALUE "Translation", 0x411, 1200' \
  'VALUE "CompanyName", "Velmora"' \
  "VALUE \"FileDescription\", $name" \
  "VALUE \"FileVersion\", \"$version\"" \
  'VALUE "InternalName", "Velmora"' \
  'VALUE "OriginalFilename", "Velmora.exe"' \
  "VALUE \"ProductName\", $name" \
  "VALUE \"ProductVersion\", \"$version\"" \
  "FILEVERSION ${version//./, }, 0" \
  "PRODUCTVERSION ${version//./, }, 0"; do
  has_line "$line" || complain "its version information lacks: $line"
done
grep -q "name=\"\"Velmora\"\" version=\"\"$version.0\"\"" <<<"$resources" ||
  complain "its manifest has another version than $version.0"

# A row of the icon's table begins with width and height, one byte each in octal; 0 stands for 256.
sizes=$(sed -nE 's/^ *"\\([0-7]{3})\\\1.*", 1, 32, .*Element no.*/\1/p' <<<"$resources" |
  while read -r octal; do echo $((8#$octal == 0 ? 256 : 8#$octal)); done | xargs)
[[ $sizes == "$icon_sizes" ]] || complain "its icon has the sizes $sizes instead of $icon_sizes"

grep -q 'requestedExecutionLevel level=""asInvoker"" uiAccess=""false""' <<<"$resources" ||
  complain "does not run with its user's rights"
exit "$status"
