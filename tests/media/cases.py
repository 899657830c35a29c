"""The cases of catalogue.py: what has to arrive of each sample."""
from catalogue import mean_color, parse_ppm, run


def all_cases():
    return [(name[5:], case) for name, case in globals().items() if name.startswith('case_')]


def texts_of(path, number=0):
    return run(['ffmpeg', '-v', 'error', '-i', f'file:{path}', '-map', f'0:s:{number}', '-f', 'srt', '-']).stdout.decode()


def near(found, wanted, distance):
    return len(found) == len(wanted) and all(abs(a - b) <= distance for a, b in zip(found, wanted))


def cue_times(path):
    return [float(part[-6:].replace(',', '.')) for l in texts_of(path).splitlines() if '-->' in l for part in l.split(' --> ')]


def loudness(path):
    told = run(['ffmpeg', '-hide_banner', '-i', f'file:{path}', '-vn', '-af', 'volumedetect', '-f', 'null', '-']).stderr.decode()
    return float(next(l.split('mean_volume:')[1].split()[0] for l in told.splitlines() if 'mean_volume:' in l))


# Nothing is lost

def case_upright_when_encoded(c):
    for preset in ('mp4-h264', 'mkv-h264', 'webm-vp9'):
        out = c.convert('rotated', preset, copies=False)
        assert (out.video['width'], out.video['height'], out.rotation()) == (180, 320, 0), preset


def case_upright_when_copied(c):
    out = c.convert('rotated', 'mp4-copy')
    assert out.steps['work'] == 0 and out.steps['rotation'] in (90, 270)
    out = c.convert('rotated', 'mkv-copy')
    assert (out.video['width'], out.video['height']) == (180, 320)


def case_variable_rate(c):
    for preset in ('mp4-h264', 'mkv-h264', 'mp4-h265', 'webm-vp9', 'mov-h264', 'mkv-copy', 'mp4-web-1080p'):
        out = c.convert('vfr', preset, copies=preset.endswith('copy'), speed=2)
        assert abs(out.packets - 188) <= 2, f'{preset}: {out.packets} pictures'
    out = c.convert('vfr', 'avi-mpeg4')
    assert abs(out.packets / out.seconds - 50) < 1


def case_hdr_kept(c):
    for preset in ('mkv-h265', 'mp4-h265', 'mkv-av1', 'webm-vp9'):
        out = c.convert('hdr10', preset, copies=False, speed=2)
        v = out.video
        assert v['pix_fmt'].startswith('yuv420p10'), v['pix_fmt']
        assert (v.get('color_transfer'), v.get('color_primaries'), v.get('color_space')) == ('smpte2084', 'bt2020', 'bt2020nc'), f'{preset}: {v.get("color_transfer")}'
    for preset in ('mkv-h265', 'mp4-h265', 'mkv-av1'):
        out = c.convert('hdr10', preset, copies=False, speed=2)
        frame = run(['ffprobe', '-v', 'error', '-select_streams', 'V:0', '-read_intervals', '%+#1', '-show_frames', str(out.path)]).stdout.decode()
        assert 'max_luminance=10000000/10000' in frame or '1000' in frame and 'Mastering display' in frame, f'{preset}: no mastering data'
        assert preset == 'mkv-av1' or 'max_content=1000' in frame, f'{preset}: no light level'
    out = c.convert('hlg', 'mkv-h265', copies=False, speed=2)
    assert out.video.get('color_transfer') == 'arib-std-b67'


def case_hdr_to_standard(c):
    for sample in ('hdr10', 'hlg', 'halfhdr'):
        out = c.convert(sample, 'mp4-h264', speed=2)
        assert (out.video.get('color_transfer'), out.video['pix_fmt']) == ('bt709', 'yuv420p'), f'{sample}: {out.video}'
    out = c.convert('hdr10', 'mkv-h265', dynamicRange=2, speed=2)
    assert (out.video.get('color_transfer'), out.video['pix_fmt']) == ('bt709', 'yuv420p')


