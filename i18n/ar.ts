<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="zh_CN">
<context>
    <name>ConversionQueue</name>
    <message>
        <source>引擎日志: %1</source>
        <translation>سجل المحرك: %1</translation>
    </message>
    <message>
        <source>(交给引擎默认)</source>
        <translation>(افتراضي المحرك)</translation>
    </message>
    <message>
        <source>待转换文件: %1 个</source>
        <translation>الملفات المراد تحويلها: %1</translation>
    </message>
    <message>
        <source>输出目录: %1 (命名模板: %2, 格式: %3)</source>
        <translation>مجلد الإخراج: %1 (قالب التسمية: %2، التنسيق: %3)</translation>
    </message>
    <message>
        <source>✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)</source>
        <translation>✗ تعذّر تحليل الإعداد المسبق للمسار؛ تُستخدم المعاملات الحالية لهذا الملف: %1 (%2)</translation>
    </message>
    <message>
        <source>逐轨预设《%1》</source>
        <translation>الإعداد المسبق للمسار «%1»</translation>
    </message>
    <message>
        <source>  预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>  يحتوي الإعداد المسبق على %1 حقل غير مدعوم في هذا الإصدار، وتم تجاهلها</translation>
    </message>
    <message>
        <source>停止: 剩余 %1 个文件已跳过</source>
        <translation>توقف: تم تخطي %1 ملف متبقٍّ</translation>
    </message>
    <message>
        <source>━━━ [%1/%2] 转换 %3</source>
        <translation>━━━ [%1/%2] جارٍ تحويل %3</translation>
    </message>
    <message>
        <source>━━━ 转换 %1</source>
        <translation>━━━ جارٍ تحويل %1</translation>
    </message>
    <message>
        <source>✗ 无法创建输出目录: %1</source>
        <translation>✗ تعذّر إنشاء مجلد الإخراج: %1</translation>
    </message>
    <message>
        <source>执行: %1 %2</source>
        <translation>تنفيذ: %1 %2</translation>
    </message>
    <message>
        <source>转换会话: %1</source>
        <translation>جلسة التحويل: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>داخل العملية (استدعاء المكتبة مباشرة)</translation>
    </message>
    <message>
        <source>子进程(起 CLI)</source>
        <translation>عملية فرعية (CLI)</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 — %1</source>
        <translation>خطأ: تعذّر تشغيل المحرك — %1</translation>
    </message>
    <message>
        <source>✓ %1 完成</source>
        <translation>✓ اكتمل %1</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (未完成的文件已删除)</source>
        <translation>■ توقف: %1 (حُذف الملف غير المكتمل)</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (文件保留, 可能不完整)</source>
        <translation>■ توقف: %1 (أُبقي الملف، وقد يكون غير مكتمل)</translation>
    </message>
    <message>
        <source>■ 已停止(强制结束进程): %1</source>
        <translation>■ توقف (أُنهيت العملية قسرًا): %1</translation>
    </message>
    <message>
        <source>✗ %1 异常退出 (崩溃/被终止)</source>
        <translation>✗ خرج %1 بشكل غير طبيعي (انهيار/إنهاء)</translation>
    </message>
    <message>
        <source>✗ 退出码: %1</source>
        <translation>✗ رمز الخروج: %1</translation>
    </message>
    <message>
        <source>── 引擎日志 (末尾 %1 行): %2 ──</source>
        <translation>── سجل المحرك (آخر %1 سطر): %2 ──</translation>
    </message>
    <message>
        <source>
全部完成: %1 OK</source>
        <translation>
اكتمل الكل: %1 OK</translation>
    </message>
    <message>
        <source>
完成: %1 OK, %2 失败</source>
        <translation>
اكتمل: %1 OK، %2 فشل</translation>
    </message>
    <message>
        <source>转换已停止</source>
        <translation>توقف التحويل</translation>
    </message>
    <message>
        <source>当前没有运行的进程</source>
        <translation>لا توجد عملية قيد التشغيل</translation>
    </message>
    <message>
        <source>正在停止转换进程…</source>
        <translation>جارٍ إيقاف التحويل…</translation>
    </message>
    <message>
        <source>终止当前转换进程…</source>
        <translation>إنهاء عملية التحويل الحالية…</translation>
    </message>
    <message>
        <source>正在通知引擎停止…</source>
        <translation>جارٍ مطالبة المحرك بالتوقف…</translation>
    </message>
    <message>
        <source>引擎 2 秒内没有确认停止 —— 仍在收尾(可再点一次, 或关闭程序)。</source>
        <translation>لم يؤكد المحرك التوقف خلال ثانيتين — لا يزال يُنهي العمل (انقر مرة أخرى أو أغلق البرنامج).</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[تحكم] %1</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但没有写出输出文件 %2</source>
        <translation>✗ %1: أبلغ المحرك بالاكتمال، لكن لم يُكتب ملف الإخراج %2</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件 %2 没有被写过 (还是旧的)</source>
        <translation>✗ %1: أبلغ المحرك بالاكتمال، لكن ملف الإخراج %2 لم يُكتب (لا يزال الملف القديم)</translation>
    </message>
    <message>
        <source>文件是空的</source>
        <translation>الملف فارغ</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2), 已删除: %3</source>
        <translation>✗ %1: أبلغ المحرك بالاكتمال، لكن تعذّرت قراءة ملف الإخراج (%2)، وقد حُذف: %3</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2): %3</source>
        <translation>✗ %1: أبلغ المحرك بالاكتمال، لكن تعذّرت قراءة ملف الإخراج (%2): %3</translation>
    </message>
    <message>
        <source> …(这一行太长, 后面 %1 个字符没有显示)</source>
        <translation> …(السطر طويل جدًا؛ لم تُعرض الأحرف المتبقية: %1)</translation>
    </message>
    <message>
        <source>不是 DSF 文件</source>
        <translation>ليس ملف DSF</translation>
    </message>
    <message>
        <source>DSF 头里的文件长度与实际不符 (文件不完整)</source>
        <translation>طول الملف في ترويسة DSF لا يطابق الطول الفعلي (الملف غير مكتمل)</translation>
    </message>
    <message>
        <source>DSF 格式块不对</source>
        <translation>كتلة التنسيق في DSF غير صالحة</translation>
    </message>
    <message>
        <source>DSF 数据块不对</source>
        <translation>كتلة البيانات في DSF غير صالحة</translation>
    </message>
    <message>
        <source>DSF 元数据位置不对</source>
        <translation>موضع البيانات الوصفية في DSF غير صالح</translation>
    </message>
    <message>
        <source>不是 DSDIFF 文件</source>
        <translation>ليس ملف DSDIFF</translation>
    </message>
    <message>
        <source>DSDIFF 头里的长度与实际不符 (文件不完整)</source>
        <translation>الطول في ترويسة DSDIFF لا يطابق الطول الفعلي (الملف غير مكتمل)</translation>
    </message>
    <message>
        <source>DSDIFF 块超出文件</source>
        <translation>كتلة DSDIFF تتجاوز نهاية الملف</translation>
    </message>
    <message>
        <source>DSDIFF 缺少 FVER/PROP/声音块</source>
        <translation>كتلة FVER/PROP/الصوت مفقودة في DSDIFF</translation>
    </message>
    <message>
        <source>不是 WAV 文件</source>
        <translation>ليس ملف WAV</translation>
    </message>
    <message>
        <source>RF64 的 ds64 块不对</source>
        <translation>كتلة ds64 في RF64 غير صالحة</translation>
    </message>
    <message>
        <source>WAV 缺少格式块</source>
        <translation>كتلة التنسيق مفقودة في WAV</translation>
    </message>
    <message>
        <source>WAV 数据块超出文件 (文件不完整)</source>
        <translation>كتلة البيانات في WAV تتجاوز نهاية الملف (الملف غير مكتمل)</translation>
    </message>
    <message>
        <source>WAV 格式块不对</source>
        <translation>كتلة التنسيق في WAV غير صالحة</translation>
    </message>
    <message>
        <source>WAV 缺少数据块</source>
        <translation>كتلة البيانات مفقودة في WAV</translation>
    </message>
    <message>
        <source>不是 W64 文件</source>
        <translation>ليس ملف W64</translation>
    </message>
    <message>
        <source>W64 块超出文件 (文件不完整)</source>
        <translation>كتلة W64 تتجاوز نهاية الملف (الملف غير مكتمل)</translation>
    </message>
    <message>
        <source>W64 缺少格式块</source>
        <translation>كتلة التنسيق مفقودة في W64</translation>
    </message>
    <message>
        <source>W64 缺少数据块</source>
        <translation>كتلة البيانات مفقودة في W64</translation>
    </message>
    <message>
        <source>不是 FLAC 文件</source>
        <translation>ليس ملف FLAC</translation>
    </message>
    <message>
        <source>FLAC 缺少 STREAMINFO</source>
        <translation>STREAMINFO مفقود في FLAC</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>تعذّر الفتح</translation>
    </message>
