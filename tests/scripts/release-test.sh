#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The versions agree everywhere, and the steps of docs/releasing.md lead to a tag, in a repository of the test's own.
. "$(dirname "$0")/check.sh"
check=$source_folder/packaging/release-check.sh
metainfo=packaging/desktop/org.zelvia.Zelvia.metainfo.xml

run "$check"
expect "the sources" "$status|$output|$errors" "0||"

export ZELVIA_SOURCES=$work/sorgenti HOME=$work GIT_CONFIG_NOSYSTEM=1
mkdir "$ZELVIA_SOURCES"
cd "$source_folder"
cp --parents CMakeLists.txt CHANGELOG.md debian/changelog $metainfo bench/history.sh "$ZELVIA_SOURCES"
cd "$ZELVIA_SOURCES"
git init -q
git config user.name Prova
git config user.email prova@example.org
commit() { git add -A && git commit -qm "$1"; }
commit "As they are"

# complains WHAT TEXT: the check, with the version given or none, finds this and nothing else.
complains() {
  run "$check" ${version:+$version}
  expect "$1" "$status|$output|$errors" "1||release-check.sh: $2"
}

# Version 2.5.0, a place after the other.
raise() {
  case $1 in
    CMakeLists.txt) sed -i 's/^project(Zelvia VERSION [0-9.]*/project(Zelvia VERSION 2.5.0/' CMakeLists.txt ;;
    debian)
      printf 'zelvia (2.5.0) unstable; urgency=medium\n\n  * Prova.\n\n -- Prova <prova@example.org>  Mon, 03 May 2027 01:00:00 +0200\n\n' |
        cat - debian/changelog >changelog
      mv changelog debian/changelog
      ;;
    CHANGELOG.md)
      { printf '# What changed\n\n## Not released\n\n## 2.5.0 (2027-05-02)\n'; sed '1,/^## Not released/d' CHANGELOG.md; } >changes
      mv changes CHANGELOG.md
      ;;
    metainfo)
      sed -i 's,^  <releases>,&\n    <release version="2.5.0" date="2027-05-02">\n    <description><p>Prova.</p></description></release>,' $metainfo
      ;;
  esac
}
places=(CMakeLists.txt debian CHANGELOG.md metainfo)
for place in "${places[@]}"; do
  for other in "${places[@]}"; do
    [ "$other" = "$place" ] || raise "$other"
  done
  run "$check"
  expect "all but $place" "$status|$((${#errors} > 0))" "1|1"
  git checkout -q .
done
for place in "${places[@]}"; do
  raise "$place"
done
run "$check"
expect "all" "$status|$errors" "0|"
# Midnight has not come in Greenwich: the day is that of the 2nd.
sed -i 's/(2027-05-02)/(2027-05-03)/' CHANGELOG.md
complains "another date" "CHANGELOG.md, of the date, says «2027-05-03», not «2027-05-02»"
sed -i 's/(2027-05-03)/(2027-05-02)/' CHANGELOG.md

version=2.5.0
printf 'version\tStart\n2.5.0\t1.2\n' >bench/history.tsv
complains "not committed" "not everything is committed"
commit "Release 2.5.0"
run "$check" 2.5.0
expect "ready" "$status|$output|$errors" "0||"
version=2.5.1
complains "another version" "CMakeLists.txt says «2.5.0», not «2.5.1»
release-check.sh: bench/history.tsv has no figures of 2.5.1"
version=2.5.0
git rm -q bench/history.tsv && commit "Without figures"
complains "no figures" "bench/history.tsv has no figures of 2.5.0"
git revert --no-edit HEAD >/dev/null
sed -i 's/^## Not released/&\n\n- Altro./' CHANGELOG.md
commit "More"
complains "more to come" "CHANGELOG.md has changes that are not released"
git revert --no-edit HEAD >/dev/null
git tag v2.5.0
complains "tagged" "the tag v2.5.0 is there already"
verdict
