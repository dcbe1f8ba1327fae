<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="zh_CN">
<context>
    <name>ConversionQueue</name>
    <message>
        <source>引擎日志: %1</source>
        <translation>Dziennik silnika: %1</translation>
    </message>
    <message>
        <source>(交给引擎默认)</source>
        <translation>(domyślne silnika)</translation>
    </message>
    <message>
        <source>待转换文件: %1 个</source>
        <translation>Pliki do konwersji: %1</translation>
    </message>
    <message>
        <source>输出目录: %1 (命名模板: %2, 格式: %3)</source>
        <translation>Folder wyjściowy: %1 (szablon nazwy: %2, format: %3)</translation>
    </message>
    <message>
        <source>✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)</source>
        <translation>✗ Nie można przetworzyć presetu ścieżki; dla tego pliku użyto bieżących parametrów: %1 (%2)</translation>
    </message>
    <message>
        <source>逐轨预设《%1》</source>
        <translation>Preset ścieżki „%1”</translation>
    </message>
    <message>
        <source>  预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>  Preset zawiera pola nieobsługiwane w tej wersji (%1) — pominięto</translation>
    </message>
    <message>
        <source>停止: 剩余 %1 个文件已跳过</source>
        <translation>Zatrzymano: pominięto pozostałe pliki (%1)</translation>
    </message>
    <message>
        <source>━━━ [%1/%2] 转换 %3</source>
        <translation>━━━ [%1/%2] Konwersja %3</translation>
    </message>
    <message>
        <source>━━━ 转换 %1</source>
        <translation>━━━ Konwersja %1</translation>
    </message>
    <message>
        <source>✗ 无法创建输出目录: %1</source>
        <translation>✗ Nie można utworzyć folderu wyjściowego: %1</translation>
    </message>
    <message>
        <source>执行: %1 %2</source>
        <translation>Uruchamianie: %1 %2</translation>
    </message>
    <message>
        <source>转换会话: %1</source>
        <translation>Sesja konwersji: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>w procesie (bezpośrednie wywołanie biblioteki)</translation>
    </message>
    <message>
        <source>子进程(起 CLI)</source>
        <translation>proces potomny (CLI)</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 — %1</source>
        <translation>Błąd: nie można uruchomić silnika — %1</translation>
    </message>
    <message>
        <source>✓ %1 完成</source>
        <translation>✓ %1 gotowe</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (未完成的文件已删除)</source>
        <translation>■ Zatrzymano: %1 (niekompletny plik usunięto)</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (文件保留, 可能不完整)</source>
        <translation>■ Zatrzymano: %1 (plik zachowano, może być niekompletny)</translation>
    </message>
    <message>
        <source>■ 已停止(强制结束进程): %1</source>
        <translation>■ Zatrzymano (proces zakończony siłowo): %1</translation>
    </message>
    <message>
        <source>✗ %1 异常退出 (崩溃/被终止)</source>
        <translation>✗ %1: nieprawidłowe zakończenie (awaria/zabicie procesu)</translation>
    </message>
    <message>
        <source>✗ 退出码: %1</source>
        <translation>✗ Kod wyjścia: %1</translation>
    </message>
    <message>
        <source>── 引擎日志 (末尾 %1 行): %2 ──</source>
        <translation>── Dziennik silnika (ostatnie wiersze: %1): %2 ──</translation>
    </message>
    <message>
        <source>
全部完成: %1 OK</source>
        <translation>
Wszystko gotowe: %1 OK</translation>
    </message>
    <message>
        <source>
完成: %1 OK, %2 失败</source>
        <translation>
Gotowe: %1 OK, błędy: %2</translation>
    </message>
    <message>
        <source>转换已停止</source>
        <translation>Konwersję zatrzymano</translation>
    </message>
    <message>
        <source>当前没有运行的进程</source>
        <translation>Żaden proces nie jest uruchomiony</translation>
    </message>
    <message>
        <source>正在停止转换进程…</source>
        <translation>Zatrzymywanie konwersji…</translation>
    </message>
    <message>
        <source>终止当前转换进程…</source>
        <translation>Kończenie bieżącego procesu konwersji…</translation>
    </message>
    <message>
        <source>正在通知引擎停止…</source>
        <translation>Wysyłanie do silnika żądania zatrzymania…</translation>
    </message>
    <message>
        <source>引擎 2 秒内没有确认停止 —— 仍在收尾(可再点一次, 或关闭程序)。</source>
        <translation>Silnik nie potwierdził zatrzymania w ciągu 2 sekund — nadal kończy pracę (kliknij ponownie lub zamknij program).</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[sterowanie] %1</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但没有写出输出文件 %2</source>
        <translation>✗ %1: silnik zgłosił zakończenie, ale nie zapisano pliku wyjściowego: %2</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件 %2 没有被写过 (还是旧的)</source>
        <translation>✗ %1: silnik zgłosił zakończenie, ale plik wyjściowy %2 nie został zapisany (nadal stary)</translation>
    </message>
    <message>
        <source>文件是空的</source>
        <translation>Plik jest pusty</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2), 已删除: %3</source>
        <translation>✗ %1: silnik zgłosił zakończenie, ale nie można odczytać pliku wyjściowego (%2); usunięto: %3</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2): %3</source>
        <translation>✗ %1: silnik zgłosił zakończenie, ale nie można odczytać pliku wyjściowego (%2): %3</translation>
    </message>
    <message>
        <source> …(这一行太长, 后面 %1 个字符没有显示)</source>
        <translation> …(wiersz jest za długi; nie wyświetlono pozostałych znaków: %1)</translation>
    </message>
    <message>
        <source>不是 DSF 文件</source>
        <translation>To nie jest plik DSF</translation>
    </message>
    <message>
        <source>DSF 头里的文件长度与实际不符 (文件不完整)</source>
        <translation>Długość pliku w nagłówku DSF nie zgadza się z rzeczywistą (plik niekompletny)</translation>
    </message>
    <message>
        <source>DSF 格式块不对</source>
        <translation>Nieprawidłowy blok formatu DSF</translation>
    </message>
    <message>
        <source>DSF 数据块不对</source>
        <translation>Nieprawidłowy blok danych DSF</translation>
    </message>
    <message>
        <source>DSF 元数据位置不对</source>
        <translation>Nieprawidłowe położenie metadanych DSF</translation>
    </message>
    <message>
        <source>不是 DSDIFF 文件</source>
        <translation>To nie jest plik DSDIFF</translation>
    </message>
    <message>
        <source>DSDIFF 头里的长度与实际不符 (文件不完整)</source>
        <translation>Długość w nagłówku DSDIFF nie zgadza się z rzeczywistą (plik niekompletny)</translation>
    </message>
    <message>
        <source>DSDIFF 块超出文件</source>
        <translation>Blok DSDIFF wykracza poza plik</translation>
    </message>
    <message>
        <source>DSDIFF 缺少 FVER/PROP/声音块</source>
        <translation>W DSDIFF brak bloku FVER/PROP/dźwięku</translation>
    </message>
    <message>
        <source>不是 WAV 文件</source>
        <translation>To nie jest plik WAV</translation>
    </message>
    <message>
        <source>RF64 的 ds64 块不对</source>
        <translation>Nieprawidłowy blok ds64 w RF64</translation>
    </message>
    <message>
        <source>WAV 缺少格式块</source>
        <translation>W WAV brak bloku formatu</translation>
    </message>
    <message>
        <source>WAV 数据块超出文件 (文件不完整)</source>
        <translation>Blok danych WAV wykracza poza plik (plik niekompletny)</translation>
    </message>
    <message>
        <source>WAV 格式块不对</source>
        <translation>Nieprawidłowy blok formatu WAV</translation>
    </message>
    <message>
        <source>WAV 缺少数据块</source>
        <translation>W WAV brak bloku danych</translation>
    </message>
    <message>
        <source>不是 W64 文件</source>
        <translation>To nie jest plik W64</translation>
    </message>
    <message>
        <source>W64 块超出文件 (文件不完整)</source>
        <translation>Blok W64 wykracza poza plik (plik niekompletny)</translation>
    </message>
    <message>
        <source>W64 缺少格式块</source>
        <translation>W W64 brak bloku formatu</translation>
    </message>
    <message>
        <source>W64 缺少数据块</source>
        <translation>W W64 brak bloku danych</translation>
    </message>
    <message>
        <source>不是 FLAC 文件</source>
        <translation>To nie jest plik FLAC</translation>
    </message>
    <message>
        <source>FLAC 缺少 STREAMINFO</source>
        <translation>W FLAC brak STREAMINFO</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Nie można otworzyć</translation>
    </message>
