#include "per_track_dialog.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

PerTrackDialog::PerTrackDialog(const QStringList& files, const QList<PresetEntry>& presets,
                               const PerTrackAssignment& current, QWidget* parent)
    : QDialog(parent)
    , files_(files)
{
    setWindowTitle(tr("逐轨预设 (每个文件可各用一套)"));
    resize(720, 420);
    auto* layout = new QVBoxLayout(this);
    auto* hint = new QLabel(tr("每行给一个文件挑一套预设; 「(用当前参数)」= 跟随主面板。\n"
                               "预设只换编码/DSP 参数 —— 输出目录/输出格式与标签仍按主面板。"),
                            this);
    hint->setWordWrap(true);
    layout->addWidget(hint);

    table_ = new QTableWidget(files.size(), 2, this);
    table_->setHorizontalHeaderLabels({tr("文件"), tr("预设")});
    table_->setSelectionMode(QAbstractItemView::NoSelection);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    table_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    table_->verticalHeader()->setVisible(false);
    for (int row = 0; row < files.size(); ++row) {
        auto* item = new QTableWidgetItem(QFileInfo(files[row]).fileName());
        item->setToolTip(files[row]);
        table_->setItem(row, 0, item);
        auto* combo = new QComboBox(table_);
        combo->addItem(tr("(用当前参数)"), QString());
        for (const PresetEntry& p : presets)
            combo->addItem(p.name, p.path);
        // A preset deleted since it was assigned is no longer offered, so
        // the row falls back to the panel's parameters.
        const int chosen = combo->findData(current.value(files[row]));
        combo->setCurrentIndex(chosen < 0 ? 0 : chosen);
        table_->setCellWidget(row, 1, combo);
    }
    layout->addWidget(table_, 1);

    if (presets.isEmpty())
        layout->addWidget(new QLabel(tr("(预设目录里没有预设 —— 先在上面「母带预设」里保存一套)"), this));

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    auto* ok = new QPushButton(tr("确定"), this);
    auto* cancel = new QPushButton(tr("取消"), this);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    layout->addLayout(buttons);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

QComboBox* PerTrackDialog::comboAt(int row) const
{
    return qobject_cast<QComboBox*>(table_->cellWidget(row, 1));
}

PerTrackAssignment PerTrackDialog::assignment() const
{
    PerTrackAssignment result;
    for (int row = 0; row < files_.size(); ++row) {
        const QString preset = comboAt(row)->currentData().toString();
        if (!preset.isEmpty())
            result.insert(files_[row], preset);
    }
    return result;
}

QString presetNameOf(const QString& path)
{
    return QFileInfo(path).completeBaseName();
}
