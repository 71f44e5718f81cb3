<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>FeatureTreeWidget</name>
    <message>
        <source>Changing the resolution</source>
        <translation>解像度の変更</translation>
    </message>
    <message>
        <source>Checking whether the camera is losing image data</source>
        <translation>カメラが画像データを消失しているかどうかの確認</translation>
    </message>
    <message>
        <source>Configuring the trigger behavior of the camera</source>
        <translation>カメラのトリガー動作の設定</translation>
    </message>
    <message>
        <source>Controlling the brightness</source>
        <translation>明るさの制御</translation>
    </message>
    <message>
        <source>Controlling the frame rate</source>
        <translation>フレームレートの制御</translation>
    </message>
    <message>
        <source>Keeping the image quality consistent under changing light conditions</source>
        <translation>光の状態が変化しても画像品質を一定に保つ</translation>
    </message>
    <message>
        <source>Optimizing the image quality</source>
        <translation>画像品質の最適化</translation>
    </message>
    <message>
        <source>Saving camera settings for later use</source>
        <translation>後で使用するためにカメラ設定を保存</translation>
    </message>
    <message>
        <source>Tessera - Basic</source>
        <translation>Tessera – 基本</translation>
    </message>
</context>
</TS>
