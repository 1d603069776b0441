#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The translations have every text of the sources, and the windows of the tools and of the guide, the actions and the
# launcher show them where the desktop's language asks for them: translations-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/tests/scripts/copies.sh"
. "$source_folder/tests/scripts/program.sh"
cp -r "$source_folder"/share/demo/. "$diary"
printf '""\r\n' >"$diary/nomeload"

mkdir "$work/i18n"
for file in "$source_folder"/i18n/zelvia_*.ts; do
  cp "$file" "$work/i18n"
  run "$source_folder/i18n/update.sh" "$work/i18n/${file##*/}"
  expect "lupdate: ${file##*/}" "$status" 0
  /usr/bin/python3 - "$file" "$work/i18n/${file##*/}" "$source_folder/src" <<'PYTHON' >"$work/faults" || echo "no end" >>"$work/faults"
import pathlib, re, sys
import xml.etree.ElementTree as ET


def texts(path):
    return {(context.findtext("name"), message.findtext("source")): message.find("translation")
            for context in ET.parse(path).iter("context") for message in context.iter("message")}


kept, fresh = texts(sys.argv[1]), texts(sys.argv[2])
for text in sorted(fresh.keys() - kept.keys()):
    print(f"lacks {text}")
for text in sorted(kept.keys() - fresh.keys()):
    print(f"has {text}, which is not in the sources")
if len(fresh) < 700:
    print(f"only {len(fresh)} texts")
for script in ("folder-check.sh", "zelvia.sh"):
    said = re.findall(r'\bsay "((?:[^"\\]|\\.|\\\n)*)"', pathlib.Path(sys.argv[3], "../packaging", script).read_text(encoding="utf-8"))
    if not said:
        print(f"{script} says nothing")
    for text in said:
        text = re.sub(r"\\(.)", r"\1", text.replace("\\\n", ""))
        if ("Tools", text) not in fresh:
            print(f"lacks «{text}» of {script}")

# A text is looked up under the full name of its class; one under another name would never be found.
sources = "\n".join(path.read_text(encoding="utf-8") for path in pathlib.Path(sys.argv[3]).rglob("*.[ch]*"))
for context in sorted({context for context, _ in fresh}):
    name = context.removeprefix("zelvia::")
    if context != name:
        known = re.search(rf"class {name} (final )?: public [^;]*?Q_OBJECT", sources)
    else:
        known = f"Q_DECLARE_TR_FUNCTIONS({name})" in sources or f'translate("{name}"' in sources
    if not known:
        print(f"nothing looks up {context}")

for (context, source), translation in kept.items():
    if translation.get("type") == "unfinished":
        if sys.argv[1].endswith("_en.ts"):
            print(f"{context}, «{source}»: unfinished")
        continue
    for what, pattern in (("places", r"%[0-9vm]"), ("keys", "&(?!&)")):
        if sorted(re.findall(pattern, source)) != sorted(re.findall(pattern, translation.text or "")):
            print(f"{context}, «{source}»: other {what}")
    if not translation.text:
        print(f"{context}, «{source}»: empty")
PYTHON
  expect "${file##*/}" "$(<"$work/faults")" ""
done

# A language more is a file more: one in which each text stands in brackets.
lrelease=${QT_LRELEASE:-/usr/lib/qt6/bin/lrelease}
/usr/bin/python3 - "$source_folder/i18n/zelvia_en.ts" "$work/i18n/zelvia_eo.ts" <<'PYTHON'
import sys
import xml.etree.ElementTree as ET

file = ET.parse(sys.argv[1])
file.getroot().set("language", "eo")
for message in file.iter("message"):
    message.find("translation").text = f"[{message.findtext('source')}]"
file.write(sys.argv[2], encoding="utf-8", xml_declaration=True)
PYTHON
"$lrelease" -silent "$work/i18n/zelvia_eo.ts" -qm "$work/usr/share/zelvia/zelvia_eo.qm"

# first_line STATUS COMMAND...: the first line of what it says.
first_line() {
  local wanted=$1
  shift
  run "$@"
  expect "exit status of $1" "$status" "$wanted"
  said=$(printf '%s\n%s' "$errors" "$output" | sed '/./!d;q')
}

