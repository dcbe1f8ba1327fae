<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="zh_CN">
<context>
    <name>ConversionQueue</name>
    <message>
        <source>引擎日志: %1</source>
        <translation>エンジンログ: %1</translation>
    </message>
    <message>
        <source>(交给引擎默认)</source>
        <translation>(エンジンの既定値)</translation>
    </message>
    <message>
        <source>待转换文件: %1 个</source>
        <translation>変換対象ファイル: %1 個</translation>
    </message>
    <message>
        <source>输出目录: %1 (命名模板: %2, 格式: %3)</source>
        <translation>出力フォルダー: %1 (命名テンプレート: %2、形式: %3)</translation>
    </message>
    <message>
        <source>✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)</source>
        <translation>✗ トラック別プリセットを解析できません。このファイルには現在のパラメーターを使用します: %1 (%2)</translation>
    </message>
    <message>
        <source>逐轨预设《%1》</source>
        <translation>トラック別プリセット「%1」</translation>
    </message>
    <message>
        <source>  预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>  プリセットにこのバージョンで未対応のフィールドが %1 個あり、無視しました</translation>
    </message>
    <message>
        <source>停止: 剩余 %1 个文件已跳过</source>
        <translation>停止: 残り %1 個のファイルをスキップしました</translation>
    </message>
    <message>
        <source>━━━ [%1/%2] 转换 %3</source>
        <translation>━━━ [%1/%2] %3 を変換中</translation>
    </message>
    <message>
        <source>━━━ 转换 %1</source>
        <translation>━━━ %1 を変換中</translation>
    </message>
    <message>
        <source>✗ 无法创建输出目录: %1</source>
        <translation>✗ 出力フォルダーを作成できません: %1</translation>
    </message>
    <message>
        <source>执行: %1 %2</source>
        <translation>実行: %1 %2</translation>
    </message>
    <message>
        <source>转换会话: %1</source>
        <translation>変換セッション: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>プロセス内 (ライブラリを直接呼び出し)</translation>
    </message>
    <message>
        <source>子进程(起 CLI)</source>
        <translation>子プロセス (CLI を起動)</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 — %1</source>
        <translation>エラー: エンジンを起動できません — %1</translation>
    </message>
    <message>
        <source>✓ %1 完成</source>
        <translation>✓ %1 完了</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (未完成的文件已删除)</source>
        <translation>■ 停止しました: %1 (未完成のファイルは削除済み)</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (文件保留, 可能不完整)</source>
        <translation>■ 停止しました: %1 (ファイルは保持、不完全な可能性あり)</translation>
    </message>
    <message>
        <source>■ 已停止(强制结束进程): %1</source>
        <translation>■ 停止しました (プロセスを強制終了): %1</translation>
    </message>
    <message>
        <source>✗ %1 异常退出 (崩溃/被终止)</source>
        <translation>✗ %1 が異常終了しました (クラッシュ/強制終了)</translation>
    </message>
    <message>
        <source>✗ 退出码: %1</source>
        <translation>✗ 終了コード: %1</translation>
    </message>
    <message>
        <source>── 引擎日志 (末尾 %1 行): %2 ──</source>
        <translation>── エンジンログ (末尾 %1 行): %2 ──</translation>
    </message>
    <message>
        <source>
全部完成: %1 OK</source>
        <translation>
すべて完了: %1 OK</translation>
    </message>
    <message>
        <source>
完成: %1 OK, %2 失败</source>
        <translation>
完了: %1 OK、%2 失敗</translation>
    </message>
    <message>
        <source>转换已停止</source>
        <translation>変換を停止しました</translation>
    </message>
    <message>
        <source>当前没有运行的进程</source>
        <translation>実行中のプロセスはありません</translation>
    </message>
    <message>
        <source>正在停止转换进程…</source>
        <translation>変換プロセスを停止しています…</translation>
    </message>
    <message>
        <source>终止当前转换进程…</source>
        <translation>現在の変換プロセスを終了します…</translation>
    </message>
    <message>
        <source>正在通知引擎停止…</source>
        <translation>エンジンに停止を通知しています…</translation>
    </message>
    <message>
        <source>引擎 2 秒内没有确认停止 —— 仍在收尾(可再点一次, 或关闭程序)。</source>
        <translation>エンジンが 2 秒以内に停止を確認しませんでした — まだ終了処理中です (もう一度クリックするか、プログラムを閉じてください)。</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[制御] %1</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但没有写出输出文件 %2</source>
        <translation>✗ %1: エンジンは完了を報告しましたが、出力ファイル %2 が書き出されていません</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件 %2 没有被写过 (还是旧的)</source>
        <translation>✗ %1: エンジンは完了を報告しましたが、出力ファイル %2 は書き込まれていません (古いままです)</translation>
    </message>
    <message>
        <source>文件是空的</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2), 已删除: %3</source>
        <translation>✗ %1: エンジンは完了を報告しましたが、出力ファイルを読み込めないため削除しました (%2): %3</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2): %3</source>
        <translation>✗ %1: エンジンは完了を報告しましたが、出力ファイルを読み込めません (%2): %3</translation>
    </message>
    <message>
        <source> …(这一行太长, 后面 %1 个字符没有显示)</source>
        <translation> …(行が長すぎるため、残りの %1 文字は表示されていません)</translation>
    </message>
    <message>
        <source>不是 DSF 文件</source>
        <translation>DSF ファイルではありません</translation>
    </message>
    <message>
        <source>DSF 头里的文件长度与实际不符 (文件不完整)</source>
        <translation>DSF ヘッダーのファイルサイズが実際と一致しません (ファイルが不完全です)</translation>
    </message>
    <message>
        <source>DSF 格式块不对</source>
        <translation>DSF のフォーマットチャンクが不正です</translation>
    </message>
    <message>
        <source>DSF 数据块不对</source>
        <translation>DSF のデータチャンクが不正です</translation>
    </message>
    <message>
        <source>DSF 元数据位置不对</source>
        <translation>DSF のメタデータ位置が不正です</translation>
    </message>
    <message>
        <source>不是 DSDIFF 文件</source>
        <translation>DSDIFF ファイルではありません</translation>
    </message>
    <message>
        <source>DSDIFF 头里的长度与实际不符 (文件不完整)</source>
        <translation>DSDIFF ヘッダーのサイズが実際と一致しません (ファイルが不完全です)</translation>
    </message>
    <message>
        <source>DSDIFF 块超出文件</source>
        <translation>DSDIFF のチャンクがファイルの範囲を超えています</translation>
    </message>
    <message>
        <source>DSDIFF 缺少 FVER/PROP/声音块</source>
        <translation>DSDIFF に FVER/PROP/サウンドチャンクがありません</translation>
    </message>
    <message>
        <source>不是 WAV 文件</source>
        <translation>WAV ファイルではありません</translation>
    </message>
    <message>
        <source>RF64 的 ds64 块不对</source>
        <translation>RF64 の ds64 チャンクが不正です</translation>
    </message>
    <message>
        <source>WAV 缺少格式块</source>
        <translation>WAV にフォーマットチャンクがありません</translation>
    </message>
    <message>
        <source>WAV 数据块超出文件 (文件不完整)</source>
        <translation>WAV のデータチャンクがファイルの範囲を超えています (ファイルが不完全です)</translation>
    </message>
    <message>
        <source>WAV 格式块不对</source>
        <translation>WAV のフォーマットチャンクが不正です</translation>
    </message>
    <message>
        <source>WAV 缺少数据块</source>
        <translation>WAV にデータチャンクがありません</translation>
    </message>
    <message>
        <source>不是 W64 文件</source>
        <translation>W64 ファイルではありません</translation>
    </message>
    <message>
        <source>W64 块超出文件 (文件不完整)</source>
        <translation>W64 のチャンクがファイルの範囲を超えています (ファイルが不完全です)</translation>
    </message>
    <message>
        <source>W64 缺少格式块</source>
        <translation>W64 にフォーマットチャンクがありません</translation>
    </message>
    <message>
        <source>W64 缺少数据块</source>
        <translation>W64 にデータチャンクがありません</translation>
    </message>
    <message>
        <source>不是 FLAC 文件</source>
        <translation>FLAC ファイルではありません</translation>
    </message>
    <message>
        <source>FLAC 缺少 STREAMINFO</source>
        <translation>FLAC に STREAMINFO がありません</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>開けません</translation>
    </message>
