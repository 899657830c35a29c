#!/usr/bin/python3
"""startup.py [--runs N] [--first-paint LIBRARY] PROGRAM…: how long programs take to their first window, and what they
have a second later.

They start in turn on a private display. Window: from just before the program is executed until the window manager lists
its first window. Unique: pages that no other process shares; proportional: with its share of those. Medians of N runs,
after one that does not count; × is against the last program. With the library that ends a program at its first picture,
also what the instructions up to there are spent on.
"""
import argparse
import os
import re
import select
import statistics
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', 'tests', 'e2e'))
from accessible import PATIENCE, Failure  # noqa: E402
from driver import Desktop  # noqa: E402
import instructions  # noqa: E402


class WindowList:
    """The window manager's list of windows as it changes."""

    def __init__(self, desktop):
        self.spy = subprocess.Popen(['xprop', '-root', '-spy', '_NET_CLIENT_LIST'], env=desktop.environment,
                                    stdout=subprocess.PIPE)
        self.windows = self.next_list()

    def next_list(self):
        if not select.select([self.spy.stdout], [], [], PATIENCE)[0]:
            raise Failure(f'no window in {PATIENCE} s')
        # Unbuffered: what a buffer held back, select would not see.
        line = b''
        while not line.endswith(b'\n'):
            line += os.read(self.spy.stdout.fileno(), 1)
        return set(re.findall(rb'0x[0-9a-f]+', line))

    def wait_until(self, condition):
        while not condition(self.windows):
            self.windows = self.next_list()


def memory(pid):
    with open(f'/proc/{pid}/smaps_rollup') as file:
        kilobytes = {key: int(value) for key, value in re.findall(r'^(\w+):\s+(\d+) kB', file.read(), re.M)}
    return (kilobytes['Private_Clean'] + kilobytes['Private_Dirty']) / 1024, kilobytes['Pss'] / 1024


def measure(desktop, windows, program):
    """Milliseconds to the window, unique and proportional MB, threads."""
    begin = time.monotonic()
    app = desktop.launch_program(program)
    windows.wait_until(bool)
    shown = (time.monotonic() - begin) * 1000
    time.sleep(1)
    result = (shown, *memory(app.pid), len(os.listdir(f'/proc/{app.pid}/task')))
    app.end()
    windows.wait_until(lambda listed: not listed)
    return result


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('--runs', type=int, default=15)
    parser.add_argument('--first-paint', metavar='LIBRARY')
    parser.add_argument('programs', nargs='+', metavar='PROGRAM')
    options = parser.parse_args()
    options.programs = [os.path.abspath(program) for program in options.programs]
    results = {program: [] for program in options.programs}
    with Desktop(accessible=False) as desktop:
        windows = WindowList(desktop)
        for run in range(options.runs + 1):
            for program in options.programs:
                result = measure(desktop, windows, program)
                if run > 0:
                    results[program].append(result)
        print_results(results)
        if options.first_paint and instructions.is_possible():
            for program in options.programs:
                print(f'\n{os.path.basename(program)}')
                print(instructions.profile(desktop, program, os.path.abspath(options.first_paint)))


def print_results(results):
    print(f'{"":16}{"window ms":>20}{"×":>7}{"unique MB":>12}{"proportional MB":>18}{"threads":>9}')
    bare = statistics.median(row[0] for row in list(results.values())[-1])
    for program, rows in results.items():
        shown, unique, proportional, threads = zip(*rows)
        median = statistics.median(shown)
        spread = f'{median:.1f} ({min(shown):.1f}-{max(shown):.1f})'
        print(f'{os.path.basename(program):16}{spread:>20}{median / bare:>7.2f}'
              f'{statistics.median(unique):>12.1f}{statistics.median(proportional):>18.1f}{max(threads):>9}')


if __name__ == '__main__':
    main()
