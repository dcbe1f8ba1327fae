#include "preset_manager_dialog.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int kPathRole = Qt::UserRole;
}

PresetManagerDialog::PresetManagerDialog(PresetStore store, PresetHost host, QWidget* parent)
    : QDialog(parent)
    , store_(std::move(store))
    , host_(std::move(host))
{
    setWindowTitle(tr("预设管理器"));
    resize(440, 480);
    auto* layout = new QVBoxLayout(this);
    list_ = new QListWidget(this);
    layout->addWidget(list_, 1);

    auto* hint = new QLabel(
        tr("预设为 JSON 文件 (与 GTK 版同目录同键名, 可互读)\n写入目录: %1").arg(store_.writeDir()), this);
    hint->setWordWrap(true);
    hint->setStyleSheet(QStringLiteral("color: palette(mid); font-size: 10px;"));
    hint->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(hint);

    auto* row = new QHBoxLayout;
    load_ = new QPushButton(tr("加载选中"), this);
    delete_ = new QPushButton(tr("删除选中"), this);
    auto* save = new QPushButton(tr("保存当前为…"), this);
    auto* close = new QPushButton(tr("关闭"), this);
    for (QPushButton* b : {load_, delete_, save, close})
        row->addWidget(b);
    layout->addLayout(row);

    connect(load_, &QPushButton::clicked, this, &PresetManagerDialog::loadSelected);
    connect(delete_, &QPushButton::clicked, this, &PresetManagerDialog::deleteSelected);
    connect(save, &QPushButton::clicked, this, &PresetManagerDialog::saveCurrentAs);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    connect(list_, &QListWidget::itemDoubleClicked, this, &PresetManagerDialog::loadSelected);
    connect(list_, &QListWidget::currentItemChanged, this, &PresetManagerDialog::updateButtons);
    connect(list_, &QListWidget::itemSelectionChanged, this, &PresetManagerDialog::updateButtons);

    refill();
}

void PresetManagerDialog::refill()
{
    list_->clear();
    for (const PresetEntry& entry : store_.list()) {
        auto* item = new QListWidgetItem(entry.name, list_);
        item->setData(kPathRole, entry.path);
        item->setToolTip(entry.path);
    }
    updateButtons();
}

void PresetManagerDialog::updateButtons()
{
    const bool current = list_->currentItem() != nullptr;
    load_->setEnabled(current);
    delete_->setEnabled(current);
}

void PresetManagerDialog::loadSelected()
{
    if (QListWidgetItem* item = list_->currentItem())
        loadPath(item->data(kPathRole).toString(), item->text());
}

void PresetManagerDialog::loadPath(const QString& path, const QString& name)
{
    const PresetLoad loaded = PresetStore::load(path);
    if (loaded.status == PresetLoad::CannotRead) {
        QMessageBox::warning(this, tr("预设"), tr("无法读取: %1").arg(path));
        return;
    }
    if (loaded.status == PresetLoad::ParseError) {
        QMessageBox::warning(this, tr("预设"), tr("预设文件解析失败: %1").arg(loaded.error));
        return;
    }
    host_.apply(loaded.settings);
    if (loaded.unsupportedKeys > 0)
        host_.log(tr("预设含 %1 个本版未支持字段, 已忽略").arg(loaded.unsupportedKeys), false);
    host_.log(tr("已加载预设: %1").arg(name), false);
}

void PresetManagerDialog::deleteSelected()
{
    QListWidgetItem* item = list_->currentItem();
    if (!item)
        return;
    const QString path = item->data(kPathRole).toString();
    if (QMessageBox::question(this, tr("删除预设"), tr("确定删除预设 %1 ?").arg(item->text()),
                              QMessageBox::Yes | QMessageBox::No)
        != QMessageBox::Yes)
        return;
    if (!PresetStore::remove(path))
        QMessageBox::warning(this, tr("预设"), tr("删除失败: %1").arg(path));
    refill();
}

void PresetManagerDialog::saveCurrentAs()
{
    bool ok = false;
    const QString name =
        QInputDialog::getText(this, tr("另存为"), tr("预设名称:"), QLineEdit::Normal, QString(), &ok).trimmed();
    if (!ok || name.isEmpty())
        return;
    saveAs(name, [this](const QString& shownName) {
        return QMessageBox::question(this, tr("另存为"), tr("预设 %1 已存在, 覆盖?").arg(shownName),
                                     QMessageBox::Yes | QMessageBox::No)
            == QMessageBox::Yes;
    });
}

void PresetManagerDialog::saveAs(const QString& rawName, const std::function<bool(const QString&)>& confirmOverwrite)
{
    const QString name = rawName.trimmed();
    if (name.isEmpty())
        return;
    // A name that cannot be a file is refused before anything is written.
    const QString problem = PresetStore::nameProblem(name);
    if (!problem.isEmpty()) {
        QMessageBox::warning(this, tr("另存为"), tr("预设名称无效: %1").arg(problem));
        return;
    }
    const QString path = store_.pathForName(name);
    if (QFileInfo::exists(path) && !confirmOverwrite(name))
        return;
    const PresetSave saved = store_.save(name, host_.collect());
    if (saved.status != PresetSave::Ok) {
        QMessageBox::warning(this, tr("另存为"), tr("保存失败: %1").arg(saved.path.isEmpty() ? path : saved.path)
                                                     + QStringLiteral("\n") + saved.error);
    } else {
        host_.log(tr("已保存预设: %1").arg(saved.path), false);
    }
    refill();
}
