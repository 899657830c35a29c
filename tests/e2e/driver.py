"""Works the real program from outside: a private display, its accessibility tree, real mouse and key events.

    with Desktop() as desktop:
        app = desktop.launch(bundle)
        desktop.click(app.find('push button', 'Video Converter'))

One Desktop a Python process: the accessibility library keeps its first connection for ever. Whatever comes to life
below this process (orphans included, which become its children) ends with the Desktop.
"""
import atexit
import ctypes
import json
import os
import plistlib
import re
import shutil
import signal
import subprocess
import tempfile
import time

from accessible import PATIENCE, Failure, children, extents, outline, states, wait_for, walk
from material import bundle_information

BECOME_REAPER_OF_ORPHANS = 36  # prctl's PR_SET_CHILD_SUBREAPER

RECORDER = """#!/usr/bin/python3
import json, os, sys
with open(os.path.abspath(__file__) + '.jsonl', 'a') as file:
    file.write(json.dumps(sys.argv[1:]) + '\\n')
"""


class App:
    """A running program. It may be a child, or one that another program started."""

    def __init__(self, desktop, pid, log=None):
        self.desktop, self.pid, self.log, self.status = desktop, pid, log, None
        desktop.apps.append(self)

    def node(self):
        root = self.desktop.accessibility.get_desktop(0)
        for child in children(root):
            if child.get_process_id() == self.pid:
                child.set_cache_mask(0)
                return child
        raise Failure(f'process {self.pid} is not on the accessibility bus:\n{self.output()}')

    def find_all(self, role, name=None):
        """Controls on screen. None stands for any role or name; a pattern is searched for in the name."""
        def matches(node):
            if role not in (None, node.get_role_name()) or 'showing' not in states(node):
                return False
            return name.search(node.get_name()) if isinstance(name, re.Pattern) else name in (None, node.get_name())
        return [node for node in walk(self.node()) if matches(node)]

    def find(self, role, name=None, patience=PATIENCE):
        try:
            return wait_for(lambda: self.find_all(role, name), f'{role} {name or ""}', patience)[0]
        except Failure as failure:
            raise Failure(f'{failure}\n{outline(self.node()) if self.is_running() else self.output()}') from None

    def texts(self):
        return [node.get_name() for node in self.find_all('label')]

    def wait_for_text(self, text, patience=PATIENCE):
        """`text` begins a label that is on screen."""
        wait_for(lambda: any(label.startswith(text) for label in self.texts()), f'the text "{text}"', patience)

    def windows(self):
        return [window for window in self.desktop.windows() if window['pid'] == self.pid]

    def wait_for_window(self, title=None):
        """The window, once it is the only one: while one zooms into another there are two."""
        def settled():
            windows = self.windows()
            return windows[0] if len(windows) == 1 and title in (None, windows[0]['title']) else None
        return wait_for(settled, f'a window {title or ""} of process {self.pid}')

    def output(self):
        if not self.log:
            return ''
        with open(self.log, errors='replace') as file:
            return file.read()

    def memory(self):
        """The most that it has had so far, in MiB."""
        with open(f'/proc/{self.pid}/status') as file:
            return int(re.search(r'VmHWM:\s*(\d+) kB', file.read())[1]) / 1024

    def main_thread_seconds(self):
        """Processor time that the thread of its windows has had so far."""
        return self.processor_seconds(f'task/{self.pid}/stat')

    def processor_seconds(self, place='stat'):
        with open(f'/proc/{self.pid}/{place}') as file:
            fields = file.read().rpartition(')')[2].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf('SC_CLK_TCK')

    def is_sanitized(self):
        """Built with the address sanitizer, which keeps what is freed."""
        with open(f'/proc/{self.pid}/maps') as file:
            return 'libasan' in file.read()

    def is_running(self):
        if self.status is None:
            ended, status = os.waitpid(self.pid, os.WNOHANG)
            self.status = os.waitstatus_to_exitcode(status) if ended else None
        return self.status is None

    def wait_for_end(self):
        """The exit status; negative for a signal."""
        wait_for(lambda: not self.is_running(), f'process {self.pid} to end')
        return self.status

    def end(self, number=signal.SIGTERM):
        if self.is_running():
            os.kill(self.pid, number)
        return self.wait_for_end()


