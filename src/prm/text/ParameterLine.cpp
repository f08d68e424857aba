#include "prm/text/ParameterLine.h"

#include <cstring>

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
    QChar const* const chars = line.constData();
    for (int i = 0; i < word.size(); ++i) {
        ushort const c = chars[i].unicode();
        if (c >= 0x80)
            return -1;
        // The words are letters only: setting bit 5 lowers exactly the two cases of each.
        if ((c | 0x20) != (ushort(word.at(i).unicode()) | 0x20))
            return 0;
    }
    return 1;
}

// Case-sensitive, without Qt's comparison set-up.
bool bStartsExactly(QString const& line, QString const& start)
{
    return line.size() >= start.size()
           && std::memcmp(line.constData(), start.constData(), size_t(start.size()) * sizeof(QChar)) == 0;
}

QLatin1Char const quote('"');
ushort const quoteCode = '"';

// Index just behind the opening parenthesis of the inner call, or -1 when the line has none in front of
// its first comma.
int iArgumentStart(QString const& line)
{
    QChar const* const chars = line.constData();
    bool bQuoted = false;
    int start = -1;
    int i = 0;
    // The opening the writer puts on every key line holds no quote or comma and ends in its last
    // parenthesis and a blank: the scan may go on behind it.
    static QString const openings[] = {QStringLiteral("keyframes.append( Key( "),
                                       QStringLiteral("keyframes.append( BezierKey( ")};
    for (QString const& opening : openings) {
        if (bStartsExactly(line, opening)) {
            i = opening.size();
            start = i - 1;
            break;
        }
    }
    for (int n = line.size(); i < n; ++i) {
        ushort const c = chars[i].unicode();
        if (c > ',')
            continue;
        if (c == quoteCode)
            bQuoted = !bQuoted;
        else if (bQuoted)
            continue;
        else if (c == ',')
            break;
        else if (c == '(')
            start = i + 1;
    }
    return start;
}

// End of the entry that starts at `from`: the comma behind it, or (with `bLast` set) the parenthesis that
// closes the call or the end of the line. Each entry starts outside quotes and parentheses.
int iEntryEnd(QString const& line, int from, bool& bLast)
{
    QChar const* const chars = line.constData();
    int const n = line.size();
    bool bQuoted = false;
    int depth = 0;
    bLast = true;
    for (int i = from; i < n; ++i) {
        ushort const c = chars[i].unicode();
        // Letters, digits, points and blanks decide nothing.
        if (c > ',' || c == ' ')
            continue;
        if (c == quoteCode) {
            bQuoted = !bQuoted;
        } else if (bQuoted) {
            continue;
        } else if (c == '(') {
            ++depth;
        } else if (c == ')') {
            if (depth == 0)
                return i;
            --depth;
        } else if (depth == 0 && c == ',') {
            bLast = false;
            return i;
        }
    }
    return n;
}

// As line.midRef(from, to - from).trimmed(): blanks off the end first, then off the start.
QStringRef entryRef(QString const& line, int from, int to)
{
    QChar const* const chars = line.constData();
    while (to > from && chars[to - 1].isSpace())
        --to;
    while (from < to && chars[from].isSpace())
        ++from;
    return QStringRef(&line, from, to - from);
}

// Appends the entries from `from` to the end of the call; an empty last entry counts only behind others.
void vAppendEntries(QString const& line, int from, KeyframeEntries& entries)
{
    for (int entryStart = from;;) {
        bool bLast = false;
        int const end = iEntryEnd(line, entryStart, bLast);
        QStringRef const entry = entryRef(line, entryStart, end);
        if (!bLast) {
            entries.append(entry);
            entryStart = end + 1;
        } else {
            if (!entry.isEmpty() || !entries.isEmpty())
                entries.append(entry);
            return;
        }
    }
}

int iSkipBlanks(QString const& line, int from)
{
    while (from < line.size() && line.at(from).isSpace())
        ++from;
    return from;
}

// A text value is written between double quotes with nothing escaped, and nothing behind it holds a
// quote. When the quotes inside it split the value (an odd number of them, or a comma or parenthesis
// between two of them), the value really runs from its opening quote to the last quote of the line. The
// entries are taken that way when the rest still gives at least an interpolation; a line whose quotes
// pair up around the value as written is split as before.
void vJoinQuotedValue(QString const& line, int start, KeyframeEntries& entries)
{
    if (entries.size() < 2 || entries.at(1).isEmpty() || entries.at(1).at(0) != quote)
        return;
    bool bLast = false;
    int const comma = iEntryEnd(line, start, bLast);
    int const open = iSkipBlanks(line, comma + 1);
    int const close = line.lastIndexOf(quote);
    if (bLast || close <= open)
        return;
    int const next = iSkipBlanks(line, close + 1);
    if (next >= line.size() || line.at(next) != QLatin1Char(','))
        return;
    KeyframeEntries joined;
    joined.append(entries.at(0));
    joined.append(line.midRef(open, close - open + 1));
    vAppendEntries(line, next + 1, joined);
    if (joined.size() >= 3)
        entries = joined;
}

} // namespace

TextField eTextField(QString const& line)
{
    // The writer's own spelling of the first word decides at once.
    static QString const keyframes = QStringLiteral("keyframes");
    if (bStartsExactly(line, keyframes))
        return TextField::Keyframes;
    // A word whose first letter differs from an ASCII first character cannot match; any other first
    // character may fold onto a letter, so then every word is tried.
    ushort const first = line.isEmpty() ? 0x80 : line.at(0).unicode();
    for (Word const& word : words) {
        if (first < 0x80 && uAsciiLower(first) != uAsciiLower(ushort(word.text.at(0).unicode())))
            continue;
        int const match = iAsciiPrefix(line, word.text);
        if (match == 1 || (match < 0 && line.startsWith(word.text, Qt::CaseInsensitive)))
            return word.field;
    }
    return TextField::Unknown;
}

bool bHasBezierBlockWord(QString const& line)
{
    // As contains(QLatin1String("BezierKey")), without Qt's search set-up for each line.
    static char const word[] = "BezierKey";
    int const length = int(sizeof(word)) - 1;
    QChar const* const chars = line.constData();
    int const last = line.size() - length;
    for (int i = line.indexOf(QLatin1Char('B')); i >= 0 && i <= last; i = line.indexOf(QLatin1Char('B'), i + 1)) {
        int k = 1;
        while (k < length && chars[i + k].unicode() == ushort(word[k]))
            ++k;
        if (k == length)
            return true;
    }
    return false;
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

void vKeyframeDeclarationEntries(QString const& line, KeyframeEntries& entries)
{
    if (!entries.isEmpty())
        entries.clear();
    int const start = iArgumentStart(line);
    if (start < 0)
        return;
    vAppendEntries(line, start, entries);
    vJoinQuotedValue(line, start, entries);
}

QStringList parseKeyframeDeclaration(QString line)
{
    KeyframeEntries entries;
    vKeyframeDeclarationEntries(line, entries);
    QStringList list;
    list.reserve(entries.size());
    for (QStringRef const& entry : entries)
        list << entry.toString();
    return list;
}

} // namespace Prm
