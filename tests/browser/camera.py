"""camera-sim as a process of its own, on settings and resources that may be spoilt."""
import atexit
import json
import shutil
import subprocess
import tempfile
from pathlib import Path

from webdriver import fetch

RESOURCES = Path(__file__).resolve().parents[2] / "resource"


class Camera:
    def __init__(self, program):
        self.program = program
        self.keeper = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.folder = Path(self.keeper.name)
        shutil.copytree(RESOURCES, self.folder / "resources")
        self.start("127.0.0.1:0")
        atexit.register(self.stop)

    def start(self, address):
        command = [self.program, "--listen", address, "--still", "--data", self.folder / "data",
                   "--resources", self.folder / "resources"]
        with open(self.folder / "log", "a", encoding="utf-8") as log:
            self.process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=log, text=True)
        line = self.process.stdout.readline()  # printed when the camera is ready
        if "http://" not in line:
            raise AssertionError("the camera doesn't start:\n" + (self.folder / "log").read_text("utf-8")[-2000:])
        self.address = line[line.index("http://"):].split()[0]

    def stop(self):
        self.process.terminate()
        self.process.communicate()

    def get(self, path):
        return json.loads(fetch("GET", self.address + path))

    def put(self, path, body):
        fetch("PUT", self.address + path, body)

    def keys(self, names):
        fetch("POST", self.address + "keys", {"keys": names.split()})

    def snapshot(self):
        return fetch("GET", self.address + "channels/0/snapshot.png")

    def focus(self):
        """Page, label and value of the row with the cursor; nothing while the menu is closed."""
        focus = self.get("state")["focus"]
        return (focus["page"], focus["label"], focus["value"]) if focus else ()
