// The preset dialogs and the file list as a user drives them: saving and
// loading through the manager, per-track choices that survive reopening,
// and drops of folders, files and web links.
#include <QtTest>

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QUrl>

#include "file_list_widget.h"
#include "per_track_dialog.h"
#include "preset_manager_dialog.h"

namespace {

void touch(const QString& path)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile f(path);
    f.open(QIODevice::WriteOnly);
}

// Answers the next modal message box with `button`, keeping its text.
void answerNextBox(QMessageBox::StandardButton button, QString* text = nullptr)
{
    QTimer::singleShot(0, [button, text] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        if (text)
            *text = box->text();
        if (QAbstractButton* b = box->button(button))
            b->click();
        else
            box->close();
    });
}

// The list's own drop handler, fed real URL data as a desktop drop carries it.
struct DropTarget : FileListWidget {
    using FileListWidget::dropEvent;
};

struct Host {
    ConversionSettings panel;
    QStringList log;
    PresetHost hooks()
    {
        return {[this] { return panel; }, [this](const ConversionSettings& s) { panel = s; },
                [this](const QString& t, bool) { log << t; }};
    }
};

} // namespace

class TestPresetsUi : public QObject {
    Q_OBJECT

private slots:
    void managerSavesLoadsAndDeletes()
    {
        QTemporaryDir root;
        Host host;
        PresetManagerDialog dialog(PresetStore(root.filePath("bin"), root.path(), root.filePath("user")),
                                   host.hooks());
        QCOMPARE(dialog.list()->count(), 0);
        const auto buttons = dialog.findChildren<QPushButton*>();
        const auto button = [&](const QString& text) {
            for (QPushButton* b : buttons)
                if (b->text() == text)
                    return b;
            return static_cast<QPushButton*>(nullptr);
        };
        QVERIFY(!button("加载选中")->isEnabled());
        QVERIFY(!button("删除选中")->isEnabled());

        host.panel.oversampling = 256;
        host.panel.taps = 131072;
        host.panel.artist = "not in presets? it is";
        dialog.saveAs("Album A", [](const QString&) { return false; });
        QCOMPARE(dialog.list()->count(), 1);
        QVERIFY(host.log.last().startsWith("已保存预设: "));

        // An existing name is only replaced after a Yes.
        host.panel.taps = 4096;
        dialog.saveAs("Album A", [](const QString&) { return false; });
        host.panel = ConversionSettings();
        dialog.list()->setCurrentRow(0);
        QVERIFY(button("加载选中")->isEnabled());
        dialog.loadSelected();
        QCOMPARE(host.panel.taps, 131072);
        QCOMPARE(host.panel.oversampling, 256);
        QCOMPARE(host.log.mid(host.log.size() - 2),
                 (QStringList{"预设含 1 个本版未支持字段, 已忽略", "已加载预设: Album A"}));

        // A name that cannot be a file is refused with a box; nothing written.
        QString refusal;
        answerNextBox(QMessageBox::Ok, &refusal);
        dialog.saveAs("a/b", [](const QString&) { return true; });
        QVERIFY2(refusal.startsWith("预设名称无效: "), qPrintable(refusal));
        QCOMPARE(QDir(root.filePath("bin/presets")).entryList(QDir::Files), QStringList{"Album A.json"});

        // A broken file says why and changes nothing.
        touch(root.filePath("bin/presets/Broken.json"));
        QFile broken(root.filePath("bin/presets/Broken.json"));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("{ not json");
        broken.close();
        const ConversionSettings before = host.panel;
        QString boxText;
        answerNextBox(QMessageBox::Ok, &boxText);
        dialog.loadPath(root.filePath("bin/presets/Broken.json"), "Broken");
        QVERIFY2(boxText.startsWith("预设文件解析失败: "), qPrintable(boxText));
        QCOMPARE(host.panel.taps, before.taps);

        // Delete asks first; on Yes the preset is gone from disk and list.
        dialog.list()->setCurrentRow(0);
        answerNextBox(QMessageBox::Yes);
        dialog.deleteSelected();
        QCOMPARE(dialog.list()->count(), 1);
        QVERIFY(!QFile::exists(root.filePath("bin/presets/Album A.json")));
    }

