<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>TarnwellPublic</name>
    <message>
        <source>%1 (%2 threads)</source>
        <translation>%1（%2スレッド）</translation>
    </message>
    <message>
        <source>%1 (sound only)</source>
        <translation>%1（音声のみ）</translation>
    </message>
    <message>
        <source>%1 - Title %2</source>
        <translation>%1 - タイトル%2</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 MB are too few for a file of this length.</source>
        <translation>%1 MBは、この長さのファイルには小さすぎます。</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1、ほか%2個</translation>
    </message>
    <message>
        <source>%1 angles</source>
        <translation>%1アングル</translation>
    </message>
    <message>
        <source>%1 chapters</source>
        <translation>%1チャプター</translation>
    </message>
    <message>
        <source>%1 dB</source>
        <translation>%1 dB</translation>
    </message>
    <message>
        <source>%1 dropped</source>
        <translation>%1 コマ落ち</translation>
    </message>
    <message>
        <source>%1 files selected</source>
        <translation>%1個のファイルを選択中</translation>
    </message>
    <message>
        <source>%1 has fewer tracks of sound than other files: what it lacks is silent.</source>
        <translation>%1 は音声トラックがほかのファイルより少ないため、足りない部分は無音になります。</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 of %2 pictures came too late: the one before stands for them.</source>
        <translation>%2 枚中 %1 枚の画像が間に合わず、直前の画像で補いました。</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, %3 faults</source>
        <translation>%2秒のうち%1秒を読み込めました（エラー%3件）</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read, 1 fault</source>
        <translation>%2秒のうち%1秒を読み込めました（エラー1件）</translation>
    </message>
    <message>
        <source>%1 of %2 s could be read.</source>
        <translation>%2秒のうち%1秒を読み込めました。</translation>
    </message>
    <message>
        <source>%1 pictures a second</source>
        <translation>毎秒 %1 フレーム</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1秒</translation>
    </message>
    <message>
        <source>%1 s could be read, %2 faults</source>
        <translation>%1秒を読み込めました（エラー%2件）</translation>
    </message>
    <message>
        <source>%1 s could be read, 1 fault</source>
        <translation>%1秒を読み込めました（エラー1件）</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the copy.</source>
        <translation>ディスクの%1セクタを読み込めず、コピーでは空になっています。</translation>
    </message>
    <message>
        <source>%1 sectors of the disc could not be read and are empty in the image.</source>
        <translation>ディスクの%1セクタを読み込めず、イメージでは空になっています。</translation>
    </message>
    <message>
        <source>%1 sectors of the film could not be read.</source>
        <translation>映像の%1セクタを読み込めませんでした。</translation>
    </message>
    <message>
        <source>%1 titles</source>
        <translation>%1タイトル</translation>
    </message>
    <message>
        <source>%1 to go</source>
        <translation>残り%1個</translation>
    </message>
    <message>
        <source>%1 ×</source>
        <translation>%1倍</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>%@ %@ is currently the latest version available.</source>
        <translation>現在利用できる最新のバージョンは%@ %@です。</translation>
    </message>
    <message>
        <source>%@ %@ is now available -- you're running %@. Would you like to update now?</source>
        <translation>%@ %@が利用できるようになりました。現在お使いのバージョンは%@です。今すぐアップデートしますか？</translation>
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
        <translation>結合したファイルごとにチャプターを作成</translation>
    </message>
    <message>
        <source>A disc of the chosen title alone, without menus, that players start at once.</source>
        <translation>選んだタイトルだけのディスク。メニューはなく、プレーヤーですぐに再生が始まります。</translation>
    </message>
    <message>
        <source>A file of the kind %1 cannot hold what this preset asks for: %2.</source>
        <translation>%1形式のファイルには、このプリセットが求めるもの（%2）を保存できません。</translation>
    </message>
    <message>
        <source>A folder has no sectors to copy. Choose another way.</source>
        <translation>フォルダにはコピーするセクタがありません。別の方法を選んでください。</translation>
    </message>
    <message>
        <source>A new version of %@ is available!</source>
        <translation>%@の新しいバージョンがあります</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>プリセットには名前が必要です。</translation>
    </message>
    <message>
        <source>A recording is to begin at %1.</source>
        <translation>%1 に録画が始まります。</translation>
    </message>
    <message>
        <source>AC-3 Audio</source>
        <translation>AC-3オーディオ</translation>
    </message>
    <message>
        <source>AIFF Audio</source>
        <translation>AIFFオーディオ</translation>
    </message>
    <message>
        <source>APNG Animation</source>
        <translation>APNGアニメーション</translation>
    </message>
    <message>
        <source>AVI Video (MPEG-4, MP3)</source>
        <translation>AVIビデオ（MPEG-4、MP3）</translation>
    </message>
    <message>
        <source>AVI Video (Motion JPEG, PCM)</source>
        <translation>AVIビデオ（Motion JPEG、PCM）</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>About %1.</source>
        <translation>約%1。</translation>
    </message>
    <message>
        <source>About %@</source>
        <translation>%@について</translation>
    </message>
    <message>
        <source>About Kestrel</source>
        <translation>Kestrelについて</translation>
    </message>
    <message>
        <source>About Our Company Tarnwell Software, Inc.</source>
        <translation>会社について: Tarnwell Software, Inc.</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1個を追加</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>ファイルを追加…</translation>
    </message>
    <message>
        <source>Add Subtitle File…</source>
        <translation>字幕ファイルを追加…</translation>
    </message>
    <message>
        <source>Adding the subtitles…</source>
        <translation>字幕を追加中…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Address of a video or a page, such as https://…</source>
        <translation>ビデオまたはページのアドレス（例: https://…）</translation>
    </message>
    <message>
        <source>Aim</source>
        <translation>目標</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>All Formats</source>
        <translation>すべての形式</translation>
    </message>
    <message>
        <source>All Formats…</source>
        <translation>すべての形式…</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>All files of the disc in a folder, with its menus.</source>
        <translation>ディスクのすべてのファイルを、メニューも含めてフォルダに保存します。</translation>
    </message>
    <message>
        <source>All jobs are done.</source>
        <translation>すべてのジョブが完了しました。</translation>
    </message>
    <message>
        <source>All jobs have ended.</source>
        <translation>すべてのジョブが終了しました。</translation>
    </message>
    <message>
        <source>All languages</source>
        <translation>すべての言語</translation>
    </message>
    <message>
        <source>All sound tracks of the chosen titles with their chapters.</source>
        <translation>選んだタイトルのすべての音声トラックを、チャプター付きで保存します。</translation>
    </message>
    <message>
        <source>Allow Many From One Server</source>
        <translation>同じサーバーからの多数のダウンロードを許可</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>すでにリストにあります: %1</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>常に</translation>
    </message>
    <message>
        <source>Always kept</source>
        <translation>常に維持</translation>
    </message>
    <message>
        <source>Always, twice the pictures</source>
        <translation>常に（コマ数を2倍に）</translation>
    </message>
    <message>
        <source>An address is for example http://proxy.example.com or socks5://10.0.0.1.</source>
        <translation>アドレスの例: http://proxy.example.com、socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>アングル</translation>
    </message>
    <message>
        <source>Another folder…</source>
        <translation>別のフォルダ…</translation>
    </message>
    <message>
        <source>App Log</source>
        <translation>アプリのログ</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>アーカイブ</translation>
    </message>
    <message>
        <source>Are you sure you want to reset profile?</source>
        <translation>プロファイルをリセットしてもよろしいですか？</translation>
    </message>
    <message>
        <source>Are you sure you want to restart the application now?</source>
        <translation>アプリケーションを今すぐ再起動しますか？</translation>
    </message>
    <message>
        <source>Artist and album. %1 cannot hold them.</source>
        <translation>アーティストとアルバム。%1 には入れられません。</translation>
    </message>
    <message>
        <source>As the format has it</source>
        <translation>形式の設定どおり</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>ソースと同じ</translation>
    </message>
    <message>
        <source>Asking the site…</source>
        <translation>サイトに問い合わせ中…</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>上限</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Backup DVDs in 6 modes, rip a full DVD to 180+ formats to play on Mac &amp; mobiles, store on hard drive, or enjoy on TV, etc. Rip a full DVD in 5 minutes!</source>
        <translation>6種類のモードでDVDをバックアップし、DVD全体を180種類以上の形式に変換できます。Macやモバイル機器での再生、ハードディスクへの保存、テレビでの視聴などに対応。DVD1枚を5分でリッピングできます。</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Begin at a time…</source>
        <translation>時刻を指定して開始…</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <translation>すぐに開始</translation>
    </message>
    <message>
        <source>Beside the source</source>
        <translation>ソースと同じ場所</translation>
    </message>
    <message>
        <source>Best quality</source>
        <translation>最高画質</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>ビットレート</translation>
    </message>
    <message>
        <source>Bit rate of a track</source>
        <translation>トラックのビットレート</translation>
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
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Build on: %@</source>
        <translation>ビルド日: %@</translation>
    </message>
    <message>
        <source>Burnt into the picture</source>
        <translation>映像に焼き付ける</translation>
    </message>
    <message>
        <source>CAF Audio (ALAC)</source>
        <translation>CAFオーディオ（ALAC）</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>カメラ%1</translation>
    </message>
    <message>
        <source>Camera %1 in the picture</source>
        <translation>映像内にカメラ %1</translation>
    </message>
    <message>
        <source>Camera in the picture</source>
        <translation>映像内のカメラ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Cancel the Trial</source>
        <translation>試し変換をキャンセル</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセルしました</translation>
    </message>
    <message>
        <source>Cancelled: %1</source>
        <translation>キャンセル: %1</translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation>使用できません</translation>
    </message>
    <message>
        <source>Change video &amp; audio formats, resize video files, edit 4K, 5K, 8K videos, like cut, merge, split, rotate, subtitle, watermark, etc. Experience No.1 fast hardware-accelerated processing.</source>
        <translation>ビデオやオーディオの形式を変換し、ファイルサイズを調整できます。4K、5K、8Kビデオのカット、結合、分割、回転、字幕や透かしの追加などの編集にも対応しています。最速のハードウェアアクセラレーション処理をご体験ください。</translation>
    </message>
    <message>
        <source>Changes to the languages take effect upon relaunch.</source>
        <translation>言語の変更は再起動後に反映されます。</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Channels of the sound: %1. %2 become %3.</source>
        <translation>音声チャンネル：%1。%2 から %3 になります。</translation>
    </message>
    <message>
        <source>Chapter %1</source>
        <translation>チャプター%1</translation>
    </message>
    <message>
        <source>Chapters are missing in the finished file.</source>
        <translation>完成したファイルにチャプターがありません。</translation>
    </message>
    <message>
        <source>Chapters, languages and the colours of subtitles, which MPEG-2 files cannot hold</source>
        <translation>チャプター、言語、字幕の色（MPEG-2ファイルには保存できません）</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Checking for updates.. </source>
        <translation>アップデートを確認中… </translation>
    </message>
    <message>
        <source>Checking the copy…</source>
        <translation>コピーを確認中…</translation>
    </message>
    <message>
        <source>Checking the finished file…</source>
        <translation>完成したファイルを確認中…</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Choose Films</source>
        <translation>ビデオを選択</translation>
    </message>
    <message>
        <source>Choose Films…</source>
        <translation>映像を選択…</translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Choose a Window</source>
        <translation>ウインドウを選択</translation>
    </message>
    <message>
        <source>Choose above what is recorded, then press Record.</source>
        <translation>上で録画する対象を選んで、「録画する」を押してください。</translation>
    </message>
    <message>
        <source>Choose an Area</source>
        <translation>範囲を選択</translation>
    </message>
    <message>
        <source>Choose another one, or allow yourself to write to it: %1</source>
        <translation>別のフォルダーを選ぶか、書き込みを許可してください: %1</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>すべて削除</translation>
    </message>
    <message>
        <source>Click the window that is to be recorded</source>
        <translation>録画するウインドウをクリックしてください</translation>
    </message>
    <message>
        <source>Clockwise</source>
        <translation>時計回り</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Computer and microphone</source>
        <translation>コンピュータとマイク</translation>
    </message>
    <message>
        <source>Computer and microphone, a track each</source>
        <translation>コンピュータとマイク（別々のトラック）</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>接続中…</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>変換</translation>
    </message>
    <message>
        <source>Convert &amp; Backup DVD</source>
        <translation>DVDの変換とバックアップ</translation>
    </message>
    <message>
        <source>Convert &amp; Process Video</source>
        <translation>ビデオの変換と加工</translation>
    </message>
    <message>
        <source>Converting ten seconds: %1 %</source>
        <translation>10秒分を変換中: %1%</translation>
    </message>
    <message>
        <source>Converting…</source>
        <translation>変換中…</translation>
    </message>
    <message>
        <source>Converting… %1 %</source>
        <translation>変換中… %1 %</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>コピーしました。</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copyright © 2019-%@ Tarnwell Software, Inc. All rights reserved.</source>
        <translation>Copyright © 2019-%@ Tarnwell Software, Inc. 無断転載を禁じます。</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>コア</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>位置（隅）</translation>
    </message>
    <message>
        <source>Count down from three</source>
        <translation>3からカウントダウン</translation>
    </message>
    <message>
        <source>Counterclockwise</source>
        <translation>反時計回り</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>カバー</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>カット</translation>
    </message>
    <message>
        <source>Cut and Edit</source>
        <translation>カットと編集</translation>
    </message>
    <message>
        <source>Cut and Edit…</source>
        <translation>カットと編集…</translation>
    </message>
    <message>
        <source>Cut exactly (encodes)</source>
        <translation>正確にカット（再エンコード）</translation>
    </message>
    <message>
        <source>Cut off bottom</source>
        <translation>下端を切り取る</translation>
    </message>
    <message>
        <source>Cut off left</source>
        <translation>左端を切り取る</translation>
    </message>
    <message>
        <source>Cut off right</source>
        <translation>右端を切り取る</translation>
    </message>
    <message>
        <source>Cut off top</source>
        <translation>上端を切り取る</translation>
    </message>
    <message>
        <source>Cut or Convert…</source>
        <translation>カットまたは変換…</translation>
    </message>
    <message>
        <source>Cut without encoding: it begins at the key picture at or before %1 s.</source>
        <translation>エンコードなしのカット：%1 秒またはその前のキーフレームから始まります。</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>カット</translation>
    </message>
    <message>
        <source>DTS</source>
        <translation>DTS</translation>
    </message>
    <message>
        <source>DV Video</source>
        <translation>DVビデオ</translation>
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
        <translation>DVDリッピング</translation>
    </message>
    <message>
        <source>Data of the camera, such as time code.</source>
        <translation>タイムコードなど、カメラのデータ。</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>デフォルト</translation>
    </message>
    <message>
        <source>Deinterlacing</source>
        <translation>インターレース解除</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Details…</source>
        <translation>詳細…</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Disc Player (VOB)</source>
        <translation>ディスクプレーヤー（VOB）</translation>
    </message>
    <message>
        <source>Disc folder with menus</source>
        <translation>メニュー付きのディスクフォルダ</translation>
    </message>
    <message>
        <source>Disc image (ISO)</source>
        <translation>ディスクイメージ（ISO）</translation>
    </message>
    <message>
        <source>Disc images</source>
        <translation>ディスクイメージ</translation>
    </message>
    <message>
        <source>Discard Recording</source>
        <translation>録画を破棄</translation>
    </message>
    <message>
        <source>Dolby Digital</source>
        <translation>Dolby Digital</translation>
    </message>
    <message>
        <source>Don't Record</source>
        <translation>録画しない</translation>
    </message>
    <message>
        <source>Don't Shut Down</source>
        <translation>シャットダウンしない</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Done with problems</source>
        <translation>完了（問題あり）</translation>
    </message>
    <message>
        <source>Done with problems: %1</source>
        <translation>完了（問題あり）: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>完了: %1</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Download Now</source>
        <translation>今すぐダウンロード</translation>
    </message>
    <message>
        <source>Download Video</source>
        <translation>ビデオをダウンロード</translation>
    </message>
    <message>
        <source>Download format</source>
        <translation>ダウンロード形式</translation>
    </message>
    <message>
        <source>Download resolution</source>
        <translation>ダウンロード解像度</translation>
    </message>
    <message>
        <source>Download ultra-high quality online streaming videos and music from YouTube Facebook and 1000+ sites. Convert downloaded files to MP4, MP3, etc.</source>
        <translation>YouTube、Facebookなど1000以上のサイトから、超高画質のストリーミングビデオや音楽をダウンロードできます。ダウンロードしたファイルはMP4、MP3などに変換できます。</translation>
    </message>
    <message>
        <source>Downloader</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Downloads at the same time</source>
        <translation>同時ダウンロード数</translation>
    </message>
    <message>
        <source>Downloads that are running keep the limit that they began with.</source>
        <translation>実行中のダウンロードには、開始時の制限がそのまま適用されます。</translation>
    </message>
    <message>
        <source>Draw an area, then press Return</source>
        <translation>範囲をドラッグして、Returnキーを押してください</translation>
    </message>
    <message>
        <source>Drawn into the film, for players that show none themselves.</source>
        <translation>字幕を表示できないプレーヤーのために、映像に焼き込みます。</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Drop videos or folders anywhere in this window, choose a format below and press Convert. The results go to the output folder; your own files stay as they are.</source>
        <translation>ビデオまたはフォルダをこのウインドウにドロップし、下で形式を選んで「変換」を押してください。変換結果は出力フォルダに保存され、元のファイルは変更されません。</translation>
    </message>
    <message>
        <source>Drop videos or folders here</source>
        <translation>ここにビデオまたはフォルダをドロップ</translation>
    </message>
    <message>
        <source>E-AC-3 Audio</source>
        <translation>E-AC-3オーディオ</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Encoding in software</source>
        <translation>ソフトウェアでエンコード中</translation>
    </message>
    <message>
        <source>Encoding once more, to meet the size</source>
        <translation>サイズに合わせるためもう一度エンコード中</translation>
    </message>
    <message>
        <source>Encoding, because the tracks could not be copied</source>
        <translation>トラックをコピーできなかったため、エンコードしています</translation>
    </message>
    <message>
        <source>End</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>End Here</source>
        <translation>ここで終了</translation>
    </message>
    <message>
        <source>Even out the loudness</source>
        <translation>音量を均一にする</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出す</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>書き出す…</translation>
    </message>
    <message>
        <source>FLAC Audio</source>
        <translation>FLACオーディオ</translation>
    </message>
    <message>
        <source>FLV Video (H.264, AAC)</source>
        <translation>FLVビデオ（H.264、AAC）</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>フェードイン</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>フェードアウト</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失敗: %1</translation>
    </message>
    <message>
        <source>Faster, larger file</source>
        <translation>速い、ファイルは大きめ</translation>
    </message>
    <message>
        <source>Fastest, largest file</source>
        <translation>最も速い、ファイルは最大</translation>
    </message>
    <message>
        <source>File size at most</source>
        <translation>ファイルサイズの上限</translation>
    </message>
    <message>
        <source>Files can be cut or joined, but not both at once.</source>
        <translation>ファイルはカットまたは結合できますが、両方を同時に行うことはできません。</translation>
    </message>
    <message>
        <source>Film from television (24)</source>
        <translation>テレビ放送の映画（24）</translation>
    </message>
    <message>
        <source>Films and files without a picture can be joined only into a file of sound.</source>
        <translation>映像と、映像のないファイルは、音声ファイルとしてのみ結合できます。</translation>
    </message>
    <message>
        <source>Films at this address</source>
        <translation>このアドレスのビデオ</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>絞り込み</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Find Black Bars</source>
        <translation>黒帯を検出</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>次を検索</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>前を検索</translation>
    </message>
    <message>
        <source>Finishing…</source>
        <translation>仕上げ中…</translation>
    </message>
    <message>
        <source>First pass</source>
        <translation>1回目の処理</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>自動スクロール</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>すべてのファイルに適用</translation>
    </message>
    <message>
        <source>For example: %1</source>
        <translation>例: %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>Format and options in use are kept under this name:</source>
        <translation>使用中の形式とオプションを次の名前で保存します:</translation>
    </message>
    <message>
        <source>Formats</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>Found after going around the end of the log.</source>
        <translation>ログの端から反対側へ折り返して見つかりました。</translation>
    </message>
    <message>
        <source>From chapter</source>
        <translation>開始チャプター</translation>
    </message>
    <message>
        <source>Full HD (1920 × 1080)</source>
        <translation>フルHD（1920 × 1080）</translation>
    </message>
    <message>
        <source>Further cover pictures beside the first.</source>
        <translation>2枚目以降のカバー画像。</translation>
    </message>
    <message>
        <source>Further pictures beside the first (other angles or previews).</source>
        <translation>1つ目以外の映像（別のアングルやプレビュー）。</translation>
    </message>
    <message>
        <source>GIF Animation</source>
        <translation>GIFアニメーション</translation>
    </message>
    <message>
        <source>Game Console</source>
        <translation>ゲーム機</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Good quality</source>
        <translation>高画質</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>了解</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>グラフィックス</translation>
    </message>
    <message>
        <source>H.264 decoders</source>
        <translation>H.264デコーダー</translation>
    </message>
    <message>
        <source>H.264 encoders</source>
        <translation>H.264エンコーダー</translation>
    </message>
    <message>
        <source>HD (1280 × 720)</source>
        <translation>HD（1280 × 720）</translation>
    </message>
    <message>
        <source>HEVC decoders</source>
        <translation>HEVCデコーダー</translation>
    </message>
    <message>
        <source>HEVC encoders</source>
        <translation>HEVCエンコーダー</translation>
    </message>
    <message>
        <source>Hardware Information</source>
        <translation>ハードウェア情報</translation>
    </message>
    <message>
        <source>Hardware acceleration:</source>
        <translation>ハードウェアアクセラレーション:</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>High dynamic range</source>
        <translation>ハイダイナミックレンジ</translation>
    </message>
    <message>
        <source>High dynamic range becomes standard range.</source>
        <translation>ハイダイナミックレンジを標準レンジに変換します。</translation>
    </message>
    <message>
        <source>High quality (slower)</source>
        <translation>高品質（低速）</translation>
    </message>
    <message>
        <source>Highest Resolution</source>
        <translation>最高解像度</translation>
    </message>
    <message>
        <source>How the disc is kept</source>
        <translation>ディスクの保存方法</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>読み込む</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>読み込む…</translation>
    </message>
    <message>
        <source>In a session of Wayland the desktop asks what is recorded: it cannot be named beforehand.</source>
        <translation>Wayland セッションでは、録画対象はデスクトップが確認します。前もって指定することはできません。</translation>
    </message>
    <message>
        <source>Intel</source>
        <translation>Intel</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>中断しました</translation>
    </message>
    <message>
        <source>It is shown here as soon as it is written: %1</source>
        <translation>書き込まれ次第、ここに表示されます: %1</translation>
    </message>
    <message>
        <source>Its titles are kept as they are, or become MP4, MKV or MP3, as you choose.</source>
        <translation>タイトルはそのまま保存するか、選んだ形式（MP4、MKV、MP3）に変換されます。</translation>
    </message>
    <message>
        <source>Jobs are running.</source>
        <translation>ジョブを実行中です。</translation>
    </message>
    <message>
        <source>Jobs are still running.</source>
        <translation>まだ実行中のジョブがあります。</translation>
    </message>
    <message>
        <source>Join all files into one</source>
        <translation>すべてのファイルを1つに結合</translation>
    </message>
    <message>
        <source>Join into One</source>
        <translation>1つに結合</translation>
    </message>
    <message>
        <source>Joining</source>
        <translation>結合中</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>実行を続ける</translation>
    </message>
    <message>
        <source>Keep Waiting</source>
        <translation>待ち続ける</translation>
    </message>
    <message>
        <source>Keep the Rest Instead</source>
        <translation>残りの部分を残す</translation>
    </message>
    <message>
        <source>Keep the date of the source</source>
        <translation>ソースの日付を維持</translation>
    </message>
    <message>
        <source>Keep tracks that fit as they are</source>
        <translation>合うトラックはそのまま残す</translation>
    </message>
    <message>
        <source>Kept as a track</source>
        <translation>トラックとして残す</translation>
    </message>
    <message>
        <source>Kept until you quit</source>
        <translation>終了するまで保持されます</translation>
    </message>
    <message>
        <source>Kept where it can be</source>
        <translation>可能なら維持</translation>
    </message>
    <message>
        <source>Kept: %1</source>
        <translation>残す部分: %1</translation>
    </message>
    <message>
        <source>Kestrel Help</source>
        <translation>Kestrelヘルプ</translation>
    </message>
    <message>
        <source>Kestrel Log</source>
        <translation>Kestrelログ</translation>
    </message>
    <message>
        <source>Kestrel Log — %1</source>
        <translation>Kestrelログ — %1</translation>
    </message>
    <message>
        <source>Kestrel does not know how long this file is, and cannot aim at a size.</source>
        <translation>このファイルの長さがわからないため、目標サイズに合わせられません。</translation>
    </message>
    <message>
        <source>Kestrel does not know the kind of file “%1” of this preset.</source>
        <translation>Kestrelは、このプリセットのファイルの種類「%1」に対応していません。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Language of %1</source>
        <translation>%1 の言語</translation>
    </message>
    <message>
        <source>Languages of sound</source>
        <translation>音声の言語</translation>
    </message>
    <message>
        <source>Languages of subtitles</source>
        <translation>字幕の言語</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>詳しい情報</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>除外: %1</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Lines with this text: %1</source>
        <translation>このテキストを含む行: %1</translation>
    </message>
    <message>
        <source>Lines with this text: %1, looking for more… %2 % (Esc stops)</source>
        <translation>このテキストを含む行: %1、検索中… %2%（Escで中止）</translation>
    </message>
    <message>
        <source>Log text</source>
        <translation>ログのテキスト</translation>
    </message>
    <message>
        <source>Looking at the hardware</source>
        <translation>ハードウェアを確認しています</translation>
    </message>
    <message>
        <source>Looking for a newer download engine…</source>
        <translation>新しいダウンロードエンジンを探しています…</translation>
    </message>
    <message>
        <source>Lossless sound: %1. It becomes %2.</source>
        <translation>ロスレスの音声: %1。%2になります。</translation>
    </message>
    <message>
        <source>M4A Audio (AAC)</source>
        <translation>M4Aオーディオ（AAC）</translation>
    </message>
    <message>
        <source>M4A Audio, Lossless (ALAC)</source>
        <translation>M4Aオーディオ、ロスレス（ALAC）</translation>
    </message>
    <message>
        <source>MKA Audio (Opus)</source>
        <translation>MKAオーディオ（Opus）</translation>
    </message>
    <message>
        <source>MKV Video (AV1, Opus)</source>
        <translation>MKVビデオ（AV1、Opus）</translation>
    </message>
    <message>
        <source>MKV Video (H.264, AAC)</source>
        <translation>MKVビデオ（H.264、AAC）</translation>
    </message>
    <message>
        <source>MKV Video (H.265, AAC)</source>
        <translation>MKVビデオ（H.265、AAC）</translation>
    </message>
    <message>
        <source>MKV Video (VP9, Opus)</source>
        <translation>MKVビデオ（VP9、Opus）</translation>
    </message>
    <message>
        <source>MKV Video, High Quality (H.265, FLAC)</source>
        <translation>MKVビデオ、高品質（H.265、FLAC）</translation>
    </message>
    <message>
        <source>MKV Video, Lossless (FFV1, FLAC)</source>
        <translation>MKVビデオ、ロスレス（FFV1、FLAC）</translation>
    </message>
    <message>
        <source>MOV Video (DNxHR, PCM)</source>
        <translation>MOVビデオ（DNxHR、PCM）</translation>
    </message>
    <message>
        <source>MOV Video (H.264, AAC)</source>
        <translation>MOVビデオ（H.264、AAC）</translation>
    </message>
    <message>
        <source>MOV Video (ProRes, PCM)</source>
        <translation>MOVビデオ（ProRes、PCM）</translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation>MP3オーディオ</translation>
    </message>
    <message>
        <source>MP4 Video (AV1, Opus)</source>
        <translation>MP4ビデオ（AV1、Opus）</translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation>MP4ビデオ（H.264、AAC）</translation>
    </message>
    <message>
        <source>MP4 Video (H.265, AAC)</source>
        <translation>MP4ビデオ（H.265、AAC）</translation>
    </message>
    <message>
        <source>MP4 Video for Web Pages (1080p)</source>
        <translation>Webページ用MP4ビデオ（1080p）</translation>
    </message>
    <message>
        <source>MPEG</source>
        <translation>MPEG</translation>
    </message>
    <message>
        <source>MPEG Video (MPEG-2, MP2)</source>
        <translation>MPEGビデオ（MPEG-2、MP2）</translation>
    </message>
    <message>
        <source>MPEG-4 movie (MP4)</source>
        <translation>MPEG-4 ムービー（MP4）</translation>
    </message>
    <message>
        <source>MXF Video (DNxHR, PCM)</source>
        <translation>MXFビデオ（DNxHR、PCM）</translation>
    </message>
    <message>
        <source>MXF Video (MPEG-2, PCM)</source>
        <translation>MXFビデオ（MPEG-2、PCM）</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>メディアファイル</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>Messages of the tools</source>
        <translation>ツールのメッセージ</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>マイク</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>モノラル</translation>
    </message>
    <message>
        <source>Music folder</source>
        <translation>ミュージックフォルダー</translation>
    </message>
    <message>
        <source>My Presets</source>
        <translation>マイプリセット</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>プリセットの名前:</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>しない</translation>
    </message>
    <message>
        <source>No camera in the picture</source>
        <translation>映像内にカメラなし</translation>
    </message>
    <message>
        <source>No camera was found.</source>
        <translation>カメラが見つかりませんでした。</translation>
    </message>
    <message>
        <source>No format matches the search.</source>
        <translation>検索に一致する形式はありません。</translation>
    </message>
    <message>
        <source>No log was named</source>
        <translation>ログが指定されていません</translation>
    </message>
    <message>
        <source>No more than %1 pieces can be kept.</source>
        <translation>残せる部分は%1個までです。</translation>
    </message>
    <message>
        <source>No picture of the copy could be decoded.</source>
        <translation>コピーの映像をデコードできませんでした。</translation>
    </message>
    <message>
        <source>No picture of this film could be decoded.</source>
        <translation>この映像をデコードできませんでした。</translation>
    </message>
    <message>
        <source>No server answers at this address. Check it and try again.</source>
        <translation>このアドレスではサーバーが応答しません。アドレスを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation>音声なし</translation>
    </message>
    <message>
        <source>No speed limit</source>
        <translation>速度制限なし</translation>
    </message>
    <message>
        <source>No subtitles</source>
        <translation>字幕なし</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>未選択</translation>
    </message>
    <message>
        <source>Not turned</source>
        <translation>回転なし</translation>
    </message>
    <message>
        <source>Not used yet</source>
        <translation>まだ使用されていません</translation>
    </message>
    <message>
        <source>Not used yet, kept until you quit</source>
        <translation>まだ使用されていません（終了するまで保持）</translation>
    </message>
    <message>
        <source>Nothing could be decoded at %1 s.</source>
        <translation>%1秒の位置では何もデコードできませんでした。</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>見つかりませんでした。</translation>
    </message>
    <message>
        <source>Nothing of the file could be converted.</source>
        <translation>ファイルのどの部分も変換できませんでした。</translation>
    </message>
    <message>
        <source>Nothing of the film could be read.</source>
        <translation>映像をまったく読み込めませんでした。</translation>
    </message>
    <message>
        <source>Nothing of the recording is left.</source>
        <translation>録画は何も残っていません。</translation>
    </message>
    <message>
        <source>Nothing of this file would be kept.</source>
        <translation>このファイルからは何も残りません。</translation>
    </message>
    <message>
        <source>Nothing was recorded.</source>
        <translation>何も録画されませんでした。</translation>
    </message>
    <message>
        <source>OGG Audio (Vorbis)</source>
        <translation>OGGオーディオ（Vorbis）</translation>
    </message>
    <message>
        <source>OGV Video (Theora, Vorbis)</source>
        <translation>OGVビデオ（Theora、Vorbis）</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Old Phone (3GP)</source>
        <translation>旧型の携帯電話（3GP）</translation>
    </message>
    <message>
        <source>One title as a disc folder</source>
        <translation>1タイトルをディスクフォルダに</translation>
    </message>
    <message>
        <source>Only %1 of %2 s have come.</source>
        <translation>%2秒のうち%1秒しか届いていません。</translation>
    </message>
    <message>
        <source>Only one track of subtitles can be burnt in; another one stays behind.</source>
        <translation>焼き付けられる字幕は1トラックだけです。ほかの字幕は除外されます。</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open Folder…</source>
        <translation>フォルダを開く…</translation>
    </message>
    <message>
        <source>Open Image…</source>
        <translation>イメージを開く…</translation>
    </message>
    <message>
        <source>Open the log with “App Log” in the Help menu of %1.</source>
        <translation>%1の「ヘルプ」メニューの「アプリのログ」でログを開いてください。</translation>
    </message>
    <message>
        <source>Open the output folder</source>
        <translation>出力フォルダを開く</translation>
    </message>
    <message>
        <source>Open the output folder when done</source>
        <translation>完了後に出力フォルダーを開く</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Opus Audio</source>
        <translation>Opusオーディオ</translation>
    </message>
    <message>
        <source>Original Sound, in an MKA File</source>
        <translation>元の音声をMKAファイルに</translation>
    </message>
    <message>
        <source>Original, in a MOV File</source>
        <translation>元のままMOVファイルに</translation>
    </message>
    <message>
        <source>Original, in a TS File</source>
        <translation>元のままTSファイルに</translation>
    </message>
    <message>
        <source>Original, in an MKV File</source>
        <translation>元のままMKVファイルに</translation>
    </message>
    <message>
        <source>Original, in an MP4 File</source>
        <translation>元のままMP4ファイルに</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>Output folder:</source>
        <translation>出力フォルダ:</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>出力形式</translation>
    </message>
    <message>
        <source>PCM</source>
        <translation>PCM</translation>
    </message>
    <message>
        <source>Page of options</source>
        <translation>オプションのページ</translation>
    </message>
    <message>
        <source>Part of the screen…</source>
        <translation>画面の一部…</translation>
    </message>
    <message>
        <source>Parts of the finished file are missing.</source>
        <translation>完成したファイルの一部が欠けています。</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>ペースト</translation>
    </message>
    <message>
        <source>Paste or drop addresses here</source>
        <translation>ここにアドレスをペーストまたはドロップ</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>スマートフォン</translation>
    </message>
    <message>
        <source>Phone (H.265)</source>
        <translation>スマートフォン（H.265）</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>映像</translation>
    </message>
    <message>
        <source>Picture, all sound, subtitles in their colours and chapters of the chosen titles, nothing encoded again.</source>
        <translation>選んだタイトルの映像、すべての音声、色付きの字幕、チャプターを、再エンコードせずに保存します。</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Pictures a second</source>
        <translation>1秒あたりのコマ数</translation>
    </message>
    <message>
        <source>Piece %1 of %2</source>
        <translation>部分%1 / %2</translation>
    </message>
    <message>
        <source>Pieces that are kept</source>
        <translation>残す部分</translation>
    </message>
    <message>
        <source>Place of the camera's picture</source>
        <translation>カメラ映像の位置</translation>
    </message>
    <message>
        <source>Places and styles of the subtitles: %1. %2 cannot hold them.</source>
        <translation>字幕の位置とスタイル: %1。%2には保存できません。</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Play Source</source>
        <translation>ソースを再生</translation>
    </message>
    <message>
        <source>Playing speed</source>
        <translation>再生速度</translation>
    </message>
    <message>
        <source>Plays Everywhere</source>
        <translation>どこでも再生</translation>
    </message>
    <message>
        <source>Please check that the disk has room and that this folder can be written: %1</source>
        <translation>ディスクに空きがあり、このフォルダに書き込めるか確認してください: %1</translation>
    </message>
    <message>
        <source>Please wait. Getting update information from the server...</source>
        <translation>しばらくお待ちください。サーバーからアップデート情報を取得しています…</translation>
    </message>
    <message>
        <source>Please write to %1 and attach this file: %2</source>
        <translation>このファイルを添付して%1までメールをお送りください: %2</translation>
    </message>
    <message>
        <source>Please write to this address: %1</source>
        <translation>このアドレスまでメールをお送りください: %1</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
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
        <translation>優先する音声言語</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Problem detected in last conversion.</source>
        <translation>前回の変換で問題が検出されました。</translation>
    </message>
    <message>
        <source>Processor</source>
        <translation>プロセッサ</translation>
    </message>
    <message>
        <source>Processor cores</source>
        <translation>プロセッサのコア数</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>プロキシのアドレス</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>プロキシのポート</translation>
    </message>
    <message>
        <source>Put a DVD in, or drop a disc image or folder here</source>
        <translation>DVDを入れるか、ディスクイメージまたはフォルダをここにドロップ</translation>
    </message>
    <message>
        <source>Putting picture and sound together…</source>
        <translation>映像と音声をまとめています…</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>画質</translation>
    </message>
    <message>
        <source>Quality (lower is better)</source>
        <translation>品質（小さいほど高品質）</translation>
    </message>
    <message>
        <source>QuickTime movie (MOV)</source>
        <translation>QuickTime ムービー（MOV）</translation>
    </message>
    <message>
        <source>Quit Kestrel</source>
        <translation>Kestrelを終了</translation>
    </message>
    <message>
        <source>Reading the disc…</source>
        <translation>ディスクを読み込み中…</translation>
    </message>
    <message>
        <source>Reading the disc… A drive may take half a minute for it.</source>
        <translation>ディスクを読み込み中… ドライブによっては30秒ほどかかります。</translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation>ファイルの読み込みまたは出力フォルダへの書き込みが許可されていません。アクセス権を確認してください。</translation>
    </message>
    <message>
        <source>Reading the file…</source>
        <translation>ファイルを読み込み中…</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>録画する</translation>
    </message>
    <message>
        <source>Record Video</source>
        <translation>ビデオを録画</translation>
    </message>
    <message>
        <source>Record screen/webcam/iPhone videos. Capture live streams, games, desktop, and anything in MOV for YouTube. Support recording screen and webcam at the same time.</source>
        <translation>画面、Webカメラ、iPhoneのビデオを録画できます。ライブ配信、ゲーム、デスクトップなど、あらゆる映像をYouTubeに適したMOVで記録します。画面とWebカメラの同時録画にも対応しています。</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>録画</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録画中</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>録画 %1</translation>
    </message>
    <message>
        <source>Recording begins at %1. Press Record to begin at once.</source>
        <translation>録画は %1 に始まります。「録画」を押すとすぐに始まります。</translation>
    </message>
    <message>
        <source>Recording begins in %1 s. Press Record to begin at once.</source>
        <translation>%1秒後に録画を開始します。すぐに開始するには「録画する」を押してください。</translation>
    </message>
    <message>
        <source>Recovered after an interruption.</source>
        <translation>中断後に復旧しました。</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Release Notes:</source>
        <translation>リリースノート:</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove Piece</source>
        <translation>この部分を削除</translation>
    </message>
    <message>
        <source>Remove With Partial File</source>
        <translation>途中のファイルごと削除</translation>
    </message>
    <message>
        <source>Removes what is done from the list. The files stay.</source>
        <translation>完了した項目をリストから削除します。ファイルは残ります。</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>名前を変更…</translation>
    </message>
    <message>
        <source>Report Bug</source>
        <translation>問題を報告</translation>
    </message>
    <message>
        <source>Reset Profiles</source>
        <translation>プロファイルをリセット</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>Safe mode: check the whole result</source>
        <translation>セーフモード: 結果全体を確認</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Save To…</source>
        <translation>保存先…</translation>
    </message>
    <message>
        <source>Save a Copy</source>
        <translation>コピーを保存</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>コピーを保存…</translation>
    </message>
    <message>
        <source>Save as Preset</source>
        <translation>プリセットとして保存</translation>
    </message>
    <message>
        <source>Save as Preset…</source>
        <translation>プリセットとして保存…</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>保存しました: %1</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>保存中…</translation>
    </message>
    <message>
        <source>Saving… %1 % (Esc stops)</source>
        <translation>保存中… %1%（Escで中止）</translation>
    </message>
    <message>
        <source>Screen %1 (%2 × %3)</source>
        <translation>画面%1（%2 × %3）</translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation>画面収録は利用できません</translation>
    </message>
    <message>
        <source>Screen or window (the desktop asks)</source>
        <translation>画面またはウインドウ（デスクトップが確認）</translation>
    </message>
    <message>
        <source>Scroll sideways</source>
        <translation>横にスクロール</translation>
    </message>
    <message>
        <source>Scroll up and down</source>
        <translation>縦にスクロール</translation>
    </message>
    <message>
        <source>Search Settings</source>
        <translation>設定を検索</translation>
    </message>
    <message>
        <source>Search formats</source>
        <translation>形式を検索</translation>
    </message>
    <message>
        <source>Search: MKV, AV1, FLAC …</source>
        <translation>検索: MKV、AV1、FLAC…</translation>
    </message>
    <message>
        <source>Searching… %1 % (Esc stops)</source>
        <translation>検索中… %1%（Escで中止）</translation>
    </message>
    <message>
        <source>Second pass</source>
        <translation>2回目の処理</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべてを選択</translation>
    </message>
    <message>
        <source>Select one file in the list to choose among its tracks.</source>
        <translation>トラックを選ぶには、リストでファイルを1つ選択してください。</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>フィードバックを送信</translation>
    </message>
    <message>
        <source>Send Report</source>
        <translation>レポートを送信</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Several formats</source>
        <translation>複数の形式</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Show File</source>
        <translation>ファイルを表示</translation>
    </message>
    <message>
        <source>Show clicks</source>
        <translation>クリックを表示</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>フォルダに表示</translation>
    </message>
    <message>
        <source>Show notifications</source>
        <translation>通知を表示</translation>
    </message>
    <message>
        <source>Show only lines with</source>
        <translation>このテキストを含む行だけ表示</translation>
    </message>
    <message>
        <source>Show the pointer</source>
        <translation>ポインタを表示</translation>
    </message>
    <message>
        <source>Shut down the computer when done</source>
        <translation>完了後にコンピューターをシャットダウン</translation>
    </message>
    <message>
        <source>Size at most</source>
        <translation>サイズの上限</translation>
    </message>
    <message>
        <source>Size: about %1</source>
        <translation>サイズ: 約%1</translation>
    </message>
    <message>
        <source>Slower, smaller file</source>
        <translation>遅い、ファイルは小さめ</translation>
    </message>
    <message>
        <source>Slowest, smallest file</source>
        <translation>最も遅い、ファイルは最小</translation>
    </message>
    <message>
        <source>Small (640 × 480)</source>
        <translation>小（640 × 480）</translation>
    </message>
    <message>
        <source>Small Files</source>
        <translation>小さいファイル</translation>
    </message>
    <message>
        <source>Small MP4 Video (720p)</source>
        <translation>小さいMP4ビデオ（720p）</translation>
    </message>
    <message>
        <source>Small file</source>
        <translation>小さいファイル</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>Snapshot folder</source>
        <translation>スナップショットフォルダー</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Sound level</source>
        <translation>音声レベル</translation>
    </message>
    <message>
        <source>Sound of %1: %2. The joined file has no track for it.</source>
        <translation>%1 の音声：%2。結合後のファイルにはそのトラックがありません。</translation>
    </message>
    <message>
        <source>Sound of the computer</source>
        <translation>コンピュータの音声</translation>
    </message>
    <message>
        <source>Sound only, unchanged (MKA)</source>
        <translation>音声のみ、そのまま（MKA）</translation>
    </message>
    <message>
        <source>Sound track %1 begins so late in the film that it is not found in time.</source>
        <translation>音声トラック%1は映像のかなり後で始まるため、間に合うように見つけられません。</translation>
    </message>
    <message>
        <source>Sound track %1, which this film does not have</source>
        <translation>この映像にない音声トラック%1</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>音声: %1</translation>
    </message>
    <message>
        <source>Sound: %1. %2 holds only one track of sound.</source>
        <translation>音声: %1。%2に保存できる音声は1トラックだけです。</translation>
    </message>
    <message>
        <source>Sound: %1. Its format is not known.</source>
        <translation>音声: %1。形式が不明です。</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>ソース</translation>
    </message>
    <message>
        <source>Source (drag to crop)</source>
        <translation>ソース（ドラッグで切り抜き）</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Speed limit of each download</source>
        <translation>ダウンロードごとの速度制限</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Start Here</source>
        <translation>ここから開始</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Stay at the end while the log grows</source>
        <translation>ログが増えても末尾を表示し続ける</translation>
    </message>
    <message>
        <source>Steady quality</source>
        <translation>一定の品質</translation>
    </message>
    <message>
        <source>Stereo</source>
        <translation>ステレオ</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop after</source>
        <translation>停止するまでの時間</translation>
    </message>
    <message>
        <source>Stop after %1 min</source>
        <translation>%1分後に停止</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <translation>中止して終了</translation>
    </message>
    <message>
        <source>Stop and Restart</source>
        <translation>中止して再起動</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>中止しました。</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>中止しています…</translation>
    </message>
    <message>
        <source>Subtitle track %1, which this film does not have</source>
        <translation>この映像にない字幕トラック %1</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Subtitles are missing in the finished file.</source>
        <translation>完成したファイルに字幕が欠けています。</translation>
    </message>
    <message>
        <source>Subtitles in the picture</source>
        <translation>映像内の字幕</translation>
    </message>
    <message>
        <source>Subtitles of %1: %2. Joining keeps none of later files.</source>
        <translation>%1 の字幕：%2。結合では2つ目以降のファイルの字幕は残りません。</translation>
    </message>
    <message>
        <source>Subtitles that are pictures: %1. %2 cannot hold them; burn them in, or choose MKV.</source>
        <translation>画像の字幕: %1。%2には保存できません。映像に焼き付けるか、MKVを選んでください。</translation>
    </message>
    <message>
        <source>Subtitles: %1</source>
        <translation>字幕: %1</translation>
    </message>
    <message>
        <source>Subtitles: %1. %2 cannot hold them.</source>
        <translation>字幕: %1。%2には保存できません。</translation>
    </message>
    <message>
        <source>Subtitles: %1. They are burnt into the first of the joined files only.</source>
        <translation>字幕: %1。結合するファイルの最初の1つだけに焼き付けられます。</translation>
    </message>
    <message>
        <source>Subtitles: %1. They cannot follow the changed times; burn them in to keep them.</source>
        <translation>字幕: %1。時間の変更に合わせられません。残すには映像に焼き付けてください。</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>候補</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation>サラウンド5.1</translation>
    </message>
    <message>
        <source>TS Video (H.264, AC-3)</source>
        <translation>TSビデオ（H.264、AC-3）</translation>
    </message>
    <message>
        <source>TV (1080p)</source>
        <translation>テレビ（1080p）</translation>
    </message>
    <message>
        <source>TV (4K, HDR)</source>
        <translation>テレビ（4K、HDR）</translation>
    </message>
    <message>
        <source>Tablet</source>
        <translation>タブレット</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>That is the log itself. Choose another name.</source>
        <translation>これはログそのものです。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>The area to be recorded is outside the screen.</source>
        <translation>録画する範囲が画面の外にあります。</translation>
    </message>
    <message>
        <source>The attached file %1 of %2. Joining keeps none of later files.</source>
        <translation>%2 の添付ファイル %1。結合では2つ目以降のファイルのものは残りません。</translation>
    </message>
    <message>
        <source>The attached file %1. %2 cannot hold it.</source>
        <translation>添付ファイル%1。%2には保存できません。</translation>
    </message>
    <message>
        <source>The broadcast has not begun yet. Try again when it has.</source>
        <translation>配信はまだ始まっていません。始まってからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The camera could not be opened. Another program may be using it.</source>
        <translation>カメラを開けませんでした。別のプログラムが使用中かもしれません。</translation>
    </message>
    <message>
        <source>The camera went away: its picture ends there.</source>
        <translation>カメラが外されました。カメラの映像はそこで終わります。</translation>
    </message>
    <message>
        <source>The chapters. %1 cannot hold them.</source>
        <translation>チャプター。%1には保存できません。</translation>
    </message>
    <message>
        <source>The chosen camera is missing: %1 is recorded instead.</source>
        <translation>選択したカメラがないため、代わりに %1 を録画します。</translation>
    </message>
    <message>
        <source>The chosen microphone is missing: the usual one is recorded instead.</source>
        <translation>選択したマイクがないため、代わりに通常のマイクを録音します。</translation>
    </message>
    <message>
        <source>The chosen titles become files of the format beside, as small as you like.</source>
        <translation>選んだタイトルを、横で選んだ形式のファイルにします。サイズは好きなだけ小さくできます。</translation>
    </message>
    <message>
        <source>The computer will shut down in %1 seconds.</source>
        <translation>コンピュータは%1秒後にシャットダウンします。</translation>
    </message>
    <message>
        <source>The conversion was stopped before the end.</source>
        <translation>変換は途中で中止されました。</translation>
    </message>
    <message>
        <source>The converter cannot make this format. Choose another one.</source>
        <translation>この形式には変換できません。別の形式を選んでください。</translation>
    </message>
    <message>
        <source>The converter could not be started. Please install the application again.</source>
        <translation>変換プログラムを起動できませんでした。アプリケーションをインストールし直してください。</translation>
    </message>
    <message>
        <source>The converter could not convert this file.</source>
        <translation>このファイルを変換できませんでした。</translation>
    </message>
    <message>
        <source>The converter did not answer any more.</source>
        <translation>変換プログラムが応答しなくなりました。</translation>
    </message>
    <message>
        <source>The converter is missing. Please install the application again.</source>
        <translation>変換プログラムが見つかりません。アプリケーションをインストールし直してください。</translation>
    </message>
    <message>
        <source>The copy could not be read back.</source>
        <translation>コピーを読み込めませんでした。</translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>コピーを保存できませんでした: %1</translation>
    </message>
    <message>
        <source>The copy has %1 titles instead of %2.</source>
        <translation>コピーのタイトル数が%2ではなく%1です。</translation>
    </message>
    <message>
        <source>The copy was broken off. It goes on where it is when it is started again.</source>
        <translation>コピーが中断されました。もう一度開始すると、続きから再開します。</translation>
    </message>
    <message>
        <source>The copy was saved.</source>
        <translation>コピーを保存しました。</translation>
    </message>
    <message>
        <source>The cover picture of %1. Joining keeps none of later files.</source>
        <translation>%1 のカバー画像。結合では2つ目以降のファイルのものは残りません。</translation>
    </message>
    <message>
        <source>The cover picture. %1 cannot hold it.</source>
        <translation>カバー画像。%1には保存できません。</translation>
    </message>
    <message>
        <source>The cover picture. It is lost when files are joined so.</source>
        <translation>カバー画像。この方法でファイルを結合すると失われます。</translation>
    </message>
    <message>
        <source>The date of recording. %1 cannot hold it.</source>
        <translation>撮影日。%1 には入れられません。</translation>
    </message>
    <message>
        <source>The desktop did not let the screen be recorded.</source>
        <translation>デスクトップが画面の録画を許可しませんでした。</translation>
    </message>
    <message>
        <source>The desktop lets the screen be recorded, but no picture of it arrives. Is PipeWire running?</source>
        <translation>デスクトップは録画を許可しましたが、映像が届きません。PipeWire は動作していますか？</translation>
    </message>
    <message>
        <source>The desktop shares the picture when the recording begins. Shortcuts work only in Kestrel's windows then.</source>
        <translation>録画が始まるとデスクトップが映像を共有します。そのあいだショートカットは Kestrel のウインドウでのみ使えます。</translation>
    </message>
    <message>
        <source>The desktop's portal did not answer.</source>
        <translation>デスクトップのポータルが応答しませんでした。</translation>
    </message>
    <message>
        <source>The desktop's portal does not let the screen be recorded: %1</source>
        <translation>デスクトップのポータルが画面の録画を許可しません：%1</translation>
    </message>
    <message>
        <source>The disc could not be read.</source>
        <translation>ディスクを読み込めませんでした。</translation>
    </message>
    <message>
        <source>The disc did not answer in time.</source>
        <translation>ディスクが時間内に応答しませんでした。</translation>
    </message>
    <message>
        <source>The disc has no such title, chapter or angle.</source>
        <translation>ディスクに、そのタイトル、チャプター、またはアングルはありません。</translation>
    </message>
    <message>
        <source>The disc image ends before its film does.</source>
        <translation>ディスクイメージが映像の途中で終わっています。</translation>
    </message>
    <message>
        <source>The disc is damaged: what it holds could not be read.</source>
        <translation>ディスクが破損しているため、内容を読み込めませんでした。</translation>
    </message>
    <message>
        <source>The disc may not be read by this user.</source>
        <translation>このユーザーにはディスクを読み込む権限がありません。</translation>
    </message>
    <message>
        <source>The disc tools could not be started. Please install the application again.</source>
        <translation>ディスク用のツールを起動できませんでした。アプリケーションをインストールし直してください。</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>ディスクを読み書きできませんでした。</translation>
    </message>
    <message>
        <source>The disk for temporary files is full. Free some space and convert again.</source>
        <translation>一時ファイル用のディスクがいっぱいです。空きを作ってからもう一度変換してください。</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays a Matroska file.</source>
        <translation>ディスクの空きが足りず、録画を仕上げられません。Matroskaファイルのまま残ります。</translation>
    </message>
    <message>
        <source>The disk is too full to finish the recording: it stays in %1 Matroska files.</source>
        <translation>ディスクの空きが足りず、録画を仕上げられません。%1個のMatroskaファイルのまま残ります。</translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation>出力フォルダのディスクには、このサイズのファイルを保存できません。</translation>
    </message>
    <message>
        <source>The display %1 could not be opened.</source>
        <translation>ディスプレイ%1を開けませんでした。</translation>
    </message>
    <message>
        <source>The download engine could not be updated.</source>
        <translation>ダウンロードエンジンをアップデートできませんでした。</translation>
    </message>
    <message>
        <source>The download engine does not work. Please install the application again.</source>
        <translation>ダウンロードエンジンが動作しません。アプリケーションをインストールし直してください。</translation>
    </message>
    <message>
        <source>The download engine is missing. Please install the application again.</source>
        <translation>ダウンロードエンジンが見つかりません。アプリケーションをインストールし直してください。</translation>
    </message>
    <message>
        <source>The download engine is now of version %1. Try again.</source>
        <translation>ダウンロードエンジンがバージョン %1 になりました。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The download failed. Try again later; the details tell what the engine said.</source>
        <translation>ダウンロードに失敗しました。後でもう一度お試しください。エンジンからのメッセージは詳細で確認できます。</translation>
    </message>
    <message>
        <source>The encoder for %1 is not installed.</source>
        <translation>%1用のエンコーダーがインストールされていません。</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>ファイルを読み込めませんでした。</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>ファイルを書き込めませんでした。</translation>
    </message>
    <message>
        <source>The file holds neither video nor sound that can be converted.</source>
        <translation>このファイルには、変換できるビデオや音声が含まれていません。</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>ファイルが破損しているか、不完全です。</translation>
    </message>
    <message>
        <source>The file is no longer where it was.</source>
        <translation>ファイルが元の場所に見つかりません。</translation>
    </message>
    <message>
        <source>The file was deleted. What it held is still shown.</source>
        <translation>ファイルは削除されましたが、内容は引き続き表示されています。</translation>
    </message>
    <message>
        <source>The film has come, but subtitles, cover or chapters could not be added to it.</source>
        <translation>映像は届きましたが、字幕・カバー・チャプターを追加できませんでした。</translation>
    </message>
    <message>
        <source>The film is copy protected and is not downloaded. Watch it on its own site.</source>
        <translation>この映像はコピー保護されているため、ダウンロードしません。元のサイトで視聴してください。</translation>
    </message>
    <message>
        <source>The film is no longer there. Look for it at another address.</source>
        <translation>このビデオはもうありません。別のアドレスを探してください。</translation>
    </message>
    <message>
        <source>The film is not there in the form that was wanted. Choose another resolution or format.</source>
        <translation>ご希望の形ではこのビデオを入手できません。別の解像度または形式を選んでください。</translation>
    </message>
    <message>
        <source>The film is private or for members only, so it cannot be downloaded. Look for it at another address.</source>
        <translation>この映像は非公開か会員専用のため、ダウンロードできません。別のアドレスで探してください。</translation>
    </message>
    <message>
        <source>The film of the chosen titles as it stands on the disc; no chapters, no names of languages.</source>
        <translation>選んだタイトルの映像を、ディスクにあるまま保存します。チャプターや言語名は含まれません。</translation>
    </message>
    <message>
        <source>The finer picture. %1 bit %2 becomes %3 bit %4.</source>
        <translation>細やかな画質。%1 ビット %2 は %3 ビット %4 になります。</translation>
    </message>
    <message>
        <source>The finer sound: %1. %2 bit become %3 bit.</source>
        <translation>細やかな音質: %1。%2 ビットは %3 ビットになります。</translation>
    </message>
    <message>
        <source>The finished file could not be read back.</source>
        <translation>完成したファイルを読み込めませんでした。</translation>
    </message>
    <message>
        <source>The finished file has %1 bytes instead of %2.</source>
        <translation>完成したファイルのサイズが%2バイトではなく%1バイトです。</translation>
    </message>
    <message>
        <source>The finished file holds other tracks than were wanted: %1 instead of %2.</source>
        <translation>完成したファイルのトラックが希望と異なります（%2ではなく%1）。</translation>
    </message>
    <message>
        <source>The finished file is %1 s long instead of %2 s.</source>
        <translation>完成したファイルの長さが%2秒ではなく%1秒です。</translation>
    </message>
    <message>
        <source>The finished file is damaged: %1 faults.</source>
        <translation>完成したファイルが破損しています（エラー%1件）。</translation>
    </message>
    <message>
        <source>The finished file is damaged: 1 fault.</source>
        <translation>完成したファイルが破損しています（エラー1件）。</translation>
    </message>
    <message>
        <source>The finished file is larger than wanted.</source>
        <translation>完成したファイルが希望のサイズを超えています。</translation>
    </message>
    <message>
        <source>The first %1 were copied. Save a copy to have all of it.</source>
        <translation>先頭の%1をコピーしました。すべてが必要な場合はコピーを保存してください。</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>フォルダを開けませんでした。</translation>
    </message>
    <message>
        <source>The folder for temporary files cannot be written.</source>
        <translation>一時ファイル用のフォルダに書き込めません。</translation>
    </message>
    <message>
        <source>The folder is too large: only some of its files were added.</source>
        <translation>フォルダが大きすぎるため、一部のファイルだけが追加されました。</translation>
    </message>
    <message>
        <source>The irregular times of the pictures. They come evenly, %1 a second.</source>
        <translation>不規則なコマの間隔。毎秒 %1 フレームの均等な間隔になります。</translation>
    </message>
    <message>
        <source>The languages of the tracks. %1 cannot hold them.</source>
        <translation>トラックの言語。%1 には入れられません。</translation>
    </message>
    <message>
        <source>The last %1 s have no picture.</source>
        <translation>最後の %1 秒には映像がありません。</translation>
    </message>
    <message>
        <source>The last %1 s have no sound: the sound server went away.</source>
        <translation>最後の %1 秒には音声がありません。サウンドサーバがなくなりました。</translation>
    </message>
    <message>
        <source>The log cannot be read</source>
        <translation>ログを読み込めません</translation>
    </message>
    <message>
        <source>The log was cut short meanwhile. Try again.</source>
        <translation>途中でログが短くなりました。もう一度お試しください。</translation>
    </message>
    <message>
        <source>The mastering data of the high dynamic range. %1 cannot hold them.</source>
        <translation>HDR のマスタリング情報。%1 には入れられません。</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the address again.</source>
        <translation>このジョブのオプションを読み込めませんでした。アドレスを追加し直してください。</translation>
    </message>
    <message>
        <source>The options of this job could not be read. Add the file again.</source>
        <translation>このジョブのオプションを読み込めませんでした。ファイルを追加し直してください。</translation>
    </message>
    <message>
        <source>The other angles of the film: %1</source>
        <translation>映像のほかのアングル：%1</translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation>出力を書き込めませんでした。</translation>
    </message>
    <message>
        <source>The output directory does not exist. Please check the setting.</source>
        <translation>出力フォルダがありません。設定を確認してください。</translation>
    </message>
    <message>
        <source>The output folder is read-only. Choose another one in the settings.</source>
        <translation>出力フォルダは読み出し専用です。設定で別のフォルダを選んでください。</translation>
    </message>
    <message>
        <source>The picture has to be encoded (%1).</source>
        <translation>映像をエンコードする必要があります（%1）。</translation>
    </message>
    <message>
        <source>The picture is made smaller, %1 × %2, so that it fits the size.</source>
        <translation>サイズに収まるように、映像を%1 × %2に縮小します。</translation>
    </message>
    <message>
        <source>The picture is missing: the site handed out the sound alone.</source>
        <translation>映像がありません。サイトから得られたのは音声だけです。</translation>
    </message>
    <message>
        <source>The picture of the finished file does not stand upright.</source>
        <translation>完成したファイルの映像の向きが正しくありません。</translation>
    </message>
    <message>
        <source>The pieces to be kept lie behind the end of the file.</source>
        <translation>残す部分がファイルの終わりより後ろにあります。</translation>
    </message>
    <message>
        <source>The place of recording. %1 cannot hold it.</source>
        <translation>撮影場所。%1 には入れられません。</translation>
    </message>
    <message>
        <source>The player is missing. Please install the application again.</source>
        <translation>プレーヤーが見つかりません。アプリケーションをインストールし直してください。</translation>
    </message>
    <message>
        <source>The program dvdauthor is missing. Please install it.</source>
        <translation>dvdauthorが見つかりません。インストールしてください。</translation>
    </message>
    <message>
        <source>The proxy refuses the connection. Check its address in the settings.</source>
        <translation>プロキシが接続を拒否しています。設定でアドレスを確認してください。</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays a Matroska file.</source>
        <translation>録画を仕上げられませんでした。Matroskaファイルのまま残ります。</translation>
    </message>
    <message>
        <source>The recording could not be finished: it stays in %1 Matroska files.</source>
        <translation>録画を仕上げられませんでした。%1個のMatroskaファイルのまま残ります。</translation>
    </message>
    <message>
        <source>The recording ended because the disk is nearly full.</source>
        <translation>ディスクの空きがほとんどないため、録画を終了しました。</translation>
    </message>
    <message>
        <source>The recording that was to begin at %1 was missed.</source>
        <translation>%1 に始まるはずだった録画は行われませんでした。</translation>
    </message>
    <message>
        <source>The recording was interrupted.</source>
        <translation>録画が中断されました。</translation>
    </message>
    <message>
        <source>The same screen or window as last time</source>
        <translation>前回と同じ画面またはウインドウ</translation>
    </message>
    <message>
        <source>The screen of a Wayland session can be recorded where the desktop has a portal for it, which is missing here. Install xdg-desktop-portal for your desktop, or log in to a session of X11 (Xorg).</source>
        <translation>Wayland セッションの画面は、デスクトップにそのためのポータルがあれば録画できますが、ここにはありません。お使いのデスクトップ用の xdg-desktop-portal をインストールするか、X11（Xorg）セッションにログインしてください。</translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation>画面収録はMac OS Lion以降でのみ利用できます。</translation>
    </message>
    <message>
        <source>The server broke off or could not answer. What has come is kept; try again later.</source>
        <translation>サーバーが切断したか、応答できませんでした。届いた分は残っています。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>The server broke off, next attempt in %1 s</source>
        <translation>サーバーが切断しました。%1秒後に再試行します</translation>
    </message>
    <message>
        <source>The server has sent only part of the film.</source>
        <translation>サーバーから届いたのはビデオの一部だけです。</translation>
    </message>
    <message>
        <source>The server refuses to hand out the film. Try again later, or open the page in a browser to see why.</source>
        <translation>サーバーがビデオの提供を拒否しています。後でもう一度試すか、ブラウザでページを開いて理由を確認してください。</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in %1 minutes.</source>
        <translation>サーバーは現在これ以上の要求を受け付けません。%1 分後にもう一度お試しください。</translation>
    </message>
    <message>
        <source>The server takes no more requests for now. Try again in a while.</source>
        <translation>サーバーは現在、要求を受け付けていません。しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The server's certificate is not valid, so it may not be who it says it is. Nothing was downloaded; check the address and this computer's date.</source>
        <translation>サーバーの証明書が無効なため、本物ではないおそれがあります。何もダウンロードしていません。アドレスとこのコンピュータの日付を確認してください。</translation>
    </message>
    <message>
        <source>The settings' folder</source>
        <translation>設定のフォルダ</translation>
    </message>
    <message>
        <source>The site does not show this film in your country. A proxy of another country can be set in the settings.</source>
        <translation>このサイトは、お住まいの国ではこのビデオを公開していません。設定で別の国のプロキシを指定できます。</translation>
    </message>
    <message>
        <source>The site has changed and the download engine does not know it any more. Update the engine and try again.</source>
        <translation>サイトが変更され、ダウンロードエンジンが対応できなくなりました。エンジンをアップデートして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The site shows this film only to those who have logged in, which Kestrel does not do. Look for it at another address.</source>
        <translation>サイトはこの映像をログインした人にのみ表示します。Kestrel はログインしません。別のアドレスで探してください。</translation>
    </message>
    <message>
        <source>The site wants to know the viewer's age first, which it learns only from a log-in. Look for it at another address.</source>
        <translation>サイトはログインによる年齢確認を求めています。別のアドレスで探してください。</translation>
    </message>
    <message>
        <source>The snapshot could not be written.</source>
        <translation>スナップショットを書き込めませんでした。</translation>
    </message>
    <message>
        <source>The sound could not be recorded. Is the sound server running?</source>
        <translation>音声を録音できませんでした。サウンドサーバーは動作していますか？</translation>
    </message>
    <message>
        <source>The sound has to be encoded (%1).</source>
        <translation>音声をエンコードする必要があります（%1）。</translation>
    </message>
    <message>
        <source>The sound is missing since the sound server went away.</source>
        <translation>サウンドサーバーが停止してからの音声がありません。</translation>
    </message>
    <message>
        <source>The sound is missing: the site handed out the picture alone.</source>
        <translation>音声がありません。サイトから得られたのは映像だけです。</translation>
    </message>
    <message>
        <source>The sound server was away for a while: that part has no sound.</source>
        <translation>サウンドサーバーが一時停止していたため、その部分は音声がありません。</translation>
    </message>
    <message>
        <source>The sound. %1 holds only pictures.</source>
        <translation>音声。%1に保存できるのは映像だけです。</translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation>ビデオ、オーディオ、DVDの変換、ビデオファイルの編集、トランスコード、圧縮、調整、オンラインメディアのダウンロード、画面やWebカメラの録画ができる、最も強力なビデオ処理ソフトウェアです。</translation>
    </message>
    <message>
        <source>The subtitle file %1 cannot be read.</source>
        <translation>字幕ファイル %1 を読み取れません。</translation>
    </message>
    <message>
        <source>The subtitle file %1 is too large for a text.</source>
        <translation>字幕ファイル %1 はテキストとしては大きすぎます。</translation>
    </message>
    <message>
        <source>The subtitles are missing: the site did not hand them out.</source>
        <translation>字幕がありません。サイトが提供しませんでした。</translation>
    </message>
    <message>
        <source>The subtitles that were to be drawn into the picture are not in this film.</source>
        <translation>映像に焼き込むはずの字幕は、この映像にありません。</translation>
    </message>
    <message>
        <source>The title. %1 cannot hold it.</source>
        <translation>タイトル。%1 には入れられません。</translation>
    </message>
    <message>
        <source>The tool that reads media files is missing. Please install the application again.</source>
        <translation>メディアファイルを読み込むツールが見つかりません。アプリケーションをインストールし直してください。</translation>
    </message>
    <message>
        <source>The transcoder did not answer as it should.</source>
        <translation>トランスコーダーから正しい応答がありませんでした。</translation>
    </message>
    <message>
        <source>The transcoder is missing. Please install the application again.</source>
        <translation>トランスコーダーが見つかりません。アプリケーションを再インストールしてください。</translation>
    </message>
    <message>
        <source>The transparency of the picture. %1 cannot hold it.</source>
        <translation>映像の透明部分。%1 には入れられません。</translation>
    </message>
    <message>
        <source>The whole disc, sector for sector, in one file that plays like the disc.</source>
        <translation>ディスク全体をセクタごとに1つのファイルへコピーします。ディスクと同じように再生できます。</translation>
    </message>
    <message>
        <source>The whole film is kept.</source>
        <translation>全体を残します。</translation>
    </message>
    <message>
        <source>The window is too small to be recorded.</source>
        <translation>ウインドウが小さすぎて録画できません。</translation>
    </message>
    <message>
        <source>The window was closed or minimised.</source>
        <translation>ウインドウが閉じられたか、最小化されました。</translation>
    </message>
    <message>
        <source>There are no black bars.</source>
        <translation>黒帯はありません。</translation>
    </message>
    <message>
        <source>There are several films at this address. Add it again to choose among them.</source>
        <translation>このアドレスには複数のビデオがあります。追加し直して、その中から選んでください。</translation>
    </message>
    <message>
        <source>There are too many films at this address to look at them all. Add the address of one of them.</source>
        <translation>このアドレスにはビデオが多すぎて、すべてを確認できません。いずれか1つのアドレスを追加してください。</translation>
    </message>
    <message>
        <source>There are too many presets. Delete some first.</source>
        <translation>プリセットが多すぎます。先にいくつか削除してください。</translation>
    </message>
    <message>
        <source>There is no connection to the network. Check it and try again.</source>
        <translation>ネットワークに接続されていません。接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>There is no disc. Put it in, or choose an image or a folder, and try again.</source>
        <translation>ディスクがありません。ディスクを入れるか、イメージまたはフォルダを選んで、もう一度お試しください。</translation>
    </message>
    <message>
        <source>There is no display whose picture could be recorded.</source>
        <translation>録画できるディスプレイがありません。</translation>
    </message>
    <message>
        <source>There is no film at this address. Look for the page that plays it.</source>
        <translation>このアドレスにはビデオがありません。ビデオを再生するページを探してください。</translation>
    </message>
    <message>
        <source>There is no log yet</source>
        <translation>ログはまだありません</translation>
    </message>
    <message>
        <source>There is no newer download engine.</source>
        <translation>新しいダウンロードエンジンはありません。</translation>
    </message>
    <message>
        <source>There is no picture at this place.</source>
        <translation>この位置には映像がありません。</translation>
    </message>
    <message>
        <source>There is no screen "%1". There is: %2.</source>
        <translation>画面「%1」はありません。利用できる画面: %2。</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation>ディスクに空き容量がありません。空き容量を増やしてから、もう一度変換してください。</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and try again; what has come is kept.</source>
        <translation>ディスクに空き容量がありません。空き容量を増やして、もう一度お試しください。届いた分は残っています。</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>このファイルはありません。</translation>
    </message>
    <message>
        <source>There is no video or sound file in it.</source>
        <translation>ビデオや音声のファイルが含まれていません。</translation>
    </message>
    <message>
        <source>There is no window %1 to be seen.</source>
        <translation>ウインドウ%1は表示されていません。</translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation>メモリが不足しているため、このファイルを変換できません。</translation>
    </message>
    <message>
        <source>There is not enough memory to read this disc.</source>
        <translation>メモリが不足しているため、このディスクを読み込めません。</translation>
    </message>
    <message>
        <source>There is not enough space: %1 are needed and %2 are free. Free some, or choose another folder in the settings.</source>
        <translation>空き容量が足りません。%1必要ですが、空きは%2です。空き容量を増やすか、設定で別のフォルダを選んでください。</translation>
    </message>
    <message>
        <source>There is nothing to convert.</source>
        <translation>変換するものがありません。</translation>
    </message>
    <message>
        <source>There is too little space on the disk to record.</source>
        <translation>ディスクの空きが少なすぎて録画できません。</translation>
    </message>
    <message>
        <source>They become MP4, MKV, WebM or MP3, as you choose.</source>
        <translation>選んだ形式（MP4、MKV、WebM、MP3）に変換されます。</translation>
    </message>
    <message>
        <source>This address is of no site that Kestrel knows. Check it, or look for the page that plays the film.</source>
        <translation>このアドレスは、Kestrelが対応しているサイトのものではありません。アドレスを確認するか、ビデオを再生するページを探してください。</translation>
    </message>
    <message>
        <source>This choice is kept until you quit.</source>
        <translation>この選択は終了するまで保持されます。</translation>
    </message>
    <message>
        <source>This computer has no hardware encoder for H.264 video.</source>
        <translation>このコンピューターには H.264 ビデオ用のハードウェアエンコーダーがありません。</translation>
    </message>
    <message>
        <source>This disc is being copied to this folder already.</source>
        <translation>このディスクは、すでにこのフォルダにコピー中です。</translation>
    </message>
    <message>
        <source>This disc is copy-protected and cannot be read.</source>
        <translation>このディスクはコピー保護されているため、読み込めません。</translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation>このファイルを読み込めませんでした。</translation>
    </message>
    <message>
        <source>This file has neither picture nor sound to convert.</source>
        <translation>このファイルには変換できる映像も音声もありません。</translation>
    </message>
    <message>
        <source>This file has no picture to convert.</source>
        <translation>このファイルには変換できる映像がありません。</translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation>このファイルには変換できる音声がありません。</translation>
    </message>
    <message>
        <source>This file holds no presets of Kestrel.</source>
        <translation>このファイルにはKestrelのプリセットが含まれていません。</translation>
    </message>
    <message>
        <source>This file is damaged, or it holds neither video nor sound.</source>
        <translation>このファイルは破損しているか、ビデオも音声も含まれていません。</translation>
    </message>
    <message>
        <source>This film has no sound. Choose a format with a picture for it.</source>
        <translation>このビデオには音声がありません。映像のある形式を選んでください。</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>このフォルダーには書き込めません。</translation>
    </message>
    <message>
        <source>This is another disc, which is also called %1.</source>
        <translation>同じ%1という名前の別のディスクです。</translation>
    </message>
    <message>
        <source>This is another disc: %1 instead of %2.</source>
        <translation>別のディスクです（%2ではなく%1）。</translation>
    </message>
    <message>
        <source>This is no address that can be downloaded from.</source>
        <translation>このアドレスからはダウンロードできません。</translation>
    </message>
    <message>
        <source>This is no preset.</source>
        <translation>これはプリセットではありません。</translation>
    </message>
    <message>
        <source>This is no text file</source>
        <translation>これはテキストファイルではありません</translation>
    </message>
    <message>
        <source>This is no video DVD: there is no VIDEO_TS on it.</source>
        <translation>これはビデオDVDではありません。VIDEO_TSがありません。</translation>
    </message>
    <message>
        <source>This is no video or sound file.</source>
        <translation>これはビデオまたは音声のファイルではありません。</translation>
    </message>
    <message>
        <source>This preset has no name.</source>
        <translation>このプリセットには名前がありません。</translation>
    </message>
    <message>
        <source>This preset keeps neither picture nor sound.</source>
        <translation>このプリセットでは映像も音声も残りません。</translation>
    </message>
    <message>
        <source>This preset was made by a newer version of Kestrel.</source>
        <translation>このプリセットは新しいバージョンのKestrelで作成されています。</translation>
    </message>
    <message>
        <source>This title has no sound to keep.</source>
        <translation>このタイトルには残せる音声がありません。</translation>
    </message>
    <message>
        <source>Time at which the recording begins</source>
        <translation>録画を開始する時刻</translation>
    </message>
    <message>
        <source>Time line</source>
        <translation>タイムライン</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Title %1</source>
        <translation>タイトル%1</translation>
    </message>
    <message>
        <source>Title %1 of the copy has %2 chapters instead of %3.</source>
        <translation>コピーのタイトル%1のチャプター数が%3ではなく%2です。</translation>
    </message>
    <message>
        <source>Title %1 of the copy has other tracks than the disc.</source>
        <translation>コピーのタイトル%1のトラックがディスクと異なります。</translation>
    </message>
    <message>
        <source>Title %1 of the copy is %2 s long instead of %3 s.</source>
        <translation>コピーのタイトル%1の長さが%3秒ではなく%2秒です。</translation>
    </message>
    <message>
        <source>Title %1, the main film</source>
        <translation>タイトル%1（本編）</translation>
    </message>
    <message>
        <source>Titles as MPEG-2 files</source>
        <translation>タイトルをMPEG-2ファイルに</translation>
    </message>
    <message>
        <source>Titles of the disc</source>
        <translation>ディスクのタイトル</translation>
    </message>
    <message>
        <source>Titles, unchanged (MKV)</source>
        <translation>タイトルをそのまま（MKV）</translation>
    </message>
    <message>
        <source>To chapter</source>
        <translation>終了チャプター</translation>
    </message>
    <message>
        <source>Too many lines have this text: the newest %1 are shown.</source>
        <translation>このテキストを含む行が多すぎるため、最新の%1行を表示しています。</translation>
    </message>
    <message>
        <source>Too many requests: the server is asked again in %1 s</source>
        <translation>要求が多すぎます。%1秒後にもう一度問い合わせます</translation>
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
        <translation>トラック%1</translation>
    </message>
    <message>
        <source>Transcoder</source>
        <translation>トランスコーダー</translation>
    </message>
    <message>
        <source>Trial</source>
        <translation>試し変換</translation>
    </message>
    <message>
        <source>Try 10 Seconds</source>
        <translation>10秒だけ試す</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Turned into standard</source>
        <translation>標準に変換</translation>
    </message>
    <message>
        <source>Unable to connect to update server.</source>
        <translation>アップデートサーバーに接続できません。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>取り消す</translation>
    </message>
    <message>
        <source>Unknown language</source>
        <translation>不明な言語</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>無制限</translation>
    </message>
    <message>
        <source>Until it is stopped</source>
        <translation>停止するまで</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>名称未設定</translation>
    </message>
    <message>
        <source>Update Download Engine</source>
        <translation>ダウンロードエンジンをアップデート</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>上下逆</translation>
    </message>
    <message>
        <source>Use This Area</source>
        <translation>この範囲を使用</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>プロキシを使用</translation>
    </message>
    <message>
        <source>Use the graphics hardware</source>
        <translation>グラフィックスハードウェアを使用</translation>
    </message>
    <message>
        <source>Usual</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Usual microphone</source>
        <translation>通常のマイク</translation>
    </message>
    <message>
        <source>Version: %@</source>
        <translation>バージョン: %@</translation>
    </message>
    <message>
        <source>Very Small MP4 Video (480p)</source>
        <translation>とても小さいMP4ビデオ（480p）</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>Video Converter</source>
        <translation>ビデオ変換</translation>
    </message>
    <message>
        <source>Video folder</source>
        <translation>ビデオフォルダー</translation>
    </message>
    <message>
        <source>Video or sound file</source>
        <translation>ビデオまたは音声のファイル</translation>
    </message>
    <message>
        <source>Videos and music from the web are saved in the form that you choose.</source>
        <translation>Webのビデオや音楽を、選んだ形式で保存します。</translation>
    </message>
    <message>
        <source>Visit our website:</source>
        <translation>Webサイト:</translation>
    </message>
    <message>
        <source>Visit website</source>
        <translation>Webサイトを見る</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>WAV Audio</source>
        <translation>WAVオーディオ</translation>
    </message>
    <message>
        <source>WMA Audio</source>
        <translation>WMAオーディオ</translation>
    </message>
    <message>
        <source>WMV Video</source>
        <translation>WMVビデオ</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>ネットワーク接続を待っています</translation>
    </message>
    <message>
        <source>Waiting for space on the disk: %1 needed</source>
        <translation>ディスクの空きを待っています: %1必要</translation>
    </message>
    <message>
        <source>Waiting for the network, next attempt in %1 s</source>
        <translation>ネットワークを待っています。%1秒後に再試行します</translation>
    </message>
    <message>
        <source>Waiting for the server…</source>
        <translation>サーバーを待っています…</translation>
    </message>
    <message>
        <source>Waiting for your choice in the desktop's dialog…</source>
        <translation>デスクトップのダイアログでの選択を待っています…</translation>
    </message>
    <message>
        <source>Waiting: %1 downloads from this server are under way</source>
        <translation>待機中: このサーバーから%1件をダウンロードしています</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>透かし</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>WebM Video (AV1, Opus)</source>
        <translation>WebMビデオ（AV1、Opus）</translation>
    </message>
    <message>
        <source>WebM Video (VP8, Vorbis)</source>
        <translation>WebMビデオ（VP8、Vorbis）</translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation>WebMビデオ（VP9、Opus）</translation>
    </message>
    <message>
        <source>What has been recorded will be deleted.</source>
        <translation>録画した内容は削除されます。</translation>
    </message>
    <message>
        <source>What has come cannot be moved to that folder, so it stays where it is.</source>
        <translation>届いた分をそのフォルダに移動できないため、元の場所に残ります。</translation>
    </message>
    <message>
        <source>What the server sent is no film. Open the address in a browser to see what it is.</source>
        <translation>サーバーから届いたものはビデオではありません。ブラウザでアドレスを開いて内容を確認してください。</translation>
    </message>
    <message>
        <source>What the site answered could not be understood. Update the download engine and try again.</source>
        <translation>サイトの応答を解釈できませんでした。ダウンロードエンジンをアップデートして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>What this preset makes cannot be fitted to a size.</source>
        <translation>このプリセットで作るものは、サイズに合わせられません。</translation>
    </message>
    <message>
        <source>What to record</source>
        <translation>録画する対象</translation>
    </message>
    <message>
        <source>What you stop now is offered to you again at the next start.</source>
        <translation>今中止したものは、次回の起動時に再開できます。</translation>
    </message>
    <message>
        <source>Where it is needed</source>
        <translation>必要な場合</translation>
    </message>
    <message>
        <source>Whole Picture</source>
        <translation>画面全体</translation>
    </message>
    <message>
        <source>Width of the picture</source>
        <translation>画像の幅</translation>
    </message>
    <message>
        <source>Will not be accepted. Example: http://proxy.example.com or socks5://10.0.0.1</source>
        <translation>受け付けられません。例: http://proxy.example.com、socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウインドウ</translation>
    </message>
    <message>
        <source>Window by a click…</source>
        <translation>クリックしたウインドウ…</translation>
    </message>
    <message>
        <source>Window: %1</source>
        <translation>ウインドウ: %1</translation>
    </message>
    <message>
        <source>Without encoding, what starts at %1 begins at %2.</source>
        <translation>エンコードしない場合、%1 からの部分は %2 から始まります。</translation>
    </message>
    <message>
        <source>Would you please send us the Log File to help us fix the issue?</source>
        <translation>問題の解決のため、ログファイルをお送りいただけますか？</translation>
    </message>
    <message>
        <source>You are not allowed to read this file.</source>
        <translation>このファイルを読み込む権限がありません。</translation>
    </message>
    <message>
        <source>You're up-to-date!</source>
        <translation>お使いのバージョンは最新です</translation>
    </message>
    <message>
        <source>Your mail program could not be opened.</source>
        <translation>メールプログラムを開けませんでした。</translation>
    </message>
    <message>
        <source>Your screen, as a video</source>
        <translation>画面をビデオに</translation>
    </message>
    <message>
        <source>Your settings cannot be saved at the moment. Kestrel tries again when it is quit.</source>
        <translation>現在、設定を保存できません。Kestrelの終了時にもう一度試します。</translation>
    </message>
    <message>
        <source>Your settings could not be saved when Kestrel was last quit.</source>
        <translation>前回Kestrelを終了したとき、設定を保存できませんでした。</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>拡大/縮小</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>残り約%1時間</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>残り約%1分</translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>残り約1分</translation>
    </message>
    <message>
        <source>another commentary</source>
        <translation>別のコメンタリー</translation>
    </message>
    <message>
        <source>closetip</source>
        <translation>ヒントを閉じる</translation>
    </message>
    <message>
        <source>commentary</source>
        <translation>コメンタリー</translation>
    </message>
    <message>
        <source>for children</source>
        <translation>子ども向け</translation>
    </message>
    <message>
        <source>for the hard of hearing</source>
        <translation>聴覚障害者向け</translation>
    </message>
    <message>
        <source>for the visually impaired</source>
        <translation>視覚障害者向け</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>強制</translation>
    </message>
    <message>
        <source>kept as it is</source>
        <translation>そのまま保持</translation>
    </message>
    <message>
        <source>large</source>
        <translation>大きな文字</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>残り1分未満</translation>
    </message>
    <message>
        <source>same as title %1</source>
        <translation>タイトル%1と同じ</translation>
    </message>
    <message>
        <source>showtip</source>
        <translation>ヒントを表示</translation>
    </message>
    <message>
        <source>{name}, {preset}, {folder} and {date} are filled in.</source>
        <translation>{name}、{preset}、{folder}、{date}は実際の内容に置き換わります。</translation>
    </message>
    <message>
        <source>“%1” could not be played.</source>
        <translation>「%1」を再生できませんでした。</translation>
    </message>
</context>
</TS>
