#pragma once
// Re-joins an engine's output into whole lines. An in-process run hands its
// output over in pieces that may end mid-line; the bytes after the last line
// feed wait here for the next piece instead of being shown as a line.

#include <QByteArray>
#include <QList>
#include <QString>

class LineCarry {
public:
    // Appends `chunk` and returns every line it completed, decoded as UTF-8,
    // without its line feed and with every carriage return removed.
    QList<QString> take(const QByteArray& chunk);
    // Forgets an unfinished line (a new run starts).
    void clear() { pending_.clear(); }
    const QByteArray& pending() const { return pending_; }

private:
    QByteArray pending_;
};
