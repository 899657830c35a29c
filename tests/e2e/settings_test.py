"""The settings window: every kind of control changed, and German."""
import os
import re
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


def names_below(node):
    """All that is told of what is there."""
    return {text.strip() for each in walk(node) for text in (each.get_name(), each.get_description()) if text.strip()}


class SettingsTest(ProgramTest):
    def stored(self, module):
        """A module's entries in the archive of the user defaults."""
        return unarchived(self.defaults()['setting'])[module]

    def open(self, app):
        self.click(app, 'push button', 'Settings')
        return app.find('dialog', 'Settings')

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
        read = self.desktop.accessibility.Text.get_text
        wait_for(lambda: read(app.find('text', field), 0, -1) == text, f'{field} to have its text')

    def test_changes_are_stored(self):
        video = os.path.join(self.desktop.home, 'films')
        os.makedirs(video)
        app = self.launch()
        self.open(app)
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

    def test_hardware_information_asks_the_transcoder(self):
        app = self.launch()
        self.open(app)
        self.click(app, 'push button', 'Details…')
        wait_for(lambda: any('libx264' in text for text in app.texts()), 'the encoders of the transcoder')

    def test_in_german(self):
        """No English sentence shows, and what is stored is what is stored in English."""
        german = catalogue('de')
        self.desktop.set_defaults(self.bundle, kAppCustomizeLanguage='de')
        app = self.launch()
        shown = names_below(app.node())
        for module in ('Video Converter', 'DVD Ripper', 'Downloader', 'Recorder'):
            self.click(app, 'push button', german[module])
            back = app.find('push button', german['Back'])
            shown |= names_below(app.node())
            self.desktop.click(back)
            app.find('push button', german[module])
        self.click(app, 'push button', german['About'])
        shown |= names_below(app.find('dialog'))
        self.desktop.key('Escape')
        wait_for(lambda: not app.find_all('dialog'), 'the window to close')
        self.click(app, 'push button', german['Settings'])
        shown |= names_below(app.find('dialog'))
        self.click(app, 'push button', german['Download'])
        for title, picked in ((german['Highest Resolution'], '720P'), ('720P', german['Highest Resolution']),
                              ('5', german['Unlimited'])):
            self.pick(app, title, picked)
        self.assertEqual(app.end(), 0)
        archive = self.stored('downloader')
        self.assertEqual([archive[key] for key in ('rso', 'concurrent', 'format')], ['Highest Resolution', 0, 'mp4'])
        self.assertEqual(self.stored('dvd')['DVDAudioLanCode'], 'Default')
        prompt = os.path.join(os.path.dirname(self.bundle), 'tests/kestrel_show_prompt')
        app = self.desktop.launch_program(prompt, self.bundle, 'de')
        app.find('push button')
        shown |= names_below(app.node())
        prompts = ElementTree.parse(os.path.join(self.bundle, 'Contents/Resources/prompt-mlde.xml')).getroot()
        texts = {language: {element.text.strip() for element in prompts.find(language).iter() if element.text}
                 for language in ('en', 'de')}
        english = texts['en'] - texts['de'] | {key for key, text in german.items() if text and text != key}
        self.assertGreater(len(shown & (texts['de'] | set(german.values()))), 40)
        with_arguments = re.compile('|'.join(re.sub('%[@1-9]', '.+', re.escape(text)) for text in english))
        self.assertEqual([text for text in shown if with_arguments.fullmatch(text)], [])


if __name__ == '__main__':
    main()
