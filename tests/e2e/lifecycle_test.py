"""Starts and ends: the flag of a run, and one program a user."""
import os
import signal

from accessible import wait_for
from harness import ProgramTest, main
from material import copy_bundle

ENDED_BADLY = 'KestrelNotSafeTerminate'


class LifecycleTest(ProgramTest):
    def stored(self, key):
        path = self.desktop.defaults_path(self.bundle)
        return self.defaults().get(key) if os.path.exists(path) else None

    def launch_and_wait_for_flag(self):
        app = self.launch()
        wait_for(lambda: self.stored(ENDED_BADLY), 'the flag of a run under way')
        return app

    def test_ends_in_order(self):
        ends = {'close button': lambda app: self.click(app, 'push button', 'Close'),
                'shortcut': lambda _: self.desktop.key('ctrl+q')}
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            ends[number] = lambda app, number=number: os.kill(app.pid, number)
        for name, end in ends.items():
            with self.subTest(name):
                self.desktop.new_user()
                app = self.launch_and_wait_for_flag()
                end(app)
                self.assertEqual(app.wait_for_end(), 0, app.output())
                self.assertIs(self.stored(ENDED_BADLY), False)

    def test_second_start_raises_the_first(self):
        first = self.launch()
        copy = copy_bundle(self.bundle, self.desktop.home + '/Copy.app', CFBundleIdentifier='org.example.copy')
        other = self.launch(bundle=copy)
        wait_for(lambda: self.desktop.windows()[-1]['pid'] == other.pid, 'another window in front')
        self.assertEqual(self.desktop.launch(self.bundle).wait_for_end(), 0)
        wait_for(lambda: self.desktop.windows()[-1]['pid'] == first.pid, 'the window to come to the front')
        self.assertEqual(len(first.windows()), 1)


if __name__ == '__main__':
    main()
