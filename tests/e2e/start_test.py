"""What a start costs: instructions up to the first picture, and what is there a second after it."""
import os
import re
import sys
import time
import unittest

import instructions
from harness import ProgramTest, main

MILLION = 1_000_000
MOST_INSTRUCTIONS = {'en': 120 * MILLION, 'de': 120 * MILLION, 'zh-Hans': 140 * MILLION, 'ja': 140 * MILLION}
MOST_THREADS = 5
# What none of the first second's work needs: decoders, the network, the video hardware.
ABSENT = r'/imageformats/|libQt6Network|libcurl|libssl|libgnutls|libva|libproxy'


class StartTest(ProgramTest):
    def is_sanitized(self, app):
        with open(f'/proc/{app.pid}/maps') as file:
            return re.search(r'lib[at]san', file.read()) is not None

    def test_instructions(self):
        if not instructions.is_possible():
            self.skipTest('valgrind is not installed')
        for language, most in MOST_INSTRUCTIONS.items():
            with self.subTest(language):
                self.desktop.new_user()
                self.desktop.set_defaults(self.bundle, kAppCustomizeLanguage=language)
                app = self.launch()  # the first one has more to do
                if self.is_sanitized(app):
                    self.skipTest('built with a sanitizer')
                self.assertEqual(app.end(), 0)
                cost = instructions.profile(self.desktop, os.path.join(self.bundle, 'Contents/MacOS/Kestrel'), FIRST_PAINT)
                print(f'{language}: {cost.total / MILLION:.1f} M of {most / MILLION:.0f} M', flush=True)
                self.assertLessEqual(cost.total, most, cost)

    def test_a_second_later(self):
        app = self.launch()
        if self.is_sanitized(app):
            self.skipTest('built with a sanitizer')
        with open(self.desktop.log_path(self.bundle)) as log:
            for _ in range(100):  # until the check is over, which the first second begins
                if 'Update check' in log.read():
                    break
                time.sleep(0.1)
            else:
                self.fail('no update check')
        self.assertLessEqual(len(os.listdir(f'/proc/{app.pid}/task')), MOST_THREADS)
        with open(f'/proc/{app.pid}/maps') as maps:
            found = {path for path in re.findall(r'/\S+', maps.read()) if re.search(ABSENT, path)}
        self.assertEqual(found, set())


if __name__ == '__main__':
    FIRST_PAINT = sys.argv.pop(2)
    main()
