#include "advanced_page.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QVBoxLayout>

#include "engine_args.h"

namespace {
// Group titles are engine terms and stay as they are in every language
// ("&&" shows one ampersand instead of marking a shortcut).
const char* const kGroupTitles[] = {"Repair / Denoise", "Noise Shaping", "Stereo && EQ", "Report && Measure",
                                    "Output (extra)"};
constexpr int kGroups = 5;
// Column of each group: the long repair group alone, the others paired so
// that the three columns come out about equally tall.
constexpr int kColumnOf[kGroups] = {0, 1, 1, 2, 2};
} // namespace

AdvancedPage::AdvancedPage(QWidget* parent)
    : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    QVBoxLayout* columns[3];
    for (int c = 0; c < 3; ++c) {
        columns[c] = new QVBoxLayout;
        grid->addLayout(columns[c], 0, c);
        grid->setColumnStretch(c, 1);
    }
    QFormLayout* forms[kGroups];
    for (int g = 0; g < kGroups; ++g) {
        auto* group = new QGroupBox(QString::fromLatin1(kGroupTitles[g]), this);
        forms[g] = new QFormLayout(group);
        columns[kColumnOf[g]]->addWidget(group);
    }
    for (int c = 0; c < 3; ++c)
        columns[c]->addStretch(1);

    for (const AdvancedOption& option : advancedOptionTable()) {
        Row row;
        row.option = option.option;
        row.defaultText = option.defaultText;
        row.box = new QCheckBox(option.option, this);
        row.box->setToolTip(option.description);
        QFormLayout* form = forms[qBound(0, option.group, kGroups - 1)];
        if (option.kind == AdvancedOption::Switch) {
            form->addRow(row.box);
        } else {
            row.value = new QLineEdit(option.defaultText, this);
            row.value->setMaximumWidth(140);
            row.value->setEnabled(false);
            row.value->setToolTip(option.description);
            connect(row.box, &QCheckBox::toggled, row.value, &QWidget::setEnabled);
            form->addRow(row.box, row.value);
        }
        rows_.append(row);
    }
}

void AdvancedPage::apply(const ConversionSettings& s)
{
    for (const Row& row : rows_) {
        const auto it = s.advanced.constFind(row.option);
        const bool on = it != s.advanced.constEnd();
        row.box->setChecked(on);
        if (row.value)
            row.value->setText(on ? it.value() : row.defaultText);
    }
}

void AdvancedPage::collect(ConversionSettings& s) const
{
    s.advanced.clear();
    for (const Row& row : rows_) {
        if (row.box->isChecked())
            s.advanced.insert(row.option, row.value ? row.value->text() : QString());
    }
}
