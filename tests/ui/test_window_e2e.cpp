// A user's path through the window with the real engine linked in: choose
// DSD128 and SOS-EF, press Start, and the DSF that comes out runs at
// 128 x 44.1 kHz (read from the file's own header).
#include <QComboBox>
#include <QDataStream>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QtTest>
#include <cmath>

#include "conversion_queue.h"
#include "file_list_widget.h"
#include "mainwindow.h"

namespace {

// One second of a -20 dBFS 997 Hz tone, 16-bit stereo 44.1 kHz.
bool writeTone(const QString& path)
{
    const int rate = 44100, frames = rate;
    QByteArray pcm;
    QDataStream out(&pcm, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    for (int i = 0; i < frames; ++i) {
        const qint16 v = qint16(std::lround(3276.0 * std::sin(2 * 3.14159265358979 * 997.0 * i / rate)));
        out << v << v;
    }
    QByteArray wav;
    QDataStream h(&wav, QIODevice::WriteOnly);
    h.setByteOrder(QDataStream::LittleEndian);
    h.writeRawData("RIFF", 4);
    h << quint32(36 + pcm.size());
    h.writeRawData("WAVEfmt ", 8);
    h << quint32(16) << quint16(1) << quint16(2) << quint32(rate) << quint32(rate * 4) << quint16(4) << quint16(16);
    h.writeRawData("data", 4);
    h << quint32(pcm.size());
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(wav + pcm) == wav.size() + pcm.size();
}

// The DSF "fmt " chunk's sampling frequency (little-endian, after the 28-byte DSD chunk).
quint32 dsfSampleRate(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray head = f.read(64);
    if (head.size() < 60 || !head.startsWith("DSD ") || head.mid(28, 4) != "fmt ")
        return 0;
    const auto* p = reinterpret_cast<const uchar*>(head.constData() + 56);
    return quint32(p[0]) | quint32(p[1]) << 8 | quint32(p[2]) << 16 | quint32(p[3]) << 24;
}

} // namespace

class TestWindowE2e : public QObject {
    Q_OBJECT

private slots:
    void dsd128WithSosEf()
    {
        QTemporaryDir dir;
        qputenv("ZUVO_SETTINGS_DIR", QFile::encodeName(dir.filePath("settings")));
        qputenv("ZUVO_ENGINE_BIN", ZUVO_ENGINE_PATH);
        qputenv("ZUVO_ENGINE_LOG", QFile::encodeName(dir.filePath("engine.log")));
        const QString input = dir.filePath("tone.wav");
        const QString output = dir.filePath("tone.dsf");
        QVERIFY(writeTone(input));

        MainWindow w;
        w.show();
        w.findChild<FileListWidget*>()->appendPaths({input});
        for (QLineEdit* e : w.findChildren<QLineEdit*>())
            if (e->placeholderText() == QStringLiteral("输出 .dsf / .dff 文件"))
                e->setText(output);
        for (QComboBox* c : w.findChildren<QComboBox*>())
            if (c->findText("DSD-128") >= 0)
                c->setCurrentIndex(c->findText("DSD-128"));
        for (QRadioButton* r : w.findChildren<QRadioButton*>())
            if (r->text() == "SOS-EF")
                r->click();
        for (QPushButton* b : w.findChildren<QPushButton*>())
            if (b->text() == QStringLiteral("开始转换"))
                b->click();
        auto* queue = w.findChild<ConversionQueue*>();
        QTRY_VERIFY_WITH_TIMEOUT(queue->isConverting(), 5000);
        QTRY_VERIFY_WITH_TIMEOUT(!queue->isConverting(), 120000);
        QCOMPARE(dsfSampleRate(output), quint32(5644800));
        // The engine's own log names the command line it was given.
        QFile log(dir.filePath("engine.log"));
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QByteArray text = log.readAll();
        QVERIFY2(text.contains("\"--oversampling\" \"128\"") && text.contains("\"--sos-ef\""), text.constData());
    }
};

QTEST_MAIN(TestWindowE2e)
#include "test_window_e2e.moc"
