#include "update_downloader.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QStandardPaths>

#include "checker_texts.h"
#include "download_folder.h"
#include "payload_names.h"
#include "update_checker.h"
#include "update_version.h"

namespace {
constexpr qint64 kSizeSlack = 1 << 20;
} // namespace

UpdateDownloader::UpdateDownloader(QNetworkAccessManager* net, QObject* parent)
    : QObject(parent), net_(net), target_(InstallTarget::forThisProgram())
{
}

UpdateDownloader::~UpdateDownloader() = default;

QString UpdateDownloader::downloadFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::TempLocation) + QStringLiteral("/zuvo-update");
}

void UpdateDownloader::start(const UpdateInfo& info)
{
    stages_.clear();
    current_ = 0;
    // Never go back: whatever the manifest says, an older or equal release is
    // not installed over this one.
    if (compareVersions(appVersion(), info.version) >= 0) {
        emit failed(trChecker("拒绝安装版本 %1: 它不比当前版本 %2 新").arg(info.version, appVersion()));
        return;
    }
    if (info.overwrite.isUsable())
        stages_.append(Stage{info.overwrite, true, {}, {}});
    if (info.installer.isUsable())
        stages_.append(Stage{info.installer, false, {}, {}});
    if (stages_.isEmpty()) {
        emit failed(trChecker("清单里既没有覆盖载荷也没有安装包"));
        return;
    }
    startStage();
}

void UpdateDownloader::startStage()
{
    Stage& stage = stages_[current_];
    const QString folder = downloadFolder();
    stage.localPath = folder + QLatin1Char('/') + stage.payload.name;
    file_ = std::make_unique<QFile>(stage.localPath);
    QString why;
    if (!isSafePayloadName(stage.payload.name) || !prepareDownloadFolder(folder, &why)
        || !file_->open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        file_.reset();
        const QString reason = trChecker("无法写入临时文件: %1").arg(stage.localPath);
        stage.localPath.clear(); // nothing of this stage is handed to the installer
        emit status(reason);
        if (current_ + 1 < stages_.size()) {
            ++current_;
            startStage();
        } else {
            emit failed(reason);
        }
        return;
    }

    QNetworkRequest req(QUrl(stage.payload.url));
    req.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    req.setHeader(QNetworkRequest::UserAgentHeader, UpdateChecker::userAgent());
    req.setTransferTimeout(timeoutMs_);
    QNetworkReply* reply = net_->get(req);
    const qint64 expected = stage.payload.size;
    connect(reply, &QNetworkReply::readyRead, this, [this, reply, expected] {
        const QByteArray chunk = reply->readAll();
        if (file_ && file_->write(chunk) != chunk.size())
            reply->abort();
        // A server that sends far more than announced is not sending our
        // file; a little more still reaches the size check and its message.
        if (file_ && expected > 0 && file_->size() > expected + kSizeSlack)
            reply->abort();
    });
    connect(reply, &QNetworkReply::downloadProgress, this, &UpdateDownloader::progress);
    connect(reply, &QNetworkReply::finished, this, [this, reply] { onStageFinished(reply); });
}

void UpdateDownloader::onStageFinished(QNetworkReply* reply)
{
    reply->deleteLater();
    Stage& stage = stages_[current_];
    if (file_) {
        const QByteArray rest = reply->readAll();
        file_->write(rest);
        file_->flush();
        file_->close();
        file_.reset();
    }
    if (reply->error() != QNetworkReply::NoError) {
        stageFailed(trChecker("下载失败: %1").arg(reply->errorString()));
        return;
    }
    const QString reason = verify(stage);
    if (!reason.isEmpty()) {
        stageFailed(reason);
        return;
    }
    emit status(trChecker("已校验: %1").arg(stage.payload.name));
    if (++current_ < stages_.size()) {
        startStage();
        return;
    }
    install();
}

QString UpdateDownloader::verify(Stage& stage)
{
    QFile f(stage.localPath);
    if (!f.open(QIODevice::ReadOnly))
        return trChecker("无法读取下载的文件: %1").arg(stage.localPath);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!hash.addData(&f))
        return trChecker("计算校验和失败: %1").arg(f.errorString());
    const QString actual = QString::fromLatin1(hash.result().toHex());
    if (actual.compare(stage.payload.sha256, Qt::CaseInsensitive) != 0)
        return trChecker("校验和不匹配, 已丢弃 (期望 %1, 实际 %2)").arg(stage.payload.sha256, actual);
    if (stage.payload.size >= 1 && stage.payload.size != f.size())
        return trChecker("下载文件大小不符 (期望 %1 字节, 实际 %2)").arg(stage.payload.size).arg(f.size());
    if (stage.isOverwrite)
        return checkOverwritePayload(f, &stage.members);
    return {};
}

void UpdateDownloader::stageFailed(const QString& reason)
{
    Stage& stage = stages_[current_];
    QFile::remove(stage.localPath);
    stage.localPath.clear();
    if (stage.isOverwrite && current_ + 1 < stages_.size()) {
        emit status(trChecker("覆盖载荷不可用 (%1)，改用安装包").arg(reason));
        ++current_;
        startStage();
        return;
    }
    emit failed(reason);
}

void UpdateDownloader::install()
{
    InstallRequest request;
    for (const Stage& s : stages_) {
        if (s.localPath.isEmpty())
            continue;
        if (s.isOverwrite) {
            request.overwritePath = s.localPath;
            request.overwriteSha256 = s.payload.sha256;
            request.members = s.members;
        } else {
            request.installerPath = s.localPath;
        }
    }
    const InstallOutcome outcome = launchUpdateScript(request, target_);
    if (outcome.ok)
        emit finished(outcome.message);
    else
        emit failed(outcome.message);
}
