<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="zh_CN">
<context>
    <name>ConversionQueue</name>
    <message>
        <source>引擎日志: %1</source>
        <translation>Registro del motor: %1</translation>
    </message>
    <message>
        <source>(交给引擎默认)</source>
        <translation>(predeterminado del motor)</translation>
    </message>
    <message>
        <source>待转换文件: %1 个</source>
        <translation>Archivos por convertir: %1</translation>
    </message>
    <message>
        <source>输出目录: %1 (命名模板: %2, 格式: %3)</source>
        <translation>Carpeta de salida: %1 (plantilla de nombre: %2, formato: %3)</translation>
    </message>
    <message>
        <source>✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)</source>
        <translation>✗ No se pudo interpretar el preajuste de pista; este archivo usa los parámetros actuales: %1 (%2)</translation>
    </message>
    <message>
        <source>逐轨预设《%1》</source>
        <translation>Preajuste de pista: %1</translation>
    </message>
    <message>
        <source>  预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>  El preajuste contiene %1 campo(s) no admitido(s) en esta versión, ignorado(s)</translation>
    </message>
    <message>
        <source>停止: 剩余 %1 个文件已跳过</source>
        <translation>Detenido: %1 archivo(s) restante(s) omitido(s)</translation>
    </message>
    <message>
        <source>━━━ [%1/%2] 转换 %3</source>
        <translation>━━━ [%1/%2] Convirtiendo %3</translation>
    </message>
    <message>
        <source>━━━ 转换 %1</source>
        <translation>━━━ Convirtiendo %1</translation>
    </message>
    <message>
        <source>✗ 无法创建输出目录: %1</source>
        <translation>✗ No se puede crear la carpeta de salida: %1</translation>
    </message>
    <message>
        <source>执行: %1 %2</source>
        <translation>Ejecutando: %1 %2</translation>
    </message>
    <message>
        <source>转换会话: %1</source>
        <translation>Sesión de conversión: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>en proceso (llamada directa a la biblioteca)</translation>
    </message>
    <message>
        <source>子进程(起 CLI)</source>
        <translation>subproceso (CLI)</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 — %1</source>
        <translation>Error: no se puede iniciar el motor — %1</translation>
    </message>
    <message>
        <source>✓ %1 完成</source>
        <translation>✓ %1 completado</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (未完成的文件已删除)</source>
        <translation>■ Detenido: %1 (archivo incompleto eliminado)</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (文件保留, 可能不完整)</source>
        <translation>■ Detenido: %1 (archivo conservado, puede estar incompleto)</translation>
    </message>
    <message>
        <source>■ 已停止(强制结束进程): %1</source>
        <translation>■ Detenido (proceso terminado a la fuerza): %1</translation>
    </message>
    <message>
        <source>✗ %1 异常退出 (崩溃/被终止)</source>
        <translation>✗ %1 terminó de forma anómala (fallo/terminado)</translation>
    </message>
    <message>
        <source>✗ 退出码: %1</source>
        <translation>✗ Código de salida: %1</translation>
    </message>
    <message>
        <source>── 引擎日志 (末尾 %1 行): %2 ──</source>
        <translation>── Registro del motor (últimas %1 líneas): %2 ──</translation>
    </message>
    <message>
        <source>
全部完成: %1 OK</source>
        <translation>
Todo completado: %1 OK</translation>
    </message>
    <message>
        <source>
完成: %1 OK, %2 失败</source>
        <translation>
Completado: %1 OK, %2 con error</translation>
    </message>
    <message>
        <source>转换已停止</source>
        <translation>Conversión detenida</translation>
    </message>
    <message>
        <source>当前没有运行的进程</source>
        <translation>No hay ningún proceso en ejecución</translation>
    </message>
    <message>
        <source>正在停止转换进程…</source>
        <translation>Deteniendo la conversión…</translation>
    </message>
    <message>
        <source>终止当前转换进程…</source>
        <translation>Terminando el proceso de conversión actual…</translation>
    </message>
    <message>
        <source>正在通知引擎停止…</source>
        <translation>Pidiendo al motor que se detenga…</translation>
    </message>
    <message>
        <source>引擎 2 秒内没有确认停止 —— 仍在收尾(可再点一次, 或关闭程序)。</source>
        <translation>El motor no confirmó la detención en 2 segundos — aún está terminando (vuelva a hacer clic o cierre el programa).</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[control] %1</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但没有写出输出文件 %2</source>
        <translation>✗ %1: el motor informó que terminó, pero no se escribió el archivo de salida: %2</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件 %2 没有被写过 (还是旧的)</source>
        <translation>✗ %1: el motor informó que terminó, pero el archivo de salida %2 no se escribió (sigue siendo el anterior)</translation>
    </message>
    <message>
        <source>文件是空的</source>
        <translation>El archivo está vacío</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2), 已删除: %3</source>
        <translation>✗ %1: el motor informó que terminó, pero el archivo de salida no se puede leer (%2); eliminado: %3</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2): %3</source>
        <translation>✗ %1: el motor informó que terminó, pero el archivo de salida no se puede leer (%2): %3</translation>
    </message>
    <message>
        <source> …(这一行太长, 后面 %1 个字符没有显示)</source>
        <translation> …(línea demasiado larga; no se muestran los %1 caracteres restantes)</translation>
    </message>
    <message>
        <source>不是 DSF 文件</source>
        <translation>No es un archivo DSF</translation>
    </message>
    <message>
        <source>DSF 头里的文件长度与实际不符 (文件不完整)</source>
        <translation>La longitud del archivo en la cabecera DSF no coincide con la real (archivo incompleto)</translation>
    </message>
    <message>
        <source>DSF 格式块不对</source>
        <translation>Bloque de formato DSF no válido</translation>
    </message>
    <message>
        <source>DSF 数据块不对</source>
        <translation>Bloque de datos DSF no válido</translation>
    </message>
    <message>
        <source>DSF 元数据位置不对</source>
        <translation>Posición de metadatos DSF no válida</translation>
    </message>
    <message>
        <source>不是 DSDIFF 文件</source>
        <translation>No es un archivo DSDIFF</translation>
    </message>
    <message>
        <source>DSDIFF 头里的长度与实际不符 (文件不完整)</source>
        <translation>La longitud en la cabecera DSDIFF no coincide con la real (archivo incompleto)</translation>
    </message>
    <message>
        <source>DSDIFF 块超出文件</source>
        <translation>Bloque DSDIFF fuera de los límites del archivo</translation>
    </message>
    <message>
        <source>DSDIFF 缺少 FVER/PROP/声音块</source>
        <translation>Falta el bloque FVER/PROP/sonido en DSDIFF</translation>
    </message>
    <message>
        <source>不是 WAV 文件</source>
        <translation>No es un archivo WAV</translation>
    </message>
    <message>
        <source>RF64 的 ds64 块不对</source>
        <translation>Bloque ds64 de RF64 no válido</translation>
    </message>
    <message>
        <source>WAV 缺少格式块</source>
        <translation>Falta el bloque de formato en WAV</translation>
    </message>
    <message>
        <source>WAV 数据块超出文件 (文件不完整)</source>
        <translation>Bloque de datos WAV fuera de los límites del archivo (archivo incompleto)</translation>
    </message>
    <message>
        <source>WAV 格式块不对</source>
        <translation>Bloque de formato WAV no válido</translation>
    </message>
    <message>
        <source>WAV 缺少数据块</source>
        <translation>Falta el bloque de datos en WAV</translation>
    </message>
    <message>
        <source>不是 W64 文件</source>
        <translation>No es un archivo W64</translation>
    </message>
    <message>
        <source>W64 块超出文件 (文件不完整)</source>
        <translation>Bloque W64 fuera de los límites del archivo (archivo incompleto)</translation>
    </message>
    <message>
        <source>W64 缺少格式块</source>
        <translation>Falta el bloque de formato en W64</translation>
    </message>
    <message>
        <source>W64 缺少数据块</source>
        <translation>Falta el bloque de datos en W64</translation>
    </message>
    <message>
        <source>不是 FLAC 文件</source>
        <translation>No es un archivo FLAC</translation>
    </message>
    <message>
        <source>FLAC 缺少 STREAMINFO</source>
        <translation>Falta STREAMINFO en FLAC</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>No se puede abrir</translation>
    </message>
