#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What the package installs as "zelvia": keeps a copy of the runner's diary, lays or renews the program in the runner's
# own folder and opens the diary there: zelvia [FOLDER]
set -euo pipefail

prefix=$(dirname "$(dirname "$(readlink -f "$0")")")
. "$prefix/share/zelvia/folder-check.sh"
. "$prefix/share/zelvia/lay-folder.sh"

usage() {
  cat <<'TEXT'
Uso: zelvia [CARTELLA]

Apre il diario di chi corre che sta nella CARTELLA (di solito Zelvia, nella
cartella personale). La prima volta la prepara; i dati che ci sono già non
vengono toccati. Prima di ogni avvio tiene una copia di ciò che è cambiato:
vedi zelvia-copie.

  --help    mostra questo testo
TEXT
}

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

folder=
folder_given=
options=yes
for argument in "$@"; do
  if [ -n "$options" ] && [[ $argument = -* ]]; then
    case $argument in
      --) options= ;;
      --help) usage && exit 0 ;;
      *) refuse "Opzione sconosciuta: $argument" ;;
    esac
  else
    [ -z "$folder_given" ] || refuse "Si può indicare una sola CARTELLA."
    folder=$argument
    folder_given=yes
  fi
done
if [ -z "$folder_given" ]; then
  [ -n "${HOME:-}" ] || refuse "La cartella personale non è nota (HOME): indicare una CARTELLA."
  folder=$HOME/Zelvia
fi
reason=$(folder_make "$folder" 2>&1) || refuse "$reason"
folder_resolve "$folder"
folder=$folder_path

if ! reason=$("$prefix/bin/zelvia-copie" --cartella "$folder" crea 2>&1 >/dev/null); then
  tell "La copia di sicurezza del diario non è riuscita; il diario si apre lo stesso.
$reason"
fi
if ! lay_folder "$prefix" "$folder"; then
  [ -x "$folder/zelvia" ] && [ -e "$folder/nomeload" ] ||
    refuse "Zelvia non può preparare la cartella «$folder»: il disco è forse pieno."
  tell "Zelvia non può aggiornare il programma in «$folder»: il disco è forse pieno. Si apre quello di prima."
fi
[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ] || refuse "Zelvia ha bisogno di uno schermo."

shopt -s execfail
exec "$folder/zelvia" ||
  refuse "«$folder/zelvia» non si può eseguire: la cartella sta forse su un disco da cui i programmi non partono."
