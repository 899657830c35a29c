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
        <source>%1 converted</source>
        <translation>%1まで変換済み</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2件中%1件目</translation>
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
        <source>A new version of %@ is available!</source>
        <translation>%@の新しいバージョンがあります</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
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
        <source>Add Files</source>
        <translation>ファイルを追加</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>ファイルを追加…</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>An address is for example http://proxy.example.com or socks5://10.0.0.1.</source>
        <translation>アドレスの例: http://proxy.example.com、socks5://10.0.0.1</translation>
    </message>
    <message>
        <source>App Log</source>
        <translation>アプリのログ</translation>
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
        <source>Build on: %@</source>
        <translation>ビルド日: %@</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Checking for updates.. </source>
        <translation>アップデートを確認中… </translation>
    </message>
    <message>
        <source>Choose a Folder</source>
        <translation>フォルダーを選択</translation>
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
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Close the tip</source>
        <translation>ヒントを閉じる</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>Conversions are running.</source>
        <translation>変換を実行中です。</translation>
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
        <source>Convert to:</source>
        <translation>変換形式:</translation>
    </message>
    <message>
        <source>Converted: %1</source>
        <translation>変換済み: %1</translation>
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
        <source>Cut</source>
        <translation>カット</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>DVD Ripper</source>
        <translation>DVDリッピング</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>デフォルト</translation>
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
        <source>Done</source>
        <translation>完了</translation>
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
        <source>Drop videos or folders anywhere in this window, choose a format below and press Convert. The results go to the output folder; your own files stay as they are.</source>
        <translation>ビデオまたはフォルダをこのウインドウにドロップし、下で形式を選んで「変換」を押してください。変換結果は出力フォルダに保存され、元のファイルは変更されません。</translation>
    </message>
    <message>
        <source>Drop videos or folders here</source>
        <translation>ここにビデオまたはフォルダをドロップ</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失敗: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Files that are not finished would have to be converted again.</source>
        <translation>完了していないファイルは、もう一度変換する必要があります。</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>検索</translation>
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
        <source>Follow</source>
        <translation>自動スクロール</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>Found after going around the end of the log.</source>
        <translation>ログの端から反対側へ折り返して見つかりました。</translation>
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
        <source>Highest Resolution</source>
        <translation>最高解像度</translation>
    </message>
    <message>
        <source>Intel</source>
        <translation>Intel</translation>
    </message>
    <message>
        <source>It is shown here as soon as it is written: %1</source>
        <translation>書き込まれ次第、ここに表示されます: %1</translation>
    </message>
    <message>
        <source>It will convert titles to videos for every device.</source>
        <translation>タイトルをあらゆるデバイス向けのビデオに変換できるようになります。</translation>
    </message>
    <message>
        <source>It will copy a DVD to a disc image or a folder.</source>
        <translation>DVDをディスクイメージまたはフォルダにコピーできるようになります。</translation>
    </message>
    <message>
        <source>It will fetch several at a time, in the resolution that you prefer.</source>
        <translation>ご希望の解像度で、複数を同時に取得できるようになります。</translation>
    </message>
    <message>
        <source>It will go through your proxy where you have one.</source>
        <translation>プロキシがある場合は、プロキシを経由するようになります。</translation>
    </message>
    <message>
        <source>It will keep the sound track in the language that you prefer.</source>
        <translation>ご希望の言語の音声トラックを残せるようになります。</translation>
    </message>
    <message>
        <source>It will record the sound of the computer and of a microphone.</source>
        <translation>コンピュータとマイクの音声を録音できるようになります。</translation>
    </message>
    <message>
        <source>It will record the whole screen, a window or a part of it.</source>
        <translation>画面全体、ウインドウ、またはその一部を録画できるようになります。</translation>
    </message>
    <message>
        <source>It will save videos and music from addresses that you paste.</source>
        <translation>ペーストしたアドレスからビデオや音楽を保存できるようになります。</translation>
    </message>
    <message>
        <source>It will show mouse clicks where you want them seen.</source>
        <translation>必要な場面でマウスのクリックを表示できるようになります。</translation>
    </message>
    <message>
        <source>Keep Converting</source>
        <translation>変換を続ける</translation>
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
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Learn More</source>
        <translation>詳しい情報</translation>
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
        <source>MKV Video (H.264, AAC)</source>
        <translation>MKVビデオ（H.264、AAC）</translation>
    </message>
    <message>
        <source>MP3 Audio</source>
        <translation>MP3オーディオ</translation>
    </message>
    <message>
        <source>MP4 Video (H.264, AAC)</source>
        <translation>MP4ビデオ（H.264、AAC）</translation>
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
        <source>Messages of the converter</source>
        <translation>変換プログラムのメッセージ</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Music folder</source>
        <translation>ミュージックフォルダー</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>No log was named</source>
        <translation>ログが指定されていません</translation>
    </message>
    <message>
        <source>Not chosen yet</source>
        <translation>未選択</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>見つかりませんでした。</translation>
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
        <source>Open</source>
        <translation>開く</translation>
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
        <source>Output folder:</source>
        <translation>出力フォルダ:</translation>
    </message>
    <message>
        <source>Output format</source>
        <translation>出力形式</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>ペースト</translation>
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
        <source>Preferences…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Preferred audio language</source>
        <translation>優先する音声言語</translation>
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
        <source>Quit Kestrel</source>
        <translation>Kestrelを終了</translation>
    </message>
    <message>
        <source>Reading files…</source>
        <translation>ファイルを読み込み中…</translation>
    </message>
    <message>
        <source>Reading the file or writing to the output folder is not allowed. Check their permissions.</source>
        <translation>ファイルの読み込みまたは出力フォルダへの書き込みが許可されていません。アクセス権を確認してください。</translation>
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
        <source>Save a Copy</source>
        <translation>コピーを保存</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>コピーを保存…</translation>
    </message>
    <message>
        <source>Saving… %1 % (Esc stops)</source>
        <translation>保存中… %1%（Escで中止）</translation>
    </message>
    <message>
        <source>Screen Record Unavailable!</source>
        <translation>画面収録は利用できません</translation>
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
        <source>Searching… %1 % (Esc stops)</source>
        <translation>検索中… %1%（Escで中止）</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>すべてを選択</translation>
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
        <source>Show File</source>
        <translation>ファイルを表示</translation>
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
        <source>Shut down the computer when done</source>
        <translation>完了後にコンピューターをシャットダウン</translation>
    </message>
    <message>
        <source>Snapshot folder</source>
        <translation>スナップショットフォルダー</translation>
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
        <source>Stop and Leave</source>
        <translation>中止して戻る</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>中止しました。</translation>
    </message>
    <message>
        <source>Suggestions</source>
        <translation>候補</translation>
    </message>
    <message>
        <source>That is the log itself. Choose another name.</source>
        <translation>これはログそのものです。別の名前を選んでください。</translation>
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
        <source>The converter is missing. Please install the application again.</source>
        <translation>変換プログラムが見つかりません。アプリケーションをインストールし直してください。</translation>
    </message>
    <message>
        <source>The copy could not be saved: %1</source>
        <translation>コピーを保存できませんでした: %1</translation>
    </message>
    <message>
        <source>The copy was saved.</source>
        <translation>コピーを保存しました。</translation>
    </message>
    <message>
        <source>The disk could not be read or written.</source>
        <translation>ディスクを読み書きできませんでした。</translation>
    </message>
    <message>
        <source>The disk of the output folder cannot hold a file of this size.</source>
        <translation>出力フォルダのディスクには、このサイズのファイルを保存できません。</translation>
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
        <source>The first %1 were copied. Save a copy to have all of it.</source>
        <translation>先頭の%1をコピーしました。すべてが必要な場合はコピーを保存してください。</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>フォルダを開けませんでした。</translation>
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
        <source>The output directory does not exist. Please check the setting.</source>
        <translation>出力フォルダがありません。設定を確認してください。</translation>
    </message>
    <message>
        <source>The output folder is read-only. Choose another one in the settings.</source>
        <translation>出力フォルダは読み出し専用です。設定で別のフォルダを選んでください。</translation>
    </message>
    <message>
        <source>The screen recorder is only supported on Mac OS Lion and later.</source>
        <translation>画面収録はMac OS Lion以降でのみ利用できます。</translation>
    </message>
    <message>
        <source>The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust video files; download online media content; record screen and webcam.</source>
        <translation>ビデオ、オーディオ、DVDの変換、ビデオファイルの編集、トランスコード、圧縮、調整、オンラインメディアのダウンロード、画面やWebカメラの録画ができる、最も強力なビデオ処理ソフトウェアです。</translation>
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
        <source>There is no log yet</source>
        <translation>ログはまだありません</translation>
    </message>
    <message>
        <source>There is no space left on the disk. Free some space and convert again.</source>
        <translation>ディスクに空き容量がありません。空き容量を増やしてから、もう一度変換してください。</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>このファイルはありません。</translation>
    </message>
    <message>
        <source>There is not enough memory to convert this file.</source>
        <translation>メモリが不足しているため、このファイルを変換できません。</translation>
    </message>
    <message>
        <source>They become MP4, MKV, WebM or MP3, as you choose.</source>
        <translation>選んだ形式（MP4、MKV、WebM、MP3）に変換されます。</translation>
    </message>
    <message>
        <source>This computer has no hardware encoder for H.264 video.</source>
        <translation>このコンピューターには H.264 ビデオ用のハードウェアエンコーダーがありません。</translation>
    </message>
    <message>
        <source>This file could not be read.</source>
        <translation>このファイルを読み込めませんでした。</translation>
    </message>
    <message>
        <source>This file has no sound to convert.</source>
        <translation>このファイルには変換できる音声がありません。</translation>
    </message>
    <message>
        <source>This file is damaged, or it holds neither video nor sound.</source>
        <translation>このファイルは破損しているか、ビデオも音声も含まれていません。</translation>
    </message>
    <message>
        <source>This folder cannot be written to.</source>
        <translation>このフォルダーには書き込めません。</translation>
    </message>
    <message>
        <source>This is no text file</source>
        <translation>これはテキストファイルではありません</translation>
    </message>
    <message>
        <source>This is no video or sound file.</source>
        <translation>これはビデオまたは音声のファイルではありません。</translation>
    </message>
    <message>
        <source>This part is still being made and comes with an update.</source>
        <translation>この機能は開発中です。アップデートで提供されます。</translation>
    </message>
    <message>
        <source>Too many lines have this text: the newest %1 are shown.</source>
        <translation>このテキストを含む行が多すぎるため、最新の%1行を表示しています。</translation>
    </message>
    <message>
        <source>Transcoder</source>
        <translation>トランスコーダー</translation>
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
        <source>Unlimited</source>
        <translation>無制限</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>プロキシを使用</translation>
    </message>
    <message>
        <source>Version: %@</source>
        <translation>バージョン: %@</translation>
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
        <source>Videos from the web, on your disk</source>
        <translation>Webのビデオをディスクに</translation>
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
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>WebM Video (VP9, Opus)</source>
        <translation>WebMビデオ（VP9、Opus）</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>ウインドウ</translation>
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
        <source>Your DVDs, as files</source>
        <translation>DVDをファイルに</translation>
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
        <source>closetip</source>
        <translation>ヒントを閉じる</translation>
    </message>
    <message>
        <source>less than a minute left</source>
        <translation>残り1分未満</translation>
    </message>
    <message>
        <source>showtip</source>
        <translation>ヒントを表示</translation>
    </message>
</context>
</TS>
