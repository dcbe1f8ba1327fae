<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>ConversionQueue</name>
    <message>
        <source>引擎日志: %1</source>
        <translation>Engine log: %1</translation>
    </message>
    <message>
        <source>(交给引擎默认)</source>
        <translation>(engine default)</translation>
    </message>
    <message>
        <source>待转换文件: %1 个</source>
        <translation>Files to convert: %1</translation>
    </message>
    <message>
        <source>输出目录: %1 (命名模板: %2, 格式: %3)</source>
        <translation>Output folder: %1 (naming template: %2, format: %3)</translation>
    </message>
    <message>
        <source>✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)</source>
        <translation>✗ Per-track preset could not be parsed; using current parameters for this file: %1 (%2)</translation>
    </message>
    <message>
        <source>逐轨预设《%1》</source>
        <translation>Per-track preset: %1</translation>
    </message>
    <message>
        <source>  预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>  Preset has %1 field(s) not supported by this version, ignored</translation>
    </message>
    <message>
        <source>停止: 剩余 %1 个文件已跳过</source>
        <translation>Stopped: %1 remaining file(s) skipped</translation>
    </message>
    <message>
        <source>━━━ [%1/%2] 转换 %3</source>
        <translation>━━━ [%1/%2] Converting %3</translation>
    </message>
    <message>
        <source>━━━ 转换 %1</source>
        <translation>━━━ Converting %1</translation>
    </message>
    <message>
        <source>✗ 无法创建输出目录: %1</source>
        <translation>✗ Cannot create output folder: %1</translation>
    </message>
    <message>
        <source>执行: %1 %2</source>
        <translation>Running: %1 %2</translation>
    </message>
    <message>
        <source>转换会话: %1</source>
        <translation>Conversion session: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>in-process (direct library call)</translation>
    </message>
    <message>
        <source>子进程(起 CLI)</source>
        <translation>child process (CLI)</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 — %1</source>
        <translation>Error: cannot start the engine — %1</translation>
    </message>
    <message>
        <source>✓ %1 完成</source>
        <translation>✓ %1 done</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (未完成的文件已删除)</source>
        <translation>■ Stopped: %1 (incomplete file deleted)</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (文件保留, 可能不完整)</source>
        <translation>■ Stopped: %1 (file kept, may be incomplete)</translation>
    </message>
    <message>
        <source>■ 已停止(强制结束进程): %1</source>
        <translation>■ Stopped (process killed): %1</translation>
    </message>
    <message>
        <source>✗ %1 异常退出 (崩溃/被终止)</source>
        <translation>✗ %1 exited abnormally (crashed/killed)</translation>
    </message>
    <message>
        <source>✗ 退出码: %1</source>
        <translation>✗ Exit code: %1</translation>
    </message>
    <message>
        <source>── 引擎日志 (末尾 %1 行): %2 ──</source>
        <translation>── Engine log (last %1 lines): %2 ──</translation>
    </message>
    <message>
        <source>
全部完成: %1 OK</source>
        <translation>
All done: %1 OK</translation>
    </message>
    <message>
        <source>
完成: %1 OK, %2 失败</source>
        <translation>
Done: %1 OK, %2 failed</translation>
    </message>
    <message>
        <source>转换已停止</source>
        <translation>Conversion stopped</translation>
    </message>
    <message>
        <source>当前没有运行的进程</source>
        <translation>No process is running</translation>
    </message>
    <message>
        <source>正在停止转换进程…</source>
        <translation>Stopping conversion…</translation>
    </message>
    <message>
        <source>终止当前转换进程…</source>
        <translation>Terminating the current conversion process…</translation>
    </message>
    <message>
        <source>正在通知引擎停止…</source>
        <translation>Asking the engine to stop…</translation>
    </message>
    <message>
        <source>引擎 2 秒内没有确认停止 —— 仍在收尾(可再点一次, 或关闭程序)。</source>
        <translation>The engine did not confirm the stop within 2 seconds — still finishing (click again or close the program).</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[control] %1</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但没有写出输出文件 %2</source>
        <translation>✗ %1: engine reported success, but no output file was written: %2</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件 %2 没有被写过 (还是旧的)</source>
        <translation>✗ %1: engine reported success, but output file %2 was not written (still the old one)</translation>
    </message>
    <message>
        <source>文件是空的</source>
        <translation>File is empty</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2), 已删除: %3</source>
        <translation>✗ %1: engine reported success, but the output file cannot be read (%2); deleted: %3</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2): %3</source>
        <translation>✗ %1: engine reported success, but the output file cannot be read (%2): %3</translation>
    </message>
    <message>
        <source> …(这一行太长, 后面 %1 个字符没有显示)</source>
        <translation> …(line too long; %1 more characters not shown)</translation>
    </message>
    <message>
        <source>不是 DSF 文件</source>
        <translation>Not a DSF file</translation>
    </message>
    <message>
        <source>DSF 头里的文件长度与实际不符 (文件不完整)</source>
        <translation>File size in DSF header does not match the actual size (file incomplete)</translation>
    </message>
    <message>
        <source>DSF 格式块不对</source>
        <translation>Invalid DSF format chunk</translation>
    </message>
    <message>
        <source>DSF 数据块不对</source>
        <translation>Invalid DSF data chunk</translation>
    </message>
    <message>
        <source>DSF 元数据位置不对</source>
        <translation>Invalid DSF metadata offset</translation>
    </message>
    <message>
        <source>不是 DSDIFF 文件</source>
        <translation>Not a DSDIFF file</translation>
    </message>
    <message>
        <source>DSDIFF 头里的长度与实际不符 (文件不完整)</source>
        <translation>Size in DSDIFF header does not match the actual size (file incomplete)</translation>
    </message>
    <message>
        <source>DSDIFF 块超出文件</source>
        <translation>DSDIFF chunk extends past end of file</translation>
    </message>
    <message>
        <source>DSDIFF 缺少 FVER/PROP/声音块</source>
        <translation>DSDIFF is missing the FVER/PROP/sound chunk</translation>
    </message>
    <message>
        <source>不是 WAV 文件</source>
        <translation>Not a WAV file</translation>
    </message>
    <message>
        <source>RF64 的 ds64 块不对</source>
        <translation>Invalid ds64 chunk in RF64</translation>
    </message>
    <message>
        <source>WAV 缺少格式块</source>
        <translation>WAV is missing the format chunk</translation>
    </message>
    <message>
        <source>WAV 数据块超出文件 (文件不完整)</source>
        <translation>WAV data chunk extends past end of file (file incomplete)</translation>
    </message>
    <message>
        <source>WAV 格式块不对</source>
        <translation>Invalid WAV format chunk</translation>
    </message>
    <message>
        <source>WAV 缺少数据块</source>
        <translation>WAV is missing the data chunk</translation>
    </message>
    <message>
        <source>不是 W64 文件</source>
        <translation>Not a W64 file</translation>
    </message>
    <message>
        <source>W64 块超出文件 (文件不完整)</source>
        <translation>W64 chunk extends past end of file (file incomplete)</translation>
    </message>
    <message>
        <source>W64 缺少格式块</source>
        <translation>W64 is missing the format chunk</translation>
    </message>
    <message>
        <source>W64 缺少数据块</source>
        <translation>W64 is missing the data chunk</translation>
    </message>
    <message>
        <source>不是 FLAC 文件</source>
        <translation>Not a FLAC file</translation>
    </message>
    <message>
        <source>FLAC 缺少 STREAMINFO</source>
        <translation>FLAC is missing STREAMINFO</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Cannot open</translation>
    </message>
