#!/usr/bin/python3
"""convert.py BUNDLE [ROUNDS]: ten files through kestrel-cli against the same ffmpeg by hand, in turns; prints both medians and how they
compare with 1.02 times the time by hand and 0.2 s a job."""
import os
import statistics
import subprocess
import sys
import tempfile
import time

FILES = 10


def timed(command, environment):
    started = time.monotonic()
    subprocess.run(command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
    return time.monotonic() - started


def main():
    bundle, rounds = sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 5
    with tempfile.TemporaryDirectory() as home:
        environment = {**os.environ, 'HOME': home, **{f'XDG_{each}_HOME': os.path.join(home, each) for each in ('DATA', 'CONFIG', 'STATE')}}
        clips = [os.path.join(home, f'{number}.mkv') for number in range(FILES)]
        for clip in clips:
            subprocess.run(['ffmpeg', '-v', 'error', '-f', 'lavfi', '-i', 'testsrc2=s=640x360:r=25:d=10', '-f', 'lavfi', '-i', 'sine=d=10',
                            '-c:v', 'libx264', '-preset', 'ultrafast', '-c:a', 'aac', clip], check=True, stdin=subprocess.DEVNULL)
        by_hand, by_kestrel = [], []
        for number in range(rounds):
            out = os.path.join(home, f'out{number}')
            os.mkdir(out)
            by_hand.append(sum(timed(['ffmpeg', '-v', 'error', '-y', '-i', clip, '-c:v', 'libx264', '-preset', 'medium', '-crf', '21',
                                      '-c:a', 'aac', '-b:a', '80k', '-movflags', '+faststart', os.path.join(home, 'hand.mp4')], environment)
                               for clip in clips))
            by_kestrel.append(timed([os.path.join(bundle, 'Contents/Helpers/kestrel-cli'), 'convert', '--no-copy', '--to', out, *clips],
                                    environment))
        hand, kestrel = statistics.median(by_hand), statistics.median(by_kestrel)
        limit = 1.02 * hand + 0.2 * FILES
        print(f'by hand {hand:.2f} s, kestrel-cli {kestrel:.2f} s, {"within" if kestrel <= limit else "over"} {limit:.2f} s')


if __name__ == '__main__':
    main()
