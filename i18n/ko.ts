<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="zh_CN">
<context>
    <name>ConversionQueue</name>
    <message>
        <source>引擎日志: %1</source>
        <translation>엔진 로그: %1</translation>
    </message>
    <message>
        <source>(交给引擎默认)</source>
        <translation>(엔진 기본값)</translation>
    </message>
    <message>
        <source>待转换文件: %1 个</source>
        <translation>변환할 파일: %1개</translation>
    </message>
    <message>
        <source>输出目录: %1 (命名模板: %2, 格式: %3)</source>
        <translation>출력 폴더: %1 (이름 템플릿: %2, 형식: %3)</translation>
    </message>
    <message>
        <source>✗ 逐轨预设无法解析, 本文件改用当前参数: %1 (%2)</source>
        <translation>✗ 트랙별 프리셋을 해석할 수 없어 이 파일에는 현재 매개변수를 사용합니다: %1 (%2)</translation>
    </message>
    <message>
        <source>逐轨预设《%1》</source>
        <translation>트랙별 프리셋 ‘%1’</translation>
    </message>
    <message>
        <source>  预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>  프리셋에 이 버전에서 지원하지 않는 필드 %1개가 있어 무시했습니다</translation>
    </message>
    <message>
        <source>停止: 剩余 %1 个文件已跳过</source>
        <translation>중지: 남은 파일 %1개를 건너뛰었습니다</translation>
    </message>
    <message>
        <source>━━━ [%1/%2] 转换 %3</source>
        <translation>━━━ [%1/%2] %3 변환 중</translation>
    </message>
    <message>
        <source>━━━ 转换 %1</source>
        <translation>━━━ %1 변환 중</translation>
    </message>
    <message>
        <source>✗ 无法创建输出目录: %1</source>
        <translation>✗ 출력 폴더를 만들 수 없음: %1</translation>
    </message>
    <message>
        <source>执行: %1 %2</source>
        <translation>실행: %1 %2</translation>
    </message>
    <message>
        <source>转换会话: %1</source>
        <translation>변환 세션: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>프로세스 내 (라이브러리 직접 호출)</translation>
    </message>
    <message>
        <source>子进程(起 CLI)</source>
        <translation>하위 프로세스 (CLI 실행)</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 — %1</source>
        <translation>오류: 엔진을 시작할 수 없음 — %1</translation>
    </message>
    <message>
        <source>✓ %1 完成</source>
        <translation>✓ %1 완료</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (未完成的文件已删除)</source>
        <translation>■ 중지됨: %1 (미완성 파일 삭제됨)</translation>
    </message>
    <message>
        <source>■ 已停止: %1 (文件保留, 可能不完整)</source>
        <translation>■ 중지됨: %1 (파일 유지됨, 불완전할 수 있음)</translation>
    </message>
    <message>
        <source>■ 已停止(强制结束进程): %1</source>
        <translation>■ 중지됨 (프로세스 강제 종료): %1</translation>
    </message>
    <message>
        <source>✗ %1 异常退出 (崩溃/被终止)</source>
        <translation>✗ %1 비정상 종료 (충돌/강제 종료)</translation>
    </message>
    <message>
        <source>✗ 退出码: %1</source>
        <translation>✗ 종료 코드: %1</translation>
    </message>
    <message>
        <source>── 引擎日志 (末尾 %1 行): %2 ──</source>
        <translation>── 엔진 로그 (마지막 %1줄): %2 ──</translation>
    </message>
    <message>
        <source>
全部完成: %1 OK</source>
        <translation>
모두 완료: %1 OK</translation>
    </message>
    <message>
        <source>
完成: %1 OK, %2 失败</source>
        <translation>
완료: %1 OK, %2 실패</translation>
    </message>
    <message>
        <source>转换已停止</source>
        <translation>변환이 중지되었습니다</translation>
    </message>
    <message>
        <source>当前没有运行的进程</source>
        <translation>실행 중인 프로세스가 없습니다</translation>
    </message>
    <message>
        <source>正在停止转换进程…</source>
        <translation>변환 프로세스를 중지하는 중…</translation>
    </message>
    <message>
        <source>终止当前转换进程…</source>
        <translation>현재 변환 프로세스를 종료합니다…</translation>
    </message>
    <message>
        <source>正在通知引擎停止…</source>
        <translation>엔진에 중지를 요청하는 중…</translation>
    </message>
    <message>
        <source>引擎 2 秒内没有确认停止 —— 仍在收尾(可再点一次, 或关闭程序)。</source>
        <translation>엔진이 2초 안에 중지를 확인하지 않았습니다 — 아직 마무리 중입니다 (다시 클릭하거나 프로그램을 닫으세요).</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[제어] %1</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但没有写出输出文件 %2</source>
        <translation>✗ %1: 엔진이 완료를 보고했지만 출력 파일이 생성되지 않았습니다: %2</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件 %2 没有被写过 (还是旧的)</source>
        <translation>✗ %1: 엔진이 완료를 보고했지만 출력 파일이 새로 기록되지 않았습니다 (이전 파일 그대로): %2</translation>
    </message>
    <message>
        <source>文件是空的</source>
        <translation>파일이 비어 있음</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2), 已删除: %3</source>
        <translation>✗ %1: 엔진이 완료를 보고했지만 출력 파일을 읽을 수 없어 삭제했습니다 (%2): %3</translation>
    </message>
    <message>
        <source>✗ %1: 引擎报告完成, 但输出文件读不出来 (%2): %3</source>
        <translation>✗ %1: 엔진이 완료를 보고했지만 출력 파일을 읽을 수 없습니다 (%2): %3</translation>
    </message>
    <message>
        <source> …(这一行太长, 后面 %1 个字符没有显示)</source>
        <translation> …(줄이 너무 길어 나머지 %1자는 표시되지 않음)</translation>
    </message>
    <message>
        <source>不是 DSF 文件</source>
        <translation>DSF 파일이 아님</translation>
    </message>
    <message>
        <source>DSF 头里的文件长度与实际不符 (文件不完整)</source>
        <translation>DSF 헤더의 파일 길이가 실제와 다름 (파일 불완전)</translation>
    </message>
    <message>
        <source>DSF 格式块不对</source>
        <translation>DSF 포맷 청크가 잘못됨</translation>
    </message>
    <message>
        <source>DSF 数据块不对</source>
        <translation>DSF 데이터 청크가 잘못됨</translation>
    </message>
    <message>
        <source>DSF 元数据位置不对</source>
        <translation>DSF 메타데이터 위치가 잘못됨</translation>
    </message>
    <message>
        <source>不是 DSDIFF 文件</source>
        <translation>DSDIFF 파일이 아님</translation>
    </message>
    <message>
        <source>DSDIFF 头里的长度与实际不符 (文件不完整)</source>
        <translation>DSDIFF 헤더의 길이가 실제와 다름 (파일 불완전)</translation>
    </message>
    <message>
        <source>DSDIFF 块超出文件</source>
        <translation>DSDIFF 청크가 파일 범위를 벗어남</translation>
    </message>
    <message>
        <source>DSDIFF 缺少 FVER/PROP/声音块</source>
        <translation>DSDIFF에 FVER/PROP/사운드 청크가 없음</translation>
    </message>
    <message>
        <source>不是 WAV 文件</source>
        <translation>WAV 파일이 아님</translation>
    </message>
    <message>
        <source>RF64 的 ds64 块不对</source>
        <translation>RF64의 ds64 청크가 잘못됨</translation>
    </message>
    <message>
        <source>WAV 缺少格式块</source>
        <translation>WAV에 포맷 청크가 없음</translation>
    </message>
    <message>
        <source>WAV 数据块超出文件 (文件不完整)</source>
        <translation>WAV 데이터 청크가 파일 범위를 벗어남 (파일 불완전)</translation>
    </message>
    <message>
        <source>WAV 格式块不对</source>
        <translation>WAV 포맷 청크가 잘못됨</translation>
    </message>
    <message>
        <source>WAV 缺少数据块</source>
        <translation>WAV에 데이터 청크가 없음</translation>
    </message>
    <message>
        <source>不是 W64 文件</source>
        <translation>W64 파일이 아님</translation>
    </message>
    <message>
        <source>W64 块超出文件 (文件不完整)</source>
        <translation>W64 청크가 파일 범위를 벗어남 (파일 불완전)</translation>
    </message>
    <message>
        <source>W64 缺少格式块</source>
        <translation>W64에 포맷 청크가 없음</translation>
    </message>
    <message>
        <source>W64 缺少数据块</source>
        <translation>W64에 데이터 청크가 없음</translation>
    </message>
    <message>
        <source>不是 FLAC 文件</source>
        <translation>FLAC 파일이 아님</translation>
    </message>
    <message>
        <source>FLAC 缺少 STREAMINFO</source>
        <translation>FLAC에 STREAMINFO가 없음</translation>
    </message>
    <message>
        <source>无法打开</source>
        <translation>열 수 없음</translation>
    </message>
