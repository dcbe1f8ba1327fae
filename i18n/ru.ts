<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="zh_CN">
<context>
    <name>ConversionQueue</name>
    <message>
        <source>引擎日志: %1</source>
        <translation>Журнал движка: %1</translation>
    </message>
    <message>
        <source>(交给引擎默认)</source>
        <translation>(по умолчанию движка)</translation>
    </message>
    <message>
        <source>待转换文件: %1 个</source>
        <translation>Файлов к конвертации: %1</translation>
    </message>
    <message>
        <source>输出目录: %1 (命名模板: %2, 格式: %3)</source>
        <translation>Папка вывода: %1 (шаблон имени: %2, формат: %3)</translation>
    </message>
    <message>
        <source>✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)</source>
        <translation>✗ Не удалось разобрать пресет дорожки; для этого файла используются текущие параметры: %1 (%2)</translation>
    </message>
    <message>
        <source>逐轨预设《%1》</source>
        <translation>Пресет дорожки «%1»</translation>
    </message>
    <message>
        <source>  预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>  Полей пресета, не поддерживаемых этой версией: %1 — пропущены</translation>
    </message>
    <message>
        <source>停止: 剩余 %1 个文件已跳过</source>
        <translation>Остановлено: пропущено оставшихся файлов: %1</translation>
    </message>
    <message>
        <source>━━━ [%1/%2] 转换 %3</source>
        <translation>━━━ [%1/%2] Конвертация %3</translation>
    </message>
    <message>
        <source>━━━ 转换 %1</source>
        <translation>━━━ Конвертация %1</translation>
    </message>
    <message>
        <source>✗ 无法创建输出目录: %1</source>
        <translation>✗ Не удаётся создать папку вывода: %1</translation>
    </message>
    <message>
        <source>执行: %1 %2</source>
        <translation>Выполнение: %1 %2</translation>
    </message>
    <message>
        <source>转换会话: %1</source>
        <translation>Сеанс конвертации: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>в процессе (прямой вызов библиотеки)</translation>
    </message>
    <message>
        <source>子进程(起 CLI)</source>
        <translation>дочерний процесс (CLI)</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 — %1</source>
        <translation>Ошибка: не удаётся запустить движок — %1</translation>
    </message>
    <message>
        <source>✓ %1 完成</source>
        <translation>✓ %1 готово</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (未完成的文件已删除)</source>
        <translation>■ Остановлено: %1 (незавершённый файл удалён)</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (文件保留, 可能不完整)</source>
        <translation>■ Остановлено: %1 (файл сохранён, может быть неполным)</translation>
    </message>
    <message>
        <source>■ 已停止(强制结束进程): %1</source>
        <translation>■ Остановлено (процесс принудительно завершён): %1</translation>
    </message>
    <message>
        <source>✗ %1 异常退出 (崩溃/被终止)</source>
        <translation>✗ %1: аварийное завершение (сбой/принудительная остановка)</translation>
    </message>
    <message>
        <source>✗ 退出码: %1</source>
        <translation>✗ Код выхода: %1</translation>
    </message>
    <message>
        <source>── 引擎日志 (末尾 %1 行): %2 ──</source>
        <translation>── Журнал движка (последние строки: %1): %2 ──</translation>
    </message>
    <message>
        <source>
全部完成: %1 OK</source>
        <translation>
Всё готово: %1 OK</translation>
    </message>
    <message>
        <source>
完成: %1 OK, %2 失败</source>
        <translation>
Готово: %1 OK, %2 с ошибкой</translation>
    </message>
    <message>
        <source>转换已停止</source>
        <translation>Конвертация остановлена</translation>
    </message>
    <message>
        <source>当前没有运行的进程</source>
        <translation>Нет запущенных процессов</translation>
    </message>
    <message>
        <source>正在停止转换进程…</source>
        <translation>Остановка конвертации…</translation>
    </message>
    <message>
        <source>终止当前转换进程…</source>
        <translation>Завершение текущего процесса конвертации…</translation>
    </message>
    <message>
        <source>正在通知引擎停止…</source>
        <translation>Запрос остановки движку…</translation>
    </message>
    <message>
        <source>引擎 2 秒内没有确认停止 —— 仍在收尾(可再点一次, 或关闭程序)。</source>
        <translation>Движок не подтвердил остановку в течение 2 секунд — завершение ещё идёт (нажмите ещё раз или закройте программу).</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[управление] %1</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但没有写出输出文件 %2</source>
        <translation>✗ %1: движок сообщил о завершении, но выходной файл не записан: %2</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件 %2 没有被写过 (还是旧的)</source>
        <translation>✗ %1: движок сообщил о завершении, но выходной файл %2 не перезаписан (остался старый)</translation>
    </message>
    <message>
        <source>文件是空的</source>
        <translation>Файл пуст</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2), 已删除: %3</source>
        <translation>✗ %1: движок сообщил о завершении, но выходной файл не читается (%2) и удалён: %3</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2): %3</source>
        <translation>✗ %1: движок сообщил о завершении, но выходной файл не читается (%2): %3</translation>
    </message>
    <message>
        <source> …(这一行太长, 后面 %1 个字符没有显示)</source>
        <translation> …(строка слишком длинная; не показано символов: %1)</translation>
    </message>
    <message>
        <source>不是 DSF 文件</source>
        <translation>Не файл DSF</translation>
    </message>
    <message>
        <source>DSF 头里的文件长度与实际不符 (文件不完整)</source>
        <translation>Размер файла в заголовке DSF не совпадает с фактическим (файл неполный)</translation>
    </message>
    <message>
        <source>DSF 格式块不对</source>
        <translation>Неверный блок формата DSF</translation>
    </message>
    <message>
        <source>DSF 数据块不对</source>
        <translation>Неверный блок данных DSF</translation>
    </message>
    <message>
        <source>DSF 元数据位置不对</source>
        <translation>Неверное смещение метаданных DSF</translation>
    </message>
    <message>
        <source>不是 DSDIFF 文件</source>
        <translation>Не файл DSDIFF</translation>
    </message>
    <message>
        <source>DSDIFF 头里的长度与实际不符 (文件不完整)</source>
        <translation>Длина в заголовке DSDIFF не совпадает с фактической (файл неполный)</translation>
    </message>
    <message>
        <source>DSDIFF 块超出文件</source>
        <translation>Блок DSDIFF выходит за пределы файла</translation>
    </message>
    <message>
        <source>DSDIFF 缺少 FVER/PROP/声音块</source>
        <translation>В DSDIFF отсутствует блок FVER/PROP/звуковых данных</translation>
    </message>
    <message>
        <source>不是 WAV 文件</source>
        <translation>Не файл WAV</translation>
    </message>
    <message>
        <source>RF64 的 ds64 块不对</source>
        <translation>Неверный блок ds64 в RF64</translation>
    </message>
    <message>
        <source>WAV 缺少格式块</source>
        <translation>В WAV отсутствует блок формата</translation>
    </message>
    <message>
        <source>WAV 数据块超出文件 (文件不完整)</source>
        <translation>Блок данных WAV выходит за пределы файла (файл неполный)</translation>
    </message>
    <message>
        <source>WAV 格式块不对</source>
        <translation>Неверный блок формата WAV</translation>
    </message>
    <message>
        <source>WAV 缺少数据块</source>
        <translation>В WAV отсутствует блок данных</translation>
    </message>
    <message>
        <source>不是 W64 文件</source>
        <translation>Не файл W64</translation>
    </message>
    <message>
        <source>W64 块超出文件 (文件不完整)</source>
        <translation>Блок W64 выходит за пределы файла (файл неполный)</translation>
    </message>
    <message>
        <source>W64 缺少格式块</source>
        <translation>В W64 отсутствует блок формата</translation>
    </message>
    <message>
        <source>W64 缺少数据块</source>
        <translation>В W64 отсутствует блок данных</translation>
    </message>
    <message>
        <source>不是 FLAC 文件</source>
        <translation>Не файл FLAC</translation>
    </message>
    <message>
        <source>FLAC 缺少 STREAMINFO</source>
        <translation>В FLAC отсутствует STREAMINFO</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Не удаётся открыть</translation>
    </message>
