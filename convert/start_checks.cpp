#include "start_checks.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace {

// The checks speak in the main window's words and share its translations.
struct Text {
    Q_DECLARE_TR_FUNCTIONS(MainWindow)
};

StartProblem warning(const QString& title, const QString& text)
{
    return {false, title, text};
}

StartProblem critical(const QString& title, const QString& text)
{
    return {true, title, text};
}

bool folderMode(const ConversionSettings& s)
{
    return !s.output_dir.isEmpty();
}

std::optional<StartProblem> checkExtension(const ConversionSettings& s)
{
    const QString ext = outputExtension(s);
    if (s.reverse) {
        if (ext != QLatin1String(".wav") && ext != QLatin1String(".flac"))
            return warning(Text::tr("输出格式"), Text::tr("逆向模式 (PDM2PCM) 的输出必须是 .wav 或 .flac"));
        return std::nullopt;
    }
    if (s.dxd) {
        if (ext != QLatin1String(".wav") && ext != QLatin1String(".w64") && ext != QLatin1String(".flac"))
            return warning(Text::tr("输出格式"), Text::tr("DXD 输出只支持 .wav / .w64 / .flac (引擎按扩展名认容器)"));
        return std::nullopt;
    }
    if (s.use_dst && ext != QLatin1String(".dff"))
        return critical(Text::tr("错误"), Text::tr("错误: DST 压缩仅支持 DFF 格式输出\n请把输出格式/扩展名改为 .dff 或禁用 DST 压缩"));
    if (ext != QLatin1String(".dsf") && ext != QLatin1String(".dff"))
        return warning(Text::tr("输出格式"), Text::tr("输出文件必须是 .dsf 或 .dff 格式"));
    return std::nullopt;
}

} // namespace

QString outputExtension(const ConversionSettings& s)
{
    if (folderMode(s))
        return QLatin1Char('.') + s.output_ext.toLower();
    const QString suffix = QFileInfo(s.output_path).suffix().toLower();
    return suffix.isEmpty() ? QString() : QLatin1Char('.') + suffix;
}

std::optional<StartProblem> checkConversionStart(const StartCheckContext& context,
                                                 const ConversionSettings& s)
{
    if (context.converting)
        return warning(Text::tr("转换中"), Text::tr("已有转换任务正在进行中, 请等待完成。"));
    if (context.fileCount <= 0)
        return warning(Text::tr("输入文件"), Text::tr("请选择输入文件"));
    if (auto problem = checkExtension(s))
        return problem;
    if (outputExtension(s) == QLatin1String(".dff") && (s.artist.isEmpty() || s.title.isEmpty()))
        return warning(Text::tr("元数据"),
                       Text::tr("输出 .dff 必须填「艺术家」和「标题」两个值\n(它们是 DFF 的 COMT 标签; 必填项, 不填不开始转换)"));
    if (!s.reverse && s.taps != 0 && (s.taps % 2 != 0 || s.taps < 512))
        return warning(Text::tr("Taps"), Text::tr("Taps 必须是偶数且不小于 512 (0 = 用引擎默认值)"));
    if (s.passband_cutoff >= 1 && s.stopband_cutoff >= 1 && s.stopband_cutoff <= s.passband_cutoff)
        return warning(Text::tr("过渡带"), Text::tr("阻带截止必须大于通带截止 (否则过渡带为零/负, 引擎会拒绝)"));
    if (folderMode(s)) {
        if (!QDir().mkpath(s.output_dir))
            return critical(Text::tr("输出目录"), Text::tr("无法创建输出目录:\n%1").arg(s.output_dir));
    } else if (s.output_path.isEmpty()) {
        return warning(Text::tr("输出文件"), Text::tr("请选择输出文件"));
    }
    if (s.noise_profiling && !s.pdfreport)
        return warning(Text::tr("噪声本底分析"), Text::tr("噪声本底分析需要勾选 PDF 报告才能生效\n请启用「PDF 报告」开关"));
    if (s.enable_eq) {
        const bool anyValid = std::any_of(s.eq_bands.begin(), s.eq_bands.end(),
                                          [](const EqBand& b) { return b.centerFreq > 0; });
        if (!anyValid)
            return warning(Text::tr("均衡器"),
                           Text::tr("启用了均衡器但没有有效频段\n请添加至少一个频段 (中心频率 > 0), 或禁用均衡器"));
    }
    if (!context.locateEngine || context.locateEngine().isEmpty())
        return critical(Text::tr("引擎缺失"),
                        Text::tr("未找到 ZuvoEngine。请将其放在程序同目录、或加入 PATH,\n也可设置环境变量 ZUVO_ENGINE_BIN 指向其完整路径。"));
    return std::nullopt;
}
