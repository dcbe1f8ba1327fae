// The preview dialog on real files: its texts for a good WAV, a DSF and a
// broken file, page switching, the off-thread spectrogram and where the
// line of a 1 kHz tone lands on the drawn frequency axis.
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QtTest>

#include "preview_dialog.h"
#include "spectrogram.h"
#include "spectrogram_view.h"
#include "wav_bytes.h"
#include "waveform_view.h"

using namespace wavbytes;

namespace {

int distance(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

double levelOfColour(QRgb px)
{
    double best = 1.0;
    int bestDistance = 1000;
    for (int i = 0; i <= 1000; ++i) {
        const int d = distance(px, pv::paletteColour(i / 1000.0));
        if (d < bestDistance) {
            bestDistance = d;
            best = i / 1000.0;
        }
    }
    return best;
}

QPushButton* button(QWidget& w, const QString& text)
{
    for (QPushButton* b : w.findChildren<QPushButton*>())
        if (b->text() == text)
            return b;
    return nullptr;
}

int countColour(const QImage& img, QRgb colour)
{
    int n = 0;
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            n += distance(img.pixel(x, y), colour) <= 2;
    return n;
}

} // namespace

class TestPreviewDialog : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QString fiveMinutes_;

private slots:
    void initTestCase()
    {
        // Five minutes of a 1 kHz tone at 48 kHz, of which 30 s are previewed.
        const quint32 rate = 48000;
        fiveMinutes_ = write(dir_.filePath("tone 1k.wav"),
                             riff(chunk("fmt ", fmtBody(1, 1, rate, 16)) + chunk("data", sine16(1000.0, rate, 300LL * rate))));
        QVERIFY(!fiveMinutes_.isEmpty());
    }

    void successShowsWhatWasPreviewed()
    {
        pv::PreviewDialog d(fiveMinutes_);
        QCOMPARE(d.windowTitle(), QStringLiteral("预览: tone 1k.wav"));
        QCOMPARE(d.size(), QSize(760, 440));
        QCOMPARE(d.infoText(), QStringLiteral("tone 1k.wav — 48000 Hz / 1 ch, 预览 30.0 s (上限 30 s)"));
        QCOMPARE(d.data().samples.size(), size_t(30 * 48000));
        auto* info = d.findChild<QLabel*>("previewInfo");
        QVERIFY(info->wordWrap());
        QVERIFY(info->textInteractionFlags() & Qt::TextSelectableByMouse);
        QCOMPARE(d.currentPage(), int(pv::PreviewDialog::WaveformPage));
        QVERIFY(!d.isModal());
    }

    void pagesFollowTheButtons()
    {
        pv::PreviewDialog d(fiveMinutes_);
        d.show();
        QPushButton* wave = button(d, "波形");
        QPushButton* spectrum = button(d, "频谱");
        QVERIFY(wave && spectrum && button(d, "关闭"));
        QVERIFY(wave->isCheckable() && spectrum->isCheckable());
        QVERIFY(wave->isChecked() && !spectrum->isChecked());
        spectrum->click();
        QCOMPARE(d.currentPage(), 1);
        QCOMPARE(d.findChild<QStackedWidget*>()->currentWidget(), d.spectrogramView());
        QVERIFY(spectrum->isChecked() && !wave->isChecked());
        wave->click();
        QCOMPARE(d.findChild<QStackedWidget*>()->currentWidget(), d.waveformView());
        button(d, "关闭")->click();
        QVERIFY(!d.isVisible());
    }

    void unsupportedFormatNamesItsSuffix()
    {
        const QString dsf = write(dir_.filePath("album.dsf"), QByteArray("DSD ") + QByteArray(200, '\0'));
        pv::PreviewDialog d(dsf);
        QCOMPARE(d.infoText(), QStringLiteral("该格式 (DSF) 预览待后续 — 目前仅支持 WAV (DSD 解码属后续里程碑)"));
        QVERIFY(!d.data().ok);
        QVERIFY(!d.spectrogramView()->isComputing());
        QCOMPARE(d.spectrogramView()->columns(), 0);
    }

