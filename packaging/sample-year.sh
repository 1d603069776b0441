# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The year of a sample runner, and the folders that it may be laid in. To be sourced by bash.

# The day that it is opened on: a race of the sample runner's, with its times and notes and most of a year before it.
demo_day=2026-11-08

# What tells a folder of the sample year from a runner's own.
demo_mark=.zelvia-demo

# demo_obstacle FOLDER: why the sample year may not go to FOLDER, as the end of a sentence; nothing when it may. It goes
# to a folder that is new, empty or marked, so that nobody's diary is taken for it. Makes and changes nothing.
demo_obstacle() {
  local folder=$1
  # With a slash at its end the name of a link stands for what it leads to.
  while [ "${folder%/}" != "$folder" ] && [ -n "${folder%/}" ]; do
    folder=${folder%/}
  done
  if [ -L "$folder" ]; then
    echo "è un collegamento. Indicare la cartella stessa."
  elif [ -e "$folder" ] && [ ! -O "$folder" ]; then
    echo "è di un altro utente. Indicare un'altra CARTELLA."
  elif [ -d "$folder" ] && { [ -L "$folder/$demo_mark" ] || [ ! -f "$folder/$demo_mark" ]; } &&
    [ -n "$(ls -A -- "$folder" 2>/dev/null)" ]; then
    echo "non è vuota e non è di un diario di prova. Indicare una cartella nuova o vuota."
  fi
}

# demo_check FOLDER: when the sample year may not go to FOLDER says so on stderr and returns 2.
demo_check() {
  local obstacle
  obstacle=$(demo_obstacle "$1")
  [ -n "$obstacle" ] || return 0
  echo "Il diario di prova non può stare in «$1»: la cartella $obstacle" >&2
  return 2
}

# demo_claim FOLDER: as demo_check, and marks the folder, which exists.
demo_claim() {
  demo_check "$1" || return
  [ -e "$1/$demo_mark" ] || echo "Diario di prova di Zelvia: start.sh --demo" >"$1/$demo_mark"
}

# lay_sample_year FOLDER: copies the sample year into a program folder that has no diary "prova" yet, the diary last, so
# an interrupted copy is taken up again. A file that is there stays as it is.
lay_sample_year() {
  local sample file
  sample=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/../share/demo
  [ ! -e "$1/ZelviaFile/prova.zlv" ] || return 0
  mkdir -p -- "$1/prova"
  for file in "$sample"/prova/*; do
    [ -e "$1/prova/${file##*/}" ] || cp -- "$file" "$1/prova/"
  done
  cp -- "$sample/ZelviaFile/prova.zlv" "$1/ZelviaFile/"
}
