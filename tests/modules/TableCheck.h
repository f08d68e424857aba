#pragma once
/// Checks a module set against its table, a data file in tables/ written from the module's documentation
/// and shared with nothing in the library: one row per parameter in the order of the text, columns
/// Script name | Kind | Keyed | Default | Minimum | Maximum | Interpolation | Extrapolation | Display name |
/// Hidden. Blank display name: the script name; blank hidden: no. Rows whose script name holds %1 and %2
/// stand for a 17 x 17 grid, row by row, column by column, in the order of those rows within a cell.
#include "modules/InsertOffsetParameterSet.h"
#include "modules/InsertROIParameterSet.h"
#include "prm/NumericParameter.h"
#include "prm/ParameterSet.h"
#include "prm/ParameterTextDocument.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QStringList>
#include <QTextStream>
#include <limits>
#include <map>

namespace TableCheck {

using Row = QStringList;
using Check = bool (*)(Prm::ParameterWithoutType const&);

inline QVector<Row> rowsOf(QString const& tableName)
{
    QFile file(QStringLiteral(TQ_TEST_SOURCE_DIR "/tables/") + tableName + ".table");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text)) << tableName.toStdString();
    QVector<Row> rows, grid;
    QTextStream in(&file);
    while (!in.atEnd()) {
        QString const line = in.readLine();
        if (line.trimmed().isEmpty() || line.startsWith('#'))
            continue;
        Row row;
        for (QString const& cell : line.split('|'))
            row.append(cell.trimmed());
        (row.at(0).contains("%1") ? grid : rows).append(row);
    }
    for (int r = 0; r < 17 && !grid.isEmpty(); ++r)
        for (int c = 0; c < 17; ++c)
            for (Row row : grid) {
                row[0] = row.at(0).arg(r).arg(c);
                rows.append(row);
            }
    return rows;
}

template <class T>
bool bPlain(Prm::ParameterWithoutType const& p)
{
    return *p.tRawValueType() == typeid(T) && !dynamic_cast<Prm::NumericParameterWithoutType const*>(&p);
}
template <class D>
bool bIs(Prm::ParameterWithoutType const& p)
{
    return dynamic_cast<D const*>(&p) != nullptr;
}

inline std::map<QString, Check> const& kinds()
{
    static std::map<QString, Check> const table{
        {"Parameter<bool>", &bPlain<bool>},
        {"Parameter<unsigned int>", &bPlain<unsigned int>},
        {"Parameter<int>", &bPlain<int>},
        {"Parameter<float>", &bPlain<float>},
        {"Parameter<double>", &bPlain<double>},
        {"Parameter<QString>", &bPlain<QString>},
        {"Parameter<TQ_FILL_ALGORITHM>", &bPlain<TQ_FILL_ALGORITHM>},
        {"Parameter<TQ_LUMINANCE_MODEL>", &bPlain<TQ_LUMINANCE_MODEL>},
        {"NumericParameter<bool>", &bIs<Prm::NumericParameter<bool>>},
        {"NumericParameter<unsigned char>", &bIs<Prm::NumericParameter<unsigned char>>},
        {"NumericParameter<int>", &bIs<Prm::NumericParameter<int>>},
        {"NumericParameter<unsigned int>", &bIs<Prm::NumericParameter<unsigned int>>},
        {"NumericParameter<float>", &bIs<Prm::NumericParameter<float>>},
        {"NumericParameter<double>", &bIs<Prm::NumericParameter<double>>},
        {"TQ_InsertROIParameterSet::ROIParameter", &bIs<TQ_InsertROIParameterSet::ROIParameter>},
        {"TQ_InsertOffsetParameterSet::RotationParameter", &bIs<TQ_InsertOffsetParameterSet::RotationParameter>},
    };
    return table;
}

/// A number of the table as the parameter stores it: float columns rounded to single precision.
inline double dNumber(QString const& text, bool bFloat)
{
    double value = 0.0;
    if (text == "true" || text == "false")
        value = text == "true" ? 1.0 : 0.0;
    else if (text.endsWith("largest double"))
        value = std::numeric_limits<double>::max();
    else if (text.endsWith("largest float"))
        value = std::numeric_limits<float>::max();
    else
        value = text.mid(text.startsWith('-') ? 1 : 0).toDouble();
    value = text.startsWith('-') ? -value : value;
    return bFloat ? static_cast<double>(static_cast<float>(value)) : value;
}

inline int iCurveWord(QString const& word)
{
    return word == "step" || word == "hold" ? 1 : word == "linear" ? 2 : 0;
}

