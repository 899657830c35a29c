"""The log viewer, a program of its own: what it shows of a file that lives, and how one finds a line in it."""
import os
import time

from accessible import states, wait_for
from harness import ProgramTest, main


class LogWatcherTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.path = os.path.join(self.desktop.home, 'a.log')

    def write(self, text, mode='w'):
        with open(self.path, mode) as file:
            file.write(text)

    def launch_viewer(self, *arguments):
        viewer = 'Contents/Resources/KestrelLogWatcher.app/Contents/MacOS/KestrelLogWatcher'
        app = self.desktop.launch_program(os.path.join(self.bundle, viewer), *arguments)
        app.wait_for_window()
        return app

    def rows(self, app):
        """What is on screen, or nothing where the log is not."""
        return [row for node in app.find_all('text', 'Log text')
                for row in self.desktop.accessibility.Text.get_text(node, 0, -1).split('\n')]

    def selected(self, app):
        node, text = app.find('text', 'Log text'), self.desktop.accessibility.Text
        selection = text.get_selection(node, 0)
        return text.get_text(node, selection.start_offset, selection.end_offset)

    def wait_for_rows(self, app, condition, what):
        return wait_for(lambda: condition(self.rows(app)) and self.rows(app), what)

    def type_into(self, app, field, text):
        self.click(app, 'text', field)
        self.desktop.key('ctrl+a')
        self.desktop.x('xdotool', 'type', text)

    def test_follows_a_file_through_its_life(self):
        app = self.launch_viewer(self.path)
        app.wait_for_text('There is no log yet')
        self.write(''.join(f'line {i}\n' for i in range(5000)))
        self.wait_for_rows(app, lambda rows: rows[-1] == 'line 4999', 'the end of the log')
        self.write('line 5000\n', 'a')
        self.wait_for_rows(app, lambda rows: rows[-1] == 'line 5000', 'the line that came')
        self.click(app, 'text', 'Log text')
        self.desktop.key('Page_Up')
        rows = self.wait_for_rows(app, lambda rows: rows[-1] != 'line 5000', 'the page before')
        self.assertNotIn('checked', states(app.find('check box', 'Follow')))
        self.write('line 5001\n', 'a')
        self.desktop.key('Down')
        self.wait_for_rows(app, lambda now: now[0] == rows[1], 'the next row, and not the end')
        self.desktop.key('End')
        self.wait_for_rows(app, lambda rows: rows[-1] == 'line 5001', 'the end')
        self.assertIn('checked', states(app.find('check box', 'Follow')))
        os.remove(self.path)
        app.wait_for_text('The file was deleted')
        self.write('another run\n')
        self.wait_for_rows(app, lambda rows: rows == ['another run'], 'the new file')
        self.assertEqual(app.end(), 0)

    def test_finds_filters_and_saves(self):
        self.write(''.join(f'line {i}\n' for i in range(5000)) + 'LINE 77 again\n')
        app = self.launch_viewer(self.path)
        self.desktop.key('ctrl+f')
        self.desktop.x('xdotool', 'type', 'line 77')
        for key, found in (('shift+Return', 'LINE 77'), ('shift+Return', 'line 77'), ('F3', 'LINE 77'), ('F3', 'line 77')):
            self.desktop.key(key)
            wait_for(lambda: self.selected(app) == found, found)
        self.assertIn('line 77', self.rows(app))
        self.type_into(app, 'Show only lines with', 'LINE 499')
        app.wait_for_text('Lines with this text: 11')
        self.assertEqual(self.rows(app), ['line 499'] + [f'line 499{i}' for i in range(10)])
        self.click(app, 'push button', 'Save a Copy…')
        app.find('dialog', 'Save a Copy')
        self.desktop.key('ctrl+a')
        copy = os.path.join(self.desktop.home, 'copy.log')
        self.desktop.x('xdotool', 'type', copy)
        self.desktop.key('Return')
        app.wait_for_text('The copy was saved.')
        with open(copy) as saved, open(self.path) as log:
            self.assertEqual(saved.read(), log.read())

    def test_a_huge_file_costs_nothing(self):
        self.write('')
        os.truncate(self.path, 1 << 30)
        start = time.monotonic()
        app = self.launch_viewer(self.path)
        self.wait_for_rows(app, lambda rows: rows, 'its end')
        self.assertLess(time.monotonic() - start, 2)
        if not app.is_sanitized():
            self.assertLess(app.memory(), 100, 'MiB')

    def test_what_cannot_be_shown_is_told(self):
        for arguments, message in (((), 'No log was named'), ((self.desktop.home,), 'The log cannot be read')):
            app = self.launch_viewer(*arguments)
            app.wait_for_text(message)
            self.assertEqual(app.end(), 0)


if __name__ == '__main__':
    main()
