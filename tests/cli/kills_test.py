#!/usr/bin/python3
"""kills_test.py BUNDLE [TIMES]: kills real conversions at random moments; after the next start no job is lost, nothing unfinished is
left, and nothing is done without its file."""
import json
import os
import random
import resource
import sys
import time

from harness import Cli, make_clip


def work_of(process):
    """Seconds of processor time of a process and all below it; none where it has ended."""
    try:
        with open(f'/proc/{process}/stat', encoding='utf-8') as stat, open(f'/proc/{process}/task/{process}/children', encoding='utf-8') as children:
            ticks = sum(map(int, stat.read().rpartition(')')[2].split()[11:15]))
            return ticks / os.sysconf('SC_CLK_TCK') + sum(work_of(child) for child in children.read().split())
    except OSError:
        return 0


def main():
    bundle, times = sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 300
    cli, draw = Cli(bundle), random.Random(7)
    out = cli.folder('out')
    clip = make_clip(cli.path('film.mkv'), 8)
    moments, faults = {}, []
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    cli.results('convert', '--no-copy', '--to', out, clip)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    work = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
    known = 1
    for attempt in range(times):
        process = cli.start('--json', 'convert', '--no-copy', '--to', out, clip)
        moment = draw.uniform(0, work * 1.1)
        while process.poll() is None and work_of(process.pid) < moment:
            time.sleep(0.001)
        process.kill()
        output, _ = process.communicate()
        # Whatever was told of a job, it was stored before.
        known += 1 if output.strip() else 0
        _, jobs, _ = cli.run('jobs')
        states = [job['state'] for job in jobs]
        last = states[-1] if states else None
        moments[last] = moments.get(last, 0) + 1
        if len(jobs) < known:
            faults.append(f'{attempt}: {known - len(jobs)} jobs lost')
        known = len(jobs)
        files = {name: os.path.getsize(os.path.join(out, name)) for name in os.listdir(out)}
        done = {path for job in jobs for path in job['outputs']}
        if any(name.startswith('.') or size == 0 for name, size in files.items()):
            faults.append(f'{attempt}: left {files}')
        if any(not os.path.exists(path) for path in done):
            faults.append(f'{attempt}: done without its file')
        if any(state in ('running', 'waiting', 'checking') for state in states):
            faults.append(f'{attempt}: {states}')
    print(json.dumps({'kills': times, 'last states': moments, 'faults': faults[:10]}))
    cli.close()
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main())
