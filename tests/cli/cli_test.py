#!/usr/bin/python3
"""cli_test.py BUNDLE: the converter's work without a window."""
import json
import os
import plistlib
import resource
import signal
import subprocess
import sys
import time
import unittest

from harness import Cli, make_clip, probe

BUNDLE = sys.argv.pop(1) if len(sys.argv) > 1 else ''


class CliTest(unittest.TestCase):
    def setUp(self):
        self.cli = Cli(BUNDLE)
        self.addCleanup(self.cli.close)
        self.out = self.cli.folder('out')
        self.clip = make_clip(self.cli.path('film.mkv'))

    def cut(self, name, share):
        """The film up to that share of its bytes."""
        path = self.cli.path(name)
        with open(self.clip, 'rb') as whole, open(path, 'wb') as part:
            part.write(whole.read()[:int(os.path.getsize(self.clip) * share)])
        return path

    def grey(self, path):
        """The first picture as 8 rows of 8 steps of grey."""
        raw = subprocess.run(['ffmpeg', '-v', 'error', '-i', path, '-frames:v', '1', '-vf', 'scale=8:8', '-pix_fmt', 'gray',
                              '-f', 'rawvideo', '-'], stdout=subprocess.PIPE, check=True).stdout
        return [raw[row * 8:row * 8 + 8] for row in range(8)]

    def assert_turned_right(self, path):
        source, turned = self.grey(self.clip), self.grey(path)
        apart = [sum(abs(turned[row][column] - source[y][x]) for row in range(8) for column in range(8) for y, x in [place(row, column)])
                 for place in (lambda row, column: (7 - column, row), lambda row, column: (column, 7 - row))]
        self.assertLess(apart[0] * 2, apart[1])

    def test_results_and_exit_status_tell_how_each_file_went(self):
        missing, cut = self.cli.path('none.mkv'), self.cut('cut.mkv', 0.6)
        # Results for programs are in English whatever the window speaks.
        with open(os.path.join(self.cli.folder('config/com.tarnwell.kestrel'), 'defaults.plist'), 'wb') as file:
            plistlib.dump({'AppleLanguages': ['de']}, file)
        status, results = self.cli.results('convert', '--preset', 'mp4-h264', '--to', self.out, self.clip)
        self.assertEqual((status, results[0]['state'], results[0]['problems']), (0, 'done', []))
        self.assertEqual(results[0]['outputs'], [os.path.join(self.out, 'film.mp4')])
        kinds = {each['codec_name'] for each in probe(results[0]['outputs'][0])['streams']}
        self.assertEqual(kinds, {'h264', 'aac'})

        status, results = self.cli.results('convert', '--to', self.out, self.clip, cut)
        self.assertEqual((status, [each['state'] for each in results]), (3, ['done', 'done-with-problems']))
        self.assertRegex(results[1]['problems'][0], r'^1\.\d of 2\.0 s could be read')
        self.assertEqual(results[0]['outputs'], [os.path.join(self.out, 'film (1).mp4')], 'written over')

        status, results = self.cli.results('convert', '--to', self.out, missing, cut)
        self.assertEqual(status, 1)
        self.assertEqual({each['source']: each['state'] for each in results}, {missing: 'failed', cut: 'done-with-problems'})
        self.assertTrue(all(not name.startswith('.') for name in os.listdir(self.out)), os.listdir(self.out))

        # Whose tracks nobody knows is not begun with all of them.
        status, results = self.cli.results('convert', '--audio', '1', '--to', self.out, missing)
        self.assertEqual((status, results[0]['state'], self.cli.run('jobs')[1][-1]['state']), (1, 'failed', 'unusable'))

        status, jobs, _ = self.cli.run('jobs')
        self.assertEqual((status, sorted(each['state'] for each in jobs)),
                         (0, ['done', 'done', 'done-with-problems', 'done-with-problems', 'failed', 'unusable']))

    def test_wrong_usage_is_one_sentence_and_makes_nothing(self):
        rows = [[], ['nonsense'], ['convert'], ['convert', '--preset', 'none', self.clip], ['convert', '--nonsense', self.clip],
                ['convert', '--to', self.cli.path('nowhere'), self.clip], ['convert', '--cut', '3-1', self.clip],
                ['convert', '--audio', '7', self.clip], ['presets', '--nonsense'], ['jobs', 'x']]
        for row in rows:
            with self.subTest(row):
                status, objects, errors = self.cli.run(*row)
                self.assertEqual((status, objects, errors.count('\n')), (2, [], 1), errors)
        self.assertEqual(self.cli.run('jobs')[1], [])

    def test_options_reach_the_file(self):
        make_clip(self.clip, 4)
        words = self.cli.path('a: b.srt')
        with open(words, 'w') as file:
            file.write('1\n00:00:00,500 --> 00:00:01,500\nOne\n')
        languages = lambda found: [each.get('tags', {}).get('language', 'und') for each in found['streams'] if each['codec_type'] == 'subtitle']
        with_words = self.cli.results('convert', '--preset', 'mkv-copy', '--to', self.out, '--subtitle-file', words, self.clip)[1][0]['outputs'][0]
        rows = [(['--cut', '1-2.5'], lambda found: self.assertAlmostEqual(float(found['format']['duration']), 1.5, delta=0.1)),
                (['--audio', '1'], lambda found: self.assertEqual(len(found['streams']), 2)),
                (['--audio', 'none'], lambda found: self.assertEqual(len(found['streams']), 1)),
                (['--subtitle-file', words, '--subtitle-file', words + ':fre'], lambda found: self.assertEqual(languages(found), ['und', 'fra'])),
                (['--subtitles', 'none', with_words], lambda found: self.assertEqual(languages(found), [])),
                (['--subtitle-languages', 'fr', with_words], lambda found: self.assertEqual(languages(found), [])),
                (['--turn', 'right'], lambda found: self.assert_turned_right(found['format']['filename'])),
                (['--size', '200k', '--no-copy'], lambda found: self.assertLessEqual(int(found['format']['size']), 200_000))]
        for options, check in rows:
            with self.subTest(options):
                sources = [] if with_words in options else [self.clip]
                status, results = self.cli.results('convert', '--to', self.out, *options, *sources)
                self.assertEqual((status, results[0]['state']), (0, 'done'), results)
                check(probe(results[0]['outputs'][0]))

    def test_a_signal_ends_it_at_once_and_leaves_nothing(self):
        make_clip(self.clip, 60)
        for number in (signal.SIGINT, signal.SIGTERM):
            with self.subTest(number):
                process = self.cli.start('--json', 'convert', '--no-copy', '--speed', '-2', '--to', self.out, *[self.clip] * 3)
                while b'"fraction"' not in process.stdout.readline():
                    pass
                process.send_signal(number)
                output, _ = process.communicate(timeout=20)
                self.assertEqual(process.returncode, 130)
                results = [each for each in map(json.loads, output.splitlines()) if each['event'] == 'result']
                self.assertEqual(sorted((each['job'], each['state']) for each in results),
                                 [(1, 'cancelled'), (2, 'cancelled'), (3, 'cancelled')])
                self.assertEqual(os.listdir(self.out), [])
        self.assertEqual([each['state'] for each in self.cli.run('jobs')[1]], ['cancelled'] * 6)

    def test_what_was_killed_is_interrupted_and_its_part_goes(self):
        make_clip(self.clip, 60)
        process = self.cli.start('--json', 'convert', '--no-copy', '--speed', '-2', '--to', self.out, self.clip)
        while b'"fraction"' not in process.stdout.readline():
            pass
        self.assertEqual((len(os.listdir(self.out)), len(os.listdir(self.cli.folder('tmp')))), (1, 1))
        work = os.path.join(self.cli.path('tmp'), os.listdir(self.cli.path('tmp'))[0])
        self.assertEqual(os.stat(work).st_mode & 0o77, 0, 'others can look into it')
        _, jobs, _ = self.cli.run('jobs')
        self.assertEqual([(each['state'], each['process']) for each in jobs], [('running', process.pid)])
        self.assertEqual([self.cli.run('jobs', verb, '1')[0] for verb in ('retry', 'clear')], [1, 1])
        process.kill()
        process.communicate()
        _, jobs, _ = self.cli.run('jobs')
        self.assertEqual([each['state'] for each in jobs], ['interrupted'])
        self.assertEqual((os.listdir(self.out), os.listdir(self.cli.folder('tmp'))), ([], []))
        until = time.monotonic() + 10
        while subprocess.run(['pgrep', '-f', self.clip], stdout=subprocess.DEVNULL).returncode == 0:
            self.assertLess(time.monotonic(), until, 'ffmpeg lives on')
            time.sleep(0.05)

    def test_jobs_are_run_again_and_cleared(self):
        other = self.cli.path('other.mkv')
        self.cli.results('convert', '--to', self.out, other, self.clip)
        os.rename(self.clip, other)
        self.assertEqual(self.cli.run('jobs', 'retry')[:2], (0, []), 'nothing was interrupted')
        status, results = self.cli.results('jobs', 'retry', '1')
        self.assertEqual((status, results[0]['outputs']), (0, [os.path.join(self.out, 'other.mp4')]))
        status, results = self.cli.results('jobs', 'retry', '2')
        self.assertEqual((status, results[0]['state']), (1, 'failed'))
        self.assertEqual([self.cli.run('jobs', 'clear', *which)[0] for which in ([], ['1'])], [0, 1])
        self.assertEqual([each['job'] for each in self.cli.run('jobs')[1]], [2])
        store = self.cli.path('data/Kestrel Converter 4K/jobs.sqlite')
        subprocess.run(['sqlite3', store, 'PRAGMA user_version = 9'], check=True)
        for verb in ([], ['retry'], ['clear', '2']):
            status, objects, errors = self.cli.run('jobs', *verb)
            self.assertEqual((status, objects, errors.count('\n')), (1, [], 1))
        self.assertEqual([name for name in os.listdir(os.path.dirname(store)) if 'damaged' in name], [])

    def test_what_cannot_be_written_is_told(self):
        with open('/dev/full', 'wb') as full:
            rows = [{'stdout': full}, {'preexec_fn': lambda: os.close(1)}]
            for options in rows:
                done = subprocess.run([self.cli.program, 'presets'], env=self.cli.environment, stderr=subprocess.PIPE, **options)
                self.assertEqual((done.returncode, done.stderr.count(b'\n')), (1, 1), done.stderr)
        make_clip(self.clip, 20)
        process = self.cli.start('--json', 'convert', '--no-copy', '--to', self.out, self.clip,
                                 preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (100_000, 100_000)))
        result = json.loads(process.communicate(timeout=60)[0].splitlines()[-1])
        self.assertEqual((process.returncode, result['state']), (1, 'failed'))
        self.assertRegex(result['problems'][0], 'cannot hold a file of this size')

    def test_a_folder_of_any_name_takes_results(self):
        out = os.fsencode(self.cli.home) + b'/\xff out'
        os.mkdir(out)
        status, results = self.cli.results('convert', '--to', out, self.clip)
        self.assertEqual((status, results[0]['state'], os.listdir(out)), (0, 'done', [b'film.mp4']))
        self.assertEqual([each['state'] for each in self.cli.run('jobs')[1]], ['done'])

    def test_presets_are_told_an_object_a_line(self):
        by_id = {each['id']: each for each in self.cli.run('presets', '--all')[1]}
        self.assertLess(len(self.cli.run('presets')[1]), len(by_id))
        self.assertEqual({key: by_id['mkv-h264'][key] for key in ('extension', 'video', 'audio')},
                         {'extension': 'mkv', 'video': 'h264', 'audio': 'aac'})
        self.assertEqual((by_id['mkv-copy']['video'], by_id['mp3']['video']), ('copy', None))


if __name__ == '__main__':
    unittest.main(verbosity=1)
