#!/usr/bin/env python3
"""Lets people and mishaps loose on the simulated camera for some minutes, and looks whether it stays healthy.

    tests/soak/soak.py build/dev/simulator/camera-sim --minutes 10

Random keys, changed and broken files, languages, skins, sizes, faults, imports, viewers that come and go, read slowly or
say nothing. After each of five rounds the camera's memory and descriptors at rest are printed. It fails when the camera
ends by itself, a sanitizer reports something, a request has no clear answer, or memory or descriptors grow from the first
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
import urllib.error
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.append(str(ROOT / "tests/browser"))
from camera import Camera  # noqa: E402

PAGES = list((ROOT / "resource/pages").glob("*.xml"))
KEYS = []  # the camera tells them
PATHS = ["channels/0/stream.mjpg", "channels/1/stream.mjpg", "channels/2/stream.mjpg", "events", "channels/0/snapshot.png"]
REQUESTS = (
    lambda: ("POST", "keys", {"keys": random.choices(KEYS, k=random.choice([1, 3, 6]))}),
    lambda: ("POST", "keys", {random.choice(["press", "renew", "release"]): random.choice(KEYS)}),
    lambda: ("POST", "language", {"language": random.choice(["English", "French", "German", "TraditionalChinese"])}),
    lambda: ("POST", "menu", {"page": random.choice(PAGES).stem.removesuffix("_page")}),
    lambda: ("POST", "menu", {"style": random.randrange(3), "size": random.choice(["1080p", "1080p", "4k"])}),
    lambda: ("PUT", "settings/" + random.choice(["Brightness", "Contrast"]), {"value": random.randrange(101)}),
    lambda: ("PUT", "settings.json", {"ImageParam.Mirror": random.choice(["On", "Off", "Sideways"])}),
    lambda: ("POST", "keys", json.loads(random.choice(["[" * 300 + "]" * 300, '{"keys": [[[1]]]}']))),
    lambda: ("POST", "keys", {"keys": [1] * random.choice([20000, 200000])}),
    lambda: ("GET", random.choice(["state", "settings", "overlay.png", "channels/1/snapshot.jpg", "../x"])),
)
ROUNDS = 5
answers = collections.Counter()  # by status
SANITIZERS = {
    # The quarantine would look like growth; a little of it finds as much here.
    "ASAN_OPTIONS": "quarantine_size_mb=8:thread_local_quarantine_size_kb=64:allocator_release_to_os_interval_ms=500:"
                    "detect_leaks=1",
    "TSAN_OPTIONS": "halt_on_error=0"}


def ask(camera, *asked):
    """Sends a request, which may be refused."""
    try:
        camera.ask(*asked)
        answers[200] += 1
    except urllib.error.HTTPError as refusal:
        answers[refusal.code] += 1


def request(camera):
    ask(camera, *random.choice(REQUESTS[:random.choice([1, 2, len(REQUESTS)])])())  # mostly keys


def fail(camera):
    """Two faults, and a menu that couldn't start."""
    names = [fault["name"] for fault in camera.get("faults")["faults"]]
    ask(camera, "PUT", "faults", {"on": random.sample(names, 2)})
    ask(camera, "POST", "menu", {"style": 0})
    ask(camera, "POST", "keys", {"keys": ["menu", "home", "right", "down", "zoom+", "prompt"]})
    ask(camera, "PUT", "faults", {"on": []})
    time.sleep(5)
    ask(camera, "POST", "menu", {"style": 0})


def change_file(camera):
    resources = camera.folder / "resources"
    file = random.choice([*resources.glob("pages/*.xml"), *resources.glob("lang/*.json"), resources / "settings.json",
                        *resources.glob("pic/nav_*.svg")])
    good = (ROOT / "resource" / file.relative_to(resources)).read_bytes()
    bad = good[:random.randrange(len(good))] if random.random() < 0.3 else good + b"\n"
    temporary = file.with_name("." + file.name + ".swp")
    temporary.write_bytes(bad)
    temporary.replace(file)
    time.sleep(0.3)
    file.write_bytes(good)
    time.sleep(0.3)


def watch(camera):
    """A viewer that reads for a while, slowly or not at all, or sends half a request."""
    with socket.create_connection(camera.place.split(":"), timeout=60) as connection:
        request = f"GET /{random.choice(PATHS)} HTTP/1.1\r\nHost: localhost\r\n\r\n".encode()
        connection.sendall(request if random.random() < 0.8 else request[:random.randrange(len(request))])
        end, slow = time.monotonic() + random.uniform(0.1, 8), random.random() < 0.3
        while time.monotonic() < end:
            if slow:
                time.sleep(1)
            elif not connection.recv(1 << 16):
                break


def work(camera, task, end, faults):
    while time.monotonic() < end and camera.process.poll() is None:
        try:
            task(camera)
        except (OSError, http.client.HTTPException) as error:
            if task is not watch:  # the camera may end a viewer that reads too slowly
                faults.append(f"{task.__name__}: {error!r}")
                time.sleep(1)


def run_round(camera, seconds, faults):
    """Everybody works for some seconds. Returns memory in MiB and descriptors when all have gone again."""
    end = time.monotonic() + seconds
    tasks = [request] * 4 + [fail, change_file] + [watch] * 50
    with concurrent.futures.ThreadPoolExecutor(len(tasks)) as pool:
        for task in tasks:
            pool.submit(work, camera, task, end, faults)
    if camera.process.poll() is not None:
        return 0, 0
    ask(camera, "PUT", "faults", {"on": []})
    ask(camera, "POST", "menu", {"style": 0, "size": "1080p"})  # the picture has its usual size
    time.sleep(8)  # the last viewers are found gone
    pages = int(Path(f"/proc/{camera.process.pid}/statm").read_text().split()[1])
    rest = pages * os.sysconf("SC_PAGESIZE") / 2**20, len(os.listdir(f"/proc/{camera.process.pid}/fd"))
    print("at rest %.0f MiB and %d descriptors" % rest, flush=True)
    return rest


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--minutes", type=float, default=10)
    options = parser.parse_args()
    faults = []
    camera = Camera(options.program, environment={**os.environ, **SANITIZERS})
    # The first request comes alone: the HTTP library sets up its tables then, and is not built with the sanitizer.
    KEYS.extend(key["name"] for key in camera.get("keys")["keys"])
    rests = [run_round(camera, options.minutes * 60 / ROUNDS, faults) for _ in range(ROUNDS)]
    camera.stop()
    status, log = camera.process.returncode, camera.log()
    reports = re.findall(r"^.*(?:ERROR: \w+Sanitizer|WARNING: ThreadSanitizer|runtime error).*$", log, re.M)
    Path("soak.log").write_text(log, encoding="utf-8")
    print(f"answers {dict(answers)}, exit status {status}, {len(reports)} sanitizer reports")
    # What an allocator keeps differs from one rest to the next, so two at the end are held against two at the beginning.
    early, late = max(rests[:2])[0], min(rests[-2:])[0]
    if late > early * 1.1 + 16:
        faults.append(f"memory at rest grew from {early:.0f} to {late:.0f} MiB")
    if rests[-1][1] > rests[0][1]:
        faults.append(f"{rests[0][1]} descriptors became {rests[-1][1]}")
    if any(code >= 500 and code != 503 for code in answers):
        faults.append("the camera failed at a request")
    print("\n".join(faults + reports) or "healthy")
    return 1 if faults or reports or status != 0 else 0


if __name__ == "__main__":
    sys.exit(main())
