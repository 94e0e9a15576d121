"""Spanish: every form of the stems in the affix dictionary (the plain list has the stems alone)."""

import re

from affixes import expand
from words import run

FUTURE_SUBJUNCTIVE = re.compile(r"^(.*(?:[aá]|[ié]|ie|e|u))re(|s|n|mos|is)$")
WITHOUT_ACCENT = str.maketrans("áé", "ae")


def spanish(affixes, stems):
    words = {part for form in expand(affixes, stems) for part in form.split()}
    for word in words:
        # Nobody writes the future subjunctive any more, and it is what a future without its accent
        # looks like ("tomare" for "tomaré"). It has a twin in the imperfect subjunctive ("tomase")
        # and the stem of a preterite ("tomaron"), which the present of other verbs ("espere") lacks.
        match = FUTURE_SUBJUNCTIVE.match(word)
        if match:
            stem, ending = match.groups()
            if stem + "se" + ending in words and stem.translate(WITHOUT_ACCENT) + "ron" in words:
                continue
        yield word


run(spanish)