</context>
<context>
    <name>EngineSession</name>
    <message>
        <source>进程内会话起不来 (rc=%1)</source>
        <translation>프로세스 내 세션을 시작할 수 없음 (rc=%1)</translation>
    </message>
</context>
<context>
    <name>FileListWidget</name>
    <message>
        <source>  ◇ 预设: %1</source>
        <translation>  ◇ 프리셋: %1</translation>
    </message>
</context>
<context>
    <name>InputOutputPanel</name>
    <message>
        <source>添加文件…</source>
        <translation>파일 추가…</translation>
    </message>
    <message>
        <source>添加目录…</source>
        <translation>폴더 추가…</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>선택 항목 제거</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>목록 지우기</translation>
    </message>
    <message>
        <source>支持拖入音频文件或文件夹</source>
        <translation>오디오 파일이나 폴더를 끌어다 놓을 수 있습니다</translation>
    </message>
    <message>
        <source>输出 .dsf / .dff 文件</source>
        <translation>.dsf / .dff 파일 출력</translation>
    </message>
    <message>
        <source>浏览…</source>
        <translation>찾아보기…</translation>
    </message>
    <message>
        <source>输出文件:</source>
        <translation>출력 파일:</translation>
    </message>
    <message>
        <source>留空 = 用上面的输出文件; 填了就按命名模板给每个输入算输出文件名</source>
        <translation>비워 두면 위의 출력 파일 사용, 입력하면 이름 템플릿에 따라 입력마다 출력 파일 이름을 만듭니다</translation>
    </message>
    <message>
        <source>批量输出: 所有输入写进这个目录, 文件名由下面的命名模板算</source>
        <translation>일괄 출력: 모든 입력을 이 폴더에 저장하며, 파일 이름은 아래 이름 템플릿으로 정해집니다</translation>
    </message>
    <message>
        <source>浏览目录…</source>
        <translation>폴더 찾아보기…</translation>
    </message>
    <message>
        <source>输出目录:</source>
        <translation>출력 폴더:</translation>
    </message>
    <message>
        <source>输出目录模式下每个文件的扩展名 (引擎按扩展名认格式)</source>
        <translation>출력 폴더 모드에서 각 파일에 사용할 확장자 (엔진은 확장자로 형식을 판별)</translation>
    </message>
    <message>
        <source>变量: {input} 输入文件名  {ext} 输出格式  {track} / {track:02} 队列序号  {artist} {title} 界面字段
留空 = {input}; 变量没有值时回退用输入文件名; 模板里可以带子目录</source>
        <translation>변수: {input} 입력 파일 이름  {ext} 출력 형식  {track} / {track:02} 대기열 번호  {artist} {title} 화면 입력란
비워 두면 = {input}; 변수에 값이 없으면 입력 파일 이름 사용; 템플릿에 하위 폴더 포함 가능</translation>
    </message>
    <message>
        <source>输出格式:</source>
        <translation>출력 형식:</translation>
    </message>
    <message>
        <source>命名模板:</source>
        <translation>이름 템플릿:</translation>
    </message>
    <message>
        <source>标签: DFF→COMT, DSF→ID3</source>
        <translation>태그: DFF→COMT, DSF→ID3</translation>
    </message>
    <message>
        <source>0 = 不写曲目号 (引擎只接受 1..998)</source>
        <translation>0 = 트랙 번호 기록 안 함 (엔진은 1..998만 허용)</translation>
    </message>
    <message>
        <source>写入标签的说明文字</source>
        <translation>태그에 기록할 설명</translation>
    </message>
    <message>
        <source>从输入文件读取标签</source>
        <translation>입력 파일에서 태그 읽기</translation>
    </message>
    <message>
        <source>艺术家:</source>
        <translation>아티스트:</translation>
    </message>
    <message>
        <source>标题:</source>
        <translation>제목:</translation>
    </message>
    <message>
        <source>专辑:</source>
        <translation>앨범:</translation>
    </message>
    <message>
        <source>流派:</source>
        <translation>장르:</translation>
    </message>
    <message>
        <source>年份:</source>
        <translation>연도:</translation>
    </message>
    <message>
        <source>曲目号:</source>
        <translation>트랙 번호:</translation>
    </message>
    <message>
        <source>备注:</source>
        <translation>설명:</translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>파일 %1개</translation>
    </message>
    <message>
        <source>音频文件 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;所有文件 (*)</source>
        <translation>오디오 파일 (*.wav *.flac *.aiff *.aif *.m4a *.mp4 *.caf *.ape *.wv *.tta *.dsf *.dff *.dst *.wsd *.iso);;모든 파일 (*)</translation>
    </message>
    <message>
        <source>选择输入文件</source>
        <translation>입력 파일 선택</translation>
    </message>
    <message>
        <source>选择目录</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>PCM 音频 (*.wav *.w64 *.flac);;所有文件 (*)</source>
        <translation>PCM 오디오 (*.wav *.w64 *.flac);;모든 파일 (*)</translation>
    </message>
    <message>
        <source>DSDIFF (*.dff);;DSD Stream (*.dsf);;所有文件 (*)</source>
        <translation>DSDIFF (*.dff);;DSD Stream (*.dsf);;모든 파일 (*)</translation>
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
        <translation>출력 파일 선택</translation>
    </message>
    <message>
        <source>选择输出目录</source>
        <translation>출력 폴더 선택</translation>
    </message>
    <message>
        <source>波形/频谱预览…</source>
        <translation>파형/스펙트로그램 미리 보기…</translation>
    </message>
    <message>
        <source>逐轨预设…</source>
        <translation>트랙별 프리셋…</translation>
    </message>
    <message>
        <source>给队列里每个文件单独指定一套预设
预设只换编码/DSP 参数; 输出目录/输出格式与标签仍按面板</source>
        <translation>대기열의 각 파일에 개별 프리셋 지정
프리셋은 인코딩/DSP 매개변수만 바꾸며, 출력 폴더/출력 형식과 태그는 패널 설정을 따릅니다</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>开始转换</source>
        <translation>변환 시작</translation>
    </message>
    <message>
        <source>Zuvo Audio Suite — 音频转换工具</source>
        <translation>Zuvo Audio Suite — 오디오 변환 도구</translation>
    </message>
    <message>
        <source>设置输出文件: %1</source>
        <translation>출력 파일 설정됨: %1</translation>
    </message>
    <message>
        <source>目录中没有音频文件</source>
        <translation>폴더에 오디오 파일이 없습니다</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改文件列表</source>
        <translation>변환 중에는 파일 목록을 수정할 수 없습니다</translation>
    </message>
    <message>
        <source>找到 ZuvoEngine (音频转换引擎): %1</source>
        <translation>ZuvoEngine (오디오 변환 엔진) 찾음: %1</translation>
    </message>
    <message>
        <source>警告: 未找到 ZuvoEngine — 转换功能不可用。请将其放在程序同目录、或加入 PATH。</source>
        <translation>경고: ZuvoEngine을 찾을 수 없음 — 변환 기능을 사용할 수 없습니다. 프로그램과 같은 폴더에 두거나 PATH에 추가하세요.</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine</source>
        <translation>ZuvoEngine을 찾을 수 없음</translation>
    </message>
    <message>
        <source>已添加 %1 个文件</source>
        <translation>파일 %1개 추가됨</translation>
    </message>
    <message>
        <source>已跳过 %1 个重复文件</source>
        <translation>중복 파일 %1개 건너뜀</translation>
    </message>
    <message>
        <source>转换完成</source>
        <translation>변환 완료</translation>
    </message>
    <message>
        <source>转换 %1 个文件</source>
        <translation>파일 %1개 변환됨</translation>
    </message>
    <message>
        <source>转换 %1 个文件, %2 个失败</source>
        <translation>파일 %1개 변환됨, %2개 실패</translation>
    </message>
    <message>
        <source>打开输出目录</source>
        <translation>출력 폴더 열기</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>AUTORUN 参数不完整</source>
        <translation>AUTORUN 인수가 불완전합니다</translation>
    </message>
    <message>
        <source>AUTORUN: %1 个输入 → %2</source>
        <translation>AUTORUN: 입력 %1개 → %2</translation>
    </message>
    <message>
        <source>输出格式</source>
        <translation>출력 형식</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM) 的输出必须是 .wav 或 .flac</source>
        <translation>역변환 모드 (PDM2PCM)의 출력은 .wav 또는 .flac이어야 합니다</translation>
    </message>
    <message>
        <source>DXD 输出只支持 .wav / .w64 / .flac (引擎按扩展名认容器)</source>
        <translation>DXD 출력은 .wav / .w64 / .flac만 지원합니다 (엔진은 확장자로 컨테이너를 판별)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>错误: DST 压缩仅支持 DFF 格式输出