def case_depth_is_kept(c):
    assert c.convert('deep', 'mkv-h264').video['pix_fmt'] == 'yuv422p10le'
    assert c.convert('deep', 'mov-prores').video['pix_fmt'] == 'yuv422p10le'
    assert c.convert('deep', 'mp4-h264').video['pix_fmt'] == 'yuv420p'
    assert c.convert('deep', 'mkv-ffv1').video['pix_fmt'] == 'yuv422p10le'
    assert c.convert('rgb', 'mkv-ffv1').video['pix_fmt'] in ('bgr0', 'bgra', 'gbrp')
    assert c.convert('rgb', 'mkv-h264').video['pix_fmt'] == 'yuv420p'


def case_interlaced(c):
    for sample, rate in (('topfield', '25/1'), ('bottomfield', '30000/1001')):
        out = c.convert(sample, 'mp4-h264')
        assert out.video['avg_frame_rate'] == rate and out.video.get('field_order') in ('progressive', None), out.video['avg_frame_rate']
        idet = run(['ffmpeg', '-hide_banner', '-i', str(out.path), '-vf', 'extractplanes=y,idet', '-f', 'null', '-']).stderr.decode()
        counts = [l for l in idet.splitlines() if 'Single frame' in l][-1].split()
        progressive = int(counts[counts.index('Progressive:') + 1])
        interlaced = int(counts[counts.index('TFF:') + 1]) + int(counts[counts.index('BFF:') + 1])
        assert progressive > interlaced, idet[-400:]
    out = c.convert('topfield', 'mp4-h264', deinterlace=3)
    assert out.video['avg_frame_rate'] == '50/1', out.video['avg_frame_rate']
    out = c.convert('topfield', 'mp4-h264', deinterlace=1)
    assert out.video.get('field_order') in ('tt', 'tb'), out.video.get('field_order')


def case_telecine(c):
    out = c.convert('telecine', 'mp4-h264', deinterlace=4)
    assert abs(out.seconds - 4) < 0.1 and abs(out.packets - 96) <= 2, f'{out.seconds} {out.packets}'


def case_surround(c):
    for sample, preset, channels in (('surround', 'mkv-h264', 6), ('surround', 'webm-vp9', 6), ('surround8', 'mkv-h264', 8), ('surround8', 'webm-vp9', 8),
                                     ('surround8', 'tv-1080p', 6), ('surround', 'mp4-720p', 2), ('surround', 'flac', 6), ('surround8', 'm4a-alac', 8),
                                     ('surround', 'ogg-vorbis', 6), ('surround', 'mp3', 2), ('surround8', 'eac3', 6), ('surround', 'caf', 6),
                                     ('surround', 'opus', 6), ('surround', 'mov-prores', 6)):
        out = c.convert(sample, preset)
        sound = out.sounds[0]
        assert sound['channels'] == channels, f"{preset}: {sound['channels']} channels"
        assert 'side' not in sound.get('channel_layout', '') or sample == 'surround8' or preset in ('eac3', 'tv-1080p'), f"{preset}: {sound['channel_layout']}"


def case_languages_to_mkv(c):
    out = c.convert('languages', 'mkv-h264')
    assert [s['tags'].get('language') for s in out.sounds] == ['eng', 'ger', 'jpn']
    assert [s['disposition']['default'] for s in out.sounds] == [0, 1, 0]
    assert out.sounds[1]['tags']['title'] == 'Comments'
    subtitles = out.of('subtitle')
    assert [s['tags']['language'] for s in subtitles] == ['eng', 'ger', 'jpn'] and subtitles[2]['disposition']['forced'] == 1
    assert len(out.of('video', True)) == 1 and len(out.of('attachment')) == 1
    assert out.told['chapters'][1]['tags']['title'] == 'End; with = signs'
    assert out.told['format']['tags']['title'] == 'A film'
    assert 'ger two' in texts_of(out.path, 1)
    assert out.steps['leftOut'] == [], out.steps['leftOut']