    void perTrackChoicesSurviveReopeningAndDeletion()
    {
        QTemporaryDir root;
        const PresetStore store(root.filePath("bin"), root.path(), root.filePath("user"));
        store.save("Vinyl", ConversionSettings());
        store.save("Tape", ConversionSettings());
        const QStringList files{"/m/01.wav", "/m/02.wav", "/m/03.wav"};

        PerTrackAssignment assignment;
        {
            PerTrackDialog dialog(files, store.list(), assignment);
            QCOMPARE(dialog.comboAt(0)->currentIndex(), 0);
            QCOMPARE(dialog.comboAt(0)->itemText(0), QStringLiteral("(用当前参数)"));
            dialog.comboAt(1)->setCurrentIndex(dialog.comboAt(1)->findText("Tape"));
            dialog.comboAt(2)->setCurrentIndex(dialog.comboAt(2)->findText("Vinyl"));
            assignment = dialog.assignment();
        }
        QCOMPARE(assignment.size(), 2);
        QCOMPARE(presetNameOf(assignment.value("/m/02.wav")), QStringLiteral("Tape"));
        {
            PerTrackDialog reopened(files, store.list(), assignment);
            QCOMPARE(reopened.comboAt(1)->currentText(), QStringLiteral("Tape"));
            QCOMPARE(reopened.comboAt(2)->currentText(), QStringLiteral("Vinyl"));
        }
        QVERIFY(PresetStore::remove(store.pathForName("Tape")));
        {
            PerTrackDialog afterDelete(files, store.list(), assignment);
            QCOMPARE(afterDelete.comboAt(1)->currentIndex(), 0);
            QCOMPARE(afterDelete.comboAt(1)->findText("Tape"), -1);
            for (int row = 0; row < files.size(); ++row)
                afterDelete.comboAt(row)->setCurrentIndex(0);
            QVERIFY(afterDelete.assignment().isEmpty());
        }
    }

    void droppedFoldersFilesAndLinks()
    {
        QTemporaryDir root;
        for (int i = 1; i <= 12; ++i)
            touch(root.filePath(QStringLiteral("album/cd%1/%2.wav").arg(i % 2 + 1).arg(i, 2, 10, QLatin1Char('0'))));
        for (int i = 1; i <= 3; ++i)
            touch(root.filePath(QStringLiteral("album/notes%1.txt").arg(i)));
        touch(root.filePath("texts/readme.txt"));
        touch(root.filePath("single.flac"));
        touch(root.filePath("cover.jpg"));

        DropTarget list;
        QStringList offered;
        list.setDropHandler([&](const QStringList& paths) { offered = paths; });
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(root.filePath("album")), QUrl::fromLocalFile(root.filePath("texts")),
                      QUrl::fromLocalFile(root.filePath("single.flac")), QUrl::fromLocalFile(root.filePath("cover.jpg")),
                      QUrl("https://example.invalid/track.wav")});
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        list.dropEvent(&drop);
        QCOMPARE(offered.size(), 13);
        QVERIFY(offered.contains(root.filePath("single.flac")));
        for (const QString& p : offered)
            QVERIFY2(p.endsWith(".wav") || p.endsWith(".flac"), qPrintable(p));

        // A drop of only text files offers nothing.
        offered.clear();
        QMimeData textsOnly;
        textsOnly.setUrls({QUrl::fromLocalFile(root.filePath("texts"))});
        QDropEvent drop2(QPointF(5, 5), Qt::CopyAction, &textsOnly, Qt::LeftButton, Qt::NoModifier);
        list.dropEvent(&drop2);
        QVERIFY(offered.isEmpty());
    }

    void presetSuffixFollowsTheAssignment()
    {
        FileListWidget list;
        list.appendPaths({"/m/01.wav", "/m/02.wav"});
        list.setPresetNames({{"/m/02.wav", "Tape"}});
        QCOMPARE(list.item(0)->text(), QStringLiteral("/m/01.wav"));
        QCOMPARE(list.item(1)->text(), QStringLiteral("/m/02.wav  ◇ 预设: Tape"));
        list.setState(1, FileListWidget::State::Done);
        QCOMPARE(list.item(1)->text(), QStringLiteral("✓ /m/02.wav  ◇ 预设: Tape"));
        list.setPresetNames({});
        QCOMPARE(list.item(1)->text(), QStringLiteral("✓ /m/02.wav"));
    }
};

QTEST_MAIN(TestPresetsUi)
#include "test_presets_ui.moc"