</context>
<context>
    <name>EngineSession</name>
    <message>
        <source>进程内会话起不来 (rc=%1)</source>
        <translation>no se pudo iniciar la sesión en proceso (rc=%1)</translation>
    </message>
</context>
<context>
    <name>FileListWidget</name>
    <message>
        <source>  ◇ 预设: %1</source>
        <translation>  ◇ Preajuste: %1</translation>
    </message>
</context>
<context>
    <name>InputOutputPanel</name>
    <message>
        <source>添加文件…</source>
        <translation>Añadir archivos…</translation>
    </message>
    <message>
        <source>添加目录…</source>
        <translation>Añadir carpeta…</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>Quitar seleccionados</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Vaciar lista</translation>
    </message>
    <message>
        <source>支持拖入音频文件或文件夹</source>
        <translation>Arrastre aquí archivos de audio o carpetas</translation>
    </message>
    <message>
        <source>输出 .dsf / .dff 文件</source>
        <translation>Archivo de salida .dsf / .dff</translation>
    </message>
    <message>
        <source>浏览…</source>
        <translation>Examinar…</translation>
    </message>
    <message>
        <source>输出文件:</source>
        <translation>Archivo de salida:</translation>
    </message>
    <message>
        <source>留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名</source>
        <translation>Vacío = usar el archivo de salida de arriba; si se rellena, el nombre de salida de cada entrada se obtiene de la plantilla de nombre</translation>
    </message>
    <message>
        <source>批量输出: 所有输入写进这个目录, 文件名由下面的命名模板算</source>
        <translation>Salida por lotes: todas las entradas se escriben en esta carpeta; los nombres salen de la plantilla de abajo</translation>
    </message>
    <message>
        <source>浏览目录…</source>
        <translation>Elegir carpeta…</translation>
    </message>
    <message>
        <source>输出目录:</source>
        <translation>Carpeta de salida:</translation>
    </message>
    <message>
        <source>输出目录模式下每个文件的扩展名 (引擎按扩展名认格式)</source>
        <translation>Extensión de archivo en el modo carpeta de salida (el motor reconoce el formato por la extensión)</translation>
    </message>
    <message>
        <source>变量: {input} 输入文件名  {ext} 输出格式  {track} / {track:02} 队列序号  {artist} {title} 界面字段
留空 = {input}; 变量没有值时回退用输入文件名; 模板里可以带子目录</source>
        <translation>Variables: {input} nombre del archivo de entrada  {ext} formato de salida  {track} / {track:02} posición en la cola  {artist} {title} campos de la interfaz
Vacío = {input}; una variable sin valor se sustituye por el nombre del archivo de entrada; la plantilla puede incluir subcarpetas</translation>
    </message>
    <message>
        <source>输出格式:</source>
        <translation>Formato de salida:</translation>
    </message>
    <message>
        <source>命名模板:</source>
        <translation>Plantilla de nombre:</translation>
    </message>
    <message>
        <source>标签: DFF→COMT, DSF→ID3</source>
        <translation>Etiquetas: DFF→COMT, DSF→ID3</translation>
    </message>
    <message>
        <source>0 = 不写曲目号 (引擎只接受 1..998)</source>
        <translation>0 = sin número de pista (el motor solo acepta 1..998)</translation>
    </message>
    <message>
        <source>写入标签的说明文字</source>
        <translation>Texto de comentario para la etiqueta</translation>
    </message>
    <message>
        <source>从输入文件读取标签</source>
        <translation>Leer etiquetas del archivo de entrada</translation>
    </message>
    <message>
        <source>艺术家:</source>
        <translation>Artista:</translation>
    </message>
    <message>
        <source>标题:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <source>专辑:</source>
        <translation>Álbum:</translation>
    </message>
    <message>
        <source>流派:</source>
        <translation>Género:</translation>
    </message>
    <message>
        <source>年份:</source>
        <translation>Año:</translation>
    </message>
    <message>
        <source>曲目号:</source>
        <translation>N.º de pista:</translation>
    </message>
    <message>
        <source>备注:</source>
        <translation>Comentario:</translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>%1 archivo(s)</translation>
    </message>
    <message>
        <source>音频文件 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;所有文件 (*)</source>
        <translation>Archivos de audio (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>选择输入文件</source>
        <translation>Seleccionar archivos de entrada</translation>
    </message>
    <message>
        <source>选择目录</source>
        <translation>Seleccionar carpeta</translation>
    </message>
    <message>
        <source>PCM 音频 (*.wav *.w64 *.flac);;所有文件 (*)</source>
        <translation>Audio PCM (*.wav *.w64 *.flac);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>DSDIFF (*.dff);;DSD Stream (*.dsf);;所有文件 (*)</source>
        <translation>DSDIFF (*.dff);;DSD Stream (*.dsf);;Todos los archivos (*)</translation>
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
        <translation>Seleccionar archivo de salida</translation>
    </message>
    <message>
        <source>选择输出目录</source>
        <translation>Seleccionar carpeta de salida</translation>
    </message>
    <message>
        <source>波形/频谱预览…</source>
        <translation>Vista previa de forma de onda/espectrograma…</translation>
    </message>
    <message>
        <source>逐轨预设…</source>
        <translation>Preajustes por pista…</translation>
    </message>
    <message>
        <source>给队列里每个文件单独指定一套预设
预设只换编码/DSP 参数; 输出目录/输出格式与标签仍按面板</source>
        <translation>Asignar un preajuste propio a cada archivo de la cola
Un preajuste solo cambia parámetros de codificación/DSP; la carpeta/formato de salida y las etiquetas siguen saliendo del panel</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>开始转换</source>
        <translation>Iniciar conversión</translation>
    </message>
    <message>
        <source>Zuvo Audio Suite — 音频转换工具</source>
        <translation>Zuvo Audio Suite — Herramienta de conversión de audio</translation>
    </message>
    <message>
        <source>设置输出文件: %1</source>
        <translation>Archivo de salida establecido: %1</translation>
    </message>
    <message>
        <source>目录中没有音频文件</source>
        <translation>No hay archivos de audio en esta carpeta</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改文件列表</source>
        <translation>No se puede modificar la lista de archivos durante la conversión</translation>
    </message>
    <message>
        <source>找到 ZuvoEngine (音频转换引擎): %1</source>
        <translation>ZuvoEngine (motor de conversión de audio) encontrado: %1</translation>
    </message>
    <message>
        <source>警告: 未找到 ZuvoEngine — 转换功能不可用。请将其放在程序同目录、或加入 PATH。</source>
        <translation>Advertencia: no se encontró ZuvoEngine — la conversión no está disponible. Colóquelo en la carpeta del programa o añádalo al PATH.</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine</source>
        <translation>No se encontró ZuvoEngine</translation>
    </message>
    <message>
        <source>已添加 %1 个文件</source>
        <translation>%1 archivo(s) añadido(s)</translation>
    </message>
    <message>
        <source>已跳过 %1 个重复文件</source>
        <translation>%1 archivo(s) duplicado(s) omitido(s)</translation>
    </message>
    <message>
        <source>转换完成</source>
        <translation>Conversión completada</translation>
    </message>
    <message>
        <source>转换 %1 个文件</source>
        <translation>%1 archivo(s) convertido(s)</translation>
    </message>
    <message>
        <source>转换 %1 个文件, %2 个失败</source>
        <translation>%1 archivo(s) convertido(s), %2 con error</translation>
    </message>
    <message>
        <source>打开输出目录</source>
        <translation>Abrir carpeta de salida</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>AUTORUN 参数不完整</source>
        <translation>Argumento AUTORUN incompleto</translation>
    </message>
    <message>
        <source>AUTORUN: %1 个输入 → %2</source>
        <translation>AUTORUN: %1 entrada(s) → %2</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>Formato de salida</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM) 的输出必须是 .wav 或 .flac</source>
        <translation>En modo inverso (PDM2PCM) la salida debe ser .wav o .flac</translation>
    </message>
    <message>
        <source>DXD 输出只支持 .wav / .w64 / .flac (引擎按扩展名认容器)</source>
        <translation>La salida DXD solo admite .wav / .w64 / .flac (el motor reconoce el contenedor por la extensión)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>错误: DST 压缩仅支持 DFF 格式输出
