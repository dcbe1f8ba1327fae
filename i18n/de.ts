<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="zh_CN">
<context>
    <name>ConversionQueue</name>
    <message>
        <source>引擎日志: %1</source>
        <translation>Engine-Log: %1</translation>
    </message>
    <message>
        <source>(交给引擎默认)</source>
        <translation>(Engine-Standard)</translation>
    </message>
    <message>
        <source>待转换文件: %1 个</source>
        <translation>Zu konvertierende Dateien: %1</translation>
    </message>
    <message>
        <source>输出目录: %1 (命名模板: %2, 格式: %3)</source>
        <translation>Ausgabeordner: %1 (Benennungsvorlage: %2, Format: %3)</translation>
    </message>
    <message>
        <source>✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)</source>
        <translation>✗ Titel-Preset nicht lesbar, diese Datei verwendet die aktuellen Parameter: %1 (%2)</translation>
    </message>
    <message>
        <source>逐轨预设《%1》</source>
        <translation>Titel-Preset: %1</translation>
    </message>
    <message>
        <source>  预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>  Preset enthält %1 von dieser Version nicht unterstützte Felder, ignoriert</translation>
    </message>
    <message>
        <source>停止: 剩余 %1 个文件已跳过</source>
        <translation>Gestoppt: %1 verbleibende Datei(en) übersprungen</translation>
    </message>
    <message>
        <source>━━━ [%1/%2] 转换 %3</source>
        <translation>━━━ [%1/%2] Konvertiere %3</translation>
    </message>
    <message>
        <source>━━━ 转换 %1</source>
        <translation>━━━ Konvertiere %1</translation>
    </message>
    <message>
        <source>✗ 无法创建输出目录: %1</source>
        <translation>✗ Ausgabeordner kann nicht erstellt werden: %1</translation>
    </message>
    <message>
        <source>执行: %1 %2</source>
        <translation>Ausführen: %1 %2</translation>
    </message>
    <message>
        <source>转换会话: %1</source>
        <translation>Konvertierungssitzung: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>im Prozess (direkter Bibliotheksaufruf)</translation>
    </message>
    <message>
        <source>子进程(起 CLI)</source>
        <translation>Unterprozess (CLI)</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 — %1</source>
        <translation>Fehler: Engine kann nicht gestartet werden — %1</translation>
    </message>
    <message>
        <source>✓ %1 完成</source>
        <translation>✓ %1 fertig</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (未完成的文件已删除)</source>
        <translation>■ Gestoppt: %1 (unvollständige Datei gelöscht)</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (文件保留, 可能不完整)</source>
        <translation>■ Gestoppt: %1 (Datei behalten, evtl. unvollständig)</translation>
    </message>
    <message>
        <source>■ 已停止(强制结束进程): %1</source>
        <translation>■ Gestoppt (Prozess zwangsweise beendet): %1</translation>
    </message>
    <message>
        <source>✗ %1 异常退出 (崩溃/被终止)</source>
        <translation>✗ %1 abnormal beendet (abgestürzt/abgebrochen)</translation>
    </message>
    <message>
        <source>✗ 退出码: %1</source>
        <translation>✗ Exit-Code: %1</translation>
    </message>
    <message>
        <source>── 引擎日志 (末尾 %1 行): %2 ──</source>
        <translation>── Engine-Log (letzte %1 Zeilen): %2 ──</translation>
    </message>
    <message>
        <source>
全部完成: %1 OK</source>
        <translation>
Alles fertig: %1 OK</translation>
    </message>
    <message>
        <source>
完成: %1 OK, %2 失败</source>
        <translation>
Fertig: %1 OK, %2 fehlgeschlagen</translation>
    </message>
    <message>
        <source>转换已停止</source>
        <translation>Konvertierung gestoppt</translation>
    </message>
    <message>
        <source>当前没有运行的进程</source>
        <translation>Kein Prozess aktiv</translation>
    </message>
    <message>
        <source>正在停止转换进程…</source>
        <translation>Konvertierung wird gestoppt…</translation>
    </message>
    <message>
        <source>终止当前转换进程…</source>
        <translation>Aktueller Konvertierungsprozess wird beendet…</translation>
    </message>
    <message>
        <source>正在通知引擎停止…</source>
        <translation>Engine wird zum Stoppen aufgefordert…</translation>
    </message>
    <message>
        <source>引擎 2 秒内没有确认停止 —— 仍在收尾(可再点一次, 或关闭程序)。</source>
        <translation>Die Engine hat das Stoppen nicht innerhalb von 2 Sekunden bestätigt — sie schließt noch ab (erneut klicken oder das Programm schließen).</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[Steuerung] %1</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但没有写出输出文件 %2</source>
        <translation>✗ %1: Engine meldet Abschluss, aber es wurde keine Ausgabedatei geschrieben: %2</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件 %2 没有被写过 (还是旧的)</source>
        <translation>✗ %1: Engine meldet Abschluss, aber die Ausgabedatei %2 wurde nicht geschrieben (noch die alte)</translation>
    </message>
    <message>
        <source>文件是空的</source>
        <translation>Datei ist leer</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2), 已删除: %3</source>
        <translation>✗ %1: Engine meldet Abschluss, aber die Ausgabedatei ist nicht lesbar (%2), gelöscht: %3</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2): %3</source>
        <translation>✗ %1: Engine meldet Abschluss, aber die Ausgabedatei ist nicht lesbar (%2): %3</translation>
    </message>
    <message>
        <source> …(这一行太长, 后面 %1 个字符没有显示)</source>
        <translation> …(Zeile zu lang, %1 weitere Zeichen nicht angezeigt)</translation>
    </message>
    <message>
        <source>不是 DSF 文件</source>
        <translation>Keine DSF-Datei</translation>
    </message>
    <message>
        <source>DSF 头里的文件长度与实际不符 (文件不完整)</source>
        <translation>Dateilänge im DSF-Header stimmt nicht mit der tatsächlichen überein (Datei unvollständig)</translation>
    </message>
    <message>
        <source>DSF 格式块不对</source>
        <translation>DSF-Format-Chunk ungültig</translation>
    </message>
    <message>
        <source>DSF 数据块不对</source>
        <translation>DSF-Daten-Chunk ungültig</translation>
    </message>
    <message>
        <source>DSF 元数据位置不对</source>
        <translation>DSF-Metadatenposition ungültig</translation>
    </message>
    <message>
        <source>不是 DSDIFF 文件</source>
        <translation>Keine DSDIFF-Datei</translation>
    </message>
    <message>
        <source>DSDIFF 头里的长度与实际不符 (文件不完整)</source>
        <translation>Länge im DSDIFF-Header stimmt nicht mit der tatsächlichen überein (Datei unvollständig)</translation>
    </message>
    <message>
        <source>DSDIFF 块超出文件</source>
        <translation>DSDIFF-Chunk reicht über das Dateiende hinaus</translation>
    </message>
    <message>
        <source>DSDIFF 缺少 FVER/PROP/声音块</source>
        <translation>DSDIFF: FVER-/PROP-/Sound-Chunk fehlt</translation>
    </message>
    <message>
        <source>不是 WAV 文件</source>
        <translation>Keine WAV-Datei</translation>
    </message>
    <message>
        <source>RF64 的 ds64 块不对</source>
        <translation>ds64-Chunk in RF64 ungültig</translation>
    </message>
    <message>
        <source>WAV 缺少格式块</source>
        <translation>WAV: Format-Chunk fehlt</translation>
    </message>
    <message>
        <source>WAV 数据块超出文件 (文件不完整)</source>
        <translation>WAV-Daten-Chunk reicht über das Dateiende hinaus (Datei unvollständig)</translation>
    </message>
    <message>
        <source>WAV 格式块不对</source>
        <translation>WAV-Format-Chunk ungültig</translation>
    </message>
    <message>
        <source>WAV 缺少数据块</source>
        <translation>WAV: Daten-Chunk fehlt</translation>
    </message>
    <message>
        <source>不是 W64 文件</source>
        <translation>Keine W64-Datei</translation>
    </message>
    <message>
        <source>W64 块超出文件 (文件不完整)</source>
        <translation>W64-Chunk reicht über das Dateiende hinaus (Datei unvollständig)</translation>
    </message>
    <message>
        <source>W64 缺少格式块</source>
        <translation>W64: Format-Chunk fehlt</translation>
    </message>
    <message>
        <source>W64 缺少数据块</source>
        <translation>W64: Daten-Chunk fehlt</translation>
    </message>
    <message>
        <source>不是 FLAC 文件</source>
        <translation>Keine FLAC-Datei</translation>
    </message>
    <message>
        <source>FLAC 缺少 STREAMINFO</source>
        <translation>FLAC: STREAMINFO fehlt</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Kann nicht geöffnet werden</translation>
    </message>
