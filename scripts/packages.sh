# shellcheck shell=bash
# Sourced by the commands of the project: `require_packages build test` makes sure that everything in
# packages/build.list and packages/test.list is there, or ends the command with a line that says what is not.
#
# On Debian and its relatives the missing packages are installed; a start with nothing missing never touches the
# network. Elsewhere every package has a probe beside its name, and only what the probes miss is reported.

packages_folder="$(dirname "${BASH_SOURCE[0]}")/packages"

# Lines "package probe" of the purposes, comments dropped, each package once.
package_lines() {
  local purpose
  for purpose in "$@"; do sed -e 's/#.*//' -e '/^[[:space:]]*$/d' "$packages_folder/$purpose.list"; done | sort -u -k1,1
}

is_debian_like() {
  command -v apt-get >/dev/null && command -v dpkg-query >/dev/null && [ -r /etc/os-release ] &&
    (. /etc/os-release && case " ${ID:-} ${ID_LIKE:-} " in *" debian "* | *" ubuntu "*) true ;; *) false ;; esac)
}

# Whether a probe finds what its package would bring; "-" stands for things that no command can ask for.
probe() {
  case "$1" in
    command:*) command -v "${1#command:}" >/dev/null ;;
    module:*) pkg-config --exists "${1#module:}" 2>/dev/null ;;
    python:*) /usr/bin/python3 -W ignore -c "import ${1#python:}" >/dev/null 2>&1 ;;
    file:*) [ -e "${1#file:}" ] ;;
    data:*) found_in_data_folders "${1#data:}" ;;
    *) true ;;
  esac
}

found_in_data_folders() {
  local folder
  local IFS=:
  for folder in ${XDG_DATA_DIRS:-/usr/local/share:/usr/share}; do [ -e "$folder/$1" ] && return; done
  return 1
}

is_installed() {
  [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

install_packages() {
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Dayvane needs these packages, and only root can install them: $*" >&2; exit 1; }
    as_root=(sudo)
  fi
  echo "Installing: $*"
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q update
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends \
    -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 install "$@"
}

require_packages() {
  local package how missing=()
  if is_debian_like; then
    while read -r package how; do is_installed "$package" || missing+=("$package"); done < <(package_lines "$@")
    [ ${#missing[@]} -eq 0 ] || install_packages "${missing[@]}"
  else
    while read -r package how; do probe "$how" || missing+=("$package"); done < <(package_lines "$@")
    [ ${#missing[@]} -eq 0 ] || {
      echo "Dayvane needs what Debian calls ${missing[*]}; install these with your system's package manager." >&2
      exit 1
    }
  fi
}
