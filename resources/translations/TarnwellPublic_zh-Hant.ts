<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_Hant" sourcelanguage="en">
<context>
    <name>TarnwellPublic</name>
    <message>
        <source>%1 (%2 threads)</source>
        <translation>%1（%2 個執行緒）</translation>
    </message>
    <message>
        <source>%1 (sound only)</source>
        <translation>%1（僅聲音）</translation>
    </message>
    <message>
        <source>%1 - Title %2</source>
        <translation>%1 - 標題 %2</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 MB are too few for a file of this length.</source>
        <translation>對於此長度的檔案，%1 MB 太小。</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 及另外 %2 個</translation>
    </message>
    <message>
        <source>%1 angles</source>
        <translation>%1 個角度</translation>
    </message>
    <message>
        <source>%1 chapters</source>
        <translation>%1 個章節</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>%1 dropped</source>
        <translation>遺失 %1 格</translation>
    </message>
    <message>
        <source>%1 files selected</source>
        <translation>已選取 %1 個檔案</translation>
    </message>
    <message>
        <source>%1 has fewer tracks of sound than other files: what it lacks is silent.</source>
        <translation>%1 的音軌少於其他檔案：缺少的部分為靜音。</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 of %2 pictures came too late: the one before stands for them.</source>
        <translation>%2 格中有 %1 格來得太遲：由前一格代替。</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, %3 faults</source>
        <translation>%2 秒中可讀取 %1 秒，%3 處錯誤</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, 1 fault</source>
        <translation>%2 秒中可讀取 %1 秒，1 處錯誤</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read.</source>
        <translation>%2 秒中可讀取 %1 秒。</translation>
    </message>
    <message>
        <source>%1 pictures a second</source>
        <translation>每秒 %1 格</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 s could be read, %2 faults</source>
        <translation>可讀取 %1 秒，%2 處錯誤</translation>
    </message>
    <message>
        <source>%1 s could be read, 1 fault</source>
        <translation>可讀取 %1 秒，1 處錯誤</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the copy.</source>
        <translation>光碟的 %1 個磁區無法讀取，在副本中為空白。</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the image.</source>
        <translation>光碟的 %1 個磁區無法讀取，在映像檔中為空白。</translation>
    </message>
    <message>
        <source>%1 sectors of the film could not be read.</source>
        <translation>影片的 %1 個磁區無法讀取。</translation>
    </message>
    <message>
        <source>%1 titles</source>
        <translation>%1 個標題</translation>
    </message>
    <message>
        <source>%1 to go</source>
        <translation>還剩 %1 個</translation>
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
        <translation>%@ %@ 是目前可用的最新版本。</translation>
    </message>
    <message>
        <source>%@ %@ is now available -- you're running %@. Would you like to update now?</source>
        <translation>%@ %@ 現已推出，您目前使用的是 %@。要現在更新嗎？</translation>
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
        <translation>為每個合併的檔案建立章節</translation>
    </message>
    <message>
        <source>A disc of the chosen title alone, without menus, that players start at once.</source>
        <translation>僅含所選標題的光碟，沒有選單，播放機會立即開始播放。</translation>
    </message>
    <message>
        <source>A file of the kind %1 cannot hold what this preset asks for: %2.</source>
        <translation>%1 類型的檔案無法包含此預設組合所需的內容：%2。</translation>
    </message>
    <message>
        <source>A folder has no sectors to copy. Choose another way.</source>
        <translation>檔案夾沒有可拷貝的磁區。請選擇其他方式。</translation>
    </message>
    <message>
        <source>A new version of %@ is available!</source>
        <translation>%@ 有新版本可供使用</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>預設組合需要名稱。</translation>
    </message>
    <message>
        <source>A recording is to begin at %1.</source>
        <translation>錄製將於 %1 開始。</translation>
    </message>
    <message>
        <source>AC-3 Audio</source>
        <translation>AC-3 音訊</translation>
    </message>
    <message>
        <source>AIFF Audio</source>
        <translation>AIFF 音訊</translation>
    </message>
    <message>
        <source>APNG Animation</source>
        <translation>APNG 動畫</translation>
    </message>
    <message>
        <source>AVI Video (MPEG-4, MP3)</source>
        <translation>AVI 影片（MPEG-4、MP3）</translation>
    </message>
    <message>
        <source>AVI Video (Motion JPEG, PCM)</source>
        <translation>AVI 影片（Motion JPEG、PCM）</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>About %1.</source>
        <translation>約 %1。</translation>
    </message>
    <message>
        <source>About %@</source>
        <translation>關於 %@</translation>
    </message>
    <message>
        <source>About Kestrel</source>
        <translation>關於 Kestrel</translation>
    </message>
    <message>
        <source>About Our Company Tarnwell Software, Inc.</source>
        <translation>關於我們的公司 Tarnwell Software, Inc.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>加入</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>加入 %1 個</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>加入檔案…</translation>
    </message>
    <message>
        <source>Add Subtitle File…</source>
        <translation>加入字幕檔案…</translation>
    </message>
    <message>
        <source>Adding the subtitles…</source>
        <translation>正在加入字幕…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>位址</translation>
    </message>
    <message>
        <source>Address of a video or a page, such as https://…</source>
        <translation>影片或網頁的位址，例如 https://…</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>目標</translation>
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
        <translation>所有檔案</translation>
    </message>
    <message>
        <source>All files of the disc in a folder, with its menus.</source>
        <translation>將光碟的所有檔案連同選單存入檔案夾。</translation>
    </message>
    <message>
        <source>All jobs are done.</source>
        <translation>所有工作皆已完成。</translation>
    </message>
    <message>
        <source>All jobs have ended.</source>
        <translation>所有工作皆已結束。</translation>
    </message>
    <message>
        <source>All languages</source>
        <translation>所有語言</translation>
    </message>
    <message>
        <source>All sound tracks of the chosen titles with their chapters.</source>
        <translation>所選標題的所有音軌及其章節。</translation>
    </message>
    <message>
        <source>Allow Many From One Server</source>
        <translation>允許從同一伺服器下載多個</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>已在列表中：%1</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>永遠</translation>
    </message>
    <message>
        <source>Always kept</source>
        <translation>永遠保留</translation>
    </message>
    <message>
        <source>Always, twice the pictures</source>
        <translation>永遠，畫格數加倍</translation>
    </message>
    <message>
        <source>An address is for example http://proxy.example.com or socks5://10.0.0.1.</source>
        <translation>位址範例：http://proxy.example.com 或 socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation>其他檔案夾…</translation>
    </message>
    <message>
        <source>App Log</source>
        <translation>應用程式記錄</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>封存</translation>
    </message>
    <message>
        <source>Are you sure you want to reset profile?</source>
        <translation>確定要重設設定檔嗎？</translation>
    </message>
    <message>
        <source>Are you sure you want to restart the application now?</source>
        <translation>確定要現在重新啟動應用程式嗎？</translation>
    </message>
    <message>
        <source>Artist and album. %1 cannot hold them.</source>
        <translation>藝人和專輯。%1 無法容納。</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>依格式設定</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>與來源相同</translation>
    </message>
    <message>
        <source>Asking the site…</source>
        <translation>正在詢問網站…</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Backup DVDs in 6 modes, rip a full DVD to 180+ formats to play on Mac &amp; mobiles, store on hard drive, or enjoy on TV, etc. Rip a full DVD in 5 minutes!</source>
        <translation>以 6 種模式備份 DVD，將整張 DVD 轉換為 180 多種格式，在 Mac 和行動裝置上播放、儲存到硬碟或在電視上觀賞等。5 分鐘即可轉換整張 DVD！</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Begin at a time…</source>
        <translation>在指定時間開始…</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <translation>立即開始</translation>
    </message>
    <message>
        <source>Beside the source</source>
        <translation>來源所在位置</translation>
    </message>
    <message>
        <source>Best quality</source>
        <translation>最佳品質</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>位元率</translation>
    </message>
    <message>
        <source>Bit rate of a track</source>
        <translation>軌道位元率</translation>
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
        <translation>建置日期：%@</translation>
    </message>
    <message>
        <source>Burnt into the picture</source>
        <translation>嵌入畫面</translation>
    </message>
    <message>
        <source>CAF Audio (ALAC)</source>
        <translation>CAF 音訊（ALAC）</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>攝影機 %1</translation>
    </message>
    <message>
        <source>Camera %1 in the picture</source>
        <translation>畫面中的攝影機 %1</translation>
    </message>
    <message>
        <source>Camera in the picture</source>
        <translation>畫面中的攝影機</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Cancel the Trial</source>
        <translation>取消試轉換</translation>
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
        <translation>無法使用</translation>
    </message>
    <message>
        <source>Change video &amp; audio formats, resize video files, edit 4K, 5K, 8K videos, like cut, merge, split, rotate, subtitle, watermark, etc. Experience No.1 fast hardware-accelerated processing.</source>
        <translation>轉換影片和音訊格式、調整影片檔大小，並編輯 4K、5K、8K 影片：剪輯、合併、分割、旋轉、加入字幕和浮水印等。體驗速度第一的硬體加速處理。</translation>
    </message>
    <message>
        <source>Changes to the languages take effect upon relaunch.</source>
        <translation>語言變更會在重新啟動後生效。</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>聲道</translation>
    </message>
    <message>
        <source>Channels of the sound: %1. %2 become %3.</source>
        <translation>聲道：%1。%2 變為 %3。</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>章節 %1</translation>
    </message>
    <message>
        <source>Chapters are missing in the finished file.</source>
        <translation>完成的檔案缺少章節。</translation>
    </message>
    <message>
        <source>Chapters, languages and the colours of subtitles, which MPEG-2 files cannot hold</source>
        <translation>章節、語言和字幕顏色（MPEG-2 檔案無法包含）</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>檢查更新項目…</translation>
    </message>
    <message>
        <source>Checking for updates.. </source>
        <translation>正在檢查更新項目… </translation>
    </message>
    <message>
        <source>Checking the copy…</source>
        <translation>正在檢查副本…</translation>
    </message>
    <message>
        <source>Checking the finished file…</source>
        <translation>正在檢查完成的檔案…</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>選擇</translation>
    </message>
    <message>
        <source>Choose Films</source>
        <translation>選擇影片</translation>
    </message>
    <message>
        <source>Choose Films…</source>
        <translation>選擇影片…</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>選擇資料夾</translation>
    </message>
    <message>
        <source>Choose a Window</source>
        <translation>選擇視窗</translation>
    </message>
    <message>
        <source>Choose above what is recorded, then press Record.</source>
        <translation>在上方選擇要錄製的內容，然後按一下「錄製」。</translation>
    </message>
    <message>
        <source>Choose an Area</source>
        <translation>選擇區域</translation>
    </message>
    <message>
        <source>Choose another one, or allow yourself to write to it: %1</source>
        <translation>請選擇其他資料夾，或允許寫入：%1</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選擇…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Click the window that is to be recorded</source>
        <translation>按一下要錄製的視窗</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>順時針</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Computer and microphone</source>
        <translation>電腦和麥克風</translation>
    </message>
    <message>
        <source>Computer and microphone, a track each</source>
        <translation>電腦和麥克風，各佔一條音軌</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>正在連線…</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>對比</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>轉換</translation>
    </message>
    <message>
        <source>Convert &amp; Backup DVD</source>
        <translation>轉換與備份 DVD</translation>
    </message>
    <message>
        <source>Convert &amp; Process Video</source>
        <translation>轉換與處理影片</translation>
    </message>
    <message>
        <source>Converting ten seconds: %1 %</source>
        <translation>正在轉換十秒：%1%</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>正在轉換…</translation>
    </message>
    <message>
        <source>Converting… %1 %</source>
        <translation>正在轉換… %1 %</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>已拷貝。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>拷貝</translation>
    </message>
    <message>
        <source>Copyright © 2019-%@ Tarnwell Software, Inc. All rights reserved.</source>
        <translation>版權所有 © 2019-%@ Tarnwell Software, Inc. 保留一切權利。</translation>
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
        <translation>從三開始倒數</translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation>逆時針</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>封面</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪下</translation>
    </message>
    <message>
        <source>Cut and Edit</source>
        <translation>剪輯與編輯</translation>
    </message>
    <message>
        <source>Cut and Edit…</source>
        <translation>剪輯與編輯…</translation>
    </message>
    <message>
        <source>Cut exactly (encodes)</source>
        <translation>精確剪輯（重新編碼）</translation>
    </message>
    <message>
        <source>Cut off bottom</source>
        <translation>裁切底部</translation>
    </message>
    <message>
        <source>Cut off left</source>
        <translation>裁切左側</translation>
    </message>
    <message>
        <source>Cut off right</source>
        <translation>裁切右側</translation>
    </message>
    <message>
        <source>Cut off top</source>
        <translation>裁切頂部</translation>
    </message>
    <message>
        <source>Cut or Convert…</source>
        <translation>剪輯或轉換…</translation>
    </message>
    <message>
        <source>Cut without encoding: it begins at the key picture at or before %1 s.</source>
        <translation>不重新編碼的剪輯：從 %1 秒處或之前的關鍵影格開始。</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>剪輯</translation>
    </message>
    <message>
        <source>DTS</source>
        <translation>DTS</translation>
    </message>
    <message>
        <source>DV Video</source>
        <translation>DV 影片</translation>
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
        <translation>DVD 擷取</translation>
    </message>
    <message>
        <source>Data of the camera, such as time code.</source>
        <translation>攝影機的資料，例如時間碼。</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>預設</translation>
    </message>
    <message>
        <source>Deinterlacing</source>
        <translation>去交錯</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細資訊</translation>
    </message>
    <message>
        <source>Details…</source>
        <translation>詳細資訊…</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>裝置</translation>
    </message>
    <message>
        <source>Disc Player (VOB)</source>
        <translation>光碟播放機（VOB）</translation>
    </message>
    <message>
        <source>Disc folder with menus</source>
        <translation>含選單的光碟檔案夾</translation>
    </message>
    <message>
        <source>Disc image (ISO)</source>
        <translation>光碟映像檔（ISO）</translation>
    </message>
    <message>
        <source>Disc images</source>
        <translation>光碟映像檔</translation>
    </message>
    <message>
        <source>Discard Recording</source>
        <translation>捨棄錄製</translation>
    </message>
    <message>
        <source>Dolby Digital</source>
        <translation>Dolby Digital</translation>
    </message>
    <message>
        <source>Don't Record</source>
        <translation>不錄製</translation>
    </message>
    <message>
        <source>Don't Shut Down</source>
        <translation>不關機</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Done with problems</source>
        <translation>已完成但有問題</translation>
    </message>
    <message>
        <source>Done with problems: %1</source>
        <translation>已完成但有問題：%1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>已完成：%1</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下載</translation>
    </message>
    <message>
        <source>Download Now</source>
        <translation>立即下載</translation>
    </message>
    <message>
        <source>Download Video</source>
        <translation>下載影片</translation>
    </message>
    <message>
        <source>Download format</source>
        <translation>下載格式</translation>
    </message>
    <message>
        <source>Download resolution</source>
        <translation>下載解析度</translation>
    </message>
    <message>
        <source>Download ultra-high quality online streaming videos and music from YouTube Facebook and 1000+ sites. Convert downloaded files to MP4, MP3, etc.</source>
        <translation>從 YouTube、Facebook 及 1000 多個網站下載超高品質的線上影片和音樂。將下載的檔案轉換為 MP4、MP3 等格式。</translation>
    </message>
    <message>
        <source>Downloader</source>
        <translation>下載</translation>
    </message>
    <message>
        <source>Downloads at the same time</source>
        <translation>同時下載數</translation>
    </message>
    <message>
        <source>Downloads that are running keep the limit that they began with.</source>
        <translation>正在進行的下載會保持其開始時的限制。</translation>
    </message>
    <message>
        <source>Draw an area, then press Return</source>
        <translation>拖移出一個區域，然後按 Return 鍵</translation>
    </message>
    <message>
        <source>Drawn into the film, for players that show none themselves.</source>
        <translation>畫入影片，供自身不顯示字幕的播放器使用。</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>光碟機</translation>
    </message>
    <message>
        <source>Drop videos or folders anywhere in this window, choose a format below and press Convert. The results go to the output folder; your own files stay as they are.</source>
        <translation>將影片或檔案夾拖到此視窗中的任意位置，在下方選擇格式，然後按一下「轉換」。結果會儲存到輸出檔案夾；您的原始檔案保持不變。</translation>
    </message>
    <message>
        <source>Drop videos or folders here</source>
        <translation>將影片或檔案夾拖到此處</translation>
    </message>
    <message>
        <source>E-AC-3 Audio</source>
        <translation>E-AC-3 音訊</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>Encoding in software</source>
        <translation>正在使用軟體編碼</translation>
    </message>
    <message>
        <source>Encoding once more, to meet the size</source>
        <translation>為符合大小再次編碼</translation>
    </message>
    <message>
        <source>Encoding, because the tracks could not be copied</source>
        <translation>正在編碼，因為軌道無法直接拷貝</translation>
    </message>
    <message>
        <source>End</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>End Here</source>
        <translation>在此結束</translation>
    </message>
    <message>
        <source>Even out the loudness</source>
        <translation>均衡響度</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>輸出</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>輸出…</translation>
    </message>
    <message>
        <source>FLAC Audio</source>
        <translation>FLAC 音訊</translation>
    </message>
    <message>
        <source>FLV Video (H.264, AAC)</source>
        <translation>FLV 影片（H.264、AAC）</translation>
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
        <translation>失敗</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失敗：%1</translation>
    </message>
    <message>
        <source>Faster, larger file</source>
        <translation>較快，檔案較大</translation>
    </message>
    <message>
        <source>Fastest, largest file</source>
        <translation>最快，檔案最大</translation>
    </message>
    <message>
        <source>File size at most</source>
        <translation>檔案大小上限</translation>
    </message>
    <message>
        <source>Files can be cut or joined, but not both at once.</source>
        <translation>檔案可以剪輯或合併，但不能同時進行。</translation>
    </message>
    <message>
        <source>Film from television (24)</source>
        <translation>電視播放的電影（24）</translation>
    </message>
    <message>
        <source>Films and files without a picture can be joined only into a file of sound.</source>
        <translation>影片與沒有畫面的檔案只能合併為聲音檔。</translation>
    </message>
    <message>
        <source>Films at this address</source>
        <translation>此位址的影片</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>過濾</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>尋找</translation>
    </message>
    <message>
        <source>Find Black Bars</source>
        <translation>尋找黑邊</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>尋找下一個</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>尋找上一個</translation>
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
        <translation>檔案夾</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>自動捲動</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>用於所有檔案</translation>
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
        <translation>正在使用的格式和選項會以此名稱儲存：</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Found after going around the end of the log.</source>
        <translation>已從記錄另一端繼續尋找並找到。</translation>
    </message>
    <message>
        <source>From chapter</source>
        <translation>起始章節</translation>
    </message>
    <message>
        <source>Full HD (1920 × 1080)</source>
        <translation>Full HD（1920 × 1080）</translation>
    </message>
    <message>
        <source>Further cover pictures beside the first.</source>
        <translation>第一張以外的其他封面圖片。</translation>
    </message>
    <message>
        <source>Further pictures beside the first (other angles or previews).</source>
        <translation>第一個以外的畫面（其他角度或預覽）。</translation>
    </message>
    <message>
        <source>GIF Animation</source>
        <translation>GIF 動畫</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>遊戲主機</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Good quality</source>
        <translation>良好品質</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>圖形</translation>
    </message>
    <message>
        <source>H.264 decoders</source>
        <translation>H.264 解碼器</translation>
    </message>
    <message>
        <source>H.264 encoders</source>
        <translation>H.264 編碼器</translation>
    </message>
    <message>
        <source>HD (1280 × 720)</source>
        <translation>HD（1280 × 720）</translation>
    </message>
    <message>
        <source>HEVC decoders</source>
        <translation>HEVC 解碼器</translation>
    </message>
    <message>
        <source>HEVC encoders</source>
        <translation>HEVC 編碼器</translation>
    </message>
    <message>
        <source>Hardware Information</source>
        <translation>硬體資訊</translation>
    </message>
    <message>
        <source>Hardware acceleration:</source>
        <translation>硬體加速：</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>輔助說明</translation>
    </message>
    <message>
        <source>High dynamic range</source>
        <translation>高動態範圍</translation>
    </message>
    <message>
        <source>High dynamic range becomes standard range.</source>
        <translation>高動態範圍會轉換為標準範圍。</translation>
    </message>
    <message>
        <source>High quality (slower)</source>
        <translation>高品質（較慢）</translation>
    </message>
    <message>
        <source>Highest Resolution</source>
        <translation>最高解析度</translation>
    </message>
    <message>
        <source>How the disc is kept</source>
        <translation>光碟的儲存方式</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>輸入</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>輸入…</translation>
    </message>
    <message>
        <source>In a session of Wayland the desktop asks what is recorded: it cannot be named beforehand.</source>
        <translation>在 Wayland 工作階段中，錄製什麼由桌面詢問，無法事先指定。</translation>
    </message>
    <message>
        <source>Intel</source>
        <translation>Intel</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>已中斷</translation>
    </message>
    <message>
        <source>It is shown here as soon as it is written: %1</source>
        <translation>記錄寫入後會立即顯示在此處：%1</translation>
    </message>
    <message>
        <source>Its titles are kept as they are, or become MP4, MKV or MP3, as you choose.</source>
        <translation>標題可保持原樣，或依您的選擇轉換為 MP4、MKV 或 MP3。</translation>
    </message>
    <message>
        <source>Jobs are running.</source>
        <translation>工作正在執行。</translation>
    </message>
    <message>
        <source>Jobs are still running.</source>
        <translation>仍有工作正在執行。</translation>
    </message>
    <message>
        <source>Join all files into one</source>
        <translation>將所有檔案合併為一個</translation>
    </message>
    <message>
        <source>Join into One</source>
        <translation>合併為一個</translation>
    </message>
    <message>
        <source>Joining</source>
        <translation>正在合併</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>繼續執行</translation>
    </message>
    <message>
        <source>Keep Waiting</source>
        <translation>繼續等待</translation>
    </message>
    <message>
        <source>Keep the Rest Instead</source>
        <translation>改為保留其餘部分</translation>
    </message>
    <message>
        <source>Keep the date of the source</source>
        <translation>保留來源的日期</translation>
    </message>
    <message>
        <source>Keep tracks that fit as they are</source>
        <translation>合適的軌道保持原樣</translation>
    </message>
    <message>
        <source>Kept as a track</source>
        <translation>保留為軌道</translation>
    </message>
    <message>
        <source>Kept until you quit</source>
        <translation>保留到結束為止</translation>
    </message>
    <message>
        <source>Kept where it can be</source>
        <translation>盡可能保留</translation>
    </message>
    <message>
        <source>Kept: %1</source>
        <translation>保留：%1</translation>
    </message>
    <message>
        <source>Kestrel Help</source>
        <translation>Kestrel 輔助說明</translation>
    </message>
    <message>
        <source>Kestrel Log</source>
        <translation>Kestrel 記錄</translation>
    </message>
    <message>
        <source>Kestrel Log — %1</source>
        <translation>Kestrel 記錄 — %1</translation>
    </message>
    <message>
        <source>Kestrel does not know how long this file is, and cannot aim at a size.</source>
        <translation>Kestrel 不知道此檔案的長度，無法以某個大小為目標。</translation>
    </message>
    <message>
        <source>Kestrel does not know the kind of file “%1” of this preset.</source>
        <translation>Kestrel 不認識此預設組合的檔案類型「%1」。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Language of %1</source>
        <translation>%1 的語言</translation>
    </message>
    <message>
        <source>Languages of sound</source>
        <translation>聲音語言</translation>
    </message>
    <message>
        <source>Languages of subtitles</source>
        <translation>字幕語言</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>瞭解更多</translation>
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
        <translation>長度</translation>
    </message>
    <message>
        <source>Lines with this text: %1</source>
        <translation>包含此文字的行：%1</translation>
    </message>
    <message>
        <source>Lines with this text: %1, looking for more… %2 % (Esc stops)</source>
        <translation>包含此文字的行：%1，正在繼續尋找… %2%（按 Esc 停止）</translation>
    </message>
    <message>
        <source>Log text</source>
        <translation>記錄文字</translation>
    </message>
    <message>
        <source>Looking at the hardware</source>
        <translation>正在檢查硬體</translation>
    </message>
    <message>
        <source>Looking for a newer download engine…</source>
        <translation>正在尋找較新的下載引擎…</translation>
    </message>
    <message>
        <source>Lossless sound: %1. It becomes %2.</source>
        <translation>無損聲音：%1。將變為 %2。</translation>
    </message>
    <message>
        <source>M4A Audio (AAC)</source>
        <translation>M4A 音訊（AAC）</translation>
    </message>
    <message>
        <source>M4A Audio, Lossless (ALAC)</source>
        <translation>M4A 音訊，無損（ALAC）</translation>
    </message>
    <message>
        <source>MKA Audio (Opus)</source>
        <translation>MKA 音訊（Opus）</translation>
    </message>
    <message>
        <source>MKV Video (AV1, Opus)</source>
        <translation>MKV 影片（AV1、Opus）</translation>
    </message>
    <message>
        <source>MKV Video (H.264, AAC)</source>
        <translation>MKV 影片（H.264、AAC）</translation>
    </message>
    <message>
        <source>MKV Video (H.265, AAC)</source>
        <translation>MKV 影片（H.265、AAC）</translation>
    </message>
    <message>
        <source>MKV Video (VP9, Opus)</source>
        <translation>MKV 影片（VP9、Opus）</translation>
    </message>
    <message>
        <source>MKV Video, High Quality (H.265, FLAC)</source>
        <translation>MKV 影片，高品質（H.265、FLAC）</translation>
    </message>
    <message>
        <source>MKV Video, Lossless (FFV1, FLAC)</source>
        <translation>MKV 影片，無損（FFV1、FLAC）</translation>
    </message>
    <message>
        <source>MOV Video (DNxHR, PCM)</source>
        <translation>MOV 影片（DNxHR、PCM）</translation>
    </message>
    <message>
        <source>MOV Video (H.264, AAC)</source>
        <translation>MOV 影片（H.264、AAC）</translation>
    </message>
    <message>
        <source>MOV Video (ProRes, PCM)</source>
        <translation>MOV 影片（ProRes、PCM）</translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation>MP3 音訊</translation>
    </message>
    <message>
        <source>MP4 Video (AV1, Opus)</source>
        <translation>MP4 影片（AV1、Opus）</translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation>MP4 影片（H.264、AAC）</translation>
    </message>
    <message>
        <source>MP4 Video (H.265, AAC)</source>
        <translation>MP4 影片（H.265、AAC）</translation>
    </message>
    <message>
        <source>MP4 Video for Web Pages (1080p)</source>
        <translation>適用於網頁的 MP4 影片（1080p）</translation>
    </message>
    <message>
        <source>MPEG</source>
        <translation>MPEG</translation>
    </message>
    <message>
        <source>MPEG Video (MPEG-2, MP2)</source>
        <translation>MPEG 影片（MPEG-2、MP2）</translation>
    </message>
    <message>
        <source>MPEG-4 movie (MP4)</source>
        <translation>MPEG-4 影片 (MP4)</translation>
    </message>
    <message>
        <source>MXF Video (DNxHR, PCM)</source>
        <translation>MXF 影片（DNxHR、PCM）</translation>
    </message>
    <message>
        <source>MXF Video (MPEG-2, PCM)</source>
        <translation>MXF 影片（MPEG-2、PCM）</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>媒體檔案</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>記憶體</translation>
    </message>
    <message>
        <source>Messages of the tools</source>
        <translation>工具的訊息</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>麥克風</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中間</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>縮到最小</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>鏡像</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>單聲道</translation>
    </message>
    <message>
        <source>Music folder</source>
        <translation>音樂資料夾</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>我的預設組合</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>預設組合名稱：</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>永不</translation>
    </message>
    <message>
        <source>No camera in the picture</source>
        <translation>畫面中無攝影機</translation>
    </message>
    <message>
        <source>No camera was found.</source>
        <translation>找不到攝影機。</translation>
    </message>
    <message>
        <source>No format matches the search.</source>
        <translation>沒有符合搜尋的格式。</translation>
    </message>
    <message>
        <source>No log was named</source>
        <translation>未指定記錄</translation>
    </message>
    <message>
        <source>No more than %1 pieces can be kept.</source>
        <translation>最多只能保留 %1 段。</translation>
    </message>
    <message>
        <source>No picture of the copy could be decoded.</source>
        <translation>無法解碼副本的任何畫面。</translation>
    </message>
    <message>
        <source>No picture of this film could be decoded.</source>
        <translation>無法解碼此影片的任何畫面。</translation>
    </message>
    <message>
        <source>No server answers at this address. Check it and try again.</source>
        <translation>此位址沒有伺服器回應。請檢查位址，然後再試一次。</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation>無聲音</translation>
    </message>
    <message>
        <source>No speed limit</source>
        <translation>不限速</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation>無字幕</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>尚未選擇</translation>
    </message>
    <message>
        <source>Not turned</source>
        <translation>不旋轉</translation>
    </message>
    <message>
        <source>Not used yet</source>
        <translation>尚未使用</translation>
    </message>
    <message>
        <source>Not used yet, kept until you quit</source>
        <translation>尚未使用，保留到結束為止</translation>
    </message>
    <message>
        <source>Nothing could be decoded at %1 s.</source>
        <translation>在 %1 秒處無法解碼任何內容。</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>找不到任何內容。</translation>
    </message>
    <message>
        <source>Nothing of the file could be converted.</source>
        <translation>檔案中沒有可轉換的內容。</translation>
    </message>
    <message>
        <source>Nothing of the film could be read.</source>
        <translation>無法讀取影片的任何內容。</translation>
    </message>
    <message>
        <source>Nothing of the recording is left.</source>
        <translation>錄製內容已全部遺失。</translation>
    </message>
    <message>
        <source>Nothing of this file would be kept.</source>
        <translation>此檔案不會保留任何內容。</translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation>未錄製任何內容。</translation>
    </message>
    <message>
        <source>OGG Audio (Vorbis)</source>
        <translation>OGG 音訊（Vorbis）</translation>
    </message>
    <message>
        <source>OGV Video (Theora, Vorbis)</source>
        <translation>OGV 影片（Theora、Vorbis）</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>好</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Old Phone (3GP)</source>
        <translation>舊手機（3GP）</translation>
    </message>
    <message>
        <source>One title as a disc folder</source>
        <translation>將一個標題存為光碟檔案夾</translation>
    </message>
    <message>
        <source>Only %1 of %2 s have come.</source>
        <translation>%2 秒中只收到 %1 秒。</translation>
    </message>
    <message>
        <source>Only one track of subtitles can be burnt in; another one stays behind.</source>
        <translation>只能嵌入一個字幕軌道；其他字幕將不包含。</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打開</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>打開檔案夾…</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>打開映像檔…</translation>
    </message>
    <message>
        <source>Open the log with “App Log” in the Help menu of %1.</source>
        <translation>請在 %1 的「輔助說明」選單中透過「應用程式記錄」打開記錄。</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>打開輸出檔案夾</translation>
    </message>
    <message>
        <source>Open the output folder when done</source>
        <translation>完成後打開輸出資料夾</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>Opus Audio</source>
        <translation>Opus 音訊</translation>
    </message>
    <message>
        <source>Original Sound, in an MKA File</source>
        <translation>原始聲音，存為 MKA 檔案</translation>
    </message>
    <message>
        <source>Original, in a MOV File</source>
        <translation>原始內容，存為 MOV 檔案</translation>
    </message>
    <message>
        <source>Original, in a TS File</source>
        <translation>原始內容，存為 TS 檔案</translation>
    </message>
    <message>
        <source>Original, in an MKV File</source>
        <translation>原始內容，存為 MKV 檔案</translation>
    </message>
    <message>
        <source>Original, in an MP4 File</source>
        <translation>原始內容，存為 MP4 檔案</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>輸出</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>輸出檔案夾：</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>輸出格式</translation>
    </message>
    <message>
        <source>PCM</source>
        <translation>PCM</translation>
    </message>
    <message>
        <source>Page of options</source>
        <translation>選項頁面</translation>
    </message>
    <message>
        <source>Part of the screen…</source>
        <translation>螢幕的一部分…</translation>
    </message>
    <message>
        <source>Parts of the finished file are missing.</source>
        <translation>完成的檔案缺少部分內容。</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼上</translation>
    </message>
    <message>
        <source>Paste or drop addresses here</source>
        <translation>在此處貼上或拖入位址</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>手機</translation>
    </message>
    <message>
        <source>Phone (H.265)</source>
        <translation>手機（H.265）</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>畫面</translation>
    </message>
    <message>
        <source>Picture, all sound, subtitles in their colours and chapters of the chosen titles, nothing encoded again.</source>
        <translation>所選標題的畫面、全部聲音、彩色字幕和章節，均不重新編碼。</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>Pictures a second</source>
        <translation>每秒畫格數</translation>
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
        <translation>攝影機畫面的位置</translation>
    </message>
    <message>
        <source>Places and styles of the subtitles: %1. %2 cannot hold them.</source>
        <translation>字幕的位置和樣式：%1。%2 無法包含。</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Play Source</source>
        <translation>播放來源</translation>
    </message>
    <message>
        <source>Playing speed</source>
        <translation>播放速度</translation>
    </message>
    <message>
        <source>Plays Everywhere</source>
        <translation>到處都能播放</translation>
    </message>
    <message>
        <source>Please check that the disk has room and that this folder can be written: %1</source>
        <translation>請檢查磁碟是否有空間，以及此檔案夾是否可寫入：%1</translation>
    </message>
    <message>
        <source>Please wait. Getting update information from the server...</source>
        <translation>請稍候。正在從伺服器取得更新資訊…</translation>
    </message>
    <message>
        <source>Please write to %1 and attach this file: %2</source>
        <translation>請寫信至 %1 並附上此檔案：%2</translation>
    </message>
    <message>
        <source>Please write to this address: %1</source>
        <translation>請寫信至此地址：%1</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Preferred audio language</source>
        <translation>偏好的音訊語言</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>預設組合</translation>
    </message>
    <message>
        <source>Problem detected in last conversion.</source>
        <translation>上次轉換時偵測到問題。</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>處理器</translation>
    </message>
    <message>
        <source>Processor cores</source>
        <translation>處理器核心</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>代理位址</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>代理連接埠</translation>
    </message>
    <message>
        <source>Put a DVD in, or drop a disc image or folder here</source>
        <translation>放入 DVD，或將光碟映像檔或檔案夾拖到此處</translation>
    </message>
    <message>
        <source>Putting picture and sound together…</source>
        <translation>正在合併畫面和聲音…</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Quality (lower is better)</source>
        <translation>品質（越低越好）</translation>
    </message>
    <message>
        <source>QuickTime movie (MOV)</source>
        <translation>QuickTime 影片 (MOV)</translation>
    </message>
    <message>
        <source>Quit Kestrel</source>
        <translation>結束 Kestrel</translation>
    </message>
    <message>
        <source>Reading the disc…</source>
        <translation>正在讀取光碟…</translation>
    </message>
    <message>
        <source>Reading the disc… A drive may take half a minute for it.</source>
        <translation>正在讀取光碟… 光碟機可能需要半分鐘。</translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation>不允許讀取檔案或寫入輸出檔案夾。請檢查其權限。</translation>
    </message>
    <message>
        <source>Reading the file…</source>
        <translation>正在讀取檔案…</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在讀取…</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備就緒</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>錄製</translation>
    </message>
    <message>
        <source>Record Video</source>
        <translation>錄製影片</translation>
    </message>
    <message>
        <source>Record screen/webcam/iPhone videos. Capture live streams, games, desktop, and anything in MOV for YouTube. Support recording screen and webcam at the same time.</source>
        <translation>錄製螢幕、網路攝影機和 iPhone 影片。將直播、遊戲、桌面等任何內容錄製為適合 YouTube 的 MOV。支援同時錄製螢幕和網路攝影機。</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>錄製</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>錄製</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>錄製 %1</translation>
    </message>
    <message>
        <source>Recording begins at %1. Press Record to begin at once.</source>
        <translation>錄製將於 %1 開始。按「錄製」可立即開始。</translation>
    </message>
    <message>
        <source>Recording begins in %1 s. Press Record to begin at once.</source>
        <translation>錄製將在 %1 秒後開始。按一下「錄製」可立即開始。</translation>
    </message>
    <message>
        <source>Recovered after an interruption.</source>
        <translation>已從中斷中復原。</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>版本說明：</translation>
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
        <translation>連同未完成的檔案一起移除</translation>
    </message>
    <message>
        <source>Removes what is done from the list. The files stay.</source>
        <translation>從列表中移除已完成的項目。檔案會保留。</translation>
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
        <translation>回報問題</translation>
    </message>
    <message>
        <source>Reset Profiles</source>
        <translation>重設設定檔</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解析度</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>正在執行</translation>
    </message>
    <message>
        <source>Safe mode: check the whole result</source>
        <translation>安全模式：檢查整個結果</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>飽和度</translation>
    </message>
    <message>
        <source>Save To…</source>
        <translation>儲存到…</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>儲存副本</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>儲存副本…</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>儲存為預設組合</translation>
    </message>
    <message>
        <source>Save as Preset…</source>
        <translation>儲存為預設組合…</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>已儲存：%1</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>正在儲存…</translation>
    </message>
    <message>
        <source>Saving… %1 % (Esc stops)</source>
        <translation>正在儲存… %1%（按 Esc 停止）</translation>
    </message>
    <message>
        <source>Screen %1 (%2 × %3)</source>
        <translation>螢幕 %1（%2 × %3）</translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation>無法錄製螢幕</translation>
    </message>
    <message>
        <source>Screen or window (the desktop asks)</source>
        <translation>螢幕或視窗（由桌面詢問）</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>左右捲動</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>上下捲動</translation>
    </message>
    <message>
        <source>Search Settings</source>
        <translation>搜尋設定</translation>
    </message>
    <message>
        <source>Search formats</source>
        <translation>搜尋格式</translation>
    </message>
    <message>
        <source>Search: MKV, AV1, FLAC …</source>
        <translation>搜尋：MKV、AV1、FLAC…</translation>
    </message>
    <message>
        <source>Searching… %1 % (Esc stops)</source>
        <translation>正在尋找… %1%（按 Esc 停止）</translation>
    </message>
    <message>
        <source>Second pass</source>
        <translation>第二遍</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>Select one file in the list to choose among its tracks.</source>
        <translation>在列表中選取一個檔案，即可從其軌道中選擇。</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>傳送意見回饋</translation>
    </message>
    <message>
        <source>Send Report</source>
        <translation>傳送報告</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Several formats</source>
        <translation>多種格式</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>顯示</translation>
    </message>
    <message>
        <source>Show File</source>
        <translation>顯示檔案</translation>
    </message>
    <message>
        <source>Show clicks</source>
        <translation>顯示點按</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>在檔案夾中顯示</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>顯示通知</translation>
    </message>
    <message>
        <source>Show only lines with</source>
        <translation>只顯示包含此文字的行</translation>
    </message>
    <message>
        <source>Show the pointer</source>
        <translation>顯示指標</translation>
    </message>
    <message>
        <source>Shut down the computer when done</source>
        <translation>完成後關閉電腦</translation>
    </message>
    <message>
        <source>Size at most</source>
        <translation>大小上限</translation>
    </message>
    <message>
        <source>Size: about %1</source>
        <translation>大小：約 %1</translation>
    </message>
    <message>
        <source>Slower, smaller file</source>
        <translation>較慢，檔案較小</translation>
    </message>
    <message>
        <source>Slowest, smallest file</source>
        <translation>最慢，檔案最小</translation>
    </message>
    <message>
        <source>Small (640 × 480)</source>
        <translation>小（640 × 480）</translation>
    </message>
    <message>
        <source>Small Files</source>
        <translation>小檔案</translation>
    </message>
    <message>
        <source>Small MP4 Video (720p)</source>
        <translation>小型 MP4 影片（720p）</translation>
    </message>
    <message>
        <source>Small file</source>
        <translation>小檔案</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>Snapshot folder</source>
        <translation>快照資料夾</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>聲音</translation>
    </message>
    <message>
        <source>Sound level</source>
        <translation>聲音音量</translation>
    </message>
    <message>
        <source>Sound of %1: %2. The joined file has no track for it.</source>
        <translation>%1 的聲音：%2。合併後的檔案沒有對應的音軌。</translation>
    </message>
    <message>
        <source>Sound of the computer</source>
        <translation>電腦的聲音</translation>
    </message>
    <message>
        <source>Sound only, unchanged (MKA)</source>
        <translation>僅聲音，保持原樣（MKA）</translation>
    </message>
    <message>
        <source>Sound track %1 begins so late in the film that it is not found in time.</source>
        <translation>音軌 %1 在影片中開始得太晚，無法及時找到。</translation>
    </message>
    <message>
        <source>Sound track %1, which this film does not have</source>
        <translation>此影片沒有的音軌 %1</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>聲音：%1</translation>
    </message>
    <message>
        <source>Sound: %1. %2 holds only one track of sound.</source>
        <translation>聲音：%1。%2 只能包含一個音軌。</translation>
    </message>
    <message>
        <source>Sound: %1. Its format is not known.</source>
        <translation>聲音：%1。其格式未知。</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>來源</translation>
    </message>
    <message>
        <source>Source (drag to crop)</source>
        <translation>來源（拖移以裁切）</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Speed limit of each download</source>
        <translation>每個下載的速度限制</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Start Here</source>
        <translation>在此開始</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Stay at the end while the log grows</source>
        <translation>記錄增加時停留在結尾</translation>
    </message>
    <message>
        <source>Steady quality</source>
        <translation>品質恆定</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>立體聲</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation>停止時間</translation>
    </message>
    <message>
        <source>Stop after %1 min</source>
        <translation>%1 分鐘後停止</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>停止並結束</translation>
    </message>
    <message>
        <source>Stop and Restart</source>
        <translation>停止並重新啟動</translation>
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
        <translation>此影片沒有的字幕軌 %1</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Subtitles are missing in the finished file.</source>
        <translation>完成的檔案缺少字幕。</translation>
    </message>
    <message>
        <source>Subtitles in the picture</source>
        <translation>畫面中的字幕</translation>
    </message>
    <message>
        <source>Subtitles of %1: %2. Joining keeps none of later files.</source>
        <translation>%1 的字幕：%2。合併時不保留後續檔案的字幕。</translation>
    </message>
    <message>
        <source>Subtitles that are pictures: %1. %2 cannot hold them; burn them in, or choose MKV.</source>
        <translation>圖片字幕：%1。%2 無法包含；請將其嵌入畫面，或選擇 MKV。</translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation>字幕：%1</translation>
    </message>
    <message>
        <source>Subtitles: %1. %2 cannot hold them.</source>
        <translation>字幕：%1。%2 無法包含。</translation>
    </message>
    <message>
        <source>Subtitles: %1. They are burnt into the first of the joined files only.</source>
        <translation>字幕：%1。僅嵌入合併檔案中的第一個。</translation>
    </message>
    <message>
        <source>Subtitles: %1. They cannot follow the changed times; burn them in to keep them.</source>
        <translation>字幕：%1。字幕無法跟隨更改後的時間；請嵌入畫面以保留。</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>建議</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation>5.1 環繞聲</translation>
    </message>
    <message>
        <source>TS Video (H.264, AC-3)</source>
        <translation>TS 影片（H.264、AC-3）</translation>
    </message>
    <message>
        <source>TV (1080p)</source>
        <translation>電視（1080p）</translation>
    </message>
    <message>
        <source>TV (4K, HDR)</source>
        <translation>電視（4K、HDR）</translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation>平板電腦</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>That is the log itself. Choose another name.</source>
        <translation>這是記錄本身。請選擇其他名稱。</translation>
    </message>
    <message>
        <source>The area to be recorded is outside the screen.</source>
        <translation>要錄製的區域位於螢幕之外。</translation>
    </message>
    <message>
        <source>The attached file %1 of %2. Joining keeps none of later files.</source>
        <translation>%2 的附件 %1。合併時不保留後續檔案的附件。</translation>
    </message>
    <message>
        <source>The attached file %1. %2 cannot hold it.</source>
        <translation>附加檔案 %1。%2 無法包含。</translation>
    </message>
    <message>
        <source>The broadcast has not begun yet. Try again when it has.</source>
        <translation>直播尚未開始。請在開始後再試一次。</translation>
    </message>
    <message>
        <source>The camera could not be opened. Another program may be using it.</source>
        <translation>無法開啟攝影機。可能有其他程式正在使用它。</translation>
    </message>
    <message>
        <source>The camera went away: its picture ends there.</source>
        <translation>攝影機已中斷：其畫面到此為止。</translation>
    </message>
    <message>
        <source>The chapters. %1 cannot hold them.</source>
        <translation>章節。%1 無法包含。</translation>
    </message>
    <message>
        <source>The chosen camera is missing: %1 is recorded instead.</source>
        <translation>所選攝影機不存在：改為錄製 %1。</translation>
    </message>
    <message>
        <source>The chosen microphone is missing: the usual one is recorded instead.</source>
        <translation>所選麥克風不存在：改為錄製預設麥克風。</translation>
    </message>
    <message>
        <source>The chosen titles become files of the format beside, as small as you like.</source>
        <translation>所選標題會轉換為旁邊所選格式的檔案，大小可任意縮小。</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds.</source>
        <translation>電腦將在 %1 秒後關機。</translation>
    </message>
    <message>
        <source>The conversion was stopped before the end.</source>
        <translation>轉換在結束前被停止。</translation>
    </message>
    <message>
        <source>The converter cannot make this format. Choose another one.</source>
        <translation>轉換器無法產生此格式。請選擇其他格式。</translation>
    </message>
    <message>
        <source>The converter could not be started. Please install the application again.</source>
        <translation>無法啟動轉換器。請重新安裝應用程式。</translation>
    </message>
    <message>
        <source>The converter could not convert this file.</source>
        <translation>轉換器無法轉換此檔案。</translation>
    </message>
    <message>
        <source>The converter did not answer any more.</source>
        <translation>轉換器不再回應。</translation>
    </message>
    <message>
        <source>The converter is missing. Please install the application again.</source>
        <translation>找不到轉換器。請重新安裝應用程式。</translation>
    </message>
    <message>
        <source>The copy could not be read back.</source>
        <translation>無法重新讀取副本。</translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>無法儲存副本：%1</translation>
    </message>
    <message>
        <source>The copy has %1 titles instead of %2.</source>
        <translation>副本有 %1 個標題，而不是 %2 個。</translation>
    </message>
    <message>
        <source>The copy was broken off. It goes on where it is when it is started again.</source>
        <translation>拷貝已中斷。再次啟動時會從中斷處繼續。</translation>
    </message>
    <message>
        <source>The copy was saved.</source>
        <translation>副本已儲存。</translation>
    </message>
    <message>
        <source>The cover picture of %1. Joining keeps none of later files.</source>
        <translation>%1 的封面圖片。合併時不保留後續檔案的封面。</translation>
    </message>
    <message>
        <source>The cover picture. %1 cannot hold it.</source>
        <translation>封面圖片。%1 無法包含。</translation>
    </message>
    <message>
        <source>The cover picture. It is lost when files are joined so.</source>
        <translation>封面圖片。以此方式合併檔案時會遺失。</translation>
    </message>
    <message>
        <source>The date of recording. %1 cannot hold it.</source>
        <translation>錄製日期。%1 無法容納。</translation>
    </message>
    <message>
        <source>The desktop did not let the screen be recorded.</source>
        <translation>桌面未允許錄製螢幕。</translation>
    </message>
    <message>
        <source>The desktop lets the screen be recorded, but no picture of it arrives. Is PipeWire running?</source>
        <translation>桌面允許錄製，但沒有畫面傳來。PipeWire 正在執行嗎？</translation>
    </message>
    <message>
        <source>The desktop shares the picture when the recording begins. Shortcuts work only in Kestrel's windows then.</source>
        <translation>錄製開始時由桌面分享畫面。此時快速鍵只在 Kestrel 的視窗中有效。</translation>
    </message>
    <message>
        <source>The desktop's portal did not answer.</source>
        <translation>桌面入口沒有回應。</translation>
    </message>
    <message>
        <source>The desktop's portal does not let the screen be recorded: %1</source>
        <translation>桌面入口不允許錄製螢幕：%1</translation>
    </message>
    <message>
        <source>The disc could not be read.</source>
        <translation>無法讀取光碟。</translation>
    </message>
    <message>
        <source>The disc did not answer in time.</source>
        <translation>光碟未及時回應。</translation>
    </message>
    <message>
        <source>The disc has no such title, chapter or angle.</source>
        <translation>光碟沒有該標題、章節或角度。</translation>
    </message>
    <message>
        <source>The disc image ends before its film does.</source>
        <translation>光碟映像檔在影片結束前就已結束。</translation>
    </message>
    <message>
        <source>The disc is damaged: what it holds could not be read.</source>
        <translation>光碟已損毀：無法讀取其內容。</translation>
    </message>
    <message>
        <source>The disc may not be read by this user.</source>
        <translation>此使用者沒有讀取光碟的權限。</translation>
    </message>
    <message>
        <source>The disc tools could not be started. Please install the application again.</source>
        <translation>無法啟動光碟工具。請重新安裝應用程式。</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>無法讀取或寫入磁碟。</translation>
    </message>
    <message>
        <source>The disk for temporary files is full. Free some space and convert again.</source>
        <translation>存放暫存檔的磁碟已滿。請騰出空間後重新轉換。</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays a Matroska file.</source>
        <translation>磁碟空間不足，無法完成錄製：錄製內容保留為 Matroska 檔案。</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays in %1 Matroska files.</source>
        <translation>磁碟空間不足，無法完成錄製：錄製內容保留為 %1 個 Matroska 檔案。</translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation>輸出檔案夾所在的磁碟無法儲存這種大小的檔案。</translation>
    </message>
    <message>
        <source>The display %1 could not be opened.</source>
        <translation>無法打開顯示器 %1。</translation>
    </message>
    <message>
        <source>The download engine could not be updated.</source>
        <translation>無法更新下載引擎。</translation>
    </message>
    <message>
        <source>The download engine does not work. Please install the application again.</source>
        <translation>下載引擎無法運作。請重新安裝應用程式。</translation>
    </message>
    <message>
        <source>The download engine is missing. Please install the application again.</source>
        <translation>找不到下載引擎。請重新安裝應用程式。</translation>
    </message>
    <message>
        <source>The download engine is now of version %1. Try again.</source>
        <translation>下載引擎現在的版本是 %1。請再試一次。</translation>
    </message>
    <message>
        <source>The download failed. Try again later; the details tell what the engine said.</source>
        <translation>下載失敗。請稍後再試一次；詳細資訊中包含引擎的訊息。</translation>
    </message>
    <message>
        <source>The encoder for %1 is not installed.</source>
        <translation>未安裝 %1 的編碼器。</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>無法讀取檔案。</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>無法寫入檔案。</translation>
    </message>
    <message>
        <source>The file holds neither video nor sound that can be converted.</source>
        <translation>檔案不包含可轉換的影片或聲音。</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>檔案已損毀或不完整。</translation>
    </message>
    <message>
        <source>The file is no longer where it was.</source>
        <translation>檔案已不在原來的位置。</translation>
    </message>
    <message>
        <source>The file was deleted. What it held is still shown.</source>
        <translation>檔案已刪除。其內容仍會顯示。</translation>
    </message>
    <message>
        <source>The film has come, but subtitles, cover or chapters could not be added to it.</source>
        <translation>影片已下載，但無法加入字幕、封面或章節。</translation>
    </message>
    <message>
        <source>The film is copy protected and is not downloaded. Watch it on its own site.</source>
        <translation>該影片受複製保護，不會下載。請在其網站上觀看。</translation>
    </message>
    <message>
        <source>The film is no longer there. Look for it at another address.</source>
        <translation>該影片已不存在。請在其他位址尋找。</translation>
    </message>
    <message>
        <source>The film is not there in the form that was wanted. Choose another resolution or format.</source>
        <translation>沒有所需形式的影片。請選擇其他解析度或格式。</translation>
    </message>
    <message>
        <source>The film is private or for members only, so it cannot be downloaded. Look for it at another address.</source>
        <translation>該影片為私人或僅限會員，無法下載。請在其他位址尋找。</translation>
    </message>
    <message>
        <source>The film of the chosen titles as it stands on the disc; no chapters, no names of languages.</source>
        <translation>所選標題的影片，與光碟上的一致；不含章節和語言名稱。</translation>
    </message>
    <message>
        <source>The finer picture. %1 bit %2 becomes %3 bit %4.</source>
        <translation>更精細的畫面。%1 位元 %2 變為 %3 位元 %4。</translation>
    </message>
    <message>
        <source>The finer sound: %1. %2 bit become %3 bit.</source>
        <translation>更精細的聲音：%1。%2 位元變為 %3 位元。</translation>
    </message>
    <message>
        <source>The finished file could not be read back.</source>
        <translation>無法重新讀取完成的檔案。</translation>
    </message>
    <message>
        <source>The finished file has %1 bytes instead of %2.</source>
        <translation>完成的檔案有 %1 位元組，而不是 %2。</translation>
    </message>
    <message>
        <source>The finished file holds other tracks than were wanted: %1 instead of %2.</source>
        <translation>完成的檔案包含的軌道與所需不符：%1，而不是 %2。</translation>
    </message>
    <message>
        <source>The finished file is %1 s long instead of %2 s.</source>
        <translation>完成的檔案長度為 %1 秒，而不是 %2 秒。</translation>
    </message>
    <message>
        <source>The finished file is damaged: %1 faults.</source>
        <translation>完成的檔案已損毀：%1 處錯誤。</translation>
    </message>
    <message>
        <source>The finished file is damaged: 1 fault.</source>
        <translation>完成的檔案已損毀：1 處錯誤。</translation>
    </message>
    <message>
        <source>The finished file is larger than wanted.</source>
        <translation>完成的檔案比所需的大。</translation>
    </message>
    <message>
        <source>The first %1 were copied. Save a copy to have all of it.</source>
        <translation>已拷貝前 %1。若要取得全部內容，請儲存副本。</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>無法打開檔案夾。</translation>
    </message>
    <message>
        <source>The folder for temporary files cannot be written.</source>
        <translation>無法寫入暫存檔案的檔案夾。</translation>
    </message>
    <message>
        <source>The folder is too large: only some of its files were added.</source>
        <translation>檔案夾過大：只加入了其中的部分檔案。</translation>
    </message>
    <message>
        <source>The irregular times of the pictures. They come evenly, %1 a second.</source>
        <translation>不規則的畫面時間。將均勻播放，每秒 %1 格。</translation>
    </message>
    <message>
        <source>The languages of the tracks. %1 cannot hold them.</source>
        <translation>音軌的語言資訊。%1 無法容納。</translation>
    </message>
    <message>
        <source>The last %1 s have no picture.</source>
        <translation>最後 %1 秒沒有畫面。</translation>
    </message>
    <message>
        <source>The last %1 s have no sound: the sound server went away.</source>
        <translation>最後 %1 秒沒有聲音：聲音伺服器已消失。</translation>
    </message>
    <message>
        <source>The log cannot be read</source>
        <translation>無法讀取記錄</translation>
    </message>
    <message>
        <source>The log was cut short meanwhile. Try again.</source>
        <translation>記錄在此期間被截短。請再試一次。</translation>
    </message>
    <message>
        <source>The mastering data of the high dynamic range. %1 cannot hold them.</source>
        <translation>高動態範圍的母帶資料。%1 無法容納。</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the address again.</source>
        <translation>無法讀取此工作的選項。請重新加入位址。</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the file again.</source>
        <translation>無法讀取此工作的選項。請重新加入檔案。</translation>
    </message>
    <message>
        <source>The other angles of the film: %1</source>
        <translation>影片的其他角度：%1 個</translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation>無法寫入輸出內容。</translation>
    </message>
    <message>
        <source>The output directory does not exist. Please check the setting.</source>
        <translation>輸出檔案夾不存在。請檢查設定。</translation>
    </message>
    <message>
        <source>The output folder is read-only. Choose another one in the settings.</source>
        <translation>輸出檔案夾為唯讀。請在設定中選擇其他檔案夾。</translation>
    </message>
    <message>
        <source>The picture has to be encoded (%1).</source>
        <translation>畫面必須編碼（%1）。</translation>
    </message>
    <message>
        <source>The picture is made smaller, %1 × %2, so that it fits the size.</source>
        <translation>畫面已縮小為 %1 × %2，以符合大小要求。</translation>
    </message>
    <message>
        <source>The picture is missing: the site handed out the sound alone.</source>
        <translation>缺少畫面：網站只提供了聲音。</translation>
    </message>
    <message>
        <source>The picture of the finished file does not stand upright.</source>
        <translation>完成的檔案畫面方向不正。</translation>
    </message>
    <message>
        <source>The pieces to be kept lie behind the end of the file.</source>
        <translation>要保留的片段位於檔案結尾之後。</translation>
    </message>
    <message>
        <source>The place of recording. %1 cannot hold it.</source>
        <translation>錄製地點。%1 無法容納。</translation>
    </message>
    <message>
        <source>The player is missing. Please install the application again.</source>
        <translation>找不到播放器。請重新安裝應用程式。</translation>
    </message>
    <message>
        <source>The program dvdauthor is missing. Please install it.</source>
        <translation>缺少程式 dvdauthor。請安裝。</translation>
    </message>
    <message>
        <source>The proxy refuses the connection. Check its address in the settings.</source>
        <translation>代理伺服器拒絕連線。請在設定中檢查其位址。</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays a Matroska file.</source>
        <translation>無法完成錄製：錄製內容保留為 Matroska 檔案。</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays in %1 Matroska files.</source>
        <translation>無法完成錄製：錄製內容保留為 %1 個 Matroska 檔案。</translation>
    </message>
    <message>
        <source>The recording ended because the disk is nearly full.</source>
        <translation>磁碟快滿了，錄製已結束。</translation>
    </message>
    <message>
        <source>The recording that was to begin at %1 was missed.</source>
        <translation>錯過了原定於 %1 開始的錄製。</translation>
    </message>
    <message>
        <source>The recording was interrupted.</source>
        <translation>錄製已中斷。</translation>
    </message>
    <message>
        <source>The same screen or window as last time</source>
        <translation>與上次相同的螢幕或視窗</translation>
    </message>
    <message>
        <source>The screen of a Wayland session can be recorded where the desktop has a portal for it, which is missing here. Install xdg-desktop-portal for your desktop, or log in to a session of X11 (Xorg).</source>
        <translation>只有桌面帶有相應入口時才能錄製 Wayland 工作階段的螢幕，此處沒有。請為桌面安裝 xdg-desktop-portal，或登入 X11 (Xorg) 工作階段。</translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation>螢幕錄製僅支援 Mac OS Lion 或以上版本。</translation>
    </message>
    <message>
        <source>The server broke off or could not answer. What has come is kept; try again later.</source>
        <translation>伺服器中斷了連線或無法回應。已收到的內容會保留；請稍後再試一次。</translation>
    </message>
    <message>
        <source>The server broke off, next attempt in %1 s</source>
        <translation>伺服器中斷了連線，%1 秒後重試</translation>
    </message>
    <message>
        <source>The server has sent only part of the film.</source>
        <translation>伺服器只傳送了影片的一部分。</translation>
    </message>
    <message>
        <source>The server refuses to hand out the film. Try again later, or open the page in a browser to see why.</source>
        <translation>伺服器拒絕提供該影片。請稍後再試一次，或在瀏覽器中打開該頁面以了解原因。</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in %1 minutes.</source>
        <translation>伺服器暫時不再接受請求。請在 %1 分鐘後重試。</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in a while.</source>
        <translation>伺服器暫時不再接受要求。請稍等片刻後再試一次。</translation>
    </message>
    <message>
        <source>The server's certificate is not valid, so it may not be who it says it is. Nothing was downloaded; check the address and this computer's date.</source>
        <translation>伺服器的憑證無效，其身分可能不實。未下載任何內容；請檢查位址和本機日期。</translation>
    </message>
    <message>
        <source>The settings' folder</source>
        <translation>設定中的檔案夾</translation>
    </message>
    <message>
        <source>The site does not show this film in your country. A proxy of another country can be set in the settings.</source>
        <translation>該網站不在您所在的國家或地區提供此影片。可以在設定中指定其他國家或地區的代理伺服器。</translation>
    </message>
    <message>
        <source>The site has changed and the download engine does not know it any more. Update the engine and try again.</source>
        <translation>該網站已變更，下載引擎不再認識它。請更新引擎，然後再試一次。</translation>
    </message>
    <message>
        <source>The site shows this film only to those who have logged in, which Kestrel does not do. Look for it at another address.</source>
        <translation>網站只向已登入者顯示該影片，而 Kestrel 不會登入。請在其他位址尋找。</translation>
    </message>
    <message>
        <source>The site wants to know the viewer's age first, which it learns only from a log-in. Look for it at another address.</source>
        <translation>網站要先確認觀眾年齡，這只能透過登入得知。請在其他位址尋找。</translation>
    </message>
    <message>
        <source>The snapshot could not be written.</source>
        <translation>無法寫入快照。</translation>
    </message>
    <message>
        <source>The sound could not be recorded. Is the sound server running?</source>
        <translation>無法錄製聲音。聲音伺服器是否正在執行？</translation>
    </message>
    <message>
        <source>The sound has to be encoded (%1).</source>
        <translation>聲音必須編碼（%1）。</translation>
    </message>
    <message>
        <source>The sound is missing since the sound server went away.</source>
        <translation>聲音伺服器停止後缺少聲音。</translation>
    </message>
    <message>
        <source>The sound is missing: the site handed out the picture alone.</source>
        <translation>缺少聲音：網站只提供了畫面。</translation>
    </message>
    <message>
        <source>The sound server was away for a while: that part has no sound.</source>
        <translation>聲音伺服器中斷了一段時間：該部分沒有聲音。</translation>
    </message>
    <message>
        <source>The sound. %1 holds only pictures.</source>
        <translation>聲音。%1 只能包含畫面。</translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation>最強大的影片處理軟體：轉換影片、音訊和 DVD；編輯、轉碼、壓縮和調整影片檔案；下載線上媒體內容；錄製螢幕和網路攝影機。</translation>
    </message>
    <message>
        <source>The subtitle file %1 cannot be read.</source>
        <translation>無法讀取字幕檔 %1。</translation>
    </message>
    <message>
        <source>The subtitle file %1 is too large for a text.</source>
        <translation>字幕檔 %1 作為文字過大。</translation>
    </message>
    <message>
        <source>The subtitles are missing: the site did not hand them out.</source>
        <translation>缺少字幕：網站沒有提供。</translation>
    </message>
    <message>
        <source>The subtitles that were to be drawn into the picture are not in this film.</source>
        <translation>要畫入畫面的字幕不在此影片中。</translation>
    </message>
    <message>
        <source>The title. %1 cannot hold it.</source>
        <translation>標題。%1 無法容納。</translation>
    </message>
    <message>
        <source>The tool that reads media files is missing. Please install the application again.</source>
        <translation>找不到讀取媒體檔案的工具。請重新安裝應用程式。</translation>
    </message>
    <message>
        <source>The transcoder did not answer as it should.</source>
        <translation>轉碼器未依預期回應。</translation>
    </message>
    <message>
        <source>The transcoder is missing. Please install the application again.</source>
        <translation>缺少轉碼器。請重新安裝應用程式。</translation>
    </message>
    <message>
        <source>The transparency of the picture. %1 cannot hold it.</source>
        <translation>畫面的透明度。%1 無法容納。</translation>
    </message>
    <message>
        <source>The whole disc, sector for sector, in one file that plays like the disc.</source>
        <translation>逐磁區將整張光碟存為一個檔案，可像光碟一樣播放。</translation>
    </message>
    <message>
        <source>The whole film is kept.</source>
        <translation>會保留整部影片。</translation>
    </message>
    <message>
        <source>The window is too small to be recorded.</source>
        <translation>視窗太小，無法錄製。</translation>
    </message>
    <message>
        <source>The window was closed or minimised.</source>
        <translation>視窗已關閉或最小化。</translation>
    </message>
    <message>
        <source>There are no black bars.</source>
        <translation>沒有黑邊。</translation>
    </message>
    <message>
        <source>There are several films at this address. Add it again to choose among them.</source>
        <translation>此位址有多部影片。請重新加入以從中選擇。</translation>
    </message>
    <message>
        <source>There are too many films at this address to look at them all. Add the address of one of them.</source>
        <translation>此位址的影片過多，無法全部查看。請加入其中一部影片的位址。</translation>
    </message>
    <message>
        <source>There are too many presets. Delete some first.</source>
        <translation>預設組合過多。請先刪除一些。</translation>
    </message>
    <message>
        <source>There is no connection to the network. Check it and try again.</source>
        <translation>沒有網路連線。請檢查連線，然後再試一次。</translation>
    </message>
    <message>
        <source>There is no disc. Put it in, or choose an image or a folder, and try again.</source>
        <translation>沒有光碟。請放入光碟，或選擇映像檔或檔案夾，然後再試一次。</translation>
    </message>
    <message>
        <source>There is no display whose picture could be recorded.</source>
        <translation>沒有可錄製畫面的顯示器。</translation>
    </message>
    <message>
        <source>There is no film at this address. Look for the page that plays it.</source>
        <translation>此位址沒有影片。請尋找播放該影片的頁面。</translation>
    </message>
    <message>
        <source>There is no log yet</source>
        <translation>尚無記錄</translation>
    </message>
    <message>
        <source>There is no newer download engine.</source>
        <translation>沒有較新的下載引擎。</translation>
    </message>
    <message>
        <source>There is no picture at this place.</source>
        <translation>此處沒有畫面。</translation>
    </message>
    <message>
        <source>There is no screen "%1". There is: %2.</source>
        <translation>沒有螢幕「%1」。可用的螢幕：%2。</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation>磁碟空間不足。請釋出一些空間後再次轉換。</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and try again; what has come is kept.</source>
        <translation>磁碟空間不足。請釋出一些空間後再試一次；已收到的內容會保留。</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>此檔案不存在。</translation>
    </message>
    <message>
        <source>There is no video or sound file in it.</source>
        <translation>其中沒有影片或聲音檔案。</translation>
    </message>
    <message>
        <source>There is no window %1 to be seen.</source>
        <translation>看不到視窗 %1。</translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation>記憶體不足，無法轉換此檔案。</translation>
    </message>
    <message>
        <source>There is not enough memory to read this disc.</source>
        <translation>記憶體不足，無法讀取此光碟。</translation>
    </message>
    <message>
        <source>There is not enough space: %1 are needed and %2 are free. Free some, or choose another folder in the settings.</source>
        <translation>空間不足：需要 %1，可用 %2。請釋出一些空間，或在設定中選擇其他檔案夾。</translation>
    </message>
    <message>
        <source>There is nothing to convert.</source>
        <translation>沒有可轉換的內容。</translation>
    </message>
    <message>
        <source>There is too little space on the disk to record.</source>
        <translation>磁碟空間太小，無法錄製。</translation>
    </message>
    <message>
        <source>They become MP4, MKV, WebM or MP3, as you choose.</source>
        <translation>可依您的選擇轉換為 MP4、MKV、WebM 或 MP3。</translation>
    </message>
    <message>
        <source>This address is of no site that Kestrel knows. Check it, or look for the page that plays the film.</source>
        <translation>此位址不屬於 Kestrel 認識的網站。請檢查位址，或尋找播放該影片的頁面。</translation>
    </message>
    <message>
        <source>This choice is kept until you quit.</source>
        <translation>此選擇會保留到您結束為止。</translation>
    </message>
    <message>
        <source>This computer has no hardware encoder for H.264 video.</source>
        <translation>此電腦沒有 H.264 視訊硬體編碼器。</translation>
    </message>
    <message>
        <source>This disc is being copied to this folder already.</source>
        <translation>此光碟已在拷貝到此檔案夾。</translation>
    </message>
    <message>
        <source>This disc is copy-protected and cannot be read.</source>
        <translation>此光碟受拷貝保護，無法讀取。</translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation>無法讀取此檔案。</translation>
    </message>
    <message>
        <source>This file has neither picture nor sound to convert.</source>
        <translation>此檔案沒有可轉換的畫面和聲音。</translation>
    </message>
    <message>
        <source>This file has no picture to convert.</source>
        <translation>此檔案沒有可轉換的畫面。</translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation>此檔案沒有可轉換的聲音。</translation>
    </message>
    <message>
        <source>This file holds no presets of Kestrel.</source>
        <translation>此檔案不包含 Kestrel 的預設組合。</translation>
    </message>
    <message>
        <source>This file is damaged, or it holds neither video nor sound.</source>
        <translation>此檔案已損毀，或不包含影片和聲音。</translation>
    </message>
    <message>
        <source>This film has no sound. Choose a format with a picture for it.</source>
        <translation>此影片沒有聲音。請為其選擇帶畫面的格式。</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>無法寫入此資料夾。</translation>
    </message>
    <message>
        <source>This is another disc, which is also called %1.</source>
        <translation>這是另一張光碟，名稱也是 %1。</translation>
    </message>
    <message>
        <source>This is another disc: %1 instead of %2.</source>
        <translation>這是另一張光碟：%1，而不是 %2。</translation>
    </message>
    <message>
        <source>This is no address that can be downloaded from.</source>
        <translation>無法從此位址下載。</translation>
    </message>
    <message>
        <source>This is no preset.</source>
        <translation>這不是預設組合。</translation>
    </message>
    <message>
        <source>This is no text file</source>
        <translation>這不是文字檔</translation>
    </message>
    <message>
        <source>This is no video DVD: there is no VIDEO_TS on it.</source>
        <translation>這不是視訊 DVD：其中沒有 VIDEO_TS。</translation>
    </message>
    <message>
        <source>This is no video or sound file.</source>
        <translation>這不是影片或聲音檔案。</translation>
    </message>
    <message>
        <source>This preset has no name.</source>
        <translation>此預設組合沒有名稱。</translation>
    </message>
    <message>
        <source>This preset keeps neither picture nor sound.</source>
        <translation>此預設組合既不保留畫面，也不保留聲音。</translation>
    </message>
    <message>
        <source>This preset was made by a newer version of Kestrel.</source>
        <translation>此預設組合由較新版本的 Kestrel 建立。</translation>
    </message>
    <message>
        <source>This title has no sound to keep.</source>
        <translation>此標題沒有可保留的聲音。</translation>
    </message>
    <message>
        <source>Time at which the recording begins</source>
        <translation>錄製開始的時間</translation>
    </message>
    <message>
        <source>Time line</source>
        <translation>時間列</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>標題</translation>
    </message>
    <message>
        <source>Title %1</source>
        <translation>標題 %1</translation>
    </message>
    <message>
        <source>Title %1 of the copy has %2 chapters instead of %3.</source>
        <translation>副本的標題 %1 有 %2 個章節，而不是 %3 個。</translation>
    </message>
    <message>
        <source>Title %1 of the copy has other tracks than the disc.</source>
        <translation>副本的標題 %1 的軌道與光碟不同。</translation>
    </message>
    <message>
        <source>Title %1 of the copy is %2 s long instead of %3 s.</source>
        <translation>副本的標題 %1 長度為 %2 秒，而不是 %3 秒。</translation>
    </message>
    <message>
        <source>Title %1, the main film</source>
        <translation>標題 %1，正片</translation>
    </message>
    <message>
        <source>Titles as MPEG-2 files</source>
        <translation>將標題存為 MPEG-2 檔案</translation>
    </message>
    <message>
        <source>Titles of the disc</source>
        <translation>光碟的標題</translation>
    </message>
    <message>
        <source>Titles, unchanged (MKV)</source>
        <translation>標題，保持原樣（MKV）</translation>
    </message>
    <message>
        <source>To chapter</source>
        <translation>結束章節</translation>
    </message>
    <message>
        <source>Too many lines have this text: the newest %1 are shown.</source>
        <translation>包含此文字的行過多：顯示最新的 %1 行。</translation>
    </message>
    <message>
        <source>Too many requests: the server is asked again in %1 s</source>
        <translation>要求過多：%1 秒後再次詢問伺服器</translation>
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
        <translation>軌道 %1</translation>
    </message>
    <message>
        <source>Transcoder</source>
        <translation>轉碼器</translation>
    </message>
    <message>
        <source>Trial</source>
        <translation>試轉換</translation>
    </message>
    <message>
        <source>Try 10 Seconds</source>
        <translation>試轉換 10 秒</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>旋轉</translation>
    </message>
    <message>
        <source>Turned into standard</source>
        <translation>轉換為標準</translation>
    </message>
    <message>
        <source>Unable to connect to update server.</source>
        <translation>無法連接更新伺服器。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Unknown language</source>
        <translation>未知的語言</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>不限</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>直到手動停止</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>Update Download Engine</source>
        <translation>更新下載引擎</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>上下顛倒</translation>
    </message>
    <message>
        <source>Use This Area</source>
        <translation>使用此區域</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>使用代理</translation>
    </message>
    <message>
        <source>Use the graphics hardware</source>
        <translation>使用圖形硬體</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>常用</translation>
    </message>
    <message>
        <source>Usual microphone</source>
        <translation>預設麥克風</translation>
    </message>
    <message>
        <source>Version: %@</source>
        <translation>版本：%@</translation>
    </message>
    <message>
        <source>Very Small MP4 Video (480p)</source>
        <translation>超小型 MP4 影片（480p）</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>視訊</translation>
    </message>
    <message>
        <source>Video Converter</source>
        <translation>影片轉換</translation>
    </message>
    <message>
        <source>Video folder</source>
        <translation>視訊資料夾</translation>
    </message>
    <message>
        <source>Video or sound file</source>
        <translation>影片或聲音檔案</translation>
    </message>
    <message>
        <source>Videos and music from the web are saved in the form that you choose.</source>
        <translation>網路上的影片和音樂會以您選擇的形式儲存。</translation>
    </message>
    <message>
        <source>Visit our website:</source>
        <translation>造訪我們的網站：</translation>
    </message>
    <message>
        <source>Visit website</source>
        <translation>造訪網站</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>WAV Audio</source>
        <translation>WAV 音訊</translation>
    </message>
    <message>
        <source>WMA Audio</source>
        <translation>WMA 音訊</translation>
    </message>
    <message>
        <source>WMV Video</source>
        <translation>WMV 影片</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>正在等待網路連線</translation>
    </message>
    <message>
        <source>Waiting for space on the disk: %1 needed</source>
        <translation>正在等待磁碟空間：需要 %1</translation>
    </message>
    <message>
        <source>Waiting for the network, next attempt in %1 s</source>
        <translation>正在等待網路，%1 秒後重試</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>正在等待伺服器…</translation>
    </message>
    <message>
        <source>Waiting for your choice in the desktop's dialog…</source>
        <translation>正在等待您在桌面對話框中選擇…</translation>
    </message>
    <message>
        <source>Waiting: %1 downloads from this server are under way</source>
        <translation>正在等待：正從此伺服器下載 %1 個項目</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>浮水印</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>網頁</translation>
    </message>
    <message>
        <source>WebM Video (AV1, Opus)</source>
        <translation>WebM 影片（AV1、Opus）</translation>
    </message>
    <message>
        <source>WebM Video (VP8, Vorbis)</source>
        <translation>WebM 影片（VP8、Vorbis）</translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation>WebM 影片（VP9、Opus）</translation>
    </message>
    <message>
        <source>What has been recorded will be deleted.</source>
        <translation>已錄製的內容將被刪除。</translation>
    </message>
    <message>
        <source>What has come cannot be moved to that folder, so it stays where it is.</source>
        <translation>已收到的內容無法移到該檔案夾，因此保留在原處。</translation>
    </message>
    <message>
        <source>What the server sent is no film. Open the address in a browser to see what it is.</source>
        <translation>伺服器傳送的內容不是影片。請在瀏覽器中打開該位址以查看其內容。</translation>
    </message>
    <message>
        <source>What the site answered could not be understood. Update the download engine and try again.</source>
        <translation>無法理解網站的回應。請更新下載引擎，然後再試一次。</translation>
    </message>
    <message>
        <source>What this preset makes cannot be fitted to a size.</source>
        <translation>此預設組合產生的內容無法符合指定大小。</translation>
    </message>
    <message>
        <source>What to record</source>
        <translation>錄製內容</translation>
    </message>
    <message>
        <source>What you stop now is offered to you again at the next start.</source>
        <translation>您現在停止的工作會在下次啟動時再次提供。</translation>
    </message>
    <message>
        <source>Where it is needed</source>
        <translation>需要時</translation>
    </message>
    <message>
        <source>Whole Picture</source>
        <translation>整個畫面</translation>
    </message>
    <message>
        <source>Width of the picture</source>
        <translation>圖片寬度</translation>
    </message>
    <message>
        <source>Will not be accepted. Example: http://proxy.example.com or socks5://10.0.0.1</source>
        <translation>不會被接受。範例：http://proxy.example.com 或 socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>視窗</translation>
    </message>
    <message>
        <source>Window by a click…</source>
        <translation>按一下選擇視窗…</translation>
    </message>
    <message>
        <source>Window: %1</source>
        <translation>視窗：%1</translation>
    </message>
    <message>
        <source>Without encoding, what starts at %1 begins at %2.</source>
        <translation>不重新編碼時，從 %1 開始的部分實際從 %2 開始。</translation>
    </message>
    <message>
        <source>Would you please send us the Log File to help us fix the issue?</source>
        <translation>您願意將記錄檔傳送給我們，以協助我們解決此問題嗎？</translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation>您沒有讀取此檔案的權限。</translation>
    </message>
    <message>
        <source>You're up-to-date!</source>
        <translation>已是最新版本</translation>
    </message>
    <message>
        <source>Your mail program could not be opened.</source>
        <translation>無法打開您的郵件程式。</translation>
    </message>
    <message>
        <source>Your screen, as a video</source>
        <translation>讓螢幕成為影片</translation>
    </message>
    <message>
        <source>Your settings cannot be saved at the moment. Kestrel tries again when it is quit.</source>
        <translation>目前無法儲存您的設定。Kestrel 會在結束時重試。</translation>
    </message>
    <message>
        <source>Your settings could not be saved when Kestrel was last quit.</source>
        <translation>上次結束 Kestrel 時無法儲存您的設定。</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>縮放</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>剩餘約 %1 小時</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>剩餘約 %1 分鐘</translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>剩餘約 1 分鐘</translation>
    </message>
    <message>
        <source>another commentary</source>
        <translation>另一評論音軌</translation>
    </message>
    <message>
        <source>closetip</source>
        <translation>關閉提示</translation>
    </message>
    <message>
        <source>commentary</source>
        <translation>評論音軌</translation>
    </message>
    <message>
        <source>for children</source>
        <translation>兒童版</translation>
    </message>
    <message>
        <source>for the hard of hearing</source>
        <translation>適合聽障人士</translation>
    </message>
    <message>
        <source>for the visually impaired</source>
        <translation>適合視障人士</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>強制</translation>
    </message>
    <message>
        <source>kept as it is</source>
        <translation>保持原樣</translation>
    </message>
    <message>
        <source>large</source>
        <translation>大字</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>剩餘不到 1 分鐘</translation>
    </message>
    <message>
        <source>same as title %1</source>
        <translation>與標題 %1 相同</translation>
    </message>
    <message>
        <source>showtip</source>
        <translation>顯示提示</translation>
    </message>
    <message>
        <source>{name}, {preset}, {folder} and {date} are filled in.</source>
        <translation>{name}、{preset}、{folder} 和 {date} 會替換為實際內容。</translation>
    </message>
    <message>
        <source>“%1” could not be played.</source>
        <translation>無法播放「%1」。</translation>
    </message>
</context>
</TS>
