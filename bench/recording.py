#!/usr/bin/env python3
"""Recording beside ffmpeg by hand with the same encoder: processor seconds for a recorded second, pictures without one
of their own, sound's step, and the time from the signal to the finished file.

    recording.py BUNDLE [SECONDS]
"""
import os
import resource
import signal
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '../tests/plover'))
import recorded
import recorder_harness
import recording_test

SECONDS = int(sys.argv[2]) if len(sys.argv) > 2 else 20


def processor_seconds():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


class Bench(recording_test.RecordingTest):
    def by_hand(self, path, size):
        return subprocess.Popen(
            ['ffmpeg', '-nostdin', '-y', '-loglevel', 'error', '-thread_queue_size', '4096', '-f', 'pulse', '-i',
             '@DEFAULT_MONITOR@', '-thread_queue_size', '12', '-f', 'x11grab', '-framerate', '30', '-video_size',
             f'{size[0]}x{size[1]}', '-i', self.environment['DISPLAY'], '-map', '1', '-map', '0', '-c:v', 'libx264',
             '-preset', 'superfast', '-tune', 'zerolatency', '-crf', '23', '-g', '60', '-pix_fmt', 'yuv420p',
             '-fps_mode', 'cfr', '-r', '30', '-c:a', 'aac', '-b:a', '160k', '-movflags', '+faststart', path],
            env=self.environment)

    def measure(self, name, start, path_of):
        before = processor_seconds()
        process = start()
        time.sleep(SECONDS)
        process.send_signal(signal.SIGINT)
        stopped = time.monotonic()
        output = process.communicate()[0]
        ending = time.monotonic() - stopped
        used = processor_seconds() - before
        path = path_of(output)
        seconds = float(recorded.probe(path)['format']['duration'])
        clocks = recorded.clocks(path)
        own = len({clock for _, clock in clocks})
        steps = sorted(recorded.steps(path, [float(beep) for beep in self.logged()['beep']])) or [0]
        print(f'{name:24} {used / seconds:.3f} s/s  '
              f'{len(clocks) - own} of {len(clocks)} repeated  step {steps[len(steps) // 2] * 1000:+.0f} ms '
              f'({steps[0] * 1000:+.0f} to {steps[-1] * 1000:+.0f})  finished in {ending:.2f} s', flush=True)

    def runTest(self):
        for size in ((1280, 720), (1920, 1080)):
            with self.subTest(size):
                recorder_harness.SIZE = size
                self.display = self.start_display()
                self.show_scene(0, 0, *size)
                time.sleep(1)
                by_hand = os.path.join(self.home, f'{size[1]}.mov')
                self.measure(f'ffmpeg {size[1]}', lambda: self.by_hand(by_hand, size), lambda output: by_hand)
                self.measure(f'kestrel-cli {size[1]}',
                             lambda: subprocess.Popen([self.program, 'record', '--to', self.folder],
                                                      env=self.environment, stdout=subprocess.PIPE, text=True),
                             lambda output: output.strip().split('→ ')[-1])
                os.remove(self.log)


if __name__ == '__main__':
    Bench.program = os.path.join(os.path.abspath(sys.argv[1]), 'Contents/Helpers/kestrel-cli')
    bench = Bench()
    bench.setUp()
    try:
        bench.runTest()
    finally:
        bench.doCleanups()