</context>
<context>
    <name>EngineSession</name>
    <message>
        <source>进程内会话起不来 (rc=%1)</source>
        <translation>Nie udało się uruchomić sesji w procesie (rc=%1)</translation>
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
        <translation>Dodaj pliki…</translation>
    </message>
    <message>
        <source>添加目录…</source>
        <translation>Dodaj folder…</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>Usuń zaznaczone</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Wyczyść listę</translation>
    </message>
    <message>
        <source>支持拖入音频文件或文件夹</source>
        <translation>Przeciągnij tutaj pliki audio lub foldery</translation>
    </message>
    <message>
        <source>输出 .dsf / .dff 文件</source>
        <translation>Plik wyjściowy .dsf / .dff</translation>
    </message>
    <message>
        <source>浏览…</source>
        <translation>Przeglądaj…</translation>
    </message>
    <message>
        <source>输出文件:</source>
        <translation>Plik wyjściowy:</translation>
    </message>
    <message>
        <source>留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名</source>
        <translation>Puste = użyj pliku wyjściowego powyżej; jeśli ustawione, nazwa dla każdego wejścia powstaje z szablonu nazwy</translation>
    </message>
    <message>
        <source>批量输出: 所有输入写进这个目录, 文件名由下面的命名模板算</source>
        <translation>Wyjście wsadowe: wszystkie wejścia trafiają do tego folderu, nazwy powstają z szablonu poniżej</translation>
    </message>
    <message>
        <source>浏览目录…</source>
        <translation>Wybierz folder…</translation>
    </message>
    <message>
        <source>输出目录:</source>
        <translation>Folder wyjściowy:</translation>
    </message>
    <message>
        <source>输出目录模式下每个文件的扩展名 (引擎按扩展名认格式)</source>
        <translation>Rozszerzenie plików w trybie folderu wyjściowego (silnik rozpoznaje format po rozszerzeniu)</translation>
    </message>
    <message>
        <source>变量: {input} 输入文件名  {ext} 输出格式  {track} / {track:02} 队列序号  {artist} {title} 界面字段
留空 = {input}; 变量没有值时回退用输入文件名; 模板里可以带子目录</source>
        <translation>Zmienne: {input} nazwa pliku wejściowego  {ext} format wyjściowy  {track} / {track:02} numer w kolejce  {artist} {title} pola interfejsu
Puste = {input}; zmienna bez wartości zostaje zastąpiona nazwą pliku wejściowego; szablon może zawierać podfoldery</translation>
    </message>
    <message>
        <source>输出格式:</source>
        <translation>Format wyjściowy:</translation>
    </message>
    <message>
        <source>命名模板:</source>
        <translation>Szablon nazwy:</translation>
    </message>
    <message>
        <source>标签: DFF→COMT, DSF→ID3</source>
        <translation>Tagi: DFF→COMT, DSF→ID3</translation>
    </message>
    <message>
        <source>0 = 不写曲目号 (引擎只接受 1..998)</source>
        <translation>0 = bez numeru utworu (silnik akceptuje tylko 1..998)</translation>
    </message>
    <message>
        <source>写入标签的说明文字</source>
        <translation>Tekst komentarza zapisywany w tagu</translation>
    </message>
    <message>
        <source>从输入文件读取标签</source>
        <translation>Odczytaj tagi z pliku wejściowego</translation>
    </message>
    <message>
        <source>艺术家:</source>
        <translation>Wykonawca:</translation>
    </message>
    <message>
        <source>标题:</source>
        <translation>Tytuł:</translation>
    </message>
    <message>
        <source>专辑:</source>
        <translation>Album:</translation>
    </message>
    <message>
        <source>流派:</source>
        <translation>Gatunek:</translation>
    </message>
    <message>
        <source>年份:</source>
        <translation>Rok:</translation>
    </message>
    <message>
        <source>曲目号:</source>
        <translation>Nr utworu:</translation>
    </message>
    <message>
        <source>备注:</source>
        <translation>Komentarz:</translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>Pliki: %1</translation>
    </message>
    <message>
        <source>音频文件 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;所有文件 (*)</source>
        <translation>Pliki audio (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>选择输入文件</source>
        <translation>Wybierz pliki wejściowe</translation>
    </message>
    <message>
        <source>选择目录</source>
        <translation>Wybierz folder</translation>
    </message>
    <message>
        <source>PCM 音频 (*.wav *.w64 *.flac);;所有文件 (*)</source>
        <translation>Audio PCM (*.wav *.w64 *.flac);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>DSDIFF (*.dff);;DSD Stream (*.dsf);;所有文件 (*)</source>
        <translation>DSDIFF (*.dff);;DSD Stream (*.dsf);;Wszystkie pliki (*)</translation>
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
        <translation>Wybierz plik wyjściowy</translation>
    </message>
    <message>
        <source>选择输出目录</source>
        <translation>Wybierz folder wyjściowy</translation>
    </message>
    <message>
        <source>波形/频谱预览…</source>
        <translation>Podgląd przebiegu/spektrogramu…</translation>
    </message>
    <message>
        <source>逐轨预设…</source>
        <translation>Presety ścieżek…</translation>
    </message>
    <message>
        <source>给队列里每个文件单独指定一套预设
预设只换编码/DSP 参数; 输出目录/输出格式与标签仍按面板</source>
        <translation>Przypisz każdemu plikowi w kolejce osobny preset
Preset zmienia tylko parametry kodowania/DSP; folder/format wyjściowy i tagi nadal pochodzą z panelu</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>开始转换</source>
        <translation>Rozpocznij konwersję</translation>
    </message>
    <message>
        <source>Zuvo Audio Suite — 音频转换工具</source>
        <translation>Zuvo Audio Suite — narzędzie do konwersji audio</translation>
    </message>
    <message>
        <source>设置输出文件: %1</source>
        <translation>Ustawiono plik wyjściowy: %1</translation>
    </message>
    <message>
        <source>目录中没有音频文件</source>
        <translation>Brak plików audio w folderze</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改文件列表</source>
        <translation>Nie można zmieniać listy plików podczas konwersji</translation>
    </message>
    <message>
        <source>找到 ZuvoEngine (音频转换引擎): %1</source>
        <translation>Znaleziono ZuvoEngine (silnik konwersji audio): %1</translation>
    </message>
    <message>
        <source>警告: 未找到 ZuvoEngine — 转换功能不可用。请将其放在程序同目录、或加入 PATH。</source>
        <translation>Ostrzeżenie: nie znaleziono ZuvoEngine — konwersja niedostępna. Umieść go w folderze programu lub dodaj do PATH.</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine</source>
        <translation>Nie znaleziono ZuvoEngine</translation>
    </message>
    <message>
        <source>已添加 %1 个文件</source>
        <translation>Dodano pliki: %1</translation>
    </message>
    <message>
        <source>已跳过 %1 个重复文件</source>
        <translation>Pominięto zduplikowane pliki: %1</translation>
    </message>
    <message>
        <source>转换完成</source>
        <translation>Konwersja zakończona</translation>
    </message>
    <message>
        <source>转换 %1 个文件</source>
        <translation>Przekonwertowano pliki: %1</translation>
    </message>
    <message>
        <source>转换 %1 个文件, %2 个失败</source>
        <translation>Przekonwertowano pliki: %1, błędy: %2</translation>
    </message>
    <message>
        <source>打开输出目录</source>
        <translation>Otwórz folder wyjściowy</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>AUTORUN 参数不完整</source>
        <translation>Niekompletny argument AUTORUN</translation>
    </message>
    <message>
        <source>AUTORUN: %1 个输入 → %2</source>
        <translation>AUTORUN: wejścia: %1 → %2</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>Format wyjściowy</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM) 的输出必须是 .wav 或 .flac</source>
        <translation>Wyjście trybu odwrotnego (PDM2PCM) musi mieć format .wav lub .flac</translation>
    </message>
    <message>
        <source>DXD 输出只支持 .wav / .w64 / .flac (引擎按扩展名认容器)</source>
        <translation>Wyjście DXD obsługuje tylko .wav / .w64 / .flac (silnik rozpoznaje kontener po rozszerzeniu)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>错误: DST 压缩仅支持 DFF 格式输出