</context>
<context>
    <name>EngineSession</name>
    <message>
        <source>进程内会话起不来 (rc=%1)</source>
        <translation>プロセス内セッションを開始できません (rc=%1)</translation>
    </message>
</context>
<context>
    <name>FileListWidget</name>
    <message>
        <source>  ◇ 预设: %1</source>
        <translation>  ◇ プリセット: %1</translation>
    </message>
</context>
<context>
    <name>InputOutputPanel</name>
    <message>
        <source>添加文件…</source>
        <translation>ファイルを追加…</translation>
    </message>
    <message>
        <source>添加目录…</source>
        <translation>フォルダーを追加…</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>選択項目を削除</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>リストをクリア</translation>
    </message>
    <message>
        <source>支持拖入音频文件或文件夹</source>
        <translation>オーディオファイルやフォルダーをドラッグ＆ドロップできます</translation>
    </message>
    <message>
        <source>输出 .dsf / .dff 文件</source>
        <translation>.dsf / .dff ファイルを出力</translation>
    </message>
    <message>
        <source>浏览…</source>
        <translation>参照…</translation>
    </message>
    <message>
        <source>输出文件:</source>
        <translation>出力ファイル:</translation>
    </message>
    <message>
        <source>留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名</source>
        <translation>空欄 = 上の出力ファイルを使用。指定すると、命名テンプレートに従って入力ごとに出力ファイル名を生成します</translation>
    </message>
    <message>
        <source>批量输出: 所有输入写进这个目录, 文件名由下面的命名模板算</source>
        <translation>一括出力: すべての入力をこのフォルダーに書き出し、ファイル名は下の命名テンプレートで決まります</translation>
    </message>
    <message>
        <source>浏览目录…</source>
        <translation>フォルダーを参照…</translation>
    </message>
    <message>
        <source>输出目录:</source>
        <translation>出力フォルダー:</translation>
    </message>
    <message>
        <source>输出目录模式下每个文件的扩展名 (引擎按扩展名认格式)</source>
        <translation>出力フォルダーモードで各ファイルに付ける拡張子 (エンジンは拡張子で形式を判別します)</translation>
    </message>
    <message>
        <source>变量: {input} 输入文件名  {ext} 输出格式  {track} / {track:02} 队列序号  {artist} {title} 界面字段
留空 = {input}; 变量没有值时回退用输入文件名; 模板里可以带子目录</source>
        <translation>変数: {input} 入力ファイル名  {ext} 出力形式  {track} / {track:02} キュー番号  {artist} {title} 画面の入力欄
空欄 = {input}。変数に値がない場合は入力ファイル名を使用。テンプレートにサブフォルダーを含めることができます</translation>
    </message>
    <message>
        <source>输出格式:</source>
        <translation>出力形式:</translation>
    </message>
    <message>
        <source>命名模板:</source>
        <translation>命名テンプレート:</translation>
    </message>
    <message>
        <source>标签: DFF→COMT, DSF→ID3</source>
        <translation>タグ: DFF→COMT, DSF→ID3</translation>
    </message>
    <message>
        <source>0 = 不写曲目号 (引擎只接受 1..998)</source>
        <translation>0 = トラック番号を書き込まない (エンジンは 1..998 のみ受け付けます)</translation>
    </message>
    <message>
        <source>写入标签的说明文字</source>
        <translation>タグに書き込むコメント</translation>
    </message>
    <message>
        <source>从输入文件读取标签</source>
        <translation>入力ファイルからタグを読み込む</translation>
    </message>
    <message>
        <source>艺术家:</source>
        <translation>アーティスト:</translation>
    </message>
    <message>
        <source>标题:</source>
        <translation>タイトル:</translation>
    </message>
    <message>
        <source>专辑:</source>
        <translation>アルバム:</translation>
    </message>
    <message>
        <source>流派:</source>
        <translation>ジャンル:</translation>
    </message>
    <message>
        <source>年份:</source>
        <translation>年:</translation>
    </message>
    <message>
        <source>曲目号:</source>
        <translation>トラック番号:</translation>
    </message>
    <message>
        <source>备注:</source>
        <translation>コメント:</translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>%1 個のファイル</translation>
    </message>
    <message>
        <source>音频文件 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;所有文件 (*)</source>
        <translation>オーディオファイル (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>选择输入文件</source>
        <translation>入力ファイルを選択</translation>
    </message>
    <message>
        <source>选择目录</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>PCM 音频 (*.wav *.w64 *.flac);;所有文件 (*)</source>
        <translation>PCM オーディオ (*.wav *.w64 *.flac);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>DSDIFF (*.dff);;DSD Stream (*.dsf);;所有文件 (*)</source>
        <translation>DSDIFF (*.dff);;DSD Stream (*.dsf);;すべてのファイル (*)</translation>
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
        <translation>出力ファイルを選択</translation>
    </message>
    <message>
        <source>选择输出目录</source>
        <translation>出力フォルダーを選択</translation>
    </message>
    <message>
        <source>波形/频谱预览…</source>
        <translation>波形/スペクトログラムのプレビュー…</translation>
    </message>
    <message>
        <source>逐轨预设…</source>
        <translation>トラック別プリセット…</translation>
    </message>
    <message>
        <source>给队列里每个文件单独指定一套预设
预设只换编码/DSP 参数; 输出目录/输出格式与标签仍按面板</source>
        <translation>キュー内の各ファイルに個別のプリセットを指定します
プリセットが変更するのはエンコード/DSP パラメーターのみで、出力フォルダー/出力形式とタグはパネルの設定に従います</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>开始转换</source>
        <translation>変換開始</translation>
    </message>
    <message>
        <source>Zuvo Audio Suite — 音频转换工具</source>
        <translation>Zuvo Audio Suite — オーディオ変換ツール</translation>
    </message>
    <message>
        <source>设置输出文件: %1</source>
        <translation>出力ファイルを設定しました: %1</translation>
    </message>
    <message>
        <source>目录中没有音频文件</source>
        <translation>フォルダーにオーディオファイルがありません</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改文件列表</source>
        <translation>変換中はファイルリストを変更できません</translation>
    </message>
    <message>
        <source>找到 ZuvoEngine (音频转换引擎): %1</source>
        <translation>ZuvoEngine (オーディオ変換エンジン) が見つかりました: %1</translation>
    </message>
    <message>
        <source>警告: 未找到 ZuvoEngine — 转换功能不可用。请将其放在程序同目录、或加入 PATH。</source>
        <translation>警告: ZuvoEngine が見つかりません — 変換機能は使用できません。プログラムと同じフォルダーに置くか、PATH に追加してください。</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine</source>
        <translation>ZuvoEngine が見つかりません</translation>
    </message>
    <message>
        <source>已添加 %1 个文件</source>
        <translation>%1 個のファイルを追加しました</translation>
    </message>
    <message>
        <source>已跳过 %1 个重复文件</source>
        <translation>重複ファイル %1 個をスキップしました</translation>
    </message>
    <message>
        <source>转换完成</source>
        <translation>変換完了</translation>
    </message>
    <message>
        <source>转换 %1 个文件</source>
        <translation>%1 個のファイルを変換しました</translation>
    </message>
    <message>
        <source>转换 %1 个文件, %2 个失败</source>
        <translation>%1 個のファイルを変換しました (%2 個失敗)</translation>
    </message>
    <message>
        <source>打开输出目录</source>
        <translation>出力フォルダーを開く</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>AUTORUN 参数不完整</source>
        <translation>AUTORUN の引数が不完全です</translation>
    </message>
    <message>
        <source>AUTORUN: %1 个输入 → %2</source>
        <translation>AUTORUN: %1 個の入力 → %2</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>出力形式</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM) 的输出必须是 .wav 或 .flac</source>
        <translation>逆変換モード (PDM2PCM) の出力は .wav または .flac である必要があります</translation>
    </message>
    <message>
        <source>DXD 输出只支持 .wav / .w64 / .flac (引擎按扩展名认容器)</source>
        <translation>DXD 出力は .wav / .w64 / .flac のみ対応しています (エンジンは拡張子でコンテナーを判別します)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>错误: DST 压缩仅支持 DFF 格式输出
