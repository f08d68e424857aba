#include "prm/text/CurveTypeNames.h"

#include <QStringList>

#include <algorithm>
#include <climits>

namespace Prm {

namespace {

QStringList const& interpolationNames()
{
    static QStringList const names{QStringLiteral("Unset"), QStringLiteral("Step"), QStringLiteral("Linear"),
                                   QStringLiteral("Bezier")};
    return names;
}

QStringList const& extrapolationNames()
{
    static QStringList const names{QStringLiteral("Unset"), QStringLiteral("Hold"), QStringLiteral("Linear")};
    return names;
}

// Custom kinds follow the built-in names: value = names.size() + n.
QString qstrName(int value, QStringList const& names)
{
    if (value < 0)
        return QString::number(value);
    if (value < names.size())
        return names.at(value);
    return QStringLiteral("Custom %1").arg(value - names.size());
}

// Qt's comparison ignoring case, with a quick answer for the ASCII texts that files hold.
bool bSameName(QStringRef const& text, QString const& name)
{
    if (text.size() != name.size())
        return false;
    for (int i = 0; i < text.size(); ++i) {
        ushort const a = text.at(i).unicode();
        ushort const b = name.at(i).unicode();
        if (a >= 0x80)
            return text.compare(name, Qt::CaseInsensitive) == 0;
        auto const lower = [](ushort c) { return (c >= 'A' && c <= 'Z') ? ushort(c + ('a' - 'A')) : c; };
        if (lower(a) != lower(b))
            return false;
    }
    return true;
}

bool bValueOfName(QStringRef const& text, QStringList const& names, int& value)
{
    // Most texts are a name as the writer spells it. The names differ in more than case, so the first
    // name equal to the text is also the first that the comparison below would find.
    for (int i = 0; i < names.size(); ++i) {
        QString const& name = names.at(i);
        if (name.size() == text.size() && std::equal(name.cbegin(), name.cend(), text.cbegin())) {
            value = i;
            return true;
        }
    }
    // Closing parentheses and blanks around the name are not part of it; most texts have neither.
    QString withoutParentheses;
    QStringRef cleaned = text.trimmed();
    if (std::find(text.cbegin(), text.cend(), QLatin1Char(')')) != text.cend()) {
        withoutParentheses = text.toString().remove(QLatin1Char(')'));
        cleaned = QStringRef(&withoutParentheses).trimmed();
    }
    for (int i = 0; i < names.size(); ++i) {
        if (bSameName(cleaned, names.at(i))) {
            value = i;
            return true;
        }
    }
    QLatin1String const custom("custom");
    if (!cleaned.startsWith(custom, Qt::CaseInsensitive))
        return false;
    bool bOk = false;
    int const n = cleaned.mid(custom.size()).trimmed().toInt(&bOk);
    if (!bOk || n < 0 || n > INT_MAX - names.size())
        return false;
    value = names.size() + n;
    return true;
}

} // namespace

QString qstrInterpolationTypeString(Interpolation interpolation)
{
    return qstrName(static_cast<int>(interpolation), interpolationNames());
}

QString qstrExtrapolationTypeString(Extrapolation extrapolation)
{
    return qstrName(static_cast<int>(extrapolation), extrapolationNames());
}

bool bStringToInterpolationType(QString const& text, Interpolation& out)
{
    return bInterpolationOfEntry(QStringRef(&text), out);
}

bool bInterpolationOfEntry(QStringRef const& text, Interpolation& out)
{
    int value = 0;
    if (!bValueOfName(text, interpolationNames(), value))
        return false;
    out = static_cast<Interpolation>(value);
    return true;
}

bool bStringToExtrapolationType(QString const& text, Extrapolation& out)
{
    int value = 0;
    if (!bValueOfName(QStringRef(&text), extrapolationNames(), value))
        return false;
    out = static_cast<Extrapolation>(value);
    return true;
}

} // namespace Prm
