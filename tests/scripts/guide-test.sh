#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Every page of the guide is in it, every entry, link and picture leads to something that is there, and every window and
# menu entry of the program has its place.
. "$(dirname "$0")/check.sh"
cd "$source_folder/share/guida"

links=0
for source in *.html guida.qhp; do
  while read -r link; do
    links=$((links + 1))
    page=${link%%#*}
    page=${page:-$source}
    expect "$source, «$link»: in the guide" "$(grep -c "<file>$page</file>" guida.qhp || true)" 1
    [ "$link" = "$page" ] ||
      expect "$source, «$link»: places" "$(grep -c "<a name=\"${link#*#}\">" "$page" || true)" 1
  done < <(grep -oE '(href|ref|src)="[^"]+"' "$source" | sed 's/^[a-z]*="//; s/"$//')
done
expect "links were found" "$((links > 100))" 1
expect "the files listed" "$(grep -o '<file>[^<]*' guida.qhp | sed 's/<file>//' | LC_ALL=C sort)" \
  "$(find . -name '*.html' -o -name '*.css' -o -name '*.png' | sed 's,^\./,,' | LC_ALL=C sort)"
for page in *.html; do
  iconv -f UTF-8 -t UTF-16 "$page" >/dev/null || expect "$page" "not UTF-8" UTF-8
  [ "$page" = index.html ] || expect "$page: in the contents" "$(grep -c "<section .*ref=\"$page\"" guida.qhp)" 1
  expect "$page: its title and its heading" "$(grep -o '<title>[^<]*' "$page" | sed 's/<title>//')" \
    "$(grep -o '<h1>[^<]*' "$page" | sed 's/<h1>//')"
done

# Pictures: of the kind that their name says, with a description, shown somewhere.
for picture in *.png; do
  expect "$picture: its kind" "$(identify -format '%m' "$picture")" PNG
  expect "$picture: small" "$(($(stat -c %s "$picture") < 60000))" 1
  expect "$picture: shown" "$(($(grep -l "src=\"$picture\" alt=\"[^\"]" *.html | wc -l) > 0))" 1
done
expect "pictures without words" "$(grep -n '<img' *.html | grep -v 'alt="[^"]' || true)" ""

# Every window and every entry of a menu is a topic under its name.
topics=$(grep -oE ' id="[^"]+"' guida.qhp | sed 's/ id="//; s/"$//' | sort)
expect "topics named twice" "$(uniq -d <<<"$topics")" ""
names=$(cd "$source_folder/src" && {
  grep -oE '\{"mnu[A-Za-z]+", "[^"]*", Call<&M::' windows/page/FrmMainMenus.cpp | grep -oE 'mnu[A-Za-z]+'
  # The statistics are entries by the rows of the fields.
  grep -oE '\{"[A-Za-z]+", "[^"]*", &C::' diary/Fields.h | grep -oE '^\{"[A-Za-z]+' | sed 's/^{"/mnu/'
  grep -rhoE 'Form\(QStringLiteral\("frm[A-Za-z0-9]+"' . | grep -oE 'frm[A-Za-z0-9]+'
} | sort -u)
expect "windows and menu entries were found" "$(($(wc -l <<<"$names") > 35))" 1
expect "windows and menu entries without a topic" "$(comm -13 <(sort -u <<<"$topics") <(echo "$names"))" ""

verdict
