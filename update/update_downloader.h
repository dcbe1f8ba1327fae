#pragma once
#include <QFile>
#include <QList>
#include <QObject>
#include <QString>
#include <memory>

#include "update_info.h"
#include "update_install.h"

class QNetworkAccessManager;
class QNetworkReply;

// Downloads the payloads of an accepted update one after the other (the
// overwrite payload first, the installer as fallback), verifies each and
// hands the verified ones to the installer.
class UpdateDownloader : public QObject {
    Q_OBJECT
public:
    UpdateDownloader(QNetworkAccessManager* net, QObject* parent = nullptr);
    ~UpdateDownloader() override;

    void setTransferTimeout(int ms) { timeoutMs_ = ms; }
    // Where and for which program the update is installed (tests point these
    // at a scratch installation); defaults describe this running program.
    InstallTarget& target() { return target_; }

    void start(const UpdateInfo& info);

    // The user's temporary folder + "/zuvo-update".
    static QString downloadFolder();

signals:
    void progress(qint64 received, qint64 total);
    void status(const QString& text);
    void finished(const QString& message);
    void failed(const QString& message);

private:
    struct Stage {
        UpdatePayload payload;
        bool isOverwrite = false;
        QString localPath;
        QList<TarMember> members;
    };

    void startStage();
    void onStageFinished(QNetworkReply* reply);
    QString verify(Stage& stage);
    void stageFailed(const QString& reason);
    void install();

    QNetworkAccessManager* net_;
    InstallTarget target_;
    QList<Stage> stages_;
    int current_ = 0;
    std::unique_ptr<QFile> file_;
    int timeoutMs_ = 60000;
};
