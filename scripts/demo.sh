#!/usr/bin/env bash
# Demonstrates the program on another program's window. Works inside scripts/bed.sh.
#
#   scripts/demo.sh PRESET
#
# Starts Notepad with a Japanese text and the program in its own folder, rests the pointer on
# the text, prints what the program's boxes and panes say, and saves build/run/screenshot.png.
# The windows stay open until the bed ends.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."
readonly built=build/${1:?"which preset?"}
readonly folder=build/run

# A point inside the text of Notepad's window, which opens at the corner of the screen, and left of
# the program's window, which opens in the right half.
readonly point=(200 200)

wait_for_window() {
  local title=$1 deadline=$((SECONDS + 20))
  until xdotool search --onlyvisible --name "$title" >/dev/null 2>&1; do
    if ((SECONDS > deadline)); then
      echo "No window with the title \"$title\" appeared." >&2
      return 1
    fi
    sleep 0.05
  done
}

rm -rf "$folder"
mkdir -p "$folder"
cp -r "$built/bin/." "$folder/"
printf 'auto start = 1\r\n' >"$folder/Conf.txt"
# With a byte order mark: without one Notepad reads the text in the system's code page.
printf '\xef\xbb\xbfマウスの下にある文字を読み取ります。\r\n吾輩は猫である。名前はまだ無い。\r\n' \
  >"$folder/target.txt"

wine notepad "$(winepath -w "$folder/target.txt")" </dev/null >/dev/null 2>&1 &
wait_for_window target.txt
xdotool mousemove "${point[@]}"
wine "$folder/Velmora.exe" </dev/null >/dev/null 2>&1 &

status=0
wine "$built/tools/panes.exe" </dev/null || status=$?
import -window root "$folder/screenshot.png"
echo "Screenshot: $folder/screenshot.png"
exit "$status"
