"""Servers that answer as badly as they can: what the user sees, after what time, and that the window stays alive."""
import os
import time

from accessible import wait_for
from harness import ProgramTest, main
from material import copy_bundle
from servers import HOSTILE, Server

UNABLE, UP_TO_DATE = 'Unable to connect to update server.', "You're up-to-date!"
READABLE = ('list of 999 KB',)
SLOW = ('one byte a second', 'stall after the headers')  # take the whole of the time limit
TIME_LIMIT = 20
MOST_WORK, MOST_SHARE = 0.5, 1 / 5  # of the processor for the window's thread: seconds, and of the time that its bar moves
LONGEST_STALL = 1 / 4  # of the time limit that the window may take to answer: one that waits for the server takes all


class HostileTest(ProgramTest):
    def check(self, app, name):
        """The outcome of a check on demand, its time, and the longest time that the window took to answer meanwhile."""
        self.choose_from_menu(app, 'Kestrel', 'Check for Updates…')
        start, stall, outcome, worked = time.monotonic(), 0.0, None, app.main_thread_seconds()
        while outcome is None and time.monotonic() < start + TIME_LIMIT + 10:
            asked = time.monotonic()
            texts = app.texts()
            stall = max(stall, (time.monotonic() - asked))
            outcome = next((text for text in (UNABLE, UP_TO_DATE) if text in texts), None)
            time.sleep(0.1)  # answering costs the window more than waiting
        seconds = time.monotonic() - start
        self.desktop.key('Escape')
        wait_for(lambda: len(app.windows()) == 1, 'the window to close')
        worked = app.main_thread_seconds() - worked
        self.assertLess(worked, (MOST_WORK + MOST_SHARE * seconds) * (10 if app.is_sanitized() else 1))
        print(f'{name:24} {outcome!s:38} after {seconds:5.1f} s, longest answer {stall * 1000:4.0f} ms, '
              f'window {worked:4.2f} s', flush=True)
        return outcome, seconds, stall

    def test_catalogue(self):
        with Server() as server:
            bundle = copy_bundle(self.bundle, self.desktop.home + '/Kestrel.app',
                                 TWUpdateXMLLink=server.url('/kestrel.plist'))
            app = self.launch(bundle=bundle)
            server.documents = {'/kestrel.plist': HOSTILE['list of 999 KB']}
            self.check(app, 'to begin with')
            memory = app.memory()
            for name, answer in HOSTILE.items():
                with self.subTest(name):
                    server.documents = {'/kestrel.plist': answer}
                    outcome, seconds, stall = self.check(app, name)
                    self.assertEqual(outcome, UP_TO_DATE if name in READABLE else UNABLE)
                    self.assertLess(seconds, (TIME_LIMIT if name in SLOW else 0) + 8)
                    self.assertLess(stall, LONGEST_STALL * TIME_LIMIT)
            if not app.is_sanitized():
                self.assertLess(app.memory(), memory + 64, 'MiB at the most')

    def test_name_that_does_not_resolve(self):
        bundle = copy_bundle(self.bundle, self.desktop.home + '/Kestrel.app',
                             TWUpdateXMLLink='http://slow.invalid/kestrel.plist')
        slow_names = os.path.join(os.path.dirname(self.bundle), 'tests/libkestrel_slow_names.so')
        sanitizer = self.desktop.environment.get('ASAN_OPTIONS', '') + ':verify_asan_link_order=0'
        app = self.launch(bundle=bundle, no_proxy='.invalid', LD_PRELOAD=slow_names, ASAN_OPTIONS=sanitizer)
        outcome, seconds, stall = self.check(app, 'name that does not resolve')
        self.assertEqual(outcome, UNABLE)
        self.assertGreater(seconds, TIME_LIMIT - 2, 'the name was looked up')
        self.assertLess(seconds, TIME_LIMIT + 8)
        self.assertLess(stall, LONGEST_STALL * TIME_LIMIT)
        self.choose_from_menu(app, 'Kestrel', 'Check for Updates…')
        time.sleep(1.5)  # past the steps before the fetch
        start = time.monotonic()
        self.assertEqual(app.end(), 0)
        self.assertLess(time.monotonic() - start, 10, 'the end waits for no name')

    def test_proxy_script_that_does_not_come(self):
        with Server({'/proxy.pac': lambda connection: connection.wait()}) as server:
            bundle = copy_bundle(self.bundle, self.desktop.home + '/Kestrel.app',
                                 TWUpdateXMLLink='http://kestrel.invalid/kestrel.plist')
            app = self.launch(bundle=bundle, http_proxy='pac+' + server.url('/proxy.pac'))
            wait_for(lambda: server.requests, 'the script to be asked for')
            start = time.monotonic()
            self.assertEqual(app.end(), 0)
            self.assertLess(time.monotonic() - start, 10, 'the end waits for no script')


if __name__ == '__main__':
    main()
