# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes a folder the runner's own program folder, or renews the program in it, by the rules of Install.cmake. To be
# sourced by bash.

# lay_file NEW FILE: puts a copy of NEW in the place of FILE in one step, unless it is there already. Whatever ends the
# work half-way, FILE is the old one or the new one.
lay_file() {
  local passing
  if [ ! -L "$2" ] && cmp -s -- "$1" "$2" && { [ ! -x "$1" ] || [ -x "$2" ]; }; then
    return 0
  fi
  passing=$(mktemp -- "$(dirname -- "$2")/.zelvia-nuovo-XXXXXX") || return
  if cp -- "$1" "$passing" && chmod "$(stat -c %a -- "$1")" "$passing" && sync -- "$passing" && mv -fT -- "$passing" "$2"; then
    return 0
  fi
  rm -f -- "$passing"
  return 1
}

# lay_pointer FILE: an empty pointer file, unless a file or a link is there.
lay_pointer() {
  local passing
  if [ -e "$1" ] || [ -L "$1" ]; then
    return 0
  fi
  passing=$(mktemp -- "$(dirname -- "$1")/.zelvia-nuovo-XXXXXX") || return
  printf '""\r\n' >"$passing" && chmod 644 "$passing" && sync -- "$passing" && mv -nT -- "$passing" "$1"
  rm -f -- "$passing"
  [ -e "$1" ]
}

# lay_folder PREFIX FOLDER: from what the package has below PREFIX. One start at a time.
lay_folder() (
  exec 2>/dev/null 9<"$2" || exit
  flock -w 10 9
  rm -f -- "$2"/.zelvia-nuovo-??????
  mkdir -p -- "$2/ZelviaFile" &&
    lay_pointer "$2/nomeload" &&
    lay_file "$1/share/zelvia/mano.cur" "$2/mano.cur" &&
    lay_file "$1/share/zelvia/Guida.hlp" "$2/Guida.hlp" &&
    lay_file "$1/libexec/zelvia/zelvia" "$2/zelvia"
)
