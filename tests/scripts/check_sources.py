#!/usr/bin/env python3
"""Guards the rules of the house that a compiler does not: which folder may include which, where the
system's headers may be seen, which functions are banned, how long a file may grow, and that every
header compiles alone. Run from anywhere; prints one line a rule."""

import argparse
import os
import re
import shutil
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from xml.sax.saxutils import quoteattr

ROOT = Path(__file__).resolve().parents[2]
LONGEST_FILE = 400

# What the files of a folder may include, besides that folder itself.
LAYERS = {
    "platform": (),
    "app": ("platform",),
    "lang": ("platform", "app"),
    "dict": ("platform", "app", "lang"),
    "engine": ("platform", "app", "lang", "dict"),
    "cli": ("platform", "app", "lang", "dict", "engine"),
    "ui": ("platform", "app", "lang", "dict", "engine", "automation"),
    "automation": ("platform", "app", "lang", "dict", "engine"),
}
# Which rooms of a folder the files of a room may include; "" is the folder itself.
ROOMS = {
    "engine": {"document": (), "suggest": (), "check": ("document",), "session": ("check",),
               "": ("check", "document", "suggest", "session")},
    "ui": {"framework": (), "dialogs": ("framework", ""), "main_window": ("framework", "dialogs", ""),
           "": ("framework", "dialogs", "main_window")},
}
# Where code for Windows alone lives; platform/win32/win.h is its one door to the system.
WINDOWS_ONLY = ("platform/win32/", "cli/win32/", "ui/", "automation/", "tests/windows/", "tests/ui/",
                "tests/automation/")
POSIX_ONLY = ("platform/posix/", "cli/posix/")
# Their results differ between systems, or wchar_t does.
WIDE_FUNCTIONS = re.compile(
    r"\b(tow(lower|upper|ctrans)|isw[a-z]+|wcs[a-z]+|wmem[a-z]+|v?f?s?n?w?printf_l|v?(f|s)?wprintf|"
    r"_wcs\w+|_wfopen|w(i|o)?fstream|wifstream|wofstream|wregex|wcout|wcerr|wcin|wstringstream|"
    r"wostringstream|wistringstream)\b")
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^">]+)[">]', re.MULTILINE)
COMMENT_OR_TEXT = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.DOTALL)


def tracked_files():
    """Files of the project that are there, known to git or about to be."""
    names = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard"], cwd=ROOT,
                           capture_output=True, text=True)
    if names.returncode == 0:
        found = names.stdout.split("\n")
    else:
        found = [str(path.relative_to(ROOT)) for path in ROOT.rglob("*")
                 if not path.relative_to(ROOT).parts[0] in ("build", ".git")]
    return sorted(name for name in set(found) if name and (ROOT / name).is_file())


def source_text(name):
    return (ROOT / name).read_text(encoding="utf-8", errors="replace")


def is_cpp(name):
    return name.endswith((".h", ".cpp"))


def arrows(files):
    """Include only what stands below."""
    for name in files:
        folder = name.split("/")[0]
        if folder not in LAYERS or not is_cpp(name):
            continue
        for included in INCLUDE.findall(source_text(name)):
            target = included.split("/")[0]
            if target in LAYERS and target != folder and target not in LAYERS[folder]:
                yield f"{name} includes {included}"


def room_of(name):
    parts = name.split("/")
    return parts[1] if len(parts) > 2 else ""


def rooms(files):
    """Inside a folder of several rooms the arrows point one way as well."""
    for name in files:
        folder = name.split("/")[0]
        if folder not in ROOMS or not is_cpp(name):
            continue
        room = room_of(name)
        for included in INCLUDE.findall(source_text(name)):
            target = room_of(included)
            if included.split("/")[0] == folder and target != room and target not in ROOMS[folder][room]:
                yield f"{name} includes {included}"


def system_headers(files):
    """<windows.h> through platform/win32/win.h alone, system folders through their own code alone."""
    for name in filter(is_cpp, files):
        for included in INCLUDE.findall(source_text(name)):
            lower = included.lower()
            if lower == "windows.h" and name != "platform/win32/win.h":
                yield f"{name} includes <{included}> itself; platform/win32/win.h does it"
            if "/win32/" in included and not name.startswith(WINDOWS_ONLY + ("tests/",)):
                yield f"{name} includes {included}"
            if "/posix/" in included and not name.startswith(POSIX_ONLY + ("tests/",)):
                yield f"{name} includes {included}"
        core = name.split("/")[0] in LAYERS and not name.startswith(WINDOWS_ONLY)
        if core and re.search(r"#\s*if.*\b_WIN32\b", source_text(name)):
            yield f"{name} asks for _WIN32; choose by CMake"