请把输出格式/扩展名改为 .dff 或禁用 DST 压缩</source>
        <translation>エラー: DST 圧縮は DFF 形式の出力のみ対応しています
出力形式/拡張子を .dff に変更するか、DST 圧縮を無効にしてください</translation>
    </message>
    <message>
        <source>输出文件必须是 .dsf 或 .dff 格式</source>
        <translation>出力ファイルは .dsf または .dff 形式である必要があります</translation>
    </message>
    <message>
        <source>转换中</source>
        <translation>変換中</translation>
    </message>
    <message>
        <source>已有转换任务正在进行中, 请等待完成。</source>
        <translation>別の変換が実行中です。完了するまでお待ちください。</translation>
    </message>
    <message>
        <source>输入文件</source>
        <translation>入力ファイル</translation>
    </message>
    <message>
        <source>请选择输入文件</source>
        <translation>入力ファイルを選択してください</translation>
    </message>
    <message>
        <source>元数据</source>
        <translation>メタデータ</translation>
    </message>
    <message>
        <source>输出 .dff 必须填「艺术家」和「标题」两个值
(它们是 DFF 的 COMT 标签; 必填项, 不填不开始转换)</source>
        <translation>.dff を出力するには「アーティスト」と「タイトル」の両方が必要です
(DFF の COMT タグになる必須項目で、未入力の場合は変換を開始しません)</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>タップ数</translation>
    </message>
    <message>
        <source>Taps 必须是偶数且不小于 512 (0 = 用引擎默认值)</source>
        <translation>タップ数は 512 以上の偶数にしてください (0 = エンジンの既定値)</translation>
    </message>
    <message>
        <source>过渡带</source>
        <translation>遷移帯域</translation>
    </message>
    <message>
        <source>阻带截止必须大于通带截止 (否则过渡带为零/负, 引擎会拒绝)</source>
        <translation>阻止域カットオフは通過域カットオフより高くしてください (そうでないと遷移帯域がゼロ/負になり、エンジンに拒否されます)</translation>
    </message>
    <message>
        <source>输出目录</source>
        <translation>出力フォルダー</translation>
    </message>
    <message>
        <source>无法创建输出目录:
%1</source>
        <translation>出力フォルダーを作成できません:
%1</translation>
    </message>
    <message>
        <source>输出文件</source>
        <translation>出力ファイル</translation>
    </message>
    <message>
        <source>请选择输出文件</source>
        <translation>出力ファイルを選択してください</translation>
    </message>
    <message>
        <source>噪声本底分析</source>
        <translation>ノイズフロア解析</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「PDF 报告」开关</source>
        <translation>ノイズフロア解析は PDF レポートを有効にした場合のみ機能します
「PDF レポート」をオンにしてください</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>イコライザー</translation>
    </message>
    <message>
        <source>启用了均衡器但没有有效频段
请添加至少一个频段 (中心频率 &gt; 0), 或禁用均衡器</source>
        <translation>イコライザーが有効ですが、有効なバンドがありません
バンドを 1 つ以上追加する (中心周波数 &gt; 0) か、イコライザーを無効にしてください</translation>
    </message>
    <message>
        <source>引擎缺失</source>
        <translation>エンジンがありません</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine。请将其放在程序同目录、或加入 PATH,
也可设置环境变量 ZUVO_ENGINE_BIN 指向其完整路径。</source>
        <translation>ZuvoEngine が見つかりません。プログラムと同じフォルダーに置くか PATH に追加するか、
環境変数 ZUVO_ENGINE_BIN にフルパスを設定してください。</translation>
    </message>
    <message>
        <source>均衡器未启用</source>
        <translation>イコライザーは無効です</translation>
    </message>
    <message>
        <source>基本参数</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>滤波</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>空间与音调</source>
        <translation>空間とトーン</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>启用 DST 压缩模式</source>
        <translation>DST 圧縮モードを有効にしました</translation>
    </message>
    <message>
        <source>禁用 DST 压缩模式</source>
        <translation>DST 圧縮モードを無効にしました</translation>
    </message>
    <message>
        <source>DST 压缩</source>
        <translation>DST 圧縮</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出格式将自动更改为 DFF</source>
        <translation>DST 圧縮は DFF 形式のみ対応しています
出力形式は自動的に DFF に変更されます</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出文件将自动更改为 DFF 格式</source>
        <translation>DST 圧縮は DFF 形式のみ対応しています
出力ファイルは自動的に DFF 形式に変更されます</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改参数</source>
        <translation>変換中はパラメーターを変更できません</translation>
    </message>
    <message>
        <source>已加载母带预设: %1</source>
        <translation>マスタリングプリセットを読み込みました: %1</translation>
    </message>
    <message>
        <source>均衡器: %1 行无效 (需中心频率&gt;0) 已被跳过</source>
        <translation>イコライザー: 無効な行 %1 個をスキップしました (中心周波数は 0 より大きい必要があります)</translation>
    </message>
    <message>
        <source>注意: 无法向引擎查询它不支持的选项, 直接开始转换</source>
        <translation>注意: エンジンの未対応オプションを確認できなかったため、そのまま変換を開始します</translation>
    </message>
    <message>
        <source>转换未开始: 当前引擎构建不支持这些已选择的选项: %1</source>
        <translation>変換は開始されませんでした: 現在のエンジンビルドは選択された次のオプションに対応していません: %1</translation>
    </message>
    <message>
        <source>引擎不支持的选项</source>
        <translation>エンジン未対応のオプション</translation>
    </message>
    <message>
        <source>当前引擎构建不支持下列已选择的选项, 转换不会开始:
%1

请在参数页关闭它们后再开始 (预设里可以保留)。</source>
        <translation>現在のエンジンビルドは選択された次のオプションに対応していないため、変換を開始しません:
