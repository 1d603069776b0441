#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Copies in a second place: on a disk that is full, unplugged, read-only or of another system:
# second-place-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/copies.sh"
. "$source_folder/packaging/sample-year.sh"
lay_sample_year "$diary"
printf '""\r\n' >"$diary/nomeload"
. "$source_folder/tests/scripts/disks.sh"

# The command line: what is wrong with it, then the message.
rows=(
  "secondo-posto a b" "Per «secondo-posto» «b» è di troppo."
  "secondo-posto --nessuno b" "Per «secondo-posto» «b» è di troppo."
  "secondo-posto --da" "Dopo --da manca la CARTELLA."
  "elenco --da" "Dopo --da manca la CARTELLA."
  "--da $disk crea" "«--da» non va con «crea»."
  "--da $disk secondo-posto" "«--da» non va con «secondo-posto»."
)
for ((i = 0; i < ${#rows[@]}; i += 2)); do
  # shellcheck disable=SC2086
  run "$copies" ${rows[i]}
  expect "«${rows[i]}»" "$status|$output|${errors%%$'\n'*}" "2||${rows[i + 1]}"
done
run "$copies" --da "$disk" elenco
expect "a place without copies" "$status|$errors" \
  "1|zelvia-copie: «$disk/Zelvia-copie» non c'è: la chiavetta o la cartella è staccata"
run "$copies" secondo-posto "$work/manca"
expect "a place that is not there" "$status|$errors" \
  "1|zelvia-copie: la cartella «$work/manca» non c'è: il secondo posto dev'esserci già"

# Every copy there is the diary as it was at that time.
expect_whole() {
  local copy
  for copy in "$disk"/Zelvia-copie/0*; do
    expect_same "$1: ${copy##*/}" "$copy" "$work/vecchi/$(cat "$copy/prova/nometab")"
    expect "$1: the origin of ${copy##*/}" "$(cat "$copy/.cartella" 2>/dev/null)" "$diary"
  done
}
# change NUMBER: the diary, of which it is remembered how it was.
change() {
  echo "$1" >"$diary/prova/nometab"
  cp -a "$diary" "$work/vecchi/$1"
}

for kind in exfat ext2; do
  format $kind 1500K && plug $kind || continue
  rm -rf "$kept" "$work/vecchi"
  mkdir "$work/vecchi"
  run "$copies" secondo-posto "$disk"
  expect "$kind: named" "$status|$output|$errors" "0|Alla fine di Zelvia l'ultima copia va anche in «$disk».|"
  change 1
  run "$copies" crea
  expect "$kind: the first copy" "$status|$output|$errors" "0|Copia fatta.
L'ultima copia è anche nel secondo posto, «$disk».|"
  run "$copies" crea
  expect "$kind: no change" "$status|$output" "0|Niente è cambiato dall'ultima copia."

  # Full: what is there stays whole, and the first place has them all.
  for ((i = 2; i < 12; i++)); do
    change $i
    run "$copies" crea
    [ "$status" -eq 0 ] || break
  done
  expect "$kind, full: message" "$status|$output|${errors##*: }" "1|Copia fatta.|Disco pieno"
  expect "$kind, full: the first place" "$(kept_names | tr -cd '|' | wc -c)" "$i"
  expect "$kind, full: the second place" "$(kept_names "$disk/Zelvia-copie" | tr -cd '|' | wc -c)" $((i - 1))
  expect_whole "$kind, full"
  run "$copies" --da "$disk" elenco
  expect "$kind, full: the list" "$status|$(wc -l <<<"$output")|$errors" "0|$((i - 1))|"

  # Read-only it lists, compares and restores all the same.
  unplug
  plug $kind ro
  run "$copies" crea
  expect "$kind, read-only" "$status|$output|$(grep -c "$disk" <<<"$errors")" "1|Niente è cambiato dall'ultima copia.|1"
  expect_whole "$kind, read-only"
  run "$copies" --da "$disk" confronta 1
  expect "$kind, read-only: compared" "$status|$(tail -n 1 <<<"$output")" "0|prova/nometab: diverso"
  run "$copies" --da "$disk/Zelvia-copie" rimetti 1 "$work/$kind"
  expect "$kind, read-only: restored" "$status|$errors" "0|"
  expect_same "$kind, read-only: restored" "$work/$kind" "$work/vecchi/1"

  # Unplugged: nothing is written where it was.
  unplug
  change 20
  run "$copies" crea
  expect "$kind, unplugged" "$status|$output|$errors" \
    "1|Copia fatta.|zelvia-copie: «$disk/Zelvia-copie» non c'è: la chiavetta o la cartella è staccata"
  expect "$kind, unplugged: the folder below" "$(ls -A "$disk")" ""

  # Plugged in again, with room, it gets the newest copy; the clock may have been set back meanwhile.
  plug $kind
  rm -rf "$disk"/Zelvia-copie/0*
  change 21
  run faketime -f "@2001-01-01 00:00:00" "$copies" crea
  expect "$kind, plugged in again" "$status|$errors|$(kept_names "$disk/Zelvia-copie")" "0||000001_2001-01-01_00-00-00|"
  expect_whole "$kind, plugged in again"

  # A folder of the same name in another case is the same on such a disk.
  if [ $kind = exfat ]; then
    mv "$disk/Zelvia-copie" "$disk/altre"
    mv "$disk/altre" "$disk/zelvia-COPIE"
    change 22
    run "$copies" crea
    expect "$kind: another case" "$status|$errors" "0|"
    expect_whole "$kind: another case"
  fi
  unplug
done

# Several at once bring it once, and a diary that is open is not copied.
run "$copies" secondo-posto "$disk"
change 30
at_once=()
for i in 1 2 3 4 5 6; do
  "$copies" crea >"$work/once-$i" 2>&1 &
  at_once+=($!)
done
for process in "${at_once[@]}"; do
  status=0
  wait "$process" || status=$?
  expect "one of several: exit status" "$status" 0
done
expect "what several bring" "$(kept_names "$disk/Zelvia-copie" | tr -cd '|' | wc -c)" 1
exec 8>"$diary/.zelvia.lock"
flock 8
change 31
run "$copies" crea
expect "an open diary" "$status|$output|$(kept_names "$disk/Zelvia-copie" | tr -cd '|' | wc -c)" \
  "0|Il diario è aperto: la copia si fa quando è chiuso.|1"
exec 8>&-

# No second place any more.
run "$copies" secondo-posto --nessuno
expect "forgotten" "$status|$output" "0|Le copie non vanno più in un secondo posto; quelle che ci sono restano."
run "$copies" crea
expect "forgotten: a copy" "$status|$output|$(kept_names "$disk/Zelvia-copie" | tr -cd '|' | wc -c)" "0|Copia fatta.|1"
verdict
