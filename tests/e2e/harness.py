"""What every test of the real program begins and ends with: run as `NAME_test.py BUNDLE [arguments of unittest]`."""
import os
import sys
import unittest

from accessible import wait_for
from driver import Desktop


class ProgramTest(unittest.TestCase):
    """One display a file; a fresh user a test, whose programs end with it."""

    screen = '1440x900x24'

    @classmethod
    def setUpClass(cls):
        cls.bundle = os.path.abspath(cls.bundle_argument)
        cls.desktop = Desktop(cls.screen)

    @classmethod
    def tearDownClass(cls):
        cls.desktop.close()

    def setUp(self):
        self.desktop.new_user()

    def tearDown(self):
        if self.has_failed():
            picture = os.path.join(os.getcwd(), self.id().replace('__main__.', 'failed-') + '.png')
            self.desktop.screenshot(picture)
            print(f'\nSee {picture}', *(app.output() for app in self.desktop.apps), sep='\n', file=sys.stderr)
        self.desktop.end_apps()

    def has_failed(self):
        result = self._outcome.result
        return any(test is self for test, _ in result.failures + result.errors)

    def launch(self, *arguments, bundle=None, **environment):
        """Starts the program and waits for its window, and for what is in it, which is told a little later."""
        app = self.desktop.launch(bundle or self.bundle, *arguments, **environment)
        app.wait_for_window()
        app.find('push button')
        return app

    def defaults(self, bundle=None):
        return self.desktop.defaults(bundle or self.bundle)

    def click(self, app, role, name):
        self.desktop.click(app.find(role, name))

    def answer(self, app, button):
        """In a question over the only window. Not by the pointer: the desktop may still be about to place it."""
        wait_for(lambda: len(app.windows()) == 2, 'the question')
        app.find('push button', button).do_action(0)

    def choose_from_menu(self, app, *titles):
        for title in titles:
            self.click(app, 'menu item', title)


def main():
    ProgramTest.bundle_argument = sys.argv.pop(1)
    unittest.main()
