#!/usr/bin/python3
"""catalogue.py BUNDLE [SAMPLE…]: what arrives of the samples of tests/media, and of one film under sixty odd names, through presets of
kestrel-cli, beside what arrives through HandBrakeCLI when it is asked for all tracks. One line for each fact in which the two differ, or
which neither keeps; the exit status is the number of those that only the other one keeps. "names" stands for all of the odd names. Samples
are kept in the folder that CATALOGUE_SAMPLES names."""
import json
import os
import pathlib
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / 'tests' / 'media'))
from samples import Samples  # noqa: E402

PARTS = (' ', '  two', "'", '"', '`', '\\', '%', '%d', '%03d', '$HOME', '$(x)', '${x}', ';', ':', '|', '&', '&&', '#', '?', '*', '[a]', '[0:v]', '{b}',
         '{name}', '(c)', '!', '~', '^', '=', '+', ',', '@', '<', '>', '<b>', '\n', '\t', '\r', '\x01', '\x7f', '-', '--', '-i', '.', '..', 'file:',
         'http:x', 'concat:a|b', 'pipe:1', 'é', 'e\u0301', '日本', '한국어', 'עברית', 'عربي', '\U0001f600', '\u200b', '\ufeff', '\u202e', 'x' * 200)
NAMES = {f'name{number}': part for number, part in enumerate(PARTS)}
SAMPLES = ('flat', 'rotated', 'vfr', 'topfield', 'bottomfield', 'telecine', 'hdr10', 'hlg', 'surround', 'surround8', 'languages', 'film', 'bitmaps',
           'dvdsub', 'odd', 'anamorphic', 'still', 'full', 'deep', 'silent', 'animation', 'moving', 'covered',
           'stream', 'xvid', 'nasty', *NAMES)
STEREO = ('--mixdown', 'stereo')
MANY = ('--mixdown', '7point1')
TARGETS = {'mp4-h264': ('av_mp4', 'x264', 'veryfast', 'av_aac', MANY), 'mkv-h265': ('av_mkv', 'x265', 'veryfast', 'av_aac', MANY),
           'webm-vp9': ('av_webm', 'VP9', 'fast', 'opus', MANY), 'phone': ('av_mp4', 'x264', 'veryfast', 'av_aac', STEREO),
           'avi-mpeg4': None}  # which the other one does not make
INTERLACED = ('topfield', 'bottomfield')  # test pictures that move look combed as they are
SAME_LANGUAGE = {'ger': 'deu', 'fre': 'fra'}
PQ_OR_HLG = ('smpte2084', 'arib-std-b67')


def run(*arguments, **options):
    return subprocess.run(list(map(str, arguments)), stdin=subprocess.DEVNULL, capture_output=True, timeout=600, **options)


def probe(path, *options):
    return json.loads(run('ffprobe', '-v', 'error', *options, '-of', 'json', '-i', f'file:{path}').stdout or '{}')


def is_combed(path):
    lines = run('ffmpeg', '-hide_banner', '-i', f'file:{path}', '-vf', 'extractplanes=y,idet', '-f', 'null', '-').stderr.decode(errors='replace').splitlines()
    words = next((line for line in reversed(lines) if 'Multi frame' in line), 'TFF: 0 BFF: 0 Progressive: 0').split()
    count = lambda name: int(words[words.index(name) + 1])
    return count('TFF:') + count('BFF:') > count('Progressive:')


def dynamic_range(video, frame):
    if video.get('color_transfer') not in PQ_OR_HLG:
        return 'standard'
    if '10' not in video['pix_fmt']:
        return 'tags of high range on 8 bits'
    sides = [data['side_data_type'] for data in frame.get('side_data_list', [])]
    return 'high' + ''.join(f', {name.split()[0]}' for name in ('Mastering display metadata', 'Content light level metadata') if name in sides)


def facts(path):
    """What people would miss."""
    told = probe(path, '-count_packets', '-show_format', '-show_streams', '-show_chapters')
    of = lambda kind: [s for s in told.get('streams', []) if s['codec_type'] == kind and not s['disposition']['attached_pic']]
    tags = {key.lower(): value for key, value in told['format'].get('tags', {}).items()}
    language = lambda stream: SAME_LANGUAGE.get(stream.get('tags', {}).get('language', 'und'), stream.get('tags', {}).get('language', 'und'))
    found = {
        'seconds': round(float(told['format'].get('duration', 0)), 1),
        'sounds': [language(s) for s in of('audio')],
        'channels': [s['channels'] for s in of('audio')],
        'default sound': [s['disposition']['default'] for s in of('audio')] if len(of('audio')) > 1 else [],
        'names of sounds': [s.get('tags', {}).get('title') or s.get('tags', {}).get('handler_name', '') for s in of('audio')],
        'subtitles': [language(s) for s in of('subtitle')],
        'forced': [s['disposition']['forced'] for s in of('subtitle')],
        'chapters': [chapter.get('tags', {}).get('title') for chapter in told.get('chapters', [])],
        'cover': sum(s['disposition']['attached_pic'] for s in told['streams']) > 0,
        'title': tags.get('title'),
        'date': tags.get('creation_time', '')[:10],
    }
    found['names of sounds'] = [name if name not in ('SoundHandler', 'Stereo', 'Mono') else '' for name in found['names of sounds']]
    if of('video'):
        video = of('video')[0]
        frame = (probe(path, '-select_streams', 'V:0', '-read_intervals', '%+#1', '-show_frames').get('frames') or [{}])[0]
        turned = next((int(data['rotation']) for data in video.get('side_data_list', []) if 'rotation' in data), 0) % 180 != 0
        over, under = map(int, video.get('sample_aspect_ratio', '1:1').replace('N/A', '1:1').split(':'))
        width, height = video['width'] * (over / under if over else 1), video['height']
        found |= {'shape': (height, width) if turned else (width, height), 'pictures': int(video['nb_read_packets']), 'range': dynamic_range(video, frame),
                  'colours': video.get('color_primaries', 'unknown'), 'bits': 10 if '10' in video['pix_fmt'] else 8, 'combed': is_combed(path)}
    return found


