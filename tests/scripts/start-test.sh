#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What the launcher asks before the program starts, answered by real keys: start-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/copies.sh"
. "$source_folder/tests/scripts/program.sh"
. "$source_folder/packaging/sample-year.sh"
launcher=$work/usr/bin/zelvia
file=$diary/ZelviaFile/prova.zlv

box_up() { box=$(xdotool search --onlyvisible --classname '^zelvia-avviso$' 2>/dev/null); }
box_down() { ! box_up; }
active() { [ "$(xdotool getactivewindow 2>/dev/null)" = "$box" ]; }
lay() {
  rm -rf "$diary" "$HOME/.local"
  mkdir -p "$diary/ZelviaFile"
  lay_sample_year "$diary"
  printf '""\r\n' >"$diary/nomeload"
}
quote() { LC_ALL=C sed -i '8425s/.*/"il "Giro""\r/' "$file"; }

# answer WHAT KEY...: starts the diary, whose page is not up before the box was answered with these keys.
answer() {
  start
  await box_up || expect "$1: a box" none one
  page_up && expect "$1: the page before the answer" up "not up"
  xdotool windowactivate --sync "$box"
  await active
  xdotool key --clearmodifiers "${@:2}"
  await box_down || expect "$1: the box" up answered
  expect_page_and_close "$1"
}

# The end of the session answers a box as Escape does.
end_box() {
  command=("$build/src/zelvia-avviso" "${@:2}")
  start
  await box_up || expect "a box of ${#} words" none one
  kill -TERM "$program"
  status=0
  wait "$program" || status=$?
  expect "a box of ${#} words: exit status" "$status" "$1"
}
end_box 0 "È andata male."
end_box 11 "Che fare?" "Ripara" "Apri così com'è"

# Nothing is asked about a diary that is well.
lay
command=("$launcher" --oggi 2026-05-20)
start
await page_up || expect "a whole diary" "not up" up
box_up && expect "a whole diary: a box" one none
expect_page_and_close "a whole diary"
expect "a whole diary: words" "$(grep -v XDG_RUNTIME_DIR "$work/program.log" || true)" ""

# Enter mends; the page then has the note, and all that follows it.
quote
answer "mended" Return
expect "mended: the note" "$(sed -n 8425p "$file" | iconv -f WINDOWS-1252)" $'"il “Giro”"\r'
expect "mended: the text" "$(grep -c 'Nel diario «prova» c.è qualcosa che non va:' "$work/program.log")" 1
start
expect_page_and_close "after the mending"
expect "after the mending: words" "$(grep -v XDG_RUNTIME_DIR "$work/program.log" || true)" ""

# Escape opens it as it is, which the program says by itself.
quote
damaged=$(sha256sum <"$file")
start
await box_up
xdotool windowactivate --sync "$box"
await active
xdotool key --clearmodifiers Escape
await page_up || expect "opened all the same" "not up" up
expect "opened all the same: the file" "$(sha256sum <"$file")" "$damaged"
kill -9 "$program"
wait "$program" 2>/dev/null || true
await page_down

# The new year, by Enter; it is the one that the page shows then.
lay
command=("$launcher" --oggi 2027-01-02)
answer "a new year" Return
expect "a new year: the diary" "$(wc -l <"$diary/ZelviaFile/2027.zlv")" 49776
expect "a new year: the pointer" "$(grep -c '2027.zlv' "$diary/nomeload")" 1
start
expect_page_and_close "the new year's second start"
expect "the new year's second start: words" "$(grep -v XDG_RUNTIME_DIR "$work/program.log" || true)" ""
lay
answer "not now" Escape
expect "not now: the diary" "$(ls "$diary/ZelviaFile")" prova.zlv
start
expect_page_and_close "not now: asked once"
expect "not now: words" "$(grep -v XDG_RUNTIME_DIR "$work/program.log" || true)" ""

# The copy at the end outlives the session; what failed waits for the next one, since no box may hold up a logout.
lay
mkdir "$work/chiave"
"$copies" --cartella "$diary" secondo-posto "$work/chiave" >/dev/null
rm -r "$work/chiave"
command=("$launcher" --oggi 2026-05-20)
start
await page_up
copier=
copier_up() {
  local place
  for place in /proc/[0-9]*; do
    [ "$(readlink "$place/exe")" != "$work/usr/libexec/zelvia/zelvia-avvio" ] || copier=${place#/proc/}
  done
  [ -n "$copier" ]
}
await copier_up || expect "what copies at the end" none one
kill -TERM "$copier" "$program"
await ended "$copier" || expect "what copies at the end" running ended
status=0
wait "$program" || status=$?
expect "the end of the session: exit status" "$status" 0
expect "the end of the session: words" "$(grep -v XDG_RUNTIME_DIR "$work/program.log" || true)" ""
expect "the end of the session: copies" "$(kept_names | tr -cd '|' | wc -c)" 1
start
expect_page_and_close "the session after it"
await box_up || expect "the session after it: a box" none one
expect "the session after it: words" "$(grep -c 'La copia nel secondo posto non è riuscita' "$work/program.log")" 1
xdotool windowactivate --sync "$box"
await active
xdotool key --clearmodifiers Return
await box_down

# Without a display it is said, and nothing waits for an answer.
lay
quote
run env -u DISPLAY -u WAYLAND_DISPLAY "$work/usr/libexec/zelvia/zelvia-avvio" -- "$diary"
expect "without a display" "$status|$(head -n 1 <<<"$errors")|$(tail -n 1 <<<"$errors")" \
  "0|Nel diario «prova» c'è qualcosa che non va:|Il diario si apre lo stesso. Per ripararlo: zelvia-strumenti --cartella «$diary» ripara"
verdict