</context>
<context>
    <name>EngineSession</name>
    <message>
        <source>进程内会话起不来 (rc=%1)</source>
        <translation>in-process session failed to start (rc=%1)</translation>
    </message>
</context>
<context>
    <name>FileListWidget</name>
    <message>
        <source>  ◇ 预设: %1</source>
        <translation>  ◇ Preset: %1</translation>
    </message>
</context>
<context>
    <name>InputOutputPanel</name>
    <message>
        <source>添加文件…</source>
        <translation>Add Files…</translation>
    </message>
    <message>
        <source>添加目录…</source>
        <translation>Add Folder…</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>Remove Selected</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Clear List</translation>
    </message>
    <message>
        <source>支持拖入音频文件或文件夹</source>
        <translation>Drag audio files or folders here</translation>
    </message>
    <message>
        <source>输出 .dsf / .dff 文件</source>
        <translation>Output .dsf / .dff file</translation>
    </message>
    <message>
        <source>浏览…</source>
        <translation>Browse…</translation>
    </message>
    <message>
        <source>输出文件:</source>
        <translation>Output file:</translation>
    </message>
    <message>
        <source>留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名</source>
        <translation>Leave empty to use the output file above; if set, every input gets its name from the naming template</translation>
    </message>
    <message>
        <source>批量输出: 所有输入写进这个目录, 文件名由下面的命名模板算</source>
        <translation>Batch output: all inputs are written into this folder, names come from the template below</translation>
    </message>
    <message>
        <source>浏览目录…</source>
        <translation>Browse Folder…</translation>
    </message>
    <message>
        <source>输出目录:</source>
        <translation>Output folder:</translation>
    </message>
    <message>
        <source>输出目录模式下每个文件的扩展名 (引擎按扩展名认格式)</source>
        <translation>File extension used in output-folder mode (the engine picks the format by extension)</translation>
    </message>
    <message>
        <source>变量: {input} 输入文件名  {ext} 输出格式  {track} / {track:02} 队列序号  {artist} {title} 界面字段
留空 = {input}; 变量没有值时回退用输入文件名; 模板里可以带子目录</source>
        <translation>Variables: {input} input file name  {ext} output format  {track} / {track:02} queue index  {artist} {title} UI fields
Blank = {input}; a variable with no value falls back to the input file name; templates may contain subfolders</translation>
    </message>
    <message>
        <source>输出格式:</source>
        <translation>Output format:</translation>
    </message>
    <message>
        <source>命名模板:</source>
        <translation>Naming template:</translation>
    </message>
    <message>
        <source>标签: DFF→COMT, DSF→ID3</source>
        <translation>Tags: DFF→COMT, DSF→ID3</translation>
    </message>
    <message>
        <source>0 = 不写曲目号 (引擎只接受 1..998)</source>
        <translation>0 = no track number (the engine only accepts 1..998)</translation>
    </message>
    <message>
        <source>写入标签的说明文字</source>
        <translation>Text written into the tag</translation>
    </message>
    <message>
        <source>从输入文件读取标签</source>
        <translation>Read tags from input file</translation>
    </message>
    <message>
        <source>艺术家:</source>
        <translation>Artist:</translation>
    </message>
    <message>
        <source>标题:</source>
        <translation>Title:</translation>
    </message>
    <message>
        <source>专辑:</source>
        <translation>Album:</translation>
    </message>
    <message>
        <source>流派:</source>
        <translation>Genre:</translation>
    </message>
    <message>
        <source>年份:</source>
        <translation>Year:</translation>
    </message>
    <message>
        <source>曲目号:</source>
        <translation>Track:</translation>
    </message>
    <message>
        <source>备注:</source>
        <translation>Comment:</translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>%1 file(s)</translation>
    </message>
    <message>
        <source>音频文件 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;所有文件 (*)</source>
        <translation>Audio files (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;All files (*)</translation>
    </message>
    <message>
        <source>选择输入文件</source>
        <translation>Select Input Files</translation>
    </message>
    <message>
        <source>选择目录</source>
        <translation>Select Folder</translation>
    </message>
    <message>
        <source>PCM 音频 (*.wav *.w64 *.flac);;所有文件 (*)</source>
        <translation>PCM audio (*.wav *.w64 *.flac);;All files (*)</translation>
    </message>
    <message>
        <source>DSDIFF (*.dff);;DSD Stream (*.dsf);;所有文件 (*)</source>
        <translation>DSDIFF (*.dff);;DSD Stream (*.dsf);;All files (*)</translation>
    </message>
    <message>
        <source>DSD Stream (*.dsf)</source>
        <translation>DSD Stream (*.dsf)</translation>
    </message>
    <message>
        <source>DSDIFF (*.dff)</source>
        <translation>DSDIFF (*.dff)</translation>
    </message>
    <message>
        <source>选择输出文件</source>
        <translation>Select Output File</translation>
    </message>
    <message>
        <source>选择输出目录</source>
        <translation>Select Output Folder</translation>
    </message>
    <message>
        <source>波形/频谱预览…</source>
        <translation>Waveform/Spectrogram Preview…</translation>
    </message>
    <message>
        <source>逐轨预设…</source>
        <translation>Per-track presets…</translation>
    </message>
    <message>
        <source>给队列里每个文件单独指定一套预设
预设只换编码/DSP 参数; 输出目录/输出格式与标签仍按面板</source>
        <translation>Give each file in the queue its own preset
A preset only changes encoding/DSP parameters; output folder/format and tags still come from the panel</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>开始转换</source>
        <translation>Start Conversion</translation>
    </message>
    <message>
        <source>Zuvo Audio Suite — 音频转换工具</source>
        <translation>Zuvo Audio Suite — Audio Conversion Tool</translation>
    </message>
    <message>
        <source>设置输出文件: %1</source>
        <translation>Output file set: %1</translation>
    </message>
    <message>
        <source>目录中没有音频文件</source>
        <translation>No audio files in this folder</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改文件列表</source>
        <translation>Cannot modify the file list while conversion is running</translation>
    </message>
    <message>
        <source>找到 ZuvoEngine (音频转换引擎): %1</source>
        <translation>Found ZuvoEngine (audio conversion engine): %1</translation>
    </message>
    <message>
        <source>警告: 未找到 ZuvoEngine — 转换功能不可用。请将其放在程序同目录、或加入 PATH。</source>
        <translation>Warning: ZuvoEngine not found — conversion unavailable. Place it next to this program or add it to PATH.</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine</source>
        <translation>ZuvoEngine not found</translation>
    </message>
    <message>
        <source>已添加 %1 个文件</source>
        <translation>Added %1 file(s)</translation>
    </message>
    <message>
        <source>已跳过 %1 个重复文件</source>
        <translation>Skipped %1 duplicate file(s)</translation>
    </message>
    <message>
        <source>转换完成</source>
        <translation>Conversion Complete</translation>
    </message>
    <message>
        <source>转换 %1 个文件</source>
        <translation>Converted %1 file(s)</translation>
    </message>
    <message>
        <source>转换 %1 个文件, %2 个失败</source>
        <translation>Converted %1 file(s), %2 failed</translation>
    </message>
    <message>
        <source>打开输出目录</source>
        <translation>Open Output Folder</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>AUTORUN 参数不完整</source>
        <translation>AUTORUN argument is incomplete</translation>
    </message>
    <message>
        <source>AUTORUN: %1 个输入 → %2</source>
        <translation>AUTORUN: %1 input(s) → %2</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>Output Format</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM) 的输出必须是 .wav 或 .flac</source>
        <translation>Reverse mode (PDM2PCM) output must be .wav or .flac</translation>
    </message>
    <message>
        <source>DXD 输出只支持 .wav / .w64 / .flac (引擎按扩展名认容器)</source>
        <translation>DXD output only supports .wav / .w64 / .flac (the engine picks the container by extension)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>错误: DST 压缩仅支持 DFF 格式输出
