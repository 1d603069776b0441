# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The year of a sample runner. To be sourced by bash.

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
