#!/usr/bin/env bash
# Runs a program of tests that was built for Windows: scripts/run_windows_tests.sh build/windows/tests/dayvane_tests.exe
# With --screen it has a screen with a notification area, else windows that nobody sees. Further arguments go to
# GoogleTest.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/wine.sh

screen=no
[ "${1:-}" != --screen ] || { screen=yes; shift; }

trap 'close_environment; close_screen' EXIT
if [ $screen = yes ]; then open_screen 1280x1024 96; fi
open_environment
if [ $screen = no ]; then use_null_screen; fi

readonly longest=${DAYVANE_WINDOWS_SECONDS:-420}
code=0
run_windows "$longest" "$@" || code=$?
[ $code -ne 124 ] || echo "Ended after $longest seconds: $*" >&2
exit $code