请把输出格式/扩展名改为 .dff 或禁用 DST 压缩</source>
        <translation>Error: la compresión DST solo admite salida DFF
Cambie el formato/extensión de salida a .dff o desactive la compresión DST</translation>
    </message>
    <message>
        <source>输出文件必须是 .dsf 或 .dff 格式</source>
        <translation>El archivo de salida debe ser .dsf o .dff</translation>
    </message>
    <message>
        <source>转换中</source>
        <translation>Conversión en curso</translation>
    </message>
    <message>
        <source>已有转换任务正在进行中, 请等待完成。</source>
        <translation>Ya hay una conversión en curso; espere a que termine.</translation>
    </message>
    <message>
        <source>输入文件</source>
        <translation>Archivos de entrada</translation>
    </message>
    <message>
        <source>请选择输入文件</source>
        <translation>Seleccione archivos de entrada</translation>
    </message>
    <message>
        <source>元数据</source>
        <translation>Metadatos</translation>
    </message>
    <message>
        <source>输出 .dff 必须填「艺术家」和「标题」两个值
(它们是 DFF 的 COMT 标签; 必填项, 不填不开始转换)</source>
        <translation>Una salida .dff requiere «Artista» y «Título»
(forman la etiqueta COMT del DFF; obligatorios — sin ellos la conversión no se inicia)</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>Coeficientes</translation>
    </message>
    <message>
        <source>Taps 必须是偶数且不小于 512 (0 = 用引擎默认值)</source>
        <translation>El número de coeficientes debe ser par y no menor que 512 (0 = predeterminado del motor)</translation>
    </message>
    <message>
        <source>过渡带</source>
        <translation>Banda de transición</translation>
    </message>
    <message>
        <source>阻带截止必须大于通带截止 (否则过渡带为零/负, 引擎会拒绝)</source>
        <translation>El corte de la banda de rechazo debe ser mayor que el de la banda de paso (si no, la banda de transición es nula/negativa y el motor la rechaza)</translation>
    </message>
    <message>
        <source>输出目录</source>
        <translation>Carpeta de salida</translation>
    </message>
    <message>
        <source>无法创建输出目录:
%1</source>
        <translation>No se puede crear la carpeta de salida:
%1</translation>
    </message>
    <message>
        <source>输出文件</source>
        <translation>Archivo de salida</translation>
    </message>
    <message>
        <source>请选择输出文件</source>
        <translation>Seleccione un archivo de salida</translation>
    </message>
    <message>
        <source>噪声本底分析</source>
        <translation>Análisis del ruido de fondo</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「PDF 报告」开关</source>
        <translation>El análisis del ruido de fondo solo funciona con el informe PDF activado
Active la opción «Informe PDF»</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>Ecualizador</translation>
    </message>
    <message>
        <source>启用了均衡器但没有有效频段
请添加至少一个频段 (中心频率 &gt; 0), 或禁用均衡器</source>
        <translation>El ecualizador está activado pero no tiene ninguna banda válida
Añada al menos una banda (frecuencia central &gt; 0) o desactive el ecualizador</translation>
    </message>
    <message>
        <source>引擎缺失</source>
        <translation>Falta el motor</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine。请将其放在程序同目录、或加入 PATH,
也可设置环境变量 ZUVO_ENGINE_BIN 指向其完整路径。</source>
        <translation>No se encontró ZuvoEngine. Colóquelo en la carpeta del programa o añádalo al PATH,
o defina la variable de entorno ZUVO_ENGINE_BIN con su ruta completa.</translation>
    </message>
    <message>
        <source>均衡器未启用</source>
        <translation>Ecualizador no activado</translation>
    </message>
    <message>
        <source>基本参数</source>
        <translation>Básico</translation>
    </message>
    <message>
        <source>滤波</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>空间与音调</source>
        <translation>Espacial y tono</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>启用 DST 压缩模式</source>
        <translation>Compresión DST activada</translation>
    </message>
    <message>
        <source>禁用 DST 压缩模式</source>
        <translation>Compresión DST desactivada</translation>
    </message>
    <message>
        <source>DST 压缩</source>
        <translation>Compresión DST</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出格式将自动更改为 DFF</source>
        <translation>La compresión DST solo admite el formato DFF
El formato de salida se cambiará automáticamente a DFF</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出文件将自动更改为 DFF 格式</source>
        <translation>La compresión DST solo admite el formato DFF
El archivo de salida se cambiará automáticamente a DFF</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改参数</source>
        <translation>No se pueden modificar los parámetros durante la conversión</translation>
    </message>
    <message>
        <source>已加载母带预设: %1</source>
        <translation>Preajuste de masterización cargado: %1</translation>
    </message>
    <message>
        <source>均衡器: %1 行无效 (需中心频率&gt;0) 已被跳过</source>
        <translation>Ecualizador: %1 fila(s) no válida(s) (frecuencia central &gt; 0 requerida) omitida(s)</translation>
    </message>
    <message>
        <source>注意: 无法向引擎查询它不支持的选项, 直接开始转换</source>
        <translation>Nota: no se pudo consultar al motor qué opciones no admite; la conversión se inicia directamente</translation>
    </message>
    <message>
        <source>转换未开始: 当前引擎构建不支持这些已选择的选项: %1</source>
        <translation>Conversión no iniciada: esta compilación del motor no admite estas opciones seleccionadas: %1</translation>
    </message>
    <message>
        <source>引擎不支持的选项</source>
        <translation>Opciones no admitidas por el motor</translation>
    </message>
    <message>
        <source>当前引擎构建不支持下列已选择的选项, 转换不会开始:
%1

请在参数页关闭它们后再开始 (预设里可以保留)。</source>
        <translation>Esta compilación del motor no admite las siguientes opciones seleccionadas, por lo que la conversión no se iniciará:
