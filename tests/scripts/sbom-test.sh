#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The bill of materials of a Debian package: each file and each package it needs, the same bytes each time.
# sbom-test.sh BUILD-FOLDER [PACKAGE]: of a small package made here, or of the one given.
. "$(dirname "$0")/check.sh"
. "$source_folder/packaging/packages.sh"
package=${2:-}
if [ -z "$package" ]; then
  mkdir -p "$work/tree/DEBIAN" "$work/tree/usr/bin" "$work/tree/usr/share/zelvia"
  printf 'abc' >"$work/tree/usr/bin/zelvia"
  printf '' >"$work/tree/usr/share/zelvia/più"
  ln -s zelvia "$work/tree/usr/bin/altro"
  cat >"$work/tree/DEBIAN/control" <<CONTROL
Package: zelvia
Version: 9.8.7
Architecture: amd64
Maintainer: The Zelvia authors <zelvia@example.org>
Description: diario
Depends: $(packages_in run | paste -sd, | sed 's/,/, /g'), libc6 (>= 2.34), libstdc++6 (>= 11) | zelvia-no-such, zelvia-nowhere
CONTROL
  package=$work/zelvia_9.8.7_amd64.deb
  dpkg-deb --root-owner-group -b "$work/tree" "$package" >/dev/null
fi
"$source_folder/packaging/sbom.py" "$package" >"$work/sbom"
TZ=Pacific/Kiritimati LC_ALL=C "$source_folder/packaging/sbom.py" "$(realpath --relative-to=. "$package")" >"$work/again"
expect "the same bytes again" "$(cmp "$work/sbom" "$work/again" 2>&1)" ""

/usr/bin/python3 - "$work/sbom" "$package" "${2:+real}" $(packages_in run) <<'PYTHON' >"$work/faults" || echo "no end" >>"$work/faults"
import json, re, subprocess, sys

sbom, package, real, *needed = sys.argv[1:]
with open(sbom, encoding="utf-8") as file:
    document = json.load(file)


def check(what, got, wanted):
    if got != wanted:
        print(f"{what}: {got!r} instead of {wanted!r}")


def shell(command):
    return subprocess.run(command, shell=True, capture_output=True, check=True, text=True).stdout


own, *depends = document["packages"]
files = document["files"]
check("version of SPDX", document["spdxVersion"], "SPDX-2.3")
check("licence of the data", document["dataLicense"], "CC0-1.0")
check("time", bool(re.fullmatch(r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ", document["creationInfo"]["created"])), True)
check("version", own["versionInfo"], shell(f"dpkg-deb -f '{package}' Version").strip())
check("checksum", own["checksums"][0]["checksumValue"], shell(f"sha256sum '{package}'").split()[0])

names = [entry["name"] for entry in depends]
for name in needed:
    check(name, names.count(name), 1)
clauses = shell(f"dpkg-deb -f '{package}' Depends").split(",")
check("packages needed", len(names), len(clauses))
for entry in depends:
    known = subprocess.run(["dpkg-query", "-W", "-f", "${Version}", entry["name"]], capture_output=True, text=True)
    check(f"version of {entry['name']}", entry.get("versionInfo"), known.stdout if known.returncode == 0 else None)

listed = [line.split(None, 5)[5] for line in shell(f"LC_ALL=C.UTF-8 dpkg-deb -c '{package}'").splitlines() if line.startswith("-")]
check("files", sorted(file["fileName"] for file in files), sorted(listed))
sums = {file["fileName"]: {sum["algorithm"]: sum["checksumValue"] for sum in file["checksums"]} for file in files}
if not real:
    check("SHA-1 of abc", sums["./usr/bin/zelvia"]["SHA1"], "a9993e364706816aba3e25717850c26c9cd0d89d")
    check("SHA-256 of abc", sums["./usr/bin/zelvia"]["SHA256"], "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad")
    # The SHA-1 sums of both files in order, one after the other.
    code = shell("printf %s a9993e364706816aba3e25717850c26c9cd0d89dda39a3ee5e6b4b0d3255bfef95601890afd80709 | sha1sum").split()[0]
    check("verification code", own["packageVerificationCode"]["packageVerificationCodeValue"], code)
    check("a constraint", depends[names.index("libstdc++6")]["comment"], "needed: >= 11")
    check("its address", depends[names.index("libstdc++6")]["externalRefs"][0]["referenceLocator"].split("@")[0],
          "pkg:deb/debian/libstdc%2B%2B6")

ids = [document["SPDXID"]] + [entry["SPDXID"] for entry in document["packages"] + files]
check("names used twice", len(ids), len(set(ids)))
for name in ids:
    if not re.fullmatch(r"SPDXRef-[A-Za-z0-9.-]+", name):
        print(f"no name: {name}")
relations = {(r["spdxElementId"], r["relationshipType"], r["relatedSpdxElement"]) for r in document["relationships"]}
check("relations", relations, {(ids[0], "DESCRIBES", own["SPDXID"])}
      | {(own["SPDXID"], "CONTAINS", file["SPDXID"]) for file in files}
      | {(own["SPDXID"], "DEPENDS_ON", entry["SPDXID"]) for entry in depends})
PYTHON
expect "faults" "$(<"$work/faults")" ""
verdict
