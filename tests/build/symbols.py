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


def declared_names():
    """Every function and variable behind OSD_API in include/, where all installed headers stand."""
    headers = "".join(path.read_text() for path in ROOT.glob("include/*.h"))
    declarations = re.sub(r"//[^\n]*|/\*.*?\*/|^#[^\n]*", "", headers, flags=re.M | re.S)
    return set(re.findall(r"\bOSD_API\b[^;(]*?(\w+)\s*[;(]", declarations))


def exported_names(library):
    lines = output_of("nm", "-D", "--format=posix", "--defined-only", library).splitlines()
    names = {line.split()[0].split("@")[0] for line in lines}
    return {name for name in names if not name.startswith("__odr_asan.")}


if __name__ == "__main__":
    if sys.argv[1] == "exported":
        wrong = declared_names() ^ exported_names(sys.argv[2])
    else:
        needed = set(re.findall(r"\(NEEDED\).*\[(.+)\]", output_of("readelf", "-dW", sys.argv[2])))
        wrong = {name for name in needed if not LINKED.match(name) and not SANITIZER.match(name)}
    sys.exit("\n".join(f"{sys.argv[1]}, or missing: {name}" for name in sorted(wrong)) or None)
