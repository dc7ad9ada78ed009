#!/usr/bin/env python3
"""Drives the resource check with small resource folders, each with one fault."""
import json
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CHECK = Path(__file__).with_name("check_resources.py")
MENU_WORDS = ["StaticIp", "DhcpIp", "AutoMode", "Confirm", "Finish", "Loading"]


def good_resources():
    """Files of a folder without a fault: path to text of a page, or to content of a JSON file."""
    words = MENU_WORDS + ["image", "Gain", "Mode", "On", "Off", "FwVersion", "Active", "No"]
    return {
        "lang/English.json": {word: word.lower() for word in words},
        "lang/German.json": {word: word.upper() for word in words},
        "settings.json": {
            "facts": {"FwVersion": "1.0", "NdiStatus": "Active"},
            "zones": {"Image": "ImageParam"},
            "settings": [{"key": "Gain", "parent": "ImageParam", "kind": "integer"},
                         {"key": "Mode", "kind": "option", "options": ["Off", "On"]}]},
        "pages/main_page.xml":
            '<Page Layout="icon" CountPerLine="4">\n'
            '  <Item ItemIndex="image" Ctx="ICON_TXT" Pic="sun" SelectPic="moon" Attr="SUBPAGE" SubPage="image"/>\n'
            '</Page>\n',
        "pages/confirm_page.xml":
            '<Page Layout="horizontal_align">\n'
            '  <Item ItemCnt="2" ItemIndexOnLine="0" ItemIndex="No" Ctx="NAME" Attr="CONFIRM"/>\n'
            '  <Item ItemCnt="2" ItemIndexOnLine="1" ItemIndex="On" Ctx="NAME" Attr="CONFIRM"/>\n'
            '</Page>\n',
        "pages/second_page.xml":
            '<Page Layout="vertical_align_keth" CurPagesNum="2/2" PrevPage="image">\n'
            '  <Item ItemIndex="Mode" Ctx="NAME_VAL" Attr="COMMON"/>\n'
            '  <Item ItemIndex="FwVersion" Ctx="NAME_VAL" Attr="STATUS"/>\n'
            '</Page>\n',
        "pic/sun.svg": "<svg/>",
        "pic/moon.svg": "<svg/>",
        "pages/image_page.xml":
            '<Page Layout="vertical_align_keth" CurPagesNum="1/2" NextPage="second" Title="image">\n'
            '  <Item ItemIndex="Mode" Ctx="NAME_VAL" Attr="SUBITEM">\n'
            '    <Option ModeIndex="Off"/>\n'
            '    <Option ModeIndex="On">\n'
            '      <Item ItemIndex="Gain" Ctx="NAME_BAR_VAL" Attr="COMMON" ValType="NUMERICAL" DataZone="Image"/>\n'
            '    </Option>\n'
            '  </Item>\n'
            '  <Item ItemIndex="FwVersion" Ctx="NAME_VAL" Attr="STATUS"/>\n'
            '  <Item ItemIndex="image" Ctx="NAME" Attr="CONFIRM_POP_BTN" ConfirmPage="confirm"/>\n'
            '</Page>\n'}


def edit_page(old, new, page="image"):
    def change(files):
        path = f"pages/{page}_page.xml"
        assert old in files[path]
        files[path] = files[path].replace(old, new)
    return change