请把输出格式/扩展名改为 .dff 或禁用 DST 压缩</source>
        <translation>Error: DST compression only supports DFF output
Change the output format/extension to .dff or disable DST compression</translation>
    </message>
    <message>
        <source>输出文件必须是 .dsf 或 .dff 格式</source>
        <translation>The output file must be .dsf or .dff</translation>
    </message>
    <message>
        <source>转换中</source>
        <translation>Busy</translation>
    </message>
    <message>
        <source>已有转换任务正在进行中, 请等待完成。</source>
        <translation>A conversion is already running; please wait for it to finish.</translation>
    </message>
    <message>
        <source>输入文件</source>
        <translation>Input Files</translation>
    </message>
    <message>
        <source>请选择输入文件</source>
        <translation>Please select input files</translation>
    </message>
    <message>
        <source>元数据</source>
        <translation>Metadata</translation>
    </message>
    <message>
        <source>输出 .dff 必须填「艺术家」和「标题」两个值
(它们是 DFF 的 COMT 标签; 必填项, 不填不开始转换)</source>
        <translation>A .dff output requires both “Artist” and “Title”
(they form the DFF COMT tag; required — the conversion will not start without them)</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>Taps</translation>
    </message>
    <message>
        <source>Taps 必须是偶数且不小于 512 (0 = 用引擎默认值)</source>
        <translation>Taps must be an even number of at least 512 (0 = engine default)</translation>
    </message>
    <message>
        <source>过渡带</source>
        <translation>Transition Band</translation>
    </message>
    <message>
        <source>阻带截止必须大于通带截止 (否则过渡带为零/负, 引擎会拒绝)</source>
        <translation>The stopband cutoff must be higher than the passband cutoff (otherwise the transition band is zero/negative and the engine rejects it)</translation>
    </message>
    <message>
        <source>输出目录</source>
        <translation>Output Folder</translation>
    </message>
    <message>
        <source>无法创建输出目录:
%1</source>
        <translation>Cannot create output folder:
%1</translation>
    </message>
    <message>
        <source>输出文件</source>
        <translation>Output File</translation>
    </message>
    <message>
        <source>请选择输出文件</source>
        <translation>Please select an output file</translation>
    </message>
    <message>
        <source>噪声本底分析</source>
        <translation>Noise-Floor Profiling</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「PDF 报告」开关</source>
        <translation>Noise-floor profiling only works with the PDF report enabled
Please turn on the “PDF report” option</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>Equalizer</translation>
    </message>
    <message>
        <source>启用了均衡器但没有有效频段
请添加至少一个频段 (中心频率 &gt; 0), 或禁用均衡器</source>
        <translation>The equalizer is enabled but has no valid band
Add at least one band (center frequency &gt; 0) or disable the equalizer</translation>
    </message>
    <message>
        <source>引擎缺失</source>
        <translation>Engine Missing</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine。请将其放在程序同目录、或加入 PATH,
也可设置环境变量 ZUVO_ENGINE_BIN 指向其完整路径。</source>
        <translation>ZuvoEngine not found. Place it next to this program or add it to PATH,
or set the environment variable ZUVO_ENGINE_BIN to its full path.</translation>
    </message>
    <message>
        <source>均衡器未启用</source>
        <translation>Equalizer not enabled</translation>
    </message>
    <message>
        <source>基本参数</source>
        <translation>Basic</translation>
    </message>
    <message>
        <source>滤波</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>空间与音调</source>
        <translation>Spatial &amp;&amp; Tone</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>启用 DST 压缩模式</source>
        <translation>DST compression mode enabled</translation>
    </message>
    <message>
        <source>禁用 DST 压缩模式</source>
        <translation>DST compression mode disabled</translation>
    </message>
    <message>
        <source>DST 压缩</source>
        <translation>DST Compression</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出格式将自动更改为 DFF</source>
        <translation>DST compression only supports the DFF format
The output format will be changed to DFF automatically</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出文件将自动更改为 DFF 格式</source>
        <translation>DST compression only supports the DFF format
The output file will be changed to DFF automatically</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改参数</source>
        <translation>Cannot modify parameters while converting</translation>
    </message>
    <message>
        <source>已加载母带预设: %1</source>
        <translation>Mastering preset loaded: %1</translation>
    </message>
    <message>
        <source>均衡器: %1 行无效 (需中心频率&gt;0) 已被跳过</source>
        <translation>Equalizer: %1 invalid row(s) (center frequency must be &gt; 0) skipped</translation>
    </message>
    <message>
        <source>注意: 无法向引擎查询它不支持的选项, 直接开始转换</source>
        <translation>Note: could not ask the engine which options it does not support; starting the conversion anyway</translation>
    </message>
    <message>
        <source>转换未开始: 当前引擎构建不支持这些已选择的选项: %1</source>
        <translation>Conversion not started: this engine build does not support these selected options: %1</translation>
    </message>
    <message>
        <source>引擎不支持的选项</source>
        <translation>Unsupported Engine Options</translation>
    </message>
    <message>
        <source>当前引擎构建不支持下列已选择的选项, 转换不会开始:
%1

