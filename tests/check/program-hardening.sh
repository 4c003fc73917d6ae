#!/usr/bin/env bash
# The built program uses the protections of Windows against exploits, and opens no console window.
#
#   program-hardening.sh PROGRAM OBJDUMP
set -euo pipefail
# The messages of the tools are read here.
export LC_ALL=C

readonly program=$1 objdump=$2

status=0
complain() {
  echo "$(basename "$program"): $*"
  status=1
}

headers=$("$objdump" --private-headers "$program")

grep -qw DYNAMIC_BASE <<<"$headers" || complain "its address is not randomised"
# Without these Windows loads it at a fixed address, whatever the flag says.
relocations=$(grep -cw HIGHLOW <<<"$headers" || true)
((relocations > 1000)) || complain "has only $relocations relocations"
grep -qw NX_COMPAT <<<"$headers" || complain "its data can be executed"
# What a guarded function says is linked in with the first of them.
grep -aq 'stack smashing detected' "$program" || complain "its stack is not guarded"
grep -q '^Subsystem.*Windows GUI' <<<"$headers" || complain "opens a console window"
exit "$status"
