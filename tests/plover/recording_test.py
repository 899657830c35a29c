"""kestrel-cli record on a display and with a sound server of its own.

    recording_test.py BUNDLE [TEST…]
"""
import os
import shutil
import signal
import time

import recorded
from recorder_harness import SIZE, RecorderTestCase, main


class RecordingTest(RecorderTestCase):
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
                                       (['--with-camera', 'lavfi:color=red:s=320x240:r=15', '--camera-place',
                                         '0.75,0.75,0.25'], SIZE, (200, 100)),
                                       (['--screen', 'screen'], SIZE, (200, 100))):
            with self.subTest(arguments):
                path, _ = self.recorded('--seconds', '2', '--sound', 'none', '--rate', '15', '--format', 'mp4',
                                        *arguments)
                video, = recorded.probe(path)['streams']
                self.assertEqual((video['width'], video['height'], video['r_frame_rate']), (*size, '15/1'))
                self.assert_in_order(recorded.clocks(path, *place), 2)
                red, green, blue = recorded.colour(path, SIZE[0] - 20, SIZE[1] - 20) if size == SIZE else (0, 0, 0)
                self.assertEqual(red > 200 and green < 60 and blue < 60, '--with-camera' in arguments)
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

    def test_what_changes_its_size_or_place(self):
        self.show_scene(200, 100, 640, 360)
        window = self.logged()['window'][0]
        for arguments, size, change in ((['--window', window], (640, 360), lambda: self.place(window, 200, 100, 600, 300)),
                                        (['--window', window], (600, 300), lambda: self.place(window, 900, 100, 600, 300)),
                                        ([], SIZE, lambda: self.resize_display(1024, 600))):
            with self.subTest(arguments):
                recording = self.record(*arguments)
                recording.wait_for_seconds(1.5)
                change()
                recording.wait_for_seconds(4)
                recording.send(signal.SIGINT)
                status, result, errors = recording.finish()
                self.assertEqual((status, result['problems']), (0, []), errors)
                path, = result['outputs']
                video, audio = recorded.probe(path)['streams']
                self.assertEqual((video['width'], video['height']), size)
                self.assertAlmostEqual(float(video['duration']), float(audio['duration']), delta=0.5)
                if size == (600, 300):  # the half of it that is on the screen, in the middle
                    self.assertGreater(recorded.clocks(path, 110, 0)[-1][0], 3)
                os.remove(path)

    def test_a_sound_server_that_goes(self):
        self.show_scene()
        recording = self.record()
        recording.wait_for_seconds(3)
        self.sound_server.kill()
        recording.wait_for_seconds(6)
        self.sound_server.wait()
        shutil.rmtree(os.path.join(self.environment['XDG_RUNTIME_DIR'], 'pulse'))
        self.start_sound_server()
        recording.wait_for_seconds(15)
        recording.send(signal.SIGINT)
        status, result, errors = recording.finish()
        self.assertEqual((status, result['state']), (3, 'done-with-problems'), errors)
        self.assertIn('was away for a while', result['problems'][0])
        clocks = recorded.clocks(result['outputs'][0])
        self.assertGreater(clocks[-1][1] - clocks[0][1], 5)


if __name__ == '__main__':
    main()