%1

パラメーターページでこれらをオフにしてから開始してください (プリセットには残しておけます)。</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改预设</source>
        <translation>変換中はプリセットを変更できません</translation>
    </message>
    <message>
        <source>转换进行中, 不能改逐轨预设。</source>
        <translation>変換中はトラック別プリセットを変更できません。</translation>
    </message>
    <message>
        <source>请先添加输入文件</source>
        <translation>先に入力ファイルを追加してください</translation>
    </message>
    <message>
        <source>逐轨预设: 已全部改回「用当前参数」</source>
        <translation>トラック別プリセット: すべて「現在のパラメーターを使用」に戻しました</translation>
    </message>
    <message>
        <source>逐轨预设: %1 个文件各用一套</source>
        <translation>トラック別プリセット: %1 個のファイルが個別のプリセットを使用</translation>
    </message>
    <message>
        <source>转换进行中, 不能预览</source>
        <translation>変換中はプレビューできません</translation>
    </message>
    <message>
        <source>请先添加文件</source>
        <translation>先にファイルを追加してください</translation>
    </message>
    <message>
        <source>没有可预览的文件</source>
        <translation>プレビューできるファイルがありません</translation>
    </message>
    <message>
        <source>单环 (NS, --order 9)</source>
        <translation>シングルループ (NS, --order 9)</translation>
    </message>
    <message>
        <source>古典</source>
        <translation>クラシック</translation>
    </message>
    <message>
        <source>古典: DSD-256, 131072 taps, 高带宽</source>
        <translation>クラシック: DSD-256, 131072 taps, 高帯域幅</translation>
    </message>
    <message>
        <source>流行</source>
        <translation>ポップ</translation>
    </message>
    <message>
        <source>流行: DSD-128, 65536 taps</source>
        <translation>ポップ: DSD-128, 65536 taps</translation>
    </message>
    <message>
        <source>爵士</source>
        <translation>ジャズ</translation>
    </message>
    <message>
        <source>爵士: DSD-128, 65536 taps</source>
        <translation>ジャズ: DSD-128, 65536 taps</translation>
    </message>
    <message>
        <source>DSD 采样率:</source>
        <translation>DSD サンプルレート:</translation>
    </message>
    <message>
        <source>Taps 数 (0=引擎默认):</source>
        <translation>タップ数 (0=エンジン既定値):</translation>
    </message>
    <message>
        <source>SOS cascade + error feedback, NS15 profile (引擎默认): 实测带内噪声比单环 NS9 低 11.4 dB</source>
        <translation>SOS カスケード + エラーフィードバック、NS15 プロファイル (エンジン既定値): 帯域内ノイズの実測値はシングルループ NS9 より 11.4 dB 低い</translation>
    </message>
    <message>
        <source>Chebyshev 多项式压缩 (可与 MASH 叠加)</source>
        <translation>Chebyshev 多項式圧縮 (MASH と併用可)</translation>
    </message>
    <message>
        <source>调制器:</source>
        <translation>モジュレーター:</translation>
    </message>
    <message>
        <source>母带预设:</source>
        <translation>マスタリングプリセット:</translation>
    </message>
    <message>
        <source>预设管理器…</source>
        <translation>プリセットマネージャー…</translation>
    </message>
    <message>
        <source>DST 压缩 (仅 .dff 输出)</source>
        <translation>DST 圧縮 (.dff 出力のみ)</translation>
    </message>
    <message>
        <source>DXD 输出 (高解析 PCM)</source>
        <translation>DXD 出力 (ハイレゾ PCM)</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM)</source>
        <translation>逆変換モード (PDM2PCM)</translation>
    </message>
    <message>
        <source>输入 DSD(DSF/DFF), 输出 PCM/WAV —— 与 PCM→PDM 无关</source>
        <translation>DSD (DSF/DFF) を入力し PCM/WAV を出力 — PCM→PDM とは無関係</translation>
    </message>
    <message>
        <source>DST 压缩等级 (0=关闭):</source>
        <translation>DST 圧縮レベル (0=オフ):</translation>
    </message>
    <message>
        <source>高带宽模式</source>
        <translation>高帯域幅モード</translation>
    </message>
    <message>
        <source>OpenCL 加速 (GPU)</source>
        <translation>OpenCL アクセラレーション (GPU)</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 OpenCL 支持</source>
        <translation>現在のエンジンビルドは OpenCL 対応なしでコンパイルされています</translation>
    </message>
    <message>
        <source>添加 PDF 报告</source>
        <translation>PDF レポートを追加</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 PDF 报告 (需要 rsvg+cairo)</source>
        <translation>現在のエンジンビルドは PDF レポートに対応していません (rsvg+cairo が必要)</translation>
    </message>
    <message>
        <source>只影响 PDF 报告内容, 不改音频比特流 (实测: 开关它 dsf 逐字节相同)</source>
        <translation>PDF レポートの内容だけに影響し、音声ビットストリームは変えません (実測: オン/オフで dsf はバイト単位で同一)</translation>
    </message>
    <message>
        <source>分析报告 (--report)</source>
        <translation>解析レポート (--report)</translation>
    </message>
    <message>
        <source>噪声本底分析 (需 PDF 报告)</source>
        <translation>ノイズフロア解析 (PDF レポートが必要)</translation>
    </message>
    <message>
        <source>降噪: 关</source>
        <translation>ノイズ除去: オフ</translation>
    </message>
    <message>
        <source>降噪: 轻 (-12dB 地板, 最保真)</source>
        <translation>ノイズ除去: 弱 (-12dB フロア、最も忠実)</translation>
    </message>
    <message>
        <source>降噪: 标准 (-18dB 地板)</source>
        <translation>ノイズ除去: 標準 (-18dB フロア)</translation>
    </message>
    <message>
        <source>降噪: 强 (感知加权地板, 最深)</source>
        <translation>ノイズ除去: 強 (聴感補正フロア、最も深い)</translation>
    </message>
    <message>
        <source>保留乐器泛音 (降噪时保住泛音与泛音列)</source>
        <translation>楽器の倍音を保持 (ノイズ除去時に倍音と倍音列を保護)</translation>
    </message>
    <message>
        <source>报告里加峰值 (--peak)</source>
        <translation>レポートにピークを追加 (--peak)</translation>
    </message>
    <message>
        <source>报告里加 RMS (--rms)</source>
        <translation>レポートに RMS を追加 (--rms)</translation>
    </message>
    <message>
        <source>报告里不要动态范围一节 (--no-dynamic-range)</source>
        <translation>レポートからダイナミックレンジの節を除外 (--no-dynamic-range)</translation>
    </message>
    <message>
        <source>输出模式</source>
        <translation>出力モード</translation>
    </message>
    <message>
        <source>带宽、加速与报告</source>
        <translation>帯域幅・アクセラレーション・レポート</translation>
    </message>
    <message>
        <source>降噪与报告内容</source>
        <translation>ノイズ除去とレポート内容</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「添加 PDF 报告」</source>
        <translation>ノイズフロア解析は PDF レポートを有効にした場合のみ機能します
