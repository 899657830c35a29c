"""The settings window: every kind of control changed, what survives a restart, and German."""
import json
import os
import xml.etree.ElementTree as ElementTree

from accessible import states, wait_for, walk
from harness import ProgramTest, main
from material import catalogue, unarchived

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

    def names(self, app):
        """All that is told of what is on screen."""
        found = [(node.get_name(), node.get_description()) for node in walk(app.node())]
        return {text for texts in found for text in texts}

    def archive_of_a_run(self, language, say):
        """What is stored by a run that changes the lists whose titles are translated, and all that it showed."""
        self.desktop.new_user()
        self.desktop.set_defaults(self.bundle, kAppCustomizeLanguage=language)
        app = self.launch()
        shown = self.names(app)
        self.click(app, 'push button', say('About'))
        app.find('dialog')
        shown |= self.names(app)
        self.desktop.key('Escape')
        wait_for(lambda: not app.find_all('dialog'), 'the window to close')
        self.click(app, 'push button', say('Settings'))
        dialog = app.find('dialog')
        shown |= self.names(app)
        self.click(app, 'push button', 'DVD')
        self.pick(app, say('Default'), {'de': 'Koreanisch'}.get(language, 'Korean'))
        self.click(app, 'push button', say('Download'))
        for shown_title, picked in (('Highest Resolution', '720P'), ('720P', 'Highest Resolution'), ('5', 'Unlimited')):
            self.pick(app, say(shown_title), say(picked))
        shown |= self.names(app)
        self.assertEqual(app.end(), 0)
        archive = unarchived(self.defaults()['setting'])
        return json.loads(json.dumps(archive).replace(self.desktop.home, '~')), shown

    def test_in_german(self):
        """No English sentence shows, and what is stored is what is stored in English."""
        german = catalogue('de')
        english_archive, english_texts = self.archive_of_a_run('Default', str)
        archive, shown = self.archive_of_a_run('de', lambda text: german.get(text, text))
        self.assertEqual(archive, english_archive)
        self.assertEqual(archive['downloader']['rso'], 'Highest Resolution')
        app = self.desktop.launch_program(os.path.join(os.path.dirname(self.bundle), 'tests/kestrel_show_prompt'), self.bundle, 'de')
        app.find('push button')
        shown |= self.names(app)
        prompts = ElementTree.parse(os.path.join(self.bundle, 'Contents/Resources/prompt-mlde.xml')).getroot()
        foreign = {element.text.strip() for element in prompts.find('en').iter() if element.text} - {
            element.text.strip() for element in prompts.find('de').iter() if element.text}
        foreign |= {source for source, translated in german.items() if translated and translated != source}
        self.assertGreater(len(foreign & english_texts), 40, 'what English shows')
        self.assertEqual({text for text in shown if text.strip() in foreign}, set())


if __name__ == '__main__':
    main()