</context>
<context>
    <name>EngineSession</name>
    <message>
        <source>进程内会话起不来 (rc=%1)</source>
        <translation>Не удалось запустить сеанс в процессе (rc=%1)</translation>
    </message>
</context>
<context>
    <name>FileListWidget</name>
    <message>
        <source>  ◇ 预设: %1</source>
        <translation>  ◇ Пресет: %1</translation>
    </message>
</context>
<context>
    <name>InputOutputPanel</name>
    <message>
        <source>添加文件…</source>
        <translation>Добавить файлы…</translation>
    </message>
    <message>
        <source>添加目录…</source>
        <translation>Добавить папку…</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>Удалить выбранное</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Очистить список</translation>
    </message>
    <message>
        <source>支持拖入音频文件或文件夹</source>
        <translation>Перетащите сюда аудиофайлы или папки</translation>
    </message>
    <message>
        <source>输出 .dsf / .dff 文件</source>
        <translation>Выходной файл .dsf / .dff</translation>
    </message>
    <message>
        <source>浏览…</source>
        <translation>Обзор…</translation>
    </message>
    <message>
        <source>输出文件:</source>
        <translation>Выходной файл:</translation>
    </message>
    <message>
        <source>留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名</source>
        <translation>Пусто — используется выходной файл выше; если задано, имя для каждого входного файла строится по шаблону</translation>
    </message>
    <message>
        <source>批量输出: 所有输入写进这个目录, 文件名由下面的命名模板算</source>
        <translation>Пакетный вывод: все входные файлы записываются в эту папку, имена строятся по шаблону ниже</translation>
    </message>
    <message>
        <source>浏览目录…</source>
        <translation>Выбрать папку…</translation>
    </message>
    <message>
        <source>输出目录:</source>
        <translation>Папка вывода:</translation>
    </message>
    <message>
        <source>输出目录模式下每个文件的扩展名 (引擎按扩展名认格式)</source>
        <translation>Расширение файлов в режиме папки вывода (движок определяет формат по расширению)</translation>
    </message>
    <message>
        <source>变量: {input} 输入文件名  {ext} 输出格式  {track} / {track:02} 队列序号  {artist} {title} 界面字段
留空 = {input}; 变量没有值时回退用输入文件名; 模板里可以带子目录</source>
        <translation>Переменные: {input} имя входного файла  {ext} выходной формат  {track} / {track:02} номер в очереди  {artist} {title} поля интерфейса
Пусто = {input}; переменная без значения заменяется именем входного файла; шаблон может содержать подпапки</translation>
    </message>
    <message>
        <source>输出格式:</source>
        <translation>Выходной формат:</translation>
    </message>
    <message>
        <source>命名模板:</source>
        <translation>Шаблон имени:</translation>
    </message>
    <message>
        <source>标签: DFF→COMT, DSF→ID3</source>
        <translation>Теги: DFF→COMT, DSF→ID3</translation>
    </message>
    <message>
        <source>0 = 不写曲目号 (引擎只接受 1..998)</source>
        <translation>0 = без номера трека (движок принимает только 1..998)</translation>
    </message>
    <message>
        <source>写入标签的说明文字</source>
        <translation>Текст комментария для тега</translation>
    </message>
    <message>
        <source>从输入文件读取标签</source>
        <translation>Читать теги из входного файла</translation>
    </message>
    <message>
        <source>艺术家:</source>
        <translation>Исполнитель:</translation>
    </message>
    <message>
        <source>标题:</source>
        <translation>Название:</translation>
    </message>
    <message>
        <source>专辑:</source>
        <translation>Альбом:</translation>
    </message>
    <message>
        <source>流派:</source>
        <translation>Жанр:</translation>
    </message>
    <message>
        <source>年份:</source>
        <translation>Год:</translation>
    </message>
    <message>
        <source>曲目号:</source>
        <translation>Трек №:</translation>
    </message>
    <message>
        <source>备注:</source>
        <translation>Комментарий:</translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>Файлов: %1</translation>
    </message>
    <message>
        <source>音频文件 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;所有文件 (*)</source>
        <translation>Аудиофайлы (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;Все файлы (*)</translation>
    </message>
    <message>
        <source>选择输入文件</source>
        <translation>Выбор входных файлов</translation>
    </message>
    <message>
        <source>选择目录</source>
        <translation>Выбор папки</translation>
    </message>
    <message>
        <source>PCM 音频 (*.wav *.w64 *.flac);;所有文件 (*)</source>
        <translation>PCM-аудио (*.wav *.w64 *.flac);;Все файлы (*)</translation>
    </message>
    <message>
        <source>DSDIFF (*.dff);;DSD Stream (*.dsf);;所有文件 (*)</source>
        <translation>DSDIFF (*.dff);;DSD Stream (*.dsf);;Все файлы (*)</translation>
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
        <translation>Выбор выходного файла</translation>
    </message>
    <message>
        <source>选择输出目录</source>
        <translation>Выбор папки вывода</translation>
    </message>
    <message>
        <source>波形/频谱预览…</source>
        <translation>Просмотр волны/спектрограммы…</translation>
    </message>
    <message>
        <source>逐轨预设…</source>
        <translation>Пресеты дорожек…</translation>
    </message>
    <message>
        <source>给队列里每个文件单独指定一套预设
预设只换编码/DSP 参数; 输出目录/输出格式与标签仍按面板</source>
        <translation>Назначить отдельный пресет каждому файлу в очереди
Пресет меняет только параметры кодирования/DSP; папка/формат вывода и теги берутся с панели</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>开始转换</source>
        <translation>Начать конвертацию</translation>
    </message>
    <message>
        <source>Zuvo Audio Suite — 音频转换工具</source>
        <translation>Zuvo Audio Suite — конвертер аудио</translation>
    </message>
    <message>
        <source>设置输出文件: %1</source>
        <translation>Выходной файл задан: %1</translation>
    </message>
    <message>
        <source>目录中没有音频文件</source>
        <translation>В папке нет аудиофайлов</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改文件列表</source>
        <translation>Нельзя изменять список файлов во время конвертации</translation>
    </message>
    <message>
        <source>找到 ZuvoEngine (音频转换引擎): %1</source>
        <translation>Найден ZuvoEngine (движок конвертации аудио): %1</translation>
    </message>
    <message>
        <source>警告: 未找到 ZuvoEngine — 转换功能不可用。请将其放在程序同目录、或加入 PATH。</source>
        <translation>Внимание: ZuvoEngine не найден — конвертация недоступна. Поместите его в папку программы или добавьте в PATH.</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine</source>
        <translation>ZuvoEngine не найден</translation>
    </message>
    <message>
        <source>已添加 %1 个文件</source>
        <translation>Добавлено файлов: %1</translation>
    </message>
    <message>
        <source>已跳过 %1 个重复文件</source>
        <translation>Пропущено дубликатов: %1</translation>
    </message>
    <message>
        <source>转换完成</source>
        <translation>Конвертация завершена</translation>
    </message>
    <message>
        <source>转换 %1 个文件</source>
        <translation>Конвертировано файлов: %1</translation>
    </message>
    <message>
        <source>转换 %1 个文件, %2 个失败</source>
        <translation>Конвертировано файлов: %1, с ошибкой: %2</translation>
    </message>
    <message>
        <source>打开输出目录</source>
        <translation>Открыть папку вывода</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>AUTORUN 参数不完整</source>
        <translation>Неполные аргументы AUTORUN</translation>
    </message>
    <message>
        <source>AUTORUN: %1 个输入 → %2</source>
        <translation>AUTORUN: входных файлов %1 → %2</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>Выходной формат</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM) 的输出必须是 .wav 或 .flac</source>
        <translation>В обратном режиме (PDM2PCM) вывод должен быть .wav или .flac</translation>
    </message>
    <message>
        <source>DXD 输出只支持 .wav / .w64 / .flac (引擎按扩展名认容器)</source>
        <translation>Вывод DXD поддерживает только .wav / .w64 / .flac (движок определяет контейнер по расширению)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>错误: DST 压缩仅支持 DFF 格式输出
