#pragma once
#include <QDialog>
#include <QHash>
#include <QList>
#include <QStringList>

#include "preset_store.h"

class QComboBox;
class QTableWidget;

// Input path (as queued) -> absolute preset path. A file without an entry
// follows the main panel.
using PerTrackAssignment = QHash<QString, QString>;

// One row per queued file, each with a combo of the presets on disk.
class PerTrackDialog : public QDialog {
    Q_OBJECT
public:
    PerTrackDialog(const QStringList& files, const QList<PresetEntry>& presets,
                   const PerTrackAssignment& current, QWidget* parent = nullptr);

    // The assignment the rows show now (read after the dialog is accepted).
    PerTrackAssignment assignment() const;
    QComboBox* comboAt(int row) const;

private:
    QStringList files_;
    QTableWidget* table_ = nullptr;
};

// The name of the preset at `path` (its complete base name).
QString presetNameOf(const QString& path);
