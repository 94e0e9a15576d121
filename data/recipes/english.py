"""English: the list, and words that it spells with accents without them too ("clientele", "entree"), as
most people write them."""

import unicodedata

from words import read_words, run


def without_accents(word):
    return "".join(c for c in unicodedata.normalize("NFD", word) if not unicodedata.combining(c))


def english(path):
    for word in read_words(path):
        yield word
        yield without_accents(word)


run(english)
