#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# The guide as a web site: its pages are well formed, their links lead somewhere, nothing comes from elsewhere, and on a
# telephone nothing is wider than the screen.
. "$(dirname "$0")/check.sh"
site=$work/sito
run "$source_folder/packaging/site.py" "$site"
expect "site.py" "$status|$output|$errors" "0||"
run "$source_folder/packaging/site.py"
expect "site.py without a folder" "$status|$errors" "1|usage: site.py FOLDER"
"$source_folder/packaging/site.py" "$work/altro"
expect "the same site again" "$(diff -r "$site" "$work/altro")" ""

pages=$(ls "$source_folder"/share/guida/*.html | wc -l)
expect "pages: those of the guide, and the keywords" "$(ls "$site"/*.html | wc -l)" $((pages + 1))
expect "pictures for the software centres" "$(ls "$site/immagini")" \
  "$(sed -n 's,.*<image type="source">https://zelvia.example.org/immagini/\(.*\)</image>,\1,p' \
    "$source_folder/packaging/desktop/org.zelvia.Zelvia.metainfo.xml" | LC_ALL=C sort)"

/usr/bin/python3 - "$site" "$source_folder/share/guida" <<'PYTHON' >"$work/faults" || echo "no end" >>"$work/faults"
import pathlib, re, sys
from html.parser import HTMLParser

site, guide = map(pathlib.Path, sys.argv[1:])
VOID = {"meta", "link", "img", "br", "hr", "col", "input"}
# The end of these may be left out.
OPEN = {"p", "li", "td", "tr", "dt", "dd"}


class Page(HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.path, self.stack, self.links, self.places, self.ids = path, [], [], set(), []
        self.current = 0
        self.feed(path.read_text(encoding="utf-8"))
        self.close()
        if self.stack:
            print(f"{path.name}: not closed: {self.stack}")

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        if tag in ("script", "iframe", "style") or any(name.startswith("on") for name in attributes):
            print(f"{self.path.name}: <{tag}>")
        self.links += [attributes[name] for name in ("href", "src") if name in attributes]
        self.places |= {attributes[name] for name in ("id", "name") if name in attributes}
        self.current += attributes.get("aria-current") == "page"
        if tag == "img" and not attributes.get("alt"):
            print(f"{self.path.name}: a picture without words")
        if tag not in VOID:
            self.stack.append(tag)

    def handle_endtag(self, tag):
        while self.stack and self.stack[-1] != tag and self.stack[-1] in OPEN:
            self.stack.pop()
        if not self.stack or self.stack.pop() != tag:
            print(f"{self.path.name}: </{tag}> at line {self.getpos()[0]}")


pages = {path.name: Page(path) for path in sorted(site.glob("*.html"))}
count = 0
for name, page in pages.items():
    if page.current != 1:
        print(f"{name}: {page.current} places in the contents")
    for link in page.links:
        count += 1
        target, _, place = link.partition("#")
        target = target or name
        if ":" in target or target.startswith("/"):
            print(f"{name}: leads elsewhere: {link}")
        elif not (site / target).is_file():
            print(f"{name}: leads nowhere: {link}")
        elif place and place not in pages[target].places:
            print(f"{name}: no such place: {link}")
if count < 1000:
    print(f"only {count} links")

# Nothing of the guide's text is lost.
for source in guide.glob("*.html"):
    body = re.search("<body>(.*)</body>", source.read_text(encoding="utf-8"), re.DOTALL).group(1).strip()
    if body not in (site / source.name).read_text(encoding="utf-8"):
        print(f"{source.name}: not the guide's text")
for sheet in site.glob("*.css"):
    if re.search(r"url\(|@import", sheet.read_text(encoding="utf-8")):
        print(f"{sheet.name}: loads something")
PYTHON
expect "faults of the pages" "$(<"$work/faults")" ""

for width in 390 320; do
  {
    echo '<body onload="document.title = faults.join(`; `) + ` of ` + document.querySelectorAll(`iframe`).length">'
    echo '<script>const faults = [];
      function look(frame) {
        const page = frame.contentDocument.documentElement;
        if (page.scrollWidth > page.clientWidth) faults.push(frame.getAttribute("src") + " is " + page.scrollWidth);
      }</script>'
    for page in "$site"/*.html; do
      echo "<iframe width=\"$width\" height=\"800\" style=\"border: 0\" src=\"sito/${page##*/}\" onload=\"look(this)\"></iframe>"
    done
  } >"$work/telefono.html"
  run timeout 200 chromium --headless --no-sandbox --disable-gpu --hide-scrollbars --user-data-dir="$work/chromium" \
    --allow-file-access-from-files --dump-dom "file://$work/telefono.html"
  expect "pages wider than $width" "$(grep -o '<title>.*</title>' <<<"$output")" "<title> of $((pages + 1))</title>"
done
verdict
