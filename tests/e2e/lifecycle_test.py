"""Starts and ends: what is stored, what a crash leaves behind, and one program a user."""
import glob
import os
import plistlib
import signal

from accessible import wait_for
from harness import ProgramTest, main
from material import copy_bundle

ENDED_BADLY = 'KestrelNotSafeTerminate'


def unarchived(data):
    """A keyed archive as dictionaries; an object also has its class's name under "class"."""
    archive = plistlib.loads(data)

    def resolved(value):
        if isinstance(value, plistlib.UID):
            value = archive['$objects'][value.data]
        if not isinstance(value, dict):
            return None if value == '$null' else value
        if 'NS.keys' in value:
            return {resolved(key): resolved(item) for key, item in zip(value['NS.keys'], value['NS.objects'])}
        fields = {key: resolved(item) for key, item in value.items() if key != '$class'}
        return fields | {'class': archive['$objects'][value['$class'].data]['$classname']}
    return resolved(archive['$top']['root'])


def with_settings_changed(data):
    """The archive with another preferred language of DVDs and the first of the switches turned."""
    archive = plistlib.loads(data)
    objects = archive['$objects']
    def add(value):
        objects.append(value)
        return plistlib.UID(len(objects) - 1)
    records = [item for item in objects if isinstance(item, dict)]
    next(item for item in records if 'DVDAudioLanCode' in item)['DVDAudioLanCode'] = add('ja')
    switches = next(item for item in records if plistlib.UID(objects.index('openFolder')) in item.get('NS.keys', []))
    place = [objects[key.data] for key in switches['NS.keys']].index('openFolder')
    switches['NS.objects'][place] = add(False)
    return plistlib.dumps(archive, fmt=plistlib.FMT_BINARY)


class LifecycleTest(ProgramTest):
    def stored(self, key):
        path = self.desktop.defaults_path(self.bundle)
        return self.defaults().get(key) if os.path.exists(path) else None

    def launch_and_wait_for_flag(self):
        app = self.launch()
        wait_for(lambda: self.stored(ENDED_BADLY), 'the flag of a run under way')
        return app

    def test_ends_in_order(self):
        def by_close_button(app):
            self.click(app, 'push button', 'Close')
        def by_shortcut(_):
            self.desktop.key('ctrl+q')
        for name, end in (('close button', by_close_button), ('shortcut', by_shortcut),
                          ('SIGTERM', lambda app: os.kill(app.pid, signal.SIGTERM)),
                          ('SIGINT', lambda app: os.kill(app.pid, signal.SIGINT)),
                          ('SIGHUP', lambda app: os.kill(app.pid, signal.SIGHUP))):
            with self.subTest(name):
                self.desktop.new_user()
                app = self.launch_and_wait_for_flag()
                end(app)
                self.assertEqual(app.wait_for_end(), 0, app.output())
                self.assertIs(self.stored(ENDED_BADLY), False)
                self.assertEqual(self.stored('AppleLanguages'), ['en'])
                settings = unarchived(self.stored('setting'))
                self.assertEqual({key: value.get('class') for key, value in settings.items()},
                                 {'video': 'JVideoSetting', 'dvd': 'JDVDSetting', 'downloader': 'JDownloaderSetting',
                                  'recorder': 'JRecorderSetting', 'vars': None})
                self.assertEqual(settings['vars'], {'openFolder': True, 'shutdown': False, 'notify': True})
                self.assertEqual(settings['video']['video_out'], self.desktop.home + '/Movies/Mac Video Library')

    def test_settings_survive(self):
        self.assertEqual(self.launch().end(), 0)
        stored = self.defaults()
        stored['setting'] = with_settings_changed(stored['setting'])
        self.desktop.set_defaults(self.bundle, **stored, KeyOfSomebodyElse={'kept': [1, 2.5, b'bytes']})
        self.assertEqual(self.launch().end(), 0)
        settings = unarchived(self.stored('setting'))
        self.assertIs(settings['vars']['openFolder'], False)
        self.assertEqual(settings['dvd']['DVDAudioLanCode'], 'ja')
        self.assertEqual(self.stored('KeyOfSomebodyElse'), {'kept': [1, 2.5, b'bytes']})

    def test_start_after_a_crash(self):
        self.assertEqual(self.launch_and_wait_for_flag().end(signal.SIGKILL), -signal.SIGKILL)
        self.assertIs(self.stored(ENDED_BADLY), True)
        self.assertEqual(self.launch().end(), 0)
        self.assertIs(self.stored(ENDED_BADLY), False)

    def test_second_start_raises_the_first(self):
        first = self.launch()
        copy = copy_bundle(self.bundle, self.desktop.home + '/Copy.app', CFBundleIdentifier='org.example.copy')
        other = self.launch(bundle=copy)
        wait_for(lambda: self.desktop.windows()[-1]['pid'] == other.pid, 'another window in front')
        second = self.desktop.launch(self.bundle)
        self.assertEqual(second.wait_for_end(), 0)
        wait_for(lambda: self.desktop.windows()[-1]['pid'] == first.pid, 'the window to come to the front')
        self.assertEqual(len(first.windows()), 1)

    def test_damaged_defaults_are_kept_aside(self):
        path = self.desktop.defaults_path(self.bundle)
        os.makedirs(os.path.dirname(path))
        with open(path, 'w') as file:
            file.write('<?xml version="1.0"?><plist><dict><key>setting</key>')
        self.assertEqual(self.launch().end(), 0)
        aside, = glob.glob(path + '.corrupt-*')
        with open(aside) as file:
            self.assertTrue(file.read().endswith('<key>setting</key>'))
        self.assertIn('setting', self.defaults())


if __name__ == '__main__':
    main()
