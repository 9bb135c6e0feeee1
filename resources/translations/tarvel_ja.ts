<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Tarvel</name>
    <message>
        <source>Default</source>
        <translation>デフォルト</translation>
    </message>
    <message>
        <source>Opposed</source>
        <translation>上下対向</translation>
    </message>
    <message>
        <source>Centered</source>
        <translation>中央揃え</translation>
    </message>
    <message>
        <source>Line Graph</source>
        <translation>折れ線グラフ</translation>
    </message>
    <message>
        <source>Line Graph (Heavy line)</source>
        <translation>折れ線グラフ（太線）</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Unify in MB</source>
        <translation>MBで統一</translation>
    </message>
    <message>
        <source>Unify in GB</source>
        <translation>GBで統一</translation>
    </message>
    <message>
        <source>KB/s（Bytes）</source>
        <translation>KB/s（バイト）</translation>
    </message>
    <message>
        <source>Kbps (Bits)</source>
        <translation>Kbps（ビット）</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上り</translation>
    </message>
    <message>
        <source>Dw</source>
        <translation>下り</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>出</translation>
    </message>
    <message>
        <source>In</source>
        <translation>入</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Receive</source>
        <translation>受信</translation>
    </message>
    <message>
        <source>R:</source>
        <translation>読:</translation>
    </message>
    <message>
        <source>W:</source>
        <translation>書:</translation>
    </message>
    <message>
        <source>Read:</source>
        <translation>読込:</translation>
    </message>
    <message>
        <source>Write:</source>
        <translation>書込:</translation>
    </message>
    <message>
        <source>Show Used</source>
        <translation>使用量を表示</translation>
    </message>
    <message>
        <source>Show Free</source>
        <translation>空き容量を表示</translation>
    </message>
    <message>
        <source>U:</source>
        <translation>使:</translation>
    </message>
    <message>
        <source>F:</source>
        <translation>空:</translation>
    </message>
    <message>
        <source>Used:</source>
        <translation>使用:</translation>
    </message>
    <message>
        <source>Free:</source>
        <translation>空き:</translation>
    </message>
    <message>
        <source>%dday%@ %d:%02d:%02d</source>
        <translation>%d日%@ %d:%02d:%02d</translation>
    </message>
    <message>
        <source>_dayS</source>
        <translatorcomment>Japanese has no plural suffix. A lone zero-width space means an empty text; an empty translation would fall back to English.</translatorcomment>
        <translation>&#x200b;</translation>
    </message>
    <message>
        <source>%d threads, %d processes</source>
        <translation>%d スレッド、%d プロセス</translation>
    </message>
    <message>
        <source>1min: %.2f, 5min: %.2f, 15min: %.2f</source>
        <translation>1分: %.2f、5分: %.2f、15分: %.2f</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>No temperature sensors were found.</source>
        <translation>温度センサーが見つかりませんでした。</translation>
    </message>
    <message>
        <source>No fans were found.</source>
        <translation>ファンが見つかりませんでした。</translation>
    </message>
    <message>
        <source>Sensors</source>
        <translation>センサー</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>high %1</source>
        <translation>高温 %1</translation>
    </message>
    <message>
        <source>critical %1</source>
        <translation>危険 %1</translation>
    </message>
    <message>
        <source>min %1</source>
        <translation>最小 %1</translation>
    </message>
    <message>
        <source>max %1</source>
        <translation>最大 %1</translation>
    </message>
    <message>
        <source>Temperature shown</source>
        <translation>メニューバーに表示する温度</translation>
    </message>
    <message>
        <source>Average of all sensors</source>
        <translation>全センサーの平均</translation>
    </message>
    <message>
        <source>%1 (not found)</source>
        <translation>%1（見つかりません）</translation>
    </message>
    <message>
        <source>Top of the graph</source>
        <translation>グラフの上限</translation>
    </message>
    <message>
        <source>Pile the text on the graph</source>
        <translation>テキストをグラフに重ねる</translation>
    </message>
    <message>
        <source>Colour the text by the temperature</source>
        <translation>温度に応じてテキストを色分けする</translation>
    </message>
    <message>
        <source>Colour the text by the speed</source>
        <translation>回転数に応じてテキストを色分けする</translation>
    </message>
    <message>
        <source>Ask the drives for their temperatures</source>
        <translation>ドライブに温度を問い合わせる</translation>
    </message>
    <message>
        <source>Show the Temp label</source>
        <translation>Tempラベルを表示</translation>
    </message>
    <message>
        <source>Show the Fan label</source>
        <translation>Fanラベルを表示</translation>
    </message>
    <message>
        <source>Open VNC Viewer</source>
        <translation>VNC ビューアを開く</translation>
    </message>
    <message>
        <source>Open All of Servers at Once</source>
        <translation>すべてのサーバを一度に開く</translation>
    </message>
    <message>
        <source>No VNC viewer</source>
        <translation>VNC ビューアがありません</translation>
    </message>
    <message>
        <source>No VNC viewer is registered for %1: addresses, so %2 cannot be opened.</source>
        <translation>%1: アドレスを開く VNC ビューアが登録されていないため、%2 を開けません。</translation>
    </message>
    <message>
        <source>No VNC viewer is registered for %1: addresses. Install one, such as Remmina or TigerVNC.</source>
        <translation>%1: アドレスを開く VNC ビューアが登録されていません。Remmina や TigerVNC などをインストールしてください。</translation>
    </message>
    <message>
        <source>Hosts</source>
        <translation>ホスト</translation>
    </message>
    <message>
        <source>In menu</source>
        <translation>メニューに表示</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>Double-click a name or an address to change it.</source>
        <translation>名前やアドレスはダブルクリックで変更できます。</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Import from Remmina and TigerVNC</source>
        <translation>Remmina と TigerVNC から読み込む</translation>
    </message>
    <message>
        <source>Import .vncloc Files...</source>
        <translation>.vncloc ファイルを読み込む...</translation>
    </message>
    <message>
        <source>Choose a folder of .vncloc files</source>
        <translation>.vncloc ファイルのあるフォルダを選択</translation>
    </message>
    <message>
        <source>Show the VNC item in the menu bar</source>
        <translation>メニューバーに VNC 項目を表示</translation>
    </message>
    <message>
        <source>Add "Open All of Servers at Once" to the menu</source>
        <translation>メニューに「すべてのサーバを一度に開く」を追加</translation>
    </message>
    <message>
        <source>No VNC hosts were found.</source>
        <translation>VNC のホストは見つかりませんでした。</translation>
    </message>
    <message>
        <source>Imported %1 hosts.</source>
        <translation>%1 件のホストを読み込みました。</translation>
    </message>
    <message>
        <source>New Host</source>
        <translation>新しいホスト</translation>
    </message>
    <message>
        <source>A host needs a name.</source>
        <translation>ホストには名前が必要です。</translation>
    </message>
    <message>
        <source>"%1" is not a VNC address. Type vnc://host:port or host:port.</source>
        <translation>「%1」は VNC のアドレスではありません。vnc://ホスト:ポート または ホスト:ポート の形で入力してください。</translation>
    </message>
    <message>
        <source>Check for Updates...</source>
        <translation>アップデートを確認...</translation>
    </message>
    <message>
        <source>Visit the Web Site</source>
        <translation>Web サイトを開く</translation>
    </message>
    <message>
        <source>Open the Settings Folder</source>
        <translation>設定フォルダを開く</translation>
    </message>
    <message>
        <source>Show Where Tarvel Runs From</source>
        <translation>Tarvel の場所を表示</translation>
    </message>
    <message>
        <source>Dynamic DNS</source>
        <translation>ダイナミック DNS</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>今すぐ更新</translation>
    </message>
    <message>
        <source>Looking up the global address...</source>
        <translation>グローバル IP アドレスを調べています...</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>(No Record)</source>
        <translation>(記録なし)</translation>
    </message>
    <message>
        <source>Line %0*d</source>
        <translation>%0*d 行目</translation>
    </message>
    <message>
        <source>Blank line</source>
        <translation>空行</translation>
    </message>
    <message>
        <source>Comment out</source>
        <translation>コメントアウト</translation>
    </message>
    <message>
        <source>Invalid Parameter</source>
        <translation>不正なパラメータ</translation>
    </message>
    <message>
        <source>Global IP Address changed.</source>
        <translation>グローバルIPアドレスが変更されました。</translation>
    </message>
    <message>
        <source>%@ -&gt; %@</source>
        <translation>%@ -&gt; %@</translation>
    </message>
    <message>
        <source>%@ -&gt; %@.%@</source>
        <translation>%@ -&gt; %@.%@</translation>
    </message>
    <message>
        <source>Some error occurred (%@)</source>
        <translation>エラーが発生しました (%@)</translation>
    </message>
    <message>
        <source>Unknown Error</source>
        <translation>不明なエラー</translation>
    </message>
    <message>
        <source>The global IP address is unchanged (%@).</source>
        <translation>グローバルIPアドレスは変わっていません (%@)。</translation>
    </message>
    <message>
        <source>No dynamic DNS lines are set.</source>
        <translation>ダイナミックDNSの設定行がありません。</translation>
    </message>
    <message>
        <source>The global IP address could not be found.</source>
        <translation>グローバルIPアドレスを取得できませんでした。</translation>
    </message>
    <message>
        <source>Global IP address %@ recorded.</source>
        <translation>グローバルIPアドレス %@ を記録しました。</translation>
    </message>
    <message>
        <source>Global IP address %@ sent: %@ of %@ updates succeeded.</source>
        <translation>グローバルIPアドレス %@ を送信しました: 成功 %@ 件 / 更新 %@ 件。</translation>
    </message>
    <message>
        <source>New version available</source>
        <translation>新しいバージョンがあります</translation>
    </message>
    <message>
        <source>now ver : %@
