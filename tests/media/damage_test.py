#!/usr/bin/env python3
"""Conversions of damaged sources, damaged outputs, good files, full and broken disks: what may be called done.

damage_test.py HELPER FAILING_DISK [PART…]    parts: sources outputs good full broken; all by default
"""
import json
import os
import random
import shutil
import subprocess
import sys
import tempfile

FFMPEG, FFPROBE = shutil.which("ffmpeg"), shutil.which("ffprobe")
SECONDS = 12

# Extension: how its sample is made
SOURCES = {
    "mp4": ["-c:v", "libx264", "-preset", "ultrafast", "-g", "25", "-c:a", "aac", "-movflags", "+faststart"],
    "mov": ["-c:v", "mpeg4", "-g", "25", "-c:a", "pcm_s16le", "-movflags", "+faststart"],
    "mkv": ["-c:v", "libx264", "-preset", "ultrafast", "-g", "25", "-c:a", "ac3"],
    "webm": ["-c:v", "libvpx", "-deadline", "realtime", "-cpu-used", "8", "-g", "25", "-b:v", "300k", "-c:a", "libvorbis"],
    "ts": ["-c:v", "libx264", "-preset", "ultrafast", "-g", "25", "-c:a", "aac"],
    "mpg": ["-c:v", "mpeg2video", "-g", "12", "-c:a", "mp2"],
    "avi": ["-c:v", "mpeg4", "-g", "25", "-c:a", "mp3"],
}
TELLS_LENGTH = {"mp4", "mov", "mkv", "webm"}


def zeros(data, at, length):
    at = int(len(data) * at)
    return data[:at] + bytes(length) + data[at + length:]


def flipped(data, start, end, count, seed):
    chance = random.Random(seed)
    result = bytearray(data)
    for _ in range(count):
        result[chance.randrange(int(len(data) * start), int(len(data) * end))] ^= 1 << chance.randrange(8)
    return bytes(result)


SOURCE_DAMAGES = {
    "cut at 60 %": lambda data: data[:int(len(data) * 0.6)],
    "cut at 99 %": lambda data: data[:int(len(data) * 0.99)],
    "hole": lambda data: data[:int(len(data) * 0.4)] + data[int(len(data) * 0.5):],
    "zeros": lambda data: zeros(data, 0.45, 20_000),
    "many flipped bits": lambda data: flipped(data, 0.2, 0.9, 200, 1),
    "few flipped bits": lambda data: flipped(data, 0.3, 0.8, 20, 2),
}