请把输出格式/扩展名改为 .dff 或禁用 DST 压缩</source>
        <translation>Ошибка: сжатие DST поддерживает только вывод в DFF
Смените выходной формат/расширение на .dff или отключите сжатие DST</translation>
    </message>
    <message>
        <source>输出文件必须是 .dsf 或 .dff 格式</source>
        <translation>Выходной файл должен быть в формате .dsf или .dff</translation>
    </message>
    <message>
        <source>转换中</source>
        <translation>Идёт конвертация</translation>
    </message>
    <message>
        <source>已有转换任务正在进行中, 请等待完成。</source>
        <translation>Конвертация уже выполняется, дождитесь её завершения.</translation>
    </message>
    <message>
        <source>输入文件</source>
        <translation>Входные файлы</translation>
    </message>
    <message>
        <source>请选择输入文件</source>
        <translation>Выберите входные файлы</translation>
    </message>
    <message>
        <source>元数据</source>
        <translation>Метаданные</translation>
    </message>
    <message>
        <source>输出 .dff 必须填「艺术家」和「标题」两个值
(它们是 DFF 的 COMT 标签; 必填项, 不填不开始转换)</source>
        <translation>Для вывода в .dff нужно заполнить «Исполнитель» и «Название»
(они образуют тег COMT в DFF; поля обязательны — без них конвертация не начнётся)</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>Отводы</translation>
    </message>
    <message>
        <source>Taps 必须是偶数且不小于 512 (0 = 用引擎默认值)</source>
        <translation>Число отводов должно быть чётным и не меньше 512 (0 = по умолчанию движка)</translation>
    </message>
    <message>
        <source>过渡带</source>
        <translation>Переходная полоса</translation>
    </message>
    <message>
        <source>阻带截止必须大于通带截止 (否则过渡带为零/负, 引擎会拒绝)</source>
        <translation>Граница полосы заграждения должна быть выше границы полосы пропускания (иначе переходная полоса нулевая/отрицательная и движок её отклонит)</translation>
    </message>
    <message>
        <source>输出目录</source>
        <translation>Папка вывода</translation>
    </message>
    <message>
        <source>无法创建输出目录:
%1</source>
        <translation>Не удаётся создать папку вывода:
%1</translation>
    </message>
    <message>
        <source>输出文件</source>
        <translation>Выходной файл</translation>
    </message>
    <message>
        <source>请选择输出文件</source>
        <translation>Выберите выходной файл</translation>
    </message>
    <message>
        <source>噪声本底分析</source>
        <translation>Анализ шумового порога</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「PDF 报告」开关</source>
        <translation>Анализ шумового порога работает только с включённым PDF-отчётом
Включите параметр «PDF-отчёт»</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>Эквалайзер</translation>
    </message>
    <message>
        <source>启用了均衡器但没有有效频段
请添加至少一个频段 (中心频率 &gt; 0), 或禁用均衡器</source>
        <translation>Эквалайзер включён, но нет ни одной действующей полосы
Добавьте хотя бы одну полосу (центральная частота &gt; 0) или отключите эквалайзер</translation>
    </message>
    <message>
        <source>引擎缺失</source>
        <translation>Движок не найден</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine。请将其放在程序同目录、或加入 PATH,
也可设置环境变量 ZUVO_ENGINE_BIN 指向其完整路径。</source>
        <translation>ZuvoEngine не найден. Поместите его в папку программы или добавьте в PATH,
либо укажите полный путь в переменной окружения ZUVO_ENGINE_BIN.</translation>
    </message>
    <message>
        <source>均衡器未启用</source>
        <translation>Эквалайзер не включён</translation>
    </message>
    <message>
        <source>基本参数</source>
        <translation>Основные</translation>
    </message>
    <message>
        <source>滤波</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>空间与音调</source>
        <translation>Пространство и тембр</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>Каналы</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>Дополнительно</translation>
    </message>
    <message>
        <source>启用 DST 压缩模式</source>
        <translation>Режим сжатия DST включён</translation>
    </message>
    <message>
        <source>禁用 DST 压缩模式</source>
        <translation>Режим сжатия DST отключён</translation>
    </message>
    <message>
        <source>DST 压缩</source>
        <translation>Сжатие DST</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出格式将自动更改为 DFF</source>
        <translation>Сжатие DST поддерживает только формат DFF
Выходной формат будет автоматически изменён на DFF</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出文件将自动更改为 DFF 格式</source>
        <translation>Сжатие DST поддерживает только формат DFF
Выходной файл будет автоматически изменён на формат DFF</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改参数</source>
        <translation>Нельзя изменять параметры во время конвертации</translation>
    </message>
    <message>
        <source>已加载母带预设: %1</source>
        <translation>Загружен пресет мастеринга: %1</translation>
    </message>
    <message>
        <source>均衡器: %1 行无效 (需中心频率&gt;0) 已被跳过</source>
        <translation>Эквалайзер: пропущено недопустимых строк: %1 (центральная частота должна быть &gt; 0)</translation>
    </message>
    <message>
        <source>注意: 无法向引擎查询它不支持的选项, 直接开始转换</source>
        <translation>Примечание: не удалось запросить у движка неподдерживаемые параметры; конвертация начинается</translation>
    </message>
    <message>
        <source>转换未开始: 当前引擎构建不支持这些已选择的选项: %1</source>
        <translation>Конвертация не начата: текущая сборка движка не поддерживает выбранные параметры: %1</translation>
    </message>
    <message>
        <source>引擎不支持的选项</source>
        <translation>Параметры, не поддерживаемые движком</translation>
    </message>
    <message>
        <source>当前引擎构建不支持下列已选择的选项, 转换不会开始:
%1

请在参数页关闭它们后再开始 (预设里可以保留)。</source>
        <translation>Текущая сборка движка не поддерживает следующие выбранные параметры, поэтому конвертация не начнётся:
%1