    void brokenFileSaysWhy_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("text file") << QByteArray("hello, not audio") << "解码失败: not RIFF/WAVE";
        QTest::newRow("8-bit") << riff(chunk("fmt ", fmtBody(1, 1, 8000, 8)) + chunk("data", "abcd"))
                               << "解码失败: unsupported depth 8";
    }
    void brokenFileSaysWhy()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        pv::PreviewDialog d(write(dir_.filePath("broken.wav"), bytes));
        QCOMPARE(d.infoText(), text);
        d.showPage(pv::PreviewDialog::SpectrogramPage);
        d.show();
        QVERIFY(QTest::qWaitForWindowExposed(&d));
        QVERIFY(!d.spectrogramView()->isComputing());
        QCOMPARE(d.spectrogramView()->columns(), 0);
    }

    void spectrogramArrivesFromAnotherThread()
    {
        pv::PreviewDialog d(fiveMinutes_);
        pv::SpectrogramView* view = d.spectrogramView();
        QSignalSpy computed(view, &pv::SpectrogramView::computed);
        // The constructor returned before the analysis finished; the window stayed free.
        QVERIFY(view->isComputing() || computed.count() == 1);
        QVERIFY(computed.count() == 1 || computed.wait(20000));
        QVERIFY(!view->isComputing());
        QCOMPARE(view->columns(), 2048);
        QCOMPARE(view->image().size(), QSize(2048, 220));
    }

    void closingWhileComputingIsSafe()
    {
        for (int i = 0; i < 3; ++i) {
            auto* d = new pv::PreviewDialog(fiveMinutes_);
            d->setAttribute(Qt::WA_DeleteOnClose);
            d->show();
            d->close();
        }
        QTest::qWait(300);
    }

    void onlyTheLatestSignalIsShown()
    {
        pv::PreviewData first;
        QVERIFY(pv::readPreview(fiveMinutes_, first));
        auto second = std::make_shared<pv::PreviewData>();
        second->ok = true;
        second->sampleRate = 8000.0;
        second->channels = 1;
        second->samples.assign(4096, 0.25f);
        pv::SpectrogramView view;
        QSignalSpy computed(&view, &pv::SpectrogramView::computed);
        view.setData(std::make_shared<pv::PreviewData>(std::move(first)));
        view.setData(second);
        QVERIFY(computed.wait(20000));
        QCOMPARE(view.columns(), 8);
        QTest::qWait(300);
        QCOMPARE(computed.count(), 1);
        QCOMPARE(view.columns(), 8);
    }

    void toneLineSitsOnItsFrequency()
    {
        pv::PreviewDialog d(fiveMinutes_);
        d.showPage(pv::PreviewDialog::SpectrogramPage);
        d.show();
        QVERIFY(QTest::qWaitForWindowExposed(&d));
        pv::SpectrogramView* view = d.spectrogramView();
        QSignalSpy computed(view, &pv::SpectrogramView::computed);
        QVERIFY(!view->isComputing() || computed.wait(20000));
        const QImage shot = view->grab().toImage();
        const QRect plot = view->plotRect();
        for (int x : {plot.left() + plot.width() / 4, plot.center().x(), plot.right() - plot.width() / 4}) {
            int darkest = -1;
            double best = 2.0;
            for (int y = plot.top() + 1; y < plot.bottom(); ++y) {
                const double u = levelOfColour(shot.pixel(x, y));
                if (u < best) {
                    best = u;
                    darkest = y;
                }
            }
            QVERIFY2(std::abs(darkest - view->yForFrequency(1000.0)) <= 2,
                     qPrintable(QString("line at y=%1, 1 kHz mark at y=%2").arg(darkest).arg(view->yForFrequency(1000.0))));
        }
        const QString shots = qEnvironmentVariable("PREVIEW_SHOT_DIR");
        if (!shots.isEmpty()) {
            QVERIFY(d.grab().save(shots + "/preview_spectrogram.png"));
            d.showPage(pv::PreviewDialog::WaveformPage);
            QVERIFY(d.grab().save(shots + "/preview_waveform.png"));
        }
    }

    void clippedSamplesStandOut()
    {
        // A half-scale tone, then the same tone driven into the rails.
        QByteArray data = sine16(440.0, 8000, 8000, 0.5);
        const QByteArray full = sine16(440.0, 8000, 8000, 1.0);
        for (int i = 0; i < full.size(); i += 2) {
            const qint16 v = qFromLittleEndian<qint16>(full.constData() + i);
            data += le16(std::clamp(2 * int(v), -32768, 32767));
        }
        pv::PreviewDialog d(write(dir_.filePath("clipped.wav"), riff(chunk("fmt ", fmtBody(1, 1, 8000, 16)) + chunk("data", data))));
        d.show();
        QVERIFY(QTest::qWaitForWindowExposed(&d));
        pv::WaveformView* view = d.waveformView();
        const QImage shot = view->grab().toImage();
        const QRect plot = view->plotRect();
        const QImage firstHalf = shot.copy(plot.left(), plot.top(), plot.width() / 2 - 2, plot.height());
        const QImage secondHalf = shot.copy(plot.center().x() + 2, plot.top(), plot.width() / 2 - 4, plot.height());
        const QRgb wave = qRgb(124, 58, 237);
        const QRgb red = qRgb(220, 38, 38);
        QVERIFY(countColour(firstHalf, wave) > 100);
        QCOMPARE(countColour(firstHalf, red), 0);
        QVERIFY(countColour(secondHalf, red) > 100);
    }
};

QTEST_MAIN(TestPreviewDialog)
#include "tst_preview_dialog.moc"