def case_languages_to_mp4(c):
    out = c.convert('languages', 'mp4-h264', copies=False)
    assert [s['tags'].get('language') for s in out.sounds] == ['eng', 'deu', 'jpn']
    assert [s['disposition']['default'] for s in out.sounds] == [0, 1, 0]
    assert out.sounds[1]['tags']['handler_name'] == 'Comments'
    assert [s['codec_name'] for s in out.of('subtitle')] == ['mov_text'] * 3
    assert len(out.told['chapters']) == 2 and out.told['format']['tags']['title'] == 'A film'
    assert [t for t in out.steps['leftOut'] if 'font.ttf' in t] and len(out.steps['leftOut']) == 1, out.steps['leftOut']
    assert 'jpn one' in texts_of(out.path, 2)


def case_mp4_to_mkv_and_back(c):
    out = c.convert('film', 'mkv-copy')
    assert out.steps['work'] == 0 and len(out.of('video', True)) == 1 and out.of('subtitle')[0]['codec_name'] == 'subrip'
    tags = {k.lower(): v for k, v in out.told['format']['tags'].items()}
    assert tags['creation_time'].startswith('2020-05-06') and tags['location'].startswith('+48.2'), tags
    out = c.convert(out.path, 'mp4-copy')
    assert out.steps['work'] == 0 and len(out.of('video', True)) == 1 and [s['tags']['language'] for s in out.sounds] == ['eng', 'deu', 'jpn']
    assert out.told['format']['tags']['creation_time'].startswith('2020-05-06')


def case_bitmap_subtitles(c):
    for sample in ('bitmaps', 'dvdsub'):
        assert c.convert(sample, 'mkv-h264', copies=False).of('subtitle')
        out = c.convert(sample, 'mp4-h264' if sample == 'dvdsub' else 'mov-h264')
        assert len(out.of('subtitle')) == (sample == 'dvdsub') != any('French' in t for t in out.steps['leftOut']), out.steps['leftOut']


def case_cover_of_a_song(c):
    for preset in ('mp3', 'm4a-aac', 'flac', 'm4a-alac', 'mka-opus', 'aiff', 'ogg-vorbis', 'opus'):
        out = c.convert('song', preset)
        assert len(out.of('video', True)) == 1, preset
        tags = {k.lower(): v for k, v in dict(out.told['format'].get('tags', {}), **out.sounds[0].get('tags', {})).items()}
        assert tags['title'] == 'Song', preset
    assert any('cover' in t for t in c.convert('song', 'wav').steps['leftOut'])


def case_shapes(c):
    out = c.convert('odd', 'mp4-h264')
    assert (out.video['width'], out.video['height'], out.video.get('sample_aspect_ratio', '1:1')) == (320, 180, '1:1'), out.video
    out = c.convert('anamorphic', 'mp4-h264', copies=False)
    assert out.video['sample_aspect_ratio'] == '64:45' and out.video['width'] == 720
    out = c.convert('anamorphic', 'mp4-h264', maximumWidth=360)
    assert (out.video['width'], out.video['height'], out.video['display_aspect_ratio']) == (360, 288, '16:9'), out.video
    out = c.convert('anamorphic', 'gif')
    assert abs(out.video['width'] / out.video['height'] - 16 / 9) < 0.02
    out = c.convert('flat', 'mp4-h264', maximumWidth=4000, maximumHeight=4000, copies=False)
    assert out.video['width'] == 320
    for sample, preset, size in (('flat', 'dv', (720, 576)), ('bottomfield', 'dv', (720, 480)), ('flat', '3gp-h263', (176, 144))):
        out = c.convert(sample, preset)
        assert (out.video['width'], out.video['height']) == size, f'{preset}: {out.video["width"]}'
        left = mean_color(out.picture(1), 0.3, 0.45, 0.7, 0.55)
        assert max(left) > 10


