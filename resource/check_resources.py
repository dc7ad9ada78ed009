#!/usr/bin/env python3
"""Checks pages, translations and settings of a resource folder against each other.

Every text that a page or a setting asks for must be there in all languages, and every item that shows a value must
have a setting or a device fact behind it. Every page must have a file, be reached by keys, and never be the sixth that
is open, and it must keep the rules of its layout. It must not be higher than the menu, and no item may stand twice
among those that show together. Attributes and their words must be known. Errors go to standard error, each with its
file and line or key.
"""
import argparse
import json
import signal
import sys
import unicodedata
import xml.parsers.expat
from pathlib import Path

MAX_TEXT_BYTES = 31
PAGE_ENDING = "_page.xml"
ROOT_PAGES = ("main", "advanced")
MAX_OPEN_PAGES = 5

OPENING_ATTRIBUTES = {"SUBPAGE": "SubPage", "CONFIRM_POP": "ConfirmPage", "CONFIRM_POP_BTN": "ConfirmPage"}
VALUE_CONTEXTS = ("NAME_BAR_VAL", "NAME_VAL", "NAME_IP_VAL")
TRANSLATED_ATTRIBUTES = ("Title", "ItemIndex", "Msg", "Value", "ModeIndex")
WORDS_OF_THE_MENU = ("StaticIp", "DhcpIp", "AutoMode", "Confirm", "Finish", "Loading")

# Room for texts on the smallest menu, half of a picture of 1920 by 1080, and the sizes of the texts, all in pixels.
MENU_WIDTH = 960
MENU_HEIGHT = 1080
CAPTION_SIZE = {"English": 28}
CAPTION_SIZE_OF_OTHERS = 32
POPUPS = {"horizontal_align": (230, 32), "horizontal_align_keth": (630, 28)} # width inside the frame, size
PAGED = "vertical_align_keth"
LINE_HEIGHT = 1.448 # of a text, as part of its size
LISTS = {"vertical_align": (32, 0.01, 0.02, 0.95), # size of a label; then parts of the height: gap above the first row,
         "vertical_tolvane_align": (32.4, 0.01, 0.02, 0.88), # gap between rows, foot
         PAGED: (28, 0.14, 0.01, 0.88)} # the title is above the first row
KNOWN_ATTRIBUTES = frozenset(
    "Attr ConfirmBtn ConfirmPage CountPerLine Ctx CurPagesNum DataZone ItemCnt ItemIndex ItemIndexOnLine ItemPos Layout "
    "Line ModeIndex Msg NextPage NumOfChar Pic PicType PrevPage RdOnly SelectPic ShowValue SubPage Title TitlePos "
    "ValType Value".split())
WORDS = { # the menu refuses a page with another one, or takes another one for none
    "Attr": "COMMON CONFIRM CONFIRM_POP CONFIRM_POP_BTN CONST_TXT EDITABLE KEY_WITH_MSG MSG_WITH_SUBITEM STATUS SUBITEM "
            "SUBPAGE",
    "ConfirmBtn": "Yes No",
    "Ctx": "ICON ICON_TXT ICON_TXT_KETH NAME NAME_BAR_VAL NAME_IP_VAL NAME_VAL",
    "ItemPos": "Center",
    "PicType": "MAINTYPE SUBTYPE IPTYPE CONFIRMTYPE",
    "TitlePos": "Left Right Center",
    "ValType": "OPTTXT NUMERICAL EDITTXT"}
LAYOUTS = ("icon", "vertical_align", "vertical_tolvane_align", PAGED, *POPUPS)
PAGED_ATTRIBUTES = ("CurPagesNum", "NextPage", "PrevPage", "Line")
ICON_ATTRIBUTES = ("Pic", "SelectPic")

# Widths of letters in the menu's font as parts of the text size; close enough to tell a text that is a word too long.
LETTER_WIDTHS = (("iljI.,:;'!| ()", 0.28), ("ftr-/", 0.37), ("mwMW%@", 0.88))
CAPITAL_WIDTH = 0.65
OTHER_WIDTH = 0.56

FIXED_PARENT = {"IpAddr": "NetCard0", "NetMask": "NetCard0", "GateWay": "NetCard0", "Dns1": "NetCard0",
                "Dns2": "NetCard0", "IrisLevel": "Panorama", "LedCustomColor": ""}
LED_PARTS = ("LedCustomRed", "LedCustomGreen")


class Element:
    """An element of a page file, with the line where it begins."""

    def __init__(self, place, attributes):
        self.place = place
        self.attributes = attributes
        self.children = []

    def __getitem__(self, name):
        return self.attributes.get(name, "")

    def descendants(self):
        for child in self.children:
            yield child
            yield from child.descendants()