请把输出格式/扩展名改为 .dff 或禁用 DST 压缩</source>
        <translation>오류: DST 압축은 DFF 형식 출력만 지원합니다
출력 형식/확장자를 .dff로 바꾸거나 DST 압축을 끄세요</translation>
    </message>
    <message>
        <source>输出文件必须是 .dsf 或 .dff 格式</source>
        <translation>출력 파일은 .dsf 또는 .dff 형식이어야 합니다</translation>
    </message>
    <message>
        <source>转换中</source>
        <translation>변환 중</translation>
    </message>
    <message>
        <source>已有转换任务正在进行中, 请等待完成。</source>
        <translation>이미 변환 작업이 진행 중입니다. 완료될 때까지 기다려 주세요.</translation>
    </message>
    <message>
        <source>输入文件</source>
        <translation>입력 파일</translation>
    </message>
    <message>
        <source>请选择输入文件</source>
        <translation>입력 파일을 선택하세요</translation>
    </message>
    <message>
        <source>元数据</source>
        <translation>메타데이터</translation>
    </message>
    <message>
        <source>输出 .dff 必须填「艺术家」和「标题」两个值
(它们是 DFF 的 COMT 标签; 必填项, 不填不开始转换)</source>
        <translation>.dff로 출력하려면 ‘아티스트’와 ‘제목’을 모두 입력해야 합니다
(DFF의 COMT 태그를 이루는 필수 항목으로, 입력하지 않으면 변환이 시작되지 않습니다)</translation>
    </message>
    <message>
        <source>Taps</source>
        <translation>탭 수</translation>
    </message>
    <message>
        <source>Taps 必须是偶数且不小于 512 (0 = 用引擎默认值)</source>
        <translation>탭 수는 512 이상의 짝수여야 합니다 (0 = 엔진 기본값)</translation>
    </message>
    <message>
        <source>过渡带</source>
        <translation>전이 대역</translation>
    </message>
    <message>
        <source>阻带截止必须大于通带截止 (否则过渡带为零/负, 引擎会拒绝)</source>
        <translation>저지 대역 차단 주파수는 통과 대역 차단 주파수보다 높아야 합니다 (그렇지 않으면 전이 대역이 0/음수가 되어 엔진이 거부합니다)</translation>
    </message>
    <message>
        <source>输出目录</source>
        <translation>출력 폴더</translation>
    </message>
    <message>
        <source>无法创建输出目录:
%1</source>
        <translation>출력 폴더를 만들 수 없습니다:
%1</translation>
    </message>
    <message>
        <source>输出文件</source>
        <translation>출력 파일</translation>
    </message>
    <message>
        <source>请选择输出文件</source>
        <translation>출력 파일을 선택하세요</translation>
    </message>
    <message>
        <source>噪声本底分析</source>
        <translation>노이즈 플로어 분석</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「PDF 报告」开关</source>
        <translation>노이즈 플로어 분석은 PDF 보고서를 켠 경우에만 작동합니다
‘PDF 보고서’ 옵션을 켜세요</translation>
    </message>
    <message>
        <source>均衡器</source>
        <translation>이퀄라이저</translation>
    </message>
    <message>
        <source>启用了均衡器但没有有效频段
请添加至少一个频段 (中心频率 &gt; 0), 或禁用均衡器</source>
        <translation>이퀄라이저가 켜져 있지만 유효한 밴드가 없습니다
밴드를 하나 이상 추가하거나 (중심 주파수 &gt; 0) 이퀄라이저를 끄세요</translation>
    </message>
    <message>
        <source>引擎缺失</source>
        <translation>엔진 없음</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine。请将其放在程序同目录、或加入 PATH,
也可设置环境变量 ZUVO_ENGINE_BIN 指向其完整路径。</source>
        <translation>ZuvoEngine을 찾을 수 없습니다. 프로그램과 같은 폴더에 두거나 PATH에 추가하세요.
또는 환경 변수 ZUVO_ENGINE_BIN에 전체 경로를 지정할 수 있습니다.</translation>
    </message>
    <message>
        <source>均衡器未启用</source>
        <translation>이퀄라이저 꺼짐</translation>
    </message>
    <message>
        <source>基本参数</source>
        <translation>기본</translation>
    </message>
    <message>
        <source>滤波</source>
        <translation>필터</translation>
    </message>
    <message>
        <source>空间与音调</source>
        <translation>공간감 및 톤</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>채널</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>고급</translation>
    </message>
    <message>
        <source>启用 DST 压缩模式</source>
        <translation>DST 압축 모드 켜짐</translation>
    </message>
    <message>
        <source>禁用 DST 压缩模式</source>
        <translation>DST 압축 모드 꺼짐</translation>
    </message>
    <message>
        <source>DST 压缩</source>
        <translation>DST 압축</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出格式将自动更改为 DFF</source>
        <translation>DST 압축은 DFF 형식만 지원합니다
출력 형식이 자동으로 DFF로 변경됩니다</translation>
    </message>
    <message>
        <source>DST 压缩仅支持 DFF 格式
输出文件将自动更改为 DFF 格式</source>
        <translation>DST 압축은 DFF 형식만 지원합니다
출력 파일이 자동으로 DFF 형식으로 변경됩니다</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改参数</source>
        <translation>변환 중에는 매개변수를 수정할 수 없습니다</translation>
    </message>
    <message>
        <source>已加载母带预设: %1</source>
        <translation>마스터링 프리셋 불러옴: %1</translation>
    </message>
    <message>
        <source>均衡器: %1 行无效 (需中心频率&gt;0) 已被跳过</source>
        <translation>이퀄라이저: 잘못된 행 %1개를 건너뛰었습니다 (중심 주파수는 0보다 커야 함)</translation>
    </message>
    <message>
        <source>注意: 无法向引擎查询它不支持的选项, 直接开始转换</source>
        <translation>참고: 엔진에 지원하지 않는 옵션을 조회할 수 없어 그대로 변환을 시작합니다</translation>
    </message>
    <message>
        <source>转换未开始: 当前引擎构建不支持这些已选择的选项: %1</source>
        <translation>변환이 시작되지 않음: 현재 엔진 빌드는 선택한 다음 옵션을 지원하지 않습니다: %1</translation>
    </message>
    <message>
        <source>引擎不支持的选项</source>
        <translation>엔진이 지원하지 않는 옵션</translation>
    </message>
    <message>
        <source>当前引擎构建不支持下列已选择的选项, 转换不会开始:
%1

请在参数页关闭它们后再开始 (预设里可以保留)。</source>
        <translation>현재 엔진 빌드는 선택한 다음 옵션을 지원하지 않으므로 변환이 시작되지 않습니다:
%1

