#!/usr/bin/env bash
# Packs the program for Windows: scripts/package_windows.sh build/windows build/packages VERSION
# Leaves a portable zip and an installer for one user. The same program gives the same bytes: every time in the packages
# is SOURCE_DATE_EPOCH.
set -euo pipefail
build=$(realpath "$1/src/windows") output=$(realpath -m "$2") version=$3
cd "$(dirname "${BASH_SOURCE[0]}")/.."
export LC_ALL=C.UTF-8 TZ=UTC

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
folder=$stage/Dayvane
mkdir -p "$folder" "$output"
cp "$build/dayvane.exe" "$build/Dayvane.hlp" "$folder"
sed 's/$/\r/' LICENSE >"$folder/License.txt"
sed 's/$/\r/' packaging/windows/ReadMe.txt >"$folder/ReadMe.txt"
chmod 644 "$folder"/*
find "$stage" -exec touch -d "@${SOURCE_DATE_EPOCH:?}" {} +

zip=$output/dayvane-$version-windows.zip
rm -f "$zip"
(cd "$stage" && zip -X -9 -q "$zip" Dayvane/*)

kilobytes=$(cat "$folder"/* | wc -c | awk '{ print int(($1 + 1023) / 1024) }')
python3 -B scripts/draw_wizard_picture.py src/resources/pictures/logo.svg "$stage/wizard.bmp"
makensis -V2 -WX -INPUTCHARSET UTF8 -DVERSION="$version" -DSTAGE="$folder" -DKILOBYTES="$kilobytes" \
  -DICON="$build/resources/icons/dayvane.ico" -DPICTURE="$stage/wizard.bmp" \
  -DOUTPUT="$output/dayvane-$version-windows-setup.exe" packaging/windows/dayvane.nsi
