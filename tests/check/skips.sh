#!/usr/bin/env bash
# Tests are skipped by NEEDS alone, which skips nothing in the test bed.
#
#   skips.sh TESTS
set -euo pipefail

found=$(grep -rnE '\bGTEST_SKIP_?\b' --include='*.h' --include='*.cpp' --exclude-dir=samples "$1" |
  grep -vF "$1/bed/Needs.h:" || true)
if [[ -n $found ]]; then
  echo "$found"
  echo "Skips in the test bed too: NEEDS of bed/Needs.h says what is needed."
  exit 1
fi