매개변수 페이지에서 해당 옵션을 끈 뒤 다시 시작하세요 (프리셋에는 남겨 둘 수 있습니다).</translation>
    </message>
    <message>
        <source>转换进行中, 不能修改预设</source>
        <translation>변환 중에는 프리셋을 수정할 수 없습니다</translation>
    </message>
    <message>
        <source>转换进行中, 不能改逐轨预设。</source>
        <translation>변환 중에는 트랙별 프리셋을 변경할 수 없습니다.</translation>
    </message>
    <message>
        <source>请先添加输入文件</source>
        <translation>먼저 입력 파일을 추가하세요</translation>
    </message>
    <message>
        <source>逐轨预设: 已全部改回「用当前参数」</source>
        <translation>트랙별 프리셋: 모두 ‘현재 매개변수 사용’으로 되돌렸습니다</translation>
    </message>
    <message>
        <source>逐轨预设: %1 个文件各用一套</source>
        <translation>트랙별 프리셋: 파일 %1개가 각자 프리셋 사용</translation>
    </message>
    <message>
        <source>转换进行中, 不能预览</source>
        <translation>변환 중에는 미리 볼 수 없습니다</translation>
    </message>
    <message>
        <source>请先添加文件</source>
        <translation>먼저 파일을 추가하세요</translation>
    </message>
    <message>
        <source>没有可预览的文件</source>
        <translation>미리 볼 파일이 없습니다</translation>
    </message>
    <message>
        <source>单环 (NS, --order 9)</source>
        <translation>단일 루프 (NS, --order 9)</translation>
    </message>
    <message>
        <source>古典</source>
        <translation>클래식</translation>
    </message>
    <message>
        <source>古典: DSD-256, 131072 taps, 高带宽</source>
        <translation>클래식: DSD-256, 131072 taps, 고대역폭</translation>
    </message>
    <message>
        <source>流行</source>
        <translation>팝</translation>
    </message>
    <message>
        <source>流行: DSD-128, 65536 taps</source>
        <translation>팝: DSD-128, 65536 taps</translation>
    </message>
    <message>
        <source>爵士</source>
        <translation>재즈</translation>
    </message>
    <message>
        <source>爵士: DSD-128, 65536 taps</source>
        <translation>재즈: DSD-128, 65536 taps</translation>
    </message>
    <message>
        <source>DSD 采样率:</source>
        <translation>DSD 샘플 레이트:</translation>
    </message>
    <message>
        <source>Taps 数 (0=引擎默认):</source>
        <translation>탭 수 (0=엔진 기본값):</translation>
    </message>
    <message>
        <source>SOS cascade + error feedback, NS15 profile (引擎默认): 实测带内噪声比单环 NS9 低 11.4 dB</source>
        <translation>SOS 캐스케이드 + 오차 피드백, NS15 프로필 (엔진 기본값): 대역 내 잡음 실측치가 단일 루프 NS9보다 11.4 dB 낮음</translation>
    </message>
    <message>
        <source>Chebyshev 多项式压缩 (可与 MASH 叠加)</source>
        <translation>Chebyshev 다항식 압축 (MASH와 함께 사용 가능)</translation>
    </message>
    <message>
        <source>调制器:</source>
        <translation>모듈레이터:</translation>
    </message>
    <message>
        <source>母带预设:</source>
        <translation>마스터링 프리셋:</translation>
    </message>
    <message>
        <source>预设管理器…</source>
        <translation>프리셋 관리자…</translation>
    </message>
    <message>
        <source>DST 压缩 (仅 .dff 输出)</source>
        <translation>DST 압축 (.dff 출력 전용)</translation>
    </message>
    <message>
        <source>DXD 输出 (高解析 PCM)</source>
        <translation>DXD 출력 (고해상도 PCM)</translation>
    </message>
    <message>
        <source>逆向模式 (PDM2PCM)</source>
        <translation>역변환 모드 (PDM2PCM)</translation>
    </message>
    <message>
        <source>输入 DSD(DSF/DFF), 输出 PCM/WAV —— 与 PCM→PDM 无关</source>
        <translation>DSD (DSF/DFF) 입력, PCM/WAV 출력 — PCM→PDM과 무관</translation>
    </message>
    <message>
        <source>DST 压缩等级 (0=关闭):</source>
        <translation>DST 압축 수준 (0=끔):</translation>
    </message>
    <message>
        <source>高带宽模式</source>
        <translation>고대역폭 모드</translation>
    </message>
    <message>
        <source>OpenCL 加速 (GPU)</source>
        <translation>OpenCL 가속 (GPU)</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 OpenCL 支持</source>
        <translation>현재 엔진 빌드는 OpenCL 지원 없이 컴파일되었습니다</translation>
    </message>
    <message>
        <source>添加 PDF 报告</source>
        <translation>PDF 보고서 추가</translation>
    </message>
    <message>
        <source>当前引擎构建未编译 PDF 报告 (需要 rsvg+cairo)</source>
        <translation>현재 엔진 빌드는 PDF 보고서를 지원하지 않습니다 (rsvg+cairo 필요)</translation>
    </message>
    <message>
        <source>只影响 PDF 报告内容, 不改音频比特流 (实测: 开关它 dsf 逐字节相同)</source>
        <translation>PDF 보고서 내용에만 영향을 주며 오디오 비트스트림은 바꾸지 않습니다 (실측: 켜든 끄든 dsf가 바이트 단위로 동일)</translation>
    </message>
    <message>
        <source>分析报告 (--report)</source>
        <translation>분석 보고서 (--report)</translation>
    </message>
    <message>
        <source>噪声本底分析 (需 PDF 报告)</source>
        <translation>노이즈 플로어 분석 (PDF 보고서 필요)</translation>
    </message>
    <message>
        <source>降噪: 关</source>
        <translation>노이즈 제거: 끔</translation>
    </message>
    <message>
        <source>降噪: 轻 (-12dB 地板, 最保真)</source>
        <translation>노이즈 제거: 약하게 (-12dB 플로어, 원음 충실도 최고)</translation>
    </message>
    <message>
        <source>降噪: 标准 (-18dB 地板)</source>
        <translation>노이즈 제거: 표준 (-18dB 플로어)</translation>
    </message>
    <message>
        <source>降噪: 强 (感知加权地板, 最深)</source>
        <translation>노이즈 제거: 강하게 (청감 가중 플로어, 가장 깊음)</translation>
    </message>
    <message>
        <source>保留乐器泛音 (降噪时保住泛音与泛音列)</source>
        <translation>악기 배음 보존 (노이즈 제거 시 배음과 배음열 유지)</translation>
    </message>
    <message>
        <source>报告里加峰值 (--peak)</source>
        <translation>보고서에 피크 추가 (--peak)</translation>
    </message>
    <message>
        <source>报告里加 RMS (--rms)</source>
        <translation>보고서에 RMS 추가 (--rms)</translation>
    </message>
    <message>
        <source>报告里不要动态范围一节 (--no-dynamic-range)</source>
        <translation>보고서에서 다이내믹 레인지 항목 제외 (--no-dynamic-range)</translation>
    </message>
    <message>
        <source>输出模式</source>
        <translation>출력 모드</translation>
    </message>
    <message>
        <source>带宽、加速与报告</source>
        <translation>대역폭, 가속 및 보고서</translation>
    </message>
    <message>
        <source>降噪与报告内容</source>
        <translation>노이즈 제거 및 보고서 내용</translation>
    </message>
    <message>
        <source>噪声本底分析需要勾选 PDF 报告才能生效
请启用「添加 PDF 报告」</source>
        <translation>노이즈 플로어 분석은 PDF 보고서를 켠 경우에만 작동합니다
‘PDF 보고서 추가’를 켜세요</translation>
    </message>
    <message>
        <source>声道设置</source>
        <translation>채널 설정</translation>
    </message>
    <message>
        <source>强制原始声道数</source>
        <translation>원본 채널 수 강제 유지</translation>
    </message>
    <message>
        <source>四声道模式 (需重置声道数=4)</source>
        <translation>쿼드 모드 (채널 수 재설정=4 필요)</translation>
    </message>
    <message>
        <source>添加环绕声道</source>
        <translation>서라운드 채널 추가</translation>
    </message>
    <message>
        <source>声道交换</source>
        <translation>채널 교체</translation>
    </message>
    <message>
        <source>重置声道数 (0=不动):</source>
        <translation>채널 수 재설정 (0=변경 안 함):</translation>
    </message>
    <message>
        <source>规则</source>
        <translation>규칙</translation>
    </message>
    <message>
        <source>「强制原始声道数」优先: 勾选后重置声道数、四声道模式和添加环绕声道都不发给引擎。