请在参数页关闭它们后再开始 (预设里可以保留)。</source>
        <translation>This engine build does not support the following selected options, so the conversion will not start:
%1

Turn them off on the parameter pages and start again (they can stay in presets).</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改预设</source>
        <translation>Cannot modify presets while converting</translation>
    </message>
    <message>
        <source>转换进行中, 不能改逐轨预设。</source>
        <translation>Conversion in progress — per-track presets cannot be changed now.</translation>
    </message>
    <message>
        <source>请先添加输入文件</source>
        <translation>Add input files first</translation>
    </message>
    <message>
        <source>逐轨预设: 已全部改回「用当前参数」</source>
        <translation>Per-track presets: all reverted to “use current parameters”</translation>
    </message>
    <message>
        <source>逐轨预设: %1 个文件各用一套</source>
        <translation>Per-track presets: %1 file(s) have their own preset</translation>
    </message>
    <message>
        <source>转换进行中, 不能预览</source>
        <translation>Cannot preview while converting</translation>
    </message>
    <message>
        <source>请先添加文件</source>
        <translation>Add files first</translation>
    </message>
    <message>
        <source>没有可预览的文件</source>
        <translation>No file to preview</translation>
    </message>
    <message>
        <source>单环 (NS, --order 9)</source>
        <translation>Single loop (NS, --order 9)</translation>
    </message>
    <message>
        <source>古典</source>
        <translation>Classical</translation>
    </message>
    <message>
        <source>古典: DSD-256, 131072 taps, 高带宽</source>
        <translation>Classical: DSD-256, 131072 taps, high bandwidth</translation>
    </message>
    <message>
        <source>流行</source>
        <translation>Pop</translation>
    </message>
    <message>
        <source>流行: DSD-128, 65536 taps</source>
        <translation>Pop: DSD-128, 65536 taps</translation>
    </message>
    <message>
        <source>爵士</source>
        <translation>Jazz</translation>
    </message>
    <message>
        <source>爵士: DSD-128, 65536 taps</source>
        <translation>Jazz: DSD-128, 65536 taps</translation>
    </message>
    <message>
        <source>DSD 采样率:</source>
        <translation>DSD sample rate:</translation>
    </message>
    <message>
        <source>Taps 数 (0=引擎默认):</source>
        <translation>Taps (0=engine default):</translation>
    </message>
    <message>
        <source>SOS cascade + error feedback, NS15 profile (引擎默认): 实测带内噪声比单环 NS9 低 11.4 dB</source>
        <translation>SOS cascade + error feedback, NS15 profile (engine default): measured in-band noise 11.4 dB lower than single-loop NS9</translation>
    </message>
    <message>
        <source>Chebyshev 多项式压缩 (可与 MASH 叠加)</source>
        <translation>Chebyshev polynomial compression (stackable with MASH)</translation>
    </message>
    <message>
        <source>调制器:</source>
        <translation>Modulator:</translation>
    </message>
    <message>
        <source>母带预设:</source>
        <translation>Mastering presets:</translation>
    </message>
    <message>
        <source>预设管理器…</source>
        <translation>Preset Manager…</translation>
    </message>
    <message>
        <source>DST 压缩 (仅 .dff 输出)</source>
        <translation>DST compression (.dff output only)</translation>
    </message>
    <message>
        <source>DXD 输出 (高解析 PCM)</source>
        <translation>DXD output (hi-res PCM)</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM)</source>
        <translation>Reverse mode (PDM2PCM)</translation>
    </message>
    <message>
        <source>输入 DSD(DSF/DFF), 输出 PCM/WAV —— 与 PCM→PDM 无关</source>
        <translation>Input DSD (DSF/DFF), output PCM/WAV — unrelated to PCM→PDM</translation>
    </message>
    <message>
        <source>DST 压缩等级 (0=关闭):</source>
        <translation>DST compression level (0=off):</translation>
    </message>
    <message>
        <source>高带宽模式</source>
        <translation>High-bandwidth mode</translation>
    </message>
    <message>
        <source>OpenCL 加速 (GPU)</source>
        <translation>OpenCL acceleration (GPU)</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 OpenCL 支持</source>
        <translation>This engine build was compiled without OpenCL support</translation>
    </message>
    <message>
        <source>添加 PDF 报告</source>
        <translation>Add PDF report</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 PDF 报告 (需要 rsvg+cairo)</source>
        <translation>This engine build has no PDF report support (needs rsvg+cairo)</translation>
    </message>
    <message>
        <source>只影响 PDF 报告内容, 不改音频比特流 (实测: 开关它 dsf 逐字节相同)</source>
        <translation>Only changes the PDF report, never the audio bit stream (measured: the dsf is byte-for-byte identical with it on or off)</translation>
    </message>
    <message>
        <source>分析报告 (--report)</source>
        <translation>Analysis report (--report)</translation>
    </message>
    <message>
        <source>噪声本底分析 (需 PDF 报告)</source>
        <translation>Noise-floor profiling (requires PDF report)</translation>
    </message>
    <message>
        <source>降噪: 关</source>
        <translation>Denoise: Off</translation>
    </message>
    <message>
        <source>降噪: 轻 (-12dB 地板, 最保真)</source>
        <translation>Denoise: Light (-12dB floor, most faithful)</translation>
    </message>
    <message>
        <source>降噪: 标准 (-18dB 地板)</source>
        <translation>Denoise: Standard (-18dB floor)</translation>
    </message>
    <message>
        <source>降噪: 强 (感知加权地板, 最深)</source>
        <translation>Denoise: Strong (perceptually weighted floor, deepest)</translation>
    </message>
    <message>
        <source>保留乐器泛音 (降噪时保住泛音与泛音列)</source>
        <translation>Preserve instrument harmonics (keeps harmonics and overtone series when denoising)</translation>
    </message>
    <message>
        <source>报告里加峰值 (--peak)</source>
        <translation>Add peak level to report (--peak)</translation>
    </message>
    <message>
        <source>报告里加 RMS (--rms)</source>
        <translation>Add RMS to report (--rms)</translation>
    </message>
    <message>
        <source>报告里不要动态范围一节 (--no-dynamic-range)</source>
        <translation>Omit dynamic range section from report (--no-dynamic-range)</translation>
    </message>
    <message>
        <source>输出模式</source>
        <translation>Output Mode</translation>
    </message>
    <message>
        <source>带宽、加速与报告</source>
        <translation>Bandwidth, Acceleration &amp;&amp; Report</translation>
    </message>
    <message>
        <source>降噪与报告内容</source>
        <translation>Denoise &amp;&amp; Report Content</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「添加 PDF 报告」</source>
        <translation>Noise-floor profiling only works with the PDF report enabled
