#!/usr/bin/env bash
# Makes a Wine prefix for the test bed, unless it is there and made by this very recipe.
#
#   scripts/prefix.sh FOLDER
#
# In the environment: WINEARCH (win32 or win64), LC_ALL and LOCPATH, which decide the code page, and
# VELMORA_MANAGED, Y when a window manager frames the windows (default N).
set -euo pipefail

export WINEPREFIX=${1:?"which folder?"}
export WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,winemenubuilder.exe='
# With a display the first start would stop to ask about optional components. Without one, the
# desktop of this first server has no driver: it must end before a program with windows starts.
unset DISPLAY

managed=${VELMORA_MANAGED:-N}
recipe=$(cat "${BASH_SOURCE[0]}"; wine --version; echo "$WINEARCH $LC_ALL $managed")
readonly recipe
readonly stamp=$WINEPREFIX/made-by

[[ -f $stamp && $(<"$stamp") == "$recipe" ]] && exit 0

echo "Making the Wine prefix $WINEPREFIX"
wineserver -k 2>/dev/null || true
rm -rf "$WINEPREFIX"
mkdir -p "$WINEPREFIX"
wine wineboot --init </dev/null >/dev/null 2>&1

# Wine makes the user's folders links into the home of whoever runs the tests. What a test saves on
# the desktop belongs to the prefix.
find "$WINEPREFIX/drive_c/users" -type l -exec rm {} \; -exec mkdir {} \;

# Wine does not look for its own fonts where Debian puts them: Marlett draws the buttons of captions,
# Tahoma is the dialogs' font.
ln -s /usr/share/wine/fonts/{marlett,tahoma,tahomabd}.ttf "$WINEPREFIX/drive_c/windows/Fonts/"

# Managed=N: captions and borders belong to their windows, which no window manager draws here.
# ShowCrashDialog=0: a crash ends the program instead of waiting for a click.
# Replacements: dialogs ask for fonts that only Windows has; all of them must show Japanese.
cat >"$WINEPREFIX/settings.reg" <<REG
REGEDIT4

[HKEY_CURRENT_USER\Software\Wine\X11 Driver]
"Managed"="$managed"

[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"MS Gothic"="IPAGothic"
"MS PGothic"="IPAPGothic"
"MS UI Gothic"="IPAPGothic"
"Yu Gothic UI"="IPAPGothic"
"Meiryo UI"="IPAPGothic"
REG
wine reg import "$WINEPREFIX/settings.reg" </dev/null >/dev/null 2>&1
wineserver -k
wineserver -w

printf '%s\n' "$recipe" >"$stamp"