四声道模式需要重置声道数为 4; 勾选时会自动设为 4。

「声道交换」交换前两个声道, 与其它选项可同时使用。</source>
        <translation>‘원본 채널 수 강제 유지’가 우선합니다: 선택하면 채널 수 재설정, 쿼드 모드, 서라운드 채널 추가가 엔진에 전달되지 않습니다.

쿼드 모드는 채널 수 재설정이 4여야 하며, 선택하면 자동으로 4로 설정됩니다.

‘채널 교체’는 처음 두 채널을 서로 바꾸며 다른 옵션과 함께 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>四声道模式: 重置声道数已自动设为 4</source>
        <translation>쿼드 모드: 채널 수 재설정이 자동으로 4로 설정됨</translation>
    </message>
    <message>
        <source>启用均衡器 (EQ)</source>
        <translation>이퀄라이저 사용 (EQ)</translation>
    </message>
    <message>
        <source>添加频段</source>
        <translation>밴드 추가</translation>
    </message>
    <message>
        <source>移除选中</source>
        <translation>선택 항목 제거</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>中心频率 (Hz)</source>
        <translation>중심 주파수 (Hz)</translation>
    </message>
    <message>
        <source>增益 (dB)</source>
        <translation>게인 (dB)</translation>
    </message>
    <message>
        <source>带宽</source>
        <translation>대역폭</translation>
    </message>
    <message>
        <source>单位</source>
        <translation>단위</translation>
    </message>
    <message>
        <source>预览按 44.1 kHz 估算 — 引擎槽位: 首段低架, 满 10 段时末段高架</source>
        <translation>미리 보기는 44.1 kHz 기준 추정 — 엔진 슬롯: 첫 밴드는 로우 셸프, 10개 밴드를 모두 쓰면 마지막 밴드는 하이 셸프</translation>
    </message>
    <message>
        <source>启用均衡器 (--eq 频段 f,g,bw{单位})</source>
        <translation>이퀄라이저 켜짐 (--eq 밴드 f,g,bw{단위})</translation>
    </message>
    <message>
        <source>禁用均衡器</source>
        <translation>이퀄라이저 꺼짐</translation>
    </message>
    <message>
        <source>窗口法 (Window Method)</source>
        <translation>윈도우 방식 (Window Method)</translation>
    </message>
    <message>
        <source>最小相位 (Min-Phase)</source>
        <translation>최소 위상 (Min-Phase)</translation>
    </message>
    <message>
        <source>应用预失真处理</source>
        <translation>프리디스토션 처리 적용</translation>
    </message>
    <message>
        <source>算法:</source>
        <translation>알고리즘:</translation>
    </message>
    <message>
        <source>滤波类型:</source>
        <translation>필터 유형:</translation>
    </message>
    <message>
        <source>窗口法参数</source>
        <translation>윈도우 방식 매개변수</translation>
    </message>
    <message>
        <source>窗口类型:</source>
        <translation>윈도우 유형:</translation>
    </message>
    <message>
        <source>Remez 算法参数</source>
        <translation>Remez 알고리즘 매개변수</translation>
    </message>
    <message>
        <source>最大迭代次数:</source>
        <translation>최대 반복 횟수:</translation>
    </message>
    <message>
        <source>网格密度:</source>
        <translation>그리드 밀도:</translation>
    </message>
    <message>
        <source>停止带衰减 (A_stop)</source>
        <translation>저지 대역 감쇠 (A_stop)</translation>
    </message>
    <message>
        <source>0=不发</source>
        <translation>0=전달 안 함</translation>
    </message>
    <message>
        <source>停止带衰减 (dB):</source>
        <translation>저지 대역 감쇠 (dB):</translation>
    </message>
    <message>
        <source>过渡带 (截止频率)</source>
        <translation>전이 대역 (차단 주파수)</translation>
    </message>
    <message>
        <source>通带截止 (Hz):</source>
        <translation>통과 대역 차단 (Hz):</translation>
    </message>
    <message>
        <source>阻带截止 (Hz):</source>
        <translation>저지 대역 차단 (Hz):</translation>
    </message>
    <message>
        <source>增益 (ABS)</source>
        <translation>게인 (ABS)</translation>
    </message>
    <message>
        <source>绝对值增益:</source>
        <translation>절댓값 게인:</translation>
    </message>
    <message>
        <source>HRTF 空间音频</source>
        <translation>HRTF 공간 음향</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf)</source>
        <translation>HRTF 공간 음향 사용 (--hrtf)</translation>
    </message>
    <message>
        <source>启用 HRTF 空间音频 (--hrtf &lt;mono|ms|stereo&gt;)</source>
        <translation>HRTF 공간 음향 켜짐 (--hrtf &lt;mono|ms|stereo&gt;)</translation>
    </message>
    <message>
        <source>禁用 HRTF 空间音频</source>
        <translation>HRTF 공간 음향 꺼짐</translation>
    </message>
    <message>
        <source>模式:</source>
        <translation>모드:</translation>
    </message>
    <message>
        <source>干湿比 (dry/wet):</source>
        <translation>드라이/웻 비율:</translation>
    </message>
    <message>
        <source>侧向扩散比:</source>
        <translation>측면 확산 비율:</translation>
    </message>
    <message>
        <source>深度 (+1前 / 0耳位 / -1后):</source>
        <translation>깊이 (+1 앞 / 0 귀 위치 / -1 뒤):</translation>
    </message>
    <message>
        <source>使用引擎内置 HRIR; 不提供自定义 .sofa 文件</source>
        <translation>엔진 내장 HRIR 사용, 사용자 지정 .sofa 파일은 지원하지 않음</translation>
    </message>
    <message>
        <source>环绕</source>
        <translation>서라운드</translation>
    </message>
    <message>
        <source>启用环绕 (--surround)</source>
        <translation>서라운드 사용 (--surround)</translation>
    </message>
    <message>
        <source>启用环绕 (--surround delayMs mix side balance)</source>
        <translation>서라운드 켜짐 (--surround delayMs mix side balance)</translation>
    </message>
    <message>
        <source>禁用环绕</source>
        <translation>서라운드 꺼짐</translation>
    </message>
    <message>
        <source>侧向 (side)</source>
        <translation>측면 (side)</translation>
    </message>
    <message>
        <source>延迟 (ms):</source>
        <translation>지연 (ms):</translation>
    </message>
    <message>
        <source>混合 (%):</source>
        <translation>믹스 (%):</translation>
    </message>
    <message>
        <source>平衡 (-100~100, 0=不发):</source>
        <translation>밸런스 (-100~100, 0=전달 안 함):</translation>
    </message>
    <message>
        <source>音调 (shelving)</source>
        <translation>톤 (셸빙)</translation>
    </message>
    <message>
        <source>低音 (dB):</source>
        <translation>저음 (dB):</translation>
    </message>
    <message>
        <source>高音 (dB):</source>
        <translation>고음 (dB):</translation>
    </message>
    <message>
        <source>EQ 前置衰减 (dB):</source>
        <translation>EQ 프리컷 (dB):</translation>
    </message>
    <message>
        <source>启用 DSRE 数字频谱共振增强 (--dsre)</source>
        <translation>DSRE 디지털 스펙트럼 공명 강화 사용 (--dsre)</translation>
    </message>
    <message>
        <source>启用 DSRE (--dsre mix)</source>
        <translation>DSRE 켜짐 (--dsre mix)</translation>
    </message>
    <message>
        <source>禁用 DSRE</source>
        <translation>DSRE 꺼짐</translation>
    </message>
    <message>
        <source>干湿比 (0=dry, 1=全效果):</source>
        <translation>드라이/웻 (0=dry, 1=최대 효과):</translation>
    </message>
    <message>
        <source>播放</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>AUTORUN 预设: %1</source>
        <translation>AUTORUN 프리셋: %1</translation>
    </message>
    <message>
        <source>✗ AUTORUN 预设无法使用: %1 (%2)</source>
        <translation>✗ AUTORUN 프리셋을 사용할 수 없음: %1 (%2)</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_PLAYTEST 指定的文件不存在: %1</source>
        <translation>오류: ZUVO_AI_PLAYTEST에 지정된 파일이 없습니다: %1</translation>
    </message>
    <message>
        <source>设备名直接传给 ZuvoPlayer -dev</source>
        <translation>장치 이름을 ZuvoPlayer -dev에 그대로 전달</translation>
    </message>
    <message>
        <source>DAC 设备:</source>
        <translation>DAC 장치:</translation>
    </message>
    <message>
        <source>流式播放模式 (-stream)</source>
        <translation>스트리밍 재생 모드 (-stream)</translation>
    </message>
    <message>
        <source>播放源 = 上方「输出文件」 (镜像 GTK: 播放刚转换的 DSF/DFF)</source>
        <translation>재생 소스 = 위의 ‘출력 파일’ (GTK 버전과 동일: 방금 변환한 DSF/DFF 재생)</translation>
    </message>
    <message>
        <source>停止播放</source>
        <translation>재생 중지</translation>
    </message>
    <message>
        <source>播放正在进行中, 请先停止当前播放</source>
        <translation>이미 재생 중입니다. 먼저 현재 재생을 중지하세요</translation>
    </message>
    <message>
        <source>错误: 播放文件不存在或无法读取: %1</source>
        <translation>오류: 재생할 파일이 없거나 읽을 수 없음: %1</translation>
    </message>
    <message>
        <source>(未设置输出文件)</source>
        <translation>(출력 파일이 설정되지 않음)</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoPlayer — 请放在程序同目录或加入 PATH (或设 ZUVO_PLAYER_BIN)</source>
        <translation>오류: ZuvoPlayer를 찾을 수 없음 — 프로그램과 같은 폴더에 두거나 PATH에 추가하세요 (또는 ZUVO_PLAYER_BIN 설정)</translation>
    </message>
    <message>
        <source>启动播放器: %1 %2</source>
        <translation>플레이어 시작: %1 %2</translation>
    </message>
    <message>
        <source>开始播放: %1</source>
        <translation>재생 시작: %1</translation>
    </message>
    <message>
        <source>试听会话: %1</source>
        <translation>미리 듣기 세션: %1</translation>
    </message>
    <message>
        <source>进程内(直接调库)</source>
        <translation>프로세스 내 (라이브러리 직접 호출)</translation>
    </message>
    <message>
        <source>子进程</source>
        <translation>하위 프로세스</translation>
    </message>
    <message>
        <source>错误: 无法启动播放器 — %1</source>
        <translation>오류: 플레이어를 시작할 수 없음 — %1</translation>
    </message>
    <message>
        <source>播放完成</source>
        <translation>재생 완료</translation>
    </message>
    <message>
        <source>播放已停止</source>
        <translation>재생 중지됨</translation>
    </message>
    <message>
        <source>播放器异常退出, 代码: %1</source>
        <translation>플레이어 비정상 종료, 코드: %1</translation>
    </message>
    <message>
        <source>当前没有播放任务</source>
        <translation>현재 재생 중인 작업이 없음</translation>
    </message>
    <message>
        <source>正在停止播放器…</source>
        <translation>플레이어를 중지하는 중…</translation>
    </message>
    <message>
        <source>[控制] %1</source>
        <translation>[제어] %1</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾 (本次在进程内运行, 无法强制结束)</source>
        <translation>플레이어가 %1초 안에 마무리하지 못했습니다 (이번에는 프로세스 내에서 실행 중이라 강제 종료할 수 없음)</translation>
    </message>
    <message>
        <source>播放器未在 %1 秒内完成收尾, 强制结束</source>
        <translation>플레이어가 %1초 안에 마무리하지 못해 강제 종료합니다</translation>
    </message>
    <message>
        <source>仍无响应, 强制结束播放器</source>
        <translation>여전히 응답이 없어 플레이어를 강제 종료합니다</translation>
    </message>
    <message>
        <source>检查更新…</source>
        <translation>업데이트 확인…</translation>
    </message>
    <message>
        <source>关于/诊断…</source>
        <translation>정보/진단…</translation>
    </message>
    <message>
        <source>看引擎版本 / 列音频设备 / 显示引擎帮助</source>
        <translation>엔진 버전 보기 / 오디오 장치 나열 / 엔진 도움말 표시</translation>
    </message>
    <message>
        <source>源码许可…</source>
        <translation>소스 라이선스…</translation>
    </message>
    <message>
        <source>参考标准…</source>
        <translation>참고 표준…</translation>
    </message>
    <message>
        <source>错误: ZUVO_AI_RECTEST 需要给一个输出 .dsf 路径</source>
        <translation>오류: ZUVO_AI_RECTEST에는 출력 .dsf 경로가 필요합니다</translation>
    </message>
    <message>
        <source>(引擎没有输出)</source>
        <translation>(엔진 출력 없음)</translation>
    </message>
    <message>
        <source>$ %1

