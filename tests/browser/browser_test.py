#!/usr/bin/python3
"""The web page of the simulated camera in a real browser.

browser_test.py CAMERA_SIM [--screenshot FILE.png] [UNITTEST OPTION...]
"""
import argparse
import atexit
import json
import re
import signal
import sys
import time
import unittest

from selenium.webdriver import ActionChains, Chrome, ChromeOptions, Keys
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.support.wait import WebDriverWait

from camera import Camera

FLAGS = ["--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--force-color-profile=srgb"]
BRIGHTNESS = "[id='setting-ImageParam.Brightness']"
PIXELS = """const stream = document.getElementById('stream'), brush = document.createElement('canvas').getContext('2d');
brush.drawImage(stream, 0, 0, 160, 90);
return stream.naturalWidth ? [...brush.getImageData(0, 0, 160, 90).data].join() : ''"""
VEILED = "const { hidden, innerText } = document.getElementById('veil'); return !hidden && innerText.includes('lost')"
VISIBLE_CONTROLS = """return [...document.querySelectorAll('button, select, input, a[href], [tabindex="0"]')]
    .filter(element => element.checkVisibility())"""
# A stream that ends leaves its last picture, and no error.
ENDED_STREAM = "const { stream } = window; stream.src = 'channels/0/snapshot.jpg'; return stream.decode()"
MARKED = """return [...document.querySelectorAll('.setting')].filter(row => row.querySelector('.unused').innerText)
    .map(row => row.title)"""
BOTTOM = "return Math.max(...['.frame', '#remote'].map(s => document.querySelector(s).getBoundingClientRect().bottom))"


def start_browser():
    options = ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    for flag in FLAGS:
        options.add_argument(flag)
    started = Chrome(options=options, service=Service("/usr/bin/chromedriver"))
    started.set_page_load_timeout(30)
    atexit.register(started.quit)
    return started


def eventually(condition, what):
    """Waits until the condition holds, and answers what it gave."""
    return WebDriverWait(browser, 15, 0.05).until(lambda _: condition(), f"{what}: still not so")


def load(width=1280, height=800):
    """Loads the page in a viewport of exactly this size."""
    browser.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {"width": width, "height": height,
                                                                   "deviceScaleFactor": 1, "mobile": width < 700})
    browser.get(camera.address)
    eventually(lambda: find(BRIGHTNESS) and find("#keys-list kbd"), "the page")


def run(script, *arguments):
    return browser.execute_script(script, *arguments)


def find(selector):
    return browser.find_element(By.CSS_SELECTOR, selector)


def text(selector):
    return run("return document.querySelector(arguments[0])?.innerText ?? ''", selector)


def fill(selector, words):
    """Writes into a field, instead of what stands there; of a field for files this is the path."""
    run("arguments[0].select()", find(selector))
    find(selector).send_keys(words)


def press(keys):
    ActionChains(browser).send_keys(keys).perform()


