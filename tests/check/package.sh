#!/usr/bin/env bash
# The zip for users contains one folder with both programs, their help and a readme for Notepad.
#
#   package.sh ZIP PROGRAM TEXT_PROGRAM SOURCE_FOLDER
set -euo pipefail
export LC_ALL=C.UTF-8

readonly zip=$1 program=$2 text_program=$3 source=$4
readonly largest=$((1024 * 1024))

status=0
complain() {
  echo "$(basename "$zip"): $*"
  status=1
}

unpacked=$(mktemp -d)
trap 'rm -rf "$unpacked"' EXIT

expected=$(
  printf 'Velmora/%s\n' Readme.txt Velmora.exe VelmoraText.exe
  cd "$source/resources" && find help -type f -printf 'Velmora/%p\n'
)
held=$(cmake -E tar tf "$zip" | grep -v '/$')
difference=$(diff <(sort <<<"$expected") <(sort <<<"$held")) ||
  complain "does not hold what it should:" $'\n'"$difference"
LC_ALL=C grep -q '[^ -~]' <<<"$held" && complain "holds a name that is not ASCII"

size=$(stat -c %s "$zip")
((size < largest)) || complain "$size bytes, must be less than $largest"

# Names that lead out of the folder were reported above; they must not be written.
[[ $status == 0 ]] || exit "$status"
(cd "$unpacked" && cmake -E tar xf "$zip")

cmp "$program" "$unpacked/Velmora/Velmora.exe" || complain "holds another program"
cmp "$text_program" "$unpacked/Velmora/VelmoraText.exe" || complain "holds another text program"
diff -r "$source/resources/help" "$unpacked/Velmora/help" || complain "holds another help"

readonly readme=$unpacked/Velmora/Readme.txt
iconv -f UTF-8 -t UTF-16LE "$readme" >/dev/null || complain "Readme.txt is not UTF-8"
[[ $(head -c 3 "$readme" | od -An -tx1) == ' ef bb bf' ]] ||
  complain "Readme.txt has no byte order mark, by which Notepad knows UTF-8"
lines=$(grep -c '' "$readme")
((lines > 20)) || complain "Readme.txt has only $lines lines"
[[ $(grep -c $'^[^\r]*\r$' "$readme") == "$lines" ]] ||
  complain "Readme.txt has lines that do not end with CR LF"
grep -q '@' "$readme" && complain "Readme.txt has an unfilled place"

# The files that the program writes have the same names there as in the sources.
while read -r name; do
  grep -qF "$name" "$readme" || complain "Readme.txt does not name $name"
done < <(grep -hoE '(文字数オーバー[^"]*|Conf)\.txt' "$source"/src/capture/OutputDelivery.h \
  "$source"/src/settings/ConfigFile.cpp | sort -u)
exit "$status"
