"""Polish: the list has over four million forms. Leaves out two kinds that are hardly ever written
and would make every check of a Polish text read several megabytes more: emphatic imperatives
("zróbcież"), and "nie-" before words that are seldom negated, which are the long verbal nouns,
participles and adjectives without an abstract noun ("nieprzycieniających")."""

from words import read_words, run

ADJECTIVE_ENDINGS = ("ego", "emu", "ymi", "imi", "ych", "ich", "ej", "ym", "im", "y", "i", "a", "ą", "e")
LONGEST_NEGATED = 12


def has_abstract_noun(word, words):
    """Whether an adjective's form has its noun in -ość, as what can be had in degrees has."""
    return any(word.endswith(ending) and word[:-len(ending)] + "ość" in words
               for ending in ADJECTIVE_ENDINGS)


def polish(path):
    words = set(read_words(path))
    for word in words:
        if word.endswith("że") and word[:-2] in words and len(word) > 5:
            continue
        if word.endswith(("cież", "myż")) and word[:-1] in words:
            continue
        if word.startswith("nie"):
            rest = word[3:]
            if rest in words and len(rest) > LONGEST_NEGATED and not has_abstract_noun(rest, words):
                continue
        yield word


run(polish)
