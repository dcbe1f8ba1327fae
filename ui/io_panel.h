#pragma once
#include <QWidget>
#include <functional>

#include "conversion_settings.h"

class FileListWidget;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

// The top of the main window: the file queue with its buttons, where the
// output goes (file, or folder + format + naming template) and the tags.
class InputOutputPanel : public QWidget {
    Q_OBJECT
public:
    explicit InputOutputPanel(QWidget* parent = nullptr);

    FileListWidget* fileList() const { return fileList_; }
    void updateCount();

    // Copies the output and tag fields into `settings`.
    void collectInto(ConversionSettings& settings) const;

    void setOutputFile(const QString& path);
    // Tells the output-file dialog whether the run writes PCM (reverse or DXD).
    void setPcmOutputQuery(std::function<bool()> query) { pcmOutput_ = std::move(query); }
    void setOutputFolder(const QString& path);

signals:
    // Paths chosen in a dialog or dropped; the window decides whether they join.
    void pathsOffered(const QStringList& paths);
    void removeRequested();
    void clearRequested();
    void previewRequested();
    void outputFileChosen(const QString& path);
    // A folder was chosen but holds no audio file.
    void emptyFolderChosen();

private:
    void chooseInputFiles();
    void chooseInputFolder();
    void chooseOutputFile();
    void chooseOutputFolder();
    QWidget* buildOutputRows();
    QWidget* buildTagRows();

    FileListWidget* fileList_ = nullptr;
    QLabel* countLabel_ = nullptr;
    QLineEdit* outputFile_ = nullptr;
    QLineEdit* outputDir_ = nullptr;
    QComboBox* format_ = nullptr;
    QLineEdit* nameTemplate_ = nullptr;
    QLineEdit* artist_ = nullptr;
    QLineEdit* title_ = nullptr;
    QLineEdit* album_ = nullptr;
    QLineEdit* genre_ = nullptr;
    QLineEdit* year_ = nullptr;
    QSpinBox* track_ = nullptr;
    QLineEdit* comment_ = nullptr;
    QCheckBox* metadataFromInput_ = nullptr;
    std::function<bool()> pcmOutput_;
};
