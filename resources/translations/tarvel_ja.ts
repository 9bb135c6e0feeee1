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
</context>
</TS>
