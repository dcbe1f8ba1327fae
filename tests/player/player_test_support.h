#pragma once
// Running the real player against test-only ALSA devices, and reading back
// what it played. The devices live in a configuration file in the test's
// temporary folder that ALSA_CONFIG_PATH points at; nothing is installed.

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace playertest {

struct PlayResult {
    int exitCode = -1;
    bool crashed = false;
    QString out;
    QString err;
};

QString playerPath();

// Starts the player with ALSA_CONFIG_PATH=`alsaConfig`; the caller waits.
void startPlayer(QProcess& p, const QString& alsaConfig, const QStringList& args);
PlayResult runPlayer(const QString& alsaConfig, const QStringList& args, int timeoutMs = 120000);

// "[PATH] dop format=S32_LE rate=176400 ..." -> {"dop", "S32_LE", "176400"}; empty when absent.
QStringList chosenPath(const QString& out);

// Per-channel DSD bytes of a DSF or DSDIFF file, earliest bit in bit 7,
// parsed here independently of the engine's readers.
bool readDsdBits(const QString& path, int& rate, std::vector<QByteArray>& channels);

// A DSF header for `bytesPerChannel` bytes of `channels` channels at `rate`,
// followed by a sparse data chunk (the file is only extended, not written).
bool writeSparseDsf(const QString& path, int rate, int channels, std::uint64_t bytesPerChannel);

QByteArray readAll(const QString& path);

} // namespace playertest
