#pragma once
// Decisions of the window's cross-control rules that need no widget.
#include <QString>

// What switching DST on does to the output: DST exists only in DSDIFF.
struct DstOutputFix {
    enum Kind {
        None,      // the output is DFF already
        SetFormat, // batch mode: the format combo becomes "dff"
        SetFile,   // single-file mode: the output file becomes `file`
    };
    Kind kind = None;
    QString file;
};

DstOutputFix dstOutputFix(const QString& outputFolder, const QString& format, const QString& outputFile);
