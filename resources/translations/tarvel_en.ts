<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Tarvel</name>
    <message>
        <source>_dayS</source>
        <translation>s</translation>
    </message>
    <message>
        <source>更新に成功しました</source>
        <translation>Update succeeded</translation>
    </message>
    <message>
        <source>不正なリクエストです</source>
        <translation>Invalid request</translation>
    </message>
    <message>
        <source>不正なドメインとパスワードです</source>
        <translation>Invalid domain and password</translation>
    </message>
    <message>
        <source>不正なIPアドレスです</source>
        <translation>Invalid IP address</translation>
    </message>
    <message>
        <source>パスワードが一致しません</source>
        <translation>Password does not match</translation>
    </message>
    <message>
        <source>データベースサーバーが混雑しています</source>
        <translation>Database server is busy</translation>
    </message>
    <message>
        <source>その他のエラー</source>
        <translation>Other error</translation>
    </message>
</context>
</TS>
