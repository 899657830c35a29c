#!/usr/bin/env python3
"""kestrel-cli's disc commands over authored discs, and what arrives. KESTREL_CLI, KESTREL_DISC_TOOLS and KESTREL_DISCS
say where things are."""

import filecmp
import json
import os
import plistlib
import struct
import subprocess
import tempfile
import unittest

CLI = os.environ["KESTREL_CLI"]
TOOLS = os.environ["KESTREL_DISC_TOOLS"]
DISCS = os.environ["KESTREL_DISCS"]


def disc(name):
    return os.path.join(DISCS, name)


def info(path):
    return json.loads(subprocess.run([os.path.join(TOOLS, "discinfo"), path], capture_output=True).stdout)


def probe(path):
    return json.loads(subprocess.run(["ffprobe", "-v", "error", "-show_streams", "-show_format", "-show_chapters", "-of", "json", path],
                                     capture_output=True, check=True).stdout)


def tracks(found, kind):
    return [(s["codec_name"], s.get("tags", {}).get("language")) for s in found["streams"] if s["codec_type"] == kind]


def packets(path, kind):
    rows = subprocess.run(["ffprobe", "-v", "error", "-count_packets", "-select_streams", kind, "-show_entries", "stream=nb_read_packets",
                           "-of", "csv=p=0", path], capture_output=True, text=True).stdout
    return [int(row.strip(",")) for row in rows.split()]


def length(found):
    return float(found["format"]["duration"])


