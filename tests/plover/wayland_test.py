"""kestrel-cli record in a session of Wayland: a stand-in portal on a bus of its own, with the system's real PipeWire.

    wayland_test.py BUNDLE FRAME_SOURCE [TEST…]
"""
import json
import os
import signal
import subprocess
import sys
import time

import recorded
from recorder_harness import HERE, SIZE, RecorderTestCase, main, wait_for


class WaylandTest(RecorderTestCase):
    source_program = None

    def start_display(self):
        """The bus, PipeWire and a screen of its."""
        self.environment['WAYLAND_DISPLAY'] = 'wayland-0'
        bus = self.spawn('dbus-daemon', '--session', '--nofork', '--print-address', stdout=subprocess.PIPE, text=True)
        self.environment['DBUS_SESSION_BUS_ADDRESS'] = bus.stdout.readline().strip()
        bus.stdout.close()
        self.calls = os.path.join(self.home, 'calls')
        self.pipewire = self.spawn('pipewire')
        wait_for(lambda: os.path.exists(os.path.join(self.environment['XDG_RUNTIME_DIR'], 'pipewire-0')), 'PipeWire')
        self.spawn('wireplumber')
        self.begin = time.time()
        self.source = self.spawn(self.source_program, *map(str, SIZE), '30', str(self.begin), '900', '721',
                                 stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.addCleanup(self.source.stdin.close)
        self.addCleanup(self.source.stdout.close)
        self.node = self.source.stdout.readline().strip()
        return self.source

    def start_portal(self, *manner):
        portal = self.spawn('/usr/bin/python3', os.path.join(HERE, 'portal.py'), self.node, self.calls, *manner,
                            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.addCleanup(portal.stdin.close)
        self.addCleanup(portal.stdout.close)
        self.assertEqual(portal.stdout.readline(), 'ready\n')
        return portal

    def options(self, name):
        """Those of each call of that name."""
        with open(self.calls) as file:
            return [options for called, options in map(json.loads, file) if called == name]

    def finish_well(self, recording):
        status, result, errors = recording.finish()
        self.assertEqual((status, result['state'], result['problems']), (0, 'done', []), errors)
        self.assert_only(*result['outputs'])
        return result['outputs'][0]

    def assert_shows_the_clock(self, path, seconds):
        """Every picture is there in its order, and none is older than two of the screen's when it is shown."""
        clocks = recorded.clocks(path)
        self.assert_in_order(clocks, seconds)
        lags = [second - clock for second, clock in clocks]
        self.assertLess(sorted(lags)[len(lags) * 9 // 10] - lags[0], 2 / 30)

    def test_what_the_desktop_shares(self):
        self.start_portal()
        path, result = self.recorded('--seconds', '5', '--sound', 'none', '--no-pointer')
        video, = recorded.probe(path)['streams']
        self.assertEqual((video['codec_name'], video['width'], video['height'], video['r_frame_rate']),
                         ('h264', *SIZE, '30/1'))
        self.assertAlmostEqual(float(video['duration']), 5, delta=0.3)
        self.assert_shows_the_clock(path, 5)
        self.assertLess(result['dropped'], 75)
        os.remove(path)
        # The choice is kept for the next time, each token for once; `--portal` asks anew.
        self.recorded('--seconds', '1', '--sound', 'none')
        os.remove(os.path.join(self.folder, os.listdir(self.folder)[0]))
        self.recorded('--seconds', '1', '--sound', 'none', '--portal')
        selections = self.options('SelectSources')
        self.assertEqual([options.get('restore_token') for options in selections], [None, 'token 1', None])
        self.assertEqual([options['cursor_mode'] for options in selections], [1, 2, 2])
        self.assertEqual([options['persist_mode'] for options in selections], [2] * 3)

    def test_sound_is_in_step(self):
        beeps = self.spawn(sys.executable, os.path.join(HERE, 'scene.py'), self.log, '--only-beeps', str(self.begin),
                           stdin=subprocess.PIPE)
        self.addCleanup(beeps.stdin.close)
        self.start_portal()
        path, _ = self.recorded('--seconds', '6')
        steps = recorded.steps(path, [float(second) for second in self.logged()['beep']])
        self.assertLess(abs(sorted(steps)[len(steps) // 2]), 2 / 30, steps)

    def test_a_screen_that_stands_still_and_changes_its_size(self):
        self.start_portal()
        recording = self.record('--sound', 'none')
        recording.wait_for_seconds(1)
        self.source.send_signal(signal.SIGUSR1)
        recording.wait_for_seconds(2.5)
        self.source.send_signal(signal.SIGUSR2)
        recording.wait_for_seconds(4.5)
        recording.send(signal.SIGINT)
        path = self.finish_well(recording)
        video, = recorded.probe(path)['streams']
        self.assertEqual((video['width'], video['height']), SIZE)
        self.assertGreater(float(video['duration']), 4.4)
        # Between black bars: 721 lines have become 720.
        bar, picture = (subprocess.run(
            ['ffmpeg', '-v', 'error', '-sseof', '-1', '-i', path, '-frames:v', '1', '-vf', f'crop=8:8:{x}:600', '-pix_fmt',
             'gray', '-f', 'rawvideo', '-'], check=True, capture_output=True).stdout for x in (20, 640))
        self.assertLess(max(bar), 24)
        self.assertGreater(min(picture), 40)

    def child(self, recording, name):
        return int(subprocess.run(['pgrep', '-P', str(recording.process.pid), name], check=True, capture_output=True,
                                  text=True).stdout)

    def test_it_goes_on_in_another_stretch(self):
        self.start_portal()
        recording = self.record('--sound', 'none')
        recording.wait_for_seconds(2)
        os.kill(self.child(recording, 'ffmpeg'), signal.SIGKILL)
        recording.wait_for_seconds(4)
        recording.send(signal.SIGINT)
        path = self.finish_well(recording)
        self.assertEqual([len(self.options(name)) for name in ('Start', 'OpenPipeWireRemote')], [1, 2])
        clocks = recorded.clocks(path)
        self.assertEqual(clocks, sorted(clocks))
        self.assertGreater(clocks[-1][1] - clocks[0][1], 3.5)

    def test_a_snapshot_is_what_is_seen(self):
        self.start_portal()
        recording = self.record('--sound', 'none')
        recording.wait_for_seconds(1)
        tool = self.child(recording, 'screenFrames')
        with open(f'/proc/{tool}/cmdline') as file:
            arguments = file.read().split('\0')
        snapshot = arguments[arguments.index('--snapshot') + 1]
        os.kill(tool, signal.SIGUSR1)
        wait_for(lambda: os.path.exists(snapshot), 'the snapshot')
        with open(snapshot, 'rb') as file:
            picture = file.read()
        head = b'P6\n%d %d\n255\n' % SIZE
        self.assertTrue(picture.startswith(head))
        self.assertEqual((len(picture), picture[-3:]), (len(head) + SIZE[0] * SIZE[1] * 3, b'\x20\x40\x60'))
        recording.send(signal.SIGINT)
        self.finish_well(recording)

    def test_what_ends_it(self):
        portal = self.start_portal()
        for name, end in (('the desktop', lambda: (portal.stdin.write('close\n'), portal.stdin.flush())),
                          ('the screen', lambda: self.source.stdin.close())):
            with self.subTest(name):
                recording = self.record('--sound', 'system')
                recording.wait_for_seconds(1.5)
                end()
                path = self.finish_well(recording)
                self.assertGreater(float(recorded.probe(path)['format']['duration']), 1.3)
                os.remove(path)
            if name == 'the desktop':
                portal.wait()
                self.start_portal()

    def test_without_a_choice(self):
        for manner, outcome, words in (('refuse', 'cancelled', None), (None, 'failed', 'portal')):
            with self.subTest(manner):
                portal = self.start_portal(manner) if manner else None
                status, result, errors = self.record('--sound', 'none').finish()
                self.assertEqual(result['state'], outcome, errors)
                self.assertNotEqual(status, 0)
                if words:
                    self.assertIn(words, result['problems'][0])
                if portal:
                    portal.stdin.write('end\n')
                    portal.stdin.flush()
                    portal.wait()
        os.remove(self.calls)
        self.start_portal('silent')
        recording = self.record()
        wait_for(lambda: os.path.getsize(self.calls) and self.options('Start'), 'the dialog')
        recording.send(signal.SIGINT)
        self.assertEqual(recording.finish()[1]['state'], 'cancelled')
        self.assert_only()

    def test_the_permission_library_tells_of_the_portal(self):
        ask = ('import ctypes, sys, threading; library = ctypes.CDLL(sys.argv[1]); told = threading.Event();\n'
               'answer = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_int)(lambda _, granted: (print(granted), told.set()))\n'
               'for kind in b"soun", b"vide": print(library.GetAuthorizationStatus(kind, None))\n'
               'library.AuthorDevice(b"vide", answer, None); told.wait(60)')
        library = os.path.join(self.bundle, 'Contents/Frameworks/libCapturePermission.dylib')
        for is_there in (False, True):
            if is_there:
                self.start_portal()
            told = subprocess.run([sys.executable, '-c', ask, library], env=self.environment, check=True,
                                  capture_output=True, text=True).stdout.split()
            self.assertEqual(told, ['3', '0', str(int(is_there))])

    def test_pipewire_goes(self):
        self.start_portal()
        recording = self.record('--sound', 'none')
        recording.wait_for_seconds(2)
        self.pipewire.kill()
        status, result, errors = recording.finish()
        self.assertEqual((status, result['state']), (3, 'done-with-problems'), errors)
        self.assert_in_order(recorded.clocks(result['outputs'][0]), 1.5)


if __name__ == '__main__':
    WaylandTest.source_program = sys.argv.pop(2)
    main()
