<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="zh_CN">
<context>
    <name>ConversionQueue</name>
    <message>
        <source>引擎日志: %1</source>
        <translation>Log do motor: %1</translation>
    </message>
    <message>
        <source>(交给引擎默认)</source>
        <translation>(padrão do motor)</translation>
    </message>
    <message>
        <source>待转换文件: %1 个</source>
        <translation>Arquivos a converter: %1</translation>
    </message>
    <message>
        <source>输出目录: %1 (命名模板: %2, 格式: %3)</source>
        <translation>Pasta de saída: %1 (modelo de nome: %2, formato: %3)</translation>
    </message>
    <message>
        <source>✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)</source>
        <translation>✗ Não foi possível interpretar o preset por faixa; usando os parâmetros atuais para este arquivo: %1 (%2)</translation>
    </message>
    <message>
        <source>逐轨预设《%1》</source>
        <translation>Preset por faixa “%1”</translation>
    </message>
    <message>
        <source>  预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>  O preset tem %1 campo(s) não suportado(s) nesta versão, ignorado(s)</translation>
    </message>
    <message>
        <source>停止: 剩余 %1 个文件已跳过</source>
        <translation>Parado: %1 arquivo(s) restante(s) ignorado(s)</translation>
    </message>
    <message>
        <source>━━━ [%1/%2] 转换 %3</source>
        <translation>━━━ [%1/%2] Convertendo %3</translation>
    </message>
    <message>
        <source>━━━ 转换 %1</source>
        <translation>━━━ Convertendo %1</translation>
    </message>
    <message>
        <source>✗ 无法创建输出目录: %1</source>
        <translation>✗ Não foi possível criar a pasta de saída: %1</translation>
    </message>
    <message>
        <source>执行: %1 %2</source>
        <translation>Executando: %1 %2</translation>
    </message>
    <message>
        <source>转换会话: %1</source>
        <translation>Sessão de conversão: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>no processo (chamada direta à biblioteca)</translation>
    </message>
    <message>
        <source>子进程(起 CLI)</source>
        <translation>processo filho (CLI)</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 — %1</source>
        <translation>Erro: não foi possível iniciar o motor — %1</translation>
    </message>
    <message>
        <source>✓ %1 完成</source>
        <translation>✓ %1 concluído</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (未完成的文件已删除)</source>
        <translation>■ Parado: %1 (arquivo incompleto excluído)</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (文件保留, 可能不完整)</source>
        <translation>■ Parado: %1 (arquivo mantido, pode estar incompleto)</translation>
    </message>
    <message>
        <source>■ 已停止(强制结束进程): %1</source>
        <translation>■ Parado (processo encerrado à força): %1</translation>
    </message>
    <message>
        <source>✗ %1 异常退出 (崩溃/被终止)</source>
        <translation>✗ %1 terminou de forma anormal (falha/encerrado)</translation>
    </message>
    <message>
        <source>✗ 退出码: %1</source>
        <translation>✗ Código de saída: %1</translation>
    </message>
    <message>
        <source>── 引擎日志 (末尾 %1 行): %2 ──</source>
        <translation>── Log do motor (últimas %1 linhas): %2 ──</translation>
    </message>
    <message>
        <source>
全部完成: %1 OK</source>
        <translation>
Tudo concluído: %1 OK</translation>
    </message>
    <message>
        <source>
完成: %1 OK, %2 失败</source>
        <translation>
Concluído: %1 OK, %2 com falha</translation>
    </message>
    <message>
        <source>转换已停止</source>
        <translation>Conversão parada</translation>
    </message>
    <message>
        <source>当前没有运行的进程</source>
        <translation>Nenhum processo em execução</translation>
    </message>
    <message>
        <source>正在停止转换进程…</source>
        <translation>Parando a conversão…</translation>
    </message>
    <message>
        <source>终止当前转换进程…</source>
        <translation>Encerrando o processo de conversão atual…</translation>
    </message>
    <message>
        <source>正在通知引擎停止…</source>
        <translation>Pedindo ao motor para parar…</translation>
    </message>
    <message>
        <source>引擎 2 秒内没有确认停止 —— 仍在收尾(可再点一次, 或关闭程序)。</source>
        <translation>O motor não confirmou a parada em 2 segundos — ainda finalizando (clique de novo ou feche o programa).</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[controle] %1</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但没有写出输出文件 %2</source>
        <translation>✗ %1: o motor informou que concluiu, mas o arquivo de saída não foi gravado: %2</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件 %2 没有被写过 (还是旧的)</source>
        <translation>✗ %1: o motor informou que concluiu, mas o arquivo de saída %2 não foi gravado (ainda é o antigo)</translation>
    </message>
    <message>
        <source>文件是空的</source>
        <translation>O arquivo está vazio</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2), 已删除: %3</source>
        <translation>✗ %1: o motor informou que concluiu, mas não foi possível ler o arquivo de saída (%2); excluído: %3</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2): %3</source>
        <translation>✗ %1: o motor informou que concluiu, mas não foi possível ler o arquivo de saída (%2): %3</translation>
    </message>
    <message>
        <source> …(这一行太长, 后面 %1 个字符没有显示)</source>
        <translation> …(linha longa demais; %1 caracteres restantes não exibidos)</translation>
    </message>
    <message>
        <source>不是 DSF 文件</source>
        <translation>Não é um arquivo DSF</translation>
    </message>
    <message>
        <source>DSF 头里的文件长度与实际不符 (文件不完整)</source>
        <translation>O tamanho do arquivo no cabeçalho DSF não corresponde ao real (arquivo incompleto)</translation>
    </message>
    <message>
        <source>DSF 格式块不对</source>
        <translation>Bloco de formato DSF inválido</translation>
    </message>
    <message>
        <source>DSF 数据块不对</source>
        <translation>Bloco de dados DSF inválido</translation>
    </message>
    <message>
        <source>DSF 元数据位置不对</source>
        <translation>Posição dos metadados DSF inválida</translation>
    </message>
    <message>
        <source>不是 DSDIFF 文件</source>
        <translation>Não é um arquivo DSDIFF</translation>
    </message>
    <message>
        <source>DSDIFF 头里的长度与实际不符 (文件不完整)</source>
        <translation>O tamanho no cabeçalho DSDIFF não corresponde ao real (arquivo incompleto)</translation>
    </message>
    <message>
        <source>DSDIFF 块超出文件</source>
        <translation>Bloco DSDIFF ultrapassa o fim do arquivo</translation>
    </message>
    <message>
        <source>DSDIFF 缺少 FVER/PROP/声音块</source>
        <translation>Falta o bloco FVER/PROP/som no DSDIFF</translation>
    </message>
    <message>
        <source>不是 WAV 文件</source>
        <translation>Não é um arquivo WAV</translation>
    </message>
    <message>
        <source>RF64 的 ds64 块不对</source>
        <translation>Bloco ds64 do RF64 inválido</translation>
    </message>
    <message>
        <source>WAV 缺少格式块</source>
        <translation>Falta o bloco de formato no WAV</translation>
    </message>
    <message>
        <source>WAV 数据块超出文件 (文件不完整)</source>
        <translation>Bloco de dados WAV ultrapassa o fim do arquivo (arquivo incompleto)</translation>
    </message>
    <message>
        <source>WAV 格式块不对</source>
        <translation>Bloco de formato WAV inválido</translation>
    </message>
    <message>
        <source>WAV 缺少数据块</source>
        <translation>Falta o bloco de dados no WAV</translation>
    </message>
    <message>
        <source>不是 W64 文件</source>
        <translation>Não é um arquivo W64</translation>
    </message>
    <message>
        <source>W64 块超出文件 (文件不完整)</source>
        <translation>Bloco W64 ultrapassa o fim do arquivo (arquivo incompleto)</translation>
    </message>
    <message>
        <source>W64 缺少格式块</source>
        <translation>Falta o bloco de formato no W64</translation>
    </message>
    <message>
        <source>W64 缺少数据块</source>
        <translation>Falta o bloco de dados no W64</translation>
    </message>
    <message>
        <source>不是 FLAC 文件</source>
        <translation>Não é um arquivo FLAC</translation>
    </message>
    <message>
        <source>FLAC 缺少 STREAMINFO</source>
        <translation>Falta STREAMINFO no FLAC</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>Não foi possível abrir</translation>
    </message>
