#pragma once
/// Test-side view of a module set: its table, found by the set's name among the data files in `tables/`, and
/// a typed look at every parameter through the untyped list, so that one set of checks walks all sets.
#include "clip/FrameOffsetParameter.h"
#include "modules/InsertOffsetParameterSet.h"
#include "modules/InsertROIParameterSet.h"
#include "prm/NumericParameter.h"
#include "prm/ParameterTable.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QRegExp>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <ostream>
#include <type_traits>

/// Failures print texts as texts.
inline void PrintTo(QString const& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

/// The columns of a row, blank cells as empty strings.
enum Column { Name, Kind, Keyed, Default, Minimum, Maximum, InterpolationRule, ExtrapolationRule, DisplayName, Hidden };

/// One set of the data files in `tables/` ("set <name>" up to the next "set"): rows of cells plus the set's
/// name, moved parameters, forgotten clips and rescaled parameters (children's included, in order), what its
/// assignment keeps (parameters, "clipContainer", child sets; * matches any ending), its child sets, and the
/// parameters whose hidden flag `init()` sets ("*": all). The rows read as `TQTest::tableRows` reads them.
struct SetTable {
    QString name;
    QStringList moved, forgets, rescales, kept, children, flagsByInit;
    QVector<QStringList> rows;

    explicit SetTable(QString const& setName) : name(setName)
    {
        QMap<QString, QStringList*> const lists{{"moved", &moved},     {"forgets", &forgets},
                                                 {"rescales", &rescales}, {"kept", &kept},
                                                 {"children", &children}, {"flags-by-init", &flagsByInit}};
        QStringList lines;
        QDir const folder(TQ_TEST_FOLDER "/tables");
        for (QString const& fileName : folder.entryList({"*.table"})) {
            QFile file(folder.filePath(fileName));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text)) << fileName.toStdString();
            QString current;
            for (QString const& line : QString::fromUtf8(file.readAll()).split('\n')) {
                QString const word = line.section(' ', 0, 0);
                current = word == "set" ? line.section(' ', 1) : current;
                if (current == setName && lists.contains(word))
                    for (QString const& item : line.section(' ', 1).split(',', Qt::SkipEmptyParts))
                        *lists[word] << item.trimmed();
                else if (current == setName)
                    lines << line;
            }
        }
        rows = TQTest::tableRows(lines);
    }

/// Whether assignment leaves `member` as it was.
    bool bKept(QString const& member) const
    {
        return std::any_of(kept.begin(), kept.end(), [&member](QString const& entry) {
            return QRegExp(entry, Qt::CaseSensitive, QRegExp::Wildcard).exactMatch(member);
        });
    }
};

/// Every parameter of the set and of its children, depth first.
inline QVector<Prm::ParameterWithoutType*> everyParameter(Prm::ParameterSet const& set)
{
    QVector<Prm::ParameterWithoutType*> all;
    set.forEachParameter([&all](Prm::ParameterWithoutType* parameter) { all << parameter; }, true);
    return all;
}

/// Reaches the default interpolation, which has no reader of its own for a parameter without keys.
template <class T>
struct DefaultInterpolation : Prm::Parameter<T> {
    static Prm::Interpolation of(Prm::Parameter<T> const& parameter)
    {
        return parameter.*(&DefaultInterpolation::eDefaultInterpolation);
    }
};

/// A value as the tables write it: quoted text, true or false, the shortest decimal that reads back as the
/// same value, the limits of the floating types as "largest float" or "largest double" with a sign.
template <class T>
QString qstrCell(T const& value)
{
    if constexpr (std::is_same<T, QString>::value)
        return '"' + value + '"';
    else if constexpr (std::is_same<T, bool>::value)
        return value ? "true" : "false";
    else if constexpr (std::is_floating_point<T>::value) {
        if (std::abs(value) == std::numeric_limits<T>::max())
            return QString(value < 0 ? "-" : "") + (sizeof(T) == sizeof(float) ? "largest float" : "largest double");
        char text[32];
        return QString::fromLatin1(text, int(std::to_chars(text, text + sizeof text, value).ptr - text));
    } else
        return QString::number(static_cast<long long>(value));
}

template <class T>
Prm::NumericParameter<T> const* numericOf(Prm::Parameter<T> const& parameter)
{
    if constexpr (std::is_arithmetic<T>::value)
        return dynamic_cast<Prm::NumericParameter<T> const*>(&parameter);
    else
        return nullptr;
}

