"""A browser by the W3C WebDriver protocol: the few commands that the tests need."""
import atexit
import base64
import json
import re
import subprocess
import time
import urllib.error
import urllib.request

ELEMENT = "element-6066-11e4-a52e-4f735466cecf"
OPTIONS = ["--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--force-color-profile=srgb"]


def eventually(condition, what, limit=15):
    """Waits until the condition holds, and answers what it gave."""
    end = time.monotonic() + limit
    while not (result := condition()):
        if time.monotonic() > end:
            raise AssertionError(f"{what}: still not so after {limit} s")
        time.sleep(0.05)
    return result


def fetch(method, url, body=None):
    request = urllib.request.Request(url, None if body is None else json.dumps(body).encode(),
                                     {"Content-Type": "application/json"}, method=method)
    try:
        with urllib.request.urlopen(request, timeout=60) as response:
            return response.read()
    except urllib.error.HTTPError as error:
        raise AssertionError(f"{method} {url}: {error.read().decode()[:400]}") from error


class Browser:
    def __init__(self):
        driver = subprocess.Popen(["chromedriver", "--port=0"], stdout=subprocess.PIPE, text=True)
        atexit.register(driver.terminate)
        port = next(found[1] for line in driver.stdout if (found := re.search(r"successfully on port (\d+)", line)))
        self.session = f"http://127.0.0.1:{port}/session"
        chrome = {"goog:chromeOptions": {"args": OPTIONS}, "goog:loggingPrefs": {"browser": "ALL"}}
        self.session += "/" + self.call("POST", "", {"capabilities": {"alwaysMatch": chrome}})["sessionId"]
        atexit.register(self.call, "DELETE", "")

    def call(self, method, path, body=None):
        return json.loads(fetch(method, self.session + path, body))["value"]

    def post(self, path, **body):
        return self.call("POST", path, body)

    def command(self, name, **parameters):
        return self.post("/goog/cdp/execute", cmd=name, params=parameters)

    def open(self, url, width, height):
        """Loads a page in a viewport of exactly this size."""
        self.command("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1,
                     mobile=width < 700)
        self.post("/url", url=url)

    def run(self, script, *arguments):
        return self.post("/execute/sync", script=script, args=arguments)

    def find(self, selector):
        return self.post("/element", using="css selector", value=selector)[ELEMENT]

    def text(self, selector):
        return self.run("return document.querySelector(arguments[0])?.innerText ?? ''", selector)

    def label(self, element):
        return self.call("GET", f"/element/{element[ELEMENT]}/computedlabel")

    def click(self, selector):
        self.post(f"/element/{self.find(selector)}/click")

    def fill(self, selector, text):
        """Writes into a field, instead of what stands there; of a field for files this is the path."""
        self.run("document.querySelector(arguments[0]).select()", selector)
        self.post(f"/element/{self.find(selector)}/value", text=text)

    def mouse_down(self, selector):
        move = {"type": "pointerMove", "origin": {ELEMENT: self.find(selector)}, "x": 0, "y": 0}
        actions = [move, {"type": "pointerDown", "button": 0}]
        self.post("/actions", actions=[{"type": "pointer", "id": "mouse", "actions": actions}])

    def keys(self, keys, kinds=("keyDown", "keyUp")):
        """Presses keys one after the other, as WebDriver writes them."""
        actions = [{"type": kind, "value": key} for key in keys for kind in kinds]
        self.post("/actions", actions=[{"type": "key", "id": "keys", "actions": actions}])

    def errors(self):
        """What the browser's console complains of since the last call."""
        return [entry["message"] for entry in self.post("/se/log", type="browser") if entry["level"] == "SEVERE"]

    def screenshot(self, file):
        file.write_bytes(base64.b64decode(self.call("GET", "/screenshot")))