</context>
<context>
    <name>EngineSession</name>
    <message>
        <source>进程内会话起不来 (rc=%1)</source>
        <translation>Falha ao iniciar a sessão no processo (rc=%1)</translation>
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
        <translation>Adicionar arquivos…</translation>
    </message>
    <message>
        <source>添加目录…</source>
        <translation>Adicionar pasta…</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>Remover selecionados</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>Limpar lista</translation>
    </message>
    <message>
        <source>支持拖入音频文件或文件夹</source>
        <translation>Arraste arquivos de áudio ou pastas para cá</translation>
    </message>
    <message>
        <source>输出 .dsf / .dff 文件</source>
        <translation>Arquivo de saída .dsf / .dff</translation>
    </message>
    <message>
        <source>浏览…</source>
        <translation>Procurar…</translation>
    </message>
    <message>
        <source>输出文件:</source>
        <translation>Arquivo de saída:</translation>
    </message>
    <message>
        <source>留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名</source>
        <translation>Deixe vazio para usar o arquivo de saída acima; se preenchido, cada entrada recebe o nome pelo modelo de nome</translation>
    </message>
    <message>
        <source>批量输出: 所有输入写进这个目录, 文件名由下面的命名模板算</source>
        <translation>Saída em lote: todas as entradas são gravadas nesta pasta, com nomes gerados pelo modelo abaixo</translation>
    </message>
    <message>
        <source>浏览目录…</source>
        <translation>Procurar pasta…</translation>
    </message>
    <message>
        <source>输出目录:</source>
        <translation>Pasta de saída:</translation>
    </message>
    <message>
        <source>输出目录模式下每个文件的扩展名 (引擎按扩展名认格式)</source>
        <translation>Extensão de cada arquivo no modo pasta de saída (o motor identifica o formato pela extensão)</translation>
    </message>
    <message>
        <source>变量: {input} 输入文件名  {ext} 输出格式  {track} / {track:02} 队列序号  {artist} {title} 界面字段
留空 = {input}; 变量没有值时回退用输入文件名; 模板里可以带子目录</source>
        <translation>Variáveis: {input} nome do arquivo de entrada  {ext} formato de saída  {track} / {track:02} posição na fila  {artist} {title} campos da interface
Vazio = {input}; variável sem valor usa o nome do arquivo de entrada; o modelo pode conter subpastas</translation>
    </message>
    <message>
        <source>输出格式:</source>
        <translation>Formato de saída:</translation>
    </message>
    <message>
        <source>命名模板:</source>
        <translation>Modelo de nome:</translation>
    </message>
    <message>
        <source>标签: DFF→COMT, DSF→ID3</source>
        <translation>Tags: DFF→COMT, DSF→ID3</translation>
    </message>
    <message>
        <source>0 = 不写曲目号 (引擎只接受 1..998)</source>
        <translation>0 = sem número de faixa (o motor só aceita 1..998)</translation>
    </message>
    <message>
        <source>写入标签的说明文字</source>
        <translation>Texto de comentário gravado na tag</translation>
    </message>
    <message>
        <source>从输入文件读取标签</source>
        <translation>Ler tags do arquivo de entrada</translation>
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
        <translation>Gênero:</translation>
    </message>
    <message>
        <source>年份:</source>
        <translation>Ano:</translation>
    </message>
    <message>
        <source>曲目号:</source>
        <translation>Faixa:</translation>
    </message>
    <message>
        <source>备注:</source>
        <translation>Comentário:</translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>%1 arquivo(s)</translation>
    </message>
    <message>
        <source>音频文件 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;所有文件 (*)</source>
        <translation>Arquivos de áudio (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>选择输入文件</source>
        <translation>Selecionar arquivos de entrada</translation>
    </message>
    <message>
        <source>选择目录</source>
        <translation>Selecionar pasta</translation>
    </message>
    <message>
        <source>PCM 音频 (*.wav *.w64 *.flac);;所有文件 (*)</source>
        <translation>Áudio PCM (*.wav *.w64 *.flac);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>DSDIFF (*.dff);;DSD Stream (*.dsf);;所有文件 (*)</source>
        <translation>DSDIFF (*.dff);;DSD Stream (*.dsf);;Todos os arquivos (*)</translation>
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
        <translation>Selecionar arquivo de saída</translation>
    </message>
    <message>
        <source>选择输出目录</source>
        <translation>Selecionar pasta de saída</translation>
    </message>
    <message>
        <source>波形/频谱预览…</source>
        <translation>Visualizar forma de onda/espectrograma…</translation>
    </message>
    <message>
        <source>逐轨预设…</source>
        <translation>Presets por faixa…</translation>
    </message>
    <message>
        <source>给队列里每个文件单独指定一套预设
预设只换编码/DSP 参数; 输出目录/输出格式与标签仍按面板</source>
        <translation>Define um preset próprio para cada arquivo da fila
O preset só altera parâmetros de codificação/DSP; pasta/formato de saída e tags continuam vindo do painel</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>开始转换</source>
        <translation>Iniciar conversão</translation>
    </message>
    <message>
        <source>Zuvo Audio Suite — 音频转换工具</source>
        <translation>Zuvo Audio Suite — Ferramenta de conversão de áudio</translation>
    </message>
    <message>
        <source>设置输出文件: %1</source>
        <translation>Arquivo de saída definido: %1</translation>
    </message>
    <message>
        <source>目录中没有音频文件</source>
        <translation>Nenhum arquivo de áudio na pasta</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改文件列表</source>
        <translation>Não é possível alterar a lista de arquivos durante a conversão</translation>
    </message>
    <message>
        <source>找到 ZuvoEngine (音频转换引擎): %1</source>
        <translation>ZuvoEngine (motor de conversão de áudio) encontrado: %1</translation>
    </message>
    <message>
        <source>警告: 未找到 ZuvoEngine — 转换功能不可用。请将其放在程序同目录、或加入 PATH。</source>
        <translation>Aviso: ZuvoEngine não encontrado — conversão indisponível. Coloque-o na pasta do programa ou adicione-o ao PATH.</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine</source>
        <translation>ZuvoEngine não encontrado</translation>
    </message>
    <message>
        <source>已添加 %1 个文件</source>
        <translation>%1 arquivo(s) adicionado(s)</translation>
    </message>
    <message>
        <source>已跳过 %1 个重复文件</source>
        <translation>%1 arquivo(s) duplicado(s) ignorado(s)</translation>
    </message>
    <message>
        <source>转换完成</source>
        <translation>Conversão concluída</translation>
    </message>
    <message>
        <source>转换 %1 个文件</source>
        <translation>%1 arquivo(s) convertido(s)</translation>
    </message>
    <message>
        <source>转换 %1 个文件, %2 个失败</source>
        <translation>%1 arquivo(s) convertido(s), %2 com falha</translation>
    </message>
    <message>
        <source>打开输出目录</source>
        <translation>Abrir pasta de saída</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
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
        <translation>Formato de saída</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM) 的输出必须是 .wav 或 .flac</source>
        <translation>A saída do modo reverso (PDM2PCM) deve ser .wav ou .flac</translation>
    </message>
    <message>
        <source>DXD 输出只支持 .wav / .w64 / .flac (引擎按扩展名认容器)</source>
        <translation>A saída DXD só aceita .wav / .w64 / .flac (o motor identifica o contêiner pela extensão)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>错误: DST 压缩仅支持 DFF 格式输出
