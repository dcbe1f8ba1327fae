#include "output_naming.h"

#include "conversion_settings.h"

#include <cstdio>

namespace {

bool isSeparator(QChar c) { return c == u'/' || c == u'\\'; }

// "{track:N}" with N read like a plain decimal number. Returns -1 when the
// text after "track:" does not start with a digit, so it falls back like any
// other empty variable. Saturates instead of overflowing on absurd widths.
int trackWidth(QStringView rest)
{
    int width = 0;
    bool any = false;
    for (QChar c : rest) {
        if (c < u'0' || c > u'9')
            break;
        any = true;
        width = width >= 1000 ? 1000 : width * 10 + (c.unicode() - u'0');
    }
    return any ? width : -1;
}

QString zeroPadded(int number, int width)
{
    char buf[32];
    std::snprintf(buf, sizeof buf, "%0*d", width, number);
    return QString::fromLatin1(buf);
}

}  // namespace

QString fileStem(const QString& path)
{
    qsizetype start = 0;
    for (qsizetype i = path.size(); i > 0; --i) {
        if (isSeparator(path.at(i - 1))) {
            start = i;
            break;
        }
    }
    const QString name = path.mid(start);
    const qsizetype dot = name.lastIndexOf(u'.');
    if (dot <= 0)
        return name;
    return name.left(dot);
}

QString expandNameTemplate(const QString& tmpl, const QString& inputPath, const QString& ext,
                           int number, const QString& artist, const QString& title)
{
    const QString stem = fileStem(inputPath);
    QString out;
    qsizetype i = 0;
    while (i < tmpl.size()) {
        const QChar c = tmpl.at(i);
        if (c != u'{') {
            out += c;
            ++i;
            continue;
        }
        const qsizetype close = tmpl.indexOf(u'}', i + 1);
        if (close < 0) {
            out += tmpl.mid(i);
            break;
        }
        const QString name = tmpl.mid(i + 1, close - i - 1);
        i = close + 1;

        if (name == u"input") {
            out += stem;
            continue;
        }
        if (name == u"ext") {
            out += ext;
            continue;
        }

        QString value;
        if (name == u"track") {
            if (number >= 1)
                value = QString::number(number);
        } else if (name.startsWith(u"track:")) {
            const int width = trackWidth(QStringView(name).mid(6));
            if (width >= 1 && width <= 9 && number >= 1)
                value = zeroPadded(number, width);
        } else if (name == u"artist") {
            value = artist;
        } else if (name == u"title") {
            value = title;
        } else if (name == u"album" || name == u"genre" || name == u"year") {
            // These tags are not passed in, so they always take the stem.
        } else {
            out += u'{' + name + u'}';
            continue;
        }
        out += value.isEmpty() ? stem : value;
    }
    if (out.isEmpty())
        return stem;
    return out;
}

QString outputPathFor(const ConversionSettings& s)
{
    if (s.output_dir.isEmpty())
        return s.output_path;

    const QString ext = s.output_ext.isEmpty() ? QStringLiteral("dsf") : s.output_ext;
    const QString input = s.inputs.isEmpty() ? QString() : s.inputs.first();
    const QString tmpl = s.name_template.isEmpty() ? QStringLiteral("{input}") : s.name_template;

    QString name = expandNameTemplate(tmpl, input, ext, s.queue_number, s.artist, s.title);
    if (name.isEmpty())
        name = fileStem(input);

    QString folder = s.output_dir;
    while (!folder.isEmpty() && isSeparator(folder.back()))
        folder.chop(1);

    // Always "/" and always the extension, even after a template ending in
    // "{ext}": the engine picks the format from the final suffix.
    return folder + u'/' + name + u'.' + ext;
}
