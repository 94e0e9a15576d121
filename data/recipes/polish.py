"""Polish: the list has over four million forms. Leaves out kinds that are hardly ever written and
would make every check of a Polish text read several megabytes more: emphatic imperatives
("zróbcież"); "nie-" before words that are seldom negated, which are the long verbal nouns,
participles and adjectives without an abstract noun ("nieprzycieniających"), adjectives of places,
peoples and trades ("niekarakałpackich") and plurals of verbal nouns; and what we or you all would
do with verbs that nobody uses in the past ("wyskarżyłybyście")."""

import re

from in_use import counted_words
from words import read_words, run

ADJECTIVE_ENDINGS = ("ego", "emu", "ymi", "imi", "ych", "ich", "ej", "ym", "im", "y", "i", "a", "ą", "e")
LONGEST_NEGATED = 12
ADJECTIVE_OF_PLACE = re.compile("^.{6,}[sc]k(?:i|a|ie|iego|iemu|iej|im|imi|ich|ą)$")
VERBAL_NOUN_PLURAL = re.compile("^(.*[nc]i)(?:om|ami|ach)$")
CONDITIONAL = re.compile("^(.*)(?:li|ły)by(?:śmy|ście)$")
PAST_ENDINGS = ("ł", "ła", "ło", "li", "ły")


def has_abstract_noun(word, words):
    """Whether an adjective's form has its noun in -ość, as what can be had in degrees has."""
    return any(word.endswith(ending) and word[:-len(ending)] + "ość" in words
               for ending in ADJECTIVE_ENDINGS)


def is_seldom_negated(word, words):
    if len(word) > LONGEST_NEGATED and not has_abstract_noun(word, words):
        return True
    verbal = VERBAL_NOUN_PLURAL.match(word)
    return bool(ADJECTIVE_OF_PLACE.match(word) or (verbal and verbal[1] + "em" in words))


def is_rare(word, words, used):
    """Whether this is one of the kinds that are left out, with no word in use in it."""
    if word.endswith("że") and word[:-2] in words and len(word) > 5:
        return True
    if word.endswith(("cież", "myż")) and word[:-1] in words:
        return True
    if word.startswith("nie") and word[3:] in words and word[3:] not in used and is_seldom_negated(word[3:], words):
        return True
    conditional = CONDITIONAL.match(word)
    return bool(conditional) and used.isdisjoint(conditional[1] + ending for ending in PAST_ENDINGS)


def polish(path, model):
    words = set(read_words(path))
    used = {word.lower() for word, _ in counted_words(model)}
    return (word for word in words if word in used or not is_rare(word, words, used))


run(polish)
