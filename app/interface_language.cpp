#include "interface_language.h"

#include <QLocale>
#include <QSettings>

namespace {

QString g_currentTag = QStringLiteral("zh");

QString chineseVariant(const QLocale& locale)
{
    const QLocale::Territory t = locale.territory();
    if (locale.script() == QLocale::TraditionalHanScript || t == QLocale::Taiwan || t == QLocale::HongKong
        || t == QLocale::Macao)
        return QStringLiteral("hant");
    return QStringLiteral("zh");
}

// Tag for a locale (from a POSIX value or the system), or empty.
QString tagForLocale(const QLocale& locale)
{
    if (locale.language() == QLocale::Chinese)
        return chineseVariant(locale);
    for (const UiLanguage& lang : uiLanguages()) {
        const QString tag = QString::fromLatin1(lang.tag);
        if (tag == QLatin1String("zh") || tag == QLatin1String("hant"))
            continue;
        if (QLocale(tag).language() == locale.language())
            return tag;
    }
    return {};
}

QSettings languageSettings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("ZUVO"), QStringLiteral("ui-language"));
}

} // namespace

const QList<UiLanguage>& uiLanguages()
{
    static const QList<UiLanguage> table{
        {"zh", "中文", false},      {"hant", "繁體中文", false}, {"en", "English", false},
        {"ja", "日本語", false},    {"ko", "한국어", false},     {"ru", "Русский", false},
        {"de", "Deutsch", false},   {"fr", "Français", false},   {"es", "Español", false},
        {"pt", "Português", false}, {"ar", "العربية", true},     {"pl", "Polski", false},
    };
    return table;
}

const UiLanguage* findUiLanguage(const QString& tag)
{
    for (const UiLanguage& lang : uiLanguages())
        if (tag == QLatin1String(lang.tag))
            return &lang;
    return nullptr;
}

QString normalizeLanguageTag(const QString& text)
{
    const QString t = text.trimmed().toLower().replace(QLatin1Char('_'), QLatin1Char('-'));
    if (t.startsWith(QLatin1String("zh"))) {
        for (const char* mark : {"hant", "-tw", "-hk", "-mo"})
            if (t.contains(QLatin1String(mark)))
                return QStringLiteral("hant");
        return QStringLiteral("zh");
    }
    const QString head = t.section(QLatin1Char('-'), 0, 0);
    return findUiLanguage(head) ? head : QString();
}

QString effectiveLanguageTag(const LanguageInputs& in)
{
    const QString forced = normalizeLanguageTag(in.forced);
    if (!forced.isEmpty())
        return forced;
    if (in.saved != QLatin1String("system") && findUiLanguage(in.saved))
        return in.saved;
    // The system's language: the first POSIX variable that is set, else
    // the system locale.
    QString localeName = in.systemLocaleName;
    for (const QString& value : in.posixValues) {
        // LANGUAGE may hold a colon list; its first entry is the preference.
        const QString v = value.section(QLatin1Char(':'), 0, 0).section(QLatin1Char('.'), 0, 0).trimmed();
        if (!v.isEmpty() && v != QLatin1String("C") && v != QLatin1String("POSIX")) {
            localeName = v;
            break;
        }
    }
    const QLocale system(localeName);
    if (system.language() != QLocale::C) {
        const QString tag = tagForLocale(system);
        if (!tag.isEmpty())
            return tag;
    }
    return QStringLiteral("en");
}

LanguageInputs currentLanguageInputs()
{
    LanguageInputs in;
    in.forced = QString::fromLocal8Bit(qgetenv("ZUVO_LANG"));
    in.saved = savedLanguageChoice();
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"})
        in.posixValues << QString::fromLocal8Bit(qgetenv(name));
    in.systemLocaleName = QLocale::system().name();
    return in;
}

QString effectiveLanguageTag()
{
    return effectiveLanguageTag(currentLanguageInputs());
}

QString savedLanguageChoice()
{
    const QString value = languageSettings().value(QStringLiteral("ui_lang"), QStringLiteral("system")).toString();
    return findUiLanguage(value) ? value : QStringLiteral("system");
}

void saveLanguageChoice(const QString& tag)
{
    QSettings s = languageSettings();
    s.setValue(QStringLiteral("ui_lang"), tag);
    s.sync();
}

QString currentLanguageTag()
{
    return g_currentTag;
}

void setCurrentLanguageTag(const QString& tag)
{
    g_currentTag = tag;
}

bool interfaceIsChinese()
{
    return g_currentTag == QLatin1String("zh") || g_currentTag == QLatin1String("hant");
}