class PageTest(unittest.TestCase):
    def setUp(self):
        camera.keys("close")
        camera.put("settings.json", defaults)
        load()

    def wait_focus(self, *expected):
        """Camera, panel and live region agree on page, label and value."""
        row = [word for word in expected[1:] if word]
        eventually(lambda: camera.focus()[:len(expected)] == expected, f"the cursor is at {expected}")
        eventually(lambda: text("#items [aria-current]").split("\n")[:len(row)] == row, f"{row} is marked")
        eventually(lambda: ", ".join(row) in text("#spoken"), f"{row} is said")

    def wait_value(self, value):
        eventually(lambda: run("return arguments[0].value", find(BRIGHTNESS)) == value, f"the settings show {value}")

    def wait_moving_picture(self):
        eventually(lambda: text("#connection") == "Connected" and not run(VEILED), "the page hears the camera")
        pixels = eventually(lambda: run(PIXELS), "a picture")
        camera.keys("menu")
        eventually(lambda: run(PIXELS) != pixels, "the picture shows the menu")

    def test_loads_without_an_error_and_all_has_a_name(self):
        browser.get_log("browser")
        load()
        self.assertEqual([line for line in browser.get_log("browser") if line["level"] == "SEVERE"], [])
        eventually(lambda: len(set(run(PIXELS).split(","))) > 20, "the picture has pixels")
        for element in run(VISIBLE_CONTROLS):
            self.assertTrue(element.accessible_name, element.get_attribute("outerHTML"))
        for width, height in ((320, 740), (360, 740), (390, 844), (768, 1024), (1920, 1080), (1280, 800)):
            load(width, height)
            self.assertLessEqual(run("return document.documentElement.scrollWidth"), width)
        self.assertLessEqual(run(BOTTOM), 800)

    def test_mouse_walks_the_menu(self):
        closed = camera.snapshot()
        for key, expected in (("menu", ("main", "Image")), ("right", ("main", "Exposure")), ("left", ("main", "Image")),
                              ("home", ("image", "Brightness", "50")), ("down-right", ("image", "Contrast", "51"))):
            pixels, picture = eventually(lambda: run(PIXELS), "a picture"), camera.snapshot()
            find(f"[data-key='{key}']").click()
            self.wait_focus(*expected)
            self.assertNotEqual(camera.snapshot(), picture)
            eventually(lambda: run(PIXELS) != pixels, "the picture changes")
        titles = [page["title"] or page["name"] for page in camera.get("state")["pages"]]
        self.assertEqual(text("#pages").split("\n"), titles)
        find("#page option[value='network']").click()
        eventually(lambda: camera.focus()[0] == "network", "the camera opens the chosen page")
        find("[data-key='close']").click()
        eventually(lambda: "closed" in text("#menu-note"), "the menu is closed")
        camera.put("settings.json", defaults)
        self.assertEqual(camera.snapshot(), closed)

    def test_keyboard_walks_the_menu_but_not_from_a_field(self):
        for key, expected in (("m", ("main", "Image")), (Keys.ENTER, ("image", "Brightness", "50")),
                              (Keys.DOWN, ("image", "Contrast")), (Keys.UP, ("image", "Brightness")),
                              (Keys.RIGHT, ("image", "Brightness", "51")), (Keys.BACKSPACE, ("main", "Image"))):
            press(key)
            self.wait_focus(*expected)
        fill("#settings-search", "c" + Keys.DOWN)
        run("document.querySelector('[data-key=right]').focus()")
        press(" ")  # on a button Space presses the button
        self.wait_focus("main", "Exposure")  # and the field has kept its keys
        press(Keys.ESCAPE)
        eventually(lambda: "closed" in text("#menu-note"), "Escape closes the menu")
        press(Keys.ESCAPE + "m")
        self.wait_focus("main", "Image")  # so Escape has opened nothing

    def test_values_go_both_ways(self):
        camera.keys("menu home right")
        self.wait_value("51")
        fill(BRIGHTNESS, "70" + Keys.ENTER)
        self.wait_focus("image", "Brightness", "70")
        fill(BRIGHTNESS, "8")
        camera.put("settings/ImageParam.Brightness", {"value": 60})
        self.wait_focus("image", "Brightness", "60")
        self.wait_value("8")  # what somebody types stays
        press(Keys.ESCAPE)
        self.wait_value("60")
        for value, row in (("700", ".setting:has([id='setting-ImageParam.Contrast'])"),
                           ("800", f".setting:has({BRIGHTNESS})")):
            fill(f"{row} input", value + Keys.ENTER)
            told = eventually(lambda: text(f"{row} #message"), "a refused value is told beside its field")
            self.assertIn(value, told)
            self.assertEqual(told.count("Brightness") + told.count("Contrast"), 1, told)
        self.assertEqual(run("return document.querySelectorAll('.problem').length"), 1)
        self.wait_value("60")
        file = camera.folder / "import.json"
        file.write_text(json.dumps({**camera.get("settings.json"), "ImageParam.Brightness": "33"}), "utf-8")
        fill("#import-file", str(file))
        self.wait_value("33")
        eventually(lambda: "imported from import.json" in text("#message.note"), "an import that worked says so")

    def test_language_and_faults(self):
        camera.keys("menu home")
        self.wait_focus("image", "Brightness")
        find("#language option[value='German']").click()
        self.wait_focus("image", "Helligkeit")
        find("#tab-faults").click()
        find("[name='settings-slow']").click()
        eventually(lambda: text("#tab-faults") == "Faults (1 on)", "the page shows the fault")
        self.assertEqual(camera.get("state")["faults"], ["settings-slow"])
        camera.put("faults", {"on": []})
        eventually(lambda: text("#tab-faults") == "Faults", "the page shows no fault")

    def test_page_file_changes_breaks_and_is_mended(self):
        file = camera.folder / "resources/pages/image_page.xml"
        good = file.read_text("utf-8")
        self.addCleanup(file.write_text, good, "utf-8")
        camera.keys("menu home down down")
        self.wait_focus("image", "Saturation")
        file.write_text(re.sub(r'<Item ItemIndex="Contrast".*?/>', "", good, flags=re.S), "utf-8")
        eventually(lambda: "Contrast" not in text("#items"), "the item is gone")
        self.wait_focus("image", "Saturation")
        last = camera.snapshot()
        bad = good.replace('"Contrast"', '"Kontrast"').replace('"COMMON"', '"COMON"', 1)
        file.write_text(bad.replace("<Item", "letters <Item", 1), "utf-8")
        eventually(lambda: text("#problems-count") == "2 errors, 1 warning in 1 file", "the findings are counted")
        found = text("#problems-list").split("\n")
        self.assertEqual(found[0], "pages/image_page.xml")
        self.assertEqual(len([line for line in found if re.fullmatch(r"\d+:\d+", line)]), 3, found)
        self.assertEqual(camera.snapshot(), last)
        self.assertGreaterEqual(run("return arguments[0].getBoundingClientRect().top", find("#problems")),
                                run("return arguments[0].getBoundingClientRect().bottom", find(".frame")))
        run("arguments[0].focus()", find("#problems-list"))
        for keys, is_open in ((Keys.ESCAPE, False), (Keys.ENTER, True)):  # on the heading, which has the focus then
            press(keys)
            eventually(lambda: find("#problems").get_property("open") == is_open, f"the list is open: {is_open}")
        self.assertEqual(camera.focus()[0], "image")  # so the camera has got neither key
        file.write_text(good, "utf-8")
        eventually(lambda: not find("#problems").is_displayed(), "the findings are gone")
        self.assertIn("Contrast", text("#items"))

    def test_hold_ends_with_the_focus(self):
        camera.put("settings/ImageParam.Brightness", {"value": 0})
        camera.keys("menu home")
        # The camera presses a key 29 times for a page that it doesn't hear of again.
        for hold, steps in ((lambda actions: actions.click_and_hold(find("[data-key='right']")), 33),
                            (lambda actions: actions.key_down(Keys.RIGHT), 3)):
            start = int(camera.focus()[2])
            hold(ActionChains(browser)).perform()
            eventually(lambda: int(camera.focus()[2]) >= start + steps, "the camera repeats the key")
            browser.switch_to.new_window("tab")
            eventually(lambda: (camera.focus(), time.sleep(1))[0] == camera.focus(), "the value stands still")
            self.assertLess(int(camera.focus()[2]), 100)
            browser.close()
            browser.switch_to.window(browser.window_handles[0])
            ActionChains(browser).reset_actions()

    def test_rows_and_pages_answer_to_clicks(self):
        camera.keys("menu")
        self.wait_focus("main", "Image")
        for selector, expected in (("#items li:nth-child(2)", ("main", "Exposure")),
                                   ("#items [aria-current]", ("exposure", "Exposure Mode", "Auto")),
                                   ("#pages button", ("main", "Exposure")),
                                   ("#items li:nth-child(1)", ("main", "Image")),
                                   ("#items [aria-current]", ("image", "Brightness")),
                                   ("#items li:nth-child(4)", ("image", "Sharpness")),
                                   ("#items li:nth-child(2)", ("image", "Contrast"))):
            find(selector).click()
            self.wait_focus(*expected)

    def test_settings_by_the_menus_text(self):
        for language, words, label in (("English", "kelvin", "Kelvin"), ("German", "helligkeit", "Helligkeit"),
                                       ("German", "ImageParam.Bright", "Helligkeit")):
            find(f"#language option[value='{language}']").click()
            fill("#settings-search", words)
            eventually(lambda: label in text("#settings-list").split("\n"), f"{label} is found by {words}")

    def test_marks_what_the_picture_does_not_show(self):
        others = {"ImageParam.NoiseReduction": "Manual", "ExposureParam.ExposureMode": "Manual", "PipMode": "On",
                  "WhiteBalanceParam.WbMode": "Manual", "Zoom": "200", "Tally": "Red"}
        settings = [setting for setting in camera.get("settings")["settings"] if setting["kind"] != "text"
                    and setting["key"] not in ("Language", "RotateAngle", "RotateFit", "ExposureMode")]
        for base in ({}, others):
            camera.put("settings.json", {**defaults, **base})
            before, unseen = camera.snapshot(2), set()
            for setting in settings:
                values = {str(value) for value in setting.get("options", [setting.get("min"), setting.get("max")])}
                values = {"FF0000"} if setting["kind"] == "color" else values
                present = base.get(setting["name"], setting["default"])
                other = max(values - {present})
                camera.put(f"settings/{setting['name']}", {"value": other})
                if camera.snapshot(2) == before:
                    unseen.add(setting["name"])
                camera.put(f"settings/{setting['name']}", {"value": present})
            self.assertEqual(set(run(MARKED)) & {setting["name"] for setting in settings}, unseen)

    def test_address_that_waits(self):
        camera.ask("POST", "menu", {"page": "network"})
        for keys, address in (("up up up up home left up", "192.168.001.121"), ("home down", "192.168.1.121")):
            camera.keys(keys)
            eventually(lambda: address in text("#items"), f"the panel shows {address}, as the picture")
        self.assertEqual(camera.get("settings.json")["NetCard0.IpAddr"], "192.168.1.120")

    def test_many_tabs(self):
        first = browser.current_window_handle
        for _ in range(7):
            browser.switch_to.new_window("tab")
            load()
        self.wait_moving_picture()
        eventually(lambda: len(camera.get("channels")["channels"][0]["viewers"]) == 1, "one page alone has a stream")
        browser.switch_to.window(first)
        find("[data-key='right']").click()
        self.wait_focus("main", "Exposure")
        self.wait_moving_picture()
        for handle in browser.window_handles:
            if handle != first:
                browser.switch_to.window(handle)
                browser.close()
        browser.switch_to.window(first)

    def test_theme(self):
        colours = []
        for system, theme in (("light", "auto"), ("dark", "light"), ("dark", "auto"), ("light", "dark")):
            scheme = {"name": "prefers-color-scheme", "value": system}
            browser.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": [scheme]})
            find(f"#theme option[value='{theme}']").click()
            load()  # the choice outlives the page
            colours.append(run("return getComputedStyle(document.documentElement).backgroundColor"))
        find("#theme option[value='auto']").click()
        self.assertEqual((colours[0], colours[2]), (colours[1], colours[3]))
        self.assertNotEqual(colours[0], colours[2])

    def test_comes_back_after_the_camera(self):
        camera.stop()
        eventually(lambda: run(VEILED), "the page says that the camera is gone")
        find("[data-key='menu']").click()
        eventually(lambda: text("#remote #message"), "a key without an answer is told")
        camera.start(camera.place)
        eventually(lambda: not text("#message"), "that is gone when the camera answers")
        self.wait_moving_picture()
        camera.process.send_signal(signal.SIGSTOP)
        eventually(lambda: run(VEILED), "the page says that the camera is silent")
        camera.process.send_signal(signal.SIGCONT)
        self.wait_moving_picture()
        run(ENDED_STREAM)
        self.wait_moving_picture()


if __name__ == "__main__":
    parser = argparse.ArgumentParser(usage=__doc__, add_help=False)
    parser.add_argument("program")
    parser.add_argument("--screenshot")
    words, rest = parser.parse_known_args()
    camera, browser = Camera(words.program, "--still"), start_browser()
    defaults = camera.get("settings.json")
    if words.screenshot:
        camera.keys("menu home down")
        load()
        eventually(lambda: text("#items") and run(PIXELS), "the menu is shown")
        browser.save_screenshot(words.screenshot)
    unittest.main(argv=[sys.argv[0], *rest])
