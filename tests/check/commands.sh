#!/usr/bin/env bash
# The commands in the documents work: their scripts are there, their labels and patterns
# match a test, and their filters a suite of the program that they belong to. Tests and suites that
# they name (`SUITE.NAME` and `SUITE`, the suite ending with "Test") exist.
#
#   commands.sh FOLDER BUILD TESTS
#
# FOLDER holds the documents, BUILD what CMake made of the tests, TESTS their sources.
set -euo pipefail
shopt -s nullglob

readonly folder=$1 build=$2 tests=$3
documents=("$folder"/*.md "$folder"/docs/*.md)
status=0

complain() {
  echo "$1"
  status=1
}

# The parts of the documents that match the first expression, less what matches the second, without
# quotes.
told() {
  grep -ohE "$1" "${documents[@]}" | sed -E "s/$2//; s/['\"\`]//g" | sort -u
}

# The names that ctest knows: those that CMake wrote down, and SUITE.NAME where ctest gets
# the tests from a program.
names_of_tests() {
  find "$build" -name CTestTestfile.cmake -exec sed -nE 's/^add_test\(\[?=*\[?"?([^]" ]+).*/\1/p' {} +
  local list
  for list in $(grep -l discover_tests "$tests"/*/CMakeLists.txt); do
    sed -nE 's/^TEST(_F|_P)?\(([^,]+), *([^)]+)\).*/\2.\3/p' "$(dirname "$list")"/*.cpp
  done
}

labels_of_tests() {
  find "$build" -name '*.cmake' -exec grep -ohE 'LABELS "?[a-z0-9;-]+' {} + |
    sed -E 's/LABELS "?//' | tr ';' '\n'
}

names=$(names_of_tests)
labels=$(labels_of_tests)
for script in $(told '(scripts/[a-z-]+\.sh|tests/[a-z_/]+\.py|\./(run|test)\b)' '^'); do
  [[ -x $folder/$script ]] || complain "$script: no such script"
done
for pattern in $(told '\./test.* (-R|--filter) [^ `]+' '.* (-R|--filter) '); do
  grep -qE -e "$pattern" <<<"$names" || complain "-R $pattern: matches no test"
done
for label in $(told '\./test.* (-L|--label) [^ `]+' '.* (-L|--label) '); do
  grep -qE -e "$label" <<<"$labels" || complain "-L $label: matches no test"
done
# PROGRAM FILTER, the program being build/PRESET/tests/FOLDER/NAME.exe.
while read -r program filter; do
  part=$(cut -d/ -f4 <<<"$program")
  suite=${filter%%[.*]*}
  grep -qrE "^TEST(_F|_P)?\($suite" "$tests/$part" ||
    complain "--gtest_filter=$filter: matches no test of tests/$part"
done < <(grep -ohE '[a-z0-9_/]+\.exe.* --gtest_filter=[^ ]+' "${documents[@]}" |
  sed -E "s/\.exe.*--gtest_filter=/.exe /; s/['\"\`]//g")
defined=$(find "$tests" -name '*.cpp' -exec cat {} + | tr '\n' ' ' |
  grep -oE 'TEST(_F|_P)?\([A-Za-z0-9_]+, *[A-Za-z0-9_]+' |
  sed -E 's/TEST(_F|_P)?\(([^,]+), */\2./' | sort -u)
for test in $(told '`[A-Za-z0-9]+Test\.[A-Za-z0-9]+`' '^'); do
  grep -qxF "$test" <<<"$defined" || complain "$test: no such test"
done
for suite in $(told '`[A-Za-z0-9]+Test`' '^'); do
  grep -q "^$suite\." <<<"$defined" || complain "$suite: no such suite"
done
exit $status