Отключите их на страницах параметров и начните заново (в пресетах их можно оставить).</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改预设</source>
        <translation>Нельзя изменять пресеты во время конвертации</translation>
    </message>
    <message>
        <source>转换进行中, 不能改逐轨预设。</source>
        <translation>Во время конвертации нельзя менять пресеты дорожек.</translation>
    </message>
    <message>
        <source>请先添加输入文件</source>
        <translation>Сначала добавьте входные файлы</translation>
    </message>
    <message>
        <source>逐轨预设: 已全部改回「用当前参数」</source>
        <translation>Пресеты дорожек: все возвращены к «текущим параметрам»</translation>
    </message>
    <message>
        <source>逐轨预设: %1 个文件各用一套</source>
        <translation>Пресеты дорожек: свой пресет у файлов: %1</translation>
    </message>
    <message>
        <source>转换进行中, 不能预览</source>
        <translation>Нельзя просматривать во время конвертации</translation>
    </message>
    <message>
        <source>请先添加文件</source>
        <translation>Сначала добавьте файлы</translation>
    </message>
    <message>
        <source>没有可预览的文件</source>
        <translation>Нет файлов для просмотра</translation>
    </message>
    <message>
        <source>单环 (NS, --order 9)</source>
        <translation>Одна петля (NS, --order 9)</translation>
    </message>
    <message>
        <source>古典</source>
        <translation>Классика</translation>
    </message>
    <message>
        <source>古典: DSD-256, 131072 taps, 高带宽</source>
        <translation>Классика: DSD-256, 131072 taps, широкая полоса</translation>
    </message>
    <message>
        <source>流行</source>
        <translation>Поп</translation>
    </message>
    <message>
        <source>流行: DSD-128, 65536 taps</source>
        <translation>Поп: DSD-128, 65536 taps</translation>
    </message>
    <message>
        <source>爵士</source>
        <translation>Джаз</translation>
    </message>
    <message>
        <source>爵士: DSD-128, 65536 taps</source>
        <translation>Джаз: DSD-128, 65536 taps</translation>
    </message>
    <message>
        <source>DSD 采样率:</source>
        <translation>Частота дискретизации DSD:</translation>
    </message>
    <message>
        <source>Taps 数 (0=引擎默认):</source>
        <translation>Отводы (0=по умолчанию):</translation>
    </message>
    <message>
        <source>SOS cascade + error feedback, NS15 profile (引擎默认): 实测带内噪声比单环 NS9 低 11.4 dB</source>
        <translation>Каскад SOS + обратная связь по ошибке, профиль NS15 (по умолчанию движка): измеренный внутриполосный шум на 11,4 dB ниже, чем у одной петли NS9</translation>
    </message>
    <message>
        <source>Chebyshev 多项式压缩 (可与 MASH 叠加)</source>
        <translation>Полиномиальное сжатие Чебышёва (совместимо с MASH)</translation>
    </message>
    <message>
        <source>调制器:</source>
        <translation>Модулятор:</translation>
    </message>
    <message>
        <source>母带预设:</source>
        <translation>Пресеты мастеринга:</translation>
    </message>
    <message>
        <source>预设管理器…</source>
        <translation>Менеджер пресетов…</translation>
    </message>
    <message>
        <source>DST 压缩 (仅 .dff 输出)</source>
        <translation>Сжатие DST (только вывод .dff)</translation>
    </message>
    <message>
        <source>DXD 输出 (高解析 PCM)</source>
        <translation>Вывод DXD (PCM высокого разрешения)</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM)</source>
        <translation>Обратный режим (PDM2PCM)</translation>
    </message>
    <message>
        <source>输入 DSD(DSF/DFF), 输出 PCM/WAV —— 与 PCM→PDM 无关</source>
        <translation>Вход DSD (DSF/DFF), выход PCM/WAV — не связано с PCM→PDM</translation>
    </message>
    <message>
        <source>DST 压缩等级 (0=关闭):</source>
        <translation>Уровень сжатия DST (0=выкл.):</translation>
    </message>
    <message>
        <source>高带宽模式</source>
        <translation>Режим широкой полосы</translation>
    </message>
    <message>
        <source>OpenCL 加速 (GPU)</source>
        <translation>Ускорение OpenCL (GPU)</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 OpenCL 支持</source>
        <translation>Текущая сборка движка скомпилирована без поддержки OpenCL</translation>
    </message>
    <message>
        <source>添加 PDF 报告</source>
        <translation>Добавить PDF-отчёт</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 PDF 报告 (需要 rsvg+cairo)</source>
        <translation>Текущая сборка движка не поддерживает PDF-отчёты (нужны rsvg+cairo)</translation>
    </message>
    <message>
        <source>只影响 PDF 报告内容, 不改音频比特流 (实测: 开关它 dsf 逐字节相同)</source>
        <translation>Влияет только на содержимое PDF-отчёта, не на аудиопоток битов (проверено: dsf побайтово совпадает с ним и без него)</translation>
    </message>
    <message>
        <source>分析报告 (--report)</source>
        <translation>Отчёт анализа (--report)</translation>
    </message>
    <message>
        <source>噪声本底分析 (需 PDF 报告)</source>
        <translation>Анализ шумового порога (нужен PDF-отчёт)</translation>
    </message>
    <message>
        <source>降噪: 关</source>
        <translation>Шумоподавление: выкл.</translation>
    </message>
    <message>
        <source>降噪: 轻 (-12dB 地板, 最保真)</source>
        <translation>Шумоподавление: слабое (порог -12dB, максимальная точность)</translation>
    </message>
    <message>
        <source>降噪: 标准 (-18dB 地板)</source>
        <translation>Шумоподавление: стандартное (порог -18dB)</translation>
    </message>
    <message>
        <source>降噪: 强 (感知加权地板, 最深)</source>
        <translation>Шумоподавление: сильное (психоакустически взвешенный порог, максимальное)</translation>
    </message>
    <message>
        <source>保留乐器泛音 (降噪时保住泛音与泛音列)</source>
        <translation>Сохранять гармоники инструментов (при шумоподавлении сохраняются гармоники и обертоновый ряд)</translation>
    </message>
    <message>
        <source>报告里加峰值 (--peak)</source>
        <translation>Добавить пик в отчёт (--peak)</translation>
    </message>
    <message>
        <source>报告里加 RMS (--rms)</source>
        <translation>Добавить RMS в отчёт (--rms)</translation>
    </message>
    <message>
        <source>报告里不要动态范围一节 (--no-dynamic-range)</source>
        <translation>Без раздела динамического диапазона в отчёте (--no-dynamic-range)</translation>
    </message>
    <message>
        <source>输出模式</source>
        <translation>Режим вывода</translation>
    </message>
    <message>
        <source>带宽、加速与报告</source>
        <translation>Полоса, ускорение и отчёт</translation>
    </message>
    <message>
        <source>降噪与报告内容</source>
        <translation>Шумоподавление и содержимое отчёта</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「添加 PDF 报告」</source>
        <translation>Анализ шумового порога работает только с включённым PDF-отчётом
