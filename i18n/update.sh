#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Brings translations up to the texts of the sources: update.sh FILE.ts...
# A new language: copy zelvia_en.ts to zelvia_LANGUAGE.ts, see docs/adding.md.
set -eu
source_folder=$(dirname "$(dirname "$(readlink -f "$0")")")/src
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# lupdate does not know the functions of core/Tr.h, so it is handed their texts as it knows them.
find "$source_folder" -name '*.cpp' -o -name '*.h' | LC_ALL=C sort | xargs perl -0777 -ne '
  print "QT_TRANSLATE_NOOP(\"Tools\", $1)\n" while /\bTools::(?:Tr|Mark)\(\s*(R"\(.*?\)"|"(?:[^"\\]|\\.|"\s+")*")/gs' >"$work/texts.cpp"
"${QT_LUPDATE:-/usr/lib/qt6/bin/lupdate}" -silent -no-obsolete -locations none -source-language it -I "$source_folder" \
  "$source_folder/tools/desk" "$source_folder/tools/yearswindow" "$source_folder/windows/guide" "$work/texts.cpp" -ts "$@"
