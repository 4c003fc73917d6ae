#!/usr/bin/env bash
# Damages a copy of the program and runs a check on it, which must fail.
#
#   program-trial.sh WAY PROGRAM CHECK [ARGUMENT…]     runs CHECK COPY ARGUMENT…
#
# WAY: fixed (no randomised address), bound (no relocations), executable (data may be executed),
# unguarded (no stack guard), console, name (another name), sizes (an icon size less), rights
set -euo pipefail

readonly way=$1 program=$2 check=$3
shift 3

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
readonly copy=$folder/$(basename "$program")
cp "$program" "$copy"

# Byte 0x3C holds the offset of the header, with the subsystem at 92 and the flags at 94.
header=$(od -An -tu4 -j60 -N4 "$program" | tr -d ' ')
write_byte() {
  printf "\\x$2" | dd of="$copy" bs=1 seek="$1" conv=notrunc status=none
}
replace() {
  LC_ALL=C sed -i "s/$1/$2/g" "$copy"
  ! cmp -s "$program" "$copy" || { echo "$1 is not in the program" >&2; exit 2; }
}

case $way in
  fixed) write_byte $((header + 94)) 00 ;;
  executable) write_byte $((header + 95)) 00 ;;
  console) write_byte $((header + 92)) 03 ;;
  bound) replace '\.reloc\x00' '.beloc\x00' ;;
  unguarded) replace 'stack smashing' 'stack guarding' ;;
  name) replace 'a\x00\x17\x52' 'a\x00\x18\x52' ;;
  sizes) replace '\x14\x14\x00\x00\x01\x00' '\x14\x13\x00\x00\x01\x00' ;;
  rights) replace 'asInvoker' 'asInvaded' ;;
  *) echo "no such way: $way" >&2; exit 2 ;;
esac
"$check" "$copy" "$@"
