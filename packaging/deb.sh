#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the Debian package from a copy of the sources: deb.sh FOLDER. The copy is FOLDER/zelvia, the package and what
# belongs to it lie beside that, its bill of materials too.
set -euo pipefail

source_folder=$(dirname "$(dirname "$(readlink -f "$0")")")
mkdir -p "$1"
folder=$(readlink -f "$1")

rm -rf "$folder/zelvia"
mkdir "$folder/zelvia"
tar -C "$source_folder" --exclude=./build --exclude=./.git -c . | tar -C "$folder/zelvia" -x
cd "$folder/zelvia"
dpkg-buildpackage -b -us -uc -j"$(nproc)"
for package in "$folder"/zelvia_*.deb; do
  "$source_folder/packaging/sbom.py" "$package" >"${package%.deb}.spdx.json"
done
