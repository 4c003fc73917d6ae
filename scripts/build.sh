#!/usr/bin/env bash
# Configures and builds one preset of CMakePresets.json.
#
#   scripts/build.sh PRESET [TARGET…]
#
# PRESET is debug, release or ci; the result is in build/PRESET. Without a target: everything.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
readonly preset=${1:?"which preset: debug, release or ci"}
shift

# Two builds in one folder would overwrite each other's objects, so the second one waits.
mkdir -p build
exec {lock}>"build/$preset.lock"
flock "$lock"

log=build/$preset-configure.log
if ! cmake --preset "$preset" >"$log" 2>&1; then
  cat "$log" >&2
  exit 1
fi
cmake --build --preset "$preset" --parallel "$(nproc)" ${1:+--target "$@"}