请把输出格式/扩展名改为 .dff 或禁用 DST 压缩</source>
        <translation>Błąd: kompresja DST obsługuje tylko wyjście DFF
Zmień format/rozszerzenie wyjściowe na .dff lub wyłącz kompresję DST</translation>
    </message>
    <message>
        <source>输出文件必须是 .dsf 或 .dff 格式</source>
        <translation>Plik wyjściowy musi mieć format .dsf lub .dff</translation>
    </message>
    <message>
        <source>转换中</source>
        <translation>Trwa konwersja</translation>
    </message>
    <message>
        <source>已有转换任务正在进行中, 请等待完成。</source>
        <translation>Konwersja już trwa; poczekaj na jej zakończenie.</translation>
    </message>
    <message>
        <source>输入文件</source>
        <translation>Pliki wejściowe</translation>
    </message>
    <message>
        <source>请选择输入文件</source>
        <translation>Wybierz pliki wejściowe</translation>
    </message>
    <message>
        <source>元数据</source>
        <translation>Metadane</translation>
    </message>
    <message>
        <source>输出 .dff 必须填「艺术家」和「标题」两个值
(它们是 DFF 的 COMT 标签; 必填项, 不填不开始转换)</source>
        <translation>Wyjście .dff wymaga pól „Wykonawca” i „Tytuł”
(tworzą one tag COMT pliku DFF; są wymagane — bez nich konwersja się nie rozpocznie)</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>Liczba współczynników</translation>
    </message>
    <message>
        <source>Taps 必须是偶数且不小于 512 (0 = 用引擎默认值)</source>
        <translation>Liczba współczynników musi być parzysta i nie mniejsza niż 512 (0 = domyślna silnika)</translation>
    </message>
    <message>
        <source>过渡带</source>
        <translation>Pasmo przejściowe</translation>
    </message>
    <message>
        <source>阻带截止必须大于通带截止 (否则过渡带为零/负, 引擎会拒绝)</source>
        <translation>Granica pasma zaporowego musi być wyższa niż granica pasma przepustowego (inaczej pasmo przejściowe jest zerowe/ujemne i silnik je odrzuci)</translation>
    </message>
    <message>
        <source>输出目录</source>
        <translation>Folder wyjściowy</translation>
    </message>
    <message>
        <source>无法创建输出目录:
%1</source>
        <translation>Nie można utworzyć folderu wyjściowego:
%1</translation>
    </message>
    <message>
        <source>输出文件</source>
        <translation>Plik wyjściowy</translation>
    </message>
    <message>
        <source>请选择输出文件</source>
        <translation>Wybierz plik wyjściowy</translation>
    </message>
    <message>
        <source>噪声本底分析</source>
        <translation>Analiza poziomu szumów</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「PDF 报告」开关</source>
        <translation>Analiza poziomu szumów działa tylko z włączonym raportem PDF
Włącz opcję „Raport PDF”</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>Korektor</translation>
    </message>
    <message>
        <source>启用了均衡器但没有有效频段
请添加至少一个频段 (中心频率 &gt; 0), 或禁用均衡器</source>
        <translation>Korektor jest włączony, ale nie ma żadnego prawidłowego pasma
Dodaj co najmniej jedno pasmo (częstotliwość środkowa &gt; 0) lub wyłącz korektor</translation>
    </message>
    <message>
        <source>引擎缺失</source>
        <translation>Brak silnika</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine。请将其放在程序同目录、或加入 PATH,
也可设置环境变量 ZUVO_ENGINE_BIN 指向其完整路径。</source>
        <translation>Nie znaleziono ZuvoEngine. Umieść go w folderze programu lub dodaj do PATH,
albo ustaw zmienną środowiskową ZUVO_ENGINE_BIN na jego pełną ścieżkę.</translation>
    </message>
    <message>
        <source>均衡器未启用</source>
        <translation>Korektor nie jest włączony</translation>
    </message>
    <message>
        <source>基本参数</source>
        <translation>Podstawowe</translation>
    </message>
    <message>
        <source>滤波</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>空间与音调</source>
        <translation>Przestrzeń i barwa</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>Kanały</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>Zaawansowane</translation>
    </message>
    <message>
        <source>启用 DST 压缩模式</source>
        <translation>Tryb kompresji DST włączony</translation>
    </message>
    <message>
        <source>禁用 DST 压缩模式</source>
        <translation>Tryb kompresji DST wyłączony</translation>
    </message>
    <message>
        <source>DST 压缩</source>
        <translation>Kompresja DST</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出格式将自动更改为 DFF</source>
        <translation>Kompresja DST obsługuje tylko format DFF
Format wyjściowy zostanie automatycznie zmieniony na DFF</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出文件将自动更改为 DFF 格式</source>
        <translation>Kompresja DST obsługuje tylko format DFF
Plik wyjściowy zostanie automatycznie zmieniony na format DFF</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改参数</source>
        <translation>Nie można zmieniać parametrów podczas konwersji</translation>
    </message>
    <message>
        <source>已加载母带预设: %1</source>
        <translation>Wczytano preset masteringu: %1</translation>
    </message>
    <message>
        <source>均衡器: %1 行无效 (需中心频率&gt;0) 已被跳过</source>
        <translation>Korektor: pominięto nieprawidłowe wiersze: %1 (częstotliwość środkowa musi być &gt; 0)</translation>
    </message>
    <message>
        <source>注意: 无法向引擎查询它不支持的选项, 直接开始转换</source>
        <translation>Uwaga: nie udało się zapytać silnika o nieobsługiwane opcje; konwersja rozpoczyna się mimo to</translation>
    </message>
    <message>
        <source>转换未开始: 当前引擎构建不支持这些已选择的选项: %1</source>
        <translation>Konwersji nie rozpoczęto: ta kompilacja silnika nie obsługuje wybranych opcji: %1</translation>
    </message>
    <message>
        <source>引擎不支持的选项</source>
        <translation>Opcje nieobsługiwane przez silnik</translation>
    </message>
    <message>
        <source>当前引擎构建不支持下列已选择的选项, 转换不会开始:
%1

请在参数页关闭它们后再开始 (预设里可以保留)。</source>
        <translation>Ta kompilacja silnika nie obsługuje następujących wybranych opcji, więc konwersja się nie rozpocznie:
%1

