#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds Zelvia, lays its program folder and opens the diary: start.sh [--demo] [FOLDER]; or makes the Debian package:
# start.sh --package
set -euo pipefail

source_folder=$(dirname "$(readlink -f "$0")")
. "$source_folder/packaging/packages.sh"
. "$source_folder/packaging/folder-check.sh"
. "$source_folder/packaging/before-start.sh"
. "$source_folder/packaging/sample-year.sh"

usage() {
  cat <<'TEXT'
Uso: ./start.sh [--demo] [CARTELLA]
     ./start.sh --package

Compila Zelvia, lo installa nella CARTELLA (di solito Zelvia, nella cartella
personale) e apre il diario. I dati che ci sono già non vengono toccati.

  --demo    apre un diario di prova con un anno già scritto, nel giorno di una
            gara, in una cartella sua se non è indicata la CARTELLA; questa deve
            essere nuova, vuota o di un diario di prova
  --package non apre niente: fa il pacchetto Debian nella cartella
            build/package
  --help    mostra questo testo

Senza uno schermo il diario si apre su uno schermo virtuale: la fotografia della
pagina resta nel file zelvia-pagina.png della cartella corrente.
TEXT
}

refuse() {
  echo "$1" >&2
  usage >&2
  exit 2
}

# The demo's own folder: in the build folder, unless the program cannot live at that place.
demo_folder() {
  if folder_check "$source_folder/build/demo" 2>/dev/null; then
    echo "$source_folder/build/demo"
    return
  fi
  echo "/tmp/zelvia-demo-$(id -u)"
}

demo=
package=
folder=
folder_given=
options=yes
for argument in "$@"; do
  if [ -n "$options" ] && [[ $argument = -* ]]; then
    case $argument in
      --) options= ;;
      --demo) demo=yes ;;
      --package) package=yes ;;
      --help) usage && exit 0 ;;
      *) refuse "Opzione sconosciuta: $argument" ;;
    esac
  else
    [ -z "$folder_given" ] || refuse "Si può indicare una sola CARTELLA."
    folder=$argument
    folder_given=yes
  fi
done
if [ -n "$package" ]; then
  [ -z "$demo$folder_given" ] || refuse "Con --package non si indica altro."
  packages_install build package
  "$source_folder/packaging/deb.sh" "$source_folder/build/package"
  ls "$source_folder"/build/package/zelvia_*.deb
  exit 0
fi
if [ -z "$folder_given" ]; then
  if [ -n "$demo" ]; then
    folder=$(demo_folder)
  elif [ -n "${HOME:-}" ]; then
    folder=$HOME/Zelvia
  else
    refuse "La cartella personale non è nota (HOME): indicare una CARTELLA."
  fi
fi
[ -z "$demo" ] || [ -z "$folder" ] || demo_check "$folder"
folder_make "$folder"
folder=$folder_path
# Once more: in a place that others write too it may have become another one meanwhile.
[ -z "$demo" ] || demo_claim "$folder"

screen=
[ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || screen=yes
sections=(run build)
[ -n "$screen" ] || sections+=(display)
packages_install "${sections[@]}"

echo "Compilazione di Zelvia..."
(
  cd "$source_folder"
  cmake --preset release
  cmake --build --preset release
)
cmake --install "$source_folder/build/release" --prefix "$folder"
day=()
if [ -n "$demo" ]; then
  lay_sample_year "$folder"
  day=(--oggi "$demo_day")
fi

# A sample year is nobody's diary: no copy of it is kept, and nothing asked about it.
[ -n "$demo" ] || before_start "$source_folder/build/release/src" "$folder"
echo "Apertura del diario in $folder"
if [ -n "$screen" ]; then
  exec "$folder/zelvia" "${day[@]}"
fi
exec "$source_folder/tests/support/with-x11.sh" "$source_folder/packaging/page-picture.sh" \
  "$folder" "$PWD/zelvia-pagina.png" "${day[@]}"
