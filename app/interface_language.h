#pragma once
// Which language the interface speaks. Pure decisions live here (no
// widgets, no application object needed); installing the translator and the
// status-bar selector live in ui/language_selector.*.

#include <QList>
#include <QString>
#include <QStringList>

struct UiLanguage {
    const char* tag;
    const char* nativeName;
    bool rightToLeft;
};

// The known tags in selector order; "zh" is the source language.
const QList<UiLanguage>& uiLanguages();
const UiLanguage* findUiLanguage(const QString& tag);

// "zh_TW" -> "hant", "pt_BR" -> "pt", "xx" -> "" (unknown).
QString normalizeLanguageTag(const QString& text);

// Everything the effective tag depends on, so that the decision can be
// tested without touching the process environment.
struct LanguageInputs {
    QString forced;            // ZUVO_LANG
    QString saved;             // saved choice, "system" or a tag
    QStringList posixValues;   // LC_ALL, LC_MESSAGES, LANG, LANGUAGE in that order
    QString systemLocaleName;  // e.g. "de_DE" (QLocale::system().name())
};
QString effectiveLanguageTag(const LanguageInputs& inputs);

// The same from this process: ZUVO_LANG, the saved choice, the environment
// and the system locale.
LanguageInputs currentLanguageInputs();
QString effectiveLanguageTag();

// The saved choice: "system" or a known tag (anything else reads "system").
QString savedLanguageChoice();
void saveLanguageChoice(const QString& tag);

// The tag decided by the last installTranslator() call ("zh" before any).
QString currentLanguageTag();
void setCurrentLanguageTag(const QString& tag);
bool interfaceIsChinese();
