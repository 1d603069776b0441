#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# zelvia-copie as a runner uses it: copies-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/copies.sh"
. "$source_folder/packaging/sample-year.sh"

# at DATE COMMAND...: with the machine's clock at a date.
at() { faketime -f "@$1" "${@:2}"; }
# set_line SLOT LINE VALUE: of the diary.
set_line() {
  sed -i "$((($1 - 1) * 136 + $2))s/.*/$3\r/" "$diary/ZelviaFile/prova.zlv"
}

# The command line: what is wrong with it, then the message.
rows=(
  "" "Manca il COMANDO."
  "mostra" "Comando sconosciuto: mostra"
  "--prova elenco" "Opzione sconosciuta: --prova"
  "--cartella" "Dopo --cartella manca la CARTELLA."
  "confronta" "Per «confronta» manca qualcosa."
  "confronta 1 2" "Per «confronta» «2» è di troppo."
  "confronta uno" "«uno» non è il numero di una copia."
  "confronta 1x" "«1x» non è il numero di una copia."
  "rimetti 1" "Per «rimetti» manca qualcosa."
)
for ((i = 0; i < ${#rows[@]}; i += 2)); do
  # shellcheck disable=SC2086
  run "$copies" ${rows[i]}
  expect "«${rows[i]}»" "$status|$output|${errors%%$'\n'*}" "2||${rows[i + 1]}"
done
run "$copies" --help
expect "help" "$status ${output%%$'\n'*}" "0 Uso: zelvia-copie [--cartella CARTELLA] COMANDO"
run env -u HOME "$copies" elenco
expect "no home" "$status|$errors" "1|zelvia-copie: la cartella personale non è nota (HOME)"
run "$copies" elenco
expect "no copies" "$status|$output|$errors" "0|Non ci sono copie.|"
run "$copies" confronta 1
expect "no such copy" "$status|$errors" \
  "1|zelvia-copie: la copia 1 non c'è; «zelvia-copie elenco» mostra quelle che ci sono"

# Taking copies; the clock is then set back by years.
printf '""\r\n' >"$diary/nomeload"
run "$copies" crea
expect "nothing to copy" "$status|$output" "0|In «$diary» non c'è niente da copiare."
lay_sample_year "$diary"
run at "2026-11-21 14:05:33" "$copies" crea
expect "the first copy" "$status|$output|$errors" "0|Copia fatta.|"
run at "2026-11-21 15:00:00" "$copies" crea
expect "no change" "$status|$output|$errors" "0|Niente è cambiato dall'ultima copia.|"
cp -a "$diary" "$work/first"
set_line 62 3 '"Lungofiume"'
set_line 62 5 12
set_line 366 129 '"San Silvestro, 10 km"'
rm "$diary/prova/Tipo.lsx"
echo x >>"$diary/prova/Modo.lsx"
echo x >"$diary/prova/nuova.tab"
run at "2001-01-01 00:00:00" "$copies" crea
expect "a copy with the clock set back" "$status|$output|$errors" "0|Copia fatta.|"
run at "2001-01-01 00:00:00" "$copies" crea
expect "no change with the clock set back" "$status|$output" "0|Niente è cambiato dall'ultima copia."
expect "what is kept" "$(kept_names)" "000001_2026-11-21_14-05-33|000002_2001-01-01_00-00-00|"
expect_same "the first copy's files" "$kept/000001_2026-11-21_14-05-33" "$work/first"
expect_same "the second copy's files" "$kept/000002_2001-01-01_00-00-00" "$diary"
run "$copies" elenco
expect "the list" "$output" "    1  21/11/2026  14:05  $diary (1 diario)
    2  01/01/2001  00:00  $diary (1 diario)"
run "$copies" --cartella "$work" elenco
expect "the list of another folder" "$output" "Non ci sono copie."
mkdir "$work/altra" "$work/altra/prova"
touch "$work/altra/prova/nometab"
run at "2026-11-22 00:00:00" "$copies" --cartella "$work/altra/" crea
run "$copies" --cartella "$work/prova/../altra" elenco
expect "copies of another folder" "$output" "    3  22/11/2026  00:00  $work/altra (0 diari)"

# Comparing.
was=$(sed -n $((61 * 136 + 3))p "$work/first/ZelviaFile/prova.zlv" | iconv -f WINDOWS-1252 | tr -d '"\r')
km=$(sed -n $((61 * 136 + 5))p "$work/first/ZelviaFile/prova.zlv" | tr -d '\r')
[ "$was" ] && was="«$was»" || was=niente
[ "$km" != 0 ] && km="«$km»" || km=niente
run "$copies" confronta 1
expect "a comparison" "$status|$output|$errors" "0|Copia 1 del 21/11/2026, ore 14:05, e «$diary» adesso:
ZelviaFile/prova.zlv: 2 giorni diversi
  martedì 3 marzo 2026
    Percorso: nella copia $was, adesso «Lungofiume»
    Km: nella copia $km, adesso «12»
  venerdì 1 gennaio 2027
    Note, riga 1: nella copia niente, adesso «San Silvestro, 10 km»
prova/Modo.lsx: diverso
prova/Tipo.lsx: c'è soltanto nella copia
prova/nuova.tab: c'è soltanto adesso|"
run "$copies" confronta 2
expect "no difference" "$output" "Copia 2 del 01/01/2001, ore 00:00, e «$diary» adesso:
nessuna differenza."
run "$copies" --cartella "$work/first" confronta 1
expect "another folder compared" "$output" "Copia 1 del 21/11/2026, ore 14:05, e «$work/first» adesso:
nessuna differenza."
head -n $((199 * 136 + 7)) "$kept/000002_2001-01-01_00-00-00/ZelviaFile/prova.zlv" >"$diary/ZelviaFile/prova.zlv"
run "$copies" confronta 2
expect "a diary cut short" "$(sed -n 3p <<<"$output")" "  Adesso il diario è incompleto: 199 giorni su 366."
rm "$diary/ZelviaFile/prova.zlv"
run "$copies" confronta 2
expect "a missing diary" "$(sed -n 3p <<<"$output")" "  Adesso il diario non c'è."

# Restoring: never over what is there, never where the program can't run.
run "$copies" rimetti 1 "$diary"
expect "over the diary" "$status|$output|$errors" \
  "1||zelvia-copie: «$diary» non è una cartella vuota: una copia si rimette soltanto in una cartella nuova o vuota"
run "$copies" rimetti 1 "$work/con.punto/Zelvia"
expect "into a folder with a dot" "$status|$output|${errors%%:*}" "2||Zelvia non può stare in «$work/con.punto/Zelvia»"
run "$copies" rimetti 1 ""
expect "into no folder" "$status|${errors%%$'\n'*}" "2|Il nome della cartella NUOVA è vuoto."
expect "what a refusal leaves" "$(ls -A "$work" | grep -c 'punto')" 0
printf '"%s\\prova\\Base 10 km.tab"\r\n' "${work//\//\\}\\first" >"$work/first/prova/nometab"
run "$copies" --cartella "$work/first" crea
cd "$work"
run "$copies" rimetti 4 rimessa/Zelvia/
expect "put back" "$status|$output|$errors" \
  "0|La copia 4 è in «$work/rimessa/Zelvia». Si apre con il comando «zelvia» seguito dal nome di questa cartella.|"
expect "the table's pointer" "$(tr -d '\r' <"$work/rimessa/Zelvia/prova/nometab")" \
  "\"${work//\//\\}\\rimessa\\Zelvia\\prova\\Base 10 km.tab\""
cp "$work/first/prova/nometab" "$work/rimessa/Zelvia/prova/nometab"
expect_same "the files put back" "$work/rimessa/Zelvia" "$work/first"
printf '"\\altrove\\ZelviaFile\\a.zlv"\r\n' >"$work/first/nomeload"
run "$copies" --cartella "$work/first" crea
run "$copies" rimetti 5 "$work/quinta"
expect "a pointer that leads elsewhere" "$status|$(tail -n 1 <<<"$output")" \
  "0|Attenzione: «nomeload» indica un file di un'altra cartella."

# An open diary is not copied.
exec 8>"$work/first/.zelvia.lock"
flock 8
run "$copies" --cartella "$work/first" crea
expect "an open diary" "$status|$output" "0|Il diario è aperto: la copia si fa quando è chiuso."
exec 8>&-

# Several starts at once make one copy.
echo y >>"$work/first/prova/Modo.lsx"
before=$(kept_names)
at_once=()
for i in 1 2 3 4 5 6; do
  "$copies" --cartella "$work/first" crea >"$work/once-$i" 2>&1 &
  at_once+=($!)
done
for process in "${at_once[@]}"; do
  status=0
  wait "$process" || status=$?
  expect "one of several: exit status" "$status" 0
done
expect "several at once" "$(sort "$work"/once-* | uniq -c | sed 's/^ *//')" "1 Copia fatta.
5 Niente è cambiato dall'ultima copia."
expect "copies of several at once" "$(($(kept_names | tr '|' '\n' | wc -l) - $(tr '|' '\n' <<<"$before" | grep -c .)))" 1
verdict
