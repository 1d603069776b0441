#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The launcher of the package, from the first start on: launcher-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/copies.sh"
. "$source_folder/tests/scripts/program.sh"
launcher=$work/usr/bin/zelvia
rm -rf "$diary"

# An ordinary user's own: a window's text can't be read from outside, so what is in it is also checked in a terminal.
notice_up() { notice=$(xdotool search --onlyvisible --classname '^zelvia-avviso$' 2>/dev/null); }
notice_down() { ! notice_up; }
# Name, kind, time and bytes of all that lies in a folder.
data_of() {
  (cd "$1" && find . -mindepth 1 ! -name .zelvia.lock \
    -printf '%P %y %m ' \( -type f -printf '%T@ ' -exec sha256sum {} \; -o -printf '\n' \) | LC_ALL=C sort)
}
# runs_installed PROCESS: it is the package's program.
runs_installed() { [ "$(readlink "/proc/$1/exe")" = "$work/usr/libexec/zelvia/zelvia" ]; }

# copies_are COUNT: that many copies are kept; the last one is made once the program has ended.
copies_are() { [ "$(kept_names | tr -cd '|' | wc -c)" = "$1" ]; }

# The command line, and folders that will not do. The text comes on the error stream and in a window.
expect_refused() {
  local what=$1 wanted=$2
  "${@:3}" >"$work/program.log" 2>"$work/errors" </dev/null &
  program=$!
  started+=("$program")
  await notice_up || expect "$what: a window" none one
  wmctrl -i -c "$notice"
  await ended "$program" || expect "$what" running ended
  status=0
  wait "$program" || status=$?
  expect "$what: exit status" "$status" 2
  case $(grep -v XDG_RUNTIME_DIR "$work/errors") in
    "$wanted"*) ;;
    *) expect "$what: text" "$(<"$work/errors")" "$wanted" ;;
  esac
}
expect_refused "an unknown option" "Opzione sconosciuta: --prova" "$launcher" --prova
expect_refused "a wrong day" "Dopo --oggi ci vuole un giorno, AAAA-MM-GG: «2027-02-29» non lo è." \
  "$launcher" --oggi 2027-02-29 "$work/senza"
expect_refused "two folders" "Si può indicare una sola CARTELLA." "$launcher" a b
expect_refused "no home" "La cartella personale non è nota (HOME)" env -u HOME "$launcher"
expect_refused "a home with a dot" "Zelvia non può stare in «$work/anna.rossi/Zelvia»: nel percorso c'è un punto" \
  env HOME="$work/anna.rossi" "$launcher"
expect_refused "a folder with a dot" "Zelvia non può stare in «$work/a.b»: nel percorso c'è un punto" "$launcher" "$work/a.b"
expect_refused "no folder" "Zelvia non può stare in «»: il nome della cartella è vuoto." "$launcher" ""
expect_refused "a folder that can't be made" "Zelvia non può stare in «/proc/sys/zelvia»: la cartella non si può creare" \
  "$launcher" /proc/sys/zelvia
expect "what refusals leave" "$(ls -d "$work"/a.b "$work"/anna.rossi "$work/senza" "$diary" 2>/dev/null)" ""
run "$launcher" --help
expect "help" "$status|${output%%$'\n'*}|$errors" "0|Uso: zelvia [--oggi AAAA-MM-GG] [--diario NOME] [CARTELLA]|"
run "$launcher" "$work/senza" --help
expect "help behind a folder" "$status|${output%%$'\n'*}|$(ls -d "$work/senza" 2>/dev/null)" \
  "0|Uso: zelvia [--oggi AAAA-MM-GG] [--diario NOME] [CARTELLA]|"
run "$launcher" --informazioni
expect "information" "$status|${output%% *}|$(grep ^Cartella <<<"$output")|$errors" "0|Zelvia|Cartella del programma: ~/Zelvia|"
expect "what information leaves" "$(ls -d "$diary" 2>/dev/null)" ""
# On a terminal the text is enough.
run script -qec "'$launcher' '$work/a.b'" /dev/null
expect "on a terminal" "$status ${output%%:*}" "2 Zelvia non può stare in «$work/a.b»"
run env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$launcher" "$work/senza"
expect "no screen" "$status|$errors" "2|Zelvia ha bisogno di uno schermo."

# The first start, twice at once: one program, one folder.
command=("$launcher")
start
first=$program
start
await page_up
either_ended() { ended "$first" || ended "$program"; }
await either_ended || expect "the second of two starts" running ended
ended "$first" && survivor=$program || survivor=$first
status=0
wait "$([ "$survivor" = "$first" ] && echo "$program" || echo "$first")" || status=$?
expect "the second of two starts: exit status" "$status" 0
program=$survivor
expect "the start folder" "$(find "$diary" -maxdepth 1 -printf '%P|' | tr '|' '\n' | LC_ALL=C sort | tr '\n' '|')" \
  "|.zelvia.lock|ZelviaFile|nomeload|prova|"
