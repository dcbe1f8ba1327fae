#pragma once
// The two static documents (source licences, reference standards): Markdown
// compiled into the program in Chinese, Polish and English, shown in a
// non-modal dialog that deletes itself when closed.

#include <QString>

class QDialog;
class QWidget;

enum class DocumentKind { Licenses, References };

// "zh" and "pl" have their own documents; every other language gets English.
QString documentLanguage(const QString& interfaceLanguage);
// The Markdown text of `kind` for the interface language.
QString documentText(DocumentKind kind, const QString& interfaceLanguage);
// Creates and shows the dialog; returns it (it owns itself).
QDialog* openDocumentDialog(DocumentKind kind, const QString& interfaceLanguage, QWidget* parent);
