#include "update_checker.h"

#include <QCoreApplication>

#include "checker_texts.h"
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

#include "manifest_signature.h"
#include "update_downloader.h"
#include "update_manifest.h"
#include "update_version.h"

namespace {

// The release server; a test server replaces it through ZUVO_UPDATE_URL.
const char* const kDefaultManifestUrl = "https://updates.zuvo-audio.example/downloads/latest.json";

// Manifest and signature are small; anything larger is not ours.
constexpr qint64 kMaxManifestBytes = 1 << 20;

} // namespace

UpdateChecker::UpdateChecker(QObject* parent)
    : QObject(parent), net_(new QNetworkAccessManager(this)), trustedKey_(trustedManifestKey())
{
}

UpdateChecker::~UpdateChecker() = default;

QUrl UpdateChecker::manifestUrl()
{
    const QString env = qEnvironmentVariable("ZUVO_UPDATE_URL");
    return QUrl(env.isEmpty() ? QString::fromLatin1(kDefaultManifestUrl) : env);
}

QByteArray UpdateChecker::userAgent()
{
    return "ZuvoUpdater/1.0 (" + appVersion().toUtf8() + ")";
}

QNetworkReply* UpdateChecker::get(const QUrl& url)
{
    QNetworkRequest req(url);
    req.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    req.setHeader(QNetworkRequest::UserAgentHeader, userAgent());
    req.setTransferTimeout(timeoutMs_);
    return net_->get(req);
}

void UpdateChecker::check(bool silent)
{
    silent_ = silent;
    QNetworkReply* reply = get(manifestUrl());
    connect(reply, &QNetworkReply::downloadProgress, reply, [reply](qint64 received, qint64) {
        if (received > kMaxManifestBytes)
            reply->abort();
    });
    connect(reply, &QNetworkReply::finished, this, [this, reply] { onManifest(reply); });
}

void UpdateChecker::onManifest(QNetworkReply* reply)
{
    reply->deleteLater();
    if (reply->error() != QNetworkReply::NoError) {
        emit checkFailed(trChecker("无法获取更新清单: %1").arg(reply->errorString()));
        return;
    }
    const QByteArray manifest = reply->read(kMaxManifestBytes + 1);
    if (manifest.size() > kMaxManifestBytes) {
        emit checkFailed(trChecker("更新清单格式不对 (%1)").arg(trChecker("文件过大")));
        return;
    }
    // The signature lives beside the manifest at the address first asked for,
    // so a redirect cannot also choose where the signature comes from.
    QUrl sigUrl = manifestUrl();
    sigUrl.setPath(sigUrl.path() + QStringLiteral(".sig"));
    QNetworkReply* sigReply = get(sigUrl);
    connect(sigReply, &QNetworkReply::finished, this,
            [this, sigReply, manifest] { onSignature(sigReply, manifest); });
}

void UpdateChecker::onSignature(QNetworkReply* reply, const QByteArray& manifest)
{
    reply->deleteLater();
    if (reply->error() != QNetworkReply::NoError) {
        emit checkFailed(trChecker("无法获取更新清单的签名, 清单未被采用: %1").arg(reply->errorString()));
        return;
    }
    const QByteArray signature = reply->read(4096);
    switch (verifyManifestSignature(manifest, signature, trustedKey_)) {
    case SignatureCheck::Valid:
        judge(manifest);
        return;
    case SignatureCheck::Malformed:
        emit checkFailed(trChecker("更新清单的签名格式不对, 清单未被采用"));
        return;
    case SignatureCheck::Invalid:
        emit checkFailed(trChecker("更新清单的签名无效 (清单被篡改或不是本程序的发布者签发的), 清单未被采用"));
        return;
    case SignatureCheck::BadKey:
        emit checkFailed(trChecker("程序内置的更新公钥不可用, 无法验证更新清单"));
        return;
    }
}

void UpdateChecker::judge(const QByteArray& manifest)
{
    const ManifestVerdict v = parseUpdateManifest(manifest, appVersion(), updatePlatformKey());
    switch (v.kind) {
    case ManifestVerdict::Failed:
        emit checkFailed(v.message);
        return;
    case ManifestVerdict::AlreadyLatest:
        emit alreadyLatest(v.localVersion, v.remoteVersion);
        return;
    case ManifestVerdict::Available:
        emit updateAvailable(v.info);
        return;
    }
}

UpdateDownloader* UpdateChecker::downloader()
{
    if (!downloader_) {
        downloader_ = new UpdateDownloader(net_, this);
        downloader_->setTransferTimeout(timeoutMs_ * 2);
        connect(downloader_, &UpdateDownloader::progress, this, &UpdateChecker::downloadProgress);
        connect(downloader_, &UpdateDownloader::status, this, &UpdateChecker::statusText);
        connect(downloader_, &UpdateDownloader::finished, this, &UpdateChecker::installFinished);
        connect(downloader_, &UpdateDownloader::failed, this, &UpdateChecker::installFailed);
    }
    return downloader_;
}

void UpdateChecker::startDownloadAndInstall(const UpdateInfo& info)
{
    downloader()->start(info);
}
