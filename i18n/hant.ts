<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="zh_CN">
<context>
    <name>ConversionQueue</name>
    <message>
        <source>引擎日志: %1</source>
        <translation>引擎記錄: %1</translation>
    </message>
    <message>
        <source>(交给引擎默认)</source>
        <translation>(交給引擎預設)</translation>
    </message>
    <message>
        <source>待转换文件: %1 个</source>
        <translation>待轉換檔案: %1 個</translation>
    </message>
    <message>
        <source>输出目录: %1 (命名模板: %2, 格式: %3)</source>
        <translation>輸出資料夾: %1 (命名範本: %2, 格式: %3)</translation>
    </message>
    <message>
        <source>✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)</source>
        <translation>✗ 逐軌預設集無法解析, 本檔案改用目前參數: %1 (%2)</translation>
    </message>
    <message>
        <source>逐轨预设《%1》</source>
        <translation>逐軌預設集《%1》</translation>
    </message>
    <message>
        <source>  预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>  預設集含 %1 個本版未支援欄位, 已忽略</translation>
    </message>
    <message>
        <source>停止: 剩余 %1 个文件已跳过</source>
        <translation>停止: 剩餘 %1 個檔案已略過</translation>
    </message>
    <message>
        <source>━━━ [%1/%2] 转换 %3</source>
        <translation>━━━ [%1/%2] 轉換 %3</translation>
    </message>
    <message>
        <source>━━━ 转换 %1</source>
        <translation>━━━ 轉換 %1</translation>
    </message>
    <message>
        <source>✗ 无法创建输出目录: %1</source>
        <translation>✗ 無法建立輸出資料夾: %1</translation>
    </message>
    <message>
        <source>执行: %1 %2</source>
        <translation>執行: %1 %2</translation>
    </message>
    <message>
        <source>转换会话: %1</source>
        <translation>轉換工作階段: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>處理程序內(直接呼叫函式庫)</translation>
    </message>
    <message>
        <source>子进程(起 CLI)</source>
        <translation>子處理程序(啟動 CLI)</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 — %1</source>
        <translation>錯誤: 無法啟動引擎 — %1</translation>
    </message>
    <message>
        <source>✓ %1 完成</source>
        <translation>✓ %1 完成</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (未完成的文件已删除)</source>
        <translation>■ 已停止: %1 (未完成的檔案已刪除)</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (文件保留, 可能不完整)</source>
        <translation>■ 已停止: %1 (檔案保留, 可能不完整)</translation>
    </message>
    <message>
        <source>■ 已停止(强制结束进程): %1</source>
        <translation>■ 已停止(強制結束處理程序): %1</translation>
    </message>
    <message>
        <source>✗ %1 异常退出 (崩溃/被终止)</source>
        <translation>✗ %1 異常結束 (當機/被終止)</translation>
    </message>
    <message>
        <source>✗ 退出码: %1</source>
        <translation>✗ 結束代碼: %1</translation>
    </message>
    <message>
        <source>── 引擎日志 (末尾 %1 行): %2 ──</source>
        <translation>── 引擎記錄 (最後 %1 行): %2 ──</translation>
    </message>
    <message>
        <source>
全部完成: %1 OK</source>
        <translation>
全部完成: %1 OK</translation>
    </message>
    <message>
        <source>
完成: %1 OK, %2 失败</source>
        <translation>
完成: %1 OK, %2 失敗</translation>
    </message>
    <message>
        <source>转换已停止</source>
        <translation>轉換已停止</translation>
    </message>
    <message>
        <source>当前没有运行的进程</source>
        <translation>目前沒有執行中的處理程序</translation>
    </message>
    <message>
        <source>正在停止转换进程…</source>
        <translation>正在停止轉換處理程序…</translation>
    </message>
    <message>
        <source>终止当前转换进程…</source>
        <translation>終止目前的轉換處理程序…</translation>
    </message>
    <message>
        <source>正在通知引擎停止…</source>
        <translation>正在通知引擎停止…</translation>
    </message>
    <message>
        <source>引擎 2 秒内没有确认停止 —— 仍在收尾(可再点一次, 或关闭程序)。</source>
        <translation>引擎 2 秒內未確認停止 —— 仍在收尾(可再按一次, 或關閉程式)。</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[控制] %1</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但没有写出输出文件 %2</source>
        <translation>✗ %1: 引擎回報已完成, 但未寫出輸出檔案 %2</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件 %2 没有被写过 (还是旧的)</source>
        <translation>✗ %1: 引擎回報已完成, 但輸出檔案 %2 未被寫入 (仍是舊檔)</translation>
    </message>
    <message>
        <source>文件是空的</source>
        <translation>檔案是空的</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2), 已删除: %3</source>
        <translation>✗ %1: 引擎回報已完成, 但無法讀取輸出檔案 (%2), 已刪除: %3</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2): %3</source>
        <translation>✗ %1: 引擎回報已完成, 但無法讀取輸出檔案 (%2): %3</translation>
    </message>
    <message>
        <source> …(这一行太长, 后面 %1 个字符没有显示)</source>
        <translation> …(此行過長, 後面 %1 個字元未顯示)</translation>
    </message>
    <message>
        <source>不是 DSF 文件</source>
        <translation>不是 DSF 檔案</translation>
    </message>
    <message>
        <source>DSF 头里的文件长度与实际不符 (文件不完整)</source>
        <translation>DSF 標頭中的檔案長度與實際不符 (檔案不完整)</translation>
    </message>
    <message>
        <source>DSF 格式块不对</source>
        <translation>DSF 格式區塊錯誤</translation>
    </message>
    <message>
        <source>DSF 数据块不对</source>
        <translation>DSF 資料區塊錯誤</translation>
    </message>
    <message>
        <source>DSF 元数据位置不对</source>
        <translation>DSF 中繼資料位置錯誤</translation>
    </message>
    <message>
        <source>不是 DSDIFF 文件</source>
        <translation>不是 DSDIFF 檔案</translation>
    </message>
    <message>
        <source>DSDIFF 头里的长度与实际不符 (文件不完整)</source>
        <translation>DSDIFF 標頭中的長度與實際不符 (檔案不完整)</translation>
    </message>
    <message>
        <source>DSDIFF 块超出文件</source>
        <translation>DSDIFF 區塊超出檔案範圍</translation>
    </message>
    <message>
        <source>DSDIFF 缺少 FVER/PROP/声音块</source>
        <translation>DSDIFF 缺少 FVER/PROP/聲音區塊</translation>
    </message>
    <message>
        <source>不是 WAV 文件</source>
        <translation>不是 WAV 檔案</translation>
    </message>
    <message>
        <source>RF64 的 ds64 块不对</source>
        <translation>RF64 的 ds64 區塊錯誤</translation>
    </message>
    <message>
        <source>WAV 缺少格式块</source>
        <translation>WAV 缺少格式區塊</translation>
    </message>
    <message>
        <source>WAV 数据块超出文件 (文件不完整)</source>
        <translation>WAV 資料區塊超出檔案範圍 (檔案不完整)</translation>
    </message>
    <message>
        <source>WAV 格式块不对</source>
        <translation>WAV 格式區塊錯誤</translation>
    </message>
    <message>
        <source>WAV 缺少数据块</source>
        <translation>WAV 缺少資料區塊</translation>
    </message>
    <message>
        <source>不是 W64 文件</source>
        <translation>不是 W64 檔案</translation>
    </message>
    <message>
        <source>W64 块超出文件 (文件不完整)</source>
        <translation>W64 區塊超出檔案範圍 (檔案不完整)</translation>
    </message>
    <message>
        <source>W64 缺少格式块</source>
        <translation>W64 缺少格式區塊</translation>
    </message>
    <message>
        <source>W64 缺少数据块</source>
        <translation>W64 缺少資料區塊</translation>
    </message>
    <message>
        <source>不是 FLAC 文件</source>
        <translation>不是 FLAC 檔案</translation>
    </message>
    <message>
        <source>FLAC 缺少 STREAMINFO</source>
        <translation>FLAC 缺少 STREAMINFO</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>無法開啟</translation>
    </message>
