<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ComboSlider</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>Range: %1..%2</translation>
    </message>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>Range: %1..%2 (Increment: %3)</translation>
    </message>
</context>
<context>
    <name>DoubleComboSlider</name>
    <message>
        <source>Range: %1..%2</source>
        <translation>Range: %1..%2</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBox</name>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>Range: %1..%2 (Increment: %3)</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>Range: %1..%2</translation>
    </message>
</context>
<context>
    <name>EditTabName</name>
    <message>
        <source>New feature tab</source>
        <translation>New feature tab</translation>
    </message>
    <message>
        <source>Name of feature tab %1</source>
        <translation>Name of feature tab %1</translation>
    </message>
    <message>
        <source>Delete feature tab %1</source>
        <translation>Delete feature tab %1</translation>
    </message>
</context>
<context>
    <name>Feature</name>
    <message>
        <source>Remove %1</source>
        <translation>Remove %1</translation>
    </message>
</context>
<context>
    <name>FeatureTreeINodeItem</name>
    <message>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;not implemented&gt;</translation>
    </message>
    <message>
        <source>&lt;not available&gt;</source>
        <translation>&lt;not available&gt;</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;not readable&gt;</translation>
    </message>
    <message>
        <source>on</source>
        <translation>on</translation>
    </message>
    <message>
        <source>off</source>
        <translation>off</translation>
    </message>
</context>
<context>
    <name>FeatureTreeModel</name>
    <message>
        <source>Category</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
</context>
<context>
    <name>FeatureTreeView</name>
    <message>
        <source>No parameters match favorite selection.</source>
        <translation>No parameters match favorite selection.</translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidget</name>
    <message>
        <source>&lt;not implemented&gt;</source>
        <translation>&lt;not implemented&gt;</translation>
    </message>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;not readable&gt;</translation>
    </message>
    <message>
        <source>&lt;not available&gt;</source>
        <translation>&lt;not available&gt;</translation>
    </message>
    <message>
        <source>Search for parameters</source>
        <translation>Search for parameters</translation>
    </message>
    <message>
        <source>Polling</source>
        <translation>Polling</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Move Up</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Move Down</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Common Tasks</source>
        <translation>Common Tasks</translation>
    </message>
</context>
<context>
    <name>FeatureTreeWidgetClass</name>
    <message>
        <source>FeatureTreeWidget</source>
        <translation>FeatureTreeWidget</translation>
    </message>
    <message>
        <source>Edit Feature Tabs</source>
        <translation>Edit Feature Tabs</translation>
    </message>
    <message>
        <source>Show Tree View</source>
        <translation>Show Tree View</translation>
    </message>
    <message>
        <source>P&amp;olling</source>
        <translation>P&amp;olling</translation>
    </message>
    <message>
        <source>Show Unavailable Features</source>
        <translation>Show Unavailable Features</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Refreshes the  feature tree</source>
        <translation>Refreshes the feature tree</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Use case</source>
        <translation>Use case</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categories</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Features</translation>
    </message>
</context>
<context>
    <name>FloatEditor</name>
    <message>
        <source>Dynamic cast on pNode has gone wrong!</source>
        <translation>Dynamic cast on pNode has gone wrong!</translation>
    </message>
    <message>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>The minimum value is larger than the maximum value!</translation>
    </message>
    <message>
        <source>The minimum value is larger than the to be set node value or the maximum value is smaller than the to be set node value!</source>
        <translation>The minimum value is larger than the to be set node value or the maximum value is smaller than the to be set node value!</translation>
    </message>
</context>
<context>
    <name>FloatSliderEditor</name>
    <message>
        <source>The minimum value is larger than the maximum value!</source>
        <translation>The minimum value is larger than the maximum value!</translation>
    </message>
    <message>
        <source>The minimum allowed value is larger than the to be set node value or the maximum allowed value is smaller than the to be set node value!</source>
        <translation>The minimum allowed value is larger than the to be set node value or the maximum allowed value is smaller than the to be set node value!</translation>
    </message>
    <message>
        <source>The alias increment cannot be &apos;0&apos;!</source>
        <translation>The alias increment cannot be &apos;0&apos;!</translation>
    </message>
    <message>
        <source>Range: %1..%2 (Increment: %3)</source>
        <translation>Range: %1..%2 (Increment: %3)</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>Range: %1..%2</translation>
    </message>
    <message>
        <source>Dynamic cast on pNode has gone wrong!</source>
        <translation>Dynamic cast on pNode has gone wrong!</translation>
    </message>
    <message>
        <source>Could not retrieve an alias node on pNode</source>
        <translation>Could not retrieve an alias node on pNode</translation>
    </message>
    <message>
        <source>The given range or increment information of the given pNode is not valid</source>
        <translation>The given range or increment information of the given pNode is not valid</translation>
    </message>
</context>
<context>
    <name>IntEditor</name>
    <message>
        <source>&lt;not readable&gt;</source>
        <translation>&lt;not readable&gt;</translation>
    </message>
    <message>
        <source>Range: 0x%1..0x%2</source>
        <translation>Range: 0x%1..0x%2</translation>
    </message>
    <message>
        <source>Range: %1..%2</source>
        <translation>Range: %1..%2</translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::CFeatureTreeWidget</name>
    <message>
        <source>&lt;i&gt;Select any open camera in the Devices pane or select any qStep with settings in the Workbench pane to display its features.&lt;/i&gt;</source>
        <translation>&lt;i&gt;Select any open camera in the Devices pane or select any qStep with settings in the Workbench pane to display its features.&lt;/i&gt;</translation>
    </message>
    <message>
        <source>&lt;i&gt;Select any open camera in the Devices pane to display its features.&lt;/i&gt;</source>
        <translation>&lt;i&gt;Select any open camera in the Devices pane to display its features.&lt;/i&gt;</translation>
    </message>
    <message>
        <source>Copy Camera Features</source>
        <translation>Copy Camera Features</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Features</translation>
    </message>
    <message>
        <source>My tab </source>
        <translation>My tab </translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::CTesseraPlugin</name>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Basic</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Features</translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::Internal::Model::CFeatureTableModel</name>
    <message>
        <source>Failed to set a feature value.</source>
        <translation>Failed to set a feature value.</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Feature</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
</context>
<context>
    <name>Plugin::Tessera::Internal::View::CUseCaseEdit</name>
    <message>
        <source>Leave the use case</source>
        <translation>Leave the use case</translation>
    </message>
</context>
<context>
    <name>SearchEdit</name>
    <message>
        <source>Clear the search</source>
        <translation>Clear the search</translation>
    </message>
</context>
<context>
    <name>ToolButtonEditor</name>
    <message>
        <source>Execute</source>
        <translation>Execute</translation>
    </message>
</context>
<context>
    <name>featuretreeoptionmenu</name>
    <message>
        <source>Edit Feature Tabs</source>
        <translation>Edit Feature Tabs</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Add features by drag and drop</source>
        <translation>Add features by drag and drop</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
</TS>
