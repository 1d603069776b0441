#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The manifest of the Flatpak: what the sandbox may do, what is built in it, and what it starts. It is not built here.
. "$(dirname "$0")/check.sh"
folder=$source_folder/packaging/flatpak

/usr/bin/python3 - "$folder/org.zelvia.Zelvia.yml" "$source_folder" <<'PYTHON' >"$work/faults" || echo "no end" >>"$work/faults"
import pathlib, re, sys
import yaml

path, sources = sys.argv[1:]
with open(path, encoding="utf-8") as file:
    manifest = yaml.safe_load(file)


def check(what, got, wanted):
    if got != wanted:
        print(f"{what}: {got!r} instead of {wanted!r}")


metainfo = pathlib.Path(sources, "packaging/desktop/org.zelvia.Zelvia.metainfo.xml").read_text(encoding="utf-8")
check("id", f"<id>{manifest['id']}</id>" in metainfo, True)
check("the name of the file", pathlib.Path(path).stem, manifest["id"])
check("the entry in the menu", pathlib.Path(sources, "packaging/desktop", manifest["rename-desktop-file"]).is_file(), True)
check("the icon", pathlib.Path(sources, "packaging/desktop", manifest["rename-icon"] + ".svg").is_file(), True)
arguments = manifest["finish-args"]
check("folders", [a for a in arguments if a.startswith(("--filesystem", "--persist"))], ["--filesystem=~/Zelvia:create"])
check("the rest", sorted(a for a in arguments if not a.startswith("--filesystem")),
      ["--device=dri", "--share=ipc", "--socket=cups", "--socket=fallback-x11", "--socket=wayland"])
# What CMakeLists.txt looks for besides the toolkit.
found = set(re.findall(r"find_package\((?!Qt6)(\w+)", pathlib.Path(sources, "CMakeLists.txt").read_text(encoding="utf-8")))
check("libraries", found, {"LibIcal", "QCustomPlotQt6", "qpdf"})
check("modules", [m["name"] for m in manifest["modules"]], ["libical", "qcustomplot", "qpdf", "fonts", "zelvia"])
for module in manifest["modules"]:
    check(f"{module['name']}: sources", [s["type"] for s in module["sources"] if s["type"] != "dir"], [])
own = manifest["modules"][-1]
check("its sources", pathlib.Path(path).parent.joinpath(own["sources"][0]["path"]).resolve(), pathlib.Path(sources))
check("what is installed", f"packaging/flatpak/{manifest['command']}.sh /app/bin/{manifest['command']}" in own["build-commands"][-1], True)
PYTHON
expect "faults of the manifest" "$(<"$work/faults")" ""

# What the sandbox starts, with the program replaced.
mkdir "$work/bin"
printf '#!/bin/sh\nprintf "<%%s>" "$@"\n' >"$work/bin/zelvia"
chmod +x "$work/bin/zelvia"
export PATH=$work/bin:$PATH HOME=/home/anna
run "$folder/zelvia-flatpak.sh"
expect "without a word" "$output" "<--></home/anna/Zelvia>"
run "$folder/zelvia-flatpak.sh" --oggi 2026-05-22
expect "with words" "$output" "<--oggi><2026-05-22>"
verdict
