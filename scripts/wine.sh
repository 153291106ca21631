# shellcheck shell=bash
# Sourced by the commands that run Windows programs here: an environment of Wine that is made once in build/wine, and
# copies of it in which programs run without a trace in another's.

readonly wine=/usr/lib/wine/wine64 wine_server=/usr/lib/wine/wineserver64
readonly wine_folder=$PWD/build/wine

# A home of its own, because the environment links the user's folders into it; a locale that every machine has, without
# which names lose all but ASCII. No crash may wait for an answer: the debugger writes a trace and ends.
export HOME=$wine_folder/home WINELOADER=$wine WINEDEBUG=-all LC_ALL=C.UTF-8 TZ=${DAYVANE_TZ:-UTC}
export WINEDLLOVERRIDES='mscoree=d;mshtml=d;winemenubuilder.exe=d'
unset DISPLAY WAYLAND_DISPLAY

run_windows() { timeout -k 5 "$1" "$wine" "${@:2}" </dev/null; }

# Waits for what still runs in the environment, and ends it when it does not end by itself.
settle() { timeout 30 "$wine_server" -w || "$wine_server" -k || true; }

set_value() { run_windows 60 reg add "$1" /v "$2" /t "$3" /d "$4" /f; }

make_template() {
  rm -rf "$WINEPREFIX"
  mkdir -p "$WINEPREFIX"
  WINEDLLOVERRIDES="$WINEDLLOVERRIDES;explorer.exe=d" run_windows 180 wineboot -i
  settle
  set_value 'HKCU\Software\Wine\WineDbg' ShowCrashDialog REG_DWORD 0
  set_value 'HKCU\Software\Wine' ShowDotFiles REG_SZ Y # else files count as hidden by the dot of their names
  # Shapes for every script: without, all but Latin and Greek is boxes.
  set_value 'HKCU\Software\Wine\Fonts\Replacements' SimSun REG_SZ 'WenQuanYi Micro Hei'
  settle
  strip_libraries
  touch "$WINEPREFIX/ready"
}

# The libraries come with what a debugger needs, which is two thirds of them.
strip_libraries() {
  find "$WINEPREFIX/drive_c/windows" \( -name '*.dll' -o -name '*.exe' \) -print0 |
    xargs -0 -r x86_64-w64-mingw32-strip 2>/dev/null || true
}

# Windows are there and take input, and nobody sees them.
use_null_screen() { printf '\n[Software\\\\Wine\\\\Drivers]\n"Graphics"="null"\n' >>"$WINEPREFIX/user.reg"; }

# A copy of the environment of its own, named in WINEPREFIX and gone at the end of the script. What is never written
# shares its disk space.
open_environment() {
  local template=$wine_folder/template copy file
  mkdir -p "$HOME"
  export WINEPREFIX=$template
  exec 9>"$wine_folder/lock"
  flock 9
  [ -e "$template/ready" ] || make_template >"$wine_folder/template.log" 2>&1 9>&- ||
    { cat "$wine_folder/template.log" >&2; exit 1; }
  exec 9>&-
  copy=$(mktemp -d "$wine_folder/copy.XXXXXX")
  cp -al "$template/." "$copy"
  for file in system.reg user.reg userdef.reg; do cp --remove-destination "$template/$file" "$copy/$file"; done
  rm -rf "$copy/drive_c/users"
  cp -a "$template/drive_c/users" "$copy/drive_c/users"
  WINEPREFIX=$copy
}

close_environment() {
  settle
  [ "$WINEPREFIX" = "$wine_folder/template" ] || rm -rf "$WINEPREFIX"
}

# A screen with a window manager and a notification area, in DISPLAY: its size in pixels and its dots per inch.
open_screen() {
  local number=$wine_folder/screen.$$
  mkfifo "$number"
  Xvfb -displayfd 3 -screen 0 "$1x24" -dpi "$2" -nolisten tcp 3>"$number" >/dev/null 2>&1 &
  screen_jobs=($!)
  DISPLAY=:$(head -1 "$number")
  export DISPLAY
  rm "$number"
  openbox >/dev/null 2>&1 &
  screen_jobs+=($!)
  tint2 -c scripts/tint2rc >/dev/null 2>&1 &
  screen_jobs+=($!)
}

close_screen() {
  [ -z "${screen_jobs[*]:-}" ] || kill "${screen_jobs[@]}" 2>/dev/null || true
}
