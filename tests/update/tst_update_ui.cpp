#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QStatusBar>
#include <QtTest>

#include "update_checker.h"
#include "update_test_server.h"
#include "update_ui.h"
#include "update_version.h"

namespace {

template <typename T>
T* findTopLevel(const QString& objectName)
{
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (auto* t = qobject_cast<T*>(w); t && t->objectName() == objectName && t->isVisible())
            return t;
    }
    return nullptr;
}

QByteArray manifestFor(const QString& version, const QString& payloadUrl)
{
    QJsonObject overwrite{{"name", "z.tar"}, {"url", payloadUrl}, {"size", 0}, {"sha256", "ab"}};
    QJsonObject files{{"platform", updatePlatformKey()}, {"overwrite", overwrite}};
    QJsonObject latest{{"version", version}, {"released", "2026-11-20"}, {"notes", "Faster filters."},
                       {"files", QJsonArray{files}}};
    return QJsonDocument(QJsonObject{{"latest", latest}}).toJson();
}

} // namespace

class TestUpdateUi : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();
    void progressShowsOnlyAfter400ms();
    void offerHasThreeButtonsInOrder();
    void silentFailureShowsNothing();
    void failureBoxWhenAsked();
    void upToDateBoxWhenAsked();
    void downloadFailureIsShown();
    void statusBarButtonStartsAManualCheck();
    void startupCheckHonoursTheSwitch();

private:
    UpdateUi* start(const QString& path, bool silent, QWidget* parent = nullptr);
    UpdateTestServer server_;
};

void TestUpdateUi::initTestCase()
{
    QVERIFY(server_.start());
}

void TestUpdateUi::cleanup()
{
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMessageBox*>(w) || qobject_cast<QProgressDialog*>(w))
            w->deleteLater();
    }
    QTest::qWait(50);
}

UpdateUi* TestUpdateUi::start(const QString& path, bool silent, QWidget* parent)
{
    qputenv("ZUVO_UPDATE_URL", server_.url(path).toUtf8());
    UpdateUi* ui = UpdateUi::checkForUpdates(parent, silent);
    // The signature is checked only when both replies are in, so the test
    // key can still be handed over here.
    ui->checker()->setTrustedKey(server_.publicKey());
    return ui;
}

void TestUpdateUi::progressShowsOnlyAfter400ms()
{
    QElapsedTimer t;
    t.start();
    QPointer<UpdateUi> ui = start(QStringLiteral("stall/latest.json"), false);
    QTest::qWait(200);
    QVERIFY(!findTopLevel<QProgressDialog>(QStringLiteral("updateCheckProgress")));
    QTRY_VERIFY_WITH_TIMEOUT(findTopLevel<QProgressDialog>(QStringLiteral("updateCheckProgress")), 3000);
    QVERIFY(t.elapsed() >= 390);
    auto* dlg = findTopLevel<QProgressDialog>(QStringLiteral("updateCheckProgress"));
    QCOMPARE(dlg->windowTitle(), QStringLiteral("检查更新"));
    QCOMPARE(dlg->labelText(), QStringLiteral("正在检查更新…"));
    QVERIFY(!dlg->findChild<QPushButton*>()); // no cancel button
    delete ui;
}

void TestUpdateUi::offerHasThreeButtonsInOrder()
{
    QVERIFY(server_.publish(QStringLiteral("latest.json"), manifestFor(QStringLiteral("9.9.9"), server_.url("z.tar"))));
    QPointer<UpdateUi> ui = start(QStringLiteral("latest.json"), true);
    QTRY_VERIFY_WITH_TIMEOUT(findTopLevel<QMessageBox>(QStringLiteral("updateOfferBox")), 10000);
    QMessageBox* box = findTopLevel<QMessageBox>(QStringLiteral("updateOfferBox"));
    QCOMPARE(box->windowTitle(), QStringLiteral("发现新版本"));
    QCOMPARE(box->icon(), QMessageBox::Information);
    QVERIFY(box->isModal());
    QCOMPARE(box->text(), QStringLiteral("发现新版本 9.9.9（当前 %1）。\n\n发布日期：2026-11-20\n\n更新说明：Faster filters.")
                              .arg(appVersion()));
    const QList<QAbstractButton*> buttons = box->buttons();
    QCOMPARE(buttons.size(), 3);
    QStringList texts;
    QList<int> roles;
    for (QAbstractButton* b : buttons) {
        texts << b->text();
        roles << int(box->buttonRole(b));
    }
    // Visual order depends on the platform's button layout, roles do not.
    QVERIFY(texts.contains(QStringLiteral("下载并更新")));
    QCOMPARE(roles.at(texts.indexOf(QStringLiteral("下载并更新"))), int(QMessageBox::AcceptRole));
    QCOMPARE(roles.at(texts.indexOf(QStringLiteral("打开下载页"))), int(QMessageBox::ActionRole));
    QCOMPARE(roles.at(texts.indexOf(QStringLiteral("稍后"))), int(QMessageBox::RejectRole));
    buttons.at(texts.indexOf(QStringLiteral("稍后")))->click();
    QTRY_VERIFY(ui.isNull());
    QVERIFY(!findTopLevel<QProgressDialog>(QStringLiteral("updateDownloadProgress")));
}

