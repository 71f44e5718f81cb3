<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>Viewer::DevicesView</name>
    <message>
        <source>&amp;Open</source>
        <translation>열기(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>장치</translation>
    </message>
</context>
<context>
    <name>Viewer::DocumentationView</name>
    <message>
        <source>Documentation of the current feature</source>
        <translation>현재 기능의 설명</translation>
    </message>
    <message>
        <source>Select a feature to read about it here.</source>
        <translation>기능을 선택하면 여기에 설명이 표시됩니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::FeatureContextMenu</name>
    <message>
        <source>Copy &amp;Name</source>
        <translation>이름 복사(&amp;N)</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>경로 복사(&amp;P)</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>값 복사(&amp;V)</translation>
    </message>
    <message>
        <source>Visibility &amp;Level</source>
        <translation>표시 수준(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Viewer::FeatureDocumentation</name>
    <message>
        <source>Integer</source>
        <translation>정수</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>부울</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>부동 소수점</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>String</source>
        <translation>문자열</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>열거형</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>카테고리</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>기타</translation>
    </message>
    <message>
        <source>not implemented</source>
        <translation>구현되지 않음</translation>
    </message>
    <message>
        <source>read and write</source>
        <translation>읽기 및 쓰기</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>write only</source>
        <translation>쓰기 전용</translation>
    </message>
    <message>
        <source>not available at present</source>
        <translation>현재 사용할 수 없음</translation>
    </message>
    <message>
        <source>Beginner</source>
        <translation>초급자</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>전문가</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>구루</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>숨김</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1~%2</translation>
    </message>
    <message>
        <source>%1, step %2</source>
        <translation>%1, 단계 %2</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>경로</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>설명</translation>
    </message>
    <message>
        <source>Tool tip</source>
        <translation>툴팁</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>표시 수준</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>액세스</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>한계</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>단위</translation>
    </message>
    <message>
        <source>More</source>
        <translation>자세히</translation>
    </message>
</context>
<context>
    <name>Viewer::LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>언어(&amp;L)</translation>
    </message>
    <message>
        <source>A change holds from the next start</source>
        <translation>변경 사항은 다음 시작부터 적용</translation>
    </message>
    <message>
        <source>%1 will be used from the next start on.</source>
        <translation>다음에 시작할 때부터 %1 언어를 사용합니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::LogModel</name>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>수준</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>카테고리</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
</context>
<context>
    <name>Viewer::LogView</name>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>지우기(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Viewer::MainWindow</name>
    <message>
        <source>Devices</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>문서</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>로그</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>카메라(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>Visibility Level</source>
        <translation>표시 수준</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>새로 고침(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>창(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>정보(&amp;A)</translation>
    </message>
    <message>
        <source>About Tessera</source>
        <translation>Tessera 정보</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Tessera %1&lt;/h3&gt;&lt;p&gt;A feature browser for machine-vision cameras.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Tessera %1&lt;/h3&gt;&lt;p&gt;머신 비전 카메라용 기능 브라우저입니다.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>Viewer::SourceModel</name>
    <message>
        <source>active</source>
        <translation>활성</translation>
    </message>
    <message>
        <source>open</source>
        <translation>열림</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>닫힘</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
</context>
<context>
    <name>Viewer::SourceSession</name>
    <message>
        <source>GigE Vision</source>
        <translation>GigE Vision</translation>
    </message>
    <message>
        <source>USB3 Vision</source>
        <translation>USB3 Vision</translation>
    </message>
    <message>
        <source>%1 could not be opened.</source>
        <translation>%1을(를) 열 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>Viewer::VisibilityLevel</name>
    <message>
        <source>&amp;Beginner</source>
        <translation>초급자(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Expert</source>
        <translation>전문가(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Guru</source>
        <translation>구루(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>전체(&amp;A)</translation>
    </message>
</context>
</TS>
