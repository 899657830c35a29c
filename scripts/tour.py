#!/usr/bin/python3
"""tour.py BUNDLE FOLDER: walks through the windows on a private display and leaves a picture of each in FOLDER.

A new window joins by a row in STOPS. Controls are found by their place where their names change with the language.
"""
import glob
import json
import os
import plistlib
import re
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(__file__), '..', 'tests', 'e2e'))

from accessible import Failure, extents, value_of, wait_for
from driver import Desktop
from material import copy_bundle, make_clip
from servers import HOSTILE, Server


class Walk:
    def __init__(self, desktop, bundle, language, scale):
        desktop.new_user()
        desktop.set_defaults(bundle, kAppCustomizeLanguage=language)
        desktop.move(0, 0)
        self.desktop, self.bundle, self.presents = desktop, bundle, False
        desktop.scale = scale
        self.app = desktop.launch(bundle, QT_SCALE_FACTOR=str(scale))

    def at_home(self):
        self.desktop.move(0, 0)

    def module_buttons(self):
        """The four of the home screen, from the left."""
        buttons = [button for button in self.app.find_all('push button') if extents(button)[3] >= 90]
        return sorted(buttons, key=extents) if len(buttons) == 4 else None

    def hover(self, index):
        self.desktop.hover(wait_for(self.module_buttons, 'the buttons of the home screen')[index])

    def enter(self, index):
        self.desktop.click(wait_for(self.module_buttons, 'the buttons of the home screen')[index])
        wait_for(lambda: not self.module_buttons(), 'the module')
        self.desktop.move(0, 0)

    def leave(self):
        """By the close button, which comes first in every window."""
        self.desktop.click(min(self.app.find_all('push button'), key=lambda button: extents(button)[1::-1]))
        wait_for(self.module_buttons, 'the home screen')
        self.at_home()

    def open_settings(self):
        """By the button in the corner of the home screen."""
        self.desktop.click(max(self.app.find_all('push button'), key=lambda button: extents(button)[1::-1]))
        self.app.find('dialog')
        self.presents = True

    def scroll_settings_to_end(self):
        """By the last of the section buttons, which are as wide as their column."""
        buttons = [button for button in self.app.find_all('push button') if extents(button)[2] == 140]
        self.desktop.click(max(buttons, key=lambda button: extents(button)[1]))
        self.desktop.move(0, 0)

    def search_settings(self):
        self.desktop.click(min(self.app.find_all('text'), key=lambda field: extents(field)[1]))
        self.desktop.x('xdotool', 'type', 'folder')
        self.app.find('list item', 'dvd folder')
        self.desktop.key('Down', 'Down')

    def close_settings(self):
        self.desktop.key('Escape', 'Escape')
        wait_for(lambda: not self.app.find_all('dialog'), 'the settings to close')
        self.presents = False

    def add_film(self):
        film = os.path.join(self.desktop.folder, 'Holiday.mkv')
        if not os.path.exists(film):
            make_clip(film, seconds=20, size='1280x720')
        self.desktop.launch(self.bundle, film).wait_for_end()
        self.app.find('list item', re.compile('Holiday.mkv'))

    def convert(self):
        self.desktop.key('ctrl+Return')
        bar = self.app.find('progress bar')
        wait_for(lambda: value_of(bar) > 0.2 * bar.get_maximum_value(), 'the progress to move')

    def show_options(self):
        self.desktop.click(self.app.find('check box'))
        self.desktop.move(0, 0)

    def edit_film(self):
        self.desktop.key('ctrl+e')
        self.app.find('dialog')
        self.presents = True

    def show_formats(self):
        self.desktop.key('ctrl+f')
        self.app.find('dialog')
        self.presents = True

    def close_dialog(self):
        self.desktop.key('Escape')
        wait_for(lambda: not self.app.find_all('dialog'), 'the dialog to close')
        self.presents = False

    def wait_until_converted(self):
        folder = os.path.join(self.desktop.home, 'Movies/Mac Video Library')
        wait_for(lambda: [name for name in os.listdir(folder) if not name.startswith('.')], 'the film', 120)

    def picture(self, path):
        """Of the window; the one in front, where it is presented over another."""
        window = self.app.windows()[-1] if self.presents else self.app.wait_for_window()
        take_picture(self.desktop, self.app, window['id'], path)


def take_picture(desktop, app, window, path):
    """Once the window is painted and nothing moves in it; a conversion moves for ever."""
    before = b''
    for _ in range(20):
        desktop.screenshot(path, window)
        with open(path, 'rb') as file:
            after = file.read()
        if after == before and int(desktop.x('identify', '-format', '%k', path)) > 1:
            return
        before = after
    if not app.find_all('progress bar'):
        raise Failure(f'{path} shows a window that does not settle')


