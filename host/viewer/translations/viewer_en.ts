<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Viewer::DevicesView</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Devices</translation>
    </message>
</context>
<context>
    <name>Viewer::DocumentationView</name>
    <message>
        <source>Documentation of the current feature</source>
        <translation>Documentation of the current feature</translation>
    </message>
    <message>
        <source>Select a feature to read about it here.</source>
        <translation>Select a feature to read about it here.</translation>
    </message>
</context>
<context>
    <name>Viewer::FeatureContextMenu</name>
    <message>
        <source>Copy &amp;Name</source>
        <translation>Copy &amp;Name</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>Copy &amp;Path</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>Copy &amp;Value</translation>
    </message>
    <message>
        <source>Visibility &amp;Level</source>
        <translation>Visibility &amp;Level</translation>
    </message>
</context>
<context>
    <name>Viewer::FeatureDocumentation</name>
    <message>
        <source>Integer</source>
        <translation>Integer</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>Boolean</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Float</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>String</source>
        <translation>String</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>Enumeration</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>not implemented</source>
        <translation>not implemented</translation>
    </message>
    <message>
        <source>read and write</source>
        <translation>read and write</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>read only</translation>
    </message>
    <message>
        <source>write only</source>
        <translation>write only</translation>
    </message>
    <message>
        <source>not available at present</source>
        <translation>not available at present</translation>
    </message>
    <message>
        <source>Beginner</source>
        <translation>Beginner</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>Expert</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>Guru</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>Invisible</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>%1, step %2</source>
        <translation>%1, step %2</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Path</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Tool tip</source>
        <translation>Tool tip</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>Visibility</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>Access</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limits</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>More</source>
        <translation>More</translation>
    </message>
</context>
<context>
    <name>Viewer::LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>A change holds from the next start</source>
        <translation>A change holds from the next start</translation>
    </message>
    <message>
        <source>%1 will be used from the next start on.</source>
        <translation>%1 will be used from the next start on.</translation>
    </message>
</context>
<context>
    <name>Viewer::LogModel</name>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>Viewer::LogView</name>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>C&amp;lear</translation>
    </message>
</context>
<context>
    <name>Viewer::MainWindow</name>
    <message>
        <source>Devices</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>&amp;Camera</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>Visibility Level</source>
        <translation>Visibility Level</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Refresh</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>&amp;Window</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;About</translation>
    </message>
    <message>
        <source>About Tessera</source>
        <translation>About Tessera</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Tessera %1&lt;/h3&gt;&lt;p&gt;A feature browser for machine-vision cameras.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Tessera %1&lt;/h3&gt;&lt;p&gt;A feature browser for machine-vision cameras.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>Viewer::SourceModel</name>
    <message>
        <source>active</source>
        <translation>active</translation>
    </message>
    <message>
        <source>open</source>
        <translation>open</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>closed</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
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
        <translation>%1 could not be opened.</translation>
    </message>
</context>
<context>
    <name>Viewer::VisibilityLevel</name>
    <message>
        <source>&amp;Beginner</source>
        <translation>&amp;Beginner</translation>
    </message>
    <message>
        <source>&amp;Expert</source>
        <translation>&amp;Expert</translation>
    </message>
    <message>
        <source>&amp;Guru</source>
        <translation>&amp;Guru</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;All</translation>
    </message>
</context>
</TS>
