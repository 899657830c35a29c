"""Problem reports, the log viewer, and the about window's ways to the support and to the home page."""
import glob
import os
import signal

from accessible import wait_for
from driver import executable
from harness import ProgramTest, main
from material import bundle_information

QUESTION = 'Problem detected in last conversion.'


def log_viewers(log):
    """How many show this file."""
    found = 0
    for path in glob.glob('/proc/[0-9]*/cmdline'):
        try:
            with open(path) as file:
                arguments = file.read().split('\0')[:-1]
        except OSError:  # it has ended
            continue
        found += arguments[-1:] == [log] and any(part.endswith('/KestrelLogWatcher') for part in arguments)
    return found


class ReportsTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.info = bundle_information(self.bundle)
        self.subject = f'{self.info["CFBundleName"]} ({self.info["CFBundleShortVersionString"]})'
        self.temporary = os.path.join(self.desktop.home, 'temporary')
        os.mkdir(self.temporary)
        self.desktop.environment['TMPDIR'] = self.temporary

    def tearDown(self):
        super().tearDown()
        del self.desktop.environment['TMPDIR']

    def crash(self, app):
        """Ends it once it counts as under way; what it has logged."""
        wait_for(lambda: self.defaults().get('KestrelNotSafeTerminate'), 'the flag of a run under way')
        app.end(signal.SIGKILL)
        with open(self.desktop.log_path(self.bundle), 'rb') as file:
            return file.read()

    def launch_and_answer(self, button):
        """Starts anew, where the question comes over the first window."""
        app = self.desktop.launch(self.bundle)
        app.wait_for_text(QUESTION)
        self.answer(app, button)
        wait_for(lambda: not any(text == QUESTION for text in app.texts()), 'the question to close')
        return app

    def mails(self, count):
        return wait_for(lambda: calls if len(calls := self.desktop.calls('xdg-email')) == count else None, 'a message')

    def test_report_after_a_crash(self):
        logged = self.crash(self.launch())
        app = self.launch_and_answer('Send Report')
        copy = os.path.join(self.temporary, 'kestrel-previous.log')
        self.assertEqual(self.mails(1)[0], ['--utf8', '--subject', self.subject, '--attach', copy,
                                            self.info['TWSupportEmail']])
        with open(copy, 'rb') as file:
            self.assertEqual(file.read(), logged)
        self.assertIn(b'[DEBUG]Application did Finished launching', logged)

        self.assertEqual(app.end(), 0)

    def test_mail_program_outlives_the_program(self):
        noted = os.path.join(self.desktop.home, 'mail')
        with open(os.path.join(self.desktop.programs, 'xdg-email'), 'w') as file:
            file.write(f'#!/bin/sh\necho $$ >{noted}.part\nmv {noted}.part {noted}\nexec sleep 60\n')
        app = self.launch()
        self.click(app, None, 'Help')
        self.click(app, None, 'Report Bug')
        wait_for(lambda: os.path.exists(noted), 'the mail program')
        self.assertEqual(app.end(), 0)
        with open(noted) as file:
            self.assertIsNotNone(executable(int(file.read())))

    def test_one_log_viewer_that_ends_with_the_program(self):
        for number, status in ((signal.SIGTERM, 0), (signal.SIGKILL, -signal.SIGKILL)):
            with self.subTest(number):
                app = self.launch()
                for _ in range(2):
                    self.choose_from_menu(app, 'Help', 'App Log')
                    wait_for(lambda: len(self.desktop.windows()) == 2 and self.desktop.windows()[-1]['pid'] != app.pid,
                             'the log viewer in front')
                    self.desktop.launch(self.bundle).wait_for_end()  # brings the program's window to the front again
                    wait_for(lambda: self.desktop.windows()[-1]['pid'] == app.pid, 'the program in front')
                self.assertEqual(log_viewers(self.desktop.log_path(self.bundle)), 1)
                self.assertEqual(app.end(number), status)
                wait_for(lambda: not log_viewers(self.desktop.log_path(self.bundle)), 'the log viewer to end')


if __name__ == '__main__':
    main()