FAULTS = {
    "a language lacks a key": (
        lambda files: files["lang/German.json"].pop("Gain"),
        ["German.json: key 'Gain' is missing", "image_page.xml:5: ItemIndex: 'Gain' has no translation in German.json"]),
    "a text is too long": (
        lambda files: files["lang/German.json"].update(Gain="ä" * 16),
        ["German.json: key 'Gain': 'ääääääääääääääää' has 32 bytes, at most 31 fit"]),
    "an option has no translation": (
        lambda files: files["settings.json"]["settings"][1]["options"].append("Half"),
        ["setting 'Mode': option: 'Half' has no translation", "image_page.xml:2: item 'Mode' offers Off, On; "
         "its setting has Off, On, Half"]),
    "an item has no setting": (
        edit_page('DataZone="Image"', ""), ["image_page.xml:5: item 'Gain': no setting 'Gain' without parent"]),
    "a setting is of the wrong kind": (
        edit_page('ValType="NUMERICAL"', ""),
        ["image_page.xml:5: item 'Gain': setting 'Gain' with parent 'ImageParam' is of kind integer, expected option"]),
    "a data zone is unknown": (
        edit_page('DataZone="Image"', 'DataZone="Sound"'), ["image_page.xml:5: DataZone 'Sound' is not in 'zones'"]),
    "a status item has no source": (
        lambda files: files["settings.json"]["facts"].pop("FwVersion"), ["image_page.xml:8: STATUS item 'FwVersion'"]),
    "a live value has no setting": (
        edit_page('Ctx="NAME"', 'Ctx="NAME" ShowValue="1"'), ["image_page.xml:9: item 'image': no setting 'image'"]),
    "a confirm page is missing": (
        edit_page('ConfirmPage="confirm"', 'ConfirmPage="sound"'),
        ["image_page.xml:9: ConfirmPage 'sound': there is no file sound_page.xml",
         "confirm_page.xml:1: page 'confirm' is reached from nowhere"]),
    "a sub-page is missing": (
        lambda files: files.pop("pages/image_page.xml"), ["main_page.xml:2: SubPage 'image': there is no file"]),
    "a next page is missing": (
        edit_page('"second"', '"sound"'), ["image_page.xml:1: NextPage 'sound': there is no file"]),
    "pages open each other without end": (
        lambda files: files.update({"pages/confirm_page.xml": '<Page NextPage="image"/>\n'}),
        ["confirm_page.xml:1: page 'image' would be number 6 above main > image > confirm > image > confirm, "
         "expected at most 5 open pages"]),
    "a layout is unknown": (
        edit_page('"icon"', '"grid"', "main"), ["main_page.xml:1: Layout 'grid', expected one of icon, vertical"]),
    "a word is misspelt": (
        edit_page('Attr="COMMON"', 'Attr="Common"'), ["image_page.xml:5: Attr 'Common', expected one of COMMON, CONF"]),
    "an attribute is misspelt": (
        edit_page('ModeIndex="On"', 'Modeindex="On"'),
        ["image_page.xml:4: attribute 'Modeindex' means nothing to the menu"]),
    "icons have no grid": (
        edit_page('"4"', '"0"', "main"), ["main_page.xml:1: CountPerLine '0', expected 1 or more"]),
    "an icon has no picture": (
        lambda files: files.pop("pic/moon.svg"), ["main_page.xml:2: SelectPic 'moon': there is no such picture"]),
    "a caption is wider than its column": (
        lambda files: files["lang/German.json"].update(image="图像图像图像图像"),
        ["main_page.xml:2: ItemIndex: '图像图像图像图像' of German.json is about 256 pixels wide, 240 fit"]),
    "a popup is too small for a button": (
        lambda files: files["lang/English.json"].update(No="不要取消"),
        ["confirm_page.xml:2: ItemIndex: '不要取消' of English.json is about 128 pixels wide, 115 fit"]),
    "buttons of a popup cover each other": (
        edit_page('ItemIndexOnLine="1"', "", "confirm"),
        ["confirm_page.xml:3: item 'On': expected ItemCnt 2 and ItemIndexOnLine 1"]),
    "a page turns back to another": (
        edit_page('PrevPage="image"', 'PrevPage="main"', "second"),
        ["image_page.xml:1: NextPage 'second': that page has PrevPage 'main', expected 'image'",
         "second_page.xml:1: PrevPage 'main': that page has NextPage '', expected 'second'"]),
    "a page turns without a number": (
        edit_page('CurPagesNum="1/2"', ""), ["image_page.xml:1: NextPage does nothing without CurPagesNum"]),
    "a page turns in a layout that doesn't": (
        edit_page("vertical_align_keth", "vertical_align"),
        ["image_page.xml:1: NextPage does nothing in layout 'vertical_align'"]),
    "an item stands twice where both show": (
        edit_page('ItemIndex="Gain"', 'ItemIndex="Mode"'),
        ["image_page.xml:5: item 'Mode' stands on line 2 already, and both show"]),
    "a page is too high": (
        edit_page("    </Option>\n", '      <Item ItemIndex="On"/>\n' * 14 + "    </Option>\n"),
        ["image_page.xml:1: 18 rows show at most, about 15 fit in layout 'vertical_align_keth'"]),
    "the cursor begins where it isn't seen": (
        edit_page("COMMON", "STATUS", "second"), ["second_page.xml:2: a STATUS item comes first"]),
    "a page is no XML": (edit_page("</Page>", "</Pag>"), ["image_page.xml:10: mismatched tag"]),
}


class CheckResourcesTest(unittest.TestCase):
    def run_check(self, files):
        with tempfile.TemporaryDirectory() as folder:
            for name, content in files.items():
                path = Path(folder, name)
                path.parent.mkdir(exist_ok=True)
                text = content if isinstance(content, str) else json.dumps(content)
                path.write_text(text, encoding="utf-8")
            result = subprocess.run([sys.executable, CHECK, folder], capture_output=True, text=True, check=False)
        return result.returncode, result.stderr

    def test_good_folder_passes(self):
        self.assertEqual(self.run_check(good_resources()), (0, ""))

    def test_each_fault_is_named(self):
        for fault, (change, messages) in FAULTS.items():
            with self.subTest(fault):
                files = good_resources()
                change(files)
                code, errors = self.run_check(files)
                self.assertEqual(code, 1)
                for message in messages:
                    self.assertIn(message, errors)

    def test_key_that_stands_twice(self):
        files = good_resources()
        files["lang/English.json"] = '{"Gain": "a", "Gain": "b"}'
        self.assertIn("English.json: key 'Gain' stands twice", self.run_check(files)[1])

    def test_empty_folder(self):
        code, errors = self.run_check({})
        self.assertEqual(code, 1)
        self.assertIn("expected page files in pages/ and languages in lang/", errors)


if __name__ == "__main__":
    unittest.main()
