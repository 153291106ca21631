#!/usr/bin/env bash
# Runs a program of tests that was built for Windows: scripts/run_windows_tests.sh build/windows/tests/dayvane_tests.exe
# Further arguments go to GoogleTest. Needs no display. The Windows environment lies in build/wine and is made once.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

readonly wine=/usr/lib/wine/wine64 server=/usr/lib/wine/wineserver64
readonly longest=${DAYVANE_WINDOWS_SECONDS:-420}

# A home of its own, because the environment links the user's folders into it; a locale that every machine has, without
# which names lose all but ASCII. No crash may wait for an answer: the debugger writes a trace and ends.
export WINEPREFIX=$PWD/build/wine HOME=$PWD/build/wine-home WINEDEBUG=-all LC_ALL=C.UTF-8 TZ=UTC
export WINEDLLOVERRIDES='mscoree=d;mshtml=d;winemenubuilder.exe=d'
unset DISPLAY WAYLAND_DISPLAY

run_windows() { timeout -k 5 "$1" "$wine" "${@:2}" </dev/null; }

# Waits for what still runs in the environment, and ends it when it does not end by itself.
settle() { timeout 30 "$server" -w || "$server" -k || true; }

make_environment() {
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX" "$HOME"
  run_windows 180 wineboot -i
  run_windows 30 reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f
  # Else files count as hidden when their names begin with a dot.
  run_windows 30 reg add 'HKCU\Software\Wine' /v ShowDotFiles /t REG_SZ /d Y /f
  run_windows 30 reg add 'HKCU\Software\Wine\Drivers' /v Graphics /t REG_SZ /d null /f
  settle
  touch "$WINEPREFIX/ready"
}

mkdir -p "$HOME"
if [ ! -e "$WINEPREFIX/ready" ]; then
  make_environment >"$PWD/build/wine.log" 2>&1 || { cat "$PWD/build/wine.log" >&2; exit 1; }
fi

code=0
run_windows "$longest" "$@" || code=$?
[ $code -ne 124 ] || echo "Ended after $longest seconds: $*" >&2
settle
exit $code
