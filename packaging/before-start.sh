# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What comes before the program's start. To be sourced by bash.

# before_start PROGRAMS FOLDER [--oggi AAAA-MM-GG]: lays the pointer that is missing, then has zelvia-avvio, which lies in
# the folder PROGRAMS, keep a copy, look at the diary and ask what there is to ask. The caller is to become the program:
# at its end one more copy is kept. Nothing that goes wrong here stops the diary from opening.
before_start() {
  local programs=$1 folder=$2 pointer=$2/nomeload
  # Diaries from another computer come without the pointer to the one to open, which holds a path of that computer.
  if [ -d "$folder/ZelviaFile" ] && [ ! -e "$pointer" ] && [ ! -L "$pointer" ]; then
    { printf '""\r\n' >"$pointer"; } 2>/dev/null || rm -f -- "$pointer"
  fi
  "$programs/zelvia-avvio" "${@:3}" -- "$folder" || true
}
