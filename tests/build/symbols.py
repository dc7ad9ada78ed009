#!/usr/bin/env python3
"""Compares the built library with what it has to be.

symbols.py exported LIBRARY   exactly the names that the installed headers declare with OSD_API
symbols.py linked LIBRARY     needs no other libraries than these; what else it needs, whoever links it has to bring
"""
import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
LINKED = re.compile(r"lib(SDL2-2\.0|SDL2_image-2\.0|SDL2_ttf-2\.0|SDL2_gfx-1\.0|tinyxml2|stdc\+\+|gcc_s|c|m)\.so\.|ld-linux")
SANITIZER = re.compile(r"lib[a-z]*san\.so\.")


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def needed_by(library):
    return set(re.findall(r"\(NEEDED\).*\[(.+)\]", output_of("readelf", "-dW", library)))


def report(title, names):
    for name in sorted(names):
        print(f"{title}: {name}")
    return bool(names)


def declared_names():
    """Every function and variable behind OSD_API in include/, where all installed headers stand."""
    headers = "".join(path.read_text() for path in ROOT.glob("include/*.h"))
    declarations = re.sub(r"//[^\n]*|/\*.*?\*/|^#[^\n]*", "", headers, flags=re.M | re.S)
    return set(re.findall(r"\bOSD_API\b[^;(]*?(\w+)\s*[;(]", declarations))


def check_exported(library):
    declared = declared_names()
    lines = output_of("nm", "-D", "--format=posix", "--defined-only", library).splitlines()
    found = {line.split()[0].split("@")[0] for line in lines}
    if any(SANITIZER.match(name) for name in needed_by(library)):
        found = {name for name in found if not name.startswith("__odr_asan.")}
    print(f"{len(found)} exported names")
    return report("declared, but not exported", declared - found) | report("exported, but not declared", found - declared)


def check_linked(library):
    return report("linked with", {name for name in needed_by(library) if not LINKED.match(name) and not SANITIZER.match(name)})


if __name__ == "__main__":
    check = {"exported": check_exported, "linked": check_linked}[sys.argv[1]]
    sys.exit(check(sys.argv[2]))
