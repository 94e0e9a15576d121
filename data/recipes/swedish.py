"""Swedish: every form of the stems in the affix dictionary, which has the common compounds that the
plain list lacks; without its digits, symbols and parts of compounds."""

from affixes import expand
from words import run


def swedish(affixes, stems):
    for word in expand(affixes, stems):
        if word.replace("-", "").isalpha() and not word.startswith("-") and not word.endswith("-"):
            yield word


run(swedish)
