<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="zh_CN">
<context>
    <name>ConversionQueue</name>
    <message>
        <source>引擎日志: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(交给引擎默认)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>待转换文件: %1 个</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>输出目录: %1 (命名模板: %2, 格式: %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法读取文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>不是 JSON 对象</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>逐轨预设《%1》</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  预设含 %1 个本版未支持字段, 已忽略</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>停止: 剩余 %1 个文件已跳过</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>━━━ [%1/%2] 转换 %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>━━━ 转换 %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✗ 无法创建输出目录: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>执行: %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>转换会话: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>子进程(起 CLI)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 — %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✓ %1 完成</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>■ 已停止: %1 (未完成的文件已删除)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>■ 已停止: %1 (文件保留, 可能不完整)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>■ 已停止(强制结束进程): %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✗ %1 异常退出 (崩溃/被终止)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>✗ 退出码: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>── 引擎日志 (末尾 %1 行): %2 ──</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
全部完成: %1 OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
完成: %1 OK, %2 失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>转换已停止</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>当前没有运行的进程</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在停止转换进程…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>终止当前转换进程…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在通知引擎停止…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>引擎 2 秒内没有确认停止 —— 仍在收尾(可再点一次, 或关闭程序)。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EngineSession</name>
    <message>
        <source>进程内会话起不来 (rc=%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InputOutputPanel</name>
    <message>
        <source>添加文件…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>添加目录…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>支持拖入音频文件或文件夹</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>输出 .dsf / .dff 文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>浏览…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>输出文件:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>批量输出: 所有输入写进这个目录, 文件名由下面的命名模板算</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>浏览目录…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>输出目录:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>输出目录模式下每个文件的扩展名 (引擎按扩展名认格式)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>变量: {input} 输入文件名  {ext} 输出格式  {track} / {track:02} 队列序号  {artist} {title} 界面字段
留空 = {input}; 变量没有值时回退用输入文件名; 模板里可以带子目录</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>输出格式:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>命名模板:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>标签: DFF→COMT, DSF→ID3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 = 不写曲目号 (引擎只接受 1..998)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>写入标签的说明文字</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>从输入文件读取标签</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>艺术家:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>标题:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>专辑:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>流派:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>年份:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>曲目号:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>备注:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>音频文件 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;所有文件 (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>选择输入文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>选择目录</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PCM 音频 (*.wav *.w64 *.flac);;所有文件 (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DSDIFF (*.dff);;DSD Stream (*.dsf);;所有文件 (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DSD Stream (*.dsf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DSDIFF (*.dff)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>选择输出文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>选择输出目录</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>开始转换</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zuvo Audio Suite — 音频转换工具</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>设置输出文件: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>目录中没有音频文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>转换进行中, 不能修改文件列表</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>找到 ZuvoEngine (音频转换引擎): %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>警告: 未找到 ZuvoEngine — 转换功能不可用。请将其放在程序同目录、或加入 PATH。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已添加 %1 个文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已跳过 %1 个重复文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>转换完成</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>转换 %1 个文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>转换 %1 个文件, %2 个失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>打开输出目录</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>关闭</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AUTORUN 参数不完整</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>AUTORUN: %1 个输入 → %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM) 的输出必须是 .wav 或 .flac</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DXD 输出只支持 .wav / .w64 / .flac (引擎按扩展名认容器)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>错误</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>错误: DST 压缩仅支持 DFF 格式输出
请把输出格式/扩展名改为 .dff 或禁用 DST 压缩</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>输出文件必须是 .dsf 或 .dff 格式</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>转换中</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已有转换任务正在进行中, 请等待完成。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>输入文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请选择输入文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>元数据</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>输出 .dff 必须填「艺术家」和「标题」两个值
(它们是 DFF 的 COMT 标签; 必填项, 不填不开始转换)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taps 必须是偶数且不小于 512 (0 = 用引擎默认值)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>过渡带</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>阻带截止必须大于通带截止 (否则过渡带为零/负, 引擎会拒绝)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>输出目录</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法创建输出目录:
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>输出文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>请选择输出文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>噪声本底分析</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「PDF 报告」开关</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>启用了均衡器但没有有效频段
请添加至少一个频段 (中心频率 &gt; 0), 或禁用均衡器</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>引擎缺失</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine。请将其放在程序同目录、或加入 PATH,
也可设置环境变量 ZUVO_ENGINE_BIN 指向其完整路径。</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunControlsPanel</name>
    <message>
        <source>开始转换</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>停止</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>详细日志 (--verbose)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>保留引擎日志（退出不删）</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>关（默认）：引擎日志写在系统临时目录里的一次性目录中，退出即清；
开：写到 %1 下并保留，便于把日志发给厂商排障。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>子进程: ZuvoEngine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GUI 通过 QProcess 调用同目录/环境变量指定的 ZuvoEngine</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UiLangRow</name>
    <message>
        <source>语言</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>界面语言。切换后程序会重启一次以便整套界面换语言。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>界面语言已切换，程序将自动重启一次以生效。</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