</context>
<context>
    <name>EngineSession</name>
    <message>
        <source>进程内会话起不来 (rc=%1)</source>
        <translation>處理程序內工作階段無法啟動 (rc=%1)</translation>
    </message>
</context>
<context>
    <name>FileListWidget</name>
    <message>
        <source>  ◇ 预设: %1</source>
        <translation>  ◇ 預設集: %1</translation>
    </message>
</context>
<context>
    <name>InputOutputPanel</name>
    <message>
        <source>添加文件…</source>
        <translation>新增檔案…</translation>
    </message>
    <message>
        <source>添加目录…</source>
        <translation>新增資料夾…</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>移除選取項目</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>清除清單</translation>
    </message>
    <message>
        <source>支持拖入音频文件或文件夹</source>
        <translation>可拖入音訊檔案或資料夾</translation>
    </message>
    <message>
        <source>输出 .dsf / .dff 文件</source>
        <translation>輸出 .dsf / .dff 檔案</translation>
    </message>
    <message>
        <source>浏览…</source>
        <translation>瀏覽…</translation>
    </message>
    <message>
        <source>输出文件:</source>
        <translation>輸出檔案:</translation>
    </message>
    <message>
        <source>留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名</source>
        <translation>留空 = 使用上方的輸出檔案; 填寫後依命名範本為每個輸入產生輸出檔名</translation>
    </message>
    <message>
        <source>批量输出: 所有输入写进这个目录, 文件名由下面的命名模板算</source>
        <translation>批次輸出: 所有輸入寫入此資料夾, 檔名依下方命名範本產生</translation>
    </message>
    <message>
        <source>浏览目录…</source>
        <translation>瀏覽資料夾…</translation>
    </message>
    <message>
        <source>输出目录:</source>
        <translation>輸出資料夾:</translation>
    </message>
    <message>
        <source>输出目录模式下每个文件的扩展名 (引擎按扩展名认格式)</source>
        <translation>輸出資料夾模式下每個檔案的副檔名 (引擎依副檔名判斷格式)</translation>
    </message>
    <message>
        <source>变量: {input} 输入文件名  {ext} 输出格式  {track} / {track:02} 队列序号  {artist} {title} 界面字段
留空 = {input}; 变量没有值时回退用输入文件名; 模板里可以带子目录</source>
        <translation>變數: {input} 輸入檔名  {ext} 輸出格式  {track} / {track:02} 佇列序號  {artist} {title} 介面欄位
留空 = {input}; 變數無值時改用輸入檔名; 範本中可包含子資料夾</translation>
    </message>
    <message>
        <source>输出格式:</source>
        <translation>輸出格式:</translation>
    </message>
    <message>
        <source>命名模板:</source>
        <translation>命名範本:</translation>
    </message>
    <message>
        <source>标签: DFF→COMT, DSF→ID3</source>
        <translation>標籤: DFF→COMT, DSF→ID3</translation>
    </message>
    <message>
        <source>0 = 不写曲目号 (引擎只接受 1..998)</source>
        <translation>0 = 不寫入曲目編號 (引擎僅接受 1..998)</translation>
    </message>
    <message>
        <source>写入标签的说明文字</source>
        <translation>寫入標籤的說明文字</translation>
    </message>
    <message>
        <source>从输入文件读取标签</source>
        <translation>從輸入檔案讀取標籤</translation>
    </message>
    <message>
        <source>艺术家:</source>
        <translation>演出者:</translation>
    </message>
    <message>
        <source>标题:</source>
        <translation>標題:</translation>
    </message>
    <message>
        <source>专辑:</source>
        <translation>專輯:</translation>
    </message>
    <message>
        <source>流派:</source>
        <translation>類型:</translation>
    </message>
    <message>
        <source>年份:</source>
        <translation>年份:</translation>
    </message>
    <message>
        <source>曲目号:</source>
        <translation>曲目編號:</translation>
    </message>
    <message>
        <source>备注:</source>
        <translation>備註:</translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>%1 個檔案</translation>
    </message>
    <message>
        <source>音频文件 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;所有文件 (*)</source>
        <translation>音訊檔案 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;所有檔案 (*)</translation>
    </message>
    <message>
        <source>选择输入文件</source>
        <translation>選擇輸入檔案</translation>
    </message>
    <message>
        <source>选择目录</source>
        <translation>選擇資料夾</translation>
    </message>
    <message>
        <source>PCM 音频 (*.wav *.w64 *.flac);;所有文件 (*)</source>
        <translation>PCM 音訊 (*.wav *.w64 *.flac);;所有檔案 (*)</translation>
    </message>
    <message>
        <source>DSDIFF (*.dff);;DSD Stream (*.dsf);;所有文件 (*)</source>
        <translation>DSDIFF (*.dff);;DSD Stream (*.dsf);;所有檔案 (*)</translation>
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
        <translation>選擇輸出檔案</translation>
    </message>
    <message>
        <source>选择输出目录</source>
        <translation>選擇輸出資料夾</translation>
    </message>
    <message>
        <source>波形/频谱预览…</source>
        <translation>波形/頻譜預覽…</translation>
    </message>
    <message>
        <source>逐轨预设…</source>
        <translation>逐軌預設集…</translation>
    </message>
    <message>
        <source>给队列里每个文件单独指定一套预设
预设只换编码/DSP 参数; 输出目录/输出格式与标签仍按面板</source>
        <translation>為佇列中的每個檔案個別指定一組預設集