</context>
<context>
    <name>EngineSession</name>
    <message>
        <source>进程内会话起不来 (rc=%1)</source>
        <translation>تعذّر بدء الجلسة داخل العملية (rc=%1)</translation>
    </message>
</context>
<context>
    <name>FileListWidget</name>
    <message>
        <source>  ◇ 预设: %1</source>
        <translation>  ◇ الإعداد المسبق: %1</translation>
    </message>
</context>
<context>
    <name>InputOutputPanel</name>
    <message>
        <source>添加文件…</source>
        <translation>إضافة ملفات…</translation>
    </message>
    <message>
        <source>添加目录…</source>
        <translation>إضافة مجلد…</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>إزالة المحدد</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>مسح القائمة</translation>
    </message>
    <message>
        <source>支持拖入音频文件或文件夹</source>
        <translation>اسحب ملفات الصوت أو المجلدات إلى هنا</translation>
    </message>
    <message>
        <source>输出 .dsf / .dff 文件</source>
        <translation>ملف إخراج .dsf / .dff</translation>
    </message>
    <message>
        <source>浏览…</source>
        <translation>استعراض…</translation>
    </message>
    <message>
        <source>输出文件:</source>
        <translation>ملف الإخراج:</translation>
    </message>
    <message>
        <source>留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名</source>
        <translation>اتركه فارغًا لاستخدام ملف الإخراج أعلاه؛ وإذا مُلئ فسيأخذ كل إدخال اسمه من قالب التسمية</translation>
    </message>
    <message>
        <source>批量输出: 所有输入写进这个目录, 文件名由下面的命名模板算</source>
        <translation>إخراج دفعي: تُكتب كل المدخلات في هذا المجلد، وتُشتق الأسماء من القالب أدناه</translation>
    </message>
    <message>
        <source>浏览目录…</source>
        <translation>استعراض المجلد…</translation>
    </message>
    <message>
        <source>输出目录:</source>
        <translation>مجلد الإخراج:</translation>
    </message>
    <message>
        <source>输出目录模式下每个文件的扩展名 (引擎按扩展名认格式)</source>
        <translation>امتداد الملفات في وضع مجلد الإخراج (يحدد المحرك التنسيق من الامتداد)</translation>
    </message>
    <message>
        <source>变量: {input} 输入文件名  {ext} 输出格式  {track} / {track:02} 队列序号  {artist} {title} 界面字段
留空 = {input}; 变量没有值时回退用输入文件名; 模板里可以带子目录</source>
        <translation>المتغيرات: {input} اسم ملف الإدخال  {ext} تنسيق الإخراج  {track} / {track:02} رقم في قائمة الانتظار  {artist} {title} حقول الواجهة
فارغ = {input}؛ المتغير بلا قيمة يُستبدل باسم ملف الإدخال؛ يمكن أن يتضمن القالب مجلدات فرعية</translation>
    </message>
    <message>
        <source>输出格式:</source>
        <translation>تنسيق الإخراج:</translation>
    </message>
    <message>
        <source>命名模板:</source>
        <translation>قالب التسمية:</translation>
    </message>
    <message>
        <source>标签: DFF→COMT, DSF→ID3</source>
        <translation>الوسوم: DFF→COMT, DSF→ID3</translation>
    </message>
    <message>
        <source>0 = 不写曲目号 (引擎只接受 1..998)</source>
        <translation>0 = بدون رقم مسار (يقبل المحرك 1..998 فقط)</translation>
    </message>
    <message>
        <source>写入标签的说明文字</source>
        <translation>نص التعليق المكتوب في الوسم</translation>
    </message>
    <message>
        <source>从输入文件读取标签</source>
        <translation>قراءة الوسوم من ملف الإدخال</translation>
    </message>
    <message>
        <source>艺术家:</source>
        <translation>الفنان:</translation>
    </message>
    <message>
        <source>标题:</source>
        <translation>العنوان:</translation>
    </message>
    <message>
        <source>专辑:</source>
        <translation>الألبوم:</translation>
    </message>
    <message>
        <source>流派:</source>
        <translation>النوع:</translation>
    </message>
    <message>
        <source>年份:</source>
        <translation>السنة:</translation>
    </message>
    <message>
        <source>曲目号:</source>
        <translation>رقم المسار:</translation>
    </message>
    <message>
        <source>备注:</source>
        <translation>تعليق:</translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>%1 ملف</translation>
    </message>
    <message>
        <source>音频文件 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;所有文件 (*)</source>
        <translation>ملفات صوتية (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;كل الملفات (*)</translation>
    </message>
    <message>
        <source>选择输入文件</source>
        <translation>اختيار ملفات الإدخال</translation>
    </message>
    <message>
        <source>选择目录</source>
        <translation>اختيار مجلد</translation>
    </message>
    <message>
        <source>PCM 音频 (*.wav *.w64 *.flac);;所有文件 (*)</source>
        <translation>صوت PCM (*.wav *.w64 *.flac);;كل الملفات (*)</translation>
    </message>
    <message>
        <source>DSDIFF (*.dff);;DSD Stream (*.dsf);;所有文件 (*)</source>
        <translation>DSDIFF (*.dff);;DSD Stream (*.dsf);;كل الملفات (*)</translation>
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
        <translation>اختيار ملف الإخراج</translation>
    </message>
    <message>
        <source>选择输出目录</source>
        <translation>اختيار مجلد الإخراج</translation>
    </message>
    <message>
        <source>波形/频谱预览…</source>
        <translation>معاينة الشكل الموجي/المخطط الطيفي…</translation>
    </message>
    <message>
        <source>逐轨预设…</source>
        <translation>إعدادات مسبقة لكل مسار…</translation>
    </message>
    <message>
        <source>给队列里每个文件单独指定一套预设
预设只换编码/DSP 参数; 输出目录/输出格式与标签仍按面板</source>
        <translation>خصّص إعدادًا مسبقًا مستقلًا لكل ملف في قائمة الانتظار
الإعداد المسبق يغيّر معاملات الترميز/DSP فقط؛ أما مجلد/تنسيق الإخراج والوسوم فتبقى من اللوحة</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>开始转换</source>
        <translation>بدء التحويل</translation>
    </message>
    <message>
        <source>Zuvo Audio Suite — 音频转换工具</source>
        <translation>Zuvo Audio Suite — أداة تحويل الصوت</translation>
    </message>
    <message>
        <source>设置输出文件: %1</source>
        <translation>تم تعيين ملف الإخراج: %1</translation>
    </message>
    <message>
        <source>目录中没有音频文件</source>
        <translation>لا توجد ملفات صوتية في المجلد</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改文件列表</source>
        <translation>لا يمكن تعديل قائمة الملفات أثناء التحويل</translation>
    </message>
    <message>
        <source>找到 ZuvoEngine (音频转换引擎): %1</source>
        <translation>تم العثور على ZuvoEngine (محرك تحويل الصوت): %1</translation>
    </message>
    <message>
        <source>警告: 未找到 ZuvoEngine — 转换功能不可用。请将其放在程序同目录、或加入 PATH。</source>
        <translation>تحذير: لم يُعثر على ZuvoEngine — التحويل غير متاح. ضعه بجوار هذا البرنامج أو أضفه إلى PATH.</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine</source>
        <translation>لم يُعثر على ZuvoEngine</translation>
    </message>
    <message>
        <source>已添加 %1 个文件</source>
        <translation>تمت إضافة %1 ملف</translation>
    </message>
    <message>
        <source>已跳过 %1 个重复文件</source>
        <translation>تم تخطي %1 ملف مكرر</translation>
    </message>
    <message>
        <source>转换完成</source>
        <translation>اكتمل التحويل</translation>
    </message>
    <message>
        <source>转换 %1 个文件</source>
        <translation>تم تحويل %1 ملف</translation>
    </message>
    <message>
        <source>转换 %1 个文件, %2 个失败</source>
        <translation>تم تحويل %1 ملف، وفشل %2</translation>
    </message>
    <message>
        <source>打开输出目录</source>
        <translation>فتح مجلد الإخراج</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>AUTORUN 参数不完整</source>
        <translation>وسيط AUTORUN غير مكتمل</translation>
    </message>
    <message>
        <source>AUTORUN: %1 个输入 → %2</source>
        <translation>AUTORUN: %1 إدخال → %2</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>تنسيق الإخراج</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM) 的输出必须是 .wav 或 .flac</source>
        <translation>يجب أن يكون إخراج الوضع العكسي (PDM2PCM) بصيغة .wav أو .flac</translation>
    </message>
    <message>
        <source>DXD 输出只支持 .wav / .w64 / .flac (引擎按扩展名认容器)</source>
        <translation>إخراج DXD يدعم .wav / .w64 / .flac فقط (يحدد المحرك الحاوية من الامتداد)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>错误: DST 压缩仅支持 DFF 格式输出