Включите «Добавить PDF-отчёт»</translation>
    </message>
    <message>
        <source>声道设置</source>
        <translation>Настройки каналов</translation>
    </message>
    <message>
        <source>强制原始声道数</source>
        <translation>Сохранить исходное число каналов</translation>
    </message>
    <message>
        <source>四声道模式 (需重置声道数=4)</source>
        <translation>Квадро-режим (требуется сброс числа каналов = 4)</translation>
    </message>
    <message>
        <source>添加环绕声道</source>
        <translation>Добавить каналы окружения</translation>
    </message>
    <message>
        <source>声道交换</source>
        <translation>Поменять каналы местами</translation>
    </message>
    <message>
        <source>重置声道数 (0=不动):</source>
        <translation>Сброс числа каналов (0=без изменений):</translation>
    </message>
    <message>
        <source>规则</source>
        <translation>Правила</translation>
    </message>
    <message>
        <source>「强制原始声道数」优先: 勾选后重置声道数、四声道模式和添加环绕声道都不发给引擎。

四声道模式需要重置声道数为 4; 勾选时会自动设为 4。

「声道交换」交换前两个声道, 与其它选项可同时使用。</source>
        <translation>«Сохранить исходное число каналов» имеет приоритет: если включено, сброс числа каналов, квадро-режим и добавление каналов окружения не передаются движку.

Квадро-режиму нужен сброс числа каналов на 4; при включении значение 4 устанавливается автоматически.

«Поменять каналы местами» меняет местами первые два канала и совместимо с остальными параметрами.</translation>
    </message>
    <message>
        <source>四声道模式: 重置声道数已自动设为 4</source>
        <translation>Квадро-режим: число каналов автоматически установлено на 4</translation>
    </message>
    <message>
        <source>启用均衡器 (EQ)</source>
        <translation>Включить эквалайзер (EQ)</translation>
    </message>
    <message>
        <source>添加频段</source>
        <translation>Добавить полосу</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>Удалить выбранное</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>中心频率 (Hz)</source>
        <translation>Центральная частота (Hz)</translation>
    </message>
    <message>
        <source>增益 (dB)</source>
        <translation>Усиление (dB)</translation>
    </message>
    <message>
        <source>带宽</source>
        <translation>Ширина полосы</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>Единица</translation>
    </message>
    <message>
        <source>预览按 44.1 kHz 估算 — 引擎槽位: 首段低架, 满 10 段时末段高架</source>
        <translation>Предпросмотр рассчитан для 44,1 kHz — слоты движка: первая полоса — низкочастотный шельф; при всех 10 полосах последняя — высокочастотный шельф</translation>
    </message>
    <message>
        <source>启用均衡器 (--eq 频段 f,g,bw{单位})</source>
        <translation>Эквалайзер включён (--eq полоса f,g,bw{единица})</translation>
    </message>
    <message>
        <source>禁用均衡器</source>
        <translation>Эквалайзер отключён</translation>
    </message>
    <message>
        <source>窗口法 (Window Method)</source>
        <translation>Оконный метод (Window Method)</translation>
    </message>
    <message>
        <source>最小相位 (Min-Phase)</source>
        <translation>Минимальная фаза (Min-Phase)</translation>
    </message>
    <message>
        <source>应用预失真处理</source>
        <translation>Применить предыскажение</translation>
    </message>
    <message>
        <source>算法:</source>
        <translation>Алгоритм:</translation>
    </message>
    <message>
        <source>滤波类型:</source>
        <translation>Тип фильтра:</translation>
    </message>
    <message>
        <source>窗口法参数</source>
        <translation>Параметры оконного метода</translation>
    </message>
    <message>
        <source>窗口类型:</source>
        <translation>Тип окна:</translation>
    </message>
    <message>
        <source>Remez 算法参数</source>
        <translation>Параметры алгоритма Remez</translation>
    </message>
    <message>
        <source>最大迭代次数:</source>
        <translation>Макс. число итераций:</translation>
    </message>
    <message>
        <source>网格密度:</source>
        <translation>Плотность сетки:</translation>
    </message>
    <message>
        <source>停止带衰减 (A_stop)</source>
        <translation>Затухание в полосе заграждения (A_stop)</translation>
    </message>
    <message>
        <source>0=不发</source>
        <translation>0=не передавать</translation>
    </message>
    <message>
        <source>停止带衰减 (dB):</source>
        <translation>Затухание в полосе заграждения (dB):</translation>
    </message>
    <message>
        <source>过渡带 (截止频率)</source>
        <translation>Переходная полоса (частоты среза)</translation>
    </message>
    <message>
        <source>通带截止 (Hz):</source>
        <translation>Граница полосы пропускания (Hz):</translation>
    </message>
    <message>
        <source>阻带截止 (Hz):</source>
        <translation>Граница полосы заграждения (Hz):</translation>
    </message>
    <message>
        <source>增益 (ABS)</source>
        <translation>Усиление (ABS)</translation>
    </message>
    <message>
        <source>绝对值增益:</source>
        <translation>Абсолютное усиление:</translation>
    </message>
    <message>
        <source>HRTF 空间音频</source>
        <translation>Пространственный звук HRTF</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf)</source>
        <translation>Включить пространственный звук HRTF (--hrtf)</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf &lt;mono|ms|stereo&gt;)</source>
        <translation>Пространственный звук HRTF включён (--hrtf &lt;mono|ms|stereo&gt;)</translation>
    </message>
    <message>
        <source>禁用 HRTF 空间音频</source>
        <translation>Пространственный звук HRTF отключён</translation>
    </message>
    <message>
        <source>模式:</source>
        <translation>Режим:</translation>
    </message>
    <message>
        <source>干湿比 (dry/wet):</source>
        <translation>Соотношение dry/wet:</translation>
    </message>
    <message>
        <source>侧向扩散比:</source>
        <translation>Боковое рассеяние:</translation>
    </message>
    <message>
        <source>深度 (+1前 / 0耳位 / -1后):</source>
        <translation>Глубина (+1 спереди / 0 у ушей / -1 сзади):</translation>
    </message>
    <message>
        <source>使用引擎内置 HRIR; 不提供自定义 .sofa 文件</source>
        <translation>Используется встроенный HRIR движка; пользовательские файлы .sofa не поддерживаются</translation>
    </message>
    <message>
        <source>环绕</source>
        <translation>Окружение</translation>
    </message>
    <message>
        <source>启用环绕 (--surround)</source>
        <translation>Включить окружение (--surround)</translation>
    </message>
    <message>
        <source>启用环绕 (--surround delayMs mix side balance)</source>
        <translation>Окружение включено (--surround delayMs mix side balance)</translation>
    </message>
    <message>
        <source>禁用环绕</source>
        <translation>Окружение отключено</translation>
    </message>
    <message>
        <source>侧向 (side)</source>
        <translation>Бок (side)</translation>
    </message>
    <message>
        <source>延迟 (ms):</source>
        <translation>Задержка (ms):</translation>
    </message>
    <message>
        <source>混合 (%):</source>
        <translation>Микс (%):</translation>
    </message>
    <message>
        <source>平衡 (-100~100, 0=不发):</source>
        <translation>Баланс (-100~100, 0=не передавать):</translation>
    </message>
    <message>
        <source>音调 (shelving)</source>
        <translation>Тембр (шельфовые фильтры)</translation>
    </message>
    <message>
        <source>低音 (dB):</source>
        <translation>Низкие (dB):</translation>
    </message>
    <message>
        <source>高音 (dB):</source>
        <translation>Высокие (dB):</translation>
    </message>
    <message>
        <source>EQ 前置衰减 (dB):</source>
        <translation>Предварительное ослабление EQ (dB):</translation>
    </message>
    <message>
        <source>启用 DSRE 数字频谱共振增强 (--dsre)</source>
        <translation>Включить DSRE — цифровое усиление спектрального резонанса (--dsre)</translation>
    </message>
    <message>
        <source>启用 DSRE (--dsre mix)</source>
        <translation>DSRE включён (--dsre mix)</translation>
    </message>
    <message>
        <source>禁用 DSRE</source>
        <translation>DSRE отключён</translation>
    </message>
    <message>
        <source>干湿比 (0=dry, 1=全效果):</source>
        <translation>Dry/wet (0=dry, 1=полный эффект):</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>AUTORUN 预设: %1</source>
        <translation>Пресет AUTORUN: %1</translation>
    </message>
    <message>
        <source>✗ AUTORUN 预设无法使用: %1 (%2)</source>
        <translation>✗ Пресет AUTORUN нельзя использовать: %1 (%2)</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_PLAYTEST 指定的文件不存在: %1</source>
        <translation>Ошибка: файл, указанный в ZUVO_AI_PLAYTEST, не существует: %1</translation>
    </message>
    <message>
        <source>设备名直接传给 ZuvoPlayer -dev</source>
        <translation>Имя устройства передаётся в ZuvoPlayer как -dev</translation>
    </message>
    <message>
        <source>DAC 设备:</source>
        <translation>Устройство ЦАП:</translation>
    </message>
    <message>
        <source>流式播放模式 (-stream)</source>
        <translation>Потоковое воспроизведение (-stream)</translation>
    </message>
    <message>
        <source>播放源 = 上方「输出文件」 (镜像 GTK: 播放刚转换的 DSF/DFF)</source>
        <translation>Источник = «Выходной файл» выше (как в версии GTK: воспроизводится только что сконвертированный DSF/DFF)</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>Остановить воспроизведение</translation>
    </message>
    <message>
        <source>播放正在进行中, 请先停止当前播放</source>
        <translation>Воспроизведение уже идёт; сначала остановите его</translation>
    </message>
    <message>
        <source>错误: 播放文件不存在或无法读取: %1</source>
        <translation>Ошибка: файл для воспроизведения не существует или не читается: %1</translation>
    </message>
    <message>
        <source>(未设置输出文件)</source>
        <translation>(выходной файл не задан)</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoPlayer — 请放在程序同目录或加入 PATH (或设 ZUVO_PLAYER_BIN)</source>
        <translation>Ошибка: ZuvoPlayer не найден — поместите его в папку программы или добавьте в PATH (либо задайте ZUVO_PLAYER_BIN)</translation>
    </message>
    <message>
        <source>启动播放器: %1 %2</source>
        <translation>Запуск плеера: %1 %2</translation>
    </message>
    <message>
        <source>开始播放: %1</source>
        <translation>Воспроизведение: %1</translation>
    </message>
    <message>
        <source>试听会话: %1</source>
        <translation>Сеанс прослушивания: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>в процессе (прямой вызов библиотеки)</translation>
    </message>
    <message>
        <source>子进程</source>
        <translation>дочерний процесс</translation>
    </message>
    <message>
        <source>错误: 无法启动播放器 — %1</source>
        <translation>Ошибка: не удаётся запустить плеер — %1</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Воспроизведение завершено</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Воспроизведение остановлено</translation>
    </message>
    <message>
        <source>播放器异常退出, 代码: %1</source>
        <translation>Плеер аварийно завершился, код: %1</translation>
    </message>
    <message>
        <source>当前没有播放任务</source>
        <translation>Сейчас ничего не воспроизводится</translation>
    </message>
    <message>
        <source>正在停止播放器…</source>
        <translation>Остановка плеера…</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[управление] %1</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾 (本次在进程内运行, 无法强制结束)</source>
        <translation>Плеер не завершил работу за %1 с (сейчас он работает в процессе, принудительно завершить его нельзя)</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾, 强制结束</source>
        <translation>Плеер не завершил работу за %1 с — принудительное завершение</translation>
    </message>
    <message>
        <source>仍无响应, 强制结束播放器</source>
        <translation>Ответа всё ещё нет — плеер завершается принудительно</translation>
    </message>
    <message>
        <source>检查更新…</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>关于/诊断…</source>
        <translation>О программе / диагностика…</translation>
    </message>
    <message>
        <source>看引擎版本 / 列音频设备 / 显示引擎帮助</source>
        <translation>Версия движка / список аудиоустройств / справка движка</translation>
    </message>
    <message>
        <source>源码许可…</source>
        <translation>Лицензии исходного кода…</translation>
    </message>
    <message>
        <source>参考标准…</source>
        <translation>Справочные стандарты…</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_RECTEST 需要给一个输出 .dsf 路径</source>
        <translation>Ошибка: для ZUVO_AI_RECTEST нужно указать путь к выходному файлу .dsf</translation>
    </message>
    <message>
        <source>(引擎没有输出)</source>
        <translation>(движок ничего не вывел)</translation>
    </message>
    <message>
        <source>$ %1

