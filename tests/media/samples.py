"""The samples of catalogue.py, each made by ffmpeg when it is first asked for."""
import struct
import subprocess

SCENE = ['-f', 'lavfi', '-i', 'testsrc2=s={size}:r={rate}:d={seconds}']
TONE = ['-f', 'lavfi', '-i', 'sine=f=440:r=48000:d={seconds}']
H264 = ['-c:v', 'libx264', '-preset', 'ultrafast', '-pix_fmt', 'yuv420p']

SRT = '1\n00:00:00,500 --> 00:00:01,500\n{text} one\n\n2\n00:00:02,000 --> 00:00:03,500\n{text} two\n\n'
CHAPTERS = (';FFMETADATA1\ntitle=A film\ncreation_time=2020-05-06T07:08:09.000000Z\nlocation=+48.2000+016.3700/\n'
            '[CHAPTER]\nTIMEBASE=1/1000\nSTART=0\nEND=2000\ntitle=Beginning\n'
            '[CHAPTER]\nTIMEBASE=1/1000\nSTART=2000\nEND=4000\ntitle=End; with \\= signs\n')
NASTY = "a 'b' [c], d; e:f\\g %d #h é日本.mkv"


def pgs(path, cues):
    """Subtitles that are pictures: a white box at the foot of a picture of 320 by 180, by (start, end) in seconds."""
    out = bytearray()

    def segment(seconds, kind, data):
        out.extend(b'PG' + struct.pack('>IIBH', int(seconds * 90000), 0, kind, len(data)) + data)

    width, height = 160, 24
    for number, (start, end) in enumerate(cues):
        for seconds, shown in ((start, True), (end, False)):
            objects = struct.pack('>HBBHH', 0, 0, 0, 80, 150) if shown else b''
            segment(seconds, 0x16, struct.pack('>HHBHBBBB', 320, 180, 0x10, number * 2 + (not shown), 0x80 if shown else 0, 0, 0,
                                               1 if shown else 0) + objects)
            segment(seconds, 0x17, struct.pack('>BBHHHH', 1, 0, 80, 150, width, height))
            if shown:
                segment(seconds, 0x14, bytes([0, 0]) + bytes([1, 235, 128, 128, 255]))
                line = bytes([0, 0x40 | 0x80 | (width >> 8), width & 255, 1, 0, 0])
                data = line * height
                body = struct.pack('>HBB', 0, 0, 0xC0) + (len(data) + 4).to_bytes(3, 'big') + struct.pack('>HH', width, height) + data
                segment(seconds, 0x15, body)
            segment(seconds, 0x80, b'')
    path.write_bytes(out)