请把输出格式/扩展名改为 .dff 或禁用 DST 压缩</source>
        <translation>خطأ: ضغط DST يدعم إخراج DFF فقط
غيّر تنسيق/امتداد الإخراج إلى .dff أو عطّل ضغط DST</translation>
    </message>
    <message>
        <source>输出文件必须是 .dsf 或 .dff 格式</source>
        <translation>يجب أن يكون ملف الإخراج بصيغة .dsf أو .dff</translation>
    </message>
    <message>
        <source>转换中</source>
        <translation>جارٍ التحويل</translation>
    </message>
    <message>
        <source>已有转换任务正在进行中, 请等待完成。</source>
        <translation>هناك عملية تحويل قيد التنفيذ بالفعل؛ يُرجى الانتظار حتى تكتمل.</translation>
    </message>
    <message>
        <source>输入文件</source>
        <translation>ملفات الإدخال</translation>
    </message>
    <message>
        <source>请选择输入文件</source>
        <translation>يُرجى اختيار ملفات الإدخال</translation>
    </message>
    <message>
        <source>元数据</source>
        <translation>البيانات الوصفية</translation>
    </message>
    <message>
        <source>输出 .dff 必须填「艺术家」和「标题」两个值
(它们是 DFF 的 COMT 标签; 必填项, 不填不开始转换)</source>
        <translation>يتطلب إخراج .dff تعبئة «الفنان» و«العنوان» معًا
(يشكّلان وسم COMT في DFF؛ وهما إلزاميان — لن يبدأ التحويل بدونهما)</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>عدد المعاملات (Taps)</translation>
    </message>
    <message>
        <source>Taps 必须是偶数且不小于 512 (0 = 用引擎默认值)</source>
        <translation>يجب أن يكون عدد المعاملات (Taps) زوجيًا ولا يقل عن 512 (0 = افتراضي المحرك)</translation>
    </message>
    <message>
        <source>过渡带</source>
        <translation>نطاق الانتقال</translation>
    </message>
    <message>
        <source>阻带截止必须大于通带截止 (否则过渡带为零/负, 引擎会拒绝)</source>
        <translation>يجب أن يكون قطع نطاق الإيقاف أعلى من قطع نطاق التمرير (وإلا يصبح نطاق الانتقال صفرًا/سالبًا ويرفضه المحرك)</translation>
    </message>
    <message>
        <source>输出目录</source>
        <translation>مجلد الإخراج</translation>
    </message>
    <message>
        <source>无法创建输出目录:
%1</source>
        <translation>تعذّر إنشاء مجلد الإخراج:
%1</translation>
    </message>
    <message>
        <source>输出文件</source>
        <translation>ملف الإخراج</translation>
    </message>
    <message>
        <source>请选择输出文件</source>
        <translation>يُرجى اختيار ملف الإخراج</translation>
    </message>
    <message>
        <source>噪声本底分析</source>
        <translation>تحليل أرضية الضوضاء</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「PDF 报告」开关</source>
        <translation>لا يعمل تحليل أرضية الضوضاء إلا مع تفعيل تقرير PDF
يُرجى تفعيل خيار «تقرير PDF»</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>المعادل</translation>
    </message>
    <message>
        <source>启用了均衡器但没有有效频段
请添加至少一个频段 (中心频率 &gt; 0), 或禁用均衡器</source>
        <translation>المعادل مفعّل لكن لا يوجد نطاق صالح
أضف نطاقًا واحدًا على الأقل (التردد المركزي &gt; 0) أو عطّل المعادل</translation>
    </message>
    <message>
        <source>引擎缺失</source>
        <translation>المحرك مفقود</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine。请将其放在程序同目录、或加入 PATH,
也可设置环境变量 ZUVO_ENGINE_BIN 指向其完整路径。</source>
        <translation>لم يُعثر على ZuvoEngine. ضعه بجوار هذا البرنامج أو أضفه إلى PATH،
أو عيّن متغير البيئة ZUVO_ENGINE_BIN إلى مساره الكامل.</translation>
    </message>
    <message>
        <source>均衡器未启用</source>
        <translation>المعادل غير مفعّل</translation>
    </message>
    <message>
        <source>基本参数</source>
        <translation>أساسي</translation>
    </message>
    <message>
        <source>滤波</source>
        <translation>المرشح</translation>
    </message>
    <message>
        <source>空间与音调</source>
        <translation>المجال المكاني والنغمة</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>القنوات</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>متقدم</translation>
    </message>
    <message>
        <source>启用 DST 压缩模式</source>
        <translation>تم تفعيل وضع ضغط DST</translation>
    </message>
    <message>
        <source>禁用 DST 压缩模式</source>
        <translation>تم تعطيل وضع ضغط DST</translation>
    </message>
    <message>
        <source>DST 压缩</source>
        <translation>ضغط DST</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出格式将自动更改为 DFF</source>
        <translation>ضغط DST يدعم تنسيق DFF فقط
سيتم تغيير تنسيق الإخراج إلى DFF تلقائيًا</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出文件将自动更改为 DFF 格式</source>
        <translation>ضغط DST يدعم تنسيق DFF فقط
سيتم تغيير ملف الإخراج إلى تنسيق DFF تلقائيًا</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改参数</source>
        <translation>لا يمكن تعديل المعاملات أثناء التحويل</translation>
    </message>
    <message>
        <source>已加载母带预设: %1</source>
        <translation>تم تحميل إعداد الماسترينغ المسبق: %1</translation>
    </message>
    <message>
        <source>均衡器: %1 行无效 (需中心频率&gt;0) 已被跳过</source>
        <translation>المعادل: تم تخطي %1 صف غير صالح (يجب أن يكون التردد المركزي &gt; 0)</translation>
    </message>
    <message>
        <source>注意: 无法向引擎查询它不支持的选项, 直接开始转换</source>
        <translation>ملاحظة: تعذّر الاستعلام من المحرك عن الخيارات غير المدعومة؛ سيبدأ التحويل على أي حال</translation>
    </message>
    <message>
        <source>转换未开始: 当前引擎构建不支持这些已选择的选项: %1</source>
        <translation>لم يبدأ التحويل: إصدار المحرك الحالي لا يدعم هذه الخيارات المحددة: %1</translation>
    </message>
    <message>
        <source>引擎不支持的选项</source>
        <translation>خيارات غير مدعومة في المحرك</translation>
    </message>
    <message>
        <source>当前引擎构建不支持下列已选择的选项, 转换不会开始:
%1

请在参数页关闭它们后再开始 (预设里可以保留)。</source>
        <translation>إصدار المحرك الحالي لا يدعم الخيارات المحددة التالية، لذا لن يبدأ التحويل:
%1