「PDF レポートを追加」をオンにしてください</translation>
    </message>
    <message>
        <source>声道设置</source>
        <translation>チャンネル設定</translation>
    </message>
    <message>
        <source>强制原始声道数</source>
        <translation>元のチャンネル数を強制</translation>
    </message>
    <message>
        <source>四声道模式 (需重置声道数=4)</source>
        <translation>4 チャンネルモード (チャンネル数の再設定=4 が必要)</translation>
    </message>
    <message>
        <source>添加环绕声道</source>
        <translation>サラウンドチャンネルを追加</translation>
    </message>
    <message>
        <source>声道交换</source>
        <translation>チャンネルを入れ替え</translation>
    </message>
    <message>
        <source>重置声道数 (0=不动):</source>
        <translation>チャンネル数を再設定 (0=変更なし):</translation>
    </message>
    <message>
        <source>规则</source>
        <translation>ルール</translation>
    </message>
    <message>
        <source>「强制原始声道数」优先: 勾选后重置声道数、四声道模式和添加环绕声道都不发给引擎。

四声道模式需要重置声道数为 4; 勾选时会自动设为 4。

「声道交换」交换前两个声道, 与其它选项可同时使用。</source>
        <translation>「元のチャンネル数を強制」が優先されます: オンにすると、チャンネル数の再設定、4 チャンネルモード、サラウンドチャンネルの追加はエンジンに渡されません。

4 チャンネルモードにはチャンネル数の再設定 = 4 が必要です。オンにすると自動的に 4 に設定されます。

「チャンネルを入れ替え」は最初の 2 チャンネルを入れ替え、他のオプションと併用できます。</translation>
    </message>
    <message>
        <source>四声道模式: 重置声道数已自动设为 4</source>
        <translation>4 チャンネルモード: チャンネル数の再設定を自動的に 4 にしました</translation>
    </message>
    <message>
        <source>启用均衡器 (EQ)</source>
        <translation>イコライザーを有効化 (EQ)</translation>
    </message>
    <message>
        <source>添加频段</source>
        <translation>バンドを追加</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>選択項目を削除</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>中心频率 (Hz)</source>
        <translation>中心周波数 (Hz)</translation>
    </message>
    <message>
        <source>增益 (dB)</source>
        <translation>ゲイン (dB)</translation>
    </message>
    <message>
        <source>带宽</source>
        <translation>帯域幅</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>预览按 44.1 kHz 估算 — 引擎槽位: 首段低架, 满 10 段时末段高架</source>
        <translation>プレビューは 44.1 kHz で推定 — エンジンのスロット: 最初のバンドはローシェルフ、10 バンドすべて使用時は最後のバンドがハイシェルフ</translation>
    </message>
    <message>
        <source>启用均衡器 (--eq 频段 f,g,bw{单位})</source>
        <translation>イコライザー有効 (--eq バンド f,g,bw{単位})</translation>
    </message>
    <message>
        <source>禁用均衡器</source>
        <translation>イコライザー無効</translation>
    </message>
    <message>
        <source>窗口法 (Window Method)</source>
        <translation>窓関数法 (Window Method)</translation>
    </message>
    <message>
        <source>最小相位 (Min-Phase)</source>
        <translation>最小位相 (Min-Phase)</translation>
    </message>
    <message>
        <source>应用预失真处理</source>
        <translation>プリディストーション処理を適用</translation>
    </message>
    <message>
        <source>算法:</source>
        <translation>アルゴリズム:</translation>
    </message>
    <message>
        <source>滤波类型:</source>
        <translation>フィルタータイプ:</translation>
    </message>
    <message>
        <source>窗口法参数</source>
        <translation>窓関数法パラメーター</translation>
    </message>
    <message>
        <source>窗口类型:</source>
        <translation>窓関数の種類:</translation>
    </message>
    <message>
        <source>Remez 算法参数</source>
        <translation>Remez アルゴリズムのパラメーター</translation>
    </message>
    <message>
        <source>最大迭代次数:</source>
        <translation>最大反復回数:</translation>
    </message>
    <message>
        <source>网格密度:</source>
        <translation>グリッド密度:</translation>
    </message>
    <message>
        <source>停止带衰减 (A_stop)</source>
        <translation>阻止域減衰量 (A_stop)</translation>
    </message>
    <message>
        <source>0=不发</source>
        <translation>0=送らない</translation>
    </message>
    <message>
        <source>停止带衰减 (dB):</source>
        <translation>阻止域減衰量 (dB):</translation>
    </message>
    <message>
        <source>过渡带 (截止频率)</source>
        <translation>遷移帯域 (カットオフ周波数)</translation>
    </message>
    <message>
        <source>通带截止 (Hz):</source>
        <translation>通過域カットオフ (Hz):</translation>
    </message>
    <message>
        <source>阻带截止 (Hz):</source>
        <translation>阻止域カットオフ (Hz):</translation>
    </message>
    <message>
        <source>增益 (ABS)</source>
        <translation>ゲイン (ABS)</translation>
    </message>
    <message>
        <source>绝对值增益:</source>
        <translation>絶対値ゲイン:</translation>
    </message>
    <message>
        <source>HRTF 空间音频</source>
        <translation>HRTF 空間オーディオ</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf)</source>
        <translation>HRTF 空間オーディオを有効化 (--hrtf)</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf &lt;mono|ms|stereo&gt;)</source>
        <translation>HRTF 空間オーディオ有効 (--hrtf &lt;mono|ms|stereo&gt;)</translation>
    </message>
    <message>
        <source>禁用 HRTF 空间音频</source>
        <translation>HRTF 空間オーディオ無効</translation>
    </message>
    <message>
        <source>模式:</source>
        <translation>モード:</translation>
    </message>
    <message>
        <source>干湿比 (dry/wet):</source>
        <translation>ドライ/ウェット比:</translation>
    </message>
    <message>
        <source>侧向扩散比:</source>
        <translation>サイド拡散比:</translation>
    </message>
    <message>
        <source>深度 (+1前 / 0耳位 / -1后):</source>
        <translation>奥行き (+1 前方 / 0 耳の位置 / -1 後方):</translation>
    </message>
    <message>
        <source>使用引擎内置 HRIR; 不提供自定义 .sofa 文件</source>
        <translation>エンジン内蔵の HRIR を使用。カスタム .sofa ファイルには対応していません</translation>
    </message>
    <message>
        <source>环绕</source>
        <translation>サラウンド</translation>
    </message>
    <message>
        <source>启用环绕 (--surround)</source>
        <translation>サラウンドを有効化 (--surround)</translation>
    </message>
    <message>
        <source>启用环绕 (--surround delayMs mix side balance)</source>
        <translation>サラウンド有効 (--surround delayMs mix side balance)</translation>
    </message>
    <message>
        <source>禁用环绕</source>
        <translation>サラウンド無効</translation>
    </message>
    <message>
        <source>侧向 (side)</source>
        <translation>サイド (side)</translation>
    </message>
    <message>
        <source>延迟 (ms):</source>
        <translation>ディレイ (ms):</translation>
    </message>
    <message>
        <source>混合 (%):</source>
        <translation>ミックス (%):</translation>
    </message>
    <message>
        <source>平衡 (-100~100, 0=不发):</source>
        <translation>バランス (-100~100、0=送らない):</translation>
    </message>
    <message>
        <source>音调 (shelving)</source>
        <translation>トーン (シェルビング)</translation>
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
        <translation>EQ プリカット (dB):</translation>
    </message>
    <message>
        <source>启用 DSRE 数字频谱共振增强 (--dsre)</source>
        <translation>DSRE デジタルスペクトル共鳴エンハンスを有効化 (--dsre)</translation>
    </message>
    <message>
        <source>启用 DSRE (--dsre mix)</source>
        <translation>DSRE 有効 (--dsre mix)</translation>
    </message>
    <message>
        <source>禁用 DSRE</source>
        <translation>DSRE 無効</translation>
    </message>
    <message>
        <source>干湿比 (0=dry, 1=全效果):</source>
        <translation>ドライ/ウェット (0=dry、1=フルエフェクト):</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>AUTORUN 预设: %1</source>
        <translation>AUTORUN プリセット: %1</translation>
    </message>
    <message>
        <source>✗ AUTORUN 预设无法使用: %1 (%2)</source>
        <translation>✗ AUTORUN プリセットを使用できません: %1 (%2)</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_PLAYTEST 指定的文件不存在: %1</source>
        <translation>エラー: ZUVO_AI_PLAYTEST で指定されたファイルが存在しません: %1</translation>
    </message>
    <message>
        <source>设备名直接传给 ZuvoPlayer -dev</source>
        <translation>デバイス名をそのまま ZuvoPlayer の -dev に渡します</translation>
    </message>
    <message>
        <source>DAC 设备:</source>
        <translation>DAC デバイス:</translation>
    </message>
    <message>
        <source>流式播放模式 (-stream)</source>
        <translation>ストリーミング再生モード (-stream)</translation>
    </message>
    <message>
        <source>播放源 = 上方「输出文件」 (镜像 GTK: 播放刚转换的 DSF/DFF)</source>
        <translation>再生ソース = 上の「出力ファイル」 (GTK 版と同じ: 変換したばかりの DSF/DFF を再生)</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>再生を停止</translation>
    </message>
    <message>
        <source>播放正在进行中, 请先停止当前播放</source>
        <translation>再生中です。先に現在の再生を停止してください</translation>
    </message>
    <message>
        <source>错误: 播放文件不存在或无法读取: %1</source>
        <translation>エラー: 再生するファイルが存在しないか、読み込めません: %1</translation>
    </message>
    <message>
        <source>(未设置输出文件)</source>
        <translation>(出力ファイルが未設定)</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoPlayer — 请放在程序同目录或加入 PATH (或设 ZUVO_PLAYER_BIN)</source>
        <translation>エラー: ZuvoPlayer が見つかりません — プログラムと同じフォルダーに置くか PATH に追加してください (または ZUVO_PLAYER_BIN を設定)</translation>
    </message>
    <message>
        <source>启动播放器: %1 %2</source>
        <translation>プレーヤーを起動: %1 %2</translation>
    </message>
    <message>
        <source>开始播放: %1</source>
        <translation>再生開始: %1</translation>
    </message>
    <message>
        <source>试听会话: %1</source>
        <translation>試聴セッション: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>プロセス内 (ライブラリを直接呼び出し)</translation>
    </message>
    <message>
        <source>子进程</source>
        <translation>子プロセス</translation>
    </message>
    <message>
        <source>错误: 无法启动播放器 — %1</source>
        <translation>エラー: プレーヤーを起動できません — %1</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>再生が完了しました</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>再生を停止しました</translation>
    </message>
    <message>
        <source>播放器异常退出, 代码: %1</source>
        <translation>プレーヤーが異常終了しました。コード: %1</translation>
    </message>
    <message>
        <source>当前没有播放任务</source>
        <translation>再生中のタスクはありません</translation>
    </message>
    <message>
        <source>正在停止播放器…</source>
        <translation>プレーヤーを停止しています…</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[制御] %1</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾 (本次在进程内运行, 无法强制结束)</source>
        <translation>プレーヤーが %1 秒以内に終了処理を完了しませんでした (今回はプロセス内で実行中のため、強制終了できません)</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾, 强制结束</source>
        <translation>プレーヤーが %1 秒以内に終了処理を完了しなかったため、強制終了します</translation>
    </message>
    <message>
        <source>仍无响应, 强制结束播放器</source>
        <translation>まだ応答がないため、プレーヤーを強制終了します</translation>
    </message>
    <message>
        <source>检查更新…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>关于/诊断…</source>
        <translation>バージョン情報/診断…</translation>
    </message>
    <message>
        <source>看引擎版本 / 列音频设备 / 显示引擎帮助</source>
        <translation>エンジンのバージョン表示 / オーディオデバイス一覧 / エンジンのヘルプ表示</translation>
    </message>
    <message>
        <source>源码许可…</source>
        <translation>ソースライセンス…</translation>
    </message>
    <message>
        <source>参考标准…</source>
        <translation>参考規格…</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_RECTEST 需要给一个输出 .dsf 路径</source>
        <translation>エラー: ZUVO_AI_RECTEST には出力 .dsf のパスを指定する必要があります</translation>
    </message>
    <message>
        <source>(引擎没有输出)</source>
        <translation>(エンジンの出力なし)</translation>
    </message>
    <message>
        <source>$ %1

