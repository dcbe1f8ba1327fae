// The main window's conversion feature: start checks, the file queue's
// edits, the automation hook and the end-of-batch dialog.
#include "mainwindow.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

#include "audio_files.h"
#include "conversion_queue.h"
#include "engine_discovery.h"
#include "file_list_widget.h"
#include "io_panel.h"
#include "preset_store.h"
#include "run_controls.h"
#include "start_checks.h"
#include "startup_env.h"

void MainWindow::addPaths(const QStringList& paths)
{
    if (refuseWhileConverting(tr("转换进行中, 不能修改文件列表")))
        return;
    const QueueAddition plan = planQueueAddition(io_->fileList()->paths(), paths);
    io_->fileList()->appendPaths(plan.added);
    io_->updateCount();
    appendLog(tr("已添加 %1 个文件").arg(plan.added.size()));
    if (plan.duplicates > 0)
        appendLog(tr("已跳过 %1 个重复文件").arg(plan.duplicates));
}

void MainWindow::startConversion()
{
    const ConversionSettings settings = collectSettings();
    StartCheckContext context;
    context.converting = queue_->isConverting();
    context.fileCount = io_->fileList()->count();
    context.locateEngine = [this] {
        if (enginePath_.isEmpty())
            enginePath_ = findEngine();
        return enginePath_;
    };
    if (const std::optional<StartProblem> problem = checkConversionStart(context, settings)) {
        showStartProblem(*problem);
        return;
    }
    if (refuseUnsupportedOptions(settings))
        return;
    for (int row = 0; row < io_->fileList()->count(); ++row)
        io_->fileList()->setState(row, FileListWidget::State::Waiting);
    queue_->start(io_->fileList()->paths(), settings, enginePath_);
}

void MainWindow::showStartProblem(const StartProblem& problem)
{
    if (closeAfterAutorun_) {
        // Nobody is there to read a box: say it in the log and end the run.
        appendLog(problem.title + QStringLiteral(": ") + problem.text, true);
        QTimer::singleShot(0, this, &QWidget::close); // after the window is up, so closing ends the program
        return;
    }
    auto* box = new QMessageBox(problem.critical ? QMessageBox::Critical : QMessageBox::Warning, problem.title,
                                problem.text, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void MainWindow::stopConversion()
{
    queue_->stopConversion();
}

void MainWindow::onQueueFinished(int doneCount, int failedCount, bool, const QString& outputFolder)
{
    if (closeAfterAutorun_) {
        QTimer::singleShot(0, this, &QWidget::close);
        return;
    }
    if (doneCount < 1)
        return;
    auto* box = new QMessageBox(QMessageBox::Information, tr("转换完成"),
                                failedCount == 0 ? tr("转换 %1 个文件").arg(doneCount)
                                                 : tr("转换 %1 个文件, %2 个失败").arg(doneCount).arg(failedCount),
                                QMessageBox::NoButton, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* open = box->addButton(tr("打开输出目录"), QMessageBox::AcceptRole);
    box->addButton(tr("关闭"), QMessageBox::RejectRole);
    connect(box, &QMessageBox::buttonClicked, this, [open, outputFolder](QAbstractButton* clicked) {
        if (clicked == open)
            QDesktopServices::openUrl(QUrl::fromLocalFile(outputFolder));
    });
    // Not exec(): the window keeps drawing and automation is never stuck on a dialog.
    box->open();
}

void MainWindow::runAutorun(const QString& value, bool closeWhenDone)
{
    QStringList parts = splitAutorunValue(value);
    if (parts.size() < 2) {
        appendLog(tr("AUTORUN 参数不完整"));
        return;
    }
    const QString output = parts.takeLast();
    appendLog(tr("AUTORUN: %1 个输入 → %2").arg(parts.size()).arg(output));
    closeAfterAutorun_ = closeWhenDone;
    // Automation can give the run a preset, as a user would have loaded one.
    if (const QString preset = qEnvironmentVariable("ZUVO_AI_PRESET"); !preset.isEmpty()) {
        ConversionSettings base = settings_;
        collectInto(base);
        const PresetLoad read = PresetStore::load(preset, &base);
        const bool ok = read.status == PresetLoad::Ok;
        if (ok)
            applySettings(read.settings);
        appendLog(ok ? tr("AUTORUN 预设: %1").arg(preset)
                     : tr("✗ AUTORUN 预设无法使用: %1 (%2)").arg(preset, read.error),
                  !ok);
    }
    if (QFileInfo(output).isDir() || output.endsWith(QLatin1Char('/')))
        io_->setOutputFolder(output);
    else
        io_->setOutputFile(output);
    addPaths(parts);
    startConversion();
}