Wyłącz je na stronach parametrów i zacznij ponownie (w presetach mogą pozostać).</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改预设</source>
        <translation>Nie można zmieniać presetów podczas konwersji</translation>
    </message>
    <message>
        <source>转换进行中, 不能改逐轨预设。</source>
        <translation>Trwa konwersja — presetów ścieżek nie można teraz zmienić.</translation>
    </message>
    <message>
        <source>请先添加输入文件</source>
        <translation>Najpierw dodaj pliki wejściowe</translation>
    </message>
    <message>
        <source>逐轨预设: 已全部改回「用当前参数」</source>
        <translation>Presety ścieżek: wszystkie przywrócono do „użyj bieżących parametrów”</translation>
    </message>
    <message>
        <source>逐轨预设: %1 个文件各用一套</source>
        <translation>Presety ścieżek: pliki z własnym presetem: %1</translation>
    </message>
    <message>
        <source>转换进行中, 不能预览</source>
        <translation>Nie można wyświetlić podglądu podczas konwersji</translation>
    </message>
    <message>
        <source>请先添加文件</source>
        <translation>Najpierw dodaj pliki</translation>
    </message>
    <message>
        <source>没有可预览的文件</source>
        <translation>Brak plików do podglądu</translation>
    </message>
    <message>
        <source>单环 (NS, --order 9)</source>
        <translation>Pojedyncza pętla (NS, --order 9)</translation>
    </message>
    <message>
        <source>古典</source>
        <translation>Klasyczna</translation>
    </message>
    <message>
        <source>古典: DSD-256, 131072 taps, 高带宽</source>
        <translation>Klasyczna: DSD-256, 131072 taps, szerokie pasmo</translation>
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
        <translation>Częstotliwość próbkowania DSD:</translation>
    </message>
    <message>
        <source>Taps 数 (0=引擎默认):</source>
        <translation>Liczba współczynników (0=domyślna):</translation>
    </message>
    <message>
        <source>SOS cascade + error feedback, NS15 profile (引擎默认): 实测带内噪声比单环 NS9 低 11.4 dB</source>
        <translation>Kaskada SOS + sprzężenie zwrotne błędu, profil NS15 (domyślny silnika): zmierzony szum w paśmie o 11,4 dB niższy niż w pojedynczej pętli NS9</translation>
    </message>
    <message>
        <source>Chebyshev 多项式压缩 (可与 MASH 叠加)</source>
        <translation>Kompresja wielomianowa Czebyszewa (łączona z MASH)</translation>
    </message>
    <message>
        <source>调制器:</source>
        <translation>Modulator:</translation>
    </message>
    <message>
        <source>母带预设:</source>
        <translation>Presety masteringu:</translation>
    </message>
    <message>
        <source>预设管理器…</source>
        <translation>Menedżer presetów…</translation>
    </message>
    <message>
        <source>DST 压缩 (仅 .dff 输出)</source>
        <translation>Kompresja DST (tylko wyjście .dff)</translation>
    </message>
    <message>
        <source>DXD 输出 (高解析 PCM)</source>
        <translation>Wyjście DXD (PCM wysokiej rozdzielczości)</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM)</source>
        <translation>Tryb odwrotny (PDM2PCM)</translation>
    </message>
    <message>
        <source>输入 DSD(DSF/DFF), 输出 PCM/WAV —— 与 PCM→PDM 无关</source>
        <translation>Wejście DSD (DSF/DFF), wyjście PCM/WAV — niezwiązane z PCM→PDM</translation>
    </message>
    <message>
        <source>DST 压缩等级 (0=关闭):</source>
        <translation>Poziom kompresji DST (0=wył.):</translation>
    </message>
    <message>
        <source>高带宽模式</source>
        <translation>Tryb szerokiego pasma</translation>
    </message>
    <message>
        <source>OpenCL 加速 (GPU)</source>
        <translation>Akceleracja OpenCL (GPU)</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 OpenCL 支持</source>
        <translation>Ta kompilacja silnika nie obsługuje OpenCL</translation>
    </message>
    <message>
        <source>添加 PDF 报告</source>
        <translation>Dodaj raport PDF</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 PDF 报告 (需要 rsvg+cairo)</source>
        <translation>Ta kompilacja silnika nie obsługuje raportów PDF (wymaga rsvg+cairo)</translation>
    </message>
    <message>
        <source>只影响 PDF 报告内容, 不改音频比特流 (实测: 开关它 dsf 逐字节相同)</source>
        <translation>Wpływa tylko na treść raportu PDF, nigdy na strumień bitów audio (zmierzono: plik dsf jest identyczny bajt w bajt z nim i bez niego)</translation>
    </message>
    <message>
        <source>分析报告 (--report)</source>
        <translation>Raport analizy (--report)</translation>
    </message>
    <message>
        <source>噪声本底分析 (需 PDF 报告)</source>
        <translation>Analiza poziomu szumów (wymaga raportu PDF)</translation>
    </message>
    <message>
        <source>降噪: 关</source>
        <translation>Odszumianie: wył.</translation>
    </message>
    <message>
        <source>降噪: 轻 (-12dB 地板, 最保真)</source>
        <translation>Odszumianie: lekkie (próg -12dB, najwierniejsze)</translation>
    </message>
    <message>
        <source>降噪: 标准 (-18dB 地板)</source>
        <translation>Odszumianie: standardowe (próg -18dB)</translation>
    </message>
    <message>
        <source>降噪: 强 (感知加权地板, 最深)</source>
        <translation>Odszumianie: silne (próg ważony percepcyjnie, najgłębsze)</translation>
    </message>
    <message>
        <source>保留乐器泛音 (降噪时保住泛音与泛音列)</source>
        <translation>Zachowaj harmoniczne instrumentów (chroni harmoniczne i szereg alikwotów podczas odszumiania)</translation>
    </message>
    <message>
        <source>报告里加峰值 (--peak)</source>
        <translation>Dodaj szczyt do raportu (--peak)</translation>
    </message>
    <message>
        <source>报告里加 RMS (--rms)</source>
        <translation>Dodaj RMS do raportu (--rms)</translation>
    </message>
    <message>
        <source>报告里不要动态范围一节 (--no-dynamic-range)</source>
        <translation>Pomiń w raporcie sekcję zakresu dynamiki (--no-dynamic-range)</translation>
    </message>
    <message>
        <source>输出模式</source>
        <translation>Tryb wyjścia</translation>
    </message>
    <message>
        <source>带宽、加速与报告</source>
        <translation>Pasmo, akceleracja i raport</translation>
    </message>
    <message>
        <source>降噪与报告内容</source>
        <translation>Odszumianie i zawartość raportu</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「添加 PDF 报告」</source>
        <translation>Analiza poziomu szumów działa tylko z włączonym raportem PDF
Włącz „Dodaj raport PDF”</translation>
    </message>
    <message>
        <source>声道设置</source>
        <translation>Ustawienia kanałów</translation>
    </message>
    <message>
        <source>强制原始声道数</source>
        <translation>Wymuś oryginalną liczbę kanałów</translation>
    </message>
    <message>
        <source>四声道模式 (需重置声道数=4)</source>
        <translation>Tryb kwadrofoniczny (wymaga ustawienia liczby kanałów = 4)</translation>
    </message>
    <message>
        <source>添加环绕声道</source>
        <translation>Dodaj kanały surround</translation>
    </message>
    <message>
        <source>声道交换</source>
        <translation>Zamień kanały</translation>
    </message>
    <message>
        <source>重置声道数 (0=不动):</source>
        <translation>Ustaw liczbę kanałów (0=bez zmian):</translation>
    </message>
    <message>
        <source>规则</source>
        <translation>Zasady</translation>
    </message>
    <message>
        <source>「强制原始声道数」优先: 勾选后重置声道数、四声道模式和添加环绕声道都不发给引擎。

四声道模式需要重置声道数为 4; 勾选时会自动设为 4。

「声道交换」交换前两个声道, 与其它选项可同时使用。</source>
        <translation>„Wymuś oryginalną liczbę kanałów” ma pierwszeństwo: gdy jest zaznaczone, ustawienie liczby kanałów, tryb kwadrofoniczny i dodawanie kanałów surround nie są przekazywane do silnika.