Please turn on “Add PDF report”</translation>
    </message>
    <message>
        <source>声道设置</source>
        <translation>Channel Settings</translation>
    </message>
    <message>
        <source>强制原始声道数</source>
        <translation>Force original channel count</translation>
    </message>
    <message>
        <source>四声道模式 (需重置声道数=4)</source>
        <translation>Quad mode (requires reset channel count = 4)</translation>
    </message>
    <message>
        <source>添加环绕声道</source>
        <translation>Add surround channels</translation>
    </message>
    <message>
        <source>声道交换</source>
        <translation>Swap channels</translation>
    </message>
    <message>
        <source>重置声道数 (0=不动):</source>
        <translation>Reset channel count (0=unchanged):</translation>
    </message>
    <message>
        <source>规则</source>
        <translation>Rules</translation>
    </message>
    <message>
        <source>「强制原始声道数」优先: 勾选后重置声道数、四声道模式和添加环绕声道都不发给引擎。

四声道模式需要重置声道数为 4; 勾选时会自动设为 4。

「声道交换」交换前两个声道, 与其它选项可同时使用。</source>
        <translation>“Force original channel count” takes precedence: when checked, reset channel count, quad mode and add surround channels are not passed to the engine.

Quad mode requires a reset channel count of 4; it is set to 4 automatically when checked.

“Swap channels” swaps the first two channels and can be combined with the other options.</translation>
    </message>
    <message>
        <source>四声道模式: 重置声道数已自动设为 4</source>
        <translation>Quad mode: reset channel count set to 4</translation>
    </message>
    <message>
        <source>启用均衡器 (EQ)</source>
        <translation>Enable equalizer (EQ)</translation>
    </message>
    <message>
        <source>添加频段</source>
        <translation>Add Band</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>Remove Selected</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>中心频率 (Hz)</source>
        <translation>Center frequency (Hz)</translation>
    </message>
    <message>
        <source>增益 (dB)</source>
        <translation>Gain (dB)</translation>
    </message>
    <message>
        <source>带宽</source>
        <translation>Bandwidth</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>预览按 44.1 kHz 估算 — 引擎槽位: 首段低架, 满 10 段时末段高架</source>
        <translation>Preview estimated at 44.1 kHz — engine slots: first band is low shelf; last band is high shelf when all 10 bands are used</translation>
    </message>
    <message>
        <source>启用均衡器 (--eq 频段 f,g,bw{单位})</source>
        <translation>Equalizer enabled (--eq band f,g,bw{unit})</translation>
    </message>
    <message>
        <source>禁用均衡器</source>
        <translation>Equalizer disabled</translation>
    </message>
    <message>
        <source>窗口法 (Window Method)</source>
        <translation>Window Method</translation>
    </message>
    <message>
        <source>最小相位 (Min-Phase)</source>
        <translation>Minimum Phase</translation>
    </message>
    <message>
        <source>应用预失真处理</source>
        <translation>Apply pre-distortion processing</translation>
    </message>
    <message>
        <source>算法:</source>
        <translation>Algorithm:</translation>
    </message>
    <message>
        <source>滤波类型:</source>
        <translation>Filter type:</translation>
    </message>
    <message>
        <source>窗口法参数</source>
        <translation>Window-method parameters</translation>
    </message>
    <message>
        <source>窗口类型:</source>
        <translation>Window type:</translation>
    </message>
    <message>
        <source>Remez 算法参数</source>
        <translation>Remez algorithm parameters</translation>
    </message>
    <message>
        <source>最大迭代次数:</source>
        <translation>Max iterations:</translation>
    </message>
    <message>
        <source>网格密度:</source>
        <translation>Grid density:</translation>
    </message>
    <message>
        <source>停止带衰减 (A_stop)</source>
        <translation>Stopband Attenuation (A_stop)</translation>
    </message>
    <message>
        <source>0=不发</source>
        <translation>0=off</translation>
    </message>
    <message>
        <source>停止带衰减 (dB):</source>
        <translation>Stopband attenuation (dB):</translation>
    </message>
    <message>
        <source>过渡带 (截止频率)</source>
        <translation>Transition band (cutoff frequencies)</translation>
    </message>
    <message>
        <source>通带截止 (Hz):</source>
        <translation>Passband cutoff (Hz):</translation>
    </message>
    <message>
        <source>阻带截止 (Hz):</source>
        <translation>Stopband cutoff (Hz):</translation>
    </message>
    <message>
        <source>增益 (ABS)</source>
        <translation>Gain (ABS)</translation>
    </message>
    <message>
        <source>绝对值增益:</source>
        <translation>Absolute gain:</translation>
    </message>
    <message>
        <source>HRTF 空间音频</source>
        <translation>HRTF Spatial Audio</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf)</source>
        <translation>Enable HRTF spatial audio (--hrtf)</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf &lt;mono|ms|stereo&gt;)</source>
        <translation>HRTF spatial audio enabled (--hrtf &lt;mono|ms|stereo&gt;)</translation>
    </message>
    <message>
        <source>禁用 HRTF 空间音频</source>
        <translation>HRTF spatial audio disabled</translation>
    </message>
    <message>
        <source>模式:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <source>干湿比 (dry/wet):</source>
        <translation>Dry/wet mix:</translation>
    </message>
    <message>
        <source>侧向扩散比:</source>
        <translation>Side diffusion mix:</translation>
    </message>
    <message>
        <source>深度 (+1前 / 0耳位 / -1后):</source>
        <translation>Depth (+1 front / 0 ear level / -1 rear):</translation>
    </message>
    <message>
        <source>使用引擎内置 HRIR; 不提供自定义 .sofa 文件</source>
        <translation>Uses the engine's built-in HRIR; custom .sofa files are not supported</translation>
    </message>
    <message>
        <source>环绕</source>
        <translation>Surround</translation>
    </message>
    <message>
        <source>启用环绕 (--surround)</source>
        <translation>Enable surround (--surround)</translation>
    </message>
    <message>
        <source>启用环绕 (--surround delayMs mix side balance)</source>
        <translation>Surround enabled (--surround delayMs mix side balance)</translation>
    </message>
    <message>
        <source>禁用环绕</source>
        <translation>Surround disabled</translation>
    </message>
    <message>
        <source>侧向 (side)</source>
        <translation>Side</translation>
    </message>
    <message>
        <source>延迟 (ms):</source>
        <translation>Delay (ms):</translation>
    </message>
    <message>
        <source>混合 (%):</source>
        <translation>Mix (%):</translation>
    </message>
    <message>
        <source>平衡 (-100~100, 0=不发):</source>
        <translation>Balance (-100~100, 0=off):</translation>
    </message>
    <message>
        <source>音调 (shelving)</source>
        <translation>Tone (shelving)</translation>
    </message>
    <message>
        <source>低音 (dB):</source>
        <translation>Bass (dB):</translation>
    </message>
    <message>
        <source>高音 (dB):</source>
        <translation>Treble (dB):</translation>
    </message>
    <message>
        <source>EQ 前置衰减 (dB):</source>
        <translation>EQ pre-cut (dB):</translation>
    </message>
    <message>
        <source>启用 DSRE 数字频谱共振增强 (--dsre)</source>
        <translation>Enable DSRE digital spectral resonance enhancement (--dsre)</translation>
    </message>
    <message>
        <source>启用 DSRE (--dsre mix)</source>
        <translation>DSRE enabled (--dsre mix)</translation>
    </message>
    <message>
        <source>禁用 DSRE</source>
        <translation>DSRE disabled</translation>
    </message>
    <message>
        <source>干湿比 (0=dry, 1=全效果):</source>
        <translation>Dry/wet (0=dry, 1=full effect):</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>AUTORUN 预设: %1</source>
        <translation>AUTORUN preset: %1</translation>
    </message>
    <message>
        <source>✗ AUTORUN 预设无法使用: %1 (%2)</source>
        <translation>✗ AUTORUN preset unusable: %1 (%2)</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_PLAYTEST 指定的文件不存在: %1</source>
        <translation>Error: the file given by ZUVO_AI_PLAYTEST does not exist: %1</translation>
    </message>
    <message>
        <source>设备名直接传给 ZuvoPlayer -dev</source>
        <translation>Device name passed to ZuvoPlayer as -dev</translation>
    </message>
    <message>
        <source>DAC 设备:</source>
        <translation>DAC device:</translation>
    </message>
    <message>
        <source>流式播放模式 (-stream)</source>
        <translation>Streaming playback mode (-stream)</translation>
    </message>
    <message>
        <source>播放源 = 上方「输出文件」 (镜像 GTK: 播放刚转换的 DSF/DFF)</source>
        <translation>Playback source = “Output file” above (as in the GTK version: plays the DSF/DFF just converted)</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>Stop Playback</translation>
    </message>
    <message>
        <source>播放正在进行中, 请先停止当前播放</source>
        <translation>Playback already running; stop it first</translation>
    </message>
    <message>
        <source>错误: 播放文件不存在或无法读取: %1</source>
        <translation>Error: file to play is missing or unreadable: %1</translation>
    </message>
    <message>
        <source>(未设置输出文件)</source>
        <translation>(output file not set)</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoPlayer — 请放在程序同目录或加入 PATH (或设 ZUVO_PLAYER_BIN)</source>
        <translation>Error: ZuvoPlayer not found — place it next to this program or add it to PATH (or set ZUVO_PLAYER_BIN)</translation>
    </message>
    <message>
        <source>启动播放器: %1 %2</source>
        <translation>Starting player: %1 %2</translation>
    </message>
    <message>
        <source>开始播放: %1</source>
        <translation>Playing: %1</translation>
    </message>
    <message>
        <source>试听会话: %1</source>
        <translation>Playback session: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>in-process (direct library call)</translation>
    </message>
    <message>
        <source>子进程</source>
        <translation>child process</translation>
    </message>
    <message>
        <source>错误: 无法启动播放器 — %1</source>
        <translation>Error: cannot start the player — %1</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Playback finished</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Playback stopped</translation>
    </message>
    <message>
        <source>播放器异常退出, 代码: %1</source>
        <translation>Player exited abnormally, code: %1</translation>
    </message>
    <message>
        <source>当前没有播放任务</source>
        <translation>Nothing is playing</translation>
    </message>
    <message>
        <source>正在停止播放器…</source>
        <translation>Stopping player…</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[control] %1</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾 (本次在进程内运行, 无法强制结束)</source>
        <translation>Player did not finish within %1 s (running in-process this time, so it cannot be forced to stop)</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾, 强制结束</source>
        <translation>Player did not finish within %1 s; forcing it to stop</translation>
    </message>
    <message>
        <source>仍无响应, 强制结束播放器</source>
        <translation>Still not responding; killing the player</translation>
    </message>
    <message>
        <source>检查更新…</source>
        <translation>Check for Updates…</translation>
    </message>
    <message>
        <source>关于/诊断…</source>
        <translation>About / Diagnostics…</translation>
    </message>
    <message>
        <source>看引擎版本 / 列音频设备 / 显示引擎帮助</source>
        <translation>Show engine version / list audio devices / show engine help</translation>
    </message>
    <message>
        <source>源码许可…</source>
        <translation>Source Licenses…</translation>
    </message>
    <message>
        <source>参考标准…</source>
        <translation>Reference Standards…</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_RECTEST 需要给一个输出 .dsf 路径</source>
        <translation>Error: ZUVO_AI_RECTEST needs an output .dsf path</translation>
    </message>
    <message>
        <source>(引擎没有输出)</source>
        <translation>(the engine produced no output)</translation>
    </message>
    <message>
        <source>$ %1

