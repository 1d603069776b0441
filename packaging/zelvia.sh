#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What the package installs as "zelvia": sees whether the diary can live in its folder, keeps a copy of it and opens it
# with the installed program: zelvia [--oggi AAAA-MM-GG] [FOLDER]
set -euo pipefail

prefix=$(dirname "$(dirname "$(readlink -f "$0")")")
program=$prefix/libexec/zelvia/zelvia
. "$prefix/share/zelvia/folder-check.sh"

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
while [ $# -gt 0 ]; do
  case $1 in
    --help) echo "$help" && exit 0 ;;
    --oggi) today=("$1" "$2") && shift 2 ;;
    --) folder=${2-$folder} && break ;;
    *) folder=$1 && shift ;;
  esac
done
[ -n "$folder" ] || refuse "La cartella personale non è nota (HOME): indicare una CARTELLA."
reason=$(folder_make "$folder" 2>&1) || refuse "$reason"
folder_resolve "$folder"

if ! reason=$("$prefix/bin/zelvia-copie" --cartella "$folder_path" crea 2>&1 >/dev/null); then
  tell "La copia di sicurezza del diario non è riuscita; il diario si apre lo stesso.
$reason"
fi
# Diaries from another computer come without the pointer to the one to open, which holds a path of that computer.
pointer=$folder_path/nomeload
if [ -d "$folder_path/ZelviaFile" ] && [ ! -e "$pointer" ] && [ ! -L "$pointer" ]; then
  { printf '""\r\n' >"$pointer"; } 2>/dev/null || rm -f -- "$pointer"
fi
[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ] || refuse "Zelvia ha bisogno di uno schermo."
exec "$program" "${today[@]}" -- "$folder_path"