def case_colours(c):
    out = c.convert('still', 'mp4-h264', copies=False)
    assert out.video.get('color_space') == 'bt709' and out.video.get('color_primaries') == 'bt709'
    out = c.convert('odd', 'mp4-h264')
    assert out.video.get('color_space') in (None, 'unknown'), out.video.get('color_space')
    out = c.convert('full', 'mp4-h264')
    assert out.video['pix_fmt'] == 'yuv420p' and out.video.get('color_range') in (None, 'tv')


def case_animations(c):
    for preset in ('gif', 'apng'):
        out = c.convert('flat', preset)
        assert abs(out.packets - 60) <= 2, f'{preset}: {out.packets}'
    out = c.convert('animation', 'mp4-h264')
    assert out.packets == 20, out.packets
    assert c.convert('animation', 'apng').packets == 20


def case_odd_names(c):
    for preset, options in (('mp4-h264', {}), ('mkv-copy', {}), ('mp4-h264', {'subtitles': {'2': 1}}), ('mkv-h264', {'pieces': [[0, 1], [2, 3]]}),
                            ('mkv-copy', {'pieces': [[0, 2], [2, 4]], 'exactCuts': False})):
        c.convert('nasty', preset, **options)
    c.convert(['nasty', 'nasty'], 'mkv-copy')


def case_streams_without_length(c):
    out = c.convert('stream', 'mkv-copy')
    assert out.steps['decodesAll'] and out.steps['work'] == 0
    out = c.convert('xvid', 'mkv-copy')
    assert out.steps['decodesAll'] and out.packets == 100
    c.convert('xvid', 'mp4-copy')


# Options


def case_size(c):
    for preset, megabytes, options in (('mp4-h264', 2, {'speed': 1}), ('mkv-h265', 0.4, {'pieces': [[0, 8]], 'speed': 2}), ('webm-vp9', 0.4, {'pieces': [[0, 8]], 'speed': 2}),
                                       ('avi-mpeg4', 4, {}), ('mp4-h264', 0.4, {'speed': 2}), ('mp4-h264', 1, {'pieces': [[5, 20]], 'speed': 2})):
        out = c.convert('long', preset, rateControl=3, maximumBytes=int(megabytes * 1e6), **options)
        size = out.path.stat().st_size / 1e6 / megabytes
        print(f'  {preset}: {size * 100:.1f} % of {megabytes} MB, {out.video["width"]}x{out.video["height"]}', flush=True)
        assert 0.95 <= size <= 1, f'{preset}: {size}'
    steps, _ = c.ask('long', 'mp4-h264', rateControl=3, maximumBytes=30000)
    assert 'too few' in steps.get('refused', ''), steps
    out = c.convert('long', 'm4a-aac', rateControl=3, maximumBytes=300000)
    assert 0.9 <= out.path.stat().st_size / 3e5 <= 1, out.path.stat().st_size
    assert 'refused' in c.ask('long', 'flac', rateControl=3, maximumBytes=300000)[0]


def case_sound(c):
    out = c.convert('languages', 'mkv-h264', audioTracks=[2])
    assert [s['tags']['language'] for s in out.sounds] == ['ger']
    assert c.convert('flat', 'mp4-h264', audioTracks=[]).sounds == []
    assert c.convert('surround', 'mp4-h264', mix=2).sounds[0]['channels'] == 2
    assert c.convert('surround', 'mp4-h264', mix=1).sounds[0]['channels'] == 1
    assert c.convert('surround8', 'mp4-h264', mix=3).sounds[0]['channels'] == 6
    out = c.convert('flat', 'mp4-h264', audioBitRate=96000)
    assert 60e3 < int(out.sounds[0]['bit_rate']) < 130e3, out.sounds[0]['bit_rate']
    before = loudness(c.sample('flat'))
    louder = loudness(c.convert('flat', 'mkv-h264', volume=6).path)
    quieter = loudness(c.convert('flat', 'mkv-h264', volume=-12).path)
    assert 4 < louder - before < 7.5 and -13 < quieter - before < -11, f'{before} {louder} {quieter}'
    for sample in ('flat', 'surround'):
        out = c.convert(sample, 'mkv-h264', normalizes=True)
        assert out.sounds[0]['sample_rate'] == '48000'
        assert -26 < loudness(out.path) < -14, loudness(out.path)
    c.convert('flat', 'mp3', normalizes=True, volume=3, fadeIn=0.5, fadeOut=0.5, speedFactor=1.5)