%1

Desactívelas en las páginas de parámetros y vuelva a empezar (pueden quedarse en los preajustes).</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改预设</source>
        <translation>No se pueden modificar los preajustes durante la conversión</translation>
    </message>
    <message>
        <source>转换进行中, 不能改逐轨预设。</source>
        <translation>Conversión en curso — ahora no se pueden cambiar los preajustes por pista.</translation>
    </message>
    <message>
        <source>请先添加输入文件</source>
        <translation>Añada primero archivos de entrada</translation>
    </message>
    <message>
        <source>逐轨预设: 已全部改回「用当前参数」</source>
        <translation>Preajustes por pista: todos restablecidos a «usar parámetros actuales»</translation>
    </message>
    <message>
        <source>逐轨预设: %1 个文件各用一套</source>
        <translation>Preajustes por pista: %1 archivo(s) con preajuste propio</translation>
    </message>
    <message>
        <source>转换进行中, 不能预览</source>
        <translation>No se puede previsualizar durante la conversión</translation>
    </message>
    <message>
        <source>请先添加文件</source>
        <translation>Añada primero archivos</translation>
    </message>
    <message>
        <source>没有可预览的文件</source>
        <translation>No hay ningún archivo para previsualizar</translation>
    </message>
    <message>
        <source>单环 (NS, --order 9)</source>
        <translation>Bucle simple (NS, --order 9)</translation>
    </message>
    <message>
        <source>古典</source>
        <translation>Clásica</translation>
    </message>
    <message>
        <source>古典: DSD-256, 131072 taps, 高带宽</source>
        <translation>Clásica: DSD-256, 131072 coeficientes, gran ancho de banda</translation>
    </message>
    <message>
        <source>流行</source>
        <translation>Pop</translation>
    </message>
    <message>
        <source>流行: DSD-128, 65536 taps</source>
        <translation>Pop: DSD-128, 65536 coeficientes</translation>
    </message>
    <message>
        <source>爵士</source>
        <translation>Jazz</translation>
    </message>
    <message>
        <source>爵士: DSD-128, 65536 taps</source>
        <translation>Jazz: DSD-128, 65536 coeficientes</translation>
    </message>
    <message>
        <source>DSD 采样率:</source>
        <translation>Frecuencia de muestreo DSD:</translation>
    </message>
    <message>
        <source>Taps 数 (0=引擎默认):</source>
        <translation>Coeficientes (0=predeterminado del motor):</translation>
    </message>
    <message>
        <source>SOS cascade + error feedback, NS15 profile (引擎默认): 实测带内噪声比单环 NS9 低 11.4 dB</source>
        <translation>Cascada SOS + realimentación de error, perfil NS15 (predeterminado del motor): ruido en banda medido 11,4 dB menor que con bucle simple NS9</translation>
    </message>
    <message>
        <source>Chebyshev 多项式压缩 (可与 MASH 叠加)</source>
        <translation>Compresión polinómica de Chebyshev (combinable con MASH)</translation>
    </message>
    <message>
        <source>调制器:</source>
        <translation>Modulador:</translation>
    </message>
    <message>
        <source>母带预设:</source>
        <translation>Preajustes de masterización:</translation>
    </message>
    <message>
        <source>预设管理器…</source>
        <translation>Gestor de preajustes…</translation>
    </message>
    <message>
        <source>DST 压缩 (仅 .dff 输出)</source>
        <translation>Compresión DST (solo salida .dff)</translation>
    </message>
    <message>
        <source>DXD 输出 (高解析 PCM)</source>
        <translation>Salida DXD (PCM de alta resolución)</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM)</source>
        <translation>Modo inverso (PDM2PCM)</translation>
    </message>
    <message>
        <source>输入 DSD(DSF/DFF), 输出 PCM/WAV —— 与 PCM→PDM 无关</source>
        <translation>Entrada DSD (DSF/DFF), salida PCM/WAV — no tiene relación con PCM→PDM</translation>
    </message>
    <message>
        <source>DST 压缩等级 (0=关闭):</source>
        <translation>Nivel de compresión DST (0=desactivado):</translation>
    </message>
    <message>
        <source>高带宽模式</source>
        <translation>Modo de gran ancho de banda</translation>
    </message>
    <message>
        <source>OpenCL 加速 (GPU)</source>
        <translation>Aceleración OpenCL (GPU)</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 OpenCL 支持</source>
        <translation>Esta compilación del motor se compiló sin soporte de OpenCL</translation>
    </message>
    <message>
        <source>添加 PDF 报告</source>
        <translation>Añadir informe PDF</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 PDF 报告 (需要 rsvg+cairo)</source>
        <translation>Esta compilación del motor no incluye el informe PDF (requiere rsvg+cairo)</translation>
    </message>
    <message>
        <source>只影响 PDF 报告内容, 不改音频比特流 (实测: 开关它 dsf 逐字节相同)</source>
        <translation>Solo afecta al contenido del informe PDF, no al flujo de bits de audio (medido: el dsf es idéntico byte a byte con o sin él)</translation>
    </message>
    <message>
        <source>分析报告 (--report)</source>
        <translation>Informe de análisis (--report)</translation>
    </message>
    <message>
        <source>噪声本底分析 (需 PDF 报告)</source>
        <translation>Análisis del ruido de fondo (requiere informe PDF)</translation>
    </message>
    <message>
        <source>降噪: 关</source>
        <translation>Reducción de ruido: desactivada</translation>
    </message>
    <message>
        <source>降噪: 轻 (-12dB 地板, 最保真)</source>
        <translation>Reducción de ruido: ligera (suelo -12dB, máxima fidelidad)</translation>
    </message>
    <message>
        <source>降噪: 标准 (-18dB 地板)</source>
        <translation>Reducción de ruido: estándar (suelo -18dB)</translation>
    </message>
    <message>
        <source>降噪: 强 (感知加权地板, 最深)</source>
        <translation>Reducción de ruido: fuerte (suelo con ponderación perceptiva, la más profunda)</translation>
    </message>
    <message>
        <source>保留乐器泛音 (降噪时保住泛音与泛音列)</source>
        <translation>Conservar armónicos de los instrumentos (mantiene armónicos y series armónicas al reducir ruido)</translation>
    </message>
    <message>
        <source>报告里加峰值 (--peak)</source>
        <translation>Añadir pico al informe (--peak)</translation>
    </message>
    <message>
        <source>报告里加 RMS (--rms)</source>
        <translation>Añadir RMS al informe (--rms)</translation>
    </message>
    <message>
        <source>报告里不要动态范围一节 (--no-dynamic-range)</source>
        <translation>Omitir la sección de rango dinámico del informe (--no-dynamic-range)</translation>
    </message>
    <message>
        <source>输出模式</source>
        <translation>Modo de salida</translation>
    </message>
    <message>
        <source>带宽、加速与报告</source>
        <translation>Ancho de banda, aceleración e informe</translation>
    </message>
    <message>
        <source>降噪与报告内容</source>
        <translation>Reducción de ruido y contenido del informe</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「添加 PDF 报告」</source>
        <translation>El análisis del ruido de fondo solo funciona con el informe PDF activado
