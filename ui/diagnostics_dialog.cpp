#include "diagnostics_dialog.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "diagnostics_text.h"
#include "engine_discovery.h"

// The dialog's texts belong to the main window's translation context.

DiagnosticsDialog::DiagnosticsDialog(const QString& enginePath, const QString& probeLog, QWidget* parent)
    : QDialog(parent)
    , enginePath_(enginePath)
    , probeLog_(probeLog)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QCoreApplication::translate("MainWindow", "关于 / 诊断"));
    resize(780, 540);
    auto* layout = new QVBoxLayout(this);
    auto* intro = new QLabel(
        QCoreApplication::translate("MainWindow", "ZuvoAudioTools — ZuvoEngine 的转码前端 (QProcess 子进程)\n引擎路径: %1\n注: 引擎的帮助/版本类子命令本来就以非 0 "
               "退出码收尾, 属既有行为。\n探测是异步的: 点完可以继续操作界面, 结果到了会显示在下面。")
            .arg(enginePath_.isEmpty() ? QCoreApplication::translate("MainWindow", "(未找到)") : enginePath_),
        this);
    intro->setWordWrap(true);
    layout->addWidget(intro);
    text_ = new QPlainTextEdit(this);
    text_->setReadOnly(true);
    text_->setPlaceholderText(QCoreApplication::translate("MainWindow", "点下面任一按钮看引擎的回答"));
    layout->addWidget(text_, 1);

    auto* row = new QHBoxLayout;
    const char* labels[3] = {QT_TRANSLATE_NOOP("MainWindow", "引擎版本 (--version)"),
                             QT_TRANSLATE_NOOP("MainWindow", "列出音频设备 (--list-devices)"),
                             QT_TRANSLATE_NOOP("MainWindow", "引擎帮助 (--help)")};
    const char* options[3] = {"--version", "--list-devices", "--help"};
    for (int i = 0; i < 3; ++i) {
        buttons_[i] = new QPushButton(QCoreApplication::translate("MainWindow", labels[i]), this);
        const QString option = QString::fromLatin1(options[i]);
        connect(buttons_[i], &QPushButton::clicked, this, [this, option] { runProbe({option}); });
        row->addWidget(buttons_[i]);
    }
    row->addStretch(1);
    auto* close = new QPushButton(QCoreApplication::translate("MainWindow", "关闭"), this);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    row->addWidget(close);
    layout->addLayout(row);

    process_ = new QProcess(this);
    timer_ = new QTimer(this);
    timer_->setSingleShot(true);
    connect(timer_, &QTimer::timeout, this, &DiagnosticsDialog::onTimeout);
    connect(process_, &QProcess::finished, this, [this](int exitCode) { onFinished(exitCode); });
    connect(process_, &QProcess::errorOccurred, this, [this] { onError(); });
}

DiagnosticsDialog::~DiagnosticsDialog()
{
    if (cursorSet_)
        QApplication::restoreOverrideCursor();
    if (process_->state() != QProcess::NotRunning) {
        process_->disconnect(this);
        process_->kill();
        process_->waitForFinished(2000);
    }
}

void DiagnosticsDialog::setBusy(bool busy)
{
    busy_ = busy;
    for (QPushButton* b : buttons_)
        b->setEnabled(!busy);
    if (busy && !cursorSet_) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        cursorSet_ = true;
    } else if (!busy && cursorSet_) {
        QApplication::restoreOverrideCursor();
        cursorSet_ = false;
    }
}

void DiagnosticsDialog::runProbe(const QStringList& arguments)
{
    if (busy_)
        return;
    if (enginePath_.isEmpty())
        enginePath_ = findEngine();
    if (enginePath_.isEmpty()) {
        text_->setPlainText(QCoreApplication::translate("MainWindow", "未找到 ZuvoEngine —— 请把它放在程序同目录、加入 PATH, 或设置环境变量 ZUVO_ENGINE_BIN。"));
        return;
    }
    setBusy(true);
    const QString cmdline = QStringLiteral("%1 %2").arg(enginePath_, arguments.join(QLatin1Char(' ')));
    process_->setProperty("cmdline", cmdline);
    text_->setPlainText(QCoreApplication::translate("MainWindow", "$ %1\n\n运行中… (界面不冻, 可继续操作)\n").arg(cmdline));
    timer_->start(kTimeoutMs);
    QStringList args = arguments;
    process_->setProperty("probelog", QString());
    if (!probeLog_.isEmpty()) {
        args << QStringLiteral("--log-file") << probeLog_;
        process_->setProperty("probelog", probeLog_);
    }
    process_->start(enginePath_, args, QIODevice::ReadWrite);
}

void DiagnosticsDialog::onFinished(int exitCode)
{
    timer_->stop();
    const QString out = QString::fromUtf8(process_->readAllStandardOutput());
    const QString err = QString::fromUtf8(process_->readAllStandardError());
    const QString shown = diagnosticsResultText(process_->property("cmdline").toString(), out, err,
                                                process_->property("probelog").toString(), exitCode);
    // A timeout's note stays under the result.
    const QString note = text_->property("timeoutNote").toString();
    text_->setPlainText(shown + note);
    text_->setProperty("timeoutNote", QString());
    setBusy(false);
}

void DiagnosticsDialog::onError()
{
    if (process_->state() != QProcess::NotRunning)
        return; // the finish handler will come
    timer_->stop();
    text_->setPlainText(QCoreApplication::translate("MainWindow", "引擎启动失败: %1").arg(process_->errorString()));
    setBusy(false);
}

void DiagnosticsDialog::onTimeout()
{
    if (process_->state() == QProcess::NotRunning)
        return;
    const QString note = QCoreApplication::translate("MainWindow", "\n引擎 30s 无响应, 已终止 (不进设备, 不会影响到正在跑的任务)。");
    text_->appendPlainText(note);
    text_->setProperty("timeoutNote", note);
    process_->kill();
}
