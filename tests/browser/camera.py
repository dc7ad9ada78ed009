"""camera-sim as a process of its own, on settings and resources that may be spoilt."""
import atexit
import contextlib
import json
import shutil
import socket
import socketserver
import subprocess
import tempfile
import threading
from pathlib import Path

from webdriver import fetch

RESOURCES = Path(__file__).resolve().parents[2] / "resource"


class Camera:
    def __init__(self, program, *options, environment=None):
        self.program, self.options, self.environment = program, options, environment
        self.keeper = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.folder = Path(self.keeper.name)
        shutil.copytree(RESOURCES, self.folder / "resources")
        self.start("127.0.0.1:0")
        atexit.register(self.stop)

    def start(self, address):
        command = [self.program, *self.options, "--listen", address, "--data", self.folder / "data",
                   "--resources", self.folder / "resources"]
        with open(self.folder / "log", "a", encoding="utf-8") as log:
            self.process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=log, text=True, env=self.environment)
        line = self.process.stdout.readline()  # printed when the camera is ready
        if "http://" not in line:
            raise AssertionError("the camera doesn't start:\n" + self.log()[-2000:])
        self.address = line[line.index("http://"):].split()[0]

    def stop(self):
        self.process.terminate()
        self.process.wait(60)

    def log(self):
        return (self.folder / "log").read_text("utf-8", "replace")

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


class Relay(socketserver.ThreadingTCPServer):
    """Stands between browser and camera, so that a stream can end there. It passes on the first packet of a request."""
    daemon_threads = True

    def __init__(self, camera):
        super().__init__(("127.0.0.1", 0), None)
        self.address = f"http://127.0.0.1:{self.server_address[1]}/"
        self.target = camera.address.split("/")[2].split(":")
        self.streams = []
        threading.Thread(target=self.serve_forever).start()

    def stop(self):
        self.shutdown()
        self.server_close()

    def finish_request(self, client, _):
        with socket.create_connection(self.target) as server, contextlib.suppress(OSError):  # either end may go
            request = client.recv(65536)
            if b"stream.mjpg" in request:
                self.streams.append(server)
            server.sendall(request)
            while data := server.recv(65536):
                client.sendall(data)
