#pragma once
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

// A real HTTP server on 127.0.0.1 (Python's http.server) serving a scratch
// folder, with /redirect/ and /stall/ routes, and a signing key made by
// zuvo-sign-manifest for the manifests it serves.
class UpdateTestServer {
public:
    bool start()
    {
        if (!root_.isValid())
            return false;
        proc_.start(QStringLiteral("python3"), {QStringLiteral(ZUVO_TEST_SOURCE_DIR "/update_server.py"), root_.path()});
        if (!proc_.waitForStarted(5000) || !proc_.waitForReadyRead(10000))
            return false;
        port_ = proc_.readLine().trimmed().toInt();
        QProcess gen;
        gen.start(QStringLiteral(ZUVO_SIGN_TOOL), {QStringLiteral("genkey"), keyPath()});
        gen.waitForFinished(10000);
        publicKey_ = QByteArray::fromHex(gen.readAllStandardOutput().trimmed());
        return port_ > 0 && publicKey_.size() == 32;
    }
    ~UpdateTestServer()
    {
        proc_.closeWriteChannel();
        if (!proc_.waitForFinished(3000)) {
            proc_.kill();
            proc_.waitForFinished(3000);
        }
    }

    QString url(const QString& path) const { return QStringLiteral("http://127.0.0.1:%1/%2").arg(port_).arg(path); }
    QString filePath(const QString& name) const { return root_.filePath(name); }
    QString keyPath() const { return root_.filePath(QStringLiteral("signing.pem")); }
    QByteArray publicKey() const { return publicKey_; }

    void put(const QString& name, const QByteArray& data) const
    {
        QDir().mkpath(QFileInfo(filePath(name)).absolutePath());
        QFile f(filePath(name));
        f.open(QIODevice::WriteOnly | QIODevice::Truncate);
        f.write(data);
    }
    // Writes the manifest and signs it (unless told not to) with `key`.
    bool publish(const QString& name, const QByteArray& json, const QString& key = QString()) const
    {
        put(name, json);
        QFile::remove(filePath(name + QStringLiteral(".sig")));
        QProcess sign;
        sign.start(QStringLiteral(ZUVO_SIGN_TOOL),
                   {QStringLiteral("sign"), key.isEmpty() ? keyPath() : key, filePath(name)});
        sign.waitForFinished(10000);
        return sign.exitCode() == 0;
    }
    QStringList requests() const
    {
        QFile f(filePath(QStringLiteral("requests.log")));
        f.open(QIODevice::ReadOnly);
        return QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    static QString sha256(const QByteArray& data)
    {
        return QString::fromLatin1(QCryptographicHash::hash(data, QCryptographicHash::Sha256).toHex());
    }

private:
    QTemporaryDir root_;
    QProcess proc_;
    int port_ = 0;
    QByteArray publicKey_;
};