Tryb kwadrofoniczny wymaga ustawienia liczby kanałów na 4; po zaznaczeniu wartość 4 ustawia się automatycznie.

„Zamień kanały” zamienia miejscami dwa pierwsze kanały i można go łączyć z innymi opcjami.</translation>
    </message>
    <message>
        <source>四声道模式: 重置声道数已自动设为 4</source>
        <translation>Tryb kwadrofoniczny: liczbę kanałów ustawiono automatycznie na 4</translation>
    </message>
    <message>
        <source>启用均衡器 (EQ)</source>
        <translation>Włącz korektor (EQ)</translation>
    </message>
    <message>
        <source>添加频段</source>
        <translation>Dodaj pasmo</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>Usuń zaznaczone</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Wyczyść</translation>
    </message>
    <message>
        <source>中心频率 (Hz)</source>
        <translation>Częstotliwość środkowa (Hz)</translation>
    </message>
    <message>
        <source>增益 (dB)</source>
        <translation>Wzmocnienie (dB)</translation>
    </message>
    <message>
        <source>带宽</source>
        <translation>Szerokość pasma</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>Jednostka</translation>
    </message>
    <message>
        <source>预览按 44.1 kHz 估算 — 引擎槽位: 首段低架, 满 10 段时末段高架</source>
        <translation>Podgląd szacowany dla 44,1 kHz — sloty silnika: pierwsze pasmo to półka niskich tonów; przy wszystkich 10 pasmach ostatnie to półka wysokich tonów</translation>
    </message>
    <message>
        <source>启用均衡器 (--eq 频段 f,g,bw{单位})</source>
        <translation>Korektor włączony (--eq pasmo f,g,bw{jednostka})</translation>
    </message>
    <message>
        <source>禁用均衡器</source>
        <translation>Korektor wyłączony</translation>
    </message>
    <message>
        <source>窗口法 (Window Method)</source>
        <translation>Metoda okna (Window Method)</translation>
    </message>
    <message>
        <source>最小相位 (Min-Phase)</source>
        <translation>Minimalna faza (Min-Phase)</translation>
    </message>
    <message>
        <source>应用预失真处理</source>
        <translation>Zastosuj predystorsję</translation>
    </message>
    <message>
        <source>算法:</source>
        <translation>Algorytm:</translation>
    </message>
    <message>
        <source>滤波类型:</source>
        <translation>Typ filtra:</translation>
    </message>
    <message>
        <source>窗口法参数</source>
        <translation>Parametry metody okna</translation>
    </message>
    <message>
        <source>窗口类型:</source>
        <translation>Typ okna:</translation>
    </message>
    <message>
        <source>Remez 算法参数</source>
        <translation>Parametry algorytmu Remez</translation>
    </message>
    <message>
        <source>最大迭代次数:</source>
        <translation>Maks. liczba iteracji:</translation>
    </message>
    <message>
        <source>网格密度:</source>
        <translation>Gęstość siatki:</translation>
    </message>
    <message>
        <source>停止带衰减 (A_stop)</source>
        <translation>Tłumienie w paśmie zaporowym (A_stop)</translation>
    </message>
    <message>
        <source>0=不发</source>
        <translation>0=nie wysyłaj</translation>
    </message>
    <message>
        <source>停止带衰减 (dB):</source>
        <translation>Tłumienie w paśmie zaporowym (dB):</translation>
    </message>
    <message>
        <source>过渡带 (截止频率)</source>
        <translation>Pasmo przejściowe (częstotliwości graniczne)</translation>
    </message>
    <message>
        <source>通带截止 (Hz):</source>
        <translation>Granica pasma przepustowego (Hz):</translation>
    </message>
    <message>
        <source>阻带截止 (Hz):</source>
        <translation>Granica pasma zaporowego (Hz):</translation>
    </message>
    <message>
        <source>增益 (ABS)</source>
        <translation>Wzmocnienie (ABS)</translation>
    </message>
    <message>
        <source>绝对值增益:</source>
        <translation>Wzmocnienie bezwzględne:</translation>
    </message>
    <message>
        <source>HRTF 空间音频</source>
        <translation>Dźwięk przestrzenny HRTF</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf)</source>
        <translation>Włącz dźwięk przestrzenny HRTF (--hrtf)</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf &lt;mono|ms|stereo&gt;)</source>
        <translation>Dźwięk przestrzenny HRTF włączony (--hrtf &lt;mono|ms|stereo&gt;)</translation>
    </message>
    <message>
        <source>禁用 HRTF 空间音频</source>
        <translation>Dźwięk przestrzenny HRTF wyłączony</translation>
    </message>
    <message>
        <source>模式:</source>
        <translation>Tryb:</translation>
    </message>
    <message>
        <source>干湿比 (dry/wet):</source>
        <translation>Proporcja dry/wet:</translation>
    </message>
    <message>
        <source>侧向扩散比:</source>
        <translation>Rozproszenie boczne:</translation>
    </message>
    <message>
        <source>深度 (+1前 / 0耳位 / -1后):</source>
        <translation>Głębia (+1 przód / 0 poziom uszu / -1 tył):</translation>
    </message>
    <message>
        <source>使用引擎内置 HRIR; 不提供自定义 .sofa 文件</source>
        <translation>Używa wbudowanego HRIR silnika; własne pliki .sofa nie są obsługiwane</translation>
    </message>
    <message>
        <source>环绕</source>
        <translation>Surround</translation>
    </message>
    <message>
        <source>启用环绕 (--surround)</source>
        <translation>Włącz surround (--surround)</translation>
    </message>
    <message>
        <source>启用环绕 (--surround delayMs mix side balance)</source>
        <translation>Surround włączony (--surround delayMs mix side balance)</translation>
    </message>
    <message>
        <source>禁用环绕</source>
        <translation>Surround wyłączony</translation>
    </message>
    <message>
        <source>侧向 (side)</source>
        <translation>Bok (side)</translation>
    </message>
    <message>
        <source>延迟 (ms):</source>
        <translation>Opóźnienie (ms):</translation>
    </message>
    <message>
        <source>混合 (%):</source>
        <translation>Miks (%):</translation>
    </message>
    <message>
        <source>平衡 (-100~100, 0=不发):</source>
        <translation>Balans (-100~100, 0=nie wysyłaj):</translation>
    </message>
    <message>
        <source>音调 (shelving)</source>
        <translation>Barwa (półkowe)</translation>
    </message>
    <message>
        <source>低音 (dB):</source>
        <translation>Niskie tony (dB):</translation>
    </message>
    <message>
        <source>高音 (dB):</source>
        <translation>Wysokie tony (dB):</translation>
    </message>
    <message>
        <source>EQ 前置衰减 (dB):</source>
        <translation>Wstępne tłumienie EQ (dB):</translation>
    </message>
    <message>
        <source>启用 DSRE 数字频谱共振增强 (--dsre)</source>
        <translation>Włącz DSRE — cyfrowe wzmocnienie rezonansu widmowego (--dsre)</translation>
    </message>
    <message>
        <source>启用 DSRE (--dsre mix)</source>
        <translation>DSRE włączone (--dsre mix)</translation>
    </message>
    <message>
        <source>禁用 DSRE</source>
        <translation>DSRE wyłączone</translation>
    </message>
    <message>
        <source>干湿比 (0=dry, 1=全效果):</source>
        <translation>Dry/wet (0=dry, 1=pełny efekt):</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>AUTORUN 预设: %1</source>
        <translation>Preset AUTORUN: %1</translation>
    </message>
    <message>
        <source>✗ AUTORUN 预设无法使用: %1 (%2)</source>
        <translation>✗ Nie można użyć presetu AUTORUN: %1 (%2)</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_PLAYTEST 指定的文件不存在: %1</source>
        <translation>Błąd: plik wskazany w ZUVO_AI_PLAYTEST nie istnieje: %1</translation>
    </message>
    <message>
        <source>设备名直接传给 ZuvoPlayer -dev</source>
        <translation>Nazwa urządzenia przekazywana bezpośrednio do ZuvoPlayer -dev</translation>
    </message>
    <message>
        <source>DAC 设备:</source>
        <translation>Urządzenie DAC:</translation>
    </message>
    <message>
        <source>流式播放模式 (-stream)</source>
        <translation>Tryb odtwarzania strumieniowego (-stream)</translation>
    </message>
    <message>
        <source>播放源 = 上方「输出文件」 (镜像 GTK: 播放刚转换的 DSF/DFF)</source>
        <translation>Źródło odtwarzania = „Plik wyjściowy” powyżej (jak w wersji GTK: odtwarza właśnie przekonwertowany DSF/DFF)</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>Zatrzymaj odtwarzanie</translation>
    </message>
    <message>
        <source>播放正在进行中, 请先停止当前播放</source>
        <translation>Odtwarzanie już trwa, najpierw je zatrzymaj</translation>
    </message>
    <message>
        <source>错误: 播放文件不存在或无法读取: %1</source>
        <translation>Błąd: plik do odtworzenia nie istnieje lub nie można go odczytać: %1</translation>
    </message>
    <message>
        <source>(未设置输出文件)</source>
        <translation>(nie ustawiono pliku wyjściowego)</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoPlayer — 请放在程序同目录或加入 PATH (或设 ZUVO_PLAYER_BIN)</source>
        <translation>Błąd: nie znaleziono ZuvoPlayer — umieść go w folderze programu lub dodaj do PATH (albo ustaw ZUVO_PLAYER_BIN)</translation>
    </message>
    <message>
        <source>启动播放器: %1 %2</source>
        <translation>Uruchamianie odtwarzacza: %1 %2</translation>
    </message>
    <message>
        <source>开始播放: %1</source>
        <translation>Odtwarzanie: %1</translation>
    </message>
    <message>
        <source>试听会话: %1</source>
        <translation>Sesja odsłuchu: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>w procesie (bezpośrednie wywołanie biblioteki)</translation>
    </message>
    <message>
        <source>子进程</source>
        <translation>proces potomny</translation>
    </message>
    <message>
        <source>错误: 无法启动播放器 — %1</source>
        <translation>Błąd: nie można uruchomić odtwarzacza — %1</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Odtwarzanie zakończone</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Odtwarzanie zatrzymane</translation>
    </message>
    <message>
        <source>播放器异常退出, 代码: %1</source>
        <translation>Odtwarzacz zakończył działanie nieprawidłowo, kod: %1</translation>
    </message>
    <message>
        <source>当前没有播放任务</source>
        <translation>Nic nie jest odtwarzane</translation>
    </message>
    <message>
        <source>正在停止播放器…</source>
        <translation>Zatrzymywanie odtwarzacza…</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[sterowanie] %1</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾 (本次在进程内运行, 无法强制结束)</source>
        <translation>Odtwarzacz nie zakończył pracy w ciągu %1 s (tym razem działa w procesie, nie można wymusić jego zakończenia)</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾, 强制结束</source>
        <translation>Odtwarzacz nie zakończył pracy w ciągu %1 s, wymuszanie zakończenia</translation>
    </message>
    <message>
        <source>仍无响应, 强制结束播放器</source>
        <translation>Nadal brak odpowiedzi, wymuszanie zakończenia odtwarzacza</translation>
    </message>
    <message>
        <source>检查更新…</source>
        <translation>Sprawdź aktualizacje…</translation>
    </message>
    <message>
        <source>关于/诊断…</source>
        <translation>O programie / diagnostyka…</translation>
    </message>
    <message>
        <source>看引擎版本 / 列音频设备 / 显示引擎帮助</source>
        <translation>Pokaż wersję silnika / wylistuj urządzenia audio / pokaż pomoc silnika</translation>
    </message>
    <message>
        <source>源码许可…</source>
        <translation>Licencje kodu źródłowego…</translation>
    </message>
    <message>
        <source>参考标准…</source>
        <translation>Normy referencyjne…</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_RECTEST 需要给一个输出 .dsf 路径</source>
        <translation>Błąd: ZUVO_AI_RECTEST wymaga ścieżki wyjściowej .dsf</translation>
    </message>
    <message>
        <source>(引擎没有输出)</source>
        <translation>(silnik nic nie wypisał)</translation>
    </message>
    <message>
        <source>$ %1