%2

退出码 = %3</source>
        <translation>$ %1

%2

終了コード = %3</translation>
    </message>
    <message>
        <source>本构建的引擎没有录音后端 (见录音页的状态行): 不能开始录音</source>
        <translation>このビルドのエンジンには録音バックエンドがありません (録音タブのステータス行を参照): 録音を開始できません</translation>
    </message>
    <message>
        <source>录音正在进行中</source>
        <translation>録音はすでに進行中です</translation>
    </message>
    <message>
        <source>录音</source>
        <translation>録音</translation>
    </message>
    <message>
        <source>请先在上方「输出文件」设置录音保存路径</source>
        <translation>先に上の「出力ファイル」で録音の保存先を設定してください</translation>
    </message>
    <message>
        <source>录音输出文件必须是 .dsf 格式</source>
        <translation>録音の出力ファイルは .dsf 形式である必要があります</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoEngine (录音需要引擎录音支持)</source>
        <translation>エラー: ZuvoEngine が見つかりません (録音にはエンジンの録音機能が必要です)</translation>
    </message>
    <message>
        <source>录音命令: %1 %2</source>
        <translation>録音コマンド: %1 %2</translation>
    </message>
    <message>
        <source>开始录音 → %1</source>
        <translation>録音開始 → %1</translation>
    </message>
    <message>
        <source>提示: 停止时发送 'q' 让引擎优雅收尾 (先停止处理 PCM 再写 DSF)</source>
        <translation>ヒント: 停止時に 'q' を送信してエンジンを正常に終了させます (PCM の処理を止めてから DSF を書き込みます)</translation>
    </message>
    <message>
        <source>录音中…</source>
        <translation>録音中…</translation>
    </message>
    <message>
        <source>录音会话: %1</source>
        <translation>録音セッション: %1</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 (录音) — %1</source>
        <translation>エラー: エンジンを起動できません (録音) — %1</translation>
    </message>
    <message>
        <source>当前没有录音任务</source>
        <translation>実行中の録音はありません</translation>
    </message>
    <message>
        <source>发送 'q' 至引擎 — 等待优雅收尾 (写 DSF 后自动退出)…</source>
        <translation>エンジンに 'q' を送信しました — 正常終了を待っています (DSF の書き込み後に自動終了)…</translation>
    </message>
    <message>
        <source>录音引擎已不在运行</source>
        <translation>録音エンジンはすでに動作していません</translation>
    </message>
    <message>
        <source>引擎未在 12s 内收尾 (本次在进程内进行, 无法强制结束)</source>
        <translation>エンジンが 12 s 以内に終了処理を完了しませんでした (今回はプロセス内で実行中のため強制終了できません)</translation>
    </message>
    <message>
        <source>引擎未在 12s 内退出, 强制终止</source>
        <translation>エンジンが 12 s 以内に終了しなかったため、強制終了します</translation>
    </message>
    <message>
        <source>录音保存: %1</source>
        <translation>録音を保存しました: %1</translation>
    </message>
    <message>
        <source>录音失败, 退出码: %1</source>
        <translation>録音に失敗しました。終了コード: %1</translation>
    </message>
    <message>
        <source>录音进程异常退出 (崩溃/被终止)</source>
        <translation>録音プロセスが異常終了しました (クラッシュ/強制終了)</translation>
    </message>
    <message>
        <source>录音后端: 可用 — %1</source>
        <translation>録音バックエンド: 使用可能 — %1</translation>
    </message>
    <message>
        <source>录音后端: 不可用 — %1</source>
        <translation>録音バックエンド: 使用不可 — %1</translation>
    </message>
    <message>
        <source>%1 个输入设备(已列在日志里)</source>
        <translation>入力デバイス %1 台 (ログに一覧表示)</translation>
    </message>
    <message>
        <source>引擎退出码 = %1</source>
        <translation>エンジン終了コード = %1</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请放在程序同目录、加入 PATH, 或设 ZUVO_ENGINE_BIN</source>
        <translation>ZuvoEngine が見つかりません — プログラムと同じフォルダーに置くか、PATH に追加するか、ZUVO_ENGINE_BIN を設定してください</translation>
    </message>
    <message>
        <source>探测 30s 无响应, 已终止</source>
        <translation>検出が 30 s 以内に応答しなかったため終了しました</translation>
    </message>
    <message>
        <source>关于 / 诊断</source>
        <translation>バージョン情報 / 診断</translation>
    </message>
    <message>
        <source>ZuvoAudioTools — ZuvoEngine 的转码前端 (QProcess 子进程)
