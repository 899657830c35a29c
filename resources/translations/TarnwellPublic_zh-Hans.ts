<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_Hans" sourcelanguage="en">
<context>
    <name>TarnwellPublic</name>
    <message>
        <source>%1 (%2 threads)</source>
        <translation>%1（%2 线程）</translation>
    </message>
    <message>
        <source>%1 (sound only)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - Title %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB are too few for a file of this length.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 angles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 chapters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, %3 faults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 s could be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s could be read, %2 faults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sectors of the film could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 titles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ×</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%@ %@ is currently the latest version available.</source>
        <translation>%@ %@ 是当前可用的最新版本。</translation>
    </message>
    <message>
        <source>%@ %@ is now available -- you're running %@. Would you like to update now?</source>
        <translation>%@ %@ 现已推出，您当前使用的是 %@。要现在更新吗？</translation>
    </message>
    <message>
        <source>128 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>160 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>192 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>23.976</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>24</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>25</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>256 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2560 × 1440</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>29.97</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>30</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>320 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>448 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4K (3840 × 2160)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>50</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>59.94</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>60</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>64 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>640 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>96 kbit/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A chapter for each joined file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A disc of the chosen title alone, without menus, that players start at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file of the kind %1 cannot hold what this preset asks for: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A folder has no sectors to copy. Choose another way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new version of %@ is available!</source>
        <translation>%@ 有新版本可用</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AC-3 Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AIFF Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APNG Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AVI Video (MPEG-4, MP3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AVI Video (Motion JPEG, PCM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>About %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About %@</source>
        <translation>关于 %@</translation>
    </message>
    <message>
        <source>About Kestrel</source>
        <translation>关于 Kestrel</translation>
    </message>
    <message>
        <source>About Our Company Tarnwell Software, Inc.</source>
        <translation>关于我们的公司 Tarnwell Software, Inc.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>添加文件…</translation>
    </message>
    <message>
        <source>Add Subtitle File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adding the subtitles…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Address of a video or a page, such as https://…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Formats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Formats…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>All files of the disc in a folder, with its menus.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All jobs are done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All jobs have ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All sound tracks of the chosen titles with their chapters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow Many From One Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Always, twice the pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An address is for example http://proxy.example.com or socks5://10.0.0.1.</source>
        <translation>地址示例：http://proxy.example.com 或 socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>App Log</source>
        <translation>应用日志</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Archive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to reset profile?</source>
        <translation>确定要重置配置文件吗？</translation>
    </message>
    <message>
        <source>Are you sure you want to restart the application now?</source>
        <translation>确定要现在重新启动应用程序吗？</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking the site…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Backup DVDs in 6 modes, rip a full DVD to 180+ formats to play on Mac &amp; mobiles, store on hard drive, or enjoy on TV, etc. Rip a full DVD in 5 minutes!</source>
        <translation>以 6 种模式备份 DVD，将整张 DVD 转换为 180 多种格式，在 Mac 和移动设备上播放、存储到硬盘或在电视上观看等。5 分钟即可转换整张 DVD！</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beside the source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bit rate of a track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Build on: %@</source>
        <translation>构建日期：%@</translation>
    </message>
    <message>
        <source>Burnt into the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CAF Audio (ALAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Cancel the Trial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change video &amp; audio formats, resize video files, edit 4K, 5K, 8K videos, like cut, merge, split, rotate, subtitle, watermark, etc. Experience No.1 fast hardware-accelerated processing.</source>
        <translation>转换视频和音频格式，调整视频文件大小，编辑 4K、5K、8K 视频：剪切、合并、分割、旋转、添加字幕和水印等。体验速度第一的硬件加速处理。</translation>
    </message>
    <message>
        <source>Changes to the languages take effect upon relaunch.</source>
        <translation>语言更改将在重新启动后生效。</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chapters are missing in the finished file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chapters, languages and the colours of subtitles, which MPEG-2 files cannot hold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Checking for updates.. </source>
        <translation>正在检查更新… </translation>
    </message>
    <message>
        <source>Checking the copy…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking the finished file…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Films</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Choose above what is recorded, then press Record.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an Area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose another one, or allow yourself to write to it: %1</source>
        <translation>请选择其他文件夹，或允许写入：%1</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close the tip</source>
        <translation>关闭提示</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Computer and microphone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>转换</translation>
    </message>
    <message>
        <source>Convert &amp; Backup DVD</source>
        <translation>转换与备份 DVD</translation>
    </message>
    <message>
        <source>Convert &amp; Process Video</source>
        <translation>转换与处理视频</translation>
    </message>
    <message>
        <source>Converting ten seconds: %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>已拷贝。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>拷贝</translation>
    </message>
    <message>
        <source>Copyright © 2019-%@ Tarnwell Software, Inc. All rights reserved.</source>
        <translation>版权所有 © 2019-%@ Tarnwell Software, Inc. 保留所有权利。</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>核心</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count down from three</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Countdown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Cut and Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut and Edit…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut exactly (encodes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut off bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut off left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut off right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut off top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut without encoding: it begins at the last key picture before %1 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DTS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DV Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>DVD (720 × 576)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DVD Ripper</source>
        <translation>DVD 提取</translation>
    </message>
    <message>
        <source>Data of the camera, such as time code.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Deinterlacing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Details…</source>
        <translation>详细信息…</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disc Player (VOB)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disc folder with menus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disc image (ISO)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disc images</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dolby Digital</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don't Shut Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Done with problems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done with problems: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Download Now</source>
        <translation>立即下载</translation>
    </message>
    <message>
        <source>Download Video</source>
        <translation>下载视频</translation>
    </message>
    <message>
        <source>Download format</source>
        <translation>下载格式</translation>
    </message>
    <message>
        <source>Download resolution</source>
        <translation>下载分辨率</translation>
    </message>
    <message>
        <source>Download ultra-high quality online streaming videos and music from YouTube Facebook and 1000+ sites. Convert downloaded files to MP4, MP3, etc.</source>
        <translation>从 YouTube、Facebook 及 1000 多个网站下载超高质量的在线视频和音乐。将下载的文件转换为 MP4、MP3 等格式。</translation>
    </message>
    <message>
        <source>Downloader</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Downloads at the same time</source>
        <translation>同时下载数</translation>
    </message>
    <message>
        <source>Draw an area, then press Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop videos or folders anywhere in this window, choose a format below and press Convert. The results go to the output folder; your own files stay as they are.</source>
        <translation>将视频或文件夹拖到此窗口中的任意位置，在下方选择格式，然后点按“转换”。结果会存储到输出文件夹；您的原文件保持不变。</translation>
    </message>
    <message>
        <source>Drop videos or folders here</source>
        <translation>将视频或文件夹拖到此处</translation>
    </message>
    <message>
        <source>E-AC-3 Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoding in software</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encoding, because the tracks could not be copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Even out the loudness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLAC Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLV Video (H.264, AAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>Faster, larger file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fastest, largest file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File size at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files can be cut or joined, but not both at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Film from television (24)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Films at this address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Find Black Bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>查找下一个</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>查找上一个</translation>
    </message>
    <message>
        <source>Finishing…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>自动滚动</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For the DVD ripper, which is still being made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For the downloader, which is still being made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Format and options in use are kept under this name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found after going around the end of the log.</source>
        <translation>已从日志另一端继续查找并找到。</translation>
    </message>
    <message>
        <source>Full HD (1920 × 1080)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Further pictures beside the first (other angles or previews).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GIF Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>图形</translation>
    </message>
    <message>
        <source>H.264 decoders</source>
        <translation>H.264 解码器</translation>
    </message>
    <message>
        <source>H.264 encoders</source>
        <translation>H.264 编码器</translation>
    </message>
    <message>
        <source>HD (1280 × 720)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HEVC decoders</source>
        <translation>HEVC 解码器</translation>
    </message>
    <message>
        <source>HEVC encoders</source>
        <translation>HEVC 编码器</translation>
    </message>
    <message>
        <source>Hardware Information</source>
        <translation>硬件信息</translation>
    </message>
    <message>
        <source>Hardware acceleration:</source>
        <translation>硬件加速：</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>High dynamic range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High dynamic range becomes standard range.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High quality (slower)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest Resolution</source>
        <translation>最高分辨率</translation>
    </message>
    <message>
        <source>How the disc is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intel</source>
        <translation>Intel</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is shown here as soon as it is written: %1</source>
        <translation>日志写入后将立即显示在此处：%1</translation>
    </message>
    <message>
        <source>Its titles are kept as they are, or become MP4, MKV or MP3, as you choose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jobs are running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Jobs are still running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join all files into one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join into One</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Joining</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the Rest Instead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the date of the source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep tracks that fit as they are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept as a track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept until you quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept where it can be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kestrel Help</source>
        <translation>Kestrel 帮助</translation>
    </message>
    <message>
        <source>Kestrel Log</source>
        <translation>Kestrel 日志</translation>
    </message>
    <message>
        <source>Kestrel Log — %1</source>
        <translation>Kestrel 日志 — %1</translation>
    </message>
    <message>
        <source>Kestrel does not know how long this file is, and cannot aim at a size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kestrel does not know the kind of file “%1” of this preset.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>了解更多</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines with this text: %1</source>
        <translation>包含此文本的行：%1</translation>
    </message>
    <message>
        <source>Lines with this text: %1, looking for more… %2 % (Esc stops)</source>
        <translation>包含此文本的行：%1，正在继续查找… %2%（按 Esc 停止）</translation>
    </message>
    <message>
        <source>Log text</source>
        <translation>日志文本</translation>
    </message>
    <message>
        <source>Looking at the hardware</source>
        <translation>正在检查硬件</translation>
    </message>
    <message>
        <source>M4A Audio (AAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>M4A Audio, Lossless (ALAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MKA Audio (Opus)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MKV Video (AV1, Opus)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MKV Video (H.264, AAC)</source>
        <translation>MKV 视频（H.264、AAC）</translation>
    </message>
    <message>
        <source>MKV Video (H.265, AAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MKV Video (VP9, Opus)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MKV Video, High Quality (H.265, FLAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MKV Video, Lossless (FFV1, FLAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MOV Video (DNxHR, PCM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MOV Video (H.264, AAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MOV Video (ProRes, PCM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation>MP3 音频</translation>
    </message>
    <message>
        <source>MP4 Video (AV1, Opus)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation>MP4 视频（H.264、AAC）</translation>
    </message>
    <message>
        <source>MP4 Video (H.265, AAC)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MP4 Video for Web Pages (1080p)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MPEG Video (MPEG-2, MP2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MXF Video (DNxHR, PCM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MXF Video (MPEG-2, PCM)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>媒体文件</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>内存</translation>
    </message>
    <message>
        <source>Messages of the tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mono</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Music folder</source>
        <translation>音乐文件夹</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No camera was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No format matches the search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No log was named</source>
        <translation>未指定日志</translation>
    </message>
    <message>
        <source>No picture of the copy could be decoded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture of this film could be decoded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No server answers at this address. Check it and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No speed limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>尚未选择</translation>
    </message>
    <message>
        <source>Not turned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not used yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not used yet, kept until you quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing could be decoded at %1 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>未找到任何内容。</translation>
    </message>
    <message>
        <source>Nothing of the file could be converted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing of the film could be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing of the recording is left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing of this file would be kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OGG Audio (Vorbis)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OGV Video (Theora, Vorbis)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation>好</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Old Phone (3GP)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One title as a disc folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only %1 of %2 s have come.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only files that all have a picture, or all have sound, can be joined.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only one track of subtitles can be burnt in; another one stays behind.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the log with “App Log” in the Help menu of %1.</source>
        <translation>请在 %1 的“帮助”菜单中通过“应用日志”打开日志。</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>打开输出文件夹</translation>
    </message>
    <message>
        <source>Open the output folder when done</source>
        <translation>完成后打开输出文件夹</translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opus Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original Sound, in an MKA File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original, in a MOV File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original, in a TS File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original, in an MKV File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original, in an MP4 File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>输出文件夹：</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>输出格式</translation>
    </message>
    <message>
        <source>PCM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page of options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part of the screen…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parts of the finished file are missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Paste or drop addresses here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone (H.265)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture, all sound, subtitles in their colours and chapters of the chosen titles, nothing encoded again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures a second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Piece %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pieces that are kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plays Everywhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please check that the disk has room and that this folder can be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait. Getting update information from the server...</source>
        <translation>请稍候。正在从服务器获取更新信息…</translation>
    </message>
    <message>
        <source>Please write to %1 and attach this file: %2</source>
        <translation>请写信至 %1 并附上此文件：%2</translation>
    </message>
    <message>
        <source>Please write to this address: %1</source>
        <translation>请写信至此地址：%1</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Preferred audio language</source>
        <translation>首选音频语言</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem detected in last conversion.</source>
        <translation>上次转换时检测到问题。</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>处理器</translation>
    </message>
    <message>
        <source>Processor cores</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>代理地址</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>代理端口</translation>
    </message>
    <message>
        <source>Put a DVD in, or drop a disc image or folder here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Putting picture and sound together…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality (lower is better)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Kestrel</source>
        <translation>退出 Kestrel</translation>
    </message>
    <message>
        <source>Reading the disc…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the disc… A drive may take half a minute for it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation>不允许读取文件或写入输出文件夹。请检查它们的权限。</translation>
    </message>
    <message>
        <source>Reading the file…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>准备就绪</translation>
    </message>
    <message>
        <source>Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record Video</source>
        <translation>录制视频</translation>
    </message>
    <message>
        <source>Record screen/webcam/iPhone videos. Capture live streams, games, desktop, and anything in MOV for YouTube. Support recording screen and webcam at the same time.</source>
        <translation>录制屏幕、摄像头和 iPhone 视频。将直播、游戏、桌面等任何内容录制为适合 YouTube 的 MOV。支持同时录制屏幕和摄像头。</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording begins in %1 s. Press Record to begin at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recovered after an interruption.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>版本说明：</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove Piece</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove With Partial File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes what is done from the list. The files stay.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report Bug</source>
        <translation>报告问题</translation>
    </message>
    <message>
        <source>Reset Profiles</source>
        <translation>重置配置文件</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Safe mode: check the whole result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>存储副本</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>存储副本…</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as Preset…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving… %1 % (Esc stops)</source>
        <translation>正在存储… %1%（按 Esc 停止）</translation>
    </message>
    <message>
        <source>Screen %1 (%2 × %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation>屏幕录制不可用</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>左右滚动</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>上下滚动</translation>
    </message>
    <message>
        <source>Search Settings</source>
        <translation>搜索设置</translation>
    </message>
    <message>
        <source>Search formats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search: MKV, AV1, FLAC …</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching… %1 % (Esc stops)</source>
        <translation>正在查找… %1%（按 Esc 停止）</translation>
    </message>
    <message>
        <source>Second pass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Select one file in the list to choose among its tracks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>发送反馈</translation>
    </message>
    <message>
        <source>Send Report</source>
        <translation>发送报告</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Several formats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show File</source>
        <translation>显示文件</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>显示通知</translation>
    </message>
    <message>
        <source>Show only lines with</source>
        <translation>仅显示包含此文本的行</translation>
    </message>
    <message>
        <source>Shut down the computer when done</source>
        <translation>完成后关闭电脑</translation>
    </message>
    <message>
        <source>Size at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size: about %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slower, smaller file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slowest, smallest file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small (640 × 480)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small MP4 Video (720p)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshot folder</source>
        <translation>快照文件夹</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound of the computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound only, unchanged (MKA)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound track %1, which this film does not have</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound: %1. %2 holds only one track of sound.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Source (drag to crop)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed limit of each download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Stay at the end while the log grows</source>
        <translation>日志增长时停留在末尾</translation>
    </message>
    <message>
        <source>Steady quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop after %1 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop and Restart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>已停止。</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitles that are pictures: %1. %2 cannot hold them; burn them in, or choose MKV.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitles: %1. %2 cannot hold them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtitles: %1. They cannot follow the changed times; burn them in to keep them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>建议</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TS Video (H.264, AC-3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TV (1080p)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TV (4K, HDR)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That is the log itself. Choose another name.</source>
        <translation>这是日志本身。请选择其他名称。</translation>
    </message>
    <message>
        <source>The area to be recorded is outside the screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The attached file %1. %2 cannot hold it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The broadcast has not begun yet. Try again when it has.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera's picture is not shown before it is recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chapters. %1 cannot hold them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The chosen titles become files of the format beside, as small as you like.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The conversion was stopped before the end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The converter cannot make this format. Choose another one.</source>
        <translation>转换器无法生成此格式。请选择其他格式。</translation>
    </message>
    <message>
        <source>The converter could not be started. Please install the application again.</source>
        <translation>无法启动转换器。请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The converter could not convert this file.</source>
        <translation>转换器无法转换此文件。</translation>
    </message>
    <message>
        <source>The converter did not answer any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The converter is missing. Please install the application again.</source>
        <translation>找不到转换器。请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The copy could not be read back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>无法存储副本：%1</translation>
    </message>
    <message>
        <source>The copy has %1 titles instead of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy was broken off. It goes on where it is when it is started again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy was saved.</source>
        <translation>副本已存储。</translation>
    </message>
    <message>
        <source>The cover picture. %1 cannot hold it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cover picture. It is lost when files are joined so.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disc could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disc did not answer in time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disc has no such title, chapter or angle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disc image ends before its film does.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disc is damaged: what it holds could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disc may not be read by this user.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disc tools could not be started. Please install the application again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>无法读取或写入磁盘。</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays a Matroska file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation>输出文件夹所在的磁盘无法存储这种大小的文件。</translation>
    </message>
    <message>
        <source>The display %1 could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download engine does not work. Please install the application again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download engine is missing. Please install the application again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The download failed. The details tell what the engine said.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The encoder for %1 is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file holds neither video nor sound that can be converted.</source>
        <translation>文件不包含可转换的视频或声音。</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>文件已损坏或不完整。</translation>
    </message>
    <message>
        <source>The file is no longer where it was.</source>
        <translation>文件已不在原来的位置。</translation>
    </message>
    <message>
        <source>The file was deleted. What it held is still shown.</source>
        <translation>文件已删除。其内容仍会显示。</translation>
    </message>
    <message>
        <source>The film is copy protected and is not downloaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The film is no longer there. Look for it at another address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The film is not there in the form that was wanted. Choose another resolution or format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The film is private or for members only, so it cannot be downloaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The film of the chosen titles as it stands on the disc; no chapters, no names of languages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The finished file could not be read back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The finished file has %1 bytes instead of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The finished file holds other tracks than were wanted: %1 instead of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The finished file is %1 s long instead of %2 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The finished file is damaged: %1 faults.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The finished file is larger than wanted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first %1 were copied. Save a copy to have all of it.</source>
        <translation>已拷贝前 %1。要获取全部内容，请存储副本。</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>无法打开文件夹。</translation>
    </message>
    <message>
        <source>The folder for temporary files cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The log cannot be read</source>
        <translation>无法读取日志</translation>
    </message>
    <message>
        <source>The log was cut short meanwhile. Try again.</source>
        <translation>日志在此期间被截短。请重试。</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the address again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the file again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output directory does not exist. Please check the setting.</source>
        <translation>输出文件夹不存在。请检查设置。</translation>
    </message>
    <message>
        <source>The output folder is read-only. Choose another one in the settings.</source>
        <translation>输出文件夹为只读。请在设置中选择其他文件夹。</translation>
    </message>
    <message>
        <source>The picture has to be encoded (%1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is made smaller, %1 × %2, so that it fits the size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture is missing: the site handed out the sound alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture of the finished file does not stand upright.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pieces to be kept lie behind the end of the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The player is missing. Please install the application again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program dvdauthor is missing. Please install it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The proxy refuses the connection. Check its address in the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays a Matroska file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording ended because the disk is nearly full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording was interrupted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The screen of a Wayland session cannot be recorded. Log in to a session of X11 (Xorg) to record it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation>屏幕录制仅支持 Mac OS Lion 及更高版本。</translation>
    </message>
    <message>
        <source>The server broke off or could not answer. What has come is kept; try again later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server broke off, next attempt in %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server has sent only part of the film.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server refuses to hand out the film. Try again later, or open the page in a browser to see why.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in a while.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server's certificate is not valid, so it may not be who it says it is. Nothing was downloaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings' folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site does not show this film in your country. A proxy of another country can be set in the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site has changed and the download engine does not know it any more. Update the engine and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site shows this film only to those who have logged in, which Kestrel does not do.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site wants to know the viewer's age first, which it learns only from a log-in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The snapshot could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound could not be recorded. Is the sound server running?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound is missing since the sound server went away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound is missing: the site handed out the picture alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sound. %1 holds only pictures.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation>最强大的视频处理软件：转换视频、音频和 DVD；编辑、转码、压缩和调整视频文件；下载在线媒体内容；录制屏幕和摄像头。</translation>
    </message>
    <message>
        <source>The tool that reads media files is missing. Please install the application again.</source>
        <translation>找不到读取媒体文件的工具。请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The transcoder did not answer as it should.</source>
        <translation>转码器未按预期响应。</translation>
    </message>
    <message>
        <source>The transcoder is missing. Please install the application again.</source>
        <translation>缺少转码器。请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The whole disc, sector for sector, in one file that plays like the disc.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The whole film is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The window is too small to be recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no black bars.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are several films at this address. Add it again to choose among them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are too many presets. Delete some first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no connection to the network. Check it and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no disc. Put it in, or choose an image or a folder, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no display whose picture could be recorded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no film at this address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no film at this address. Look for the page that plays it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no log yet</source>
        <translation>尚无日志</translation>
    </message>
    <message>
        <source>There is no picture at this place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no screen "%1". There is: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation>磁盘空间不足。请释放一些空间后再次转换。</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and try again; what has come is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>此文件不存在。</translation>
    </message>
    <message>
        <source>There is no video or sound file in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no window %1 to be seen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation>内存不足，无法转换此文件。</translation>
    </message>
    <message>
        <source>There is not enough memory to read this disc.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough space: %1 are needed and %2 are free. Free some, or choose another folder in the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to convert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is too little space on the disk to record.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They become MP4, MKV, WebM or MP3, as you choose.</source>
        <translation>可按您的选择转换为 MP4、MKV、WebM 或 MP3。</translation>
    </message>
    <message>
        <source>This address is of no site that Kestrel knows. Check it, or look for the page that plays the film.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This choice is kept until you quit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This computer has no hardware encoder for H.264 video.</source>
        <translation>此电脑没有 H.264 视频硬件编码器。</translation>
    </message>
    <message>
        <source>This disc is being copied to this folder already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This disc is copy-protected and cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation>无法读取此文件。</translation>
    </message>
    <message>
        <source>This file has neither picture nor sound to convert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file has no picture to convert.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation>此文件没有可转换的声音。</translation>
    </message>
    <message>
        <source>This file holds no presets of Kestrel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file is damaged, or it holds neither video nor sound.</source>
        <translation>此文件已损坏，或不包含视频和声音。</translation>
    </message>
    <message>
        <source>This film has no sound.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>无法写入此文件夹。</translation>
    </message>
    <message>
        <source>This is another disc: %1 instead of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no address that can be downloaded from.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no preset.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no text file</source>
        <translation>这不是文本文件</translation>
    </message>
    <message>
        <source>This is no video DVD: there is no VIDEO_TS on it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no video or sound file.</source>
        <translation>这不是视频或声音文件。</translation>
    </message>
    <message>
        <source>This preset has no name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This preset keeps neither picture nor sound.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This preset was made by a newer version of Kestrel.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This title has no sound to keep.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title %1 of the copy has %2 chapters instead of %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title %1 of the copy has other tracks than the disc.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title %1 of the copy is %2 s long instead of %3 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title %1, the main film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Titles as MPEG-2 files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Titles of the disc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Titles, unchanged (MKV)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too many lines have this text: the newest %1 are shown.</source>
        <translation>包含此文本的行过多：显示最新的 %1 行。</translation>
    </message>
    <message>
        <source>Too many requests: the server is asked again in %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transcoder</source>
        <translation>转码器</translation>
    </message>
    <message>
        <source>Trial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try 10 Seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turned into standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to connect to update server.</source>
        <translation>无法连接到更新服务器。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Unknown language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>不限</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>使用代理</translation>
    </message>
    <message>
        <source>Use the graphics hardware</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version: %@</source>
        <translation>版本：%@</translation>
    </message>
    <message>
        <source>Very Small MP4 Video (480p)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Video Converter</source>
        <translation>视频转换</translation>
    </message>
    <message>
        <source>Video folder</source>
        <translation>视频文件夹</translation>
    </message>
    <message>
        <source>Video or sound file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Videos and music from the web are saved in the form that you choose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visit our website:</source>
        <translation>访问我们的网站：</translation>
    </message>
    <message>
        <source>Visit website</source>
        <translation>访问网站</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WAV Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WMA Audio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WMV Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for space on the disk: %1 needed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the network, next attempt in %1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting: %1 downloads from this server are under way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebM Video (AV1, Opus)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebM Video (VP8, Vorbis)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation>WebM 视频（VP9、Opus）</translation>
    </message>
    <message>
        <source>What the server sent is no film.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the site answered could not be understood.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What this preset makes cannot be fitted to a size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What you stop now is offered to you again at the next start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where it is needed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width of the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Will not be accepted. Example: http://proxy.example.com or socks5://10.0.0.1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Window: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would you please send us the Log File to help us fix the issue?</source>
        <translation>您愿意将日志文件发送给我们，以帮助我们解决此问题吗？</translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation>您没有读取此文件的权限。</translation>
    </message>
    <message>
        <source>You're up-to-date!</source>
        <translation>已是最新版本</translation>
    </message>
    <message>
        <source>Your mail program could not be opened.</source>
        <translation>无法打开您的邮件程序。</translation>
    </message>
    <message>
        <source>Your screen, as a video</source>
        <translation>让屏幕成为视频</translation>
    </message>
    <message>
        <source>Your settings cannot be saved at the moment. Kestrel tries again when it is quit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your settings could not be saved when Kestrel was last quit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>剩余约 %1 小时</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>剩余约 %1 分钟</translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>剩余约 1 分钟</translation>
    </message>
    <message>
        <source>another commentary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>closetip</source>
        <translation>关闭提示</translation>
    </message>
    <message>
        <source>commentary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for children</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for the hard of hearing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for the visually impaired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>forced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kept as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>剩余不到 1 分钟</translation>
    </message>
    <message>
        <source>same as title %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>showtip</source>
        <translation>显示提示</translation>
    </message>
    <message>
        <source>{name}, {preset}, {folder} and {date} are filled in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” could not be played.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
