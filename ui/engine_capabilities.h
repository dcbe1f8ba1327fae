#pragma once
// What the located engine refuses, asked once from the engine itself
// ("--capabilities": one line "refused OPTION" per option), so a run that
// would only end in a usage error is stopped before it starts.
#include <QObject>
#include <QStringList>

class QProcess;

// The refused option names of a "--capabilities" listing; other lines are ignored.
QStringList parseRefusedOptions(const QByteArray& listing);
// The "supports OPTION" names of the same listing: optional features the
// engine has (an older engine lists none).
QStringList parseSupportedOptions(const QByteArray& listing);

// The options of `args` that the engine refuses, each once, in argument order;
// the values of the tag, input and log options are never taken for options.
QStringList refusedOptionsIn(const QStringList& args, const QStringList& refused);

class EngineCapabilityProbe : public QObject {
    Q_OBJECT
public:
    explicit EngineCapabilityProbe(QObject* parent = nullptr);
    ~EngineCapabilityProbe() override;

    // Starts the query in the background; a second call with the same engine does nothing.
    void start(const QString& enginePath);
    // Waits at most `ms` for a running query. True when a listing is known.
    bool waitUntilKnown(int ms);
    bool known() const { return known_; }
    QStringList refused() const { return refused_; }
    QStringList supported() const { return supported_; }

signals:
    // The listing became known (emitted once per engine).
    void listingKnown();

private:
    void finish(int exitCode);

    QProcess* process_ = nullptr;
    QString enginePath_;
    bool known_ = false;
    QStringList refused_;
    QStringList supported_;
};
