// The main window's preset feature: the preset manager, per-track presets
// and the queue's question about a file's own preset.
#include "mainwindow.h"

#include <QMessageBox>
#include <QStatusBar>

#include "conversion_queue.h"
#include "file_list_widget.h"
#include "io_panel.h"
#include "pages/basic_page.h"
#include "preset_manager_dialog.h"

void MainWindow::connectPresets()
{
    connect(basic_, &BasicPage::presetManagerRequested, this, &MainWindow::openPresetManager);
    connect(io_, &InputOutputPanel::perTrackRequested, this, &MainWindow::openPerTrackPresets);
    queue_->setPresetLookup([this](const QString& file) -> std::optional<ConversionQueue::PresetRef> {
        const QString preset = perTrack_.value(file);
        if (preset.isEmpty())
            return std::nullopt;
        return ConversionQueue::PresetRef{presetNameOf(preset), preset};
    });
}

void MainWindow::openPresetManager()
{
    if (refuseWhileConverting(tr("转换进行中, 不能修改预设")))
        return;
    PresetHost host{
        [this] { return collectSettings(); },
        [this](const ConversionSettings& s) { applySettings(s); },
        [this](const QString& text, bool isError) { appendLog(text, isError); },
    };
    PresetManagerDialog dialog(PresetStore::forApplication(), std::move(host), this);
    dialog.exec();
}

void MainWindow::openPerTrackPresets()
{
    if (queue_->isConverting()) {
        QMessageBox::warning(this, tr("转换中"), tr("转换进行中, 不能改逐轨预设。"));
        return;
    }
    const QStringList files = io_->fileList()->paths();
    if (files.isEmpty()) {
        QMessageBox::warning(this, tr("输入文件"), tr("请先添加输入文件"));
        return;
    }
    PerTrackDialog dialog(files, PresetStore::forApplication().list(), perTrack_, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    perTrack_ = dialog.assignment();
    QHash<QString, QString> names;
    for (auto it = perTrack_.cbegin(); it != perTrack_.cend(); ++it)
        names.insert(it.key(), presetNameOf(it.value()));
    io_->fileList()->setPresetNames(names);
    if (perTrack_.isEmpty())
        appendLog(tr("逐轨预设: 已全部改回「用当前参数」"));
    else
        appendLog(tr("逐轨预设: %1 个文件各用一套").arg(perTrack_.size()));
}