أوقفها في صفحات المعاملات ثم ابدأ من جديد (يمكن إبقاؤها في الإعدادات المسبقة).</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改预设</source>
        <translation>لا يمكن تعديل الإعدادات المسبقة أثناء التحويل</translation>
    </message>
    <message>
        <source>转换进行中, 不能改逐轨预设。</source>
        <translation>التحويل جارٍ — لا يمكن تغيير الإعدادات المسبقة لكل مسار الآن.</translation>
    </message>
    <message>
        <source>请先添加输入文件</source>
        <translation>أضف ملفات الإدخال أولًا</translation>
    </message>
    <message>
        <source>逐轨预设: 已全部改回「用当前参数」</source>
        <translation>الإعدادات المسبقة لكل مسار: أُعيدت كلها إلى «استخدام المعاملات الحالية»</translation>
    </message>
    <message>
        <source>逐轨预设: %1 个文件各用一套</source>
        <translation>الإعدادات المسبقة لكل مسار: %1 ملف لكلٍّ منها إعداد مسبق خاص</translation>
    </message>
    <message>
        <source>转换进行中, 不能预览</source>
        <translation>لا يمكن المعاينة أثناء التحويل</translation>
    </message>
    <message>
        <source>请先添加文件</source>
        <translation>أضف ملفات أولًا</translation>
    </message>
    <message>
        <source>没有可预览的文件</source>
        <translation>لا يوجد ملف للمعاينة</translation>
    </message>
    <message>
        <source>单环 (NS, --order 9)</source>
        <translation>حلقة مفردة (NS, --order 9)</translation>
    </message>
    <message>
        <source>古典</source>
        <translation>كلاسيكي</translation>
    </message>
    <message>
        <source>古典: DSD-256, 131072 taps, 高带宽</source>
        <translation>كلاسيكي: DSD-256, 131072 taps، عرض نطاق عالٍ</translation>
    </message>
    <message>
        <source>流行</source>
        <translation>بوب</translation>
    </message>
    <message>
        <source>流行: DSD-128, 65536 taps</source>
        <translation>بوب: DSD-128, 65536 taps</translation>
    </message>
    <message>
        <source>爵士</source>
        <translation>جاز</translation>
    </message>
    <message>
        <source>爵士: DSD-128, 65536 taps</source>
        <translation>جاز: DSD-128, 65536 taps</translation>
    </message>
    <message>
        <source>DSD 采样率:</source>
        <translation>معدل عينات DSD:</translation>
    </message>
    <message>
        <source>Taps 数 (0=引擎默认):</source>
        <translation>عدد Taps (0=افتراضي المحرك):</translation>
    </message>
    <message>
        <source>SOS cascade + error feedback, NS15 profile (引擎默认): 实测带内噪声比单环 NS9 低 11.4 dB</source>
        <translation>تتالي SOS + تغذية راجعة للخطأ، ملف تعريف NS15 (افتراضي المحرك): الضوضاء داخل النطاق المقيسة أقل بمقدار 11.4 dB من الحلقة المفردة NS9</translation>
    </message>
    <message>
        <source>Chebyshev 多项式压缩 (可与 MASH 叠加)</source>
        <translation>ضغط متعدد حدود Chebyshev (يمكن دمجه مع MASH)</translation>
    </message>
    <message>
        <source>调制器:</source>
        <translation>المُعدِّل:</translation>
    </message>
    <message>
        <source>母带预设:</source>
        <translation>إعدادات الماسترينغ المسبقة:</translation>
    </message>
    <message>
        <source>预设管理器…</source>
        <translation>مدير الإعدادات المسبقة…</translation>
    </message>
    <message>
        <source>DST 压缩 (仅 .dff 输出)</source>
        <translation>ضغط DST (إخراج .dff فقط)</translation>
    </message>
    <message>
        <source>DXD 输出 (高解析 PCM)</source>
        <translation>إخراج DXD (PCM عالي الدقة)</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM)</source>
        <translation>الوضع العكسي (PDM2PCM)</translation>
    </message>
    <message>
        <source>输入 DSD(DSF/DFF), 输出 PCM/WAV —— 与 PCM→PDM 无关</source>
        <translation>إدخال DSD (DSF/DFF)، إخراج PCM/WAV — لا علاقة له بـ PCM→PDM</translation>
    </message>
    <message>
        <source>DST 压缩等级 (0=关闭):</source>
        <translation>مستوى ضغط DST (0=إيقاف):</translation>
    </message>
    <message>
        <source>高带宽模式</source>
        <translation>وضع عرض النطاق العالي</translation>
    </message>
    <message>
        <source>OpenCL 加速 (GPU)</source>
        <translation>تسريع OpenCL (GPU)</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 OpenCL 支持</source>
        <translation>إصدار المحرك الحالي مُجمَّع دون دعم OpenCL</translation>
    </message>
    <message>
        <source>添加 PDF 报告</source>
        <translation>إضافة تقرير PDF</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 PDF 报告 (需要 rsvg+cairo)</source>
        <translation>إصدار المحرك الحالي لا يدعم تقارير PDF (يتطلب rsvg+cairo)</translation>
    </message>
    <message>
        <source>只影响 PDF 报告内容, 不改音频比特流 (实测: 开关它 dsf 逐字节相同)</source>
        <translation>يؤثر فقط على محتوى تقرير PDF ولا يغيّر تدفق بتات الصوت (تم التحقق: ملف dsf متطابق بايتًا ببايت مع تشغيله أو إيقافه)</translation>
    </message>
    <message>
        <source>分析报告 (--report)</source>
        <translation>تقرير التحليل (--report)</translation>
    </message>
    <message>
        <source>噪声本底分析 (需 PDF 报告)</source>
        <translation>تحليل أرضية الضوضاء (يتطلب تقرير PDF)</translation>
    </message>
    <message>
        <source>降噪: 关</source>
        <translation>إزالة الضوضاء: إيقاف</translation>
    </message>
    <message>
        <source>降噪: 轻 (-12dB 地板, 最保真)</source>
        <translation>إزالة الضوضاء: خفيفة (أرضية -12dB، الأكثر أمانة)</translation>
    </message>
    <message>
        <source>降噪: 标准 (-18dB 地板)</source>
        <translation>إزالة الضوضاء: قياسية (أرضية -18dB)</translation>
    </message>
    <message>
        <source>降噪: 强 (感知加权地板, 最深)</source>
        <translation>إزالة الضوضاء: قوية (أرضية موزونة إدراكيًا، الأعمق)</translation>
    </message>
    <message>
        <source>保留乐器泛音 (降噪时保住泛音与泛音列)</source>
        <translation>الحفاظ على توافقيات الآلات (يحمي التوافقيات والسلسلة التوافقية عند إزالة الضوضاء)</translation>
    </message>
    <message>
        <source>报告里加峰值 (--peak)</source>
        <translation>إضافة الذروة إلى التقرير (--peak)</translation>
    </message>
    <message>
        <source>报告里加 RMS (--rms)</source>
        <translation>إضافة RMS إلى التقرير (--rms)</translation>
    </message>
    <message>
        <source>报告里不要动态范围一节 (--no-dynamic-range)</source>
        <translation>حذف قسم المدى الديناميكي من التقرير (--no-dynamic-range)</translation>
    </message>
    <message>
        <source>输出模式</source>
        <translation>وضع الإخراج</translation>
    </message>
    <message>
        <source>带宽、加速与报告</source>
        <translation>عرض النطاق والتسريع والتقرير</translation>
    </message>
    <message>
        <source>降噪与报告内容</source>
        <translation>إزالة الضوضاء ومحتوى التقرير</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「添加 PDF 报告」</source>
        <translation>لا يعمل تحليل أرضية الضوضاء إلا مع تفعيل تقرير PDF
يُرجى تفعيل «إضافة تقرير PDF»</translation>
    </message>
    <message>
        <source>声道设置</source>
        <translation>إعدادات القنوات</translation>
    </message>
    <message>
        <source>强制原始声道数</source>
        <translation>فرض عدد القنوات الأصلي</translation>
    </message>
    <message>
        <source>四声道模式 (需重置声道数=4)</source>
        <translation>الوضع الرباعي (يتطلب إعادة ضبط عدد القنوات = 4)</translation>
    </message>
    <message>
        <source>添加环绕声道</source>
        <translation>إضافة قنوات محيطية</translation>
    </message>
    <message>
        <source>声道交换</source>
        <translation>تبديل القنوات</translation>
    </message>
    <message>
        <source>重置声道数 (0=不动):</source>
        <translation>إعادة ضبط عدد القنوات (0=دون تغيير):</translation>
    </message>
    <message>
        <source>规则</source>
        <translation>القواعد</translation>
    </message>
    <message>
        <source>「强制原始声道数」优先: 勾选后重置声道数、四声道模式和添加环绕声道都不发给引擎。