new ver : %@</source>
        <translation>現在のバージョン : %@
新しいバージョン : %@</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>No update available</source>
        <translation>アップデートはありません</translation>
    </message>
    <message>
        <source>Update check unavailable</source>
        <translation>アップデートを確認できません</translation>
    </message>
    <message>
        <source>No address is set for the version file.</source>
        <translation>バージョンファイルのアドレスが設定されていません。</translation>
    </message>
    <message>
        <source>Look Up the Global IP Address</source>
        <translation>グローバル IP アドレスを調べる</translation>
    </message>
    <message>
        <source>No address service answered.</source>
        <translation>どのアドレスサービスからも応答がありませんでした。</translation>
    </message>
    <message>
        <source>Global IP Address</source>
        <translation>グローバル IP アドレス</translation>
    </message>
    <message>
        <source>The settings file %1 is not a regular file; the default settings are used and nothing is saved there.</source>
        <translation>設定ファイル %1 は通常のファイルではありません。既定の設定を使い、そこには何も保存しません。</translation>
    </message>
    <message>
        <source>The settings file %1 could not be read; it was moved to %2 and the default settings are used.</source>
        <translation>設定ファイル %1 を読み込めませんでした。%2 に移動し、既定の設定を使います。</translation>
    </message>
    <message>
        <source>The settings file %1 could not be read nor moved aside; the default settings are used and the file is left as it is.</source>
        <translation>設定ファイル %1 を読み込めず、退避もできませんでした。既定の設定を使い、ファイルはそのまま残します。</translation>
    </message>
    <message>
        <source>The settings could not be saved to %1.</source>
        <translation>設定を %1 に保存できませんでした。</translation>
    </message>
    <message>
        <source>The colour theme %1 could not be read nor moved aside; the light theme is used and the file is left as it is.</source>
        <translation>カラーテーマ %1 を読み込めず、退避もできませんでした。ライトテーマを使い、ファイルはそのまま残します。</translation>
    </message>
    <message>
        <source>The colour theme %1 could not be read; it was moved to %2 and the light theme is used.</source>
        <translation>カラーテーマ %1 を読み込めませんでした。%2 に移動し、ライトテーマを使います。</translation>
    </message>
    <message>
        <source>The colour theme %1 is not a regular file; the light theme is used and nothing is saved there.</source>
        <translation>カラーテーマ %1 は通常のファイルではありません。ライトテーマを使い、そこには何も保存しません。</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 を開く</translation>
    </message>
    <message>
        <source>Open System Monitor</source>
        <translation>システムモニタを開く</translation>
    </message>
    <message>
        <source>Open Log Viewer</source>
        <translation>ログビューアを開く</translation>
    </message>
    <message>
        <source>Open Terminal</source>
        <translation>ターミナルを開く</translation>
    </message>
    <message>
        <source>Open Activity Monitor</source>
        <translation>アクティビティモニタを開く</translation>
    </message>
    <message>
        <source>Open Console</source>
        <translation>コンソールを開く</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>インストールされていません</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation>フォント: %1</translation>
    </message>
    <message>
        <source>%1, settings in %2</source>
        <translation>%1、設定ファイル: %2</translation>
    </message>
    <message>
        <source>Show virtual devices (loop, LVM, RAID)</source>
        <translation>仮想デバイスも表示 (ループ, LVM, RAID)</translation>
    </message>
    <message>
        <source>Tarvel 6 will restart after %lld days.</source>
        <translation>Tarvel 6 は %lld 日後に再起動します。</translation>
    </message>
    <message>
        <source>Hello!</source>
        <translation>こんにちは!</translation>
    </message>
    <message>
        <source>The current theme could not be written.</source>
        <translation>現在のテーマを書き込めませんでした。</translation>
    </message>
    <message>
        <source>The desktop's appearance changed; switching to the theme %s.</source>
        <translation>デスクトップの外観が変わりました。テーマ %s に切り替えます。</translation>
    </message>
    <message>
        <source>No display found: showing texts. Run tarvel on a desktop (DISPLAY or WAYLAND_DISPLAY) for the panel.</source>
        <translation>ディスプレイが見つからないため、テキストで表示します。パネルを使うにはデスクトップ (DISPLAY または WAYLAND_DISPLAY) で tarvel を実行してください。</translation>
    </message>
    <message>
        <source>Root</source>
        <translation>ルート</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザ</translation>
    </message>
    <message>
        <source>System</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>Nice</source>
        <translation>低優先度</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>アイドル</translation>
    </message>
    <message>
        <source>(Probably VM)</source>
        <translation>(おそらく仮想マシン)</translation>
    </message>
    <message>
        <source>Cpu Type</source>
        <translation>CPU の種類</translation>
    </message>
    <message>
        <source>Uptime Boot/Actv</source>
        <translation>稼働時間 起動/活動</translation>
    </message>
    <message>
        <source>Scheduling Stat</source>
        <translation>スケジューリング</translation>
    </message>
    <message>
        <source>Load Average</source>
        <translation>ロードアベレージ</translation>
    </message>
    <message>
        <source>Host Name</source>
        <translation>ホスト名</translation>
    </message>
    <message>
        <source>CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>%@ %dcores</source>
        <translation>%@ %dコア</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>グラフ</translation>
    </message>
    <message>
        <source>Level bar</source>
        <translation>レベルバー</translation>
    </message>
    <message>
        <source>Cycle meter</source>
        <translation>円グラフメーター</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Average multiple processors</source>
        <translation>複数プロセッサを平均する</translation>
    </message>
    <message>
        <source>Show user and system as one figure</source>
        <translation>ユーザとシステムを合計して表示</translation>
    </message>
    <message>
        <source>Draw the graph as a line</source>
        <translation>グラフを線で描く</translation>
    </message>
    <message>
        <source>Heavy line</source>
        <translation>太線</translation>
    </message>
    <message>
        <source>Show the CPU label</source>
        <translation>CPUラベルを表示</translation>
    </message>
    <message>
        <source>No disk found</source>
        <translation>ディスクが見つかりません</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>リビジョン</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>シリアル</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>読込</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>書込</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>書込済み</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Read/write lamps</source>
        <translation>読込/書込ランプ</translation>
    </message>
    <message>
        <source>Lamp labels</source>
        <translation>ランプのラベル</translation>
    </message>
    <message>
        <source>Graph labels</source>
        <translation>グラフのラベル</translation>
    </message>
    <message>
        <source>Text labels</source>
        <translation>テキストのラベル</translation>
    </message>
    <message>
        <source>Graph style</source>
        <translation>グラフの形</translation>
    </message>
    <message>
        <source>Graph scale</source>
        <translation>グラフの目盛り</translation>
    </message>
    <message>
        <source>Relative to the busiest moment shown</source>
        <translation>表示中の最大値に合わせる</translation>
    </message>
    <message>
        <source>Logarithmic</source>
        <translation>対数</translation>
    </message>
    <message>
        <source>Show each disk</source>
        <translation>ディスクごとに表示</translation>
    </message>
    <message>
        <source>Disk pictures behind each disk</source>
        <translation>ディスクごとに背景にディスクの絵を描く</translation>
    </message>
    <message>
        <source>Show the Disk label</source>
        <translation>Diskラベルを表示</translation>
    </message>
    <message>
        <source>Fan</source>
        <translation>ファン</translation>
    </message>
    <message>
        <source>Blend the warning colours</source>
        <translation>警告色をなめらかに変える</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>環境設定...</translation>
    </message>
    <message>
        <source>Shared</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>Save Theme...</source>
        <translation>テーマを保存...</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Font position adjustment</source>
        <translation>フォント位置の調整</translation>
    </message>
    <message>
        <source>Font size difference</source>
        <translation>フォントサイズの差</translation>
    </message>
    <message>
        <source>Selected Theme</source>
        <translation>選択中のテーマ</translation>
    </message>
    <message>
        <source>The theme could not be saved.</source>
        <translation>テーマを保存できませんでした。</translation>
    </message>
    <message>
        <source>Drag to change the order in the menu bar.</source>
        <translation>ドラッグしてメニューバーでの並び順を変えられます。</translation>
    </message>
    <message>
        <source>Show the Tarvel item</source>
        <translation>Tarvel 項目を表示</translation>
    </message>
    <message>
        <source>Preview the menu bar here</source>
        <translation>ここにメニューバーをプレビュー</translation>
    </message>
    <message>
        <source>Modules</source>
        <translation>モジュール</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>しない</translation>
    </message>
    <message>
        <source>Reboot Tarvel regularly (days)</source>
        <translation>Tarvel を定期的に再起動 (日)</translation>
    </message>
    <message>
        <source>Display preferences at startup</source>
        <translation>起動時に環境設定を表示</translation>
    </message>
    <message>
        <source>Never receive the update notification</source>
        <translation>アップデートの通知を受け取らない</translation>
    </message>
    <message>
        <source>Start Tarvel at login</source>
        <translation>ログイン時に Tarvel を起動</translation>
    </message>
    <message>
        <source>(not available on this system yet)</source>
        <translation>(このシステムではまだ使えません)</translation>
    </message>
    <message>
        <source>The autostart entry could not be written:</source>
        <translation>自動起動のエントリを書き込めませんでした:</translation>
    </message>
    <message>
        <source>Wired:</source>
        <translation>固定:</translation>
    </message>
    <message>
        <source>Active:</source>
        <translation>使用中:</translation>
    </message>
    <message>
        <source>A:</source>
        <translation>ア:</translation>
    </message>
    <message>
        <source>Inactive:</source>
        <translation>非使用:</translation>
    </message>
    <message>
        <source>I:</source>
        <translation>非:</translation>
    </message>
    <message>
        <source>App:</source>
        <translation>アプリ:</translation>
    </message>
    <message>
        <source>Cached:</source>
        <translation>キャッシュ:</translation>
    </message>
    <message>
        <source>C:</source>
        <translation>キ:</translation>
    </message>
    <message>
        <source>Wired</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非使用</translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation>圧縮</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>空き</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>Cached Files</source>
        <translation>キャッシュされたファイル</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Page-ins</source>
        <translation>ページイン</translation>
    </message>
    <message>
        <source>Page-outs</source>
        <translation>ページアウト</translation>
    </message>
    <message>
        <source>Swap Used</source>
        <translation>使用中のスワップ</translation>
    </message>
    <message>
        <source>Swap Areas</source>
        <translation>スワップ領域</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリ</translation>
    </message>
    <message>
        <source>%d pages/s</source>
        <translation>%d ページ/秒</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 中 %1</translation>
    </message>
    <message>
        <source>file</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>partition</source>
        <translation>パーティション</translation>
    </message>
    <message>
        <source>Detail text</source>
        <translation>詳細テキスト</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Show wired, active and inactive pages</source>
        <translation>固定・使用中・非使用のページを表示</translation>
    </message>
    <message>
        <source>Long labels in the text</source>
        <translation>テキストで長いラベルを使う</translation>
    </message>
    <message>
        <source>Long labels in the detail text</source>
        <translation>詳細テキストで長いラベルを使う</translation>
    </message>
    <message>
        <source>Show the Memory label</source>
        <translation>Memoryラベルを表示</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>現在</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Since Boot</source>
        <translation>起動以来</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Open Network Settings</source>
        <translation>ネットワーク設定を開く</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>ネットワーク</translation>
    </message>
    <message>
        <source>Gbps</source>
        <translation>Gbps</translation>
    </message>
    <message>
        <source>Mbps</source>
        <translation>Mbps</translation>
    </message>
    <message>
        <source>Kbps</source>
        <translation>Kbps</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>IPv4</source>
        <translation>IPv4</translation>
    </message>
    <message>
        <source>IPv6</source>
        <translation>IPv6</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC アドレス</translation>
    </message>
    <message>
        <source>Upload and download labels</source>
        <translation>アップロードとダウンロードのラベル</translation>
    </message>
    <message>
        <source>Activity lamps</source>
        <translation>通信ランプ</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>List every interface in the menu</source>
        <translation>すべてのインターフェイスをメニューに表示</translation>
    </message>
    <message>
        <source>Show the Network label</source>
        <translation>Networkラベルを表示</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>表示要素</translation>
    </message>
    <message>
        <source>Drag an element to change its place in the menu bar.</source>
        <translation>要素をドラッグするとメニューバーでの位置を変えられます。</translation>
    </message>
    <message>
        <source>Menu items</source>
        <translation>メニュー項目</translation>
    </message>
    <message>
        <source>Open "%@" Preference</source>
        <translation>「%@」の設定を開く</translation>
    </message>
    <message>
        <source>Open Disk Utility</source>
        <translation>ディスクユーティリティを開く</translation>
    </message>
    <message>
        <source>Temp</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>VNC</source>
        <translation>VNC</translation>
    </message>
    <message>
        <source>Volumes are ejected through the UDisks2 service, which is not running on this system.</source>
        <translation>ボリュームは UDisks2 サービスで取り出しますが、このシステムでは動いていません。</translation>
    </message>
    <message>
        <source>Eject</source>
        <translation>取り出す</translation>
    </message>
    <message>
        <source>Eject "%@"?</source>
        <translation>「%@」を取り出しますか?</translation>
    </message>
    <message>
        <source>Programs using files on it should be closed first.</source>
        <translation>先にその中のファイルを使っているプログラムを終了してください。</translation>
    </message>
    <message>
        <source>Network volumes are disconnected, not ejected.</source>
        <translation>ネットワークボリュームは取り出さずに接続を解除します。</translation>
    </message>
    <message>
        <source>No volume mounted</source>
        <translation>マウントされたボリュームはありません</translation>
    </message>
    <message>
        <source>Open "%@"</source>
        <translation>「%@」を開く</translation>
    </message>
    <message>
        <source>Eject "%@"…</source>
        <translation>「%@」を取り出す…</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>読み出し専用</translation>
    </message>
    <message>
        <source>Not measured yet</source>
        <translation>未計測</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>of</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>ボリューム</translation>
    </message>
    <message>
        <source>Bar chart</source>
        <translation>棒グラフ</translation>
    </message>
    <message>
        <source>Cycle chart</source>
        <translation>円グラフ</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>パーセント</translation>
    </message>
    <message>
        <source>Colour the figures by how full the volume is</source>
        <translation>使用率に応じて数値を色分けする</translation>
    </message>
    <message>
        <source>Show each volume</source>
        <translation>ボリュームごとに表示</translation>
    </message>
    <message>
        <source>Volume pictures behind each volume</source>
        <translation>ボリュームごとに背景にボリュームの絵を描く</translation>
    </message>
    <message>
        <source>Show the Volume label</source>
        <translation>Volumeラベルを表示</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Update Interval : %ld sec</source>
        <translation>更新間隔 : %ld 秒</translation>
    </message>
    <message>
        <source>Histgram width : %ld pixel</source>
        <translation>グラフの幅 : %ld ピクセル</translation>
    </message>
    <message>
        <source>Ignore below : %ldKB/s</source>
        <translation>無視する値 : %ldKB/s 未満</translation>
    </message>
    <message>
        <source>Your settings could not be saved. They apply until Tarvel quits.</source>
        <translation>設定を保存できませんでした。Tarvel を終了するまでは有効です。</translation>
    </message>
    <message>
        <source>Shadow under menu-bar text</source>
        <translation>メニューバーのテキストの影</translation>
    </message>
    <message>
        <source>Line under an empty graph</source>
        <translation>空のグラフの下線</translation>
    </message>
    <message>
        <source>Frame of bar and meter</source>
        <translation>バーとメーターの枠</translation>
    </message>
    <message>
        <source>Graph background</source>
        <translation>グラフの背景</translation>
    </message>
    <message>
        <source>Combined percentage</source>
        <translation>合計のパーセント</translation>
    </message>
    <message>
        <source>Active; application</source>
        <translation>使用中・アプリケーション</translation>
    </message>
    <message>
        <source>Inactive; cached files</source>
        <translation>非使用・キャッシュされたファイル</translation>
    </message>
    <message>
        <source>Pressure low</source>
        <translation>メモリプレッシャー 低</translation>
    </message>
    <message>
        <source>Pressure warning</source>
        <translation>メモリプレッシャー 警告</translation>
    </message>
    <message>
        <source>Pressure critical</source>
        <translation>メモリプレッシャー 危険</translation>
    </message>
    <message>
        <source>Lamp frame</source>
        <translation>ランプの枠</translation>
    </message>
    <message>
        <source>Lamp off</source>
        <translation>ランプ 消灯</translation>
    </message>
    <message>
        <source>Used, low</source>
        <translation>使用量 低</translation>
    </message>
    <message>
        <source>Used, warning</source>
        <translation>使用量 警告</translation>
    </message>
    <message>
        <source>Used, critical</source>
        <translation>使用量 危険</translation>
    </message>
    <message>
        <source>Label text</source>
        <translation>ラベルのテキスト</translation>
    </message>
    <message>
        <source>Percentage text</source>
        <translation>パーセントのテキスト</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>危険</translation>
    </message>
    <message>
        <source>This module is not available on this system yet.</source>
        <translation>このモジュールはこのシステムではまだ使えません。</translation>
    </message>
    <message>
        <source>● for Dark Appearance</source>
        <translation>● ダークモード用</translation>
    </message>
    <message>
        <source>○ for Light Appearance</source>
        <translation>○ ライトモード用</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Serving metrics at %1</source>
        <translation>%1 でメトリクスを提供しています</translation>
    </message>
    <message>
        <source>Port %1 is already in use; metrics are not served.</source>
        <translation>ポート %1 は使用中のため、メトリクスを提供できません。</translation>
    </message>
    <message>
        <source>Metrics cannot be served on this address: %1</source>
        <translation>このアドレスではメトリクスを提供できません: %1</translation>
    </message>
    <message>
        <source>"%1" is not an address and port such as 127.0.0.1:9772.</source>
        <translation>「%1」は 127.0.0.1:9772 のようなアドレスとポートではありません。</translation>
    </message>
    <message>
        <source>Serve metrics for Prometheus at /metrics</source>
        <translation>Prometheus 向けに /metrics でメトリクスを提供する</translation>
    </message>
    <message>
        <source>Listen on</source>
        <translation>待ち受けアドレス</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>メトリクス</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>1 h</source>
        <translation>1時間</translation>
    </message>
    <message>
        <source>24 h</source>
        <translation>24時間</translation>
    </message>
    <message>
        <source>7 days</source>
        <translation>7日間</translation>
    </message>
    <message>
        <source>No history for this range yet</source>
        <translation>この期間の履歴はまだありません</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>App</source>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>Cached</source>
        <translation>キャッシュ</translation>
    </message>
    <message>
        <source>Swap used</source>
        <translation>スワップ使用済み</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下り</translation>
    </message>
    <message>
        <source>Alerts</source>
        <translation>アラート</translation>
    </message>
    <message>
        <source>Add Alert</source>
        <translation>アラートを追加</translation>
    </message>
    <message>
        <source>A notification is sent once when a figure stays past its threshold for the time given, and again only after it has come back to where it clears.</source>
        <translation>値がしきい値を指定の時間超え続けると通知を一度送ります。次の通知は、値が解除の値まで戻った後に限ります。</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Figure</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>しきい値</translation>
    </message>
    <message>
        <source>For</source>
        <translation>継続</translation>
    </message>
    <message>
        <source>Clears at</source>
        <translation>解除</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>over</source>
        <translation>より上</translation>
    </message>
    <message>
        <source>under</source>
        <translation>より下</translation>
    </message>
    <message>
        <source>CPU busy</source>
        <translation>CPU 使用率</translation>
    </message>
    <message>
        <source>Memory in use</source>
        <translation>メモリ使用率</translation>
    </message>
    <message>
        <source>Download rate</source>
        <translation>受信速度</translation>
    </message>
    <message>
        <source>Upload rate</source>
        <translation>送信速度</translation>
    </message>
    <message>
        <source>Disk read rate</source>
        <translation>ディスク読み込み速度</translation>
    </message>
    <message>
        <source>Disk write rate</source>
        <translation>ディスク書き込み速度</translation>
    </message>
    <message>
        <source>Fullest volume</source>
        <translation>最も使用率の高いボリューム</translation>
    </message>
    <message>
        <source>Average temperature</source>
        <translation>平均温度</translation>
    </message>
    <message>
        <source>Highest temperature</source>
        <translation>最高温度</translation>
    </message>
    <message>
        <source>Fastest fan</source>
        <translation>最も速いファン</translation>
    </message>
    <message>
        <source>Alert: %1</source>
        <translation>アラート: %1</translation>
    </message>
    <message>
        <source>Now %1, over %2.</source>
        <translation>現在 %1、%2 を超えています。</translation>
    </message>
    <message>
        <source>Now %1, under %2.</source>
        <translation>現在 %1、%2 を下回っています。</translation>
    </message>
    <message>
        <source>Now %1, over %2 for %3.</source>
        <translation>現在 %1、%3 の間 %2 を超えています。</translation>
    </message>
    <message>
        <source>Now %1, under %2 for %3.</source>
        <translation>現在 %1、%3 の間 %2 を下回っています。</translation>
    </message>
    <message>
        <source>Swap in use</source>
        <translation>スワップ使用率</translation>
    </message>
</context>
</TS>