%2

退出码 = %3</source>
        <translation>$ %1

%2

Exit code = %3</translation>
    </message>
    <message>
        <source>本构建的引擎没有录音后端 (见录音页的状态行): 不能开始录音</source>
        <translation>This build's engine has no recording backend (see the status line on the Recording tab): cannot start recording</translation>
    </message>
    <message>
        <source>录音正在进行中</source>
        <translation>Recording already in progress</translation>
    </message>
    <message>
        <source>录音</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>请先在上方「输出文件」设置录音保存路径</source>
        <translation>Set the recording path in the “Output file” field above first</translation>
    </message>
    <message>
        <source>录音输出文件必须是 .dsf 格式</source>
        <translation>The recording output file must be .dsf</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoEngine (录音需要引擎录音支持)</source>
        <translation>Error: ZuvoEngine not found (recording needs engine recording support)</translation>
    </message>
    <message>
        <source>录音命令: %1 %2</source>
        <translation>Record command: %1 %2</translation>
    </message>
    <message>
        <source>开始录音 → %1</source>
        <translation>Recording started → %1</translation>
    </message>
    <message>
        <source>提示: 停止时发送 'q' 让引擎优雅收尾 (先停止处理 PCM 再写 DSF)</source>
        <translation>Tip: on stop, 'q' is sent so the engine can finish cleanly (stops processing PCM, then writes the DSF)</translation>
    </message>
    <message>
        <source>录音中…</source>
        <translation>Recording…</translation>
    </message>
    <message>
        <source>录音会话: %1</source>
        <translation>Recording session: %1</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 (录音) — %1</source>
        <translation>Error: cannot start the engine (recording) — %1</translation>
    </message>
    <message>
        <source>当前没有录音任务</source>
        <translation>No recording is running</translation>
    </message>
    <message>
        <source>发送 'q' 至引擎 — 等待优雅收尾 (写 DSF 后自动退出)…</source>
        <translation>Sent 'q' to the engine — waiting for it to finish cleanly (writes the DSF, then exits)…</translation>
    </message>
    <message>
        <source>录音引擎已不在运行</source>
        <translation>The recording engine is no longer running</translation>
    </message>
    <message>
        <source>引擎未在 12s 内收尾 (本次在进程内进行, 无法强制结束)</source>
        <translation>The engine did not finish within 12 s (this run is in-process, so it cannot be force-terminated)</translation>
    </message>
    <message>
        <source>引擎未在 12s 内退出, 强制终止</source>
        <translation>The engine did not exit within 12 s; killing it</translation>
    </message>
    <message>
        <source>录音保存: %1</source>
        <translation>Recording saved: %1</translation>
    </message>
    <message>
        <source>录音失败, 退出码: %1</source>
        <translation>Recording failed, exit code: %1</translation>
    </message>
    <message>
        <source>录音进程异常退出 (崩溃/被终止)</source>
        <translation>Recording process exited abnormally (crashed/killed)</translation>
    </message>
    <message>
        <source>录音后端: 可用 — %1</source>
        <translation>Recording backend: available — %1</translation>
    </message>
    <message>
        <source>录音后端: 不可用 — %1</source>
        <translation>Recording backend: unavailable — %1</translation>
    </message>
    <message>
        <source>%1 个输入设备(已列在日志里)</source>
        <translation>%1 input device(s) (listed in the log)</translation>
    </message>
    <message>
        <source>引擎退出码 = %1</source>
        <translation>Engine exit code = %1</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请放在程序同目录、加入 PATH, 或设 ZUVO_ENGINE_BIN</source>
        <translation>ZuvoEngine not found — place it next to the program, add it to PATH, or set ZUVO_ENGINE_BIN</translation>
    </message>
    <message>
        <source>探测 30s 无响应, 已终止</source>
        <translation>Probe did not respond within 30 s; terminated</translation>
    </message>
    <message>
        <source>关于 / 诊断</source>
        <translation>About / Diagnostics</translation>
    </message>
    <message>
        <source>ZuvoAudioTools — ZuvoEngine 的转码前端 (QProcess 子进程)