預設集只變更編碼/DSP 參數; 輸出資料夾/輸出格式與標籤仍依面板設定</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>开始转换</source>
        <translation>開始轉換</translation>
    </message>
    <message>
        <source>Zuvo Audio Suite — 音频转换工具</source>
        <translation>Zuvo Audio Suite — 音訊轉換工具</translation>
    </message>
    <message>
        <source>设置输出文件: %1</source>
        <translation>已設定輸出檔案: %1</translation>
    </message>
    <message>
        <source>目录中没有音频文件</source>
        <translation>資料夾中沒有音訊檔案</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改文件列表</source>
        <translation>轉換進行中, 無法修改檔案清單</translation>
    </message>
    <message>
        <source>找到 ZuvoEngine (音频转换引擎): %1</source>
        <translation>找到 ZuvoEngine (音訊轉換引擎): %1</translation>
    </message>
    <message>
        <source>警告: 未找到 ZuvoEngine — 转换功能不可用。请将其放在程序同目录、或加入 PATH。</source>
        <translation>警告: 找不到 ZuvoEngine — 無法使用轉換功能。請將它放在程式所在資料夾, 或加入 PATH。</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine</source>
        <translation>找不到 ZuvoEngine</translation>
    </message>
    <message>
        <source>已添加 %1 个文件</source>
        <translation>已新增 %1 個檔案</translation>
    </message>
    <message>
        <source>已跳过 %1 个重复文件</source>
        <translation>已略過 %1 個重複檔案</translation>
    </message>
    <message>
        <source>转换完成</source>
        <translation>轉換完成</translation>
    </message>
    <message>
        <source>转换 %1 个文件</source>
        <translation>已轉換 %1 個檔案</translation>
    </message>
    <message>
        <source>转换 %1 个文件, %2 个失败</source>
        <translation>已轉換 %1 個檔案, %2 個失敗</translation>
    </message>
    <message>
        <source>打开输出目录</source>
        <translation>開啟輸出資料夾</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>AUTORUN 参数不完整</source>
        <translation>AUTORUN 參數不完整</translation>
    </message>
    <message>
        <source>AUTORUN: %1 个输入 → %2</source>
        <translation>AUTORUN: %1 個輸入 → %2</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>輸出格式</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM) 的输出必须是 .wav 或 .flac</source>
        <translation>反向模式 (PDM2PCM) 的輸出必須是 .wav 或 .flac</translation>
    </message>
    <message>
        <source>DXD 输出只支持 .wav / .w64 / .flac (引擎按扩展名认容器)</source>
        <translation>DXD 輸出僅支援 .wav / .w64 / .flac (引擎依副檔名判斷容器)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>错误: DST 压缩仅支持 DFF 格式输出
请把输出格式/扩展名改为 .dff 或禁用 DST 压缩</source>
        <translation>錯誤: DST 壓縮僅支援 DFF 格式輸出
請將輸出格式/副檔名改為 .dff, 或停用 DST 壓縮</translation>
    </message>
    <message>
        <source>输出文件必须是 .dsf 或 .dff 格式</source>
        <translation>輸出檔案必須是 .dsf 或 .dff 格式</translation>
    </message>
    <message>
        <source>转换中</source>
        <translation>轉換中</translation>
    </message>
    <message>
        <source>已有转换任务正在进行中, 请等待完成。</source>
        <translation>已有轉換工作正在進行, 請等候完成。</translation>
    </message>
    <message>
        <source>输入文件</source>
        <translation>輸入檔案</translation>
    </message>
    <message>
        <source>请选择输入文件</source>
        <translation>請選擇輸入檔案</translation>
    </message>
    <message>
        <source>元数据</source>
        <translation>中繼資料</translation>
    </message>
    <message>
        <source>输出 .dff 必须填「艺术家」和「标题」两个值
(它们是 DFF 的 COMT 标签; 必填项, 不填不开始转换)</source>
        <translation>輸出 .dff 時必須填寫「演出者」與「標題」
(兩者構成 DFF 的 COMT 標籤; 為必填項目, 未填寫則不會開始轉換)</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>Taps</translation>
    </message>
    <message>
        <source>Taps 必须是偶数且不小于 512 (0 = 用引擎默认值)</source>
        <translation>Taps 必須為偶數且不小於 512 (0 = 使用引擎預設值)</translation>
    </message>
    <message>
        <source>过渡带</source>
        <translation>過渡帶</translation>
    </message>
    <message>
        <source>阻带截止必须大于通带截止 (否则过渡带为零/负, 引擎会拒绝)</source>
        <translation>阻帶截止頻率必須高於通帶截止頻率 (否則過渡帶為零或負值, 引擎會拒絕)</translation>
    </message>
    <message>
        <source>输出目录</source>
        <translation>輸出資料夾</translation>
    </message>
    <message>
        <source>无法创建输出目录:
%1</source>
        <translation>無法建立輸出資料夾:
%1</translation>
    </message>
    <message>
        <source>输出文件</source>
        <translation>輸出檔案</translation>
    </message>
    <message>
        <source>请选择输出文件</source>
        <translation>請選擇輸出檔案</translation>
    </message>
    <message>
        <source>噪声本底分析</source>
        <translation>底噪分析</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「PDF 报告」开关</source>
        <translation>底噪分析需要勾選 PDF 報告才會生效
請啟用「PDF 報告」選項</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>等化器</translation>
    </message>
    <message>
        <source>启用了均衡器但没有有效频段
请添加至少一个频段 (中心频率 &gt; 0), 或禁用均衡器</source>
        <translation>已啟用等化器但沒有有效頻段
請至少新增一個頻段 (中心頻率 &gt; 0), 或停用等化器</translation>
    </message>
    <message>
        <source>引擎缺失</source>
        <translation>找不到引擎</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine。请将其放在程序同目录、或加入 PATH,
也可设置环境变量 ZUVO_ENGINE_BIN 指向其完整路径。</source>
        <translation>找不到 ZuvoEngine。請將它放在程式所在資料夾, 或加入 PATH,
也可設定環境變數 ZUVO_ENGINE_BIN 指向其完整路徑。</translation>
    </message>
    <message>
        <source>均衡器未启用</source>
        <translation>等化器未啟用</translation>
    </message>
    <message>
        <source>基本参数</source>
        <translation>基本參數</translation>
    </message>
    <message>
        <source>滤波</source>
        <translation>濾波</translation>
    </message>
    <message>
        <source>空间与音调</source>
        <translation>空間與音調</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>聲道</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>進階</translation>
    </message>
    <message>
        <source>启用 DST 压缩模式</source>
        <translation>已啟用 DST 壓縮模式</translation>
    </message>
    <message>
        <source>禁用 DST 压缩模式</source>
        <translation>已停用 DST 壓縮模式</translation>
    </message>
    <message>
        <source>DST 压缩</source>
        <translation>DST 壓縮</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出格式将自动更改为 DFF</source>
        <translation>DST 壓縮僅支援 DFF 格式
輸出格式將自動變更為 DFF</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出文件将自动更改为 DFF 格式</source>
        <translation>DST 壓縮僅支援 DFF 格式
輸出檔案將自動變更為 DFF 格式</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改参数</source>
        <translation>轉換進行中, 無法修改參數</translation>
    </message>
    <message>
        <source>已加载母带预设: %1</source>
        <translation>已載入母帶預設集: %1</translation>
    </message>
    <message>
        <source>均衡器: %1 行无效 (需中心频率&gt;0) 已被跳过</source>
        <translation>等化器: 已略過 %1 列無效設定 (中心頻率需 &gt; 0)</translation>
    </message>
    <message>
        <source>注意: 无法向引擎查询它不支持的选项, 直接开始转换</source>
        <translation>注意: 無法向引擎查詢其不支援的選項, 直接開始轉換</translation>
    </message>
    <message>
        <source>转换未开始: 当前引擎构建不支持这些已选择的选项: %1</source>
        <translation>轉換未開始: 目前的引擎版本不支援下列已選取的選項: %1</translation>
    </message>
    <message>
        <source>引擎不支持的选项</source>
        <translation>引擎不支援的選項</translation>
    </message>
    <message>
        <source>当前引擎构建不支持下列已选择的选项, 转换不会开始:
%1

请在参数页关闭它们后再开始 (预设里可以保留)。</source>
        <translation>目前的引擎版本不支援下列已選取的選項, 轉換不會開始:
%1

請在參數頁面關閉這些選項後再開始 (預設集中可以保留)。</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改预设</source>
        <translation>轉換進行中, 無法修改預設集</translation>
    </message>
    <message>
        <source>转换进行中, 不能改逐轨预设。</source>
        <translation>轉換進行中, 無法變更逐軌預設集。</translation>
    </message>
    <message>
        <source>请先添加输入文件</source>
        <translation>請先新增輸入檔案</translation>
    </message>
    <message>
        <source>逐轨预设: 已全部改回「用当前参数」</source>
        <translation>逐軌預設集: 已全部改回「使用目前參數」</translation>
    </message>
    <message>
        <source>逐轨预设: %1 个文件各用一套</source>
        <translation>逐軌預設集: %1 個檔案各自使用一組預設集</translation>
    </message>
    <message>
        <source>转换进行中, 不能预览</source>
        <translation>轉換進行中, 無法預覽</translation>
    </message>
    <message>
        <source>请先添加文件</source>
        <translation>請先新增檔案</translation>
    </message>
    <message>
        <source>没有可预览的文件</source>
        <translation>沒有可預覽的檔案</translation>
    </message>
    <message>
        <source>单环 (NS, --order 9)</source>
        <translation>單迴路 (NS, --order 9)</translation>
    </message>
    <message>
        <source>古典</source>
        <translation>古典</translation>
    </message>
    <message>
        <source>古典: DSD-256, 131072 taps, 高带宽</source>
        <translation>古典: DSD-256, 131072 taps, 高頻寬</translation>
    </message>
    <message>
        <source>流行</source>
        <translation>流行</translation>
    </message>
    <message>
        <source>流行: DSD-128, 65536 taps</source>
        <translation>流行: DSD-128, 65536 taps</translation>
    </message>
    <message>
        <source>爵士</source>
        <translation>爵士</translation>
    </message>
    <message>
        <source>爵士: DSD-128, 65536 taps</source>
        <translation>爵士: DSD-128, 65536 taps</translation>
    </message>
    <message>
        <source>DSD 采样率:</source>
        <translation>DSD 取樣率:</translation>
    </message>
    <message>
        <source>Taps 数 (0=引擎默认):</source>
        <translation>Taps 數 (0=引擎預設):</translation>
    </message>
    <message>
        <source>SOS cascade + error feedback, NS15 profile (引擎默认): 实测带内噪声比单环 NS9 低 11.4 dB</source>
        <translation>SOS cascade + error feedback, NS15 profile (引擎預設): 實測頻帶內雜訊比單迴路 NS9 低 11.4 dB</translation>
    </message>
    <message>
        <source>Chebyshev 多项式压缩 (可与 MASH 叠加)</source>
        <translation>Chebyshev 多項式壓縮 (可與 MASH 疊加)</translation>
    </message>
    <message>
        <source>调制器:</source>
        <translation>調變器:</translation>
    </message>
    <message>
        <source>母带预设:</source>
        <translation>母帶預設集:</translation>
    </message>
    <message>
        <source>预设管理器…</source>
        <translation>預設集管理員…</translation>
    </message>
    <message>
        <source>DST 压缩 (仅 .dff 输出)</source>
        <translation>DST 壓縮 (僅限 .dff 輸出)</translation>
    </message>
    <message>
        <source>DXD 输出 (高解析 PCM)</source>
        <translation>DXD 輸出 (高解析 PCM)</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM)</source>
        <translation>反向模式 (PDM2PCM)</translation>
    </message>
    <message>
        <source>输入 DSD(DSF/DFF), 输出 PCM/WAV —— 与 PCM→PDM 无关</source>
        <translation>輸入 DSD(DSF/DFF), 輸出 PCM/WAV —— 與 PCM→PDM 無關</translation>
    </message>
    <message>
        <source>DST 压缩等级 (0=关闭):</source>
        <translation>DST 壓縮等級 (0=關閉):</translation>
    </message>
    <message>
        <source>高带宽模式</source>
        <translation>高頻寬模式</translation>
    </message>
    <message>
        <source>OpenCL 加速 (GPU)</source>
        <translation>OpenCL 加速 (GPU)</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 OpenCL 支持</source>
        <translation>目前的引擎版本未編譯 OpenCL 支援</translation>
    </message>
    <message>
        <source>添加 PDF 报告</source>
        <translation>加入 PDF 報告</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 PDF 报告 (需要 rsvg+cairo)</source>
        <translation>目前的引擎版本未編譯 PDF 報告功能 (需要 rsvg+cairo)</translation>
    </message>
    <message>
        <source>只影响 PDF 报告内容, 不改音频比特流 (实测: 开关它 dsf 逐字节相同)</source>
        <translation>只影響 PDF 報告內容, 不改音訊位元流 (實測: 開關它 dsf 逐位元組相同)</translation>
    </message>
    <message>
        <source>分析报告 (--report)</source>
        <translation>分析報告 (--report)</translation>
    </message>
    <message>
        <source>噪声本底分析 (需 PDF 报告)</source>
        <translation>底噪分析 (需要 PDF 報告)</translation>
    </message>
    <message>
        <source>降噪: 关</source>
        <translation>降噪: 關</translation>
    </message>
    <message>
        <source>降噪: 轻 (-12dB 地板, 最保真)</source>
        <translation>降噪: 輕度 (-12dB 底限, 最保真)</translation>
    </message>
    <message>
        <source>降噪: 标准 (-18dB 地板)</source>
        <translation>降噪: 標準 (-18dB 底限)</translation>
    </message>
    <message>
        <source>降噪: 强 (感知加权地板, 最深)</source>
        <translation>降噪: 強 (感知加權底限, 最深)</translation>
    </message>
    <message>
        <source>保留乐器泛音 (降噪时保住泛音与泛音列)</source>
        <translation>保留樂器泛音 (降噪時保留泛音與泛音列)</translation>
    </message>
    <message>
        <source>报告里加峰值 (--peak)</source>
        <translation>報告中加入峰值 (--peak)</translation>
    </message>
    <message>
        <source>报告里加 RMS (--rms)</source>
        <translation>報告中加入 RMS (--rms)</translation>
    </message>
    <message>
        <source>报告里不要动态范围一节 (--no-dynamic-range)</source>
        <translation>報告中省略動態範圍一節 (--no-dynamic-range)</translation>
    </message>
    <message>
        <source>输出模式</source>
        <translation>輸出模式</translation>
    </message>
    <message>
        <source>带宽、加速与报告</source>
        <translation>頻寬、加速與報告</translation>
    </message>
    <message>
        <source>降噪与报告内容</source>
        <translation>降噪與報告內容</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「添加 PDF 报告」</source>
        <translation>底噪分析需要勾選 PDF 報告才會生效
