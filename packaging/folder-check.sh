# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Which folders Zelvia can live in. To be sourced by bash, or run by it with a folder to check.
#
# The program derives the folder of a diary from the diary's path: it looks for the first "ZelviaFile" and for the first
# "." in it, and keeps paths as Windows-1252 between double quotes, with backslashes. A folder that upsets one of these
# rules would lose the user's data on the first save, so it is refused before anything is laid there.

# say TEXT [PART...]: the text, with the parts in the places %1 and %2 in that order. The launcher replaces this by one that
# says it in the user's language.
say() {
  local format=${1//\\/\\\\}
  printf "${format//%[12]/%s}\n" "${@:2}"
}

# folder_resolve FOLDER: sets `folder_path` to its absolute path without symbolic links. Links in a circle stay in it.
folder_resolve() {
  IFS= read -r -d '' folder_path < <(realpath -mz -- "$1" 2>/dev/null)
}

# folder_obstacle PATH: why the absolute path PATH cannot be the program's folder, as the end of a sentence; nothing when
# it can. Makes and changes nothing.
folder_obstacle() {
  local path=$1 place=$1
  # Bytes, whatever the locale.
  local LC_ALL=C
  case $path in
    /) say "è la radice del disco. Indicare una cartella, per esempio /home/anna/Zelvia." && return ;;
    *.*)
      say "nel percorso c'è un punto («.»), e nei nomi delle cartelle del programma i punti non sono ammessi: il nome del \
diario finisce al primo punto. Indicare una cartella senza punti."
      return
      ;;
    *ZelviaFile*) say "nel percorso c'è la parola «ZelviaFile», riservata alla cartella dei diari." && return ;;
    *\\*) say "nel percorso c'è una barra rovesciata («\\»)." && return ;;
    *\"*) say "nel percorso ci sono delle virgolette («\"»)." && return ;;
    *[$'\x01'-$'\x1f\x7f']*) say "nel percorso c'è un carattere di controllo." && return ;;
  esac
  if ! printf '%s' "$path" | iconv -f UTF-8 -t WINDOWS-1252 >/dev/null 2>&1; then
    say "nel percorso c'è un carattere che i file del diario non possono contenere (fuori da Windows-1252)."
    return
  fi
  while [ ! -e "$place" ]; do
    if [ -L "$place" ]; then
      # The path has been resolved: a link that is left leads back to itself.
      say "i collegamenti del percorso girano in tondo."
      return
    fi
    place=$(dirname -- "$place")
  done
  if [ ! -d "$place" ]; then
    say "«%1» non è una cartella." "$place"
  elif [ ! -w "$place" ] || [ ! -x "$place" ]; then
    if [ "$place" = "$path" ]; then
      say "nella cartella non si può scrivere."
    else
      say "la cartella non si può creare: in «%1» non si può scrivere." "$place"
    fi
  fi
}

# folder_check FOLDER: sets `folder_path`; when the program cannot live there says so on stderr and returns 2.
folder_check() {
  local obstacle
  if [ -z "$1" ]; then
    obstacle=$(say "il nome della cartella è vuoto.")
    folder_path=
  else
    folder_resolve "$1"
    obstacle=$(folder_obstacle "$folder_path")
  fi
  [ -n "$obstacle" ] || return 0
  say "Zelvia non può stare in «%1»: %2" "$folder_path" "$obstacle" >&2
  return 2
}

# folder_make FOLDER: as folder_check, and makes the folder.
folder_make() {
  folder_check "$1" || return
  local probe
  if ! mkdir -p -- "$folder_path" 2>/dev/null; then
    say "Zelvia non può stare in «%1»: %2" "$folder_path" "$(say "la cartella non si può creare.")" >&2
    return 2
  fi
  if ! probe=$(mktemp -- "$folder_path/zelvia-prova-XXXXXX" 2>/dev/null); then
    say "Zelvia non può stare in «%1»: %2" "$folder_path" "$(say "nella cartella non si può scrivere.")" >&2
    return 2
  fi
  rm -f -- "$probe"
}

if [ "${BASH_SOURCE[0]}" = "$0" ]; then
  folder_check "$1"
fi