/// Calls `visit(typed)` with the parameter as its value type; nothing for a type not listed.
template <class F>
void vVisit(Prm::ParameterWithoutType& parameter, F&& visit)
{
    auto const as = [&](auto* typed) {
        if (typed)
            visit(*typed);
        return typed != nullptr;
    };
#define TQ_TRY_TYPE(T) as(dynamic_cast<Prm::Parameter<T>*>(&parameter)) ||
    TQ_TRY_TYPE(bool) TQ_TRY_TYPE(unsigned char) TQ_TRY_TYPE(int) TQ_TRY_TYPE(unsigned int) TQ_TRY_TYPE(float)
        TQ_TRY_TYPE(double) TQ_TRY_TYPE(_TrackModel) TQ_TRY_TYPE(TQ_BlendMode) TQ_TRY_TYPE(TQ_MATTE_SUBTYPE)
            TQ_TRY_TYPE(TQ_REMOVESOURCE_MODE) TQ_TRY_TYPE(TQ_ILLUMINATION_MODEL) TQ_TRY_TYPE(TQ_FILL_ALGORITHM)
                TQ_TRY_TYPE(TQ_LUMINANCE_MODEL) TQ_TRY_TYPE(QString) false;
#undef TQ_TRY_TYPE
}

/// Everything a parameter holds: its row's cells in the tables' notation (a display name equal to the
/// script name left blank), then its static value, its extrapolation before the keys and its keys.
inline QStringList factsOf(Prm::ParameterWithoutType& parameter)
{
    QStringList facts{"unknown value type"};
    vVisit(parameter, [&](auto const& typed) {
        using T = std::decay_t<decltype(typed.staticValue())>;
        auto const* numeric = numericOf(typed);
        auto const rule = [](int rule, char const* one) { return rule == 2 ? "linear" : rule == 1 ? one : "0"; };
        QString const kind = dynamic_cast<PrmFrameOffset const*>(&typed) ? QString("PrmFrameOffset")
                             : dynamic_cast<TQ::ROIParameter const*>(&typed)
                                 ? QString("TQ_InsertROIParameterSet::ROIParameter")
                             : dynamic_cast<TQ::RotationParameter const*>(&typed)
                                 ? QString("TQ_InsertOffsetParameterSet::RotationParameter")
                                 : TQTest::parameterRowOf(typed)[Kind];
        facts = QStringList{typed.qstrScriptName(), kind, typed.isKeyframed() ? "yes" : "no"}
                << qstrCell(typed.defaultValue()) << (numeric ? qstrCell(numeric->minimum()) : QString())
                << (numeric ? qstrCell(numeric->maximum()) : QString())
                << rule(DefaultInterpolation<T>::of(typed), "step") << rule(typed.extrapolationAfter(), "hold")
                << (typed.qstrDisplayName() == typed.qstrScriptName() ? QString() : typed.qstrDisplayName())
                << (typed.isHidden() ? "yes" : "no") << qstrCell(typed.staticValue())
                << rule(typed.extrapolationBefore(), "hold");
        for (unsigned int i = 0; i < typed.keyframeCount(); ++i)
            facts << QString("key %1 %2 %3").arg(typed.keyframeTime(i)).arg(qstrCell(typed.keyframeValue(i)))
                         .arg(typed.interpolation(i));
    });
    return facts;
}

/// Expects `set` to follow `table`: display name, moved parameters, child sets, then row by row, each
/// parameter holding its default and extrapolating alike both ways.
inline void vExpectTable(Prm::ParameterSet const& set, SetTable const& table)
{
    EXPECT_EQ(set.qstrDisplayName(), table.name);
    QStringList moved, children;
    for (Prm::BasicParameter const* basic : set.basicParameterList())
        moved << basic->scriptName();
    for (Prm::ParameterSet const* child : set.childSetList())
        children << child->qstrScriptName();
    EXPECT_EQ(moved, table.moved);
    EXPECT_EQ(children, table.children) << "child sets in the order of the text";
    QVector<Prm::ParameterWithoutType*> const parameters = set.parameterList();
    ASSERT_EQ(parameters.size(), table.rows.size()) << table.name.toStdString();
    for (int i = 0; i < parameters.size(); ++i) {
        QStringList const& row = table.rows[i];
        EXPECT_EQ(factsOf(*parameters[i]), row + QStringList({row[Default], row[ExtrapolationRule]}));
    }
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
        double const up = std::floor(double(initial)) + step;
        return static_cast<T>(std::clamp(up > high ? up - 2 * step : up, low, high));
    }
}

/// Gives every parameter of the set and its children values other than their defaults: two keys and linear
/// extrapolation after them when keyed, a static value otherwise. `seed` varies the values between sets.
inline void vMutate(Prm::ParameterSet const& set, int seed)
{
    for (Prm::ParameterWithoutType* parameter : everyParameter(set)) {
        vVisit(*parameter, [&](auto& typed) {
            typed.vSetValue(tPick(typed, seed), 2.0f); // the static value when not keyed
            if (typed.isKeyframed()) {
                typed.vSetValue(tPick(typed, seed + 1), 9.0f);
                typed.vSetExtrapolationAfter(Prm::ExtrapolationLinear);
            }
        });
    }
}
