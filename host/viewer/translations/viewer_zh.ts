<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>Viewer::DevicesView</name>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
</context>
<context>
    <name>Viewer::DocumentationView</name>
    <message>
        <source>Documentation of the current feature</source>
        <translation>当前功能的说明</translation>
    </message>
    <message>
        <source>Select a feature to read about it here.</source>
        <translation>选择一项功能，即可在此处阅读其说明。</translation>
    </message>
</context>
<context>
    <name>Viewer::FeatureContextMenu</name>
    <message>
        <source>Copy &amp;Name</source>
        <translation>复制名称(&amp;N)</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>复制路径(&amp;P)</translation>
    </message>
    <message>
        <source>Copy &amp;Value</source>
        <translation>复制值(&amp;V)</translation>
    </message>
    <message>
        <source>Visibility &amp;Level</source>
        <translation>可见性级别(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Viewer::FeatureDocumentation</name>
    <message>
        <source>Integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>布尔</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>浮点</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>String</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>枚举</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>not implemented</source>
        <translation>未实现</translation>
    </message>
    <message>
        <source>read and write</source>
        <translation>可读写</translation>
    </message>
    <message>
        <source>read only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>write only</source>
        <translation>只写</translation>
    </message>
    <message>
        <source>not available at present</source>
        <translation>当前不可用</translation>
    </message>
    <message>
        <source>Beginner</source>
        <translation>初级</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>专家</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>大师</translation>
    </message>
    <message>
        <source>Invisible</source>
        <translation>不可见</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>%1, step %2</source>
        <translation>%1，步长 %2</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Tool tip</source>
        <translation>工具提示</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Visibility</source>
        <translation>可见性</translation>
    </message>
    <message>
        <source>Access</source>
        <translation>访问</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>限值</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
</context>
<context>
    <name>Viewer::LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>A change holds from the next start</source>
        <translation>更改将在下次启动后生效</translation>
    </message>
    <message>
        <source>%1 will be used from the next start on.</source>
        <translation>下次启动起将使用 %1。</translation>
    </message>
</context>
<context>
    <name>Viewer::LogModel</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
</context>
<context>
    <name>Viewer::LogView</name>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>清除(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Viewer::MainWindow</name>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>相机(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Visibility Level</source>
        <translation>可见性级别</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>About Tessera</source>
        <translation>关于 Tessera</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Tessera %1&lt;/h3&gt;&lt;p&gt;A feature browser for machine-vision cameras.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Tessera %1&lt;/h3&gt;&lt;p&gt;面向机器视觉相机的功能浏览器。&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>Viewer::SourceModel</name>
    <message>
        <source>active</source>
        <translation>活动</translation>
    </message>
    <message>
        <source>open</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
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
        <translation>无法打开 %1。</translation>
    </message>
</context>
<context>
    <name>Viewer::VisibilityLevel</name>
    <message>
        <source>&amp;Beginner</source>
        <translation>初级(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Expert</source>
        <translation>专家(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Guru</source>
        <translation>大师(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>全部(&amp;A)</translation>
    </message>
</context>
</TS>