%2

退出码 = %3</source>
        <translation>$ %1

%2

종료 코드 = %3</translation>
    </message>
    <message>
        <source>本构建的引擎没有录音后端 (见录音页的状态行): 不能开始录音</source>
        <translation>이 빌드의 엔진에는 녹음 백엔드가 없습니다 (녹음 탭의 상태 줄 참조): 녹음을 시작할 수 없습니다</translation>
    </message>
    <message>
        <source>录音正在进行中</source>
        <translation>이미 녹음 중입니다</translation>
    </message>
    <message>
        <source>录音</source>
        <translation>녹음</translation>
    </message>
    <message>
        <source>请先在上方「输出文件」设置录音保存路径</source>
        <translation>먼저 위의 ‘출력 파일’에서 녹음 저장 경로를 설정하세요</translation>
    </message>
    <message>
        <source>录音输出文件必须是 .dsf 格式</source>
        <translation>녹음 출력 파일은 .dsf 형식이어야 합니다</translation>
    </message>
    <message>
        <source>错误: 未找到 ZuvoEngine (录音需要引擎录音支持)</source>
        <translation>오류: ZuvoEngine을 찾을 수 없음 (녹음에는 엔진의 녹음 지원이 필요합니다)</translation>
    </message>
    <message>
        <source>录音命令: %1 %2</source>
        <translation>녹음 명령: %1 %2</translation>
    </message>
    <message>
        <source>开始录音 → %1</source>
        <translation>녹음 시작 → %1</translation>
    </message>
    <message>
        <source>提示: 停止时发送 'q' 让引擎优雅收尾 (先停止处理 PCM 再写 DSF)</source>
        <translation>팁: 중지 시 'q'를 보내 엔진이 정상적으로 마무리하게 합니다 (PCM 처리를 멈춘 뒤 DSF 기록)</translation>
    </message>
    <message>
        <source>录音中…</source>
        <translation>녹음 중…</translation>
    </message>
    <message>
        <source>录音会话: %1</source>
        <translation>녹음 세션: %1</translation>
    </message>
    <message>
        <source>错误: 无法启动引擎 (录音) — %1</source>
        <translation>오류: 엔진을 시작할 수 없음 (녹음) — %1</translation>
    </message>
    <message>
        <source>当前没有录音任务</source>
        <translation>진행 중인 녹음이 없습니다</translation>
    </message>
    <message>
        <source>发送 'q' 至引擎 — 等待优雅收尾 (写 DSF 后自动退出)…</source>
        <translation>엔진에 'q'를 보냄 — 정상 마무리 대기 중 (DSF 기록 후 자동 종료)…</translation>
    </message>
    <message>
        <source>录音引擎已不在运行</source>
        <translation>녹음 엔진이 더 이상 실행 중이 아닙니다</translation>
    </message>
    <message>
        <source>引擎未在 12s 内收尾 (本次在进程内进行, 无法强制结束)</source>
        <translation>엔진이 12 s 내에 마무리하지 않았습니다 (이번 실행은 프로세스 내부에서 진행되어 강제 종료할 수 없음)</translation>
    </message>
    <message>
        <source>引擎未在 12s 内退出, 强制终止</source>
        <translation>엔진이 12 s 내에 종료되지 않아 강제 종료합니다</translation>
    </message>
    <message>
        <source>录音保存: %1</source>
        <translation>녹음 저장됨: %1</translation>
    </message>
    <message>
        <source>录音失败, 退出码: %1</source>
        <translation>녹음 실패, 종료 코드: %1</translation>
    </message>
    <message>
        <source>录音进程异常退出 (崩溃/被终止)</source>
        <translation>녹음 프로세스가 비정상 종료됨 (충돌/강제 종료)</translation>
    </message>
    <message>
        <source>录音后端: 可用 — %1</source>
        <translation>녹음 백엔드: 사용 가능 — %1</translation>
    </message>
    <message>
        <source>录音后端: 不可用 — %1</source>
        <translation>녹음 백엔드: 사용 불가 — %1</translation>
    </message>
    <message>
        <source>%1 个输入设备(已列在日志里)</source>
        <translation>입력 장치 %1개 (로그에 나열됨)</translation>
    </message>
    <message>
        <source>引擎退出码 = %1</source>
        <translation>엔진 종료 코드 = %1</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请放在程序同目录、加入 PATH, 或设 ZUVO_ENGINE_BIN</source>
        <translation>ZuvoEngine을 찾을 수 없음 — 프로그램과 같은 폴더에 두거나 PATH에 추가하거나 ZUVO_ENGINE_BIN을 설정하세요</translation>
    </message>
    <message>
        <source>探测 30s 无响应, 已终止</source>
        <translation>감지가 30 s 동안 응답하지 않아 종료됨</translation>
    </message>
    <message>
        <source>关于 / 诊断</source>
        <translation>정보 / 진단</translation>
    </message>
    <message>
        <source>ZuvoAudioTools — ZuvoEngine 的转码前端 (QProcess 子进程)
