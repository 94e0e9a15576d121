"""Italian: the list with articles and prepositions joined to the words that they are elided before.
With the straight apostrophe "dell'arte" is one word; the list itself has a few thousand of those."""

import re

from words import read_words, run

VOWEL = re.compile("^[aeiouàèéìòùh]", re.IGNORECASE)
# Forms that an article never stands before, though the pronoun "l'" may.
FINITE_VERB = re.compile(
    "(v[aio]|vamo|vate|vano|ss[ei]|ssimo|ssero|ste|rono|r[àò]|rai|remo|rete|ranno|rei|rest[ei]|"
    "remmo|rebbe|rebbero|iamo|iate|[aei]ndo|[aei]r[gms]?l[aeio]|[cmtv]i|sene)$")
ARTICLES = ("un'", "d'", "dell'", "all'", "dall'", "nell'", "sull'", "quell'", "quest'")


def italian(path):
    for word in read_words(path):
        yield word
        if not VOWEL.match(word) or "'" in word or len(word) < 3:
            continue
        yield "l'" + word
        if FINITE_VERB.search(word):
            continue
        for article in ARTICLES:
            yield article + word


run(italian)