引擎路径: %1
注: 引擎的帮助/版本类子命令本来就以非 0 退出码收尾, 属既有行为。
探测是异步的: 点完可以继续操作界面, 结果到了会显示在下面。</source>
        <translation>ZuvoAudioTools — conversion front end for ZuvoEngine (QProcess child process)
Engine path: %1
Note: the engine's help/version subcommands exit with a non-zero code by design; this is expected.
Probing is asynchronous: you can keep using the interface after clicking, and the result appears below when it arrives.</translation>
    </message>
    <message>
        <source>(未找到)</source>
        <translation>(not found)</translation>
    </message>
    <message>
        <source>点下面任一按钮看引擎的回答</source>
        <translation>Click any button below to see the engine's answer</translation>
    </message>
    <message>
        <source>引擎版本 (--version)</source>
        <translation>Engine version (--version)</translation>
    </message>
    <message>
        <source>列出音频设备 (--list-devices)</source>
        <translation>List audio devices (--list-devices)</translation>
    </message>
    <message>
        <source>引擎帮助 (--help)</source>
        <translation>Engine help (--help)</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请把它放在程序同目录、加入 PATH, 或设置环境变量 ZUVO_ENGINE_BIN。</source>
        <translation>ZuvoEngine not found — place it next to this program, add it to PATH, or set the ZUVO_ENGINE_BIN environment variable.</translation>
    </message>
    <message>
        <source>$ %1

运行中… (界面不冻, 可继续操作)
</source>
        <translation>$ %1

Running… (the UI stays responsive, keep working)
</translation>
    </message>
    <message>
        <source>引擎启动失败: %1</source>
        <translation>Failed to start the engine: %1</translation>
    </message>
    <message>
        <source>
引擎 30s 无响应, 已终止 (不进设备, 不会影响到正在跑的任务)。</source>
        <translation>
The engine did not respond for 30 s and was terminated (it never opened a device; running tasks are unaffected).</translation>
    </message>
    <message>
        <source>录音后端: 未检测</source>
        <translation>Recording backend: not probed</translation>
    </message>
    <message>
        <source>检测录音支持 / 列出输入设备</source>
        <translation>Probe recording support / list input devices</translation>
    </message>
    <message>
        <source>录音设备 (空=默认):</source>
        <translation>Recording device (empty=default):</translation>
    </message>
    <message>
        <source>声道数 (0=自动):</source>
        <translation>Channels (0=auto):</translation>
    </message>
    <message>
        <source>采样率 Hz (0=自动):</source>
        <translation>Sample rate Hz (0=auto):</translation>
    </message>
    <message>
        <source>时长秒 (0=手动):</source>
        <translation>Duration (s, 0=manual):</translation>
    </message>
    <message>
        <source>头空间 dB:</source>
        <translation>Headroom dB:</translation>
    </message>
    <message>
        <source>缓冲帧:</source>
        <translation>Buffer frames:</translation>
    </message>
    <message>
        <source>直通模式 (--record-exclusive)</source>
        <translation>Exclusive mode (--record-exclusive)</translation>
    </message>
    <message>
        <source>DSD 直录 (否则 PCM2PDM)</source>
        <translation>Record DSD directly (otherwise PCM2PDM)</translation>
    </message>
    <message>
        <source>监听输入</source>
        <translation>Monitor input</translation>
    </message>
    <message>
        <source>监听输出设备:</source>
        <translation>Monitor output device:</translation>
    </message>
    <message>
        <source>录音输出 = 上方「输出文件」(必须 .dsf); 停止时向引擎发送 'q' 优雅收尾 (镜像 GTK)</source>
        <translation>Recording output = “Output file” above (must be .dsf); Stop sends 'q' so the engine finishes cleanly (as in the GTK version)</translation>
    </message>
    <message>
        <source>开始录音</source>
        <translation>Start Recording</translation>
    </message>
    <message>
        <source>停止录音</source>
        <translation>Stop Recording</translation>
    </message>
</context>
<context>
    <name>PerTrackDialog</name>
    <message>
        <source>逐轨预设 (每个文件可各用一套)</source>
        <translation>Per-track presets (one preset per file)</translation>
    </message>
    <message>
        <source>每行给一个文件挑一套预设; 「(用当前参数)」= 跟随主面板。
预设只换编码/DSP 参数 —— 输出目录/输出格式与标签仍按主面板。</source>
        <translation>Pick a preset for each file, one row per file; “(use current parameters)” = follow the main panel.
A preset only changes encoding/DSP parameters — output folder/format and tags still come from the main panel.</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>File</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Preset</translation>
    </message>
    <message>
        <source>(用当前参数)</source>
        <translation>(use current parameters)</translation>
    </message>
    <message>
        <source>(预设目录里没有预设 —— 先在上面「母带预设」里保存一套)</source>
        <translation>(no presets in the preset folder — first save one under “Mastering presets” above)</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>PresetManagerDialog</name>
    <message>
        <source>预设管理器</source>
        <translation>Preset Manager</translation>
    </message>
    <message>
        <source>预设为 JSON 文件 (与 GTK 版同目录同键名, 可互读)