class Desktop:
    def __init__(self, size='1440x900x24', accessible=True):
        self.apps, self.homes = [], 0
        self.folder = tempfile.mkdtemp(prefix='kestrel-e2e-')
        ctypes.CDLL(None).prctl(BECOME_REAPER_OF_ORPHANS, 1, 0, 0, 0)
        signal.signal(signal.SIGTERM, signal.default_int_handler)  # as Ctrl-C
        atexit.register(self.close)
        self.environment = {key: value for key, value in os.environ.items() if key.endswith('SAN_OPTIONS')}
        self.environment.update(LC_ALL='C.UTF-8', TZ='UTC', QT_QPA_PLATFORM='xcb', GSETTINGS_BACKEND='memory',
                                # Nothing beyond this machine is asked: the proxy for it refuses.
                                http_proxy='http://127.0.0.1:9', https_proxy='http://127.0.0.1:9',
                                no_proxy='127.0.0.1,localhost')
        self.new_user()
        self._start(size)
        if accessible:
            self._start_accessibility()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def _start(self, size):
        self.environment['DISPLAY'] = ':' + self._serve('Xvfb', '-displayfd', '{}', '-screen', '0', size,
                                                        '-nolisten', 'tcp', '-noreset', '-dpi', '96')
        self.environment['DBUS_SESSION_BUS_ADDRESS'] = self._serve('dbus-daemon', '--session', '--nofork', '--nopidfile',
                                                                   '--print-address={}')
        self._serve('openbox', '--sm-disable')
        wait_for(lambda: 'window id' in self.x('xprop', '-root', '_NET_SUPPORTING_WM_CHECK'), 'the window manager')

    def _start_accessibility(self):
        self._serve('/usr/libexec/at-spi-bus-launcher', '--launch-immediately', '--a11y=1')
        wait_for(lambda: 'unix:' in self.x('xprop', '-root', 'AT_SPI_BUS'), 'the accessibility bus')
        self.environment['QT_LINUX_ACCESSIBILITY_ALWAYS_ON'] = '1'
        for key in ('DISPLAY', 'DBUS_SESSION_BUS_ADDRESS', 'XDG_RUNTIME_DIR'):
            os.environ[key] = self.environment[key]
        os.environ.pop('AT_SPI_BUS_ADDRESS', None)
        import gi  # reads the environment
        gi.require_version('Atspi', '2.0')
        from gi.repository import Atspi
        self.accessibility = Atspi
        Atspi.init()
        Atspi.set_timeout(3000, 10000)
        wait_for(lambda: Atspi.get_desktop(0).get_child_count() >= 0, 'the accessibility registry')

    def _serve(self, *command):
        """Starts a program of the desktop, which ends with this process whatever happens. Where an argument has a place
        for it, the program writes a line to a pipe when it is up: the answer."""
        reading, writing = os.pipe()
        with open(os.path.join(self.folder, 'desktop.log'), 'ab') as log:
            service = subprocess.Popen(['setpriv', '--pdeathsig', 'TERM'] + [part.format(writing) for part in command],
                                       env=self.environment, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                                       start_new_session=True, pass_fds=(writing,))
            service.returncode = 0  # it is close() that waits
        os.close(writing)
        with os.fdopen(reading) as pipe:
            return pipe.readline().strip() if any('{}' in part for part in command) else ''

    def new_user(self):
        """A fresh home for programs that start from now on, with recording stand-ins for browser and mail program."""
        self.homes += 1
        self.home = os.path.join(self.folder, f'home{self.homes}')
        self.programs = os.path.join(self.home, 'programs')
        runtime = os.path.join(self.home, 'runtime')
        for folder in (self.programs, runtime):
            os.makedirs(folder, mode=0o700)
        for name in ('xdg-open', 'xdg-email'):
            with open(os.open(os.path.join(self.programs, name), os.O_WRONLY | os.O_CREAT, 0o700), 'w') as file:
                file.write(RECORDER)
        self.environment.update(PATH=f'{self.programs}:/usr/local/bin:/usr/bin:/bin', HOME=self.home,
                                XDG_RUNTIME_DIR=runtime, XDG_CONFIG_HOME=self.home + '/.config',
                                XDG_DATA_HOME=self.home + '/.local/share', XDG_CACHE_HOME=self.home + '/.cache',
                                XDG_STATE_HOME=self.home + '/.local/state')

    def calls(self, program):
        """What a stand-in was called with: a list of arguments a call."""
        path = os.path.join(self.programs, program + '.jsonl')
        if not os.path.exists(path):
            return []
        with open(path) as file:
            return [json.loads(line) for line in file]

    def defaults_path(self, bundle):
        return os.path.join(self.home, '.config', bundle_information(bundle)['CFBundleIdentifier'], 'defaults.plist')

    def log_path(self, bundle, name='kestrel.log'):
        return os.path.join(self.home, '.local/state', bundle_information(bundle)['CFBundleName'], name)

    def defaults(self, bundle):
        with open(self.defaults_path(bundle), 'rb') as file:
            return plistlib.load(file)

    def set_defaults(self, bundle, **values):
        path = self.defaults_path(bundle)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, 'wb') as file:
            plistlib.dump(values, file)

    def launch(self, bundle, *arguments, **environment):
        return self.launch_program(os.path.join(bundle, 'Contents/MacOS/Kestrel'), *arguments, **environment)

    def launch_program(self, program, *arguments, **environment):
        log = os.path.join(self.home, f'output{len(self.apps)}.log')
        with open(log, 'wb') as output:
            process = subprocess.Popen([program, *arguments], cwd=self.home, env=self.environment | environment,
                                       stdin=subprocess.DEVNULL, stdout=output, stderr=output, start_new_session=True)
        process.returncode = 0  # it is App that waits
        return App(self, process.pid, log)

    def wait_for_relaunch(self, bundle, known):
        """A run of the bundle's program that is none of the `known` ones."""
        program = os.path.join(os.path.realpath(bundle), 'Contents/MacOS/Kestrel')
        def found():
            unknown = set(child_pids()) - {app.pid for app in known}
            return next((pid for pid in unknown if executable(pid) == program), None)
        return App(self, wait_for(found, f'{program} to be started again'))

    def x(self, *command):
        return subprocess.run([str(part) for part in command], env=self.environment, capture_output=True, text=True,
                              timeout=PATIENCE).stdout

    def windows(self):
        """Windows on screen, topmost last: id, pid, title."""
        found = []
        for window in re.findall(r'0x[0-9a-f]+', self.x('xprop', '-root', '_NET_CLIENT_LIST_STACKING')):
            properties = self.x('xprop', '-id', window, '_NET_WM_PID', '_NET_WM_NAME', 'WM_STATE')
            pid = re.search(r'_NET_WM_PID\S* = (\d+)', properties)
            title = re.search(r'_NET_WM_NAME\S* = "(.*)"', properties)
            if pid and 'window state: Normal' in properties:
                found.append({'id': window, 'pid': int(pid[1]), 'title': title[1] if title else ''})
        return found

    def active_window(self):
        """The id of the one that has the keyboard."""
        found = re.search(r'0x[0-9a-f]+', self.x('xprop', '-root', '_NET_ACTIVE_WINDOW'))
        return found[0] if found else None

    def screenshot(self, path, window='root'):
        self.x('import', '-silent', '-window', window, 'png:' + path)
        if not os.path.exists(path):
            raise Failure(f'no picture of window {window}')

    scale = 1  # pixels a point, of the programs under way

    def hover(self, node):
        """Moves the pointer onto the control, once that stands still."""
        place = []
        def is_still():
            place.append(extents(node))
            return len(place) > 1 and place[-1] == place[-2] and place[-1][2] > 0
        wait_for(is_still, 'a control to stand still')
        x, y, width, height = place[-1]
        # Controls report points, the pointer moves in pixels.
        self.move(round((x + width / 2) * self.scale), round((y + height / 2) * self.scale))

    def move(self, x, y):
        self.x('xdotool', 'mousemove', x, y)

    def click(self, node):
        wait_for(lambda: {'enabled', 'sensitive'} <= states(node), f'"{node.get_name()}" to be enabled')
        self.hover(node)
        self.x('xdotool', 'sleep', '0.05', 'click', 1)

    def key(self, *keys):
        self.x('xdotool', 'key', '--clearmodifiers', *keys)

    def end_apps(self):
        for app in self.apps:
            try:
                app.end()
            except Failure:
                app.end(signal.SIGKILL)
        self.apps = []

    def close(self):
        """Ends everything, programs first, and removes the folder."""
        atexit.unregister(self.close)
        try:
            self.end_apps()
        finally:
            for number in (signal.SIGTERM, signal.SIGKILL):
                deadline = time.monotonic() + 3
                while (ours := child_pids()) and time.monotonic() < deadline:
                    for pid in ours:
                        os.kill(pid, number)
                        os.waitpid(pid, os.WNOHANG)
                    time.sleep(0.02)
            shutil.rmtree(self.folder, ignore_errors=True)


def executable(pid):
    try:
        return os.readlink(f'/proc/{pid}/exe')
    except OSError:  # it has ended
        return None


def child_pids():
    with open(f'/proc/self/task/{os.getpid()}/children') as file:
        return [int(pid) for pid in file.read().split()]
