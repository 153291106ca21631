#!/usr/bin/env bash
# Packs the program for Windows: scripts/package_windows.sh build/windows build/packages VERSION
# Leaves a portable zip and an installer for one user. The same program gives the same bytes: every time in the packages
# is SOURCE_DATE_EPOCH.
set -euo pipefail
build=$(realpath "$1/src/windows") output=$(realpath -m "$2") version=$3
cd "$(dirname "${BASH_SOURCE[0]}")/.."

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
folder=$stage/Dayvane
mkdir -p "$folder" "$output"
cp "$build/dayvane.exe" "$build/Dayvane.hlp" packaging/windows/ReadMe.txt "$folder"
sed 's/$/\r/' LICENSE >"$folder/License.txt"
chmod 644 "$folder"/*
find "$stage" -exec touch -d "@${SOURCE_DATE_EPOCH:?}" {} +

zip=$output/dayvane-$version-windows.zip
rm -f "$zip"
(cd "$stage" && TZ=UTC zip -X -9 -q "$zip" Dayvane/*)

makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DBUILD="$build" -DSOURCE="$PWD" -DICONS="$build/resources/icons" \
  -DOUTPUT="$output/dayvane-$version-windows-setup.exe" packaging/windows/dayvane.nsi
