// The player end to end: real DSF/DSDIFF/FLAC files played to ALSA devices
// defined in a test-only configuration (the file plugin captures what the
// player wrote), then the captured stream is checked: native DSD and DoP
// carry the file's bits unchanged, the PCM paths carry the file's tone at
// the level an independent decoder (ffmpeg) finds in the same file.
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <sndfile.h>
#include <sys/stat.h>

#include <atomic>
#include <cmath>
#include <thread>
#include <unistd.h>
#include <fcntl.h>

#include "engine_test_support.h"
#include "player_test_support.h"

using namespace playertest;

namespace {

constexpr double kToneHz = 1000.0;
constexpr double kToneAmp = 0.5;

std::vector<std::vector<double>> s32Channels(const QByteArray& raw, int channels)
{
    const auto frames = std::size_t(raw.size()) / 4 / std::size_t(channels);
    std::vector<std::vector<double>> out(static_cast<std::size_t>(channels), std::vector<double>(frames, 0.0));
    const auto* p = reinterpret_cast<const unsigned char*>(raw.constData());
    for (std::size_t i = 0; i < frames; ++i)
        for (int c = 0; c < channels; ++c) {
            const unsigned char* b = p + (i * std::size_t(channels) + std::size_t(c)) * 4;
            const auto v = std::int32_t(std::uint32_t(b[0]) | std::uint32_t(b[1]) << 8 | std::uint32_t(b[2]) << 16
                                        | std::uint32_t(b[3]) << 24);
            out[std::size_t(c)][i] = v / 2147483648.0;
        }
    return out;
}

double db(double ratio) { return 20 * std::log10(ratio); }

} // namespace

