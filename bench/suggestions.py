"""Reads what each program suggests, and counts how often the right word is among it."""

import re
import subprocess


def ours(command, words):
    """{word: [suggestions, best first]} of `wordhawk-cli suggest --stdin`."""
    found = {}
    for line in answer(command, "\n".join(words) + "\n").splitlines():
        word, suggestion, _, mark = line.split("\t")
        listed = found.setdefault(word, [])
        if mark == "*":
            listed.insert(0, suggestion)
        elif suggestion:
            listed.append(suggestion)
    return found


def pipe(command, words):
    """The same of a program that speaks the ispell protocol."""
    found = {}
    lines = answer(command, "".join(f"^{word}\n" for word in words)).splitlines()
    for line in lines:
        match = re.match(r"[&?] (\S+) \d+ \d+: (.*)", line)
        if match:
            found[match.group(1)] = match.group(2).split(", ")
    return found


def nuspell(command, words):
    found = {}
    for line in answer(command, "\n".join(words) + "\n").splitlines():
        match = re.search(r"Wrong: (\S+)\. How about: (.*)", line)
        if match:
            found[match.group(1)] = match.group(2).rstrip(".").split(", ")
    return found


def answer(command, text):
    ran = subprocess.run([str(part) for part in command], input=text, capture_output=True, text=True,
                         encoding="utf-8", errors="replace")
    return ran.stdout


def quality(found, pairs):
    """Shares of the pairs of which a correction (one, or any of a set) comes first, among the first five,
    anywhere."""
    first = five = anywhere = 0
    for wrong, right in pairs:
        rights = {right} if isinstance(right, str) else right
        listed = [word.lower() for word in found.get(wrong, [])]
        first += not rights.isdisjoint(listed[:1])
        five += not rights.isdisjoint(listed[:5])
        anywhere += not rights.isdisjoint(listed)
    return tuple(100 * count / len(pairs) for count in (first, five, anywhere))
