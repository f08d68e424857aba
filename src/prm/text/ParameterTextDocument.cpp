#include "prm/text/ParameterTextDocument.h"

#include "bsc/Logger.h"
#include "prm/set/ParameterSet.h"
#include "prm/ParameterWithoutType.h"

#include <QHash>
#include <QTextStream>

#include <algorithm>
#include <charconv>
#include <cstring>

namespace Prm {

namespace {

void vCollectParameters(ParameterSet const& set, QVector<ParameterWithoutType*>& parameters)
{
    parameters += set.parameterList();
    for (ParameterSet const* child : set.childSetList()) {
        if (child)
            vCollectParameters(*child, parameters);
    }
}

// As trimmed().isEmpty(), without the copy.
bool bBlank(QChar const* chars, int size)
{
    return std::all_of(chars, chars + size, [](QChar c) { return c.isSpace(); });
}

// True when the follower already follows the parameter its text names.
bool bBoundAsNamed(ParameterWithoutType const& follower)
{
    auto const* master = dynamic_cast<ParameterWithoutType const*>(follower.master());
    return master && master->extendedName() == follower.qstrMasterParameterId();
}

} // namespace

ParameterTextDocument::ParameterTextDocument(ParameterSet& parameterSet) : set(parameterSet)
{
}

bool ParameterTextDocument::bWrite(QTextStream& out) const
{
    set.bStreamOut(out, QString(), true);
    return true;
}

QString ParameterTextDocument::qstrWrite() const
{
    QString text;
    QTextStream out(&text, QIODevice::WriteOnly);
    bWrite(out);
    out.flush();
    return text;
}

int ParameterTextDocument::iRead(QString const& text)
{
    // The lines a QTextStream on the text would give, without its scanning and copying: each ends at
    // "\n" or "\r\n", a "\r" that ends the text is dropped, and a text ending at a line break has no
    // empty line behind it.
    unread.clear();
    int taken = 0;
    QChar const* const chars = text.constData();
    int const size = text.size();
    QString line;
    for (int start = 0, number = 1; start < size; ++number) {
        int const lineBreak = text.indexOf(QLatin1Char('\n'), start);
        int const next = lineBreak < 0 ? size : lineBreak + 1;
        int end = lineBreak < 0 ? size : lineBreak;
        if (end > start && chars[end - 1] == QLatin1Char('\r'))
            --end;
        vOfferLine(number, chars + start, end - start, line, taken);
        start = next;
    }
    vBindMasters();
    return taken;
}

int ParameterTextDocument::iRead(QTextStream& in)
{
    unread.clear();
    int taken = 0;
    QString streamLine;
    QString line;
    for (int number = 1; in.readLineInto(&streamLine); ++number)
        vOfferLine(number, streamLine.constData(), streamLine.size(), line, taken);
    vBindMasters();
    return taken;
}

void ParameterTextDocument::vOfferLine(int number, QChar const* chars, int size, QString& line, int& taken)
{
    if (bBlank(chars, size))
        return;
    QString const& name = set.qstrScriptName();
    int const nameSize = name.size();
    // The root's name comes off when the line carries it; a line without it goes to the set whole.
    bool const bQualified = nameSize > 0 && size > nameSize && chars[nameSize] == QLatin1Char('.')
                            && std::memcmp(chars, name.constData(), size_t(nameSize) * sizeof(QChar)) == 0;
    int const skipped = bQualified ? nameSize + 1 : 0;
    line.setUnicode(chars + skipped, size - skipped);
    if (set.bStreamIn(line)) {
        ++taken;
        return;
    }
    line.setUnicode(chars, size);
    unread.append(UnreadLine{number, line});
    // "ParameterTextDocument: line %1 not read: '%2'", joined without the markers' parsing.
    char digits[16];
    int const digitCount = int(std::to_chars(digits, digits + sizeof(digits), number).ptr - digits);
    QString message;
    message.reserve(size + 48);
    message += QLatin1String("ParameterTextDocument: line ");
    message += QLatin1String(digits, digitCount);
    message += QLatin1String(" not read: '");
    message += line;
    message += QLatin1Char('\'');
    Bsc::LOG_STRING(message);
}

void ParameterTextDocument::vBindMasters() const
{
    QVector<ParameterWithoutType*> parameters;
    vCollectParameters(set, parameters);
    QHash<QString, ParameterWithoutType*> byName;
    for (ParameterWithoutType* parameter : parameters) {
        if (!byName.contains(parameter->extendedName()))
            byName.insert(parameter->extendedName(), parameter);
    }
    for (ParameterWithoutType* follower : parameters) {
        QString const id = follower->qstrMasterParameterId();
        if (id.isEmpty() || bBoundAsNamed(*follower))
            continue;
        ParameterWithoutType* master = byName.value(id);
        if (!master) {
            Bsc::LOG_STRING(QStringLiteral("ParameterTextDocument: master '%1' of '%2' not found")
                                .arg(id, follower->extendedName()));
        } else if (!master->bAddConstrainedParameter(follower)) {
            Bsc::LOG_STRING(QStringLiteral("ParameterTextDocument: '%1' cannot follow '%2'")
                                .arg(follower->extendedName(), id));
        }
    }
}

} // namespace Prm