expect "nomeload" "$(od -An -c "$diary/nomeload" | tr -d ' \n')" '""\r\n'
runs_installed "$program" || expect "the program that runs" "$(readlink "/proc/$program/exe")" "the package's"
expect "copies of nothing" "$(kept_names)" ""
expect_page_and_close "the first start"
await copies_are 1 || expect "a copy at the end" "$(kept_names)" one

# A folder laid by a package that copied itself there keeps working, with the program that is installed; a copy of the
# data is kept. The guide and the pointer that are there are taken.
printf '"%s\\ZelviaFile\\2026.zlv"' "${diary//\//\\}" >"$diary/nomeload"
cp "$source_folder/share/demo/ZelviaFile/prova.zlv" "$diary/ZelviaFile/2026.zlv"
cp -r "$source_folder/share/demo/prova" "$diary/2026"
chmod 400 "$diary/2026/Modo.lsx"
mkdir "$diary/foto"
touch "$diary/foto/a.jpg"
touch -d 2001-02-03 "$diary/ZelviaFile/2026.zlv"
printf '#!/bin/sh\nexit 7\n' >"$diary/zelvia"
chmod 755 "$diary/zelvia"
cp "$work"/usr/share/zelvia/{Guida.hlp,mano.cur} "$diary"
before=$(data_of "$diary")
start
await page_up || expect "a former package's folder: the page" "not up" up
runs_installed "$program" || expect "a former package's folder: the program" "$(readlink "/proc/$program/exe")" "the package's"
expect "the data in it" "$(data_of "$diary")" "$before"
expect_page_and_close "a former package's folder"
expect "a copy before the start" "$(kept_names | grep -c '^000001_[-0-9_]*|000002_[-0-9_]*|$')" 1
run "$copies" confronta 2
expect "the copy" "$(tail -n 1 <<<"$output")" "nessuna differenza."
rm "$diary"/{zelvia,Guida.hlp,mano.cur}

# Nothing has changed: no file is written, no copy made.
before=$(kept_names)$(data_of "$diary")
start
expect_page_and_close "one start more"
expect "one start more: files" "$(kept_names)$(data_of "$diary")" "$before"

# While the diary is open a second start ends by itself, and copies nothing.
start
first=$program
await page_up
echo >>"$diary/prova/nometab"
run "$launcher"
expect "a second start" "$status|$output" "0|"
copies_are 2 || expect "no copy of an open diary" "$(kept_names)" two
program=$first
expect_page_and_close "the first of two"
await copies_are 3 || expect "a copy of what changed meanwhile" "$(kept_names)" three
# A crash is an end, too.
start
await page_up
echo >>"$diary/prova/nometab"
kill -9 "$program"
wait "$program" 2>/dev/null || true
await copies_are 4 || expect "a copy after a crash" "$(kept_names)" four

# Diaries that were brought without the pointer are opened; a pointer that leads nowhere stays.
rm "$diary/nomeload"
start
expect_page_and_close "no pointer"
expect "a pointer laid" "$(od -An -c "$diary/nomeload" | tr -d ' \n')" '""\r\n'
rm "$diary/nomeload"
ln -s manca "$diary/nomeload"
QT_QPA_PLATFORM=offscreen timeout 5 "$launcher" >"$work/program.log" 2>&1 </dev/null || true
expect "a dangling pointer" "$(readlink "$diary/nomeload")" manca
rm "$diary/nomeload"

# Another folder, given by a relative path.
cd "$work"
command=("$launcher" "altra cartella/Più corsa" --oggi 2028-02-29)
start
expect_page_and_close "another folder"
expect "another folder" "$(ls -A "$work/altra cartella/Più corsa" | tr '\n' '|')" ".zelvia.lock|ZelviaFile|nomeload|prova|"
mkdir "$work/-trattino"
command=("$launcher" -- -trattino)
start
expect_page_and_close "a folder that looks like an option"
expect "a folder that looks like an option" "$(ls "$work/-trattino" | tr '\n' '|')" "ZelviaFile|nomeload|prova|"

# A failing copy is reported, and the diary still opens.
touch "$work/occupata"
export XDG_STATE_HOME=$work/occupata
start
await notice_up || expect "a failed copy: a window" none one
page_up && expect "a failed copy: the page before the answer" up "not up"
wmctrl -i -c "$notice"
await notice_down
await page_up
expect "a failed copy: text" "$(grep -A1 -c '^La copia di sicurezza del diario non è riuscita; il diario si apre lo stesso.$' "$work/program.log")" 1
expect_page_and_close "a failed copy"
verdict
