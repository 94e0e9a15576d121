"""Italian: the forms of an affix dictionary, with fewer pronouns hung on than it allows, and with
articles and prepositions joined to the words that they are elided before. With the straight
apostrophe "dell'arte" is one word; a typical noun is written with a handful of them."""

import re

from affixes import read_rules
from words import read_words, run

# Rules that hang one or two pronouns on every form of a verb, over two million words in all.
PRONOUN_RULES = "EIDKhLv"
# Rules that count from one to a million in one word.
NUMBER_RULES = '!(|&"$£'
PRONOUNS = ("mi", "ti", "ci", "vi", "lo", "la", "li", "le", "gli", "ne", "si")
TWO_PRONOUNS = ("sene", "cela", "sela", "selo")
# Rules that count from one to a million in one word.
NUMBER_RULES = '!(|&"$£'
# The stem is a noun or adjective that articles stand before.
TAKES_ARTICLE = "T"
VOWEL = re.compile("^[aeiouàèéìòùh]", re.IGNORECASE)
FINITE_VERB = re.compile(
    "(v[aio]|vamo|vate|vano|ss[ei]|ssimo|ssero|ste|sti|rono|r[àò]|rai|remo|rete|ranno|rei|rest[ei]|"
    "remmo|rebbe|rebbero|iamo|iate|[aeo]no)$")
# What a rule adds when it hangs pronouns on an imperative or participle ("-temelo", "-mocelo").
HUNG = re.compile(
    "(mo|te|t[oai]|nt[ei])"
    "((me|te|ce|ve|se|glie)(lo|la|li|le|ne)|mi|ti|ci|vi|lo|la|li|le|gli|ne|si)(si|ci|ti|vi)?$")
ARTICLES = ("dell'", "all'", "dall'", "nell'", "sull'", "un'", "d'", "quell'", "quest'")
COMMON_ARTICLES = 5


def with_pronouns(form):
    """What ordinary text has of a verb with pronouns: infinitives and gerunds."""
    if re.search("[aei]re$", form):
        for pronoun in PRONOUNS + TWO_PRONOUNS:
            yield form[:-1] + pronoun
    elif re.search("[ae]ndo$", form):
        for pronoun in PRONOUNS:
            yield form + pronoun


def elided(form, flags, verb):
    """The form with what may stand before it: articles before a singular, and before forms of a verb
    that are nouns as often ("acquisto", "offerta")."""
    yield "l'" + form
    noun = form.endswith(("o", "a")) if verb else TAKES_ARTICLE in flags and not form.endswith(("i", "he"))
    if noun and not FINITE_VERB.search(form) and "issim" not in form:
        for article in ARTICLES[:COMMON_ARTICLES if verb else None]:
            yield article + form


def italian(plain, affixes, stems):
    yield from read_words(plain)
    rules, _ = read_rules(affixes)
    for line in list(read_words(stems))[1:]:
        stem, _, flags = line.partition("/")
        if not stem.isalpha():
            continue
        verb = any(flag in PRONOUN_RULES for flag in flags)
        forms = {stem}
        for flag in flags:
            if flag in NUMBER_RULES:
                continue
            longest = 1 if flag in PRONOUN_RULES else 99
            forms |= {rule.apply(stem) for rule in rules.get(flag, ())
                      if not rule.is_prefix and len(rule.add) <= longest and not HUNG.search(rule.add)}
        for form in forms - {None}:
            yield form
            if verb:
                yield from with_pronouns(form)
            if VOWEL.match(form) and len(form) > 2:
                yield from elided(form, flags, verb)


run(italian)
