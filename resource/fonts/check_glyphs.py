#!/usr/bin/env python3
"""Checks that fonts have a glyph for every character of the given translations."""
import argparse
import json
import sys
from pathlib import Path

from fontTools.ttLib import TTFont


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--fonts", nargs="+", type=Path, required=True)
    parser.add_argument("--texts", nargs="+", type=Path, required=True, help="JSON files, key to text")
    args = parser.parse_args()

    missing = False
    for font in args.fonts:
        with_glyph = TTFont(font, lazy=True).getBestCmap().keys()
        for file in args.texts:
            for key, text in json.loads(file.read_text(encoding="utf-8")).items():
                for character in sorted(set(text)):
                    if ord(character) not in with_glyph:
                        missing = True
                        print(f"{file}: key '{key}': {font.name} has no glyph for '{character}' "
                              f"(U+{ord(character):04X})", file=sys.stderr)
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main())