/// The plain text of a default: how the parameter writes it.
inline QString qstrPlainDefault(QString const& text)
{
    return text == "true" ? "1" : text == "false" ? "0" : text == "\"\"" ? "" : text;
}

inline void vExpectRow(Prm::ParameterWithoutType const& p, Row const& row)
{
    SCOPED_TRACE(row.at(0).toStdString());
    ASSERT_EQ(row.size(), 10);
    EXPECT_EQ(p.qstrScriptName(), row.at(0));
    ASSERT_EQ(kinds().count(row.at(1)), 1u) << "unknown kind " << row.at(1).toStdString();
    EXPECT_TRUE(kinds().at(row.at(1))(p)) << "kind " << row.at(1).toStdString();
    EXPECT_EQ(p.isKeyframed(), row.at(2) == "yes");
    auto const* numeric = dynamic_cast<Prm::NumericParameterWithoutType const*>(&p);
    bool const bFloat = row.at(1).contains("float") || row.at(1).contains("ROIParameter");
    if (numeric) {
        EXPECT_EQ(numeric->valueAsDouble(0.0f, nullptr), dNumber(row.at(3), bFloat));
        EXPECT_EQ(numeric->minAsDouble(), dNumber(row.at(4), bFloat));
        EXPECT_EQ(numeric->maxAsDouble(), dNumber(row.at(5), bFloat));
    } else {
        EXPECT_EQ(p.valueString(0.0f, nullptr), qstrPlainDefault(row.at(3)));
        EXPECT_TRUE(row.at(4).isEmpty() && row.at(5).isEmpty());
    }
    // Only a keyed parameter without keys shows the kind its keys will get.
    if (p.isKeyframed()) {
        EXPECT_EQ(int(p.interpolation(0.0f)), iCurveWord(row.at(6)));
    }
    EXPECT_EQ(int(p.extrapolationBefore()), iCurveWord(row.at(7)));
    EXPECT_EQ(int(p.extrapolationAfter()), iCurveWord(row.at(7)));
    EXPECT_EQ(p.qstrDisplayName(), row.at(8).isEmpty() ? row.at(0) : row.at(8));
    EXPECT_EQ(p.isHidden(), row.at(9) == "yes");
}

/// Expects the set's added parameters, in order, to be exactly the table's rows.
inline void vExpectTable(Prm::ParameterSet const& set, QString const& tableName)
{
    SCOPED_TRACE(tableName.toStdString());
    QVector<Row> const rows = rowsOf(tableName);
    QVector<Prm::ParameterWithoutType*> const parameters = set.parameterList();
    ASSERT_EQ(parameters.size(), rows.size());
    for (int i = 0; i < rows.size(); ++i)
        vExpectRow(*parameters.at(i), rows.at(i));
}

/// Gives every parameter of `set` and of its children keys or values of its own, within its limits.
inline void vChangeEverything(Prm::ParameterSet& set)
{
    int i = 0;
    set.forEachParameter(
        [&i](Prm::ParameterWithoutType* p) {
            ++i;
            if (auto* numeric = dynamic_cast<Prm::NumericParameterWithoutType*>(p)) {
                double const low = std::max(numeric->minAsDouble(), -50.0);
                double const high = std::min(numeric->maxAsDouble(), 50.0);
                numeric->setValueFromDouble(low + (high - low) * (i % 5) / 4.0, 2.0f);
                numeric->setValueFromDouble(high - (high - low) * (i % 3) / 4.0, 7.5f);
            } else {
                bool const bText = *p->tRawValueType() == typeid(QString);
                p->setValueFromString(bText ? QString("text%1").arg(i) : QString::number(i % 2 ? 3 : 0), 2.0f);
            }
        },
        true);
}

/// Writes `source` after changing everything in it, reads the text into `target` and expects every line
/// to be taken and the target to write the same text; returns that text.
template <class S>
QString qstrRoundTrip(S& source, S& target)
{
    QString const before = Prm::ParameterTextDocument(target).qstrWrite();
    vChangeEverything(source);
    QString const text = Prm::ParameterTextDocument(source).qstrWrite();
    EXPECT_NE(text, before);
    Prm::ParameterTextDocument document(target);
    EXPECT_EQ(document.iRead(text), text.count('\n'));
    EXPECT_TRUE(document.unreadLines().isEmpty());
    EXPECT_EQ(Prm::ParameterTextDocument(target).qstrWrite(), text);
    return text;
}

/// The script names of the set's children, in order.
inline QStringList childNames(Prm::ParameterSet const& set)
{
    QStringList names;
    for (Prm::ParameterSet const* child : set.childSetList())
        names.append(child->qstrScriptName());
    return names;
}

} // namespace TableCheck