# The desktop's languages, then what the launcher and zelvia-avvio say. Without any it is Italian. What the commands
# print always is.
spoken=(
  "LANGUAGE=it"
  "Zelvia non può stare in «/»: è la radice del disco. Indicare una cartella, per esempio /home/anna/Zelvia."
  "Zelvia non può stare in «$work/a%1.b»: nel percorso c'è un punto («.»), e nei nomi delle cartelle del programma i punti non sono ammessi: il nome del diario finisce al primo punto. Indicare una cartella senza punti."
  "Due computer hanno scritto negli stessi file, e il servizio che tiene uguali le cartelle ne ha lasciato qui le seconde versioni:"
  "LANGUAGE=en"
  "Zelvia can't live in “/”: it is the root of the disk. Name a folder, such as /home/anna/Zelvia."
  "Zelvia can't live in “$work/a%1.b”: the path has a full stop (“.”), which the names of the program's folders must not have: the name of a diary ends at the first one. Name a folder without full stops."
  "Two computers have written to the same files, and the service that keeps the folders alike has left the second versions here:"
  "LANGUAGE=eo"
  "[Zelvia non può stare in «/»: [è la radice del disco. Indicare una cartella, per esempio /home/anna/Zelvia.]]"
  "[Zelvia non può stare in «$work/a%1.b»: [nel percorso c'è un punto («.»), e nei nomi delle cartelle del programma i punti non sono ammessi: il nome del diario finisce al primo punto. Indicare una cartella senza punti.]]"
  "[Due computer hanno scritto negli stessi file, e il servizio che tiene uguali le cartelle ne ha lasciato qui le seconde versioni:"
)
spoken+=("LANG=C.UTF-8" "${spoken[@]:1:3}" "LANG=en_US.UTF-8" "${spoken[@]:5:3}")
conflict="$diary/ZelviaFile/prova.sync-conflict-20261120-101112-ABCDEFG.zlv"
for ((i = 0; i < ${#spoken[@]}; i += 4)); do
  language=(env -u LANGUAGE -u LC_ALL -u LC_MESSAGES -u LANG -u DISPLAY -u WAYLAND_DISPLAY "${spoken[i]}")
  first_line 2 "${language[@]}" "$work/usr/bin/zelvia-strumenti" --cartella "$diary" gioca
  expect "${spoken[i]}: the tools" "$said" "Azione sconosciuta: gioca"
  rm -rf "$kept"
  first_line 0 "${language[@]}" "$copies" elenco
  expect "${spoken[i]}: the copies" "$said" "Non ci sono copie."
  first_line 2 "${language[@]}" "$work/usr/bin/zelvia" /
  expect "${spoken[i]}: the launcher" "$said" "${spoken[i + 1]}"
  first_line 2 "${language[@]}" "$work/usr/bin/zelvia" "$work/a%1.b"
  expect "${spoken[i]}: the launcher, a full stop" "$said" "${spoken[i + 2]}"
  rm -rf "$HOME/.local/state/zelvia"
  printf 'x\r\n' >"$conflict"
  first_line 0 "${language[@]}" "$work/usr/libexec/zelvia/zelvia-avvio" -- "$diary"
  rm "$conflict"
  expect "${spoken[i]}: before the start" "$said" "${spoken[i + 3]}"
done

# The page stays Italian when the guide is not.
guide_up() { guide=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -n 1) && [ -n "$guide" ]; }
command=("$work/usr/libexec/zelvia/zelvia" "$diary")
guides=(it "Guida di Zelvia" en "Guide to Zelvia" eo "\\[Guida di Zelvia\\]")
for ((i = 0; i < ${#guides[@]}; i += 2)); do
  LC_ALL=C.UTF-8 LANGUAGE=${guides[i]} start
  await page_up || expect "${guides[i]}: the page" "not up" "up"
  xdotool windowactivate --sync "$page" key F1
  await guide_up "${guides[i + 1]}" || expect "${guides[i]}: the guide" "not up" "${guides[i + 1]}"
  expect "${guides[i]}: the page" "$(xdotool getwindowname "$page" | grep -c '[a-z]* [0-9]* [a-z]* 2026')" 1
  wmctrl -i -c "$page"
  await ended "$program"
  wait "$program" || expect "${guides[i]}: exit status" "$?" 0
done

# The desktop's languages in order, then the title.
window_up() { window=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -n 1) && [ -n "$window" ]; }
rows=(
  en "Zelvia tools"
  en_GB:it "Zelvia tools"
  de:en "Zelvia tools"
  it_IT:en "Strumenti di Zelvia"
  de "Strumenti di Zelvia"
)
export LC_ALL=C.UTF-8
for finestra in "$build/src/zelvia-finestra" "$work/usr/libexec/zelvia/zelvia-finestra"; do
  command=("$finestra" --cartella "$diary")
  for ((i = 0; i < ${#rows[@]}; i += 2)); do
    LANGUAGE=${rows[i]} start
    await window_up "${rows[i + 1]}" || expect "${rows[i]}: the window" "not up" "${rows[i + 1]}"
    wmctrl -i -c "$window"
    await ended "$program"
    wait "$program" || expect "${rows[i]}: exit status" "$?" 0
  done
done
verdict
