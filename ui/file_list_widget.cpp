#include "file_list_widget.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

#include "audio_files.h"

namespace {

QString marker(FileListWidget::State state)
{
    switch (state) {
    case FileListWidget::State::Running: return QStringLiteral("▸ ");
    case FileListWidget::State::Done: return QStringLiteral("✓ ");
    case FileListWidget::State::Failed: return QStringLiteral("✗ ");
    case FileListWidget::State::Stopped: return QStringLiteral("■ ");
    case FileListWidget::State::Waiting: break;
    }
    return {};
}

} // namespace

FileListWidget::FileListWidget(QWidget* parent)
    : QListWidget(parent)
{
    setAcceptDrops(true);
    setDragDropMode(QAbstractItemView::DropOnly);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
}

void FileListWidget::setDropHandler(std::function<void(const QStringList&)> handler)
{
    onDrop_ = std::move(handler);
}

QStringList FileListWidget::paths() const
{
    return paths_;
}

void FileListWidget::appendPaths(const QStringList& paths)
{
    for (const QString& p : paths) {
        paths_ << p;
        states_ << State::Waiting;
        addItem(QString());
        refreshText(count() - 1);
    }
}

void FileListWidget::removeSelected()
{
    QList<int> rows;
    for (QListWidgetItem* item : selectedItems())
        rows << row(item);
    std::sort(rows.begin(), rows.end(), std::greater<>());
    for (int r : rows) {
        delete takeItem(r);
        paths_.removeAt(r);
        states_.removeAt(r);
    }
}

void FileListWidget::clearAll()
{
    clear();
    paths_.clear();
    states_.clear();
}

void FileListWidget::setState(int row, State state)
{
    if (row < 0 || row >= states_.size())
        return;
    states_[row] = state;
    refreshText(row);
}

void FileListWidget::setPresetNames(const QHash<QString, QString>& presetNameByPath)
{
    presetNames_ = presetNameByPath;
    for (int row = 0; row < count(); ++row)
        refreshText(row);
}

void FileListWidget::refreshText(int row)
{
    QListWidgetItem* it = item(row);
    if (!it)
        return;
    QString text = marker(states_[row]) + paths_[row];
    const QString preset = presetNames_.value(paths_[row]);
    if (!preset.isEmpty())
        text += tr("  ◇ 预设: %1").arg(preset);
    it->setText(text);
}

void FileListWidget::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void FileListWidget::dragMoveEvent(QDragMoveEvent* event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void FileListWidget::dropEvent(QDropEvent* event)
{
    if (!event->mimeData()->hasUrls())
        return;
    QStringList collected;
    for (const QUrl& url : event->mimeData()->urls()) {
        if (!url.isLocalFile())
            continue;
        const QString local = url.toLocalFile();
        const QFileInfo info(local);
        if (info.isDir())
            collected << scanAudioFiles(local);
        else if (isAudioFile(local))
            collected << info.absoluteFilePath();
    }
    event->acceptProposedAction();
    if (onDrop_ && !collected.isEmpty())
        onDrop_(collected);
}
