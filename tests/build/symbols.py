#!/usr/bin/env python3
"""Compares the names of the built library with what they have to be.

symbols.py exported LIBRARY    exactly the names that the installed headers declare with OSD_API
symbols.py undefined LIBRARY   only the platform services, and what the libraries it is linked with really define
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


def names_of(library, *options):
    lines = output_of("nm", "-D", "--format=posix", *options, library).splitlines()
    return {line.split()[0].split("@")[0]: line.split()[1] for line in lines}


def linked_with(library):
    """What the library itself asks for, each with the file that the loader takes for it."""
    needed = re.findall(r"\(NEEDED\).*\[(.+)\]", output_of("readelf", "-dW", library))
    files = dict(re.findall(r"^\s*(?:\S*/)?(\S+) (?:=> (\S+) )?\(0x", output_of("ldd", library), re.M))
    return {name: files[name] or f"/{name}" for name in needed}


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
    sanitized = any(SANITIZER.match(name) for name in linked_with(library))
    found = {name for name in names_of(library, "--defined-only") if not (sanitized and name.startswith("__odr_asan."))}
    print(f"{len(found)} exported names")
    return report("declared, but not exported", declared - found) | report("exported, but not declared", found - declared)


def check_undefined(library):
    services = "".join(path.read_text() for path in ROOT.glob("platform/*_service.h"))
    provided = set(re.findall(r"\b((?:CFG|MPP|BSP)_\w+|UTIL_LOG_Print)\(", services))
    linked = linked_with(library)
    foreign = {name for name in linked if not LINKED.match(name) and not SANITIZER.match(name)}
    defined = set().union(*(names_of(file, "--defined-only") for file in linked.values()))
    optional = re.compile(r"_ITM_\w+|__gmon_start__")  # weak names of the start-up code, null unless a profiler is there
    found = names_of(library, "--undefined-only")
    unknown = {name for name in found if name not in provided | defined and not optional.fullmatch(name)}
    print(f"{len(found)} undefined names, {len(provided & found.keys())} of the platform")
    return report("linked with", foreign) | report("undefined", unknown)


if __name__ == "__main__":
    check = {"exported": check_exported, "undefined": check_undefined}[sys.argv[1]]
    sys.exit(check(sys.argv[2]))
