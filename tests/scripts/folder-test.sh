#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Which folders start.sh refuses, how it says so, and that it leaves nothing behind.
. "$(dirname "$0")/check.sh"
. "$source_folder/packaging/folder-check.sh"

mkdir "$work/con.punto" "$work/vuota"
touch "$work/un file"
ln -s con.punto "$work/collegata"
ln -s vuota "$work/alla.vuota"
ln -s circolo-b "$work/circolo-a"
ln -s circolo-a "$work/circolo-b"
cd "$work"

# The folder, then a piece of the reason.
refused=(
  "/" "è la radice del disco"
  "//" "è la radice del disco"
  "/tmp/.." "è la radice del disco"
  "" "il nome della cartella è vuoto"
  "$work/Zelvia.2" "c'è un punto"
  "$work/con.punto/Zelvia" "c'è un punto"
  "con.punto/Zelvia" "c'è un punto"
  "collegata" "c'è un punto"
  "collegata/Zelvia" "c'è un punto"
  "$work/ZelviaFile" "«ZelviaFile»"
  "$work/VecchiaZelviaFile2/Zelvia" "«ZelviaFile»"
  "$work/barra\\rovesciata" "barra rovesciata"
  "$work/detta \"Zelvia\"" "virgolette"
  "$work/due
righe" "carattere di controllo"
  "$work/corsa→" "Windows-1252"
  "$work/Бег" "Windows-1252"
  "$work/"$'\xff' "Windows-1252"
  "$work/un file" "non è una cartella"
  "$work/un file/Zelvia" "non è una cartella"
  "circolo-a" "girano in tondo"
  "/proc/sys/zelvia" "la cartella non si può creare"
)
before=$(find "$work" | sort)
for ((i = 0; i < ${#refused[@]}; i += 2)); do
  run "$source_folder/start.sh" -- "${refused[i]}"
  expect "«${refused[i]}»: exit status" "$status" 2
  expect "«${refused[i]}»: output" "$output" ""
  case $errors in
    "Zelvia non può stare in «"*"»: "*"${refused[i + 1]}"*) ;;
    *) expect "«${refused[i]}»: reason" "$errors" "${refused[i + 1]}" ;;
  esac
done
touch "$work/errors"
expect "a refusal leaves nothing behind" "$(find "$work" | grep -vx "$work/errors" | sort)" "$before"

# The folder, then the path that it means.
accepted=(
  "$work/Zelvia" "$work/Zelvia"
  "Zelvia" "$work/Zelvia"
  "vuota/../Zelvia/" "$work/Zelvia"
  "alla.vuota/Zelvia" "$work/vuota/Zelvia"
  "$work/Più corsa €" "$work/Più corsa €"
  "-trattino" "$work/-trattino"
  "$work/zelviafile" "$work/zelviafile"
)
for ((i = 0; i < ${#accepted[@]}; i += 2)); do
  for locale in C C.UTF-8; do
    LC_ALL=$locale run folder_check "${accepted[i]}"
    expect "«${accepted[i]}»: exit status" "$status$errors" 0
    LC_ALL=$locale folder_check "${accepted[i]}"
    expect "«${accepted[i]}»: path" "$folder_path" "${accepted[i + 1]}"
  done
done
expect "a check makes nothing" "$(find "$work" | grep -vx "$work/errors" | sort)" "$before"

folder_make "$work/nuova/Zelvia"
expect "a folder that is made is empty" "$(find "$work/nuova")" "$work/nuova"$'\n'"$work/nuova/Zelvia"

# The sample year goes to no folder of a runner's own, and to none by a link. What is in it stays as it is.
. "$source_folder/packaging/sample-year.sh"
mkdir -p "$work/diario/ZelviaFile" "$work/diario/prova" "$work/nascosto" "$work/falso" "$work/segno/.zelvia-demo"
echo mio >"$work/diario/ZelviaFile/prova.zlv"
touch "$work/nascosto/.mio"
ln -s ../un\ file "$work/falso/.zelvia-demo"
ln -s vuota "$work/alla vuota"
ln -s manca "$work/nel vuoto"
before=$(find "$work" | sort)
refused=(
  "$work/diario" "non è vuota e non è di un diario di prova"
  "diario/" "non è vuota e non è di un diario di prova"
  "$work/nascosto" "non è vuota e non è di un diario di prova"
  "$work/falso" "non è vuota e non è di un diario di prova"
  "$work/segno" "non è vuota e non è di un diario di prova"
  "$work/alla vuota" "è un collegamento"
  "alla vuota" "è un collegamento"
  "alla vuota//" "è un collegamento"
  "$work/nel vuoto" "è un collegamento"
  "$work/circolo-a" "è un collegamento"
)
[ "$(id -u)" -ne 0 ] || { mkdir "$work/altrui" && chown 65534 "$work/altrui" &&
  before=$(find "$work" | sort) && refused+=("$work/altrui" "è di un altro utente"); }
for ((i = 0; i < ${#refused[@]}; i += 2)); do
  run "$source_folder/start.sh" --demo -- "${refused[i]}"
  expect "demo in «${refused[i]}»: exit status" "$status" 2
  expect "demo in «${refused[i]}»: output" "$output" ""
  expect "demo in «${refused[i]}»: reason" "${errors%%.*}" \
    "Il diario di prova non può stare in «${refused[i]}»: la cartella ${refused[i + 1]}"
done
expect "a refused demo leaves nothing behind" "$(find "$work" | sort)" "$before"
expect "a diary there" "$(<"$work/diario/ZelviaFile/prova.zlv")" mio

# Its own folder it takes again and again, whatever is in it by then.
for folder in "$work/vuota" "$work/nuova/Zelvia" "vuota/"; do
  run demo_claim "$folder"
  expect "demo in «$folder»" "$status$errors" 0
  touch "$folder/nomeload"
  run demo_claim "$folder"
  expect "demo in «$folder» again" "$status$errors" 0
done
run demo_check "$work/manca"
expect "demo in a new folder" "$status$errors" 0
expect "a check makes nothing" "$(ls -d "$work/manca" 2>/dev/null)" ""

# The options, then the exit status and the first words.
run "$source_folder/start.sh" --prova
expect "an unknown option" "$status ${errors%%$'\n'*}" "2 Opzione sconosciuta: --prova"
run "$source_folder/start.sh" "$work/a" "$work/b"
expect "two folders" "$status ${errors%%$'\n'*}" "2 Si può indicare una sola CARTELLA."
run env -u HOME "$source_folder/start.sh"
expect "no home" "$status ${errors%%$'\n'*}" "2 La cartella personale non è nota (HOME): indicare una CARTELLA."
run env HOME="$work/con.punto" "$source_folder/start.sh"
expect "a home with a dot" "$status ${errors%%:*}" "2 Zelvia non può stare in «$work/con.punto/Zelvia»"
run "$source_folder/start.sh" --help
expect "help" "$status ${output%%$'\n'*}" "0 Uso: ./start.sh [--demo] [CARTELLA]"
verdict
