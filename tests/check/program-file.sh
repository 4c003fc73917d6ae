#!/usr/bin/env bash
# The built program is one small 32-bit file that needs nothing but the system.
#
#   program-file.sh PROGRAM OBJDUMP
set -euo pipefail
# The messages of the tools are read here.
export LC_ALL=C

readonly program=$1 objdump=$2
readonly largest=$((3 * 512 * 1024))
readonly machine_x86=014c
readonly system_libraries=' advapi32 comctl32 comdlg32 gdi32 imm32 kernel32 msvcrt ole32 oleacc oleaut32 shell32 shlwapi user32 uxtheme version winmm '

status=0
complain() {
  echo "$(basename "$program"): $*"
  status=1
}

# Byte 0x3C holds the offset of "PE\0\0", which the machine follows.
header=$(od -An -tu4 -j60 -N4 "$program" | tr -d ' ')
machine=$(od -An -tx2 -j$((header + 4)) -N2 "$program" | tr -d ' ')
[[ $machine == "$machine_x86" ]] || complain "machine is 0x$machine instead of 0x$machine_x86"

size=$(stat -c %s "$program")
((size < largest)) || complain "$size bytes, must be less than $largest"

"$objdump" --syms "$program" 2>&1 | grep -q 'no symbols' || complain "is not stripped"

while read -r library; do
  [[ $system_libraries == *" $library "* ]] || complain "needs $library.dll"
done < <("$objdump" --private-headers "$program" |
  sed -nE 's/^[[:space:]]*DLL Name: (.*)\.[dD][lL][lL]\r?$/\L\1/p')

beside=$(find "$(dirname "$program")" -iname '*.dll')
[[ -z $beside ]] || complain "has a library beside it: $beside"
exit "$status"
