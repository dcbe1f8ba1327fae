#pragma once
#include <QObject>
#include <QPointer>
#include <QString>

#include "update_info.h"

class QMainWindow;
class QMessageBox;
class QProgressDialog;
class QPushButton;
class QWidget;
class UpdateChecker;

// The dialogs around one update check: progress, "up to date", failure, the
// offer and the download. Lives until the check (and any download) is over.
class UpdateUi : public QObject {
    Q_OBJECT
public:
    // Starts a check; silent checks show nothing unless an update is found.
    static UpdateUi* checkForUpdates(QWidget* parent, bool silent);

    ~UpdateUi() override;

    UpdateChecker* checker() const { return checker_; }

    // Where the release notes live, opened by "打开下载页".
    static const char* releasePageUrl();

private:
    UpdateUi(QWidget* parent, bool silent);
    void onAlreadyLatest(const QString& local, const QString& remote);
    void onFailed(const QString& message);
    void onAvailable(const UpdateInfo& info);
    void startDownload(const UpdateInfo& info);
    void closeProgress();
    QMessageBox* box(int icon, const QString& title, const QString& text, const char* objectName);

    QPointer<QWidget> parent_;
    UpdateChecker* checker_ = nullptr;
    QPointer<QProgressDialog> progress_;
    bool silent_ = false;
};

// The status-bar button "检查更新…" and the silent start-up check.
QPushButton* addUpdateButton(QMainWindow* window);
void startStartupUpdateCheck(QWidget* window);