def case_subtitles(c):
    out = c.convert('languages', 'mkv-h264', subtitles={'4': 2, '5': 1})
    assert [s['tags']['language'] for s in out.of('subtitle')] == ['jpn']
    out = c.convert('flat', 'mp4-h264', externalSubtitles=[{'path': str(c.sample('words')), 'language': 'spa'}])
    assert out.of('subtitle')[0]['tags']['language'] == 'spa' and 'words two' in texts_of(out.path)
    out = c.convert('flat', 'mkv-h264', pieces=[[1, 4]], externalSubtitles=[{'path': str(c.sample('words'))}])
    assert near(cue_times(out.path), [0, 0.5, 1, 2.5], 0.03), cue_times(out.path)
    out = c.convert('flat', 'mkv-copy', externalSubtitles=[{'path': str(c.sample('cues'))}])
    times = [l for l in run(['ffprobe', '-v', 'error', '-select_streams', 's', '-show_entries', 'packet=pts_time', '-of', 'csv=p=0', str(out.path)]).stdout.decode().split()]
    assert abs(float(times[0].strip(',')) - 1) < 0.05, times


def bright(output, seconds):
    return mean_color(output.picture(seconds), 0.27, 0.85, 0.73, 0.95)


def case_burning(c):
    cues, words = str(c.sample('cues')), str(c.sample('words'))
    white = lambda out, t: min(bright(out, t)) > 200
    for sample, options, shift in (('bitmaps', {'subtitles': {'2': 1}}, 0), ('grey', {'externalSubtitles': [{'path': cues, 'use': 1}]}, 0),
                                   ('bitmaps', {'subtitles': {'2': 1}, 'pieces': [[0.5, 4]]}, 0.5),
                                   ('grey', {'externalSubtitles': [{'path': cues, 'use': 1}], 'pieces': [[0.5, 4]]}, 0.5)):
        out = c.convert(sample, 'mp4-h264', **options)
        shown = [white(out, t - shift) for t in (0.8, 1.2, 1.8, 2.2, 3.0, 3.7)]
        assert shown == [False, True, True, False, True, False], f'{sample} {options}: {shown}'
    out = c.convert('grey', 'mp4-h264', externalSubtitles=[{'path': cues, 'use': 1}], pieces=[[0, 1.5], [2, 4]])
    assert [white(out, t) for t in (0.8, 1.2, 1.7, 2.2)] == [False, True, False, True]
    plain = c.convert('grey', 'mp4-h264', copies=False)
    for options, shift in (({}, 0), ({'pieces': [[1, 4]]}, 1), ({'pieces': [[0, 0.4], [1, 4]]}, 0.6)):
        out = c.convert('grey', 'mp4-h264', externalSubtitles=[{'path': words, 'use': 1}], **options)
        changed = [out.picture(t - shift)[2] != plain.picture(t)[2] and max(out.picture(t - shift)[2]) > 200 for t in (1.2, 1.7, 2.5, 3.7)]
        assert changed == [True, False, True, False], f'{options}: {changed}'
    out = c.convert('nasty', 'mp4-h264', subtitles={'2': 1})
    assert not out.of('subtitle')


# Edit

