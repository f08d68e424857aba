#pragma once
/// Test-side view of a module set: its table read from a data file of its own, and a typed look at every
/// parameter through the untyped list, so that one set of checks walks all sets.
#include "clip/BaseClipInfo.h"
#include "clip/BaseClipInfoContainer.h"
#include "clip/FrameOffsetParameter.h"
#include "modules/InsertOffsetParameterSet.h"
#include "modules/InsertROIParameterSet.h"
#include "prm/NumericParameter.h"

#include <QString>
#include <QStringList>
#include <QVector>
#include <cmath>
#include <limits>
#include <ostream>
#include <type_traits>

inline void PrintTo(QString const& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

/// One row: the columns of the data file, blank cells as empty strings.
struct TableRow {
    QString name, kind, keyed, initial, minimum, maximum, interpolation, extrapolation, displayName, hidden;
};

/// A set's data file: rows plus the set's name, moved parameters, forgotten clips, rescaled parameters,
/// the parameters its assignment keeps (a trailing * matches any ending; "clipContainer" for the
/// container pointer) and its child sets. Rows whose name holds %1 and %2 stand for the 17 x 17 weight
/// grid, row by row, column by column, in their order within a cell.
struct SetTable {
    QString name;
    QStringList moved, forgets, rescales, kept, children;
    /// Parameters whose hidden flag `init()` sets, so that a copy does not take it from its source; "*"
    /// for all.
    QStringList flagsByInit;
    QVector<TableRow> rows;

private:
    QVector<TableRow> grid;

public:

    explicit SetTable(QString const& text)
    {
        for (QString const& line : text.split('\n', Qt::SkipEmptyParts)) {
            if (line.startsWith('#'))
                continue;
            QString const word = line.section(' ', 0, 0);
            QStringList const list = line.section(' ', 1).split(',', Qt::SkipEmptyParts);
            QStringList trimmed;
            for (QString const& item : list)
                trimmed << item.trimmed();
            if (word == "set")
                name = trimmed.value(0);
            else if (word == "moved")
                moved = trimmed;
            else if (word == "forgets")
                forgets = trimmed;
            else if (word == "rescales")
                rescales = trimmed;
            else if (word == "kept")
                kept = trimmed;
            else if (word == "flags-by-init")
                flagsByInit = trimmed;
            else if (word == "children")
                children = trimmed;
            else
                (line.contains("%1") ? grid : rows) << row(line);
        }
        for (int r = 0; r < 17 && !grid.isEmpty(); ++r) {
            for (int c = 0; c < 17; ++c) {
                for (TableRow cell : grid) {
                    cell.name = cell.name.arg(r).arg(c);
                    rows << cell;
                }
            }
        }
    }

    /// Whether assignment leaves `member` as it was.
    bool bKept(QString const& member) const
    {
        for (QString const& entry : kept) {
            if (entry == member || (entry.endsWith('*') && member.startsWith(entry.chopped(1))))
                return true;
        }
        return false;
    }

private:
    static TableRow row(QString const& line)
    {
        QStringList cells = line.split('|');
        for (QString& cell : cells)
            cell = cell.trimmed();
        while (cells.size() < 10)
            cells << QString();
        return {cells[0], cells[1], cells[2], cells[3], cells[4], cells[5], cells[6], cells[7], cells[8], cells[9]};
    }
};

/// Reaches the default interpolation, which has no reader of its own for a parameter without keys.
template <class T>
struct DefaultInterpolation : Prm::Parameter<T> {
    static Prm::Interpolation of(Prm::Parameter<T> const& parameter)
    {
        return parameter.*(&DefaultInterpolation::eDefaultInterpolation);
    }
};

template <class T>
QString qstrOf(T value)
{
    return QString::number(static_cast<double>(value), 'g', 17);
}

inline QString qstrOf(QString const& value)
{
    return '"' + value + '"';
}

template <class T>
T tFromDouble(double value)
{
    if constexpr (std::is_enum<T>::value)
        return static_cast<T>(static_cast<int>(value));
    else
        return static_cast<T>(value);
}

inline double dFromCell(QString const& cell)
{
    if (cell == "true")
        return 1;
    if (cell == "false")
        return 0;
    if (cell.endsWith("largest double"))
        return (cell.startsWith('-') ? -1 : 1) * std::numeric_limits<double>::max();
    if (cell.endsWith("largest float"))
        return (cell.startsWith('-') ? -1 : 1) * double(std::numeric_limits<float>::max());
    return cell.toDouble();
}

/// A cell as a value of `T`: a text cell is quoted in the table.
template <class T>
T tFromCell(QString const& cell)
{
    if constexpr (std::is_same<T, QString>::value)
        return cell.mid(1, cell.size() - 2);
    else
        return tFromDouble<T>(dFromCell(cell));
}

template <class T>
Prm::NumericParameter<T> const* numericOf(Prm::Parameter<T> const& parameter)
{
    if constexpr (std::is_arithmetic<T>::value)
        return dynamic_cast<Prm::NumericParameter<T> const*>(&parameter);
    else
        return nullptr;
}

/// Calls `visit(typed, typeName)` with the parameter as its value type; false for a type not listed.
template <class F>
bool bVisit(Prm::ParameterWithoutType& parameter, F&& visit)
{
    auto const as = [&](auto* typed, char const* name) {
        if (typed)
            visit(*typed, QString::fromLatin1(name));
        return typed != nullptr;
    };
#define TQ_TRY_TYPE(T) as(dynamic_cast<Prm::Parameter<T>*>(&parameter), #T) ||
    return TQ_TRY_TYPE(bool) TQ_TRY_TYPE(unsigned char) TQ_TRY_TYPE(int) TQ_TRY_TYPE(unsigned int)
        TQ_TRY_TYPE(float) TQ_TRY_TYPE(double) TQ_TRY_TYPE(_TrackModel) TQ_TRY_TYPE(TQ_BlendMode)
        TQ_TRY_TYPE(TQ_MATTE_SUBTYPE) TQ_TRY_TYPE(TQ_REMOVESOURCE_MODE) TQ_TRY_TYPE(TQ_ILLUMINATION_MODEL)
            TQ_TRY_TYPE(TQ_FILL_ALGORITHM) TQ_TRY_TYPE(TQ_LUMINANCE_MODEL) TQ_TRY_TYPE(QString) false;
#undef TQ_TRY_TYPE
}

/// Everything a parameter holds but its names and visibility: kind, keys, values, rules and limits.
inline QStringList factsOf(Prm::ParameterWithoutType& parameter)
{
    QStringList facts;
    bool const bKnown = bVisit(parameter, [&](auto const& typed, QString const& type) {
        auto const* numeric = numericOf(typed);
        QString const kind = dynamic_cast<PrmFrameOffset const*>(&typed) ? QString("PrmFrameOffset")
                             : dynamic_cast<TQ::ROIParameter const*>(&typed)
                                 ? QString("TQ_InsertROIParameterSet::ROIParameter")
                             : dynamic_cast<TQ::RotationParameter const*>(&typed)
                                 ? QString("TQ_InsertOffsetParameterSet::RotationParameter")
                             : numeric ? "NumericParameter<" + type + ">"
                                       : "Parameter<" + type + ">";
        facts << kind << (typed.isKeyframed() ? "yes" : "no") << qstrOf(typed.staticValue())
              << qstrOf(typed.defaultValue()) << QString::number(DefaultInterpolation<std::decay_t<decltype(
                                                     typed.staticValue())>>::of(typed))
              << QString::number(typed.extrapolationBefore()) << QString::number(typed.extrapolationAfter());
        if (numeric)
            facts << qstrOf(numeric->minimum()) << qstrOf(numeric->maximum());
        for (unsigned int i = 0; i < typed.keyframeCount(); ++i)
            facts << QString("key %1 %2 %3")
                         .arg(typed.keyframeTime(i))
                         .arg(qstrOf(typed.keyframeValue(i)))
                         .arg(typed.interpolation(i));
    });
    if (!bKnown)
        facts << "unknown value type";
    return facts;
}

/// Display name and hidden flag.
inline QStringList looksOf(Prm::ParameterWithoutType const& parameter)
{
    return {parameter.qstrDisplayName(), parameter.isHidden() ? "yes" : "no"};
}

/// What `factsOf` and `looksOf` give for a fresh parameter of this row.
inline QStringList expectedFacts(Prm::ParameterWithoutType& parameter, TableRow const& row)
{
    QStringList facts;
    bVisit(parameter, [&](auto const& typed, QString const&) {
        using T = std::decay_t<decltype(typed.staticValue())>;
        QString const initial = qstrOf(tFromCell<T>(row.initial));
        auto const rule = [](QString const& cell) {
            return QString::number(cell == "linear" ? 2 : cell == "step" || cell == "hold" ? 1 : 0);
        };
        facts << row.kind << row.keyed << initial << initial << rule(row.interpolation) << rule(row.extrapolation)
              << rule(row.extrapolation);
        if (!row.minimum.isEmpty())
            facts << qstrOf(tFromCell<T>(row.minimum)) << qstrOf(tFromCell<T>(row.maximum));
    });
    return facts << (row.displayName.isEmpty() ? row.name : row.displayName) << row.hidden;
}

/// A value different from the default for `step` 1 (and mostly for 2), inside the limits.
template <class T>
T tPick(Prm::Parameter<T> const& parameter, int step)
{
    T const initial = parameter.defaultValue();
    if constexpr (std::is_same<T, bool>::value)
        return step % 2 ? !initial : initial;
    else if constexpr (std::is_same<T, QString>::value)
        return QString("text %1").arg(step);
    else if constexpr (std::is_enum<T>::value)
        return static_cast<T>(step);
    else {
        auto const* numeric = numericOf(parameter);
        double const low = numeric ? double(numeric->minimum()) : double(std::numeric_limits<T>::lowest());
        double const high = numeric ? double(numeric->maximum()) : double(std::numeric_limits<T>::max());
        double value = std::floor(double(initial)) + step;
        if (value > high)
            value = std::floor(double(initial)) - step;
        return static_cast<T>(std::min(std::max(value, low), high));
    }
}

/// Gives every parameter values other than its defaults: two keys and linear extrapolation after them
/// when keyed, a static value otherwise. `seed` varies the values between sets.
inline void vMutate(Prm::ParameterWithoutType& parameter, int seed)
{
    bVisit(parameter, [&](auto& typed, QString const&) {
        if (!typed.isKeyframed()) {
            typed.vSetValue(tPick(typed, seed), 0.0f);
            return;
        }
        typed.vSetValue(tPick(typed, seed), 2.0f);
        typed.vSetValue(tPick(typed, seed + 1), 9.0f);
        typed.vSetExtrapolationAfter(Prm::ExtrapolationLinear);
    });
}

/// Widens a numeric parameter's limits to the whole type, which no stored value notices.
inline void vWidenLimits(Prm::ParameterWithoutType& parameter)
{
    bVisit(parameter, [](auto& typed, QString const&) {
        using T = std::decay_t<decltype(typed.staticValue())>;
        if constexpr (std::is_arithmetic<T>::value) {
            if (auto* numeric = dynamic_cast<Prm::NumericParameter<T>*>(&typed))
                numeric->vSetMinimum(std::numeric_limits<T>::lowest());
        }
    });
}

/// One clip, id 1 or any other, whose first frame is numbered 10.
struct OneClipContainer : TQ_BaseClipInfoContainer {
    OneClipContainer() { clip.FirstFrameOffset = 10; }
    TQ_BaseClipInfo* baseClipInfo(unsigned int) override { return &clip; }
    TQ_BaseClipInfo clip;
};