四声道模式需要重置声道数为 4; 勾选时会自动设为 4。

「声道交换」交换前两个声道, 与其它选项可同时使用。</source>
        <translation>«فرض عدد القنوات الأصلي» له الأولوية: عند تحديده لا تُمرَّر إعادة ضبط عدد القنوات والوضع الرباعي وإضافة القنوات المحيطية إلى المحرك.

يتطلب الوضع الرباعي إعادة ضبط عدد القنوات إلى 4؛ ويُضبط على 4 تلقائيًا عند تحديده.

«تبديل القنوات» يبدّل القناتين الأوليين ويمكن استخدامه مع الخيارات الأخرى.</translation>
    </message>
    <message>
        <source>四声道模式: 重置声道数已自动设为 4</source>
        <translation>الوضع الرباعي: ضُبط عدد القنوات على 4 تلقائيًا</translation>
    </message>
    <message>
        <source>启用均衡器 (EQ)</source>
        <translation>تفعيل المعادل (EQ)</translation>
    </message>
    <message>
        <source>添加频段</source>
        <translation>إضافة نطاق</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>إزالة المحدد</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>中心频率 (Hz)</source>
        <translation>التردد المركزي (Hz)</translation>
    </message>
    <message>
        <source>增益 (dB)</source>
        <translation>الكسب (dB)</translation>
    </message>
    <message>
        <source>带宽</source>
        <translation>عرض النطاق</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>الوحدة</translation>
    </message>
    <message>
        <source>预览按 44.1 kHz 估算 — 引擎槽位: 首段低架, 满 10 段时末段高架</source>
        <translation>المعاينة مقدّرة عند 44.1 kHz — مواضع المحرك: النطاق الأول رفّ منخفض؛ وعند استخدام النطاقات العشرة كلها يكون الأخير رفًّا مرتفعًا</translation>
    </message>
    <message>
        <source>启用均衡器 (--eq 频段 f,g,bw{单位})</source>
        <translation>المعادل مفعّل (--eq نطاق f,g,bw{الوحدة})</translation>
    </message>
    <message>
        <source>禁用均衡器</source>
        <translation>المعادل معطّل</translation>
    </message>
    <message>
        <source>窗口法 (Window Method)</source>
        <translation>طريقة النافذة (Window Method)</translation>
    </message>
    <message>
        <source>最小相位 (Min-Phase)</source>
        <translation>الطور الأدنى (Min-Phase)</translation>
    </message>
    <message>
        <source>应用预失真处理</source>
        <translation>تطبيق معالجة التشويه المسبق</translation>
    </message>
    <message>
        <source>算法:</source>
        <translation>الخوارزمية:</translation>
    </message>
    <message>
        <source>滤波类型:</source>
        <translation>نوع المرشح:</translation>
    </message>
    <message>
        <source>窗口法参数</source>
        <translation>معاملات طريقة النافذة</translation>
    </message>
    <message>
        <source>窗口类型:</source>
        <translation>نوع النافذة:</translation>
    </message>
    <message>
        <source>Remez 算法参数</source>
        <translation>معاملات خوارزمية Remez</translation>
    </message>
    <message>
        <source>最大迭代次数:</source>
        <translation>الحد الأقصى للتكرارات:</translation>
    </message>
    <message>
        <source>网格密度:</source>
        <translation>كثافة الشبكة:</translation>
    </message>
    <message>
        <source>停止带衰减 (A_stop)</source>
        <translation>توهين نطاق الإيقاف (A_stop)</translation>
    </message>
    <message>
        <source>0=不发</source>
        <translation>0=لا يُرسل</translation>
    </message>
    <message>
        <source>停止带衰减 (dB):</source>
        <translation>توهين نطاق الإيقاف (dB):</translation>
    </message>
    <message>
        <source>过渡带 (截止频率)</source>
        <translation>نطاق الانتقال (ترددات القطع)</translation>
    </message>
    <message>
        <source>通带截止 (Hz):</source>
        <translation>قطع نطاق التمرير (Hz):</translation>
    </message>
    <message>
        <source>阻带截止 (Hz):</source>
        <translation>قطع نطاق الإيقاف (Hz):</translation>
    </message>
    <message>
        <source>增益 (ABS)</source>
        <translation>الكسب (ABS)</translation>
    </message>
    <message>
        <source>绝对值增益:</source>
        <translation>الكسب المطلق:</translation>
    </message>
    <message>
        <source>HRTF 空间音频</source>
        <translation>الصوت المكاني HRTF</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf)</source>
        <translation>تفعيل الصوت المكاني HRTF (--hrtf)</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf &lt;mono|ms|stereo&gt;)</source>
        <translation>الصوت المكاني HRTF مفعّل (--hrtf &lt;mono|ms|stereo&gt;)</translation>
    </message>
    <message>
        <source>禁用 HRTF 空间音频</source>
        <translation>الصوت المكاني HRTF معطّل</translation>
    </message>
    <message>
        <source>模式:</source>
        <translation>الوضع:</translation>
    </message>
    <message>
        <source>干湿比 (dry/wet):</source>
        <translation>نسبة المزج dry/wet:</translation>
    </message>
    <message>
        <source>侧向扩散比:</source>
        <translation>نسبة الانتشار الجانبي:</translation>
    </message>
    <message>
        <source>深度 (+1前 / 0耳位 / -1后):</source>
        <translation>العمق (+1 أمام / 0 مستوى الأذن / -1 خلف):</translation>
    </message>
    <message>
        <source>使用引擎内置 HRIR; 不提供自定义 .sofa 文件</source>
        <translation>يستخدم HRIR المدمج في المحرك؛ ملفات .sofa المخصصة غير مدعومة</translation>
    </message>
    <message>
        <source>环绕</source>
        <translation>الصوت المحيطي</translation>
    </message>
    <message>
        <source>启用环绕 (--surround)</source>
        <translation>تفعيل الصوت المحيطي (--surround)</translation>
    </message>
    <message>
        <source>启用环绕 (--surround delayMs mix side balance)</source>
        <translation>الصوت المحيطي مفعّل (--surround delayMs mix side balance)</translation>
    </message>
    <message>
        <source>禁用环绕</source>
        <translation>الصوت المحيطي معطّل</translation>
    </message>
    <message>
        <source>侧向 (side)</source>
        <translation>جانبي (side)</translation>
    </message>
    <message>
        <source>延迟 (ms):</source>
        <translation>التأخير (ms):</translation>
    </message>
    <message>
        <source>混合 (%):</source>
        <translation>المزج (%):</translation>
    </message>
    <message>
        <source>平衡 (-100~100, 0=不发):</source>
        <translation>التوازن (-100~100، 0=لا يُرسل):</translation>
    </message>
    <message>
        <source>音调 (shelving)</source>
        <translation>النغمة (shelving)</translation>
    </message>
    <message>
        <source>低音 (dB):</source>
        <translation>الجهير (dB):</translation>
    </message>
    <message>
        <source>高音 (dB):</source>
        <translation>الحاد (dB):</translation>
    </message>
    <message>
        <source>EQ 前置衰减 (dB):</source>
        <translation>التخفيض المسبق لـ EQ (dB):</translation>
    </message>
    <message>
        <source>启用 DSRE 数字频谱共振增强 (--dsre)</source>
        <translation>تفعيل DSRE لتعزيز الرنين الطيفي الرقمي (--dsre)</translation>
    </message>
    <message>
        <source>启用 DSRE (--dsre mix)</source>
        <translation>DSRE مفعّل (--dsre mix)</translation>
    </message>
    <message>
        <source>禁用 DSRE</source>
        <translation>DSRE معطّل</translation>
    </message>
    <message>
        <source>干湿比 (0=dry, 1=全效果):</source>
        <translation>dry/wet (0=dry، 1=تأثير كامل):</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>AUTORUN 预设: %1</source>
        <translation>الإعداد المسبق لـ AUTORUN: %1</translation>
    </message>
    <message>
        <source>✗ AUTORUN 预设无法使用: %1 (%2)</source>
        <translation>✗ تعذّر استخدام الإعداد المسبق لـ AUTORUN: %1 (%2)</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_PLAYTEST 指定的文件不存在: %1</source>
        <translation>خطأ: الملف المحدد في ZUVO_AI_PLAYTEST غير موجود: %1</translation>
    </message>
    <message>
        <source>设备名直接传给 ZuvoPlayer -dev</source>
        <translation>يُمرَّر اسم الجهاز كما هو إلى ZuvoPlayer -dev</translation>
    </message>
    <message>
        <source>DAC 设备:</source>
        <translation>جهاز DAC:</translation>
    </message>
    <message>
        <source>流式播放模式 (-stream)</source>
        <translation>وضع التشغيل المتدفق (-stream)</translation>
    </message>
    <message>
        <source>播放源 = 上方「输出文件」 (镜像 GTK: 播放刚转换的 DSF/DFF)</source>
        <translation>مصدر التشغيل = «ملف الإخراج» أعلاه (كما في إصدار GTK: يشغّل ملف DSF/DFF المحوَّل للتو)</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>إيقاف التشغيل</translation>
    </message>
    <message>
        <source>播放正在进行中, 请先停止当前播放</source>
        <translation>التشغيل جارٍ بالفعل، أوقفه أولًا</translation>
    </message>
    <message>
        <source>错误: 播放文件不存在或无法读取: %1</source>
        <translation>خطأ: ملف التشغيل غير موجود أو تتعذّر قراءته: %1</translation>
    </message>
    <message>
        <source>(未设置输出文件)</source>
        <translation>(لم يُعيَّن ملف الإخراج)</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoPlayer — 请放在程序同目录或加入 PATH (或设 ZUVO_PLAYER_BIN)</source>
        <translation>خطأ: لم يُعثر على ZuvoPlayer — ضعه بجوار هذا البرنامج أو أضفه إلى PATH (أو عيّن ZUVO_PLAYER_BIN)</translation>
    </message>
    <message>
        <source>启动播放器: %1 %2</source>
        <translation>بدء تشغيل المشغّل: %1 %2</translation>
    </message>
    <message>
        <source>开始播放: %1</source>
        <translation>بدء التشغيل: %1</translation>
    </message>
    <message>
        <source>试听会话: %1</source>
        <translation>جلسة الاستماع: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>داخل العملية (استدعاء المكتبة مباشرة)</translation>
    </message>
    <message>
        <source>子进程</source>
        <translation>عملية فرعية</translation>
    </message>
    <message>
        <source>错误: 无法启动播放器 — %1</source>
        <translation>خطأ: تعذّر تشغيل المشغّل — %1</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>اكتمل التشغيل</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>توقف التشغيل</translation>
    </message>
    <message>
        <source>播放器异常退出, 代码: %1</source>
        <translation>خرج المشغّل بشكل غير طبيعي، الرمز: %1</translation>
    </message>
    <message>
        <source>当前没有播放任务</source>
        <translation>لا يوجد تشغيل جارٍ حاليًا</translation>
    </message>
    <message>
        <source>正在停止播放器…</source>
        <translation>جارٍ إيقاف المشغّل…</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[تحكم] %1</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾 (本次在进程内运行, 无法强制结束)</source>
        <translation>لم يُنهِ المشغّل عمله خلال %1 ثانية (يعمل هذه المرة داخل العملية، فلا يمكن إنهاؤه قسرًا)</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾, 强制结束</source>
        <translation>لم يُنهِ المشغّل عمله خلال %1 ثانية، جارٍ إنهاؤه قسرًا</translation>
    </message>
    <message>
        <source>仍无响应, 强制结束播放器</source>
        <translation>لا يزال لا يستجيب، جارٍ إنهاء المشغّل قسرًا</translation>
    </message>
    <message>
        <source>检查更新…</source>
        <translation>التحقق من التحديثات…</translation>
    </message>
    <message>
        <source>关于/诊断…</source>
        <translation>حول / التشخيص…</translation>
    </message>
    <message>
        <source>看引擎版本 / 列音频设备 / 显示引擎帮助</source>
        <translation>عرض إصدار المحرك / سرد أجهزة الصوت / عرض تعليمات المحرك</translation>
    </message>
    <message>
        <source>源码许可…</source>
        <translation>تراخيص الشيفرة المصدرية…</translation>
    </message>
    <message>
        <source>参考标准…</source>
        <translation>المعايير المرجعية…</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_RECTEST 需要给一个输出 .dsf 路径</source>
        <translation>خطأ: يتطلب ZUVO_AI_RECTEST مسار إخراج .dsf</translation>
    </message>
    <message>
        <source>(引擎没有输出)</source>
        <translation>(لم يُخرج المحرك شيئًا)</translation>
    </message>
    <message>
        <source>$ %1

