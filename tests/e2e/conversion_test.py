"""From a film on the disk to a converted one, by mouse and by keys."""
import json
import os
import re
import subprocess

from accessible import states, value_of, wait_for
from harness import ProgramTest, main
from material import make_clip


def probe(path):
    """Kinds of streams and the duration in seconds."""
    answer = json.loads(subprocess.run(['ffprobe', '-v', 'error', '-of', 'json', '-show_streams', '-show_format', path],
                                       check=True, capture_output=True).stdout)
    return sorted(stream['codec_type'] for stream in answer['streams']), float(answer['format']['duration'])


class ConversionTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.library = os.path.join(self.desktop.home, 'Movies/Mac Video Library')

    def clip(self, name, **options):
        return make_clip(os.path.join(self.desktop.home, name), **options)

    def hand_over(self, *files):
        """As a file manager does while the program runs."""
        self.assertEqual(self.desktop.launch(self.bundle, *files).wait_for_end(), 0)

    def finished(self, *names):
        wait_for(lambda: sorted(name for name in os.listdir(self.library) if not name.startswith('.')) == sorted(names),
                 f'{names} in {os.listdir(self.library)}', patience=60)

    def test_converts_without_overwriting(self):
        clip = self.clip('a film.mkv', seconds=8, size='1280x720')
        app = self.launch()
        self.click(app, 'push button', 'Video Converter')
        app.wait_for_window('Kestrel 4K - Video Converter')
        self.hand_over(clip)
        self.click(app, 'push button', 'Convert')
        bar = app.find('progress bar')
        wait_for(lambda: value_of(bar) > 0, 'the progress to move')
        self.finished('a film.mp4')
        streams, duration = probe(os.path.join(self.library, 'a film.mp4'))
        self.assertEqual(streams, ['audio', 'video'])
        self.assertAlmostEqual(duration, 8, delta=0.2)
        with open(os.path.join(self.library, 'a film.mp4'), 'rb') as file:
            first = file.read()

        app.find('list item', re.compile('a film.mkv.*Done'))
        wait_for(lambda: not [text for text in app.texts() if 'to go' in text], 'what is to go to be gone')
        self.click(app, 'push button', 'Clear')
        self.hand_over(clip)
        self.click(app, 'push button', 'Convert')
        self.finished('a film.mp4', 'a film (1).mp4')
        with open(os.path.join(self.library, 'a film.mp4'), 'rb') as file:
            self.assertEqual(file.read(), first)

    def test_goes_on_while_another_window_is_open(self):
        app = self.launch(self.clip('long.mp4', seconds=40, size='640x360'))
        app.find('list item', re.compile('long.mp4.*Ready'))
        self.desktop.key('ctrl+Return')
        app.find('progress bar')
        self.click(app, 'push button', 'Back')
        app.find('push button', 'Recorder')
        self.finished('long.mp4')

    def test_options_and_cuts_by_keyboard(self):
        app = self.launch(self.clip('film.mkv', seconds=6))
        app.find('list item', re.compile('film.mkv.*Ready'))
        self.desktop.key('ctrl+e')
        app.find('dialog', re.compile('Cut and Edit'))
        self.desktop.click(app.find('text', 'Position'))
        self.desktop.key('ctrl+a')
        self.desktop.x('xdotool', 'type', '2\t')
        self.desktop.key('ctrl+o')
        app.find('table cell', '0:00:02')
        self.desktop.key('ctrl+Return')
        wait_for(lambda: not app.find_all('dialog'), 'the window to close')
        self.desktop.key('ctrl+Return')
        self.finished('film.mp4')
        self.assertAlmostEqual(probe(os.path.join(self.library, 'film.mp4'))[1], 2, delta=0.2)

    def test_quitting_asks_and_what_was_stopped_is_there_again(self):
        folder = os.path.join(self.desktop.home, 'elsewhere')
        os.mkdir(folder)
        self.clip('elsewhere/long.mkv', seconds=40, size='640x360')
        app = self.launch()
        program = os.path.join(self.bundle, 'Contents/MacOS/Kestrel')
        second = self.desktop.launch_program('/usr/bin/env', '-C', folder, program, 'long.mkv')
        self.assertEqual(second.wait_for_end(), 0)
        app.find('list item', re.compile('long.mkv.*Ready'))
        self.click(app, 'push button', 'Convert')
        self.click(app, 'push button', 'Pause')
        for answer in 'Keep Running', 'Stop and Quit':
            self.desktop.key('ctrl+q')
            self.answer(app, answer)
            wait_for(lambda: len(app.windows()) < 2, 'the question to close')
        self.assertEqual(app.wait_for_end(), 0)
        self.assertEqual(os.listdir(self.library), [])
        app = self.launch()
        self.click(app, 'push button', 'Video Converter')
        app.find('list item', re.compile('long.mkv.*Interrupted'))

    def test_unusable_file_says_why(self):
        path = os.path.join(self.desktop.home, 'letter.mp4')
        with open(path, 'w') as file:
            file.write('no film at all')
        app = self.launch(path)
        app.find('list item', re.compile('letter.mp4.*damaged or incomplete'))
        self.assertNotIn('sensitive', states(app.find('push button', 'Convert')))


if __name__ == '__main__':
    main()