引擎路径: %1
注: 引擎的帮助/版本类子命令本来就以非 0 退出码收尾, 属既有行为。
探测是异步的: 点完可以继续操作界面, 结果到了会显示在下面。</source>
        <translation>ZuvoAudioTools — ZuvoEngine の変換フロントエンド (QProcess 子プロセス)
エンジンのパス: %1
注: エンジンのヘルプ/バージョン系サブコマンドは仕様上 0 以外の終了コードで終了します (既存の動作です)。
検出は非同期です: クリック後も操作を続けられ、結果が届くと下に表示されます。</translation>
    </message>
    <message>
        <source>(未找到)</source>
        <translation>(見つかりません)</translation>
    </message>
    <message>
        <source>点下面任一按钮看引擎的回答</source>
        <translation>下のいずれかのボタンをクリックするとエンジンの応答を表示します</translation>
    </message>
    <message>
        <source>引擎版本 (--version)</source>
        <translation>エンジンのバージョン (--version)</translation>
    </message>
    <message>
        <source>列出音频设备 (--list-devices)</source>
        <translation>オーディオデバイス一覧 (--list-devices)</translation>
    </message>
    <message>
        <source>引擎帮助 (--help)</source>
        <translation>エンジンのヘルプ (--help)</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请把它放在程序同目录、加入 PATH, 或设置环境变量 ZUVO_ENGINE_BIN。</source>
        <translation>ZuvoEngine が見つかりません — プログラムと同じフォルダーに置くか、PATH に追加するか、環境変数 ZUVO_ENGINE_BIN を設定してください。</translation>
    </message>
    <message>
        <source>$ %1

运行中… (界面不冻, 可继续操作)
</source>
        <translation>$ %1

実行中… (画面は固まりません。操作を続けられます)
</translation>
    </message>
    <message>
        <source>引擎启动失败: %1</source>
        <translation>エンジンの起動に失敗しました: %1</translation>
    </message>
    <message>
        <source>
引擎 30s 无响应, 已终止 (不进设备, 不会影响到正在跑的任务)。</source>
        <translation>
エンジンが 30 s 応答しなかったため終了しました (デバイスは開いていないため、実行中のタスクには影響しません)。</translation>
    </message>
    <message>
        <source>录音后端: 未检测</source>
        <translation>録音バックエンド: 未確認</translation>
    </message>
    <message>
        <source>检测录音支持 / 列出输入设备</source>
        <translation>録音サポートを検出 / 入力デバイス一覧</translation>
    </message>
    <message>
        <source>录音设备 (空=默认):</source>
        <translation>録音デバイス (空欄=既定):</translation>
    </message>
    <message>
        <source>声道数 (0=自动):</source>
        <translation>チャンネル数 (0=自動):</translation>
    </message>
    <message>
        <source>采样率 Hz (0=自动):</source>
        <translation>サンプルレート Hz (0=自動):</translation>
    </message>
    <message>
        <source>时长秒 (0=手动):</source>
        <translation>録音時間 秒 (0=手動):</translation>
    </message>
    <message>
        <source>头空间 dB:</source>
        <translation>ヘッドルーム dB:</translation>
    </message>
    <message>
        <source>缓冲帧:</source>
        <translation>バッファ (フレーム):</translation>
    </message>
    <message>
        <source>直通模式 (--record-exclusive)</source>
        <translation>排他モード (--record-exclusive)</translation>
    </message>
    <message>
        <source>DSD 直录 (否则 PCM2PDM)</source>
        <translation>DSD 直接録音 (オフ時は PCM2PDM)</translation>
    </message>
    <message>
        <source>监听输入</source>
        <translation>入力をモニター</translation>
    </message>
    <message>
        <source>监听输出设备:</source>
        <translation>モニター出力デバイス:</translation>
    </message>
    <message>
        <source>录音输出 = 上方「输出文件」(必须 .dsf); 停止时向引擎发送 'q' 优雅收尾 (镜像 GTK)</source>
        <translation>録音の出力先 = 上の「出力ファイル」(.dsf 必須)。停止時はエンジンに 'q' を送信して正常に終了させます (GTK 版と同じ)</translation>
    </message>
    <message>
        <source>开始录音</source>
        <translation>録音開始</translation>
    </message>
    <message>
        <source>停止录音</source>
        <translation>録音停止</translation>
    </message>
</context>
<context>
    <name>PerTrackDialog</name>
    <message>
        <source>逐轨预设 (每个文件可各用一套)</source>
        <translation>トラック別プリセット (ファイルごとに個別設定可)</translation>
    </message>
    <message>
        <source>每行给一个文件挑一套预设; 「(用当前参数)」= 跟随主面板。
预设只换编码/DSP 参数 —— 输出目录/输出格式与标签仍按主面板。</source>
        <translation>1 行ごとに 1 ファイルのプリセットを選択します。「(現在のパラメーターを使用)」= メインパネルに従う。
プリセットが変更するのはエンコード/DSP パラメーターのみ — 出力フォルダー/出力形式とタグはメインパネルの設定に従います。</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>(用当前参数)</source>
        <translation>(現在のパラメーターを使用)</translation>
    </message>
    <message>
        <source>(预设目录里没有预设 —— 先在上面「母带预设」里保存一套)</source>
        <translation>(プリセットフォルダーにプリセットがありません — まず上の「マスタリングプリセット」で保存してください)</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>PresetManagerDialog</name>
    <message>
        <source>预设管理器</source>
        <translation>プリセットマネージャー</translation>
    </message>
    <message>
        <source>预设为 JSON 文件 (与 GTK 版同目录同键名, 可互读)
