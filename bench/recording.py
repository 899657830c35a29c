#!/usr/bin/env python3
"""Recording beside ffmpeg by hand, SimpleScreenRecorder and OBS, those of them that are there, told the same encoder
and quality: processor seconds for a recorded second (and those until the last two record), pictures that repeat another
and those left out, sound's step, and the seconds from the word to stop to a file that plays: to the end of ffmpeg and
kestrel-cli, to the line in the log of the others.

    recording.py BUNDLE [SECONDS]

OBS composes its pictures with OpenGL, which on this display the processor does (llvmpipe): its row is unfair to it, as
it says nothing of a machine whose graphics card does that.
"""
import glob
import os
import shutil
import signal
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '../tests/plover'))
import recorded
import recorder_harness
import recording_test
from recorder_harness import wait_for
from recorders import SETTINGS

SECONDS = int(sys.argv[2]) if len(sys.argv) > 2 else 20
# Nothing is looked for on the network, no session bus is started.
ALONE = {'https_proxy': 'http://127.0.0.1:9', 'DBUS_SESSION_BUS_ADDRESS': 'disabled:'}


def processor_seconds(process):
    """Those of a process and of its children that have ended."""
    with open(f'/proc/{process.pid}/stat') as file:
        return sum(map(int, file.read().rpartition(')')[2].split()[11:15])) / os.sysconf('SC_CLK_TCK')


class Bench(recording_test.RecordingTest):
    def begin(self, *command):
        process = subprocess.Popen(command, env={**self.environment, **ALONE}, stdin=subprocess.PIPE, text=True,
                                   bufsize=1, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(lambda: (process.kill(), process.communicate()))
        return process

    def files(self, pattern='out/*'):
        return glob.glob(os.path.join(self.home, pattern))

    def begin_by_hand(self, size):
        return self.begin(
            'ffmpeg', '-nostdin', '-y', '-loglevel', 'error', '-thread_queue_size', '4096', '-f', 'pulse', '-i',
            '@DEFAULT_MONITOR@', '-thread_queue_size', '12', '-f', 'x11grab', '-framerate', '30', '-video_size',
            f'{size[0]}x{size[1]}', '-i', self.environment['DISPLAY'], '-map', '1', '-map', '0', '-c:v', 'libx264',
            '-preset', 'superfast', '-tune', 'zerolatency', '-crf', '23', '-g', '60', '-pix_fmt', 'yuv420p',
            '-fps_mode', 'cfr', '-r', '30', '-c:a', 'aac', '-b:a', '160k', '-movflags', '+faststart',
            os.path.join(self.folder, 'film.mov'))

    def begin_kestrel(self, _):
        return self.begin(self.program, 'record', '--to', self.folder)

    def stop_by_signal(self, process):
        process.send_signal(signal.SIGINT)
        os.waitid(os.P_PID, process.pid, os.WEXITED | os.WNOWAIT)  # its processor seconds are still to be read

    def begin_simple_screen_recorder(self, size):
        process = self.begin('simplescreenrecorder', f'--settingsfile={self.home}/ssr.conf',
                             f'--logfile={self.home}/ssr-{size[1]}.log', '--no-systray', '--start-hidden',
                             '--start-recording')
        wait_for(self.files, 'SimpleScreenRecorder')
        return process

    def stop_simple_screen_recorder(self, process):
        process.stdin.write('record-save\n')
        self.wait_for_line('ssr-*.log', 'Stopped page')

    def end_simple_screen_recorder(self, process):
        process.stdin.write('quit\n')

    def begin_obs(self, _):
        process = self.begin('obs', '--startrecording', '--minimize-to-tray', '--multi')
        wait_for(self.files, 'OBS')
        # Where there is no tray its window stays, in front of what is recorded.
        self.xdotool('search', '--sync', '--onlyvisible', '--class', 'obs', 'windowunmap', '%@')
        return process

    def stop_obs(self, _):
        self.xdotool('keydown', 'F9', 'sleep', '0.1', 'keyup', 'F9')
        self.wait_for_line('.config/obs-studio/logs/*', '== Recording Stop')

    def end_obs(self, process):
        process.send_signal(signal.SIGINT)

    def wait_for_line(self, log, words):
        def is_there():
            with open(max(self.files(log), key=os.path.getmtime)) as file:
                return words in file.read()
        wait_for(is_there, words)

    def xdotool(self, *command):
        subprocess.run(['xdotool', *command], env=self.environment, stdout=subprocess.DEVNULL, check=True)

    PROGRAMS = (  # how each begins, stops recording and, once what it took has been read, ends
        ('ffmpeg', begin_by_hand, stop_by_signal, None),
        ('kestrel-cli', begin_kestrel, stop_by_signal, None),
        ('simplescreenrecorder', begin_simple_screen_recorder, stop_simple_screen_recorder, end_simple_screen_recorder),
        ('obs', begin_obs, stop_obs, end_obs),
    )

    def measure(self, begin, stop, end, size):
        for name, text in SETTINGS.items():
            path = os.path.join(self.home, name)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, 'w') as file:
                file.write(text % {'folder': self.folder, 'width': size[0], 'height': size[1]})
        process = begin(self, size)
        before = processor_seconds(process)
        time.sleep(SECONDS)
        asked = time.monotonic()
        stop(self, process)
        ending = time.monotonic() - asked
        used = processor_seconds(process) - before
        if end:
            end(self, process)
        process.wait(30)
        path, = self.files()
        told = recorded.probe(path)
        seconds = float(told['format']['duration'])
        video = next(stream for stream in told['streams'] if stream['codec_type'] == 'video')
        left_out = max(0, round(float(video['duration']) * 30) - int(video['nb_frames']))
        clocks = recorded.clocks(path)
        again = len(clocks) - len({clock for _, clock in clocks})
        steps = sorted(recorded.steps(path, [float(beep) for beep in self.logged()['beep']])) or [0]
        os.remove(path)
        return (f'{used / seconds:.3f} s/s (+ {before:.1f} s)  {again} of {len(clocks)} repeated, {left_out} left out  '
                f'step {steps[len(steps) // 2] * 1000:+.0f} ms ({steps[0] * 1000:+.0f} to {steps[-1] * 1000:+.0f})  '
                f'plays after {ending:.2f} s')

    def runTest(self):
        for size in ((1280, 720), (1920, 1080)):
            recorder_harness.SIZE = size
            self.display = self.start_display()
            self.show_scene(0, 0, *size)
            time.sleep(1)
            for name, *how in self.PROGRAMS:
                is_there = shutil.which(self.program if name == 'kestrel-cli' else name)
                print(f'{name:21} {size[1]:4}', self.measure(*how, size) if is_there else 'not there', flush=True)
            os.remove(self.log)


if __name__ == '__main__':
    Bench.program = os.path.join(os.path.abspath(sys.argv[1]), 'Contents/Helpers/kestrel-cli')
    bench = Bench()
    bench.setUp()
    try:
        bench.runTest()
    finally:
        bench.doCleanups()
