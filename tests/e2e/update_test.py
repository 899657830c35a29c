"""The update check by itself: against a server of the test's own."""
import json
import plistlib
import re
import signal
import threading
import time

from accessible import wait_for
from harness import ProgramTest, main
from material import copy_bundle
from servers import HOSTILE, Server

SITE = 'https://www.example.org/'
NEWER = {'LastestVersion': '9.0', 'DownloadURLReg': SITE + 'get',
         'UpdateLog': [{'content': 'Converts <b>faster</b>.', 'color': '0074CC'}, {'content': 'Mends the rest.'}]}
PROMOTION = {'title': 'All your films', 'details': ['<b>One</b> place', ' for all.'], 'button': 'Take a Look',
             'label': 'No, Thanks', 'url': SITE + 'offer', 'rate': '100', 'next_rate': 100, 'max_count': 1}


class UpdateTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.server = self.enterContext(Server())
        self.bundle = copy_bundle(type(self).bundle, self.desktop.home + '/Kestrel.app',
                                  TWUpdateXMLLink=self.server.url('/kestrel.plist'))

    def publish(self, descriptor, promotion=None):
        documents = {}
        if promotion is not None:
            descriptor = descriptor | {'ADConfigURL': self.server.url('/configuration.json')}
            documents['/configuration.json'] = json.dumps({'ads': {'full': promotion}}).encode()
        self.server.documents = documents | {'/kestrel.plist': plistlib.dumps(descriptor)}

    def start(self, text):
        """Starts the program and waits for what it shows by itself."""
        app = self.desktop.launch(self.bundle)
        app.wait_for_text(text)
        wait_for(lambda: len(app.windows()) == 2, 'it to be mapped')
        return app

    def wait_until_closed(self, app):
        wait_for(lambda: len(app.windows()) == 1, 'the window to close')

    def opened(self):
        """The one page that was."""
        def pages():
            return [page for call in self.desktop.calls('xdg-open') if (page := call[-1]).startswith(SITE)]
        page, = wait_for(pages, 'a page to be opened')
        return page

    def test_newer_version(self):
        self.publish(NEWER, PROMOTION)
        app = self.start('A new version of Kestrel Converter 4K is available!')
        app.wait_for_text("Kestrel Converter 4K 9.0 is now available -- you're running ")
        self.assertEqual(app.end(), 0, 'ends in order with the window open')
        app = self.start('A new version of')
        self.answer(app, 'Download Now')
        self.wait_until_closed(app)
        self.assertTrue(self.opened().startswith(SITE + 'get?'))
        self.assertEqual(app.end(), 0)
        self.assertNotIn('_AdvertisementDateString', self.defaults())
        self.assertEqual(self.server.requests, ['/kestrel.plist', '/configuration.json'] * 2)

    def test_another_application_keeps_the_keyboard(self):
        self.publish(NEWER)
        answers = threading.Event()
        with Server() as other:
            self.server.documents['/kestrel.plist'] = lambda connection: (
                answers.wait(20), connection.document(plistlib.dumps(NEWER)))
            app = self.launch()
            copy = copy_bundle(type(self).bundle, self.desktop.home + '/Other.app', CFBundleIdentifier='org.example.other',
                               TWUpdateXMLLink=other.url('/'))
            active = self.desktop.launch(copy)
            active.wait_for_window()
            window = wait_for(lambda: self.desktop.active_window() in [w['id'] for w in active.windows()]
                              and self.desktop.active_window(), 'the other application to be active')
            answers.set()
            app.wait_for_text('A new version of')
            wait_for(lambda: len(app.windows()) == 2, 'the update window')
            self.assertEqual(self.desktop.active_window(), window)
            time.sleep(0.5)  # whoever takes the keyboard late
            self.assertEqual(self.desktop.active_window(), window)
            self.desktop.click(app.find('label', re.compile('A new version of')))
            wait_for(lambda: self.desktop.active_window() in [w['id'] for w in app.windows()], 'the update window to be active')
            self.desktop.key('Escape')
            self.wait_until_closed(app)

    def test_ends_at_once_while_the_server_stalls(self):
        self.server.documents = {'/kestrel.plist': HOSTILE['stall after the headers']}
        app = self.launch()
        wait_for(lambda: self.server.requests, 'the request')
        self.assertEqual(app.end(signal.SIGTERM), 0)
        self.assertIs(self.defaults()['KestrelNotSafeTerminate'], False)


if __name__ == '__main__':
    main()