%2

退出码 = %3</source>
        <translation>$ %1

%2

رمز الخروج = %3</translation>
    </message>
    <message>
        <source>本构建的引擎没有录音后端 (见录音页的状态行): 不能开始录音</source>
        <translation>محرك هذا الإصدار لا يتضمن واجهة تسجيل خلفية (راجع سطر الحالة في علامة تبويب التسجيل): لا يمكن بدء التسجيل</translation>
    </message>
    <message>
        <source>录音正在进行中</source>
        <translation>التسجيل قيد التنفيذ بالفعل</translation>
    </message>
    <message>
        <source>录音</source>
        <translation>التسجيل</translation>
    </message>
    <message>
        <source>请先在上方「输出文件」设置录音保存路径</source>
        <translation>حدّد أولًا مسار حفظ التسجيل في «ملف الإخراج» أعلاه</translation>
    </message>
    <message>
        <source>录音输出文件必须是 .dsf 格式</source>
        <translation>يجب أن يكون ملف إخراج التسجيل بصيغة .dsf</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoEngine (录音需要引擎录音支持)</source>
        <translation>خطأ: لم يُعثر على ZuvoEngine (يتطلب التسجيل دعم التسجيل في المحرك)</translation>
    </message>
    <message>
        <source>录音命令: %1 %2</source>
        <translation>أمر التسجيل: %1 %2</translation>
    </message>
    <message>
        <source>开始录音 → %1</source>
        <translation>بدأ التسجيل → %1</translation>
    </message>
    <message>
        <source>提示: 停止时发送 'q' 让引擎优雅收尾 (先停止处理 PCM 再写 DSF)</source>
        <translation>تلميح: عند الإيقاف يُرسَل 'q' ليُنهي المحرك عمله بسلاسة (يوقف معالجة PCM أولًا ثم يكتب DSF)</translation>
    </message>
    <message>
        <source>录音中…</source>
        <translation>جارٍ التسجيل…</translation>
    </message>
    <message>
        <source>录音会话: %1</source>
        <translation>جلسة التسجيل: %1</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 (录音) — %1</source>
        <translation>خطأ: تعذّر تشغيل المحرك (التسجيل) — %1</translation>
    </message>
    <message>
        <source>当前没有录音任务</source>
        <translation>لا يوجد تسجيل قيد التنفيذ</translation>
    </message>
    <message>
        <source>发送 'q' 至引擎 — 等待优雅收尾 (写 DSF 后自动退出)…</source>
        <translation>أُرسل 'q' إلى المحرك — في انتظار الإنهاء السلس (يكتب DSF ثم يخرج تلقائيًا)…</translation>
    </message>
    <message>
        <source>录音引擎已不在运行</source>
        <translation>محرك التسجيل لم يعد قيد التشغيل</translation>
    </message>
    <message>
        <source>引擎未在 12s 内收尾 (本次在进程内进行, 无法强制结束)</source>
        <translation>لم يُنهِ المحرك عمله خلال 12 s (هذا التشغيل داخل العملية، فلا يمكن إنهاؤه قسرًا)</translation>
    </message>
    <message>
        <source>引擎未在 12s 内退出, 强制终止</source>
        <translation>لم يخرج المحرك خلال 12 s، جارٍ الإنهاء القسري</translation>
    </message>
    <message>
        <source>录音保存: %1</source>
        <translation>تم حفظ التسجيل: %1</translation>
    </message>
    <message>
        <source>录音失败, 退出码: %1</source>
        <translation>فشل التسجيل، رمز الخروج: %1</translation>
    </message>
    <message>
        <source>录音进程异常退出 (崩溃/被终止)</source>
        <translation>انتهت عملية التسجيل بشكل غير طبيعي (تعطّل/إنهاء قسري)</translation>
    </message>
    <message>
        <source>录音后端: 可用 — %1</source>
        <translation>واجهة التسجيل الخلفية: متاحة — %1</translation>
    </message>
    <message>
        <source>录音后端: 不可用 — %1</source>
        <translation>واجهة التسجيل الخلفية: غير متاحة — %1</translation>
    </message>
    <message>
        <source>%1 个输入设备(已列在日志里)</source>
        <translation>أجهزة الإدخال: %1 (مدرجة في السجل)</translation>
    </message>
    <message>
        <source>引擎退出码 = %1</source>
        <translation>رمز خروج المحرك = %1</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请放在程序同目录、加入 PATH, 或设 ZUVO_ENGINE_BIN</source>
        <translation>لم يُعثر على ZuvoEngine — ضعه في مجلد البرنامج، أو أضفه إلى PATH، أو عيّن ZUVO_ENGINE_BIN</translation>
    </message>
    <message>
        <source>探测 30s 无响应, 已终止</source>
        <translation>لم يستجب الفحص خلال 30 s، تم الإنهاء</translation>
    </message>
    <message>
        <source>关于 / 诊断</source>
        <translation>حول / التشخيص</translation>
    </message>
    <message>
        <source>ZuvoAudioTools — ZuvoEngine 的转码前端 (QProcess 子进程)
