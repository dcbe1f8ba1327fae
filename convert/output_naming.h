#pragma once
// Where one engine run writes its output. Pure text functions: nothing here
// looks at the file system; the queue creates missing folders itself.

#include <QString>

struct ConversionSettings;

// The output path of one run. Output-file mode (empty output_dir) returns
// output_path unchanged, even when it is empty. Folder mode joins the folder
// (all trailing separators removed), "/", the expanded name template and
// "." + the extension ("dsf" when output_ext is empty).
QString outputPathFor(const ConversionSettings& settings);

// The file name (without extension) that a naming template gives for one run.
// Known variables: {input} {ext} {track} {track:N} (N = 1..9, zero padded)
// {artist} {title} {album} {genre} {year}; a variable other than {input} and
// {ext} that has no value falls back to the input's stem; unknown variables
// and an unclosed "{" are kept as typed.
QString expandNameTemplate(const QString& tmpl, const QString& inputPath, const QString& ext,
                           int number, const QString& artist, const QString& title);

// The file name of path (after the last "/" or "\") without its last
// extension. A name whose only dot is its first character keeps it whole.
QString fileStem(const QString& path);
