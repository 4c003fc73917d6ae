#!/usr/bin/env bash
# Formats every source with .clang-format.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
find src tests tools \( -name '*.h' -o -name '*.cpp' \) -print0 | xargs -0 clang-format -i
