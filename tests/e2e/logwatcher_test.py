"""The log viewer, a program of its own: what it shows of a file that lives, and how one finds a line in it."""
import os

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

    def wait_for_rows(self, app, condition, what):
        return wait_for(lambda: condition(self.rows(app)) and self.rows(app), what)

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

    def test_a_huge_file_costs_nothing(self):
        self.write('')
        os.truncate(self.path, 1 << 30)
        app = self.launch_viewer(self.path)
        self.wait_for_rows(app, lambda rows: rows, 'its end')
        self.assertLess(app.processor_seconds(), 2)
        if not app.is_sanitized():
            self.assertLess(app.memory(), 100, 'MiB')

    def test_what_cannot_be_shown_is_told(self):
        for arguments, message in (((), 'No log was named'), ((self.desktop.home,), 'The log cannot be read')):
            app = self.launch_viewer(*arguments)
            app.wait_for_text(message)
            self.assertEqual(app.end(), 0)


if __name__ == '__main__':
    main()