Active «Añadir informe PDF»</translation>
    </message>
    <message>
        <source>声道设置</source>
        <translation>Configuración de canales</translation>
    </message>
    <message>
        <source>强制原始声道数</source>
        <translation>Forzar número de canales original</translation>
    </message>
    <message>
        <source>四声道模式 (需重置声道数=4)</source>
        <translation>Modo cuadrafónico (requiere restablecer canales = 4)</translation>
    </message>
    <message>
        <source>添加环绕声道</source>
        <translation>Añadir canales envolventes</translation>
    </message>
    <message>
        <source>声道交换</source>
        <translation>Intercambiar canales</translation>
    </message>
    <message>
        <source>重置声道数 (0=不动):</source>
        <translation>Restablecer número de canales (0=sin cambios):</translation>
    </message>
    <message>
        <source>规则</source>
        <translation>Reglas</translation>
    </message>
    <message>
        <source>「强制原始声道数」优先: 勾选后重置声道数、四声道模式和添加环绕声道都不发给引擎。

四声道模式需要重置声道数为 4; 勾选时会自动设为 4。

「声道交换」交换前两个声道, 与其它选项可同时使用。</source>
        <translation>«Forzar número de canales original» tiene prioridad: si está marcado, restablecer número de canales, modo cuadrafónico y añadir canales envolventes no se envían al motor.

El modo cuadrafónico requiere restablecer el número de canales a 4; al marcarlo se ajusta a 4 automáticamente.

«Intercambiar canales» intercambia los dos primeros canales y se puede combinar con las demás opciones.</translation>
    </message>
    <message>
        <source>四声道模式: 重置声道数已自动设为 4</source>
        <translation>Modo cuadrafónico: número de canales ajustado automáticamente a 4</translation>
    </message>
    <message>
        <source>启用均衡器 (EQ)</source>
        <translation>Activar ecualizador (EQ)</translation>
    </message>
    <message>
        <source>添加频段</source>
        <translation>Añadir banda</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>Quitar seleccionados</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>中心频率 (Hz)</source>
        <translation>Frecuencia central (Hz)</translation>
    </message>
    <message>
        <source>增益 (dB)</source>
        <translation>Ganancia (dB)</translation>
    </message>
    <message>
        <source>带宽</source>
        <translation>Ancho de banda</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>预览按 44.1 kHz 估算 — 引擎槽位: 首段低架, 满 10 段时末段高架</source>
        <translation>Vista previa estimada a 44,1 kHz — posiciones del motor: primera banda shelving de graves; última banda shelving de agudos con las 10 bandas ocupadas</translation>
    </message>
    <message>
        <source>启用均衡器 (--eq 频段 f,g,bw{单位})</source>
        <translation>Ecualizador activado (--eq banda f,g,bw{unidad})</translation>
    </message>
    <message>
        <source>禁用均衡器</source>
        <translation>Ecualizador desactivado</translation>
    </message>
    <message>
        <source>窗口法 (Window Method)</source>
        <translation>Método de ventana</translation>
    </message>
    <message>
        <source>最小相位 (Min-Phase)</source>
        <translation>Fase mínima</translation>
    </message>
    <message>
        <source>应用预失真处理</source>
        <translation>Aplicar predistorsión</translation>
    </message>
    <message>
        <source>算法:</source>
        <translation>Algoritmo:</translation>
    </message>
    <message>
        <source>滤波类型:</source>
        <translation>Tipo de filtro:</translation>
    </message>
    <message>
        <source>窗口法参数</source>
        <translation>Parámetros del método de ventana</translation>
    </message>
    <message>
        <source>窗口类型:</source>
        <translation>Tipo de ventana:</translation>
    </message>
    <message>
        <source>Remez 算法参数</source>
        <translation>Parámetros del algoritmo de Remez</translation>
    </message>
    <message>
        <source>最大迭代次数:</source>
        <translation>Iteraciones máximas:</translation>
    </message>
    <message>
        <source>网格密度:</source>
        <translation>Densidad de la cuadrícula:</translation>
    </message>
    <message>
        <source>停止带衰减 (A_stop)</source>
        <translation>Atenuación en la banda de rechazo (A_stop)</translation>
    </message>
    <message>
        <source>0=不发</source>
        <translation>0=desactivado</translation>
    </message>
    <message>
        <source>停止带衰减 (dB):</source>
        <translation>Atenuación en la banda de rechazo (dB):</translation>
    </message>
    <message>
        <source>过渡带 (截止频率)</source>
        <translation>Banda de transición (frecuencias de corte)</translation>
    </message>
    <message>
        <source>通带截止 (Hz):</source>
        <translation>Corte de la banda de paso (Hz):</translation>
    </message>
    <message>
        <source>阻带截止 (Hz):</source>
        <translation>Corte de la banda de rechazo (Hz):</translation>
    </message>
    <message>
        <source>增益 (ABS)</source>
        <translation>Ganancia (ABS)</translation>
    </message>
    <message>
        <source>绝对值增益:</source>
        <translation>Ganancia absoluta:</translation>
    </message>
    <message>
        <source>HRTF 空间音频</source>
        <translation>Audio espacial HRTF</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf)</source>
        <translation>Activar audio espacial HRTF (--hrtf)</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf &lt;mono|ms|stereo&gt;)</source>
        <translation>Audio espacial HRTF activado (--hrtf &lt;mono|ms|stereo&gt;)</translation>
    </message>
    <message>
        <source>禁用 HRTF 空间音频</source>
        <translation>Audio espacial HRTF desactivado</translation>
    </message>
    <message>
        <source>模式:</source>
        <translation>Modo:</translation>
    </message>
    <message>
        <source>干湿比 (dry/wet):</source>
        <translation>Mezcla seco/procesado:</translation>
    </message>
    <message>
        <source>侧向扩散比:</source>
        <translation>Difusión lateral:</translation>
    </message>
    <message>
        <source>深度 (+1前 / 0耳位 / -1后):</source>
        <translation>Profundidad (+1 delante / 0 oídos / -1 detrás):</translation>
    </message>
    <message>
        <source>使用引擎内置 HRIR; 不提供自定义 .sofa 文件</source>
        <translation>Usa la HRIR integrada del motor; no se admiten archivos .sofa personalizados</translation>
    </message>
    <message>
        <source>环绕</source>
        <translation>Envolvente</translation>
    </message>
    <message>
        <source>启用环绕 (--surround)</source>
        <translation>Activar envolvente (--surround)</translation>
    </message>
    <message>
        <source>启用环绕 (--surround delayMs mix side balance)</source>
        <translation>Envolvente activado (--surround delayMs mix side balance)</translation>
    </message>
    <message>
        <source>禁用环绕</source>
        <translation>Envolvente desactivado</translation>
    </message>
    <message>
        <source>侧向 (side)</source>
        <translation>Lateral (side)</translation>
    </message>
    <message>
        <source>延迟 (ms):</source>
        <translation>Retardo (ms):</translation>
    </message>
    <message>
        <source>混合 (%):</source>
        <translation>Mezcla (%):</translation>
    </message>
    <message>
        <source>平衡 (-100~100, 0=不发):</source>
        <translation>Balance (-100~100, 0=desactivado):</translation>
    </message>
    <message>
        <source>音调 (shelving)</source>
        <translation>Tono (shelving)</translation>
    </message>
    <message>
        <source>低音 (dB):</source>
        <translation>Graves (dB):</translation>
    </message>
    <message>
        <source>高音 (dB):</source>
        <translation>Agudos (dB):</translation>
    </message>
    <message>
        <source>EQ 前置衰减 (dB):</source>
        <translation>Atenuación previa al EQ (dB):</translation>
    </message>
    <message>
        <source>启用 DSRE 数字频谱共振增强 (--dsre)</source>
        <translation>Activar DSRE, realce digital de resonancia espectral (--dsre)</translation>
    </message>
    <message>
        <source>启用 DSRE (--dsre mix)</source>
        <translation>DSRE activado (--dsre mix)</translation>
    </message>
    <message>
        <source>禁用 DSRE</source>
        <translation>DSRE desactivado</translation>
    </message>
    <message>
        <source>干湿比 (0=dry, 1=全效果):</source>
        <translation>Seco/procesado (0=seco, 1=efecto completo):</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>AUTORUN 预设: %1</source>
        <translation>Preajuste AUTORUN: %1</translation>
    </message>
    <message>
        <source>✗ AUTORUN 预设无法使用: %1 (%2)</source>
        <translation>✗ No se puede usar el preajuste AUTORUN: %1 (%2)</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_PLAYTEST 指定的文件不存在: %1</source>
        <translation>Error: el archivo indicado en ZUVO_AI_PLAYTEST no existe: %1</translation>
    </message>
    <message>
        <source>设备名直接传给 ZuvoPlayer -dev</source>
        <translation>Nombre de dispositivo que se pasa tal cual a ZuvoPlayer -dev</translation>
    </message>
    <message>
        <source>DAC 设备:</source>
        <translation>Dispositivo DAC:</translation>
    </message>
    <message>
        <source>流式播放模式 (-stream)</source>
        <translation>Reproducción en streaming (-stream)</translation>
    </message>
    <message>
        <source>播放源 = 上方「输出文件」 (镜像 GTK: 播放刚转换的 DSF/DFF)</source>
        <translation>Fuente de reproducción = «Archivo de salida» de arriba (como en la versión GTK: reproduce el DSF/DFF recién convertido)</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>Detener reproducción</translation>
    </message>
    <message>
        <source>播放正在进行中, 请先停止当前播放</source>
        <translation>Ya hay una reproducción en curso; deténgala primero</translation>
    </message>
    <message>
        <source>错误: 播放文件不存在或无法读取: %1</source>
        <translation>Error: el archivo a reproducir no existe o no se puede leer: %1</translation>
    </message>
    <message>
        <source>(未设置输出文件)</source>
        <translation>(archivo de salida no establecido)</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoPlayer — 请放在程序同目录或加入 PATH (或设 ZUVO_PLAYER_BIN)</source>
        <translation>Error: no se encontró ZuvoPlayer — colóquelo en la carpeta del programa o añádalo al PATH (o defina ZUVO_PLAYER_BIN)</translation>
    </message>
    <message>
        <source>启动播放器: %1 %2</source>
        <translation>Iniciando el reproductor: %1 %2</translation>
    </message>
    <message>
        <source>开始播放: %1</source>
        <translation>Reproduciendo: %1</translation>
    </message>
    <message>
        <source>试听会话: %1</source>
        <translation>Sesión de escucha: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>en proceso (llamada directa a la biblioteca)</translation>
    </message>
    <message>
        <source>子进程</source>
        <translation>subproceso</translation>
    </message>
    <message>
        <source>错误: 无法启动播放器 — %1</source>
        <translation>Error: no se puede iniciar el reproductor — %1</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Reproducción terminada</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Reproducción detenida</translation>
    </message>
    <message>
        <source>播放器异常退出, 代码: %1</source>
        <translation>El reproductor terminó de forma anómala, código: %1</translation>
    </message>
    <message>
        <source>当前没有播放任务</source>
        <translation>No hay ninguna reproducción en curso</translation>
    </message>
    <message>
        <source>正在停止播放器…</source>
        <translation>Deteniendo el reproductor…</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[control] %1</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾 (本次在进程内运行, 无法强制结束)</source>
        <translation>El reproductor no terminó en %1 s (esta vez se ejecuta en proceso; no se puede forzar su cierre)</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾, 强制结束</source>
        <translation>El reproductor no terminó en %1 s; forzando el cierre</translation>
    </message>
    <message>
        <source>仍无响应, 强制结束播放器</source>
        <translation>Sigue sin responder; forzando el cierre del reproductor</translation>
    </message>
    <message>
        <source>检查更新…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>关于/诊断…</source>
        <translation>Acerca de / Diagnóstico…</translation>
    </message>
    <message>
        <source>看引擎版本 / 列音频设备 / 显示引擎帮助</source>
        <translation>Ver versión del motor / listar dispositivos de audio / mostrar ayuda del motor</translation>
    </message>
    <message>
        <source>源码许可…</source>
        <translation>Licencias del código fuente…</translation>
    </message>
    <message>
        <source>参考标准…</source>
        <translation>Normas de referencia…</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_RECTEST 需要给一个输出 .dsf 路径</source>
        <translation>Error: ZUVO_AI_RECTEST necesita una ruta de salida .dsf</translation>
    </message>
    <message>
        <source>(引擎没有输出)</source>
        <translation>(el motor no produjo salida)</translation>
    </message>
    <message>
        <source>$ %1

