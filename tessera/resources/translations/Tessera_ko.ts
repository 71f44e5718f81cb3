<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>ComboSlider</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>범위: %1~%2</translation>
    </message>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>범위: %1~%2(증분: %3)</translation>
    </message>
</context>
<context>
    <name>DoubleComboSlider</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>범위: %1~%2</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBox</name>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>범위: %1~%2(증분: %3)</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>범위: %1~%2</translation>
    </message>
</context>
<context>
    <name>EditTabName</name>
    <message>
        <source>New feature tab</source>
        <translation>새 기능 탭</translation>
    </message>
    <message>
        <source>Name of feature tab %1</source>
        <translation>기능 탭 %1의 이름</translation>
    </message>
    <message>
        <source>Delete feature tab %1</source>
        <translation>기능 탭 %1 삭제</translation>
    </message>
</context>
<context>
    <name>Feature</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 제거</translation>
    </message>
</context>
<context>
    <name>FeatureTreeINodeItem</name>
    <message>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;구현되지 않음&gt;</translation>
    </message>
    <message>
        <source>&lt;not available&gt;</source>
        <translation>&lt;사용할 수 없음&gt;</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;읽을 수 없음&gt;</translation>
    </message>
    <message>
        <source>on</source>
        <translation>켜짐</translation>
    </message>
    <message>
        <source>off</source>
        <translation>꺼짐</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <source>Category</source>
        <translation>카테고리</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>No parameters match favorite selection.</source>
        <translation>즐겨찾기 선택과 일치하는 파라미터가 없습니다.</translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidget</name>
    <message>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;구현되지 않음&gt;</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;읽을 수 없음&gt;</translation>
    </message>
    <message>
        <source>&lt;not available&gt;</source>
        <translation>&lt;사용할 수 없음&gt;</translation>
    </message>
    <message>
        <source>Search for parameters</source>
        <translation>파라미터 검색</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>폴링</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>위로 이동</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>아래로 이동</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Common Tasks</source>
        <translation>일반 작업</translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidgetClass</name>
    <message>
        <source>FeatureTreeWidget</source>
        <translation>기능 브라우저</translation>
    </message>
    <message>
        <source>Edit Feature Tabs</source>
        <translation>기능 탭 편집</translation>
    </message>
    <message>
        <source>Show Tree View</source>
        <translation>트리 보기 표시</translation>
    </message>
    <message>
        <source>P&amp;olling</source>
        <translation>폴링(&amp;O)</translation>
    </message>
    <message>
        <source>Show Unavailable Features</source>
        <translation>사용할 수 없는 기능 표시</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>Refreshes the  feature tree</source>
        <translation>기능 트리를 새로 고칩니다</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Use case</source>
        <translation>사용 사례</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>카테고리</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>기능</translation>
    </message>
</context>
<context>
    <name>FloatEditor</name>
    <message>
        <source>Dynamic cast on pNode has gone wrong!</source>
        <translation>pNode의 동적 캐스트에 실패했습니다!</translation>
    </message>
    <message>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>최솟값이 최댓값보다 큽니다!</translation>
    </message>
    <message>
        <source>The minimum value is larger than the to be set node value or the maximum value is smaller than the to be set node value!</source>
        <translation>설정하려는 노드 값이 최솟값보다 작거나 최댓값보다 큽니다!</translation>
    </message>
</context>
<context>
    <name>FloatSliderEditor</name>
    <message>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>최솟값이 최댓값보다 큽니다!</translation>
    </message>
    <message>
        <source>The minimum allowed value is larger than the to be set node value or the maximum allowed value is smaller than the to be set node value!</source>
        <translation>설정하려는 노드 값이 허용 최솟값보다 작거나 허용 최댓값보다 큽니다!</translation>
    </message>
    <message>
        <source>The alias increment cannot be &apos;0&apos;!</source>
        <translation>별칭의 증분은 &apos;0&apos;일 수 없습니다!</translation>
    </message>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>범위: %1~%2(증분: %3)</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>범위: %1~%2</translation>
    </message>
    <message>
        <source>Dynamic cast on pNode has gone wrong!</source>
        <translation>pNode의 동적 캐스트에 실패했습니다!</translation>
    </message>
    <message>
        <source>Could not retrieve an alias node on pNode</source>
        <translation>pNode의 별칭 노드를 가져올 수 없습니다</translation>
    </message>
    <message>
        <source>The given range or increment information of the given pNode is not valid</source>
        <translation>pNode의 범위 또는 증분 정보가 올바르지 않습니다</translation>
    </message>
</context>
<context>
    <name>IntEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;읽을 수 없음&gt;</translation>
    </message>
    <message>
        <source>Range: 0x%1..0x%2</source>
        <translation>범위: 0x%1~0x%2</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>범위: %1~%2</translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::CFeatureTreeWidget</name>
    <message>
        <source>&lt;i&gt;Select any open camera in the Devices pane or select any qStep with settings in the Workbench pane to display its features.&lt;/i&gt;</source>
        <translation>&lt;i&gt;기능을 표시하려면 장치 창에서 열려 있는 카메라를 선택하거나 Workbench 창에서 설정이 있는 qStep을 선택하십시오.&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&lt;i&gt;Select any open camera in the Devices pane to display its features.&lt;/i&gt;</source>
        <translation>&lt;i&gt;기능을 표시하려면 장치 창에서 열려 있는 카메라를 선택하십시오.&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Copy Camera Features</source>
        <translation>카메라 기능 복사</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>My tab </source>
        <translation>내 탭 </translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::CTesseraPlugin</name>
    <message>
        <source>All</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>기본</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>기능</translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::Internal::Model::CFeatureTableModel</name>
    <message>
        <source>Failed to set a feature value.</source>
        <translation>기능 값을 설정하지 못했습니다.</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::Internal::View::CUseCaseEdit</name>
    <message>
        <source>Leave the use case</source>
        <translation>사용 사례 나가기</translation>
    </message>
</context>
<context>
    <name>SearchEdit</name>
    <message>
        <source>Clear the search</source>
        <translation>검색 지우기</translation>
    </message>
</context>
<context>
    <name>ToolButtonEditor</name>
    <message>
        <source>Execute</source>
        <translation>실행</translation>
    </message>
</context>
<context>
    <name>featuretreeoptionmenu</name>
    <message>
        <source>Edit Feature Tabs</source>
        <translation>기능 탭 편집</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Add features by drag and drop</source>
        <translation>끌어서 놓아 기능 추가</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
</TS>
