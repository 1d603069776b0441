# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Reads the list of packages and installs what is missing of it. To be sourced by bash.

PACKAGE_LIST=${PACKAGE_LIST:-$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/packages}

# packages_in SECTION...: the packages of the sections, one a line. Fails on a section that the list lacks.
packages_in() {
  local section
  for section in "$@"; do
    awk -v wanted="[$section]" '
      { sub(/#.*/, "") }
      /^\[/ { inside = ($1 == wanted); found = found || inside; next }
      inside && NF { print $1 }
      END { exit !found }' "$PACKAGE_LIST" || {
      echo "packages.sh: no section [$section] in $PACKAGE_LIST" >&2
      return 1
    }
  done
}

# packages_missing SECTION...: those of them that are not installed.
packages_missing() {
  local names name
  names=$(packages_in "$@") || return
  for name in $names; do
    dpkg-query -W -f='${Status}\n' "$name" 2>/dev/null | grep -qx 'install ok installed' || echo "$name"
  done
}

# packages_install SECTION...: installs the missing ones; touches neither network nor root's rights when there are none.
packages_install() {
  local names missing
  local -a as_root=()
  names=$(packages_missing "$@") || return
  [ -n "$names" ] || return 0
  mapfile -t missing <<<"$names"
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      printf 'Mancano dei pacchetti. Installarli come amministratore e riprovare:\n  apt-get install --no-install-recommends %s\n' \
        "${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installazione dei pacchetti mancanti: ${missing[*]}"
  "${as_root[@]}" apt-get update -q </dev/null
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -q -y --no-install-recommends "${missing[@]}" </dev/null
}