STOPS = (  # picture, the way there from the stop before
    ('01-home', Walk.at_home),
    ('02-home-hover', lambda walk: walk.hover(1)),
    ('03-settings', Walk.open_settings),
    ('04-settings-end', Walk.scroll_settings_to_end),
    ('05-settings-search', Walk.search_settings),
    ('06-home-after-settings', Walk.close_settings),
    ('10-converter', lambda walk: walk.enter(0)),
    ('11-converter-ready', Walk.add_film),
    ('11a-converter-edit', Walk.edit_film),
    ('11b-converter-edited', Walk.close_dialog),
    ('11c-converter-formats', Walk.show_formats),
    ('11d-converter-chosen', Walk.close_dialog),
    ('11e-converter-options', Walk.show_options),
    ('12-converter-converting', Walk.convert),
    ('13-converter-done', Walk.wait_until_converted),
    ('14-home-again', Walk.leave),
    ('20-ripper', lambda walk: walk.enter(1)),
    ('21-home-after-ripper', Walk.leave),
    ('30-downloader', lambda walk: walk.enter(2)),
    ('31-home-after-downloader', Walk.leave),
    ('40-recorder', lambda walk: walk.enter(3)),
    ('41-home-after-recorder', Walk.leave),
)


class Scene:
    """One window with a run of its own, against a server that says what the window is to show."""

    def __init__(self, desktop, bundle, language, server):
        desktop.new_user()
        desktop.move(0, 0)
        desktop.scale = 1
        self.desktop, self.language, self.server = desktop, language, server
        self.plain_bundle = bundle
        self.bundle = copy_bundle(bundle, desktop.home + '/Kestrel.app', TWUpdateXMLLink=server.url('/kestrel.plist'))
        self.remember()

    def remember(self, **defaults):
        self.desktop.set_defaults(self.bundle, kAppCustomizeLanguage=self.language, **defaults)

    def publish(self, version, **entries):
        section = PUBLISHED[self.language] | entries
        self.server.documents['/kestrel.plist'] = plistlib.dumps({'LastestVersion': version, self.language: section})

    def launch(self):
        self.app = self.desktop.launch(self.bundle)
        wait_for(self.app.windows, 'a window')
        self.app.find('push button')

    def choose(self, menu, item):
        """By their places."""
        menus = sorted(self.app.find_all('menu item'), key=extents)
        self.desktop.click(menus[menu])
        def items():
            shown = [node for node in self.app.find_all('menu item') if extents(node)[1] > extents(menus[menu])[1] + 10]
            return sorted(shown, key=lambda node: extents(node)[1])
        self.desktop.click(wait_for(items, 'the menu')[item])
        self.desktop.move(0, 0)

    def wait_for_second_window(self):
        wait_for(lambda: len(self.app.windows()) == 2, 'a second window')

    def about(self):
        self.launch()
        self.choose(0, 0)
        self.app.find('dialog')

    def question_after_a_crash(self):
        self.remember(KestrelNotSafeTerminate=True)
        self.launch()
        self.wait_for_second_window()

    def log(self):
        viewer = 'Contents/Resources/KestrelLogWatcher.app/Contents/MacOS/KestrelLogWatcher'
        self.launch()
        path = self.desktop.log_path(self.bundle)
        with open(path, 'a') as log:
            log.writelines(f'2026-11-21 10:{minute:02}:07.250 [main] Conversion {minute} of 40 has begun\n' for minute in range(40))
        self.app = self.desktop.launch_program(os.path.join(self.bundle, viewer), path)
        self.app.wait_for_window()
        self.app.find('push button')

    def checking(self):
        self.server.documents['/kestrel.plist'] = HOSTILE['stall after the headers']
        self.launch()
        self.choose(0, 1)
        bar = self.app.find('progress bar')
        wait_for(lambda: value_of(bar) == 70, 'the steps before the fetch')

    def unreachable(self):
        self.server.documents.clear()
        self.launch()
        self.choose(0, 1)
        bar = self.app.find('progress bar')
        wait_for(lambda: value_of(bar) == 70, 'the steps before the fetch')

    def up_to_date(self):
        self.publish('0.9')
        self.launch()
        self.choose(0, 1)
        wait_for(lambda: len(self.app.find_all('push button')) > 4 and not self.app.find_all('progress bar'), 'the news')

    def new_version(self):
        self.publish('9.0')
        self.launch()
        self.wait_for_second_window()

    def promotion(self):
        with open(PICTURE, 'rb') as picture:
            self.server.documents['/picture.png'] = picture.read()
        item = PROMOTIONS[self.language] | {'url': 'https://www.example.org/', 'rate': 100}
        configuration = {'ads': {'picture': self.server.url('/picture.png'), 'full': item}}
        self.server.documents['/configuration.json'] = json.dumps(configuration).encode()
        self.publish('0.9', ADConfigURL=self.server.url('/configuration.json'))
        self.launch()
        self.wait_for_second_window()

    def prompt(self):
        program = os.path.join(os.path.dirname(self.plain_bundle), 'tests/kestrel_show_prompt')
        self.app = self.desktop.launch_program(program, self.plain_bundle, self.language)
        self.app.wait_for_window()
        self.app.find('push button')


