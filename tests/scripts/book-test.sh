#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The book of the sample year, read by other programs: book-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
build=$(readlink -f "$1")
. "$source_folder/packaging/sample-year.sh"
tools=$build/src/zelvia-strumenti
export HOME=$work/casa
unset XDG_STATE_HOME
diary=$HOME/Zelvia
mkdir -p "$diary/ZelviaFile"
lay_sample_year "$diary"
printf '""\r\n' >"$diary/nomeload"
# The notes of New Year's Day hold every character that a note can, but for the hyphen that shows at line ends alone.
/usr/bin/python3 - "$diary/ZelviaFile/prova.zlv" <<'PYTHON'
import sys

unused = {0x22, 0x7F, 0x81, 0x8D, 0x8F, 0x90, 0x9D, 0xA0, 0xAD}
characters = bytes(byte for byte in range(0x21, 0x100) if byte not in unused)
with open(sys.argv[1], "rb") as file:
    lines = file.read().split(b"\r\n")
for line in range(8):
    lines[128 + line] = b'"' + characters[32 * line:32 * line + 32] + b'"'
with open(sys.argv[1], "wb") as file:
    file.write(b"\r\n".join(lines))
PYTHON

# The other actions do not load what draws.
expect "libraries of windows" "$(ldd "$tools" | grep -cE 'Qt6(Gui|Widgets)' || true)" 0

# It needs no display, and tells nothing without a terminal.
for format in a4 a5 html; do
  run env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$tools" libro --formato "$format" -o "$work/libro.$format"
  expect "$format" "$status|$output|$errors" "0||"
  run faketime '2031-05-06 07:08:09' "$tools" libro --formato "$format" -o "$work/altro.$format"
  expect "$format years later" "$status" 0
  expect "the same bytes of $format" "$(cmp "$work/libro.$format" "$work/altro.$format" 2>&1)" ""
done

# On a terminal it says which page it has come to.
script -qec "'$tools' libro --formato a5 -o '$work/video.a5'" /dev/null >"$work/video" </dev/null
pages=$(pdfinfo "$work/libro.a5" | sed -n 's/^Pages: *//p')
expect "the last page told" "$(grep -aoE 'pagina [0-9]+ di [0-9]+' "$work/video" | tail -n 1)" "pagina $pages di $pages"
expect "the pages told" "$(grep -aoE 'pagina [0-9]+ di [0-9]+' "$work/video" | wc -l)" "$pages"

# Whole or not at all.
for format in a5 html; do
  run bash -c "ulimit -f 16; exec '$tools' libro --formato $format -o '$work/troppo.$format'"
  expect "$format on a full disk" "$status|$(ls "$work" | grep -c troppo || true)" "1|0"
  expect "what is said of it" "$(grep -c '^zelvia-strumenti: ' <<<"$errors")" 1
done

for format in a4 a5; do
  run qpdf --check "$work/libro.$format"
  expect "$format checked" "$status|$errors" "0|"
  expect "faces of $format that are not embedded" \
    "$(pdffonts "$work/libro.$format" | awk 'NR > 2 && $(NF - 4) != "yes"')" ""
done
expect "paper" "$(pdfinfo "$work/libro.a5" | grep '^Page size')" "Page size:       420 x 595 pts (A5)"
expect "paper" "$(pdfinfo "$work/libro.a4" | grep '^Page size')" "Page size:       595 x 842 pts (A4)"

# The text, the bookmarks and the margins, beside the diary's own file.
/usr/bin/python3 - "$diary" "$work" <<'PYTHON' >"$work/faults" || echo "no end" >>"$work/faults"
import datetime, json, re, subprocess, sys
import xml.etree.ElementTree as ET

diary, work = sys.argv[1:]
POINTS = 72 / 25.4


def check(what, got, wanted):
    if got != wanted:
        print(f"{what}: {got!r} instead of {wanted!r}")


def output(*command):
    return subprocess.run(command, capture_output=True, check=True, text=True).stdout


with open(f"{diary}/ZelviaFile/prova.zlv", encoding="cp1252", newline="") as file:
    lines = [line.strip('"') for line in file.read().split("\r\n")[:-1]]
