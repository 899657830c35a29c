#!/usr/bin/python3
"""discs.py BUNDLE DISC: a disc image through Kestrel's disc tools and through lsdvd, dd, dvdbackup and HandBrakeCLI, those of them that are
there; prints what each took, in seconds and seconds of processor, and what its result has of the disc."""
import json
import os
import resource
import shutil
import subprocess
import sys
import tempfile
import time


def measure(command, environment):
    before, started = resource.getrusage(resource.RUSAGE_CHILDREN), time.monotonic()
    done = subprocess.run(command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    seconds, after = time.monotonic() - started, resource.getrusage(resource.RUSAGE_CHILDREN)
    processor = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
    return seconds, processor, done.returncode


def kept(path):
    """What a film file has: its length, pictures, sound, subtitles and their first colour, chapters with names."""
    found = json.loads(subprocess.run(['ffprobe', '-v', 'error', '-count_packets', '-show_streams', '-show_chapters', '-show_format', '-of',
                                       'json', '-show_data', path], capture_output=True, check=True).stdout)
    def tracks(kind):
        return [stream for stream in found['streams'] if stream['codec_type'] == kind]
    def languages(kind):
        return ','.join(stream.get('tags', {}).get('language', '?') for stream in tracks(kind)) or 'none'
    def text_of(dump):
        return ''.join(line.rsplit('  ', 1)[-1] for line in dump.splitlines())
    colours = [text_of(stream.get('extradata', '')).partition('palette: ')[2][:6] or 'none' for stream in tracks('subtitle')]
    names = [chapter.get('tags', {}).get('title', '') for chapter in found['chapters']]
    pictures = [stream['nb_read_packets'] for stream in tracks('video')]
    return (f"{float(found['format']['duration']):.1f} s, {'+'.join(pictures)} pictures {tracks('video')[0].get('display_aspect_ratio')}, "
            f"sound {languages('audio')}, subtitles {languages('subtitle')} (colours {','.join(colours) or 'none'}), "
            f'{len(names)} chapters, {sum(map(bool, names))} named')


def newest(folder):
    paths = [os.path.join(place, name) for place, _, names in os.walk(folder) for name in names]
    return max(paths, key=os.path.getsize) if paths else None


def main():
    bundle, disc = map(os.path.abspath, sys.argv[1:])
    tools = os.path.join(bundle, 'Contents/Resources/heron.bundle/Contents/Resources')
    cli = os.path.join(bundle, 'Contents/Helpers/kestrel-cli')
    with tempfile.TemporaryDirectory() as home:
        environment = {**os.environ, 'HOME': home, **{f'XDG_{each}_HOME': os.path.join(home, each) for each in ('DATA', 'CONFIG', 'STATE')}}
        out = os.path.join(home, 'out')
        keep = [cli, 'disc', 'copy', '--to', out, '--way']
        rows = (  # what, with what, how; whether the result is a film
            ('contents', 'discinfo', [os.path.join(tools, 'discinfo'), disc], False),
            ('contents', 'lsdvd', ['lsdvd', '-x', disc], False),
            ('image', 'disc2iso', [os.path.join(tools, 'disc2iso'), disc, out + '/disc.iso'], False),
            ('image', 'dd', ['dd', 'if=' + disc, f'of={out}/disc.iso', 'bs=1M', 'iflag=direct', 'status=none'], False),
            ('image, checked', 'kestrel-cli', [*keep, 'image', disc], False),
            ('folder, checked', 'kestrel-cli', [*keep, 'folder', disc], False),
            ('folder', 'dvdbackup', ['dvdbackup', '-M', '-i', disc, '-o', out], False),
            ('film as it is', 'kestrel-cli', [*keep, 'mkv', disc], True),
            ('film to H.264', 'kestrel-cli', [cli, 'disc', 'rip', '--preset', 'mkv-h264', '--to', out, disc], True),
            ('film to H.264', 'HandBrakeCLI', ['HandBrakeCLI', '-i', disc, '--main-feature', '--min-duration', '1', '-f', 'av_mkv', '-e', 'x264', '-q', '21',
                                               '--encoder-preset', 'medium', '--all-audio', '--all-subtitles', '-m', '-o', out + '/film.mkv'], True),
        )
        for what, program, command, is_film in rows:
            if not shutil.which(command[0]):
                print(f'{what:16} {program:13} not there')
                continue
            shutil.rmtree(out, ignore_errors=True)
            os.mkdir(out)
            seconds, processor, status = measure(command, environment)
            result = newest(out)
            facts = kept(result) if is_film and result else f'{os.path.getsize(result):,} bytes' if result else ''
            print(f"{what:16} {program:13} {seconds:7.2f} s {processor:7.2f} s{'' if status == 0 else f' status {status}'}  {facts}", flush=True)


if __name__ == '__main__':
    main()
