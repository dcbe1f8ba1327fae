// The main window's diagnostics row: About / Diagnostics, source licences and
// reference standards.
#include "mainwindow.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "diagnostics_dialog.h"
#include "document_dialogs.h"
#include "engine_discovery.h"
#include "interface_language.h"

namespace {

// The documents follow the interface language.
QString interfaceLanguage()
{
    return currentLanguageTag();
}

} // namespace

QWidget* MainWindow::createDiagnosticsButtons(QWidget* parent)
{
    auto* row = new QWidget(parent);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* about = new QPushButton(tr("关于/诊断…"), row);
    about->setToolTip(tr("看引擎版本 / 列音频设备 / 显示引擎帮助"));
    auto* licenses = new QPushButton(tr("源码许可…"), row);
    auto* references = new QPushButton(tr("参考标准…"), row);
    layout->addWidget(about);
    layout->addWidget(licenses);
    layout->addWidget(references);
    layout->addStretch(1);
    connect(about, &QPushButton::clicked, this, &MainWindow::openDiagnostics);
    connect(licenses, &QPushButton::clicked, this,
            [this] { openDocumentDialog(DocumentKind::Licenses, interfaceLanguage(), this); });
    connect(references, &QPushButton::clicked, this,
            [this] { openDocumentDialog(DocumentKind::References, interfaceLanguage(), this); });
    return row;
}

DiagnosticsDialog* MainWindow::openDiagnostics()
{
    if (enginePath_.isEmpty())
        enginePath_ = findEngine();
    ensureEngineLogPath(); // derives the probe log beside the engine log
    auto* dialog = new DiagnosticsDialog(enginePath_, probeLogPath_, this);
    dialog->show();
    return dialog;
}
