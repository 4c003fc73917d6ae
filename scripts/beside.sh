#!/usr/bin/env bash
# Runs a Windows program on the second desktop of a bed that was started with --beside: with its
# own screen, pointer, keyboard, clipboard and Wine.
#
#   scripts/beside.sh PROGRAM [ARGUMENT…]
set -euo pipefail

export WINEPREFIX=${VELMORA_PREFIX_BESIDE:?"only inside scripts/bed.sh exec --beside"}
export DISPLAY=${VELMORA_DISPLAY_BESIDE:?"only with virtual screens"}
exec wine "$@"