%2

退出码 = %3</source>
        <translation>$ %1

%2

Código de salida = %3</translation>
    </message>
    <message>
        <source>本构建的引擎没有录音后端 (见录音页的状态行): 不能开始录音</source>
        <translation>El motor de esta compilación no tiene backend de grabación (ver la línea de estado de la pestaña Grabación): no se puede grabar</translation>
    </message>
    <message>
        <source>录音正在进行中</source>
        <translation>Ya hay una grabación en curso</translation>
    </message>
    <message>
        <source>录音</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>请先在上方「输出文件」设置录音保存路径</source>
        <translation>Primero defina la ruta de la grabación en «Archivo de salida» arriba</translation>
    </message>
    <message>
        <source>录音输出文件必须是 .dsf 格式</source>
        <translation>El archivo de salida de la grabación debe ser .dsf</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoEngine (录音需要引擎录音支持)</source>
        <translation>Error: no se encontró ZuvoEngine (la grabación requiere soporte de grabación en el motor)</translation>
    </message>
    <message>
        <source>录音命令: %1 %2</source>
        <translation>Comando de grabación: %1 %2</translation>
    </message>
    <message>
        <source>开始录音 → %1</source>
        <translation>Grabación iniciada → %1</translation>
    </message>
    <message>
        <source>提示: 停止时发送 'q' 让引擎优雅收尾 (先停止处理 PCM 再写 DSF)</source>
        <translation>Consejo: al detener se envía 'q' para que el motor termine limpiamente (deja de procesar PCM y luego escribe el DSF)</translation>
    </message>
    <message>
        <source>录音中…</source>
        <translation>Grabando…</translation>
    </message>
    <message>
        <source>录音会话: %1</source>
        <translation>Sesión de grabación: %1</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 (录音) — %1</source>
        <translation>Error: no se puede iniciar el motor (grabación) — %1</translation>
    </message>
    <message>
        <source>当前没有录音任务</source>
        <translation>No hay ninguna grabación en curso</translation>
    </message>
    <message>
        <source>发送 'q' 至引擎 — 等待优雅收尾 (写 DSF 后自动退出)…</source>
        <translation>'q' enviado al motor — esperando un cierre limpio (escribe el DSF y sale)…</translation>
    </message>
    <message>
        <source>录音引擎已不在运行</source>
        <translation>El motor de grabación ya no está en ejecución</translation>
    </message>
    <message>
        <source>引擎未在 12s 内收尾 (本次在进程内进行, 无法强制结束)</source>
        <translation>El motor no terminó en 12 s (esta ejecución es dentro del proceso; no se puede forzar el cierre)</translation>
    </message>
    <message>
        <source>引擎未在 12s 内退出, 强制终止</source>
        <translation>El motor no salió en 12 s; forzando la terminación</translation>
    </message>
    <message>
        <source>录音保存: %1</source>
        <translation>Grabación guardada: %1</translation>
    </message>
    <message>
        <source>录音失败, 退出码: %1</source>
        <translation>Error en la grabación, código de salida: %1</translation>
    </message>
    <message>
        <source>录音进程异常退出 (崩溃/被终止)</source>
        <translation>El proceso de grabación terminó de forma anormal (fallo/finalizado)</translation>
    </message>
    <message>
        <source>录音后端: 可用 — %1</source>
        <translation>Backend de grabación: disponible — %1</translation>
    </message>
    <message>
        <source>录音后端: 不可用 — %1</source>
        <translation>Backend de grabación: no disponible — %1</translation>
    </message>
    <message>
        <source>%1 个输入设备(已列在日志里)</source>
        <translation>Dispositivos de entrada: %1 (listados en el registro)</translation>
    </message>
    <message>
        <source>引擎退出码 = %1</source>
        <translation>Código de salida del motor = %1</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请放在程序同目录、加入 PATH, 或设 ZUVO_ENGINE_BIN</source>
        <translation>No se encontró ZuvoEngine — colóquelo en la carpeta del programa, añádalo al PATH o defina ZUVO_ENGINE_BIN</translation>
    </message>
    <message>
        <source>探测 30s 无响应, 已终止</source>
        <translation>La detección no respondió en 30 s; se terminó</translation>
    </message>
    <message>
        <source>关于 / 诊断</source>
        <translation>Acerca de / Diagnóstico</translation>
    </message>
    <message>
        <source>ZuvoAudioTools — ZuvoEngine 的转码前端 (QProcess 子进程)
