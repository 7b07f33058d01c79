#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Holds the users' guide against the program that it tells of.

usage: guide.py ROOT     prints "file: what is wrong" for each finding; exit 0 none, 1 some

Every form has its page and every page is reached from index.html; links and pictures lead somewhere; what stands in
<q> is a text of the program, letter for letter. There "…" is what the program fills in, <br> its line end, and the
blanks around a text and the marks of its keys don't count.
"""
import re
import sys
from html.parser import HTMLParser
from pathlib import Path

SOURCES = ("app", "core", "parties", "lists", "files", "upkeep", "qt")
# What the guide's viewer understands, and <q>, whose look is the style sheet's.
TAGS = {"html", "head", "meta", "title", "link", "body", "h1", "h2", "h3", "p", "br", "ul", "ol", "li", "table", "tr",
        "th", "td", "a", "img", "q", "b", "i", "code", "span", "div"}
LONE_TAGS = {"meta", "link", "br", "img"}
LITERAL = re.compile(r'u?"((?:[^"\\\n]|\\.)*)"(?:_s|_L1)?')
SKIPPED = re.compile(r"//[^\n]*|/\*.*?\*/|'(?:[^'\\\n]|\\.)+'", re.S)
ESCAPES = {"n": "\n", "r": "\n", "t": "\t", "0": "\0"}
FARSI_YEH = "\u06cc"
ARABIC_KAF = "\u0643"


def unescaped(literal):
    literal = re.sub(r"\\u([0-9A-Fa-f]{4})", lambda m: chr(int(m[1], 16)), literal)
    return re.sub(r"\\(.)", lambda m: ESCAPES.get(m[1], m[1]), literal)


def texts_of(source):
    """The lines of a source's texts; literals that follow each other, or are joined by +, are one text."""
    token = re.compile(SKIPPED.pattern + "|" + LITERAL.pattern, re.S)
    joined, end = [], None
    for match in token.finditer(source):
        if match[1] is None:
            continue
        between = source[end:match.start()] if end is not None else "x"
        if re.fullmatch(r"\s*\+?\s*", re.sub(r"//[^\n]*", "", between)):
            joined[-1] += unescaped(match[1])
        else:
            joined.append(unescaped(match[1]))
        end = match.end()
    return {without_marks(line) for text in joined for line in text.split("\n")}


def without_marks(text):
    return re.sub(r"&(?=\S)", "", text).strip()


class Page(HTMLParser):
    """A page's links, pictures, quoted texts and other text."""

    def __init__(self, path):
        super().__init__(convert_charrefs=True)
        self.links, self.pictures, self.quoted, self.faults = [], [], [], []
        self.text = ""
        self._open = []
        self.feed(path.read_text(encoding="utf-8"))
        self.faults += [f"<{tag}> is not closed" for tag in self._open]

    def handle_starttag(self, tag, attributes):
        given = dict(attributes)
        if tag not in TAGS:
            self.faults.append(f"<{tag}> is not understood where the guide is shown")
        if tag == "html" and (given.get("dir"), given.get("lang")) != ("rtl", "fa"):
            self.faults.append('<html> is not dir="rtl" lang="fa"')
        if tag in ("a", "link"):
            self.links.append(given.get("href", ""))
        elif tag == "img":
            self.pictures.append(given.get("src", ""))
            if not given.get("alt"):
                self.faults.append(f"{given.get('src')} has no alt")
        elif tag == "q":
            self.quoted.append("")
        elif tag == "br" and self._open[-1] == "q":
            self.quoted[-1] += "\n"
        if tag not in LONE_TAGS:
            self._open.append(tag)

    def handle_endtag(self, tag):
        if not self._open or self._open.pop() != tag:
            self.faults.append(f"</{tag}> closes something else")

    def handle_data(self, data):
        if self._open and self._open[-1] == "q":
            self.quoted[-1] += data
        else:
            self.text += data


def forms_of(root):
    forms = set(re.findall(r'catalogue\.add\(u"(\w+)"', (root / "app/catalogue.cpp").read_text(encoding="utf-8")))
    for folder in SOURCES:
        for header in (root / folder).glob("frm*.h"):
            forms.update(re.findall(r"^class (frm\w+) : public", header.read_text(encoding="utf-8"), re.M))
    return sorted(forms)


def program_texts(root):
    texts = set()
    for folder in SOURCES:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                texts |= texts_of(path.read_text(encoding="utf-8"))
    return texts


def page_findings(page, folder, texts):
    yield from page.faults
    for target in page.links + page.pictures:
        if not (folder / target.partition("#")[0]).is_file():
            yield f"{target} does not exist"
    for quoted in page.quoted:
        for piece in re.split("[…\n]", quoted):
            if piece.strip() and piece.strip() not in texts:
                yield f"the program does not say: {piece.strip()}"
    if FARSI_YEH in page.text or ARABIC_KAF in page.text:
        yield "has a yeh or kaf that the program does not write with: a search would pass over it"


def reached_from(name, pages):
    reached, waiting = set(), [name]
    while waiting:
        name = waiting.pop()
        if name in pages and name not in reached:
            reached.add(name)
            waiting += [link.partition("#")[0] for link in pages[name].links]
    return reached


def pictures_findings(folder, pages):
    listed = {line.split()[0] + ".png" for line in (folder / "pictures.txt").read_text(encoding="utf-8").splitlines()
              if line.strip() and not line.startswith("#")}
    shown = {Path(picture).name for page in pages.values() for picture in page.pictures}
    for name in sorted(listed ^ shown):
        yield f"pictures.txt: {name} is {'shown on no page' if name in listed else 'not listed'}"


def check(root):
    root = Path(root)
    folder = root / "docs/guide"
    pages = {path.name: Page(path) for path in sorted(folder.glob("*.html"))}
    texts = program_texts(root)
    for name, page in pages.items():
        for fault in page_findings(page, folder, texts):
            yield f"docs/guide/{name}: {fault}"
    for form in forms_of(root):
        if form + ".html" not in pages:
            yield f"docs/guide: {form} has no page"
    for name in sorted(set(pages) - reached_from("index.html", pages)):
        yield f"docs/guide/{name}: no way leads here from index.html"
    for fault in pictures_findings(folder, pages):
        yield f"docs/guide/{fault}"


def main(arguments):
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    found = list(check(arguments[0]))
    for finding in found:
        print(finding)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
