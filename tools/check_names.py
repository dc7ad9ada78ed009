#!/usr/bin/env python3
"""Checks what is cheap to check of the library's style: prefixes of names, and calls that no source makes."""
import re
import sys
from pathlib import Path

ROOT = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parent.parent).resolve()
FOLDERS = ["include", "platform", "comm", "menu", "prompt"]
# Names that hosts know, and the one counter that needs no prefix.
FIXED = {"enMenuStyle", "bZoomRatioActive", "gs_OsdHandler", "next", "prev", "i"}

# Comments, macros, and what stands in quotes; line breaks stay, so that line numbers do.
NO_CODE = re.compile(r'^ *#define(?:[^\n]*\\\n)*[^\n]*|/\*.*?\*/|//[^\n]*|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'', re.S | re.M)
GLOBAL = re.compile(r"^((?:(?:static|inline|constexpr|const|extern|OSD_API|thread_local) )+)[\w:<>, ]*?[*&]* ?(\w+)(?:\[[^\]]*\])* ?[;={]", re.M)
# A type before a name, and the prefix that the name has behind g_, gs_, c_ (shared, static, constant) and a (array).
END = r"(?=\[| *[;,={)])"
PREFIX = [(re.compile(rf"(?<![\w:])(?:{types}) (?:const )?(\w+){END}"), prefix) for types, prefix in [
    (r"[\w:]+\*", r"p[a-z0-9]+"),
    (r"[\w:]+\*\*", r"pp[a-z0-9]+"),
    (r"char", r"a?c"),
    (r"(?<!unsigned )int|int32_t", r"s32"),
    (r"unsigned int|unsigned|uint32_t", r"u32|en"),
    (r"float", r"f32"),
    (r"double", r"f64"),
    (r"size_t", r"u(?![0-9])"),
    (r"OSD_BOOL|bool", r"b"),
    (r"tag\w+_E", r"en"),
    (r"(?:tag\w+_S|SDL_Rect)&?", r"st"),
]]
FORBIDDEN = {
    r"\b(?:strcpy|strncpy|strcat|strncat|sprintf|vsprintf|gets)\s*\(": "no bound or no end: osdTextSet copies",
    r"^\s*extern (?!\"\"|template)": "a declaration belongs into a header",
    r"^\s*using namespace": "the library names what it uses",
}


def named(name, rule):
    return name in FIXED or name.isupper() or re.match(rule, name)


faults = []
for path in sorted(p for folder in FOLDERS for p in (ROOT / folder).rglob("*") if p.suffix in (".cpp", ".h")):
    code = NO_CODE.sub(lambda m: "\n" * m[0].count("\n") or '""', path.read_text(encoding="utf-8"))

    def fault(match, text):
        faults.append(f"{path.relative_to(ROOT)}:{code.count(chr(10), 0, match.start(0)) + 1}: {text}")

    for match in GLOBAL.finditer(code):
        constant = re.search(r"\bconst(?:expr)?\b", match[1])
        if not named(match[2], r"c_" if constant else r"gs?_|gs?[a-z]"):
            fault(match, f"{match[2]}: " + ("a constant is called c_..." if constant else "a global is called g_..., a static one gs_..."))
    for pattern, prefix in PREFIX:
        for match in pattern.finditer(code):
            if not named(match[1], rf"(?:gs?_?|c_)?a?(?:{prefix})(?:[A-Z0-9]|$)"):
                fault(match, f"{match[1]}: expected prefix {prefix}")
    for pattern, reason in FORBIDDEN.items():
        for match in re.finditer(pattern, code, re.M) if path.suffix == ".cpp" or "extern" not in pattern else ():
            fault(match, f"{match[0].strip()}: {reason}")
print("\n".join(faults) or "names are in order")
sys.exit(bool(faults))
