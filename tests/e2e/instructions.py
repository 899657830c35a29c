"""What a start costs up to its first picture, in instructions, which repeat to a thousandth however busy the machine is."""
import collections
import os
import re
import shutil
import subprocess

from accessible import Failure

PATIENCE = 300  # seconds; valgrind takes fifty times the time of the program

# What is told by name: the cost of calls into these functions, whoever makes them. They overlap with the libraries.
CAUSES = (
    ('font configuration: reading it', r'FcConfigParseAndLoad'),
    ('font configuration: the list of fonts', r'FcConfigBuildFonts'),
    ('fonts: handing the list to Qt', r'QFontconfigDatabase::populateFontDatabase'),
    ('fonts: engines', r'QFontconfigDatabase::fontEngine'),
    ('fonts: the best of all for a family', r'FcFontMatch'),
    ('fonts: fallbacks', r'QFontconfigDatabase::fallbacksForFamily'),
    ('pictures: decoding', r'QImage::load|QImageReader::read|png_image_finish_read'),
    ('pictures: scaling', r'QImage::smoothScaled|QImage::scaled'),
    ('plugins', r'QFactoryLoader::instance|QPluginLoader::'),
    ('style sheet: parsing', r'QCss::Parser::parse'),
    ('style sheet: rules for widgets', r'QStyleSheetStyle::polish\(QWidget'),
    ('settings', r'JKestrelSetting::ShareInst|UserDefaults::standardUserDefaults'),
    ('translations', r'Localization::Localization|installDialogTexts'),
    ('menus', r'AppDelegate::makeStandardMenus|AppDelegate::setupLanuageMenu'),
    ('modules', r'AppController::loadEachSubController'),
    ('home screen: making', r'KestrelController::makeInit'),
    ('home screen: painting', r'QWidgetRepaintManager::|QWidgetPrivate::paintSiblings|QBackingStore::beginPaint'),
)


class Profile:
    """Reads callgrind's output."""

    def __init__(self, path):
        self.libraries = collections.Counter()  # what adds up
        self.causes = collections.Counter()
        self._names = {}
        library = function = callee = None
        with open(path, errors='replace') as file:
            for line in file:
                key, _, value = line.rstrip('\n').partition('=')
                if key == 'ob':
                    library = self._name('ob', value)
                elif key == 'fn':
                    function = self._name('fn', value)
                elif key in ('cob', 'cfn'):
                    name = self._name(key[1:], value)
                    callee = name if key == 'cfn' else callee
                elif key == 'calls':
                    cost = int(next(file).split()[1])
                    self._count_call(function, callee, cost)
                elif line[:1] in '+-*0123456789' and not value:
                    self.libraries[os.path.basename(library)] += int(line.split()[1])
        self.total = self.libraries.total()

    def _name(self, kind, value):
        number, _, name = value.partition(' ')
        if name:
            self._names[kind, number] = name
        return self._names[kind, number]

    def _count_call(self, caller, callee, cost):
        for cause, pattern in CAUSES:
            if re.search(pattern, callee) and not re.search(pattern, caller):
                self.causes[cause] += cost

    def __str__(self):
        def table(counter):
            return [f'{count / 1e6:10.1f} M  {name}' for name, count in counter.most_common(16) if count >= 100_000]
        return '\n'.join([f'{self.total / 1e6:10.1f} M  instructions to the first picture', '  by library:',
                          *table(self.libraries), '  by cause (some are parts of others):', *table(self.causes)])


def is_possible():
    return shutil.which('valgrind') is not None


def profile(desktop, program, first_paint):
    """Of a start in the desktop's present home. `first_paint` is the library that ends it there."""
    output = os.path.join(desktop.home, 'callgrind.out')
    log = os.path.join(desktop.home, 'callgrind.log')
    environment = desktop.environment | {'LD_PRELOAD': first_paint, 'DBUS_SESSION_BUS_ADDRESS': 'disabled:'}
    environment.pop('QT_LINUX_ACCESSIBILITY_ALWAYS_ON', None)  # as it is where nobody reads the screen aloud
    with open(log, 'wb') as file:
        status = subprocess.run(['valgrind', '--tool=callgrind', '--callgrind-out-file=' + output, program],
                                env=environment, cwd=desktop.home, stdin=subprocess.DEVNULL, stdout=file, stderr=file,
                                timeout=PATIENCE).returncode
    if status != 0 or not os.path.exists(output):
        with open(log, errors='replace') as file:
            raise Failure(f'{program} ended with {status}:\n{file.read()}')
    return Profile(output)