%2

退出码 = %3</source>
        <translation>$ %1

%2

Код выхода = %3</translation>
    </message>
    <message>
        <source>本构建的引擎没有录音后端 (见录音页的状态行): 不能开始录音</source>
        <translation>В этой сборке движка нет бэкенда записи (см. строку состояния на вкладке «Запись»): запись невозможна</translation>
    </message>
    <message>
        <source>录音正在进行中</source>
        <translation>Запись уже идёт</translation>
    </message>
    <message>
        <source>录音</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>请先在上方「输出文件」设置录音保存路径</source>
        <translation>Сначала укажите путь для записи в поле «Выходной файл» выше</translation>
    </message>
    <message>
        <source>录音输出文件必须是 .dsf 格式</source>
        <translation>Выходной файл записи должен быть в формате .dsf</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoEngine (录音需要引擎录音支持)</source>
        <translation>Ошибка: ZuvoEngine не найден (для записи нужна поддержка записи в движке)</translation>
    </message>
    <message>
        <source>录音命令: %1 %2</source>
        <translation>Команда записи: %1 %2</translation>
    </message>
    <message>
        <source>开始录音 → %1</source>
        <translation>Запись начата → %1</translation>
    </message>
    <message>
        <source>提示: 停止时发送 'q' 让引擎优雅收尾 (先停止处理 PCM 再写 DSF)</source>
        <translation>Подсказка: при остановке движку отправляется 'q' для корректного завершения (сначала прекращается обработка PCM, затем записывается DSF)</translation>
    </message>
    <message>
        <source>录音中…</source>
        <translation>Запись…</translation>
    </message>
    <message>
        <source>录音会话: %1</source>
        <translation>Сеанс записи: %1</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 (录音) — %1</source>
        <translation>Ошибка: не удаётся запустить движок (запись) — %1</translation>
    </message>
    <message>
        <source>当前没有录音任务</source>
        <translation>Запись не выполняется</translation>
    </message>
    <message>
        <source>发送 'q' 至引擎 — 等待优雅收尾 (写 DSF 后自动退出)…</source>
        <translation>Движку отправлено 'q' — ожидание корректного завершения (запись DSF, затем выход)…</translation>
    </message>
    <message>
        <source>录音引擎已不在运行</source>
        <translation>Движок записи уже не работает</translation>
    </message>
    <message>
        <source>引擎未在 12s 内收尾 (本次在进程内进行, 无法强制结束)</source>
        <translation>Движок не завершил работу за 12 s (запуск внутри процесса, принудительно завершить нельзя)</translation>
    </message>
    <message>
        <source>引擎未在 12s 内退出, 强制终止</source>
        <translation>Движок не завершился за 12 s, принудительное завершение</translation>
    </message>
    <message>
        <source>录音保存: %1</source>
        <translation>Запись сохранена: %1</translation>
    </message>
    <message>
        <source>录音失败, 退出码: %1</source>
        <translation>Ошибка записи, код выхода: %1</translation>
    </message>
    <message>
        <source>录音进程异常退出 (崩溃/被终止)</source>
        <translation>Процесс записи аварийно завершился (сбой/принудительное завершение)</translation>
    </message>
    <message>
        <source>录音后端: 可用 — %1</source>
        <translation>Бэкенд записи: доступен — %1</translation>
    </message>
    <message>
        <source>录音后端: 不可用 — %1</source>
        <translation>Бэкенд записи: недоступен — %1</translation>
    </message>
    <message>
        <source>%1 个输入设备(已列在日志里)</source>
        <translation>Устройств ввода: %1 (перечислены в журнале)</translation>
    </message>
    <message>
        <source>引擎退出码 = %1</source>
        <translation>Код выхода движка = %1</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请放在程序同目录、加入 PATH, 或设 ZUVO_ENGINE_BIN</source>
        <translation>ZuvoEngine не найден — поместите его в папку программы, добавьте в PATH или задайте ZUVO_ENGINE_BIN</translation>
    </message>
    <message>
        <source>探测 30s 无响应, 已终止</source>
        <translation>Проверка не ответила за 30 s, прервана</translation>
    </message>
    <message>
        <source>关于 / 诊断</source>
        <translation>О программе / диагностика</translation>
    </message>
    <message>
        <source>ZuvoAudioTools — ZuvoEngine 的转码前端 (QProcess 子进程)