请把输出格式/扩展名改为 .dff 或禁用 DST 压缩</source>
        <translation>Erro: a compactação DST só aceita saída em DFF
Mude o formato/extensão de saída para .dff ou desative a compactação DST</translation>
    </message>
    <message>
        <source>输出文件必须是 .dsf 或 .dff 格式</source>
        <translation>O arquivo de saída deve ser .dsf ou .dff</translation>
    </message>
    <message>
        <source>转换中</source>
        <translation>Convertendo</translation>
    </message>
    <message>
        <source>已有转换任务正在进行中, 请等待完成。</source>
        <translation>Já há uma conversão em andamento; aguarde até que termine.</translation>
    </message>
    <message>
        <source>输入文件</source>
        <translation>Arquivos de entrada</translation>
    </message>
    <message>
        <source>请选择输入文件</source>
        <translation>Selecione os arquivos de entrada</translation>
    </message>
    <message>
        <source>元数据</source>
        <translation>Metadados</translation>
    </message>
    <message>
        <source>输出 .dff 必须填「艺术家」和「标题」两个值
(它们是 DFF 的 COMT 标签; 必填项, 不填不开始转换)</source>
        <translation>Uma saída .dff exige “Artista” e “Título”
(eles formam a tag COMT do DFF; são obrigatórios — sem eles a conversão não começa)</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>Taps</translation>
    </message>
    <message>
        <source>Taps 必须是偶数且不小于 512 (0 = 用引擎默认值)</source>
        <translation>O número de taps deve ser par e no mínimo 512 (0 = padrão do motor)</translation>
    </message>
    <message>
        <source>过渡带</source>
        <translation>Banda de transição</translation>
    </message>
    <message>
        <source>阻带截止必须大于通带截止 (否则过渡带为零/负, 引擎会拒绝)</source>
        <translation>O corte da banda de rejeição deve ser maior que o corte da banda passante (caso contrário, a banda de transição fica zero/negativa e o motor a rejeita)</translation>
    </message>
    <message>
        <source>输出目录</source>
        <translation>Pasta de saída</translation>
    </message>
    <message>
        <source>无法创建输出目录:
%1</source>
        <translation>Não foi possível criar a pasta de saída:
%1</translation>
    </message>
    <message>
        <source>输出文件</source>
        <translation>Arquivo de saída</translation>
    </message>
    <message>
        <source>请选择输出文件</source>
        <translation>Selecione um arquivo de saída</translation>
    </message>
    <message>
        <source>噪声本底分析</source>
        <translation>Análise do piso de ruído</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「PDF 报告」开关</source>
        <translation>A análise do piso de ruído só funciona com o relatório PDF ativado
Ative a opção “Relatório PDF”</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>Equalizador</translation>
    </message>
    <message>
        <source>启用了均衡器但没有有效频段
请添加至少一个频段 (中心频率 &gt; 0), 或禁用均衡器</source>
        <translation>O equalizador está ativado, mas não há nenhuma banda válida
Adicione pelo menos uma banda (frequência central &gt; 0) ou desative o equalizador</translation>
    </message>
    <message>
        <source>引擎缺失</source>
        <translation>Motor ausente</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine。请将其放在程序同目录、或加入 PATH,
也可设置环境变量 ZUVO_ENGINE_BIN 指向其完整路径。</source>
        <translation>ZuvoEngine não encontrado. Coloque-o na pasta do programa ou adicione-o ao PATH,
ou defina a variável de ambiente ZUVO_ENGINE_BIN com o caminho completo.</translation>
    </message>
    <message>
        <source>均衡器未启用</source>
        <translation>Equalizador desativado</translation>
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
        <translation>Espacial e tonalidade</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>Canais</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>Avançado</translation>
    </message>
    <message>
        <source>启用 DST 压缩模式</source>
        <translation>Modo de compactação DST ativado</translation>
    </message>
    <message>
        <source>禁用 DST 压缩模式</source>
        <translation>Modo de compactação DST desativado</translation>
    </message>
    <message>
        <source>DST 压缩</source>
        <translation>Compactação DST</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出格式将自动更改为 DFF</source>
        <translation>A compactação DST só aceita o formato DFF
O formato de saída será alterado para DFF automaticamente</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出文件将自动更改为 DFF 格式</source>
        <translation>A compactação DST só aceita o formato DFF
O arquivo de saída será alterado para DFF automaticamente</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改参数</source>
        <translation>Não é possível alterar parâmetros durante a conversão</translation>
    </message>
    <message>
        <source>已加载母带预设: %1</source>
        <translation>Preset de masterização carregado: %1</translation>
    </message>
    <message>
        <source>均衡器: %1 行无效 (需中心频率&gt;0) 已被跳过</source>
        <translation>Equalizador: %1 linha(s) inválida(s) ignorada(s) (a frequência central deve ser &gt; 0)</translation>
    </message>
    <message>
        <source>注意: 无法向引擎查询它不支持的选项, 直接开始转换</source>
        <translation>Observação: não foi possível consultar o motor sobre opções não suportadas; iniciando a conversão mesmo assim</translation>
    </message>
    <message>
        <source>转换未开始: 当前引擎构建不支持这些已选择的选项: %1</source>
        <translation>Conversão não iniciada: esta versão do motor não suporta estas opções selecionadas: %1</translation>
    </message>
    <message>
        <source>引擎不支持的选项</source>
        <translation>Opções não suportadas pelo motor</translation>
    </message>
    <message>
        <source>当前引擎构建不支持下列已选择的选项, 转换不会开始:
%1

请在参数页关闭它们后再开始 (预设里可以保留)。</source>
        <translation>Esta versão do motor não suporta as seguintes opções selecionadas, por isso a conversão não será iniciada:
%1