def is_kept(name, source, result, sample):
    if name == 'range' and source != 'standard':
        return result == source or result == 'standard'
    if name == 'colours':
        return source == 'unknown' or result == source or 'bt2020' in source
    if name == 'shape':
        return all(abs(a - b) <= max(2, a * 0.02) for a, b in zip(source, result))
    if name == 'pictures':  # film from television has four of five, irregular times may be filled up
        return abs(result - source) <= 2 or (sample == 'vfr' and result >= source) or (sample == 'telecine' and abs(result - source * 4 / 5) <= 3)
    if name == 'seconds':
        return source == 0 or abs(result - source) <= 0.3
    if name == 'combed':
        return not result or sample not in INTERLACED
    if name in ('date', 'title', 'names of sounds'):
        return not any(source) if isinstance(source, list) and not any(source) else not source or result == source
    return result == source


def source_of(sample, samples):
    if sample not in NAMES:
        return samples.path(sample)
    odd = samples.folder / f'{NAMES[sample]}.mp4'
    odd.unlink(missing_ok=True)
    os.link(samples.path('flat'), odd)
    return odd


def theirs_of(source, wanted, path, environment):
    container, encoder, speed, sound, mix = wanted
    run('HandBrakeCLI', '-i', source, '-o', path, '-f', container, '-e', encoder, '--encoder-preset', speed, '-q', 24, '--vfr', '--comb-detect', '--decomb',
        '--crop', '0:0:0:0', '--auto-anamorphic', '--all-audio', '-E', sound, *mix, '--all-subtitles', '--markers', env=environment)
    return facts(path) if path.exists() else {}


def main():
    bundle = sys.argv[1]
    names = [each for name in sys.argv[2:] or SAMPLES for each in (NAMES if name == 'names' else [name])]
    worse = 0
    with tempfile.TemporaryDirectory() as folder:
        home = pathlib.Path(folder)
        samples = Samples(pathlib.Path(os.environ.get('CATALOGUE_SAMPLES') or home / 'samples'))
        environment = {**os.environ, 'HOME': folder, **{f'XDG_{each}_HOME': str(home / each) for each in ('DATA', 'CONFIG', 'STATE')}}
        totals = {'ours': 0, 'theirs': 0, 'of': 0}
        for sample in names:
            source = source_of(sample, samples)
            had = facts(source)
            for target, wanted in list(TARGETS.items())[:1 if sample in NAMES else None]:
                out = home / f'{sample}-{target}'
                out.mkdir()
                run(pathlib.Path(bundle) / 'Contents/Helpers/kestrel-cli', 'convert', '--no-copy', '--speed', 2, '--preset', target, '--to', out, source,
                    env=environment)
                ours = next(iter(out.iterdir()), None)
                ours = facts(ours) if ours else {}
                theirs = theirs_of(source, wanted, out / f'theirs.{wanted[0][3:]}', environment) if wanted else {}
                for name, value in had.items():
                    kept = [name in each and is_kept(name, value, each[name], sample) for each in (ours, theirs)]
                    if not wanted:  # nothing to compare with: only what is lost is told
                        if not kept[0]:
                            print(f'lost   {sample:11} {target:8} {name:15} source {value}  ours {ours.get(name)}', flush=True)
                        continue
                    totals['of'] += 1
                    totals['ours'] += kept[0]
                    totals['theirs'] += kept[1]
                    if not all(kept):
                        mark = 'worse' if kept == [False, True] else 'better' if kept == [True, False] else 'both'
                        worse += mark == 'worse'
                        print(f'{mark:6} {sample:11} {target:8} {name:15} source {value}  ours {ours.get(name)}  theirs {theirs.get(name)}', flush=True)
        print(f"kept of {totals['of']} facts: {totals['ours']} by kestrel-cli, {totals['theirs']} by HandBrakeCLI", flush=True)
    return min(worse, 100)


if __name__ == '__main__':
    sys.exit(main())