</context>
<context>
    <name>EngineSession</name>
    <message>
        <source>进程内会话起不来 (rc=%1)</source>
        <translation>Sitzung im Prozess konnte nicht starten (rc=%1)</translation>
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
        <translation>Dateien hinzufügen…</translation>
    </message>
    <message>
        <source>添加目录…</source>
        <translation>Ordner hinzufügen…</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>Auswahl entfernen</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>支持拖入音频文件或文件夹</source>
        <translation>Audiodateien oder Ordner hierher ziehen</translation>
    </message>
    <message>
        <source>输出 .dsf / .dff 文件</source>
        <translation>.dsf-/.dff-Datei ausgeben</translation>
    </message>
    <message>
        <source>浏览…</source>
        <translation>Durchsuchen…</translation>
    </message>
    <message>
        <source>输出文件:</source>
        <translation>Ausgabedatei:</translation>
    </message>
    <message>
        <source>留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名</source>
        <translation>Leer = obige Ausgabedatei verwenden; ausgefüllt = Ausgabename jeder Eingabe aus der Benennungsvorlage</translation>
    </message>
    <message>
        <source>批量输出: 所有输入写进这个目录, 文件名由下面的命名模板算</source>
        <translation>Stapelausgabe: alle Eingaben landen in diesem Ordner, die Dateinamen ergeben sich aus der Vorlage unten</translation>
    </message>
    <message>
        <source>浏览目录…</source>
        <translation>Ordner wählen…</translation>
    </message>
    <message>
        <source>输出目录:</source>
        <translation>Ausgabeordner:</translation>
    </message>
    <message>
        <source>输出目录模式下每个文件的扩展名 (引擎按扩展名认格式)</source>
        <translation>Dateiendung im Ausgabeordner-Modus (die Engine erkennt das Format an der Endung)</translation>
    </message>
    <message>
        <source>变量: {input} 输入文件名  {ext} 输出格式  {track} / {track:02} 队列序号  {artist} {title} 界面字段
留空 = {input}; 变量没有值时回退用输入文件名; 模板里可以带子目录</source>
        <translation>Variablen: {input} Name der Eingabedatei  {ext} Ausgabeformat  {track} / {track:02} Position in der Warteschlange  {artist} {title} Felder der Oberfläche
Leer = {input}; Variablen ohne Wert fallen auf den Eingabedateinamen zurück; Unterordner in der Vorlage sind möglich</translation>
    </message>
    <message>
        <source>输出格式:</source>
        <translation>Ausgabeformat:</translation>
    </message>
    <message>
        <source>命名模板:</source>
        <translation>Benennungsvorlage:</translation>
    </message>
    <message>
        <source>标签: DFF→COMT, DSF→ID3</source>
        <translation>Tags: DFF→COMT, DSF→ID3</translation>
    </message>
    <message>
        <source>0 = 不写曲目号 (引擎只接受 1..998)</source>
        <translation>0 = keine Titelnummer (die Engine akzeptiert nur 1..998)</translation>
    </message>
    <message>
        <source>写入标签的说明文字</source>
        <translation>Kommentartext für das Tag</translation>
    </message>
    <message>
        <source>从输入文件读取标签</source>
        <translation>Tags aus Eingabedatei lesen</translation>
    </message>
    <message>
        <source>艺术家:</source>
        <translation>Interpret:</translation>
    </message>
    <message>
        <source>标题:</source>
        <translation>Titel:</translation>
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
        <translation>Jahr:</translation>
    </message>
    <message>
        <source>曲目号:</source>
        <translation>Titelnr.:</translation>
    </message>
    <message>
        <source>备注:</source>
        <translation>Kommentar:</translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>%1 Datei(en)</translation>
    </message>
    <message>
        <source>音频文件 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;所有文件 (*)</source>
        <translation>Audiodateien (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>选择输入文件</source>
        <translation>Eingabedateien wählen</translation>
    </message>
    <message>
        <source>选择目录</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>PCM 音频 (*.wav *.w64 *.flac);;所有文件 (*)</source>
        <translation>PCM-Audio (*.wav *.w64 *.flac);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>DSDIFF (*.dff);;DSD Stream (*.dsf);;所有文件 (*)</source>
        <translation>DSDIFF (*.dff);;DSD Stream (*.dsf);;Alle Dateien (*)</translation>
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
        <translation>Ausgabedatei wählen</translation>
    </message>
    <message>
        <source>选择输出目录</source>
        <translation>Ausgabeordner wählen</translation>
    </message>
    <message>
        <source>波形/频谱预览…</source>
        <translation>Wellenform-/Spektrogramm-Vorschau…</translation>
    </message>
    <message>
        <source>逐轨预设…</source>
        <translation>Titel-Presets…</translation>
    </message>
    <message>
        <source>给队列里每个文件单独指定一套预设
预设只换编码/DSP 参数; 输出目录/输出格式与标签仍按面板</source>
        <translation>Jeder Datei in der Warteschlange ein eigenes Preset zuweisen
Ein Preset ändert nur Kodier-/DSP-Parameter; Ausgabeordner/-format und Tags kommen weiterhin aus dem Panel</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>开始转换</source>
        <translation>Konvertierung starten</translation>
    </message>
    <message>
        <source>Zuvo Audio Suite — 音频转换工具</source>
        <translation>Zuvo Audio Suite — Audio-Konverter</translation>
    </message>
    <message>
        <source>设置输出文件: %1</source>
        <translation>Ausgabedatei festgelegt: %1</translation>
    </message>
    <message>
        <source>目录中没有音频文件</source>
        <translation>Keine Audiodateien in diesem Ordner</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改文件列表</source>
        <translation>Während der Konvertierung kann die Dateiliste nicht geändert werden</translation>
    </message>
    <message>
        <source>找到 ZuvoEngine (音频转换引擎): %1</source>
        <translation>ZuvoEngine (Audio-Konvertierungs-Engine) gefunden: %1</translation>
    </message>
    <message>
        <source>警告: 未找到 ZuvoEngine — 转换功能不可用。请将其放在程序同目录、或加入 PATH。</source>
        <translation>Warnung: ZuvoEngine nicht gefunden — Konvertierung nicht verfügbar. Legen Sie sie in den Programmordner oder fügen Sie sie zu PATH hinzu.</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine</source>
        <translation>ZuvoEngine nicht gefunden</translation>
    </message>
    <message>
        <source>已添加 %1 个文件</source>
        <translation>%1 Datei(en) hinzugefügt</translation>
    </message>
    <message>
        <source>已跳过 %1 个重复文件</source>
        <translation>%1 doppelte Datei(en) übersprungen</translation>
    </message>
    <message>
        <source>转换完成</source>
        <translation>Konvertierung abgeschlossen</translation>
    </message>
    <message>
        <source>转换 %1 个文件</source>
        <translation>%1 Datei(en) konvertiert</translation>
    </message>
    <message>
        <source>转换 %1 个文件, %2 个失败</source>
        <translation>%1 Datei(en) konvertiert, %2 fehlgeschlagen</translation>
    </message>
    <message>
        <source>打开输出目录</source>
        <translation>Ausgabeordner öffnen</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>AUTORUN 参数不完整</source>
        <translation>AUTORUN-Argument unvollständig</translation>
    </message>
    <message>
        <source>AUTORUN: %1 个输入 → %2</source>
        <translation>AUTORUN: %1 Eingabe(n) → %2</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>Ausgabeformat</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM) 的输出必须是 .wav 或 .flac</source>
        <translation>Im Umkehrmodus (PDM2PCM) muss die Ausgabe .wav oder .flac sein</translation>
    </message>
    <message>
        <source>DXD 输出只支持 .wav / .w64 / .flac (引擎按扩展名认容器)</source>
        <translation>DXD-Ausgabe unterstützt nur .wav / .w64 / .flac (die Engine erkennt den Container an der Endung)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>错误: DST 压缩仅支持 DFF 格式输出