引擎路径: %1
注: 引擎的帮助/版本类子命令本来就以非 0 退出码收尾, 属既有行为。
探测是异步的: 点完可以继续操作界面, 结果到了会显示在下面。</source>
        <translation>ZuvoAudioTools — واجهة تحويل أمامية لـ ZuvoEngine (عملية فرعية QProcess)
مسار المحرك: %1
ملاحظة: أوامر التعليمات/الإصدار الفرعية في المحرك تنتهي برمز خروج غير صفري بطبيعتها، وهذا سلوك معروف.
الفحص غير متزامن: يمكنك متابعة استخدام الواجهة بعد النقر، وستظهر النتيجة أدناه عند وصولها.</translation>
    </message>
    <message>
        <source>(未找到)</source>
        <translation>(غير موجود)</translation>
    </message>
    <message>
        <source>点下面任一按钮看引擎的回答</source>
        <translation>انقر أي زر أدناه لعرض استجابة المحرك</translation>
    </message>
    <message>
        <source>引擎版本 (--version)</source>
        <translation>إصدار المحرك (--version)</translation>
    </message>
    <message>
        <source>列出音频设备 (--list-devices)</source>
        <translation>سرد أجهزة الصوت (--list-devices)</translation>
    </message>
    <message>
        <source>引擎帮助 (--help)</source>
        <translation>تعليمات المحرك (--help)</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请把它放在程序同目录、加入 PATH, 或设置环境变量 ZUVO_ENGINE_BIN。</source>
        <translation>لم يُعثر على ZuvoEngine — ضعه في مجلد البرنامج، أو أضفه إلى PATH، أو عيّن متغير البيئة ZUVO_ENGINE_BIN.</translation>
    </message>
    <message>
        <source>$ %1

运行中… (界面不冻, 可继续操作)
</source>
        <translation>$ %1

قيد التشغيل… (الواجهة لا تتجمد، يمكنك متابعة العمل)
</translation>
    </message>
    <message>
        <source>引擎启动失败: %1</source>
        <translation>فشل تشغيل المحرك: %1</translation>
    </message>
    <message>
        <source>
引擎 30s 无响应, 已终止 (不进设备, 不会影响到正在跑的任务)。</source>
        <translation>
لم يستجب المحرك لمدة 30 s وتم إنهاؤه (لم يفتح أي جهاز، ولا تتأثر المهام الجارية).</translation>
    </message>
    <message>
        <source>录音后端: 未检测</source>
        <translation>واجهة التسجيل الخلفية: لم تُفحص بعد</translation>
    </message>
    <message>
        <source>检测录音支持 / 列出输入设备</source>
        <translation>فحص دعم التسجيل / سرد أجهزة الإدخال</translation>
    </message>
    <message>
        <source>录音设备 (空=默认):</source>
        <translation>جهاز التسجيل (فارغ=الافتراضي):</translation>
    </message>
    <message>
        <source>声道数 (0=自动):</source>
        <translation>عدد القنوات (0=تلقائي):</translation>
    </message>
    <message>
        <source>采样率 Hz (0=自动):</source>
        <translation>معدل العينات Hz (0=تلقائي):</translation>
    </message>
    <message>
        <source>时长秒 (0=手动):</source>
        <translation>المدة بالثواني (0=يدوي):</translation>
    </message>
    <message>
        <source>头空间 dB:</source>
        <translation>هامش الذروة dB:</translation>
    </message>
    <message>
        <source>缓冲帧:</source>
        <translation>إطارات المخزن المؤقت:</translation>
    </message>
    <message>
        <source>直通模式 (--record-exclusive)</source>
        <translation>الوضع الحصري (--record-exclusive)</translation>
    </message>
    <message>
        <source>DSD 直录 (否则 PCM2PDM)</source>
        <translation>تسجيل DSD مباشر (وإلا PCM2PDM)</translation>
    </message>
    <message>
        <source>监听输入</source>
        <translation>مراقبة الإدخال</translation>
    </message>
    <message>
        <source>监听输出设备:</source>
        <translation>جهاز إخراج المراقبة:</translation>
    </message>
    <message>
        <source>录音输出 = 上方「输出文件」(必须 .dsf); 停止时向引擎发送 'q' 优雅收尾 (镜像 GTK)</source>
        <translation>مخرج التسجيل = «ملف الإخراج» أعلاه (يجب أن يكون .dsf)؛ عند الإيقاف يُرسَل 'q' إلى المحرك ليُنهي عمله بسلاسة (كما في إصدار GTK)</translation>
    </message>
    <message>
        <source>开始录音</source>
        <translation>بدء التسجيل</translation>
    </message>
    <message>
        <source>停止录音</source>
        <translation>إيقاف التسجيل</translation>
    </message>
</context>
<context>
    <name>PerTrackDialog</name>
    <message>
        <source>逐轨预设 (每个文件可各用一套)</source>
        <translation>إعدادات مسبقة لكل مسار (إعداد مستقل لكل ملف)</translation>
    </message>
    <message>
        <source>每行给一个文件挑一套预设; 「(用当前参数)」= 跟随主面板。
预设只换编码/DSP 参数 —— 输出目录/输出格式与标签仍按主面板。</source>
        <translation>اختر إعدادًا مسبقًا لكل ملف، صفًا لكل ملف؛ «(استخدام المعاملات الحالية)» = اتباع اللوحة الرئيسية.
الإعداد المسبق يغيّر معاملات الترميز/DSP فقط — أما مجلد/تنسيق الإخراج والوسوم فتبقى من اللوحة الرئيسية.</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>الملف</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>الإعداد المسبق</translation>
    </message>
    <message>
        <source>(用当前参数)</source>
        <translation>(استخدام المعاملات الحالية)</translation>
    </message>
    <message>
        <source>(预设目录里没有预设 —— 先在上面「母带预设」里保存一套)</source>
        <translation>(لا توجد إعدادات مسبقة في مجلدها — احفظ واحدًا أولًا من «إعدادات الماسترينغ المسبقة» أعلاه)</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>PresetManagerDialog</name>
    <message>
        <source>预设管理器</source>
        <translation>مدير الإعدادات المسبقة</translation>
    </message>
    <message>
        <source>预设为 JSON 文件 (与 GTK 版同目录同键名, 可互读)
写入目录: %1</source>
        <translation>الإعدادات المسبقة ملفات JSON (بنفس المجلد وأسماء المفاتيح في إصدار GTK، ويمكن تبادلها)
