#!/usr/bin/env python3
"""Runs the benchmark program and prints a table of figures and gates: run_bench.py PROGRAM LIBRARY [CASE]"""
import pathlib
import re
import subprocess
import sys
import tempfile

REDRAW_RATIO = 1.02
OPEN_RATIO = 1.3
OWN_INSTRUCTIONS = 20_000
TEXT_BYTES = 100 * 1024

# What the library calls at the start or while a page opens; a redraw must not.
START_CALLS = {
    "SDL_SetHint", "SDL_Init", "SDL_Quit", "IMG_Init", "IMG_Quit", "TTF_Init", "SDL_CreateRGBSurfaceWithFormatFrom",
}

missed = []


def gate(name, measured, holds, limit):
    if not holds:
        missed.append(name)
    print(f"  {name:<58} {measured:>14}   gate {limit:<12} {'ok' if holds else 'MISSED'}", flush=True)


def output(*command):
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    if done.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))}\n{done.stdout}{done.stderr}failed with {done.returncode}")
    return done.stdout


def show_redraw(words):
    page, size, pixels, library, replay, ratio, *counts = words
    calls, surplus, missing, allocations = map(int, counts)
    faults = [name for name, holds in [
        ("time", float(ratio) <= REDRAW_RATIO),
        ("surplus", surplus == 0),
        ("missing", missing == 0),
        ("allocations", allocations == 0),
    ] if not holds]
    missed.extend(f"{page} {size} {pixels}: {fault}" for fault in faults)
    print(f"  {page:<11}{size:>6}{pixels:>10}{library:>10}{replay:>10}{ratio:>9}{calls:>7}{surplus:>9}{missing:>9}"
          f"{allocations:>6}   {'MISSED: ' + ', '.join(faults) if faults else 'ok'}", flush=True)


def show_difference(words):
    page, function, more = words
    print(f"  {page}: calls of {function}: {int(more):+} against what the picture needs")


def show_fault(words):
    missed.append(" ".join(words))
    print(f"  MISSED: {missed[-1]}")


def show_open(words):
    page, library, load, ratio, items, allocations = words
    gate(f"open page {page}: {library} us, tinyxml2 alone {load} us", ratio, float(ratio) <= OPEN_RATIO, OPEN_RATIO)
    gate(f"open page {page}: allocations, one an item", allocations, allocations == items, items)


def show_measures(program, cases):
    print("Microseconds of processor time by the library and by a replay of its calls; ratio: median of neighbours,\n"
          f"gate {REDRAW_RATIO}. Calls of SDL and its companions, and tests of files; surplus: more than the picture needs,\n"
          "missing: fewer (then bench/needed_calls.cpp is out of date); heap: allocations of the library's own; gates 0.")
    print("  redraw       size    format   library    replay    ratio  calls  surplus  missing  heap")
    show = {"redraw": show_redraw, "differs": show_difference, "fault": show_fault, "open": show_open}
    lines = 0
    with subprocess.Popen([program, *cases], stdout=subprocess.PIPE, text=True) as measures:
        for lines, line in enumerate(measures.stdout, 1):
            kind, *words = line.split()
            if kind in show:
                show[kind](words)
            else:
                print(line, end="")
    if measures.returncode != 0:
        sys.exit(f"{program} failed with {measures.returncode}")
    if lines == 0:
        sys.exit(f"there is no case {' '.join(cases)}")


def counted_names():
    source = (pathlib.Path(__file__).parent / "recorder.cpp").read_text(encoding="utf-8")
    return set(re.findall(r'pass_on<&(\w+)>', source))


def show_uncounted(library):
    undefined = re.findall(r" U (\w+)", output("nm", "-D", "--undefined-only", library))
    drawing = {name for name in undefined if re.match(r"SDL_|TTF_|IMG_|rotozoom|zoom", name)}
    rest = sorted(drawing - counted_names() - START_CALLS)
    gate("functions of SDL and its companions that nobody counts", " ".join(rest) or "none", not rest, "none")


def own_instructions(profile, library):
    """Sums what callgrind gives the library's object itself, and what it calls of the C library."""
    names = {}
    own = libc = 0
    current = called = ""
    is_call = False

    def name_of(text):
        number, _, name = text.partition(" ")
        if name:
            names[number] = name
        return names[number]

    for line in profile.splitlines():
        if line.startswith("ob="):
            current = name_of(line[3:])
        elif line.startswith("fn="):
            called = current
        elif line.startswith("cob="):
            called = name_of(line[4:])
        elif line.startswith("calls="):
            is_call = True
        elif re.match(r"[+\-*\d]", line):
            cost = int(line.split()[1]) if len(line.split()) > 1 else 0
            if current.endswith(library):
                if not is_call:
                    own += cost
                elif "/libc.so" in called or "/libc-" in called:
                    libc += cost
            if is_call:
                called = current
            is_call = False
    return own, libc


def show_instructions(program, library):
    with tempfile.TemporaryDirectory() as folder:
        profile = pathlib.Path(folder) / "profile"
        output("valgrind", "--tool=callgrind", f"--callgrind-out-file={profile}", "--collect-atstart=no",
               "--toggle-collect=OSD_MENU_RenderCanvas", program, "instructions")
        own, libc = own_instructions(profile.read_text(encoding="utf-8"), pathlib.Path(library).resolve().name)
    gate("redraw of ten rows: instructions of the library's own", own, own <= OWN_INSTRUCTIONS, OWN_INSTRUCTIONS)
    print(f"  {'  and of the C library, called by it':<58} {libc:>14}")


def show_size(library):
    with tempfile.TemporaryDirectory() as folder:
        stripped = pathlib.Path(folder) / "stripped.so"
        output("strip", "-o", stripped, library)
        text = int(output("size", stripped).splitlines()[1].split()[0])
    gate("stripped library: bytes of text", text, text < TEXT_BYTES, f"< {TEXT_BYTES}")


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    program, library, *cases = sys.argv[1:]
    show_measures(program, cases)
    show_uncounted(library)
    show_instructions(program, library)
    show_size(library)
    if missed:
        sys.exit(f"{len(missed)} gate(s) missed")
    print("All gates hold.")


main()