請啟用「加入 PDF 報告」</translation>
    </message>
    <message>
        <source>声道设置</source>
        <translation>聲道設定</translation>
    </message>
    <message>
        <source>强制原始声道数</source>
        <translation>強制原始聲道數</translation>
    </message>
    <message>
        <source>四声道模式 (需重置声道数=4)</source>
        <translation>四聲道模式 (需重設聲道數=4)</translation>
    </message>
    <message>
        <source>添加环绕声道</source>
        <translation>加入環繞聲道</translation>
    </message>
    <message>
        <source>声道交换</source>
        <translation>聲道互換</translation>
    </message>
    <message>
        <source>重置声道数 (0=不动):</source>
        <translation>重設聲道數 (0=不變):</translation>
    </message>
    <message>
        <source>规则</source>
        <translation>規則</translation>
    </message>
    <message>
        <source>「强制原始声道数」优先: 勾选后重置声道数、四声道模式和添加环绕声道都不发给引擎。

四声道模式需要重置声道数为 4; 勾选时会自动设为 4。

「声道交换」交换前两个声道, 与其它选项可同时使用。</source>
        <translation>「強制原始聲道數」優先: 勾選後, 重設聲道數、四聲道模式與加入環繞聲道都不會傳給引擎。

四聲道模式需要將聲道數重設為 4; 勾選時會自動設為 4。

「聲道互換」會交換前兩個聲道, 可與其他選項同時使用。</translation>
    </message>
    <message>
        <source>四声道模式: 重置声道数已自动设为 4</source>
        <translation>四聲道模式: 重設聲道數已自動設為 4</translation>
    </message>
    <message>
        <source>启用均衡器 (EQ)</source>
        <translation>啟用等化器 (EQ)</translation>
    </message>
    <message>
        <source>添加频段</source>
        <translation>新增頻段</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>移除選取項目</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>中心频率 (Hz)</source>
        <translation>中心頻率 (Hz)</translation>
    </message>
    <message>
        <source>增益 (dB)</source>
        <translation>增益 (dB)</translation>
    </message>
    <message>
        <source>带宽</source>
        <translation>頻寬</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>單位</translation>
    </message>
    <message>
        <source>预览按 44.1 kHz 估算 — 引擎槽位: 首段低架, 满 10 段时末段高架</source>
        <translation>預覽以 44.1 kHz 估算 — 引擎槽位: 第一段為低頻架式, 使用滿 10 段時最後一段為高頻架式</translation>
    </message>
    <message>
        <source>启用均衡器 (--eq 频段 f,g,bw{单位})</source>
        <translation>已啟用等化器 (--eq 頻段 f,g,bw{單位})</translation>
    </message>
    <message>
        <source>禁用均衡器</source>
        <translation>已停用等化器</translation>
    </message>
    <message>
        <source>窗口法 (Window Method)</source>
        <translation>視窗法 (Window Method)</translation>
    </message>
    <message>
        <source>最小相位 (Min-Phase)</source>
        <translation>最小相位 (Min-Phase)</translation>
    </message>
    <message>
        <source>应用预失真处理</source>
        <translation>套用預失真處理</translation>
    </message>
    <message>
        <source>算法:</source>
        <translation>演算法:</translation>
    </message>
    <message>
        <source>滤波类型:</source>
        <translation>濾波器類型:</translation>
    </message>
    <message>
        <source>窗口法参数</source>
        <translation>視窗法參數</translation>
    </message>
    <message>
        <source>窗口类型:</source>
        <translation>視窗類型:</translation>
    </message>
    <message>
        <source>Remez 算法参数</source>
        <translation>Remez 演算法參數</translation>
    </message>
    <message>
        <source>最大迭代次数:</source>
        <translation>最大迭代次數:</translation>
    </message>
    <message>
        <source>网格密度:</source>
        <translation>網格密度:</translation>
    </message>
    <message>
        <source>停止带衰减 (A_stop)</source>
        <translation>阻帶衰減 (A_stop)</translation>
    </message>
    <message>
        <source>0=不发</source>
        <translation>0=不傳送</translation>
    </message>
    <message>
        <source>停止带衰减 (dB):</source>
        <translation>阻帶衰減 (dB):</translation>
    </message>
    <message>
        <source>过渡带 (截止频率)</source>
        <translation>過渡帶 (截止頻率)</translation>
    </message>
    <message>
        <source>通带截止 (Hz):</source>
        <translation>通帶截止 (Hz):</translation>
    </message>
    <message>
        <source>阻带截止 (Hz):</source>
        <translation>阻帶截止 (Hz):</translation>
    </message>
    <message>
        <source>增益 (ABS)</source>
        <translation>增益 (ABS)</translation>
    </message>
    <message>
        <source>绝对值增益:</source>
        <translation>絕對值增益:</translation>
    </message>
    <message>
        <source>HRTF 空间音频</source>
        <translation>HRTF 空間音訊</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf)</source>
        <translation>啟用 HRTF 空間音訊 (--hrtf)</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf &lt;mono|ms|stereo&gt;)</source>
        <translation>已啟用 HRTF 空間音訊 (--hrtf &lt;mono|ms|stereo&gt;)</translation>
    </message>
    <message>
        <source>禁用 HRTF 空间音频</source>
        <translation>已停用 HRTF 空間音訊</translation>
    </message>
    <message>
        <source>模式:</source>
        <translation>模式:</translation>
    </message>
    <message>
        <source>干湿比 (dry/wet):</source>
        <translation>乾濕比 (dry/wet):</translation>
    </message>
    <message>
        <source>侧向扩散比:</source>
        <translation>側向擴散比:</translation>
    </message>
    <message>
        <source>深度 (+1前 / 0耳位 / -1后):</source>
        <translation>深度 (+1前 / 0耳位 / -1後):</translation>
    </message>
    <message>
        <source>使用引擎内置 HRIR; 不提供自定义 .sofa 文件</source>
        <translation>使用引擎內建 HRIR; 不支援自訂 .sofa 檔案</translation>
    </message>
    <message>
        <source>环绕</source>
        <translation>環繞</translation>
    </message>
    <message>
        <source>启用环绕 (--surround)</source>
        <translation>啟用環繞 (--surround)</translation>
    </message>
    <message>
        <source>启用环绕 (--surround delayMs mix side balance)</source>
        <translation>已啟用環繞 (--surround delayMs mix side balance)</translation>
    </message>
    <message>
        <source>禁用环绕</source>
        <translation>已停用環繞</translation>
    </message>
    <message>
        <source>侧向 (side)</source>
        <translation>側向 (side)</translation>
    </message>
    <message>
        <source>延迟 (ms):</source>
        <translation>延遲 (ms):</translation>
    </message>
    <message>
        <source>混合 (%):</source>
        <translation>混合 (%):</translation>
    </message>
    <message>
        <source>平衡 (-100~100, 0=不发):</source>
        <translation>平衡 (-100~100, 0=不傳送):</translation>
    </message>
    <message>
        <source>音调 (shelving)</source>
        <translation>音調 (shelving)</translation>
    </message>
    <message>
        <source>低音 (dB):</source>
        <translation>低音 (dB):</translation>
    </message>
    <message>
        <source>高音 (dB):</source>
        <translation>高音 (dB):</translation>
    </message>
    <message>
        <source>EQ 前置衰减 (dB):</source>
        <translation>EQ 前級衰減 (dB):</translation>
    </message>
    <message>
        <source>启用 DSRE 数字频谱共振增强 (--dsre)</source>
        <translation>啟用 DSRE 數位頻譜共振增強 (--dsre)</translation>
    </message>
    <message>
        <source>启用 DSRE (--dsre mix)</source>
        <translation>已啟用 DSRE (--dsre mix)</translation>
    </message>
    <message>
        <source>禁用 DSRE</source>
        <translation>已停用 DSRE</translation>
    </message>
    <message>
        <source>干湿比 (0=dry, 1=全效果):</source>
        <translation>乾濕比 (0=dry, 1=全效果):</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>AUTORUN 预设: %1</source>
        <translation>AUTORUN 預設集: %1</translation>
    </message>
    <message>
        <source>✗ AUTORUN 预设无法使用: %1 (%2)</source>
        <translation>✗ AUTORUN 預設集無法使用: %1 (%2)</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_PLAYTEST 指定的文件不存在: %1</source>
        <translation>錯誤: ZUVO_AI_PLAYTEST 指定的檔案不存在: %1</translation>
    </message>
    <message>
        <source>设备名直接传给 ZuvoPlayer -dev</source>
        <translation>裝置名稱直接傳給 ZuvoPlayer -dev</translation>
    </message>
    <message>
        <source>DAC 设备:</source>
        <translation>DAC 裝置:</translation>
    </message>
    <message>
        <source>流式播放模式 (-stream)</source>
        <translation>串流播放模式 (-stream)</translation>
    </message>
    <message>
        <source>播放源 = 上方「输出文件」 (镜像 GTK: 播放刚转换的 DSF/DFF)</source>
        <translation>播放來源 = 上方「輸出檔案」 (與 GTK 版相同: 播放剛轉換的 DSF/DFF)</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>停止播放</translation>
    </message>
    <message>
        <source>播放正在进行中, 请先停止当前播放</source>
        <translation>正在播放中, 請先停止目前的播放</translation>
    </message>
    <message>
        <source>错误: 播放文件不存在或无法读取: %1</source>
        <translation>錯誤: 播放檔案不存在或無法讀取: %1</translation>
    </message>
    <message>
        <source>(未设置输出文件)</source>
        <translation>(未設定輸出檔案)</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoPlayer — 请放在程序同目录或加入 PATH (或设 ZUVO_PLAYER_BIN)</source>
        <translation>錯誤: 找不到 ZuvoPlayer — 請放在程式所在資料夾或加入 PATH (或設定 ZUVO_PLAYER_BIN)</translation>
    </message>
    <message>
        <source>启动播放器: %1 %2</source>
        <translation>啟動播放器: %1 %2</translation>
    </message>
    <message>
        <source>开始播放: %1</source>
        <translation>開始播放: %1</translation>
    </message>
    <message>
        <source>试听会话: %1</source>
        <translation>試聽工作階段: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>處理程序內(直接呼叫函式庫)</translation>
    </message>
    <message>
        <source>子进程</source>
        <translation>子處理程序</translation>
    </message>
    <message>
        <source>错误: 无法启动播放器 — %1</source>
        <translation>錯誤: 無法啟動播放器 — %1</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>播放完成</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>播放已停止</translation>
    </message>
    <message>
        <source>播放器异常退出, 代码: %1</source>
        <translation>播放器異常結束, 代碼: %1</translation>
    </message>
    <message>
        <source>当前没有播放任务</source>
        <translation>目前沒有播放工作</translation>
    </message>
    <message>
        <source>正在停止播放器…</source>
        <translation>正在停止播放器…</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[控制] %1</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾 (本次在进程内运行, 无法强制结束)</source>
        <translation>播放器未在 %1 秒內完成收尾 (本次在處理程序內執行, 無法強制結束)</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾, 强制结束</source>
        <translation>播放器未在 %1 秒內完成收尾, 強制結束</translation>
    </message>
    <message>
        <source>仍无响应, 强制结束播放器</source>
        <translation>仍無回應, 強制結束播放器</translation>
    </message>
    <message>
        <source>检查更新…</source>
        <translation>檢查更新…</translation>
    </message>
    <message>
        <source>关于/诊断…</source>
        <translation>關於/診斷…</translation>
    </message>
    <message>
        <source>看引擎版本 / 列音频设备 / 显示引擎帮助</source>
        <translation>檢視引擎版本 / 列出音訊裝置 / 顯示引擎說明</translation>
    </message>
    <message>
        <source>源码许可…</source>
        <translation>原始碼授權…</translation>
    </message>
    <message>
        <source>参考标准…</source>
        <translation>參考標準…</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_RECTEST 需要给一个输出 .dsf 路径</source>
        <translation>錯誤: ZUVO_AI_RECTEST 需要指定一個輸出 .dsf 路徑</translation>
    </message>
    <message>
        <source>(引擎没有输出)</source>
        <translation>(引擎沒有輸出)</translation>
    </message>
    <message>
        <source>$ %1

