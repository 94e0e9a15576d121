#!/usr/bin/env python3
"""Writes the manual page of wordhawk-cli from what the program itself says with --help, so that the
two never differ. The frame around it is in wordhawk-cli.1.in."""

import argparse
import pathlib
import re
import subprocess

FRAME = pathlib.Path(__file__).with_name("wordhawk-cli.1.in")
ENTRY = re.compile(r"^  (\S.*?)(?:\s{2,}(.*))?$")
MORE = re.compile(r"^\s{10,}(\S.*)$")


def escaped(text):
    """For troff: a backslash, a hyphen that is to be one, and a line that begins like a request."""
    text = text.replace("\\", "\\e").replace("-", "\\-")
    return "\\&" + text if text[:1] in (".", "'") else text


def help_of(program, *command):
    return subprocess.run([*program, *command, "--help"], check=True, capture_output=True,
                          text=True).stdout.splitlines()


def entries(lines, heading):
    """Pairs of the names and descriptions under a heading of the help."""
    found, inside = [], False
    for line in lines:
        if not line.startswith(" "):
            inside = line.rstrip(":") == heading
            continue
        entry, more = ENTRY.match(line), MORE.match(line)
        if inside and more and found:
            found[-1] = (found[-1][0], f"{found[-1][1]} {more[1]}".strip())
        elif inside and entry:
            found.append((entry[1], entry[2] or ""))
    return found


def paragraphs(found):
    lines = []
    for names, text in found:
        names = re.sub(r"\s*Excludes:.*", "", names)
        lines += [".TP", f".B {escaped(names)}", escaped(text)]
    return lines


def closing_text(lines):
    """What stands between the options and the examples."""
    lines = lines[:lines.index("Examples:")] if "Examples:" in lines else lines
    last_option = max(i for i, line in enumerate(lines) if line.startswith(" "))
    return [line for line in lines[last_option + 1:] if line]


def examples(lines):
    if "Examples:" not in lines:
        return []
    return [line.strip() for line in lines[lines.index("Examples:") + 1:] if line.strip()]


def commands(program):
    lines = []
    for name, summary in entries(help_of(program), "Commands"):
        told = help_of(program, name)
        usage = next(line for line in told if line.startswith("Usage:"))
        usage = usage.removeprefix("Usage: wordhawk-cli ")
        lines += [f".SS {escaped(usage)}", escaped(summary) + "."]
        lines += paragraphs(entries(told, "Positionals"))
        lines += paragraphs([e for e in entries(told, "Options") if "--help" not in e[0]])
        for text in closing_text(told):
            lines += [".PP", escaped(text)]
        for example in examples(told):
            lines += [".PP", ".EX", "    " + escaped(example), ".EE"]
    return lines


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--output", type=pathlib.Path, required=True)
    parser.add_argument("--version", required=True)
    parser.add_argument("program", nargs="+", help="wordhawk-cli, perhaps behind an emulator")
    arguments = parser.parse_args()
    overall = help_of(arguments.program)
    text = FRAME.read_text(encoding="utf-8")
    text = text.replace("@VERSION@", arguments.version)
    text = text.replace("@OPTIONS@", "\n".join(paragraphs(entries(overall, "Options"))))
    text = text.replace("@COMMANDS@", "\n".join(commands(arguments.program)))
    arguments.output.write_text(text, encoding="utf-8")


main()
