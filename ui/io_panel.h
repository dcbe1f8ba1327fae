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

    QString outputFile() const;
    QString outputFolder() const;
    QString outputFormat() const;
    void setOutputFormat(const QString& format);
    // Changes the output file's text without leaving folder mode.
    void replaceOutputFile(const QString& path);
    // Shows the tag fields of `settings`.
    void applyTags(const ConversionSettings& settings);
    // While a queue runs the output and tag fields take no edits.
    void setParametersLocked(bool locked);

signals:
    // Paths chosen in a dialog or dropped; the window decides whether they join.
    void pathsOffered(const QStringList& paths);
    void removeRequested();
    void clearRequested();
    void previewRequested();
    void perTrackRequested();
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

    QWidget* outputRows_ = nullptr;
    QWidget* tagRows_ = nullptr;

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