请把输出格式/扩展名改为 .dff 或禁用 DST 压缩</source>
        <translation>Fehler: DST-Kompression unterstützt nur DFF-Ausgabe
Ändern Sie Ausgabeformat/-endung auf .dff oder deaktivieren Sie die DST-Kompression</translation>
    </message>
    <message>
        <source>输出文件必须是 .dsf 或 .dff 格式</source>
        <translation>Die Ausgabedatei muss .dsf oder .dff sein</translation>
    </message>
    <message>
        <source>转换中</source>
        <translation>Konvertierung läuft</translation>
    </message>
    <message>
        <source>已有转换任务正在进行中, 请等待完成。</source>
        <translation>Es läuft bereits eine Konvertierung, bitte warten Sie, bis sie abgeschlossen ist.</translation>
    </message>
    <message>
        <source>输入文件</source>
        <translation>Eingabedateien</translation>
    </message>
    <message>
        <source>请选择输入文件</source>
        <translation>Bitte Eingabedateien wählen</translation>
    </message>
    <message>
        <source>元数据</source>
        <translation>Metadaten</translation>
    </message>
    <message>
        <source>输出 .dff 必须填「艺术家」和「标题」两个值
(它们是 DFF 的 COMT 标签; 必填项, 不填不开始转换)</source>
        <translation>Eine .dff-Ausgabe erfordert „Interpret“ und „Titel“
(sie bilden das COMT-Tag der DFF-Datei; Pflichtfelder — ohne sie startet die Konvertierung nicht)</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>Taps</translation>
    </message>
    <message>
        <source>Taps 必须是偶数且不小于 512 (0 = 用引擎默认值)</source>
        <translation>Taps muss eine gerade Zahl und mindestens 512 sein (0 = Engine-Standard)</translation>
    </message>
    <message>
        <source>过渡带</source>
        <translation>Übergangsband</translation>
    </message>
    <message>
        <source>阻带截止必须大于通带截止 (否则过渡带为零/负, 引擎会拒绝)</source>
        <translation>Die Sperrbandgrenze muss über der Durchlassgrenze liegen (sonst ist das Übergangsband null/negativ und die Engine lehnt ab)</translation>
    </message>
    <message>
        <source>输出目录</source>
        <translation>Ausgabeordner</translation>
    </message>
    <message>
        <source>无法创建输出目录:
%1</source>
        <translation>Ausgabeordner kann nicht erstellt werden:
%1</translation>
    </message>
    <message>
        <source>输出文件</source>
        <translation>Ausgabedatei</translation>
    </message>
    <message>
        <source>请选择输出文件</source>
        <translation>Bitte Ausgabedatei wählen</translation>
    </message>
    <message>
        <source>噪声本底分析</source>
        <translation>Rauschteppich-Analyse</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「PDF 报告」开关</source>
        <translation>Die Rauschteppich-Analyse wirkt nur mit aktiviertem PDF-Bericht
Bitte die Option „PDF-Bericht“ aktivieren</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>Equalizer</translation>
    </message>
    <message>
        <source>启用了均衡器但没有有效频段
请添加至少一个频段 (中心频率 &gt; 0), 或禁用均衡器</source>
        <translation>Der Equalizer ist aktiviert, hat aber kein gültiges Band
Fügen Sie mindestens ein Band hinzu (Mittenfrequenz &gt; 0) oder deaktivieren Sie den Equalizer</translation>
    </message>
    <message>
        <source>引擎缺失</source>
        <translation>Engine fehlt</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine。请将其放在程序同目录、或加入 PATH,
也可设置环境变量 ZUVO_ENGINE_BIN 指向其完整路径。</source>
        <translation>ZuvoEngine nicht gefunden. Legen Sie sie in den Programmordner oder fügen Sie sie zu PATH hinzu,
oder setzen Sie die Umgebungsvariable ZUVO_ENGINE_BIN auf ihren vollständigen Pfad.</translation>
    </message>
    <message>
        <source>均衡器未启用</source>
        <translation>Equalizer nicht aktiviert</translation>
    </message>
    <message>
        <source>基本参数</source>
        <translation>Grundeinstellungen</translation>
    </message>
    <message>
        <source>滤波</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>空间与音调</source>
        <translation>Raum &amp;&amp; Klang</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>启用 DST 压缩模式</source>
        <translation>DST-Kompression aktiviert</translation>
    </message>
    <message>
        <source>禁用 DST 压缩模式</source>
        <translation>DST-Kompression deaktiviert</translation>
    </message>
    <message>
        <source>DST 压缩</source>
        <translation>DST-Kompression</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出格式将自动更改为 DFF</source>
        <translation>DST-Kompression unterstützt nur das DFF-Format
Das Ausgabeformat wird automatisch auf DFF umgestellt</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出文件将自动更改为 DFF 格式</source>
        <translation>DST-Kompression unterstützt nur das DFF-Format
Die Ausgabedatei wird automatisch auf DFF umgestellt</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改参数</source>
        <translation>Während der Konvertierung können Parameter nicht geändert werden</translation>
    </message>
    <message>
        <source>已加载母带预设: %1</source>
        <translation>Mastering-Preset geladen: %1</translation>
    </message>
    <message>
        <source>均衡器: %1 行无效 (需中心频率&gt;0) 已被跳过</source>
        <translation>Equalizer: %1 ungültige Zeile(n) (Mittenfrequenz muss &gt; 0 sein) übersprungen</translation>
    </message>
    <message>
        <source>注意: 无法向引擎查询它不支持的选项, 直接开始转换</source>
        <translation>Hinweis: Nicht unterstützte Optionen konnten nicht bei der Engine abgefragt werden, Konvertierung startet trotzdem</translation>
    </message>
    <message>
        <source>转换未开始: 当前引擎构建不支持这些已选择的选项: %1</source>
        <translation>Konvertierung nicht gestartet: Dieser Engine-Build unterstützt folgende gewählte Optionen nicht: %1</translation>
    </message>
    <message>
        <source>引擎不支持的选项</source>
        <translation>Von der Engine nicht unterstützte Optionen</translation>
    </message>
    <message>
        <source>当前引擎构建不支持下列已选择的选项, 转换不会开始:
%1

请在参数页关闭它们后再开始 (预设里可以保留)。</source>
        <translation>Dieser Engine-Build unterstützt die folgenden gewählten Optionen nicht, die Konvertierung startet daher nicht:
%1

