<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="zh_CN">
<context>
    <name>ConversionQueue</name>
    <message>
        <source>引擎日志: %1</source>
        <translation>Journal du moteur : %1</translation>
    </message>
    <message>
        <source>(交给引擎默认)</source>
        <translation>(valeur par défaut du moteur)</translation>
    </message>
    <message>
        <source>待转换文件: %1 个</source>
        <translation>Fichiers à convertir : %1</translation>
    </message>
    <message>
        <source>输出目录: %1 (命名模板: %2, 格式: %3)</source>
        <translation>Dossier de sortie : %1 (modèle de nom : %2, format : %3)</translation>
    </message>
    <message>
        <source>✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)</source>
        <translation>✗ Préréglage de piste illisible, ce fichier utilise les paramètres actuels : %1 (%2)</translation>
    </message>
    <message>
        <source>逐轨预设《%1》</source>
        <translation>Préréglage de piste : %1</translation>
    </message>
    <message>
        <source>  预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>  Le préréglage contient %1 champ(s) non pris en charge par cette version, ignoré(s)</translation>
    </message>
    <message>
        <source>停止: 剩余 %1 个文件已跳过</source>
        <translation>Arrêt : %1 fichier(s) restant(s) ignoré(s)</translation>
    </message>
    <message>
        <source>━━━ [%1/%2] 转换 %3</source>
        <translation>━━━ [%1/%2] Conversion de %3</translation>
    </message>
    <message>
        <source>━━━ 转换 %1</source>
        <translation>━━━ Conversion de %1</translation>
    </message>
    <message>
        <source>✗ 无法创建输出目录: %1</source>
        <translation>✗ Impossible de créer le dossier de sortie : %1</translation>
    </message>
    <message>
        <source>执行: %1 %2</source>
        <translation>Exécution : %1 %2</translation>
    </message>
    <message>
        <source>转换会话: %1</source>
        <translation>Session de conversion : %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>dans le processus (appel direct de la bibliothèque)</translation>
    </message>
    <message>
        <source>子进程(起 CLI)</source>
        <translation>sous-processus (CLI)</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 — %1</source>
        <translation>Erreur : impossible de démarrer le moteur — %1</translation>
    </message>
    <message>
        <source>✓ %1 完成</source>
        <translation>✓ %1 terminé</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (未完成的文件已删除)</source>
        <translation>■ Arrêté : %1 (fichier incomplet supprimé)</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (文件保留, 可能不完整)</source>
        <translation>■ Arrêté : %1 (fichier conservé, peut être incomplet)</translation>
    </message>
    <message>
        <source>■ 已停止(强制结束进程): %1</source>
        <translation>■ Arrêté (arrêt forcé du processus) : %1</translation>
    </message>
    <message>
        <source>✗ %1 异常退出 (崩溃/被终止)</source>
        <translation>✗ %1 s'est terminé anormalement (plantage/arrêt forcé)</translation>
    </message>
    <message>
        <source>✗ 退出码: %1</source>
        <translation>✗ Code de sortie : %1</translation>
    </message>
    <message>
        <source>── 引擎日志 (末尾 %1 行): %2 ──</source>
        <translation>── Journal du moteur (%1 dernières lignes) : %2 ──</translation>
    </message>
    <message>
        <source>
全部完成: %1 OK</source>
        <translation>
Tout est terminé : %1 OK</translation>
    </message>
    <message>
        <source>
完成: %1 OK, %2 失败</source>
        <translation>
Terminé : %1 OK, %2 en échec</translation>
    </message>
    <message>
        <source>转换已停止</source>
        <translation>Conversion arrêtée</translation>
    </message>
    <message>
        <source>当前没有运行的进程</source>
        <translation>Aucun processus en cours</translation>
    </message>
    <message>
        <source>正在停止转换进程…</source>
        <translation>Arrêt de la conversion…</translation>
    </message>
    <message>
        <source>终止当前转换进程…</source>
        <translation>Arrêt forcé du processus de conversion en cours…</translation>
    </message>
    <message>
        <source>正在通知引擎停止…</source>
        <translation>Demande d'arrêt envoyée au moteur…</translation>
    </message>
    <message>
        <source>引擎 2 秒内没有确认停止 —— 仍在收尾(可再点一次, 或关闭程序)。</source>
        <translation>Le moteur n'a pas confirmé l'arrêt en 2 secondes — finalisation en cours (cliquez à nouveau ou fermez le programme).</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[contrôle] %1</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但没有写出输出文件 %2</source>
        <translation>✗ %1 : le moteur signale la fin, mais aucun fichier de sortie n'a été écrit : %2</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件 %2 没有被写过 (还是旧的)</source>
        <translation>✗ %1 : le moteur signale la fin, mais le fichier de sortie %2 n'a pas été écrit (c'est toujours l'ancien)</translation>
    </message>
    <message>
        <source>文件是空的</source>
        <translation>Le fichier est vide</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2), 已删除: %3</source>
        <translation>✗ %1 : le moteur signale la fin, mais le fichier de sortie est illisible (%2), supprimé : %3</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2): %3</source>
        <translation>✗ %1 : le moteur signale la fin, mais le fichier de sortie est illisible (%2) : %3</translation>
    </message>
    <message>
        <source> …(这一行太长, 后面 %1 个字符没有显示)</source>
        <translation> …(ligne trop longue, %1 caractères suivants non affichés)</translation>
    </message>
    <message>
        <source>不是 DSF 文件</source>
        <translation>Pas un fichier DSF</translation>
    </message>
    <message>
        <source>DSF 头里的文件长度与实际不符 (文件不完整)</source>
        <translation>La taille du fichier indiquée dans l'en-tête DSF ne correspond pas à la taille réelle (fichier incomplet)</translation>
    </message>
    <message>
        <source>DSF 格式块不对</source>
        <translation>Bloc de format DSF invalide</translation>
    </message>
    <message>
        <source>DSF 数据块不对</source>
        <translation>Bloc de données DSF invalide</translation>
    </message>
    <message>
        <source>DSF 元数据位置不对</source>
        <translation>Position des métadonnées DSF invalide</translation>
    </message>
    <message>
        <source>不是 DSDIFF 文件</source>
        <translation>Pas un fichier DSDIFF</translation>
    </message>
    <message>
        <source>DSDIFF 头里的长度与实际不符 (文件不完整)</source>
        <translation>La longueur indiquée dans l'en-tête DSDIFF ne correspond pas à la réalité (fichier incomplet)</translation>
    </message>
    <message>
        <source>DSDIFF 块超出文件</source>
        <translation>Bloc DSDIFF au-delà de la fin du fichier</translation>
    </message>
    <message>
        <source>DSDIFF 缺少 FVER/PROP/声音块</source>
        <translation>DSDIFF : bloc FVER/PROP/son manquant</translation>
    </message>
    <message>
        <source>不是 WAV 文件</source>
        <translation>Pas un fichier WAV</translation>
    </message>
    <message>
        <source>RF64 的 ds64 块不对</source>
        <translation>Bloc ds64 du RF64 invalide</translation>
    </message>
    <message>
        <source>WAV 缺少格式块</source>
        <translation>WAV : bloc de format manquant</translation>
    </message>
    <message>
        <source>WAV 数据块超出文件 (文件不完整)</source>
        <translation>Bloc de données WAV au-delà de la fin du fichier (fichier incomplet)</translation>
    </message>
    <message>
        <source>WAV 格式块不对</source>
        <translation>Bloc de format WAV invalide</translation>
    </message>
    <message>
        <source>WAV 缺少数据块</source>
        <translation>WAV : bloc de données manquant</translation>
    </message>
    <message>
        <source>不是 W64 文件</source>
        <translation>Pas un fichier W64</translation>
    </message>
    <message>
        <source>W64 块超出文件 (文件不完整)</source>
        <translation>Bloc W64 au-delà de la fin du fichier (fichier incomplet)</translation>
    </message>
    <message>
        <source>W64 缺少格式块</source>
        <translation>W64 : bloc de format manquant</translation>
    </message>
    <message>
        <source>W64 缺少数据块</source>
        <translation>W64 : bloc de données manquant</translation>
    </message>
    <message>
        <source>不是 FLAC 文件</source>
        <translation>Pas un fichier FLAC</translation>
    </message>
    <message>
        <source>FLAC 缺少 STREAMINFO</source>
        <translation>FLAC : STREAMINFO manquant</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Impossible d'ouvrir</translation>
    </message>