def case_exact_cuts(c):
    out = c.convert('long', 'mp4-h264', pieces=[[4.17, 9.5]], speed=2)
    assert abs(out.seconds - 5.33) < 0.1, out.seconds
    source = run(['ffmpeg', '-v', 'error', '-ss', '4.17', '-i', str(c.sample('long')), '-frames:v', '1', '-f', 'image2pipe', '-c:v', 'ppm', '-']).stdout
    difference = [abs(a - b) for a, b in zip(parse_ppm(source)[2][::97], out.picture(0)[2][::97])]
    assert sum(difference) / len(difference) < 6
    out = c.convert('film', 'mp4-h264', pieces=[[1, 3]])
    assert [round(float(ch['start_time'])) for ch in out.told['chapters']] == [0, 1]
    # The first is seen for its rest, the second until the end.
    assert near(cue_times(out.path), [0, 0.5, 1, 2], 0.03), cue_times(out.path)
    out = c.convert('film', 'mkv-h264', pieces=[[3, 4], [0.5, 1.5]])
    assert abs(out.seconds - 2) < 0.1 and len(out.told['chapters']) == 2 and out.packets == 50, out.packets
    assert len(out.sounds) == 3 and out.steps['leftOut']
    out = c.convert('bitmaps', 'mkv-h264', pieces=[[1.5, 3]])
    assert out.of('subtitle')
    out = c.convert('film', 'mkv-copy', pieces=[[1, 3]], exactCuts=False)
    assert '00:00:01' in texts_of(out.path), texts_of(out.path)
    assert len(c.convert('flat', 'm4a-aac', pieces=[[1, 2], [3, 4]]).sounds) == 1
    assert 'refused' in c.ask('flat', 'mp4-h264', pieces=[[10, 12]])[0]


def case_cuts_at_keyframes(c):
    out = c.convert('long', 'mkv-copy', pieces=[[5.5, 12]], exactCuts=False)
    assert out.steps['work'] == 0 and 6.4 <= out.seconds <= 8.1, out.seconds
    for preset in ('mkv-copy', 'mp4-copy'):
        out = c.convert('flat', preset, pieces=[[0, 2], [2, 4]], exactCuts=False)
        assert out.steps['work'] == 0 and 3.9 <= out.seconds <= 4.5, out.seconds
        decoded = run(['ffmpeg', '-v', 'error', '-i', str(out.path), '-f', 'null', '-']).stderr
        assert not decoded, decoded[:300]


def corners(output, seconds=1):
    picture = output.picture(seconds)
    names = []
    for x, y in ((0, 0), (1, 0), (0, 1), (1, 1)):
        color = mean_color(picture, x * 0.6 + 0.1, y * 0.6 + 0.1, x * 0.6 + 0.3, y * 0.6 + 0.3)
        names.append(''.join('1' if part > 128 else '0' for part in color))
    return ' '.join({'100': 'r', '010': 'g', '001': 'b', '111': 'w'}.get(n, n) for n in names)


def case_crop_turn_mirror(c):
    for options, wanted, size in (({}, 'r g b w', (320, 180)), ({'turn': 1}, 'b r w g', (180, 320)), ({'turn': 2}, 'g w r b', (180, 320)), ({'turn': 3}, 'w b g r', (320, 180)),
                                  ({'mirrored': True}, 'g r w b', (320, 180)), ({'crop': [0.5, 0, 0.5, 1]}, 'g g w w', (160, 180)),
                                  ({'crop': [0, 0.5, 1, 0.5], 'turn': 1}, 'b b w w', (90, 320))):
        out = c.convert('quadrants', 'mp4-h264', copies=False, **options)
        assert (corners(out), (out.video['width'], out.video['height'])) == (wanted, size), f'{options}: {corners(out)} {out.video["width"]}'


def case_colours_changed(c):
    grey = lambda **o: mean_color(c.convert('grey', 'mp4-h264', **o).picture(1), 0.2, 0.2, 0.8, 0.8)
    assert grey(brightness=0.2)[0] > 160 and grey(brightness=-0.2)[0] < 100
    out = c.convert('quadrants', 'mp4-h264', saturation=0)
    red = mean_color(out.picture(1), 0.1, 0.1, 0.3, 0.3)
    assert max(red) - min(red) < 12, red


