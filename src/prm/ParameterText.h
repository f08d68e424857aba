#pragma once
/// Definitions of Prm::Parameter<T>'s text operations. Included only where the template is instantiated.
#include "bsc/Logger.h"
#include "prm/CurveTypeNames.h"
#include "prm/KeyframeDeclaration.h"
#include "prm/Parameter.h"
#include "prm/TextField.h"
#include "prm/ValueText.h"

#include <QTextStream>

namespace Prm {

namespace TextDetail {

enum class LineRead { Taken, Failed, NotMine };

inline void vLogKeyFailure(char const* block, QString const& line)
{
    Bsc::LOG_STRING(QStringLiteral("Parameter::streamInValue(): failed to parse %1() block: '%2'")
                        .arg(QLatin1String(block), line));
}

/// Reads a key line through the parameter's virtual setters. A failed line may already have set its key.
template <class T>
LineRead eReadKeyLine(Parameter<T>& parameter, QString const& line,
                      boost::function<QString(QString const&)> const& textFilter)
{
    // Only the case-sensitive block word tells the two blocks apart, wherever it stands.
    bool const bBezier = line.contains(QLatin1String("BezierKey"), Qt::CaseSensitive);
    // The entries of parseKeyframeDeclaration, as views: no copy of each on the load path.
    KeyframeEntries tokens;
    vKeyframeDeclarationEntries(line, tokens);
    if (tokens.size() < 3) {
        vLogKeyFailure("Key", line);
        return LineRead::Failed;
    }
    float const time = tokens.at(0).toFloat();
    T value{};
    if (textFilter || !NumberText::bReadPlain(tokens.at(1), value)) {
        QString text = textFilter ? textFilter(tokens.at(1).toString()) : tokens.at(1).toString();
        value = ValueText<T>::tRead(text);
    }
    int const index = parameter.vSetValue(value, time);
    if (!bBezier) {
        Interpolation interpolation = InterpolationUnset;
        if (bInterpolationOfEntry(tokens.at(2), interpolation))
            parameter.vSetInterpolation(interpolation, time);
        return LineRead::Taken;
    }
    if (tokens.size() < 6) {
        vLogKeyFailure("BezierKey", line);
        return LineRead::Failed;
    }
    IType record;
    record.eType = InterpolationBezier;
    record.dOutTime = tokens.at(2).toDouble();
    record.dOutValue = tokens.at(3).toDouble();
    record.dInTime = tokens.at(4).toDouble();
    record.dInValue = tokens.at(5).toString().remove(QLatin1Char(')')).toDouble();
    // -1 (not keyframed) becomes an index out of range, which the setter ignores.
    parameter.vSetInterpolationData(record, static_cast<unsigned int>(index));
    return LineRead::Taken;
}

} // namespace TextDetail

template <class T>
QString Parameter<T>::indexSuffixString(int index) const
{
    static QString const bezierTemplate = QStringLiteral("%1, %2, %3, %4");
    if (index < 0 || index >= keyframes.size())
        return QString();
    KeyframeData<T> const& key = keyframes.at(index);
    IType const record = index < interpolationRecords.size() ? interpolationRecords.at(index) : IType();
    bool const bBezier = record.eType == InterpolationBezier;
    QString const curve = bBezier ? bezierTemplate.arg(record.dOutTime, 0, 'g', -1)
                                        .arg(record.dOutValue, 0, 'g', -1)
                                        .arg(record.dInTime, 0, 'g', -1)
                                        .arg(record.dInValue, 0, 'g', -1)
                                  : qstrInterpolationTypeString(record.eType);
    // Joined piece by piece rather than by markers, so that nothing in a text value is filled in; the
    // time prints as arg(double) would print it.
    QString line;
    line.reserve(64);
    line += QLatin1String(bBezier ? "keyframes.append( BezierKey( " : "keyframes.append( Key( ");
    line += QString::number(static_cast<double>(key.fTime), 'g', 6);
    line += QLatin1String(", ");
    line += ValueText<T>::qstrWritten(key.tValue);
    line += QLatin1String(", ");
    line += curve;
    line += QLatin1String(" ) )");
    return line;
}

template <class T>
QString Parameter<T>::keyframeSuffixString(float time) const
{
    for (int i = 0; i < keyframes.size(); ++i) {
        if (keyframes.at(i).fTime == time)
            return indexSuffixString(i);
    }
    return QString();
}

template <class T>
QString Parameter<T>::valueString(float time, Cache* cache) const
{
    return ValueText<T>::qstrDisplay(value(time, cache));
}

template <class T>
void Parameter<T>::setValueFromString(QString const& text, float time)
{
    T parsed{};
    if (ValueText<T>::bReadWord(text, parsed))
        vSetValue(parsed, time);
}

template <class T>
bool Parameter<T>::bStreamOut(QTextStream& out, QString const& prefix, bool bQualify) const
{
    QString linePrefix = prefix;
    if (bQualify && !scriptName.isEmpty())
        linePrefix += scriptName + QLatin1Char('.');
    if (!bKeyframed || keyframes.isEmpty()) {
        out << linePrefix << "value=";
        ValueText<T>::vWrite(out, tStaticValue);
        out << Qt::endl;
    }
    if (bKeyframed) {
        for (int i = 0; i < keyframes.size(); ++i)
            out << linePrefix << indexSuffixString(i) << Qt::endl;
    }
    out << linePrefix << "hidden=" << (bHidden ? '1' : '0') << Qt::endl;
    out << linePrefix << "keyframed=" << (bKeyframed ? '1' : '0') << Qt::endl;
    out << linePrefix << "before=" << qstrExtrapolationTypeString(eExtrapolationBefore) << Qt::endl;
    out << linePrefix << "after=" << qstrExtrapolationTypeString(eExtrapolationAfter) << Qt::endl;
    if (auto const* master = dynamic_cast<ParameterWithoutType const*>(masterParameter.data()))
        out << linePrefix << "MasterParameterId=" << master->extendedName() << Qt::endl;
    return true;
}

template <class T>
bool Parameter<T>::streamInValue(QString const& line, boost::function<QString(QString const&)> textFilter)
{
    using TextDetail::LineRead;
    bStreamingIn = true;
    blockSignals(true);
    LineRead result = LineRead::Taken;
    switch (eTextField(line)) {
    case TextField::Keyframes:
        result = TextDetail::eReadKeyLine(*this, line, textFilter);
        break;
    case TextField::Value: {
        QString text = qstrValueText(line);
        if (textFilter)
            text = textFilter(text);
        tStaticValue = ValueText<T>::tRead(text);
        break;
    }
    case TextField::Hidden:
        bHidden = bFlagOfLine(line);
        break;
    case TextField::Keyframed:
        bKeyframed = bFlagOfLine(line);
        break;
    case TextField::Before:
        bStringToExtrapolationType(qstrFieldText(line), eExtrapolationBefore);
        break;
    case TextField::After:
        bStringToExtrapolationType(qstrFieldText(line), eExtrapolationAfter);
        break;
    case TextField::MasterParameterId:
        masterParameterId = qstrFieldText(line);
        break;
    case TextField::Unknown:
        result = LineRead::NotMine;
        break;
    }
    // A failed key line leaves the flag set; NumericParameter::bStreamIn clears it.
    if (result != LineRead::Failed)
        bStreamingIn = false;
    blockSignals(false);
    return result == LineRead::Taken;
}

template <class T>
QVariant Parameter<T>::exportValueAt(float time) const
{
    return ValueText<T>::variant(value(time, nullptr));
}

template <class T>
void Parameter<T>::importValueAt(float time, QVariant const& variant)
{
    T converted{};
    if (ValueText<T>::bFromVariant(variant, converted))
        vSetValue(converted, time);
}

template <class T>
void Parameter<T>::setFromString(QString& target, QString& text)
{
    target = ValueText<QString>::tRead(text);
}

template <class T>
void Parameter<T>::writeValue(QTextStream& out, QString const& text) const
{
    ValueText<QString>::vWrite(out, text);
}

} // namespace Prm
