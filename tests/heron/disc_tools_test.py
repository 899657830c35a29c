#!/usr/bin/env python3
"""The disc tools over authored discs. KESTREL_DISC_TOOLS, KESTREL_DISCS and KESTREL_FAILING_READS say where things are."""

import errno
import filecmp
import json
import os
import shutil
import subprocess
import tempfile
import unittest

TOOLS = os.environ["KESTREL_DISC_TOOLS"]
DISCS = os.environ["KESTREL_DISCS"]
SECTOR = 2048


def disc(name):
    return os.path.join(DISCS, name)


def run(tool, *arguments, failing=None, **more):
    """The exit status, and the JSON lines of the stream that has them."""
    environment = dict(os.environ)
    if failing:
        environment["LD_PRELOAD"] = os.environ["KESTREL_FAILING_READS"]
        environment.update({name: str(value) for name, value in failing.items()})
    done = subprocess.run([os.path.join(TOOLS, tool), *arguments], env=environment, capture_output=True, timeout=60, **more)
    is_film = tool == "disctitle" and "--streams" not in arguments
    lines = [json.loads(line) for line in (done.stderr if is_film else done.stdout).splitlines()]
    return done.returncode, lines, done.stdout


def info(name):
    return run("discinfo", disc(name))[1][0]


class Case(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def path(self, name):
        return os.path.join(self.folder, name)


class DiscInfo(Case):
    def test_plain(self):
        contents = info("plain.iso")
        self.assertEqual((contents["volume"], contents["bytes"], contents["protected"]),
                         ("HOLIDAY_2026", os.path.getsize(disc("plain.iso")), False))
        one, two = contents["titles"]
        self.assertEqual((one["main"], two["main"]), (False, True))
        self.assertEqual((two["seconds"], two["chapters"], two["aspect"], two["standard"]), (12, [0, 3, 6, 9], "4:3", "PAL"))
        self.assertEqual((two["width"], two["height"], two["angles"]), (720, 576, 1))
        self.assertEqual([(a["language"], a["codec"], a["purpose"], a["id"]) for a in two["audio"]],
                         [("en", "ac3", "", 0x80), ("de", "ac3", "commentary", 0x81)])
        self.assertEqual([(s["language"], len(s["palette"]), s["palette"][0]) for s in two["subtitles"]], [("fr", 16, "ffff00")])

    def test_what_the_others_have(self):
        sound = info("sound.iso")["titles"][0]
        self.assertEqual([(a["codec"], a["channels"], a["id"]) for a in sound["audio"]], [("ac3", 6, 0x80), ("lpcm", 2, 0xA0), ("lpcm", 2, 0xA1)])
        self.assertEqual(sound["aspect"], "16:9")
        steps = info("steps.iso")["titles"][0]
        self.assertEqual((steps["seconds"], len(steps["chapters"]), steps["standard"]), (12.012, 4, "NTSC"))
        angles = info("angles.iso")["titles"][0]
        self.assertEqual((angles["angles"], angles["seconds"], angles["chapters"]), (2, 9, [0, 6]))
        many = info("many.iso")["titles"]
        self.assertEqual((len(many), [t["title"] for t in many if t["main"]]), (30, [1]))
        self.assertGreater(info("big")["titles"][1]["bytes"], 10 ** 9)

    def test_folders_of_any_case(self):
        titles = info("plain.iso")["titles"]
        for name in ("plain", "plain/VIDEO_TS", "lower", "lower/video_ts"):
            contents = info(name)
            self.assertEqual(contents["titles"], titles, name)
            self.assertEqual(contents["volume"], name.split("/")[0])
            self.assertGreater(contents["bytes"], 4 << 20, name)

    def test_what_is_wrong_with_a_disc(self):
        self.assertTrue(info("scrambled.iso")["protected"])
        truncated = info("truncated.iso")
        self.assertEqual((truncated["protected"], truncated.get("truncated")), (False, True))
        self.assertNotIn("truncated", info("plain.iso"))

    def test_sources_that_are_no_discs(self):
        with open(self.path("text"), "w") as file:
            file.write("no disc")
        os.mkfifo(self.path("pipe"))
        rows = [([], "usage", 2), ([self.path("none")], "missing", 3), ([self.path("text")], "notADisc", 5),
                ([self.path("pipe")], "notADisc", 5), ([self.folder], "notADisc", 5), (["/dev/null"], "notADisc", 5)]
        for arguments, error, status in rows:
            code, lines, _ = run("discinfo", *arguments)
            self.assertEqual((code, [line["error"] for line in lines]), (status, [error]), arguments)


class DiscToImage(Case):
    def copy(self, **failing):
        source = disc("plain.iso")
        code, lines, _ = run("disc2iso", source, self.path("copy.iso"), failing={"FAILING_FILE": source, **failing})
        return code, lines[-1] if lines else {}

    def test_fills_what_cannot_be_read_with_zeros_and_lists_it(self):
        code, last = self.copy(FAILING_FIRST=1003, FAILING_LAST=1040)
        self.assertEqual((code, last["result"]["badSectors"]), (0, 38))
        with open(disc("plain.iso"), "rb") as file:
            expected = bytearray(file.read())
        expected[1003 * SECTOR:1041 * SECTOR] = bytes(38 * SECTOR)
        with open(self.path("copy.iso"), "rb") as file:
            self.assertEqual(file.read(), expected)
        with open(self.path("copy.iso.bad")) as file:
            self.assertEqual(file.read().splitlines()[1:], ["1003 38"])

    def test_tries_again(self):
        code, last = self.copy(FAILING_FIRST=1003, FAILING_LAST=1003, FAILING_TIMES=4)
        self.assertEqual((code, last["result"]["badSectors"]), (0, 0))
        self.assertTrue(filecmp.cmp(disc("plain.iso"), self.path("copy.iso"), shallow=False))

    def test_goes_on_where_it_was_broken_off(self):
        code, _ = self.copy(KILLED_AT=2100)
        self.assertEqual(code, -9)
        with open(self.path("copy.iso.map")) as file:
            begun = json.load(file)
        with open(self.path("copy.iso.map"), "w") as file:  # as a slower copy has it, which has saved it since
            json.dump({**begun, "position": 2048}, file)
        with open(self.path("copy.iso"), "r+b") as file:  # what is there already is not read again
            file.write(b"seen")
        code, last = self.copy()
        self.assertEqual((code, last["result"]["continuedFrom"]), (0, 2048 * SECTOR))
        with open(disc("plain.iso"), "rb") as source, open(self.path("copy.iso"), "rb") as copy:
            self.assertEqual(copy.read(4), b"seen")
            source.seek(4)
            self.assertEqual(copy.read(), source.read())
        self.assertEqual(os.listdir(self.folder), ["copy.iso"])

    def test_a_drive_that_goes_away_is_no_scratch(self):
        for error in (errno.ENODEV, errno.ENOMEDIUM):
            code, last = self.copy(FAILING_FIRST=1003, FAILING_LAST=10 ** 6, FAILING_ERROR=error)
            self.assertEqual((code, last), (3, {"error": "missing"}))
            with open(self.path("copy.iso.map")) as file:
                left = json.load(file)
            self.assertEqual((left["position"], left["untried"], left["bad"]), (1003, [], []))
            for tool, *rest in (("discfolder", self.path("folder")), ("disctitle",)):
                failing = {"FAILING_FILE": disc("plain.iso"), "FAILING_FIRST": 1503, "FAILING_LAST": 10 ** 6, "FAILING_ERROR": error}
                code, lines, _ = run(tool, disc("plain.iso"), *rest, failing=failing)
                self.assertEqual((code, lines[-1]), (3, {"error": "missing"}))
                shutil.rmtree(self.path("folder"), ignore_errors=True)
        self.assertEqual(self.copy()[1]["result"]["continuedFrom"], 1003 * SECTOR)

    def test_leaves_alone_what_is_not_its_own(self):
        with open(self.path("copy.iso"), "w") as file:
            file.write("precious")
        self.assertEqual(self.copy(), (12, {"error": "exists"}))
        with open(self.path("copy.iso.map"), "w") as file:
            json.dump({"version": 1, "bytes": 4096, "fingerprint": "x", "position": 1, "untried": [], "bad": []}, file)
        self.assertEqual(self.copy(), (13, {"error": "otherDisc"}))
        with open(self.path("copy.iso")) as file:
            self.assertEqual(file.read(), "precious")
        code, lines, _ = run("disc2iso", disc("plain"), self.path("folder.iso"))
        self.assertEqual((code, lines[-1]["error"]), (5, "notADisc"))


class DiscCover(Case):
    def test_writes_a_picture_of_the_right_shape(self):
        for source, shape in (("plain.iso", 4 / 3), ("steps.iso", 16 / 9)):
            target = self.path("cover.jpg")
            code, lines, _ = run("disccover", disc(source), target)
            self.assertEqual(code, 0, lines)
            size = subprocess.run(["ffprobe", "-v", "error", "-show_entries", "stream=width,height", "-of", "csv=p=0", target],
                                   capture_output=True, text=True, check=True).stdout.strip()
            width, height = map(int, size.split(","))
            self.assertAlmostEqual(width / height, shape, delta=0.01)

    def test_looks_at_the_begin_the_middle_and_the_end(self):
        for first, missing in ((1000, [0, 6, 12]), (2000, [6, 12]), (2600, [12]), (3200, [])):
            failing = {"FAILING_FILE": disc("plain.iso"), "FAILING_FIRST": first, "FAILING_LAST": 10 ** 6}
            _, lines, _ = run("disccover", "--check", disc("plain.iso"), failing=failing)
            self.assertEqual(lines[-1]["result"]["missing"], missing)

    def test_says_why_there_is_none(self):
        for arguments, error in ((["--title", "9"], "noTitle"), (["--ffmpeg", "/none"], "noPicture")):
            code, lines, _ = run("disccover", *arguments, disc("plain.iso"), self.path("cover.jpg"))
            self.assertNotEqual(code, 0)
            self.assertEqual(lines[-1]["error"], error)


class DiscTitle(Case):
    def film(self, source, *options, **more):
        code, lines, film = run("disctitle", *options, disc(source), **more)
        return code, lines[-1], film

    def matroska(self, film, *codecs):
        target = self.path("film.mkv")
        subprocess.run(["ffmpeg", "-nostdin", "-v", "error", "-y", "-f", "mpeg", "-i", "pipe:0", "-map", "0:v", "-map", "0:a",
                        "-c", "copy", *codecs, target], input=film, check=True)
        return target

    def times(self, path, stream):
        rows = subprocess.run(["ffprobe", "-v", "error", "-select_streams", stream, "-show_entries", "packet=pts_time", "-of",
                               "csv=p=0", path], capture_output=True, text=True, check=True).stdout.split()
        return sorted(float(row.strip(",")) for row in rows)

    def assert_even(self, times, longest_step):
        steps = [after - before for before, after in zip(times, times[1:])]
        self.assertLess(max(steps), longest_step)

    def test_two_clocks_become_one(self):
        code, last, film = self.film("steps.iso")
        self.assertEqual((code, last["result"]["joints"]), (0, 1))
        self.assertAlmostEqual(last["result"]["seconds"], 12.012, delta=0.04)
        path = self.matroska(film)
        pictures = self.times(path, "v:0")
        self.assertEqual(len(pictures), 360)
        self.assert_even(pictures, 0.05)
        self.assertAlmostEqual(pictures[-1], 12, delta=0.05)
        for stream in ("a:0", "a:1"):
            sound = self.times(path, stream)
            self.assert_even(sound, 0.07)
            self.assertAlmostEqual(sound[-1], 12, delta=0.1)

    def test_chapters_and_angles(self):
        code, last, film = self.film("plain.iso", "--chapters", "2-3")
        self.assertAlmostEqual(last["result"]["seconds"], 6, delta=0.1)
        self.assertEqual(len(self.times(self.matroska(film), "v:0")), 150)
        films = [self.film(name, "--angle", str(angle))[2] for name in ("angles.iso", "interleaved.iso") for angle in (1, 2)]
        self.assertEqual(films[:2], films[2:])
        self.assertNotEqual(films[0], films[1])
        self.assertEqual(len(self.times(self.matroska(films[1]), "v:0")), 225)

    def test_subtitles_keep_time_size_and_colours(self):
        code, last, film = self.film("plain.iso", "--subtitles", self.path("lines"))
        self.assertEqual((code, last["result"]["subtitles"]), (0, 2))
        target = self.path("both.mkv")
        subprocess.run(["ffmpeg", "-nostdin", "-v", "error", "-i", self.matroska(film), "-i", self.path("lines.idx"), "-map", "0",
                        "-map", "1", "-c", "copy", target], check=True)
        self.assertEqual([round(time) for time in self.times(target, "s:0")], [2, 8])
        with open(target, "rb") as file:
            self.assertIn(b"palette: ffff00, ", file.read())

    def test_film_over_a_gigabyte_in_two_files(self):
        _, last, film = self.film("big")
        self.assertEqual(film, self.film("plain.iso")[2])
        self.assertGreater(last["result"]["emptySectors"], 500000)

    def test_losses_are_counted(self):
        source = disc("plain.iso")
        code, last, film = self.film("plain.iso", failing={"FAILING_FILE": source, "FAILING_FIRST": 2000, "FAILING_LAST": 2031})
        self.assertEqual(code, 0)
        self.assertTrue(32 <= last["result"]["lostSectors"] <= 64, last)
        self.assertAlmostEqual(last["result"]["seconds"], 12, delta=0.1)
        self.assertGreater(self.film("truncated.iso")[1]["result"]["lostSectors"], 1000)

    def test_what_the_encoder_must_know(self):
        code, lines, _ = run("disctitle", "--streams", "--title", "2", disc("plain.iso"))
        self.assertEqual([cell["chapter"] for cell in lines[0]["cells"]], [1, 2, 3, 4])
        self.assertTrue(lines[0]["subtitles"][0]["extradata"].startswith("size: 720x576\npalette: ffff00, "))
        self.assertEqual((lines[0]["pulldown"], lines[0]["frameRate"]), (False, "25"))
        self.assertTrue(run("disctitle", "--streams", disc("film.iso"))[1][0]["pulldown"])

    def test_refusals(self):
        rows = [(["--title", "3"], "plain.iso", "noTitle", 7), (["--angle", "2"], "plain.iso", "noTitle", 7),
                ([], "scrambled.iso", "protected", 8)]
        for options, source, error, status in rows:
            code, last, film = self.film(source, *options)
            self.assertEqual((code, last["error"], film), (status, error, b""), options)


if __name__ == "__main__":
    unittest.main()
