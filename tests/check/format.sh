#!/usr/bin/env bash
# Every source is formatted with .clang-format; scripts/format.sh does it.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
if ! find src tests tools \( -name '*.h' -o -name '*.cpp' \) -print0 |
  xargs -0 clang-format --dry-run --Werror; then
  echo "Run scripts/format.sh."
  exit 1
fi