引擎路径: %1
注: 引擎的帮助/版本类子命令本来就以非 0 退出码收尾, 属既有行为。
探测是异步的: 点完可以继续操作界面, 结果到了会显示在下面。</source>
        <translation>ZuvoAudioTools — ZuvoEngine용 변환 프런트엔드 (QProcess 하위 프로세스)
엔진 경로: %1
참고: 엔진의 도움말/버전 하위 명령은 원래 0이 아닌 종료 코드로 끝납니다 (기존 동작).
감지는 비동기로 진행됩니다: 클릭한 뒤에도 계속 작업할 수 있으며 결과가 나오면 아래에 표시됩니다.</translation>
    </message>
    <message>
        <source>(未找到)</source>
        <translation>(찾을 수 없음)</translation>
    </message>
    <message>
        <source>点下面任一按钮看引擎的回答</source>
        <translation>아래 버튼 중 하나를 클릭하면 엔진의 응답이 표시됩니다</translation>
    </message>
    <message>
        <source>引擎版本 (--version)</source>
        <translation>엔진 버전 (--version)</translation>
    </message>
    <message>
        <source>列出音频设备 (--list-devices)</source>
        <translation>오디오 장치 나열 (--list-devices)</translation>
    </message>
    <message>
        <source>引擎帮助 (--help)</source>
        <translation>엔진 도움말 (--help)</translation>
    </message>
    <message>
        <source>未找到 ZuvoEngine —— 请把它放在程序同目录、加入 PATH, 或设置环境变量 ZUVO_ENGINE_BIN。</source>
        <translation>ZuvoEngine을 찾을 수 없음 — 프로그램과 같은 폴더에 두거나 PATH에 추가하거나 환경 변수 ZUVO_ENGINE_BIN을 설정하세요.</translation>
    </message>
    <message>
        <source>$ %1

运行中… (界面不冻, 可继续操作)
</source>
        <translation>$ %1

실행 중… (화면이 멈추지 않으니 계속 작업할 수 있습니다)
</translation>
    </message>
    <message>
        <source>引擎启动失败: %1</source>
        <translation>엔진 시작 실패: %1</translation>
    </message>
    <message>
        <source>
引擎 30s 无响应, 已终止 (不进设备, 不会影响到正在跑的任务)。</source>
        <translation>
엔진이 30 s 동안 응답하지 않아 종료했습니다 (장치를 열지 않으므로 실행 중인 작업에는 영향이 없습니다).</translation>
    </message>
    <message>
        <source>录音后端: 未检测</source>
        <translation>녹음 백엔드: 감지 전</translation>
    </message>
    <message>
        <source>检测录音支持 / 列出输入设备</source>
        <translation>녹음 지원 감지 / 입력 장치 나열</translation>
    </message>
    <message>
        <source>录音设备 (空=默认):</source>
        <translation>녹음 장치 (비우면 기본값):</translation>
    </message>
    <message>
        <source>声道数 (0=自动):</source>
        <translation>채널 수 (0=자동):</translation>
    </message>
    <message>
        <source>采样率 Hz (0=自动):</source>
        <translation>샘플 레이트 Hz (0=자동):</translation>
    </message>
    <message>
        <source>时长秒 (0=手动):</source>
        <translation>길이(초) (0=수동):</translation>
    </message>
    <message>
        <source>头空间 dB:</source>
        <translation>헤드룸 dB:</translation>
    </message>
    <message>
        <source>缓冲帧:</source>
        <translation>버퍼 프레임:</translation>
    </message>
    <message>
        <source>直通模式 (--record-exclusive)</source>
        <translation>독점 모드 (--record-exclusive)</translation>
    </message>
    <message>
        <source>DSD 直录 (否则 PCM2PDM)</source>
        <translation>DSD 직접 녹음 (끄면 PCM2PDM)</translation>
    </message>
    <message>
        <source>监听输入</source>
        <translation>입력 모니터링</translation>
    </message>
    <message>
        <source>监听输出设备:</source>
        <translation>모니터 출력 장치:</translation>
    </message>
    <message>
        <source>录音输出 = 上方「输出文件」(必须 .dsf); 停止时向引擎发送 'q' 优雅收尾 (镜像 GTK)</source>
        <translation>녹음 출력 = 위의 ‘출력 파일’ (.dsf 필수); 중지 시 엔진에 'q'를 보내 정상적으로 마무리 (GTK 버전과 동일)</translation>
    </message>
    <message>
        <source>开始录音</source>
        <translation>녹음 시작</translation>
    </message>
    <message>
        <source>停止录音</source>
        <translation>녹음 중지</translation>
    </message>
</context>
<context>
    <name>PerTrackDialog</name>
    <message>
        <source>逐轨预设 (每个文件可各用一套)</source>
        <translation>트랙별 프리셋 (파일마다 개별 지정 가능)</translation>
    </message>
    <message>
        <source>每行给一个文件挑一套预设; 「(用当前参数)」= 跟随主面板。
预设只换编码/DSP 参数 —— 输出目录/输出格式与标签仍按主面板。</source>
        <translation>행마다 파일 하나의 프리셋을 고르세요. ‘(현재 매개변수 사용)’ = 메인 패널을 따름.
프리셋은 인코딩/DSP 매개변수만 바꿉니다 — 출력 폴더/출력 형식과 태그는 메인 패널 설정을 따릅니다.</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>프리셋</translation>
    </message>
    <message>
        <source>(用当前参数)</source>
        <translation>(현재 매개변수 사용)</translation>
    </message>
    <message>
        <source>(预设目录里没有预设 —— 先在上面「母带预设」里保存一套)</source>
        <translation>(프리셋 폴더에 프리셋이 없습니다 — 먼저 위의 ‘마스터링 프리셋’에서 하나를 저장하세요)</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>PresetManagerDialog</name>
    <message>
        <source>预设管理器</source>
        <translation>프리셋 관리자</translation>
    </message>
    <message>
        <source>预设为 JSON 文件 (与 GTK 版同目录同键名, 可互读)
写入目录: %1</source>
        <translation>프리셋은 JSON 파일입니다 (GTK 버전과 같은 폴더·키 이름을 사용해 서로 읽을 수 있음)
