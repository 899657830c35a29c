#!/usr/bin/env python3
"""damaged_tables.py COUNT [SEED]: discinfo over as many discs with damaged tables; each must end in time, with one line of JSON and
within its memory."""

import concurrent.futures
import json
import os
import random
import resource
import shutil
import subprocess
import sys
import tempfile

TOOL = os.path.join(os.environ["KESTREL_DISC_TOOLS"], "discinfo")
TABLES = ("VIDEO_TS.IFO", "VTS_01_0.IFO")
SECONDS = 20
MEGABYTES = 256


def damaged(data, chance):
    data = bytearray(data)
    for _ in range(chance.choice((1, 2, 4, 16, 200))):
        at = chance.randrange(len(data))
        kind = chance.randrange(4)
        if kind == 0:
            data[at] = chance.randrange(256)
        elif kind == 1:
            data[at] ^= 1 << chance.randrange(8)
        elif kind == 2:
            data[at:at + 4] = chance.choice((b"\xff\xff\xff\xff", b"\0\0\0\0", b"\x7f\xff\xff\xff", b"\0\0\xff\xff"))
        else:
            size = chance.choice((2, 4, 8))
            other = chance.randrange(len(data))
            data[at:at + size] = data[other:other + size]
    if chance.random() < 0.05:
        del data[chance.randrange(len(data)):]
    return data


def try_one(number, originals, folder):
    """What went wrong, or None."""
    chance = random.Random(number)
    place = tempfile.mkdtemp(dir=folder)
    os.mkdir(os.path.join(place, "VIDEO_TS"))
    for name, data in originals.items():
        changed = damaged(data, chance) if chance.random() < 0.7 else data
        for ending in ("IFO", "BUP"):
            with open(os.path.join(place, "VIDEO_TS", name[:-3] + ending), "wb") as file:
                file.write(changed)
    with open(os.path.join(place, "VIDEO_TS", "VTS_01_1.VOB"), "wb") as file:
        file.truncate(1 << 20)
    try:
        done = subprocess.run([TOOL, place], capture_output=True, timeout=SECONDS)
        lines = [json.loads(line) for line in done.stdout.splitlines()]
        is_answer = len(lines) == 1 and ("titles" in lines[0]) == (done.returncode == 0)
        wrong = None if is_answer and done.returncode >= 0 else (done.returncode, done.stdout[:200])
    except (subprocess.TimeoutExpired, ValueError) as error:
        wrong = error
    shutil.rmtree(place)
    return wrong, done.returncode if not wrong else None


def main():
    count = int(sys.argv[1])
    first = int(sys.argv[2]) if len(sys.argv) > 2 else 0
    sources = [os.path.join(os.environ["KESTREL_DISCS"], disc, "VIDEO_TS") for disc in ("plain", "angles", "many", "steps")]
    discs = []
    for source in sources:
        originals = {}
        for name in TABLES:
            with open(os.path.join(source, name), "rb") as file:
                originals[name] = file.read()
        discs.append(originals)
    statuses, failures = {}, 0
    with tempfile.TemporaryDirectory() as folder, concurrent.futures.ThreadPoolExecutor(2) as workers:
        jobs = {number: workers.submit(try_one, number, discs[number % len(discs)], folder)
                for number in range(first, first + count)}
        for number, job in jobs.items():
            wrong, status = job.result()
            statuses[status] = statuses.get(status, 0) + 1
            if wrong:
                failures += 1
                print(f"seed {number}: {wrong}")
    usage = resource.getrusage(resource.RUSAGE_CHILDREN)  # the most that any of them took, and the time of all
    megabytes = usage.ru_maxrss // 1024
    print(f"{count} discs: exit statuses {statuses}, {megabytes} MB at most, {(usage.ru_utime + usage.ru_stime) * 1000 / count:.0f} ms each")
    return 1 if failures or megabytes > MEGABYTES else 0


if __name__ == "__main__":
    sys.exit(main())
