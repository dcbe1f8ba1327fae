#pragma once
#include <QString>
#include <memory>

class QTemporaryDir;

// Whether the engine log survives the program ("keep_engine_log" in the
// desktop-gui settings).
bool keepEngineLog();
void setKeepEngineLog(bool keep);

// Directory that keeps engine logs across runs.
QString persistentEngineLogDir();

// Decides where the engine writes its log for this program run. When a
// one-shot temporary directory is made it is handed to `temporaryDirOwner`,
// whose release removes it; without an owner the persistent directory is used.
QString engineLogPath(const QString& name, std::unique_ptr<QTemporaryDir>* temporaryDirOwner);