%2

退出码 = %3</source>
        <translation>$ %1

%2

Kod wyjścia = %3</translation>
    </message>
    <message>
        <source>本构建的引擎没有录音后端 (见录音页的状态行): 不能开始录音</source>
        <translation>Silnik w tej kompilacji nie ma backendu nagrywania (zob. wiersz stanu na karcie Nagrywanie): nie można rozpocząć nagrywania</translation>
    </message>
    <message>
        <source>录音正在进行中</source>
        <translation>Nagrywanie już trwa</translation>
    </message>
    <message>
        <source>录音</source>
        <translation>Nagrywanie</translation>
    </message>
    <message>
        <source>请先在上方「输出文件」设置录音保存路径</source>
        <translation>Najpierw ustaw ścieżkę nagrania w polu „Plik wyjściowy” powyżej</translation>
    </message>
    <message>
        <source>录音输出文件必须是 .dsf 格式</source>
        <translation>Plik wyjściowy nagrania musi mieć format .dsf</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoEngine (录音需要引擎录音支持)</source>
        <translation>Błąd: nie znaleziono ZuvoEngine (nagrywanie wymaga obsługi nagrywania w silniku)</translation>
    </message>
    <message>
        <source>录音命令: %1 %2</source>
        <translation>Polecenie nagrywania: %1 %2</translation>
    </message>
    <message>
        <source>开始录音 → %1</source>
        <translation>Rozpoczęto nagrywanie → %1</translation>
    </message>
    <message>
        <source>提示: 停止时发送 'q' 让引擎优雅收尾 (先停止处理 PCM 再写 DSF)</source>
        <translation>Wskazówka: przy zatrzymaniu wysyłane jest 'q', aby silnik poprawnie zakończył pracę (najpierw kończy przetwarzanie PCM, potem zapisuje DSF)</translation>
    </message>
    <message>
        <source>录音中…</source>
        <translation>Nagrywanie…</translation>
    </message>
    <message>
        <source>录音会话: %1</source>
        <translation>Sesja nagrywania: %1</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 (录音) — %1</source>
        <translation>Błąd: nie można uruchomić silnika (nagrywanie) — %1</translation>
    </message>
    <message>
        <source>当前没有录音任务</source>
        <translation>Brak trwającego nagrywania</translation>
    </message>
    <message>
        <source>发送 'q' 至引擎 — 等待优雅收尾 (写 DSF 后自动退出)…</source>
        <translation>Wysłano 'q' do silnika — oczekiwanie na poprawne zakończenie (zapis DSF, potem wyjście)…</translation>
    </message>
    <message>
        <source>录音引擎已不在运行</source>
        <translation>Silnik nagrywania już nie działa</translation>
    </message>
    <message>
        <source>引擎未在 12s 内收尾 (本次在进程内进行, 无法强制结束)</source>
        <translation>Silnik nie zakończył pracy w ciągu 12 s (to uruchomienie jest wewnątrz procesu, nie można go wymusić)</translation>
    </message>
    <message>
        <source>引擎未在 12s 内退出, 强制终止</source>
        <translation>Silnik nie zakończył się w ciągu 12 s, wymuszanie zakończenia</translation>
    </message>
    <message>
        <source>录音保存: %1</source>
        <translation>Zapisano nagranie: %1</translation>
    </message>
    <message>
        <source>录音失败, 退出码: %1</source>
        <translation>Nagrywanie nie powiodło się, kod wyjścia: %1</translation>
    </message>
    <message>
        <source>录音进程异常退出 (崩溃/被终止)</source>
        <translation>Proces nagrywania zakończył się nieprawidłowo (awaria/zabicie)</translation>
    </message>
    <message>
        <source>录音后端: 可用 — %1</source>
        <translation>Backend nagrywania: dostępny — %1</translation>
    </message>
    <message>
        <source>录音后端: 不可用 — %1</source>
        <translation>Backend nagrywania: niedostępny — %1</translation>
    </message>
    <message>
        <source>%1 个输入设备(已列在日志里)</source>
        <translation>Urządzenia wejściowe: %1 (wymienione w dzienniku)</translation>
    </message>
    <message>
        <source>引擎退出码 = %1</source>
        <translation>Kod wyjścia silnika = %1</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请放在程序同目录、加入 PATH, 或设 ZUVO_ENGINE_BIN</source>
        <translation>Nie znaleziono ZuvoEngine — umieść go w folderze programu, dodaj do PATH lub ustaw ZUVO_ENGINE_BIN</translation>
    </message>
    <message>
        <source>探测 30s 无响应, 已终止</source>
        <translation>Sondowanie bez odpowiedzi przez 30 s, przerwano</translation>
    </message>
    <message>
        <source>关于 / 诊断</source>
        <translation>O programie / diagnostyka</translation>
    </message>
    <message>
        <source>ZuvoAudioTools — ZuvoEngine 的转码前端 (QProcess 子进程)
