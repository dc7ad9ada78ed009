#!/usr/bin/env python3
"""Lets people and mishaps loose on the simulated camera for some minutes, and looks whether it stays healthy.

    tests/soak/soak.py build/dev/simulator/camera-sim --minutes 10

Random keys, changed and broken files, languages, skins, sizes, faults, imports, viewers that come and go, read slowly or
say nothing. Every half minute the camera's memory and descriptors are printed. It fails when the camera ends by itself, a
sanitizer reports something, a request has no clear answer, or memory or descriptors at rest grow from the first of five
rounds to the last.
"""
import argparse
import collections
import concurrent.futures
import http.client
import json
import os
import random
import re
import socket
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.append(str(ROOT / "tests/browser"))
from camera import Camera, fetch  # noqa: E402

PAGES = list((ROOT / "resource/pages").glob("*.xml"))
KEYS = ("menu home up down left right up-left up-right down-left down-right advanced return close left-keep right-keep "
        "apply zoom+ zoom- prompt rec").split()
FAULTS = ["settings-slow", "settings-refusing", "settings-out-of-range", "language-refusing", "memory-exhausted",
          "fonts-missing", "pictures-missing"]
LANGUAGES = ["English", "French", "German", "SimplifiedChinese", "TraditionalChinese"]
REQUESTS = (
    lambda dice: ("POST", "language", {"language": dice.choice(LANGUAGES)}),
    lambda dice: ("POST", "menu", {"page": dice.choice(PAGES).stem.removesuffix("_page")}),
    lambda dice: ("POST", "menu", {"style": dice.randrange(3), "size": dice.choice(["1080p", "1080p", "4k"])}),
    lambda dice: ("PUT", "settings/" + dice.choice(["Brightness", "Contrast"]), {"value": dice.randrange(101)}),
    lambda dice: ("PUT", "settings.json", {"ImageParam.Mirror": dice.choice(["On", "Off", "Sideways"])}),
    lambda dice: ("POST", "keys", json.loads(dice.choice(["[" * 300 + "]" * 300, '{"keys": [[[1]]]}']))),
    lambda dice: ("POST", "keys", {"keys": [1] * dice.choice([20000, 200000])}),
    lambda dice: ("GET", dice.choice(["state", "settings", "overlay.png", "channels/1/snapshot.jpg", "../x"])),
)
ROUNDS = 5


class SoakedCamera(Camera):
    def __init__(self, program):
        # The quarantine would look like growth; a little of it finds as much here.
        super().__init__(program, environment=dict(
            os.environ, ASAN_OPTIONS="quarantine_size_mb=8:thread_local_quarantine_size_kb=64:"
            "allocator_release_to_os_interval_ms=500:detect_leaks=1", TSAN_OPTIONS="halt_on_error=0"))

    def ask(self, method, path, body=None):
        """Sends a request; returns the status."""
        try:
            fetch(method, self.address + path, body)
        except AssertionError as refusal:
            return refusal.__cause__.code
        return 200

    def memory(self):
        """Resident MiB and open descriptors."""
        pages = int(Path(f"/proc/{self.process.pid}/statm").read_text().split()[1])
        return pages * os.sysconf("SC_PAGESIZE") / 2**20, len(os.listdir(f"/proc/{self.process.pid}/fd"))


def press_keys(camera, dice):
    if dice.random() < 0.8:
        return camera.ask("POST", "keys", {"keys": dice.choices(KEYS, k=dice.choice([1, 3, 6]))})
    return camera.ask("POST", "keys", {dice.choice(["press", "renew", "release"]): dice.choice(KEYS)})


def switch(camera, dice):
    return camera.ask(*dice.choice(REQUESTS)(dice))


def fail(camera, dice):
    """Two faults, and a menu that couldn't start."""
    camera.ask("PUT", "faults", {"on": dice.sample(FAULTS, 2)})
    camera.ask("POST", "menu", {"style": 0})
    camera.ask("POST", "keys", {"keys": ["menu", "home", "right", "down", "zoom+", "prompt"]})
    camera.ask("PUT", "faults", {"on": []})
    time.sleep(5)
    return camera.ask("POST", "menu", {"style": 0})


