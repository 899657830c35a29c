"""Runs of kestrel-cli record, on a display and with a sound server of their own."""
import ctypes
import json
import os
import select
import shutil
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
        # On a busy machine pictures come late, which "dropped" tells.
        if self.result:
            self.result['problems'] = [text for text in self.result['problems'] if 'came too late' not in text]
        return self.process.wait(), self.result, errors

    def end(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        self.process.stdout.close()
        self.process.stderr.close()


class RecorderTestCase(unittest.TestCase):
    """A home, a display and a sound server of its own for each test."""
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

    def place(self, window, *geometry):
        x11 = ctypes.CDLL('libX11.so.6')
        x11.XOpenDisplay.restype = ctypes.c_void_p
        display = ctypes.c_void_p(x11.XOpenDisplay(self.environment['DISPLAY'].encode()))
        x11.XMoveResizeWindow(display, ctypes.c_ulong(int(window, 16)), *geometry)
        x11.XCloseDisplay(display)

    def resize_display(self, *size):
        x11, randr = ctypes.CDLL('libX11.so.6'), ctypes.CDLL('libXrandr.so.2')
        x11.XOpenDisplay.restype = ctypes.c_void_p
        x11.XDefaultRootWindow.restype = ctypes.c_ulong
        randr.XRRGetScreenResources.restype = ctypes.POINTER(ctypes.c_ulong)
        display = ctypes.c_void_p(x11.XOpenDisplay(self.environment['DISPLAY'].encode()))
        root = ctypes.c_ulong(x11.XDefaultRootWindow(display))
        resources = randr.XRRGetScreenResources(display, root)
        crtc = ctypes.cast(resources[3], ctypes.POINTER(ctypes.c_ulong))[0]
        nothing = ctypes.c_ulong(0)
        randr.XRRSetCrtcConfig(display, resources, ctypes.c_ulong(crtc), nothing, 0, 0, nothing, 1, None, 0)
        randr.XRRSetScreenSize(display, root, *size, *size)
        x11.XSync(display, 0)
        x11.XCloseDisplay(display)

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


def main():
    """The first argument is the bundle."""
    RecorderTestCase.bundle = sys.argv.pop(1)
    RecorderTestCase.program = os.path.join(RecorderTestCase.bundle, 'Contents/Helpers/kestrel-cli')
    unittest.main(verbosity=2)