# What may happen to an output between the tool's last word and the look at it
OUTPUT_DAMAGES = {
    "empty": lambda data: b"",
    "one byte less": lambda data: data[:-1],
    "1 KB less": lambda data: data[:-1000],
    "half": lambda data: data[:len(data) // 2],
    "a byte more": lambda data: data + b"x",
    "begins late": lambda data: data[512:],
    "zeros at the start": lambda data: zeros(data, 0, 4096),
    "zeros early": lambda data: zeros(data, 0.1, 4096),
    "zeros in the middle": lambda data: zeros(data, 0.5, 4096),
    "a disk block of zeros": lambda data: zeros(data, 0.5, 65_536),
    "zeros late": lambda data: zeros(data, 0.9, 4096),
    "zeros at the end": lambda data: data[:-4096] + bytes(4096),
    "zeros in the last half": lambda data: data[:len(data) // 2] + bytes(len(data) - len(data) // 2),
    "hole, the rest moved up": lambda data: data[:len(data) // 3] + data[len(data) // 3 + 4096:] + bytes(4096),
    "one flipped bit": lambda data: flipped(data, 0.4, 0.6, 1, 3),
    "100 flipped bits": lambda data: flipped(data, 0.2, 0.8, 100, 4),
}
FLIPS = {"one flipped bit", "100 flipped bits"}
OUTPUT_PRESETS = ["mp4-h264", "mkv-h264", "webm-vp8", "ts-h264", "mpg-mpeg2", "avi-mpeg4"]


class Bench:
    def __init__(self, helper, disk, folder):
        self.helper, self.disk, self.folder = helper, disk, folder
        self.faults = []
        self.home = os.path.join(folder, "home")
        os.mkdir(self.home)
        self.samples = {extension: self.film("film", extension, SECONDS) for extension in SOURCES}

    def film(self, name, extension, seconds):
        path = os.path.join(self.folder, f"{name}.{extension}")
        subprocess.run([FFMPEG, "-v", "error", "-nostdin", "-y", "-f", "lavfi", "-i", f"testsrc2=s=256x144:r=25:d={seconds}", "-f",
                        "lavfi", "-i", f"sine=r=48000:d={seconds}", *SOURCES[extension], path], check=True)
        return path

    def write(self, name, data):
        path = os.path.join(self.folder, name)
        with open(path, "wb") as file:
            file.write(data)
        return path

    def tool(self, lines):
        path = self.write("tool", f"#!/bin/sh\nreal='{FFMPEG}'; for part; do :; done; part=\"${{part#file:}}\"\n{lines}\n".encode())
        os.chmod(path, 0o700)
        return path

    def convert(self, preset, source, *options, tool=FFMPEG, **environment):
        """How it ended; the output goes, and nothing else may be left."""
        out = os.path.join(self.folder, "out")
        os.mkdir(out)
        run = subprocess.run([self.helper, tool, FFPROBE, preset, out, *options, source], capture_output=True, text=True,
                             env=dict(os.environ, HOME=self.home, XDG_DATA_HOME=self.home, **environment), timeout=300)
        result = json.loads(run.stdout) if run.stdout else {"state": "crashed", "sentence": run.stderr, "outputs": []}
        self.expect(sorted(os.listdir(out)) == sorted(map(os.path.basename, result["outputs"])), f"left behind: {os.listdir(out)}")
        result["seconds"] = [self.duration(path) for path in result["outputs"]]
        shutil.rmtree(out)
        return result

    @staticmethod
    def duration(path):
        told = subprocess.run([FFPROBE, "-v", "error", "-show_entries", "format=duration", "-of", "csv=p=0", path],
                              capture_output=True, text=True).stdout.strip()
        return float(told) if told[:1].isdigit() else 0.0

    def expect(self, holds, text):
        if not holds:
            self.faults.append(text)
            print("FAULT:", text, flush=True)
        return holds


def words(result):
    return f"{result['state']}: {result['sentence']}"


def tool_reports_errors(path, encode):
    """What the same reading says by hand."""
    target = ["-f", "null", "-"] if encode else ["-c", "copy", "-f", "matroska", os.devnull]
    run = subprocess.run([FFMPEG, "-v", "error", "-nostdin", "-y", "-i", path, *target], capture_output=True)
    return bool(run.stderr.strip())


def sources(bench):
    """No damaged source is done where its header tells the length or the tool reports an error."""
    counts = {}
    for extension, sample in bench.samples.items():
        with open(sample, "rb") as file:
            data = file.read()
        for name, damage in SOURCE_DAMAGES.items():
            path = bench.write("damaged." + extension, damage(data))
            for kind, preset, options in (("encoded", "mp4-h264", ["--encode"]), ("copied", "mkv-copy", [])):
                result = bench.convert(preset, path, *options)
                key = (kind, result["state"])
                counts[key] = counts.get(key, 0) + 1
                what = f"{extension}, {name}, {kind}: {words(result)} {result['seconds']}"
                if result["state"] == "done":
                    is_short = extension in TELLS_LENGTH and any(seconds < SECONDS - 1 for seconds in result["seconds"])
                    reports = tool_reports_errors(path, kind == "encoded")
                    print("done although", what, "the tool reports errors" if reports else "the tool reports nothing", flush=True)
                    bench.expect(not is_short and not reports, what)
                bench.expect(result["state"] in ("done", "done-with-problems", "failed"), what)
                if result["state"] == "failed":
                    print("nothing saved:", what, flush=True)
    print("damaged sources:", ", ".join(f"{kind} {state} {count}" for (kind, state), count in sorted(counts.items())))


def outputs(bench):
    """All but flipped bits are noticed; those too where all is decoded."""
    caught = total = flips = 0
    for preset in OUTPUT_PRESETS:
        for name, damage in OUTPUT_DAMAGES.items():
            script = bench.write("damage.py", f"import sys; sys.path.insert(0, {os.path.dirname(os.path.abspath(__file__))!r})\n"
                                 "import damage_test\npath = sys.argv[1]\ndata = open(path, 'rb').read()\n"
                                 f"open(path, 'wb').write(damage_test.OUTPUT_DAMAGES[{name!r}](data))\n".encode())
            tool = bench.tool(f'"$real" "$@" || exit\n[ -f "$part" ] && exec {sys.executable} {script} "$part"\nexit 0')
            safe = ["--safe"] if name in FLIPS else []
            result = bench.convert(preset, bench.samples["mov"], "--encode", *safe, tool=tool)
            total += 1
            caught += result["state"] == "failed"
            what = f"{preset}, {name}: {words(result)}"
            # An AVI file ends with what players seek by: every packet is there without it.
            costs_only_the_index = preset.startswith("avi") and name == "zeros at the end"
            if (name in FLIPS or costs_only_the_index) and result["state"] != "failed":
                flips += name in FLIPS
                print("not noticed:", what, flush=True)
            else:
                bench.expect(result["state"] == "failed", what)
    print(f"damaged outputs: {caught} of {total} noticed; not noticed: {flips} with flipped bits")


def good(bench):
    """No false alarm: every preset, from each kind of source in turn, and of each result all is decoded."""
    films = [(extension, bench.film("second", extension, 1)) for extension in SOURCES]
    presets = subprocess.run([bench.helper, "--presets"], capture_output=True, text=True, check=True).stdout.split()
    done = 0
    for number, preset in enumerate(presets):
        extension, film = films[number % len(films)]
        result = bench.convert(preset, film, "--safe")
        done += bench.expect(result["state"] == "done", f"{extension} to {preset}: {words(result)}\n{result.get('details')}")
    print(f"good files: {done} of {len(presets)} done")


def full(bench):
    """The disk is full at each 4 KB of the last 64 of what would be written."""
    for preset in ("mp4-h264", "mkv-h264", "avi-mpeg4"):
        keep = os.path.join(bench.folder, "size")
        bench.convert(preset, bench.samples["mpg"], "--encode",
                      tool=bench.tool(f'"$real" "$@" || exit\nwc -c < "$part" > {keep}'))
        with open(keep) as file:
            size = int(file.read())
        preload = bench.tool(f'exec env LD_PRELOAD={bench.disk} DISK_PATH=kestrel-part "$real" "$@"')
        ends = []
        for missing in range(4096, 65_536 + 1, 4096):
            result = bench.convert(preset, bench.samples["mpg"], "--encode", tool=preload, DISK_FULL_AT=str(size - missing))
            bench.expect(result["state"] == "failed" and "no space left" in result["sentence"],
                         f"{preset}, {missing} bytes too few: {words(result)}")
            ends.append(result["state"])
        print(f"full disk, {preset} of {size} bytes: {ends.count('failed')} of {len(ends)} failed")


def broken(bench):
    """The disk of the source cannot be read from some moment on."""
    for extension, sample in bench.samples.items():
        states = []
        for broken_at in (2, 3, 5, 8, 13, 21):
            tool = bench.tool(f'exec env LD_PRELOAD={bench.disk} DISK_PATH=/film. "$real" "$@"')
            result = bench.convert("mp4-h264", sample, "--encode", tool=tool, DISK_BROKEN_AT=str(broken_at))
            states.append(result["state"])
            if result["state"] == "done":  # only where the reading had come to its end
                bench.expect(abs(result["seconds"][0] - SECONDS) < 1, f"{extension}, read {broken_at}: {words(result)} {result['seconds']}")
        print(f"broken disk, {extension}: {', '.join(states)}")


PARTS = {"sources": sources, "outputs": outputs, "good": good, "full": full, "broken": broken}


def main():
    helper, disk, *names = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        bench = Bench(helper, disk, folder)
        for name in names or PARTS:
            PARTS[name](bench)
        print(f"{len(bench.faults)} faults")
        return 1 if bench.faults else 0


if __name__ == "__main__":
    sys.exit(main())