Deaktivieren Sie sie auf den Parameterseiten und starten Sie erneut (in Presets dürfen sie bleiben).</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改预设</source>
        <translation>Während der Konvertierung können Presets nicht geändert werden</translation>
    </message>
    <message>
        <source>转换进行中, 不能改逐轨预设。</source>
        <translation>Konvertierung läuft — Titel-Presets können jetzt nicht geändert werden.</translation>
    </message>
    <message>
        <source>请先添加输入文件</source>
        <translation>Bitte zuerst Eingabedateien hinzufügen</translation>
    </message>
    <message>
        <source>逐轨预设: 已全部改回「用当前参数」</source>
        <translation>Titel-Presets: alle auf „aktuelle Parameter verwenden“ zurückgesetzt</translation>
    </message>
    <message>
        <source>逐轨预设: %1 个文件各用一套</source>
        <translation>Titel-Presets: %1 Datei(en) mit eigenem Preset</translation>
    </message>
    <message>
        <source>转换进行中, 不能预览</source>
        <translation>Während der Konvertierung ist keine Vorschau möglich</translation>
    </message>
    <message>
        <source>请先添加文件</source>
        <translation>Bitte zuerst Dateien hinzufügen</translation>
    </message>
    <message>
        <source>没有可预览的文件</source>
        <translation>Keine Datei für die Vorschau</translation>
    </message>
    <message>
        <source>单环 (NS, --order 9)</source>
        <translation>Einfachschleife (NS, --order 9)</translation>
    </message>
    <message>
        <source>古典</source>
        <translation>Klassik</translation>
    </message>
    <message>
        <source>古典: DSD-256, 131072 taps, 高带宽</source>
        <translation>Klassik: DSD-256, 131072 Taps, hohe Bandbreite</translation>
    </message>
    <message>
        <source>流行</source>
        <translation>Pop</translation>
    </message>
    <message>
        <source>流行: DSD-128, 65536 taps</source>
        <translation>Pop: DSD-128, 65536 Taps</translation>
    </message>
    <message>
        <source>爵士</source>
        <translation>Jazz</translation>
    </message>
    <message>
        <source>爵士: DSD-128, 65536 taps</source>
        <translation>Jazz: DSD-128, 65536 Taps</translation>
    </message>
    <message>
        <source>DSD 采样率:</source>
        <translation>DSD-Abtastrate:</translation>
    </message>
    <message>
        <source>Taps 数 (0=引擎默认):</source>
        <translation>Taps (0=Engine-Standard):</translation>
    </message>
    <message>
        <source>SOS cascade + error feedback, NS15 profile (引擎默认): 实测带内噪声比单环 NS9 低 11.4 dB</source>
        <translation>SOS-Kaskade + Fehlerrückkopplung, NS15-Profil (Engine-Standard): gemessen 11,4 dB weniger In-Band-Rauschen als Einfachschleife NS9</translation>
    </message>
    <message>
        <source>Chebyshev 多项式压缩 (可与 MASH 叠加)</source>
        <translation>Chebyshev-Polynomkompression (mit MASH kombinierbar)</translation>
    </message>
    <message>
        <source>调制器:</source>
        <translation>Modulator:</translation>
    </message>
    <message>
        <source>母带预设:</source>
        <translation>Mastering-Presets:</translation>
    </message>
    <message>
        <source>预设管理器…</source>
        <translation>Preset-Verwaltung…</translation>
    </message>
    <message>
        <source>DST 压缩 (仅 .dff 输出)</source>
        <translation>DST-Kompression (nur .dff-Ausgabe)</translation>
    </message>
    <message>
        <source>DXD 输出 (高解析 PCM)</source>
        <translation>DXD-Ausgabe (Hi-Res-PCM)</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM)</source>
        <translation>Umkehrmodus (PDM2PCM)</translation>
    </message>
    <message>
        <source>输入 DSD(DSF/DFF), 输出 PCM/WAV —— 与 PCM→PDM 无关</source>
        <translation>Eingabe DSD (DSF/DFF), Ausgabe PCM/WAV — unabhängig von PCM→PDM</translation>
    </message>
    <message>
        <source>DST 压缩等级 (0=关闭):</source>
        <translation>DST-Kompressionsstufe (0=aus):</translation>
    </message>
    <message>
        <source>高带宽模式</source>
        <translation>Modus hohe Bandbreite</translation>
    </message>
    <message>
        <source>OpenCL 加速 (GPU)</source>
        <translation>OpenCL-Beschleunigung (GPU)</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 OpenCL 支持</source>
        <translation>Dieser Engine-Build wurde ohne OpenCL-Unterstützung kompiliert</translation>
    </message>
    <message>
        <source>添加 PDF 报告</source>
        <translation>PDF-Bericht hinzufügen</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 PDF 报告 (需要 rsvg+cairo)</source>
        <translation>Dieser Engine-Build enthält keinen PDF-Bericht (benötigt rsvg+cairo)</translation>
    </message>
    <message>
        <source>只影响 PDF 报告内容, 不改音频比特流 (实测: 开关它 dsf 逐字节相同)</source>
        <translation>Betrifft nur den Inhalt des PDF-Berichts, nicht den Audio-Bitstrom (gemessen: die dsf ist mit und ohne Byte für Byte gleich)</translation>
    </message>
    <message>
        <source>分析报告 (--report)</source>
        <translation>Analysebericht (--report)</translation>
    </message>
    <message>
        <source>噪声本底分析 (需 PDF 报告)</source>
        <translation>Rauschteppich-Analyse (benötigt PDF-Bericht)</translation>
    </message>
    <message>
        <source>降噪: 关</source>
        <translation>Entrauschen: Aus</translation>
    </message>
    <message>
        <source>降噪: 轻 (-12dB 地板, 最保真)</source>
        <translation>Entrauschen: Leicht (Boden -12dB, am klangtreuesten)</translation>
    </message>
    <message>
        <source>降噪: 标准 (-18dB 地板)</source>
        <translation>Entrauschen: Standard (Boden -18dB)</translation>
    </message>
    <message>
        <source>降噪: 强 (感知加权地板, 最深)</source>
        <translation>Entrauschen: Stark (gehörrichtig gewichteter Boden, am stärksten)</translation>
    </message>
    <message>
        <source>保留乐器泛音 (降噪时保住泛音与泛音列)</source>
        <translation>Obertöne der Instrumente erhalten (beim Entrauschen)</translation>
    </message>
    <message>
        <source>报告里加峰值 (--peak)</source>
        <translation>Spitzenpegel in den Bericht aufnehmen (--peak)</translation>
    </message>
    <message>
        <source>报告里加 RMS (--rms)</source>
        <translation>RMS in den Bericht aufnehmen (--rms)</translation>
    </message>
    <message>
        <source>报告里不要动态范围一节 (--no-dynamic-range)</source>
        <translation>Abschnitt Dynamikumfang im Bericht weglassen (--no-dynamic-range)</translation>
    </message>
    <message>
        <source>输出模式</source>
        <translation>Ausgabemodus</translation>
    </message>
    <message>
        <source>带宽、加速与报告</source>
        <translation>Bandbreite, Beschleunigung &amp;&amp; Bericht</translation>
    </message>
    <message>
        <source>降噪与报告内容</source>
        <translation>Entrauschen &amp;&amp; Berichtsinhalt</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「添加 PDF 报告」</source>
        <translation>Die Rauschteppich-Analyse wirkt nur mit aktiviertem PDF-Bericht
