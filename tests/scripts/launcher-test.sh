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

# An ordinary user's own: a window's text can't be read from outside, so what is in it is told by a terminal, too.
notice_up() { notice=$(xdotool search --onlyvisible --classname '^zelvia-avviso$' 2>/dev/null); }
notice_down() { ! notice_up; }
# Name, kind, time and bytes of all that is the user's.
data_of() {
  (cd "$1" && find . -mindepth 1 ! -path ./zelvia ! -path ./Guida.hlp ! -path ./mano.cur ! -name .zelvia.lock \
    -printf '%P %y %m ' \( -type f -printf '%T@ ' -exec sha256sum {} \; -o -printf '\n' \) | LC_ALL=C sort)
}
program_files() { for file in zelvia Guida.hlp mano.cur; do
  stat -c '%n %a %s' "$1/$file"
done; }
# expect_laid WHAT FOLDER: the three files of the program are the package's.
expect_laid() {
  cmp "$work/usr/libexec/zelvia/zelvia" "$2/zelvia" || expect "$1: zelvia" different same
  [ -x "$2/zelvia" ] || expect "$1: zelvia" "can't run" runs
  cmp "$work/usr/share/zelvia/Guida.hlp" "$2/Guida.hlp" || expect "$1: Guida.hlp" different same
  cmp "$work/usr/share/zelvia/mano.cur" "$2/mano.cur" || expect "$1: mano.cur" different same
  expect "$1: leftovers" "$(find "$2" -name '.zelvia-nuovo*' -o -name 'zelvia-prova*')" ""
}

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
expect_refused "two folders" "Si può indicare una sola CARTELLA." "$launcher" a b
expect_refused "no home" "La cartella personale non è nota (HOME)" env -u HOME "$launcher"
expect_refused "a home with a dot" "Zelvia non può stare in «$work/anna.rossi/Zelvia»: nel percorso c'è un punto" \
  env HOME="$work/anna.rossi" "$launcher"
expect_refused "a folder with a dot" "Zelvia non può stare in «$work/a.b»: nel percorso c'è un punto" "$launcher" "$work/a.b"
expect_refused "no folder" "Zelvia non può stare in «»: il nome della cartella è vuoto." "$launcher" ""
expect_refused "a folder that can't be made" "Zelvia non può stare in «/proc/sys/zelvia»: la cartella non si può creare" \
  "$launcher" /proc/sys/zelvia
expect "what refusals leave" "$(ls -d "$work"/a.b "$work"/anna.rossi "$diary" 2>/dev/null)" ""
run "$launcher" --help
expect "help" "$status ${output%%$'\n'*}" "0 Uso: zelvia [CARTELLA]"
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
  "|.zelvia.lock|Guida.hlp|ZelviaFile|mano.cur|nomeload|prova|zelvia|"
expect "nomeload" "$(od -An -c "$diary/nomeload" | tr -d ' \n')" '""\r\n'
expect_laid "the first start" "$diary"
expect_page_and_close "the first start"
expect "copies of nothing" "$(kept_names)" ""

# A later start of a newer package: program and guide are renewed, the data stay, a copy of them is kept.
printf '"%s\\ZelviaFile\\2026.zlv"' "${diary//\//\\}" >"$diary/nomeload"
cp "$source_folder/share/demo/ZelviaFile/prova.zlv" "$diary/ZelviaFile/2026.zlv"
cp -r "$source_folder/share/demo/prova" "$diary/2026"
chmod 400 "$diary/2026/Modo.lsx"
mkdir "$diary/foto"
touch "$diary/foto/a.jpg"
touch -d 2001-02-03 "$diary/ZelviaFile/2026.zlv"
before=$(data_of "$diary")
echo nuova >>"$work/usr/share/zelvia/Guida.hlp"
echo nuovo >>"$work/usr/share/zelvia/mano.cur"
printf nuovo >>"$work/usr/libexec/zelvia/zelvia"
touch "$diary/.zelvia-nuovo-abcdef"
start
await page_up || expect "an upgrade: the page" "not up" up
expect_laid "an upgrade" "$diary"
expect "the data after an upgrade" "$(data_of "$diary")" "$before"
expect_page_and_close "an upgrade"
expect "a copy before the start" "$(kept_names | grep -c '^000001_[-0-9_]*|$')" 1
run "$copies" confronta 1
expect "the copy" "$(tail -n 1 <<<"$output")" "nessuna differenza."

# Nothing has changed: no file is written anew, no copy made.
before=$(kept_names)$(program_files "$diary"; stat -c %Y.%i "$diary"/zelvia "$diary"/Guida.hlp "$diary"/nomeload)
start
expect_page_and_close "one start more"
expect "one start more: files" "$(kept_names)$(program_files "$diary"; stat -c %Y.%i "$diary"/zelvia "$diary"/Guida.hlp "$diary"/nomeload)" "$before"

# While the diary is open a second start ends by itself, and copies nothing.
start
first=$program
await page_up
echo >>"$diary/prova/nometab"
run "$launcher"
expect "a second start" "$status|$output" "0|"
expect "no copy of an open diary" "$(kept_names)" "$(head -n 1 <<<"$before" | cut -d'|' -f1)|"
program=$first
expect_page_and_close "the first of two"

# A program that was spoilt, or lost its right to run, is mended; a link is replaced, not what it leads to.
chmod 644 "$diary/zelvia"
rm "$diary/Guida.hlp"
echo altrui >"$work/altrui"
ln -sf "$work/altrui" "$diary/mano.cur"
rm "$diary/nomeload"
ln -s manca "$diary/nomeload"
QT_QPA_PLATFORM=offscreen timeout 5 "$launcher" >"$work/program.log" 2>&1 </dev/null || true
expect_laid "a mended folder" "$diary"
expect "what a link led to" "$(<"$work/altrui")" altrui
expect "a dangling nomeload" "$(readlink "$diary/nomeload")" manca
rm "$diary/nomeload"

# Another folder, given by a relative path.
cd "$work"
command=("$launcher" "altra cartella/Più corsa")
start
await page_up || expect "another folder: the page" "not up" up
expect_laid "another folder" "$work/altra cartella/Più corsa"
expect_page_and_close "another folder"

# A copy that fails is told, and the diary opens all the same.
export XDG_STATE_HOME=$work/altrui
start
await notice_up || expect "a failed copy: a window" none one
page_up && expect "a failed copy: the page before the answer" up "not up"
wmctrl -i -c "$notice"
await notice_down
await page_up
expect "a failed copy: text" "$(grep -A1 -c '^La copia di sicurezza del diario non è riuscita; il diario si apre lo stesso.$' "$work/program.log")" 1
expect_page_and_close "a failed copy"
verdict
