#!/usr/bin/env bash
# The test bed: a Japanese Windows (Wine in code page 932) with its own virtual screen.
#
#   scripts/bed.sh exec [OPTION…] [--] COMMAND [ARGUMENT…]
#
# starts the bed, runs COMMAND in it, ends everything that belongs to the bed, and returns
# COMMAND's exit code. For a shell with a screen:  scripts/bed.sh exec bash
#   --win64    the prefix of a 64-bit Windows, which runs both kinds of program
#   --cp1252   also a prefix in code page 1252, for scripts/in-cp1252.sh
#   --beside   also a second desktop of the same kind, for scripts/on-desktop.sh
#   --desktop  on the user's own display, windows framed by its window manager
#   --keep     after COMMAND wait for Enter before ending the bed
#
# COMMAND finds DISPLAY (1280x1024), WINEPREFIX, LC_ALL, LOCPATH and VELMORA_TEST_BED set. In the
# last one's presence no test may skip for want of something.
#
# The bed is in build/bed, or in the folder that VELMORA_BED names. One bed runs one command at a
# time, a second one waits; with another VELMORA_BED both run at the same time.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
readonly root
readonly bed=${VELMORA_BED:-$root/build/bed}

usage() {
  sed -n '2,/^set /{/^#/{s/^# \{0,1\}//;p}}' "${BASH_SOURCE[0]}"
}

start_locale() {
  export LOCPATH=$bed/locale
  if [[ ! -d $LOCPATH/ja_JP.UTF-8 ]]; then
    mkdir -p "$LOCPATH"
    localedef -i ja_JP -f UTF-8 "$LOCPATH/ja_JP.UTF-8"
  fi
}

start_prefixes() {
  export VELMORA_TEST_BED=1
  export WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,winemenubuilder.exe='
  if [[ $cp1252 == yes ]]; then
    export VELMORA_PREFIX_1252=$bed/prefix32-1252
    WINEARCH=win32 LC_ALL=C.UTF-8 "$root/scripts/prefix.sh" "$VELMORA_PREFIX_1252"
  fi

  # This shell itself started without LOCPATH and would complain about a locale it cannot find.
  export LC_ALL=ja_JP.UTF-8 2>/dev/null
  export WINEARCH=win32 WINEPREFIX=$bed/prefix32
  if [[ $win64 == yes ]]; then
    WINEARCH=win64 WINEPREFIX=$bed/prefix64
  fi
  if [[ $desktop == yes ]]; then
    export VELMORA_MANAGED=Y
    WINEPREFIX+=-desktop
  fi
  local made_beside=
  if [[ $beside == yes ]]; then
    export VELMORA_PREFIX_BESIDE=$WINEPREFIX-beside
    "$root/scripts/prefix.sh" "$VELMORA_PREFIX_BESIDE" &
    made_beside=$!
  fi
  "$root/scripts/prefix.sh" "$WINEPREFIX"
  [[ -z $made_beside ]] || wait "$made_beside"
}

# start_display NAME starts a virtual screen; DISPLAY is then it. The X server picks a free display
# number itself and writes it down once it can be reached.
start_display() {
  local number_file=$bed/$1 log=$bed/$1.log deadline=$((SECONDS + 20)) xvfb_pid
  rm -f "$number_file"
  # When the bed is killed, its X server ends too.
  setpriv --pdeathsig TERM Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset \
    3>"$number_file" >"$log" 2>&1 </dev/null &
  xvfb_pid=$!
  xvfb_pids+=("$xvfb_pid")
  until [[ -s $number_file ]]; do
    if ! kill -0 "$xvfb_pid" 2>/dev/null || ((SECONDS > deadline)); then
      echo "The virtual display did not start; see $log" >&2
      return 1
    fi
    sleep 0.05
  done
  DISPLAY=:$(<"$number_file")
  export DISPLAY
}

start_displays() {
  [[ $desktop == no ]] || return 0
  if [[ $beside == yes ]]; then
    start_display display-beside
    export VELMORA_DISPLAY_BESIDE=$DISPLAY
  fi
  start_display display
}