مجلد الكتابة: %1</translation>
    </message>
    <message>
        <source>加载选中</source>
        <translation>تحميل المحدد</translation>
    </message>
    <message>
        <source>删除选中</source>
        <translation>حذف المحدد</translation>
    </message>
    <message>
        <source>保存当前为…</source>
        <translation>حفظ الحالي باسم…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>الإعداد المسبق</translation>
    </message>
    <message>
        <source>无法读取: %1</source>
        <translation>تعذّرت القراءة: %1</translation>
    </message>
    <message>
        <source>预设文件解析失败: %1</source>
        <translation>فشل تحليل ملف الإعداد المسبق: %1</translation>
    </message>
    <message>
        <source>预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>يحتوي الإعداد المسبق على %1 حقل غير مدعوم في هذا الإصدار، وتم تجاهلها</translation>
    </message>
    <message>
        <source>已加载预设: %1</source>
        <translation>تم تحميل الإعداد المسبق: %1</translation>
    </message>
    <message>
        <source>删除预设</source>
        <translation>حذف الإعداد المسبق</translation>
    </message>
    <message>
        <source>确定删除预设 %1 ?</source>
        <translation>هل تريد حذف الإعداد المسبق %1؟</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>فشل الحذف: %1</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>حفظ باسم</translation>
    </message>
    <message>
        <source>预设名称:</source>
        <translation>اسم الإعداد المسبق:</translation>
    </message>
    <message>
        <source>预设 %1 已存在, 覆盖?</source>
        <translation>الإعداد المسبق %1 موجود بالفعل. هل تريد استبداله؟</translation>
    </message>
    <message>
        <source>预设名称无效: %1</source>
        <translation>اسم إعداد مسبق غير صالح: %1</translation>
    </message>
    <message>
        <source>保存失败: %1</source>
        <translation>فشل الحفظ: %1</translation>
    </message>
    <message>
        <source>已保存预设: %1</source>
        <translation>تم حفظ الإعداد المسبق: %1</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>名称为空</source>
        <translation>الاسم فارغ</translation>
    </message>
    <message>
        <source>名称不能包含 %1 或控制字符</source>
        <translation>يجب ألا يحتوي الاسم على %1 أو على أحرف تحكم</translation>
    </message>
    <message>
        <source>名称不能以点结尾</source>
        <translation>يجب ألا ينتهي الاسم بنقطة</translation>
    </message>
    <message>
        <source>名称 %1 是系统保留的设备名</source>
        <translation>الاسم %1 اسم جهاز محجوز للنظام</translation>
    </message>
    <message>
        <source>文件过大 (%1 字节)</source>
        <translation>الملف كبير جدًا (%1 بايت)</translation>
    </message>
    <message>
        <source>顶层不是 JSON 对象</source>
        <translation>المستوى الأعلى ليس كائن JSON</translation>
    </message>
    <message>
        <source>无法读取文件</source>
        <translation>تعذّرت قراءة الملف</translation>
    </message>
</context>
<context>
    <name>ReferencesGui</name>
    <message>
        <source>参考标准</source>
        <translation>المعايير المرجعية</translation>
    </message>
</context>
<context>
    <name>RunControlsPanel</name>
    <message>
        <source>开始转换</source>
        <translation>بدء التحويل</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>مسح السجل</translation>
    </message>
    <message>
        <source>详细日志 (--verbose)</source>
        <translation>سجل مفصّل (--verbose)</translation>
    </message>
    <message>
        <source>保留引擎日志（退出不删）</source>
        <translation>الاحتفاظ بسجل المحرك (لا يُحذف عند الخروج)</translation>
    </message>
    <message>
        <source>关（默认）：引擎日志写在系统临时目录里的一次性目录中，退出即清；
开：写到 %1 下并保留，便于把日志发给厂商排障。</source>
        <translation>إيقاف (افتراضي): يُكتب سجل المحرك في مجلد مؤقت للاستخدام مرة واحدة داخل مجلد النظام المؤقت ويُحذف عند الخروج؛
تشغيل: يُكتب تحت %1 ويُحتفظ به، لتتمكن من إرساله إلى المورّد لاستكشاف الأخطاء.</translation>
    </message>
    <message>
        <source>子进程: ZuvoEngine</source>
        <translation>عملية فرعية: ZuvoEngine</translation>
    </message>
    <message>
        <source>GUI 通过 QProcess 调用同目录/环境变量指定的 ZuvoEngine</source>
        <translation>تشغّل الواجهة الرسومية ZuvoEngine عبر QProcess من مجلد البرنامج أو من المسار المحدد في متغير البيئة</translation>
    </message>
</context>
<context>
    <name>ThirdPartyGui</name>
    <message>
        <source>源码许可</source>
        <translation>تراخيص الشيفرة المصدرية</translation>
    </message>
</context>
<context>
    <name>UiLangRow</name>
    <message>
        <source>语言</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>界面语言。切换后程序会重启一次以便整套界面换语言。</source>
        <translation>لغة الواجهة. بعد التبديل يُعاد تشغيل البرنامج مرة واحدة لتتغير لغة الواجهة بالكامل.</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>اتباع النظام</translation>
    </message>
    <message>
        <source>界面语言已切换，程序将自动重启一次以生效。</source>
        <translation>تم تغيير لغة الواجهة. سيُعاد تشغيل البرنامج تلقائيًا مرة واحدة لتطبيق التغيير.</translation>
    </message>
</context>
<context>
    <name>UpdateUi</name>
    <message>
        <source>正在检查更新…</source>
        <translation>جارٍ التحقق من التحديثات…</translation>
    </message>
    <message>
        <source>检查更新</source>
        <translation>التحقق من التحديثات</translation>
    </message>
    <message>
        <source>已是最新版本 (%1)。服务器上的最新版本为 %2。</source>
        <translation>لديك أحدث إصدار (%1). أحدث إصدار على الخادم هو %2.</translation>
    </message>
    <message>
        <source>检查更新失败：</source>
        <translation>فشل التحقق من التحديثات:</translation>
    </message>
    <message>
        <source>发现新版本 %1（当前 %2）。</source>
        <translation>يتوفر إصدار جديد %1 (الإصدار الحالي %2).</translation>
    </message>
    <message>
        <source>发布日期：%1</source>
        <translation>تاريخ الإصدار: %1</translation>
    </message>
    <message>
        <source>更新说明：%1</source>
        <translation>ملاحظات الإصدار: %1</translation>
    </message>
    <message>
        <source>发现新版本</source>
        <translation>يتوفر إصدار جديد</translation>
    </message>
    <message>
        <source>下载并更新</source>
        <translation>تنزيل وتحديث</translation>
    </message>
    <message>
        <source>打开下载页</source>
        <translation>فتح صفحة التنزيل</translation>
    </message>
    <message>
        <source>稍后</source>
        <translation>لاحقًا</translation>
    </message>
    <message>
        <source>正在下载更新…</source>
        <translation>جارٍ تنزيل التحديث…</translation>
    </message>
    <message>
        <source>下载更新</source>
        <translation>تنزيل التحديث</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>程序现在退出。</source>
        <translation>سيُغلق البرنامج الآن.</translation>
    </message>
    <message>
        <source>更新失败</source>
        <translation>فشل التحديث</translation>
    </message>
</context>
<context>
    <name>pv::PreviewDialog</name>
    <message>
        <source>预览: %1</source>
        <translation>معاينة: %1</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>الشكل الموجي</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>المخطط الطيفي</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>%1 — %2 Hz / %3 ch, 预览 %4 s (上限 30 s)</source>
        <translation>%1 — %2 Hz / %3 ch، معاينة %4 s (الحد الأقصى 30 s)</translation>
    </message>
    <message>
        <source>该格式 (%1) 预览待后续 — 目前仅支持 WAV (DSD 解码属后续里程碑)</source>
        <translation>معاينة هذا التنسيق (%1) غير متاحة بعد — حاليًا WAV فقط (فك ترميز DSD مخطط له في مرحلة لاحقة)</translation>
    </message>
    <message>
        <source>解码失败: %1</source>
        <translation>فشل فك الترميز: %1</translation>
    </message>
</context>
</TS>