#pragma once
// Decisions of the window's cross-control rules that need no widget.
#include <QString>

// What switching DST on does to the output: DST exists only in DSDIFF.
struct DstOutputFix {
    enum Kind {
        None,
        SetFormat, // batch mode with another format: the format combo becomes "dff"
        SetFile,   // otherwise: the output file becomes `file`
    };
    Kind kind = None;
    QString file;
};

DstOutputFix dstOutputFix(const QString& outputFolder, const QString& format, const QString& outputFile);
