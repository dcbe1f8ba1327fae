#pragma once
#include <QString>

class QApplication;
class QComboBox;
class QWidget;

// Decides the interface language, sets the layout direction and installs
// our translation and Qt's own for it (standard buttons, file dialogs).
// Returns the tag in use.
QString installTranslator(QApplication* app);

// The status-bar selector: "follow system" and every language we carry.
// Picking another language saves it and restarts the program once.
QComboBox* makeLanguageSelector(QWidget* parent);

// Starts this program again, detached, with the same arguments, and quits.
void restartProgram();