Desative-as nas páginas de parâmetros e inicie novamente (elas podem continuar nos presets).</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改预设</source>
        <translation>Não é possível alterar presets durante a conversão</translation>
    </message>
    <message>
        <source>转换进行中, 不能改逐轨预设。</source>
        <translation>Conversão em andamento — os presets por faixa não podem ser alterados agora.</translation>
    </message>
    <message>
        <source>请先添加输入文件</source>
        <translation>Adicione arquivos de entrada primeiro</translation>
    </message>
    <message>
        <source>逐轨预设: 已全部改回「用当前参数」</source>
        <translation>Presets por faixa: todos voltaram para “usar parâmetros atuais”</translation>
    </message>
    <message>
        <source>逐轨预设: %1 个文件各用一套</source>
        <translation>Presets por faixa: %1 arquivo(s) com preset próprio</translation>
    </message>
    <message>
        <source>转换进行中, 不能预览</source>
        <translation>Não é possível visualizar durante a conversão</translation>
    </message>
    <message>
        <source>请先添加文件</source>
        <translation>Adicione arquivos primeiro</translation>
    </message>
    <message>
        <source>没有可预览的文件</source>
        <translation>Nenhum arquivo para visualizar</translation>
    </message>
    <message>
        <source>单环 (NS, --order 9)</source>
        <translation>Laço único (NS, --order 9)</translation>
    </message>
    <message>
        <source>古典</source>
        <translation>Clássica</translation>
    </message>
    <message>
        <source>古典: DSD-256, 131072 taps, 高带宽</source>
        <translation>Clássica: DSD-256, 131072 taps, alta largura de banda</translation>
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
        <translation>Taxa de amostragem DSD:</translation>
    </message>
    <message>
        <source>Taps 数 (0=引擎默认):</source>
        <translation>Taps (0=padrão do motor):</translation>
    </message>
    <message>
        <source>SOS cascade + error feedback, NS15 profile (引擎默认): 实测带内噪声比单环 NS9 低 11.4 dB</source>
        <translation>Cascata SOS + realimentação de erro, perfil NS15 (padrão do motor): ruído na banda medido 11,4 dB abaixo do laço único NS9</translation>
    </message>
    <message>
        <source>Chebyshev 多项式压缩 (可与 MASH 叠加)</source>
        <translation>Compressão polinomial de Chebyshev (combinável com MASH)</translation>
    </message>
    <message>
        <source>调制器:</source>
        <translation>Modulador:</translation>
    </message>
    <message>
        <source>母带预设:</source>
        <translation>Presets de masterização:</translation>
    </message>
    <message>
        <source>预设管理器…</source>
        <translation>Gerenciador de presets…</translation>
    </message>
    <message>
        <source>DST 压缩 (仅 .dff 输出)</source>
        <translation>Compactação DST (só saída .dff)</translation>
    </message>
    <message>
        <source>DXD 输出 (高解析 PCM)</source>
        <translation>Saída DXD (PCM de alta resolução)</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM)</source>
        <translation>Modo reverso (PDM2PCM)</translation>
    </message>
    <message>
        <source>输入 DSD(DSF/DFF), 输出 PCM/WAV —— 与 PCM→PDM 无关</source>
        <translation>Entrada DSD (DSF/DFF), saída PCM/WAV — não tem relação com PCM→PDM</translation>
    </message>
    <message>
        <source>DST 压缩等级 (0=关闭):</source>
        <translation>Nível de compactação DST (0=desligado):</translation>
    </message>
    <message>
        <source>高带宽模式</source>
        <translation>Modo de alta largura de banda</translation>
    </message>
    <message>
        <source>OpenCL 加速 (GPU)</source>
        <translation>Aceleração OpenCL (GPU)</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 OpenCL 支持</source>
        <translation>Esta versão do motor foi compilada sem suporte a OpenCL</translation>
    </message>
    <message>
        <source>添加 PDF 报告</source>
        <translation>Adicionar relatório PDF</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 PDF 报告 (需要 rsvg+cairo)</source>
        <translation>Esta versão do motor não tem suporte a relatório PDF (requer rsvg+cairo)</translation>
    </message>
    <message>
        <source>只影响 PDF 报告内容, 不改音频比特流 (实测: 开关它 dsf 逐字节相同)</source>
        <translation>Afeta apenas o conteúdo do relatório PDF, nunca o fluxo de bits de áudio (medido: o dsf é idêntico byte a byte com ou sem ele)</translation>
    </message>
    <message>
        <source>分析报告 (--report)</source>
        <translation>Relatório de análise (--report)</translation>
    </message>
    <message>
        <source>噪声本底分析 (需 PDF 报告)</source>
        <translation>Análise do piso de ruído (requer relatório PDF)</translation>
    </message>
    <message>
        <source>降噪: 关</source>
        <translation>Redução de ruído: desligada</translation>
    </message>
    <message>
        <source>降噪: 轻 (-12dB 地板, 最保真)</source>
        <translation>Redução de ruído: leve (piso de -12dB, mais fiel)</translation>
    </message>
    <message>
        <source>降噪: 标准 (-18dB 地板)</source>
        <translation>Redução de ruído: padrão (piso de -18dB)</translation>
    </message>
    <message>
        <source>降噪: 强 (感知加权地板, 最深)</source>
        <translation>Redução de ruído: forte (piso com ponderação perceptual, mais profunda)</translation>
    </message>
    <message>
        <source>保留乐器泛音 (降噪时保住泛音与泛音列)</source>
        <translation>Preservar harmônicos dos instrumentos (mantém harmônicos e série harmônica na redução de ruído)</translation>
    </message>
    <message>
        <source>报告里加峰值 (--peak)</source>
        <translation>Incluir pico no relatório (--peak)</translation>
    </message>
    <message>
        <source>报告里加 RMS (--rms)</source>
        <translation>Incluir RMS no relatório (--rms)</translation>
    </message>
    <message>
        <source>报告里不要动态范围一节 (--no-dynamic-range)</source>
        <translation>Omitir a seção de faixa dinâmica do relatório (--no-dynamic-range)</translation>
    </message>
    <message>
        <source>输出模式</source>
        <translation>Modo de saída</translation>
    </message>
    <message>
        <source>带宽、加速与报告</source>
        <translation>Largura de banda, aceleração e relatório</translation>
    </message>
    <message>
        <source>降噪与报告内容</source>
        <translation>Redução de ruído e conteúdo do relatório</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「添加 PDF 报告」</source>
        <translation>A análise do piso de ruído só funciona com o relatório PDF ativado
Ative “Adicionar relatório PDF”</translation>
    </message>
    <message>
        <source>声道设置</source>
        <translation>Configuração de canais</translation>
    </message>
    <message>
        <source>强制原始声道数</source>
        <translation>Forçar número original de canais</translation>
    </message>
    <message>
        <source>四声道模式 (需重置声道数=4)</source>
        <translation>Modo quadrifônico (requer redefinir canais = 4)</translation>
    </message>
    <message>
        <source>添加环绕声道</source>
        <translation>Adicionar canais surround</translation>
    </message>
    <message>
        <source>声道交换</source>
        <translation>Trocar canais</translation>
    </message>
    <message>
        <source>重置声道数 (0=不动):</source>
        <translation>Redefinir número de canais (0=inalterado):</translation>
    </message>
    <message>
        <source>规则</source>
        <translation>Regras</translation>
    </message>
    <message>
        <source>「强制原始声道数」优先: 勾选后重置声道数、四声道模式和添加环绕声道都不发给引擎。

