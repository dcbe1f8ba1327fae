#pragma once
// Turns one conversion settings record into the engine's argument list.
// The order of the arguments matters to the engine and is kept exactly; the
// list is never quoted or escaped and an empty string is an argument of its own.

#include "conversion_settings.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

// One row of the Advanced page: an extra engine option that is "on" exactly
// when its name is a key of ConversionSettings::advanced.
struct AdvancedOption {
    enum Kind {
        Switch = 0,    // no value
        Integer = 1,   // integer text
        Number = 2,    // number text
        Text = 3,      // free text or a path
        Triples = 4,   // "f g b; f g b; ..." segments of three numbers
    };
    QString option;       // e.g. "--dehum-q"
    int kind = Switch;    // one of Kind
    QString defaultText;  // used when the record's value is empty (never for Triples)
    int group = 0;        // 0..4, the group box on the Advanced page
    QString description;  // one-line tooltip, shown untranslated
};

// The 42 advanced options in emission order; the Advanced page builds its rows
// from the same table.
const QList<AdvancedOption>& advancedOptionTable();

// The complete argument list for one engine run. Never fails: inconsistent
// settings are resolved and reported through the note sink.
QStringList buildEngineArgs(const ConversionSettings& settings);

// Receives the builder's explanatory note lines (UTF-8, no trailing newline).
// A null callback restores the default sink, which writes the line and a
// newline to standard error. Process-wide.
void setArgNoteSink(std::function<void(const char* utf8Line)> sink);

// Floating-point values as the engine expects them: printf "%f".
QString formatEngineFloat(double value);

// The "--eq" value: each band as "%.0f,%.1f,%.1f%c", joined by ";".
QString formatEqBands(const QList<EqBand>& bands);

// How an advanced "--equalizer" value splits into engine triples. Segments
// are cut at ";", commas count as blanks; a segment with exactly three pieces
// becomes a triple, any other non-blank segment is rejected (as it reads after
// the comma replacement) and blank segments vanish.
struct EqualizerSegments {
    QList<QStringList> triples;
    QStringList rejected;
};
EqualizerSegments splitAdvancedEqualizer(const QString& value);
