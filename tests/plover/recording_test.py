"""kestrel-cli record on a display and with a sound server of its own.

    recording_test.py BUNDLE [TEST…]
"""
import glob
import json
import os
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

import recorded

HERE = os.path.dirname(os.path.abspath(__file__))
SIZE = (1280, 720)


def wait_for(condition, what, patience=60):
    end = time.monotonic() + patience
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    raise AssertionError(f'waited in vain for {what}')


class Recording:
    """A run of kestrel-cli record, whose results are read as they come."""

    def __init__(self, test, *arguments):
        self.process = subprocess.Popen([test.program, '--json', 'record', *arguments], env=test.environment,
                                        stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        test.addCleanup(self.end)
        self.seconds = 0
        self.result = None

    def read(self, patience=60):
        """One line; False at the end."""
        ready, _, _ = select.select([self.process.stdout], [], [], patience)
        line = self.process.stdout.readline() if ready else ''
        if not line:
            return False
        told = json.loads(line)
        if told['event'] == 'progress':
            self.seconds = told['seconds']
        else:
            self.result = told
        return True

    def wait_for_seconds(self, seconds):
        while self.seconds < seconds and self.result is None and self.read():
            pass
        assert self.seconds >= seconds, (self.seconds, self.result, self.process.poll())

    def send(self, number):
        self.process.send_signal(number)

    def finish(self):
        while self.read():
            pass
        errors = self.process.stderr.read()
        return self.process.wait(), self.result, errors

    def end(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        self.process.stdout.close()
        self.process.stderr.close()


class RecordingTest(unittest.TestCase):
    program = None

    def setUp(self):
        self.home = tempfile.mkdtemp(prefix='recording-')
        self.addCleanup(shutil.rmtree, self.home, True)
        self.folder = os.path.join(self.home, 'out')
        runtime = os.path.join(self.home, 'run')
        for folder in (self.folder, runtime):
            os.mkdir(folder, 0o700)
        self.environment = {name: value for name, value in os.environ.items()
                            if name in ('PATH', 'LANG') or name.startswith('LD_')}
        self.environment.update(HOME=self.home, XDG_RUNTIME_DIR=runtime)
        self.display = self.start_display()
        self.sound_server = self.start_sound_server()
        self.log = os.path.join(self.home, 'scene.log')

    def spawn(self, *command, **options):
        process = subprocess.Popen(command, env=self.environment, stderr=subprocess.DEVNULL, **options)
        self.addCleanup(lambda: (process.kill(), process.wait()))
        return process

    def start_display(self):
        read, write = os.pipe()
        server = self.spawn('Xvfb', '-displayfd', str(write), '-screen', '0', f'{SIZE[0]}x{SIZE[1]}x24', '-nolisten',
                            'tcp', pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as number:
            self.environment['DISPLAY'] = ':' + number.readline().strip()
        return server

    def start_sound_server(self):
        server = self.spawn('pulseaudio', '-n', '--daemonize=no', '--exit-idle-time=-1', '--use-pid-file=no',
                            '--load=module-native-protocol-unix', '--load=module-null-sink sink_name=out',
                            stdout=subprocess.DEVNULL)
        wait_for(lambda: os.path.exists(os.path.join(self.environment['XDG_RUNTIME_DIR'], 'pulse/native')),
                 'the sound server')
        return server

    def show_scene(self, *place):
        scene = self.spawn(sys.executable, os.path.join(HERE, 'scene.py'), self.log, *map(str, place),
                           stdin=subprocess.PIPE)
        self.addCleanup(scene.stdin.close)
        wait_for(lambda: 'window' in self.logged(), 'the test window')
        return scene

    def logged(self):
        words = {}
        if os.path.exists(self.log):
            with open(self.log) as file:
                for line in file:
                    if line.endswith('\n'):
                        name, value = line.split()
                        words.setdefault(name, []).append(value)
        return words

    def record(self, *arguments):
        return Recording(self, '--to', self.folder, *arguments)

    def recorded(self, *arguments, signal_after=None):
        """The path and the result of a recording that went well."""
        recording = self.record(*arguments)
        if signal_after:
            recording.wait_for_seconds(signal_after[0])
            recording.send(signal_after[1])
        status, result, errors = recording.finish()
        self.assertEqual((status, result['state'], result['problems']), (0, 'done', []), errors)
        self.assert_only(*result['outputs'])
        return result['outputs'][0], result

    def assert_only(self, *paths):
        self.assertEqual(sorted(os.path.join(self.folder, name) for name in os.listdir(self.folder)), sorted(paths))

    def assert_in_order(self, clocks, seconds):
        """The scene's clock runs as the file's does, throughout."""
        self.assertGreater(len(clocks), seconds * 10)
        last = clocks[0]
        for second, clock in clocks:
            self.assertGreaterEqual(clock, last[1])
            last = second, clock
        self.assertAlmostEqual(clocks[-1][1] - clocks[0][1], clocks[-1][0] - clocks[0][0], delta=0.25)

    def test_picture_and_sound_of_the_computer(self):
        self.show_scene()
        path, result = self.recorded('--seconds', '6')
        self.assertIsInstance(result['dropped'], int)
        self.assertTrue(path.endswith('.mov'))
        told = recorded.probe(path)
        video, audio = told['streams']
        self.assertEqual((video['codec_name'], video['width'], video['height'], video['r_frame_rate'], video['pix_fmt']),
                         ('h264', *SIZE, '30/1', 'yuv420p'))
        self.assertEqual(audio['codec_name'], 'aac')
        self.assertAlmostEqual(float(told['format']['duration']), 6, delta=0.3)
        self.assert_in_order(recorded.clocks(path), 6)
        steps = recorded.steps(path, [float(second) for second in self.logged()['beep']])
        # Two pictures, because one may stand in the place of its neighbour on a busy machine.
        self.assertLess(abs(sorted(steps)[len(steps) // 2]), 2 / 30, steps)

    def test_what_is_recorded(self):
        self.show_scene(200, 100, 640, 360)
        window = self.logged()['window'][0]
        for arguments, size, place in ((['--window', window], (640, 360), (0, 0)),
                                       (['--area', '190,90,401,301'], (400, 300), (10, 10)),
                                       (['--screen', 'screen'], SIZE, (200, 100))):
            with self.subTest(arguments):
                path, _ = self.recorded('--seconds', '2', '--sound', 'none', '--rate', '15', '--format', 'mp4',
                                        *arguments)
                video, = recorded.probe(path)['streams']
                self.assertEqual((video['width'], video['height'], video['r_frame_rate']), (*size, '15/1'))
                self.assert_in_order(recorded.clocks(path, *place), 2)
                os.remove(path)

    def test_signals_end_it_well(self):
        for number in (signal.SIGINT, signal.SIGTERM):
            with self.subTest(number):
                path, _ = self.recorded('--sound', 'both', '--separate-tracks', signal_after=(2, number))
                self.assertEqual([stream['codec_name'] for stream in recorded.probe(path)['streams']],
                                 ['h264', 'aac', 'aac'])
                self.assertGreater(float(recorded.probe(path)['format']['duration']), 1.9)
                os.remove(path)

    def test_what_cannot_be_recorded(self):
        for arguments, sentence in ((['--screen', 'HDMI-7'], 'There is no screen "HDMI-7"'),
                                    (['--window', '0x123'], 'There is no window'),
                                    (['--area', '5000,10,100,100'], 'outside the screen')):
            status, result, _ = self.record(*arguments).finish()
            self.assertEqual((status, result['state']), (1, 'failed'))
            self.assertIn(sentence, result['problems'][0])
        del self.environment['DISPLAY']
        self.environment['WAYLAND_DISPLAY'] = 'wayland-0'
        self.assertIn('Wayland', self.record().finish()[1]['problems'][0])
        self.assertEqual(self.record('--area', '1,2,3').finish()[0], 2)
        self.assert_only()

    def test_killed_in_the_middle(self):
        self.show_scene()
        recording = self.record()
        recording.wait_for_seconds(5)
        killed_at = time.time()
        recording.send(signal.SIGKILL)
        told = recording.seconds
        recording.finish()
        status, _, errors = self.record('--seconds', '1').finish()
        self.assertEqual(status, 0)
        self.assertIn('was recovered', errors)
        path = errors.strip().split(': ')[-1]
        self.assertGreater(float(recorded.probe(path)['format']['duration']), told - 1, killed_at)
        self.assert_in_order(recorded.clocks(path), told - 1)
        self.assertEqual(len(os.listdir(self.folder)), 2)

    def test_a_display_that_goes(self):
        self.show_scene()
        recording = self.record()
        recording.wait_for_seconds(3)
        self.display.kill()
        status, result, errors = recording.finish()
        self.assertEqual((status, result['state']), (3, 'done-with-problems'), errors)
        self.assert_in_order(recorded.clocks(result['outputs'][0]), 2)
        self.assert_only(*result['outputs'])

    def test_a_sound_server_that_goes(self):
        self.show_scene()
        recording = self.record()
        recording.wait_for_seconds(3)
        self.sound_server.kill()
        recording.wait_for_seconds(6)
        recording.send(signal.SIGINT)
        status, result, errors = recording.finish()
        self.assertEqual((status, result['state']), (3, 'done-with-problems'), errors)
        self.assertIn('sound', result['problems'][0])
        clocks = recorded.clocks(result['outputs'][0])
        self.assertGreater(clocks[-1][1] - clocks[0][1], 5)


if __name__ == '__main__':
    RecordingTest.program = os.path.join(sys.argv.pop(1), 'Contents/Helpers/kestrel-cli')
    unittest.main(verbosity=2)
