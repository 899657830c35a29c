#!/usr/bin/env python3
"""Drives kestrel-cli with the real engine against a server of our own."""

import glob
import hashlib
import json
import os
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest

from film_server import FilmServer, make_films

CLI = os.environ["KESTREL_CLI"]
FFPROBE = shutil.which("ffprobe")


class DownloadTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.films = tempfile.TemporaryDirectory()
        make_films(cls.films.name)
        cls.server = FilmServer(cls.films.name)

    @classmethod
    def tearDownClass(cls):
        cls.server.shutdown()
        cls.films.cleanup()

    def setUp(self):
        self.server.reset()
        self.home = tempfile.TemporaryDirectory()
        self.addCleanup(self.home.cleanup)
        self.folder = os.path.join(self.home.name, "out")
        os.mkdir(self.folder)
        self.environment = {key: value for key, value in os.environ.items() if not key.startswith(("XDG_", "PYTHON"))}
        self.environment |= {"HOME": self.home.name, "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen"}

    def start(self, *arguments):
        process = subprocess.Popen([CLI, "--json", "download", "--to", self.folder, *arguments], env=self.environment,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        self.addCleanup(process.stdout.close)
        self.addCleanup(process.stderr.close)
        return process

    def finish(self, process):
        output, self.errors = process.communicate(timeout=300)
        events = [json.loads(line) for line in output.splitlines()]
        return process.returncode, [event for event in events if event["event"] == "result"]

    def download(self, *arguments):
        return self.finish(self.start(*arguments))

    def assert_film(self, path, video=True, sound=True, codec=None):
        report = json.loads(subprocess.run(
            [FFPROBE, "-v", "error", "-show_streams", "-show_format", "-of", "json", path], check=True,
            capture_output=True).stdout)
        kinds = [stream["codec_type"] for stream in report["streams"]]
        self.assertEqual(("video" in kinds, "audio" in kinds), (video, sound))
        self.assertAlmostEqual(float(report["format"]["duration"]), 6, delta=0.5)
        if codec:
            self.assertIn(codec, [stream["codec_name"] for stream in report["streams"]])

    def assert_no_parts(self):
        self.assertEqual(glob.glob(self.folder + "/.kestrel*"), [])

    def test_ways_that_lead_to_the_whole_film(self):
        ways = {
            "plain": ["plain/film.mp4"],
            "without ranges": ["noranges/film.mp4"],
            "redirected": ["redirect/film.mp4"],
            "breaking off": ["resetting/film.mp4"],
            "a page with a player": ["page/film.mp4"],
            "HLS": ["plain/film.m3u8"],
            "DASH, sound apart": ["plain/film.mpd"],
            "FLV moved into MP4": ["plain/film.flv"],
            "MKV kept": ["--format", "mkv", "plain/film.mkv"],
        }
        for way, arguments in ways.items():
            with self.subTest(way):
                status, (result,) = self.download(*arguments[:-1], self.server.address(arguments[-1]))
                self.assertEqual((status, result["state"], result["problems"]), (0, "done", []), self.errors)
                self.assert_film(result["outputs"][0])
                self.assert_no_parts()

    def test_what_goes_with_the_film_is_in_it(self):
        self.server.film = "film.flv"
        status, (result,) = self.download("--subtitles", "en", self.server.address("page/rich"))
        self.assertEqual((status, result["problems"]), (0, []), self.errors)
        for codec in ("mov_text", "mjpeg"):
            self.assert_film(result["outputs"][0], codec=codec)

    def test_same_bytes_as_the_server_has(self):
        status, (result,) = self.download(self.server.address("resetting/film.mp4"))
        self.assertEqual(status, 0, self.errors)
        digests = []
        for path in (result["outputs"][0], self.films.name + "/film.mp4"):
            with open(path, "rb") as file:
                digests.append(hashlib.sha256(file.read()).hexdigest())
        self.assertEqual(digests[0], digests[1])

    def test_sound_alone(self):
        for arguments, codec in ((["--sound"], "aac"), (["--format", "mp3"], "mp3")):
            with self.subTest(codec):
                status, (result,) = self.download(*arguments, self.server.address("plain/film.mp4"))
                self.assertEqual(status, 0, self.errors)
                self.assert_film(result["outputs"][0], video=False, codec=codec)

    def test_killed_and_started_again_goes_on(self):
        address = self.server.address("slow/film.mp4")
        process = self.start(address)
        self.wait_for_bytes(200_000)
        process.kill()
        process.communicate()
        self.wait_until(lambda: not self.engines())
        kept = self.part_bytes()
        self.assertGreater(kept, 100_000)
        self.server.slow_rate = None
        self.server.requests.clear()
        status, (result,) = self.download(address)
        self.assertEqual((status, result["state"]), (0, "done"), self.errors)
        starts = [int(wanted.split("=")[1].split("-")[0]) for wanted in self.server.ranges_of("/slow/film.mp4")]
        self.assertGreaterEqual(max(starts, default=0), 100_000)
        self.assertGreater(result["resumed_bytes"], 100_000)
        self.assert_film(result["outputs"][0])
        self.assert_no_parts()

    def test_what_was_replaced_meanwhile_is_begun_anew(self):
        address = self.server.address("slow/other.mp4")
        other = os.path.join(self.films.name, "other.mp4")
        shutil.copy(os.path.join(self.films.name, "film.mp4"), other)
        process = self.start(address)
        self.wait_for_bytes(200_000)
        process.kill()
        process.communicate()
        self.wait_until(lambda: not self.engines())
        with open(other, "ab") as file:
            file.write(b"\0\0\0\x10free12345678")
        self.server.slow_rate = None
        status, (result,) = self.download(address)
        self.assertEqual((status, result["state"]), (0, "done"), self.errors)
        self.assertEqual(os.path.getsize(result["outputs"][0]), os.path.getsize(other))
        self.assertEqual(result["resumed_bytes"], 0)

    def test_interrupted_keeps_what_has_come(self):
        process = self.start(self.server.address("slow/film.mp4"))
        self.wait_for_bytes(100_000)
        process.send_signal(signal.SIGINT)
        status, (result,) = self.finish(process)
        self.assertEqual((status, result["state"]), (130, "cancelled"))
        self.assertGreater(self.part_bytes(), 50_000)

    def test_what_has_come_whole_needs_its_page_no_more(self):
        arguments = ("--format", "webm", self.server.address("page/film.mp4"))
        process = self.start(*arguments)
        self.wait_until(lambda: glob.glob(self.folder + "/.kestrel-download-*/companions"))
        process.kill()
        process.communicate()
        for answer in glob.glob(self.home.name + "/**/answers/*.json", recursive=True, include_hidden=True):
            os.utime(answer, (0, 0))
        self.server.gone = "page"
        status, (result,) = self.download(*arguments)
        self.assertEqual((status, result["state"]), (0, "done"), self.errors)
        self.assert_film(result["outputs"][0], codec="vp9")
        self.assertEqual(os.path.basename(result["outputs"][0]), "A film.webm")

    def test_expired_address_is_asked_for_again_and_goes_on(self):
        status, (result,) = self.download(self.server.address("page/expiring"))
        self.assertEqual((status, result["state"]), (0, "done"), self.errors)
        self.assert_film(result["outputs"][0])
        self.assertTrue(self.server.ranges_of("/token/2/film.mp4"), self.server.requests)

    def test_busy_server_is_waited_for(self):
        self.server.refusals = 2
        status, (result,) = self.download(self.server.address("busy/film.mp4"))
        self.assertEqual((status, result["state"]), (0, "done"), self.errors)

    def test_refusals(self):
        cases = {
            "gone/film.mp4": "no longer there",
            "forbidden/film.mp4": "refuses",
            "page/none": "no site that Kestrel knows|no film",
            "cut/film.mp4": "only part",
            "modest/film.mp4": "only part",
        }
        for path, words in cases.items():
            with self.subTest(path):
                status, (result,) = self.download(self.server.address(path))
                self.assertNotEqual(status, 0)
                self.assertNotEqual(result["state"], "done")
                self.assertRegex(" ".join(result["problems"]), words)
        closed = FilmServer(self.films.name)
        closed.shutdown()
        closed.server_close()
        status, (result,) = self.download(closed.address("plain/film.mp4"))
        self.assertEqual((status, result["state"]), (1, "failed"))
        self.assertRegex(result["problems"][0], "No server answers")

    def test_refused_proxy_is_named(self):
        status, (result,) = self.download("--proxy", "http://127.0.0.1:9", self.server.address("plain/film.mp4"))
        self.assertEqual((status, result["state"]), (1, "failed"))
        self.assertRegex(result["problems"][0], "proxy")
        self.assertEqual(self.server.requests, [])

    def test_nobody_leads_to_another_kind_of_server(self):
        with socket.create_server(("127.0.0.1", 0)) as other:
            self.server.ftp = f"ftp://127.0.0.1:{other.getsockname()[1]}/film.mp4"
            for proxy in ([], ["--proxy", self.server.address("")]):
                self.assertEqual(self.download(*proxy, self.server.address("ftp/film.mp4"))[0], 1)
            other.setblocking(False)
            self.assertRaises(BlockingIOError, other.accept)

    def test_list_and_two_of_one_name(self):
        self.server.title = "../Odd: *name*? %(title)s \u202e \u30c6\u30b9\u30c8 &lt;b&gt;"
        status, results = self.download(self.server.address("page/list"), self.server.address("page/film.mp4"))
        self.assertEqual((status, len(results)), (0, 3), self.errors)
        outputs = sorted(os.listdir(self.folder))
        self.assertEqual(len(outputs), 3, outputs)
        for name in outputs:
            self.assertRegex(name, r"^_\._Odd_ _name__ %\(title\)s|^\._Odd|^_")
            self.assert_film(os.path.join(self.folder, name))
        self.assertFalse(os.path.exists(os.path.join(self.home.name, "Odd")))

    def test_endless_answer_ends_with_the_user(self):
        process = self.start("--limit", "200k", self.server.address("endless/film.mp4"))
        self.wait_for_bytes(100_000)
        process.send_signal(signal.SIGTERM)
        status, _ = self.finish(process)
        self.assertEqual(status, 130)
        self.wait_until(lambda: not self.engines())

    def test_user_s_own_engine_settings_are_not_read(self):
        marker = os.path.join(self.home.name, "ran")
        for folder in (".config/yt-dlp", ".yt-dlp"):
            os.makedirs(os.path.join(self.home.name, folder))
            with open(os.path.join(self.home.name, folder, "config"), "w") as file:
                file.write(f"--exec 'touch {marker}'\n")
        plugin = os.path.join(self.home.name, ".config/yt-dlp/plugins/mine/yt_dlp_plugins/extractor")
        os.makedirs(plugin)
        with open(os.path.join(plugin, "mine.py"), "w") as file:
            file.write(f"open({marker!r}, 'w')\n")
        status, _ = self.download(self.server.address("plain/film.mp4"))
        self.assertEqual(status, 0, self.errors)
        self.assertFalse(os.path.exists(marker))

    def test_wrong_use(self):
        for arguments in (["file:///etc/passwd"], ["--proxy", "", "https://a.example"], ["--format", "exe", "https://a.example"],
                          []):
            with self.subTest(arguments):
                self.assertEqual(self.download(*arguments)[0], 2)

    # What the tests look at

    def part_bytes(self):
        return sum(os.path.getsize(path) for path in glob.glob(self.folder + "/.kestrel-download-*/media*"))

    def engines(self):
        """Processes that work in this test's folder."""
        found = []
        for entry in os.listdir("/proc"):
            try:
                if entry.isdigit() and os.readlink(f"/proc/{entry}/cwd").startswith(self.folder):
                    found.append(entry)
            except OSError:
                pass
        return found

    def wait_for_bytes(self, count):
        self.wait_until(lambda: self.part_bytes() >= count)

    def wait_until(self, condition, limit=120):
        deadline = time.monotonic() + limit
        while not condition():
            self.assertLess(time.monotonic(), deadline, "it did not come about")
            time.sleep(0.02)


if __name__ == "__main__":
    unittest.main(verbosity=2)