写入目录: %1</source>
        <translation>プリセットは JSON ファイルです (GTK 版と同じフォルダー・キー名で相互に読み込み可能)
保存先フォルダー: %1</translation>
    </message>
    <message>
        <source>加载选中</source>
        <translation>選択項目を読み込む</translation>
    </message>
    <message>
        <source>删除选中</source>
        <translation>選択項目を削除</translation>
    </message>
    <message>
        <source>保存当前为…</source>
        <translation>現在の設定を別名で保存…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>无法读取: %1</source>
        <translation>読み込めません: %1</translation>
    </message>
    <message>
        <source>预设文件解析失败: %1</source>
        <translation>プリセットファイルの解析に失敗しました: %1</translation>
    </message>
    <message>
        <source>预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>プリセットにこのバージョンで未対応のフィールドが %1 個あり、無視しました</translation>
    </message>
    <message>
        <source>已加载预设: %1</source>
        <translation>プリセットを読み込みました: %1</translation>
    </message>
    <message>
        <source>删除预设</source>
        <translation>プリセットを削除</translation>
    </message>
    <message>
        <source>确定删除预设 %1 ?</source>
        <translation>プリセット %1 を削除しますか?</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>削除に失敗しました: %1</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>预设名称:</source>
        <translation>プリセット名:</translation>
    </message>
    <message>
        <source>预设 %1 已存在, 覆盖?</source>
        <translation>プリセット %1 は既に存在します。上書きしますか?</translation>
    </message>
    <message>
        <source>预设名称无效: %1</source>
        <translation>無効なプリセット名です: %1</translation>
    </message>
    <message>
        <source>保存失败: %1</source>
        <translation>保存に失敗しました: %1</translation>
    </message>
    <message>
        <source>已保存预设: %1</source>
        <translation>プリセットを保存しました: %1</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>名称为空</source>
        <translation>名前が空です</translation>
    </message>
    <message>
        <source>名称不能包含 %1 或控制字符</source>
        <translation>名前に %1 や制御文字は使用できません</translation>
    </message>
    <message>
        <source>名称不能以点结尾</source>
        <translation>名前の末尾をピリオドにすることはできません</translation>
    </message>
    <message>
        <source>名称 %1 是系统保留的设备名</source>
        <translation>名前 %1 はシステムで予約されたデバイス名です</translation>
    </message>
    <message>
        <source>文件过大 (%1 字节)</source>
        <translation>ファイルが大きすぎます (%1 バイト)</translation>
    </message>
    <message>
        <source>顶层不是 JSON 对象</source>
        <translation>最上位が JSON オブジェクトではありません</translation>
    </message>
    <message>
        <source>无法读取文件</source>
        <translation>ファイルを読み込めません</translation>
    </message>
</context>
<context>
    <name>ReferencesGui</name>
    <message>
        <source>参考标准</source>
        <translation>参考規格</translation>
    </message>
</context>
<context>
    <name>RunControlsPanel</name>
    <message>
        <source>开始转换</source>
        <translation>変換開始</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>ログをクリア</translation>
    </message>
    <message>
        <source>详细日志 (--verbose)</source>
        <translation>詳細ログ (--verbose)</translation>
    </message>
    <message>
        <source>保留引擎日志（退出不删）</source>
        <translation>エンジンログを保持 (終了時に削除しない)</translation>
    </message>
    <message>
        <source>关（默认）：引擎日志写在系统临时目录里的一次性目录中，退出即清；
开：写到 %1 下并保留，便于把日志发给厂商排障。</source>
        <translation>オフ (既定): エンジンログはシステムの一時フォルダー内の使い捨てフォルダーに書き込まれ、終了時に削除されます。
オン: %1 以下に書き込んで保持するため、トラブルシューティング用にログをベンダーへ送れます。</translation>
    </message>
    <message>
        <source>子进程: ZuvoEngine</source>
        <translation>子プロセス: ZuvoEngine</translation>
    </message>
    <message>
        <source>GUI 通过 QProcess 调用同目录/环境变量指定的 ZuvoEngine</source>
        <translation>GUI は QProcess 経由で、同じフォルダーまたは環境変数で指定された ZuvoEngine を呼び出します</translation>
    </message>
</context>
<context>
    <name>ThirdPartyGui</name>
    <message>
        <source>源码许可</source>
        <translation>ソースライセンス</translation>
    </message>
</context>
<context>
    <name>UiLangRow</name>
    <message>
        <source>语言</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>界面语言。切换后程序会重启一次以便整套界面换语言。</source>
        <translation>表示言語。切り替えると、画面全体の言語を変更するためにプログラムが一度再起動します。</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>システムに従う</translation>
    </message>
    <message>
        <source>界面语言已切换，程序将自动重启一次以生效。</source>
        <translation>表示言語を切り替えました。反映するためにプログラムが自動的に一度再起動します。</translation>
    </message>
</context>
<context>
    <name>UpdateUi</name>
    <message>
        <source>正在检查更新…</source>
        <translation>アップデートを確認しています…</translation>
    </message>
    <message>
        <source>检查更新</source>
        <translation>アップデートの確認</translation>
    </message>
    <message>
        <source>已是最新版本 (%1)。服务器上的最新版本为 %2。</source>
        <translation>最新バージョンです (%1)。サーバー上の最新バージョンは %2 です。</translation>
    </message>
    <message>
        <source>检查更新失败：</source>
        <translation>アップデートの確認に失敗しました:</translation>
    </message>
    <message>
        <source>发现新版本 %1（当前 %2）。</source>
        <translation>新しいバージョン %1 があります (現在 %2)。</translation>
    </message>
    <message>
        <source>发布日期：%1</source>
        <translation>リリース日: %1</translation>
    </message>
    <message>
        <source>更新说明：%1</source>
        <translation>リリースノート: %1</translation>
    </message>
    <message>
        <source>发现新版本</source>
        <translation>新しいバージョンがあります</translation>
    </message>
    <message>
        <source>下载并更新</source>
        <translation>ダウンロードして更新</translation>
    </message>
    <message>
        <source>打开下载页</source>
        <translation>ダウンロードページを開く</translation>
    </message>
    <message>
        <source>稍后</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>正在下载更新…</source>
        <translation>アップデートをダウンロードしています…</translation>
    </message>
    <message>
        <source>下载更新</source>
        <translation>アップデートのダウンロード</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>程序现在退出。</source>
        <translation>プログラムを終了します。</translation>
    </message>
    <message>
        <source>更新失败</source>
        <translation>アップデートに失敗しました</translation>
    </message>
</context>
<context>
    <name>pv::PreviewDialog</name>
    <message>
        <source>预览: %1</source>
        <translation>プレビュー: %1</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>スペクトログラム</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>%1 — %2 Hz / %3 ch, 预览 %4 s (上限 30 s)</source>
        <translation>%1 — %2 Hz / %3 ch、プレビュー %4 s (上限 30 s)</translation>
    </message>
    <message>
        <source>该格式 (%1) 预览待后续 — 目前仅支持 WAV (DSD 解码属后续里程碑)</source>
        <translation>この形式 (%1) のプレビューは今後対応予定です — 現在は WAV のみ対応 (DSD デコードは今後のマイルストーン)</translation>
    </message>
    <message>
        <source>解码失败: %1</source>
        <translation>デコードに失敗しました: %1</translation>
    </message>
</context>
</TS>