%2

退出码 = %3</source>
        <translation>$ %1

%2

結束代碼 = %3</translation>
    </message>
    <message>
        <source>本构建的引擎没有录音后端 (见录音页的状态行): 不能开始录音</source>
        <translation>此版本的引擎沒有錄音後端 (見錄音頁的狀態列): 無法開始錄音</translation>
    </message>
    <message>
        <source>录音正在进行中</source>
        <translation>錄音正在進行中</translation>
    </message>
    <message>
        <source>录音</source>
        <translation>錄音</translation>
    </message>
    <message>
        <source>请先在上方「输出文件」设置录音保存路径</source>
        <translation>請先在上方「輸出檔案」設定錄音儲存路徑</translation>
    </message>
    <message>
        <source>录音输出文件必须是 .dsf 格式</source>
        <translation>錄音輸出檔案必須是 .dsf 格式</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoEngine (录音需要引擎录音支持)</source>
        <translation>錯誤: 找不到 ZuvoEngine (錄音需要引擎的錄音支援)</translation>
    </message>
    <message>
        <source>录音命令: %1 %2</source>
        <translation>錄音指令: %1 %2</translation>
    </message>
    <message>
        <source>开始录音 → %1</source>
        <translation>開始錄音 → %1</translation>
    </message>
    <message>
        <source>提示: 停止时发送 'q' 让引擎优雅收尾 (先停止处理 PCM 再写 DSF)</source>
        <translation>提示: 停止時會傳送 'q' 讓引擎正常收尾 (先停止處理 PCM 再寫入 DSF)</translation>
    </message>
    <message>
        <source>录音中…</source>
        <translation>錄音中…</translation>
    </message>
    <message>
        <source>录音会话: %1</source>
        <translation>錄音工作階段: %1</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 (录音) — %1</source>
        <translation>錯誤: 無法啟動引擎 (錄音) — %1</translation>
    </message>
    <message>
        <source>当前没有录音任务</source>
        <translation>目前沒有錄音工作</translation>
    </message>
    <message>
        <source>发送 'q' 至引擎 — 等待优雅收尾 (写 DSF 后自动退出)…</source>
        <translation>已傳送 'q' 至引擎 — 等待正常收尾 (寫入 DSF 後自動結束)…</translation>
    </message>
    <message>
        <source>录音引擎已不在运行</source>
        <translation>錄音引擎已不在執行</translation>
    </message>
    <message>
        <source>引擎未在 12s 内收尾 (本次在进程内进行, 无法强制结束)</source>
        <translation>引擎未在 12 s 內收尾 (本次在處理程序內執行, 無法強制結束)</translation>
    </message>
    <message>
        <source>引擎未在 12s 内退出, 强制终止</source>
        <translation>引擎未在 12 s 內結束, 強制終止</translation>
    </message>
    <message>
        <source>录音保存: %1</source>
        <translation>錄音已儲存: %1</translation>
    </message>
    <message>
        <source>录音失败, 退出码: %1</source>
        <translation>錄音失敗, 結束代碼: %1</translation>
    </message>
    <message>
        <source>录音进程异常退出 (崩溃/被终止)</source>
        <translation>錄音處理程序異常結束 (當機/被終止)</translation>
    </message>
    <message>
        <source>录音后端: 可用 — %1</source>
        <translation>錄音後端: 可用 — %1</translation>
    </message>
    <message>
        <source>录音后端: 不可用 — %1</source>
        <translation>錄音後端: 無法使用 — %1</translation>
    </message>
    <message>
        <source>%1 个输入设备(已列在日志里)</source>
        <translation>%1 個輸入裝置 (已列在記錄中)</translation>
    </message>
    <message>
        <source>引擎退出码 = %1</source>
        <translation>引擎結束代碼 = %1</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请放在程序同目录、加入 PATH, 或设 ZUVO_ENGINE_BIN</source>
        <translation>找不到 ZuvoEngine — 請放在程式所在資料夾、加入 PATH, 或設定 ZUVO_ENGINE_BIN</translation>
    </message>
    <message>
        <source>探测 30s 无响应, 已终止</source>
        <translation>偵測 30 s 無回應, 已終止</translation>
    </message>
    <message>
        <source>关于 / 诊断</source>
        <translation>關於 / 診斷</translation>
    </message>
    <message>
        <source>ZuvoAudioTools — ZuvoEngine 的转码前端 (QProcess 子进程)