四声道模式需要重置声道数为 4; 勾选时会自动设为 4。

「声道交换」交换前两个声道, 与其它选项可同时使用。</source>
        <translation>“Forçar número original de canais” tem prioridade: quando marcado, redefinir número de canais, modo quadrifônico e adicionar canais surround não são enviados ao motor.

O modo quadrifônico exige redefinir o número de canais para 4; ao marcá-lo, o valor 4 é definido automaticamente.

“Trocar canais” inverte os dois primeiros canais e pode ser usado com as outras opções.</translation>
    </message>
    <message>
        <source>四声道模式: 重置声道数已自动设为 4</source>
        <translation>Modo quadrifônico: número de canais redefinido para 4</translation>
    </message>
    <message>
        <source>启用均衡器 (EQ)</source>
        <translation>Ativar equalizador (EQ)</translation>
    </message>
    <message>
        <source>添加频段</source>
        <translation>Adicionar banda</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>Remover selecionados</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>中心频率 (Hz)</source>
        <translation>Frequência central (Hz)</translation>
    </message>
    <message>
        <source>增益 (dB)</source>
        <translation>Ganho (dB)</translation>
    </message>
    <message>
        <source>带宽</source>
        <translation>Largura de banda</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>预览按 44.1 kHz 估算 — 引擎槽位: 首段低架, 满 10 段时末段高架</source>
        <translation>Prévia estimada a 44,1 kHz — posições do motor: primeira banda é shelf de graves; com as 10 bandas em uso, a última é shelf de agudos</translation>
    </message>
    <message>
        <source>启用均衡器 (--eq 频段 f,g,bw{单位})</source>
        <translation>Equalizador ativado (--eq banda f,g,bw{unidade})</translation>
    </message>
    <message>
        <source>禁用均衡器</source>
        <translation>Equalizador desativado</translation>
    </message>
    <message>
        <source>窗口法 (Window Method)</source>
        <translation>Método de janela (Window Method)</translation>
    </message>
    <message>
        <source>最小相位 (Min-Phase)</source>
        <translation>Fase mínima (Min-Phase)</translation>
    </message>
    <message>
        <source>应用预失真处理</source>
        <translation>Aplicar pré-distorção</translation>
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
        <translation>Parâmetros do método de janela</translation>
    </message>
    <message>
        <source>窗口类型:</source>
        <translation>Tipo de janela:</translation>
    </message>
    <message>
        <source>Remez 算法参数</source>
        <translation>Parâmetros do algoritmo Remez</translation>
    </message>
    <message>
        <source>最大迭代次数:</source>
        <translation>Máximo de iterações:</translation>
    </message>
    <message>
        <source>网格密度:</source>
        <translation>Densidade da grade:</translation>
    </message>
    <message>
        <source>停止带衰减 (A_stop)</source>
        <translation>Atenuação da banda de rejeição (A_stop)</translation>
    </message>
    <message>
        <source>0=不发</source>
        <translation>0=não enviar</translation>
    </message>
    <message>
        <source>停止带衰减 (dB):</source>
        <translation>Atenuação da banda de rejeição (dB):</translation>
    </message>
    <message>
        <source>过渡带 (截止频率)</source>
        <translation>Banda de transição (frequências de corte)</translation>
    </message>
    <message>
        <source>通带截止 (Hz):</source>
        <translation>Corte da banda passante (Hz):</translation>
    </message>
    <message>
        <source>阻带截止 (Hz):</source>
        <translation>Corte da banda de rejeição (Hz):</translation>
    </message>
    <message>
        <source>增益 (ABS)</source>
        <translation>Ganho (ABS)</translation>
    </message>
    <message>
        <source>绝对值增益:</source>
        <translation>Ganho absoluto:</translation>
    </message>
    <message>
        <source>HRTF 空间音频</source>
        <translation>Áudio espacial HRTF</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf)</source>
        <translation>Ativar áudio espacial HRTF (--hrtf)</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf &lt;mono|ms|stereo&gt;)</source>
        <translation>Áudio espacial HRTF ativado (--hrtf &lt;mono|ms|stereo&gt;)</translation>
    </message>
    <message>
        <source>禁用 HRTF 空间音频</source>
        <translation>Áudio espacial HRTF desativado</translation>
    </message>
    <message>
        <source>模式:</source>
        <translation>Modo:</translation>
    </message>
    <message>
        <source>干湿比 (dry/wet):</source>
        <translation>Mistura dry/wet:</translation>
    </message>
    <message>
        <source>侧向扩散比:</source>
        <translation>Difusão lateral:</translation>
    </message>
    <message>
        <source>深度 (+1前 / 0耳位 / -1后):</source>
        <translation>Profundidade (+1 frente / 0 altura dos ouvidos / -1 trás):</translation>
    </message>
    <message>
        <source>使用引擎内置 HRIR; 不提供自定义 .sofa 文件</source>
        <translation>Usa o HRIR interno do motor; arquivos .sofa personalizados não são suportados</translation>
    </message>
    <message>
        <source>环绕</source>
        <translation>Surround</translation>
    </message>
    <message>
        <source>启用环绕 (--surround)</source>
        <translation>Ativar surround (--surround)</translation>
    </message>
    <message>
        <source>启用环绕 (--surround delayMs mix side balance)</source>
        <translation>Surround ativado (--surround delayMs mix side balance)</translation>
    </message>
    <message>
        <source>禁用环绕</source>
        <translation>Surround desativado</translation>
    </message>
    <message>
        <source>侧向 (side)</source>
        <translation>Lateral (side)</translation>
    </message>
    <message>
        <source>延迟 (ms):</source>
        <translation>Atraso (ms):</translation>
    </message>
    <message>
        <source>混合 (%):</source>
        <translation>Mistura (%):</translation>
    </message>
    <message>
        <source>平衡 (-100~100, 0=不发):</source>
        <translation>Balanço (-100~100, 0=não enviar):</translation>
    </message>
    <message>
        <source>音调 (shelving)</source>
        <translation>Tonalidade (shelving)</translation>
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
        <translation>Pré-atenuação do EQ (dB):</translation>
    </message>
    <message>
        <source>启用 DSRE 数字频谱共振增强 (--dsre)</source>
        <translation>Ativar DSRE, realce digital de ressonância espectral (--dsre)</translation>
    </message>
    <message>
        <source>启用 DSRE (--dsre mix)</source>
        <translation>DSRE ativado (--dsre mix)</translation>
    </message>
    <message>
        <source>禁用 DSRE</source>
        <translation>DSRE desativado</translation>
    </message>
    <message>
        <source>干湿比 (0=dry, 1=全效果):</source>
        <translation>Dry/wet (0=dry, 1=efeito total):</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>AUTORUN 预设: %1</source>
        <translation>Preset AUTORUN: %1</translation>
    </message>
    <message>
        <source>✗ AUTORUN 预设无法使用: %1 (%2)</source>
        <translation>✗ Não foi possível usar o preset AUTORUN: %1 (%2)</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_PLAYTEST 指定的文件不存在: %1</source>
        <translation>Erro: o arquivo indicado em ZUVO_AI_PLAYTEST não existe: %1</translation>
    </message>
    <message>
        <source>设备名直接传给 ZuvoPlayer -dev</source>
        <translation>Nome do dispositivo passado diretamente ao ZuvoPlayer -dev</translation>
    </message>
    <message>
        <source>DAC 设备:</source>
        <translation>Dispositivo DAC:</translation>
    </message>
    <message>
        <source>流式播放模式 (-stream)</source>
        <translation>Reprodução em streaming (-stream)</translation>
    </message>
    <message>
        <source>播放源 = 上方「输出文件」 (镜像 GTK: 播放刚转换的 DSF/DFF)</source>
        <translation>Fonte de reprodução = “Arquivo de saída” acima (como na versão GTK: reproduz o DSF/DFF recém-convertido)</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>Parar reprodução</translation>
    </message>
    <message>
        <source>播放正在进行中, 请先停止当前播放</source>
        <translation>Já há uma reprodução em andamento; pare-a primeiro</translation>
    </message>
    <message>
        <source>错误: 播放文件不存在或无法读取: %1</source>
        <translation>Erro: o arquivo a reproduzir não existe ou não pode ser lido: %1</translation>
    </message>
    <message>
        <source>(未设置输出文件)</source>
        <translation>(arquivo de saída não definido)</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoPlayer — 请放在程序同目录或加入 PATH (或设 ZUVO_PLAYER_BIN)</source>
        <translation>Erro: ZuvoPlayer não encontrado — coloque-o na pasta do programa ou adicione-o ao PATH (ou defina ZUVO_PLAYER_BIN)</translation>
    </message>
    <message>
        <source>启动播放器: %1 %2</source>
        <translation>Iniciando o player: %1 %2</translation>
    </message>
    <message>
        <source>开始播放: %1</source>
        <translation>Reproduzindo: %1</translation>
    </message>
    <message>
        <source>试听会话: %1</source>
        <translation>Sessão de audição: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>no processo (chamada direta à biblioteca)</translation>
    </message>
    <message>
        <source>子进程</source>
        <translation>processo filho</translation>
    </message>
    <message>
        <source>错误: 无法启动播放器 — %1</source>
        <translation>Erro: não foi possível iniciar o player — %1</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>Reprodução concluída</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>Reprodução parada</translation>
    </message>
    <message>
        <source>播放器异常退出, 代码: %1</source>
        <translation>O player terminou de forma anormal, código: %1</translation>
    </message>
    <message>
        <source>当前没有播放任务</source>
        <translation>Nenhuma reprodução em andamento</translation>
    </message>
    <message>
        <source>正在停止播放器…</source>
        <translation>Parando o player…</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[controle] %1</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾 (本次在进程内运行, 无法强制结束)</source>
        <translation>O player não finalizou em %1 s (desta vez está rodando no processo; não é possível forçar o encerramento)</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾, 强制结束</source>
        <translation>O player não finalizou em %1 s; forçando o encerramento</translation>
    </message>
    <message>
        <source>仍无响应, 强制结束播放器</source>
        <translation>Ainda sem resposta; encerrando o player à força</translation>
    </message>
    <message>
        <source>检查更新…</source>
        <translation>Verificar atualizações…</translation>
    </message>
    <message>
        <source>关于/诊断…</source>
        <translation>Sobre / Diagnóstico…</translation>
    </message>
    <message>
        <source>看引擎版本 / 列音频设备 / 显示引擎帮助</source>
        <translation>Ver versão do motor / listar dispositivos de áudio / mostrar ajuda do motor</translation>
    </message>
    <message>
        <source>源码许可…</source>
        <translation>Licenças do código-fonte…</translation>
    </message>
    <message>
        <source>参考标准…</source>
        <translation>Normas de referência…</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_RECTEST 需要给一个输出 .dsf 路径</source>
        <translation>Erro: ZUVO_AI_RECTEST precisa de um caminho de saída .dsf</translation>
    </message>
    <message>
        <source>(引擎没有输出)</source>
        <translation>(o motor não produziu saída)</translation>
    </message>
    <message>
        <source>$ %1

