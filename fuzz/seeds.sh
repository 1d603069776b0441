#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the fuzzers' seeds from the sample year: seeds.sh FOLDER, with a subfolder for each fuzzer.
set -euo pipefail

demo=$(dirname "$(readlink -f "$0")")/../share/demo
out=$1
rm -rf "$out"
mkdir -p "$out"/{ValueFile,Diary,List,Routes,Calendar,Table,Pointer,Val,DateValue,Format,Times,MediaKm,CategoryTexts,SearchTotals,TableCalculations,Trasforma,Text,Fit,DayTable,Merge}
mkdir -p "$out"/{ValueFile,Diary,List,Routes,Calendar,Table,Pointer,Val,DateValue,Format,Times,MediaKm,CategoryTexts,SearchTotals,TableCalculations,Trasforma,Text,Fit,DayTable,Journal}
mkdir -p "$out"/{ValueFile,Diary,List,Routes,Calendar,Table,Pointer,Val,DateValue,Format,Times,MediaKm,CategoryTexts,SearchTotals,TableCalculations,Trasforma,Text,Fit,DayTable,Check}

# Two days of the diary and two routes, so that the inputs stay small; the others whole.
diary=$demo/ZelviaFile/prova.zlv
for day in 1 60 180; do
  sed -n "$(((day - 1) * 136 + 1)),$(((day + 1) * 136))p" "$diary" >"$out/Diary/days-$day"
done
head -n 124 "$demo/prova/ListePercorso" >"$out/Routes/two-routes"
cp "$demo/prova/CalendarioGare" "$out/Calendar"
cp "$demo"/prova/*.lsx "$out/List"
i=0
for table in "$demo"/prova/*.tab; do
  i=$((i + 1))
  cp "$table" "$out/Table/table-$i"
done
cp "$demo/prova/nometab" "$out/Pointer"
printf '"C:\\Zelvia\\ZelviaFile\\prova.zlv"\r\n' >"$out/Pointer/full-path"
{ printf '\0\0\0\0\0' && head -n 20 "$demo/prova/Percorso.lsx"; } >"$out/ValueFile/texts"
{ printf '\377\125\125\125\125' && printf '7\r\n-12\r\n1.5\r\n'; } >"$out/ValueFile/shorts-at-the-edge"
{ printf '\220\103\0\0\0' && head -n 136 "$diary"; } >"$out/ValueFile/day-at-the-edge"

# Times, averages and dates as they are in the file.
sed -n 's/\r$//; s/^"\([0-9]*:[0-9][0-9]:[0-9][0-9]\)"$/\1/p' "$diary" | sort -u | sed -n 1,12p >"$out/Trasforma/times"
sed -n 's/\r$//; s/^#\([0-9]*\)-\([0-9]*\)-\([0-9]*\)#$/\3\/\2\/\1/p' "$diary" | sed -n 1,3p |
  while read -r date; do printf '%s' "$date" >"$out/DateValue/${date//\//-}"; done
for text in 05 1.500 12,5 3:07 ' 12 3' 10,500 -1.234,5; do
  printf '%s' "$text" >"$out/Val/$(printf '%s' "$text" | tr -c '[:alnum:]' _)"
done
for pattern in 0 00 000 '##' '##:' '###,###' 000.00 '   dddd  d  mmmm  yyyy' dd/mm/yyyy; do
  printf 'AAAAAA\020\100BB\0\0\0\1\2\0%s' "$pattern" >"$out/Format/$(printf '%s' "$pattern" | cksum | cut -d' ' -f1)"
done
printf '\1\11\36\0\1\12\24\5%s' 10,500 >"$out/Times/morning"
# Kilometres, metres, then the seconds of the run: 10,500 in 0:48:30, 1,000 in 0:04:36, 0,100 in 2:00:00.
printf '\12\0\364\1\136\13\0\0' >"$out/MediaKm/morning"
printf '\1\0\0\0\024\1\0\0' >"$out/MediaKm/one-km"
printf '\0\0\144\0\040\34\0\0' >"$out/MediaKm/over-an-hour"
i=0
for row in ' 7,500' '12,0' ' 5 x 1000 @ 4:30' '10 x 400  @ 1:20' '' 'x@:' ':@x,'; do
  i=$((i + 1))
  printf '\7\0\364\1\5\0\350\3\4\0\36\0%s' "$row" >"$out/CategoryTexts/row-$i"
done
printf '%s\n' 0:48:30 4:37 1:05:30 5:07 '' '' 0:59:59 10:05 >"$out/SearchTotals/four-runs"
printf '%s\n' 0:48:30 4:37 1000:00:00 5:7000 0:00:07 0:30 >"$out/SearchTotals/too-long"
printf '%s\n' 10 500 0 48 30 '' '' '' >"$out/TableCalculations/average"
printf '%s\n' 10 500 '' '' '' 4 37 250 >"$out/TableCalculations/time"
printf '%s\n' '' '' 1 5 0 5 30 '' >"$out/TableCalculations/distance"
printf '%s' 'C:\X\ZelviaFile\a.b.zlv' >"$out/Text/path"
printf '%s' 'SALITA e pista di 12345 metri' >"$out/Text/words"
# What watches wrote, the small files whole.
files=$(dirname "$(readlink -f "$0")")/../tests/tools/watch/files
cp "$files"/{run-short,run-cut,run-bad-second-part,ride,settings}.fit "$out/Fit"
head -c 4096 "$files/run-compressed.fit" >"$out/Fit/run-compressed"
printf '%s\n' 'date,route,km,type,start,end,weight,notes' '2024-02-29,Parco,10.045,Gara,9:00:00,9:50:07,70,"a
b, c"' >"$out/DayTable/days"
printf '%s\n' 'Data;Km;Tempo;Ripetizioni' '1/5/2024;10,5;50:00;5' >"$out/DayTable/spreadsheet"
# A list, a version of it from here and one from there, and the name of a conflict copy.
printf '\0"Lago"|"Bosco"\n"Lago"|"Colle"\n"Lago"|"Riva"\nprova (conflicted copy 2026-11-01).zlv' >"$out/Merge/list"
# A few lines of each version of the routes and of the calendar.
printf '\1\0\0"Lago"|\0\001500\n\0\0"Lago"|\0\001510\n\0\076"Bosco"\nprova-conflict-2026' >"$out/Merge/routes"
printf '\2\0\0013|\0\0025\n\0\00110|\0\0045\n\0\00117\nTipo.sync-conflict-2026.lsx' >"$out/Merge/races"
# Lines of a journal without their checksums: two sessions, one of them offered.
session='S\t1\t\\Zelvia\t\\Zelvia\\ZelviaFile\\prova.zlv\t\\Zelvia\\prova\t0\n'
day='G\t142\t2\t142\t2026-05-22\t3\t142\t2026-05-22\tParco\n'
printf "$session$day"'V\tG\t142\nL\t5\t1\tGara\t2\tGara\tStaffetta\nO\n'"$session"'P\t3\t0\t2\tArgine\t7500\nC\t1\t1\t1\t5\t1\t6\t9\t2026\tGara\n' \
  >"$out/Journal/two-sessions"
# A kind of file, how many damages, and of each: what, the line, the place in it, how many lines.
for kind in 0 1 2 3 4; do
  printf "\\$kind\0\0\201\0\1\0" >"$out/Check/quote-$kind"
  printf "\\$kind\1\2\12\0\0\2\4\100\1\3\0" >"$out/Check/lines-and-end-$kind"
  printf "\\$kind\0\7\3\0\1\0#2028-01-01#" >"$out/Check/text-$kind"
done
