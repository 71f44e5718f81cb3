<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>FeatureTreeWidget</name>
    <message>
        <source>Changing the resolution</source>
        <translation>Changing the resolution</translation>
    </message>
    <message>
        <source>Checking whether the camera is losing image data</source>
        <translation>Checking whether the camera is losing image data</translation>
    </message>
    <message>
        <source>Configuring the trigger behavior of the camera</source>
        <translation>Configuring the trigger behavior of the camera</translation>
    </message>
    <message>
        <source>Controlling the brightness</source>
        <translation>Controlling the brightness</translation>
    </message>
    <message>
        <source>Controlling the frame rate</source>
        <translation>Controlling the frame rate</translation>
    </message>
    <message>
        <source>Keeping the image quality consistent under changing light conditions</source>
        <translation>Keeping the image quality consistent under changing light conditions</translation>
    </message>
    <message>
        <source>Optimizing the image quality</source>
        <translation>Optimizing the image quality</translation>
    </message>
    <message>
        <source>Saving camera settings for later use</source>
        <translation>Saving camera settings for later use</translation>
    </message>
    <message>
        <source>Tessera - Basic</source>
        <translation>Tessera - Basic</translation>
    </message>
</context>
</TS>
