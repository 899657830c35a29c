#!/usr/bin/python3
"""catalogue.py TOOL [PATTERN…]: samples of every kind through the transcoder with the arguments that Kestrel makes.

Each case converts a generated sample and looks at what arrived with ffprobe. With patterns only the cases run whose
names contain one of them. Samples are made anew, or kept in the folder that CATALOGUE_SAMPLES names. The exit status is the
number of failures."""
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import traceback

import samples

FFPROBE = ['ffprobe', '-v', 'error', '-protocol_whitelist', 'file']


def run(arguments, **options):
    return subprocess.run(arguments, stdin=subprocess.DEVNULL, capture_output=True, timeout=900, **options)


def report(path):
    return run(FFPROBE + ['-show_format', '-show_streams', '-show_chapters', '-of', 'json', '-i', f'file:{path}']).stdout.decode()


def picture_data(path):
    return run(FFPROBE + ['-select_streams', 'V:0', '-read_intervals', '%+#1', '-show_frames', '-of', 'json', '-i',
                          f'file:{path}']).stdout.decode()


class Tool:
    """The program that turns a plan into arguments."""

    def __init__(self, path):
        self.process = subprocess.Popen([path], stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def ask(self, question):
        self.process.stdin.write(json.dumps(question).encode() + b'\n')
        self.process.stdin.flush()
        return json.loads(self.process.stdout.readline())


class Output:
    """What arrived."""

    def __init__(self, path, steps):
        self.path, self.steps = path, steps
        self.told = json.loads(run(FFPROBE + ['-count_packets', '-show_format', '-show_streams', '-show_chapters', '-of', 'json',
                                              '-i', f'file:{path}']).stdout or '{}')
        self.streams = self.told.get('streams', [])

    def of(self, kind, covers=False):
        return [s for s in self.streams if s['codec_type'] == kind and bool(s['disposition']['attached_pic']) == covers]

    @property
    def video(self):
        return self.of('video')[0]

    @property
    def sounds(self):
        return self.of('audio')

    @property
    def seconds(self):
        """Nothing where the container tells none."""
        told = [float(t['duration']) for t in [self.told['format'], *self.streams] if 'duration' in t]
        return told[0] if told else None

    @property
    def packets(self):
        return int(self.video['nb_read_packets'])

    def rotation(self):
        return next((int(d['rotation']) for d in self.video.get('side_data_list', []) if 'rotation' in d), 0)

    def picture(self, seconds=0):
        """One picture as (width, height, bytes of RGB)."""
        return parse_ppm(run(['ffmpeg', '-v', 'error', '-ss', str(seconds), '-i', f'file:{self.path}', '-frames:v', '1',
                              '-f', 'image2pipe', '-c:v', 'ppm', '-']).stdout)


def parse_ppm(ppm):
    if not ppm.startswith(b'P6'):
        raise AssertionError('no picture')
    _, size, _, pixels = ppm.split(b'\n', 3)
    width, height = map(int, size.split())
    return width, height, pixels


def mean_color(picture, x0, y0, x1, y1):
    """Mean red, green, blue of a part, given in fractions."""
    width, height, pixels = picture
    sums, count = [0, 0, 0], 0
    for y in range(int(y0 * height), int(y1 * height)):
        row = pixels[(y * width + int(x0 * width)) * 3:(y * width + int(x1 * width)) * 3]
        for channel in range(3):
            sums[channel] += sum(row[channel::3])
        count += len(row) // 3
    return [s / max(count, 1) for s in sums]


def check_expectation(steps, output):
    """The steps' own word about their result has to be right: every job is measured by it."""
    for kind, covers in (('video', False), ('audio', False), ('subtitle', False)):
        wanted = [codec for k, codec in steps['tracks'] if k == kind]
        found = [s.get('codec_name') for s in output.of(kind, covers)]
        assert wanted == found, f'{kind}: {found} instead of {wanted}'
    covers = [k for k, _ in steps['tracks'] if k == 'cover']
    assert len(output.of('video', True)) == len(covers), 'covers'
    assert len(output.told.get('chapters', [])) == steps['chapters'], f"chapters: {len(output.told.get('chapters', []))} instead of {steps['chapters']}"
    if steps['seconds'] is not None and output.seconds is not None:
        tolerance = max(0.5, steps['seconds'] * 0.01)
        longest = 20 if steps['mayBeLonger'] else tolerance
        assert -tolerance <= output.seconds - steps['seconds'] <= longest, f"{output.seconds} s instead of {steps['seconds']}"
    if output.of('video'):
        assert (-output.rotation()) % 360 == steps['rotation'], f'rotation {output.rotation()}'


class Catalogue:
    def __init__(self, tool, folder):
        self.tool, self.folder, self.number = tool, folder, 0
        self.presets = {p['id']: p for p in tool.ask({'presets': True})['presets']}
        self.samples = samples.Samples(pathlib.Path(os.environ.get('CATALOGUE_SAMPLES') or folder / 'samples'))

    def sample(self, name):
        return self.samples.path(name)

    def question(self, sources, preset, **options):
        paths = [str(s if isinstance(s, pathlib.Path) else self.sample(s)) for s in ([sources] if isinstance(sources, (str, pathlib.Path)) else sources)]
        plan = dict({'version': 1, 'sources': paths, 'preset': self.presets[preset]}, **options)
        return {'plan': plan, 'reports': [report(p) for p in paths], 'pictureData': picture_data(paths[0])}

    def ask(self, sources, preset, **options):
        self.number += 1
        work = self.folder / f'work{self.number}'
        work.mkdir()
        output = self.folder / f"out{self.number}.{self.presets[preset]['extension']}"
        question = self.question(sources, preset, **options)
        return self.tool.ask(dict(question, output=str(output), workFolder=str(work))), output

    def convert(self, sources, preset, **options):
        """The result, looked at; an AssertionError where it is not what the steps said."""
        steps, output = self.ask(sources, preset, **options)
        assert 'runs' in steps, f"refused: {steps.get('refused')}"
        for path, text in steps['files'].items():
            pathlib.Path(path).write_text(text)
        for arguments, cover in zip(steps['runs'], steps['covers']):
            result = run(['ffmpeg'] + arguments)
            lines = [l for l in result.stderr.decode(errors='replace').splitlines() if '[error]' in l or '[fatal]' in l]
            assert result.returncode == 0, f"exit status {result.returncode}: {lines[-3:]}\n      ffmpeg {' '.join(arguments)}"
            assert not lines, f"{lines[:3]}\n      ffmpeg {' '.join(arguments)}"
            assert not cover[0] or self.tool.ask({'cover': cover})['written'], cover
        result = Output(output, steps)
        check_expectation(steps, result)
        return result


def main():
    import cases
    tool, patterns = sys.argv[1], sys.argv[2:]
    os.environ.setdefault('AV_LOG_FORCE_NOCOLOR', '1')
    with tempfile.TemporaryDirectory(prefix='catalogue') as folder:
        catalogue = Catalogue(Tool(tool), pathlib.Path(folder))
        faults, tried = [], 0
        for name, case in cases.all_cases():
            if patterns and not any(p in name for p in patterns):
                continue
            tried += 1
            try:
                case(catalogue)
            except AssertionError as error:
                frame = traceback.extract_tb(error.__traceback__)
                place = next((f for f in reversed(frame) if f.filename.endswith('cases.py')), frame[-1])
                faults.append(f'{name} ({place.lineno}): {error or place.line}')
                print(faults[-1], flush=True)
            except Exception:
                faults.append(f'{name}: {traceback.format_exc(limit=-3)}')
                print(faults[-1], flush=True)
        print(f'{tried} cases, {len(faults)} failed', flush=True)
    return min(len(faults), 100)


if __name__ == '__main__':
    sys.exit(main())
