#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Every page of the guide is in it, and every entry and link leads to a place that is there.
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
  done < <(grep -oE '(href|ref)="[^"]+"' "$source" | sed 's/^[a-z]*="//; s/"$//')
done
expect "links were found" "$((links > 40))" 1
expect "the files listed" "$(grep -o '<file>[^<]*' guida.qhp | sed 's/<file>//' | LC_ALL=C sort)" \
  "$(find . -name '*.html' -o -name '*.css' | sed 's,^\./,,' | LC_ALL=C sort)"
for page in *.html; do
  iconv -f UTF-8 -t UTF-16 "$page" >/dev/null || expect "$page" "not UTF-8" UTF-8
done
verdict
