"""camera-sim as a process of its own, on settings and resources that may be spoilt."""
import atexit
import json
import shutil
import subprocess
import tempfile
import urllib.request
from pathlib import Path


class Camera:
    def __init__(self, program, *options, environment=None):
        self.command, self.environment = [program, *options], environment
        self.keeper = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.folder = Path(self.keeper.name)
        shutil.copytree(Path(__file__).resolve().parents[2] / "resource", self.folder / "resources")
        self.start("127.0.0.1:0")
        atexit.register(self.stop)

    def start(self, place):
        command = [*self.command, "--listen", place, "--data", self.folder / "data",
                   "--resources", self.folder / "resources"]
        with open(self.folder / "log", "a", encoding="utf-8") as log:
            self.process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=log, text=True, env=self.environment)
        self.address = self.process.stdout.readline().strip()  # printed when the camera is ready
        assert self.address.startswith("http://"), "the camera doesn't start:\n" + self.log()[-2000:]
        self.place = self.address.split("/")[2]

    def stop(self):
        self.process.terminate()
        self.process.communicate(timeout=60)

    def log(self):
        return (self.folder / "log").read_text("utf-8", "replace")

    def ask(self, method, path, body=None):
        """What the camera answers; a refusal is a urllib.error.HTTPError."""
        request = urllib.request.Request(self.address + path, None if body is None else json.dumps(body).encode(),
                                         {"Content-Type": "application/json"}, method=method)
        with urllib.request.urlopen(request, timeout=60) as response:
            return response.read()

    def get(self, path):
        return json.loads(self.ask("GET", path))

    def put(self, path, body):
        self.ask("PUT", path, body)

    def keys(self, names):
        self.ask("POST", "keys", {"keys": names.split()})

    def snapshot(self, channel=0):
        return self.ask("GET", f"channels/{channel}/snapshot.png")

    def focus(self):
        """Page, label and value of the row with the cursor; nothing while the menu is closed."""
        focus = self.get("state")["focus"]
        return (focus["page"], focus["label"], focus["value"]) if focus else ()
