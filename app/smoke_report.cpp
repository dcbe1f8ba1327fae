#include "smoke_report.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>

QString languageSmokeLine(const QString& tag)
{
    const bool chinese = tag == QLatin1String("zh") || tag == QLatin1String("hant");
    int language = QLocale::Chinese;
    if (!chinese) {
        const QLocale locale(tag);
        language = locale.language() == QLocale::C ? int(QLocale::English) : int(locale.language());
    }
    return QStringLiteral("SMOKE lang=%1 zh=%2 locname=%3 qm_resource=%4 uitag=%5 sample=\"%6\"")
        .arg(language)
        .arg(chinese ? 1 : 0)
        .arg(QLocale::system().name())
        .arg(QFile::exists(QStringLiteral(":/i18n/en.qm")) ? 1 : 0)
        .arg(tag, QCoreApplication::translate("MainWindow", "开始转换"));
}