引擎路径: %1
注: 引擎的帮助/版本类子命令本来就以非 0 退出码收尾, 属既有行为。
探测是异步的: 点完可以继续操作界面, 结果到了会显示在下面。</source>
        <translation>ZuvoAudioTools — ZuvoEngine 的轉碼前端 (QProcess 子處理程序)
引擎路徑: %1
註: 引擎的說明/版本類子命令本來就會以非 0 結束代碼結束, 屬既有行為。
偵測為非同步: 按下後仍可繼續操作介面, 結果出來後會顯示在下方。</translation>
    </message>
    <message>
        <source>(未找到)</source>
        <translation>(找不到)</translation>
    </message>
    <message>
        <source>点下面任一按钮看引擎的回答</source>
        <translation>按下方任一按鈕即可檢視引擎的回應</translation>
    </message>
    <message>
        <source>引擎版本 (--version)</source>
        <translation>引擎版本 (--version)</translation>
    </message>
    <message>
        <source>列出音频设备 (--list-devices)</source>
        <translation>列出音訊裝置 (--list-devices)</translation>
    </message>
    <message>
        <source>引擎帮助 (--help)</source>
        <translation>引擎說明 (--help)</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请把它放在程序同目录、加入 PATH, 或设置环境变量 ZUVO_ENGINE_BIN。</source>
        <translation>找不到 ZuvoEngine — 請將它放在程式所在資料夾、加入 PATH, 或設定環境變數 ZUVO_ENGINE_BIN。</translation>
    </message>
    <message>
        <source>$ %1

运行中… (界面不冻, 可继续操作)
</source>
        <translation>$ %1

執行中… (介面不會凍結, 可繼續操作)
</translation>
    </message>
    <message>
        <source>引擎启动失败: %1</source>
        <translation>引擎啟動失敗: %1</translation>
    </message>
    <message>
        <source>
引擎 30s 无响应, 已终止 (不进设备, 不会影响到正在跑的任务)。</source>
        <translation>
引擎 30 s 無回應, 已終止 (未開啟裝置, 不會影響正在執行的工作)。</translation>
    </message>
    <message>
        <source>录音后端: 未检测</source>
        <translation>錄音後端: 未偵測</translation>
    </message>
    <message>
        <source>检测录音支持 / 列出输入设备</source>
        <translation>偵測錄音支援 / 列出輸入裝置</translation>
    </message>
    <message>
        <source>录音设备 (空=默认):</source>
        <translation>錄音裝置 (空白=預設):</translation>
    </message>
    <message>
        <source>声道数 (0=自动):</source>
        <translation>聲道數 (0=自動):</translation>
    </message>
    <message>
        <source>采样率 Hz (0=自动):</source>
        <translation>取樣率 Hz (0=自動):</translation>
    </message>
    <message>
        <source>时长秒 (0=手动):</source>
        <translation>時長 秒 (0=手動):</translation>
    </message>
    <message>
        <source>头空间 dB:</source>
        <translation>動態餘量 dB:</translation>
    </message>
    <message>
        <source>缓冲帧:</source>
        <translation>緩衝幀數:</translation>
    </message>
    <message>
        <source>直通模式 (--record-exclusive)</source>
        <translation>獨佔模式 (--record-exclusive)</translation>
    </message>
    <message>
        <source>DSD 直录 (否则 PCM2PDM)</source>
        <translation>直接錄製 DSD (否則為 PCM2PDM)</translation>
    </message>
    <message>
        <source>监听输入</source>
        <translation>監聽輸入</translation>
    </message>
    <message>
        <source>监听输出设备:</source>
        <translation>監聽輸出裝置:</translation>
    </message>
    <message>
        <source>录音输出 = 上方「输出文件」(必须 .dsf); 停止时向引擎发送 'q' 优雅收尾 (镜像 GTK)</source>
        <translation>錄音輸出 = 上方「輸出檔案」(必須為 .dsf); 停止時會向引擎傳送 'q' 正常收尾 (與 GTK 版相同)</translation>
    </message>
    <message>
        <source>开始录音</source>
        <translation>開始錄音</translation>
    </message>
    <message>
        <source>停止录音</source>
        <translation>停止錄音</translation>
    </message>
</context>
<context>
    <name>PerTrackDialog</name>
    <message>
        <source>逐轨预设 (每个文件可各用一套)</source>
        <translation>逐軌預設集 (每個檔案可各用一組)</translation>
    </message>
    <message>
        <source>每行给一个文件挑一套预设; 「(用当前参数)」= 跟随主面板。
预设只换编码/DSP 参数 —— 输出目录/输出格式与标签仍按主面板。</source>
        <translation>每列為一個檔案選擇一組預設集; 「(使用目前參數)」= 依照主面板。
預設集只變更編碼/DSP 參數 —— 輸出資料夾/輸出格式與標籤仍依主面板設定。</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>預設集</translation>
    </message>
    <message>
        <source>(用当前参数)</source>
        <translation>(使用目前參數)</translation>
    </message>
    <message>
        <source>(预设目录里没有预设 —— 先在上面「母带预设」里保存一套)</source>
        <translation>(預設集資料夾中沒有預設集 —— 請先在上方「母帶預設集」儲存一組)</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>PresetManagerDialog</name>
    <message>
        <source>预设管理器</source>
        <translation>預設集管理員</translation>
    </message>
    <message>
        <source>预设为 JSON 文件 (与 GTK 版同目录同键名, 可互读)