Bitte „PDF-Bericht hinzufügen“ aktivieren</translation>
    </message>
    <message>
        <source>声道设置</source>
        <translation>Kanaleinstellungen</translation>
    </message>
    <message>
        <source>强制原始声道数</source>
        <translation>Originale Kanalzahl erzwingen</translation>
    </message>
    <message>
        <source>四声道模式 (需重置声道数=4)</source>
        <translation>Quad-Modus (erfordert Kanalzahl zurücksetzen = 4)</translation>
    </message>
    <message>
        <source>添加环绕声道</source>
        <translation>Surround-Kanäle hinzufügen</translation>
    </message>
    <message>
        <source>声道交换</source>
        <translation>Kanäle tauschen</translation>
    </message>
    <message>
        <source>重置声道数 (0=不动):</source>
        <translation>Kanalzahl zurücksetzen (0=unverändert):</translation>
    </message>
    <message>
        <source>规则</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>「强制原始声道数」优先: 勾选后重置声道数、四声道模式和添加环绕声道都不发给引擎。

四声道模式需要重置声道数为 4; 勾选时会自动设为 4。

「声道交换」交换前两个声道, 与其它选项可同时使用。</source>
        <translation>„Originale Kanalzahl erzwingen“ hat Vorrang: Ist es aktiviert, werden Kanalzahl zurücksetzen, Quad-Modus und Surround-Kanäle hinzufügen nicht an die Engine übergeben.

Der Quad-Modus erfordert eine zurückgesetzte Kanalzahl von 4; beim Aktivieren wird sie automatisch auf 4 gesetzt.

„Kanäle tauschen“ vertauscht die ersten beiden Kanäle und ist mit den anderen Optionen kombinierbar.</translation>
    </message>
    <message>
        <source>四声道模式: 重置声道数已自动设为 4</source>
        <translation>Quad-Modus: Kanalzahl automatisch auf 4 gesetzt</translation>
    </message>
    <message>
        <source>启用均衡器 (EQ)</source>
        <translation>Equalizer aktivieren (EQ)</translation>
    </message>
    <message>
        <source>添加频段</source>
        <translation>Band hinzufügen</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>Auswahl entfernen</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>中心频率 (Hz)</source>
        <translation>Mittenfrequenz (Hz)</translation>
    </message>
    <message>
        <source>增益 (dB)</source>
        <translation>Verstärkung (dB)</translation>
    </message>
    <message>
        <source>带宽</source>
        <translation>Bandbreite</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>预览按 44.1 kHz 估算 — 引擎槽位: 首段低架, 满 10 段时末段高架</source>
        <translation>Vorschau bei 44,1 kHz geschätzt — Engine-Slots: erstes Band Low-Shelf, bei vollen 10 Bändern letztes Band High-Shelf</translation>
    </message>
    <message>
        <source>启用均衡器 (--eq 频段 f,g,bw{单位})</source>
        <translation>Equalizer aktiviert (--eq Band f,g,bw{Einheit})</translation>
    </message>
    <message>
        <source>禁用均衡器</source>
        <translation>Equalizer deaktiviert</translation>
    </message>
    <message>
        <source>窗口法 (Window Method)</source>
        <translation>Fenstermethode</translation>
    </message>
    <message>
        <source>最小相位 (Min-Phase)</source>
        <translation>Minimalphasig</translation>
    </message>
    <message>
        <source>应用预失真处理</source>
        <translation>Vorverzerrung anwenden</translation>
    </message>
    <message>
        <source>算法:</source>
        <translation>Algorithmus:</translation>
    </message>
    <message>
        <source>滤波类型:</source>
        <translation>Filtertyp:</translation>
    </message>
    <message>
        <source>窗口法参数</source>
        <translation>Parameter der Fenstermethode</translation>
    </message>
    <message>
        <source>窗口类型:</source>
        <translation>Fenstertyp:</translation>
    </message>
    <message>
        <source>Remez 算法参数</source>
        <translation>Parameter des Remez-Algorithmus</translation>
    </message>
    <message>
        <source>最大迭代次数:</source>
        <translation>Max. Iterationen:</translation>
    </message>
    <message>
        <source>网格密度:</source>
        <translation>Gitterdichte:</translation>
    </message>
    <message>
        <source>停止带衰减 (A_stop)</source>
        <translation>Sperrbanddämpfung (A_stop)</translation>
    </message>
    <message>
        <source>0=不发</source>
        <translation>0=aus</translation>
    </message>
    <message>
        <source>停止带衰减 (dB):</source>
        <translation>Sperrbanddämpfung (dB):</translation>
    </message>
    <message>
        <source>过渡带 (截止频率)</source>
        <translation>Übergangsband (Grenzfrequenzen)</translation>
    </message>
    <message>
        <source>通带截止 (Hz):</source>
        <translation>Durchlassgrenze (Hz):</translation>
    </message>
    <message>
        <source>阻带截止 (Hz):</source>
        <translation>Sperrbandgrenze (Hz):</translation>
    </message>
    <message>
        <source>增益 (ABS)</source>
        <translation>Verstärkung (ABS)</translation>
    </message>
    <message>
        <source>绝对值增益:</source>
        <translation>Absolute Verstärkung:</translation>
    </message>
    <message>
        <source>HRTF 空间音频</source>
        <translation>HRTF-Raumklang</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf)</source>
        <translation>HRTF-Raumklang aktivieren (--hrtf)</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf &lt;mono|ms|stereo&gt;)</source>
        <translation>HRTF-Raumklang aktiviert (--hrtf &lt;mono|ms|stereo&gt;)</translation>
    </message>
    <message>
        <source>禁用 HRTF 空间音频</source>
        <translation>HRTF-Raumklang deaktiviert</translation>
    </message>
    <message>
        <source>模式:</source>
        <translation>Modus:</translation>
    </message>
    <message>
        <source>干湿比 (dry/wet):</source>
        <translation>Dry/Wet-Mischung:</translation>
    </message>
    <message>
        <source>侧向扩散比:</source>
        <translation>Seitliche Diffusion:</translation>
    </message>
    <message>
        <source>深度 (+1前 / 0耳位 / -1后):</source>
        <translation>Tiefe (+1 vorn / 0 Ohrhöhe / -1 hinten):</translation>
    </message>
    <message>
        <source>使用引擎内置 HRIR; 不提供自定义 .sofa 文件</source>
        <translation>Verwendet die integrierte HRIR der Engine; eigene .sofa-Dateien werden nicht unterstützt</translation>
    </message>
    <message>
        <source>环绕</source>
        <translation>Surround</translation>
    </message>
    <message>
        <source>启用环绕 (--surround)</source>
        <translation>Surround aktivieren (--surround)</translation>
    </message>
    <message>
        <source>启用环绕 (--surround delayMs mix side balance)</source>
        <translation>Surround aktiviert (--surround delayMs mix side balance)</translation>
    </message>
    <message>
        <source>禁用环绕</source>
        <translation>Surround deaktiviert</translation>
    </message>
    <message>
        <source>侧向 (side)</source>
        <translation>Seitlich (side)</translation>
    </message>
    <message>
        <source>延迟 (ms):</source>
        <translation>Verzögerung (ms):</translation>
    </message>
    <message>
        <source>混合 (%):</source>
        <translation>Mischung (%):</translation>
    </message>
    <message>
        <source>平衡 (-100~100, 0=不发):</source>
        <translation>Balance (-100~100, 0=aus):</translation>
    </message>
    <message>
        <source>音调 (shelving)</source>
        <translation>Klang (Shelving)</translation>
    </message>
    <message>
        <source>低音 (dB):</source>
        <translation>Bässe (dB):</translation>
    </message>
    <message>
        <source>高音 (dB):</source>
        <translation>Höhen (dB):</translation>
    </message>
    <message>
        <source>EQ 前置衰减 (dB):</source>
        <translation>EQ-Vorabsenkung (dB):</translation>
    </message>
    <message>
        <source>启用 DSRE 数字频谱共振增强 (--dsre)</source>
        <translation>DSRE (digitale spektrale Resonanzverstärkung) aktivieren (--dsre)</translation>
    </message>
    <message>
        <source>启用 DSRE (--dsre mix)</source>
        <translation>DSRE aktiviert (--dsre mix)</translation>
    </message>
    <message>
        <source>禁用 DSRE</source>
        <translation>DSRE deaktiviert</translation>
    </message>
    <message>
        <source>干湿比 (0=dry, 1=全效果):</source>
        <translation>Dry/Wet (0=dry, 1=voller Effekt):</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>AUTORUN 预设: %1</source>
        <translation>AUTORUN-Preset: %1</translation>
    </message>
    <message>
        <source>✗ AUTORUN 预设无法使用: %1 (%2)</source>
        <translation>✗ AUTORUN-Preset nicht verwendbar: %1 (%2)</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_PLAYTEST 指定的文件不存在: %1</source>
        <translation>Fehler: Die in ZUVO_AI_PLAYTEST angegebene Datei existiert nicht: %1</translation>
    </message>
    <message>
        <source>设备名直接传给 ZuvoPlayer -dev</source>
        <translation>Gerätename wird direkt an ZuvoPlayer -dev übergeben</translation>
    </message>
    <message>
        <source>DAC 设备:</source>
        <translation>DAC-Gerät:</translation>
    </message>
    <message>
        <source>流式播放模式 (-stream)</source>
        <translation>Streaming-Wiedergabe (-stream)</translation>
    </message>
    <message>
        <source>播放源 = 上方「输出文件」 (镜像 GTK: 播放刚转换的 DSF/DFF)</source>
        <translation>Wiedergabequelle = „Ausgabedatei“ oben (wie in der GTK-Version: spielt die gerade konvertierte DSF/DFF ab)</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>Wiedergabe stoppen</translation>
    </message>
    <message>
        <source>播放正在进行中, 请先停止当前播放</source>
        <translation>Wiedergabe läuft bereits, bitte zuerst stoppen</translation>
    </message>
    <message>
        <source>错误: 播放文件不存在或无法读取: %1</source>
        <translation>Fehler: Wiedergabedatei fehlt oder ist nicht lesbar: %1</translation>
    </message>
    <message>
        <source>(未设置输出文件)</source>
        <translation>(keine Ausgabedatei festgelegt)</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoPlayer — 请放在程序同目录或加入 PATH (或设 ZUVO_PLAYER_BIN)</source>
        <translation>Fehler: ZuvoPlayer nicht gefunden — in den Programmordner legen oder zu PATH hinzufügen (oder ZUVO_PLAYER_BIN setzen)</translation>
    </message>
    <message>
        <source>启动播放器: %1 %2</source>
        <translation>Player wird gestartet: %1 %2</translation>
    </message>
    <message>
        <source>开始播放: %1</source>
        <translation>Wiedergabe: %1</translation>
    </message>
    <message>
        <source>试听会话: %1</source>
        <translation>Wiedergabesitzung: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>im Prozess (direkter Bibliotheksaufruf)</translation>
    </message>
    <message>
        <source>子进程</source>
        <translation>Unterprozess</translation>
    </message>
    <message>
        <source>错误: 无法启动播放器 — %1</source>
        <translation>Fehler: Player kann nicht gestartet werden — %1</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Wiedergabe beendet</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Wiedergabe gestoppt</translation>
    </message>
    <message>
        <source>播放器异常退出, 代码: %1</source>
        <translation>Player abnormal beendet, Code: %1</translation>
    </message>
    <message>
        <source>当前没有播放任务</source>
        <translation>Keine laufende Wiedergabe</translation>
    </message>
    <message>
        <source>正在停止播放器…</source>
        <translation>Player wird gestoppt…</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[Steuerung] %1</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾 (本次在进程内运行, 无法强制结束)</source>
        <translation>Player hat nicht innerhalb von %1 s abgeschlossen (läuft diesmal im Prozess, kann nicht zwangsweise beendet werden)</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾, 强制结束</source>
        <translation>Player hat nicht innerhalb von %1 s abgeschlossen, wird zwangsweise beendet</translation>
    </message>
    <message>
        <source>仍无响应, 强制结束播放器</source>
        <translation>Weiterhin keine Reaktion, Player wird zwangsweise beendet</translation>
    </message>
    <message>
        <source>检查更新…</source>
        <translation>Nach Updates suchen…</translation>
    </message>
    <message>
        <source>关于/诊断…</source>
        <translation>Info/Diagnose…</translation>
    </message>
    <message>
        <source>看引擎版本 / 列音频设备 / 显示引擎帮助</source>
        <translation>Engine-Version anzeigen / Audiogeräte auflisten / Engine-Hilfe anzeigen</translation>
    </message>
    <message>
        <source>源码许可…</source>
        <translation>Quelllizenzen…</translation>
    </message>
    <message>
        <source>参考标准…</source>
        <translation>Referenzstandards…</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_RECTEST 需要给一个输出 .dsf 路径</source>
        <translation>Fehler: ZUVO_AI_RECTEST benötigt einen Ausgabepfad (.dsf)</translation>
    </message>
    <message>
        <source>(引擎没有输出)</source>
        <translation>(keine Ausgabe der Engine)</translation>
    </message>
    <message>
        <source>$ %1