class Samples:
    def __init__(self, folder):
        self.folder = folder
        folder.mkdir(exist_ok=True)

    def path(self, name):
        made = self.folder / (NASTY if name == 'nasty' else f'{name}.{EXTENSIONS.get(name, "mkv")}')
        if not made.exists():
            getattr(self, 'make_' + name, lambda p: self.make_listed(name, p))(made)
            assert made.exists() and made.stat().st_size, f'sample {name}'
        return made

    def ffmpeg(self, *arguments):
        subprocess.run(['ffmpeg', '-v', 'error', '-y', *map(str, arguments)], check=True, stdin=subprocess.DEVNULL)

    def scene(self, path, *encoding, size='320x180', rate='25', seconds=4, sound=True):
        values = dict(size=size, rate=rate, seconds=seconds)
        inputs = [a.format(**values) for a in SCENE + (TONE if sound else [])]
        self.ffmpeg(*inputs, *encoding, path)

    def make_listed(self, name, path):
        options = dict(LISTED[name])
        encoding = options.pop('encoding')
        self.scene(path, *encoding, **options)

    def make_rotated(self, path):
        flat = self.path('flat')
        self.ffmpeg('-i', flat, '-c', 'copy', '-metadata:s:v:0', 'rotate=90', path)

    def make_vfr(self, path):
        """Three seconds at 50 and three at 12.5 pictures a second."""
        self.ffmpeg('-f', 'lavfi', '-i', 'testsrc2=s=320x180:r=50:d=6', '-f', 'lavfi', '-i', 'sine=d=6', '-vf',
                    "select='lt(t,3)+not(mod(n,4))'", '-fps_mode', 'vfr', *H264, '-c:a', 'aac', path)

    def make_topfield(self, path):
        self.ffmpeg('-f', 'lavfi', '-i', 'testsrc2=s=720x576:r=50:d=3', '-f', 'lavfi', '-i', 'sine=d=3', '-vf',
                    'interlace=scan=tff,setsar=16/15', '-c:v', 'mpeg2video', '-flags', '+ilme+ildct', '-top', '1', '-q:v', '3',
                    '-c:a', 'mp2', path)

    def make_bottomfield(self, path):
        self.ffmpeg('-f', 'lavfi', '-i', 'testsrc2=s=720x480:r=60000/1001:d=3', '-f', 'lavfi', '-i', 'sine=d=3:r=48000', '-ac', '2',
                    '-vf', 'interlace=scan=bff,setsar=8/9,format=yuv411p', '-c:v', 'dvvideo', path)

    def make_telecine(self, path):
        self.ffmpeg('-f', 'lavfi', '-i', 'testsrc2=s=720x480:r=24000/1001:d=4', '-f', 'lavfi', '-i', 'sine=d=4', '-vf',
                    'telecine', '-r', '30000/1001', '-c:v', 'mpeg2video', '-flags', '+ilme+ildct', '-top', '1', '-q:v', '3',
                    '-c:a', 'mp2', path)

    def make_languages(self, path):
        texts = []
        for language in ('eng', 'ger', 'jpn'):
            text = self.folder / f'{language}.srt'
            text.write_text(SRT.format(text=language))
            texts += ['-i', text]
        chapters = self.folder / 'chapters.txt'
        chapters.write_text(CHAPTERS)
        cover = self.folder / 'cover.jpg'
        self.ffmpeg('-f', 'lavfi', '-i', 'color=red:s=64x64', '-frames:v', '1', cover)
        font = self.folder / 'font.ttf'
        font.write_bytes(b'\0\1\0\0' + bytes(60))
        inputs = [a.format(size='320x180', rate=25, seconds=4) for a in SCENE]
        for pitch in (300, 500, 700):
            inputs += ['-f', 'lavfi', '-i', f'sine=f={pitch}:r=48000:d=4']
        maps = [a for n in range(7) for a in ('-map', f'{n}')]
        tags = []
        for kind, number, language in (('a', 0, 'eng'), ('a', 1, 'ger'), ('a', 2, 'jpn'), ('s', 0, 'eng'), ('s', 1, 'ger'), ('s', 2, 'jpn')):
            tags += [f'-metadata:s:{kind}:{number}', f'language={language}']
        self.ffmpeg(*inputs, *texts, '-i', chapters, *maps, *H264, '-c:a', 'aac', '-c:s', 'srt', '-map_metadata', '7', '-map_chapters', '7',
                    *tags, '-metadata:s:a:1', 'title=Comments', '-disposition:a:0', '0', '-disposition:a:1', 'default',
                    '-disposition:s:2', 'forced', '-attach', cover, '-metadata:s:t:0', 'mimetype=image/jpeg', '-metadata:s:t:0',
                    'filename=cover.jpg', '-attach', font, '-metadata:s:t:1', 'mimetype=application/x-truetype-font',
                    '-metadata:s:t:1', 'filename=font.ttf', '-default_mode', 'passthrough', path)

    def make_film(self, path):
        """The same in MP4."""
        cover = self.folder / 'cover.jpg'
        source = self.path('languages')
        self.ffmpeg('-i', source, '-i', cover, '-map', '0:V', '-map', '0:a', '-map', '0:s', '-map', '1', '-map_metadata', '0', '-c', 'copy', '-c:s', 'mov_text',
                    '-disposition:v:1', 'attached_pic', path)

    def make_cues(self, path):
        pgs(path, [(1.0, 2.0), (2.5, 3.5)])

    def make_bitmaps(self, path):
        self.ffmpeg('-copyts', '-i', self.path('flat'), '-i', self.path('cues'), '-map', '0', '-map', '1', '-c', 'copy', '-metadata:s:s:0', 'language=fre', path)

    def make_dvdsub(self, path):
        self.ffmpeg('-fix_sub_duration', '-i', self.path('bitmaps'), '-map', '0', '-c', 'copy', '-c:s', 'dvdsub', path)

    def make_song(self, path):
        cover = self.folder / 'songcover.jpg'
        self.ffmpeg('-f', 'lavfi', '-i', 'color=red:s=64x64', '-frames:v', '1', cover)
        self.ffmpeg('-f', 'lavfi', '-i', 'sine=d=4:r=44100', '-i', cover, '-map', '0', '-map', '1', '-c:a', 'flac', '-ac', '2', '-c:v', 'copy',
                    '-disposition:v', 'attached_pic', '-metadata', 'title=Song', '-metadata', 'artist=Band', path)

    def make_covered(self, path):
        cover = self.folder / 'cover.png'
        self.ffmpeg('-f', 'lavfi', '-i', 'color=red:s=64x64', '-frames:v', '1', cover)
        self.ffmpeg('-i', self.path('flat'), '-i', cover, '-map', '0', '-map', '1', '-c', 'copy', '-disposition:v:1', 'attached_pic', path)

    def make_mark(self, path):
        self.ffmpeg('-f', 'lavfi', '-i', 'color=lime:s=40x20', '-frames:v', '1', path)

    def make_nasty(self, path):
        text = self.folder / 'nasty.srt'
        text.write_text(SRT.format(text='nasty'))
        self.ffmpeg('-i', self.path('flat'), '-i', text, '-map', '0', '-map', '1', '-c', 'copy', '-c:s', 'srt', path)

    def make_words(self, path):
        path.write_text(SRT.format(text='words'))

    def make_quadrants(self, path):
        """Red, green, blue, white: upper left, upper right, lower left, lower right."""
        graph = 'color=red:s=160x90:r=25:d=4[a];color=lime:s=160x90:r=25:d=4[b];color=blue:s=160x90:r=25:d=4[c];color=white:s=160x90:r=25:d=4[d];' \
                '[a][b]hstack[u];[c][d]hstack[l];[u][l]vstack'
        self.ffmpeg('-f', 'lavfi', '-i', graph, '-f', 'lavfi', '-i', 'sine=d=4', *H264, '-c:a', 'aac', path)

    def make_long(self, path):
        self.ffmpeg('-f', 'lavfi', '-i', 'mandelbrot=s=640x360:r=25', '-f', 'lavfi', '-i', 'anoisesrc=d=30:a=0.1:r=48000', '-t', '30', *H264, '-crf', '18',
                    '-g', '100', '-c:a', 'aac', '-ac', '2', path)

    def make_grey(self, path):
        self.ffmpeg('-f', 'lavfi', '-i', 'color=gray:s=320x180:r=25:d=4', '-f', 'lavfi', '-i', 'sine=d=4', *H264, '-c:a', 'aac', path)


