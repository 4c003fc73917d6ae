#!/usr/bin/env bash
# Runs a Windows program in code page 1252 instead of the bed's 932, inside a bed that was started
# with --cp1252.
#
#   scripts/in-cp1252.sh PROGRAM [ARGUMENT…]
set -euo pipefail

export LC_ALL=C.UTF-8 WINEARCH=win32
export WINEPREFIX=${VELMORA_PREFIX_1252:?"only inside scripts/bed.sh exec --cp1252"}
exec wine "$@"
