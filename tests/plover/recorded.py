"""Reads back what scene.py showed from a recording."""
import array
import json
import subprocess

from scene import BITS, CELL, COLUMNS, RATE

ROWS = 2 * BITS // COLUMNS


def probe(path):
    return json.loads(subprocess.run(
        ['ffprobe', '-v', 'error', '-of', 'json', '-show_streams', '-show_format', path], check=True,
        capture_output=True).stdout)


def colour(path, x, y):
    """Red, green, blue of the last picture there."""
    return subprocess.run(['ffmpeg', '-v', 'error', '-sseof', '-0.3', '-i', path, '-vf', f'crop=2:2:{x}:{y},scale=1:1',
                           '-frames:v', '1', '-pix_fmt', 'rgb24', '-f', 'rawvideo', '-'], check=True,
                          capture_output=True).stdout


def clocks(path, x=0, y=0):
    """(second of the file, second of the scene's clock) of each picture that shows one, whose window is at x, y."""
    size = (COLUMNS * CELL, ROWS * CELL)
    times = subprocess.run(['ffprobe', '-v', 'error', '-select_streams', 'v', '-show_entries', 'frame=pts_time', '-of',
                            'csv=p=0', path], check=True, capture_output=True, text=True).stdout.split()
    pictures = subprocess.run(['ffmpeg', '-v', 'error', '-i', path, '-vf',
                               f'crop={size[0]}:{size[1]}:{x}:{y}:exact=1,scale={COLUMNS}:{ROWS}:flags=area', '-fps_mode',
                               'passthrough', '-pix_fmt', 'gray', '-f', 'rawvideo', '-'], check=True,
                              capture_output=True).stdout
    bits = 2 * BITS
    found = []
    for number, second in enumerate(times):
        picture = pictures[number * bits:(number + 1) * bits]
        value = sum((shade > 128) << bit for bit, shade in enumerate(picture))
        milliseconds = value & (1 << BITS) - 1
        if value >> BITS == ~milliseconds & (1 << BITS) - 1:
            found.append((float(second.strip(',')), milliseconds / 1000))
    # On a busy machine the first picture comes late and stands for those before it.
    while len(found) > 1 and found[0][1] == found[1][1]:
        found.pop(0)
    return found


def beeps(path, track=0):
    """Seconds of the file at which the beeps begin."""
    first = float(subprocess.run(['ffprobe', '-v', 'error', '-select_streams', f'a:{track}', '-show_entries',
                                  'stream=start_time', '-of', 'csv=p=0', path], check=True, capture_output=True,
                                 text=True).stdout.strip().strip(','))
    samples = array.array('h', subprocess.run(
        ['ffmpeg', '-v', 'error', '-i', path, '-map', f'0:a:{track}', '-ac', '1', '-ar', str(RATE), '-f', 's16le', '-'],
        check=True, capture_output=True).stdout)
    found = []
    last = -RATE
    for at in range(0, len(samples), 24):
        if max(map(abs, samples[at:at + 24])) > 3000:
            if at - last > RATE // 4:
                found.append(first + at / RATE)
            last = at
    return found


def steps(path, logged, x=0, y=0):
    """By how many seconds the sound is late, for each beep of the recording, given when the scene says it played them."""
    pictures = clocks(path, x, y)
    # One that stands for a later one that was missed shows a clock of the past.
    fresh = [picture for last, picture in zip(pictures, pictures[1:]) if picture[1] != last[1]]
    result = []
    for second in beeps(path):
        near = min(fresh, key=lambda picture: abs(picture[0] - second))
        if abs(near[0] - second) > 0.1:
            continue
        # What the clock shows has been there for half a picture on the average.
        scene_time = near[1] + (second - near[0]) + 1 / 60
        beep = min(logged, key=lambda moment: abs(moment - scene_time))
        result.append(scene_time - beep)
    return result
