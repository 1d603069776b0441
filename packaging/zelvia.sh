#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What the package installs as "zelvia": sees whether the diary can live in its folder, does what comes before the start
# and becomes the installed program: zelvia [--oggi AAAA-MM-GG] [--diario NAME] [FOLDER]
set -euo pipefail

prefix=$(dirname "$(dirname "$(readlink -f "$0")")")
program=$prefix/libexec/zelvia/zelvia
. "$prefix/share/zelvia/folder-check.sh"
. "$prefix/share/zelvia/before-start.sh"

locale=${LC_ALL-}
say() { LC_ALL=$locale "$prefix/libexec/zelvia/zelvia-avvio" --di "$@"; }

# tell TEXT: on the error stream and, when no terminal shows that, in a window.
tell() {
  echo "$1" >&2
  if [ ! -t 2 ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    "$prefix/libexec/zelvia/zelvia-avviso" "$1" || true
  fi
}

refuse() {
  tell "$1"
  exit 2
}

# The program knows its command line; asked for help it checks that and does nothing else.
help=$("$program" --help "$@" 2>&1) || refuse "$help"

folder=${HOME:+$HOME/Zelvia}
today=()
diary=()
information=
while [ $# -gt 0 ]; do
  case $1 in
    --help) echo "$help" && exit 0 ;;
    --informazioni) information=yes && shift ;;
    --oggi) today=("$1" "$2") && shift 2 ;;
    --diario) diary=("$1" "$2") && shift 2 ;;
    --) folder=${2-$folder} && break ;;
    *) folder=$1 && shift ;;
  esac
done
[ -z "$information" ] || exec "$program" --informazioni -- ${folder:+"$folder"}
[ -n "$folder" ] || refuse "$(say "La cartella personale non è nota (HOME): indicare una CARTELLA.")"
reason=$(folder_make "$folder" 2>&1) || refuse "$reason"
folder_resolve "$folder"

before_start "$prefix/libexec/zelvia" "$folder_path" "${today[@]}"
[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ] || refuse "$(say "Zelvia ha bisogno di uno schermo.")"
exec "$program" "${today[@]}" "${diary[@]}" -- "$folder_path"
