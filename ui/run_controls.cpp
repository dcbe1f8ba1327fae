#include "run_controls.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "engine_log.h"
#include "log_pane.h"

RunControlsPanel::RunControlsPanel(QWidget* parent)
    : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    auto* row = new QHBoxLayout;
    buttonRow_ = row;
    start_ = new QPushButton(tr("开始转换"), this);
    stop_ = new QPushButton(tr("停止"), this);
    auto* clearLog = new QPushButton(tr("清空日志"), this);
    verbose_ = new QCheckBox(tr("详细日志 (--verbose)"), this);
    keepLog_ = new QCheckBox(tr("保留引擎日志（退出不删）"), this);
    keepLog_->setChecked(keepEngineLog());
    keepLog_->setToolTip(tr("关（默认）：引擎日志写在系统临时目录里的一次性目录中，退出即清；\n"
                            "开：写到 %1 下并保留，便于把日志发给厂商排障。")
                             .arg(persistentEngineLogDir()));
    start_->setDefault(true);
    for (QWidget* w : std::initializer_list<QWidget*>{start_, stop_, clearLog, verbose_, keepLog_})
        row->addWidget(w);
    row->addStretch(1);
    layout->addLayout(row);

    progress_ = new QProgressBar(this);
    progress_->setRange(0, 1000);
    progress_->setValue(0);
    progress_->setTextVisible(false);
    layout->addWidget(progress_);

    log_ = new LogPane(this);
    layout->addWidget(log_, 1);

    auto* engineLabel = new QLabel(tr("子进程: ZuvoEngine"), this);
    engineLabel->setToolTip(tr("GUI 通过 QProcess 调用同目录/环境变量指定的 ZuvoEngine"));
    layout->addWidget(engineLabel);

    connect(start_, &QPushButton::clicked, this, &RunControlsPanel::startClicked);
    connect(stop_, &QPushButton::clicked, this, &RunControlsPanel::stopClicked);
    connect(clearLog, &QPushButton::clicked, log_, &LogPane::clear);
    connect(keepLog_, &QCheckBox::toggled, this, [](bool on) { setKeepEngineLog(on); });
}

bool RunControlsPanel::verbose() const
{
    return verbose_->isChecked();
}

void RunControlsPanel::setVerbose(bool on)
{
    verbose_->setChecked(on);
}

void RunControlsPanel::setRunning(bool running)
{
    start_->setEnabled(!running);
    // The switch is a conversion parameter: it stays as the running queue took it.
    verbose_->setEnabled(!running);
}

void RunControlsPanel::addToButtonRow(QWidget* w)
{
    // Next to the run buttons while they fit; a language with long labels
    // would otherwise force the whole window wider than a laptop screen, so
    // the extra buttons take the right end of a row of their own.
    if (!extraRow_) {
        extraRow_ = new QHBoxLayout;
        extraRow_->addStretch(1);
        auto* outer = static_cast<QVBoxLayout*>(layout());
        outer->insertLayout(outer->indexOf(progress_), extraRow_);
    }
    extraRow_->addWidget(w);
}
