#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# What is in the Debian package, and what Debian's own tools say of it: package-test.sh BUILD-FOLDER
. "$(dirname "$0")/check.sh"
. "$source_folder/packaging/packages.sh"
build=$(readlink -f "$1")
package=$(ls "$build/package"/zelvia_*.deb)
export LC_ALL=C.UTF-8
field() { dpkg-deb -f "$package" "$1"; }
version=$(sed -n 's/^project(Zelvia VERSION \([0-9.]*\).*/\1/p' "$source_folder/CMakeLists.txt")

expect "the name of the file" "${package##*/}" "zelvia_${version}_$(dpkg --print-architecture).deb"
expect "the version" "$(field Version)" "$version"
expect "the newest change" "$(head -n 1 "$source_folder/debian/changelog")" "zelvia ($version) unstable; urgency=medium"
expect "the newest release" \
  "$(sed -n 's/.*<release version="\([^"]*\)".*/\1/p' "$source_folder/packaging/desktop/org.zelvia.Zelvia.metainfo.xml" | head -n 1)" \
  "$version"

expect "the files" "$(dpkg-deb -c "$package" | awk '{ print $1, $6 }' | grep -v '/$')" \
  "-rwxr-xr-x ./usr/bin/zelvia
-rwxr-xr-x ./usr/bin/zelvia-copie
-rwxr-xr-x ./usr/bin/zelvia-strumenti
-rwxr-xr-x ./usr/libexec/zelvia/zelvia
-rwxr-xr-x ./usr/libexec/zelvia/zelvia-avvio
-rwxr-xr-x ./usr/libexec/zelvia/zelvia-avviso
-rwxr-xr-x ./usr/libexec/zelvia/zelvia-finestra
-rwxr-xr-x ./usr/libexec/zelvia/zelvia-libro
-rw-r--r-- ./usr/share/applications/zelvia.desktop
-rw-r--r-- ./usr/share/bash-completion/completions/zelvia-strumenti
-rw-r--r-- ./usr/share/doc/zelvia/changelog.gz
-rw-r--r-- ./usr/share/doc/zelvia/copyright
-rw-r--r-- ./usr/share/icons/hicolor/scalable/apps/zelvia.svg
-rw-r--r-- ./usr/share/lintian/overrides/zelvia
-rw-r--r-- ./usr/share/man/man1/zelvia-copie.1.gz
-rw-r--r-- ./usr/share/man/man1/zelvia-strumenti.1.gz
-rw-r--r-- ./usr/share/man/man1/zelvia.1.gz
-rw-r--r-- ./usr/share/metainfo/org.zelvia.Zelvia.metainfo.xml
-rw-r--r-- ./usr/share/zelvia/Guida.hlp
-rw-r--r-- ./usr/share/zelvia/before-start.sh
-rw-r--r-- ./usr/share/zelvia/folder-check.sh
-rw-r--r-- ./usr/share/zelvia/mano.cur
-rw-r--r-- ./usr/share/zelvia/zelvia_en.qm"
expect "owners" "$(dpkg-deb -c "$package" | awk '{ print $2 }' | sort -u)" root/root
expect "scripts that run as root" "$(dpkg-deb -I "$package" | grep -c 'postinst\|preinst\|postrm\|prerm' || true)" 0

# What it needs: the list's packages, the libraries that its programs are linked to, and nothing that builds or tests.
# Debian 13 marks the libraries that changed with the width of its time.
depends=$(field Depends | tr ',' '\n' | sed 's/^ *//; s/ .*//; s/t64$//')
for name in $(packages_in run) libc6 libstdc++6 libqt6core6 libqt6gui6 libqt6widgets6 libqt6printsupport6 libqt6help6 libqt6sql6 \
  libqcustomplot2.1-qt6; do
  expect "depends on $name" "$(grep -cx -- "$name" <<<"$depends")" 1
done
for name in $(packages_in build package display test); do
  expect "depends on $name" "$(grep -cx -- "$name" <<<"$depends" || true)" 0
done

run lintian --allow-root --display-info --display-experimental --pedantic "$build"/package/*.changes
expect "lintian" "$output$errors" ""
for program in bin/zelvia-{copie,strumenti} libexec/zelvia/zelvia{,-avvio,-avviso,-finestra,-libro}; do
  expect "$program is bound at its start" "$(dpkg-deb --fsys-tarfile "$package" | tar -xO "./usr/$program" >"$work/program" &&
    readelf -d "$work/program" | grep -cE 'FLAGS_1.*NOW.*PIE')" 1
done
run "$source_folder/tests/scripts/sbom-test.sh" "$build" "$package"
expect "its bill of materials" "$status|$errors" "0|"
expect "that beside the package" "$("$source_folder/packaging/sbom.py" "$package" | cmp - "${package%.deb}.spdx.json" 2>&1)" ""
dpkg-deb -x "$package" "$work/tree"
run desktop-file-validate "$work/tree/usr/share/applications/zelvia.desktop"
expect "desktop-file-validate" "$status|$output$errors" "0|"
for check in "validate $work/tree/usr/share/metainfo/org.zelvia.Zelvia.metainfo.xml" "validate-tree $work/tree"; do
  run appstreamcli ${check%% *} --no-net --explain "${check#* }"
  expect "appstreamcli ${check%% *}" "$(grep '^[EW]: ' <<<"$output" || true)" ""
  expect "appstreamcli ${check%% *}: its verdict" "$(grep -c '^[✔✘] ' <<<"$output")" 1
done
for page in zelvia zelvia-copie zelvia-strumenti; do
  run man --warnings -l "$work/tree/usr/share/man/man1/$page.1.gz"
  expect "man $page: warnings" "$status|$errors" "0|"
  expect "man $page: its name" "$(grep -cE "^ +$page (-|−) " <<<"$output")" 1
done

# The manual pages list the options and commands that the programs know.
page=$(man -l "$work/tree/usr/share/man/man1/zelvia.1.gz")
run "$work/tree/usr/libexec/zelvia/zelvia" --help
for option in --oggi --informazioni --help; do
  expect "man zelvia: $option" "$(grep -cE "^ {7}$option( |$)" <<<"$page")" 1
  expect "zelvia --help: $option" "$(grep -cE "^  $option " <<<"$output")" 1
done
page=$(man -l "$work/tree/usr/share/man/man1/zelvia-copie.1.gz")
run "$work/tree/usr/bin/zelvia-copie" --help
for command in elenco confronta rimetti crea; do
  expect "man zelvia-copie: $command" "$(grep -cE "^ {7}$command( |$)" <<<"$page")" 1
  expect "zelvia-copie --help: $command" "$(grep -cE "^  $command " <<<"$output")" 1
done
page=$(man -l "$work/tree/usr/share/man/man1/zelvia-strumenti.1.gz")
run "$work/tree/usr/bin/zelvia-strumenti" --help
for word in $(sed -nE 's/^  ([a-z-]+)( .*)?$/\1/p' <<<"$output"); do
  expect "man zelvia-strumenti: $word" "$(grep -cE "^ {7}$word( |$)" <<<"$page")" 1
done
expect "zelvia-strumenti --help" "$(grep -cE '^  (anno|anni|controlla|ripara|copie|--tsv)( |$)' <<<"$output")" 6
verdict
