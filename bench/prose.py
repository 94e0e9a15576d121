"""Prose in many languages from Debian's packages, for measuring dictionaries: the desktop's translated
manual (package gnome-user-docs) and the translated manual pages (packages manpages-XX). No dictionary is
made from any of it."""

import gzip
import html
import re
import xml.etree.ElementTree as ElementTree
from collections import Counter
from pathlib import Path

HELP = Path("/usr/share/help")
MANUAL_PAGES = Path("/usr/share/man")
OFFICE_HELP = Path("/usr/share/libreoffice/help")
# Elements whose text is no prose, or not translated.
NO_PROSE = {"code", "cmd", "file", "key", "keyseq", "input", "output", "app", "sys", "screen", "info", "credit",
            "media"}
WORD = re.compile(r"[^\W\d_]+(?:['’][^\W\d_]+)*")
ADDRESS = re.compile(r"\S*[/@]\S*|\S+\.\w+\b")


def name_of(element):
    return element.tag.rpartition("}")[2] if isinstance(element.tag, str) else "comment"


def text_of(element):
    if name_of(element) in NO_PROSE | {"comment"}:
        return " "
    return (element.text or "") + "".join(text_of(child) + (child.tail or "") for child in element)


def paragraphs(language):
    """The paragraphs of the manual in a language ("C": English)."""
    found = []
    for page in sorted((HELP / language / "gnome-help").glob("*.page")):
        try:
            root = ElementTree.parse(page).getroot()
        except ElementTree.ParseError:
            continue
        found += [" ".join(text_of(element).split()) for element in root.iter()
                  if name_of(element) in ("p", "title", "desc")]
    return found


def manual_pages(language):
    """The lines of the manual pages in a language, without their markup."""
    for page in sorted((MANUAL_PAGES / language).glob("man*/*.gz")):
        with gzip.open(page, "rt", encoding="utf-8", errors="replace") as lines:
            for line in lines:
                if line[:1] in ".'":
                    continue
                line = re.sub(r"\\f[BI].*?\\f[PR]", " ", line)
                yield re.sub(r"\\(\(..|\[[^]]*\]|\*\(..|f.|.)",
                             lambda escape: {"-": "-", "&": ""}.get(escape[1], " "), line)


def office_help(language):
    """The distinct paragraphs of the office programs' help in a language, without its programming pages."""
    found = set()
    for page in sorted((OFFICE_HELP / language / "text").glob("s[!b]*/**/*.html")):
        text = re.sub(r'(?s)<code.*?</code>|<span class="(?:literal|input)">.*?</span>', " ", page.read_text("utf-8"))
        for paragraph in re.findall(r'(?s)<(?:p|h\d) id="(?:par|hd)_[^>]*>(.*?)</(?:p|h\d)>', text):
            found.add(" ".join(html.unescape(re.sub("<[^>]*>", "", paragraph)).split()))
    return found


def words_of(texts):
    """{word as written: how often}, without addresses, single letters and words in capitals."""
    counts = Counter()
    for text in texts:
        counts.update(word.replace("’", "'") for word in WORD.findall(ADDRESS.sub(" ", text))
                      if len(word) > 1 and not word.isupper())
    return counts


def manual(language):
    """Words of the desktop's manual; paragraphs that are not translated are left out."""
    english = set(paragraphs("C")) if language != "C" else set()
    return words_of(text for text in paragraphs(language) if text not in english)


def office(language):
    """The same of the office programs' help."""
    english = office_help("en-US") if language != "en-US" else set()
    return words_of(office_help(language) - english)
