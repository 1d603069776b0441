#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Whether the places that name the version agree: release-check.sh [VERSION]. With VERSION, whether it can be tagged, too:
# it is the one named, nothing is left as not released, bench/history.tsv has its figures, everything is committed and the
# tag is not there. The sources are those that this lies in, unless ZELVIA_SOURCES names others. The status is 1 if something
# is wrong.
set -euo pipefail
cd "${ZELVIA_SOURCES:-$(dirname "$(readlink -f "$0")")/..}"

status=0
wrong() {
  echo "release-check.sh: $*" >&2
  status=1
}
# agree WHAT GOT WANTED
agree() { [ "$2" = "$3" ] || wrong "$1 says «$2», not «$3»"; }

metainfo=packaging/desktop/org.zelvia.Zelvia.metainfo.xml
version=$(sed -n 's/^project(Zelvia VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
# Of the newest release: version, then date.
read -r changes_version changes_date < <(sed -nE 's/^## ([0-9.]+) \((.*)\)$/\1 \2/p' CHANGELOG.md | head -n 1) || true
read -r metainfo_version metainfo_date < <(
  sed -nE 's/.*<release version="([^"]*)" date="([^"]*)".*/\1 \2/p' $metainfo | head -n 1
) || true
debian_version=$(sed -nE '1s/^zelvia \((.*)\) .*/\1/p' debian/changelog)
debian_date=$(date -u -d "$(sed -n 's/^ -- .*>  //p' debian/changelog | head -n 1)" +%Y-%m-%d)

[ -n "$version" ] || wrong "CMakeLists.txt names no version"
agree debian/changelog "$debian_version" "$version"
agree CHANGELOG.md "$changes_version" "$version"
agree $metainfo "$metainfo_version" "$version"
agree "CHANGELOG.md, of the date," "$changes_date" "$debian_date"
agree "$metainfo, of the date," "$metainfo_date" "$debian_date"
# Each release of the change log has its notes for the software centres.
agree "$metainfo, of all releases," "$(sed -nE 's/.*<release version="([^"]*)".*[^/]>$/\1/p' $metainfo | tr '\n' ' ')" \
  "$(sed -nE 's/^## ([0-9.]+) .*/\1/p' CHANGELOG.md | tr '\n' ' ')"

if [ $# -gt 0 ]; then
  agree CMakeLists.txt "$version" "$1"
  ! sed -n '/^## Not released/,/^## [0-9]/p' CHANGELOG.md | grep -q '^- ' || wrong "CHANGELOG.md has changes that are not released"
  cut -f 1 bench/history.tsv 2>/dev/null | grep -qxF "$1" || wrong "bench/history.tsv has no figures of $1"
  [ -z "$(git status --porcelain)" ] || wrong "not everything is committed"
  ! git rev-parse -q --verify "refs/tags/v$1" >/dev/null || wrong "the tag v$1 is there already"
fi
exit $status
