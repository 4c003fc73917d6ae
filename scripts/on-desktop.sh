#!/usr/bin/env bash
# Runs a command on the desktop that ctest gives to a test (tests/desktops.json): the bed's first one
# or, in a bed that was started with --beside, the second one, which has its own screen, pointer,
# keyboard, clipboard and Wine. Outside ctest it is the first one.
#
#   scripts/on-desktop.sh COMMAND [ARGUMENT…]
set -euo pipefail

if [[ ${CTEST_RESOURCE_GROUP_0_DESKTOPS:-} == id:second,* ]]; then
  export WINEPREFIX=${VELMORA_PREFIX_BESIDE:?"only inside scripts/bed.sh exec --beside"}
  export DISPLAY=${VELMORA_DISPLAY_BESIDE:?"only with virtual screens"}
fi
exec "$@"
