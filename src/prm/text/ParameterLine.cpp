#include "prm/text/ParameterLine.h"

namespace Prm {

namespace {

struct Word {
    QLatin1String text;
    TextField field;
};

Word const words[] = {
    {QLatin1String("keyframes"), TextField::Keyframes}, {QLatin1String("value"), TextField::Value},
    {QLatin1String("hidden"), TextField::Hidden},       {QLatin1String("keyframed"), TextField::Keyframed},
    {QLatin1String("before"), TextField::Before},       {QLatin1String("after"), TextField::After},
    {QLatin1String("MasterParameterId"), TextField::MasterParameterId},
};

ushort uAsciiLower(ushort c)
{
    return (c >= 'A' && c <= 'Z') ? ushort(c + ('a' - 'A')) : c;
}

// 1 when `line` starts with `word` in any case, 0 when not, -1 when a non-ASCII character decides (it may
// fold onto an ASCII letter, which Qt's comparison knows about).
int iAsciiPrefix(QString const& line, QLatin1String word)
{
    if (line.size() < word.size())
        return 0;
    for (int i = 0; i < word.size(); ++i) {
        ushort const c = line.at(i).unicode();
        if (c >= 0x80)
            return -1;
        if (uAsciiLower(c) != uAsciiLower(ushort(word.at(i).unicode())))
            return 0;
    }
    return 1;
}

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

TextField eTextField(QString const& line)
{
    for (Word const& word : words) {
        int const match = iAsciiPrefix(line, word.text);
        if (match == 1 || (match < 0 && line.startsWith(word.text, Qt::CaseInsensitive)))
            return word.field;
    }
    return TextField::Unknown;
}

QString qstrFieldText(QString const& line)
{
    // Same text as section('=', 1, 1), without the list that section builds.
    int const first = line.indexOf(QLatin1Char('='));
    if (first < 0)
        return QString();
    int const second = line.indexOf(QLatin1Char('='), first + 1);
    return line.mid(first + 1, second < 0 ? -1 : second - first - 1);
}

QString qstrValueText(QString const& line)
{
    int const first = line.indexOf(QLatin1Char('='));
    return first < 0 ? QString() : line.mid(first + 1);
}

bool bFlagOfLine(QString const& line)
{
    return qstrFieldText(line).toInt(nullptr, 10) != 0;
}

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