%2

退出码 = %3</source>
        <translation>$ %1

%2

Exit-Code = %3</translation>
    </message>
    <message>
        <source>本构建的引擎没有录音后端 (见录音页的状态行): 不能开始录音</source>
        <translation>Die Engine dieses Builds hat kein Aufnahme-Backend (siehe Statuszeile im Tab „Aufnahme“): Aufnahme nicht möglich</translation>
    </message>
    <message>
        <source>录音正在进行中</source>
        <translation>Aufnahme läuft bereits</translation>
    </message>
    <message>
        <source>录音</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>请先在上方「输出文件」设置录音保存路径</source>
        <translation>Bitte zuerst oben unter „Ausgabedatei“ den Speicherpfad der Aufnahme festlegen</translation>
    </message>
    <message>
        <source>录音输出文件必须是 .dsf 格式</source>
        <translation>Die Ausgabedatei der Aufnahme muss im Format .dsf sein</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoEngine (录音需要引擎录音支持)</source>
        <translation>Fehler: ZuvoEngine nicht gefunden (Aufnahme erfordert Aufnahmeunterstützung der Engine)</translation>
    </message>
    <message>
        <source>录音命令: %1 %2</source>
        <translation>Aufnahmebefehl: %1 %2</translation>
    </message>
    <message>
        <source>开始录音 → %1</source>
        <translation>Aufnahme gestartet → %1</translation>
    </message>
    <message>
        <source>提示: 停止时发送 'q' 让引擎优雅收尾 (先停止处理 PCM 再写 DSF)</source>
        <translation>Hinweis: Beim Stoppen wird 'q' gesendet, damit die Engine sauber abschließt (erst PCM-Verarbeitung beenden, dann DSF schreiben)</translation>
    </message>
    <message>
        <source>录音中…</source>
        <translation>Aufnahme läuft…</translation>
    </message>
    <message>
        <source>录音会话: %1</source>
        <translation>Aufnahmesitzung: %1</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 (录音) — %1</source>
        <translation>Fehler: Engine kann nicht gestartet werden (Aufnahme) — %1</translation>
    </message>
    <message>
        <source>当前没有录音任务</source>
        <translation>Keine laufende Aufnahme</translation>
    </message>
    <message>
        <source>发送 'q' 至引擎 — 等待优雅收尾 (写 DSF 后自动退出)…</source>
        <translation>'q' an die Engine gesendet — warte auf sauberen Abschluss (DSF schreiben, dann Beenden)…</translation>
    </message>
    <message>
        <source>录音引擎已不在运行</source>
        <translation>Die Aufnahme-Engine läuft nicht mehr</translation>
    </message>
    <message>
        <source>引擎未在 12s 内收尾 (本次在进程内进行, 无法强制结束)</source>
        <translation>Die Engine hat nicht innerhalb von 12 s abgeschlossen (dieser Lauf ist prozessintern und kann nicht erzwungen beendet werden)</translation>
    </message>
    <message>
        <source>引擎未在 12s 内退出, 强制终止</source>
        <translation>Die Engine wurde nicht innerhalb von 12 s beendet, erzwungener Abbruch</translation>
    </message>
    <message>
        <source>录音保存: %1</source>
        <translation>Aufnahme gespeichert: %1</translation>
    </message>
    <message>
        <source>录音失败, 退出码: %1</source>
        <translation>Aufnahme fehlgeschlagen, Exit-Code: %1</translation>
    </message>
    <message>
        <source>录音进程异常退出 (崩溃/被终止)</source>
        <translation>Aufnahmeprozess unerwartet beendet (Absturz/abgebrochen)</translation>
    </message>
    <message>
        <source>录音后端: 可用 — %1</source>
        <translation>Aufnahme-Backend: verfügbar — %1</translation>
    </message>
    <message>
        <source>录音后端: 不可用 — %1</source>
        <translation>Aufnahme-Backend: nicht verfügbar — %1</translation>
    </message>
    <message>
        <source>%1 个输入设备(已列在日志里)</source>
        <translation>Eingabegeräte: %1 (im Log aufgelistet)</translation>
    </message>
    <message>
        <source>引擎退出码 = %1</source>
        <translation>Engine-Exit-Code = %1</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请放在程序同目录、加入 PATH, 或设 ZUVO_ENGINE_BIN</source>
        <translation>ZuvoEngine nicht gefunden — in den Programmordner legen, zu PATH hinzufügen oder ZUVO_ENGINE_BIN setzen</translation>
    </message>
    <message>
        <source>探测 30s 无响应, 已终止</source>
        <translation>Prüfung 30 s ohne Antwort, abgebrochen</translation>
    </message>
    <message>
        <source>关于 / 诊断</source>
        <translation>Info / Diagnose</translation>
    </message>
    <message>
        <source>ZuvoAudioTools — ZuvoEngine 的转码前端 (QProcess 子进程)
