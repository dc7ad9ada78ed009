#!/usr/bin/env python3
"""The web page of the simulated camera in a real browser.

browser_test.py CAMERA_SIM [--screenshot FILE.png] [UNITTEST OPTION...]
"""
import argparse
import json
import re
import signal
import socket
import sys
import time
import unittest
import urllib.request
from pathlib import Path

from camera import Camera, Relay
from webdriver import Browser, eventually

UP, DOWN, LEFT, RIGHT, ENTER, ESCAPE, BACKSPACE = "\ue013\ue015\ue012\ue014\ue007\ue00c\ue003"
BRIGHTNESS = "[id='setting-ImageParam.Brightness']"
PIXELS = """const stream = document.getElementById('stream'), brush = document.createElement('canvas').getContext('2d');
brush.drawImage(stream, 0, 0, 160, 90);
return stream.naturalWidth ? [...brush.getImageData(0, 0, 160, 90).data].join() : ''"""
VEILED = "const { hidden, innerText } = document.getElementById('veil'); return !hidden && innerText.includes('lost')"
VISIBLE_CONTROLS = """return [...document.querySelectorAll('button, select, input, a[href], [tabindex="0"]')]
    .filter(element => element.checkVisibility())"""


class PageTest(unittest.TestCase):
    def setUp(self):
        camera.keys("close")
        camera.put("settings.json", defaults)
        self.load()

    def load(self, width=1280, height=800):
        browser.open(camera.address, width, height)
        eventually(lambda: browser.run("return !!document.querySelector(arguments[0])", BRIGHTNESS), "the page")

    def wait_focus(self, *expected):
        """Camera, panel and live region agree on page, label and value."""
        row = [word for word in expected[1:] if word]
        eventually(lambda: camera.focus()[:len(expected)] == expected, f"the cursor is at {expected}")
        eventually(lambda: browser.text("#items [aria-current]").split("\n")[:len(row)] == row, f"{row} is marked")
        eventually(lambda: ", ".join(row) in browser.text("#spoken"), f"{row} is said")

    def wait_value(self, value):
        field = "return document.querySelector(arguments[0]).value"
        eventually(lambda: browser.run(field, BRIGHTNESS) == value, f"the settings show {value}")

    def test_loads_without_an_error_and_all_has_a_name(self):
        browser.errors()
        self.load()
        self.assertEqual(browser.errors(), [])
        eventually(lambda: len(set(browser.run(PIXELS).split(","))) > 20, "the picture has pixels")
        for element in browser.run(VISIBLE_CONTROLS):
            self.assertTrue(browser.label(element), browser.run("return arguments[0].outerHTML", element))

    def test_fits_every_width(self):
        for width, height in ((360, 740), (390, 844), (768, 1024), (1920, 1080), (1280, 800)):
            self.load(width, height)
            self.assertLessEqual(browser.run("return document.documentElement.scrollWidth"), width)
        bottoms = "return [...document.querySelectorAll('.frame, #remote')].map(e => e.getBoundingClientRect().bottom)"
        self.assertLessEqual(max(browser.run(bottoms)), 800)

    def test_mouse_walks_the_menu(self):
        closed = camera.snapshot()
        for key, expected in (("menu", ("main", "Image")), ("right", ("main", "Exposure")), ("left", ("main", "Image")),
                              ("home", ("image", "Brightness", "50")), ("down-right", ("image", "Contrast", "51"))):
            pixels, picture = eventually(lambda: browser.run(PIXELS), "a picture"), camera.snapshot()
            browser.click(f"[data-key='{key}']")
            self.wait_focus(*expected)
            self.assertNotEqual(camera.snapshot(), picture)
            eventually(lambda: browser.run(PIXELS) != pixels, "the picture changes")
        titles = [page["title"] or page["name"] for page in camera.get("state")["pages"]]
        self.assertEqual(browser.text("#pages").split("\n"), titles)
        browser.click("#page option[value='network']")
        eventually(lambda: camera.focus()[0] == "network", "the camera opens the chosen page")
        browser.click("[data-key='close']")
        eventually(lambda: "closed" in browser.text("#menu-note"), "the menu is closed")
        camera.put("settings.json", defaults)
        self.assertEqual(camera.snapshot(), closed)

    def test_keyboard_walks_the_menu_but_not_from_a_field(self):
        for key, expected in (("m", ("main", "Image")), (ENTER, ("image", "Brightness", "50")),
                              (DOWN, ("image", "Contrast")), (UP, ("image", "Brightness")),
                              (RIGHT, ("image", "Brightness", "51")), (BACKSPACE, ("main", "Image"))):
            browser.keys(key)
            self.wait_focus(*expected)
        browser.fill("#settings-search", "c" + DOWN)
        browser.run("document.querySelector('[data-key=right]').focus()")
        browser.keys(" ")  # on a button Space presses the button
        self.wait_focus("main", "Exposure")  # and the field has kept its keys
        browser.keys(ESCAPE)
        eventually(lambda: "closed" in browser.text("#menu-note"), "Escape closes the menu")
        browser.keys(ESCAPE + "m")
        self.wait_focus("main", "Image")  # so Escape has opened nothing

    def test_values_go_both_ways(self):
        camera.keys("menu home right")
        self.wait_value("51")
        browser.fill(BRIGHTNESS, "70" + ENTER)
        self.wait_focus("image", "Brightness", "70")
        browser.fill(BRIGHTNESS, "8")
        camera.put("settings/ImageParam.Brightness", {"value": 60})
        self.wait_focus("image", "Brightness", "60")
        self.wait_value("8")  # what somebody types stays
        browser.keys(ESCAPE)
        self.wait_value("60")
        browser.fill(BRIGHTNESS, "700" + ENTER)
        eventually(lambda: "Brightness" in browser.text("#toasts"), "a refused value is told")
        self.wait_value("60")
        file = camera.folder / "import.json"
        file.write_text(json.dumps({**camera.get("settings.json"), "ImageParam.Brightness": "33"}), "utf-8")
        browser.fill("#import-file", str(file))
        self.wait_value("33")

    def test_language_and_faults(self):
        camera.keys("menu home")
        self.wait_focus("image", "Brightness")
        browser.click("#language option[value='German']")
        self.wait_focus("image", "Helligkeit")
        browser.click("#tab-faults")
        browser.click("[name='settings-slow']")
        eventually(lambda: browser.text("#tab-faults") == "Faults (1 on)", "the page shows the fault")
        self.assertEqual(camera.get("state")["faults"], ["settings-slow"])
        camera.put("faults", {"on": []})
        eventually(lambda: browser.text("#tab-faults") == "Faults", "the page shows no fault")

    def test_page_file_changes_breaks_and_is_mended(self):
        file = camera.folder / "resources/pages/image_page.xml"
        good = file.read_text("utf-8")
        self.addCleanup(file.write_text, good, "utf-8")
        camera.keys("menu home down down")
        self.wait_focus("image", "Saturation")
        file.write_text(re.sub(r'<Item ItemIndex="Contrast".*?/>', "", good, flags=re.S), "utf-8")
        eventually(lambda: "Contrast" not in browser.text("#items"), "the item is gone")
        self.wait_focus("image", "Saturation")
        last = camera.snapshot()
        file.write_text(good.replace("<Option", "<Opt ion", 1), "utf-8")
        eventually(lambda: re.match(r".*image_page\.xml, line \d+\b.", browser.text("#problems")), "an alert")
        self.assertEqual(camera.snapshot(), last)
        file.write_text(good, "utf-8")
        eventually(lambda: not browser.text("#problems") and "Contrast" in browser.text("#items"), "the alert is gone")

    def test_hold_ends_with_the_focus(self):
        camera.put("settings/ImageParam.Brightness", {"value": 0})
        camera.keys("menu home")
        # The camera presses a key 29 times for a page that it doesn't hear of again.
        for hold, steps in ((lambda: browser.mouse_down("[data-key='right']"), 33),
                            (lambda: browser.keys(RIGHT, ["keyDown"]), 3)):
            start = int(camera.focus()[2])
            hold()
            eventually(lambda: int(camera.focus()[2]) >= start + steps, "the camera repeats the key")
            page = browser.call("GET", "/window")
            browser.post("/window", handle=browser.post("/window/new", type="tab")["handle"])
            eventually(lambda: (camera.focus(), time.sleep(1))[0] == camera.focus(), "the value stands still")
            self.assertLess(int(camera.focus()[2]), 100)
            browser.call("DELETE", "/window")
            browser.post("/window", handle=page)
            browser.call("DELETE", "/actions")

    def test_theme(self):
        colours = []
        for system, theme in (("light", "auto"), ("dark", "light"), ("dark", "auto"), ("light", "dark")):
            browser.command("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": system}])
            browser.click(f"#theme option[value='{theme}']")
            self.load()  # the choice outlives the page
            colours.append(browser.run("return getComputedStyle(document.documentElement).backgroundColor"))
        browser.click("#theme option[value='auto']")
        self.assertEqual((colours[0], colours[2]), (colours[1], colours[3]))
        self.assertNotEqual(colours[0], colours[2])

    def test_comes_back_after_the_camera(self):
        camera.stop()
        eventually(lambda: browser.run(VEILED), "the page says that the camera is gone")
        browser.click("[data-key='menu']")
        eventually(lambda: browser.text("#toasts"), "a key without an answer is told")
        camera.start(camera.address.split("/")[2])
        eventually(lambda: browser.text("#connection") == "Connected", "the page finds the camera again")
        self.wait_moving_picture()

    def wait_moving_picture(self):
        pixels = eventually(lambda: browser.run(PIXELS), "a picture")
        camera.keys("menu")
        eventually(lambda: browser.run(PIXELS) != pixels, "the picture shows the menu")
        self.assertFalse(browser.run(VEILED))

    def test_notices_what_ends_without_an_error(self):
        relay = Relay(camera)
        self.addCleanup(relay.stop)
        browser.open(relay.address, 1280, 800)
        eventually(lambda: browser.run(PIXELS), "a picture")
        with urllib.request.urlopen(camera.address + "channels/0/stream.mjpg") as other:
            self.assertTrue(other.read(100))  # the channel keeps a viewer
            relay.streams[-1].shutdown(socket.SHUT_RDWR)
            self.wait_moving_picture()
        camera.process.send_signal(signal.SIGSTOP)
        eventually(lambda: browser.run(VEILED), "the page says that the camera is silent")
        camera.process.send_signal(signal.SIGCONT)
        eventually(lambda: browser.text("#connection") == "Connected", "the page hears the camera again")
        self.wait_moving_picture()


if __name__ == "__main__":
    parser = argparse.ArgumentParser(usage=__doc__, add_help=False)
    parser.add_argument("program")
    parser.add_argument("--screenshot", type=Path)
    words, rest = parser.parse_known_args()
    camera, browser = Camera(words.program, "--still"), Browser()
    defaults = camera.get("settings.json")
    if words.screenshot:
        camera.keys("menu home down")
        PageTest().load()
        eventually(lambda: browser.text("#items") and browser.run(PIXELS), "the menu is shown")
        browser.screenshot(words.screenshot)
    unittest.main(argv=[sys.argv[0], *rest])
