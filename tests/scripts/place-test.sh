#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The program wherever it lies, on its own command line: place-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/copies.sh"
. "$source_folder/tests/scripts/program.sh"
installed=$work/usr/libexec/zelvia/zelvia
rm -rf "$diary"

# A command line that can't be followed: the words, then the first line. Nothing is made, and no screen is needed.
usage="Uso: zelvia [--oggi AAAA-MM-GG] [--diario NOME] [CARTELLA]"
refused=(
  "--prova" "Opzione sconosciuta: --prova"
  "$work/a $work/b" "Si può indicare una sola CARTELLA."
  "--oggi" "Dopo --oggi ci vuole un giorno, AAAA-MM-GG: «» non lo è."
  "--oggi 2027-02-29 $work/a" "Dopo --oggi ci vuole un giorno, AAAA-MM-GG: «2027-02-29» non lo è."
  "--oggi 29/02/2028 $work/a" "Dopo --oggi ci vuole un giorno, AAAA-MM-GG: «29/02/2028» non lo è."
)
for ((i = 0; i < ${#refused[@]}; i += 2)); do
  # shellcheck disable=SC2086
  run env -u DISPLAY -u QT_QPA_PLATFORM "$installed" ${refused[i]}
  expect "«${refused[i]}»" "$status|$output|$(sed -n '1p;2p' <<<"$errors")" "2||${refused[i + 1]}"$'\n'"$usage"
done
run env -u DISPLAY -u QT_QPA_PLATFORM "$installed" -platform offscreen -x
expect "Qt's own options are taken out" "$status|$output|$(grep ^Opzione <<<"$errors")" "2||Opzione sconosciuta: -x"
run env -u DISPLAY -u QT_QPA_PLATFORM "$installed" --help
expect "help" "$status|${output%%$'\n'*}|$errors" "0|$usage|"
version=$(sed -n 's/^project(Zelvia VERSION \([0-9.]*\).*/\1/p' "$source_folder/CMakeLists.txt")
run env -u DISPLAY -u QT_QPA_PLATFORM -u XDG_STATE_HOME HOME="$work" "$installed" --informazioni
expect "information: the status" "$status|$errors" "0|"
expect "information: the version" "${output%%$'\n'*}" "Zelvia $version"
expect "information: the toolkit" "$(grep -cE '^Qt 6\.[0-9.]+ \(compilato con 6\.[0-9.]+\)$' <<<"$output")" 1
expect "information: the folders" "$(grep -E '^(Cartella|File|Stato)' <<<"$output")" "Cartella del programma: ~/Zelvia
File installati: ~/usr/share/zelvia/Guida.hlp
Stato: ~/.local/state/zelvia"
for home in /home/anna /home/anna/; do
  for place in "/media/anna/chiave|/media/UTENTE/chiave" "/home/anna/Corse|~/Corse" "/home/annamaria/Zelvia|/home/annamaria/Zelvia"; do
    run env HOME="$home" "$installed" --informazioni "${place%|*}"
    expect "information: ${place%|*}" "$(grep ^Cartella <<<"$output")" "Cartella del programma: ${place#*|}"
  done
done
run env -u HOME "$installed"
expect "no home" "$status|$output|${errors%%$'\n'*}" \
  "2||La cartella personale non è nota (HOME): indicare una CARTELLA."
expect "what refusals leave" "$(ls -d "$diary" "$work/a" "$work/b" 2>/dev/null)" ""

# A folder of its own in the home, laid at the first start and left alone at the next.
command=("$installed")
start
expect_page_and_close "the first start"
expect "the folder in the home" "$(ls -A "$diary" | tr '\n' '|')" ".zelvia.lock|ZelviaFile|nomeload|prova|"
expect "nomeload" "$(od -An -c "$diary/nomeload" | tr -d ' \n')" '""\r\n'
printf '"%s\\ZelviaFile\\2027.zlv"\r\n' "${diary//\//\\}" >"$diary/nomeload"
cp "$source_folder/share/demo/ZelviaFile/prova.zlv" "$diary/ZelviaFile/2027.zlv"
before=$(cd "$diary" && sha256sum nomeload ZelviaFile/*)
start
expect_page_and_close "the second start"
expect "the files" "$(cd "$diary" && sha256sum nomeload ZelviaFile/*)" "$before"
expect "the diary that was opened" "$(ls -d "$diary/2027")" "$diary/2027"

# The folder given comes before the program's own.
cd "$work"
command=("$work/diario/zelvia" "altra cartella/Più corsa")
start
expect_page_and_close "a folder given"
expect "a folder given" "$(ls -A "$work/altra cartella/Più corsa" | tr '\n' '|')" ".zelvia.lock|ZelviaFile|nomeload|prova|"
expect "the program's own folder" "$(ls -A "$work/diario" | tr '\n' '|')" "Guida.hlp|ZelviaFile|mano.cur|nomeload|zelvia|"

# Without one its own folder is taken, and there is one program a folder whatever executable is started.
command=("$work/diario/zelvia")
start
first=$program
await page_up
expect "its own folder" "$(ls -A "$work/diario" | tr '\n' '|')" ".zelvia.lock|Guida.hlp|ZelviaFile|mano.cur|nomeload|prova|zelvia|"
run timeout 5 "$installed" "$work/diario"
expect "another executable on the same folder" "$status|$output" "0|"
program=$first
expect_page_and_close "the first program"

# The guide of the installation opens when the folder has none.
guide_up() { xdotool search --onlyvisible --name '^Guida di Zelvia$' >"$work/guide"; }
command=("$installed")
start
await page_up || expect "the page" "not up" "up"
xdotool windowactivate --sync "$page" key F1
await guide_up || expect "the guide on F1" "not up" "up"
expect_page_and_close "the guide of the installation"

# The day given is today as with the system's clock: the two pages are alike to the pixel, on 29 February too.
export FAKETIME_DONT_FAKE_MONOTONIC=1 DONT_FAKE_MONOTONIC=1 NO_FAKE_STAT=1
picture() {
  "${@:2}" >"$work/picture.log" 2>&1 || cat "$work/picture.log" >&2
  page_of[$1]=$(identify -format '%#' "$work/$1.png")
}
declare -A page_of
take=$source_folder/packaging/page-picture.sh
for day in 2028-02-29 2027-03-01; do
  picture "$day" "$take" "$work/diario" "$work/$day.png" --oggi "$day"
  picture "clock-$day" faketime -f "@$day 12:00:00" "$take" "$work/diario" "$work/clock-$day.png"
  expect "the page of $day" "${page_of[$day]}" "${page_of[clock-$day]}"
done
[ "${page_of[2028-02-29]}" != "${page_of[2027-03-01]}" ] || expect "the pages of two days" alike different
verdict
