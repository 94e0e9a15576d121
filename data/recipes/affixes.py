"""Expands a dictionary of stems and affix rules (.dic and .aff) to all its word forms."""

import re
from collections import defaultdict


class Affix:
    """One rule: takes `strip` off the stem's end (start), puts `add` there."""

    def __init__(self, is_prefix, crosses, strip, add, condition):
        add, _, further = add.partition("/")
        self.is_prefix = is_prefix
        self.crosses = crosses
        self.strip = "" if strip == "0" else strip
        self.add = "" if add == "0" else add
        self.further = further
        pattern = "" if condition == "." else condition
        self.matches = re.compile("^" + pattern if is_prefix else pattern + "$").search

    def apply(self, stem):
        """The form, or None where the rule does not fit `stem`."""
        if not self.matches(stem):
            return None
        if self.is_prefix:
            if not stem.startswith(self.strip):
                return None
            return self.add + stem[len(self.strip):]
        if not stem.endswith(self.strip):
            return None
        return stem[:len(stem) - len(self.strip)] + self.add


# Flags of stems that are no words by themselves.
NOT_BARE = ("NEEDAFFIX", "ONLYINCOMPOUND")
NOT_A_WORD = ("FORBIDDENWORD",)


def read_rules(path):
    """The rules of an .aff file with one-character flags by flag, and its special flags by name."""
    rules = defaultdict(list)
    special = {}
    crossing = {}
    with open(path, encoding="utf-8") as file:
        for line in file:
            fields = line.split()
            if fields and fields[0] in NOT_BARE + NOT_A_WORD:
                special[fields[0]] = fields[1]
            if not fields or fields[0] not in ("PFX", "SFX"):
                continue
            kind, flag = fields[0], fields[1]
            if (kind, flag) not in crossing:
                crossing[kind, flag] = fields[2] == "Y"
                continue
            condition = fields[4] if len(fields) > 4 else "."
            rules[flag].append(
                Affix(kind == "PFX", crossing[kind, flag], fields[2], fields[3], condition))
    return rules, special


def with_suffixes(stem, flags, rules):
    """Yields (form, whether prefixes may join it) for the stem and its suffixed forms."""
    yield stem, True
    for flag in flags:
        for rule in rules.get(flag, ()):
            form = None if rule.is_prefix else rule.apply(stem)
            if form is None:
                continue
            yield form, rule.crosses
            for second in rule.further:
                for inner in rules.get(second, ()):
                    longer = None if inner.is_prefix else inner.apply(form)
                    if longer is not None:
                        yield longer, rule.crosses and inner.crosses


def expand(affix_path, stems_path):
    """Yields every form of every stem."""
    rules, special = read_rules(affix_path)
    not_bare = {special[name] for name in NOT_BARE if name in special}
    not_a_word = {special[name] for name in NOT_A_WORD if name in special}
    with open(stems_path, encoding="utf-8") as file:
        next(file)
        for line in file:
            stem, _, flags = line.split("\t")[0].strip().partition("/")
            if not stem or not_a_word & set(flags):
                continue
            prefixes = [rule for flag in flags for rule in rules.get(flag, ()) if rule.is_prefix]
            for form, joins in with_suffixes(stem, flags, rules):
                if form == stem and not_bare & set(flags):
                    continue
                yield form
                if not joins:
                    continue
                for rule in prefixes:
                    longer = rule.apply(form) if rule.crosses or form == stem else None
                    if longer is not None:
                        yield longer