引擎路径: %1
注: 引擎的帮助/版本类子命令本来就以非 0 退出码收尾, 属既有行为。
探测是异步的: 点完可以继续操作界面, 结果到了会显示在下面。</source>
        <translation>ZuvoAudioTools — Konvertierungs-Frontend für ZuvoEngine (QProcess-Unterprozess)
Engine-Pfad: %1
Hinweis: Die Hilfe-/Versions-Unterbefehle der Engine enden konstruktionsbedingt mit einem Exit-Code ungleich 0; das ist bekanntes Verhalten.
Die Prüfung läuft asynchron: Nach dem Klick können Sie weiterarbeiten, das Ergebnis erscheint unten.</translation>
    </message>
    <message>
        <source>(未找到)</source>
        <translation>(nicht gefunden)</translation>
    </message>
    <message>
        <source>点下面任一按钮看引擎的回答</source>
        <translation>Klicken Sie unten auf eine Schaltfläche, um die Antwort der Engine zu sehen</translation>
    </message>
    <message>
        <source>引擎版本 (--version)</source>
        <translation>Engine-Version (--version)</translation>
    </message>
    <message>
        <source>列出音频设备 (--list-devices)</source>
        <translation>Audiogeräte auflisten (--list-devices)</translation>
    </message>
    <message>
        <source>引擎帮助 (--help)</source>
        <translation>Engine-Hilfe (--help)</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请把它放在程序同目录、加入 PATH, 或设置环境变量 ZUVO_ENGINE_BIN。</source>
        <translation>ZuvoEngine nicht gefunden — legen Sie sie in den Programmordner, fügen Sie sie zu PATH hinzu oder setzen Sie die Umgebungsvariable ZUVO_ENGINE_BIN.</translation>
    </message>
    <message>
        <source>$ %1

运行中… (界面不冻, 可继续操作)
</source>
        <translation>$ %1

Läuft… (die Oberfläche bleibt bedienbar, Sie können weiterarbeiten)
</translation>
    </message>
    <message>
        <source>引擎启动失败: %1</source>
        <translation>Engine konnte nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>
引擎 30s 无响应, 已终止 (不进设备, 不会影响到正在跑的任务)。</source>
        <translation>
Die Engine hat 30 s nicht geantwortet und wurde beendet (kein Gerät geöffnet, laufende Aufgaben sind nicht betroffen).</translation>
    </message>
    <message>
        <source>录音后端: 未检测</source>
        <translation>Aufnahme-Backend: nicht geprüft</translation>
    </message>
    <message>
        <source>检测录音支持 / 列出输入设备</source>
        <translation>Aufnahmeunterstützung prüfen / Eingabegeräte auflisten</translation>
    </message>
    <message>
        <source>录音设备 (空=默认):</source>
        <translation>Aufnahmegerät (leer=Standard):</translation>
    </message>
    <message>
        <source>声道数 (0=自动):</source>
        <translation>Kanäle (0=auto):</translation>
    </message>
    <message>
        <source>采样率 Hz (0=自动):</source>
        <translation>Abtastrate Hz (0=auto):</translation>
    </message>
    <message>
        <source>时长秒 (0=手动):</source>
        <translation>Dauer (s, 0=manuell):</translation>
    </message>
    <message>
        <source>头空间 dB:</source>
        <translation>Headroom dB:</translation>
    </message>
    <message>
        <source>缓冲帧:</source>
        <translation>Puffer-Frames:</translation>
    </message>
    <message>
        <source>直通模式 (--record-exclusive)</source>
        <translation>Exklusivmodus (--record-exclusive)</translation>
    </message>
    <message>
        <source>DSD 直录 (否则 PCM2PDM)</source>
        <translation>DSD direkt aufnehmen (sonst PCM2PDM)</translation>
    </message>
    <message>
        <source>监听输入</source>
        <translation>Eingang abhören</translation>
    </message>
    <message>
        <source>监听输出设备:</source>
        <translation>Abhör-Ausgabegerät:</translation>
    </message>
    <message>
        <source>录音输出 = 上方「输出文件」(必须 .dsf); 停止时向引擎发送 'q' 优雅收尾 (镜像 GTK)</source>
        <translation>Aufnahmeziel = „Ausgabedatei“ oben (muss .dsf sein); Stoppen sendet 'q' an die Engine für einen sauberen Abschluss (wie in der GTK-Version)</translation>
    </message>
    <message>
        <source>开始录音</source>
        <translation>Aufnahme starten</translation>
    </message>
    <message>
        <source>停止录音</source>
        <translation>Aufnahme stoppen</translation>
    </message>
</context>
<context>
    <name>PerTrackDialog</name>
    <message>
        <source>逐轨预设 (每个文件可各用一套)</source>
        <translation>Titel-Presets (eigenes Preset pro Datei möglich)</translation>
    </message>
    <message>
        <source>每行给一个文件挑一套预设; 「(用当前参数)」= 跟随主面板。
预设只换编码/DSP 参数 —— 输出目录/输出格式与标签仍按主面板。</source>
        <translation>Wählen Sie pro Zeile ein Preset für eine Datei; „(aktuelle Parameter verwenden)“ = wie im Hauptpanel.
