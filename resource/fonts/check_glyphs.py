#!/usr/bin/env python3
"""Checks that fonts have a glyph for every character of the given translations."""
import argparse
import json
import sys
from pathlib import Path

from fontTools.ttLib import TTFont


def missing_glyphs(fonts, texts):
    """Tells for each character of texts, by their keys, which of the font files lacks it."""
    for font in fonts:
        with_glyph = TTFont(font, lazy=True).getBestCmap().keys()
        for key, text in texts.items():
            for character in sorted(set(text)):
                if ord(character) not in with_glyph:
                    yield f"key '{key}': {font.name} has no glyph for '{character}' (U+{ord(character):04X})"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--fonts", nargs="+", type=Path, required=True)
    parser.add_argument("--texts", nargs="+", type=Path, required=True, help="JSON files, key to text")
    args = parser.parse_args()

    missing = False
    for file in args.texts:
        for words in missing_glyphs(args.fonts, json.loads(file.read_text(encoding="utf-8"))):
            missing = True
            print(f"{file}: {words}", file=sys.stderr)
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main())
