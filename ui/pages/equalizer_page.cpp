#include "equalizer_page.h"

#include <QCoreApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "eq_curve_widget.h"

namespace {

enum Column { Freq = 0, Gain = 1, Width = 2, Unit = 3 };
const char kUnits[] = {'q', 'h', 'k', 'o', 's'};

QString numberText(double v)
{
    return QString::number(v, 'g', 12);
}

// Typed numbers are read in the C locale first ("0.707"), then in the
// user's ("0,707"); anything else counts as 0.
double cellNumber(const QTableWidgetItem* item)
{
    if (!item)
        return 0.0;
    const QString text = item->text().trimmed();
    bool ok = false;
    double v = QLocale::c().toDouble(text, &ok);
    if (!ok)
        v = QLocale().toDouble(text, &ok);
    return ok ? v : 0.0;
}

} // namespace

EqualizerPage::EqualizerPage(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    auto* top = new QHBoxLayout;
    enable_ = new QCheckBox(QCoreApplication::translate("MainWindow", "启用均衡器 (EQ)"), this);
    enable_->setToolTip(QStringLiteral("--eq 'freq,gain,bw{q|h|k|o|s}'"));
    add_ = new QPushButton(QCoreApplication::translate("MainWindow", "添加频段"), this);
    remove_ = new QPushButton(QCoreApplication::translate("MainWindow", "移除选中"), this);
    clear_ = new QPushButton(QCoreApplication::translate("MainWindow", "清空"), this);
    top->addWidget(enable_);
    top->addStretch(1);
    top->addWidget(add_);
    top->addWidget(remove_);
    top->addWidget(clear_);
    layout->addLayout(top);

    auto* body = new QHBoxLayout;
    table_ = new QTableWidget(0, 4, this);
    table_->setHorizontalHeaderLabels({QCoreApplication::translate("MainWindow", "中心频率 (Hz)"),
                                       QCoreApplication::translate("MainWindow", "增益 (dB)"),
                                       QCoreApplication::translate("MainWindow", "带宽"),
                                       QCoreApplication::translate("MainWindow", "单位")});
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table_->verticalHeader()->setVisible(false);
    table_->setMinimumHeight(140);
    table_->setMinimumWidth(300);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    curve_ = new EqCurveWidget(this);
    body->addWidget(table_, 2);
    body->addWidget(curve_, 3);
    layout->addLayout(body, 1);
    auto* note = new QLabel(
        QCoreApplication::translate("MainWindow", "预览按 44.1 kHz 估算 — 引擎槽位: 首段低架, 满 10 段时末段高架"),
        this);
    note->setStyleSheet(QStringLiteral("color: palette(mid);"));
    layout->addWidget(note);

    setEditingEnabled(false);
    connect(enable_, &QCheckBox::toggled, this, [this](bool on) {
        setEditingEnabled(on);
        curve_->setEqEnabled(on);
    });
    connect(enable_, &QCheckBox::clicked, this, [this](bool on) {
        emit logLine(on ? QCoreApplication::translate("MainWindow", "启用均衡器 (--eq 频段 f,g,bw{单位})")
                        : QCoreApplication::translate("MainWindow", "禁用均衡器"));
    });
    connect(add_, &QPushButton::clicked, this, [this] { addBand(EqBand{1000.0, 0.0, 1.0, 'q'}); });
    connect(remove_, &QPushButton::clicked, this, [this] {
        QList<int> rows;
        for (const QModelIndex& index : table_->selectionModel()->selectedRows())
            rows.append(index.row());
        std::sort(rows.begin(), rows.end(), std::greater<int>());
        for (int row : rows)
            table_->removeRow(row);
        refreshCurve();
    });
    connect(clear_, &QPushButton::clicked, this, [this] {
        table_->setRowCount(0);
        refreshCurve();
    });
    connect(table_, &QTableWidget::itemChanged, this, [this] {
        if (!filling_)
            refreshCurve();
    });
}

void EqualizerPage::setEditingEnabled(bool on)
{
    for (QWidget* w : std::initializer_list<QWidget*>{add_, remove_, clear_, table_})
        w->setEnabled(on);
}

void EqualizerPage::addBand(const EqBand& band)
{
    filling_ = true;
    const int row = table_->rowCount();
    table_->insertRow(row);
    table_->setItem(row, Freq, new QTableWidgetItem(numberText(band.centerFreq)));
    table_->setItem(row, Gain, new QTableWidgetItem(numberText(band.gainDB)));
    table_->setItem(row, Width, new QTableWidgetItem(numberText(band.bandwidth)));
    auto* unit = new QComboBox(table_);
    for (char c : kUnits)
        unit->addItem(QString(QLatin1Char(c)));
    const int unitIndex = unit->findText(QString(QLatin1Char(band.bwType)));
    unit->setCurrentIndex(unitIndex >= 0 ? unitIndex : 0);
    connect(unit, &QComboBox::currentIndexChanged, this, &EqualizerPage::refreshCurve);
    table_->setCellWidget(row, Unit, unit);
    filling_ = false;
    refreshCurve();
}

QList<EqBand> EqualizerPage::rowsAsBands(int* invalid) const
{
    QList<EqBand> bands;
    int dropped = 0;
    for (int row = 0; row < table_->rowCount(); ++row) {
        EqBand band;
        band.centerFreq = cellNumber(table_->item(row, Freq));
        band.gainDB = cellNumber(table_->item(row, Gain));
        band.bandwidth = cellNumber(table_->item(row, Width));
        const auto* unit = qobject_cast<const QComboBox*>(table_->cellWidget(row, Unit));
        band.bwType = unit ? unit->currentText().at(0).toLatin1() : 'q';
        if (band.centerFreq > 0)
            bands.append(band);
        else
            ++dropped;
    }
    if (invalid)
        *invalid = dropped;
    return bands;
}

void EqualizerPage::refreshCurve()
{
    curve_->setBands(rowsAsBands(nullptr));
}

int EqualizerPage::invalidRowCount() const
{
    int invalid = 0;
    rowsAsBands(&invalid);
    return invalid;
}

void EqualizerPage::setEqChecked(bool on)
{
    enable_->setChecked(on);
}

void EqualizerPage::setPrecutDb(double db)
{
    curve_->setPrecutDb(db);
}

void EqualizerPage::apply(const ConversionSettings& s)
{
    table_->setRowCount(0);
    for (const EqBand& band : s.eq_bands)
        addBand(band);
    enable_->setChecked(s.enable_eq);
    curve_->setEqEnabled(s.enable_eq);
    refreshCurve();
}

void EqualizerPage::collect(ConversionSettings& s) const
{
    s.enable_eq = enable_->isChecked();
    s.eq_bands = rowsAsBands(nullptr);
}
