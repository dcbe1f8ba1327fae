#pragma once
#include <QDialog>
#include <functional>

#include "conversion_settings.h"
#include "preset_store.h"

class QListWidget;
class QPushButton;

// What the preset dialogs need from the window: the panel's record in and
// out, and its log.
struct PresetHost {
    std::function<ConversionSettings()> collect;
    std::function<void(const ConversionSettings&)> apply;
    std::function<void(const QString& text, bool isError)> log;
};

// Load, delete and save named presets. Stays open after every operation so
// that a user can try several in a row.
class PresetManagerDialog : public QDialog {
    Q_OBJECT
public:
    PresetManagerDialog(PresetStore store, PresetHost host, QWidget* parent = nullptr);

    void loadSelected();
    void deleteSelected();
    void saveCurrentAs();
    // Reads the preset at `path` without a base record and applies it.
    void loadPath(const QString& path, const QString& name);
    // Saves under `name`; `confirmOverwrite` is asked when the file exists.
    void saveAs(const QString& name, const std::function<bool(const QString&)>& confirmOverwrite);

    QListWidget* list() const { return list_; }

private:
    void refill();
    void updateButtons();

    PresetStore store_;
    PresetHost host_;
    QListWidget* list_ = nullptr;
    QPushButton* load_ = nullptr;
    QPushButton* delete_ = nullptr;
};
