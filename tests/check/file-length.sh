#!/usr/bin/env bash
# A file that is longer than its limit has two subjects.
#
#   file-length.sh LIMIT FOLDER…   names every source file in the folders that has more lines
set -euo pipefail

limit=$1
shift
status=0
while IFS= read -r -d '' file; do
  lines=$(wc -l <"$file")
  if ((lines > limit)); then
    echo "$file: $lines lines, more than $limit"
    status=1
  fi
done < <(find "$@" -type f \( -name '*.cpp' -o -name '*.h' -o -name '*.sh' -o -name 'CMakeLists.txt' \) -print0)
exit "$status"