%2

退出码 = %3</source>
        <translation>$ %1

%2

Código de saída = %3</translation>
    </message>
    <message>
        <source>本构建的引擎没有录音后端 (见录音页的状态行): 不能开始录音</source>
        <translation>O motor desta compilação não tem backend de gravação (veja a linha de status na aba Gravação): não é possível gravar</translation>
    </message>
    <message>
        <source>录音正在进行中</source>
        <translation>Gravação já em andamento</translation>
    </message>
    <message>
        <source>录音</source>
        <translation>Gravação</translation>
    </message>
    <message>
        <source>请先在上方「输出文件」设置录音保存路径</source>
        <translation>Defina primeiro o caminho da gravação em “Arquivo de saída” acima</translation>
    </message>
    <message>
        <source>录音输出文件必须是 .dsf 格式</source>
        <translation>O arquivo de saída da gravação deve ser .dsf</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoEngine (录音需要引擎录音支持)</source>
        <translation>Erro: ZuvoEngine não encontrado (a gravação requer suporte a gravação no motor)</translation>
    </message>
    <message>
        <source>录音命令: %1 %2</source>
        <translation>Comando de gravação: %1 %2</translation>
    </message>
    <message>
        <source>开始录音 → %1</source>
        <translation>Gravação iniciada → %1</translation>
    </message>
    <message>
        <source>提示: 停止时发送 'q' 让引擎优雅收尾 (先停止处理 PCM 再写 DSF)</source>
        <translation>Dica: ao parar, 'q' é enviado para o motor finalizar corretamente (para de processar PCM e depois grava o DSF)</translation>
    </message>
    <message>
        <source>录音中…</source>
        <translation>Gravando…</translation>
    </message>
    <message>
        <source>录音会话: %1</source>
        <translation>Sessão de gravação: %1</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 (录音) — %1</source>
        <translation>Erro: não foi possível iniciar o motor (gravação) — %1</translation>
    </message>
    <message>
        <source>当前没有录音任务</source>
        <translation>Nenhuma gravação em andamento</translation>
    </message>
    <message>
        <source>发送 'q' 至引擎 — 等待优雅收尾 (写 DSF 后自动退出)…</source>
        <translation>'q' enviado ao motor — aguardando finalização limpa (grava o DSF e sai)…</translation>
    </message>
    <message>
        <source>录音引擎已不在运行</source>
        <translation>O motor de gravação não está mais em execução</translation>
    </message>
    <message>
        <source>引擎未在 12s 内收尾 (本次在进程内进行, 无法强制结束)</source>
        <translation>O motor não finalizou em 12 s (esta execução é dentro do processo; não é possível forçar o encerramento)</translation>
    </message>
    <message>
        <source>引擎未在 12s 内退出, 强制终止</source>
        <translation>O motor não saiu em 12 s; forçando o encerramento</translation>
    </message>
    <message>
        <source>录音保存: %1</source>
        <translation>Gravação salva: %1</translation>
    </message>
    <message>
        <source>录音失败, 退出码: %1</source>
        <translation>Falha na gravação, código de saída: %1</translation>
    </message>
    <message>
        <source>录音进程异常退出 (崩溃/被终止)</source>
        <translation>O processo de gravação terminou de forma anormal (travou/foi encerrado)</translation>
    </message>
    <message>
        <source>录音后端: 可用 — %1</source>
        <translation>Backend de gravação: disponível — %1</translation>
    </message>
    <message>
        <source>录音后端: 不可用 — %1</source>
        <translation>Backend de gravação: indisponível — %1</translation>
    </message>
    <message>
        <source>%1 个输入设备(已列在日志里)</source>
        <translation>Dispositivos de entrada: %1 (listados no log)</translation>
    </message>
    <message>
        <source>引擎退出码 = %1</source>
        <translation>Código de saída do motor = %1</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请放在程序同目录、加入 PATH, 或设 ZUVO_ENGINE_BIN</source>
        <translation>ZuvoEngine não encontrado — coloque-o na pasta do programa, adicione-o ao PATH ou defina ZUVO_ENGINE_BIN</translation>
    </message>
    <message>
        <source>探测 30s 无响应, 已终止</source>
        <translation>A detecção não respondeu em 30 s; encerrada</translation>
    </message>
    <message>
        <source>关于 / 诊断</source>
        <translation>Sobre / Diagnóstico</translation>
    </message>
    <message>
        <source>ZuvoAudioTools — ZuvoEngine 的转码前端 (QProcess 子进程)
