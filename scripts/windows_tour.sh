#!/usr/bin/env bash
# Dayvane for Windows at work, on a screen of its own: scripts/windows_tour.sh build/windows build/tour
set -euo pipefail
build=$(realpath "$1") pictures=$(realpath -m "$2")
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/wine.sh

trap 'close_environment; close_screen' EXIT
open_screen 1060x640 "${DAYVANE_DPI:-96}"
open_environment
/usr/bin/python3 -B scripts/windows_tour.py "$build" "$pictures"
