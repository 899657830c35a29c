#!/usr/bin/python3
"""downloads.py BUNDLE [ROUNDS]: a film through kestrel-cli against the engine by hand on the same address, in turns; then ten at once.
Prints the medians of the time to the film's first byte and to the end, how they compare, the processor time, and how the memory of kestrel-cli
went in the longest download. "Known" is what a click on "Download" is: the address was looked at before."""
import os
import resource
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import threading
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '../tests/petrel'))
from film_server import FilmServer, make_films  # noqa: E402

LIMIT = 1.05
AT_ONCE = 10
SECONDS = 30  # that the server takes for the film


class Bench:
    def __init__(self, bundle, folder):
        self.cli = os.path.join(bundle, 'Contents/Helpers/kestrel-cli')
        self.folder = folder
        films = os.path.join(folder, 'films')
        os.mkdir(films)
        make_films(films)
        subprocess.run(['ffmpeg', '-v', 'error', '-stream_loop', '59', '-i', films + '/film.mp4', '-c', 'copy', '-movflags', '+faststart',
                        films + '/long.mp4'], check=True, stdin=subprocess.DEVNULL)
        self.server = FilmServer(films)
        self.server.slow_rate = os.path.getsize(films + '/long.mp4') // SECONDS
        self.environment = {key: value for key, value in os.environ.items() if not key.startswith('XDG_')} | {'HOME': folder}
        self.pages = [self.server.address(f'page/slow/long.mp4?{number}') for number in range(AT_ONCE)]
        self.memory = []

    def by_hand(self, pages):
        """The engine's own doing, one process for each address."""
        return [['yt-dlp', '--ignore-config', '--quiet', '--output', f'{number}.mp4', page] for number, page in enumerate(pages)]

    def by_kestrel(self, pages):
        return [[self.cli, 'download', '--at-once', str(AT_ONCE), '--to', '.', *pages]]

    def start(self, commands, out):
        return [subprocess.Popen(command, cwd=out, env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                 stderr=subprocess.DEVNULL) for command in commands]

    def first_bytes(self):
        return [when for when, path in self.server.asked if path.startswith('/slow/')]

    def make_known(self, pages):
        """Has the addresses looked at and breaks off as soon as the first bytes come."""
        out = tempfile.mkdtemp(dir=self.folder)
        self.server.asked.clear()
        process, = self.start(self.by_kestrel(pages), out)
        while len(self.first_bytes()) < len(pages) and process.poll() is None:
            time.sleep(0.01)
        process.send_signal(signal.SIGINT)
        process.wait()
        shutil.rmtree(out)

    def measure(self, commands):
        """Seconds until every film's first byte was sent, until the end, and of processor time."""
        out = tempfile.mkdtemp(dir=self.folder)
        self.server.asked.clear()
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        started = time.monotonic()
        processes = self.start(commands, out)
        watcher = threading.Thread(target=self.watch_memory, args=processes)
        watcher.start()
        if any([process.wait() for process in processes]):
            sys.exit('a download failed: ' + ' '.join(commands[0]))
        end = time.monotonic() - started
        watcher.join()
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        shutil.rmtree(out)
        worked = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        return max(self.first_bytes()) - started, end, worked

    def watch_memory(self, process, *_):
        """Kilobytes, ten times a second while it runs."""
        self.memory = []
        while process.poll() is None:
            with open(f'/proc/{process.pid}/status') as status:
                resident = [line.split()[1] for line in status if line.startswith('VmRSS')]
            self.memory += [int(number) for number in resident]
            time.sleep(0.1)

    def compare(self, what, pages, rounds):
        figures = {'by hand': [], 'Kestrel': [], 'Kestrel, known': []}
        for _ in range(rounds):
            figures['by hand'].append(self.measure(self.by_hand(pages)))
            figures['Kestrel'].append(self.measure(self.by_kestrel(pages)))
            self.make_known(pages)
            figures['Kestrel, known'].append(self.measure(self.by_kestrel(pages)))
        hand = None
        for way, rows in figures.items():
            medians = [statistics.median(column) for column in zip(*rows)]
            hand = hand or medians
            verdict = ' '.join(f'{mine / theirs:.2f}x' + (' OVER' if mine > LIMIT * theirs else '')
                               for mine, theirs in zip(medians[:2], hand))
            print(f'{what}, {way}: first byte {medians[0]:.2f} s, end {medians[1]:.2f} s ({verdict}), processor {medians[2]:.2f} s', flush=True)
        third = len(self.memory) // 3
        print(f'{what}: memory of kestrel-cli {statistics.mean(self.memory[third:2 * third]) / 1024:.1f} MB in the middle third, '
              f'{statistics.mean(self.memory[2 * third:]) / 1024:.1f} MB in the last')


def main():
    bundle, rounds = os.path.abspath(sys.argv[1]), int(sys.argv[2]) if len(sys.argv) > 2 else 3
    with tempfile.TemporaryDirectory() as folder:
        bench = Bench(bundle, folder)
        bench.compare('one', bench.pages[:1], rounds)
        bench.compare('ten at once', bench.pages, rounds)
        bench.server.shutdown()


if __name__ == '__main__':
    main()
