"""French: the list with the words that lose their vowel before another vowel joined on.
With the straight apostrophe "l'homme" is one word; the list has no such forms."""

import re

from words import read_words, run

VOWEL = re.compile("^[aeiouyàâéèêëîïôûœh]", re.IGNORECASE)
# Words that nothing is elided before although they begin with a vowel or h.
CONSONANT_LIKE = re.compile(
    "y[aeou]|onz|oui$|ouistiti|uhlan|ululer|"
    "hab(la|leu)|hach|hadd|hadj|hagard|hai[eln]|haï|halag|halet|hall(e|$)|halogène$|halt(e|es)$|hamac|"
    "hameau|hammam|hamp|hamster|hanch|hand|hangar|hanneton|hant|happ|haqu|harangu|haras|harc|hard|harem|"
    "hareng|hargn|haricot|harn|haro$|harp[eoi]|hasard|hauban|hauss|haut|havr|hâbl|hâl|hât|hâv|hein$|hennir|"
    "henniss|hère|hériss|hernie|héron|héros$|hers[ae]|hêtr|heurt|hibou|hic$|hid(eur|eu)|hiérarch|hip|hiss|"
    "hobby|hoch|hockey|holland|homard|hongr|honn|hont|hoquet|horde|hors|hott|hou|hoyau|hublot|huch|hu[ée]|"
    "huit(?!r)|hulott|hulul|hune|hupp|hurl|huron|hussard|hutt", re.IGNORECASE)

INFINITIVES = ("er", "ir", "re", "oir")
# Endings of finite verbs, by what may stand before them.
FIRST_PERSON = ("e", "ai", "ais", "erai", "erais", "irai", "irais", "rai", "rais", "is", "issais")
OTHER_PERSON = ("es", "as", "a", "ons", "ez", "ent", "ait", "ions", "iez", "aient", "eras", "era", "erons",
                "erez", "eront", "erait", "erions", "eriez", "eraient", "iras", "ira", "irons", "irez",
                "iront", "irait", "irions", "iriez", "iraient", "ras", "ra", "rons", "rez", "ront", "rait",
                "rions", "riez", "raient", "it", "issons", "issez", "issent", "issait", "issions",
                "issiez", "issaient", "èrent", "irent", "urent", "ut", "us")
# Forms that only old books have; nothing is joined to them.
LITERARY = re.compile("(ass(e|es|ions|iez|ent)|iss(ions|iez)|uss(e|es|ions|iez|ent)|[âîû](t|mes|tes))$")
# Endings that nouns, adjectives and participles share with verbs.
AMBIGUOUS = re.compile("(e|es|er|ir|ant|ent|ions?|it|is|us|ais|ait|ut|ons)$")


def is_finite_verb(word, endings, words):
    for ending in endings:
        if word.endswith(ending):
            stem = word[:-len(ending)]
            if len(stem) > 1 and any(stem + infinitive in words for infinitive in INFINITIVES):
                return True
    return False


def joined(word, words):
    """The elided words that may stand before `word`."""
    if LITERARY.search(word) and not word.endswith(("ât", "ît", "ût")):
        noun = not is_finite_verb(word, ("asse", "asses", "assions", "assiez", "assent", "âmes", "âtes"),
                                  words)
        return ("l'", "d'") if noun else ()
    first = is_finite_verb(word, FIRST_PERSON, words)
    other = is_finite_verb(word, OTHER_PERSON, words)
    infinitive = word.endswith(INFINITIVES)
    result = []
    if first:
        result += ["j'", "n'", "m'", "t'", "l'"]
    if other:
        result += ["n'", "s'", "m'", "t'", "l'"]
    if infinitive:
        result += ["n'", "s'", "m'", "t'", "l'", "d'"]
    if word.endswith("ant"):
        result += ["n'", "s'", "m'", "t'"]
    if not (first or other) or AMBIGUOUS.search(word):
        result += ["l'", "d'"]
    return sorted(set(result))


# Where "oe" is written with the ligature that the list does without.
LIGATURE = re.compile("oe(?=u|il(?!l?e)|ill|tus|sophag|stro|dèm|dém|nolog|dip|cumén|nanth)|(?<=ph)oe(?=ni)")


def french(path):
    words = {word for word in read_words(path) if not word.endswith((".", "'"))}
    words |= {LIGATURE.sub("œ", word) for word in words}
    for word in words:
        yield word
        if len(word) < 3 or "'" in word or not VOWEL.match(word) or CONSONANT_LIKE.match(word):
            continue
        for elided in joined(word, words):
            yield elided + word


run(french)
