#pragma once
#include <QHash>
#include <QListWidget>
#include <functional>

// The conversion queue as the user sees it: one row per file, with a state
// marker in front. Accepts dropped files and folders and hands the audio
// files among them to a callback.
class FileListWidget : public QListWidget {
    Q_OBJECT
public:
    enum class State { Waiting, Running, Done, Failed, Stopped };

    explicit FileListWidget(QWidget* parent = nullptr);

    void setDropHandler(std::function<void(const QStringList&)> handler);

    QStringList paths() const;
    void appendPaths(const QStringList& paths);
    void removeSelected();
    void clearAll();
    void setState(int row, State state);
    // Names of the presets assigned to queued paths; rows show them as a
    // suffix. Replaces the previous assignment.
    void setPresetNames(const QHash<QString, QString>& presetNameByPath);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void refreshText(int row);

    QStringList paths_;
    QList<State> states_;
    QHash<QString, QString> presetNames_;
    std::function<void(const QStringList&)> onDrop_;
};
