"""Windows where people put them: on the screen, dragged, under a sheet, worked by the keyboard alone."""
import glob
import os
import re
import subprocess
import time
from itertools import pairwise

from accessible import children, extents, states, wait_for
from harness import ProgramTest, main
from material import make_clip, unarchived


def focused(node):
    """Place and name of the control below `node` that has the keyboard."""
    for child in children(node):
        found = states(child)
        if 'focused' in found:
            return *extents(child), child.get_name()
        if 'showing' in found and (place := focused(child)):
            return place
    return None


def is_read_next(before, after):
    """Whether it begins below, or right of it in the same line."""
    x, y, width, height, _ = before
    next_x, next_y, _, next_height, _ = after
    return next_y >= y + height or (next_x >= x + width and next_y < y + height and next_y + next_height > y)


class WindowsTest(ProgramTest):
    screen = '1920x1080x24'

    def frame(self, window):
        place = self.desktop.x('xwininfo', '-id', window['id'])
        return [int(re.search(rf'{name}:\s+(-?\d+)', place)[1])
                for name in ('Absolute upper-left X', 'Absolute upper-left Y', 'Width', 'Height')]

    def test_dragging_keeps_up_with_the_pointer(self):
        app = self.launch()
        window = app.wait_for_window()
        x, y, width, _ = self.frame(window)
        self.desktop.move(x + width // 2, y + 15)
        self.desktop.x('xdotool', 'mousedown', 1)
        for step in range(1, 9):
            self.desktop.move(x + width // 2 + 8 * step, y + 15 + 4 * step)
            if step > 1:  # the desktop has taken over
                wait_for(lambda: self.frame(window)[0] > x, 'the window to move')
        self.desktop.x('xdotool', 'mouseup', 1)
        wait_for(lambda: self.frame(window)[:2] == [x + 64, y + 32], f'the window to go from {x}, {y} by 64, 32')

    def test_a_held_button_is_ringed_in_the_recording(self):
        app = self.launch()
        self.click(app, 'push button', 'Recorder')
        self.click(app, 'combo box', 'Sound of the computer')
        self.desktop.key('End', 'Return')
        for _ in range(2):  # counts down, and begins at once
            self.click(app, 'push button', 'Record')
        wait_for(lambda: not app.windows(), 'the window to step out of the picture')
        self.desktop.move(400, 300)
        self.desktop.x('xdotool', 'mousedown', 1)
        def films(pattern):
            return glob.glob(os.path.join(self.desktop.home, '**', pattern), recursive=True, include_hidden=True)
        pressed = time.time()
        wait_for(lambda: any(os.path.getmtime(path) > pressed + 2 for path in films('.*.mkv')), 'two seconds of pictures')
        self.desktop.key('ctrl+alt+s')
        path, = wait_for(lambda: films('Recording*.mov'), 'the recording')
        self.desktop.x('xdotool', 'mouseup', 1)
        picture = subprocess.run(['ffmpeg', '-v', 'error', '-sseof', '-0.3', '-i', path, '-frames:v', '1', '-vf',
                                  'crop=64:64:368:268', '-pix_fmt', 'rgb24', '-f', 'rawvideo', '-'], check=True,
                                 capture_output=True).stdout
        yellow = sum(red > 200 and 150 < green < 230 and blue < 80 for red, green, blue in
                     zip(picture[::3], picture[1::3], picture[2::3]))
        self.assertGreater(yellow, 100)

    def test_menus_and_their_shortcuts_work_under_a_sheet(self):
        app = self.launch()
        self.click(app, 'push button', 'Settings')
        app.find('dialog', 'Settings')
        def help_is_shown(times):
            self.desktop.key('F1')
            wait_for(lambda: sum('help' in call[0] for call in self.desktop.calls('xdg-open')) == times, 'the help page')
        help_is_shown(1)
        window = app.windows()[0]['id']
        self.desktop.x('xdotool', 'windowminimize', window)
        wait_for(lambda: not app.windows(), 'the windows to be minimised')
        self.desktop.x('xdotool', 'windowactivate', window)
        wait_for(lambda: len(app.windows()) == 2, 'the window and its sheet')
        self.click(app, 'menu item', 'Help')
        app.find('menu item', 'Report Bug')
        self.desktop.key('Escape')
        wait_for(lambda: not app.find_all('menu item', 'Report Bug'), 'the menu to close')
        self.click(app, 'push button', 'Details…')
        wait_for(lambda: len(app.find_all('dialog')) == 2, 'a sheet over the sheet')
        help_is_shown(2)
        self.desktop.key('ctrl+w')
        wait_for(lambda: len(app.find_all('dialog')) == 1, 'the upper one to close')
        self.desktop.key('ctrl+w')
        wait_for(lambda: not app.find_all('dialog'), 'the settings to close')
        self.click(app, 'push button', 'About')
        app.find('dialog')
        self.desktop.key('ctrl+q')
        self.assertEqual(app.wait_for_end(), 0)

    def test_by_keyboard_alone(self):
        app = self.launch()
        button = app.find('push button', 'Video Converter')
        for _ in range(10):
            if 'focused' in states(button):
                break
            self.desktop.key('Tab')
        app.wait_for_text('Convert & Process Video')
        self.desktop.key('Return')
        app.wait_for_window('Kestrel 4K - Video Converter')
        self.desktop.key('ctrl+o')
        app.find('dialog', 'Add Files…')
        self.desktop.key('Escape')
        wait_for(lambda: not app.find_all('dialog'), 'the file dialog to close')
        self.desktop.key('F10')
        app.find('menu item', 'Check for Updates…')
        self.desktop.key('Escape', 'Escape', 'ctrl+w')
        app.wait_for_window('Kestrel')

    def test_tab_goes_as_one_reads(self):
        app = self.launch()
        for module in 'Video Converter', 'DVD Ripper', 'Downloader', 'Recorder':
            self.click(app, 'push button', module)
            app.wait_for_window(f'Kestrel 4K - {module}')
            stops = [focused(app.node())]
            while len(stops) < 3 or stops[-1] != stops[1]:  # the first may be none that Tab comes back to
                self.desktop.key('Tab')
                stops.append(wait_for(lambda: (now := focused(app.node())) != stops[-1] and now, 'the next control'))
            stops = stops[2:]
            top = stops.index(min(stops, key=lambda stop: stop[1]))
            for before, after in pairwise(stops[top:] + stops[:top]):
                self.assertTrue(is_read_next(before, after), f'{module}: {after} comes after {before}')
            self.click(app, 'push button', 'Back')

    def test_everything_fits_a_screen_of_large_points(self):
        film = make_clip(self.desktop.home + '/Film.mkv')
        app = self.launch(film, QT_SCALE_FACTOR='2')
        viewer = os.path.join(self.bundle, 'Contents/Resources/KestrelLogWatcher.app/Contents/MacOS/KestrelLogWatcher')
        app.find('list item', re.compile('Film.mkv'))
        def check(app, name):
            x, y, width, height = self.frame(app.windows()[-1])
            self.assertTrue(x >= 0 and y >= 0 and x + width <= 1920 and y + height <= 1080, name)
        check(app, 'converter')
        for keys in ('ctrl+e', 'ctrl+f', 'ctrl+comma'):
            self.desktop.key(keys)
            app.find('dialog')
            check(app, keys)
            self.desktop.key('Escape')
            wait_for(lambda: not app.find_all('dialog'), f'what {keys} opened to close')
        viewer = self.desktop.launch_program(viewer, self.desktop.log_path(self.bundle), QT_SCALE_FACTOR='2')
        viewer.wait_for_window()
        check(viewer, 'log viewer')

    def test_what_is_typed_is_kept_when_the_display_goes(self):
        with subprocess.Popen(['Xvfb', '-displayfd', '1', '-nolisten', 'tcp', '-noreset', '-screen', '0', '1440x900x24'],
                              text=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL) as display:
            app = self.desktop.launch(self.bundle, DISPLAY=':' + display.stdout.readline().strip())
            app.find('push button', 'Settings').do_action(0)
            app.find('dialog', 'Settings')
            app.find('check box', 'Use a proxy').do_action(0)
            app.find('text', 'Proxy address').set_text_contents('http://proxy.example')
            display.terminate()
            display.wait()
        self.assertEqual(app.wait_for_end(), 1, app.output())
        self.assertIs(self.defaults()['KestrelNotSafeTerminate'], False)
        downloader = unarchived(self.defaults()['setting'])['downloader']
        self.assertEqual((downloader['proxyURL'], downloader['proxyEnable']), ('http://proxy.example', True))


if __name__ == '__main__':
    main()
