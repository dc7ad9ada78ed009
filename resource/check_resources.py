#!/usr/bin/env python3
"""Checks pages, translations and settings of a resource folder against each other.

Every text that a page or a setting asks for must be there in all languages, and every item that shows a value must
have a setting or a device fact behind it. Every page must have a file, be reached by keys, and never be the sixth that
is open. Errors go to standard error, each with its file and line or key.
"""
import argparse
import json
import sys
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


class Checker:
    def __init__(self, folder):
        self.errors = []
        self.settings_file = folder / "settings.json"
        definitions = self.read(read_json, self.settings_file) or {}
        self.facts = definitions.get("facts", {})
        self.zones = definitions.get("zones", {})
        self.settings = {(s.get("parent", ""), s.get("key")): s for s in definitions.get("settings", [])}
        self.languages = {path: self.read(read_json, path) or {} for path in sorted(folder.glob("lang/*.json"))}
        self.pages = {path: self.read(read_page, path) for path in sorted(folder.glob("pages/*" + PAGE_ENDING))}

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
        self.check_languages()
        for word in WORDS_OF_THE_MENU:
            self.need_text("the menu itself", word)
        self.need_text(f"{self.settings_file}: fact 'NdiStatus'", self.facts.get("NdiStatus", ""))
        for page in filter(None, self.pages.values()):
            self.check_texts(page)
            for element in page.descendants():
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

    def need_text(self, place, key):
        for path, texts in self.languages.items():
            if key not in texts:
                self.error(place, f"'{key}' has no translation in {path.name}")

    def check_texts(self, element):
        for name in TRANSLATED_ATTRIBUTES:
            if name in element.attributes:
                self.need_text(f"{element.place}: {name}", element[name])

    def links_of(self, page):
        """Names of the pages that a page opens, each with the place that says so; pages without a file are errors."""
        named = [(page.place, "NextPage", page["NextPage"])] if page["NextPage"] else []
        for item in page.descendants():
            opening = OPENING_ATTRIBUTES.get(item["Attr"])
            if opening:
                named.append((item.place, opening, item[opening]))
        links = []
        names = [path.name for path in self.pages]
        for place, attribute, target in named:
            if target + PAGE_ENDING in names:
                links.append((place, target))
            else:
                self.error(place, f"{attribute} '{target}': there is no file {target}{PAGE_ENDING}")
        return links

    def check_page_stack(self):
        """Walks from the root pages as keys do, one open page more at each step."""
        pages = {path.name.removesuffix(PAGE_ENDING): page for path, page in self.pages.items() if page}
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
        for name in sorted(pages.keys() - reached):
            self.error(pages[name].place, f"page '{name}' is reached from nowhere, expected an item of a page that "
                                          f"{' or '.join(ROOT_PAGES)} leads to")

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
    checker = Checker(parser.parse_args().folder)
    checker.check()
    for error in dict.fromkeys(checker.errors):
        print(error, file=sys.stderr)
    return 1 if checker.errors else 0


if __name__ == "__main__":
    sys.exit(main())
