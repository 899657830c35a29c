<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>TarnwellPublic</name>
    <message>
        <source>%1 converted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Kestrel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to reset profile?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to restart the application now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup DVDs in 6 modes, rip a full DVD to 180+ formats to play on Mac &amp; mobiles, store on hard drive, or enjoy on TV, etc. Rip a full DVD in 5 minutes!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change video &amp; audio formats, resize video files, edit 4K, 5K, 8K videos, like cut, merge, split, rotate, subtitle, watermark, etc. Experience No.1 fast hardware-accelerated processing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes to the languages take effect upon relaunch.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert &amp; Backup DVD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert &amp; Process Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DVD Ripper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download ultra-high quality online streaming videos and music from YouTube Facebook and 1000+ sites. Convert downloaded files to MP4, MP3, etc.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloader</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kestrel Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MKV Video (H.264, AAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Kestrel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record screen/webcam/iPhone videos. Capture live streams, games, desktop, and anything in MOV for YouTube. Support recording screen and webcam at the same time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report Bug</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset Profiles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The converter cannot make this format. Choose another one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The converter could not be started. Please install the application again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The converter could not convert this file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds neither video nor sound that can be converted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is no longer where it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The hardware encoder is not available. Switch it off in the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output directory does not exist. Please check the setting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output folder is read-only. Choose another one in the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tool that reads media files is missing. Please install the application again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no media file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video Converter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>closetip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>showtip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