# A server that stays, and a command interpreter that keeps the desktop in use. Without it the first
# program with a window would start the desktop's own process, which keeps that program's error
# output open for as long as the desktop is used: the program would never seem to end for a
# reader of its output. The interpreter's input is a pipe that it can write itself, so it has no end.
start_wine() {
  local ready=$WINEPREFIX/desktop-ready attempt deadline
  # On a busy machine the first program of a server sometimes waits forever; then another server is
  # started.
  for attempt in 1 2 3; do
    rm -f "$ready"
    wineserver -k 2>/dev/null || true
    wineserver -w 2>/dev/null || true
    wineserver -p 2>/dev/null
    # rundll32 makes a window; the procedure that it calls does nothing.
    wine cmd >/dev/null 2>&1 0<> <(
      echo "start /wait rundll32 user32.dll,DefWindowProcW & echo ready >\"Z:${ready//\//\\}\""
    ) &
    deadline=$((SECONDS + 20 * attempt))
    while ((SECONDS <= deadline)); do
      [[ -s $ready ]] && return
      sleep 0.05
    done
  done
  echo "The desktop in $WINEPREFIX did not start." >&2
  return 1
}

end_bed() {
  trap - EXIT INT TERM HUP
  if [[ -n ${command_pid:-} ]]; then
    kill "$command_pid" 2>/dev/null || true
  fi
  local prefix
  for prefix in "${WINEPREFIX:-}" "${VELMORA_PREFIX_1252:-}" "${VELMORA_PREFIX_BESIDE:-}"; do
    if [[ -n $prefix && -d $prefix ]]; then
      WINEPREFIX=$prefix wineserver -k 2>/dev/null || true
      WINEPREFIX=$prefix wineserver -w 2>/dev/null || true
    fi
  done
  local xvfb_pid
  for xvfb_pid in "${xvfb_pids[@]}"; do
    kill "$xvfb_pid" 2>/dev/null || true
    wait "$xvfb_pid" 2>/dev/null || true
  done
}

# Starts the bed and runs the command; the traps end the bed.
serve() {
  trap end_bed EXIT
  trap 'exit 130' INT
  trap 'exit 143' TERM HUP
  start_locale
  start_prefixes
  start_displays
  local other_starts=() other_start
  if [[ $cp1252 == yes ]]; then
    WINEARCH=win32 LC_ALL=C.UTF-8 WINEPREFIX=$VELMORA_PREFIX_1252 start_wine &
    other_starts+=("$!")
  fi
  if [[ $beside == yes ]]; then
    DISPLAY=$VELMORA_DISPLAY_BESIDE WINEPREFIX=$VELMORA_PREFIX_BESIDE start_wine &
    other_starts+=("$!")
  fi
  start_wine
  for other_start in "${other_starts[@]}"; do wait "$other_start"; done

  # In the background, so that a signal ends the bed at once and not only after the command.
  local status=0
  "$@" <&0 &
  command_pid=$!
  wait "$command_pid" || status=$?
  command_pid=

  if [[ $keep == yes ]]; then
    echo "The bed is kept on display $DISPLAY with WINEPREFIX=$WINEPREFIX; Enter ends it."
    read -r || true
  fi
  return "$status"
}

main() {
  if [[ ${1:-} != exec ]]; then
    usage
    [[ ${1:-} == --help ]] && return 0 || return 2
  fi
  shift
  win64=no cp1252=no beside=no desktop=no keep=no
  xvfb_pids=()
  while [[ ${1:-} == --* ]]; do
    case $1 in
      --win64) win64=yes ;;
      --cp1252) cp1252=yes ;;
      --beside) beside=yes ;;
      --desktop) desktop=yes ;;
      --keep) keep=yes ;;
      --) shift; break ;;
      *) usage >&2; return 2 ;;
    esac
    shift
  done
  [[ $# -gt 0 ]] || { usage >&2; return 2; }

  mkdir -p "$bed"
  exec 9>"$bed/lock"
  if ! flock --nonblock 9; then
    echo "Waiting for the bed in $bed, which another command uses."
    flock 9
  fi
  # Only this script holds the lock: a server that outlives a killed bed must not hold it.
  serve "$@" 9>&-
}

main "$@"
