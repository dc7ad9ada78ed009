#!/usr/bin/env python3
"""Takes one face out of a font collection and writes it as a font file of its own."""
import argparse
import sys
from pathlib import Path

from fontTools.ttLib import TTCollection, TTLibError

FULL_NAME = 4  # identifier in a font's table of names


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("collection", type=Path)
    parser.add_argument("face", help="full name of the face, such as 'Noto Sans CJK SC'")
    parser.add_argument("output", type=Path)
    args = parser.parse_args()

    if not args.collection.exists():
        return f"{args.collection} is missing. Install the Debian package fonts-noto-cjk."
    try:
        faces = TTCollection(args.collection, lazy=True).fonts
    except TTLibError as problem:
        return f"{args.collection} is no font collection: {problem}"
    by_name = {face["name"].getDebugName(FULL_NAME): face for face in faces}
    if args.face not in by_name:
        return f"{args.collection} has no face '{args.face}'. It has: {', '.join(by_name)}"
    face = by_name[args.face]
    face.recalcTimestamp = False  # the same font from the same collection, to the byte
    args.output.parent.mkdir(parents=True, exist_ok=True)
    face.save(args.output)
    return 0


if __name__ == "__main__":
    sys.exit(main())
