#!/usr/bin/env bash
# Runs clang-tidy with .clang-tidy over the sources; needs the package clang-tidy and a ci build.
# Before version 16 it reports a lambda that uses a structured binding as an error.
#
#   scripts/tidy.sh [FILE…]       without files: everything under src/
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
files=("$@")
[[ ${#files[@]} -gt 0 ]] || mapfile -t files < <(find src -name '*.cpp')

# clang does not find the cross compiler's library by itself.
arguments=(--extra-arg=--target=i686-w64-mingw32)
while read -r folder; do
  arguments+=("--extra-arg=-isystem$folder")
done < <(i686-w64-mingw32-g++-posix -E -x c++ -v /dev/null 2>&1 | sed -nE 's/^ (\/.*\/c\+\+.*)/\1/p')

clang-tidy -p build/ci --quiet "${arguments[@]}" "${files[@]}"
