<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>TarnwellPublic</name>
    <message>
        <source>%1 (%2 threads)</source>
        <translation>%1 (%2 threads)</translation>
    </message>
    <message>
        <source>%1 (sound only)</source>
        <translation>%1 (sound only)</translation>
    </message>
    <message>
        <source>%1 - Title %2</source>
        <translation>%1 - Title %2</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 MB are too few for a file of this length.</source>
        <translation>%1 MB are too few for a file of this length.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 and %2 more</translation>
    </message>
    <message>
        <source>%1 angles</source>
        <translation>%1 angles</translation>
    </message>
    <message>
        <source>%1 chapters</source>
        <translation>%1 chapters</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>%1 dropped</source>
        <translation>%1 dropped</translation>
    </message>
    <message>
        <source>%1 files selected</source>
        <translation>%1 files selected</translation>
    </message>
    <message>
        <source>%1 has fewer tracks of sound than other files: what it lacks is silent.</source>
        <translation>%1 has fewer tracks of sound than other files: what it lacks is silent.</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 of %2 pictures came too late: the one before stands for them.</source>
        <translation>%1 of %2 pictures came too late: the one before stands for them.</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, %3 faults</source>
        <translation>%1 of %2 s could be read, %3 faults</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, 1 fault</source>
        <translation>%1 of %2 s could be read, 1 fault</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read.</source>
        <translation>%1 of %2 s could be read.</translation>
    </message>
    <message>
        <source>%1 pictures a second</source>
        <translation>%1 pictures a second</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 s could be read, %2 faults</source>
        <translation>%1 s could be read, %2 faults</translation>
    </message>
    <message>
        <source>%1 s could be read, 1 fault</source>
        <translation>%1 s could be read, 1 fault</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the copy.</source>
        <translation>%1 sectors of the disc could not be read and are empty in the copy.</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the image.</source>
        <translation>%1 sectors of the disc could not be read and are empty in the image.</translation>
    </message>
    <message>
        <source>%1 sectors of the film could not be read.</source>
        <translation>%1 sectors of the film could not be read.</translation>
    </message>
    <message>
        <source>%1 titles</source>
        <translation>%1 titles</translation>
    </message>
    <message>
        <source>%1 to go</source>
        <translation>%1 to go</translation>
    </message>
    <message>
        <source>%1 ×</source>
        <translation>%1 ×</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%@ %@ is currently the latest version available.</source>
        <translation>%@ %@ is currently the latest version available.</translation>
    </message>
    <message>
        <source>%@ %@ is now available -- you're running %@. Would you like to update now?</source>
        <translation>%@ %@ is now available -- you're running %@. Would you like to update now?</translation>
    </message>
    <message>
        <source>128 kbit/s</source>
        <translation>128 kbit/s</translation>
    </message>
    <message>
        <source>160 kbit/s</source>
        <translation>160 kbit/s</translation>
    </message>
    <message>
        <source>192 kbit/s</source>
        <translation>192 kbit/s</translation>
    </message>
    <message>
        <source>23.976</source>
        <translation>23.976</translation>
    </message>
    <message>
        <source>24</source>
        <translation>24</translation>
    </message>
    <message>
        <source>25</source>
        <translation>25</translation>
    </message>
    <message>
        <source>256 kbit/s</source>
        <translation>256 kbit/s</translation>
    </message>
    <message>
        <source>2560 × 1440</source>
        <translation>2560 × 1440</translation>
    </message>
    <message>
        <source>29.97</source>
        <translation>29.97</translation>
    </message>
    <message>
        <source>30</source>
        <translation>30</translation>
    </message>
    <message>
        <source>320 kbit/s</source>
        <translation>320 kbit/s</translation>
    </message>
    <message>
        <source>448 kbit/s</source>
        <translation>448 kbit/s</translation>
    </message>
    <message>
        <source>4K (3840 × 2160)</source>
        <translation>4K (3840 × 2160)</translation>
    </message>
    <message>
        <source>50</source>
        <translation>50</translation>
    </message>
    <message>
        <source>59.94</source>
        <translation>59.94</translation>
    </message>
    <message>
        <source>60</source>
        <translation>60</translation>
    </message>
    <message>
        <source>64 kbit/s</source>
        <translation>64 kbit/s</translation>
    </message>
    <message>
        <source>640 kbit/s</source>
        <translation>640 kbit/s</translation>
    </message>
    <message>
        <source>96 kbit/s</source>
        <translation>96 kbit/s</translation>
    </message>
    <message>
        <source>A chapter for each joined file</source>
        <translation>A chapter for each joined file</translation>
    </message>
    <message>
        <source>A disc of the chosen title alone, without menus, that players start at once.</source>
        <translation>A disc of the chosen title alone, without menus, that players start at once.</translation>
    </message>
    <message>
        <source>A file of the kind %1 cannot hold what this preset asks for: %2.</source>
        <translation>A file of the kind %1 cannot hold what this preset asks for: %2.</translation>
    </message>
    <message>
        <source>A folder has no sectors to copy. Choose another way.</source>
        <translation>A folder has no sectors to copy. Choose another way.</translation>
    </message>
    <message>
        <source>A new version of %@ is available!</source>
        <translation>A new version of %@ is available!</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>A preset needs a name.</translation>
    </message>
    <message>
        <source>A recording is to begin at %1.</source>
        <translation>A recording is to begin at %1.</translation>
    </message>
    <message>
        <source>AC-3 Audio</source>
        <translation>AC-3 Audio</translation>
    </message>
    <message>
        <source>AIFF Audio</source>
        <translation>AIFF Audio</translation>
    </message>
    <message>
        <source>APNG Animation</source>
        <translation>APNG Animation</translation>
    </message>
    <message>
        <source>AVI Video (MPEG-4, MP3)</source>
        <translation>AVI Video (MPEG-4, MP3)</translation>
    </message>
    <message>
        <source>AVI Video (Motion JPEG, PCM)</source>
        <translation>AVI Video (Motion JPEG, PCM)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>About %1.</source>
        <translation>About %1.</translation>
    </message>
    <message>
        <source>About %@</source>
        <translation>About %@</translation>
    </message>
    <message>
        <source>About Kestrel</source>
        <translation>About Kestrel</translation>
    </message>
    <message>
        <source>About Our Company Tarnwell Software, Inc.</source>
        <translation>About Our Company Tarnwell Software, Inc.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Add %1</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Add Files…</translation>
    </message>
    <message>
        <source>Add Subtitle File…</source>
        <translation>Add Subtitle File…</translation>
    </message>
    <message>
        <source>Adding the subtitles…</source>
        <translation>Adding the subtitles…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Address of a video or a page, such as https://…</source>
        <translation>Address of a video or a page, such as https://…</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>Aim</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>All Formats</source>
        <translation>All Formats</translation>
    </message>
    <message>
        <source>All Formats…</source>
        <translation>All Formats…</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>All files</translation>
    </message>
    <message>
        <source>All files of the disc in a folder, with its menus.</source>
        <translation>All files of the disc in a folder, with its menus.</translation>
    </message>
    <message>
        <source>All jobs are done.</source>
        <translation>All jobs are done.</translation>
    </message>
    <message>
        <source>All jobs have ended.</source>
        <translation>All jobs have ended.</translation>
    </message>
    <message>
        <source>All languages</source>
        <translation>All languages</translation>
    </message>
    <message>
        <source>All sound tracks of the chosen titles with their chapters.</source>
        <translation>All sound tracks of the chosen titles with their chapters.</translation>
    </message>
    <message>
        <source>Allow Many From One Server</source>
        <translation>Allow Many From One Server</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>Already in the list: %1</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Always</translation>
    </message>
    <message>
        <source>Always kept</source>
        <translation>Always kept</translation>
    </message>
    <message>
        <source>Always, twice the pictures</source>
        <translation>Always, twice the pictures</translation>
    </message>
    <message>
        <source>An address is for example http://proxy.example.com or socks5://10.0.0.1.</source>
        <translation>An address is for example http://proxy.example.com or socks5://10.0.0.1.</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation>Another folder…</translation>
    </message>
    <message>
        <source>App Log</source>
        <translation>App Log</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>Are you sure you want to reset profile?</source>
        <translation>Are you sure you want to reset profile?</translation>
    </message>
    <message>
        <source>Are you sure you want to restart the application now?</source>
        <translation>Are you sure you want to restart the application now?</translation>
    </message>
    <message>
        <source>Artist and album. %1 cannot hold them.</source>
        <translation>Artist and album. %1 cannot hold them.</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>As the format has it</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>As the source</translation>
    </message>
    <message>
        <source>Asking the site…</source>
        <translation>Asking the site…</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>At most</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Backup DVDs in 6 modes, rip a full DVD to 180+ formats to play on Mac &amp; mobiles, store on hard drive, or enjoy on TV, etc. Rip a full DVD in 5 minutes!</source>
        <translation>Backup DVDs in 6 modes, rip a full DVD to 180+ formats to play on Mac &amp; mobiles, store on hard drive, or enjoy on TV, etc. Rip a full DVD in 5 minutes!</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Begin</translation>
    </message>
    <message>
        <source>Begin at a time…</source>
        <translation>Begin at a time…</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <translation>Begin at once</translation>
    </message>
    <message>
        <source>Beside the source</source>
        <translation>Beside the source</translation>
    </message>
    <message>
        <source>Best quality</source>
        <translation>Best quality</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Bit rate</translation>
    </message>
    <message>
        <source>Bit rate of a track</source>
        <translation>Bit rate of a track</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Bottom left</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Bottom right</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>Build on: %@</source>
        <translation>Build on: %@</translation>
    </message>
    <message>
        <source>Burnt into the picture</source>
        <translation>Burnt into the picture</translation>
    </message>
    <message>
        <source>CAF Audio (ALAC)</source>
        <translation>CAF Audio (ALAC)</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Camera %1</translation>
    </message>
    <message>
        <source>Camera %1 in the picture</source>
        <translation>Camera %1 in the picture</translation>
    </message>
    <message>
        <source>Camera in the picture</source>
        <translation>Camera in the picture</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Cancel the Trial</source>
        <translation>Cancel the Trial</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelled</translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation>Cancelled: %1</translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation>Cannot be used</translation>
    </message>
    <message>
        <source>Change video &amp; audio formats, resize video files, edit 4K, 5K, 8K videos, like cut, merge, split, rotate, subtitle, watermark, etc. Experience No.1 fast hardware-accelerated processing.</source>
        <translation>Change video &amp; audio formats, resize video files, edit 4K, 5K, 8K videos, like cut, merge, split, rotate, subtitle, watermark, etc. Experience No.1 fast hardware-accelerated processing.</translation>
    </message>
    <message>
        <source>Changes to the languages take effect upon relaunch.</source>
        <translation>Changes to the languages take effect upon relaunch.</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>Channels of the sound: %1. %2 become %3.</source>
        <translation>Channels of the sound: %1. %2 become %3.</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>Chapter %1</translation>
    </message>
    <message>
        <source>Chapters are missing in the finished file.</source>
        <translation>Chapters are missing in the finished file.</translation>
    </message>
    <message>
        <source>Chapters, languages and the colours of subtitles, which MPEG-2 files cannot hold</source>
        <translation>Chapters, languages and the colours of subtitles, which MPEG-2 files cannot hold</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Check for Updates…</translation>
    </message>
    <message>
        <source>Checking for updates.. </source>
        <translation>Checking for updates.. </translation>
    </message>
    <message>
        <source>Checking the copy…</source>
        <translation>Checking the copy…</translation>
    </message>
    <message>
        <source>Checking the finished file…</source>
        <translation>Checking the finished file…</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choose</translation>
    </message>
    <message>
        <source>Choose Films</source>
        <translation>Choose Films</translation>
    </message>
    <message>
        <source>Choose Films…</source>
        <translation>Choose Films…</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>Choose a Folder</translation>
    </message>
    <message>
        <source>Choose a Window</source>
        <translation>Choose a Window</translation>
    </message>
    <message>
        <source>Choose above what is recorded, then press Record.</source>
        <translation>Choose above what is recorded, then press Record.</translation>
    </message>
    <message>
        <source>Choose an Area</source>
        <translation>Choose an Area</translation>
    </message>
    <message>
        <source>Choose another one, or allow yourself to write to it: %1</source>
        <translation>Choose another one, or allow yourself to write to it: %1</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choose…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Click the window that is to be recorded</source>
        <translation>Click the window that is to be recorded</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>Clockwise</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>Common</translation>
    </message>
    <message>
        <source>Computer and microphone</source>
        <translation>Computer and microphone</translation>
    </message>
    <message>
        <source>Computer and microphone, a track each</source>
        <translation>Computer and microphone, a track each</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connecting…</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convert</translation>
    </message>
    <message>
        <source>Convert &amp; Backup DVD</source>
        <translation>Convert &amp; Backup DVD</translation>
    </message>
    <message>
        <source>Convert &amp; Process Video</source>
        <translation>Convert &amp; Process Video</translation>
    </message>
    <message>
        <source>Converting ten seconds: %1 %</source>
        <translation>Converting ten seconds: %1 %</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>Converting…</translation>
    </message>
    <message>
        <source>Converting… %1 %</source>
        <translation>Converting… %1 %</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Copied.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Copyright © 2019-%@ Tarnwell Software, Inc. All rights reserved.</source>
        <translation>Copyright © 2019-%@ Tarnwell Software, Inc. All rights reserved.</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Corner</translation>
    </message>
    <message>
        <source>Count down from three</source>
        <translation>Count down from three</translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation>Counterclockwise</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Cut and Edit</source>
        <translation>Cut and Edit</translation>
    </message>
    <message>
        <source>Cut and Edit…</source>
        <translation>Cut and Edit…</translation>
    </message>
    <message>
        <source>Cut exactly (encodes)</source>
        <translation>Cut exactly (encodes)</translation>
    </message>
    <message>
        <source>Cut off bottom</source>
        <translation>Cut off bottom</translation>
    </message>
    <message>
        <source>Cut off left</source>
        <translation>Cut off left</translation>
    </message>
    <message>
        <source>Cut off right</source>
        <translation>Cut off right</translation>
    </message>
    <message>
        <source>Cut off top</source>
        <translation>Cut off top</translation>
    </message>
    <message>
        <source>Cut or Convert…</source>
        <translation>Cut or Convert…</translation>
    </message>
    <message>
        <source>Cut without encoding: it begins at the key picture at or before %1 s.</source>
        <translation>Cut without encoding: it begins at the key picture at or before %1 s.</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>DTS</source>
        <translation>DTS</translation>
    </message>
    <message>
        <source>DV Video</source>
        <translation>DV Video</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>DVD (720 × 576)</source>
        <translation>DVD (720 × 576)</translation>
    </message>
    <message>
        <source>DVD Ripper</source>
        <translation>DVD Ripper</translation>
    </message>
    <message>
        <source>Data of the camera, such as time code.</source>
        <translation>Data of the camera, such as time code.</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Deinterlacing</source>
        <translation>Deinterlacing</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Details…</source>
        <translation>Details…</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>Disc Player (VOB)</source>
        <translation>Disc Player (VOB)</translation>
    </message>
    <message>
        <source>Disc folder with menus</source>
        <translation>Disc folder with menus</translation>
    </message>
    <message>
        <source>Disc image (ISO)</source>
        <translation>Disc image (ISO)</translation>
    </message>
    <message>
        <source>Disc images</source>
        <translation>Disc images</translation>
    </message>
    <message>
        <source>Discard Recording</source>
        <translation>Discard Recording</translation>
    </message>
    <message>
        <source>Dolby Digital</source>
        <translation>Dolby Digital</translation>
    </message>
    <message>
        <source>Don't Record</source>
        <translation>Don't Record</translation>
    </message>
    <message>
        <source>Don't Shut Down</source>
        <translation>Don't Shut Down</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Done with problems</source>
        <translation>Done with problems</translation>
    </message>
    <message>
        <source>Done with problems: %1</source>
        <translation>Done with problems: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Done: %1</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Download Now</source>
        <translation>Download Now</translation>
    </message>
    <message>
        <source>Download Video</source>
        <translation>Download Video</translation>
    </message>
    <message>
        <source>Download format</source>
        <translation>Download format</translation>
    </message>
    <message>
        <source>Download resolution</source>
        <translation>Download resolution</translation>
    </message>
    <message>
        <source>Download ultra-high quality online streaming videos and music from YouTube Facebook and 1000+ sites. Convert downloaded files to MP4, MP3, etc.</source>
        <translation>Download ultra-high quality online streaming videos and music from YouTube Facebook and 1000+ sites. Convert downloaded files to MP4, MP3, etc.</translation>
    </message>
    <message>
        <source>Downloader</source>
        <translation>Downloader</translation>
    </message>
    <message>
        <source>Downloads at the same time</source>
        <translation>Downloads at the same time</translation>
    </message>
    <message>
        <source>Downloads that are running keep the limit that they began with.</source>
        <translation>Downloads that are running keep the limit that they began with.</translation>
    </message>
    <message>
        <source>Draw an area, then press Return</source>
        <translation>Draw an area, then press Return</translation>
    </message>
    <message>
        <source>Drawn into the film, for players that show none themselves.</source>
        <translation>Drawn into the film, for players that show none themselves.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Drive</translation>
    </message>
    <message>
        <source>Drop videos or folders anywhere in this window, choose a format below and press Convert. The results go to the output folder; your own files stay as they are.</source>
        <translation>Drop videos or folders anywhere in this window, choose a format below and press Convert. The results go to the output folder; your own files stay as they are.</translation>
    </message>
    <message>
        <source>Drop videos or folders here</source>
        <translation>Drop videos or folders here</translation>
    </message>
    <message>
        <source>E-AC-3 Audio</source>
        <translation>E-AC-3 Audio</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Editing</translation>
    </message>
    <message>
        <source>Encoding in software</source>
        <translation>Encoding in software</translation>
    </message>
    <message>
        <source>Encoding once more, to meet the size</source>
        <translation>Encoding once more, to meet the size</translation>
    </message>
    <message>
        <source>Encoding, because the tracks could not be copied</source>
        <translation>Encoding, because the tracks could not be copied</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>End Here</source>
        <translation>End Here</translation>
    </message>
    <message>
        <source>Even out the loudness</source>
        <translation>Even out the loudness</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>FLAC Audio</source>
        <translation>FLAC Audio</translation>
    </message>
    <message>
        <source>FLV Video (H.264, AAC)</source>
        <translation>FLV Video (H.264, AAC)</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Fade in</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Fade out</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Failed: %1</translation>
    </message>
    <message>
        <source>Faster, larger file</source>
        <translation>Faster, larger file</translation>
    </message>
    <message>
        <source>Fastest, largest file</source>
        <translation>Fastest, largest file</translation>
    </message>
    <message>
        <source>File size at most</source>
        <translation>File size at most</translation>
    </message>
    <message>
        <source>Files can be cut or joined, but not both at once.</source>
        <translation>Files can be cut or joined, but not both at once.</translation>
    </message>
    <message>
        <source>Film from television (24)</source>
        <translation>Film from television (24)</translation>
    </message>
    <message>
        <source>Films and files without a picture can be joined only into a file of sound.</source>
        <translation>Films and files without a picture can be joined only into a file of sound.</translation>
    </message>
    <message>
        <source>Films at this address</source>
        <translation>Films at this address</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>Find Black Bars</source>
        <translation>Find Black Bars</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Find Next</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Find Previous</translation>
    </message>
    <message>
        <source>Finishing…</source>
        <translation>Finishing…</translation>
    </message>
    <message>
        <source>First pass</source>
        <translation>First pass</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Follow</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>For all files</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>For example: %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Format and options in use are kept under this name:</source>
        <translation>Format and options in use are kept under this name:</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>Formats</translation>
    </message>
    <message>
        <source>Found after going around the end of the log.</source>
        <translation>Found after going around the end of the log.</translation>
    </message>
    <message>
        <source>From chapter</source>
        <translation>From chapter</translation>
    </message>
    <message>
        <source>Full HD (1920 × 1080)</source>
        <translation>Full HD (1920 × 1080)</translation>
    </message>
    <message>
        <source>Further cover pictures beside the first.</source>
        <translation>Further cover pictures beside the first.</translation>
    </message>
    <message>
        <source>Further pictures beside the first (other angles or previews).</source>
        <translation>Further pictures beside the first (other angles or previews).</translation>
    </message>
    <message>
        <source>GIF Animation</source>
        <translation>GIF Animation</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>Game Console</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Go On</translation>
    </message>
    <message>
        <source>Good quality</source>
        <translation>Good quality</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Got It</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Graphics</translation>
    </message>
    <message>
        <source>H.264 decoders</source>
        <translation>H.264 decoders</translation>
    </message>
    <message>
        <source>H.264 encoders</source>
        <translation>H.264 encoders</translation>
    </message>
    <message>
        <source>HD (1280 × 720)</source>
        <translation>HD (1280 × 720)</translation>
    </message>
    <message>
        <source>HEVC decoders</source>
        <translation>HEVC decoders</translation>
    </message>
    <message>
        <source>HEVC encoders</source>
        <translation>HEVC encoders</translation>
    </message>
    <message>
        <source>Hardware Information</source>
        <translation>Hardware Information</translation>
    </message>
    <message>
        <source>Hardware acceleration:</source>
        <translation>Hardware acceleration:</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>High dynamic range</source>
        <translation>High dynamic range</translation>
    </message>
    <message>
        <source>High dynamic range becomes standard range.</source>
        <translation>High dynamic range becomes standard range.</translation>
    </message>
    <message>
        <source>High quality (slower)</source>
        <translation>High quality (slower)</translation>
    </message>
    <message>
        <source>Highest Resolution</source>
        <translation>Highest Resolution</translation>
    </message>
    <message>
        <source>How the disc is kept</source>
        <translation>How the disc is kept</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Import…</translation>
    </message>
    <message>
        <source>In a session of Wayland the desktop asks what is recorded: it cannot be named beforehand.</source>
        <translation>In a session of Wayland the desktop asks what is recorded: it cannot be named beforehand.</translation>
    </message>
    <message>
        <source>Intel</source>
        <translation>Intel</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Interrupted</translation>
    </message>
    <message>
        <source>It is shown here as soon as it is written: %1</source>
        <translation>It is shown here as soon as it is written: %1</translation>
    </message>
    <message>
        <source>Its titles are kept as they are, or become MP4, MKV or MP3, as you choose.</source>
        <translation>Its titles are kept as they are, or become MP4, MKV or MP3, as you choose.</translation>
    </message>
    <message>
        <source>Jobs are running.</source>
        <translation>Jobs are running.</translation>
    </message>
    <message>
        <source>Jobs are still running.</source>
        <translation>Jobs are still running.</translation>
    </message>
    <message>
        <source>Join all files into one</source>
        <translation>Join all files into one</translation>
    </message>
    <message>
        <source>Join into One</source>
        <translation>Join into One</translation>
    </message>
    <message>
        <source>Joining</source>
        <translation>Joining</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>Keep Running</translation>
    </message>
    <message>
        <source>Keep Waiting</source>
        <translation>Keep Waiting</translation>
    </message>
    <message>
        <source>Keep the Rest Instead</source>
        <translation>Keep the Rest Instead</translation>
    </message>
    <message>
        <source>Keep the date of the source</source>
        <translation>Keep the date of the source</translation>
    </message>
    <message>
        <source>Keep tracks that fit as they are</source>
        <translation>Keep tracks that fit as they are</translation>
    </message>
    <message>
        <source>Kept as a track</source>
        <translation>Kept as a track</translation>
    </message>
    <message>
        <source>Kept until you quit</source>
        <translation>Kept until you quit</translation>
    </message>
    <message>
        <source>Kept where it can be</source>
        <translation>Kept where it can be</translation>
    </message>
    <message>
        <source>Kept: %1</source>
        <translation>Kept: %1</translation>
    </message>
    <message>
        <source>Kestrel Help</source>
        <translation>Kestrel Help</translation>
    </message>
    <message>
        <source>Kestrel Log</source>
        <translation>Kestrel Log</translation>
    </message>
    <message>
        <source>Kestrel Log — %1</source>
        <translation>Kestrel Log — %1</translation>
    </message>
    <message>
        <source>Kestrel does not know how long this file is, and cannot aim at a size.</source>
        <translation>Kestrel does not know how long this file is, and cannot aim at a size.</translation>
    </message>
    <message>
        <source>Kestrel does not know the kind of file “%1” of this preset.</source>
        <translation>Kestrel does not know the kind of file “%1” of this preset.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Language of %1</source>
        <translation>Language of %1</translation>
    </message>
    <message>
        <source>Languages of sound</source>
        <translation>Languages of sound</translation>
    </message>
    <message>
        <source>Languages of subtitles</source>
        <translation>Languages of subtitles</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>Learn More</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Left out</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Left out: %1</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Length</translation>
    </message>
    <message>
        <source>Lines with this text: %1</source>
        <translation>Lines with this text: %1</translation>
    </message>
    <message>
        <source>Lines with this text: %1, looking for more… %2 % (Esc stops)</source>
        <translation>Lines with this text: %1, looking for more… %2 % (Esc stops)</translation>
    </message>
    <message>
        <source>Log text</source>
        <translation>Log text</translation>
    </message>
    <message>
        <source>Looking at the hardware</source>
        <translation>Looking at the hardware</translation>
    </message>
    <message>
        <source>Looking for a newer download engine…</source>
        <translation>Looking for a newer download engine…</translation>
    </message>
    <message>
        <source>Lossless sound: %1. It becomes %2.</source>
        <translation>Lossless sound: %1. It becomes %2.</translation>
    </message>
    <message>
        <source>M4A Audio (AAC)</source>
        <translation>M4A Audio (AAC)</translation>
    </message>
    <message>
        <source>M4A Audio, Lossless (ALAC)</source>
        <translation>M4A Audio, Lossless (ALAC)</translation>
    </message>
    <message>
        <source>MKA Audio (Opus)</source>
        <translation>MKA Audio (Opus)</translation>
    </message>
    <message>
        <source>MKV Video (AV1, Opus)</source>
        <translation>MKV Video (AV1, Opus)</translation>
    </message>
    <message>
        <source>MKV Video (H.264, AAC)</source>
        <translation>MKV Video (H.264, AAC)</translation>
    </message>
    <message>
        <source>MKV Video (H.265, AAC)</source>
        <translation>MKV Video (H.265, AAC)</translation>
    </message>
    <message>
        <source>MKV Video (VP9, Opus)</source>
        <translation>MKV Video (VP9, Opus)</translation>
    </message>
    <message>
        <source>MKV Video, High Quality (H.265, FLAC)</source>
        <translation>MKV Video, High Quality (H.265, FLAC)</translation>
    </message>
    <message>
        <source>MKV Video, Lossless (FFV1, FLAC)</source>
        <translation>MKV Video, Lossless (FFV1, FLAC)</translation>
    </message>
    <message>
        <source>MOV Video (DNxHR, PCM)</source>
        <translation>MOV Video (DNxHR, PCM)</translation>
    </message>
    <message>
        <source>MOV Video (H.264, AAC)</source>
        <translation>MOV Video (H.264, AAC)</translation>
    </message>
    <message>
        <source>MOV Video (ProRes, PCM)</source>
        <translation>MOV Video (ProRes, PCM)</translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation>MP3 Audio</translation>
    </message>
    <message>
        <source>MP4 Video (AV1, Opus)</source>
        <translation>MP4 Video (AV1, Opus)</translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation>MP4 Video (H.264, AAC)</translation>
    </message>
    <message>
        <source>MP4 Video (H.265, AAC)</source>
        <translation>MP4 Video (H.265, AAC)</translation>
    </message>
    <message>
        <source>MP4 Video for Web Pages (1080p)</source>
        <translation>MP4 Video for Web Pages (1080p)</translation>
    </message>
    <message>
        <source>MPEG</source>
        <translation>MPEG</translation>
    </message>
    <message>
        <source>MPEG Video (MPEG-2, MP2)</source>
        <translation>MPEG Video (MPEG-2, MP2)</translation>
    </message>
    <message>
        <source>MPEG-4 movie (MP4)</source>
        <translation>MPEG-4 movie (MP4)</translation>
    </message>
    <message>
        <source>MXF Video (DNxHR, PCM)</source>
        <translation>MXF Video (DNxHR, PCM)</translation>
    </message>
    <message>
        <source>MXF Video (MPEG-2, PCM)</source>
        <translation>MXF Video (MPEG-2, PCM)</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>Media files</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memory</translation>
    </message>
    <message>
        <source>Messages of the tools</source>
        <translation>Messages of the tools</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Middle</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Mirror</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source>Music folder</source>
        <translation>Music folder</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>My Presets</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>Name of the preset:</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Never</translation>
    </message>
    <message>
        <source>No camera in the picture</source>
        <translation>No camera in the picture</translation>
    </message>
    <message>
        <source>No camera was found.</source>
        <translation>No camera was found.</translation>
    </message>
    <message>
        <source>No format matches the search.</source>
        <translation>No format matches the search.</translation>
    </message>
    <message>
        <source>No log was named</source>
        <translation>No log was named</translation>
    </message>
    <message>
        <source>No more than %1 pieces can be kept.</source>
        <translation>No more than %1 pieces can be kept.</translation>
    </message>
    <message>
        <source>No picture of the copy could be decoded.</source>
        <translation>No picture of the copy could be decoded.</translation>
    </message>
    <message>
        <source>No picture of this film could be decoded.</source>
        <translation>No picture of this film could be decoded.</translation>
    </message>
    <message>
        <source>No server answers at this address. Check it and try again.</source>
        <translation>No server answers at this address. Check it and try again.</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation>No sound</translation>
    </message>
    <message>
        <source>No speed limit</source>
        <translation>No speed limit</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation>No subtitles</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>Not chosen yet</translation>
    </message>
    <message>
        <source>Not turned</source>
        <translation>Not turned</translation>
    </message>
    <message>
        <source>Not used yet</source>
        <translation>Not used yet</translation>
    </message>
    <message>
        <source>Not used yet, kept until you quit</source>
        <translation>Not used yet, kept until you quit</translation>
    </message>
    <message>
        <source>Nothing could be decoded at %1 s.</source>
        <translation>Nothing could be decoded at %1 s.</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nothing found.</translation>
    </message>
    <message>
        <source>Nothing of the file could be converted.</source>
        <translation>Nothing of the file could be converted.</translation>
    </message>
    <message>
        <source>Nothing of the film could be read.</source>
        <translation>Nothing of the film could be read.</translation>
    </message>
    <message>
        <source>Nothing of the recording is left.</source>
        <translation>Nothing of the recording is left.</translation>
    </message>
    <message>
        <source>Nothing of this file would be kept.</source>
        <translation>Nothing of this file would be kept.</translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation>Nothing was recorded.</translation>
    </message>
    <message>
        <source>OGG Audio (Vorbis)</source>
        <translation>OGG Audio (Vorbis)</translation>
    </message>
    <message>
        <source>OGV Video (Theora, Vorbis)</source>
        <translation>OGV Video (Theora, Vorbis)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Old Phone (3GP)</source>
        <translation>Old Phone (3GP)</translation>
    </message>
    <message>
        <source>One title as a disc folder</source>
        <translation>One title as a disc folder</translation>
    </message>
    <message>
        <source>Only %1 of %2 s have come.</source>
        <translation>Only %1 of %2 s have come.</translation>
    </message>
    <message>
        <source>Only one track of subtitles can be burnt in; another one stays behind.</source>
        <translation>Only one track of subtitles can be burnt in; another one stays behind.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacity</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>Open Folder…</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>Open Image…</translation>
    </message>
    <message>
        <source>Open the log with “App Log” in the Help menu of %1.</source>
        <translation>Open the log with “App Log” in the Help menu of %1.</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>Open the output folder</translation>
    </message>
    <message>
        <source>Open the output folder when done</source>
        <translation>Open the output folder when done</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Opus Audio</source>
        <translation>Opus Audio</translation>
    </message>
    <message>
        <source>Original Sound, in an MKA File</source>
        <translation>Original Sound, in an MKA File</translation>
    </message>
    <message>
        <source>Original, in a MOV File</source>
        <translation>Original, in a MOV File</translation>
    </message>
    <message>
        <source>Original, in a TS File</source>
        <translation>Original, in a TS File</translation>
    </message>
    <message>
        <source>Original, in an MKV File</source>
        <translation>Original, in an MKV File</translation>
    </message>
    <message>
        <source>Original, in an MP4 File</source>
        <translation>Original, in an MP4 File</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>Output folder:</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>Output format</translation>
    </message>
    <message>
        <source>PCM</source>
        <translation>PCM</translation>
    </message>
    <message>
        <source>Page of options</source>
        <translation>Page of options</translation>
    </message>
    <message>
        <source>Part of the screen…</source>
        <translation>Part of the screen…</translation>
    </message>
    <message>
        <source>Parts of the finished file are missing.</source>
        <translation>Parts of the finished file are missing.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Paste or drop addresses here</source>
        <translation>Paste or drop addresses here</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>Phone (H.265)</source>
        <translation>Phone (H.265)</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Picture, all sound, subtitles in their colours and chapters of the chosen titles, nothing encoded again.</source>
        <translation>Picture, all sound, subtitles in their colours and chapters of the chosen titles, nothing encoded again.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>Pictures a second</source>
        <translation>Pictures a second</translation>
    </message>
    <message>
        <source>Piece %1 of %2</source>
        <translation>Piece %1 of %2</translation>
    </message>
    <message>
        <source>Pieces that are kept</source>
        <translation>Pieces that are kept</translation>
    </message>
    <message>
        <source>Place of the camera's picture</source>
        <translation>Place of the camera's picture</translation>
    </message>
    <message>
        <source>Places and styles of the subtitles: %1. %2 cannot hold them.</source>
        <translation>Places and styles of the subtitles: %1. %2 cannot hold them.</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>Play Source</source>
        <translation>Play Source</translation>
    </message>
    <message>
        <source>Playing speed</source>
        <translation>Playing speed</translation>
    </message>
    <message>
        <source>Plays Everywhere</source>
        <translation>Plays Everywhere</translation>
    </message>
    <message>
        <source>Please check that the disk has room and that this folder can be written: %1</source>
        <translation>Please check that the disk has room and that this folder can be written: %1</translation>
    </message>
    <message>
        <source>Please wait. Getting update information from the server...</source>
        <translation>Please wait. Getting update information from the server...</translation>
    </message>
    <message>
        <source>Please write to %1 and attach this file: %2</source>
        <translation>Please write to %1 and attach this file: %2</translation>
    </message>
    <message>
        <source>Please write to this address: %1</source>
        <translation>Please write to this address: %1</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferences…</translation>
    </message>
    <message>
        <source>Preferred audio language</source>
        <translation>Preferred audio language</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Presets</translation>
    </message>
    <message>
        <source>Problem detected in last conversion.</source>
        <translation>Problem detected in last conversion.</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>Processor</translation>
    </message>
    <message>
        <source>Processor cores</source>
        <translation>Processor cores</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxy address</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Proxy port</translation>
    </message>
    <message>
        <source>Put a DVD in, or drop a disc image or folder here</source>
        <translation>Put a DVD in, or drop a disc image or folder here</translation>
    </message>
    <message>
        <source>Putting picture and sound together…</source>
        <translation>Putting picture and sound together…</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>Quality (lower is better)</source>
        <translation>Quality (lower is better)</translation>
    </message>
    <message>
        <source>QuickTime movie (MOV)</source>
        <translation>QuickTime movie (MOV)</translation>
    </message>
    <message>
        <source>Quit Kestrel</source>
        <translation>Quit Kestrel</translation>
    </message>
    <message>
        <source>Reading the disc…</source>
        <translation>Reading the disc…</translation>
    </message>
    <message>
        <source>Reading the disc… A drive may take half a minute for it.</source>
        <translation>Reading the disc… A drive may take half a minute for it.</translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation>Reading the file or writing to the output folder is not allowed. Check their permissions.</translation>
    </message>
    <message>
        <source>Reading the file…</source>
        <translation>Reading the file…</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Reading…</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>Record Video</source>
        <translation>Record Video</translation>
    </message>
    <message>
        <source>Record screen/webcam/iPhone videos. Capture live streams, games, desktop, and anything in MOV for YouTube. Support recording screen and webcam at the same time.</source>
        <translation>Record screen/webcam/iPhone videos. Capture live streams, games, desktop, and anything in MOV for YouTube. Support recording screen and webcam at the same time.</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Recorder</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>Recording %1</translation>
    </message>
    <message>
        <source>Recording begins at %1. Press Record to begin at once.</source>
        <translation>Recording begins at %1. Press Record to begin at once.</translation>
    </message>
    <message>
        <source>Recording begins in %1 s. Press Record to begin at once.</source>
        <translation>Recording begins in %1 s. Press Record to begin at once.</translation>
    </message>
    <message>
        <source>Recovered after an interruption.</source>
        <translation>Recovered after an interruption.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>Release Notes:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Remove Piece</source>
        <translation>Remove Piece</translation>
    </message>
    <message>
        <source>Remove With Partial File</source>
        <translation>Remove With Partial File</translation>
    </message>
    <message>
        <source>Removes what is done from the list. The files stay.</source>
        <translation>Removes what is done from the list. The files stay.</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Rename…</translation>
    </message>
    <message>
        <source>Report Bug</source>
        <translation>Report Bug</translation>
    </message>
    <message>
        <source>Reset Profiles</source>
        <translation>Reset Profiles</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Running</translation>
    </message>
    <message>
        <source>Safe mode: check the whole result</source>
        <translation>Safe mode: check the whole result</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Save To…</source>
        <translation>Save To…</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>Save a Copy</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>Save a Copy…</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>Save as Preset</translation>
    </message>
    <message>
        <source>Save as Preset…</source>
        <translation>Save as Preset…</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Saved: %1</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Saving…</translation>
    </message>
    <message>
        <source>Saving… %1 % (Esc stops)</source>
        <translation>Saving… %1 % (Esc stops)</translation>
    </message>
    <message>
        <source>Screen %1 (%2 × %3)</source>
        <translation>Screen %1 (%2 × %3)</translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation>Screen Record Unavailable!</translation>
    </message>
    <message>
        <source>Screen or window (the desktop asks)</source>
        <translation>Screen or window (the desktop asks)</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>Scroll sideways</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>Scroll up and down</translation>
    </message>
    <message>
        <source>Search Settings</source>
        <translation>Search Settings</translation>
    </message>
    <message>
        <source>Search formats</source>
        <translation>Search formats</translation>
    </message>
    <message>
        <source>Search: MKV, AV1, FLAC …</source>
        <translation>Search: MKV, AV1, FLAC …</translation>
    </message>
    <message>
        <source>Searching… %1 % (Esc stops)</source>
        <translation>Searching… %1 % (Esc stops)</translation>
    </message>
    <message>
        <source>Second pass</source>
        <translation>Second pass</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Select one file in the list to choose among its tracks.</source>
        <translation>Select one file in the list to choose among its tracks.</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Send Feedback</translation>
    </message>
    <message>
        <source>Send Report</source>
        <translation>Send Report</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Several formats</source>
        <translation>Several formats</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>Show File</source>
        <translation>Show File</translation>
    </message>
    <message>
        <source>Show clicks</source>
        <translation>Show clicks</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Show in Folder</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>Show notifications</translation>
    </message>
    <message>
        <source>Show only lines with</source>
        <translation>Show only lines with</translation>
    </message>
    <message>
        <source>Show the pointer</source>
        <translation>Show the pointer</translation>
    </message>
    <message>
        <source>Shut down the computer when done</source>
        <translation>Shut down the computer when done</translation>
    </message>
    <message>
        <source>Size at most</source>
        <translation>Size at most</translation>
    </message>
    <message>
        <source>Size: about %1</source>
        <translation>Size: about %1</translation>
    </message>
    <message>
        <source>Slower, smaller file</source>
        <translation>Slower, smaller file</translation>
    </message>
    <message>
        <source>Slowest, smallest file</source>
        <translation>Slowest, smallest file</translation>
    </message>
    <message>
        <source>Small (640 × 480)</source>
        <translation>Small (640 × 480)</translation>
    </message>
    <message>
        <source>Small Files</source>
        <translation>Small Files</translation>
    </message>
    <message>
        <source>Small MP4 Video (720p)</source>
        <translation>Small MP4 Video (720p)</translation>
    </message>
    <message>
        <source>Small file</source>
        <translation>Small file</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Snapshot</translation>
    </message>
    <message>
        <source>Snapshot folder</source>
        <translation>Snapshot folder</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>Sound level</source>
        <translation>Sound level</translation>
    </message>
    <message>
        <source>Sound of %1: %2. The joined file has no track for it.</source>
        <translation>Sound of %1: %2. The joined file has no track for it.</translation>
    </message>
    <message>
        <source>Sound of the computer</source>
        <translation>Sound of the computer</translation>
    </message>
    <message>
        <source>Sound only, unchanged (MKA)</source>
        <translation>Sound only, unchanged (MKA)</translation>
    </message>
    <message>
        <source>Sound track %1 begins so late in the film that it is not found in time.</source>
        <translation>Sound track %1 begins so late in the film that it is not found in time.</translation>
    </message>
    <message>
        <source>Sound track %1, which this film does not have</source>
        <translation>Sound track %1, which this film does not have</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>Sound: %1</translation>
    </message>
    <message>
        <source>Sound: %1. %2 holds only one track of sound.</source>
        <translation>Sound: %1. %2 holds only one track of sound.</translation>
    </message>
    <message>
        <source>Sound: %1. Its format is not known.</source>
        <translation>Sound: %1. Its format is not known.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Source (drag to crop)</source>
        <translation>Source (drag to crop)</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Speed limit of each download</source>
        <translation>Speed limit of each download</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Start Here</source>
        <translation>Start Here</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Stay at the end while the log grows</source>
        <translation>Stay at the end while the log grows</translation>
    </message>
    <message>
        <source>Steady quality</source>
        <translation>Steady quality</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>Stereo</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation>Stop after</translation>
    </message>
    <message>
        <source>Stop after %1 min</source>
        <translation>Stop after %1 min</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>Stop and Quit</translation>
    </message>
    <message>
        <source>Stop and Restart</source>
        <translation>Stop and Restart</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Stopped.</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Stopping…</translation>
    </message>
    <message>
        <source>Subtitle track %1, which this film does not have</source>
        <translation>Subtitle track %1, which this film does not have</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Subtitles</translation>
    </message>
    <message>
        <source>Subtitles are missing in the finished file.</source>
        <translation>Subtitles are missing in the finished file.</translation>
    </message>
    <message>
        <source>Subtitles in the picture</source>
        <translation>Subtitles in the picture</translation>
    </message>
    <message>
        <source>Subtitles of %1: %2. Joining keeps none of later files.</source>
        <translation>Subtitles of %1: %2. Joining keeps none of later files.</translation>
    </message>
    <message>
        <source>Subtitles that are pictures: %1. %2 cannot hold them; burn them in, or choose MKV.</source>
        <translation>Subtitles that are pictures: %1. %2 cannot hold them; burn them in, or choose MKV.</translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation>Subtitles: %1</translation>
    </message>
    <message>
        <source>Subtitles: %1. %2 cannot hold them.</source>
        <translation>Subtitles: %1. %2 cannot hold them.</translation>
    </message>
    <message>
        <source>Subtitles: %1. They are burnt into the first of the joined files only.</source>
        <translation>Subtitles: %1. They are burnt into the first of the joined files only.</translation>
    </message>
    <message>
        <source>Subtitles: %1. They cannot follow the changed times; burn them in to keep them.</source>
        <translation>Subtitles: %1. They cannot follow the changed times; burn them in to keep them.</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>Suggestions</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation>Surround 5.1</translation>
    </message>
    <message>
        <source>TS Video (H.264, AC-3)</source>
        <translation>TS Video (H.264, AC-3)</translation>
    </message>
    <message>
        <source>TV (1080p)</source>
        <translation>TV (1080p)</translation>
    </message>
    <message>
        <source>TV (4K, HDR)</source>
        <translation>TV (4K, HDR)</translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation>Tablet</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>That is the log itself. Choose another name.</source>
        <translation>That is the log itself. Choose another name.</translation>
    </message>
    <message>
        <source>The area to be recorded is outside the screen.</source>
        <translation>The area to be recorded is outside the screen.</translation>
    </message>
    <message>
        <source>The attached file %1 of %2. Joining keeps none of later files.</source>
        <translation>The attached file %1 of %2. Joining keeps none of later files.</translation>
    </message>
    <message>
        <source>The attached file %1. %2 cannot hold it.</source>
        <translation>The attached file %1. %2 cannot hold it.</translation>
    </message>
    <message>
        <source>The broadcast has not begun yet. Try again when it has.</source>
        <translation>The broadcast has not begun yet. Try again when it has.</translation>
    </message>
    <message>
        <source>The camera could not be opened. Another program may be using it.</source>
        <translation>The camera could not be opened. Another program may be using it.</translation>
    </message>
    <message>
        <source>The camera went away: its picture ends there.</source>
        <translation>The camera went away: its picture ends there.</translation>
    </message>
    <message>
        <source>The chapters. %1 cannot hold them.</source>
        <translation>The chapters. %1 cannot hold them.</translation>
    </message>
    <message>
        <source>The chosen camera is missing: %1 is recorded instead.</source>
        <translation>The chosen camera is missing: %1 is recorded instead.</translation>
    </message>
    <message>
        <source>The chosen microphone is missing: the usual one is recorded instead.</source>
        <translation>The chosen microphone is missing: the usual one is recorded instead.</translation>
    </message>
    <message>
        <source>The chosen titles become files of the format beside, as small as you like.</source>
        <translation>The chosen titles become files of the format beside, as small as you like.</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds.</source>
        <translation>The computer will shut down in %1 seconds.</translation>
    </message>
    <message>
        <source>The conversion was stopped before the end.</source>
        <translation>The conversion was stopped before the end.</translation>
    </message>
    <message>
        <source>The converter cannot make this format. Choose another one.</source>
        <translation>The converter cannot make this format. Choose another one.</translation>
    </message>
    <message>
        <source>The converter could not be started. Please install the application again.</source>
        <translation>The converter could not be started. Please install the application again.</translation>
    </message>
    <message>
        <source>The converter could not convert this file.</source>
        <translation>The converter could not convert this file.</translation>
    </message>
    <message>
        <source>The converter did not answer any more.</source>
        <translation>The converter did not answer any more.</translation>
    </message>
    <message>
        <source>The converter is missing. Please install the application again.</source>
        <translation>The converter is missing. Please install the application again.</translation>
    </message>
    <message>
        <source>The copy could not be read back.</source>
        <translation>The copy could not be read back.</translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>The copy could not be saved: %1</translation>
    </message>
    <message>
        <source>The copy has %1 titles instead of %2.</source>
        <translation>The copy has %1 titles instead of %2.</translation>
    </message>
    <message>
        <source>The copy was broken off. It goes on where it is when it is started again.</source>
        <translation>The copy was broken off. It goes on where it is when it is started again.</translation>
    </message>
    <message>
        <source>The copy was saved.</source>
        <translation>The copy was saved.</translation>
    </message>
    <message>
        <source>The cover picture of %1. Joining keeps none of later files.</source>
        <translation>The cover picture of %1. Joining keeps none of later files.</translation>
    </message>
    <message>
        <source>The cover picture. %1 cannot hold it.</source>
        <translation>The cover picture. %1 cannot hold it.</translation>
    </message>
    <message>
        <source>The cover picture. It is lost when files are joined so.</source>
        <translation>The cover picture. It is lost when files are joined so.</translation>
    </message>
    <message>
        <source>The date of recording. %1 cannot hold it.</source>
        <translation>The date of recording. %1 cannot hold it.</translation>
    </message>
    <message>
        <source>The desktop did not let the screen be recorded.</source>
        <translation>The desktop did not let the screen be recorded.</translation>
    </message>
    <message>
        <source>The desktop lets the screen be recorded, but no picture of it arrives. Is PipeWire running?</source>
        <translation>The desktop lets the screen be recorded, but no picture of it arrives. Is PipeWire running?</translation>
    </message>
    <message>
        <source>The desktop shares the picture when the recording begins. Shortcuts work only in Kestrel's windows then.</source>
        <translation>The desktop shares the picture when the recording begins. Shortcuts work only in Kestrel's windows then.</translation>
    </message>
    <message>
        <source>The desktop's portal did not answer.</source>
        <translation>The desktop's portal did not answer.</translation>
    </message>
    <message>
        <source>The desktop's portal does not let the screen be recorded: %1</source>
        <translation>The desktop's portal does not let the screen be recorded: %1</translation>
    </message>
    <message>
        <source>The disc could not be read.</source>
        <translation>The disc could not be read.</translation>
    </message>
    <message>
        <source>The disc did not answer in time.</source>
        <translation>The disc did not answer in time.</translation>
    </message>
    <message>
        <source>The disc has no such title, chapter or angle.</source>
        <translation>The disc has no such title, chapter or angle.</translation>
    </message>
    <message>
        <source>The disc image ends before its film does.</source>
        <translation>The disc image ends before its film does.</translation>
    </message>
    <message>
        <source>The disc is damaged: what it holds could not be read.</source>
        <translation>The disc is damaged: what it holds could not be read.</translation>
    </message>
    <message>
        <source>The disc may not be read by this user.</source>
        <translation>The disc may not be read by this user.</translation>
    </message>
    <message>
        <source>The disc tools could not be started. Please install the application again.</source>
        <translation>The disc tools could not be started. Please install the application again.</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>The disk could not be read or written.</translation>
    </message>
    <message>
        <source>The disk for temporary files is full. Free some space and convert again.</source>
        <translation>The disk for temporary files is full. Free some space and convert again.</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays a Matroska file.</source>
        <translation>The disk is too full to finish the recording: it stays a Matroska file.</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays in %1 Matroska files.</source>
        <translation>The disk is too full to finish the recording: it stays in %1 Matroska files.</translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation>The disk of the output folder cannot hold a file of this size.</translation>
    </message>
    <message>
        <source>The display %1 could not be opened.</source>
        <translation>The display %1 could not be opened.</translation>
    </message>
    <message>
        <source>The download engine could not be updated.</source>
        <translation>The download engine could not be updated.</translation>
    </message>
    <message>
        <source>The download engine does not work. Please install the application again.</source>
        <translation>The download engine does not work. Please install the application again.</translation>
    </message>
    <message>
        <source>The download engine is missing. Please install the application again.</source>
        <translation>The download engine is missing. Please install the application again.</translation>
    </message>
    <message>
        <source>The download engine is now of version %1. Try again.</source>
        <translation>The download engine is now of version %1. Try again.</translation>
    </message>
    <message>
        <source>The download failed. Try again later; the details tell what the engine said.</source>
        <translation>The download failed. Try again later; the details tell what the engine said.</translation>
    </message>
    <message>
        <source>The encoder for %1 is not installed.</source>
        <translation>The encoder for %1 is not installed.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>The file could not be read.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>The file could not be written.</translation>
    </message>
    <message>
        <source>The file holds neither video nor sound that can be converted.</source>
        <translation>The file holds neither video nor sound that can be converted.</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>The file is damaged or incomplete.</translation>
    </message>
    <message>
        <source>The file is no longer where it was.</source>
        <translation>The file is no longer where it was.</translation>
    </message>
    <message>
        <source>The file was deleted. What it held is still shown.</source>
        <translation>The file was deleted. What it held is still shown.</translation>
    </message>
    <message>
        <source>The film has come, but subtitles, cover or chapters could not be added to it.</source>
        <translation>The film has come, but subtitles, cover or chapters could not be added to it.</translation>
    </message>
    <message>
        <source>The film is copy protected and is not downloaded. Watch it on its own site.</source>
        <translation>The film is copy protected and is not downloaded. Watch it on its own site.</translation>
    </message>
    <message>
        <source>The film is no longer there. Look for it at another address.</source>
        <translation>The film is no longer there. Look for it at another address.</translation>
    </message>
    <message>
        <source>The film is not there in the form that was wanted. Choose another resolution or format.</source>
        <translation>The film is not there in the form that was wanted. Choose another resolution or format.</translation>
    </message>
    <message>
        <source>The film is private or for members only, so it cannot be downloaded. Look for it at another address.</source>
        <translation>The film is private or for members only, so it cannot be downloaded. Look for it at another address.</translation>
    </message>
    <message>
        <source>The film of the chosen titles as it stands on the disc; no chapters, no names of languages.</source>
        <translation>The film of the chosen titles as it stands on the disc; no chapters, no names of languages.</translation>
    </message>
    <message>
        <source>The finer picture. %1 bit %2 becomes %3 bit %4.</source>
        <translation>The finer picture. %1 bit %2 becomes %3 bit %4.</translation>
    </message>
    <message>
        <source>The finer sound: %1. %2 bit become %3 bit.</source>
        <translation>The finer sound: %1. %2 bit become %3 bit.</translation>
    </message>
    <message>
        <source>The finished file could not be read back.</source>
        <translation>The finished file could not be read back.</translation>
    </message>
    <message>
        <source>The finished file has %1 bytes instead of %2.</source>
        <translation>The finished file has %1 bytes instead of %2.</translation>
    </message>
    <message>
        <source>The finished file holds other tracks than were wanted: %1 instead of %2.</source>
        <translation>The finished file holds other tracks than were wanted: %1 instead of %2.</translation>
    </message>
    <message>
        <source>The finished file is %1 s long instead of %2 s.</source>
        <translation>The finished file is %1 s long instead of %2 s.</translation>
    </message>
    <message>
        <source>The finished file is damaged: %1 faults.</source>
        <translation>The finished file is damaged: %1 faults.</translation>
    </message>
    <message>
        <source>The finished file is damaged: 1 fault.</source>
        <translation>The finished file is damaged: 1 fault.</translation>
    </message>
    <message>
        <source>The finished file is larger than wanted.</source>
        <translation>The finished file is larger than wanted.</translation>
    </message>
    <message>
        <source>The first %1 were copied. Save a copy to have all of it.</source>
        <translation>The first %1 were copied. Save a copy to have all of it.</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>The folder could not be opened.</translation>
    </message>
    <message>
        <source>The folder for temporary files cannot be written.</source>
        <translation>The folder for temporary files cannot be written.</translation>
    </message>
    <message>
        <source>The folder is too large: only some of its files were added.</source>
        <translation>The folder is too large: only some of its files were added.</translation>
    </message>
    <message>
        <source>The irregular times of the pictures. They come evenly, %1 a second.</source>
        <translation>The irregular times of the pictures. They come evenly, %1 a second.</translation>
    </message>
    <message>
        <source>The languages of the tracks. %1 cannot hold them.</source>
        <translation>The languages of the tracks. %1 cannot hold them.</translation>
    </message>
    <message>
        <source>The last %1 s have no picture.</source>
        <translation>The last %1 s have no picture.</translation>
    </message>
    <message>
        <source>The last %1 s have no sound: the sound server went away.</source>
        <translation>The last %1 s have no sound: the sound server went away.</translation>
    </message>
    <message>
        <source>The log cannot be read</source>
        <translation>The log cannot be read</translation>
    </message>
    <message>
        <source>The log was cut short meanwhile. Try again.</source>
        <translation>The log was cut short meanwhile. Try again.</translation>
    </message>
    <message>
        <source>The mastering data of the high dynamic range. %1 cannot hold them.</source>
        <translation>The mastering data of the high dynamic range. %1 cannot hold them.</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the address again.</source>
        <translation>The options of this job could not be read. Add the address again.</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the file again.</source>
        <translation>The options of this job could not be read. Add the file again.</translation>
    </message>
    <message>
        <source>The other angles of the film: %1</source>
        <translation>The other angles of the film: %1</translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation>The output could not be written.</translation>
    </message>
    <message>
        <source>The output directory does not exist. Please check the setting.</source>
        <translation>The output directory does not exist. Please check the setting.</translation>
    </message>
    <message>
        <source>The output folder is read-only. Choose another one in the settings.</source>
        <translation>The output folder is read-only. Choose another one in the settings.</translation>
    </message>
    <message>
        <source>The picture has to be encoded (%1).</source>
        <translation>The picture has to be encoded (%1).</translation>
    </message>
    <message>
        <source>The picture is made smaller, %1 × %2, so that it fits the size.</source>
        <translation>The picture is made smaller, %1 × %2, so that it fits the size.</translation>
    </message>
    <message>
        <source>The picture is missing: the site handed out the sound alone.</source>
        <translation>The picture is missing: the site handed out the sound alone.</translation>
    </message>
    <message>
        <source>The picture of the finished file does not stand upright.</source>
        <translation>The picture of the finished file does not stand upright.</translation>
    </message>
    <message>
        <source>The pieces to be kept lie behind the end of the file.</source>
        <translation>The pieces to be kept lie behind the end of the file.</translation>
    </message>
    <message>
        <source>The place of recording. %1 cannot hold it.</source>
        <translation>The place of recording. %1 cannot hold it.</translation>
    </message>
    <message>
        <source>The player is missing. Please install the application again.</source>
        <translation>The player is missing. Please install the application again.</translation>
    </message>
    <message>
        <source>The program dvdauthor is missing. Please install it.</source>
        <translation>The program dvdauthor is missing. Please install it.</translation>
    </message>
    <message>
        <source>The proxy refuses the connection. Check its address in the settings.</source>
        <translation>The proxy refuses the connection. Check its address in the settings.</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays a Matroska file.</source>
        <translation>The recording could not be finished: it stays a Matroska file.</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays in %1 Matroska files.</source>
        <translation>The recording could not be finished: it stays in %1 Matroska files.</translation>
    </message>
    <message>
        <source>The recording ended because the disk is nearly full.</source>
        <translation>The recording ended because the disk is nearly full.</translation>
    </message>
    <message>
        <source>The recording that was to begin at %1 was missed.</source>
        <translation>The recording that was to begin at %1 was missed.</translation>
    </message>
    <message>
        <source>The recording was interrupted.</source>
        <translation>The recording was interrupted.</translation>
    </message>
    <message>
        <source>The same screen or window as last time</source>
        <translation>The same screen or window as last time</translation>
    </message>
    <message>
        <source>The screen of a Wayland session can be recorded where the desktop has a portal for it, which is missing here. Install xdg-desktop-portal for your desktop, or log in to a session of X11 (Xorg).</source>
        <translation>The screen of a Wayland session can be recorded where the desktop has a portal for it, which is missing here. Install xdg-desktop-portal for your desktop, or log in to a session of X11 (Xorg).</translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation>The screen recorder is only supported on Mac OS Lion and later.</translation>
    </message>
    <message>
        <source>The server broke off or could not answer. What has come is kept; try again later.</source>
        <translation>The server broke off or could not answer. What has come is kept; try again later.</translation>
    </message>
    <message>
        <source>The server broke off, next attempt in %1 s</source>
        <translation>The server broke off, next attempt in %1 s</translation>
    </message>
    <message>
        <source>The server has sent only part of the film.</source>
        <translation>The server has sent only part of the film.</translation>
    </message>
    <message>
        <source>The server refuses to hand out the film. Try again later, or open the page in a browser to see why.</source>
        <translation>The server refuses to hand out the film. Try again later, or open the page in a browser to see why.</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in %1 minutes.</source>
        <translation>The server takes no more requests for now. Try again in %1 minutes.</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in a while.</source>
        <translation>The server takes no more requests for now. Try again in a while.</translation>
    </message>
    <message>
        <source>The server's certificate is not valid, so it may not be who it says it is. Nothing was downloaded; check the address and this computer's date.</source>
        <translation>The server's certificate is not valid, so it may not be who it says it is. Nothing was downloaded; check the address and this computer's date.</translation>
    </message>
    <message>
        <source>The settings' folder</source>
        <translation>The settings' folder</translation>
    </message>
    <message>
        <source>The site does not show this film in your country. A proxy of another country can be set in the settings.</source>
        <translation>The site does not show this film in your country. A proxy of another country can be set in the settings.</translation>
    </message>
    <message>
        <source>The site has changed and the download engine does not know it any more. Update the engine and try again.</source>
        <translation>The site has changed and the download engine does not know it any more. Update the engine and try again.</translation>
    </message>
    <message>
        <source>The site shows this film only to those who have logged in, which Kestrel does not do. Look for it at another address.</source>
        <translation>The site shows this film only to those who have logged in, which Kestrel does not do. Look for it at another address.</translation>
    </message>
    <message>
        <source>The site wants to know the viewer's age first, which it learns only from a log-in. Look for it at another address.</source>
        <translation>The site wants to know the viewer's age first, which it learns only from a log-in. Look for it at another address.</translation>
    </message>
    <message>
        <source>The snapshot could not be written.</source>
        <translation>The snapshot could not be written.</translation>
    </message>
    <message>
        <source>The sound could not be recorded. Is the sound server running?</source>
        <translation>The sound could not be recorded. Is the sound server running?</translation>
    </message>
    <message>
        <source>The sound has to be encoded (%1).</source>
        <translation>The sound has to be encoded (%1).</translation>
    </message>
    <message>
        <source>The sound is missing since the sound server went away.</source>
        <translation>The sound is missing since the sound server went away.</translation>
    </message>
    <message>
        <source>The sound is missing: the site handed out the picture alone.</source>
        <translation>The sound is missing: the site handed out the picture alone.</translation>
    </message>
    <message>
        <source>The sound server was away for a while: that part has no sound.</source>
        <translation>The sound server was away for a while: that part has no sound.</translation>
    </message>
    <message>
        <source>The sound. %1 holds only pictures.</source>
        <translation>The sound. %1 holds only pictures.</translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</translation>
    </message>
    <message>
        <source>The subtitle file %1 cannot be read.</source>
        <translation>The subtitle file %1 cannot be read.</translation>
    </message>
    <message>
        <source>The subtitle file %1 is too large for a text.</source>
        <translation>The subtitle file %1 is too large for a text.</translation>
    </message>
    <message>
        <source>The subtitles are missing: the site did not hand them out.</source>
        <translation>The subtitles are missing: the site did not hand them out.</translation>
    </message>
    <message>
        <source>The subtitles that were to be drawn into the picture are not in this film.</source>
        <translation>The subtitles that were to be drawn into the picture are not in this film.</translation>
    </message>
    <message>
        <source>The title. %1 cannot hold it.</source>
        <translation>The title. %1 cannot hold it.</translation>
    </message>
    <message>
        <source>The tool that reads media files is missing. Please install the application again.</source>
        <translation>The tool that reads media files is missing. Please install the application again.</translation>
    </message>
    <message>
        <source>The transcoder did not answer as it should.</source>
        <translation>The transcoder did not answer as it should.</translation>
    </message>
    <message>
        <source>The transcoder is missing. Please install the application again.</source>
        <translation>The transcoder is missing. Please install the application again.</translation>
    </message>
    <message>
        <source>The transparency of the picture. %1 cannot hold it.</source>
        <translation>The transparency of the picture. %1 cannot hold it.</translation>
    </message>
    <message>
        <source>The whole disc, sector for sector, in one file that plays like the disc.</source>
        <translation>The whole disc, sector for sector, in one file that plays like the disc.</translation>
    </message>
    <message>
        <source>The whole film is kept.</source>
        <translation>The whole film is kept.</translation>
    </message>
    <message>
        <source>The window is too small to be recorded.</source>
        <translation>The window is too small to be recorded.</translation>
    </message>
    <message>
        <source>The window was closed or minimised.</source>
        <translation>The window was closed or minimised.</translation>
    </message>
    <message>
        <source>There are no black bars.</source>
        <translation>There are no black bars.</translation>
    </message>
    <message>
        <source>There are several films at this address. Add it again to choose among them.</source>
        <translation>There are several films at this address. Add it again to choose among them.</translation>
    </message>
    <message>
        <source>There are too many films at this address to look at them all. Add the address of one of them.</source>
        <translation>There are too many films at this address to look at them all. Add the address of one of them.</translation>
    </message>
    <message>
        <source>There are too many presets. Delete some first.</source>
        <translation>There are too many presets. Delete some first.</translation>
    </message>
    <message>
        <source>There is no connection to the network. Check it and try again.</source>
        <translation>There is no connection to the network. Check it and try again.</translation>
    </message>
    <message>
        <source>There is no disc. Put it in, or choose an image or a folder, and try again.</source>
        <translation>There is no disc. Put it in, or choose an image or a folder, and try again.</translation>
    </message>
    <message>
        <source>There is no display whose picture could be recorded.</source>
        <translation>There is no display whose picture could be recorded.</translation>
    </message>
    <message>
        <source>There is no film at this address. Look for the page that plays it.</source>
        <translation>There is no film at this address. Look for the page that plays it.</translation>
    </message>
    <message>
        <source>There is no log yet</source>
        <translation>There is no log yet</translation>
    </message>
    <message>
        <source>There is no newer download engine.</source>
        <translation>There is no newer download engine.</translation>
    </message>
    <message>
        <source>There is no picture at this place.</source>
        <translation>There is no picture at this place.</translation>
    </message>
    <message>
        <source>There is no screen "%1". There is: %2.</source>
        <translation>There is no screen "%1". There is: %2.</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation>There is no space left on the disk. Free some space and convert again.</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and try again; what has come is kept.</source>
        <translation>There is no space left on the disk. Free some space and try again; what has come is kept.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>There is no such file.</translation>
    </message>
    <message>
        <source>There is no video or sound file in it.</source>
        <translation>There is no video or sound file in it.</translation>
    </message>
    <message>
        <source>There is no window %1 to be seen.</source>
        <translation>There is no window %1 to be seen.</translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation>There is not enough memory to convert this file.</translation>
    </message>
    <message>
        <source>There is not enough memory to read this disc.</source>
        <translation>There is not enough memory to read this disc.</translation>
    </message>
    <message>
        <source>There is not enough space: %1 are needed and %2 are free. Free some, or choose another folder in the settings.</source>
        <translation>There is not enough space: %1 are needed and %2 are free. Free some, or choose another folder in the settings.</translation>
    </message>
    <message>
        <source>There is nothing to convert.</source>
        <translation>There is nothing to convert.</translation>
    </message>
    <message>
        <source>There is too little space on the disk to record.</source>
        <translation>There is too little space on the disk to record.</translation>
    </message>
    <message>
        <source>They become MP4, MKV, WebM or MP3, as you choose.</source>
        <translation>They become MP4, MKV, WebM or MP3, as you choose.</translation>
    </message>
    <message>
        <source>This address is of no site that Kestrel knows. Check it, or look for the page that plays the film.</source>
        <translation>This address is of no site that Kestrel knows. Check it, or look for the page that plays the film.</translation>
    </message>
    <message>
        <source>This choice is kept until you quit.</source>
        <translation>This choice is kept until you quit.</translation>
    </message>
    <message>
        <source>This computer has no hardware encoder for H.264 video.</source>
        <translation>This computer has no hardware encoder for H.264 video.</translation>
    </message>
    <message>
        <source>This disc is being copied to this folder already.</source>
        <translation>This disc is being copied to this folder already.</translation>
    </message>
    <message>
        <source>This disc is copy-protected and cannot be read.</source>
        <translation>This disc is copy-protected and cannot be read.</translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation>This file could not be read.</translation>
    </message>
    <message>
        <source>This file has neither picture nor sound to convert.</source>
        <translation>This file has neither picture nor sound to convert.</translation>
    </message>
    <message>
        <source>This file has no picture to convert.</source>
        <translation>This file has no picture to convert.</translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation>This file has no sound to convert.</translation>
    </message>
    <message>
        <source>This file holds no presets of Kestrel.</source>
        <translation>This file holds no presets of Kestrel.</translation>
    </message>
    <message>
        <source>This file is damaged, or it holds neither video nor sound.</source>
        <translation>This file is damaged, or it holds neither video nor sound.</translation>
    </message>
    <message>
        <source>This film has no sound. Choose a format with a picture for it.</source>
        <translation>This film has no sound. Choose a format with a picture for it.</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>This folder cannot be written to.</translation>
    </message>
    <message>
        <source>This is another disc, which is also called %1.</source>
        <translation>This is another disc, which is also called %1.</translation>
    </message>
    <message>
        <source>This is another disc: %1 instead of %2.</source>
        <translation>This is another disc: %1 instead of %2.</translation>
    </message>
    <message>
        <source>This is no address that can be downloaded from.</source>
        <translation>This is no address that can be downloaded from.</translation>
    </message>
    <message>
        <source>This is no preset.</source>
        <translation>This is no preset.</translation>
    </message>
    <message>
        <source>This is no text file</source>
        <translation>This is no text file</translation>
    </message>
    <message>
        <source>This is no video DVD: there is no VIDEO_TS on it.</source>
        <translation>This is no video DVD: there is no VIDEO_TS on it.</translation>
    </message>
    <message>
        <source>This is no video or sound file.</source>
        <translation>This is no video or sound file.</translation>
    </message>
    <message>
        <source>This preset has no name.</source>
        <translation>This preset has no name.</translation>
    </message>
    <message>
        <source>This preset keeps neither picture nor sound.</source>
        <translation>This preset keeps neither picture nor sound.</translation>
    </message>
    <message>
        <source>This preset was made by a newer version of Kestrel.</source>
        <translation>This preset was made by a newer version of Kestrel.</translation>
    </message>
    <message>
        <source>This title has no sound to keep.</source>
        <translation>This title has no sound to keep.</translation>
    </message>
    <message>
        <source>Time at which the recording begins</source>
        <translation>Time at which the recording begins</translation>
    </message>
    <message>
        <source>Time line</source>
        <translation>Time line</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Title %1</source>
        <translation>Title %1</translation>
    </message>
    <message>
        <source>Title %1 of the copy has %2 chapters instead of %3.</source>
        <translation>Title %1 of the copy has %2 chapters instead of %3.</translation>
    </message>
    <message>
        <source>Title %1 of the copy has other tracks than the disc.</source>
        <translation>Title %1 of the copy has other tracks than the disc.</translation>
    </message>
    <message>
        <source>Title %1 of the copy is %2 s long instead of %3 s.</source>
        <translation>Title %1 of the copy is %2 s long instead of %3 s.</translation>
    </message>
    <message>
        <source>Title %1, the main film</source>
        <translation>Title %1, the main film</translation>
    </message>
    <message>
        <source>Titles as MPEG-2 files</source>
        <translation>Titles as MPEG-2 files</translation>
    </message>
    <message>
        <source>Titles of the disc</source>
        <translation>Titles of the disc</translation>
    </message>
    <message>
        <source>Titles, unchanged (MKV)</source>
        <translation>Titles, unchanged (MKV)</translation>
    </message>
    <message>
        <source>To chapter</source>
        <translation>To chapter</translation>
    </message>
    <message>
        <source>Too many lines have this text: the newest %1 are shown.</source>
        <translation>Too many lines have this text: the newest %1 are shown.</translation>
    </message>
    <message>
        <source>Too many requests: the server is asked again in %1 s</source>
        <translation>Too many requests: the server is asked again in %1 s</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Top left</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Top right</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Track %1</translation>
    </message>
    <message>
        <source>Transcoder</source>
        <translation>Transcoder</translation>
    </message>
    <message>
        <source>Trial</source>
        <translation>Trial</translation>
    </message>
    <message>
        <source>Try 10 Seconds</source>
        <translation>Try 10 Seconds</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>Turned into standard</source>
        <translation>Turned into standard</translation>
    </message>
    <message>
        <source>Unable to connect to update server.</source>
        <translation>Unable to connect to update server.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Unknown language</source>
        <translation>Unknown language</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Unlimited</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>Until it is stopped</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>Update Download Engine</source>
        <translation>Update Download Engine</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Upside down</translation>
    </message>
    <message>
        <source>Use This Area</source>
        <translation>Use This Area</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Use a proxy</translation>
    </message>
    <message>
        <source>Use the graphics hardware</source>
        <translation>Use the graphics hardware</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>Usual</translation>
    </message>
    <message>
        <source>Usual microphone</source>
        <translation>Usual microphone</translation>
    </message>
    <message>
        <source>Version: %@</source>
        <translation>Version: %@</translation>
    </message>
    <message>
        <source>Very Small MP4 Video (480p)</source>
        <translation>Very Small MP4 Video (480p)</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Video Converter</source>
        <translation>Video Converter</translation>
    </message>
    <message>
        <source>Video folder</source>
        <translation>Video folder</translation>
    </message>
    <message>
        <source>Video or sound file</source>
        <translation>Video or sound file</translation>
    </message>
    <message>
        <source>Videos and music from the web are saved in the form that you choose.</source>
        <translation>Videos and music from the web are saved in the form that you choose.</translation>
    </message>
    <message>
        <source>Visit our website:</source>
        <translation>Visit our website:</translation>
    </message>
    <message>
        <source>Visit website</source>
        <translation>Visit website</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>WAV Audio</source>
        <translation>WAV Audio</translation>
    </message>
    <message>
        <source>WMA Audio</source>
        <translation>WMA Audio</translation>
    </message>
    <message>
        <source>WMV Video</source>
        <translation>WMV Video</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Waiting for a network connection</translation>
    </message>
    <message>
        <source>Waiting for space on the disk: %1 needed</source>
        <translation>Waiting for space on the disk: %1 needed</translation>
    </message>
    <message>
        <source>Waiting for the network, next attempt in %1 s</source>
        <translation>Waiting for the network, next attempt in %1 s</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>Waiting for the server…</translation>
    </message>
    <message>
        <source>Waiting for your choice in the desktop's dialog…</source>
        <translation>Waiting for your choice in the desktop's dialog…</translation>
    </message>
    <message>
        <source>Waiting: %1 downloads from this server are under way</source>
        <translation>Waiting: %1 downloads from this server are under way</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>WebM Video (AV1, Opus)</source>
        <translation>WebM Video (AV1, Opus)</translation>
    </message>
    <message>
        <source>WebM Video (VP8, Vorbis)</source>
        <translation>WebM Video (VP8, Vorbis)</translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation>WebM Video (VP9, Opus)</translation>
    </message>
    <message>
        <source>What has been recorded will be deleted.</source>
        <translation>What has been recorded will be deleted.</translation>
    </message>
    <message>
        <source>What has come cannot be moved to that folder, so it stays where it is.</source>
        <translation>What has come cannot be moved to that folder, so it stays where it is.</translation>
    </message>
    <message>
        <source>What the server sent is no film. Open the address in a browser to see what it is.</source>
        <translation>What the server sent is no film. Open the address in a browser to see what it is.</translation>
    </message>
    <message>
        <source>What the site answered could not be understood. Update the download engine and try again.</source>
        <translation>What the site answered could not be understood. Update the download engine and try again.</translation>
    </message>
    <message>
        <source>What this preset makes cannot be fitted to a size.</source>
        <translation>What this preset makes cannot be fitted to a size.</translation>
    </message>
    <message>
        <source>What to record</source>
        <translation>What to record</translation>
    </message>
    <message>
        <source>What you stop now is offered to you again at the next start.</source>
        <translation>What you stop now is offered to you again at the next start.</translation>
    </message>
    <message>
        <source>Where it is needed</source>
        <translation>Where it is needed</translation>
    </message>
    <message>
        <source>Whole Picture</source>
        <translation>Whole Picture</translation>
    </message>
    <message>
        <source>Width of the picture</source>
        <translation>Width of the picture</translation>
    </message>
    <message>
        <source>Will not be accepted. Example: http://proxy.example.com or socks5://10.0.0.1</source>
        <translation>Will not be accepted. Example: http://proxy.example.com or socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Window</translation>
    </message>
    <message>
        <source>Window by a click…</source>
        <translation>Window by a click…</translation>
    </message>
    <message>
        <source>Window: %1</source>
        <translation>Window: %1</translation>
    </message>
    <message>
        <source>Without encoding, what starts at %1 begins at %2.</source>
        <translation>Without encoding, what starts at %1 begins at %2.</translation>
    </message>
    <message>
        <source>Would you please send us the Log File to help us fix the issue?</source>
        <translation>Would you please send us the Log File to help us fix the issue?</translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation>You are not allowed to read this file.</translation>
    </message>
    <message>
        <source>You're up-to-date!</source>
        <translation>You're up-to-date!</translation>
    </message>
    <message>
        <source>Your mail program could not be opened.</source>
        <translation>Your mail program could not be opened.</translation>
    </message>
    <message>
        <source>Your screen, as a video</source>
        <translation>Your screen, as a video</translation>
    </message>
    <message>
        <source>Your settings cannot be saved at the moment. Kestrel tries again when it is quit.</source>
        <translation>Your settings cannot be saved at the moment. Kestrel tries again when it is quit.</translation>
    </message>
    <message>
        <source>Your settings could not be saved when Kestrel was last quit.</source>
        <translation>Your settings could not be saved when Kestrel was last quit.</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>about %1 hours left</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>about %1 minutes left</translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>about a minute left</translation>
    </message>
    <message>
        <source>another commentary</source>
        <translation>another commentary</translation>
    </message>
    <message>
        <source>closetip</source>
        <translation>Close Tip</translation>
    </message>
    <message>
        <source>commentary</source>
        <translation>commentary</translation>
    </message>
    <message>
        <source>for children</source>
        <translation>for children</translation>
    </message>
    <message>
        <source>for the hard of hearing</source>
        <translation>for the hard of hearing</translation>
    </message>
    <message>
        <source>for the visually impaired</source>
        <translation>for the visually impaired</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>forced</translation>
    </message>
    <message>
        <source>kept as it is</source>
        <translation>kept as it is</translation>
    </message>
    <message>
        <source>large</source>
        <translation>large</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>less than a minute left</translation>
    </message>
    <message>
        <source>same as title %1</source>
        <translation>same as title %1</translation>
    </message>
    <message>
        <source>showtip</source>
        <translation>Show Tip</translation>
    </message>
    <message>
        <source>{name}, {preset}, {folder} and {date} are filled in.</source>
        <translation>{name}, {preset}, {folder} and {date} are filled in.</translation>
    </message>
    <message>
        <source>“%1” could not be played.</source>
        <translation>“%1” could not be played.</translation>
    </message>
</context>
</TS>