저장 폴더: %1</translation>
    </message>
    <message>
        <source>加载选中</source>
        <translation>선택 항목 불러오기</translation>
    </message>
    <message>
        <source>删除选中</source>
        <translation>선택 항목 삭제</translation>
    </message>
    <message>
        <source>保存当前为…</source>
        <translation>현재 설정을 다른 이름으로 저장…</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>프리셋</translation>
    </message>
    <message>
        <source>无法读取: %1</source>
        <translation>읽을 수 없음: %1</translation>
    </message>
    <message>
        <source>预设文件解析失败: %1</source>
        <translation>프리셋 파일 해석 실패: %1</translation>
    </message>
    <message>
        <source>预设含 %1 个本版未支持字段, 已忽略</source>
        <translation>프리셋에 이 버전에서 지원하지 않는 필드 %1개가 있어 무시했습니다</translation>
    </message>
    <message>
        <source>已加载预设: %1</source>
        <translation>프리셋 불러옴: %1</translation>
    </message>
    <message>
        <source>删除预设</source>
        <translation>프리셋 삭제</translation>
    </message>
    <message>
        <source>确定删除预设 %1 ?</source>
        <translation>프리셋 %1을(를) 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>삭제 실패: %1</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>다른 이름으로 저장</translation>
    </message>
    <message>
        <source>预设名称:</source>
        <translation>프리셋 이름:</translation>
    </message>
    <message>
        <source>预设 %1 已存在, 覆盖?</source>
        <translation>프리셋 %1이(가) 이미 있습니다. 덮어쓰시겠습니까?</translation>
    </message>
    <message>
        <source>预设名称无效: %1</source>
        <translation>잘못된 프리셋 이름: %1</translation>
    </message>
    <message>
        <source>保存失败: %1</source>
        <translation>저장 실패: %1</translation>
    </message>
    <message>
        <source>已保存预设: %1</source>
        <translation>프리셋 저장됨: %1</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>名称为空</source>
        <translation>이름이 비어 있습니다</translation>
    </message>
    <message>
        <source>名称不能包含 %1 或控制字符</source>
        <translation>이름에 %1 또는 제어 문자를 포함할 수 없습니다</translation>
    </message>
    <message>
        <source>名称不能以点结尾</source>
        <translation>이름은 마침표로 끝날 수 없습니다</translation>
    </message>
    <message>
        <source>名称 %1 是系统保留的设备名</source>
        <translation>이름 %1은(는) 시스템 예약 장치 이름입니다</translation>
    </message>
    <message>
        <source>文件过大 (%1 字节)</source>
        <translation>파일이 너무 큼 (%1바이트)</translation>
    </message>
    <message>
        <source>顶层不是 JSON 对象</source>
        <translation>최상위가 JSON 객체가 아님</translation>
    </message>
    <message>
        <source>无法读取文件</source>
        <translation>파일을 읽을 수 없음</translation>
    </message>
</context>
<context>
    <name>ReferencesGui</name>
    <message>
        <source>参考标准</source>
        <translation>참고 표준</translation>
    </message>
</context>
<context>
    <name>RunControlsPanel</name>
    <message>
        <source>开始转换</source>
        <translation>변환 시작</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>清空日志</source>
        <translation>로그 지우기</translation>
    </message>
    <message>
        <source>详细日志 (--verbose)</source>
        <translation>상세 로그 (--verbose)</translation>
    </message>
    <message>
        <source>保留引擎日志（退出不删）</source>
        <translation>엔진 로그 보관 (종료 시 삭제 안 함)</translation>
    </message>
    <message>
        <source>关（默认）：引擎日志写在系统临时目录里的一次性目录中，退出即清；
开：写到 %1 下并保留，便于把日志发给厂商排障。</source>
        <translation>끔 (기본값): 엔진 로그를 시스템 임시 폴더 안의 일회용 폴더에 기록하고 종료 시 삭제합니다.
켬: %1 아래에 기록하고 보관하므로 문제 해결을 위해 공급업체에 로그를 보낼 수 있습니다.</translation>
    </message>
    <message>
        <source>子进程: ZuvoEngine</source>
        <translation>하위 프로세스: ZuvoEngine</translation>
    </message>
    <message>
        <source>GUI 通过 QProcess 调用同目录/环境变量指定的 ZuvoEngine</source>
        <translation>GUI는 QProcess를 통해 같은 폴더 또는 환경 변수로 지정된 ZuvoEngine을 실행합니다</translation>
    </message>
</context>
<context>
    <name>ThirdPartyGui</name>
    <message>
        <source>源码许可</source>
        <translation>소스 라이선스</translation>
    </message>
</context>
<context>
    <name>UiLangRow</name>
    <message>
        <source>语言</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>界面语言。切换后程序会重启一次以便整套界面换语言。</source>
        <translation>인터페이스 언어. 변경하면 전체 화면에 적용하기 위해 프로그램이 한 번 다시 시작됩니다.</translation>
    </message>
    <message>
        <source>跟随系统</source>
        <translation>시스템 설정 따르기</translation>
    </message>
    <message>
        <source>界面语言已切换，程序将自动重启一次以生效。</source>
        <translation>인터페이스 언어가 변경되었습니다. 적용을 위해 프로그램이 자동으로 한 번 다시 시작됩니다.</translation>
    </message>
</context>
<context>
    <name>UpdateUi</name>
    <message>
        <source>正在检查更新…</source>
        <translation>업데이트 확인 중…</translation>
    </message>
    <message>
        <source>检查更新</source>
        <translation>업데이트 확인</translation>
    </message>
    <message>
        <source>已是最新版本 (%1)。服务器上的最新版本为 %2。</source>
        <translation>최신 버전입니다 (%1). 서버의 최신 버전은 %2입니다.</translation>
    </message>
    <message>
        <source>检查更新失败：</source>
        <translation>업데이트 확인 실패:</translation>
    </message>
    <message>
        <source>发现新版本 %1（当前 %2）。</source>
        <translation>새 버전 %1 사용 가능 (현재 %2).</translation>
    </message>
    <message>
        <source>发布日期：%1</source>
        <translation>출시일: %1</translation>
    </message>
    <message>
        <source>更新说明：%1</source>
        <translation>릴리스 노트: %1</translation>
    </message>
    <message>
        <source>发现新版本</source>
        <translation>새 버전 사용 가능</translation>
    </message>
    <message>
        <source>下载并更新</source>
        <translation>다운로드 및 업데이트</translation>
    </message>
    <message>
        <source>打开下载页</source>
        <translation>다운로드 페이지 열기</translation>
    </message>
    <message>
        <source>稍后</source>
        <translation>나중에</translation>
    </message>
    <message>
        <source>正在下载更新…</source>
        <translation>업데이트 다운로드 중…</translation>
    </message>
    <message>
        <source>下载更新</source>
        <translation>업데이트 다운로드</translation>
    </message>
    <message>
        <source>更新</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>程序现在退出。</source>
        <translation>프로그램을 종료합니다.</translation>
    </message>
    <message>
        <source>更新失败</source>
        <translation>업데이트 실패</translation>
    </message>
</context>
<context>
    <name>pv::PreviewDialog</name>
    <message>
        <source>预览: %1</source>
        <translation>미리 보기: %1</translation>
    </message>
    <message>
        <source>波形</source>
        <translation>파형</translation>
    </message>
    <message>
        <source>频谱</source>
        <translation>스펙트로그램</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>%1 — %2 Hz / %3 ch, 预览 %4 s (上限 30 s)</source>
        <translation>%1 — %2 Hz / %3 ch, 미리 보기 %4 s (최대 30 s)</translation>
    </message>
    <message>
        <source>该格式 (%1) 预览待后续 — 目前仅支持 WAV (DSD 解码属后续里程碑)</source>
        <translation>이 형식 (%1)의 미리 보기는 아직 지원되지 않습니다 — 현재는 WAV만 지원 (DSD 디코딩은 이후 마일스톤 예정)</translation>
    </message>
    <message>
        <source>解码失败: %1</source>
        <translation>디코딩 실패: %1</translation>
    </message>
</context>
</TS>