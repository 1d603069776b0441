#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What the installation lays down, and that it leaves a diary alone: install-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
. "$source_folder/packaging/sample-year.sh"
build=$(readlink -f "$1")
folder=$work/Zelvia

install_here() { cmake --install "$build" --prefix "$1" >/dev/null; }
listing() { (cd "$1" && find . -mindepth 1 -printf '%y %P\n' | LC_ALL=C sort | tr '\n' '|'); }
# Name, kind, time and bytes of all that is the user's.
data_of() {
  (cd "$1" && find . -mindepth 1 ! -path ./zelvia ! -path ./Guida.hlp ! -path ./mano.cur -printf '%P %y %m %T@ %l ' \
    \( -type f -exec sha256sum {} \; -o -printf '\n' \) | LC_ALL=C sort)
}

install_here "$folder"
expect "the layout" "$(listing "$folder")" "d ZelviaFile|f Guida.hlp|f mano.cur|f nomeload|f zelvia|"
expect "nomeload" "$(od -An -c "$folder/nomeload" | tr -d ' \n')" '""\r\n'
expect "the program runs as a file" "$(stat -c %A "$folder/zelvia")" "-rwxr-xr-x"
cmp "$folder/mano.cur" "$source_folder/share/mano.cur" || expect "mano.cur" different same
expect "the guide is a help file" "$(head -c 15 "$folder/Guida.hlp")" "SQLite format 3"

# A second program folder by a relative path, with the sample year.
(cd "$work" && install_here relativa)
expect "a relative prefix" "$(listing "$work/relativa")" "$(listing "$folder")"
lay_sample_year "$folder"
diff -r "$source_folder/share/demo/ZelviaFile" "$folder/ZelviaFile" || expect "the sample diary" different same
diff -r "$source_folder/share/demo/prova" "$folder/prova" || expect "the sample lists" different same

# The day that it is opened on is that of a race, and of the run.
IFS=- read -r year month day <<<"$demo_day"
expect "the race of the day" "$(tr -d '\r' <"$folder/prova/CalendarioGare" | paste -sd'|' | grep -cF "|$((10#$day))|$((10#$month))|$year|\"")" 1
slot=$(date -u -d "$demo_day" +%-j)
expect "the run of the day" "$(sed -n "$((slot * 136 - 136 + 9))p" "$folder/ZelviaFile/prova.zlv" | tr -d '\r')" '"Gara"'

# Over a folder with data: only the program's own three files are renewed.
printf '"\\home\\anna\\Zelvia\\ZelviaFile\\anno.zlv"' >"$folder/nomeload"
printf 'vecchio diario' >"$folder/ZelviaFile/prova.zlv"
rm "$folder/prova/Fondo.lsx"
mkdir "$folder/anno"
touch -d 2001-02-03 "$folder/ZelviaFile/anno.zlv" "$folder/anno/nometab"
chmod 444 "$folder/anno/nometab"
before=$(data_of "$folder")
echo guasta >"$folder/Guida.hlp"
echo guasta >"$folder/mano.cur"
echo guasto >"$folder/zelvia"
install_here "$folder"
lay_sample_year "$folder"
expect "the data" "$(data_of "$folder")" "$before"
for file in Guida.hlp mano.cur zelvia; do
  cmp "$folder/$file" "$work/relativa/$file" || expect "$file" "as it was" renewed
done

# A pointer that leads nowhere is the user's, too.
ln -sf "$work/altrove" "$folder/nomeload"
install_here "$folder"
expect "a dangling nomeload" "$(readlink "$folder/nomeload") $(ls "$work/altrove" 2>/dev/null)" "$work/altrove "

# A sample year cut short is completed, and what is there of it stays.
lay_sample_year "$work/relativa"
rm "$work/relativa/ZelviaFile/prova.zlv" "$work/relativa/prova/Tipo.lsx"
echo mia >"$work/relativa/prova/Modo.lsx"
lay_sample_year "$work/relativa"
expect "a completed sample year" "$(listing "$work/relativa/prova")" "$(listing "$source_folder/share/demo/prova")"
expect "a list that was there" "$(<"$work/relativa/prova/Modo.lsx")" mia
verdict
