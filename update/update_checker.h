#pragma once
#include <QByteArray>
#include <QObject>
#include <QString>
#include <QUrl>

#include "update_info.h"

class QNetworkAccessManager;
class QNetworkReply;
class UpdateDownloader;

// Fetches the signed manifest, decides whether it offers something newer and,
// on request, downloads, verifies and hands the update to the install script.
class UpdateChecker : public QObject {
    Q_OBJECT
public:
    explicit UpdateChecker(QObject* parent = nullptr);
    ~UpdateChecker() override;

    // ZUVO_UPDATE_URL when given, else the built-in address.
    static QUrl manifestUrl();
    static QByteArray userAgent();

    // The key is fixed at build time; tests hand theirs in through the API.
    void setTrustedKey(const QByteArray& rawPublicKey) { trustedKey_ = rawPublicKey; }
    // Inactivity limit of each transfer, so a stalled server ends the check.
    void setTransferTimeout(int ms) { timeoutMs_ = ms; }
    int transferTimeout() const { return timeoutMs_; }

    void check(bool silent);
    bool isSilent() const { return silent_; }

    // The downloader used by startDownloadAndInstall (created on demand).
    UpdateDownloader* downloader();
    void startDownloadAndInstall(const UpdateInfo& info);

signals:
    void alreadyLatest(const QString& local, const QString& remote);
    void checkFailed(const QString& message);
    void updateAvailable(const UpdateInfo& info);

    void downloadProgress(qint64 received, qint64 total);
    void statusText(const QString& text);
    void installFinished(const QString& message);
    void installFailed(const QString& message);

private:
    QNetworkReply* get(const QUrl& url);
    void onManifest(QNetworkReply* reply);
    void onSignature(QNetworkReply* reply, const QByteArray& manifest);
    void judge(const QByteArray& manifest);

    QNetworkAccessManager* net_ = nullptr;
    UpdateDownloader* downloader_ = nullptr;
    QByteArray trustedKey_;
    int timeoutMs_ = 30000;
    bool silent_ = false;
};
