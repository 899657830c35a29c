"""What recordings of tests show: a window that paints its clock in bits, thirty times a second, and beeps once a second.

    scene.py LOG [X Y WIDTH HEIGHT]
    scene.py LOG --only-beeps START

With `--only-beeps` another shows the clock, which has counted since START (seconds since 1970).

The log has a line for the window's number ("window 0x200001") and one for each beep, with the moment by the window's
clock at which the sound server played it ("beep 3.0214"). Ends with its standard input.
"""
import array
import ctypes
import math
import sys
import threading
import time

BITS = 24          # milliseconds of the clock, then as many inverted: what is no clock is seen
CELL = 16          # pixels of a bit's side
COLUMNS = 12
RATE = 48000
START = float(sys.argv[3]) if '--only-beeps' in sys.argv else time.time()


def clock():
    return time.time() - START


class Painter:
    def __init__(self, x, y, width, height):
        self.x11 = x11 = ctypes.CDLL('libX11.so.6')
        x11.XOpenDisplay.restype = ctypes.c_void_p
        x11.XCreateSimpleWindow.restype = x11.XDefaultRootWindow.restype = ctypes.c_ulong
        x11.XCreateGC.restype = ctypes.c_void_p
        self.display = ctypes.c_void_p(x11.XOpenDisplay(None))
        root = ctypes.c_ulong(x11.XDefaultRootWindow(self.display))
        self.window = ctypes.c_ulong(x11.XCreateSimpleWindow(self.display, root, x, y, width, height, 0, 0, 0x204060))
        x11.XMapWindow(self.display, self.window)
        self.gc = ctypes.c_void_p(x11.XCreateGC(self.display, self.window, ctypes.c_ulong(0), None))
        x11.XSync(self.display, 0)

    def paint(self, milliseconds):
        number = milliseconds | (~milliseconds & (1 << BITS) - 1) << BITS
        for bit in range(2 * BITS):
            self.x11.XSetForeground(self.display, self.gc, ctypes.c_ulong(0xffffff if number >> bit & 1 else 0))
            self.x11.XFillRectangle(self.display, self.window, self.gc, bit % COLUMNS * CELL, bit // COLUMNS * CELL,
                                    CELL, CELL)
        self.x11.XSync(self.display, 0)


class Beeper(threading.Thread):
    """One beep at each whole second of what it plays."""

    class Format(ctypes.Structure):
        _fields_ = [('format', ctypes.c_int), ('rate', ctypes.c_uint32), ('channels', ctypes.c_uint8)]

    class Buffer(ctypes.Structure):
        _fields_ = [(name, ctypes.c_uint32) for name in ('maximum', 'target', 'before', 'request', 'fragment')]

    def __init__(self, log):
        super().__init__(daemon=True)
        self.log = log
        self.pulse = ctypes.CDLL('libpulse-simple.so.0')
        self.pulse.pa_simple_new.restype = ctypes.c_void_p
        self.pulse.pa_simple_get_latency.restype = ctypes.c_uint64
        default = 2 ** 32 - 1
        attributes = self.Buffer(default, RATE // 10 * 2, 0, default, default)
        self.stream = ctypes.c_void_p(self.pulse.pa_simple_new(
            None, b'scene', 1, None, b'beeps', ctypes.byref(self.Format(3, RATE, 1)), None, ctypes.byref(attributes),
            None))

    def run(self):
        piece = RATE // 100
        beep = array.array('h', [int(20000 * math.sin(index * math.tau * 1000 / RATE)) for index in range(piece)])
        silence = array.array('h', bytes(piece * 2))
        count = 0
        while True:
            beeps = count % 100 < 5
            if count % 100 == 0 and count:
                latency = self.pulse.pa_simple_get_latency(self.stream, None) / 1e6
                self.log(f'beep {clock() + latency:.4f}')
            data = (beep if beeps else silence).tobytes()
            if self.pulse.pa_simple_write(self.stream, data, ctypes.c_size_t(len(data)), None) < 0:
                return
            count += 1


def main():
    path, *place = sys.argv[1:]
    log_file = open(path, 'w', buffering=1)

    def log(line):
        log_file.write(line + '\n')

    painter = None
    if '--only-beeps' not in place:
        painter = Painter(*[int(number) for number in place] or (0, 0, 1280, 720))
        log(f'window {painter.window.value:#x}')
    beeper = Beeper(log)
    if beeper.stream:
        beeper.start()
    threading.Thread(target=lambda: (sys.stdin.read(), os_exit()), daemon=True).start()
    picture = 0
    while True:
        time.sleep(max(0, picture / 30 - clock()))
        now = clock()
        if painter:
            painter.paint(int(now * 1000))
        picture = max(picture + 1, int(now * 30))


def os_exit():
    import os
    os._exit(0)


if __name__ == '__main__':
    main()
