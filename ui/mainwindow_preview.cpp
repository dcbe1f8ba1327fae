#include "mainwindow.h"

#include <QFileInfo>
#include <QStatusBar>

#include "conversion_queue.h"
#include "file_list_widget.h"
#include "io_panel.h"
#include "preview_dialog.h"

void MainWindow::previewCurrentFile()
{
    if (refuseWhileConverting(tr("转换进行中, 不能预览")))
        return;
    const FileListWidget* list = io_->fileList();
    const QStringList queued = list->paths();
    const int row = list->currentRow();
    if (queued.isEmpty()) {
        statusBar()->showMessage(tr("请先添加文件"), 3000);
        return;
    }
    const QString path = row >= 0 && row < queued.size() ? queued.at(row) : queued.first();
    if (path.isEmpty()) {
        statusBar()->showMessage(tr("没有可预览的文件"), 3000);
        return;
    }
    openPreview(path);
}

void MainWindow::openPreview(const QString& path, bool spectrogram)
{
    // Non-modal and self-deleting: several previews may stay open at once.
    auto* dialog = new pv::PreviewDialog(path, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (spectrogram)
        dialog->showPage(pv::PreviewDialog::SpectrogramPage);
    dialog->show();
}

bool MainWindow::runPreviewHook()
{
    // The demonstration and test hooks take turns; earlier ones win.
    for (const char* earlier : {"ZUVO_GUI_EQDEMO", "ZUVO_GUI_PLAYDEMO", "ZUVO_AI_PLAYTEST", "ZUVO_AI_RECTEST"}) {
        if (qEnvironmentVariableIsSet(earlier))
            return false;
    }
    if (!qEnvironmentVariableIsSet("ZUVO_PREVIEW_FILE"))
        return false;
    const QString path = qEnvironmentVariable("ZUVO_PREVIEW_FILE");
    if (!QFileInfo(path).isFile())
        return false;
    openPreview(path, qEnvironmentVariableIsSet("ZUVO_PREVIEW_SPECTRO"));
    return true;
}
