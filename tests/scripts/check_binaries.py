#!/usr/bin/env python3
"""Looks at the headers of built programs: the defences that the system offers must be switched on, a
Windows program may import only libraries that nobody can put beside it, and no program may call what
starts another one, so that no name and no text can ever be run.

check_binaries.py [--protected] PROGRAM...     --protected: their stacks must be guarded as well
"""

import argparse
import pathlib
import re
import struct
import sys

# Windows takes these from its own folder whatever lies beside the program; the common controls are
# bound to its store of shared libraries by the manifest.
KNOWN_LIBRARIES = {"advapi32.dll", "combase.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll", "kernel32.dll",
                   "msvcrt.dll", "ole32.dll", "oleaut32.dll", "rpcrt4.dll", "sechost.dll", "shell32.dll",
                   "shlwapi.dll", "user32.dll"}
STARTS_PROGRAMS = re.compile(r"(CreateProcess|ShellExecute|WinExec|LoadModule)\w*|_?w?(system|popen|spawn\w*)|"
                             r"_?w?exec[lv][a-z]*|posix_spawnp?|v?fork|clone")
DLL_CHARACTERISTICS = {0x20: "addresses of 64 bits (--high-entropy-va)", 0x40: "moved addresses (--dynamicbase)",
                       0x100: "data that is not code (--nxcompat)"}


def starters(functions):
    for function in filter(STARTS_PROGRAMS.fullmatch, functions):
        yield f"can start programs by {function}"


class PortableExecutable:
    def __init__(self, data):
        self.data = data
        header = struct.unpack_from("<I", data, 0x3C)[0]
        sections, optional_size = struct.unpack_from("<H12xH", data, header + 6)
        self.optional = header + 24
        if struct.unpack_from("<H", data, self.optional)[0] != 0x20B:
            raise ValueError("not a program of 64 bits")
        self.sections = []
        for i in range(sections):
            at = self.optional + optional_size + 40 * i
            size, address, raw_size, raw = struct.unpack_from("<IIII", data, at + 8)
            self.sections.append((address, max(size, raw_size), raw))

    def directory(self, number):
        return struct.unpack_from("<II", self.data, self.optional + 112 + 8 * number)

    def offset(self, address):
        for start, size, raw in self.sections:
            if start <= address < start + size:
                return raw + address - start
        raise ValueError("an address outside all sections")

    def text(self, address):
        at = self.offset(address)
        return self.data[at:self.data.index(b"\0", at)].decode("ascii")

    def imports(self):
        """(library, [function...]) in lower and in its own case; a function known by number is left out."""
        at = self.offset(self.directory(1)[0])
        while True:
            names, name = struct.unpack_from("<I8xI", self.data, at)
            if name == 0:
                return
            functions = []
            thunk = self.offset(names)
            while entry := struct.unpack_from("<Q", self.data, thunk)[0]:
                if not entry >> 63:
                    functions.append(self.text(entry + 2))
                thunk += 8
            yield self.text(name).lower(), functions
            at += 20

    def problems(self):
        flags = struct.unpack_from("<H", self.data, self.optional + 70)[0]
        for bit, meaning in DLL_CHARACTERISTICS.items():
            if not flags & bit:
                yield "without " + meaning
        if self.directory(5)[1] == 0:
            yield "without relocations, so that it cannot be moved"
        for library, functions in self.imports():
            if library not in KNOWN_LIBRARIES:
                yield f"imports {library}, which is looked for beside the program first (use SystemFunction)"
            yield from starters(functions)


class Elf:
    DYNAMIC, INTERPRETER, STACK, RELRO = 2, 3, 0x6474E551, 0x6474E552
    STRINGS, SYMBOLS, FLAGS, FLAGS_1 = 5, 6, 30, 0x6FFFFFFB

    def __init__(self, data):
        if data[4:6] != b"\2\1":
            raise ValueError("not a little-endian program of 64 bits")
        self.data = data
        self.type = struct.unpack_from("<H", data, 16)[0]
        start, size, count = struct.unpack_from("<Q", data, 32) + struct.unpack_from("<HH", data, 54)
        self.segments = {}
        for i in range(count):
            kind, flags, offset, _, _, length = struct.unpack_from("<IIQQQQ", data, start + i * size)
            self.segments[kind] = (flags, offset, length)

    def dynamic(self):
        _, offset, length = self.segments.get(self.DYNAMIC, (0, 0, 0))
        return dict(struct.unpack_from("<QQ", self.data, offset + i) for i in range(0, length, 16))

    def imports(self, dynamic):
        """Names that others define. Both tables lie in the first loaded part, whose addresses are places
        in the file, and the names follow the symbols."""
        symbols, strings = dynamic[self.SYMBOLS], dynamic[self.STRINGS]
        for at in range(symbols + 24, strings - 23, 24):
            name, defined = struct.unpack_from("<I2xH", self.data, at)
            if not defined:
                yield self.data[strings + name:self.data.index(b"\0", strings + name)].decode("ascii")

    def problems(self):
        dynamic = self.dynamic()
        if self.type != 3 or self.INTERPRETER not in self.segments:
            yield "not a program that can be moved (-pie)"
        if self.RELRO not in self.segments:
            yield "tables can be written after the start (-z relro)"
        if not dynamic.get(self.FLAGS, 0) & 8 and not dynamic.get(self.FLAGS_1, 0) & 1:
            yield "functions are bound late (-z now)"
        if self.segments.get(self.STACK, (1,))[0] & 1:
            yield "the stack is code (-z noexecstack)"
        yield from starters(self.imports(dynamic))


def problems_of(path, protected):
    data = path.read_bytes()
    try:
        program = Elf(data) if data.startswith(b"\x7fELF") else PortableExecutable(data)
        yield from program.problems()
    except (ValueError, struct.error) as error:
        yield f"cannot be understood: {error}"
    # The message of the guard stands in every program that has one linked in, its symbol in the others.
    if protected and b"stack smashing detected" not in data and b"__stack_chk_fail" not in data:
        yield "stacks without guards (-fstack-protector-strong)"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--protected", action="store_true")
    parser.add_argument("programs", nargs="+", type=pathlib.Path)
    options = parser.parse_args()
    found = [f"{path}: {problem}" for path in options.programs
             for problem in problems_of(path, options.protected)]
    print("\n".join(found) or f"{len(options.programs)} programs: nothing to say")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