写入目录: %1</source>
        <translation>預設集為 JSON 檔案 (與 GTK 版使用相同資料夾與鍵名, 可互相讀取)
寫入資料夾: %1</translation>
    </message>
    <message>
        <source>加载选中</source>
        <translation>載入選取項目</translation>
    </message>
    <message>
        <source>删除选中</source>
        <translation>刪除選取項目</translation>
    </message>
    <message>
        <source>保存当前为…</source>
        <translation>將目前設定另存為…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>預設集</translation>
    </message>
    <message>
        <source>无法读取: %1</source>
        <translation>無法讀取: %1</translation>
    </message>
    <message>
        <source>预设文件解析失败: %1</source>
        <translation>預設集檔案解析失敗: %1</translation>
    </message>
    <message>
        <source>预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>預設集含 %1 個本版未支援欄位, 已忽略</translation>
    </message>
    <message>
        <source>已加载预设: %1</source>
        <translation>已載入預設集: %1</translation>
    </message>
    <message>
        <source>删除预设</source>
        <translation>刪除預設集</translation>
    </message>
    <message>
        <source>确定删除预设 %1 ?</source>
        <translation>確定要刪除預設集 %1 嗎?</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>刪除失敗: %1</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>另存新檔</translation>
    </message>
    <message>
        <source>预设名称:</source>
        <translation>預設集名稱:</translation>
    </message>
    <message>
        <source>预设 %1 已存在, 覆盖?</source>
        <translation>預設集 %1 已存在, 要覆寫嗎?</translation>
    </message>
    <message>
        <source>预设名称无效: %1</source>
        <translation>預設集名稱無效: %1</translation>
    </message>
    <message>
        <source>保存失败: %1</source>
        <translation>儲存失敗: %1</translation>
    </message>
    <message>
        <source>已保存预设: %1</source>
        <translation>已儲存預設集: %1</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>名称为空</source>
        <translation>名稱為空白</translation>
    </message>
    <message>
        <source>名称不能包含 %1 或控制字符</source>
        <translation>名稱不得包含 %1 或控制字元</translation>
    </message>
    <message>
        <source>名称不能以点结尾</source>
        <translation>名稱不得以句點結尾</translation>
    </message>
    <message>
        <source>名称 %1 是系统保留的设备名</source>
        <translation>名稱 %1 為系統保留的裝置名稱</translation>
    </message>
    <message>
        <source>文件过大 (%1 字节)</source>
        <translation>檔案過大 (%1 位元組)</translation>
    </message>
    <message>
        <source>顶层不是 JSON 对象</source>
        <translation>最上層不是 JSON 物件</translation>
    </message>
    <message>
        <source>无法读取文件</source>
        <translation>無法讀取檔案</translation>
    </message>
</context>
<context>
    <name>ReferencesGui</name>
    <message>
        <source>参考标准</source>
        <translation>參考標準</translation>
    </message>
</context>
<context>
    <name>RunControlsPanel</name>
    <message>
        <source>开始转换</source>
        <translation>開始轉換</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>清除記錄</translation>
    </message>
    <message>
        <source>详细日志 (--verbose)</source>
        <translation>詳細記錄 (--verbose)</translation>
    </message>
    <message>
        <source>保留引擎日志（退出不删）</source>
        <translation>保留引擎記錄（結束時不刪除）</translation>
    </message>
    <message>
        <source>关（默认）：引擎日志写在系统临时目录里的一次性目录中，退出即清；
开：写到 %1 下并保留，便于把日志发给厂商排障。</source>
        <translation>關（預設）：引擎記錄寫在系統暫存資料夾中的一次性資料夾，結束時即清除；
開：寫入 %1 下並保留，方便將記錄傳給廠商排除問題。</translation>
    </message>
    <message>
        <source>子进程: ZuvoEngine</source>
        <translation>子處理程序: ZuvoEngine</translation>
    </message>
    <message>
        <source>GUI 通过 QProcess 调用同目录/环境变量指定的 ZuvoEngine</source>
        <translation>GUI 透過 QProcess 呼叫程式所在資料夾或環境變數指定的 ZuvoEngine</translation>
    </message>
</context>
<context>
    <name>ThirdPartyGui</name>
    <message>
        <source>源码许可</source>
        <translation>原始碼授權</translation>
    </message>
</context>
<context>
    <name>UiLangRow</name>
    <message>
        <source>语言</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>界面语言。切换后程序会重启一次以便整套界面换语言。</source>
        <translation>介面語言。切換後程式會重新啟動一次, 讓整個介面換成新語言。</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>跟隨系統</translation>
    </message>
    <message>
        <source>界面语言已切换，程序将自动重启一次以生效。</source>
        <translation>介面語言已切換，程式將自動重新啟動一次以套用變更。</translation>
    </message>
</context>
<context>
    <name>UpdateUi</name>
    <message>
        <source>正在检查更新…</source>
        <translation>正在檢查更新…</translation>
    </message>
    <message>
        <source>检查更新</source>
        <translation>檢查更新</translation>
    </message>
    <message>
        <source>已是最新版本 (%1)。服务器上的最新版本为 %2。</source>
        <translation>已是最新版本 (%1)。伺服器上的最新版本為 %2。</translation>
    </message>
    <message>
        <source>检查更新失败：</source>
        <translation>檢查更新失敗：</translation>
    </message>
    <message>
        <source>发现新版本 %1（当前 %2）。</source>
        <translation>發現新版本 %1（目前 %2）。</translation>
    </message>
    <message>
        <source>发布日期：%1</source>
        <translation>發行日期：%1</translation>
    </message>
    <message>
        <source>更新说明：%1</source>
        <translation>更新說明：%1</translation>
    </message>
    <message>
        <source>发现新版本</source>
        <translation>發現新版本</translation>
    </message>
    <message>
        <source>下载并更新</source>
        <translation>下載並更新</translation>
    </message>
    <message>
        <source>打开下载页</source>
        <translation>開啟下載頁面</translation>
    </message>
    <message>
        <source>稍后</source>
        <translation>稍後</translation>
    </message>
    <message>
        <source>正在下载更新…</source>
        <translation>正在下載更新…</translation>
    </message>
    <message>
        <source>下载更新</source>
        <translation>下載更新</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>程序现在退出。</source>
        <translation>程式即將結束。</translation>
    </message>
    <message>
        <source>更新失败</source>
        <translation>更新失敗</translation>
    </message>
</context>
<context>
    <name>pv::PreviewDialog</name>
    <message>
        <source>预览: %1</source>
        <translation>預覽: %1</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>頻譜</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>%1 — %2 Hz / %3 ch, 预览 %4 s (上限 30 s)</source>
        <translation>%1 — %2 Hz / %3 ch, 預覽 %4 s (上限 30 s)</translation>
    </message>
    <message>
        <source>该格式 (%1) 预览待后续 — 目前仅支持 WAV (DSD 解码属后续里程碑)</source>
        <translation>此格式 (%1) 的預覽尚待後續支援 — 目前僅支援 WAV (DSD 解碼屬於後續里程碑)</translation>
    </message>
    <message>
        <source>解码失败: %1</source>
        <translation>解碼失敗: %1</translation>
    </message>
</context>
</TS>