引擎路径: %1
注: 引擎的帮助/版本类子命令本来就以非 0 退出码收尾, 属既有行为。
探测是异步的: 点完可以继续操作界面, 结果到了会显示在下面。</source>
        <translation>ZuvoAudioTools — interfaz de conversión para ZuvoEngine (subproceso QProcess)
Ruta del motor: %1
Nota: los subcomandos de ayuda/versión del motor terminan con un código de salida distinto de 0 por diseño; es el comportamiento esperado.
La detección es asíncrona: tras hacer clic puede seguir usando la interfaz; el resultado aparecerá abajo.</translation>
    </message>
    <message>
        <source>(未找到)</source>
        <translation>(no encontrado)</translation>
    </message>
    <message>
        <source>点下面任一按钮看引擎的回答</source>
        <translation>Haga clic en cualquier botón de abajo para ver la respuesta del motor</translation>
    </message>
    <message>
        <source>引擎版本 (--version)</source>
        <translation>Versión del motor (--version)</translation>
    </message>
    <message>
        <source>列出音频设备 (--list-devices)</source>
        <translation>Listar dispositivos de audio (--list-devices)</translation>
    </message>
    <message>
        <source>引擎帮助 (--help)</source>
        <translation>Ayuda del motor (--help)</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请把它放在程序同目录、加入 PATH, 或设置环境变量 ZUVO_ENGINE_BIN。</source>
        <translation>No se encontró ZuvoEngine — colóquelo en la carpeta del programa, añádalo al PATH o defina la variable de entorno ZUVO_ENGINE_BIN.</translation>
    </message>
    <message>
        <source>$ %1

运行中… (界面不冻, 可继续操作)
</source>
        <translation>$ %1

Ejecutando… (la interfaz sigue respondiendo, puede seguir trabajando)
</translation>
    </message>
    <message>
        <source>引擎启动失败: %1</source>
        <translation>No se pudo iniciar el motor: %1</translation>
    </message>
    <message>
        <source>
引擎 30s 无响应, 已终止 (不进设备, 不会影响到正在跑的任务)。</source>
        <translation>
El motor no respondió durante 30 s y se terminó (no abrió ningún dispositivo; las tareas en curso no se ven afectadas).</translation>
    </message>
    <message>
        <source>录音后端: 未检测</source>
        <translation>Backend de grabación: sin comprobar</translation>
    </message>
    <message>
        <source>检测录音支持 / 列出输入设备</source>
        <translation>Detectar soporte de grabación / listar dispositivos de entrada</translation>
    </message>
    <message>
        <source>录音设备 (空=默认):</source>
        <translation>Dispositivo de grabación (vacío=predet.):</translation>
    </message>
    <message>
        <source>声道数 (0=自动):</source>
        <translation>Canales (0=auto):</translation>
    </message>
    <message>
        <source>采样率 Hz (0=自动):</source>
        <translation>Frec. de muestreo Hz (0=auto):</translation>
    </message>
    <message>
        <source>时长秒 (0=手动):</source>
        <translation>Duración (s, 0=manual):</translation>
    </message>
    <message>
        <source>头空间 dB:</source>
        <translation>Headroom dB:</translation>
    </message>
    <message>
        <source>缓冲帧:</source>
        <translation>Búfer (tramas):</translation>
    </message>
    <message>
        <source>直通模式 (--record-exclusive)</source>
        <translation>Modo exclusivo (--record-exclusive)</translation>
    </message>
    <message>
        <source>DSD 直录 (否则 PCM2PDM)</source>
        <translation>Grabación DSD directa (si no, PCM2PDM)</translation>
    </message>
    <message>
        <source>监听输入</source>
        <translation>Monitorizar entrada</translation>
    </message>
    <message>
        <source>监听输出设备:</source>
        <translation>Dispositivo de monitorización:</translation>
    </message>
    <message>
        <source>录音输出 = 上方「输出文件」(必须 .dsf); 停止时向引擎发送 'q' 优雅收尾 (镜像 GTK)</source>
        <translation>Salida de la grabación = «Archivo de salida» de arriba (debe ser .dsf); al detener se envía 'q' al motor para un cierre limpio (como en la versión GTK)</translation>
    </message>
    <message>
        <source>开始录音</source>
        <translation>Iniciar grabación</translation>
    </message>
    <message>
        <source>停止录音</source>
        <translation>Detener grabación</translation>
    </message>
</context>
<context>
    <name>PerTrackDialog</name>
    <message>
        <source>逐轨预设 (每个文件可各用一套)</source>
        <translation>Preajustes por pista (uno por archivo)</translation>
    </message>
    <message>
        <source>每行给一个文件挑一套预设; 「(用当前参数)」= 跟随主面板。
预设只换编码/DSP 参数 —— 输出目录/输出格式与标签仍按主面板。</source>
        <translation>Elija un preajuste por fila para cada archivo; «(usar parámetros actuales)» = seguir el panel principal.
Un preajuste solo cambia parámetros de codificación/DSP — la carpeta/formato de salida y las etiquetas siguen saliendo del panel principal.</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Preajuste</translation>
    </message>
    <message>
        <source>(用当前参数)</source>
        <translation>(usar parámetros actuales)</translation>
    </message>
    <message>
        <source>(预设目录里没有预设 —— 先在上面「母带预设」里保存一套)</source>
        <translation>(no hay preajustes en la carpeta — guarde primero uno en «Preajustes de masterización», arriba)</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>PresetManagerDialog</name>
    <message>
        <source>预设管理器</source>
        <translation>Gestor de preajustes</translation>
    </message>
    <message>
        <source>预设为 JSON 文件 (与 GTK 版同目录同键名, 可互读)