Ein Preset ändert nur Kodier-/DSP-Parameter — Ausgabeordner/-format und Tags kommen weiterhin aus dem Hauptpanel.</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Preset</translation>
    </message>
    <message>
        <source>(用当前参数)</source>
        <translation>(aktuelle Parameter verwenden)</translation>
    </message>
    <message>
        <source>(预设目录里没有预设 —— 先在上面「母带预设」里保存一套)</source>
        <translation>(keine Presets im Preset-Ordner — speichern Sie zuerst eines oben unter „Mastering-Presets“)</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>PresetManagerDialog</name>
    <message>
        <source>预设管理器</source>
        <translation>Preset-Verwaltung</translation>
    </message>
    <message>
        <source>预设为 JSON 文件 (与 GTK 版同目录同键名, 可互读)
写入目录: %1</source>
        <translation>Presets sind JSON-Dateien (gleicher Ordner und gleiche Schlüssel wie die GTK-Version, gegenseitig lesbar)
Speicherordner: %1</translation>
    </message>
    <message>
        <source>加载选中</source>
        <translation>Auswahl laden</translation>
    </message>
    <message>
        <source>删除选中</source>
        <translation>Auswahl löschen</translation>
    </message>
    <message>
        <source>保存当前为…</source>
        <translation>Aktuelles speichern unter…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Preset</translation>
    </message>
    <message>
        <source>无法读取: %1</source>
        <translation>Lesen nicht möglich: %1</translation>
    </message>
    <message>
        <source>预设文件解析失败: %1</source>
        <translation>Preset-Datei konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>Preset enthält %1 von dieser Version nicht unterstützte Felder, ignoriert</translation>
    </message>
    <message>
        <source>已加载预设: %1</source>
        <translation>Preset geladen: %1</translation>
    </message>
    <message>
        <source>删除预设</source>
        <translation>Preset löschen</translation>
    </message>
    <message>
        <source>确定删除预设 %1 ?</source>
        <translation>Preset %1 wirklich löschen?</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>Löschen fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>预设名称:</source>
        <translation>Preset-Name:</translation>
    </message>
    <message>
        <source>预设 %1 已存在, 覆盖?</source>
        <translation>Preset %1 existiert bereits. Überschreiben?</translation>
    </message>
    <message>
        <source>预设名称无效: %1</source>
        <translation>Ungültiger Preset-Name: %1</translation>
    </message>
    <message>
        <source>保存失败: %1</source>
        <translation>Speichern fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>已保存预设: %1</source>
        <translation>Preset gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>名称为空</source>
        <translation>Name ist leer</translation>
    </message>
    <message>
        <source>名称不能包含 %1 或控制字符</source>
        <translation>Name darf weder %1 noch Steuerzeichen enthalten</translation>
    </message>
    <message>
        <source>名称不能以点结尾</source>
        <translation>Name darf nicht mit einem Punkt enden</translation>
    </message>
    <message>
        <source>名称 %1 是系统保留的设备名</source>
        <translation>Name %1 ist ein reservierter Gerätename des Systems</translation>
    </message>
    <message>
        <source>文件过大 (%1 字节)</source>
        <translation>Datei zu groß (%1 Bytes)</translation>
    </message>
    <message>
        <source>顶层不是 JSON 对象</source>
        <translation>Oberste Ebene ist kein JSON-Objekt</translation>
    </message>
    <message>
        <source>无法读取文件</source>
        <translation>Datei kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>ReferencesGui</name>
    <message>
        <source>参考标准</source>
        <translation>Referenzstandards</translation>
    </message>
</context>
<context>
    <name>RunControlsPanel</name>
    <message>
        <source>开始转换</source>
        <translation>Konvertierung starten</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Log leeren</translation>
    </message>
    <message>
        <source>详细日志 (--verbose)</source>
        <translation>Ausführliches Log (--verbose)</translation>
    </message>
    <message>
        <source>保留引擎日志（退出不删）</source>
        <translation>Engine-Log behalten (beim Beenden nicht löschen)</translation>
    </message>
    <message>
        <source>关（默认）：引擎日志写在系统临时目录里的一次性目录中，退出即清；
开：写到 %1 下并保留，便于把日志发给厂商排障。</source>
        <translation>Aus (Standard): Das Engine-Log liegt in einem Einmalordner im temporären Systemordner und wird beim Beenden gelöscht;
An: Es wird unter %1 geschrieben und behalten, damit Sie es zur Fehlersuche an den Hersteller senden können.</translation>
    </message>
    <message>
        <source>子进程: ZuvoEngine</source>
        <translation>Unterprozess: ZuvoEngine</translation>
    </message>
    <message>
        <source>GUI 通过 QProcess 调用同目录/环境变量指定的 ZuvoEngine</source>
        <translation>Die GUI ruft ZuvoEngine per QProcess aus dem Programmordner bzw. dem per Umgebungsvariable angegebenen Pfad auf</translation>
    </message>
</context>
<context>
    <name>ThirdPartyGui</name>
    <message>
        <source>源码许可</source>
        <translation>Quelllizenzen</translation>
    </message>
</context>
<context>
    <name>UiLangRow</name>
    <message>
        <source>语言</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>界面语言。切换后程序会重启一次以便整套界面换语言。</source>
        <translation>Sprache der Oberfläche. Nach dem Wechsel startet das Programm einmal neu, damit die gesamte Oberfläche umgestellt wird.</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Systemsprache</translation>
    </message>
    <message>
        <source>界面语言已切换，程序将自动重启一次以生效。</source>
        <translation>Sprache der Oberfläche geändert. Das Programm startet einmal automatisch neu, um sie zu übernehmen.</translation>
    </message>
</context>
<context>
    <name>UpdateUi</name>
    <message>
        <source>正在检查更新…</source>
        <translation>Suche nach Updates…</translation>
    </message>
    <message>
        <source>检查更新</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>已是最新版本 (%1)。服务器上的最新版本为 %2。</source>
        <translation>Sie verwenden die neueste Version (%1). Die neueste Version auf dem Server ist %2.</translation>
    </message>
    <message>
        <source>检查更新失败：</source>
        <translation>Suche nach Updates fehlgeschlagen:</translation>
    </message>
    <message>
        <source>发现新版本 %1（当前 %2）。</source>
        <translation>Neue Version %1 verfügbar (installiert: %2).</translation>
    </message>
    <message>
        <source>发布日期：%1</source>
        <translation>Veröffentlichungsdatum: %1</translation>
    </message>
    <message>
        <source>更新说明：%1</source>
        <translation>Versionshinweise: %1</translation>
    </message>
    <message>
        <source>发现新版本</source>
        <translation>Neue Version verfügbar</translation>
    </message>
    <message>
        <source>下载并更新</source>
        <translation>Herunterladen und aktualisieren</translation>
    </message>
    <message>
        <source>打开下载页</source>
        <translation>Download-Seite öffnen</translation>
    </message>
    <message>
        <source>稍后</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>正在下载更新…</source>
        <translation>Update wird heruntergeladen…</translation>
    </message>
    <message>
        <source>下载更新</source>
        <translation>Update herunterladen</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>程序现在退出。</source>
        <translation>Das Programm wird jetzt beendet.</translation>
    </message>
    <message>
        <source>更新失败</source>
        <translation>Update fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>pv::PreviewDialog</name>
    <message>
        <source>预览: %1</source>
        <translation>Vorschau: %1</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>Wellenform</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>Spektrogramm</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1 — %2 Hz / %3 ch, 预览 %4 s (上限 30 s)</source>
        <translation>%1 — %2 Hz / %3 Kan., Vorschau %4 s (max. 30 s)</translation>
    </message>
    <message>
        <source>该格式 (%1) 预览待后续 — 目前仅支持 WAV (DSD 解码属后续里程碑)</source>
        <translation>Vorschau für dieses Format (%1) folgt später — derzeit nur WAV (DSD-Dekodierung ist für einen späteren Meilenstein geplant)</translation>
    </message>
    <message>
        <source>解码失败: %1</source>
        <translation>Dekodierung fehlgeschlagen: %1</translation>
    </message>
</context>
</TS>