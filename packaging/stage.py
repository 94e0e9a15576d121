#!/usr/bin/env python3
"""Lays out the files of a Windows delivery in OUTPUT/files, from the programs and data of a build, and
writes OUTPUT/files.nsh, which tells the installer what to bring and what to take away again."""

import argparse
import pathlib
import re
import shutil
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[1]
PROGRAMS = ("Wordhawk.exe", "wordhawk-cli.exe")
STRIP = "x86_64-w64-mingw32-strip"


def copy_text(source, target):
    """With the line ends that every Windows editor shows."""
    text = source.read_text(encoding="utf-8")
    target.write_text(text, encoding="utf-8", newline="\r\n")


def word_list_packages():
    script = (ROOT / "cmake/install-packages.sh").read_text(encoding="utf-8")
    return re.search(r'WORD_LIST_PACKAGES="([^"]*)"', script)[1].split()


def lay_out(build, stage, locales):
    if stage.exists():
        shutil.rmtree(stage)
    stage.mkdir(parents=True)
    for name in PROGRAMS:
        shutil.copy2(build / name, stage / name)
        subprocess.run([STRIP, stage / name], check=True)
    copy_text(ROOT / "LICENSE", stage / "LICENSE.txt")
    copy_text(ROOT / "data/sources/README.md", stage / "dictionary-sources.txt")
    # A dictionary takes the licence of its word list with it.
    (stage / "licences").mkdir()
    for package in word_list_packages():
        notice = pathlib.Path("/usr/share/doc") / package / "copyright"
        copy_text(notice, stage / "licences" / f"{package}.txt")
    for folder in ("languages", "sounds"):
        if (build / folder).is_dir():
            shutil.copytree(build / folder, stage / folder)
    for pack in sorted((build / "dictionaries").iterdir()):
        if not locales or pack.name in locales:
            shutil.copytree(pack, stage / "dictionaries" / pack.name)


def windows(path):
    return str(path).replace("/", "\\")


def write_script(stage, script):
    """Two macros. Of a folder of our own every kind of file that we brought goes, and nothing else."""
    bring, take = [], []
    folders = [stage] + sorted(path for path in stage.rglob("*") if path.is_dir())
    for folder in folders:
        place = pathlib.PurePath(folder.relative_to(stage))
        target = "$INSTDIR" if folder == stage else f"$INSTDIR\\{windows(place)}"
        files = sorted(path for path in folder.iterdir() if path.is_file())
        if files:
            bring.append(f'SetOutPath "{target}"')
            bring.append(f'File "{folder}/*.*"')
        if folder == stage:
            take += [f'Delete "{target}\\{path.name}"' for path in files]
        else:
            take += [f'Delete "{target}\\*{suffix}"' for suffix in sorted({p.suffix for p in files})]
    take += [f'RMDir "$INSTDIR\\{windows(f.relative_to(stage))}"' for f in reversed(folders[1:])]
    lines = ["!macro InstallFiles", *("  " + line for line in bring), "!macroend",
             "!macro RemoveFiles", *("  " + line for line in take), "!macroend"]
    script.write_text("\n".join(lines) + "\n", encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=pathlib.Path, required=True, help="folder of the programs")
    parser.add_argument("--output", type=pathlib.Path, required=True)
    parser.add_argument("--locales", nargs="*", help="only these dictionaries; all by default")
    arguments = parser.parse_args()
    stage = arguments.output.resolve() / "files"
    lay_out(arguments.build, stage, arguments.locales)
    write_script(stage, stage.parent / "files.nsh")


main()