写入目录: %1</source>
        <translation>Los preajustes son archivos JSON (misma carpeta y mismas claves que la versión GTK, intercambiables)
Carpeta de escritura: %1</translation>
    </message>
    <message>
        <source>加载选中</source>
        <translation>Cargar seleccionado</translation>
    </message>
    <message>
        <source>删除选中</source>
        <translation>Eliminar seleccionado</translation>
    </message>
    <message>
        <source>保存当前为…</source>
        <translation>Guardar actual como…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Preajuste</translation>
    </message>
    <message>
        <source>无法读取: %1</source>
        <translation>No se puede leer: %1</translation>
    </message>
    <message>
        <source>预设文件解析失败: %1</source>
        <translation>Error al interpretar el archivo de preajuste: %1</translation>
    </message>
    <message>
        <source>预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>El preajuste contiene %1 campo(s) no admitido(s) en esta versión, ignorado(s)</translation>
    </message>
    <message>
        <source>已加载预设: %1</source>
        <translation>Preajuste cargado: %1</translation>
    </message>
    <message>
        <source>删除预设</source>
        <translation>Eliminar preajuste</translation>
    </message>
    <message>
        <source>确定删除预设 %1 ?</source>
        <translation>¿Eliminar el preajuste %1?</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>Error al eliminar: %1</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>预设名称:</source>
        <translation>Nombre del preajuste:</translation>
    </message>
    <message>
        <source>预设 %1 已存在, 覆盖?</source>
        <translation>El preajuste %1 ya existe. ¿Sobrescribirlo?</translation>
    </message>
    <message>
        <source>预设名称无效: %1</source>
        <translation>Nombre de preajuste no válido: %1</translation>
    </message>
    <message>
        <source>保存失败: %1</source>
        <translation>Error al guardar: %1</translation>
    </message>
    <message>
        <source>已保存预设: %1</source>
        <translation>Preajuste guardado: %1</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>名称为空</source>
        <translation>El nombre está vacío</translation>
    </message>
    <message>
        <source>名称不能包含 %1 或控制字符</source>
        <translation>El nombre no puede contener %1 ni caracteres de control</translation>
    </message>
    <message>
        <source>名称不能以点结尾</source>
        <translation>El nombre no puede terminar en punto</translation>
    </message>
    <message>
        <source>名称 %1 是系统保留的设备名</source>
        <translation>El nombre %1 es un nombre de dispositivo reservado del sistema</translation>
    </message>
    <message>
        <source>文件过大 (%1 字节)</source>
        <translation>Archivo demasiado grande (%1 bytes)</translation>
    </message>
    <message>
        <source>顶层不是 JSON 对象</source>
        <translation>El nivel superior no es un objeto JSON</translation>
    </message>
    <message>
        <source>无法读取文件</source>
        <translation>No se puede leer el archivo</translation>
    </message>
</context>
<context>
    <name>ReferencesGui</name>
    <message>
        <source>参考标准</source>
        <translation>Normas de referencia</translation>
    </message>
</context>
<context>
    <name>RunControlsPanel</name>
    <message>
        <source>开始转换</source>
        <translation>Iniciar conversión</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Borrar registro</translation>
    </message>
    <message>
        <source>详细日志 (--verbose)</source>
        <translation>Registro detallado (--verbose)</translation>
    </message>
    <message>
        <source>保留引擎日志（退出不删）</source>
        <translation>Conservar el registro del motor (no se borra al salir)</translation>
    </message>
    <message>
        <source>关（默认）：引擎日志写在系统临时目录里的一次性目录中，退出即清；
开：写到 %1 下并保留，便于把日志发给厂商排障。</source>
        <translation>Desactivado (predeterminado): el registro del motor se escribe en una carpeta desechable dentro del directorio temporal del sistema y se borra al salir;
Activado: se escribe en %1 y se conserva, para poder enviarlo al fabricante y diagnosticar problemas.</translation>
    </message>
    <message>
        <source>子进程: ZuvoEngine</source>
        <translation>Subproceso: ZuvoEngine</translation>
    </message>
    <message>
        <source>GUI 通过 QProcess 调用同目录/环境变量指定的 ZuvoEngine</source>
        <translation>La interfaz ejecuta mediante QProcess el ZuvoEngine de la carpeta del programa o el indicado por la variable de entorno</translation>
    </message>
</context>
<context>
    <name>ThirdPartyGui</name>
    <message>
        <source>源码许可</source>
        <translation>Licencias del código fuente</translation>
    </message>
</context>
<context>
    <name>UiLangRow</name>
    <message>
        <source>语言</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>界面语言。切换后程序会重启一次以便整套界面换语言。</source>
        <translation>Idioma de la interfaz. Tras cambiarlo, el programa se reinicia una vez para aplicar el idioma a toda la interfaz.</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Idioma del sistema</translation>
    </message>
    <message>
        <source>界面语言已切换，程序将自动重启一次以生效。</source>
        <translation>Idioma de la interfaz cambiado. El programa se reiniciará una vez para aplicarlo.</translation>
    </message>
</context>
<context>
    <name>UpdateUi</name>
    <message>
        <source>正在检查更新…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>检查更新</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>已是最新版本 (%1)。服务器上的最新版本为 %2。</source>
        <translation>Ya tiene la última versión (%1). La última versión en el servidor es %2.</translation>
    </message>
    <message>
        <source>检查更新失败：</source>
        <translation>Error al buscar actualizaciones:</translation>
    </message>
    <message>
        <source>发现新版本 %1（当前 %2）。</source>
        <translation>Hay una nueva versión %1 (actual: %2).</translation>
    </message>
    <message>
        <source>发布日期：%1</source>
        <translation>Fecha de publicación: %1</translation>
    </message>
    <message>
        <source>更新说明：%1</source>
        <translation>Notas de la versión: %1</translation>
    </message>
    <message>
        <source>发现新版本</source>
        <translation>Nueva versión disponible</translation>
    </message>
    <message>
        <source>下载并更新</source>
        <translation>Descargar y actualizar</translation>
    </message>
    <message>
        <source>打开下载页</source>
        <translation>Abrir página de descarga</translation>
    </message>
    <message>
        <source>稍后</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>正在下载更新…</source>
        <translation>Descargando la actualización…</translation>
    </message>
    <message>
        <source>下载更新</source>
        <translation>Descargar actualización</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>程序现在退出。</source>
        <translation>El programa se cerrará ahora.</translation>
    </message>
    <message>
        <source>更新失败</source>
        <translation>Error de actualización</translation>
    </message>
</context>
<context>
    <name>pv::PreviewDialog</name>
    <message>
        <source>预览: %1</source>
        <translation>Vista previa: %1</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>Forma de onda</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>Espectrograma</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>%1 — %2 Hz / %3 ch, 预览 %4 s (上限 30 s)</source>
        <translation>%1 — %2 Hz / %3 canales, vista previa %4 s (máx. 30 s)</translation>
    </message>
    <message>
        <source>该格式 (%1) 预览待后续 — 目前仅支持 WAV (DSD 解码属后续里程碑)</source>
        <translation>La vista previa de este formato (%1) llegará más adelante — por ahora solo WAV (la decodificación DSD está prevista para una fase posterior)</translation>
    </message>
    <message>
        <source>解码失败: %1</source>
        <translation>Error de decodificación: %1</translation>
    </message>
</context>
</TS>