#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes the guide's web site from the pages of share/guida: site.py FOLDER

Each page gets the contents of guida.qhp beside it; its keywords become a page of their own. The site needs neither a
server nor a script, and loads nothing from elsewhere. The pictures that software centres show lie in FOLDER/immagini.
"""
import html
import pathlib
import re
import shutil
import sys
import xml.etree.ElementTree as ET

SOURCES = pathlib.Path(__file__).resolve().parent.parent
GUIDE = SOURCES / "share/guida"
LICENCE = """<!-- SPDX-FileCopyrightText: 2026 The Zelvia authors -->
<!-- SPDX-License-Identifier: GPL-3.0-or-later -->"""
KEYWORDS = "indice-analitico.html"


def link(target, text, extra=""):
    return f'<a href="{html.escape(target)}"{extra}>{html.escape(text)}</a>'


def contents(sections, page):
    """The sections as nested lists; what is below a page is shown on that page only."""
    items = []
    for section in sections:
        target = section.get("ref")
        here = ' aria-current="page"' if target == page else ""
        below = section.findall("section") if target.split("#")[0] == page else []
        items.append(f"<li>{link(target, section.get('title'), here)}{contents(below, page)}</li>")
    return "\n<ul>\n" + "\n".join(items) + "\n</ul>" if items else ""


def neighbours(chapters, page):
    names = [chapter.get("ref") for chapter in chapters]
    if page not in names:
        return ""
    place = names.index(page)
    links = []
    if place > 0:
        links.append(link(names[place - 1], "← " + chapters[place - 1].get("title"), ' rel="prev"'))
    if place + 1 < len(names):
        links.append(link(names[place + 1], chapters[place + 1].get("title") + " →", ' rel="next"'))
    return '\n<nav class="accanto" aria-label="Pagine vicine">\n' + "\n".join(links) + "\n</nav>"


def whole(title, body, chapters, page):
    current = ' aria-current="page"' if page == KEYWORDS else ""
    return f"""<!DOCTYPE html>
{LICENCE}
<html lang="it">
<head>
<meta charset="UTF-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{title}</title>
<link rel="stylesheet" type="text/css" href="guida.css">
<link rel="stylesheet" type="text/css" href="sito.css">
</head>
<body>
<header>{link("index.html", "Guida di Zelvia")} {link("#indice", "Indice", ' class="solo-stretto"')}</header>
<div class="insieme">
<main>
{body.strip()}{neighbours(chapters, page)}
</main>
<nav class="indice" id="indice" aria-label="Indice">{contents(chapters, page)}
<p>{link(KEYWORDS, "Indice analitico", current)}</p>
</nav>
</div>
</body>
</html>
"""


def keyword_page(project):
    entries = {(word.get("name"), word.get("ref")) for word in project.iter("keyword") if word.get("name")}
    items = [f"<li>{link(target, name)}</li>" for name, target in sorted(entries, key=lambda e: (e[0].casefold(), e))]
    return "<h1>Indice analitico</h1>\n<ul>\n" + "\n".join(items) + "\n</ul>"


def main(folder):
    project = ET.parse(GUIDE / "guida.qhp").getroot()
    top = project.find(".//toc/section")
    chapters = [ET.Element("section", title=top.get("title"), ref=top.get("ref")), *top.findall("section")]
    folder.mkdir(parents=True, exist_ok=True)
    for name in (file.text for file in project.iter("file")):
        if not name.endswith(".html"):
            shutil.copyfile(GUIDE / name, folder / name)
            continue
        source = (GUIDE / name).read_text(encoding="utf-8")
        title = re.search(r"<title>(.*?)</title>", source).group(1)
        body = re.search(r"<body>(.*)</body>", source, re.DOTALL).group(1)
        (folder / name).write_text(whole(title, body, chapters, name), encoding="utf-8")
    (folder / KEYWORDS).write_text(whole("Indice analitico", keyword_page(project), chapters, KEYWORDS), encoding="utf-8")
    shutil.copyfile(SOURCES / "packaging/site.css", folder / "sito.css")
    (folder / "immagini").mkdir(exist_ok=True)
    for image in ET.parse(SOURCES / "packaging/desktop/org.zelvia.Zelvia.metainfo.xml").iter("image"):
        name = image.text.rsplit("/", 1)[-1]
        shutil.copyfile(SOURCES / "docs" / name, folder / "immagini" / name)


if len(sys.argv) != 2:
    sys.exit("usage: site.py FOLDER")
main(pathlib.Path(sys.argv[1]))