def read_page(path):
    parser = xml.parsers.expat.ParserCreate()
    root = Element(f"{path}:1", {})
    open_elements = [root]

    def start(_name, attributes):
        element = Element(f"{path}:{parser.CurrentLineNumber}", attributes)
        open_elements[-1].children.append(element)
        open_elements.append(element)

    parser.StartElementHandler = start
    parser.EndElementHandler = lambda _name: open_elements.pop()
    parser.Parse(path.read_bytes(), True)
    return root.children[0]


def read_json(path):
    def unique(pairs):
        keys = [key for key, _value in pairs]
        for key in keys:
            if keys.count(key) > 1:
                raise ValueError(f"key '{key}' stands twice in one object")
        return dict(pairs)

    return json.loads(path.read_text(encoding="utf-8"), object_pairs_hook=unique)


def width_of(letter):
    if unicodedata.east_asian_width(letter) in "WF":
        return 1.0
    return next((width for letters, width in LETTER_WIDTHS if letter in letters),
                CAPITAL_WIDTH if letter.isupper() else OTHER_WIDTH)


def rows_of(items):
    """How many rows items take with those options chosen that have the most sub-items."""
    return sum(1 + max((rows_of(option.children) for option in item.children), default=0) for item in items)


class Checker:
    def __init__(self, folder):
        self.errors = []
        self.settings_file = folder / "settings.json"
        definitions = self.read(read_json, self.settings_file)
        self.languages = {path: self.read(read_json, path) for path in sorted(folder.glob("lang/*.json"))}
        self.can_compare = None not in (definitions, *self.languages.values())
        definitions = definitions or {}
        self.facts = definitions.get("facts", {})
        self.zones = definitions.get("zones", {})
        self.settings = {(s.get("parent", ""), s.get("key")): s for s in definitions.get("settings", [])}
        written = (folder / "pages").is_dir() # else it is a staged folder
        files = folder.glob(("pages/*" if written else "menu/*") + PAGE_ENDING)
        self.pages = {path: self.read(read_page, path) for path in sorted(files)}
        self.by_name = {path.name.removesuffix(PAGE_ENDING): page for path, page in self.pages.items() if page}
        self.pictures = {path.stem for path in folder.glob("pic/*.svg" if written else "pic/*.bmp")}

    def error(self, place, text):
        self.errors.append(f"{place}: {text}")

    def read(self, reader, path):
        try:
            return reader(path)
        except xml.parsers.expat.ExpatError as problem:
            self.error(f"{path}:{problem.lineno}", xml.parsers.expat.ErrorString(problem.code))
        except (OSError, ValueError) as problem:
            self.error(path, problem)
        return None

    def check(self):
        if not self.pages or not self.languages:
            self.error(self.settings_file.parent, "expected page files in pages/ and languages in lang/")
        if not self.can_compare:
            return # what else could be said follows from the file that can't be read
        self.check_languages()
        for path in self.languages:
            for word in WORDS_OF_THE_MENU:
                self.need_text(f"{path}: for the menu itself", word)
        self.need_text(f"{self.settings_file}: fact 'NdiStatus'", self.facts.get("NdiStatus", ""))
        for name, page in self.by_name.items():
            self.check_texts(page)
            self.check_layout(name, page)
            self.check_twins(page.children, {})
            self.check_height(page)
            self.check_words(page)
            for element in page.descendants():
                self.check_words(element)
                self.check_texts(element)
                self.check_value(element)
        self.check_page_stack()

    def check_languages(self):
        all_keys = {key for texts in self.languages.values() for key in texts}
        for path, texts in self.languages.items():
            for key in sorted(all_keys - texts.keys()):
                self.error(path, f"key '{key}' is missing, another language has it")
            for key, text in texts.items():
                if not isinstance(text, str) or not text:
                    self.error(path, f"key '{key}': expected a text")
                elif len(text.encode()) > MAX_TEXT_BYTES:
                    self.error(path, f"key '{key}': '{text}' has {len(text.encode())} bytes, "
                                     f"at most {MAX_TEXT_BYTES} fit")

    def check_glyphs(self, fonts):
        from fonts.check_glyphs import missing_glyphs # pylint: disable=import-outside-toplevel # needs fontTools
        for path, texts in self.languages.items():
            strings = {key: text for key, text in (texts or {}).items() if isinstance(text, str)}
            self.errors += [f"{path}: {words}" for words in missing_glyphs(fonts, strings)]

    def need_text(self, place, key):
        for path, texts in self.languages.items():
            if key not in texts:
                self.error(place, f"'{key}' has no translation in {path.name}")

    def check_texts(self, element):
        for name in TRANSLATED_ATTRIBUTES:
            if name in element.attributes:
                self.need_text(f"{element.place}: {name}", element[name])

    def check_words(self, element):
        for name, word in element.attributes.items():
            if name not in KNOWN_ATTRIBUTES:
                self.error(element.place, f"attribute '{name}' means nothing to the menu")
            elif name in WORDS and word not in WORDS[name].split():
                self.error(element.place, f"{name} '{word}', expected one of {', '.join(WORDS[name].split())}")

    def links_of(self, page):
        """Names of the pages that a page opens, each with the place that says so; pages without a file are errors."""
        named = [(page.place, turn, page[turn]) for turn in ("NextPage", "PrevPage") if page[turn]]
        for item in page.descendants():
            opening = OPENING_ATTRIBUTES.get(item["Attr"])
            if opening:
                named.append((item.place, opening, item[opening]))
        links = []
        names = [path.name for path in self.pages]
        for place, attribute, target in named:
            if target + PAGE_ENDING not in names:
                self.error(place, f"{attribute} '{target}': there is no file {target}{PAGE_ENDING}")
            elif attribute != "PrevPage": # turning back closes a page and opens none
                links.append((place, target))
        return links

    def check_page_stack(self):
        """Walks from the root pages as keys do, one open page more at each step."""
        pages = self.by_name
        links = {name: self.links_of(page) for name, page in pages.items()}
        reached = set()
        stacks = {name: [name] for name in ROOT_PAGES if name in pages} # by top page: the open pages, bottom first
        while stacks:
            reached.update(stacks)
            higher = {}
            for top, stack in stacks.items():
                for place, target in links.get(top, []):
                    if len(stack) == MAX_OPEN_PAGES:
                        self.error(place, f"page '{target}' would be number {MAX_OPEN_PAGES + 1} above "
                                          f"{' > '.join(stack)}, expected at most {MAX_OPEN_PAGES} open pages")
                    else:
                        higher.setdefault(target, stack + [target])
            stacks = higher
        if len(pages) < len(self.pages):
            return # the others may be reached from one that can't be read
        for name in sorted(pages.keys() - reached):
            self.error(pages[name].place, f"page '{name}' is reached from nowhere, expected an item of a page that "
                                          f"{' or '.join(ROOT_PAGES)} leads to")

    def check_twins(self, items, above):
        """Options of an item exclude each other, all else shows together."""
        known = dict(above)
        for item in items:
            key = item["ItemIndex"]
            if key in known:
                self.error(item.place, f"item '{key}' stands on line {known[key]} already, and both show")
            known[key] = item.place.rpartition(":")[2]
        for item in items:
            for option in item.children:
                self.check_twins(option.children, known)

    def check_height(self, page):
        if page["Layout"] not in LISTS:
            return
        size, above, gap, foot = LISTS[page["Layout"]]
        rows = rows_of(page.children) + ("Title" in page.attributes and page["Layout"] != PAGED)
        fit = int(((foot - above + gap) * MENU_HEIGHT) / (size * LINE_HEIGHT + gap * MENU_HEIGHT))
        if rows > fit:
            self.error(page.place, f"{rows} rows show at most, about {fit} fit in layout '{page['Layout']}'")

    def check_layout(self, name, page):
        layout = page["Layout"]
        if layout == "icon":
            self.check_icons(page)
        elif layout in POPUPS:
            self.check_popup(page, *POPUPS[layout])
        elif layout == PAGED:
            self.check_paged(name, page)
        elif layout not in LAYOUTS:
            self.error(page.place, f"Layout '{layout}', expected one of {', '.join(LAYOUTS)}")
        if layout != PAGED:
            for element in (page, *page.descendants()):
                for attribute in sorted(element.attributes.keys() & PAGED_ATTRIBUTES):
                    self.error(element.place, f"{attribute} does nothing in layout '{layout}', only in '{PAGED}'")

    def check_icons(self, page):
        if not page["CountPerLine"].isdecimal() or int(page["CountPerLine"]) == 0:
            self.error(page.place, f"CountPerLine '{page['CountPerLine']}', expected 1 or more")
            return
        count = int(page["CountPerLine"])
        gap = MENU_WIDTH / 10
        column = (MENU_WIDTH - gap * count) / count + gap # as far as the icon's middle is from the next one's
        for item in page.children:
            for attribute in ICON_ATTRIBUTES:
                if item[attribute] not in self.pictures:
                    self.error(item.place, f"{attribute} '{item[attribute]}': there is no such picture in pic/")
            self.need_room(item, "ItemIndex", column,
                           lambda language: CAPTION_SIZE.get(language, CAPTION_SIZE_OF_OTHERS))

    def check_popup(self, page, width, size):
        self.need_room(page, "Title", width, lambda _language: size)
        self.need_room(page, "Msg", width, lambda _language: size)
        if "Msg" in page.attributes and page["Layout"] != "horizontal_align_keth":
            self.error(page.place, f"Msg does nothing in layout '{page['Layout']}'")
        count = len(page.children)
        for index, item in enumerate(page.children):
            if (item["ItemCnt"], item["ItemIndexOnLine"]) != (str(count), str(index)):
                self.error(item.place, f"item '{item['ItemIndex']}': expected ItemCnt {count} and ItemIndexOnLine "
                                       f"{index}, the items of a popup stand side by side")
            self.need_room(item, "ItemIndex", width / count, lambda _language: size)

    def check_paged(self, name, page):
        if page.children and page.children[0]["Attr"] == "STATUS":
            self.error(page.children[0].place, "a STATUS item comes first, the cursor would not be seen on it")
        for there, back in (("NextPage", "PrevPage"), ("PrevPage", "NextPage")):
            if there not in page.attributes:
                continue
            if "CurPagesNum" not in page.attributes:
                self.error(page.place, f"{there} does nothing without CurPagesNum")
            other = self.by_name.get(page[there])
            if other and other[back] != name:
                self.error(page.place, f"{there} '{page[there]}': that page has {back} '{other[back]}', "
                                       f"expected '{name}'")

    def need_room(self, element, attribute, room, size_in):
        for path, texts in self.languages.items():
            text = texts.get(element[attribute], "")
            width = sum(width_of(letter) for letter in text) * size_in(path.stem)
            if width > room:
                self.error(f"{element.place}: {attribute}", f"'{text}' of {path.name} is about {width:.0f} pixels "
                                                            f"wide, {room:.0f} fit")

    def check_value(self, item):
        if "ShowValue" in item.attributes:
            # A live value is shown translated, only an address as it stands.
            self.need_setting(item, ("text",) if item["ItemIndex"] == "IpAddr" else ("option",))
        if item["Ctx"] not in VALUE_CONTEXTS:
            return
        if item["Attr"] == "STATUS":
            self.check_status(item)
        elif item["Attr"] in ("SUBITEM", "MSG_WITH_SUBITEM"):
            self.check_options(item, self.need_setting(item, ("option",)))
        elif item["Attr"] in ("COMMON", "KEY_WITH_MSG"):
            numeric = "color" if item["ItemIndex"] in LED_PARTS else "integer"
            self.need_setting(item, (numeric if item["ValType"] == "NUMERICAL" else "option",))
        elif item["Attr"] == "EDITABLE":
            self.need_setting(item, ("text",))

    def check_status(self, item):
        key = item["ItemIndex"]
        if key in FIXED_PARENT:
            self.look_up(item, FIXED_PARENT[key], key, ("text", "color"))
        elif key not in self.facts:
            self.error(item.place, f"STATUS item '{key}': expected a setting of NetCard0 or Panorama, or a fact in "
                                   f"{self.settings_file.name}")

    def need_setting(self, item, kinds):
        zone = item["DataZone"]
        if zone and zone not in self.zones:
            self.error(item.place, f"DataZone '{zone}' is not in 'zones' of {self.settings_file.name}")
            return None
        key = "LedCustomColor" if item["ItemIndex"] in LED_PARTS else item["ItemIndex"]
        return self.look_up(item, self.zones.get(zone, ""), key, kinds)

    def look_up(self, item, parent, key, kinds):
        setting = self.settings.get((parent, key))
        owner = f"with parent '{parent}'" if parent else "without parent"
        if setting is None:
            self.error(item.place, f"item '{item['ItemIndex']}': no setting '{key}' {owner} in "
                                   f"{self.settings_file.name}")
        elif setting.get("kind") not in kinds:
            self.error(item.place, f"item '{item['ItemIndex']}': setting '{key}' {owner} is of kind "
                                   f"{setting.get('kind')}, expected {' or '.join(kinds)}")
        else:
            for option in setting.get("options", []):
                self.need_text(f"{self.settings_file}: setting '{key}': option", option)
        return setting

    def check_options(self, item, setting):
        options = setting.get("options", []) if setting else []
        on_page = [option["ModeIndex"] for option in item.children]
        if options and sorted(on_page) != sorted(options):
            self.error(item.place, f"item '{item['ItemIndex']}' offers {', '.join(on_page)}; "
                                   f"its setting has {', '.join(options)}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("folder", type=Path, help="folder with pages/, lang/ and settings.json")
    parser.add_argument("--fonts", nargs="+", type=Path, default=[], help="fonts that need a glyph for every character")
    args = parser.parse_args()
    signal.alarm(60) # whoever waits for an answer has gone by then
    checker = Checker(args.folder)
    checker.check()
    if args.fonts:
        checker.check_glyphs(args.fonts)
    for error in dict.fromkeys(checker.errors):
        print(error, file=sys.stderr)
    return 1 if checker.errors else 0


if __name__ == "__main__":
    sys.exit(main())
