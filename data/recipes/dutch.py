"""Dutch: leaves out entries with digits and symbols, takes entries of several words apart."""

from words import read_words, run


def dutch(path):
    for entry in read_words(path):
        for word in entry.split():
            word = word.strip(".")
            if word and all(c.isalpha() or c in "-'" for c in word):
                yield word


run(dutch)