引擎路径: %1
注: 引擎的帮助/版本类子命令本来就以非 0 退出码收尾, 属既有行为。
探测是异步的: 点完可以继续操作界面, 结果到了会显示在下面。</source>
        <translation>ZuvoAudioTools — interface de conversão para o ZuvoEngine (processo filho QProcess)
Caminho do motor: %1
Obs.: os subcomandos de ajuda/versão do motor terminam com código de saída diferente de 0 por design; é o comportamento esperado.
A detecção é assíncrona: depois de clicar, você pode continuar usando a interface; o resultado aparecerá abaixo.</translation>
    </message>
    <message>
        <source>(未找到)</source>
        <translation>(não encontrado)</translation>
    </message>
    <message>
        <source>点下面任一按钮看引擎的回答</source>
        <translation>Clique em qualquer botão abaixo para ver a resposta do motor</translation>
    </message>
    <message>
        <source>引擎版本 (--version)</source>
        <translation>Versão do motor (--version)</translation>
    </message>
    <message>
        <source>列出音频设备 (--list-devices)</source>
        <translation>Listar dispositivos de áudio (--list-devices)</translation>
    </message>
    <message>
        <source>引擎帮助 (--help)</source>
        <translation>Ajuda do motor (--help)</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请把它放在程序同目录、加入 PATH, 或设置环境变量 ZUVO_ENGINE_BIN。</source>
        <translation>ZuvoEngine não encontrado — coloque-o na pasta do programa, adicione-o ao PATH ou defina a variável de ambiente ZUVO_ENGINE_BIN.</translation>
    </message>
    <message>
        <source>$ %1

运行中… (界面不冻, 可继续操作)
</source>
        <translation>$ %1

Executando… (a interface continua respondendo, você pode continuar usando)
</translation>
    </message>
    <message>
        <source>引擎启动失败: %1</source>
        <translation>Falha ao iniciar o motor: %1</translation>
    </message>
    <message>
        <source>
引擎 30s 无响应, 已终止 (不进设备, 不会影响到正在跑的任务)。</source>
        <translation>
O motor não respondeu por 30 s e foi encerrado (nenhum dispositivo foi aberto; as tarefas em andamento não são afetadas).</translation>
    </message>
    <message>
        <source>录音后端: 未检测</source>
        <translation>Backend de gravação: não verificado</translation>
    </message>
    <message>
        <source>检测录音支持 / 列出输入设备</source>
        <translation>Detectar suporte a gravação / listar dispositivos de entrada</translation>
    </message>
    <message>
        <source>录音设备 (空=默认):</source>
        <translation>Dispositivo de gravação (vazio=padrão):</translation>
    </message>
    <message>
        <source>声道数 (0=自动):</source>
        <translation>Canais (0=auto):</translation>
    </message>
    <message>
        <source>采样率 Hz (0=自动):</source>
        <translation>Taxa de amostragem Hz (0=auto):</translation>
    </message>
    <message>
        <source>时长秒 (0=手动):</source>
        <translation>Duração (s, 0=manual):</translation>
    </message>
    <message>
        <source>头空间 dB:</source>
        <translation>Headroom dB:</translation>
    </message>
    <message>
        <source>缓冲帧:</source>
        <translation>Buffer (frames):</translation>
    </message>
    <message>
        <source>直通模式 (--record-exclusive)</source>
        <translation>Modo exclusivo (--record-exclusive)</translation>
    </message>
    <message>
        <source>DSD 直录 (否则 PCM2PDM)</source>
        <translation>Gravação DSD direta (senão, PCM2PDM)</translation>
    </message>
    <message>
        <source>监听输入</source>
        <translation>Monitorar entrada</translation>
    </message>
    <message>
        <source>监听输出设备:</source>
        <translation>Dispositivo de monitoramento:</translation>
    </message>
    <message>
        <source>录音输出 = 上方「输出文件」(必须 .dsf); 停止时向引擎发送 'q' 优雅收尾 (镜像 GTK)</source>
        <translation>Saída da gravação = “Arquivo de saída” acima (deve ser .dsf); ao parar, 'q' é enviado ao motor para uma finalização limpa (como na versão GTK)</translation>
    </message>
    <message>
        <source>开始录音</source>
        <translation>Iniciar gravação</translation>
    </message>
    <message>
        <source>停止录音</source>
        <translation>Parar gravação</translation>
    </message>
</context>
<context>
    <name>PerTrackDialog</name>
    <message>
        <source>逐轨预设 (每个文件可各用一套)</source>
        <translation>Presets por faixa (um preset para cada arquivo)</translation>
    </message>
    <message>
        <source>每行给一个文件挑一套预设; 「(用当前参数)」= 跟随主面板。
预设只换编码/DSP 参数 —— 输出目录/输出格式与标签仍按主面板。</source>
        <translation>Escolha um preset para cada arquivo, uma linha por arquivo; “(usar parâmetros atuais)” = seguir o painel principal.
O preset só altera parâmetros de codificação/DSP — pasta/formato de saída e tags continuam vindo do painel principal.</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Preset</translation>
    </message>
    <message>
        <source>(用当前参数)</source>
        <translation>(usar parâmetros atuais)</translation>
    </message>
    <message>
        <source>(预设目录里没有预设 —— 先在上面「母带预设」里保存一套)</source>
        <translation>(não há presets na pasta de presets — primeiro salve um em “Presets de masterização” acima)</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
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
        <translation>Gerenciador de presets</translation>
    </message>
    <message>
        <source>预设为 JSON 文件 (与 GTK 版同目录同键名, 可互读)
写入目录: %1</source>
        <translation>Os presets são arquivos JSON (mesma pasta e nomes de chave da versão GTK, intercambiáveis)