def wide_functions(files):
    """No wide C functions in code that runs on every system."""
    for name in filter(is_cpp, files):
        if name.split("/")[0] not in LAYERS or name.startswith(WINDOWS_ONLY):
            continue
        text = COMMENT_OR_TEXT.sub(lambda m: "\n" * m.group().count("\n"), source_text(name))
        for number, line in enumerate(text.split("\n"), 1):
            found = WIDE_FUNCTIONS.search(line)
            if found:
                yield f"{name}:{number}: {found.group()}"


def lengths(files):
    """A file that passes the limit wants cutting by job."""
    for name in files:
        if is_cpp(name) or name.endswith((".py", ".sh", ".cmake", ".rc", "CMakeLists.txt")):
            count = source_text(name).count("\n")
            if count > LONGEST_FILE:
                yield f"{name} has {count} lines, over {LONGEST_FILE}"


def guards(files):
    """Headers say #pragma once."""
    for name in files:
        if name.endswith(".h") and "#pragma once" not in source_text(name):
            yield f"{name} has no #pragma once"


def compile_alone(name, scratch):
    """The compiler's complaint about a header that stands alone, or None."""
    if name.startswith(WINDOWS_ONLY):
        command = ["x86_64-w64-mingw32-g++-posix", "-DUNICODE", "-D_UNICODE", "-DNOMINMAX", "-DSTRICT",
                   "-DWIN32_LEAN_AND_MEAN", "-D_WIN32_WINNT=0x0A00", "-DWINVER=0x0A00", "-isystem", "libraries"]
    else:
        command = ["g++"]
    stem = name.replace("/", "+").removesuffix(".h")
    (scratch / f"{stem}.cpp").write_text(f'#include "{name}"\n', encoding="ascii")
    # Compiled like any other file, so that ccache knows the answer while nothing that it includes changes.
    command += ["-std=c++20", "-Wall", "-Wextra", "-Wpedantic", f"-I{ROOT}", "-MD",
                "-c", f"{stem}.cpp", "-o", f"{stem}.o"]
    cache = shutil.which("ccache")
    ran = subprocess.run(([cache] if cache else []) + command, cwd=scratch, capture_output=True, text=True,
                         env=os.environ | {"CCACHE_BASEDIR": str(ROOT), "CCACHE_NOHASHDIR": "1"})
    if ran.returncode == 0 and not ran.stderr:
        return None
    complaints = [line for line in ran.stderr.splitlines() if "error:" in line or "warning:" in line]
    return f"{name} does not compile alone: " + (complaints or ["the compiler could not be run"])[0]


def headers_alone(files):
    """Every header brings what it needs."""
    headers = [name for name in files if name.endswith(".h") and not name.endswith("resource.h")]
    scratch = ROOT / "build" / "headers-alone"
    # The cross compiler must not see /usr/include, only the header-only libraries in it.
    (scratch / "libraries").mkdir(parents=True, exist_ok=True)
    for library in ("CLI", "tl", "gtest", "gmock"):
        link = scratch / "libraries" / library
        if not link.is_symlink():
            link.symlink_to(f"/usr/include/{library}")
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        for complaint in pool.map(lambda name: compile_alone(name, scratch), headers):
            if complaint:
                yield complaint


RULES = (arrows, rooms, system_headers, wide_functions, lengths, guards, headers_alone)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--junit", help="also write the results here")
    arguments = parser.parse_args()
    files = tracked_files()
    cases = []
    failed = 0
    for rule in RULES:
        complaints = list(rule(files))
        name = rule.__name__.replace("_", " ")
        print(f"{'FAILED' if complaints else 'ok'}  {name}")
        for complaint in complaints:
            print(f"    {complaint}")
        failed += bool(complaints)
        failure = f"<failure message={quoteattr('; '.join(complaints))}/>" if complaints else ""
        cases.append(f'<testcase classname="sources" name={quoteattr(name)}>{failure}</testcase>')
    if arguments.junit:
        Path(arguments.junit).write_text(f"<testsuite>{''.join(cases)}</testsuite>\n", encoding="utf-8")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
