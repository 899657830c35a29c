#!/usr/bin/env python3
"""The download engine takes newer ones into use by itself: signed, whole, and only as long as they work."""

import base64
import json
import os
import plistlib
import shutil
import subprocess
import tempfile
import threading
import unittest
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer

from film_server import FilmServer, make_films

CLI = os.environ["KESTREL_CLI"]
SOURCES = os.environ["KESTREL_SOURCES"]
REAL = shutil.which("yt-dlp")


class Publisher(BaseHTTPRequestHandler):
    def log_message(self, *arguments):
        pass

    def do_GET(self):
        body = self.server.files.get(self.path)
        self.send_response(200 if body is not None else 404)
        self.send_header("Content-Length", str(len(body or b"") + self.server.missing))
        self.end_headers()
        self.wfile.write(body or b"")


class EngineTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.home = self.path("home")
        os.makedirs(self.home)
        self.publisher = ThreadingHTTPServer(("127.0.0.1", 0), Publisher)
        self.publisher.files = {}
        self.publisher.missing = 0
        threading.Thread(target=self.publisher.serve_forever, daemon=True).start()
        self.addCleanup(self.publisher.server_close)
        self.addCleanup(self.publisher.shutdown)
        self.key = self.make_key("key.pem")
        self.bundle()

    def path(self, name):
        return os.path.join(self.folder.name, name)

    def make_key(self, name):
        subprocess.run(["openssl", "genpkey", "-algorithm", "ed25519", "-out", self.path(name)], check=True,
                       stderr=subprocess.DEVNULL)
        return self.path(name)

    def bundle(self):
        """A copy of the bundle whose publisher is ours: everything else is linked."""
        contents = os.path.dirname(os.path.dirname(CLI))
        copy = self.path("Kestrel.app/Contents")
        os.makedirs(copy + "/Helpers")
        shutil.copy2(CLI, copy + "/Helpers")
        os.link(contents + "/Helpers/toolGuardian", copy + "/Helpers/toolGuardian")
        for name in ("Frameworks", "Resources"):
            os.symlink(os.path.join(contents, name), os.path.join(copy, name))
        public = subprocess.run(["openssl", "pkey", "-in", self.key, "-pubout", "-outform", "DER"], check=True,
                                capture_output=True).stdout[-32:]
        with open(contents + "/Info.plist", "rb") as file:
            information = plistlib.load(file)
        information |= {"TWDownloadEngineLink": self.url("/document"),
                        "TWDownloadEngineKey": base64.b64encode(public).decode()}
        with open(copy + "/Info.plist", "wb") as file:
            plistlib.dump(information, file)
        self.cli = copy + "/Helpers/kestrel-cli"

    def url(self, path):
        return f"http://127.0.0.1:{self.publisher.server_port}{path}"

    def publish(self, version, program, key=None):
        engine = self.path("engine-" + version)
        with open(engine, "w") as file:
            file.write(program)
        self.publisher.files["/engine"] = program.encode()
        self.publisher.files["/document"] = subprocess.run(
            [SOURCES + "/scripts/sign-engine", key or self.key, version, self.url("/engine"), engine], check=True,
            capture_output=True).stdout

    def run_cli(self, *arguments):
        environment = {key: value for key, value in os.environ.items() if not key.startswith("XDG_")}
        done = subprocess.run([self.cli, "--json", *arguments], capture_output=True, text=True, timeout=300,
                              env=environment | {"HOME": self.home, "LC_ALL": "C.UTF-8"})
        return done.returncode, [json.loads(line) for line in done.stdout.splitlines()]

    def update(self):
        return self.run_cli("engine", "--update")[1][-1]

    @staticmethod
    def wrapper(version, broken=False):
        """An engine that is the machine's own under another version, or falls over when it is to work."""
        work = 'echo "Traceback (most recent call last):" >&2; exit 1' if broken else f'exec {REAL} "$@"'
        return f'#!/bin/sh\nfor last; do :; done\n[ "$last" = --version ] && {{ echo {version}; exit 0; }}\n{work}\n'

    def test_what_is_not_the_publisher_s_is_not_taken(self):
        other_key = self.make_key("other.pem")
        good = self.wrapper("2099.1.1")

        def change(path, old, new):
            self.publisher.files[path] = self.publisher.files[path].replace(old, new)

        cases = {
            "another key": (lambda: self.publish("2099.1.1", good, other_key), "signature"),
            "changed document": (lambda: change("/document", b"2099", b"2098"), "signature"),
            "changed file": (lambda: change("/engine", b"exec", b"EXEC"), "another file"),
            "shorter file": (lambda: change("/engine", b"exec", b""), "bytes instead of"),
            "longer file": (lambda: change("/engine", b"exec", b"exec exec"), "new engine is not used"),
            "interrupted": (lambda: setattr(self.publisher, "missing", 1000), "not used"),
            "another version than it says": (lambda: self.publish("2099.1.1", self.wrapper("2098.1.1")), "does not work"),
            "no program": (lambda: self.publish("2099.2.1", "nonsense"), "does not work"),
        }
        for name, (spoil, words) in cases.items():
            with self.subTest(name):
                self.publisher.missing = 0
                self.publish("2099.1.1", good)
                spoil()
                answer = self.update()
                self.assertEqual((answer["state"], answer["version"]), ("failed", ""), answer)
                self.assertIn(words, answer["text"])
                self.assertTrue(answer["path"].endswith("petrel.bundle/Contents/Resources/yt-dlp"))

    def test_older_is_left_alone(self):
        self.publish("2001.1.1", self.wrapper("2001.1.1"))
        self.assertEqual(self.update()["state"], "up-to-date")

    def test_newer_is_on_trial_until_it_has_worked_and_a_failing_one_goes_back(self):
        films = self.path("films")
        out = self.path("out")
        os.makedirs(films)
        os.makedirs(out)
        make_films(films)
        server = FilmServer(films)
        self.addCleanup(server.shutdown)

        self.publish("2099.1.1", self.wrapper("2099.1.1"))
        answer = self.update()
        self.assertEqual((answer["state"], answer["version"], answer["on_trial"]), ("updated", "2099.1.1", True), answer)
        status, events = self.run_cli("download", "--to", out, server.address("plain/film.mp4"))
        self.assertEqual(status, 0, events)
        self.assertFalse(self.run_cli("engine")[1][0]["on_trial"])

        self.publish("2099.2.1", self.wrapper("2099.2.1", broken=True))
        self.assertEqual(self.update()["version"], "2099.2.1")
        status, events = self.run_cli("download", "--to", out, server.address("page/film.mp4"))
        self.assertEqual((status, events[-1]["state"]), (0, "done"), events)
        answer = self.run_cli("engine")[1][0]
        self.assertEqual((answer["version"], answer["on_trial"]), ("2099.1.1", False))
        self.assertEqual(self.update()["state"], "up-to-date")  # and it is not taken again

        # One that has worked and does so no more gives way to the bundle's own.
        with open(answer["path"], "w") as file:
            file.write(self.wrapper("2099.1.1", broken=True))
        status, events = self.run_cli("download", "--to", out, server.address("redirect/film.mp4"))
        self.assertEqual((status, self.run_cli("engine")[1][0]["version"]), (0, ""), events)


if __name__ == "__main__":
    unittest.main(verbosity=2)
