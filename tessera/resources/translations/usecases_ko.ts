<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>FeatureTreeWidget</name>
    <message>
        <source>Changing the resolution</source>
        <translation>해상도 변경</translation>
    </message>
    <message>
        <source>Checking whether the camera is losing image data</source>
        <translation>카메라가 이미지 데이터를 손실하는지 여부 확인</translation>
    </message>
    <message>
        <source>Configuring the trigger behavior of the camera</source>
        <translation>카메라의 트리거 동작 구성</translation>
    </message>
    <message>
        <source>Controlling the brightness</source>
        <translation>밝기 제어</translation>
    </message>
    <message>
        <source>Controlling the frame rate</source>
        <translation>프레임 속도 제어</translation>
    </message>
    <message>
        <source>Keeping the image quality consistent under changing light conditions</source>
        <translation>변화하는 조명 조건에서 이미지 품질을 일정하게 유지</translation>
    </message>
    <message>
        <source>Optimizing the image quality</source>
        <translation>이미지 품질 최적화</translation>
    </message>
    <message>
        <source>Saving camera settings for later use</source>
        <translation>나중에 사용할 수 있도록 카메라 설정 저장</translation>
    </message>
    <message>
        <source>Tessera - Basic</source>
        <translation>Tessera – 기본</translation>
    </message>
</context>
</TS>
