#include "prm/text/ParameterTextDocument.h"

#include "bsc/Logger.h"
#include "prm/set/ParameterSet.h"
#include "prm/ParameterWithoutType.h"

#include <QHash>
#include <QTextStream>

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
bool bBlank(QString const& line)
{
    for (QChar const c : line) {
        if (!c.isSpace())
            return false;
    }
    return true;
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
        line.setUnicode(chars + start, end - start);
        vOfferLine(number, line, taken);
        start = next;
    }
    vBindMasters();
    return taken;
}

int ParameterTextDocument::iRead(QTextStream& in)
{
    unread.clear();
    int taken = 0;
    QString line;
    for (int number = 1; in.readLineInto(&line); ++number)
        vOfferLine(number, line, taken);
    vBindMasters();
    return taken;
}

void ParameterTextDocument::vOfferLine(int number, QString& line, int& taken)
{
    if (bBlank(line))
        return;
    if (bReadLine(line)) {
        ++taken;
        return;
    }
    unread.append(UnreadLine{number, line});
    Bsc::LOG_STRING(QStringLiteral("ParameterTextDocument: line %1 not read: '%2'").arg(number).arg(line));
}

bool ParameterTextDocument::bReadLine(QString& line)
{
    QString const& name = set.qstrScriptName();
    if (name.isEmpty() || line.size() <= name.size() || !line.startsWith(name)
        || line.at(name.size()) != QLatin1Char('.'))
        return set.bStreamIn(line);
    // The root's name comes off in place rather than in a copy; a line not taken gets it back.
    line.remove(0, name.size() + 1);
    if (set.bStreamIn(line))
        return true;
    line.prepend(name + QLatin1Char('.'));
    return false;
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