引擎路径: %1
注: 引擎的帮助/版本类子命令本来就以非 0 退出码收尾, 属既有行为。
探测是异步的: 点完可以继续操作界面, 结果到了会显示在下面。</source>
        <translation>ZuvoAudioTools — nakładka konwersji dla ZuvoEngine (proces potomny QProcess)
Ścieżka silnika: %1
Uwaga: podpolecenia pomocy/wersji silnika z założenia kończą się niezerowym kodem wyjścia; to zamierzone zachowanie.
Sondowanie jest asynchroniczne: po kliknięciu można dalej korzystać z interfejsu, a wynik pojawi się poniżej.</translation>
    </message>
    <message>
        <source>(未找到)</source>
        <translation>(nie znaleziono)</translation>
    </message>
    <message>
        <source>点下面任一按钮看引擎的回答</source>
        <translation>Kliknij dowolny przycisk poniżej, aby zobaczyć odpowiedź silnika</translation>
    </message>
    <message>
        <source>引擎版本 (--version)</source>
        <translation>Wersja silnika (--version)</translation>
    </message>
    <message>
        <source>列出音频设备 (--list-devices)</source>
        <translation>Wylistuj urządzenia audio (--list-devices)</translation>
    </message>
    <message>
        <source>引擎帮助 (--help)</source>
        <translation>Pomoc silnika (--help)</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请把它放在程序同目录、加入 PATH, 或设置环境变量 ZUVO_ENGINE_BIN。</source>
        <translation>Nie znaleziono ZuvoEngine — umieść go w folderze programu, dodaj do PATH lub ustaw zmienną środowiskową ZUVO_ENGINE_BIN.</translation>
    </message>
    <message>
        <source>$ %1

运行中… (界面不冻, 可继续操作)
</source>
        <translation>$ %1

Trwa wykonywanie… (interfejs nie jest zablokowany, można dalej pracować)
</translation>
    </message>
    <message>
        <source>引擎启动失败: %1</source>
        <translation>Nie udało się uruchomić silnika: %1</translation>
    </message>
    <message>
        <source>
引擎 30s 无响应, 已终止 (不进设备, 不会影响到正在跑的任务)。</source>
        <translation>
Silnik nie odpowiadał przez 30 s i został zakończony (nie otwierał urządzeń, nie wpływa to na trwające zadania).</translation>
    </message>
    <message>
        <source>录音后端: 未检测</source>
        <translation>Backend nagrywania: nie sprawdzono</translation>
    </message>
    <message>
        <source>检测录音支持 / 列出输入设备</source>
        <translation>Sprawdź obsługę nagrywania / wylistuj urządzenia wejściowe</translation>
    </message>
    <message>
        <source>录音设备 (空=默认):</source>
        <translation>Urządzenie nagrywania (puste=domyślne):</translation>
    </message>
    <message>
        <source>声道数 (0=自动):</source>
        <translation>Kanały (0=auto):</translation>
    </message>
    <message>
        <source>采样率 Hz (0=自动):</source>
        <translation>Częst. próbkowania Hz (0=auto):</translation>
    </message>
    <message>
        <source>时长秒 (0=手动):</source>
        <translation>Czas (s, 0=ręcznie):</translation>
    </message>
    <message>
        <source>头空间 dB:</source>
        <translation>Zapas dynamiki dB:</translation>
    </message>
    <message>
        <source>缓冲帧:</source>
        <translation>Bufor (ramki):</translation>
    </message>
    <message>
        <source>直通模式 (--record-exclusive)</source>
        <translation>Tryb wyłączny (--record-exclusive)</translation>
    </message>
    <message>
        <source>DSD 直录 (否则 PCM2PDM)</source>
        <translation>Bezpośrednie nagrywanie DSD (inaczej PCM2PDM)</translation>
    </message>
    <message>
        <source>监听输入</source>
        <translation>Odsłuch wejścia</translation>
    </message>
    <message>
        <source>监听输出设备:</source>
        <translation>Urządzenie odsłuchu:</translation>
    </message>
    <message>
        <source>录音输出 = 上方「输出文件」(必须 .dsf); 停止时向引擎发送 'q' 优雅收尾 (镜像 GTK)</source>
        <translation>Wyjście nagrania = „Plik wyjściowy” powyżej (musi być .dsf); zatrzymanie wysyła 'q' do silnika, aby poprawnie zakończył pracę (jak w wersji GTK)</translation>
    </message>
    <message>
        <source>开始录音</source>
        <translation>Rozpocznij nagrywanie</translation>
    </message>
    <message>
        <source>停止录音</source>
        <translation>Zatrzymaj nagrywanie</translation>
    </message>
</context>
<context>
    <name>PerTrackDialog</name>
    <message>
        <source>逐轨预设 (每个文件可各用一套)</source>
        <translation>Presety ścieżek (osobny preset dla każdego pliku)</translation>
    </message>
    <message>
        <source>每行给一个文件挑一套预设; 「(用当前参数)」= 跟随主面板。
预设只换编码/DSP 参数 —— 输出目录/输出格式与标签仍按主面板。</source>
        <translation>Wybierz preset dla każdego pliku, jeden wiersz na plik; „(użyj bieżących parametrów)” = jak w panelu głównym.
Preset zmienia tylko parametry kodowania/DSP — folder/format wyjściowy i tagi nadal pochodzą z panelu głównego.</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Preset</translation>
    </message>
    <message>
        <source>(用当前参数)</source>
        <translation>(użyj bieżących parametrów)</translation>
    </message>
    <message>
        <source>(预设目录里没有预设 —— 先在上面「母带预设」里保存一套)</source>
        <translation>(brak presetów w folderze presetów — najpierw zapisz jeden w sekcji „Presety masteringu” powyżej)</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>PresetManagerDialog</name>
    <message>
        <source>预设管理器</source>
        <translation>Menedżer presetów</translation>
    </message>
    <message>
        <source>预设为 JSON 文件 (与 GTK 版同目录同键名, 可互读)
写入目录: %1</source>
        <translation>Presety to pliki JSON (ten sam folder i nazwy kluczy co wersja GTK, wzajemnie zgodne)