WEEKDAYS = ["lunedì", "martedì", "mercoledì", "giovedì", "venerdì", "sabato", "domenica"]
days = {}
for slot in range(365):
    day = lines[slot * 136:(slot + 1) * 136]
    numbers = day[4:6] + day[9:15] + day[121:126]
    if any(day[2:4] + day[6:9] + day[17:120] + day[126:136]) or any(int(n) for n in numbers):
        days[datetime.date(2026, 1, 1) + datetime.timedelta(slot)] = [note for note in day[128:136] if note]

for paper, inner, outer in (("a5", 20, 13), ("a4", 28, 19)):
    book = f"{work}/libro.{paper}"
    pages = [" ".join(page.split()) for page in output("pdftotext", "-raw", book, "-").split("\f")[:-1]]
    whole = "".join(page.replace(" ", "") for page in pages)

    # Every day and each of its notes, in order.
    place = whole.index("IldiarioGennaio")
    for date, notes in days.items():
        for text in [f"{date.day} {WEEKDAYS[date.weekday()]} "] + notes:
            text = "".join(text.split())
            found = whole.find(text, place)
            if found < 0:
                print(f"{paper}: {date} lacks {text!r}")
                break
            place = found + len(text)

    # The bookmarks lead to the pages on which their titles are.
    marks = json.loads(output("qpdf", "--json", "--json-key=outlines", book))["outlines"]
    chapters = ["L'anno in breve", "Il diario", "Le gare", "I percorsi", "Le statistiche", "Le tabelle di allenamento"]
    check(f"{paper}: chapters", [mark["title"] for mark in marks], chapters)
    check(f"{paper}: months", len(marks[1]["kids"]), len({date.month for date in days}))
    entries = [entry for month in marks[1]["kids"] for entry in month["kids"]]
    check(f"{paper}: days", [entry["title"] for entry in entries],
          [f"{date.day} {WEEKDAYS[date.weekday()]}" for date in days])
    for mark in marks + [kid for mark in marks for kid in mark["kids"]] + entries:
        if mark["title"] not in pages[mark["destpageposfrom1"] - 1]:
            print(f"{paper}: {mark['title']} is not on page {mark['destpageposfrom1']}")
    for mark in marks:
        check(f"{paper}: {mark['title']} begins on the right", mark["destpageposfrom1"] % 2, 1)
        if f"{mark['title']} {mark['destpageposfrom1']}" not in re.sub(r"[ .·]+", " ", pages[2]):
            print(f"{paper}: {mark['title']} is not in the contents")

    # The wider margin where it is bound, the page's number at the outer edge.
    xml = output("pdftotext", "-bbox", book, "-")
    tree = ET.fromstring(re.sub(r"<!DOCTYPE[^>]*>", "", xml))
    for number, page in enumerate(tree.iter("{http://www.w3.org/1999/xhtml}page"), 1):
        words = [(float(word.get("xMin")), float(word.get("xMax")), float(word.get("yMax")), word.text) for word in page]
        if not words or number == 1:
            continue
        width = float(page.get("width"))
        left, right = (inner, outer) if number % 2 else (outer, inner)
        if min(word[0] for word in words) < left * POINTS - 2 or max(word[1] for word in words) > width - right * POINTS + 2:
            print(f"{paper}: page {number} leaves its margins")
        lowest = max(words, key=lambda word: word[2])
        check(f"{paper}: number of page {number}", lowest[3], str(number))
        edge = width - outer * POINTS - lowest[1] if number % 2 else lowest[0] - outer * POINTS
        if abs(edge) > 2:
            print(f"{paper}: the number of page {number} is {edge} from the edge")
PYTHON
expect "faults of the pages" "$(<"$work/faults")" ""

# On a telephone nothing is wider than the screen.
for width in 390 320; do
  cat >"$work/telefono.html" <<HTML
<iframe width="$width" height="800" style="border: 0" src="libro.html" onload="
  const page = contentDocument.documentElement;
  document.title = page.scrollWidth + ' of ' + page.clientWidth"></iframe>
HTML
  run timeout 120 chromium --headless --no-sandbox --disable-gpu --hide-scrollbars --user-data-dir="$work/chromium" \
    --allow-file-access-from-files --dump-dom "file://$work/telefono.html"
  expect "width at $width" "$(grep -o '<title>.*</title>' <<<"$output")" "<title>$width of $width</title>"
done
verdict
