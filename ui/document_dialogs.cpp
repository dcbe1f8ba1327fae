#include "document_dialogs.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QTextBrowser>
#include <QVBoxLayout>

QString documentLanguage(const QString& interfaceLanguage)
{
    if (interfaceLanguage == QLatin1String("zh"))
        return QStringLiteral("zh");
    if (interfaceLanguage == QLatin1String("pl"))
        return QStringLiteral("pl");
    return QStringLiteral("en");
}

QString documentText(DocumentKind kind, const QString& interfaceLanguage)
{
    const QString base = kind == DocumentKind::Licenses ? QStringLiteral("licenses") : QStringLiteral("references");
    QFile f(QStringLiteral(":/docs/%1_%2.md").arg(base, documentLanguage(interfaceLanguage)));
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

QDialog* openDocumentDialog(DocumentKind kind, const QString& interfaceLanguage, QWidget* parent)
{
    const bool licenses = kind == DocumentKind::Licenses;
    auto* dialog = new QDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(licenses ? QCoreApplication::translate("ThirdPartyGui", "源码许可")
                                    : QCoreApplication::translate("ReferencesGui", "参考标准"));
    dialog->resize(licenses ? QSize(720, 560) : QSize(760, 560));
    auto* layout = new QVBoxLayout(dialog);
    auto* browser = new QTextBrowser(dialog);
    browser->setOpenExternalLinks(false);
    browser->setMarkdown(documentText(kind, interfaceLanguage));
    layout->addWidget(browser, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::close);
    layout->addWidget(buttons);
    dialog->show();
    return dialog;
}
