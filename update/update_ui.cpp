#include "update_ui.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMainWindow>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QStatusBar>
#include <QUrl>
#include <cstdio>

#include "update_checker.h"
#include "update_test_hooks.h"
#include "update_version.h"

namespace {

void stderrLine(const char* format, const QString& a, const QString& b = {})
{
    std::fprintf(stderr, format, qPrintable(a), qPrintable(b));
    std::fflush(stderr);
}

} // namespace

const char* UpdateUi::releasePageUrl()
{
    return "https://www.zuvo-audio.example/releases";
}

UpdateUi* UpdateUi::checkForUpdates(QWidget* parent, bool silent)
{
    auto* ui = new UpdateUi(parent, silent);
    ui->checker_->check(silent);
    return ui;
}

UpdateUi::UpdateUi(QWidget* parent, bool silent)
    : QObject(parent), parent_(parent), checker_(new UpdateChecker(this)), silent_(silent)
{
    connect(checker_, &UpdateChecker::alreadyLatest, this, &UpdateUi::onAlreadyLatest);
    connect(checker_, &UpdateChecker::checkFailed, this, &UpdateUi::onFailed);
    connect(checker_, &UpdateChecker::updateAvailable, this, &UpdateUi::onAvailable);
    if (!silent) {
        progress_ = new QProgressDialog(tr("正在检查更新…"), QString(), 0, 0, parent);
        progress_->setObjectName(QStringLiteral("updateCheckProgress"));
        progress_->setWindowTitle(tr("检查更新"));
        progress_->setCancelButton(nullptr);
        progress_->setAutoClose(false);
        progress_->setAutoReset(false);
        // Only a check slower than this is worth a dialog.
        progress_->setMinimumDuration(400);
        progress_->setValue(0);
    }
}

UpdateUi::~UpdateUi()
{
    // A dialog without a parent window is not deleted with us otherwise.
    delete progress_;
}

void UpdateUi::closeProgress()
{
    if (progress_) {
        progress_->close();
        progress_->deleteLater();
    }
}

QMessageBox* UpdateUi::box(int icon, const QString& title, const QString& text, const char* objectName)
{
    auto* b = new QMessageBox(static_cast<QMessageBox::Icon>(icon), title, text, QMessageBox::NoButton, parent_);
    b->setObjectName(QString::fromLatin1(objectName));
    b->setAttribute(Qt::WA_DeleteOnClose);
    b->setWindowModality(Qt::ApplicationModal);
    return b;
}

void UpdateUi::onAlreadyLatest(const QString& local, const QString& remote)
{
    closeProgress();
    stderrLine("[update] already latest: local %s, remote %s\n", local, remote);
    if (!silent_) {
        QMessageBox* b = box(QMessageBox::Information, tr("检查更新"),
                             tr("已是最新版本 (%1)。服务器上的最新版本为 %2。").arg(local, remote), "updateLatestBox");
        b->addButton(QMessageBox::Ok);
        b->show();
    }
    deleteLater();
}

void UpdateUi::onFailed(const QString& message)
{
    closeProgress();
    stderrLine("[update] check failed: %s\n", message);
    if (!silent_) {
        QMessageBox* b = box(QMessageBox::Warning, tr("检查更新"), tr("检查更新失败：") + message, "updateFailedBox");
        b->addButton(QMessageBox::Ok);
        b->show();
    }
    deleteLater();
}

void UpdateUi::onAvailable(const UpdateInfo& info)
{
    closeProgress();
    stderrLine("[update] new version available: %s (local %s)\n", info.version, appVersion());
    QString text = tr("发现新版本 %1（当前 %2）。").arg(info.version, appVersion());
    if (!info.released.isEmpty())
        text += QStringLiteral("\n\n") + tr("发布日期：%1").arg(info.released);
    if (!info.notes.isEmpty())
        text += QStringLiteral("\n\n") + tr("更新说明：%1").arg(info.notes);
    QMessageBox* b = box(QMessageBox::Information, tr("发现新版本"), text, "updateOfferBox");
    QPushButton* download = b->addButton(tr("下载并更新"), QMessageBox::AcceptRole);
    QPushButton* page = b->addButton(tr("打开下载页"), QMessageBox::ActionRole);
    b->addButton(tr("稍后"), QMessageBox::RejectRole);
    connect(b, &QMessageBox::buttonClicked, this, [this, info, download, page](QAbstractButton* clicked) {
        if (clicked == download) {
            startDownload(info);
            return;
        }
        if (clicked == page)
            QDesktopServices::openUrl(QUrl(QString::fromLatin1(releasePageUrl())));
        deleteLater();
    });
    b->show();
}

void UpdateUi::startDownload(const UpdateInfo& info)
{
    progress_ = new QProgressDialog(tr("正在下载更新…"), QString(), 0, 100, parent_);
    progress_->setObjectName(QStringLiteral("updateDownloadProgress"));
    progress_->setWindowTitle(tr("下载更新"));
    progress_->setWindowModality(Qt::WindowModal);
    progress_->setCancelButton(nullptr);
    progress_->setAutoClose(false);
    progress_->setAutoReset(false);
    progress_->setMinimumDuration(0);
    progress_->setValue(0);
    connect(checker_, &UpdateChecker::downloadProgress, progress_, [this](qint64 received, qint64 total) {
        if (progress_ && total > 0)
            progress_->setValue(static_cast<int>(received * 100 / total));
    });
    connect(checker_, &UpdateChecker::statusText, this, [this](const QString& text) {
        if (progress_)
            progress_->setLabelText(text);
        stderrLine("[update] %s\n", text);
    });
    connect(checker_, &UpdateChecker::installFinished, this, [this](const QString& message) {
        closeProgress();
        QMessageBox* b = box(QMessageBox::Information, tr("更新"), message + QStringLiteral("\n\n") + tr("程序现在退出。"),
                             "updateDoneBox");
        b->addButton(QMessageBox::Ok);
        connect(b, &QMessageBox::finished, qApp, [] { QCoreApplication::quit(); });
        b->show();
    });
    connect(checker_, &UpdateChecker::installFailed, this, [this](const QString& message) {
        closeProgress();
        stderrLine("[update] update failed: %s\n", message);
        QMessageBox* b = box(QMessageBox::Critical, tr("更新失败"), message, "updateFailedInstallBox");
        b->addButton(QMessageBox::Ok);
        b->show();
        deleteLater();
    });
    checker_->startDownloadAndInstall(info);
}

QPushButton* addUpdateButton(QMainWindow* window)
{
    const QString text = QCoreApplication::translate("MainWindow", "检查更新…");
    auto* button = new QPushButton(text, window);
    button->setObjectName(QStringLiteral("checkUpdatesButton"));
    button->setToolTip(text);
    QObject::connect(button, &QPushButton::clicked, window, [window] { UpdateUi::checkForUpdates(window, false); });
    window->statusBar()->addPermanentWidget(button);
    installUpdateTestHooks(button);
    return button;
}

void startStartupUpdateCheck(QWidget* window)
{
    if (!qEnvironmentVariable("ZUVO_NO_UPDATE_CHECK").isEmpty())
        return;
    UpdateUi::checkForUpdates(window, true);
}