引擎路径: %1
注: 引擎的帮助/版本类子命令本来就以非 0 退出码收尾, 属既有行为。
探测是异步的: 点完可以继续操作界面, 结果到了会显示在下面。</source>
        <translation>ZuvoAudioTools — оболочка конвертации для ZuvoEngine (дочерний процесс QProcess)
Путь к движку: %1
Примечание: подкоманды справки/версии движка штатно завершаются с ненулевым кодом выхода — это ожидаемое поведение.
Проверка асинхронная: после нажатия можно продолжать работу, результат появится ниже.</translation>
    </message>
    <message>
        <source>(未找到)</source>
        <translation>(не найден)</translation>
    </message>
    <message>
        <source>点下面任一按钮看引擎的回答</source>
        <translation>Нажмите любую кнопку ниже, чтобы увидеть ответ движка</translation>
    </message>
    <message>
        <source>引擎版本 (--version)</source>
        <translation>Версия движка (--version)</translation>
    </message>
    <message>
        <source>列出音频设备 (--list-devices)</source>
        <translation>Список аудиоустройств (--list-devices)</translation>
    </message>
    <message>
        <source>引擎帮助 (--help)</source>
        <translation>Справка движка (--help)</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请把它放在程序同目录、加入 PATH, 或设置环境变量 ZUVO_ENGINE_BIN。</source>
        <translation>ZuvoEngine не найден — поместите его в папку программы, добавьте в PATH или задайте переменную окружения ZUVO_ENGINE_BIN.</translation>
    </message>
    <message>
        <source>$ %1

运行中… (界面不冻, 可继续操作)
</source>
        <translation>$ %1

Выполняется… (интерфейс не блокируется, можно продолжать работу)
</translation>
    </message>
    <message>
        <source>引擎启动失败: %1</source>
        <translation>Не удалось запустить движок: %1</translation>
    </message>
    <message>
        <source>
引擎 30s 无响应, 已终止 (不进设备, 不会影响到正在跑的任务)。</source>
        <translation>
Движок не отвечал 30 s и был остановлен (устройства не открывались, выполняемые задачи не затронуты).</translation>
    </message>
    <message>
        <source>录音后端: 未检测</source>
        <translation>Бэкенд записи: не проверен</translation>
    </message>
    <message>
        <source>检测录音支持 / 列出输入设备</source>
        <translation>Проверить поддержку записи / список устройств ввода</translation>
    </message>
    <message>
        <source>录音设备 (空=默认):</source>
        <translation>Устройство записи (пусто=по умолч.):</translation>
    </message>
    <message>
        <source>声道数 (0=自动):</source>
        <translation>Каналы (0=авто):</translation>
    </message>
    <message>
        <source>采样率 Hz (0=自动):</source>
        <translation>Частота дискретизации Hz (0=авто):</translation>
    </message>
    <message>
        <source>时长秒 (0=手动):</source>
        <translation>Длительность, s (0=вручную):</translation>
    </message>
    <message>
        <source>头空间 dB:</source>
        <translation>Запас по уровню dB:</translation>
    </message>
    <message>
        <source>缓冲帧:</source>
        <translation>Буфер (фреймов):</translation>
    </message>
    <message>
        <source>直通模式 (--record-exclusive)</source>
        <translation>Монопольный режим (--record-exclusive)</translation>
    </message>
    <message>
        <source>DSD 直录 (否则 PCM2PDM)</source>
        <translation>Прямая запись DSD (иначе PCM2PDM)</translation>
    </message>
    <message>
        <source>监听输入</source>
        <translation>Мониторинг входа</translation>
    </message>
    <message>
        <source>监听输出设备:</source>
        <translation>Устройство мониторинга:</translation>
    </message>
    <message>
        <source>录音输出 = 上方「输出文件」(必须 .dsf); 停止时向引擎发送 'q' 优雅收尾 (镜像 GTK)</source>
        <translation>Файл записи = «Выходной файл» выше (только .dsf); при остановке движку отправляется 'q' для корректного завершения (как в версии GTK)</translation>
    </message>
    <message>
        <source>开始录音</source>
        <translation>Начать запись</translation>
    </message>
    <message>
        <source>停止录音</source>
        <translation>Остановить запись</translation>
    </message>
</context>
<context>
    <name>PerTrackDialog</name>
    <message>
        <source>逐轨预设 (每个文件可各用一套)</source>
        <translation>Пресеты дорожек (свой пресет для каждого файла)</translation>
    </message>
    <message>
        <source>每行给一个文件挑一套预设; 「(用当前参数)」= 跟随主面板。
预设只换编码/DSP 参数 —— 输出目录/输出格式与标签仍按主面板。</source>
        <translation>Выберите пресет для каждого файла, по одной строке на файл; «(текущие параметры)» = как на главной панели.
Пресет меняет только параметры кодирования/DSP — папка/формат вывода и теги берутся с главной панели.</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Пресет</translation>
    </message>
    <message>
        <source>(用当前参数)</source>
        <translation>(текущие параметры)</translation>
    </message>
    <message>
        <source>(预设目录里没有预设 —— 先在上面「母带预设」里保存一套)</source>
        <translation>(в папке пресетов нет пресетов — сначала сохраните пресет в разделе «Пресеты мастеринга» выше)</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>PresetManagerDialog</name>
    <message>
        <source>预设管理器</source>
        <translation>Менеджер пресетов</translation>
    </message>
    <message>
        <source>预设为 JSON 文件 (与 GTK 版同目录同键名, 可互读)
