#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Opens the diary of a program folder on the present X display, takes a picture of its page and closes it again:
# page-picture.sh FOLDER PICTURE.png [OPTION...], the options being the program's.
set -euo pipefail

folder=$1
picture=$2
program=
work=$(mktemp -d)
tidy() {
  [ -z "$program" ] || kill "$program" 2>/dev/null || true
  rm -rf "$work"
}
trap tidy EXIT

fail() {
  echo "$1" >&2
  exit 1
}

# await SECONDS COMMAND...: polls for a condition; fails when the time is over.
await() {
  local tries=$(($1 * 5))
  shift
  until "$@"; do
    tries=$((tries - 1))
    [ "$tries" -gt 0 ] || return 1
    sleep 0.2
  done
}

running() { kill -0 "$program" 2>/dev/null; }
ended() { ! running; }

page=
page_up() {
  page=$(xdotool search --onlyvisible --class '^zelvia$' 2>/dev/null | head -n 1) || true
  [ -n "$page" ] || ended
}

# The page is drawn once it has colours and two pictures of it, one after the other, are alike.
page_drawn() {
  mv "$work/now.png" "$work/before.png" 2>/dev/null || true
  import -silent -window "$page" "$work/now.png" 2>/dev/null || return 1
  [ -e "$work/before.png" ] && [ "$(identify -format '%k' "$work/now.png")" -gt 1 ] &&
    [ "$(identify -format '%#' "$work/now.png")" = "$(identify -format '%#' "$work/before.png")" ]
}

"$folder/zelvia" "${@:3}" &
program=$!
await 60 page_up || fail "La pagina del diario non si è aperta entro un minuto."
running || fail "Zelvia si è chiuso subito: il diario di «$folder» è forse già aperto."
await 30 page_drawn || fail "Non è stato possibile fotografare la pagina del diario."
cp -- "$work/now.png" "$picture"

wmctrl -i -c "$page"
await 30 ended || fail "Zelvia non si è chiuso entro mezzo minuto."
status=0
wait "$program" || status=$?
program=
[ "$status" -eq 0 ] || fail "Zelvia si è chiuso con lo stato $status."
echo "Pagina del diario: $picture"
