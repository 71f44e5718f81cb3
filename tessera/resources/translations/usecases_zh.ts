<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>FeatureTreeWidget</name>
    <message>
        <source>Changing the resolution</source>
        <translation>更改分辨率</translation>
    </message>
    <message>
        <source>Checking whether the camera is losing image data</source>
        <translation>检查相机是否丢失图像数据</translation>
    </message>
    <message>
        <source>Configuring the trigger behavior of the camera</source>
        <translation>配置相机的触发行为</translation>
    </message>
    <message>
        <source>Controlling the brightness</source>
        <translation>控制亮度</translation>
    </message>
    <message>
        <source>Controlling the frame rate</source>
        <translation>控制帧速率</translation>
    </message>
    <message>
        <source>Keeping the image quality consistent under changing light conditions</source>
        <translation>在不断变化的光照条件下保持图像质量一致</translation>
    </message>
    <message>
        <source>Optimizing the image quality</source>
        <translation>优化图像质量</translation>
    </message>
    <message>
        <source>Saving camera settings for later use</source>
        <translation>保存相机设置以便将来使用</translation>
    </message>
    <message>
        <source>Tessera - Basic</source>
        <translation>Tessera – 基本</translation>
    </message>
</context>
</TS>