def change_file(camera, dice):
    resources = camera.folder / "resources"
    file = dice.choice([*resources.glob("pages/*.xml"), *resources.glob("lang/*.json"), resources / "settings.json",
                        *resources.glob("pic/nav_*.svg")])
    good = (ROOT / "resource" / file.relative_to(resources)).read_bytes()
    bad = good[:dice.randrange(len(good))] if dice.random() < 0.3 else good + b"\n"
    temporary = file.with_name("." + file.name + ".swp")
    temporary.write_bytes(bad)
    temporary.replace(file)
    time.sleep(0.3)
    file.write_bytes(good)
    time.sleep(0.3)
    return "done"


def watch(camera, dice):
    """A viewer that reads for a while, slowly or not at all, or sends half a request."""
    with socket.create_connection(camera.address.split("/")[2].split(":"), timeout=60) as connection:
        path = dice.choice(["/channels/0/stream.mjpg", "/channels/1/stream.mjpg", "/channels/2/stream.mjpg", "/events",
                            "/channels/0/snapshot.png"])
        request = f"GET {path} HTTP/1.1\r\nHost: localhost\r\n\r\n".encode()
        connection.sendall(request if dice.random() < 0.8 else request[:dice.randrange(len(request))])
        end, slow = time.monotonic() + dice.uniform(0.1, 8), dice.random() < 0.3
        while time.monotonic() < end:
            if slow:
                time.sleep(1)
            elif not connection.recv(1 << 16):
                break
    return "done"


def work(camera, task, seed, end, answers, faults):
    dice = random.Random(seed)
    while time.monotonic() < end:
        try:
            answers[task.__name__, task(camera, dice)] += 1
        except (OSError, http.client.HTTPException) as error:
            if task is not watch:  # the camera may end a viewer that reads too slowly
                faults.append(f"{task.__name__}: {error!r}")
                time.sleep(1)


def run_round(camera, seconds, seed, answers, faults):
    """Everybody works for some seconds."""
    end = time.monotonic() + seconds
    tasks = [press_keys] * 3 + [switch, fail, change_file] + [watch] * 50
    with concurrent.futures.ThreadPoolExecutor(len(tasks)) as pool:
        for i, task in enumerate(tasks):
            pool.submit(work, camera, task, f"{seed} {i}", end, answers, faults)
        while time.monotonic() < end and camera.process.poll() is None:
            time.sleep(min(30, max(0, end - time.monotonic())))
            if camera.process.poll() is None:
                print("%6.0f MiB  %4d descriptors" % camera.memory(), flush=True)


def rest(camera):
    """Memory and descriptors when everybody has gone and the picture has its usual size."""
    if camera.process.poll() is not None:
        return 0, 0
    camera.ask("PUT", "faults", {"on": []})
    camera.ask("POST", "menu", {"style": 0, "size": "1080p"})
    time.sleep(8)  # the last viewers are found gone
    memory, descriptors = camera.memory()
    print(f"at rest {memory:.0f} MiB and {descriptors} descriptors", flush=True)
    return memory, descriptors


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--minutes", type=float, default=10)
    parser.add_argument("--seed", type=int, default=1)
    options = parser.parse_args()
    answers, faults, rests = collections.Counter(), [], []
    camera = SoakedCamera(options.program)
    # The first request comes alone: the HTTP library sets up its tables then, and is not built with the sanitizer.
    camera.ask("GET", "state")
    for part in range(ROUNDS):
        run_round(camera, options.minutes * 60 / ROUNDS, f"{options.seed} {part}", answers, faults)
        rests.append(rest(camera))
    camera.stop()
    status, log = camera.process.returncode, camera.log()
    reports = re.findall(r"^.*(?:ERROR: \w+Sanitizer|WARNING: ThreadSanitizer|runtime error).*$", log, re.M)
    Path("soak.log").write_text(log, encoding="utf-8")
    print("answers:", ", ".join(f"{task} {code}: {count}" for (task, code), count in sorted(answers.items())))
    print(f"exit status {status}, {len(reports)} sanitizer reports")
    # What an allocator keeps differs from one rest to the next, so two at the end are held against two at the beginning.
    early, late = max(rests[:2])[0], min(rests[-2:])[0]
    if late > early * 1.1 + 16:
        faults.append(f"memory at rest grew from {early:.0f} to {late:.0f} MiB")
    if rests[-1][1] > rests[0][1]:
        faults.append(f"{rests[0][1]} descriptors became {rests[-1][1]}")
    if any(code in range(500, 600) and code != 503 for _, code in answers):
        faults.append("the camera failed at a request")
    print("\n".join(faults + reports) or "healthy")
    return 1 if faults or reports or status != 0 else 0


if __name__ == "__main__":
    sys.exit(main())
