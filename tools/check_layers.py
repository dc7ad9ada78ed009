#!/usr/bin/env python3
"""Checks who includes whom: layers look down only, public headers are named bare, the rest from the root, a file's own
header first, no cycles."""
import re
import sys
from pathlib import Path

ROOT = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parent.parent).resolve()
SIMULATOR = ["simulator/base", "simulator/settings", "simulator/video", "simulator/camera", "simulator/host", "simulator/web",
             "simulator/front", "simulator"]  # each sees all before it
LIBRARY = ["include", "platform", "comm", "menu/core", "menu/nav", "menu/render", "prompt"]
SEES = {  # folder: what it includes beside itself
    "include": [],
    "platform": ["include"],
    "comm": ["include", "platform"],
    "menu/core": ["include", "platform", "comm"],
    "menu/nav": ["include", "platform", "comm", "menu/core"],
    "menu/render": ["include", "platform", "comm", "menu/core"],
    "prompt": ["include", "platform", "comm"],
    "pages/data": ["include"],
    "pages/menu": LIBRARY + ["pages/data"],
    "pages/grammar": LIBRARY + ["pages/data"],
    "pages/measure": LIBRARY + ["pages/data", "pages/menu", "pages/grammar"],
    "pages/check": LIBRARY + ["pages/data", "pages/menu", "pages/grammar", "pages/measure"],
    "pages/preview": LIBRARY + ["pages/data", "pages/menu"],
    "pages/map": LIBRARY + ["pages/data", "pages/menu", "pages/preview"],
    "pages/schema": LIBRARY + ["pages/data", "pages/grammar"],
    "pages/texts": LIBRARY + ["pages/data", "pages/grammar", "pages/measure"],
    "pages": ["pages/data", "pages/menu", "pages/grammar", "pages/measure", "pages/check", "pages/preview", "pages/map",
              "pages/schema", "pages/texts"],
    "simulator/base": ["pages/data"],
    "simulator/settings": ["pages/data"],
    "simulator/video": ["include", "pages/data"],
    "simulator/camera": ["include", "platform", "pages/data"],
    "simulator/host": ["include", "pages/data", "pages/check"],
    "simulator/web": ["pages/data"],
    "simulator/front": ["pages/data", "pages/preview", "pages"],
    "simulator": [],
    "tools": ["pages/data"],
    "tests": ["include", "platform", "pages/data", "pages/menu", "pages/grammar", "pages/measure", "pages/check",
              "pages/preview", "pages/map", "pages/schema", "pages/texts", "pages"] + SIMULATOR,
    "bench": ["include", "platform", "pages/data", "pages/check", "tests"],  # starts cameras as the tests do
}
for place, layer in enumerate(SIMULATOR):
    SEES[layer] += SIMULATOR[:place]
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)


def layer_of(path):
    return next((layer for layer in SEES if path.startswith(layer + "/")), None)  # the first that fits


def find_cycle(graph, node, trail, done):
    if node in trail:
        return trail[trail.index(node):] + [node]
    if node not in done:
        done.add(node)
        for target in graph[node]:
            if cycle := find_cycle(graph, target, trail + [node], done):
                return cycle
    return None


files = {p.relative_to(ROOT).as_posix() for layer in SEES for p in (ROOT / layer).rglob("*") if p.suffix in (".c", ".cpp", ".h")}
faults, graph = [], {f: [] for f in files}
for file in sorted(files):
    layer = layer_of(file)
    included = INCLUDE.findall((ROOT / file).read_text(encoding="utf-8"))
    own = file.removesuffix(".cpp") + ".h"
    if own in files and included[0] != ('"', own):
        faults.append(f"{file}: {own} goes first")
    for mark, name in included:
        target = "include/" + name if "include/" + name in files else name
        if target in files and mark == '"' and not name.startswith("include/"):
            graph[file].append(target)
            if layer_of(target) not in [layer] + SEES[layer]:
                faults.append(f"{file}: {layer} must not see {target}")
        elif target in files:
            faults.append(f'{file}: write {name} as "{target.removeprefix("include/")}"')
        elif mark == '"':
            faults.append(f"{file}: {name} is no file of ours by its path from the root")
cycle = next(filter(None, (find_cycle(graph, f, [], set()) for f in sorted(files))), None)
if cycle:
    faults.append("cycle: " + " -> ".join(cycle))
print("\n".join(faults) or f"{len(files)} files keep the layers")
sys.exit(bool(faults))