class TestPlayerAlsa : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QString conf_;
    QString dsd64_, dsd256_, dff64_, flac96_, longDsf_;
    bool a52_ = false;

    QString path(const QString& name) const { return dir_.filePath(name); }
    QString capture(const QString& device) const { return path(device + ".raw"); }

    void writeConfig()
    {
        QFile f(conf_);
        QVERIFY(f.open(QIODevice::WriteOnly));
        const QString d = dir_.path();
        f.write(QStringLiteral(R"(
pcm.sink { type null }
# Takes every format, DSD included.
pcm.dsdcap { type file slave.pcm "sink" file "%1/dsdcap.raw" format "raw" }
# PCM only (any linear format, any rate), captured as S32_LE.
pcm.pcmcapfile { type file slave.pcm "sink" file "%1/pcmcap.raw" format "raw" }
pcm.pcmcap { type linear slave { pcm "pcmcapfile" format S32_LE } }
# PCM only, S32_LE at 48 kHz stereo and nothing else (an encoder behind it).
pcm.enc48 { type a52 slavepcm "sink" rate 48000 channels 2 }
pcm.cap48 { type file slave.pcm "enc48" file "%1/cap48.raw" format "raw" }
# Played into a pipe that the test reads at its own pace, like a real device.
pcm.fifofile { type file slave.pcm "sink" file "%1/paced.fifo" format "raw" }
pcm.paced { type linear slave { pcm "fifofile" format S32_LE } }
# Discards DoP frames, for the long-file memory check.
pcm.pcmsink { type linear slave { pcm "sink" format S32_LE } }
# Mono S16 only: refuses a stereo file in every format.
pcm.mono16 { type speex slave.pcm "sink" }
pcm.zuvolisted { type null hint { show on description "Zuvo test sink" } }
)").arg(d).toUtf8());
    }

private slots:
    void initTestCase()
    {
        QVERIFY(dir_.isValid());
        conf_ = path("asound.conf");
        writeConfig();
        const QString wav = path("tone.wav");
        QVERIFY(enginetest::writePcm(wav, 44100, 2, 44100 * 3, SF_FORMAT_WAV | SF_FORMAT_PCM_24,
                                     [](long i, int) { return kToneAmp * std::sin(2 * M_PI * kToneHz * i / 44100.0); }));
        dsd64_ = path("tone64.dsf");
        dsd256_ = path("tone256.dsf");
        dff64_ = path("tone64.dff");
        for (const auto& [out, rate] : {std::pair{dsd64_, "64"}, {dsd256_, "256"}, {dff64_, "64"}}) {
            const auto r = enginetest::runEngine({"--oversampling", rate, "-i", wav, out});
            QVERIFY2(r.exitCode == 0, qPrintable(r.err));
        }
        flac96_ = path("tone96.flac");
        QVERIFY(enginetest::writePcm(flac96_, 96000, 2, 96000 * 2, SF_FORMAT_FLAC | SF_FORMAT_PCM_24,
                                     [](long i, int) { return kToneAmp * std::sin(2 * M_PI * kToneHz * i / 96000.0); }));
        // 60 s of DSD64 for the paced runs; its content does not matter.
        longDsf_ = path("long64.dsf");
        QVERIFY(writeSparseDsf(longDsf_, 2822400, 2, 2822400 / 8 * 60));
        a52_ = runPlayer(conf_, {"-i", flac96_, "-dev", "cap48"}).exitCode == 0;
    }

    void nativeDsdCarriesTheFileBitsUnchanged()
    {
        const PlayResult r = runPlayer(conf_, {"-i", dsd64_, "-dev", "dsdcap"});
        QCOMPARE(r.exitCode, 0);
        const QStringList chosen = chosenPath(r.out);
        QCOMPARE(chosen, (QStringList{"native-dsd", "DSD_U32_BE", "88200"}));
        int rate = 0;
        std::vector<QByteArray> bits;
        QVERIFY(readDsdBits(dsd64_, rate, bits));
        const QByteArray raw = readAll(capture("dsdcap"));
        const qsizetype n = bits[0].size();
        QCOMPARE(raw.size(), (n + 3) / 4 * 4 * 2);
        for (int c = 0; c < 2; ++c) {
            QByteArray got;
            for (qsizetype f = 0; f * 8 < raw.size(); ++f)
                got.append(raw.mid(f * 8 + c * 4, 4)); // big-endian words: earliest byte first
            QCOMPARE(got.left(n), bits[std::size_t(c)]);
        }
    }

    void dopMarkersAlternateAndCarryTheBits_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("rate");
        QTest::newRow("DSD64 DSF, PCM-only device") << dsd64_ << QStringList{"-dev", "pcmcap"} << "176400";
        QTest::newRow("DSD256 DSF, PCM-only device") << dsd256_ << QStringList{"-dev", "pcmcap"} << "705600";
        QTest::newRow("DSD64 DSDIFF, PCM-only device") << dff64_ << QStringList{"-dev", "pcmcap"} << "176400";
        QTest::newRow("DoP asked for on a DSD device") << dsd64_ << QStringList{"-dev", "dsdcap", "-dop"} << "176400";
    }

    void dopMarkersAlternateAndCarryTheBits()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, args);
        QFETCH(QString, rate);
        const PlayResult r = runPlayer(conf_, QStringList{"-i", file} + args);
        QCOMPARE(r.exitCode, 0);
        const QStringList chosen = chosenPath(r.out);
        QCOMPARE(chosen.value(0), QStringLiteral("dop"));
        QCOMPARE(chosen.value(2), rate);
        const QString device = args.value(1);
        const QByteArray raw = readAll(capture(device == "dsdcap" ? "dsdcap" : "pcmcap"));
        int fileRate = 0;
        std::vector<QByteArray> bits;
        QVERIFY(readDsdBits(file, fileRate, bits));
        const QString format = chosen.value(1);
        const int width = format == "S24_3LE" ? 3 : 4;
        QVERIFY2(format == "S32_LE" || device == "pcmcap", qPrintable(format));
        const qsizetype frames = raw.size() / (2 * width);
        QCOMPARE(frames, (bits[0].size() + 1) / 2);
        unsigned char previous = 0;
        std::vector<QByteArray> got(2);
        for (qsizetype f = 0; f < frames; ++f) {
            for (int c = 0; c < 2; ++c) {
                const char* w = raw.constData() + (f * 2 + c) * width;
                // S32_LE: payload in the upper three bytes, the lowest one empty.
                const int top = width - 1;
                const auto marker = static_cast<unsigned char>(w[top]);
                if (c == 0) {
                    QVERIFY2(marker == 0x05 || marker == 0xFA, qPrintable(QString::number(marker, 16)));
                    if (f > 0)
                        QVERIFY(marker != previous);
                    previous = marker;
                } else {
                    QCOMPARE(marker, previous);
                }
                if (width == 4)
                    QCOMPARE(w[0], '\0');
                got[std::size_t(c)].append(w[top - 1]).append(w[top - 2]);
            }
        }
        for (int c = 0; c < 2; ++c)
            QCOMPARE(got[std::size_t(c)].left(bits[0].size()), bits[std::size_t(c)]);
    }

    void pcmPathsCarryTheToneAtTheFileLevel_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("capture");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<bool>("needsEncoder");
        QTest::newRow("DSD64 to a 48 kHz-only device") << dsd64_ << QStringList{"-dev", "cap48"} << "cap48"
                                                       << QStringList{"dsd-to-pcm", "S32_LE", "48000"} << true;
        QTest::newRow("DSD256 to a 48 kHz-only device") << dsd256_ << QStringList{"-dev", "cap48"} << "cap48"
                                                        << QStringList{"dsd-to-pcm", "S32_LE", "48000"} << true;
        QTest::newRow("DSD64, PCM asked for") << dsd64_ << QStringList{"-dev", "pcmcap", "-pcm"} << "pcmcap"
                                              << QStringList{"dsd-to-pcm", "S32_LE", "352800"} << false;
        QTest::newRow("DSD64, rate capped below DoP") << dsd64_ << QStringList{"-dev", "pcmcap", "-maxrate", "96000"}
                                                      << "pcmcap" << QStringList{"dsd-to-pcm", "S32_LE", "88200"}
                                                      << false;
        QTest::newRow("96 kHz FLAC to a 48 kHz-only device") << flac96_ << QStringList{"-dev", "cap48"} << "cap48"
                                                             << QStringList{"pcm-resampled", "S32_LE", "48000"}
                                                             << true;
    }

    void pcmPathsCarryTheToneAtTheFileLevel()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, args);
        QFETCH(QString, capture);
        QFETCH(QStringList, expected);
        QFETCH(bool, needsEncoder);
        if (needsEncoder && !a52_)
            QSKIP("the a52 ALSA plugin (libasound2-plugins) cannot be opened here");
        const PlayResult r = runPlayer(conf_, QStringList{"-i", file} + args);
        QVERIFY2(r.exitCode == 0, qPrintable(r.err));
        QCOMPARE(chosenPath(r.out), expected);
        const int rate = expected.value(2).toInt();
        const auto played = s32Channels(readAll(this->capture(capture)), 2);
        std::vector<std::vector<double>> reference;
        QVERIFY(enginetest::ffmpegDecode(file, rate, 2, reference));
        // Whole seconds of the file, give or take the filters' tails.
        const double seconds = double(played[0].size()) / rate;
        const double expectedSeconds = double(reference[0].size()) / rate;
        QVERIFY2(std::abs(seconds - expectedSeconds) < 0.05, qPrintable(QString::number(seconds)));
        const auto skip = std::size_t(rate / 4);
        for (int c = 0; c < 2; ++c) {
            const double ours = enginetest::toneAmplitude(played[std::size_t(c)], rate, kToneHz, skip);
            const double theirs = enginetest::toneAmplitude(reference[std::size_t(c)], rate, kToneHz, skip);
            const double noise = enginetest::residualRms(played[std::size_t(c)], rate, kToneHz, skip);
            qInfo("%s ch%d: tone %.3f dBFS (ffmpeg %.3f dBFS), rest %.1f dB below", QTest::currentDataTag(), c,
                  db(ours), db(theirs), db(ours / std::sqrt(2) / noise));
            QVERIFY(std::abs(db(ours / theirs)) < 0.1);
            // The rest includes DSD's shaped noise up to the low-pass corner.
            QVERIFY(ours / std::sqrt(2) / noise > std::pow(10, 60 / 20.0));
        }
    }

    void pcmFileAtItsOwnRateIsBitExact()
    {
        const PlayResult r = runPlayer(conf_, {"-i", flac96_, "-dev", "pcmcap"});
        QCOMPARE(r.exitCode, 0);
        QCOMPARE(chosenPath(r.out), (QStringList{"pcm", "S32_LE", "96000"}));
        SF_INFO info{};
        SNDFILE* f = sf_open(flac96_.toUtf8().constData(), SFM_READ, &info);
        QVERIFY(f);
        std::vector<int> expected(std::size_t(info.frames * info.channels));
        sf_readf_int(f, expected.data(), info.frames); // 24-bit samples in the top bits, as S32_LE carries them
        sf_close(f);
        const QByteArray raw = readAll(capture("pcmcap"));
        QCOMPARE(std::size_t(raw.size()), expected.size() * 4);
        QVERIFY(std::memcmp(raw.constData(), expected.data(), std::size_t(raw.size())) == 0);
    }

    void stopEndsPlaybackWithin200ms_data()
    {
        QTest::addColumn<QStringList>("extra");
        QTest::newRow("preloading") << QStringList{};
        QTest::newRow("streaming") << QStringList{"-stream"};
    }

    void stopEndsPlaybackWithin200ms()
    {
        QFETCH(QStringList, extra);
        const QString fifo = path("paced.fifo");
        QFile::remove(fifo);
        QCOMPARE(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        // The "device": reads 64 KiB every 2 ms (about 20x real time for DSD64
        // as DoP). What the player queued in ALSA's buffer is written out when
        // it closes the device, so a slow reader would measure itself.
        std::atomic<qint64> consumed{0};
        std::thread device([&] {
            const int fd = ::open(QFile::encodeName(fifo).constData(), O_RDONLY);
            std::vector<char> buf(65536);
            for (ssize_t n; fd >= 0 && (n = ::read(fd, buf.data(), buf.size())) > 0;) {
                consumed += n;
                std::this_thread::sleep_for(std::chrono::milliseconds(2));
            }
            if (fd >= 0)
                ::close(fd);
        });
        QProcess p;
        startPlayer(p, conf_, QStringList{"-i", longDsf_, "-dev", "paced"} + extra);
        QVERIFY(p.waitForStarted(10000));
        QTRY_VERIFY_WITH_TIMEOUT(consumed > 2 * 1024 * 1024, 10000);
        QVERIFY(p.state() == QProcess::Running);
        QElapsedTimer clock;
        clock.start();
        p.write("stop\n");
        QVERIFY(p.waitForFinished(5000));
        const qint64 ms = clock.elapsed();
        device.join();
        qInfo("stop answered after %lld ms, %lld bytes played", ms, qint64(consumed));
        QCOMPARE(p.exitCode(), 3);
        QVERIFY2(ms < 200, qPrintable(QString::number(ms)));
        QVERIFY(QString::fromUtf8(p.readAllStandardOutput()).contains("[PLAYER] stopped"));
        QVERIFY(consumed < qint64(60) * 176400 * 8); // it really was mid-file
    }

    void streamingMemoryStaysBoundedForA4GBDsd512File()
    {
        const QString big = path("huge512.dsf");
        const std::uint64_t perChannel = (std::uint64_t(2) << 30); // 2 x 2 GiB = 4 GiB of DSD512
        QVERIFY(writeSparseDsf(big, 2822400 * 8, 2, perChannel));
        QProcess p;
        startPlayer(p, conf_, {"-i", big, "-dev", "pcmsink", "-stream"});
        QVERIFY(p.waitForStarted(10000));
        QByteArray out;
        QTRY_VERIFY_WITH_TIMEOUT((out += p.readAllStandardOutput()).contains("[PROGRESS]"), 10000);
        QTest::qWait(2000); // plays (as fast as the sink takes it) for two seconds
        QVERIFY(p.state() == QProcess::Running);
        const QByteArray status = readAll(QStringLiteral("/proc/%1/status").arg(p.processId()));
        p.write("stop\n");
        QVERIFY(p.waitForFinished(5000));
        QVERIFY2(p.exitCode() == 3, (out + p.readAllStandardError()).constData());
        const QRegularExpressionMatch m = QRegularExpression("VmHWM:\\s+(\\d+) kB").match(QString::fromLatin1(status));
        QVERIFY(m.hasMatch());
        const qint64 peakKb = m.captured(1).toLongLong();
        qInfo("peak resident memory while streaming a 4 GiB DSD512 file: %lld kB", peakKb);
        QVERIFY(peakKb < 64 * 1024);
    }

    void failuresSayWhatWentWrong_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("unknown device") << QStringList{"-i", dsd64_, "-dev", "nosuchdevice"} << 4
                                        << "cannot open the playback device \"nosuchdevice\"";
        QTest::newRow("device refuses every format") << QStringList{"-i", dsd64_, "-dev", "mono16"} << 5
                                                     << "refuses every format";
        QTest::newRow("missing file") << QStringList{"-i", path("absent.dsf"), "-dev", "dsdcap"} << 2
                                      << "cannot play";
        QTest::newRow("not audio") << QStringList{"-i", conf_, "-dev", "dsdcap"} << 2 << "cannot play";
        QTest::newRow("no input") << QStringList{"-dev", "dsdcap"} << 1 << "no input file";
        QTest::newRow("bad rate cap") << QStringList{"-i", dsd64_, "-maxrate", "9x"} << 1 << "invalid rate";
    }

    void failuresSayWhatWentWrong()
    {
        QFETCH(QStringList, args);
        QFETCH(int, code);
        QFETCH(QString, message);
        const PlayResult r = runPlayer(conf_, args);
        QCOMPARE(r.exitCode, code);
        QVERIFY(!r.crashed);
        QVERIFY2(r.err.contains(message), qPrintable(r.err));
    }

    void truncatedDsfPlaysWhatItHasThenFails()
    {
        const QString cut = path("cut.dsf");
        QByteArray whole = readAll(dsd64_);
        QFile f(cut);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(whole.left(whole.size() / 2));
        f.close();
        const PlayResult r = runPlayer(conf_, {"-i", cut, "-dev", "dsdcap"});
        QCOMPARE(r.exitCode, 2);
        QVERIFY2(r.err.contains("truncated"), qPrintable(r.err));
        QVERIFY(readAll(capture("dsdcap")).size() > whole.size() / 4);
    }

    void listsPlaybackDevices()
    {
        const PlayResult r = runPlayer(conf_, {"--list-devices"});
        QCOMPARE(r.exitCode, 0);
        QVERIFY2(r.out.contains("zuvolisted\tZuvo test sink"), qPrintable(r.out));
    }
};

QTEST_GUILESS_MAIN(TestPlayerAlsa)
#include "tst_player_alsa.moc"