Pasta de gravação: %1</translation>
    </message>
    <message>
        <source>加载选中</source>
        <translation>Carregar selecionado</translation>
    </message>
    <message>
        <source>删除选中</source>
        <translation>Excluir selecionado</translation>
    </message>
    <message>
        <source>保存当前为…</source>
        <translation>Salvar atual como…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Preset</translation>
    </message>
    <message>
        <source>无法读取: %1</source>
        <translation>Não foi possível ler: %1</translation>
    </message>
    <message>
        <source>预设文件解析失败: %1</source>
        <translation>Falha ao interpretar o arquivo de preset: %1</translation>
    </message>
    <message>
        <source>预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>O preset tem %1 campo(s) não suportado(s) nesta versão, ignorado(s)</translation>
    </message>
    <message>
        <source>已加载预设: %1</source>
        <translation>Preset carregado: %1</translation>
    </message>
    <message>
        <source>删除预设</source>
        <translation>Excluir preset</translation>
    </message>
    <message>
        <source>确定删除预设 %1 ?</source>
        <translation>Excluir o preset %1?</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>Falha ao excluir: %1</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>预设名称:</source>
        <translation>Nome do preset:</translation>
    </message>
    <message>
        <source>预设 %1 已存在, 覆盖?</source>
        <translation>O preset %1 já existe. Substituir?</translation>
    </message>
    <message>
        <source>预设名称无效: %1</source>
        <translation>Nome de preset inválido: %1</translation>
    </message>
    <message>
        <source>保存失败: %1</source>
        <translation>Falha ao salvar: %1</translation>
    </message>
    <message>
        <source>已保存预设: %1</source>
        <translation>Preset salvo: %1</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>名称为空</source>
        <translation>O nome está vazio</translation>
    </message>
    <message>
        <source>名称不能包含 %1 或控制字符</source>
        <translation>O nome não pode conter %1 nem caracteres de controle</translation>
    </message>
    <message>
        <source>名称不能以点结尾</source>
        <translation>O nome não pode terminar com ponto</translation>
    </message>
    <message>
        <source>名称 %1 是系统保留的设备名</source>
        <translation>O nome %1 é um nome de dispositivo reservado pelo sistema</translation>
    </message>
    <message>
        <source>文件过大 (%1 字节)</source>
        <translation>Arquivo grande demais (%1 bytes)</translation>
    </message>
    <message>
        <source>顶层不是 JSON 对象</source>
        <translation>O nível superior não é um objeto JSON</translation>
    </message>
    <message>
        <source>无法读取文件</source>
        <translation>Não foi possível ler o arquivo</translation>
    </message>
</context>
<context>
    <name>ReferencesGui</name>
    <message>
        <source>参考标准</source>
        <translation>Normas de referência</translation>
    </message>
</context>
<context>
    <name>RunControlsPanel</name>
    <message>
        <source>开始转换</source>
        <translation>Iniciar conversão</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>Limpar log</translation>
    </message>
    <message>
        <source>详细日志 (--verbose)</source>
        <translation>Log detalhado (--verbose)</translation>
    </message>
    <message>
        <source>保留引擎日志（退出不删）</source>
        <translation>Manter log do motor (não excluir ao sair)</translation>
    </message>
    <message>
        <source>关（默认）：引擎日志写在系统临时目录里的一次性目录中，退出即清；
开：写到 %1 下并保留，便于把日志发给厂商排障。</source>
        <translation>Desligado (padrão): o log do motor é gravado numa pasta descartável dentro da pasta temporária do sistema e apagado ao sair;
Ligado: é gravado em %1 e mantido, para que você possa enviá-lo ao fornecedor para diagnóstico.</translation>
    </message>
    <message>
        <source>子进程: ZuvoEngine</source>
        <translation>Processo filho: ZuvoEngine</translation>
    </message>
    <message>
        <source>GUI 通过 QProcess 调用同目录/环境变量指定的 ZuvoEngine</source>
        <translation>A GUI executa o ZuvoEngine via QProcess, a partir da pasta do programa ou do caminho definido na variável de ambiente</translation>
    </message>
</context>
<context>
    <name>ThirdPartyGui</name>
    <message>
        <source>源码许可</source>
        <translation>Licenças do código-fonte</translation>
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
        <translation>Idioma da interface. Ao mudar, o programa reinicia uma vez para trocar o idioma de toda a interface.</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>Seguir o sistema</translation>
    </message>
    <message>
        <source>界面语言已切换，程序将自动重启一次以生效。</source>
        <translation>Idioma da interface alterado. O programa será reiniciado automaticamente uma vez para aplicar a mudança.</translation>
    </message>
</context>
<context>
    <name>UpdateUi</name>
    <message>
        <source>正在检查更新…</source>
        <translation>Verificando atualizações…</translation>
    </message>
    <message>
        <source>检查更新</source>
        <translation>Verificar atualizações</translation>
    </message>
    <message>
        <source>已是最新版本 (%1)。服务器上的最新版本为 %2。</source>
        <translation>Você já tem a versão mais recente (%1). A versão mais recente no servidor é %2.</translation>
    </message>
    <message>
        <source>检查更新失败：</source>
        <translation>Falha ao verificar atualizações:</translation>
    </message>
    <message>
        <source>发现新版本 %1（当前 %2）。</source>
        <translation>Nova versão %1 disponível (atual: %2).</translation>
    </message>
    <message>
        <source>发布日期：%1</source>
        <translation>Data de lançamento: %1</translation>
    </message>
    <message>
        <source>更新说明：%1</source>
        <translation>Notas da versão: %1</translation>
    </message>
    <message>
        <source>发现新版本</source>
        <translation>Nova versão disponível</translation>
    </message>
    <message>
        <source>下载并更新</source>
        <translation>Baixar e atualizar</translation>
    </message>
    <message>
        <source>打开下载页</source>
        <translation>Abrir página de download</translation>
    </message>
    <message>
        <source>稍后</source>
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>正在下载更新…</source>
        <translation>Baixando a atualização…</translation>
    </message>
    <message>
        <source>下载更新</source>
        <translation>Baixar atualização</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>Atualização</translation>
    </message>
    <message>
        <source>程序现在退出。</source>
        <translation>O programa será fechado agora.</translation>
    </message>
    <message>
        <source>更新失败</source>
        <translation>Falha na atualização</translation>
    </message>
</context>
<context>
    <name>pv::PreviewDialog</name>
    <message>
        <source>预览: %1</source>
        <translation>Prévia: %1</translation>
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>%1 — %2 Hz / %3 ch, 预览 %4 s (上限 30 s)</source>
        <translation>%1 — %2 Hz / %3 ch, prévia de %4 s (máx. 30 s)</translation>
    </message>
    <message>
        <source>该格式 (%1) 预览待后续 — 目前仅支持 WAV (DSD 解码属后续里程碑)</source>
        <translation>A prévia deste formato (%1) ainda não está disponível — por enquanto só WAV (a decodificação DSD está prevista para uma etapa futura)</translation>
    </message>
    <message>
        <source>解码失败: %1</source>
        <translation>Falha na decodificação: %1</translation>
    </message>
</context>
</TS>