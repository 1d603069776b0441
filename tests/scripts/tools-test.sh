#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Diaries that other programs have damaged are found out and mended: tools-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/packaging/sample-year.sh"
tools=$build/src/zelvia-strumenti
export HOME=$work/casa XDG_STATE_HOME=$work/stato
folder=$HOME/Zelvia
diary=$folder/ZelviaFile/prova.zlv
mkdir -p "$work/good/ZelviaFile" "$HOME"
lay_sample_year "$work/good"
printf '""\r\n' >"$work/good/nomeload"
good=$work/good/ZelviaFile/prova.zlv

lay() {
  rm -rf "$folder" "$XDG_STATE_HOME"
  cp -a "$work/good" "$folder"
}
# kinds [FILE]: what is found in a file of the folder.
kinds() {
  { "$tools" controlla --tsv || true; } | awk -F '\t' -v file="${1:-ZelviaFile/prova.zlv}" '$1 == file { print $5 }' |
    sort -u | tr '\n' ' '
}
# mends WHAT KINDS: the damaged diary is mended to what it was, and the copy has what it had become.
mends() {
  cp "$diary" "$work/damaged"
  expect "$1" "$(kinds)" "$2"
  run "$tools" ripara --si
  expect "$1: exit status" "$status|$errors" "0|"
  cmp -s "$diary" "$good" || expect "$1: the diary" "$(cmp "$diary" "$good" 2>&1)" ""
  cmp -s "$XDG_STATE_HOME"/zelvia/copie/*/ZelviaFile/prova.zlv "$work/damaged" || expect "$1: the copy" other same
}

lay
run "$tools" controlla
expect "the sample year" "$status|$output|$errors" "0|Tutto a posto.|"

for encoding in UTF-8 UTF-16 UTF-16LE; do
  lay
  iconv -f WINDOWS-1252 -t $encoding "$good" >"$diary"
  mends "iconv to $encoding" "encoding "
done
lay
{ printf '\xef\xbb\xbf' && iconv -f WINDOWS-1252 -t UTF-8 "$good" | tr -d '\r'; } >"$diary"
mends "an editor of another system" "encoding line_end "
lay
sed -i 's/\r$//' "$diary"
mends "sed with LF" "line_end "
lay
sed -i 's/$/\r/' "$diary"
mends "ends converted twice" "line_end "

# A repository that turns the ends into its own.
lay
(
  cd "$folder"
  git init -q
  git -c core.autocrlf=input add -A 2>/dev/null
  git -c user.name=a -c user.email=a@example.org commit -qm a
  rm -r ZelviaFile prova
  git -c core.autocrlf=false checkout -q -- .
  rm -rf .git
)
expect "git: a list" "$(kinds prova/Tipo.lsx)" "line_end "
mends "git with autocrlf" "line_end "
diff -r "$folder/prova" "$work/good/prova" >"$work/difference" || expect "git: the folder" "$(<"$work/difference")" ""

# Cut anywhere: what is left stays as it was, and the program's days are all there.
for size in 0 1 100 1000 65536 100000 200001 278000; do
  lay
  truncate -s $size "$diary"
  [ $size -lt "$(stat -c %s "$good")" ] || continue
  expect "cut at $size" "$(kinds)" "missing "
  run "$tools" ripara --si
  expect "cut at $size: exit status" "$status|$errors" "0|"
  expect "cut at $size: lines" "$(wc -l <"$diary")" 49776
  whole=$(head -c $size "$good" | grep -c $'\r$' || true)
  expect "cut at $size: what was left" "$(head -n "$whole" "$diary" | sha256sum)" "$(head -n "$whole" "$good" | sha256sum)"
done
lay
truncate -s +4096 "$diary"
mends "zeros at the end" "extra "

# Bits turned at random: it never crashes, never says that all is well when the program can't read the diary, and what
# it mends for sure it mends for good.
for seed in $(seq 1 40); do
  lay
  zzuf -s "$seed" -r 0.00002 <"$good" >"$diary"
  run "$tools" controlla --tsv
  case $status in
    0) cmp -s "$diary" "$good" || [ "$(wc -l <<<"$output")" = 1 ] || expect "bits $seed" "$status" 1 ;;
    1) [ "$(wc -l <<<"$output")" -gt 1 ] || expect "bits $seed: findings" "$output$errors" "at least one" ;;
    *) expect "bits $seed: exit status" "$status|$errors" "0 or 1" ;;
  esac
  run "$tools" ripara --si --sovrascrivi
  [ "$status" -le 1 ] || expect "bits $seed: exit status of ripara" "$status|$errors" "0 or 1"
  first=$status
  run "$tools" ripara --si --sovrascrivi
  expect "bits $seed: mended again" "$status" "$first"
  [ "$first" = 1 ] || expect "bits $seed: the program reads it" "$("$tools" anni --tsv | wc -l)" 2
done

# However heavily a folder is damaged, what one pass mends is mended: another one finds nothing more to do.
state_of() { (cd "$folder" && find . -type f ! -name .zelvia.lock -exec sha256sum {} + | sort); }
for rate in 0.0002 0.002 0.02; do
  for seed in 1 2 3; do
    lay
    for file in ZelviaFile/prova.zlv prova/CalendarioGare prova/ListePercorso prova/Tipo.lsx; do
      zzuf -s "$seed" -r "$rate" <"$work/good/$file" >"$folder/$file"
    done
    run "$tools" ripara --si --sovrascrivi
    [ "$status" -le 1 ] || expect "heavily $rate $seed: exit status" "$status|$errors" "0 or 1"
    first=$status
    once=$(state_of)
    run "$tools" ripara --si --sovrascrivi
    expect "heavily $rate $seed: mended again" "$status|$(state_of)" "$first|$once"
  done
done

# On a stick that knows no modes and no upper case, until it is full, and then read-only.
. "$source_folder/tests/scripts/disks.sh"
if format exfat 2M && plug exfat; then
  # Hidden entries are nobody's.
  seen() { (cd "$disk/Zelvia" && find . -path './.*' -prune -o -type f -exec sha256sum {} + | sort); }
  cp -r "$work/good" "$disk/Zelvia"
  sed -i 's/\r$//' "$disk/Zelvia/ZelviaFile/prova.zlv"
  run "$tools" --cartella "$disk/Zelvia" ripara --si
  expect "exfat: mended" "$status|$errors" "0|"
  cmp -s "$disk/Zelvia/ZelviaFile/prova.zlv" "$good" || expect "exfat: the diary" other same
  for ((year = 2027; year < 2060; year++)); do
    before=$(seen)
    run "$tools" --cartella "$disk/Zelvia" anno $year --si
    [ "$status" -eq 0 ] || break
  done
  expect "exfat, full: message" "$status|$(grep -c 'Disco pieno' <<<"$errors")|${errors##*$'\n'}" "1|1|Niente è stato cambiato."
  expect "exfat, full: files" "$(seen)" "$before"
  expect "exfat, full: years made" "$((year > 2028))" 1
  unplug
  plug exfat ro
  run "$tools" --cartella "$disk/Zelvia" anni --tsv
  expect "exfat, read-only: the diaries" "$status|$(wc -l <<<"$output")|$errors" "0|$((year - 2027 + 2))|"
  run "$tools" --cartella "$disk/Zelvia" anno 2090 --si
  expect "exfat, read-only: a new year" "$status|${errors##*$'\n'}|$(seen)" "1|Niente è stato cambiato.|$before"
  unplug
fi

# Two at once, and the program in between.
lay
exec 8>"$folder/.zelvia.lock"
flock 8
run "$tools" ripara --si
expect "an open diary" "$status|${errors%%»*}" "1|zelvia-strumenti: il diario di «$folder"
exec 8>&-
at_once=()
for i in 1 2 3 4; do
  "$tools" anno 2027 --si >"$work/once-$i" 2>&1 &
  at_once+=($!)
done
good_ones=0
for process in "${at_once[@]}"; do
  status=0
  wait "$process" || status=$?
  [ "$status" -ne 0 ] || good_ones=$((good_ones + 1))
done
expect "several at once" "$good_ones" 1
expect "what several leave" "$(ls -A "$folder" | tr '\n' ' ')" ".zelvia.lock 2027 ZelviaFile nomeload prova "

# The completion knows what the command knows.
. "$source_folder/packaging/zelvia-strumenti.bash"
# offered WORD...: what may follow, the last word being typed.
offered() {
  COMP_WORDS=("$tools" "$@")
  COMP_CWORD=$#
  _zelvia_strumenti
  echo "${COMPREPLY[*]}"
}
expect "completion of an action" "$(offered a)" "anno anni"
expect "completion of nothing" "$(offered "" | tr ' ' '\n' | grep -cx 'anno\|anni\|controlla\|ripara\|copie')" 5
expect "completion of an option" "$(offered anni --t)" "--tsv"
expect "completion of anno's own" "$(offered anno --g)" "--gare"
expect "completion of a diary" "$(offered --tsv controlla p)" "prova"
expect "completion of --diario" "$(offered --diario 20)" "2027"
expect "completion of copies" "$(offered copie c)" "confronta crea"
expect "completion of the second place" "$(offered copie s)" "secondo-posto"
expect "completion of the copies' own" "$(offered copie --n)" "--nessuno"
expect "completion of importa's own" "$(offered importa --in)" "--in-moto"
expect "completion of unisci" "$(offered un)" "unisci"
expect "completion of a folder" "$(cd "$folder" && offered unisci Zelvia)" "ZelviaFile"
expect "completion of a format" "$(offered esporta --formato j)" "jsonl"
expect "completion of a format of the book" "$(offered libro --formato a)" "a4 a5"
expect "completion in no folder" "$(offered --cartella /nessuna ripara "")" ""
verdict