写入目录: %1</source>
        <translation>Presets are JSON files (same folder and key names as the GTK version, interchangeable)
Write folder: %1</translation>
    </message>
    <message>
        <source>加载选中</source>
        <translation>Load Selected</translation>
    </message>
    <message>
        <source>删除选中</source>
        <translation>Delete Selected</translation>
    </message>
    <message>
        <source>保存当前为…</source>
        <translation>Save Current As…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Preset</translation>
    </message>
    <message>
        <source>无法读取: %1</source>
        <translation>Cannot read: %1</translation>
    </message>
    <message>
        <source>预设文件解析失败: %1</source>
        <translation>Failed to parse preset file: %1</translation>
    </message>
    <message>
        <source>预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>Preset has %1 field(s) not supported by this version, ignored</translation>
    </message>
    <message>
        <source>已加载预设: %1</source>
        <translation>Preset loaded: %1</translation>
    </message>
    <message>
        <source>删除预设</source>
        <translation>Delete Preset</translation>
    </message>
    <message>
        <source>确定删除预设 %1 ?</source>
        <translation>Delete preset %1?</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>Delete failed: %1</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Save As</translation>
    </message>
    <message>
        <source>预设名称:</source>
        <translation>Preset name:</translation>
    </message>
    <message>
        <source>预设 %1 已存在, 覆盖?</source>
        <translation>Preset %1 already exists. Overwrite?</translation>
    </message>
    <message>
        <source>预设名称无效: %1</source>
        <translation>Invalid preset name: %1</translation>
    </message>
    <message>
        <source>保存失败: %1</source>
        <translation>Save failed: %1</translation>
    </message>
    <message>
        <source>已保存预设: %1</source>
        <translation>Preset saved: %1</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>名称为空</source>
        <translation>Name is empty</translation>
    </message>
    <message>
        <source>名称不能包含 %1 或控制字符</source>
        <translation>Name must not contain %1 or control characters</translation>
    </message>
    <message>
        <source>名称不能以点结尾</source>
        <translation>Name must not end with a dot</translation>
    </message>
    <message>
        <source>名称 %1 是系统保留的设备名</source>
        <translation>Name %1 is a reserved system device name</translation>
    </message>
    <message>
        <source>文件过大 (%1 字节)</source>
        <translation>File too large (%1 bytes)</translation>
    </message>
    <message>
        <source>顶层不是 JSON 对象</source>
        <translation>Top level is not a JSON object</translation>
    </message>
    <message>
        <source>无法读取文件</source>
        <translation>Cannot read file</translation>
    </message>
</context>
<context>
    <name>ReferencesGui</name>
    <message>
        <source>参考标准</source>
        <translation>Reference Standards</translation>
    </message>
</context>
<context>
    <name>RunControlsPanel</name>
    <message>
        <source>开始转换</source>
        <translation>Start Conversion</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Clear Log</translation>
    </message>
    <message>
        <source>详细日志 (--verbose)</source>
        <translation>Verbose log (--verbose)</translation>
    </message>
    <message>
        <source>保留引擎日志（退出不删）</source>
        <translation>Keep engine log (not deleted on exit)</translation>
    </message>
    <message>
        <source>关（默认）：引擎日志写在系统临时目录里的一次性目录中，退出即清；
开：写到 %1 下并保留，便于把日志发给厂商排障。</source>
        <translation>Off (default): the engine log is written to a throwaway folder in the system temp directory and deleted on exit;
On: it is written under %1 and kept, so you can send it to the vendor for troubleshooting.</translation>
    </message>
    <message>
        <source>子进程: ZuvoEngine</source>
        <translation>Child process: ZuvoEngine</translation>
    </message>
    <message>
        <source>GUI 通过 QProcess 调用同目录/环境变量指定的 ZuvoEngine</source>
        <translation>The GUI runs ZuvoEngine via QProcess, from the program folder or the path set by the environment variable</translation>
    </message>
</context>
<context>
    <name>ThirdPartyGui</name>
    <message>
        <source>源码许可</source>
        <translation>Source Licenses</translation>
    </message>
</context>
<context>
    <name>UiLangRow</name>
    <message>
        <source>语言</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>界面语言。切换后程序会重启一次以便整套界面换语言。</source>
        <translation>Interface language. The program restarts once so the whole interface switches language.</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Follow system</translation>
    </message>
    <message>
        <source>界面语言已切换，程序将自动重启一次以生效。</source>
        <translation>Interface language changed. The program will restart once to apply it.</translation>
    </message>
</context>
<context>
    <name>UpdateUi</name>
    <message>
        <source>正在检查更新…</source>
        <translation>Checking for updates…</translation>
    </message>
    <message>
        <source>检查更新</source>
        <translation>Check for Updates</translation>
    </message>
    <message>
        <source>已是最新版本 (%1)。服务器上的最新版本为 %2。</source>
        <translation>You are up to date (%1). The latest version on the server is %2.</translation>
    </message>
    <message>
        <source>检查更新失败：</source>
        <translation>Update check failed:</translation>
    </message>
    <message>
        <source>发现新版本 %1（当前 %2）。</source>
        <translation>Version %1 is available (you have %2).</translation>
    </message>
    <message>
        <source>发布日期：%1</source>
        <translation>Release date: %1</translation>
    </message>
    <message>
        <source>更新说明：%1</source>
        <translation>Release notes: %1</translation>
    </message>
    <message>
        <source>发现新版本</source>
        <translation>New Version Available</translation>
    </message>
    <message>
        <source>下载并更新</source>
        <translation>Download and Update</translation>
    </message>
    <message>
        <source>打开下载页</source>
        <translation>Open Download Page</translation>
    </message>
    <message>
        <source>稍后</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>正在下载更新…</source>
        <translation>Downloading update…</translation>
    </message>
    <message>
        <source>下载更新</source>
        <translation>Download Update</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>程序现在退出。</source>
        <translation>The program will now exit.</translation>
    </message>
    <message>
        <source>更新失败</source>
        <translation>Update Failed</translation>
    </message>
</context>
<context>
    <name>pv::PreviewDialog</name>
    <message>
        <source>预览: %1</source>
        <translation>Preview: %1</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>Waveform</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>Spectrogram</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>%1 — %2 Hz / %3 ch, 预览 %4 s (上限 30 s)</source>
        <translation>%1 — %2 Hz / %3 ch, preview %4 s (max 30 s)</translation>
    </message>
    <message>
        <source>该格式 (%1) 预览待后续 — 目前仅支持 WAV (DSD 解码属后续里程碑)</source>
        <translation>Preview of this format (%1) is not available yet — only WAV for now (DSD decoding is planned for a later milestone)</translation>
    </message>
    <message>
        <source>解码失败: %1</source>
        <translation>Decoding failed: %1</translation>
    </message>
</context>
</TS>