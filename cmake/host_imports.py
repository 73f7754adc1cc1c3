#!/usr/bin/env python3
"""Writes the module definition of the host's library, as far as the tools' module uses it.

host_imports.py NM DEFINITION HOST_HEADERS LIBRARY_FILES -- OBJECTS

The host's are the C++ names that the module's objects leave open and that no library file defines. Each has to belong
to a class or function named in the headers of the host: a function that was declared and never written is none.
"""
import pathlib
import re
import subprocess
import sys


def names(nm, option, files):
    listed = subprocess.run([nm, "--quiet", "--format=posix", option, *files], stdout=subprocess.PIPE, text=True, check=True)
    # Without the underscore that this system puts before every name.
    return set(re.findall(r"^_(_Z\S+) ", listed.stdout, re.M))


def readable(mangled):
    shown = subprocess.run(["c++filt"], input="\n".join(mangled), stdout=subprocess.PIPE, text=True, check=True)
    return dict(zip(mangled, shown.stdout.splitlines()))


def main():
    nm, definition, headers = sys.argv[1:4]
    split = sys.argv.index("--")
    libraries, objects = sys.argv[4:split], sys.argv[split + 1:]
    used = names(nm, "--undefined-only", objects)
    given = names(nm, "--defined-only", objects + libraries)
    hosts = readable(sorted(used - given))

    words = set()
    for header in pathlib.Path(headers).glob("*.h"):
        words.update(re.findall(r"\w+", header.read_text()))
    outermost = {name: re.match(r"(?:.* for )?(\w*)", name)[1] for name in hosts.values()}
    strange = [name for name, owner in outermost.items() if owner not in words]
    if strange:
        sys.exit("neither the module nor the host has: " + ", ".join(strange))

    # Only functions have parameters; everything else is data, which is imported without a stub that jumps there.
    lines = [f"    {name}{'' if '(' in shown else ' DATA'}" for name, shown in hosts.items()]
    pathlib.Path(definition).write_text("\n".join(["LIBRARY PradixHost.dll", "EXPORTS", *lines, ""]))


main()
