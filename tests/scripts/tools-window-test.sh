#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The window of the tools, as built and as installed, and the older diary that it opens: tools-window-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/copies.sh"
. "$source_folder/tests/scripts/program.sh"
cp -r "$source_folder"/share/demo/. "$diary"
printf '""\r\n' >"$diary/nomeload"
installed=$work/usr/bin/zelvia-strumenti
export LANGUAGE=it

run env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$installed"
expect "no screen" "$status|$output|$errors" \
  "2||La finestra degli strumenti ha bisogno di uno schermo. Senza, indicare un'AZIONE: «zelvia-strumenti --help» le mostra."
run "$installed" --tsv
expect "an option of an action" "$status|$output|${errors%%$'\n'*}" "2||Manca l'AZIONE."
run "$installed" --cartella
expect "no folder" "$status|$output|${errors%%$'\n'*}" "2||Dopo --cartella manca la CARTELLA."

# window_up TITLE: sets `window` to the visible window whose title begins so.
window_up() { window=$(xdotool search --onlyvisible --name "^$1" 2>/dev/null | tail -n 1) && [ -n "$window" ]; }
active() { [ "$(xdotool getactivewindow 2>/dev/null)" = "$window" ]; }
expect_closed() {
  wmctrl -i -c "$window"
  await ended "$program" || expect "$1: the program" running ended
  status=0
  wait "$program" || status=$?
  expect "$1: exit status" "$status" 0
}

for tools in "$build/src/zelvia-strumenti" "$installed"; do
  command=("$tools" --cartella "$diary")
  start
  await window_up "Strumenti di Zelvia" || expect "$tools: the window" "not up" up
  case $(readlink "/proc/$program/exe") in
    "$build/src/zelvia-finestra" | "$work/usr/libexec/zelvia/zelvia-finestra") ;;
    *) expect "$tools: its program" "$(readlink "/proc/$program/exe")" zelvia-finestra ;;
  esac
  # The window keeps no lock while it is only open.
  run "$installed" anni --tsv
  expect "$tools: an action beside it" "$status|$errors" "0|"
  expect_closed "$tools"
done

# The end of the session closes it too, a dialog in front of it first.
choosing() { xdotool search --onlyvisible --name '^Scegliere la cartella di Zelvia$' >/dev/null 2>&1; }
for signal in TERM HUP; do
  start
  await window_up "Strumenti di Zelvia"
  await active
  xdotool key alt+c
  await choosing || expect "$signal: a dialog" none one
  kill "-$signal" "$program"
  await ended "$program" || expect "$signal: the program" running ended
  status=0
  wait "$program" || status=$?
  expect "$signal: exit status" "$status" 0
  expect "$signal: words" "$(grep -v XDG_RUNTIME_DIR "$work/program.log" || true)" ""
done

# A diary of 2024 is opened from the list on the last day of that year, with a copy before it.
run "$installed" anno 2024 --si
expect "a diary of 2024" "$status" 0
printf '""\r\n' >"$diary/nomeload"
command=("$installed" --pagina anni)
start
await window_up "Strumenti di Zelvia"
tools_window=$window
await active
sent=0
opened() {
  window_up 'Zelvia.*2024.*31 dicembre 2024' && return
  # The list may not have been read yet when the key came.
  sent=$((sent + 1))
  [ $((sent % 15)) -ne 1 ] || xdotool windowactivate --sync "$tools_window" key alt+a
  return 1
}
await opened || expect "the diary of 2024" "$(xdotool getwindowname "$(xdotool getactivewindow)")" "Zelvia - 2024"
expect "the start's diary" "$(od -An -c "$diary/nomeload" | tr -d ' \n')" '""\r\n'
expect "a copy before it" "$(($(kept_names | tr '|' '\n' | grep -c '^0') >= 2))" 1
wmctrl -i -c "$window"
gone() { ! window_up 'Zelvia.*2024.*31 dicembre 2024'; }
await gone
window=$tools_window
expect_closed "the tools after it"

run "$work/usr/bin/zelvia" --diario 1999 "$diary"
expect "a diary that is not there" "$status|${errors%%$'\n'*}" "2|Il diario «1999» non c'è."
verdict
