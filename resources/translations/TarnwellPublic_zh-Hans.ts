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
        <translation>%1（仅声音）</translation>
    </message>
    <message>
        <source>%1 - Title %2</source>
        <translation>%1 - 标题 %2</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 MB are too few for a file of this length.</source>
        <translation>对于此时长的文件，%1 MB 太小。</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 及另外 %2 个</translation>
    </message>
    <message>
        <source>%1 angles</source>
        <translation>%1 个角度</translation>
    </message>
    <message>
        <source>%1 chapters</source>
        <translation>%1 个章节</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>%1 dropped</source>
        <translation>丢弃 %1 帧</translation>
    </message>
    <message>
        <source>%1 files selected</source>
        <translation>已选择 %1 个文件</translation>
    </message>
    <message>
        <source>%1 has fewer tracks of sound than other files: what it lacks is silent.</source>
        <translation>%1 的音轨少于其他文件：缺少的部分为静音。</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 of %2 pictures came too late: the one before stands for them.</source>
        <translation>%2 帧中有 %1 帧来得太迟：由前一帧代替。</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, %3 faults</source>
        <translation>%2 秒中可读取 %1 秒，%3 处错误</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, 1 fault</source>
        <translation>%2 秒中可读取 %1 秒，1 处错误</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read.</source>
        <translation>%2 秒中可读取 %1 秒。</translation>
    </message>
    <message>
        <source>%1 pictures a second</source>
        <translation>每秒 %1 帧</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 s could be read, %2 faults</source>
        <translation>可读取 %1 秒，%2 处错误</translation>
    </message>
    <message>
        <source>%1 s could be read, 1 fault</source>
        <translation>可读取 %1 秒，1 处错误</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the copy.</source>
        <translation>碟片的 %1 个扇区无法读取，在副本中为空。</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the image.</source>
        <translation>碟片的 %1 个扇区无法读取，在映像中为空。</translation>
    </message>
    <message>
        <source>%1 sectors of the film could not be read.</source>
        <translation>影片的 %1 个扇区无法读取。</translation>
    </message>
    <message>
        <source>%1 titles</source>
        <translation>%1 个标题</translation>
    </message>
    <message>
        <source>%1 to go</source>
        <translation>还剩 %1 个</translation>
    </message>
    <message>
        <source>%1 ×</source>
        <translation>%1 ×</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
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
        <translation>4K（3840 × 2160）</translation>
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
        <translation>为每个合并的文件创建章节</translation>
    </message>
    <message>
        <source>A disc of the chosen title alone, without menus, that players start at once.</source>
        <translation>仅含所选标题的碟片，没有菜单，播放机会立即开始播放。</translation>
    </message>
    <message>
        <source>A file of the kind %1 cannot hold what this preset asks for: %2.</source>
        <translation>%1 类型的文件无法包含此预设所需的内容：%2。</translation>
    </message>
    <message>
        <source>A folder has no sectors to copy. Choose another way.</source>
        <translation>文件夹没有可拷贝的扇区。请选取其他方式。</translation>
    </message>
    <message>
        <source>A new version of %@ is available!</source>
        <translation>%@ 有新版本可用</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>预设需要名称。</translation>
    </message>
    <message>
        <source>A recording is to begin at %1.</source>
        <translation>录制将于 %1 开始。</translation>
    </message>
    <message>
        <source>AC-3 Audio</source>
        <translation>AC-3 音频</translation>
    </message>
    <message>
        <source>AIFF Audio</source>
        <translation>AIFF 音频</translation>
    </message>
    <message>
        <source>APNG Animation</source>
        <translation>APNG 动画</translation>
    </message>
    <message>
        <source>AVI Video (MPEG-4, MP3)</source>
        <translation>AVI 视频（MPEG-4、MP3）</translation>
    </message>
    <message>
        <source>AVI Video (Motion JPEG, PCM)</source>
        <translation>AVI 视频（Motion JPEG、PCM）</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>About %1.</source>
        <translation>约 %1。</translation>
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
        <translation>添加</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>添加 %1 个</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>添加文件…</translation>
    </message>
    <message>
        <source>Add Subtitle File…</source>
        <translation>添加字幕文件…</translation>
    </message>
    <message>
        <source>Adding the subtitles…</source>
        <translation>正在添加字幕…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Address of a video or a page, such as https://…</source>
        <translation>视频或网页的地址，例如 https://…</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>目标</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>All Formats</source>
        <translation>全部格式</translation>
    </message>
    <message>
        <source>All Formats…</source>
        <translation>全部格式…</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>All files of the disc in a folder, with its menus.</source>
        <translation>将碟片的所有文件连同菜单存入文件夹。</translation>
    </message>
    <message>
        <source>All jobs are done.</source>
        <translation>所有任务均已完成。</translation>
    </message>
    <message>
        <source>All jobs have ended.</source>
        <translation>所有任务均已结束。</translation>
    </message>
    <message>
        <source>All languages</source>
        <translation>所有语言</translation>
    </message>
    <message>
        <source>All sound tracks of the chosen titles with their chapters.</source>
        <translation>所选标题的所有音轨及其章节。</translation>
    </message>
    <message>
        <source>Allow Many From One Server</source>
        <translation>允许从同一服务器下载多个</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>已在列表中：%1</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>始终</translation>
    </message>
    <message>
        <source>Always kept</source>
        <translation>始终保留</translation>
    </message>
    <message>
        <source>Always, twice the pictures</source>
        <translation>始终，帧数加倍</translation>
    </message>
    <message>
        <source>An address is for example http://proxy.example.com or socks5://10.0.0.1.</source>
        <translation>地址示例：http://proxy.example.com 或 socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation>其他文件夹…</translation>
    </message>
    <message>
        <source>App Log</source>
        <translation>应用日志</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>存档</translation>
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
        <source>Artist and album. %1 cannot hold them.</source>
        <translation>艺人和专辑。%1 无法容纳。</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>按格式设定</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>与来源相同</translation>
    </message>
    <message>
        <source>Asking the site…</source>
        <translation>正在询问网站…</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>最大</translation>
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
        <source>Begin</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Begin at a time…</source>
        <translation>在指定时间开始…</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <translation>立即开始</translation>
    </message>
    <message>
        <source>Beside the source</source>
        <translation>来源所在位置</translation>
    </message>
    <message>
        <source>Best quality</source>
        <translation>最佳质量</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>码率</translation>
    </message>
    <message>
        <source>Bit rate of a track</source>
        <translation>轨道码率</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Build on: %@</source>
        <translation>构建日期：%@</translation>
    </message>
    <message>
        <source>Burnt into the picture</source>
        <translation>嵌入画面</translation>
    </message>
    <message>
        <source>CAF Audio (ALAC)</source>
        <translation>CAF 音频（ALAC）</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>摄像头 %1</translation>
    </message>
    <message>
        <source>Camera %1 in the picture</source>
        <translation>画面中的摄像头 %1</translation>
    </message>
    <message>
        <source>Camera in the picture</source>
        <translation>画面中的摄像头</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Cancel the Trial</source>
        <translation>取消试转换</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation>已取消：%1</translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation>无法使用</translation>
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
        <translation>声道</translation>
    </message>
    <message>
        <source>Channels of the sound: %1. %2 become %3.</source>
        <translation>声道：%1。%2 变为 %3。</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>章节 %1</translation>
    </message>
    <message>
        <source>Chapters are missing in the finished file.</source>
        <translation>完成的文件缺少章节。</translation>
    </message>
    <message>
        <source>Chapters, languages and the colours of subtitles, which MPEG-2 files cannot hold</source>
        <translation>章节、语言和字幕颜色（MPEG-2 文件无法包含）</translation>
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
        <translation>正在检查副本…</translation>
    </message>
    <message>
        <source>Checking the finished file…</source>
        <translation>正在检查完成的文件…</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>选取</translation>
    </message>
    <message>
        <source>Choose Films</source>
        <translation>选取影片</translation>
    </message>
    <message>
        <source>Choose Films…</source>
        <translation>选择影片…</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Choose a Window</source>
        <translation>选择窗口</translation>
    </message>
    <message>
        <source>Choose above what is recorded, then press Record.</source>
        <translation>在上方选取要录制的内容，然后点按“录制”。</translation>
    </message>
    <message>
        <source>Choose an Area</source>
        <translation>选取区域</translation>
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
        <source>Click the window that is to be recorded</source>
        <translation>点按要录制的窗口</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>顺时针</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Computer and microphone</source>
        <translation>电脑和麦克风</translation>
    </message>
    <message>
        <source>Computer and microphone, a track each</source>
        <translation>电脑和麦克风，各占一条音轨</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>正在连接…</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
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
        <translation>正在转换十秒：%1%</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>正在转换…</translation>
    </message>
    <message>
        <source>Converting… %1 %</source>
        <translation>正在转换… %1 %</translation>
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
        <translation>角落</translation>
    </message>
    <message>
        <source>Count down from three</source>
        <translation>从三开始倒数</translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation>逆时针</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>封面</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Cut and Edit</source>
        <translation>剪切与编辑</translation>
    </message>
    <message>
        <source>Cut and Edit…</source>
        <translation>剪切与编辑…</translation>
    </message>
    <message>
        <source>Cut exactly (encodes)</source>
        <translation>精确剪切（重新编码）</translation>
    </message>
    <message>
        <source>Cut off bottom</source>
        <translation>裁剪底部</translation>
    </message>
    <message>
        <source>Cut off left</source>
        <translation>裁剪左侧</translation>
    </message>
    <message>
        <source>Cut off right</source>
        <translation>裁剪右侧</translation>
    </message>
    <message>
        <source>Cut off top</source>
        <translation>裁剪顶部</translation>
    </message>
    <message>
        <source>Cut or Convert…</source>
        <translation>剪切或转换…</translation>
    </message>
    <message>
        <source>Cut without encoding: it begins at the key picture at or before %1 s.</source>
        <translation>不重新编码的剪切：从 %1 秒处或之前的关键帧开始。</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>剪辑</translation>
    </message>
    <message>
        <source>DTS</source>
        <translation>DTS</translation>
    </message>
    <message>
        <source>DV Video</source>
        <translation>DV 视频</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>DVD (720 × 576)</source>
        <translation>DVD（720 × 576）</translation>
    </message>
    <message>
        <source>DVD Ripper</source>
        <translation>DVD 提取</translation>
    </message>
    <message>
        <source>Data of the camera, such as time code.</source>
        <translation>摄像机的数据，例如时间码。</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Deinterlacing</source>
        <translation>去隔行</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
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
        <translation>设备</translation>
    </message>
    <message>
        <source>Disc Player (VOB)</source>
        <translation>碟片播放机（VOB）</translation>
    </message>
    <message>
        <source>Disc folder with menus</source>
        <translation>带菜单的碟片文件夹</translation>
    </message>
    <message>
        <source>Disc image (ISO)</source>
        <translation>碟片映像（ISO）</translation>
    </message>
    <message>
        <source>Disc images</source>
        <translation>碟片映像</translation>
    </message>
    <message>
        <source>Discard Recording</source>
        <translation>放弃录制</translation>
    </message>
    <message>
        <source>Dolby Digital</source>
        <translation>Dolby Digital</translation>
    </message>
    <message>
        <source>Don't Record</source>
        <translation>不录制</translation>
    </message>
    <message>
        <source>Don't Shut Down</source>
        <translation>不关机</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Done with problems</source>
        <translation>已完成但有问题</translation>
    </message>
    <message>
        <source>Done with problems: %1</source>
        <translation>已完成但有问题：%1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>已完成：%1</translation>
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
        <source>Downloads that are running keep the limit that they began with.</source>
        <translation>正在进行的下载保持其开始时的限制。</translation>
    </message>
    <message>
        <source>Draw an area, then press Return</source>
        <translation>拖移出一个区域，然后按 Return 键</translation>
    </message>
    <message>
        <source>Drawn into the film, for players that show none themselves.</source>
        <translation>画入影片，供自身不显示字幕的播放器使用。</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
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
        <translation>E-AC-3 音频</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Encoding in software</source>
        <translation>正在使用软件编码</translation>
    </message>
    <message>
        <source>Encoding once more, to meet the size</source>
        <translation>为符合大小再次编码</translation>
    </message>
    <message>
        <source>Encoding, because the tracks could not be copied</source>
        <translation>正在编码，因为轨道无法直接拷贝</translation>
    </message>
    <message>
        <source>End</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>End Here</source>
        <translation>在此结束</translation>
    </message>
    <message>
        <source>Even out the loudness</source>
        <translation>均衡响度</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>FLAC Audio</source>
        <translation>FLAC 音频</translation>
    </message>
    <message>
        <source>FLV Video (H.264, AAC)</source>
        <translation>FLV 视频（H.264、AAC）</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>淡入</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>淡出</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>Faster, larger file</source>
        <translation>较快，文件较大</translation>
    </message>
    <message>
        <source>Fastest, largest file</source>
        <translation>最快，文件最大</translation>
    </message>
    <message>
        <source>File size at most</source>
        <translation>文件大小上限</translation>
    </message>
    <message>
        <source>Files can be cut or joined, but not both at once.</source>
        <translation>文件可以剪切或合并，但不能同时进行。</translation>
    </message>
    <message>
        <source>Film from television (24)</source>
        <translation>电视播放的电影（24）</translation>
    </message>
    <message>
        <source>Films and files without a picture can be joined only into a file of sound.</source>
        <translation>影片与没有画面的文件只能合并为声音文件。</translation>
    </message>
    <message>
        <source>Films at this address</source>
        <translation>此地址的影片</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>过滤</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Find Black Bars</source>
        <translation>查找黑边</translation>
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
        <translation>正在收尾…</translation>
    </message>
    <message>
        <source>First pass</source>
        <translation>第一遍</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>自动滚动</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>用于所有文件</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>例如：%1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Format and options in use are kept under this name:</source>
        <translation>正在使用的格式和选项将以此名称存储：</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Found after going around the end of the log.</source>
        <translation>已从日志另一端继续查找并找到。</translation>
    </message>
    <message>
        <source>From chapter</source>
        <translation>起始章节</translation>
    </message>
    <message>
        <source>Full HD (1920 × 1080)</source>
        <translation>全高清（1920 × 1080）</translation>
    </message>
    <message>
        <source>Further cover pictures beside the first.</source>
        <translation>第一张之外的其他封面图片。</translation>
    </message>
    <message>
        <source>Further pictures beside the first (other angles or previews).</source>
        <translation>第一个以外的画面（其他角度或预览）。</translation>
    </message>
    <message>
        <source>GIF Animation</source>
        <translation>GIF 动画</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>游戏机</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Good quality</source>
        <translation>良好质量</translation>
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
        <translation>高清（1280 × 720）</translation>
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
        <translation>高动态范围</translation>
    </message>
    <message>
        <source>High dynamic range becomes standard range.</source>
        <translation>高动态范围将转换为标准范围。</translation>
    </message>
    <message>
        <source>High quality (slower)</source>
        <translation>高质量（较慢）</translation>
    </message>
    <message>
        <source>Highest Resolution</source>
        <translation>最高分辨率</translation>
    </message>
    <message>
        <source>How the disc is kept</source>
        <translation>碟片的存储方式</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>导入…</translation>
    </message>
    <message>
        <source>In a session of Wayland the desktop asks what is recorded: it cannot be named beforehand.</source>
        <translation>在 Wayland 会话中，录制什么由桌面询问，不能事先指定。</translation>
    </message>
    <message>
        <source>Intel</source>
        <translation>Intel</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>已中断</translation>
    </message>
    <message>
        <source>It is shown here as soon as it is written: %1</source>
        <translation>日志写入后将立即显示在此处：%1</translation>
    </message>
    <message>
        <source>Its titles are kept as they are, or become MP4, MKV or MP3, as you choose.</source>
        <translation>标题可保持原样，或按您的选择转换为 MP4、MKV 或 MP3。</translation>
    </message>
    <message>
        <source>Jobs are running.</source>
        <translation>任务正在运行。</translation>
    </message>
    <message>
        <source>Jobs are still running.</source>
        <translation>仍有任务正在运行。</translation>
    </message>
    <message>
        <source>Join all files into one</source>
        <translation>将所有文件合并为一个</translation>
    </message>
    <message>
        <source>Join into One</source>
        <translation>合并为一个</translation>
    </message>
    <message>
        <source>Joining</source>
        <translation>正在合并</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>继续运行</translation>
    </message>
    <message>
        <source>Keep Waiting</source>
        <translation>继续等待</translation>
    </message>
    <message>
        <source>Keep the Rest Instead</source>
        <translation>改为保留其余部分</translation>
    </message>
    <message>
        <source>Keep the date of the source</source>
        <translation>保留来源的日期</translation>
    </message>
    <message>
        <source>Keep tracks that fit as they are</source>
        <translation>合适的轨道保持原样</translation>
    </message>
    <message>
        <source>Kept as a track</source>
        <translation>保留为轨道</translation>
    </message>
    <message>
        <source>Kept until you quit</source>
        <translation>保留到退出为止</translation>
    </message>
    <message>
        <source>Kept where it can be</source>
        <translation>尽可能保留</translation>
    </message>
    <message>
        <source>Kept: %1</source>
        <translation>保留：%1</translation>
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
        <translation>Kestrel 不知道此文件的时长，无法以某个大小为目标。</translation>
    </message>
    <message>
        <source>Kestrel does not know the kind of file “%1” of this preset.</source>
        <translation>Kestrel 不认识此预设的文件类型“%1”。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Language of %1</source>
        <translation>%1 的语言</translation>
    </message>
    <message>
        <source>Languages of sound</source>
        <translation>声音语言</translation>
    </message>
    <message>
        <source>Languages of subtitles</source>
        <translation>字幕语言</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>了解更多</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>不包含</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>未包含：%1</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>时长</translation>
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
        <source>Looking for a newer download engine…</source>
        <translation>正在查找更新的下载引擎…</translation>
    </message>
    <message>
        <source>Lossless sound: %1. It becomes %2.</source>
        <translation>无损声音：%1。将变为 %2。</translation>
    </message>
    <message>
        <source>M4A Audio (AAC)</source>
        <translation>M4A 音频（AAC）</translation>
    </message>
    <message>
        <source>M4A Audio, Lossless (ALAC)</source>
        <translation>M4A 音频，无损（ALAC）</translation>
    </message>
    <message>
        <source>MKA Audio (Opus)</source>
        <translation>MKA 音频（Opus）</translation>
    </message>
    <message>
        <source>MKV Video (AV1, Opus)</source>
        <translation>MKV 视频（AV1、Opus）</translation>
    </message>
    <message>
        <source>MKV Video (H.264, AAC)</source>
        <translation>MKV 视频（H.264、AAC）</translation>
    </message>
    <message>
        <source>MKV Video (H.265, AAC)</source>
        <translation>MKV 视频（H.265、AAC）</translation>
    </message>
    <message>
        <source>MKV Video (VP9, Opus)</source>
        <translation>MKV 视频（VP9、Opus）</translation>
    </message>
    <message>
        <source>MKV Video, High Quality (H.265, FLAC)</source>
        <translation>MKV 视频，高质量（H.265、FLAC）</translation>
    </message>
    <message>
        <source>MKV Video, Lossless (FFV1, FLAC)</source>
        <translation>MKV 视频，无损（FFV1、FLAC）</translation>
    </message>
    <message>
        <source>MOV Video (DNxHR, PCM)</source>
        <translation>MOV 视频（DNxHR、PCM）</translation>
    </message>
    <message>
        <source>MOV Video (H.264, AAC)</source>
        <translation>MOV 视频（H.264、AAC）</translation>
    </message>
    <message>
        <source>MOV Video (ProRes, PCM)</source>
        <translation>MOV 视频（ProRes、PCM）</translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation>MP3 音频</translation>
    </message>
    <message>
        <source>MP4 Video (AV1, Opus)</source>
        <translation>MP4 视频（AV1、Opus）</translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation>MP4 视频（H.264、AAC）</translation>
    </message>
    <message>
        <source>MP4 Video (H.265, AAC)</source>
        <translation>MP4 视频（H.265、AAC）</translation>
    </message>
    <message>
        <source>MP4 Video for Web Pages (1080p)</source>
        <translation>适用于网页的 MP4 视频（1080p）</translation>
    </message>
    <message>
        <source>MPEG</source>
        <translation>MPEG</translation>
    </message>
    <message>
        <source>MPEG Video (MPEG-2, MP2)</source>
        <translation>MPEG 视频（MPEG-2、MP2）</translation>
    </message>
    <message>
        <source>MPEG-4 movie (MP4)</source>
        <translation>MPEG-4 影片 (MP4)</translation>
    </message>
    <message>
        <source>MXF Video (DNxHR, PCM)</source>
        <translation>MXF 视频（DNxHR、PCM）</translation>
    </message>
    <message>
        <source>MXF Video (MPEG-2, PCM)</source>
        <translation>MXF 视频（MPEG-2、PCM）</translation>
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
        <translation>工具的消息</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>麦克风</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中间</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>单声道</translation>
    </message>
    <message>
        <source>Music folder</source>
        <translation>音乐文件夹</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>我的预设</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>预设名称：</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>从不</translation>
    </message>
    <message>
        <source>No camera in the picture</source>
        <translation>画面中无摄像头</translation>
    </message>
    <message>
        <source>No camera was found.</source>
        <translation>找不到摄像头。</translation>
    </message>
    <message>
        <source>No format matches the search.</source>
        <translation>没有与搜索匹配的格式。</translation>
    </message>
    <message>
        <source>No log was named</source>
        <translation>未指定日志</translation>
    </message>
    <message>
        <source>No more than %1 pieces can be kept.</source>
        <translation>最多只能保留 %1 段。</translation>
    </message>
    <message>
        <source>No picture of the copy could be decoded.</source>
        <translation>无法解码副本的任何画面。</translation>
    </message>
    <message>
        <source>No picture of this film could be decoded.</source>
        <translation>无法解码此影片的任何画面。</translation>
    </message>
    <message>
        <source>No server answers at this address. Check it and try again.</source>
        <translation>此地址没有服务器响应。请检查地址，然后重试。</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation>无声音</translation>
    </message>
    <message>
        <source>No speed limit</source>
        <translation>不限速</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation>无字幕</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>尚未选择</translation>
    </message>
    <message>
        <source>Not turned</source>
        <translation>不旋转</translation>
    </message>
    <message>
        <source>Not used yet</source>
        <translation>尚未使用</translation>
    </message>
    <message>
        <source>Not used yet, kept until you quit</source>
        <translation>尚未使用，保留到退出为止</translation>
    </message>
    <message>
        <source>Nothing could be decoded at %1 s.</source>
        <translation>在 %1 秒处无法解码任何内容。</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>未找到任何内容。</translation>
    </message>
    <message>
        <source>Nothing of the file could be converted.</source>
        <translation>文件中没有可转换的内容。</translation>
    </message>
    <message>
        <source>Nothing of the film could be read.</source>
        <translation>无法读取影片的任何内容。</translation>
    </message>
    <message>
        <source>Nothing of the recording is left.</source>
        <translation>录制内容已全部丢失。</translation>
    </message>
    <message>
        <source>Nothing of this file would be kept.</source>
        <translation>此文件不会保留任何内容。</translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation>未录制任何内容。</translation>
    </message>
    <message>
        <source>OGG Audio (Vorbis)</source>
        <translation>OGG 音频（Vorbis）</translation>
    </message>
    <message>
        <source>OGV Video (Theora, Vorbis)</source>
        <translation>OGV 视频（Theora、Vorbis）</translation>
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
        <translation>旧手机（3GP）</translation>
    </message>
    <message>
        <source>One title as a disc folder</source>
        <translation>将一个标题存为碟片文件夹</translation>
    </message>
    <message>
        <source>Only %1 of %2 s have come.</source>
        <translation>%2 秒中只收到 %1 秒。</translation>
    </message>
    <message>
        <source>Only one track of subtitles can be burnt in; another one stays behind.</source>
        <translation>只能嵌入一个字幕轨道；其他字幕将不包含。</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>打开文件夹…</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>打开映像…</translation>
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
        <translation>选项</translation>
    </message>
    <message>
        <source>Opus Audio</source>
        <translation>Opus 音频</translation>
    </message>
    <message>
        <source>Original Sound, in an MKA File</source>
        <translation>原始声音，存为 MKA 文件</translation>
    </message>
    <message>
        <source>Original, in a MOV File</source>
        <translation>原始内容，存为 MOV 文件</translation>
    </message>
    <message>
        <source>Original, in a TS File</source>
        <translation>原始内容，存为 TS 文件</translation>
    </message>
    <message>
        <source>Original, in an MKV File</source>
        <translation>原始内容，存为 MKV 文件</translation>
    </message>
    <message>
        <source>Original, in an MP4 File</source>
        <translation>原始内容，存为 MP4 文件</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
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
        <translation>PCM</translation>
    </message>
    <message>
        <source>Page of options</source>
        <translation>选项页面</translation>
    </message>
    <message>
        <source>Part of the screen…</source>
        <translation>屏幕的一部分…</translation>
    </message>
    <message>
        <source>Parts of the finished file are missing.</source>
        <translation>完成的文件缺少部分内容。</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Paste or drop addresses here</source>
        <translation>在此处粘贴或拖入地址</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>手机</translation>
    </message>
    <message>
        <source>Phone (H.265)</source>
        <translation>手机（H.265）</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Picture, all sound, subtitles in their colours and chapters of the chosen titles, nothing encoded again.</source>
        <translation>所选标题的画面、全部声音、彩色字幕和章节，均不重新编码。</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Pictures a second</source>
        <translation>每秒帧数</translation>
    </message>
    <message>
        <source>Piece %1 of %2</source>
        <translation>第 %1 段，共 %2 段</translation>
    </message>
    <message>
        <source>Pieces that are kept</source>
        <translation>保留的片段</translation>
    </message>
    <message>
        <source>Place of the camera's picture</source>
        <translation>摄像头画面的位置</translation>
    </message>
    <message>
        <source>Places and styles of the subtitles: %1. %2 cannot hold them.</source>
        <translation>字幕的位置和样式：%1。%2 无法包含。</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Play Source</source>
        <translation>播放来源</translation>
    </message>
    <message>
        <source>Playing speed</source>
        <translation>播放速度</translation>
    </message>
    <message>
        <source>Plays Everywhere</source>
        <translation>随处可播</translation>
    </message>
    <message>
        <source>Please check that the disk has room and that this folder can be written: %1</source>
        <translation>请检查磁盘是否有空间，以及此文件夹是否可写入：%1</translation>
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
        <translation>位置</translation>
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
        <translation>预设</translation>
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
        <translation>处理器核心</translation>
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
        <translation>放入 DVD，或将碟片映像或文件夹拖到此处</translation>
    </message>
    <message>
        <source>Putting picture and sound together…</source>
        <translation>正在合并画面和声音…</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Quality (lower is better)</source>
        <translation>质量（越低越好）</translation>
    </message>
    <message>
        <source>QuickTime movie (MOV)</source>
        <translation>QuickTime 影片 (MOV)</translation>
    </message>
    <message>
        <source>Quit Kestrel</source>
        <translation>退出 Kestrel</translation>
    </message>
    <message>
        <source>Reading the disc…</source>
        <translation>正在读取碟片…</translation>
    </message>
    <message>
        <source>Reading the disc… A drive may take half a minute for it.</source>
        <translation>正在读取碟片… 驱动器可能需要半分钟。</translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation>不允许读取文件或写入输出文件夹。请检查它们的权限。</translation>
    </message>
    <message>
        <source>Reading the file…</source>
        <translation>正在读取文件…</translation>
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
        <translation>录制</translation>
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
        <translation>录制</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>录制 %1</translation>
    </message>
    <message>
        <source>Recording begins at %1. Press Record to begin at once.</source>
        <translation>录制将于 %1 开始。按“录制”可立即开始。</translation>
    </message>
    <message>
        <source>Recording begins in %1 s. Press Record to begin at once.</source>
        <translation>录制将在 %1 秒后开始。点按“录制”可立即开始。</translation>
    </message>
    <message>
        <source>Recovered after an interruption.</source>
        <translation>已从中断中恢复。</translation>
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
        <translation>移除片段</translation>
    </message>
    <message>
        <source>Remove With Partial File</source>
        <translation>连同未完成的文件一起移除</translation>
    </message>
    <message>
        <source>Removes what is done from the list. The files stay.</source>
        <translation>从列表中移除已完成的项目。文件会保留。</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重新命名</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>重新命名…</translation>
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
        <translation>结果</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>正在运行</translation>
    </message>
    <message>
        <source>Safe mode: check the whole result</source>
        <translation>安全模式：检查整个结果</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Save To…</source>
        <translation>存储到…</translation>
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
        <translation>存储为预设</translation>
    </message>
    <message>
        <source>Save as Preset…</source>
        <translation>存储为预设…</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>已存储：%1</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>正在存储…</translation>
    </message>
    <message>
        <source>Saving… %1 % (Esc stops)</source>
        <translation>正在存储… %1%（按 Esc 停止）</translation>
    </message>
    <message>
        <source>Screen %1 (%2 × %3)</source>
        <translation>屏幕 %1（%2 × %3）</translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation>屏幕录制不可用</translation>
    </message>
    <message>
        <source>Screen or window (the desktop asks)</source>
        <translation>屏幕或窗口（由桌面询问）</translation>
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
        <translation>搜索格式</translation>
    </message>
    <message>
        <source>Search: MKV, AV1, FLAC …</source>
        <translation>搜索：MKV、AV1、FLAC…</translation>
    </message>
    <message>
        <source>Searching… %1 % (Esc stops)</source>
        <translation>正在查找… %1%（按 Esc 停止）</translation>
    </message>
    <message>
        <source>Second pass</source>
        <translation>第二遍</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Select one file in the list to choose among its tracks.</source>
        <translation>在列表中选择一个文件，即可从其轨道中选取。</translation>
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
        <translation>多种格式</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Show File</source>
        <translation>显示文件</translation>
    </message>
    <message>
        <source>Show clicks</source>
        <translation>显示点按</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
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
        <source>Show the pointer</source>
        <translation>显示指针</translation>
    </message>
    <message>
        <source>Shut down the computer when done</source>
        <translation>完成后关闭电脑</translation>
    </message>
    <message>
        <source>Size at most</source>
        <translation>大小上限</translation>
    </message>
    <message>
        <source>Size: about %1</source>
        <translation>大小：约 %1</translation>
    </message>
    <message>
        <source>Slower, smaller file</source>
        <translation>较慢，文件较小</translation>
    </message>
    <message>
        <source>Slowest, smallest file</source>
        <translation>最慢，文件最小</translation>
    </message>
    <message>
        <source>Small (640 × 480)</source>
        <translation>小（640 × 480）</translation>
    </message>
    <message>
        <source>Small Files</source>
        <translation>小文件</translation>
    </message>
    <message>
        <source>Small MP4 Video (720p)</source>
        <translation>小型 MP4 视频（720p）</translation>
    </message>
    <message>
        <source>Small file</source>
        <translation>小文件</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>Snapshot folder</source>
        <translation>快照文件夹</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>Sound level</source>
        <translation>声音电平</translation>
    </message>
    <message>
        <source>Sound of %1: %2. The joined file has no track for it.</source>
        <translation>%1 的声音：%2。合并后的文件没有对应的音轨。</translation>
    </message>
    <message>
        <source>Sound of the computer</source>
        <translation>电脑的声音</translation>
    </message>
    <message>
        <source>Sound only, unchanged (MKA)</source>
        <translation>仅声音，保持原样（MKA）</translation>
    </message>
    <message>
        <source>Sound track %1 begins so late in the film that it is not found in time.</source>
        <translation>音轨 %1 在影片中开始得太晚，无法及时找到。</translation>
    </message>
    <message>
        <source>Sound track %1, which this film does not have</source>
        <translation>此影片没有的音轨 %1</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>声音：%1</translation>
    </message>
    <message>
        <source>Sound: %1. %2 holds only one track of sound.</source>
        <translation>声音：%1。%2 只能包含一个音轨。</translation>
    </message>
    <message>
        <source>Sound: %1. Its format is not known.</source>
        <translation>声音：%1。其格式未知。</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Source (drag to crop)</source>
        <translation>来源（拖移以裁剪）</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Speed limit of each download</source>
        <translation>每个下载的速度限制</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Start Here</source>
        <translation>在此开始</translation>
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
        <translation>质量恒定</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>立体声</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation>停止时间</translation>
    </message>
    <message>
        <source>Stop after %1 min</source>
        <translation>%1 分钟后停止</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>停止并退出</translation>
    </message>
    <message>
        <source>Stop and Restart</source>
        <translation>停止并重新启动</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>已停止。</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>正在停止…</translation>
    </message>
    <message>
        <source>Subtitle track %1, which this film does not have</source>
        <translation>此影片没有的字幕轨 %1</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Subtitles are missing in the finished file.</source>
        <translation>完成的文件缺少字幕。</translation>
    </message>
    <message>
        <source>Subtitles in the picture</source>
        <translation>画面中的字幕</translation>
    </message>
    <message>
        <source>Subtitles of %1: %2. Joining keeps none of later files.</source>
        <translation>%1 的字幕：%2。合并时不保留后续文件的字幕。</translation>
    </message>
    <message>
        <source>Subtitles that are pictures: %1. %2 cannot hold them; burn them in, or choose MKV.</source>
        <translation>图片字幕：%1。%2 无法包含；请将其嵌入画面，或选取 MKV。</translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation>字幕：%1</translation>
    </message>
    <message>
        <source>Subtitles: %1. %2 cannot hold them.</source>
        <translation>字幕：%1。%2 无法包含。</translation>
    </message>
    <message>
        <source>Subtitles: %1. They are burnt into the first of the joined files only.</source>
        <translation>字幕：%1。仅嵌入合并文件中的第一个。</translation>
    </message>
    <message>
        <source>Subtitles: %1. They cannot follow the changed times; burn them in to keep them.</source>
        <translation>字幕：%1。字幕无法跟随更改后的时间；请嵌入画面以保留。</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>建议</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation>5.1 环绕声</translation>
    </message>
    <message>
        <source>TS Video (H.264, AC-3)</source>
        <translation>TS 视频（H.264、AC-3）</translation>
    </message>
    <message>
        <source>TV (1080p)</source>
        <translation>电视（1080p）</translation>
    </message>
    <message>
        <source>TV (4K, HDR)</source>
        <translation>电视（4K、HDR）</translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation>平板电脑</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>That is the log itself. Choose another name.</source>
        <translation>这是日志本身。请选择其他名称。</translation>
    </message>
    <message>
        <source>The area to be recorded is outside the screen.</source>
        <translation>要录制的区域位于屏幕之外。</translation>
    </message>
    <message>
        <source>The attached file %1 of %2. Joining keeps none of later files.</source>
        <translation>%2 的附件 %1。合并时不保留后续文件的附件。</translation>
    </message>
    <message>
        <source>The attached file %1. %2 cannot hold it.</source>
        <translation>附加文件 %1。%2 无法包含。</translation>
    </message>
    <message>
        <source>The broadcast has not begun yet. Try again when it has.</source>
        <translation>直播尚未开始。请在开始后重试。</translation>
    </message>
    <message>
        <source>The camera could not be opened. Another program may be using it.</source>
        <translation>无法打开摄像头。可能有其他程序正在使用它。</translation>
    </message>
    <message>
        <source>The camera went away: its picture ends there.</source>
        <translation>摄像头已断开：其画面到此为止。</translation>
    </message>
    <message>
        <source>The chapters. %1 cannot hold them.</source>
        <translation>章节。%1 无法包含。</translation>
    </message>
    <message>
        <source>The chosen camera is missing: %1 is recorded instead.</source>
        <translation>所选摄像头不存在：改为录制 %1。</translation>
    </message>
    <message>
        <source>The chosen microphone is missing: the usual one is recorded instead.</source>
        <translation>所选麦克风不存在：改为录制默认麦克风。</translation>
    </message>
    <message>
        <source>The chosen titles become files of the format beside, as small as you like.</source>
        <translation>所选标题会转换为旁边所选格式的文件，大小可随意缩小。</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds.</source>
        <translation>电脑将在 %1 秒后关闭。</translation>
    </message>
    <message>
        <source>The conversion was stopped before the end.</source>
        <translation>转换在结束前被停止。</translation>
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
        <translation>转换器不再响应。</translation>
    </message>
    <message>
        <source>The converter is missing. Please install the application again.</source>
        <translation>找不到转换器。请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The copy could not be read back.</source>
        <translation>无法重新读取副本。</translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>无法存储副本：%1</translation>
    </message>
    <message>
        <source>The copy has %1 titles instead of %2.</source>
        <translation>副本有 %1 个标题，而不是 %2 个。</translation>
    </message>
    <message>
        <source>The copy was broken off. It goes on where it is when it is started again.</source>
        <translation>拷贝已中断。再次启动时会从中断处继续。</translation>
    </message>
    <message>
        <source>The copy was saved.</source>
        <translation>副本已存储。</translation>
    </message>
    <message>
        <source>The cover picture of %1. Joining keeps none of later files.</source>
        <translation>%1 的封面图片。合并时不保留后续文件的封面。</translation>
    </message>
    <message>
        <source>The cover picture. %1 cannot hold it.</source>
        <translation>封面图片。%1 无法包含。</translation>
    </message>
    <message>
        <source>The cover picture. It is lost when files are joined so.</source>
        <translation>封面图片。以此方式合并文件时会丢失。</translation>
    </message>
    <message>
        <source>The date of recording. %1 cannot hold it.</source>
        <translation>录制日期。%1 无法容纳。</translation>
    </message>
    <message>
        <source>The desktop did not let the screen be recorded.</source>
        <translation>桌面未允许录制屏幕。</translation>
    </message>
    <message>
        <source>The desktop lets the screen be recorded, but no picture of it arrives. Is PipeWire running?</source>
        <translation>桌面允许录制，但没有画面传来。PipeWire 在运行吗？</translation>
    </message>
    <message>
        <source>The desktop shares the picture when the recording begins. Shortcuts work only in Kestrel's windows then.</source>
        <translation>录制开始时由桌面共享画面。此时快捷键只在 Kestrel 的窗口中有效。</translation>
    </message>
    <message>
        <source>The desktop's portal did not answer.</source>
        <translation>桌面门户没有响应。</translation>
    </message>
    <message>
        <source>The desktop's portal does not let the screen be recorded: %1</source>
        <translation>桌面门户不允许录制屏幕：%1</translation>
    </message>
    <message>
        <source>The disc could not be read.</source>
        <translation>无法读取碟片。</translation>
    </message>
    <message>
        <source>The disc did not answer in time.</source>
        <translation>碟片未及时响应。</translation>
    </message>
    <message>
        <source>The disc has no such title, chapter or angle.</source>
        <translation>碟片没有该标题、章节或角度。</translation>
    </message>
    <message>
        <source>The disc image ends before its film does.</source>
        <translation>磁盘映像在影片结束前就已结束。</translation>
    </message>
    <message>
        <source>The disc is damaged: what it holds could not be read.</source>
        <translation>碟片已损坏：无法读取其内容。</translation>
    </message>
    <message>
        <source>The disc may not be read by this user.</source>
        <translation>此用户没有读取碟片的权限。</translation>
    </message>
    <message>
        <source>The disc tools could not be started. Please install the application again.</source>
        <translation>无法启动碟片工具。请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>无法读取或写入磁盘。</translation>
    </message>
    <message>
        <source>The disk for temporary files is full. Free some space and convert again.</source>
        <translation>存放临时文件的磁盘已满。请腾出空间后重新转换。</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays a Matroska file.</source>
        <translation>磁盘空间不足，无法完成录制：录制内容保留为 Matroska 文件。</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays in %1 Matroska files.</source>
        <translation>磁盘空间不足，无法完成录制：录制内容保留为 %1 个 Matroska 文件。</translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation>输出文件夹所在的磁盘无法存储这种大小的文件。</translation>
    </message>
    <message>
        <source>The display %1 could not be opened.</source>
        <translation>无法打开显示器 %1。</translation>
    </message>
    <message>
        <source>The download engine could not be updated.</source>
        <translation>无法更新下载引擎。</translation>
    </message>
    <message>
        <source>The download engine does not work. Please install the application again.</source>
        <translation>下载引擎无法工作。请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The download engine is missing. Please install the application again.</source>
        <translation>找不到下载引擎。请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The download engine is now of version %1. Try again.</source>
        <translation>下载引擎现在的版本是 %1。请重试。</translation>
    </message>
    <message>
        <source>The download failed. Try again later; the details tell what the engine said.</source>
        <translation>下载失败。请稍后重试；详细信息中包含引擎的消息。</translation>
    </message>
    <message>
        <source>The encoder for %1 is not installed.</source>
        <translation>未安装 %1 的编码器。</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>无法读取文件。</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>无法写入文件。</translation>
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
        <source>The film has come, but subtitles, cover or chapters could not be added to it.</source>
        <translation>影片已下载，但无法添加字幕、封面或章节。</translation>
    </message>
    <message>
        <source>The film is copy protected and is not downloaded. Watch it on its own site.</source>
        <translation>该影片受拷贝保护，不会下载。请在其网站上观看。</translation>
    </message>
    <message>
        <source>The film is no longer there. Look for it at another address.</source>
        <translation>该影片已不存在。请在其他地址查找。</translation>
    </message>
    <message>
        <source>The film is not there in the form that was wanted. Choose another resolution or format.</source>
        <translation>没有所需形式的影片。请选取其他分辨率或格式。</translation>
    </message>
    <message>
        <source>The film is private or for members only, so it cannot be downloaded. Look for it at another address.</source>
        <translation>该影片为私密或仅限会员，无法下载。请在其他地址查找。</translation>
    </message>
    <message>
        <source>The film of the chosen titles as it stands on the disc; no chapters, no names of languages.</source>
        <translation>所选标题的影片，与碟片上的一致；不含章节和语言名称。</translation>
    </message>
    <message>
        <source>The finer picture. %1 bit %2 becomes %3 bit %4.</source>
        <translation>更精细的画面。%1 位 %2 变为 %3 位 %4。</translation>
    </message>
    <message>
        <source>The finer sound: %1. %2 bit become %3 bit.</source>
        <translation>更精细的声音：%1。%2 位变为 %3 位。</translation>
    </message>
    <message>
        <source>The finished file could not be read back.</source>
        <translation>无法重新读取完成的文件。</translation>
    </message>
    <message>
        <source>The finished file has %1 bytes instead of %2.</source>
        <translation>完成的文件有 %1 字节，而不是 %2。</translation>
    </message>
    <message>
        <source>The finished file holds other tracks than were wanted: %1 instead of %2.</source>
        <translation>完成的文件包含的轨道与所需不符：%1，而不是 %2。</translation>
    </message>
    <message>
        <source>The finished file is %1 s long instead of %2 s.</source>
        <translation>完成的文件时长为 %1 秒，而不是 %2 秒。</translation>
    </message>
    <message>
        <source>The finished file is damaged: %1 faults.</source>
        <translation>完成的文件已损坏：%1 处错误。</translation>
    </message>
    <message>
        <source>The finished file is damaged: 1 fault.</source>
        <translation>完成的文件已损坏：1 处错误。</translation>
    </message>
    <message>
        <source>The finished file is larger than wanted.</source>
        <translation>完成的文件比所需的大。</translation>
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
        <translation>无法写入临时文件的文件夹。</translation>
    </message>
    <message>
        <source>The folder is too large: only some of its files were added.</source>
        <translation>文件夹过大：只添加了其中的部分文件。</translation>
    </message>
    <message>
        <source>The irregular times of the pictures. They come evenly, %1 a second.</source>
        <translation>不规则的画面时间。将均匀播放，每秒 %1 帧。</translation>
    </message>
    <message>
        <source>The languages of the tracks. %1 cannot hold them.</source>
        <translation>音轨的语言信息。%1 无法容纳。</translation>
    </message>
    <message>
        <source>The last %1 s have no picture.</source>
        <translation>最后 %1 秒没有画面。</translation>
    </message>
    <message>
        <source>The last %1 s have no sound: the sound server went away.</source>
        <translation>最后 %1 秒没有声音：声音服务器已消失。</translation>
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
        <source>The mastering data of the high dynamic range. %1 cannot hold them.</source>
        <translation>高动态范围的母版数据。%1 无法容纳。</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the address again.</source>
        <translation>无法读取此任务的选项。请重新添加地址。</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the file again.</source>
        <translation>无法读取此任务的选项。请重新添加文件。</translation>
    </message>
    <message>
        <source>The other angles of the film: %1</source>
        <translation>影片的其他角度：%1 个</translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation>无法写入输出。</translation>
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
        <translation>画面必须编码（%1）。</translation>
    </message>
    <message>
        <source>The picture is made smaller, %1 × %2, so that it fits the size.</source>
        <translation>画面已缩小为 %1 × %2，以符合大小要求。</translation>
    </message>
    <message>
        <source>The picture is missing: the site handed out the sound alone.</source>
        <translation>缺少画面：网站只提供了声音。</translation>
    </message>
    <message>
        <source>The picture of the finished file does not stand upright.</source>
        <translation>完成的文件画面方向不正。</translation>
    </message>
    <message>
        <source>The pieces to be kept lie behind the end of the file.</source>
        <translation>要保留的片段位于文件结尾之后。</translation>
    </message>
    <message>
        <source>The place of recording. %1 cannot hold it.</source>
        <translation>录制地点。%1 无法容纳。</translation>
    </message>
    <message>
        <source>The player is missing. Please install the application again.</source>
        <translation>找不到播放器。请重新安装应用程序。</translation>
    </message>
    <message>
        <source>The program dvdauthor is missing. Please install it.</source>
        <translation>缺少程序 dvdauthor。请安装。</translation>
    </message>
    <message>
        <source>The proxy refuses the connection. Check its address in the settings.</source>
        <translation>代理拒绝连接。请在设置中检查其地址。</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays a Matroska file.</source>
        <translation>无法完成录制：录制内容保留为 Matroska 文件。</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays in %1 Matroska files.</source>
        <translation>无法完成录制：录制内容保留为 %1 个 Matroska 文件。</translation>
    </message>
    <message>
        <source>The recording ended because the disk is nearly full.</source>
        <translation>磁盘快满了，录制已结束。</translation>
    </message>
    <message>
        <source>The recording that was to begin at %1 was missed.</source>
        <translation>错过了原定于 %1 开始的录制。</translation>
    </message>
    <message>
        <source>The recording was interrupted.</source>
        <translation>录制已中断。</translation>
    </message>
    <message>
        <source>The same screen or window as last time</source>
        <translation>与上次相同的屏幕或窗口</translation>
    </message>
    <message>
        <source>The screen of a Wayland session can be recorded where the desktop has a portal for it, which is missing here. Install xdg-desktop-portal for your desktop, or log in to a session of X11 (Xorg).</source>
        <translation>只有桌面带有相应门户时才能录制 Wayland 会话的屏幕，此处没有。请为桌面安装 xdg-desktop-portal，或登录 X11 (Xorg) 会话。</translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation>屏幕录制仅支持 Mac OS Lion 及更高版本。</translation>
    </message>
    <message>
        <source>The server broke off or could not answer. What has come is kept; try again later.</source>
        <translation>服务器中断了连接或无法响应。已收到的内容会保留；请稍后重试。</translation>
    </message>
    <message>
        <source>The server broke off, next attempt in %1 s</source>
        <translation>服务器中断了连接，%1 秒后重试</translation>
    </message>
    <message>
        <source>The server has sent only part of the film.</source>
        <translation>服务器只发送了影片的一部分。</translation>
    </message>
    <message>
        <source>The server refuses to hand out the film. Try again later, or open the page in a browser to see why.</source>
        <translation>服务器拒绝提供该影片。请稍后重试，或在浏览器中打开该页面以了解原因。</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in %1 minutes.</source>
        <translation>服务器暂时不再接受请求。请在 %1 分钟后重试。</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in a while.</source>
        <translation>服务器暂时不再接受请求。请稍等片刻后重试。</translation>
    </message>
    <message>
        <source>The server's certificate is not valid, so it may not be who it says it is. Nothing was downloaded; check the address and this computer's date.</source>
        <translation>服务器的证书无效，其身份可能不实。未下载任何内容；请检查地址和本机日期。</translation>
    </message>
    <message>
        <source>The settings' folder</source>
        <translation>设置中的文件夹</translation>
    </message>
    <message>
        <source>The site does not show this film in your country. A proxy of another country can be set in the settings.</source>
        <translation>该网站不在您所在的国家或地区提供此影片。可以在设置中设定其他国家或地区的代理。</translation>
    </message>
    <message>
        <source>The site has changed and the download engine does not know it any more. Update the engine and try again.</source>
        <translation>该网站已更改，下载引擎不再认识它。请更新引擎，然后重试。</translation>
    </message>
    <message>
        <source>The site shows this film only to those who have logged in, which Kestrel does not do. Look for it at another address.</source>
        <translation>网站只向已登录者显示该影片，而 Kestrel 不会登录。请在其他地址查找。</translation>
    </message>
    <message>
        <source>The site wants to know the viewer's age first, which it learns only from a log-in. Look for it at another address.</source>
        <translation>网站要先确认观众年龄，这只能通过登录得知。请在其他地址查找。</translation>
    </message>
    <message>
        <source>The snapshot could not be written.</source>
        <translation>无法写入快照。</translation>
    </message>
    <message>
        <source>The sound could not be recorded. Is the sound server running?</source>
        <translation>无法录制声音。声音服务器是否正在运行？</translation>
    </message>
    <message>
        <source>The sound has to be encoded (%1).</source>
        <translation>声音必须编码（%1）。</translation>
    </message>
    <message>
        <source>The sound is missing since the sound server went away.</source>
        <translation>声音服务器停止后缺少声音。</translation>
    </message>
    <message>
        <source>The sound is missing: the site handed out the picture alone.</source>
        <translation>缺少声音：网站只提供了画面。</translation>
    </message>
    <message>
        <source>The sound server was away for a while: that part has no sound.</source>
        <translation>声音服务器中断了一段时间：该部分没有声音。</translation>
    </message>
    <message>
        <source>The sound. %1 holds only pictures.</source>
        <translation>声音。%1 只能包含画面。</translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation>最强大的视频处理软件：转换视频、音频和 DVD；编辑、转码、压缩和调整视频文件；下载在线媒体内容；录制屏幕和摄像头。</translation>
    </message>
    <message>
        <source>The subtitle file %1 cannot be read.</source>
        <translation>无法读取字幕文件 %1。</translation>
    </message>
    <message>
        <source>The subtitle file %1 is too large for a text.</source>
        <translation>字幕文件 %1 作为文本过大。</translation>
    </message>
    <message>
        <source>The subtitles are missing: the site did not hand them out.</source>
        <translation>缺少字幕：网站没有提供。</translation>
    </message>
    <message>
        <source>The subtitles that were to be drawn into the picture are not in this film.</source>
        <translation>要画入画面的字幕不在此影片中。</translation>
    </message>
    <message>
        <source>The title. %1 cannot hold it.</source>
        <translation>标题。%1 无法容纳。</translation>
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
        <source>The transparency of the picture. %1 cannot hold it.</source>
        <translation>画面的透明度。%1 无法容纳。</translation>
    </message>
    <message>
        <source>The whole disc, sector for sector, in one file that plays like the disc.</source>
        <translation>逐扇区将整张碟片存为一个文件，可像碟片一样播放。</translation>
    </message>
    <message>
        <source>The whole film is kept.</source>
        <translation>将保留整个影片。</translation>
    </message>
    <message>
        <source>The window is too small to be recorded.</source>
        <translation>窗口太小，无法录制。</translation>
    </message>
    <message>
        <source>The window was closed or minimised.</source>
        <translation>窗口已关闭或最小化。</translation>
    </message>
    <message>
        <source>There are no black bars.</source>
        <translation>没有黑边。</translation>
    </message>
    <message>
        <source>There are several films at this address. Add it again to choose among them.</source>
        <translation>此地址有多个影片。请重新添加以从中选取。</translation>
    </message>
    <message>
        <source>There are too many films at this address to look at them all. Add the address of one of them.</source>
        <translation>此地址的影片过多，无法全部查看。请添加其中一个影片的地址。</translation>
    </message>
    <message>
        <source>There are too many presets. Delete some first.</source>
        <translation>预设过多。请先删除一些。</translation>
    </message>
    <message>
        <source>There is no connection to the network. Check it and try again.</source>
        <translation>没有网络连接。请检查连接，然后重试。</translation>
    </message>
    <message>
        <source>There is no disc. Put it in, or choose an image or a folder, and try again.</source>
        <translation>没有碟片。请插入碟片，或选取映像或文件夹，然后重试。</translation>
    </message>
    <message>
        <source>There is no display whose picture could be recorded.</source>
        <translation>没有可录制画面的显示器。</translation>
    </message>
    <message>
        <source>There is no film at this address. Look for the page that plays it.</source>
        <translation>此地址没有影片。请查找播放该影片的页面。</translation>
    </message>
    <message>
        <source>There is no log yet</source>
        <translation>尚无日志</translation>
    </message>
    <message>
        <source>There is no newer download engine.</source>
        <translation>没有更新的下载引擎。</translation>
    </message>
    <message>
        <source>There is no picture at this place.</source>
        <translation>此处没有画面。</translation>
    </message>
    <message>
        <source>There is no screen "%1". There is: %2.</source>
        <translation>没有屏幕“%1”。可用的屏幕：%2。</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation>磁盘空间不足。请释放一些空间后再次转换。</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and try again; what has come is kept.</source>
        <translation>磁盘空间不足。请释放一些空间后重试；已收到的内容会保留。</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>此文件不存在。</translation>
    </message>
    <message>
        <source>There is no video or sound file in it.</source>
        <translation>其中没有视频或声音文件。</translation>
    </message>
    <message>
        <source>There is no window %1 to be seen.</source>
        <translation>看不到窗口 %1。</translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation>内存不足，无法转换此文件。</translation>
    </message>
    <message>
        <source>There is not enough memory to read this disc.</source>
        <translation>内存不足，无法读取此碟片。</translation>
    </message>
    <message>
        <source>There is not enough space: %1 are needed and %2 are free. Free some, or choose another folder in the settings.</source>
        <translation>空间不足：需要 %1，可用 %2。请释放一些空间，或在设置中选取其他文件夹。</translation>
    </message>
    <message>
        <source>There is nothing to convert.</source>
        <translation>没有可转换的内容。</translation>
    </message>
    <message>
        <source>There is too little space on the disk to record.</source>
        <translation>磁盘空间太小，无法录制。</translation>
    </message>
    <message>
        <source>They become MP4, MKV, WebM or MP3, as you choose.</source>
        <translation>可按您的选择转换为 MP4、MKV、WebM 或 MP3。</translation>
    </message>
    <message>
        <source>This address is of no site that Kestrel knows. Check it, or look for the page that plays the film.</source>
        <translation>此地址不属于 Kestrel 认识的网站。请检查地址，或查找播放该影片的页面。</translation>
    </message>
    <message>
        <source>This choice is kept until you quit.</source>
        <translation>此选择会保留到您退出为止。</translation>
    </message>
    <message>
        <source>This computer has no hardware encoder for H.264 video.</source>
        <translation>此电脑没有 H.264 视频硬件编码器。</translation>
    </message>
    <message>
        <source>This disc is being copied to this folder already.</source>
        <translation>此碟片已在拷贝到此文件夹。</translation>
    </message>
    <message>
        <source>This disc is copy-protected and cannot be read.</source>
        <translation>此碟片受拷贝保护，无法读取。</translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation>无法读取此文件。</translation>
    </message>
    <message>
        <source>This file has neither picture nor sound to convert.</source>
        <translation>此文件没有可转换的画面和声音。</translation>
    </message>
    <message>
        <source>This file has no picture to convert.</source>
        <translation>此文件没有可转换的画面。</translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation>此文件没有可转换的声音。</translation>
    </message>
    <message>
        <source>This file holds no presets of Kestrel.</source>
        <translation>此文件不包含 Kestrel 的预设。</translation>
    </message>
    <message>
        <source>This file is damaged, or it holds neither video nor sound.</source>
        <translation>此文件已损坏，或不包含视频和声音。</translation>
    </message>
    <message>
        <source>This film has no sound. Choose a format with a picture for it.</source>
        <translation>此影片没有声音。请为其选取带画面的格式。</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>无法写入此文件夹。</translation>
    </message>
    <message>
        <source>This is another disc, which is also called %1.</source>
        <translation>这是另一张碟片，名称也是 %1。</translation>
    </message>
    <message>
        <source>This is another disc: %1 instead of %2.</source>
        <translation>这是另一张碟片：%1，而不是 %2。</translation>
    </message>
    <message>
        <source>This is no address that can be downloaded from.</source>
        <translation>无法从此地址下载。</translation>
    </message>
    <message>
        <source>This is no preset.</source>
        <translation>这不是预设。</translation>
    </message>
    <message>
        <source>This is no text file</source>
        <translation>这不是文本文件</translation>
    </message>
    <message>
        <source>This is no video DVD: there is no VIDEO_TS on it.</source>
        <translation>这不是视频 DVD：其中没有 VIDEO_TS。</translation>
    </message>
    <message>
        <source>This is no video or sound file.</source>
        <translation>这不是视频或声音文件。</translation>
    </message>
    <message>
        <source>This preset has no name.</source>
        <translation>此预设没有名称。</translation>
    </message>
    <message>
        <source>This preset keeps neither picture nor sound.</source>
        <translation>此预设既不保留画面，也不保留声音。</translation>
    </message>
    <message>
        <source>This preset was made by a newer version of Kestrel.</source>
        <translation>此预设由更新版本的 Kestrel 创建。</translation>
    </message>
    <message>
        <source>This title has no sound to keep.</source>
        <translation>此标题没有可保留的声音。</translation>
    </message>
    <message>
        <source>Time at which the recording begins</source>
        <translation>录制开始的时间</translation>
    </message>
    <message>
        <source>Time line</source>
        <translation>时间线</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Title %1</source>
        <translation>标题 %1</translation>
    </message>
    <message>
        <source>Title %1 of the copy has %2 chapters instead of %3.</source>
        <translation>副本的标题 %1 有 %2 个章节，而不是 %3 个。</translation>
    </message>
    <message>
        <source>Title %1 of the copy has other tracks than the disc.</source>
        <translation>副本的标题 %1 的轨道与碟片不同。</translation>
    </message>
    <message>
        <source>Title %1 of the copy is %2 s long instead of %3 s.</source>
        <translation>副本的标题 %1 时长为 %2 秒，而不是 %3 秒。</translation>
    </message>
    <message>
        <source>Title %1, the main film</source>
        <translation>标题 %1，正片</translation>
    </message>
    <message>
        <source>Titles as MPEG-2 files</source>
        <translation>将标题存为 MPEG-2 文件</translation>
    </message>
    <message>
        <source>Titles of the disc</source>
        <translation>碟片的标题</translation>
    </message>
    <message>
        <source>Titles, unchanged (MKV)</source>
        <translation>标题，保持原样（MKV）</translation>
    </message>
    <message>
        <source>To chapter</source>
        <translation>结束章节</translation>
    </message>
    <message>
        <source>Too many lines have this text: the newest %1 are shown.</source>
        <translation>包含此文本的行过多：显示最新的 %1 行。</translation>
    </message>
    <message>
        <source>Too many requests: the server is asked again in %1 s</source>
        <translation>请求过多：%1 秒后再次询问服务器</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>轨道 %1</translation>
    </message>
    <message>
        <source>Transcoder</source>
        <translation>转码器</translation>
    </message>
    <message>
        <source>Trial</source>
        <translation>试转换</translation>
    </message>
    <message>
        <source>Try 10 Seconds</source>
        <translation>试转换 10 秒</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Turned into standard</source>
        <translation>转换为标准</translation>
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
        <translation>未知语言</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>不限</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>直到手动停止</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>Update Download Engine</source>
        <translation>更新下载引擎</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>上下颠倒</translation>
    </message>
    <message>
        <source>Use This Area</source>
        <translation>使用此区域</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>使用代理</translation>
    </message>
    <message>
        <source>Use the graphics hardware</source>
        <translation>使用图形硬件</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>常用</translation>
    </message>
    <message>
        <source>Usual microphone</source>
        <translation>默认麦克风</translation>
    </message>
    <message>
        <source>Version: %@</source>
        <translation>版本：%@</translation>
    </message>
    <message>
        <source>Very Small MP4 Video (480p)</source>
        <translation>超小型 MP4 视频（480p）</translation>
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
        <translation>视频或声音文件</translation>
    </message>
    <message>
        <source>Videos and music from the web are saved in the form that you choose.</source>
        <translation>网络上的视频和音乐会以您选取的形式存储。</translation>
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
        <translation>音量</translation>
    </message>
    <message>
        <source>WAV Audio</source>
        <translation>WAV 音频</translation>
    </message>
    <message>
        <source>WMA Audio</source>
        <translation>WMA 音频</translation>
    </message>
    <message>
        <source>WMV Video</source>
        <translation>WMV 视频</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>正在等待网络连接</translation>
    </message>
    <message>
        <source>Waiting for space on the disk: %1 needed</source>
        <translation>正在等待磁盘空间：需要 %1</translation>
    </message>
    <message>
        <source>Waiting for the network, next attempt in %1 s</source>
        <translation>正在等待网络，%1 秒后重试</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>正在等待服务器…</translation>
    </message>
    <message>
        <source>Waiting for your choice in the desktop's dialog…</source>
        <translation>正在等待您在桌面对话框中选择…</translation>
    </message>
    <message>
        <source>Waiting: %1 downloads from this server are under way</source>
        <translation>正在等待：正从此服务器下载 %1 个项目</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>水印</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>网页</translation>
    </message>
    <message>
        <source>WebM Video (AV1, Opus)</source>
        <translation>WebM 视频（AV1、Opus）</translation>
    </message>
    <message>
        <source>WebM Video (VP8, Vorbis)</source>
        <translation>WebM 视频（VP8、Vorbis）</translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation>WebM 视频（VP9、Opus）</translation>
    </message>
    <message>
        <source>What has been recorded will be deleted.</source>
        <translation>已录制的内容将被删除。</translation>
    </message>
    <message>
        <source>What has come cannot be moved to that folder, so it stays where it is.</source>
        <translation>已收到的内容无法移到该文件夹，因此保留在原处。</translation>
    </message>
    <message>
        <source>What the server sent is no film. Open the address in a browser to see what it is.</source>
        <translation>服务器发送的内容不是影片。请在浏览器中打开该地址以查看其内容。</translation>
    </message>
    <message>
        <source>What the site answered could not be understood. Update the download engine and try again.</source>
        <translation>无法理解网站的响应。请更新下载引擎，然后重试。</translation>
    </message>
    <message>
        <source>What this preset makes cannot be fitted to a size.</source>
        <translation>此预设生成的内容无法适应指定大小。</translation>
    </message>
    <message>
        <source>What to record</source>
        <translation>录制内容</translation>
    </message>
    <message>
        <source>What you stop now is offered to you again at the next start.</source>
        <translation>您现在停止的任务会在下次启动时再次提供。</translation>
    </message>
    <message>
        <source>Where it is needed</source>
        <translation>需要时</translation>
    </message>
    <message>
        <source>Whole Picture</source>
        <translation>整个画面</translation>
    </message>
    <message>
        <source>Width of the picture</source>
        <translation>图片宽度</translation>
    </message>
    <message>
        <source>Will not be accepted. Example: http://proxy.example.com or socks5://10.0.0.1</source>
        <translation>不会被接受。示例：http://proxy.example.com 或 socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Window by a click…</source>
        <translation>通过点按选择窗口…</translation>
    </message>
    <message>
        <source>Window: %1</source>
        <translation>窗口：%1</translation>
    </message>
    <message>
        <source>Without encoding, what starts at %1 begins at %2.</source>
        <translation>不重新编码时，从 %1 开始的部分实际从 %2 开始。</translation>
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
        <translation>目前无法存储您的设置。Kestrel 会在退出时重试。</translation>
    </message>
    <message>
        <source>Your settings could not be saved when Kestrel was last quit.</source>
        <translation>上次退出 Kestrel 时无法存储您的设置。</translation>
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
        <translation>另一评论音轨</translation>
    </message>
    <message>
        <source>closetip</source>
        <translation>关闭提示</translation>
    </message>
    <message>
        <source>commentary</source>
        <translation>评论音轨</translation>
    </message>
    <message>
        <source>for children</source>
        <translation>儿童版</translation>
    </message>
    <message>
        <source>for the hard of hearing</source>
        <translation>适合听障人士</translation>
    </message>
    <message>
        <source>for the visually impaired</source>
        <translation>适合视障人士</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>强制</translation>
    </message>
    <message>
        <source>kept as it is</source>
        <translation>保持原样</translation>
    </message>
    <message>
        <source>large</source>
        <translation>大字</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>剩余不到 1 分钟</translation>
    </message>
    <message>
        <source>same as title %1</source>
        <translation>与标题 %1 相同</translation>
    </message>
    <message>
        <source>showtip</source>
        <translation>显示提示</translation>
    </message>
    <message>
        <source>{name}, {preset}, {folder} and {date} are filled in.</source>
        <translation>{name}、{preset}、{folder} 和 {date} 会替换为实际内容。</translation>
    </message>
    <message>
        <source>“%1” could not be played.</source>
        <translation>无法播放“%1”。</translation>
    </message>
</context>
</TS>
