#include "prm/KeyframeDeclaration.h"

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

} // namespace

QStringList parseKeyframeDeclaration(QString line)
{
    QStringList entries;
    int const start = iArgumentStart(line);
    if (start < 0)
        return entries;
    QString entry;
    bool bQuoted = false;
    int depth = 0;
    for (int i = start; i < line.size(); ++i) {
        QChar const c = line.at(i);
        if (c == QLatin1Char('"')) {
            bQuoted = !bQuoted;
        } else if (!bQuoted && c == QLatin1Char('(')) {
            ++depth;
        } else if (!bQuoted && c == QLatin1Char(')')) {
            if (depth == 0)
                break;
            --depth;
        } else if (!bQuoted && depth == 0 && c == QLatin1Char(',')) {
            entries << entry.trimmed();
            entry.clear();
            continue;
        }
        entry += c;
    }
    QString const last = entry.trimmed();
    if (!last.isEmpty() || !entries.isEmpty())
        entries << last;
    return entries;
}

} // namespace Prm