class DiscCommand(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.out = os.path.join(folder.name, "out")
        os.mkdir(self.out)
        self.environment = {**os.environ, "HOME": folder.name, "XDG_CONFIG_HOME": folder.name + "/config",
                            "XDG_DATA_HOME": folder.name + "/data", "XDG_STATE_HOME": folder.name + "/state"}

    def run_cli(self, *arguments):
        return subprocess.run([CLI, "--json", "disc", *arguments], env=self.environment, capture_output=True, text=True, timeout=280)

    def keep(self, *arguments):
        """The exit status and the results in the order of the titles."""
        done = self.run_cli(*arguments[:1], "--to", self.out, *arguments[1:])
        lines = [json.loads(line) for line in done.stdout.splitlines()]
        return done.returncode, sorted((each for each in lines if each["event"] == "result"), key=lambda each: each["job"])

    def keep_one(self, *arguments):
        status, results = self.keep(*arguments)
        self.assertEqual((status, [(r["state"], r["problems"]) for r in results]), (0, [("done", [])]), results)
        return results[0]["outputs"][0]

    def left(self):
        return sorted(os.listdir(self.out))


class Usage(DiscCommand):
    def test_info_is_what_the_tool_says(self):
        for name in ("plain.iso", "lower"):
            done = self.run_cli("info", disc(name))
            self.assertEqual((done.returncode, json.loads(done.stdout)), (0, info(disc(name))))
        done = self.run_cli("info", disc("lines.srt"))
        self.assertEqual((done.returncode, done.stdout, done.stderr.count("\n")), (1, "", 1))

    def test_wrong_usage(self):
        image = disc("plain.iso")
        rows = [[], ["nonsense"], ["info"], ["info", "a", "b"], ["copy", image], ["copy", "--way", "rip", image], ["copy", "--way", "mkv"],
                ["copy", "--way", "image", "--titles", "1", image], ["copy", "--way", "mkv", "--titles", "0", image],
                ["copy", "--way", "folder", "--audio", "1", image],
                ["copy", "--way", "mkv", "--chapters", "3-2", image], ["rip", "--preset", "none", image], ["rip", "--join", image],
                ["copy", "--way", "mkv", "--to", "/nowhere", image]]
        for row in rows:
            with self.subTest(row):
                done = self.run_cli(*row)
                self.assertEqual((done.returncode, done.stdout, done.stderr.count("\n")), (2, "", 1), done.stderr)

    def test_what_cannot_be_kept_says_why_and_leaves_nothing(self):
        rows = [("scrambled.iso", "image", "copy-protected"), ("scrambled.iso", "mkv", "copy-protected"),
                ("lines.srt", "mkv", "no video DVD"), ("none.iso", "mkv", "no disc"), ("plain", "image", "no sectors")]
        for name, way, sentence in rows:
            with self.subTest((name, way)):
                status, results = self.keep("copy", "--way", way, disc(name))
                self.assertEqual((status, results[0]["state"], results[0]["outputs"]), (1, "failed", []))
                self.assertIn(sentence, results[0]["problems"][0])
                self.assertEqual(self.left(), [])
        status, results = self.keep("copy", "--way", "mkv", "--titles", "2,7", disc("plain.iso"))
        self.assertEqual((status, [r["state"] for r in results]), (1, ["done", "failed"]))


class WholeDisc(DiscCommand):
    def test_image(self):
        path = self.keep_one("copy", "--way", "image", disc("plain.iso"))
        self.assertEqual(os.path.basename(path), "HOLIDAY_2026.iso")
        self.assertTrue(filecmp.cmp(path, disc("plain.iso"), shallow=False))
        self.assertEqual(self.left(), ["HOLIDAY_2026.iso"])

    def test_a_broken_off_image_goes_on(self):
        copy = os.path.join(self.out, f".HOLIDAY_2026.{os.path.getsize(disc('plain.iso'))}.kestrel-copy.iso")
        environment = {**os.environ, "LD_PRELOAD": os.environ["KESTREL_FAILING_READS"], "FAILING_FILE": disc("plain.iso"), "KILLED_AT": "2100"}
        subprocess.run([os.path.join(TOOLS, "disc2iso"), disc("plain.iso"), copy], stdout=subprocess.DEVNULL, env=environment)
        with open(copy + ".map") as file:
            begun = json.load(file)
        with open(copy + ".map", "w") as file:  # as a slower copy has it, which has saved it since
            json.dump({**begun, "position": 2048}, file)
        status, results = self.keep("copy", "--way", "image", disc("plain.iso"))
        self.assertEqual((status, results[0]["state"]), (0, "done"))
        self.assertEqual(results[0]["continuedFrom"], 2048 * 2048)
        self.assertTrue(filecmp.cmp(results[0]["outputs"][0], disc("plain.iso"), shallow=False))
        self.assertEqual(self.left(), ["HOLIDAY_2026.iso"])

    def test_sectors_that_cannot_be_read_are_told_and_listed(self):
        self.environment.update({"LD_PRELOAD": os.environ["KESTREL_FAILING_READS"], "FAILING_FILE": disc("plain.iso"),
                                 "FAILING_FIRST": "1500", "FAILING_LAST": "1502"})
        status, results = self.keep("copy", "--way", "image", disc("plain.iso"))
        self.assertEqual((status, results[0]["state"], results[0]["faults"]), (3, "done-with-problems", 3))
        with open(results[0]["outputs"][0] + ".bad") as file:
            self.assertIn("1500 3", file.read())
        status, results = self.keep("copy", "--way", "folder", disc("plain.iso"))
        self.assertEqual((status, results[0]["faults"]), (3, 4))  # to the end of their block
        status, results = self.keep("copy", "--way", "mkv", "--titles", "1,2", disc("plain.iso"))
        # Film is read by blocks, so that what stands beside a bad sector goes with it.
        lost = sum(result["faults"] for result in results)
        self.assertTrue(status == 3 and 3 <= lost <= 64, (status, lost))

    def test_folders(self):
        path = self.keep_one("copy", "--way", "folder", disc("plain.iso"))
        for name in os.listdir(disc("plain/VIDEO_TS")):
            self.assertTrue(filecmp.cmp(os.path.join(path, "VIDEO_TS", name), disc("plain/VIDEO_TS/" + name), shallow=False), name)
        lower = self.keep_one("copy", "--way", "folder", disc("lower"))
        self.assertEqual(info(lower)["titles"], info(path)["titles"])
        self.assertEqual(self.left(), ["HOLIDAY_2026", "lower"])

    def test_main_title(self):
        for name, title, facts in (("plain.iso", 2, ("4:3", "PAL")), ("steps.iso", 1, ("16:9", "NTSC")), ("wide.iso", 1, ("16:9", "PAL"))):
            path = self.keep_one("copy", "--way", "main", disc(name))
            wanted, found = info(disc(name))["titles"][title - 1], info(path)["titles"]
            self.assertEqual((len(found), found[0]["aspect"], found[0]["standard"]), (1, *facts))
            self.assertAlmostEqual(found[0]["seconds"], wanted["seconds"], delta=0.2)
            for kind in ("audio", "subtitles"):
                self.assertEqual([t["language"] for t in found[0][kind]], [t["language"] for t in wanted[kind]])
            self.assertEqual([round(start) for start in found[0]["chapters"]], [round(start) for start in wanted["chapters"]])
            for one, other in zip(found[0]["subtitles"], wanted["subtitles"]):
                self.assertEqual(one["palette"][0], other["palette"][0])
        sound = subprocess.run(["ffmpeg", "-v", "error", "-i", path + "/VIDEO_TS/VTS_01_1.VOB", "-map", "i:0x80", "-f", "s16le", "-ac", "1", "-t",
                                "1", "-"], capture_output=True).stdout
        signs = [sample < 0 for sample, in struct.iter_unpack("<h", sound)]
        self.assertGreater(sum(a != b for a, b in zip(signs, signs[1:])), 2 * 700)  # English is the higher tone, once the second stream


class Titles(DiscCommand):
    def test_matroska(self):
        status, results = self.keep("copy", "--way", "mkv", "--titles", "1,2", disc("plain.iso"))
        self.assertEqual((status, [r["state"] for r in results]), (0, ["done", "done"]), results)
        self.assertEqual(self.left(), ["HOLIDAY_2026 - Title 1.mkv", "HOLIDAY_2026 - Title 2.mkv"])
        found = probe(results[1]["outputs"][0])
        self.assertAlmostEqual(length(found), 12, delta=0.2)
        self.assertEqual(tracks(found, "video"), [("mpeg2video", None)])
        self.assertEqual(tracks(found, "audio"), [("ac3", "eng"), ("ac3", "ger")])
        self.assertEqual(tracks(found, "subtitle"), [("dvd_subtitle", "fre")])
        self.assertEqual([round(float(c["start_time"])) for c in found["chapters"]], [0, 3, 6, 9])
        # The lines are yellow: without the disc's palette they would be black or grey.
        picture = subprocess.run(["ffmpeg", "-v", "error", "-f", "lavfi", "-i", "color=black:s=720x576:d=4", "-i", results[1]["outputs"][0],
                                  "-filter_complex", "[0:v][1:s:0]overlay,crop=720:200:0:376,format=rgb24", "-ss", "3", "-frames:v", "1",
                                  "-f", "rawvideo", "-"], capture_output=True).stdout
        pixels = zip(picture[0::3], picture[1::3], picture[2::3])
        self.assertGreater(sum(r > 200 and g > 200 and b < 90 for r, g, b in pixels), 100)

    def test_every_language_of_subtitles_is_there(self):
        path = self.keep_one("copy", "--way", "mkv", disc("wide.iso"))
        self.assertEqual((tracks(probe(path), "subtitle"), packets(path, "s")), ([("dvd_subtitle", "fre"), ("dvd_subtitle", "eng")], [2, 2]))
        path = self.keep_one("copy", "--way", "mpeg", "--audio", "2", "--subtitles", "none", disc("wide.iso"))
        self.assertEqual([stream["id"] for stream in probe(path)["streams"]], ["0x1e0", "0x80"])

    def test_all_kinds_of_sound(self):
        samples = {}
        for name in ("sound", "twenty"):
            path = self.keep_one("copy", "--way", "mkv", disc(name + ".iso"))
            self.assertEqual(tracks(probe(path), "audio"), [("ac3", "eng"), ("pcm_s16le", "ita"), ("pcm_s24le", "spa")])
            sound = subprocess.run(["ffmpeg", "-v", "error", "-i", path, "-map", "0:a:2", "-f", "s24be", "-"], capture_output=True).stdout
            samples[name] = [int.from_bytes(sound[at:at + 3], "big") for at in range(0, len(sound), 3)]
        self.assertGreater(len(set(sample & 0xFF for sample in samples["sound"])), 100)
        self.assertEqual(samples["twenty"], [sample & ~0xF for sample in samples["sound"]][:len(samples["twenty"])])
        path = self.keep_one("copy", "--way", "sound", "--audio", "2", disc("sound.iso"))
        self.assertEqual((os.path.basename(path), tracks(probe(path), "audio"), tracks(probe(path), "video")),
                         ("SOUND - Title 1.mka", [("pcm_s16le", "ita")], []))
        self.assertEqual(len(probe(self.keep_one("copy", "--way", "sound", disc("plain.iso")))["chapters"]), 4)

    def test_program_streams_chapters_and_angles(self):
        path = self.keep_one("copy", "--way", "mpeg", disc("plain.iso"))
        self.assertEqual(len(tracks(probe(path), "audio")), 2)
        found = probe(self.keep_one("copy", "--way", "mkv", "--chapters", "2-3", disc("plain.iso")))
        self.assertAlmostEqual(length(found), 6, delta=0.3)
        self.assertEqual([round(float(c["start_time"])) for c in found["chapters"]], [0, 3])
        self.assertAlmostEqual(length(probe(self.keep_one("copy", "--way", "mkv", "--angle", "2", disc("angles.iso")))), 9, delta=0.3)

    def prefer(self, language):
        """As the settings window stores it."""
        uid, class_of = plistlib.UID, lambda name: {"$classname": name, "$classes": [name, "NSObject"]}
        archive = {"$archiver": "NSKeyedArchiver", "$version": 100000, "$top": {"root": uid(1)}, "$objects": [
            "$null", {"NS.keys": [uid(2)], "NS.objects": [uid(3)], "$class": uid(6)}, "dvd", {"DVDAudioLanCode": uid(4), "$class": uid(5)},
            language, class_of("JDVDSetting"), class_of("NSMutableDictionary")]}
        with open(os.path.join(self.out, "../config/com.tarnwell.kestrel/defaults.plist"), "wb") as file:
            plistlib.dump({"setting": plistlib.dumps(archive, fmt=plistlib.FMT_BINARY)}, file)

    def test_the_preferred_language_comes_first(self):
        os.makedirs(os.path.join(self.out, "../config/com.tarnwell.kestrel"))
        for language, order in (("fr", ["fre", "eng"]), ("ja", ["eng", "fre"])):
            self.prefer(language)
            found = probe(self.keep_one("copy", "--way", "sound", disc("steps.iso")))
            self.assertEqual([language for _, language in tracks(found, "audio")], order)

    def test_subtitles_are_drawn_into_the_picture(self):
        found = probe(self.keep_one("rip", "--preset", "mkv-h264", "--speed", "2", "--burn", "1", disc("plain.iso")))
        self.assertEqual((tracks(found, "video")[0][0], tracks(found, "subtitle")), ("h264", []))
        self.assertAlmostEqual(length(found), 12, delta=0.3)
        self.assertEqual((found["streams"][0]["display_aspect_ratio"], len(found["chapters"])), ("4:3", 4))

    def test_pictures_of_film_are_kept_as_they_are(self):
        for arguments in (("copy", "--way", "mkv"), ("rip", "--preset", "mp4-h264")):
            path = self.keep_one(*arguments, disc("film.iso"))
            found = probe(path)
            self.assertAlmostEqual(length(found), 6, delta=0.1)
            self.assertEqual([chapter["tags"]["title"] for chapter in found["chapters"]], ["Chapter 1", "Chapter 2"])
            self.assertEqual(packets(path, "v"), [144])
        self.assertEqual(found["streams"][0]["r_frame_rate"], "24000/1001")

    def test_sound_presets(self):
        path = self.keep_one("rip", "--preset", "mp3", "--titles", "1", disc("plain.iso"))
        self.assertEqual((os.path.basename(path), tracks(probe(path), "video")), ("HOLIDAY_2026 - Title 1.mp3", []))

    def test_a_truncated_image_is_kept_as_far_as_it_goes(self):
        status, results = self.keep("copy", "--way", "mkv", disc("truncated.iso"))
        self.assertEqual((status, results[0]["state"]), (3, "done-with-problems"))
        self.assertLess(length(probe(results[0]["outputs"][0])), 11)
        self.assertTrue(any("could be read" in problem for problem in results[0]["problems"]), results[0]["problems"])


if __name__ == "__main__":
    unittest.main()