写入目录: %1</source>
        <translation>Пресеты хранятся в файлах JSON (та же папка и имена ключей, что и в версии GTK, совместимы)
Папка записи: %1</translation>
    </message>
    <message>
        <source>加载选中</source>
        <translation>Загрузить выбранный</translation>
    </message>
    <message>
        <source>删除选中</source>
        <translation>Удалить выбранный</translation>
    </message>
    <message>
        <source>保存当前为…</source>
        <translation>Сохранить текущие как…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Пресет</translation>
    </message>
    <message>
        <source>无法读取: %1</source>
        <translation>Не удаётся прочитать: %1</translation>
    </message>
    <message>
        <source>预设文件解析失败: %1</source>
        <translation>Не удалось разобрать файл пресета: %1</translation>
    </message>
    <message>
        <source>预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>Полей пресета, не поддерживаемых этой версией: %1 — пропущены</translation>
    </message>
    <message>
        <source>已加载预设: %1</source>
        <translation>Пресет загружен: %1</translation>
    </message>
    <message>
        <source>删除预设</source>
        <translation>Удалить пресет</translation>
    </message>
    <message>
        <source>确定删除预设 %1 ?</source>
        <translation>Удалить пресет %1?</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>Не удалось удалить: %1</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Сохранить как</translation>
    </message>
    <message>
        <source>预设名称:</source>
        <translation>Имя пресета:</translation>
    </message>
    <message>
        <source>预设 %1 已存在, 覆盖?</source>
        <translation>Пресет %1 уже существует. Перезаписать?</translation>
    </message>
    <message>
        <source>预设名称无效: %1</source>
        <translation>Недопустимое имя пресета: %1</translation>
    </message>
    <message>
        <source>保存失败: %1</source>
        <translation>Не удалось сохранить: %1</translation>
    </message>
    <message>
        <source>已保存预设: %1</source>
        <translation>Пресет сохранён: %1</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>名称为空</source>
        <translation>Имя не задано</translation>
    </message>
    <message>
        <source>名称不能包含 %1 或控制字符</source>
        <translation>Имя не должно содержать %1 или управляющие символы</translation>
    </message>
    <message>
        <source>名称不能以点结尾</source>
        <translation>Имя не должно заканчиваться точкой</translation>
    </message>
    <message>
        <source>名称 %1 是系统保留的设备名</source>
        <translation>Имя %1 зарезервировано системой для устройства</translation>
    </message>
    <message>
        <source>文件过大 (%1 字节)</source>
        <translation>Файл слишком большой (%1 байт)</translation>
    </message>
    <message>
        <source>顶层不是 JSON 对象</source>
        <translation>Верхний уровень не является объектом JSON</translation>
    </message>
    <message>
        <source>无法读取文件</source>
        <translation>Не удаётся прочитать файл</translation>
    </message>
</context>
<context>
    <name>ReferencesGui</name>
    <message>
        <source>参考标准</source>
        <translation>Справочные стандарты</translation>
    </message>
</context>
<context>
    <name>RunControlsPanel</name>
    <message>
        <source>开始转换</source>
        <translation>Начать конвертацию</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Очистить журнал</translation>
    </message>
    <message>
        <source>详细日志 (--verbose)</source>
        <translation>Подробный журнал (--verbose)</translation>
    </message>
    <message>
        <source>保留引擎日志（退出不删）</source>
        <translation>Сохранять журнал движка (не удалять при выходе)</translation>
    </message>
    <message>
        <source>关（默认）：引擎日志写在系统临时目录里的一次性目录中，退出即清；
开：写到 %1 下并保留，便于把日志发给厂商排障。</source>
        <translation>Выкл. (по умолчанию): журнал движка пишется во временную папку в системном каталоге временных файлов и удаляется при выходе;
Вкл.: пишется в %1 и сохраняется, чтобы его можно было отправить разработчику для диагностики.</translation>
    </message>
    <message>
        <source>子进程: ZuvoEngine</source>
        <translation>Дочерний процесс: ZuvoEngine</translation>
    </message>
    <message>
        <source>GUI 通过 QProcess 调用同目录/环境变量指定的 ZuvoEngine</source>
        <translation>GUI запускает ZuvoEngine через QProcess из папки программы или по пути из переменной окружения</translation>
    </message>
</context>
<context>
    <name>ThirdPartyGui</name>
    <message>
        <source>源码许可</source>
        <translation>Лицензии исходного кода</translation>
    </message>
</context>
<context>
    <name>UiLangRow</name>
    <message>
        <source>语言</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>界面语言。切换后程序会重启一次以便整套界面换语言。</source>
        <translation>Язык интерфейса. После смены программа один раз перезапустится, чтобы сменить язык всего интерфейса.</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>界面语言已切换，程序将自动重启一次以生效。</source>
        <translation>Язык интерфейса изменён. Программа автоматически перезапустится один раз, чтобы применить изменения.</translation>
    </message>
</context>
<context>
    <name>UpdateUi</name>
    <message>
        <source>正在检查更新…</source>
        <translation>Проверка обновлений…</translation>
    </message>
    <message>
        <source>检查更新</source>
        <translation>Проверка обновлений</translation>
    </message>
    <message>
        <source>已是最新版本 (%1)。服务器上的最新版本为 %2。</source>
        <translation>У вас последняя версия (%1). Последняя версия на сервере: %2.</translation>
    </message>
    <message>
        <source>检查更新失败：</source>
        <translation>Не удалось проверить обновления:</translation>
    </message>
    <message>
        <source>发现新版本 %1（当前 %2）。</source>
        <translation>Доступна новая версия %1 (текущая: %2).</translation>
    </message>
    <message>
        <source>发布日期：%1</source>
        <translation>Дата выпуска: %1</translation>
    </message>
    <message>
        <source>更新说明：%1</source>
        <translation>Описание изменений: %1</translation>
    </message>
    <message>
        <source>发现新版本</source>
        <translation>Доступна новая версия</translation>
    </message>
    <message>
        <source>下载并更新</source>
        <translation>Скачать и обновить</translation>
    </message>
    <message>
        <source>打开下载页</source>
        <translation>Открыть страницу загрузки</translation>
    </message>
    <message>
        <source>稍后</source>
        <translation>Позже</translation>
    </message>
    <message>
        <source>正在下载更新…</source>
        <translation>Загрузка обновления…</translation>
    </message>
    <message>
        <source>下载更新</source>
        <translation>Загрузка обновления</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>程序现在退出。</source>
        <translation>Сейчас программа будет закрыта.</translation>
    </message>
    <message>
        <source>更新失败</source>
        <translation>Ошибка обновления</translation>
    </message>
</context>
<context>
    <name>pv::PreviewDialog</name>
    <message>
        <source>预览: %1</source>
        <translation>Просмотр: %1</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>Волна</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>Спектрограмма</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>%1 — %2 Hz / %3 ch, 预览 %4 s (上限 30 s)</source>
        <translation>%1 — %2 Hz / %3 ch, просмотр %4 s (макс. 30 s)</translation>
    </message>
    <message>
        <source>该格式 (%1) 预览待后续 — 目前仅支持 WAV (DSD 解码属后续里程碑)</source>
        <translation>Просмотр этого формата (%1) пока недоступен — поддерживается только WAV (декодирование DSD запланировано на следующий этап)</translation>
    </message>
    <message>
        <source>解码失败: %1</source>
        <translation>Ошибка декодирования: %1</translation>
    </message>
</context>
</TS>