void TestUpdateUi::silentFailureShowsNothing()
{
    QPointer<UpdateUi> ui = start(QStringLiteral("missing.json"), true);
    QTRY_VERIFY_WITH_TIMEOUT(ui.isNull(), 10000);
    QTest::qWait(100);
    QVERIFY(!findTopLevel<QMessageBox>(QStringLiteral("updateFailedBox")));
}

void TestUpdateUi::failureBoxWhenAsked()
{
    start(QStringLiteral("missing.json"), false);
    QTRY_VERIFY_WITH_TIMEOUT(findTopLevel<QMessageBox>(QStringLiteral("updateFailedBox")), 10000);
    QMessageBox* box = findTopLevel<QMessageBox>(QStringLiteral("updateFailedBox"));
    QCOMPARE(box->windowTitle(), QStringLiteral("检查更新"));
    QCOMPARE(box->icon(), QMessageBox::Warning);
    QVERIFY2(box->text().startsWith(QStringLiteral("检查更新失败：无法获取更新清单: ")), qPrintable(box->text()));
}

void TestUpdateUi::upToDateBoxWhenAsked()
{
    QVERIFY(server_.publish(QStringLiteral("latest.json"), manifestFor(appVersion(), server_.url("z.tar"))));
    start(QStringLiteral("latest.json"), false);
    QTRY_VERIFY_WITH_TIMEOUT(findTopLevel<QMessageBox>(QStringLiteral("updateLatestBox")), 10000);
    QCOMPARE(findTopLevel<QMessageBox>(QStringLiteral("updateLatestBox"))->text(),
             QStringLiteral("已是最新版本 (%1)。服务器上的最新版本为 %1。").arg(appVersion()));
}

void TestUpdateUi::downloadFailureIsShown()
{
    QVERIFY(server_.publish(QStringLiteral("latest.json"), manifestFor(QStringLiteral("9.9.9"), server_.url("gone.tar"))));
    start(QStringLiteral("latest.json"), true);
    QTRY_VERIFY_WITH_TIMEOUT(findTopLevel<QMessageBox>(QStringLiteral("updateOfferBox")), 10000);
    QMessageBox* offer = findTopLevel<QMessageBox>(QStringLiteral("updateOfferBox"));
    for (QAbstractButton* b : offer->buttons()) {
        if (b->text() == QStringLiteral("下载并更新"))
            b->click();
    }
    QTRY_VERIFY_WITH_TIMEOUT(findTopLevel<QMessageBox>(QStringLiteral("updateFailedInstallBox")), 10000);
    QMessageBox* box = findTopLevel<QMessageBox>(QStringLiteral("updateFailedInstallBox"));
    QCOMPARE(box->windowTitle(), QStringLiteral("更新失败"));
    QCOMPARE(box->icon(), QMessageBox::Critical);
    QVERIFY2(box->text().startsWith(QStringLiteral("下载失败: ")), qPrintable(box->text()));
    QVERIFY(!findTopLevel<QProgressDialog>(QStringLiteral("updateDownloadProgress")));
}

void TestUpdateUi::statusBarButtonStartsAManualCheck()
{
    QMainWindow window;
    QPushButton* button = addUpdateButton(&window);
    QCOMPARE(button->text(), QStringLiteral("检查更新…"));
    QCOMPARE(button->toolTip(), QStringLiteral("检查更新…"));
    QCOMPARE(button->parentWidget(), window.statusBar());
    window.show();
    qputenv("ZUVO_UPDATE_URL", server_.url("missing.json").toUtf8());
    button->click();
    // A manual check reports its failure; a silent one would not.
    QTRY_VERIFY_WITH_TIMEOUT(findTopLevel<QMessageBox>(QStringLiteral("updateFailedBox")), 10000);
}

void TestUpdateUi::startupCheckHonoursTheSwitch()
{
    QFile::remove(server_.filePath(QStringLiteral("requests.log")));
    qputenv("ZUVO_UPDATE_URL", server_.url("startup.json").toUtf8());
    QWidget w;
    qputenv("ZUVO_NO_UPDATE_CHECK", "1");
    startStartupUpdateCheck(&w);
    QTest::qWait(500);
    QVERIFY(server_.requests().isEmpty());
    qputenv("ZUVO_NO_UPDATE_CHECK", "");
    startStartupUpdateCheck(&w);
    QTRY_VERIFY_WITH_TIMEOUT(!server_.requests().isEmpty(), 5000);
    QVERIFY(server_.requests().first().startsWith(QStringLiteral("/startup.json\t")));
}

QTEST_MAIN(TestUpdateUi)
#include "tst_update_ui.moc"
