"""What SimpleScreenRecorder and OBS are told by recording.py: files below their home, with gaps for folder and size."""

SETTINGS = {
    'ssr.conf': '''[input]
video_area=screen
video_frame_rate=30
audio_enabled=true
audio_backend=pulseaudio
audio_pulseaudio_source=out.monitor
[output]
file=%(folder)s/film.mp4
container=mp4
video_codec=other
video_codec_av=libx264
video_options="preset=superfast,tune=zerolatency,crf=23,g=60"
video_allow_frame_skipping=false
audio_codec=other
audio_codec_av=aac
audio_kbit_rate=160
''',
    '.config/obs-studio/global.ini': '''[General]
FirstRun=true
[BasicWindow]
PreviewEnabled=false
''',
    '.config/obs-studio/basic/profiles/Untitled/basic.ini': '''[Output]
Mode=Advanced
[AdvOut]
RecFilePath=%(folder)s
RecFormat=mp4
RecEncoder=obs_x264
Track1Bitrate=160
[Video]
BaseCX=%(width)d
BaseCY=%(height)d
OutputCX=%(width)d
OutputCY=%(height)d
FPSCommon=30
[Hotkeys]
OBSBasic.StopRecording={"bindings":[{"key":"OBS_KEY_F9"}]}
''',
    '.config/obs-studio/basic/profiles/Untitled/recordEncoder.json':
        '{"preset": "superfast", "tune": "zerolatency", "rate_control": "CRF", "crf": 23, "keyint_sec": 2}',
    '.config/obs-studio/basic/scenes/Untitled.json': '''{"name": "Untitled", "current_scene": "Scene", "sources": [
{"id": "scene", "name": "Scene", "settings": {"items": [{"id": 1, "name": "Screen", "visible": true}]}},
{"id": "xshm_input", "name": "Screen", "settings": {"screen": 0}}],
"DesktopAudioDevice1": {"id": "pulse_output_capture", "name": "Sound", "settings": {"device_id": "out.monitor"}}}''',
}
