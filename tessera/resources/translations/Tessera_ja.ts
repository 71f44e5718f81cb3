<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ComboSlider</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>範囲: %1～%2</translation>
    </message>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>範囲: %1～%2 (増分: %3)</translation>
    </message>
</context>
<context>
    <name>DoubleComboSlider</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>範囲: %1～%2</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBox</name>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>範囲: %1～%2 (増分: %3)</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>範囲: %1～%2</translation>
    </message>
</context>
<context>
    <name>EditTabName</name>
    <message>
        <source>New feature tab</source>
        <translation>新しい機能タブ</translation>
    </message>
    <message>
        <source>Name of feature tab %1</source>
        <translation>機能タブ %1 の名前</translation>
    </message>
    <message>
        <source>Delete feature tab %1</source>
        <translation>機能タブ %1 を削除</translation>
    </message>
</context>
<context>
    <name>Feature</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 を削除</translation>
    </message>
</context>
<context>
    <name>FeatureTreeINodeItem</name>
    <message>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;未実装&gt;</translation>
    </message>
    <message>
        <source>&lt;not available&gt;</source>
        <translation>&lt;利用不可&gt;</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;読み取り不可&gt;</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <source>Category</source>
        <translation>カテゴリー</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>No parameters match favorite selection.</source>
        <translation>お気に入りの選択に一致するパラメーターはありません。</translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidget</name>
    <message>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;未実装&gt;</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;読み取り不可&gt;</translation>
    </message>
    <message>
        <source>&lt;not available&gt;</source>
        <translation>&lt;利用不可&gt;</translation>
    </message>
    <message>
        <source>Search for parameters</source>
        <translation>パラメーターを検索</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>ポーリング</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Common Tasks</source>
        <translation>一般的なタスク</translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidgetClass</name>
    <message>
        <source>FeatureTreeWidget</source>
        <translation>機能ブラウザー</translation>
    </message>
    <message>
        <source>Edit Feature Tabs</source>
        <translation>機能タブの編集</translation>
    </message>
    <message>
        <source>Show Tree View</source>
        <translation>ツリービューを表示</translation>
    </message>
    <message>
        <source>P&amp;olling</source>
        <translation>ポーリング(&amp;O)</translation>
    </message>
    <message>
        <source>Show Unavailable Features</source>
        <translation>利用できない機能を表示</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Refreshes the  feature tree</source>
        <translation>機能ツリーを更新します</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Use case</source>
        <translation>ユースケース</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>カテゴリー</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>機能</translation>
    </message>
</context>
<context>
    <name>FloatEditor</name>
    <message>
        <source>Dynamic cast on pNode has gone wrong!</source>
        <translation>pNode の動的キャストに失敗しました。</translation>
    </message>
    <message>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>最小値が最大値より大きくなっています。</translation>
    </message>
    <message>
        <source>The minimum value is larger than the to be set node value or the maximum value is smaller than the to be set node value!</source>
        <translation>設定するノードの値が最小値より小さいか、最大値より大きくなっています。</translation>
    </message>
</context>
<context>
    <name>FloatSliderEditor</name>
    <message>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>最小値が最大値より大きくなっています。</translation>
    </message>
    <message>
        <source>The minimum allowed value is larger than the to be set node value or the maximum allowed value is smaller than the to be set node value!</source>
        <translation>設定するノードの値が許容最小値より小さいか、許容最大値より大きくなっています。</translation>
    </message>
    <message>
        <source>The alias increment cannot be &apos;0&apos;!</source>
        <translation>エイリアスの増分を「0」にすることはできません。</translation>
    </message>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>範囲: %1～%2 (増分: %3)</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>範囲: %1～%2</translation>
    </message>
    <message>
        <source>Dynamic cast on pNode has gone wrong!</source>
        <translation>pNode の動的キャストに失敗しました。</translation>
    </message>
    <message>
        <source>Could not retrieve an alias node on pNode</source>
        <translation>pNode のエイリアスノードを取得できませんでした</translation>
    </message>
    <message>
        <source>The given range or increment information of the given pNode is not valid</source>
        <translation>pNode の範囲または増分の情報が正しくありません</translation>
    </message>
</context>
<context>
    <name>IntEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;読み取り不可&gt;</translation>
    </message>
    <message>
        <source>Range: 0x%1..0x%2</source>
        <translation>範囲: 0x%1～0x%2</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>範囲: %1～%2</translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::CFeatureTreeWidget</name>
    <message>
        <source>&lt;i&gt;Select any open camera in the Devices pane or select any qStep with settings in the Workbench pane to display its features.&lt;/i&gt;</source>
        <translation>&lt;i&gt;機能を表示するには、「デバイス」ペインで開いているカメラを選択するか、Workbench ペインで設定のある qStep を選択してください。&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&lt;i&gt;Select any open camera in the Devices pane to display its features.&lt;/i&gt;</source>
        <translation>&lt;i&gt;機能を表示するには、「デバイス」ペインで開いているカメラを選択してください。&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Copy Camera Features</source>
        <translation>カメラの機能をコピー</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>My tab </source>
        <translation>マイタブ </translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::CTesseraPlugin</name>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>機能</translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::Internal::Model::CFeatureTableModel</name>
    <message>
        <source>Failed to set a feature value.</source>
        <translation>機能の値を設定できませんでした。</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::Internal::View::CUseCaseEdit</name>
    <message>
        <source>Leave the use case</source>
        <translation>ユースケースを終了</translation>
    </message>
</context>
<context>
    <name>SearchEdit</name>
    <message>
        <source>Clear the search</source>
        <translation>検索をクリア</translation>
    </message>
</context>
<context>
    <name>ToolButtonEditor</name>
    <message>
        <source>Execute</source>
        <translation>実行</translation>
    </message>
</context>
<context>
    <name>featuretreeoptionmenu</name>
    <message>
        <source>Edit Feature Tabs</source>
        <translation>機能タブの編集</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Add features by drag and drop</source>
        <translation>ドラッグ＆ドロップで機能を追加</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
</TS>