def case_speed(c):
    for factor in (0.25, 0.5, 2, 3, 4):
        out = c.convert('film', 'mp4-h264', speedFactor=factor)
        assert abs(out.seconds - 4 / factor) < 0.15, f'{factor}: {out.seconds}'
        assert abs(float(out.sounds[0]['duration']) - 4 / factor) < 0.2
        assert abs(float(out.told['chapters'][1]['start_time']) - 2 / factor) < 0.05
    c.convert('flat', 'avi-mpeg4', speedFactor=2)
    c.convert('flat', 'avi-mpeg4', speedFactor=0.5)


def case_fades(c):
    out = c.convert('grey', 'mp4-h264', fadeIn=1, fadeOut=1)
    levels = [mean_color(out.picture(t), 0, 0, 1, 1)[0] for t in (0, 0.5, 2, 3.9)]
    assert levels[0] < 30 < levels[1] < levels[2] - 20 and levels[3] < 60, levels


def case_watermarks(c):
    green = lambda color: color[1] > color[0] + 40
    mark = {'image': str(c.sample('mark')), 'opacity': 1, 'size': 0.2}
    # left 1, right 2, centre 4; top 32, bottom 64, centre 128
    for corner, place in ((1 | 32, (0.03, 0.05, 0.2, 0.15)), (2 | 64, (0.8, 0.85, 0.97, 0.95)), (4 | 128, (0.45, 0.45, 0.55, 0.55))):
        out = c.convert('grey', 'mp4-h264', watermark=dict(mark, corner=corner))
        assert green(mean_color(out.picture(1), *place)), corner
    out = c.convert('deep', 'mkv-h264', watermark=dict(mark, corner=33))
    assert out.video['pix_fmt'] == 'yuv422p10le'
    for text in ("Kestrel", "100 % 'mine': [a], {b};\\n=x", '日本語'):
        out = c.convert('grey', 'mp4-h264', watermark={'text': text, 'opacity': 1, 'size': 0.3, 'corner': 33})
        width, height, pixels = out.picture(1)
        assert max(pixels[:width * 3 * (height // 4)]) > 200, text


def case_joins(c):
    out = c.convert(['flat', 'flat'], 'mp4-copy')
    assert out.steps['work'] == 0 and out.packets == 200
    out = c.convert(['flat', 'other'], 'mp4-copy')
    assert out.steps['work'] == 2 and abs(out.seconds - 7) < 0.2, out.seconds
    out = c.convert(['flat', 'other', 'anamorphic'], 'mkv-h265', chapterPerSource=True, speed=2)
    assert abs(out.seconds - 11) < 0.2 and [ch['tags']['title'] for ch in out.told['chapters']] == ['flat', 'other', 'anamorphic']
    out = c.convert(['film', 'film'], 'mkv-copy', chapterPerSource=False)
    assert len(out.told['chapters']) == 4 and len(out.sounds) == 3
    out = c.convert(['song', 'flat'], 'mp3')
    assert abs(out.seconds - 8) < 0.2
    assert 'refused' in c.ask(['song', 'silent'], 'mp4-h264')[0]


def case_preview(c):
    for preset, options, size in (('mp4-h264', {'crop': [0.5, 0, 0.5, 1]}, (160, 180)), ('mp4-h264', {'watermark': {'image': str(c.sample('mark'))}}, (320, 180)),
                                  ('gif', {'turn': 1}, (180, 320))):
        question = c.question('quadrants', preset, **options)
        for seconds, result in ((0, True), (2.1, True), (2.1, False)):
            answer = c.tool.ask(dict(question, preview=[seconds, 1000, 1000, result]))
            width, height, _ = parse_ppm(run(['ffmpeg'] + answer['arguments']).stdout)
            assert (width, height) == (size if result else (320, 180)), f'{options}: {width}x{height}'
    question = c.question('long', 'mp4-h264')
    at = [run(['ffmpeg'] + c.tool.ask(dict(question, preview=[seconds, 320, 180, False, exact]))['arguments']).stdout
          for seconds, exact in ((4.2, False), (4.8, False), (4.2, True), (4.8, True))]
    assert at[0] == at[1] != at[2] != at[3], 'key pictures, then exact ones'
