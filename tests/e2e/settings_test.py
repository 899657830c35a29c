"""The settings window: every kind of control changed, what survives a restart, search, folders that are refused."""
import os

from accessible import extents, states, wait_for, walk
from harness import ProgramTest, main
from material import unarchived

DOWNLOAD_LISTS = (  # shown, picked, stored under, as
    ('5', 'Unlimited', 'concurrent', 0),
    ('Highest Resolution', '720P', 'rso', '720P'),
    ('mp4', 'flv', 'format', 'flv'),
)
SWITCHES = ('Open the output folder when done', 'Shut down the computer when done', 'Show notifications')


class SettingsTest(ProgramTest):
    def stored(self, module):
        """A module's entries in the archive of the user defaults."""
        return unarchived(self.defaults()['setting'])[module]

    def open(self, app):
        self.click(app, 'push button', 'Settings')
        return app.find('dialog', 'Settings')

    def close(self, app, dialog):
        self.desktop.click(next(node for node in walk(dialog) if node.get_name() == 'Close'))
        wait_for(lambda: not app.find_all('dialog'), 'the settings to close')

    def pick(self, app, shown, picked):
        self.click(app, 'combo box', shown)
        def on_open_list():  # those that are closed report places of their own
            return [node for node in app.find_all('list item', picked) if 'showing' in states(node.get_parent())]
        item = wait_for(on_open_list, picked)[0]
        self.desktop.click(item)
        app.find('combo box', picked)

    def choose(self, app, button, folder):
        self.click(app, 'push button', button)
        app.find('dialog', 'Choose a Folder')
        self.desktop.x('xdotool', 'type', folder)
        self.desktop.key('Return')

    def type_into(self, app, field, text):
        self.click(app, 'text', field)
        self.desktop.key('ctrl+a')
        self.desktop.x('xdotool', 'type', text)

    def test_changes_survive_a_restart(self):
        video = os.path.join(self.desktop.home, 'films')
        os.makedirs(video)
        app = self.launch()
        dialog = self.open(app)
        for name in SWITCHES:
            self.click(app, 'check box', name)
        self.click(app, 'radio button', 'Off')
        self.choose(app, 'Choose… (Video, Video folder)', video)
        app.find('label', video)
        self.click(app, 'push button', 'DVD')
        self.pick(app, 'Default', 'Japanese')
        self.click(app, 'push button', 'Download')
        for shown, picked, _, _ in DOWNLOAD_LISTS:
            self.pick(app, shown, picked)
        self.choose(app, 'Choose… (Download, Music folder)', video)
        self.click(app, 'check box', 'Use a proxy')
        self.type_into(app, 'Proxy address', 'socks5://10.0.0.1')
        self.type_into(app, 'Proxy port', 'abc')
        # The end of the session finds the window open.
        self.assertEqual(app.end(), 0)

        downloader = self.stored('downloader')
        expected = {key: value for _, _, key, value in DOWNLOAD_LISTS}
        expected |= {'proxyEnable': True, 'proxyURL': 'socks5://10.0.0.1', 'proxyPort': 'abc', 'audio_out': video}
        self.assertLessEqual(expected.items(), downloader.items())
        self.assertEqual(self.stored('dvd')['DVDAudioLanCode'], 'ja')
        self.assertEqual(self.stored('video')['video_out'], video)
        self.assertEqual(self.stored('vars'), {'openFolder': False, 'shutdown': True, 'notify': False})

        app = self.launch()
        self.desktop.key('ctrl+comma')
        dialog = app.find('dialog', 'Settings')
        self.assertNotIn('checked', states(app.find('check box', 'Show notifications')))
        self.assertIn('checked', states(app.find('radio button', 'Automatic')))
        self.assertIn('checked', states(app.find('check box', 'Use a proxy')))
        self.assertIn(video, app.texts())
        self.click(app, 'push button', 'Download')
        for name in ('Unlimited', '720P', 'flv', 'Japanese'):
            app.find('combo box', name)
        self.close(app, dialog)

    def test_hardware_information_asks_the_transcoder(self):
        app = self.launch()
        self.open(app)
        self.click(app, 'push button', 'Details…')
        wait_for(lambda: any('libx264' in text for text in app.texts()), 'the encoders of the transcoder')

    def test_search_goes_to_the_section(self):
        app = self.launch()
        dialog = self.open(app)
        labels = {node.get_name(): node for node in walk(dialog) if node.get_role_name() == 'label'}
        common, download = labels['Common'], labels['Download']
        start = extents(common)[1]
        self.type_into(app, 'Search Settings', 'RESOLUTION down')
        app.find('list item', 'download resolution')
        self.desktop.key('Return')
        page = extents(dialog)
        wait_for(lambda: page[1] < extents(download)[1] < page[1] + page[3], 'the download section')
        self.type_into(app, 'Search Settings', 'notify')
        self.desktop.key('Down', 'Return')
        wait_for(lambda: extents(common)[1] == start, 'the common section')
        self.desktop.key('Escape')
        wait_for(lambda: not app.find_all('dialog'), 'Escape to close the settings')

    def test_folders_that_cannot_be_used_are_refused(self):
        app = self.launch()
        self.open(app)
        before = os.path.join(self.desktop.home, 'Movies/Mac Video Library')
        self.choose(app, 'Choose… (Video, Video folder)', '/proc')
        self.click(app, 'push button', 'OK')
        wait_for(lambda: not app.find_all('push button', 'OK'), 'the alert to close')
        self.assertIn(before, app.texts())
        self.assertNotIn('/proc', app.texts())
        self.click(app, 'push button', 'Open (Video, Video folder)')
        wait_for(lambda: [f'file://{before}'.replace(' ', '%20')] in self.desktop.calls('xdg-open'), 'the file manager')


if __name__ == '__main__':
    main()
