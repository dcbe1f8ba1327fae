#include "language_selector.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QTranslator>
#include <cstdio>

#include "interface_language.h"

namespace {

QPointer<QTranslator> g_ours;
QPointer<QTranslator> g_qt;

QString qmResource(const QString& tag)
{
    return QStringLiteral(":/i18n/%1.qm").arg(tag);
}

// Qt's own catalogue for a tag; Qt names Chinese and Portuguese by region.
QString qtCatalogueName(const QString& tag)
{
    if (tag == QLatin1String("zh"))
        return QStringLiteral("qtbase_zh_CN");
    if (tag == QLatin1String("hant"))
        return QStringLiteral("qtbase_zh_TW");
    if (tag == QLatin1String("pt"))
        return QStringLiteral("qtbase_pt_BR");
    return QStringLiteral("qtbase_") + tag;
}

void installQtCatalogue(QApplication* app, const QString& tag)
{
    if (tag == QLatin1String("en"))
        return; // Qt's source language
    auto* qt = new QTranslator(app);
    // Missing catalogues are normal (not every Qt install ships them): the
    // dialogs then stay in English, which is what Qt would show anyway.
    if (!qt->load(qtCatalogueName(tag), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        delete qt;
        return;
    }
    QCoreApplication::installTranslator(qt);
    g_qt = qt;
}

} // namespace

QString installTranslator(QApplication* app)
{
    for (QPointer<QTranslator>* t : {&g_ours, &g_qt}) {
        if (*t) {
            QCoreApplication::removeTranslator(*t);
            delete t->data();
        }
    }
    QString tag = effectiveLanguageTag();
    const UiLanguage* lang = findUiLanguage(tag);
    QGuiApplication::setLayoutDirection(lang && lang->rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    installQtCatalogue(app, tag);
    if (tag != QLatin1String("zh")) {
        QString resource = qmResource(tag);
        if (!QFile::exists(resource)) {
            std::fprintf(stderr, "ui-language: %s 的翻译表 %s 不在资源里 -> 退回 en\n", qPrintable(tag),
                         qPrintable(resource));
            resource = qmResource(QStringLiteral("en"));
        }
        auto* ours = new QTranslator(app);
        if (ours->load(resource)) {
            QCoreApplication::installTranslator(ours);
            g_ours = ours;
        } else {
            delete ours;
        }
    }
    setCurrentLanguageTag(tag);
    return tag;
}

QComboBox* makeLanguageSelector(QWidget* parent)
{
    auto* combo = new QComboBox(parent);
    combo->setToolTip(QCoreApplication::translate("UiLangRow", "界面语言。切换后程序会重启一次以便整套界面换语言。"));
    combo->addItem(QCoreApplication::translate("UiLangRow", "跟随系统"), QStringLiteral("system"));
    for (const UiLanguage& lang : uiLanguages()) {
        const QString tag = QString::fromLatin1(lang.tag);
        if (tag != QLatin1String("zh") && !QFile::exists(qmResource(tag)))
            continue;
        combo->addItem(QString::fromUtf8(lang.nativeName), tag);
    }
    const int saved = combo->findData(savedLanguageChoice());
    combo->setCurrentIndex(saved < 0 ? 0 : saved);
    QObject::connect(combo, &QComboBox::activated, combo, [combo](int index) {
        const QString chosen = combo->itemData(index).toString();
        if (chosen == savedLanguageChoice())
            return;
        saveLanguageChoice(chosen);
        QMessageBox::information(combo->window(), QCoreApplication::translate("UiLangRow", "语言"),
                                 QCoreApplication::translate("UiLangRow", "界面语言已切换，程序将自动重启一次以生效。"));
        restartProgram();
    });
    return combo;
}

void restartProgram()
{
    QProcess::startDetached(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().mid(1));
    QCoreApplication::quit();
}