</context>
<context>
    <name>EngineSession</name>
    <message>
        <source>进程内会话起不来 (rc=%1)</source>
        <translation>la session dans le processus n'a pas pu démarrer (rc=%1)</translation>
    </message>
</context>
<context>
    <name>FileListWidget</name>
    <message>
        <source>  ◇ 预设: %1</source>
        <translation>  ◇ Préréglage : %1</translation>
    </message>
</context>
<context>
    <name>InputOutputPanel</name>
    <message>
        <source>添加文件…</source>
        <translation>Ajouter des fichiers…</translation>
    </message>
    <message>
        <source>添加目录…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>Retirer la sélection</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>支持拖入音频文件或文件夹</source>
        <translation>Glissez ici des fichiers audio ou des dossiers</translation>
    </message>
    <message>
        <source>输出 .dsf / .dff 文件</source>
        <translation>Fichier de sortie .dsf / .dff</translation>
    </message>
    <message>
        <source>浏览…</source>
        <translation>Parcourir…</translation>
    </message>
    <message>
        <source>输出文件:</source>
        <translation>Fichier de sortie :</translation>
    </message>
    <message>
        <source>留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名</source>
        <translation>Vide = utiliser le fichier de sortie ci-dessus ; sinon, le nom de sortie de chaque entrée est calculé d'après le modèle de nom</translation>
    </message>
    <message>
        <source>批量输出: 所有输入写进这个目录, 文件名由下面的命名模板算</source>
        <translation>Sortie par lot : toutes les entrées sont écrites dans ce dossier, les noms suivent le modèle ci-dessous</translation>
    </message>
    <message>
        <source>浏览目录…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>输出目录:</source>
        <translation>Dossier de sortie :</translation>
    </message>
    <message>
        <source>输出目录模式下每个文件的扩展名 (引擎按扩展名认格式)</source>
        <translation>Extension des fichiers en mode dossier de sortie (le moteur reconnaît le format à l'extension)</translation>
    </message>
    <message>
        <source>变量: {input} 输入文件名  {ext} 输出格式  {track} / {track:02} 队列序号  {artist} {title} 界面字段
留空 = {input}; 变量没有值时回退用输入文件名; 模板里可以带子目录</source>
        <translation>Variables : {input} nom du fichier d'entrée  {ext} format de sortie  {track} / {track:02} rang dans la file  {artist} {title} champs de l'interface
Vide = {input} ; une variable sans valeur est remplacée par le nom du fichier d'entrée ; le modèle peut contenir des sous-dossiers</translation>
    </message>
    <message>
        <source>输出格式:</source>
        <translation>Format de sortie :</translation>
    </message>
    <message>
        <source>命名模板:</source>
        <translation>Modèle de nom :</translation>
    </message>
    <message>
        <source>标签: DFF→COMT, DSF→ID3</source>
        <translation>Tags : DFF→COMT, DSF→ID3</translation>
    </message>
    <message>
        <source>0 = 不写曲目号 (引擎只接受 1..998)</source>
        <translation>0 = pas de numéro de piste (le moteur n'accepte que 1..998)</translation>
    </message>
    <message>
        <source>写入标签的说明文字</source>
        <translation>Texte de commentaire écrit dans le tag</translation>
    </message>
    <message>
        <source>从输入文件读取标签</source>
        <translation>Lire les tags du fichier d'entrée</translation>
    </message>
    <message>
        <source>艺术家:</source>
        <translation>Artiste :</translation>
    </message>
    <message>
        <source>标题:</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <source>专辑:</source>
        <translation>Album :</translation>
    </message>
    <message>
        <source>流派:</source>
        <translation>Genre :</translation>
    </message>
    <message>
        <source>年份:</source>
        <translation>Année :</translation>
    </message>
    <message>
        <source>曲目号:</source>
        <translation>N° de piste :</translation>
    </message>
    <message>
        <source>备注:</source>
        <translation>Commentaire :</translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>%1 fichier(s)</translation>
    </message>
    <message>
        <source>音频文件 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;所有文件 (*)</source>
        <translation>Fichiers audio (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>选择输入文件</source>
        <translation>Choisir les fichiers d'entrée</translation>
    </message>
    <message>
        <source>选择目录</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>PCM 音频 (*.wav *.w64 *.flac);;所有文件 (*)</source>
        <translation>Audio PCM (*.wav *.w64 *.flac);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>DSDIFF (*.dff);;DSD Stream (*.dsf);;所有文件 (*)</source>
        <translation>DSDIFF (*.dff);;DSD Stream (*.dsf);;Tous les fichiers (*)</translation>
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
        <translation>Choisir le fichier de sortie</translation>
    </message>
    <message>
        <source>选择输出目录</source>
        <translation>Choisir le dossier de sortie</translation>
    </message>
    <message>
        <source>波形/频谱预览…</source>
        <translation>Aperçu forme d'onde/spectrogramme…</translation>
    </message>
    <message>
        <source>逐轨预设…</source>
        <translation>Préréglages par piste…</translation>
    </message>
    <message>
        <source>给队列里每个文件单独指定一套预设
预设只换编码/DSP 参数; 输出目录/输出格式与标签仍按面板</source>
        <translation>Attribuer un préréglage propre à chaque fichier de la file
Un préréglage ne change que les paramètres d'encodage/DSP ; dossier/format de sortie et tags restent ceux du panneau</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>开始转换</source>
        <translation>Lancer la conversion</translation>
    </message>
    <message>
        <source>Zuvo Audio Suite — 音频转换工具</source>
        <translation>Zuvo Audio Suite — Outil de conversion audio</translation>
    </message>
    <message>
        <source>设置输出文件: %1</source>
        <translation>Fichier de sortie défini : %1</translation>
    </message>
    <message>
        <source>目录中没有音频文件</source>
        <translation>Aucun fichier audio dans ce dossier</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改文件列表</source>
        <translation>Impossible de modifier la liste pendant la conversion</translation>
    </message>
    <message>
        <source>找到 ZuvoEngine (音频转换引擎): %1</source>
        <translation>ZuvoEngine (moteur de conversion audio) trouvé : %1</translation>
    </message>
    <message>
        <source>警告: 未找到 ZuvoEngine — 转换功能不可用。请将其放在程序同目录、或加入 PATH。</source>
        <translation>Avertissement : ZuvoEngine introuvable — conversion indisponible. Placez-le dans le dossier du programme ou ajoutez-le au PATH.</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine</source>
        <translation>ZuvoEngine introuvable</translation>
    </message>
    <message>
        <source>已添加 %1 个文件</source>
        <translation>%1 fichier(s) ajouté(s)</translation>
    </message>
    <message>
        <source>已跳过 %1 个重复文件</source>
        <translation>%1 fichier(s) en double ignoré(s)</translation>
    </message>
    <message>
        <source>转换完成</source>
        <translation>Conversion terminée</translation>
    </message>
    <message>
        <source>转换 %1 个文件</source>
        <translation>%1 fichier(s) converti(s)</translation>
    </message>
    <message>
        <source>转换 %1 个文件, %2 个失败</source>
        <translation>%1 fichier(s) converti(s), %2 en échec</translation>
    </message>
    <message>
        <source>打开输出目录</source>
        <translation>Ouvrir le dossier de sortie</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>AUTORUN 参数不完整</source>
        <translation>Argument AUTORUN incomplet</translation>
    </message>
    <message>
        <source>AUTORUN: %1 个输入 → %2</source>
        <translation>AUTORUN : %1 entrée(s) → %2</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>Format de sortie</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM) 的输出必须是 .wav 或 .flac</source>
        <translation>En mode inverse (PDM2PCM), la sortie doit être en .wav ou .flac</translation>
    </message>
    <message>
        <source>DXD 输出只支持 .wav / .w64 / .flac (引擎按扩展名认容器)</source>
        <translation>La sortie DXD ne prend en charge que .wav / .w64 / .flac (le moteur reconnaît le conteneur à l'extension)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>错误: DST 压缩仅支持 DFF 格式输出
请把输出格式/扩展名改为 .dff 或禁用 DST 压缩</source>
        <translation>Erreur : la compression DST ne prend en charge que la sortie DFF
Passez le format/l'extension de sortie en .dff ou désactivez la compression DST</translation>
    </message>
    <message>
        <source>输出文件必须是 .dsf 或 .dff 格式</source>
        <translation>Le fichier de sortie doit être au format .dsf ou .dff</translation>
    </message>
    <message>
        <source>转换中</source>
        <translation>Conversion en cours</translation>
    </message>
    <message>
        <source>已有转换任务正在进行中, 请等待完成。</source>
        <translation>Une conversion est déjà en cours, veuillez attendre qu'elle se termine.</translation>
    </message>
    <message>
        <source>输入文件</source>
        <translation>Fichiers d'entrée</translation>
    </message>
    <message>
        <source>请选择输入文件</source>
        <translation>Veuillez choisir des fichiers d'entrée</translation>
    </message>
    <message>
        <source>元数据</source>
        <translation>Métadonnées</translation>
    </message>
    <message>
        <source>输出 .dff 必须填「艺术家」和「标题」两个值
(它们是 DFF 的 COMT 标签; 必填项, 不填不开始转换)</source>
        <translation>Une sortie .dff exige les champs « Artiste » et « Titre »
(ils forment le tag COMT du DFF ; obligatoires — sans eux la conversion ne démarre pas)</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>Coefficients</translation>
    </message>
    <message>
        <source>Taps 必须是偶数且不小于 512 (0 = 用引擎默认值)</source>
        <translation>Le nombre de coefficients doit être pair et au moins égal à 512 (0 = valeur par défaut du moteur)</translation>
    </message>
    <message>
        <source>过渡带</source>
        <translation>Bande de transition</translation>
    </message>
    <message>
        <source>阻带截止必须大于通带截止 (否则过渡带为零/负, 引擎会拒绝)</source>
        <translation>La coupure de la bande atténuée doit être supérieure à celle de la bande passante (sinon la bande de transition est nulle/négative et le moteur la refuse)</translation>
    </message>
    <message>
        <source>输出目录</source>
        <translation>Dossier de sortie</translation>
    </message>
    <message>
        <source>无法创建输出目录:
%1</source>
        <translation>Impossible de créer le dossier de sortie :
%1</translation>
    </message>
    <message>
        <source>输出文件</source>
        <translation>Fichier de sortie</translation>
    </message>
    <message>
        <source>请选择输出文件</source>
        <translation>Veuillez choisir un fichier de sortie</translation>
    </message>
    <message>
        <source>噪声本底分析</source>
        <translation>Analyse du bruit de fond</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「PDF 报告」开关</source>
        <translation>L'analyse du bruit de fond ne fonctionne qu'avec le rapport PDF
Veuillez activer l'option « Rapport PDF »</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>Égaliseur</translation>
    </message>
    <message>
        <source>启用了均衡器但没有有效频段
请添加至少一个频段 (中心频率 &gt; 0), 或禁用均衡器</source>
        <translation>L'égaliseur est activé mais ne contient aucune bande valide
Ajoutez au moins une bande (fréquence centrale &gt; 0) ou désactivez l'égaliseur</translation>
    </message>
    <message>
        <source>引擎缺失</source>
        <translation>Moteur manquant</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine。请将其放在程序同目录、或加入 PATH,
也可设置环境变量 ZUVO_ENGINE_BIN 指向其完整路径。</source>
        <translation>ZuvoEngine introuvable. Placez-le dans le dossier du programme ou ajoutez-le au PATH,
ou définissez la variable d'environnement ZUVO_ENGINE_BIN avec son chemin complet.</translation>
    </message>
    <message>
        <source>均衡器未启用</source>
        <translation>Égaliseur non activé</translation>
    </message>
    <message>
        <source>基本参数</source>
        <translation>Paramètres de base</translation>
    </message>
    <message>
        <source>滤波</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>空间与音调</source>
        <translation>Spatialisation et tonalité</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>启用 DST 压缩模式</source>
        <translation>Compression DST activée</translation>
    </message>
    <message>
        <source>禁用 DST 压缩模式</source>
        <translation>Compression DST désactivée</translation>
    </message>
    <message>
        <source>DST 压缩</source>
        <translation>Compression DST</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出格式将自动更改为 DFF</source>
        <translation>La compression DST ne prend en charge que le format DFF
Le format de sortie passera automatiquement en DFF</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出文件将自动更改为 DFF 格式</source>
        <translation>La compression DST ne prend en charge que le format DFF
Le fichier de sortie passera automatiquement en DFF</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改参数</source>
        <translation>Impossible de modifier les paramètres pendant la conversion</translation>
    </message>
    <message>
        <source>已加载母带预设: %1</source>
        <translation>Préréglage de mastering chargé : %1</translation>
    </message>
    <message>
        <source>均衡器: %1 行无效 (需中心频率&gt;0) 已被跳过</source>
        <translation>Égaliseur : %1 ligne(s) invalide(s) (fréquence centrale &gt; 0 requise) ignorée(s)</translation>
    </message>
    <message>
        <source>注意: 无法向引擎查询它不支持的选项, 直接开始转换</source>
        <translation>Remarque : impossible de demander au moteur les options qu'il ne prend pas en charge, la conversion démarre directement</translation>
    </message>
    <message>
        <source>转换未开始: 当前引擎构建不支持这些已选择的选项: %1</source>
        <translation>Conversion non démarrée : cette version du moteur ne prend pas en charge ces options sélectionnées : %1</translation>
    </message>
    <message>
        <source>引擎不支持的选项</source>
        <translation>Options non prises en charge par le moteur</translation>
    </message>
    <message>
        <source>当前引擎构建不支持下列已选择的选项, 转换不会开始:
%1

请在参数页关闭它们后再开始 (预设里可以保留)。</source>
        <translation>Cette version du moteur ne prend pas en charge les options sélectionnées suivantes, la conversion ne démarrera pas :
%1

Désactivez-les dans les pages de paramètres puis relancez (elles peuvent rester dans les préréglages).</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改预设</source>
        <translation>Impossible de modifier les préréglages pendant la conversion</translation>
    </message>
    <message>
        <source>转换进行中, 不能改逐轨预设。</source>
        <translation>Conversion en cours — les préréglages par piste ne peuvent pas être modifiés maintenant.</translation>
    </message>
    <message>
        <source>请先添加输入文件</source>
        <translation>Ajoutez d'abord des fichiers d'entrée</translation>
    </message>
    <message>
        <source>逐轨预设: 已全部改回「用当前参数」</source>
        <translation>Préréglages par piste : tous remis à « utiliser les paramètres actuels »</translation>
    </message>
    <message>
        <source>逐轨预设: %1 个文件各用一套</source>
        <translation>Préréglages par piste : %1 fichier(s) avec leur propre préréglage</translation>
    </message>
    <message>
        <source>转换进行中, 不能预览</source>
        <translation>Aperçu impossible pendant la conversion</translation>
    </message>
    <message>
        <source>请先添加文件</source>
        <translation>Ajoutez d'abord des fichiers</translation>
    </message>
    <message>
        <source>没有可预览的文件</source>
        <translation>Aucun fichier à prévisualiser</translation>
    </message>
    <message>
        <source>单环 (NS, --order 9)</source>
        <translation>Boucle simple (NS, --order 9)</translation>
    </message>
    <message>
        <source>古典</source>
        <translation>Classique</translation>
    </message>
    <message>
        <source>古典: DSD-256, 131072 taps, 高带宽</source>
        <translation>Classique : DSD-256, 131072 coefficients, large bande</translation>
    </message>
    <message>
        <source>流行</source>
        <translation>Pop</translation>
    </message>
    <message>
        <source>流行: DSD-128, 65536 taps</source>
        <translation>Pop : DSD-128, 65536 coefficients</translation>
    </message>
    <message>
        <source>爵士</source>
        <translation>Jazz</translation>
    </message>
    <message>
        <source>爵士: DSD-128, 65536 taps</source>
        <translation>Jazz : DSD-128, 65536 coefficients</translation>
    </message>
    <message>
        <source>DSD 采样率:</source>
        <translation>Fréquence d'échantillonnage DSD :</translation>
    </message>
    <message>
        <source>Taps 数 (0=引擎默认):</source>
        <translation>Coefficients (0 = défaut du moteur) :</translation>
    </message>
    <message>
        <source>SOS cascade + error feedback, NS15 profile (引擎默认): 实测带内噪声比单环 NS9 低 11.4 dB</source>
        <translation>Cascade SOS + rétroaction d'erreur, profil NS15 (défaut du moteur) : bruit dans la bande mesuré 11,4 dB plus bas qu'en boucle simple NS9</translation>
    </message>
    <message>
        <source>Chebyshev 多项式压缩 (可与 MASH 叠加)</source>
        <translation>Compression polynomiale de Tchebychev (cumulable avec MASH)</translation>
    </message>
    <message>
        <source>调制器:</source>
        <translation>Modulateur :</translation>
    </message>
    <message>
        <source>母带预设:</source>
        <translation>Préréglages de mastering :</translation>
    </message>
    <message>
        <source>预设管理器…</source>
        <translation>Gestionnaire de préréglages…</translation>
    </message>
    <message>
        <source>DST 压缩 (仅 .dff 输出)</source>
        <translation>Compression DST (sortie .dff uniquement)</translation>
    </message>
    <message>
        <source>DXD 输出 (高解析 PCM)</source>
        <translation>Sortie DXD (PCM haute résolution)</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM)</source>
        <translation>Mode inverse (PDM2PCM)</translation>
    </message>
    <message>
        <source>输入 DSD(DSF/DFF), 输出 PCM/WAV —— 与 PCM→PDM 无关</source>
        <translation>Entrée DSD (DSF/DFF), sortie PCM/WAV — sans rapport avec PCM→PDM</translation>
    </message>
    <message>
        <source>DST 压缩等级 (0=关闭):</source>
        <translation>Niveau de compression DST (0 = désactivé) :</translation>
    </message>
    <message>
        <source>高带宽模式</source>
        <translation>Mode large bande</translation>
    </message>
    <message>
        <source>OpenCL 加速 (GPU)</source>
        <translation>Accélération OpenCL (GPU)</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 OpenCL 支持</source>
        <translation>Cette version du moteur a été compilée sans prise en charge d'OpenCL</translation>
    </message>
    <message>
        <source>添加 PDF 报告</source>
        <translation>Ajouter un rapport PDF</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 PDF 报告 (需要 rsvg+cairo)</source>
        <translation>Cette version du moteur ne prend pas en charge le rapport PDF (nécessite rsvg+cairo)</translation>
    </message>
    <message>
        <source>只影响 PDF 报告内容, 不改音频比特流 (实测: 开关它 dsf 逐字节相同)</source>
        <translation>N’affecte que le contenu du rapport PDF, jamais le flux binaire audio (mesuré : le dsf est identique octet par octet avec ou sans)</translation>
    </message>
    <message>
        <source>分析报告 (--report)</source>
        <translation>Rapport d'analyse (--report)</translation>
    </message>
    <message>
        <source>噪声本底分析 (需 PDF 报告)</source>
        <translation>Analyse du bruit de fond (nécessite le rapport PDF)</translation>
    </message>
    <message>
        <source>降噪: 关</source>
        <translation>Débruitage : désactivé</translation>
    </message>
    <message>
        <source>降噪: 轻 (-12dB 地板, 最保真)</source>
        <translation>Débruitage : léger (plancher -12dB, le plus fidèle)</translation>
    </message>
    <message>
        <source>降噪: 标准 (-18dB 地板)</source>
        <translation>Débruitage : standard (plancher -18dB)</translation>
    </message>
    <message>
        <source>降噪: 强 (感知加权地板, 最深)</source>
        <translation>Débruitage : fort (plancher à pondération perceptive, le plus profond)</translation>
    </message>
    <message>
        <source>保留乐器泛音 (降噪时保住泛音与泛音列)</source>
        <translation>Préserver les harmoniques des instruments (garde harmoniques et séries harmoniques lors du débruitage)</translation>
    </message>
    <message>
        <source>报告里加峰值 (--peak)</source>
        <translation>Ajouter la crête au rapport (--peak)</translation>
    </message>
    <message>
        <source>报告里加 RMS (--rms)</source>
        <translation>Ajouter le RMS au rapport (--rms)</translation>
    </message>
    <message>
        <source>报告里不要动态范围一节 (--no-dynamic-range)</source>
        <translation>Omettre la section dynamique du rapport (--no-dynamic-range)</translation>
    </message>
    <message>
        <source>输出模式</source>
        <translation>Mode de sortie</translation>
    </message>
    <message>
        <source>带宽、加速与报告</source>
        <translation>Bande passante, accélération et rapport</translation>
    </message>
    <message>
        <source>降噪与报告内容</source>
        <translation>Débruitage et contenu du rapport</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「添加 PDF 报告」</source>
        <translation>L'analyse du bruit de fond ne fonctionne qu'avec le rapport PDF
Veuillez activer « Ajouter un rapport PDF »</translation>
    </message>
    <message>
        <source>声道设置</source>
        <translation>Réglages des canaux</translation>
    </message>
    <message>
        <source>强制原始声道数</source>
        <translation>Forcer le nombre de canaux d'origine</translation>
    </message>
    <message>
        <source>四声道模式 (需重置声道数=4)</source>
        <translation>Mode quadriphonique (nombre de canaux = 4 requis)</translation>
    </message>
    <message>
        <source>添加环绕声道</source>
        <translation>Ajouter des canaux surround</translation>
    </message>
    <message>
        <source>声道交换</source>
        <translation>Inverser les canaux</translation>
    </message>
    <message>
        <source>重置声道数 (0=不动):</source>
        <translation>Redéfinir le nombre de canaux (0 = inchangé) :</translation>
    </message>
    <message>
        <source>规则</source>
        <translation>Règles</translation>
    </message>
    <message>
        <source>「强制原始声道数」优先: 勾选后重置声道数、四声道模式和添加环绕声道都不发给引擎。

四声道模式需要重置声道数为 4; 勾选时会自动设为 4。

「声道交换」交换前两个声道, 与其它选项可同时使用。</source>
        <translation>« Forcer le nombre de canaux d'origine » est prioritaire : s'il est coché, la redéfinition du nombre de canaux, le mode quadriphonique et l'ajout de canaux surround ne sont pas transmis au moteur.

Le mode quadriphonique exige un nombre de canaux redéfini à 4 ; il est réglé à 4 automatiquement quand on le coche.

« Inverser les canaux » permute les deux premiers canaux et peut être combiné aux autres options.</translation>
    </message>
    <message>
        <source>四声道模式: 重置声道数已自动设为 4</source>
        <translation>Mode quadriphonique : nombre de canaux réglé automatiquement à 4</translation>
    </message>
    <message>
        <source>启用均衡器 (EQ)</source>
        <translation>Activer l'égaliseur (EQ)</translation>
    </message>
    <message>
        <source>添加频段</source>
        <translation>Ajouter une bande</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>Retirer la sélection</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>中心频率 (Hz)</source>
        <translation>Fréquence centrale (Hz)</translation>
    </message>
    <message>
        <source>增益 (dB)</source>
        <translation>Gain (dB)</translation>
    </message>
    <message>
        <source>带宽</source>
        <translation>Largeur de bande</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>预览按 44.1 kHz 估算 — 引擎槽位: 首段低架, 满 10 段时末段高架</source>
        <translation>Aperçu estimé à 44,1 kHz — emplacements du moteur : première bande en plateau grave ; dernière bande en plateau aigu quand les 10 bandes sont utilisées</translation>
    </message>
    <message>
        <source>启用均衡器 (--eq 频段 f,g,bw{单位})</source>
        <translation>Égaliseur activé (--eq bande f,g,bw{unité})</translation>
    </message>
    <message>
        <source>禁用均衡器</source>
        <translation>Égaliseur désactivé</translation>
    </message>
    <message>
        <source>窗口法 (Window Method)</source>
        <translation>Méthode de fenêtrage</translation>
    </message>
    <message>
        <source>最小相位 (Min-Phase)</source>
        <translation>Phase minimale</translation>
    </message>
    <message>
        <source>应用预失真处理</source>
        <translation>Appliquer la prédistorsion</translation>
    </message>
    <message>
        <source>算法:</source>
        <translation>Algorithme :</translation>
    </message>
    <message>
        <source>滤波类型:</source>
        <translation>Type de filtre :</translation>
    </message>
    <message>
        <source>窗口法参数</source>
        <translation>Paramètres de la méthode de fenêtrage</translation>
    </message>
    <message>
        <source>窗口类型:</source>
        <translation>Type de fenêtre :</translation>
    </message>
    <message>
        <source>Remez 算法参数</source>
        <translation>Paramètres de l'algorithme de Remez</translation>
    </message>
    <message>
        <source>最大迭代次数:</source>
        <translation>Itérations max. :</translation>
    </message>
    <message>
        <source>网格密度:</source>
        <translation>Densité de grille :</translation>
    </message>
    <message>
        <source>停止带衰减 (A_stop)</source>
        <translation>Atténuation en bande atténuée (A_stop)</translation>
    </message>
    <message>
        <source>0=不发</source>
        <translation>0 = désactivé</translation>
    </message>
    <message>
        <source>停止带衰减 (dB):</source>
        <translation>Atténuation en bande atténuée (dB) :</translation>
    </message>
    <message>
        <source>过渡带 (截止频率)</source>
        <translation>Bande de transition (fréquences de coupure)</translation>
    </message>
    <message>
        <source>通带截止 (Hz):</source>
        <translation>Coupure bande passante (Hz) :</translation>
    </message>
    <message>
        <source>阻带截止 (Hz):</source>
        <translation>Coupure bande atténuée (Hz) :</translation>
    </message>
    <message>
        <source>增益 (ABS)</source>
        <translation>Gain (ABS)</translation>
    </message>
    <message>
        <source>绝对值增益:</source>
        <translation>Gain absolu :</translation>
    </message>
    <message>
        <source>HRTF 空间音频</source>
        <translation>Audio spatial HRTF</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf)</source>
        <translation>Activer l'audio spatial HRTF (--hrtf)</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf &lt;mono|ms|stereo&gt;)</source>
        <translation>Audio spatial HRTF activé (--hrtf &lt;mono|ms|stereo&gt;)</translation>
    </message>
    <message>
        <source>禁用 HRTF 空间音频</source>
        <translation>Audio spatial HRTF désactivé</translation>
    </message>
    <message>
        <source>模式:</source>
        <translation>Mode :</translation>
    </message>
    <message>
        <source>干湿比 (dry/wet):</source>
        <translation>Mélange sec/traité :</translation>
    </message>
    <message>
        <source>侧向扩散比:</source>
        <translation>Diffusion latérale :</translation>
    </message>
    <message>
        <source>深度 (+1前 / 0耳位 / -1后):</source>
        <translation>Profondeur (+1 avant / 0 oreilles / -1 arrière) :</translation>
    </message>
    <message>
        <source>使用引擎内置 HRIR; 不提供自定义 .sofa 文件</source>
        <translation>Utilise la HRIR intégrée au moteur ; les fichiers .sofa personnalisés ne sont pas pris en charge</translation>
    </message>
    <message>
        <source>环绕</source>
        <translation>Surround</translation>
    </message>
    <message>
        <source>启用环绕 (--surround)</source>
        <translation>Activer le surround (--surround)</translation>
    </message>
    <message>
        <source>启用环绕 (--surround delayMs mix side balance)</source>
        <translation>Surround activé (--surround delayMs mix side balance)</translation>
    </message>
    <message>
        <source>禁用环绕</source>
        <translation>Surround désactivé</translation>
    </message>
    <message>
        <source>侧向 (side)</source>
        <translation>Latéral (side)</translation>
    </message>
    <message>
        <source>延迟 (ms):</source>
        <translation>Retard (ms) :</translation>
    </message>
    <message>
        <source>混合 (%):</source>
        <translation>Mélange (%) :</translation>
    </message>
    <message>
        <source>平衡 (-100~100, 0=不发):</source>
        <translation>Balance (-100~100, 0 = désactivé) :</translation>
    </message>
    <message>
        <source>音调 (shelving)</source>
        <translation>Tonalité (en plateau)</translation>
    </message>
    <message>
        <source>低音 (dB):</source>
        <translation>Graves (dB) :</translation>
    </message>
    <message>
        <source>高音 (dB):</source>
        <translation>Aigus (dB) :</translation>
    </message>
    <message>
        <source>EQ 前置衰减 (dB):</source>
        <translation>Atténuation avant EQ (dB) :</translation>
    </message>
    <message>
        <source>启用 DSRE 数字频谱共振增强 (--dsre)</source>
        <translation>Activer DSRE, renforcement numérique des résonances spectrales (--dsre)</translation>
    </message>
    <message>
        <source>启用 DSRE (--dsre mix)</source>
        <translation>DSRE activé (--dsre mix)</translation>
    </message>
    <message>
        <source>禁用 DSRE</source>
        <translation>DSRE désactivé</translation>
    </message>
    <message>
        <source>干湿比 (0=dry, 1=全效果):</source>
        <translation>Sec/traité (0 = sec, 1 = effet total) :</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>AUTORUN 预设: %1</source>
        <translation>Préréglage AUTORUN : %1</translation>
    </message>
    <message>
        <source>✗ AUTORUN 预设无法使用: %1 (%2)</source>
        <translation>✗ Préréglage AUTORUN inutilisable : %1 (%2)</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_PLAYTEST 指定的文件不存在: %1</source>
        <translation>Erreur : le fichier indiqué par ZUVO_AI_PLAYTEST n'existe pas : %1</translation>
    </message>
    <message>
        <source>设备名直接传给 ZuvoPlayer -dev</source>
        <translation>Nom de périphérique transmis tel quel à ZuvoPlayer -dev</translation>
    </message>
    <message>
        <source>DAC 设备:</source>
        <translation>Périphérique DAC :</translation>
    </message>
    <message>
        <source>流式播放模式 (-stream)</source>
        <translation>Lecture en streaming (-stream)</translation>
    </message>
    <message>
        <source>播放源 = 上方「输出文件」 (镜像 GTK: 播放刚转换的 DSF/DFF)</source>
        <translation>Source de lecture = « Fichier de sortie » ci-dessus (comme la version GTK : lit le DSF/DFF qui vient d'être converti)</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>Arrêter la lecture</translation>
    </message>
    <message>
        <source>播放正在进行中, 请先停止当前播放</source>
        <translation>Lecture déjà en cours, arrêtez-la d'abord</translation>
    </message>
    <message>
        <source>错误: 播放文件不存在或无法读取: %1</source>
        <translation>Erreur : fichier à lire absent ou illisible : %1</translation>
    </message>
    <message>
        <source>(未设置输出文件)</source>
        <translation>(aucun fichier de sortie défini)</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoPlayer — 请放在程序同目录或加入 PATH (或设 ZUVO_PLAYER_BIN)</source>
        <translation>Erreur : ZuvoPlayer introuvable — placez-le dans le dossier du programme ou ajoutez-le au PATH (ou définissez ZUVO_PLAYER_BIN)</translation>
    </message>
    <message>
        <source>启动播放器: %1 %2</source>
        <translation>Démarrage du lecteur : %1 %2</translation>
    </message>
    <message>
        <source>开始播放: %1</source>
        <translation>Lecture : %1</translation>
    </message>
    <message>
        <source>试听会话: %1</source>
        <translation>Session d'écoute : %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>dans le processus (appel direct de la bibliothèque)</translation>
    </message>
    <message>
        <source>子进程</source>
        <translation>sous-processus</translation>
    </message>
    <message>
        <source>错误: 无法启动播放器 — %1</source>
        <translation>Erreur : impossible de démarrer le lecteur — %1</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Lecture terminée</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Lecture arrêtée</translation>
    </message>
    <message>
        <source>播放器异常退出, 代码: %1</source>
        <translation>Le lecteur s'est terminé anormalement, code : %1</translation>
    </message>
    <message>
        <source>当前没有播放任务</source>
        <translation>Aucune lecture en cours</translation>
    </message>
    <message>
        <source>正在停止播放器…</source>
        <translation>Arrêt du lecteur…</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[contrôle] %1</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾 (本次在进程内运行, 无法强制结束)</source>
        <translation>Le lecteur n'a pas terminé en %1 s (il s'exécute cette fois dans le processus, arrêt forcé impossible)</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾, 强制结束</source>
        <translation>Le lecteur n'a pas terminé en %1 s, arrêt forcé</translation>
    </message>
    <message>
        <source>仍无响应, 强制结束播放器</source>
        <translation>Toujours aucune réponse, arrêt forcé du lecteur</translation>
    </message>
    <message>
        <source>检查更新…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>关于/诊断…</source>
        <translation>À propos / Diagnostic…</translation>
    </message>
    <message>
        <source>看引擎版本 / 列音频设备 / 显示引擎帮助</source>
        <translation>Afficher la version du moteur / lister les périphériques audio / afficher l'aide du moteur</translation>
    </message>
    <message>
        <source>源码许可…</source>
        <translation>Licences des sources…</translation>
    </message>
    <message>
        <source>参考标准…</source>
        <translation>Normes de référence…</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_RECTEST 需要给一个输出 .dsf 路径</source>
        <translation>Erreur : ZUVO_AI_RECTEST nécessite un chemin de sortie .dsf</translation>
    </message>
    <message>
        <source>(引擎没有输出)</source>
        <translation>(le moteur n'a rien produit)</translation>
    </message>
    <message>
        <source>$ %1

%2

退出码 = %3</source>
        <translation>$ %1

%2

Code de sortie = %3</translation>
    </message>
    <message>
        <source>本构建的引擎没有录音后端 (见录音页的状态行): 不能开始录音</source>
        <translation>Le moteur de cette version n'a pas de backend d'enregistrement (voir la ligne d'état de l'onglet Enregistrement) : impossible d'enregistrer</translation>
    </message>
    <message>
        <source>录音正在进行中</source>
        <translation>Enregistrement déjà en cours</translation>
    </message>
    <message>
        <source>录音</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>请先在上方「输出文件」设置录音保存路径</source>
        <translation>Définissez d'abord le chemin de l'enregistrement dans « Fichier de sortie » ci-dessus</translation>
    </message>
    <message>
        <source>录音输出文件必须是 .dsf 格式</source>
        <translation>Le fichier de sortie de l'enregistrement doit être au format .dsf</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoEngine (录音需要引擎录音支持)</source>
        <translation>Erreur : ZuvoEngine introuvable (l'enregistrement nécessite la prise en charge de l'enregistrement par le moteur)</translation>
    </message>
    <message>
        <source>录音命令: %1 %2</source>
        <translation>Commande d'enregistrement : %1 %2</translation>
    </message>
    <message>
        <source>开始录音 → %1</source>
        <translation>Enregistrement démarré → %1</translation>
    </message>
    <message>
        <source>提示: 停止时发送 'q' 让引擎优雅收尾 (先停止处理 PCM 再写 DSF)</source>
        <translation>Astuce : à l'arrêt, 'q' est envoyé pour que le moteur termine proprement (arrêt du traitement PCM, puis écriture du DSF)</translation>
    </message>
    <message>
        <source>录音中…</source>
        <translation>Enregistrement…</translation>
    </message>
    <message>
        <source>录音会话: %1</source>
        <translation>Session d'enregistrement : %1</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 (录音) — %1</source>
        <translation>Erreur : impossible de démarrer le moteur (enregistrement) — %1</translation>
    </message>
    <message>
        <source>当前没有录音任务</source>
        <translation>Aucun enregistrement en cours</translation>
    </message>
    <message>
        <source>发送 'q' 至引擎 — 等待优雅收尾 (写 DSF 后自动退出)…</source>
        <translation>'q' envoyé au moteur — attente d'une fin propre (écriture du DSF, puis sortie)…</translation>
    </message>
    <message>
        <source>录音引擎已不在运行</source>
        <translation>Le moteur d'enregistrement ne tourne plus</translation>
    </message>
    <message>
        <source>引擎未在 12s 内收尾 (本次在进程内进行, 无法强制结束)</source>
        <translation>Le moteur n'a pas terminé en 12 s (exécution dans le processus, arrêt forcé impossible)</translation>
    </message>
    <message>
        <source>引擎未在 12s 内退出, 强制终止</source>
        <translation>Le moteur ne s'est pas arrêté en 12 s, arrêt forcé</translation>
    </message>
    <message>
        <source>录音保存: %1</source>
        <translation>Enregistrement sauvegardé : %1</translation>
    </message>
    <message>
        <source>录音失败, 退出码: %1</source>
        <translation>Échec de l'enregistrement, code de sortie : %1</translation>
    </message>
    <message>
        <source>录音进程异常退出 (崩溃/被终止)</source>
        <translation>Le processus d'enregistrement s'est terminé anormalement (plantage/arrêt forcé)</translation>
    </message>
    <message>
        <source>录音后端: 可用 — %1</source>
        <translation>Backend d'enregistrement : disponible — %1</translation>
    </message>
    <message>
        <source>录音后端: 不可用 — %1</source>
        <translation>Backend d'enregistrement : indisponible — %1</translation>
    </message>
    <message>
        <source>%1 个输入设备(已列在日志里)</source>
        <translation>Périphériques d'entrée : %1 (listés dans le journal)</translation>
    </message>
    <message>
        <source>引擎退出码 = %1</source>
        <translation>Code de sortie du moteur = %1</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请放在程序同目录、加入 PATH, 或设 ZUVO_ENGINE_BIN</source>
        <translation>ZuvoEngine introuvable — placez-le dans le dossier du programme, ajoutez-le au PATH ou définissez ZUVO_ENGINE_BIN</translation>
    </message>
    <message>
        <source>探测 30s 无响应, 已终止</source>
        <translation>Détection sans réponse pendant 30 s, arrêtée</translation>
    </message>
    <message>
        <source>关于 / 诊断</source>
        <translation>À propos / Diagnostic</translation>
    </message>
    <message>
        <source>ZuvoAudioTools — ZuvoEngine 的转码前端 (QProcess 子进程)
引擎路径: %1
注: 引擎的帮助/版本类子命令本来就以非 0 退出码收尾, 属既有行为。
探测是异步的: 点完可以继续操作界面, 结果到了会显示在下面。</source>
        <translation>ZuvoAudioTools — interface de conversion pour ZuvoEngine (sous-processus QProcess)
Chemin du moteur : %1
Remarque : les sous-commandes d'aide/de version du moteur se terminent normalement avec un code de sortie non nul ; c'est le comportement prévu.
La détection est asynchrone : après le clic, vous pouvez continuer à utiliser l'interface ; le résultat s'affichera ci-dessous.</translation>
    </message>
    <message>
        <source>(未找到)</source>
        <translation>(introuvable)</translation>
    </message>
    <message>
        <source>点下面任一按钮看引擎的回答</source>
        <translation>Cliquez sur un bouton ci-dessous pour voir la réponse du moteur</translation>
    </message>
    <message>
        <source>引擎版本 (--version)</source>
        <translation>Version du moteur (--version)</translation>
    </message>
    <message>
        <source>列出音频设备 (--list-devices)</source>
        <translation>Lister les périphériques audio (--list-devices)</translation>
    </message>
    <message>
        <source>引擎帮助 (--help)</source>
        <translation>Aide du moteur (--help)</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请把它放在程序同目录、加入 PATH, 或设置环境变量 ZUVO_ENGINE_BIN。</source>
        <translation>ZuvoEngine introuvable — placez-le dans le dossier du programme, ajoutez-le au PATH ou définissez la variable d'environnement ZUVO_ENGINE_BIN.</translation>
    </message>
    <message>
        <source>$ %1

运行中… (界面不冻, 可继续操作)
</source>
        <translation>$ %1

Exécution… (l'interface reste réactive, vous pouvez continuer)
</translation>
    </message>
    <message>
        <source>引擎启动失败: %1</source>
        <translation>Échec du démarrage du moteur : %1</translation>
    </message>
    <message>
        <source>
引擎 30s 无响应, 已终止 (不进设备, 不会影响到正在跑的任务)。</source>
        <translation>
Le moteur n'a pas répondu pendant 30 s et a été arrêté (aucun périphérique ouvert, les tâches en cours ne sont pas affectées).</translation>
    </message>
    <message>
        <source>录音后端: 未检测</source>
        <translation>Backend d'enregistrement : non vérifié</translation>
    </message>
    <message>
        <source>检测录音支持 / 列出输入设备</source>
        <translation>Détecter la prise en charge de l'enregistrement / lister les périphériques d'entrée</translation>
    </message>
    <message>
        <source>录音设备 (空=默认):</source>
        <translation>Périphérique d'enregistrement (vide = défaut) :</translation>
    </message>
    <message>
        <source>声道数 (0=自动):</source>
        <translation>Canaux (0 = auto) :</translation>
    </message>
    <message>
        <source>采样率 Hz (0=自动):</source>
        <translation>Fréq. d'échantillonnage Hz (0 = auto) :</translation>
    </message>
    <message>
        <source>时长秒 (0=手动):</source>
        <translation>Durée (s, 0 = manuel) :</translation>
    </message>
    <message>
        <source>头空间 dB:</source>
        <translation>Marge (headroom) dB :</translation>
    </message>
    <message>
        <source>缓冲帧:</source>
        <translation>Tampon (trames) :</translation>
    </message>
    <message>
        <source>直通模式 (--record-exclusive)</source>
        <translation>Mode exclusif (--record-exclusive)</translation>
    </message>
    <message>
        <source>DSD 直录 (否则 PCM2PDM)</source>
        <translation>Enregistrement DSD direct (sinon PCM2PDM)</translation>
    </message>
    <message>
        <source>监听输入</source>
        <translation>Monitoring de l'entrée</translation>
    </message>
    <message>
        <source>监听输出设备:</source>
        <translation>Périphérique de monitoring :</translation>
    </message>
    <message>
        <source>录音输出 = 上方「输出文件」(必须 .dsf); 停止时向引擎发送 'q' 优雅收尾 (镜像 GTK)</source>
        <translation>Sortie de l'enregistrement = « Fichier de sortie » ci-dessus (.dsf obligatoire) ; l'arrêt envoie 'q' au moteur pour une fin propre (comme la version GTK)</translation>
    </message>
    <message>
        <source>开始录音</source>
        <translation>Démarrer l'enregistrement</translation>
    </message>
    <message>
        <source>停止录音</source>
        <translation>Arrêter l'enregistrement</translation>
    </message>
</context>
<context>
    <name>PerTrackDialog</name>
    <message>
        <source>逐轨预设 (每个文件可各用一套)</source>
        <translation>Préréglages par piste (un préréglage possible par fichier)</translation>
    </message>
    <message>
        <source>每行给一个文件挑一套预设; 「(用当前参数)」= 跟随主面板。
预设只换编码/DSP 参数 —— 输出目录/输出格式与标签仍按主面板。</source>
        <translation>Choisissez un préréglage par ligne pour chaque fichier ; « (utiliser les paramètres actuels) » = suivre le panneau principal.
Un préréglage ne change que les paramètres d'encodage/DSP — dossier/format de sortie et tags restent ceux du panneau principal.</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>(用当前参数)</source>
        <translation>(utiliser les paramètres actuels)</translation>
    </message>
    <message>
        <source>(预设目录里没有预设 —— 先在上面「母带预设」里保存一套)</source>
        <translation>(aucun préréglage dans le dossier — enregistrez-en d'abord un via « Préréglages de mastering » ci-dessus)</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>PresetManagerDialog</name>
    <message>
        <source>预设管理器</source>
        <translation>Gestionnaire de préréglages</translation>
    </message>
    <message>
        <source>预设为 JSON 文件 (与 GTK 版同目录同键名, 可互读)
写入目录: %1</source>
        <translation>Les préréglages sont des fichiers JSON (même dossier et mêmes clés que la version GTK, lisibles de part et d'autre)
Dossier d'écriture : %1</translation>
    </message>
    <message>
        <source>加载选中</source>
        <translation>Charger la sélection</translation>
    </message>
    <message>
        <source>删除选中</source>
        <translation>Supprimer la sélection</translation>
    </message>
    <message>
        <source>保存当前为…</source>
        <translation>Enregistrer l'actuel sous…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>无法读取: %1</source>
        <translation>Lecture impossible : %1</translation>
    </message>
    <message>
        <source>预设文件解析失败: %1</source>
        <translation>Échec de l'analyse du fichier de préréglage : %1</translation>
    </message>
    <message>
        <source>预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>Le préréglage contient %1 champ(s) non pris en charge par cette version, ignoré(s)</translation>
    </message>
    <message>
        <source>已加载预设: %1</source>
        <translation>Préréglage chargé : %1</translation>
    </message>
    <message>
        <source>删除预设</source>
        <translation>Supprimer le préréglage</translation>
    </message>
    <message>
        <source>确定删除预设 %1 ?</source>
        <translation>Supprimer le préréglage %1 ?</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>Échec de la suppression : %1</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>预设名称:</source>
        <translation>Nom du préréglage :</translation>
    </message>
    <message>
        <source>预设 %1 已存在, 覆盖?</source>
        <translation>Le préréglage %1 existe déjà. L'écraser ?</translation>
    </message>
    <message>
        <source>预设名称无效: %1</source>
        <translation>Nom de préréglage invalide : %1</translation>
    </message>
    <message>
        <source>保存失败: %1</source>
        <translation>Échec de l'enregistrement : %1</translation>
    </message>
    <message>
        <source>已保存预设: %1</source>
        <translation>Préréglage enregistré : %1</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>名称为空</source>
        <translation>Le nom est vide</translation>
    </message>
    <message>
        <source>名称不能包含 %1 或控制字符</source>
        <translation>Le nom ne doit pas contenir %1 ni de caractères de contrôle</translation>
    </message>
    <message>
        <source>名称不能以点结尾</source>
        <translation>Le nom ne doit pas se terminer par un point</translation>
    </message>
    <message>
        <source>名称 %1 是系统保留的设备名</source>
        <translation>Le nom %1 est un nom de périphérique réservé par le système</translation>
    </message>
    <message>
        <source>文件过大 (%1 字节)</source>
        <translation>Fichier trop volumineux (%1 octets)</translation>
    </message>
    <message>
        <source>顶层不是 JSON 对象</source>
        <translation>Le niveau supérieur n'est pas un objet JSON</translation>
    </message>
    <message>
        <source>无法读取文件</source>
        <translation>Impossible de lire le fichier</translation>
    </message>
</context>
<context>
    <name>ReferencesGui</name>
    <message>
        <source>参考标准</source>
        <translation>Normes de référence</translation>
    </message>
</context>
<context>
    <name>RunControlsPanel</name>
    <message>
        <source>开始转换</source>
        <translation>Lancer la conversion</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Vider le journal</translation>
    </message>
    <message>
        <source>详细日志 (--verbose)</source>
        <translation>Journal détaillé (--verbose)</translation>
    </message>
    <message>
        <source>保留引擎日志（退出不删）</source>
        <translation>Conserver le journal du moteur (pas supprimé à la fermeture)</translation>
    </message>
    <message>
        <source>关（默认）：引擎日志写在系统临时目录里的一次性目录中，退出即清；
开：写到 %1 下并保留，便于把日志发给厂商排障。</source>
        <translation>Désactivé (par défaut) : le journal du moteur est écrit dans un dossier jetable du répertoire temporaire du système et effacé à la fermeture ;
Activé : il est écrit sous %1 et conservé, pour pouvoir l'envoyer à l'éditeur en cas de problème.</translation>
    </message>
    <message>
        <source>子进程: ZuvoEngine</source>
        <translation>Sous-processus : ZuvoEngine</translation>
    </message>
    <message>
        <source>GUI 通过 QProcess 调用同目录/环境变量指定的 ZuvoEngine</source>
        <translation>L'interface appelle via QProcess le ZuvoEngine du dossier du programme ou indiqué par la variable d'environnement</translation>
    </message>
</context>
<context>
    <name>ThirdPartyGui</name>
    <message>
        <source>源码许可</source>
        <translation>Licences des sources</translation>
    </message>
</context>
<context>
    <name>UiLangRow</name>
    <message>
        <source>语言</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>界面语言。切换后程序会重启一次以便整套界面换语言。</source>
        <translation>Langue de l'interface. Après le changement, le programme redémarre une fois pour basculer toute l'interface.</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>界面语言已切换，程序将自动重启一次以生效。</source>
        <translation>Langue de l'interface modifiée. Le programme va redémarrer une fois pour l'appliquer.</translation>
    </message>
</context>
<context>
    <name>UpdateUi</name>
    <message>
        <source>正在检查更新…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>检查更新</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>已是最新版本 (%1)。服务器上的最新版本为 %2。</source>
        <translation>Vous avez la dernière version (%1). La dernière version sur le serveur est %2.</translation>
    </message>
    <message>
        <source>检查更新失败：</source>
        <translation>Échec de la recherche de mises à jour :</translation>
    </message>
    <message>
        <source>发现新版本 %1（当前 %2）。</source>
        <translation>Nouvelle version %1 disponible (version actuelle : %2).</translation>
    </message>
    <message>
        <source>发布日期：%1</source>
        <translation>Date de publication : %1</translation>
    </message>
    <message>
        <source>更新说明：%1</source>
        <translation>Notes de version : %1</translation>
    </message>
    <message>
        <source>发现新版本</source>
        <translation>Nouvelle version disponible</translation>
    </message>
    <message>
        <source>下载并更新</source>
        <translation>Télécharger et mettre à jour</translation>
    </message>
    <message>
        <source>打开下载页</source>
        <translation>Ouvrir la page de téléchargement</translation>
    </message>
    <message>
        <source>稍后</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>正在下载更新…</source>
        <translation>Téléchargement de la mise à jour…</translation>
    </message>
    <message>
        <source>下载更新</source>
        <translation>Téléchargement de la mise à jour</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>程序现在退出。</source>
        <translation>Le programme va maintenant se fermer.</translation>
    </message>
    <message>
        <source>更新失败</source>
        <translation>Échec de la mise à jour</translation>
    </message>
</context>
<context>
    <name>pv::PreviewDialog</name>
    <message>
        <source>预览: %1</source>
        <translation>Aperçu : %1</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>Forme d'onde</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>Spectrogramme</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>%1 — %2 Hz / %3 ch, 预览 %4 s (上限 30 s)</source>
        <translation>%1 — %2 Hz / %3 canaux, aperçu %4 s (max. 30 s)</translation>
    </message>
    <message>
        <source>该格式 (%1) 预览待后续 — 目前仅支持 WAV (DSD 解码属后续里程碑)</source>
        <translation>L'aperçu de ce format (%1) viendra plus tard — seul le WAV est pris en charge pour l'instant (le décodage DSD est prévu pour une étape ultérieure)</translation>
    </message>
    <message>
        <source>解码失败: %1</source>
        <translation>Échec du décodage : %1</translation>
    </message>
</context>
</TS>