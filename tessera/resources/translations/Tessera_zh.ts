<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>ComboSlider</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>范围：%1～%2</translation>
    </message>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>范围：%1～%2（增量：%3）</translation>
    </message>
</context>
<context>
    <name>DoubleComboSlider</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>范围：%1～%2</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBox</name>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>范围：%1～%2（增量：%3）</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>范围：%1～%2</translation>
    </message>
</context>
<context>
    <name>EditTabName</name>
    <message>
        <source>New feature tab</source>
        <translation>新建功能选项卡</translation>
    </message>
    <message>
        <source>Name of feature tab %1</source>
        <translation>功能选项卡 %1 的名称</translation>
    </message>
    <message>
        <source>Delete feature tab %1</source>
        <translation>删除功能选项卡 %1</translation>
    </message>
</context>
<context>
    <name>Feature</name>
    <message>
        <source>Remove %1</source>
        <translation>移除 %1</translation>
    </message>
</context>
<context>
    <name>FeatureTreeINodeItem</name>
    <message>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;未实现&gt;</translation>
    </message>
    <message>
        <source>&lt;not available&gt;</source>
        <translation>&lt;不可用&gt;</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;不可读&gt;</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>No parameters match favorite selection.</source>
        <translation>没有与收藏选择相匹配的参数。</translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidget</name>
    <message>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;未实现&gt;</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;不可读&gt;</translation>
    </message>
    <message>
        <source>&lt;not available&gt;</source>
        <translation>&lt;不可用&gt;</translation>
    </message>
    <message>
        <source>Search for parameters</source>
        <translation>搜索参数</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>轮询</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Common Tasks</source>
        <translation>常用任务</translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidgetClass</name>
    <message>
        <source>FeatureTreeWidget</source>
        <translation>功能浏览器</translation>
    </message>
    <message>
        <source>Edit Feature Tabs</source>
        <translation>编辑功能选项卡</translation>
    </message>
    <message>
        <source>Show Tree View</source>
        <translation>显示树状视图</translation>
    </message>
    <message>
        <source>P&amp;olling</source>
        <translation>轮询(&amp;O)</translation>
    </message>
    <message>
        <source>Show Unavailable Features</source>
        <translation>显示不可用的功能</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Refreshes the  feature tree</source>
        <translation>刷新功能树</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Use case</source>
        <translation>用例</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>功能</translation>
    </message>
</context>
<context>
    <name>FloatEditor</name>
    <message>
        <source>Dynamic cast on pNode has gone wrong!</source>
        <translation>对 pNode 的动态类型转换失败！</translation>
    </message>
    <message>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>最小值大于最大值！</translation>
    </message>
    <message>
        <source>The minimum value is larger than the to be set node value or the maximum value is smaller than the to be set node value!</source>
        <translation>要设置的节点值小于最小值或大于最大值！</translation>
    </message>
</context>
<context>
    <name>FloatSliderEditor</name>
    <message>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>最小值大于最大值！</translation>
    </message>
    <message>
        <source>The minimum allowed value is larger than the to be set node value or the maximum allowed value is smaller than the to be set node value!</source>
        <translation>要设置的节点值小于允许的最小值或大于允许的最大值！</translation>
    </message>
    <message>
        <source>The alias increment cannot be &apos;0&apos;!</source>
        <translation>别名的增量不能为“0”！</translation>
    </message>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>范围：%1～%2（增量：%3）</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>范围：%1～%2</translation>
    </message>
    <message>
        <source>Dynamic cast on pNode has gone wrong!</source>
        <translation>对 pNode 的动态类型转换失败！</translation>
    </message>
    <message>
        <source>Could not retrieve an alias node on pNode</source>
        <translation>无法获取 pNode 的别名节点</translation>
    </message>
    <message>
        <source>The given range or increment information of the given pNode is not valid</source>
        <translation>pNode 的范围或增量信息无效</translation>
    </message>
</context>
<context>
    <name>IntEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;不可读&gt;</translation>
    </message>
    <message>
        <source>Range: 0x%1..0x%2</source>
        <translation>范围：0x%1～0x%2</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>范围：%1～%2</translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::CFeatureTreeWidget</name>
    <message>
        <source>&lt;i&gt;Select any open camera in the Devices pane or select any qStep with settings in the Workbench pane to display its features.&lt;/i&gt;</source>
        <translation>&lt;i&gt;要显示功能，请在“设备”窗格中选择一台已打开的相机，或在 Workbench 窗格中选择一个带有设置的 qStep。&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&lt;i&gt;Select any open camera in the Devices pane to display its features.&lt;/i&gt;</source>
        <translation>&lt;i&gt;要显示功能，请在“设备”窗格中选择一台已打开的相机。&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Copy Camera Features</source>
        <translation>复制相机功能</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>My tab </source>
        <translation>我的选项卡 </translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::CTesseraPlugin</name>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>功能</translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::Internal::Model::CFeatureTableModel</name>
    <message>
        <source>Failed to set a feature value.</source>
        <translation>无法设置功能的值。</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::Internal::View::CUseCaseEdit</name>
    <message>
        <source>Leave the use case</source>
        <translation>退出用例</translation>
    </message>
</context>
<context>
    <name>SearchEdit</name>
    <message>
        <source>Clear the search</source>
        <translation>清除搜索</translation>
    </message>
</context>
<context>
    <name>ToolButtonEditor</name>
    <message>
        <source>Execute</source>
        <translation>执行</translation>
    </message>
</context>
<context>
    <name>featuretreeoptionmenu</name>
    <message>
        <source>Edit Feature Tabs</source>
        <translation>编辑功能选项卡</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Add features by drag and drop</source>
        <translation>通过拖放添加功能</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
</TS>