PQ = ['-c:v', 'libx265', '-preset', 'ultrafast', '-pix_fmt', 'yuv420p10le', '-color_primaries', 'bt2020', '-colorspace', 'bt2020nc', '-c:a', 'aac']
MASTER = 'master-display=G(13250,34500)B(7500,3000)R(34000,16000)WP(15635,16450)L(10000000,1):max-cll=1000,400'
LISTED = {
    'flat': dict(encoding=[*H264, '-g', '50', '-c:a', 'aac']),
    'still': dict(encoding=[*H264, '-color_primaries', 'bt709', '-color_trc', 'bt709', '-colorspace', 'bt709', '-c:a', 'aac']),
    'hdr10': dict(encoding=[*PQ, '-color_trc', 'smpte2084', '-x265-params', f'log-level=none:hdr10=1:repeat-headers=1:colorprim=bt2020:transfer=smpte2084:colormatrix=bt2020nc:{MASTER}'], seconds=2),
    'hlg': dict(encoding=[*PQ, '-color_trc', 'arib-std-b67', '-x265-params', 'log-level=none:colorprim=bt2020:transfer=arib-std-b67:colormatrix=bt2020nc'], seconds=2),
    'halfhdr': dict(encoding=[*PQ[:6], '-color_trc', 'smpte2084', '-c:a', 'aac', '-x265-params', 'log-level=none:transfer=smpte2084'], seconds=2),
    'surround': dict(encoding=[*H264, '-af', 'aformat=channel_layouts=5.1(side)', '-c:a', 'ac3']),
    'surround8': dict(encoding=[*H264, '-af', 'aformat=channel_layouts=7.1', '-c:a', 'flac']),
    'odd': dict(encoding=['-c:v', 'ffv1', '-c:a', 'flac'], size='321x181'),
    'deep': dict(encoding=['-c:v', 'libx264', '-preset', 'ultrafast', '-pix_fmt', 'yuv422p10le', '-c:a', 'pcm_s24le']),
    'full': dict(encoding=['-c:v', 'mjpeg', '-pix_fmt', 'yuvj420p', '-c:a', 'pcm_s16le']),
    'rgb': dict(encoding=['-c:v', 'png', '-pix_fmt', 'rgb24', '-c:a', 'flac'], seconds=1),
    'anamorphic': dict(encoding=['-vf', 'setsar=64/45', *H264, '-c:a', 'aac'], size='720x576'),
    'silent': dict(encoding=H264, sound=False),
    'xvid': dict(encoding=['-c:v', 'mpeg4', '-bf', '2', '-q:v', '4', '-c:a', 'libmp3lame']),
    'stream': dict(encoding=[*H264, '-c:a', 'ac3']),
    'animation': dict(encoding=['-pix_fmt', 'rgb8'], seconds=2, rate='10', sound=False),
    'moving': dict(encoding=['-f', 'apng', '-pix_fmt', 'rgb24'], seconds=2, rate='10', sound=False),
    'other': dict(encoding=[*H264, '-c:a', 'aac', '-ac', '2'], size='480x360', rate='30', seconds=3),
}
EXTENSIONS = {'rotated': 'mov', 'flat': 'mp4', 'topfield': 'mpg', 'bottomfield': 'dv', 'telecine': 'mpg', 'film': 'mp4', 'cues': 'sup',
              'song': 'flac', 'mark': 'png', 'words': 'srt', 'xvid': 'avi', 'stream': 'ts', 'animation': 'gif', 'moving': 'apng', 'covered': 'mp4', 'full': 'avi', 'other': 'mp4',
              'still': 'mp4', 'quadrants': 'mp4', 'long': 'mp4', 'grey': 'mp4', 'vfr': 'mp4', 'anamorphic': 'mp4'}
