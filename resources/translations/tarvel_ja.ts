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
</context>
</TS>