Folder zapisu: %1</translation>
    </message>
    <message>
        <source>加载选中</source>
        <translation>Wczytaj zaznaczony</translation>
    </message>
    <message>
        <source>删除选中</source>
        <translation>Usuń zaznaczony</translation>
    </message>
    <message>
        <source>保存当前为…</source>
        <translation>Zapisz bieżące jako…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Preset</translation>
    </message>
    <message>
        <source>无法读取: %1</source>
        <translation>Nie można odczytać: %1</translation>
    </message>
    <message>
        <source>预设文件解析失败: %1</source>
        <translation>Nie udało się przetworzyć pliku presetu: %1</translation>
    </message>
    <message>
        <source>预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>Preset zawiera pola nieobsługiwane w tej wersji (%1) — pominięto</translation>
    </message>
    <message>
        <source>已加载预设: %1</source>
        <translation>Wczytano preset: %1</translation>
    </message>
    <message>
        <source>删除预设</source>
        <translation>Usuń preset</translation>
    </message>
    <message>
        <source>确定删除预设 %1 ?</source>
        <translation>Usunąć preset %1?</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>Nie udało się usunąć: %1</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Zapisz jako</translation>
    </message>
    <message>
        <source>预设名称:</source>
        <translation>Nazwa presetu:</translation>
    </message>
    <message>
        <source>预设 %1 已存在, 覆盖?</source>
        <translation>Preset %1 już istnieje. Zastąpić?</translation>
    </message>
    <message>
        <source>预设名称无效: %1</source>
        <translation>Nieprawidłowa nazwa presetu: %1</translation>
    </message>
    <message>
        <source>保存失败: %1</source>
        <translation>Nie udało się zapisać: %1</translation>
    </message>
    <message>
        <source>已保存预设: %1</source>
        <translation>Zapisano preset: %1</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>名称为空</source>
        <translation>Nazwa jest pusta</translation>
    </message>
    <message>
        <source>名称不能包含 %1 或控制字符</source>
        <translation>Nazwa nie może zawierać %1 ani znaków sterujących</translation>
    </message>
    <message>
        <source>名称不能以点结尾</source>
        <translation>Nazwa nie może kończyć się kropką</translation>
    </message>
    <message>
        <source>名称 %1 是系统保留的设备名</source>
        <translation>Nazwa %1 jest zarezerwowaną nazwą urządzenia systemowego</translation>
    </message>
    <message>
        <source>文件过大 (%1 字节)</source>
        <translation>Plik jest za duży (%1 B)</translation>
    </message>
    <message>
        <source>顶层不是 JSON 对象</source>
        <translation>Najwyższy poziom nie jest obiektem JSON</translation>
    </message>
    <message>
        <source>无法读取文件</source>
        <translation>Nie można odczytać pliku</translation>
    </message>
</context>
<context>
    <name>ReferencesGui</name>
    <message>
        <source>参考标准</source>
        <translation>Normy referencyjne</translation>
    </message>
</context>
<context>
    <name>RunControlsPanel</name>
    <message>
        <source>开始转换</source>
        <translation>Rozpocznij konwersję</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Wyczyść dziennik</translation>
    </message>
    <message>
        <source>详细日志 (--verbose)</source>
        <translation>Szczegółowy dziennik (--verbose)</translation>
    </message>
    <message>
        <source>保留引擎日志（退出不删）</source>
        <translation>Zachowaj dziennik silnika (nie usuwaj przy wyjściu)</translation>
    </message>
    <message>
        <source>关（默认）：引擎日志写在系统临时目录里的一次性目录中，退出即清；
开：写到 %1 下并保留，便于把日志发给厂商排障。</source>
        <translation>Wył. (domyślnie): dziennik silnika jest zapisywany w jednorazowym folderze w systemowym katalogu tymczasowym i usuwany przy wyjściu;
Wł.: jest zapisywany w %1 i zachowywany, aby można go było wysłać producentowi w celu diagnostyki.</translation>
    </message>
    <message>
        <source>子进程: ZuvoEngine</source>
        <translation>Proces potomny: ZuvoEngine</translation>
    </message>
    <message>
        <source>GUI 通过 QProcess 调用同目录/环境变量指定的 ZuvoEngine</source>
        <translation>GUI uruchamia ZuvoEngine przez QProcess z folderu programu lub ze ścieżki podanej w zmiennej środowiskowej</translation>
    </message>
</context>
<context>
    <name>ThirdPartyGui</name>
    <message>
        <source>源码许可</source>
        <translation>Licencje kodu źródłowego</translation>
    </message>
</context>
<context>
    <name>UiLangRow</name>
    <message>
        <source>语言</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>界面语言。切换后程序会重启一次以便整套界面换语言。</source>
        <translation>Język interfejsu. Po zmianie program uruchomi się ponownie jeden raz, aby zmienić język całego interfejsu.</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Jak w systemie</translation>
    </message>
    <message>
        <source>界面语言已切换，程序将自动重启一次以生效。</source>
        <translation>Zmieniono język interfejsu. Program automatycznie uruchomi się ponownie jeden raz, aby zastosować zmianę.</translation>
    </message>
</context>
<context>
    <name>UpdateUi</name>
    <message>
        <source>正在检查更新…</source>
        <translation>Sprawdzanie aktualizacji…</translation>
    </message>
    <message>
        <source>检查更新</source>
        <translation>Sprawdź aktualizacje</translation>
    </message>
    <message>
        <source>已是最新版本 (%1)。服务器上的最新版本为 %2。</source>
        <translation>Masz najnowszą wersję (%1). Najnowsza wersja na serwerze to %2.</translation>
    </message>
    <message>
        <source>检查更新失败：</source>
        <translation>Nie udało się sprawdzić aktualizacji:</translation>
    </message>
    <message>
        <source>发现新版本 %1（当前 %2）。</source>
        <translation>Dostępna jest nowa wersja %1 (bieżąca: %2).</translation>
    </message>
    <message>
        <source>发布日期：%1</source>
        <translation>Data wydania: %1</translation>
    </message>
    <message>
        <source>更新说明：%1</source>
        <translation>Informacje o wydaniu: %1</translation>
    </message>
    <message>
        <source>发现新版本</source>
        <translation>Dostępna nowa wersja</translation>
    </message>
    <message>
        <source>下载并更新</source>
        <translation>Pobierz i zaktualizuj</translation>
    </message>
    <message>
        <source>打开下载页</source>
        <translation>Otwórz stronę pobierania</translation>
    </message>
    <message>
        <source>稍后</source>
        <translation>Później</translation>
    </message>
    <message>
        <source>正在下载更新…</source>
        <translation>Pobieranie aktualizacji…</translation>
    </message>
    <message>
        <source>下载更新</source>
        <translation>Pobieranie aktualizacji</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Aktualizacja</translation>
    </message>
    <message>
        <source>程序现在退出。</source>
        <translation>Program zostanie teraz zamknięty.</translation>
    </message>
    <message>
        <source>更新失败</source>
        <translation>Aktualizacja nie powiodła się</translation>
    </message>
</context>
<context>
    <name>pv::PreviewDialog</name>
    <message>
        <source>预览: %1</source>
        <translation>Podgląd: %1</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>Przebieg</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>Spektrogram</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>%1 — %2 Hz / %3 ch, 预览 %4 s (上限 30 s)</source>
        <translation>%1 — %2 Hz / %3 ch, podgląd %4 s (maks. 30 s)</translation>
    </message>
    <message>
        <source>该格式 (%1) 预览待后续 — 目前仅支持 WAV (DSD 解码属后续里程碑)</source>
        <translation>Podgląd tego formatu (%1) nie jest jeszcze dostępny — na razie tylko WAV (dekodowanie DSD planowane w kolejnym etapie)</translation>
    </message>
    <message>
        <source>解码失败: %1</source>
        <translation>Błąd dekodowania: %1</translation>
    </message>
</context>
</TS>