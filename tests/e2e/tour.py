#!/usr/bin/python3
"""tour.py BUNDLE FOLDER: walks through the windows on a private display and leaves a picture of each in FOLDER.

A new window joins by a row in STOPS. Controls are found by their place where their names change with the language.
"""
import glob
import os
import subprocess
import sys

from accessible import Failure, extents, value_of, wait_for
from driver import Desktop
from material import make_clip


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
        self.app.find('table cell', 'Holiday.mkv')

    def convert(self):
        self.desktop.click(self.app.find('push button', 'Convert'))
        bar = self.app.find('progress bar')
        wait_for(lambda: value_of(bar) > 0.2 * bar.get_maximum_value(), 'the progress to move')

    def wait_until_converted(self):
        self.app.find('push button', 'Convert', patience=120)

    def window(self):
        """The one in front, where it is presented over another."""
        return self.app.windows()[-1] if self.presents else self.app.wait_for_window()

    def picture(self, path):
        """Of the window, once it is painted and nothing moves in it; a conversion moves for ever."""
        window = self.window()['id']
        before = b''
        for _ in range(20):
            self.desktop.screenshot(path, window)
            with open(path, 'rb') as file:
                after = file.read()
            if after == before and int(self.desktop.x('identify', '-format', '%k', path)) > 1:
                return
            before = after
        if not self.app.find_all('progress bar'):
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
WALKS = (  # ending of the names, language, scale, last stop
    ('', 'en', 1, '41-home-after-recorder'),
    ('-de', 'de', 1, '11-converter-ready'),
    ('-ja', 'ja', 1, '11-converter-ready'),
    ('-1.5x', 'en', 1.5, '02-home-hover'),
    ('-2x', 'en', 2, '02-home-hover'),
)


def main():
    bundle, folder = map(os.path.abspath, sys.argv[1:])
    os.makedirs(folder, exist_ok=True)
    for picture in glob.glob(os.path.join(glob.escape(folder), '*.png')):
        os.remove(picture)
    try:
        with Desktop(size='1920x1200x24') as desktop:
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
    except (Failure, OSError, subprocess.SubprocessError) as reason:
        print(f'The tour ended early: {reason}', file=sys.stderr)
        return 1
    print(f'The pictures are in {folder}')
    return 0


if __name__ == '__main__':
    sys.exit(main())
