#include "prm/text/KeyframeDeclaration.h"

namespace Prm {

namespace {

// Index just behind the opening parenthesis of the inner call, or -1 when the line has none in front of
// its first comma.
int iArgumentStart(QString const& line)
{
    bool bQuoted = false;
    int start = -1;
    for (int i = 0; i < line.size(); ++i) {
        QChar const c = line.at(i);
        if (c == QLatin1Char('"'))
            bQuoted = !bQuoted;
        else if (!bQuoted && c == QLatin1Char(','))
            break;
        else if (!bQuoted && c == QLatin1Char('('))
            start = i + 1;
    }
    return start;
}

QString qstrEntry(QString const& line, int from, int to)
{
    return line.midRef(from, to - from).trimmed().toString();
}

} // namespace

QStringList parseKeyframeDeclaration(QString line)
{
    QStringList entries;
    int const start = iArgumentStart(line);
    if (start < 0)
        return entries;
    entries.reserve(6);
    // Entries are cut out of the line whole: one allocation each on the load path.
    int entryStart = start;
    int end = line.size();
    bool bQuoted = false;
    int depth = 0;
    for (int i = start; i < line.size(); ++i) {
        QChar const c = line.at(i);
        if (c == QLatin1Char('"')) {
            bQuoted = !bQuoted;
        } else if (bQuoted) {
            continue;
        } else if (c == QLatin1Char('(')) {
            ++depth;
        } else if (c == QLatin1Char(')')) {
            if (depth == 0) {
                end = i;
                break;
            }
            --depth;
        } else if (depth == 0 && c == QLatin1Char(',')) {
            entries << qstrEntry(line, entryStart, i);
            entryStart = i + 1;
        }
    }
    QString const last = qstrEntry(line, entryStart, end);
    if (!last.isEmpty() || !entries.isEmpty())
        entries << last;
    return entries;
}

} // namespace Prm
