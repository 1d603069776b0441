#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What zelvia-strumenti exports, read by other programs: exchange-test.sh BUILD-FOLDER
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
printf '"%s"\r\n' "${diary//\//\\}\\prova\\Base 10 km.tab" >"$diary/prova/nometab"
for format in csv splits jsonl ics; do
  run "$tools" esporta --formato "$format" -o "$work/anno.$format"
  expect "$format" "$status|$output|$errors" "0||"
done

# The sums of a database beside those of the diary.
run "$tools" anni --tsv
expect "the database's sums" "$(sqlite3 -separator $'\t' :memory: ".import --csv $work/anno.csv giorni" \
  "SELECT 'prova', substr(min(date), 1, 4), sum(trim(type) <> ''), printf('%.3f', sum(km)),
     sum(trim(lower(type)) = 'gara') FROM giorni")" "$(tail -n 1 <<<"$output")"

# The days line by line, out of the diary's own file.
/usr/bin/python3 - "$diary" "$work" <<'PYTHON' >"$work/faults" || echo "no end" >>"$work/faults"
import csv, datetime, json, sys
import icalendar

diary, work = sys.argv[1:]


def values(path):
    with open(path, encoding="cp1252", newline="") as file:
        return [line.strip('"') for line in file.read().split("\r\n")[:-1]]


def check(what, got, wanted):
    if got != wanted:
        print(f"{what}: {got!r} instead of {wanted!r}")


def clock(parts):
    return "{:d}:{:02d}:{:02d}".format(*map(int, parts))


lines = values(f"{diary}/ZelviaFile/prova.zlv")
days = {}
splits = []
for slot in range(366):
    day = lines[slot * 136:(slot + 1) * 136]
    date = day[1].strip("#")
    notes = "\n".join(day[128:136]).rstrip("\n")
    if any(day[2:4] + day[6:9] + day[17:120]) or notes or any(int(n) for n in day[4:6] + day[9:15] + day[121:126]):
        days[date] = (day, notes)
    splits += [[date, str(int(split[:2])), clock(split[-8:].split(":"))] for split in day[17:117] if split]

with open(f"{work}/anno.csv", encoding="utf-8", newline="") as file:
    rows = list(csv.DictReader(file, strict=True))
check("dates", [row["date"] for row in rows], list(days))
for row in rows:
    day, notes = days[row["date"]]
    texts = [row[name] for name in ("route", "length_class", "pace_class", "terrain", "type", "season", "weather",
                                    "temperature", "notes")]
    check(row["date"], texts, [day[2], day[3], day[6], day[7], day[8], day[117], day[118], day[119], notes])
    check(row["date"], row["km"], f"{int(day[4])}.{int(day[5]):03d}")
    check(row["date"], row["end"], clock(day[12:15]) if any(map(int, day[12:15])) else "")
    check(row["date"], row["time"], "" if day[15] in ("", "0:00:00") else day[15])
    check(row["date"], int(row["runners"]), int(day[120]))
    check(row["date"], row["weight"], "" if day[121] == "0" else day[121])

with open(f"{work}/anno.jsonl", encoding="utf-8") as file:
    objects = [json.loads(line) for line in file]
check("objects", [{name: "" if value is None else str(value) for name, value in one.items() if name != "km"}
                  for one in objects],
      [{name: value for name, value in row.items() if name != "km"} for row in rows])
check("kilometres", [one["km"] for one in objects], [float(row["km"]) for row in rows])

with open(f"{work}/anno.splits", encoding="utf-8", newline="") as file:
    check("splits", list(csv.reader(file, strict=True)), [["date", "km", "time"]] + splits)
check("splits are there", len(splits) > 10, True)

with open(f"{work}/anno.ics", "rb") as file:
    data = file.read()
check("long lines", max(map(len, data.split(b"\r\n"))) <= 75, True)
events = icalendar.Calendar.from_ical(data).walk("VEVENT")
races = values(f"{diary}/prova/CalendarioGare")
races = [races[i:i + 15] for i in range(0, 1500, 15)]
wanted = [(datetime.date(int(race[3]), int(race[2]), int(race[1])), race[4], race[5]) for race in races if race[1] != "0"]
check("races", [(e["DTSTART"].dt, str(e["SUMMARY"]), str(e.get("LOCATION", "")))
                for e in events if str(e["CATEGORIES"].cats[0]) == "Gara"], wanted)
table = values(f"{diary}/prova/Base 10 km.tab")
start = datetime.date.fromisoformat(table[465].strip("#"))
rows = [table[i:i + 15] for i in range(0, 465, 15)]
check("plan", [e["DTSTART"].dt for e in events if str(e["CATEGORIES"].cats[0]) == "Allenamento"],
      [start + datetime.timedelta(int(row[0]) - 1) for row in rows if any(n not in ("0", "") for n in row[1:8] + row[9:12])])
check("identities", len({str(e["UID"]) for e in events}), len(events))
PYTHON
expect "what Python reads" "$(<"$work/faults")" ""

verdict
