#!/usr/bin/env bash
# Makes the zip of the tests, unpacks it into a folder with an awkward name, and runs its prove.cmd
# there with a few quick tests of each program. In the build folder, inside the test bed:
#
#   trial.sh unpack ZIP SOURCE_FOLDER COMMAND…    makes the zip by COMMAND, and unpacks it
#   trial.sh WAY SOURCE_FOLDER                    runs it
#
# WAY: passes (all tests), fails (with a target and a program missing), asks (for the pointer),
# skips (what needs another code page)
set -euo pipefail

readonly way=$1
readonly unpacked="$PWD/proof/列取得 の 証明 & (1)"
readonly proof=$unpacked/Velmora-proof
readonly log=$proof/proof.log
readonly programs=(unit_tests reading_memory_tests accessible_tests browser_tests cross_tests
  console_tests hostile_tests gui_tests)

status=0
complain() {
  echo "$*"
  status=1
}

unpack() {
  local zip=$1 source=$2
  shift 2
  rm -rf proof "$zip"
  mkdir -p "$unpacked"
  "$@" >proof/cpack.log || complain "no zip: $(<proof/cpack.log)"
  (cd "$unpacked" && cmake -E tar xf "$zip")
  [[ $(ls "$unpacked") == Velmora-proof ]] || complain "more than one folder: $(ls "$unpacked")"

  # The folder of this build is elsewhere on another computer.
  local folder
  for folder in "$source" "$PWD"; do
    grep -rlaF "$folder" "$unpacked" && complain "these name $folder"
    grep -rlaP "$(sed 's/./\\Q&\\E\\x00/g' <<<"$folder")" "$unpacked" && complain "these name $folder"
  done
  local file=$proof/prove.cmd
  LC_ALL=C grep -q $'[^ -~\r]' "$file" && complain "prove.cmd is not ASCII"
  [[ $(grep -c $'^[^\r]*\r$' "$file") == $(grep -c '' "$file") ]] ||
    complain "prove.cmd has lines that do not end with CR LF"
}

# prove FILTER [WORD…] runs prove.cmd by the command in `there`, from another folder, with what comes
# from the standard input.
prove() {
  local filter=$1
  shift
  rm -f "$log"
  code=0
  (cd "$unpacked" && GTEST_FILTER=$filter exec "${there[@]}" cmd /c 'Velmora-proof\prove.cmd' "$@") >proof/console.txt || code=$?
}

exits_with() { [[ $code == "$1" ]] || complain "prove.cmd ended with $code, not $1"; }

# Both on the console and in the log.
says() {
  local file
  for file in proof/console.txt "$log"; do
    grep -qE -e "$1" "$file" || complain "$file does not say: $1"
  done
}

logs() { grep -qE -e "$1" "$log" || complain "the log does not say: $1"; }

row() { says "^$1 +$2"; }

quick='RoundedRatio.*:ReadingMemoryTest.*:AcrossProcessesTest.TheObjectOfAWindowIsReported'
quick+=':PageTest.*:*ItemsTest.ReadingEnds*tabs32:ExitCodesTest.*0:HostileWindowsTest.CaptionsAndFacts'
quick+=':CaptureTest.ButtonStartsAndStops'

case $way in
  unpack)
    shift
    unpack "$@"
    exit "$status"
    ;;
  *) readonly source=$2 ;;
esac
there=("$source/scripts/on-desktop.sh" wine)

case $way in
  passes)
    prove "$quick" gui </dev/null
    exits_with 0
    for program in "${programs[@]}"; do row "$program" '[1-9][0-9]* passed, 0 failed, 0 skipped, exit code 0'; done
    says 'All tests that ran have passed'
    logs 'System: Windows [0-9.]+, (32|64) bits, code page 932, Wine'
    logs '^Date: .*[0-9]'
    logs '^VelmoraText [0-9]'
    logs '^soak: '
    ;;
  fails)
    missing=(fixture/fixture unit/reading_memory_tests)
    for name in "${missing[@]}"; do mv "$proof/tests/$name.exe" "$proof/tests/$name.away"; done
    prove "$quick" nogui </dev/null
    for name in "${missing[@]}"; do mv "$proof/tests/$name.away" "$proof/tests/$name.exe"; done
    exits_with 1
    row unit_tests '[1-9][0-9]* passed, 0 failed, 0 skipped, exit code 0'
    row console_tests '[0-9]+ passed, [1-9][0-9]* failed, 0 skipped, exit code 1'
    row reading_memory_tests 'ended before its last test, exit code [1-9]'
    says 'Not all tests have passed'
    ;;
  asks)
    for answer in $'\r\n' $'n\r\n' $'"&\r\n'; do
      prove 'RoundedRatio.*:CaptureTest.ButtonStartsAndStops' < <(printf %s "$answer")
      exits_with 0
      row unit_tests '[1-9][0-9]* passed'
      row gui_tests 'left out'
    done
    prove 'RoundedRatio.*:CaptureTest.ButtonStartsAndStops' < <(printf 'y\r\n')
    exits_with 0
    row gui_tests '1 passed, 0 failed, 0 skipped, exit code 0'
    prove 'RoundedRatio.*' perhaps </dev/null
    exits_with 2
    ;;
  skips)
    there=("$source/scripts/in-cp1252.sh")
    test=TextCodecTest.LongTextsAreNotCutInsideACharacter
    (
      unset VELMORA_TEST_BED
      prove "$test:PointerTest.TheWindowAtAPointIsRead" nogui </dev/null
      exits_with 0
      row unit_tests '0 passed, 0 failed, 1 skipped, exit code 0'
      logs 'Skipped, 1 of the tests: needs a Windows in code page 932'
      logs 'Skipped, 1 of the tests: takes the pointer'
      exit "$status"
    ) || status=1
    # The bed must not skip.
    prove "$test" nogui </dev/null
    exits_with 1
    row unit_tests '0 passed, 1 failed, 0 skipped, exit code 1'
    ;;
  *) echo "no such way: $way" >&2; exit 2 ;;
esac
[[ $status == 0 ]] || cat proof/console.txt "$log"
exit "$status"