PICTURE = os.path.join(os.path.dirname(os.path.abspath(__file__)), '../resources/screenshots/home.png')
SCENES = (  # picture, what shows it
    ('50-about', Scene.about),
    ('51-question', Scene.question_after_a_crash),
    ('52-log', Scene.log),
    ('60-update-checking', Scene.checking),
    ('61-update-unreachable', Scene.unreachable),
    ('62-update-news', Scene.up_to_date),
    ('63-update-new-version', Scene.new_version),
    ('64-promotion', Scene.promotion),
    ('70-prompt', Scene.prompt),
)
PUBLISHED = {  # what a publisher writes
    'en': {'UpdateLog': [{'content': 'Converts up to twice as fast on machines with many processors.', 'color': '0074CC'},
                         {'content': 'Subtitles keep their places when a film is cut.'},
                         {'content': 'Remembers the folder of the last conversion.', 'color': '696969'}],
           'NotificationTitle': 'Films from the garden', 'NotificationURL': 'https://www.example.org/',
           'NotificationContent': 'A new guide shows how to film animals at dawn, and how to keep the noise out of the picture.'},
    'de': {'UpdateLog': [{'content': 'Konvertiert auf Rechnern mit vielen Prozessoren bis zu doppelt so schnell.', 'color': '0074CC'},
                         {'content': 'Untertitel behalten ihren Platz, wenn ein Film geschnitten wird.'},
                         {'content': 'Merkt sich den Ordner der letzten Konvertierung.', 'color': '696969'}],
           'NotificationTitle': 'Filme aus dem Garten', 'NotificationURL': 'https://www.example.org/',
           'NotificationContent': 'Ein neuer Leitfaden zeigt, wie man Tiere im Morgengrauen filmt und das Bild rauschfrei hält.'},
    'ja': {'UpdateLog': [{'content': 'プロセッサの多いマシンで変換が最大 2 倍速くなりました。', 'color': '0074CC'},
                         {'content': '動画をカットしても字幕の位置が保たれます。'},
                         {'content': '最後に変換したフォルダを記憶します。', 'color': '696969'}],
           'NotificationTitle': '庭で撮る映像', 'NotificationURL': 'https://www.example.org/',
           'NotificationContent': '夜明けの動物を撮り、ノイズのない映像に仕上げる方法を新しいガイドで紹介します。'},
}
PROMOTIONS = {
    'en': {'title': 'All your films in one place', 'button': 'Take a Look', 'label': 'No, Thanks',
           'details': ['<p>The library sorts what you convert by <b>date, place and people</b>.</p>',
                       '<ul><li>Finds doubles</li><li>Keeps the originals</li></ul>']},
    'de': {'title': 'Alle Filme an einem Ort', 'button': 'Mehr erfahren', 'label': 'Nein, danke',
           'details': ['<p>Die Bibliothek ordnet, was Sie konvertieren, nach <b>Datum, Ort und Personen</b>.</p>',
                       '<ul><li>Findet Doppeltes</li><li>Behält die Originale</li></ul>']},
    'ja': {'title': 'すべての映像をひとつの場所に', 'button': '詳しく見る', 'label': '今はしない',
           'details': ['<p>変換した映像を<b>日付・場所・人物</b>で整理します。</p>',
                       '<ul><li>重複を見つけます</li><li>元のファイルはそのままです</li></ul>']},
}
WALKS = (  # ending of the names, language, scale, last stop
    ('', 'en', 1, '41-home-after-recorder'),
    ('-de', 'de', 1, '11-converter-ready'),
    ('-ja', 'ja', 1, '11-converter-ready'),
    ('-1.5x', 'en', 1.5, '02-home-hover'),
    ('-2x', 'en', 2, '02-home-hover'),
)


def go_on_walks(desktop, bundle, folder):
    for ending, language, scale, last_stop in WALKS:
        walk = Walk(desktop, bundle, language, scale)
        for name, way in STOPS:
            way(walk)
            walk.picture(os.path.join(folder, f'{name}{ending}.png'))
            print(f'{name}{ending}.png', flush=True)
            if name == last_stop:
                break
        if (status := walk.app.end()) != 0:
            raise Failure(f'the program ended with {status}:\n{walk.app.output()}')


def show_scenes(desktop, bundle, folder):
    for ending, language in (('', 'en'), ('-de', 'de'), ('-ja', 'ja')):
        for name, show in SCENES:
            with Server() as server:
                scene = Scene(desktop, bundle, language, server)
                show(scene)
                take_picture(desktop, scene.app, scene.app.windows()[-1]['id'], os.path.join(folder, f'{name}{ending}.png'))
                print(f'{name}{ending}.png', flush=True)
                desktop.end_apps()


def main():
    bundle, folder = map(os.path.abspath, sys.argv[1:])
    os.makedirs(folder, exist_ok=True)
    for picture in glob.glob(os.path.join(glob.escape(folder), '*.png')):
        os.remove(picture)
    try:
        with Desktop(size='1920x1200x24') as desktop:
            go_on_walks(desktop, bundle, folder)
            show_scenes(desktop, bundle, folder)
    except (Failure, OSError, subprocess.SubprocessError) as reason:
        print(f'The tour ended early: {reason}', file=sys.stderr)
        return 1
    print(f'The pictures are in {folder}')
    return 0


if __name__ == '__main__':
    sys.exit(main())
