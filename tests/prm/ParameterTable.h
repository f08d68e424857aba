#pragma once
/// A set's parameters checked against a data file, one row per parameter in `parameterList()` order, in the
/// columns of the module tables:
///   script name | kind | keyed | default | minimum | maximum | interpolation | extrapolation | display name | hidden
/// The default is the value's text at time 0. Limits are numbers, or "largest double" / "largest float" with an
/// optional minus; they are compared in the kind's value type. A blank display name is the script name. A row
/// whose name holds %1 and %2 stands for each cell of the 17 x 17 grid, cell by cell, with the other grid rows.
/// Lines starting with # are comments. The rows only read the untyped interface, so any set can use them.
#include "prm/NumericParameterWithoutType.h"
#include "prm/set/ParameterSet.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QVector>
#include <boost/core/demangle.hpp>
#include <limits>

namespace TQTest {

/// A limit cell as the text of a double, narrowed to float first for a float parameter; blank stays blank.
inline QString qstrLimit(QString const& cell, QString const& kind)
{
    bool const bFloat = kind.endsWith("<float>");
    double const largest = cell.endsWith("float") ? std::numeric_limits<float>::max()
                                                  : std::numeric_limits<double>::max();
    double const value = cell.endsWith("largest float") || cell.endsWith("largest double")
                             ? (cell.startsWith('-') ? -largest : largest)
                             : cell.toDouble();
    return cell.isEmpty() ? cell : QString::number(bFloat ? double(float(value)) : value, 'g', 17);
}

/// The rows among `lines`: each line holding '|' and not starting with # split at '|' into trimmed cells,
/// padded with blanks to the ten columns; grid rows (%1 and %2 in the name) follow the others, repeated for each
/// cell of the 17 x 17 grid with %1 its row and %2 its column.
inline QVector<QStringList> tableRows(QStringList const& lines)
{
    QVector<QStringList> rows, grid;
    for (QString const& line : lines) {
        QStringList cells = line.split('|');
        for (QString& cell : cells)
            cell = cell.trimmed();
        while (cells.size() < 10)
            cells << QString();
        if (!line.startsWith('#') && line.contains('|'))
            (cells[0].contains("%1") ? grid : rows) << cells;
    }
    for (int cell = 0; cell < 17 * 17 && !grid.isEmpty(); ++cell)
        for (QStringList each : grid) {
            each[0] = each[0].arg(cell / 17).arg(cell % 17);
            rows << each;
        }
    return rows;
}

/// One parameter in the table's columns, limits as `qstrLimit` gives them.
inline QStringList parameterRowOf(Prm::ParameterWithoutType const& parameter)
{
    auto const* numeric = dynamic_cast<Prm::NumericParameterWithoutType const*>(&parameter);
    QString const kind = QString(numeric ? "NumericParameter<%1>" : "Parameter<%1>")
                             .arg(QString::fromStdString(boost::core::demangle(parameter.tRawValueType()->name())));
    auto const rule = [](int value, char const* stepName) {
        return value == 2 ? QString("linear") : value == 1 ? QString(stepName) : QString::number(value);
    };
    QString const extrapolation = parameter.extrapolationBefore() == parameter.extrapolationAfter()
                                      ? rule(parameter.extrapolationAfter(), "hold")
                                      : "before and after differ";
    QString const name = parameter.qstrScriptName();
    return {name, kind, parameter.isKeyframed() ? "yes" : "no", parameter.valueString(0.0f, nullptr),
            numeric ? qstrLimit(QString::number(numeric->minAsDouble(), 'g', 17), kind) : "",
            numeric ? qstrLimit(QString::number(numeric->maxAsDouble(), 'g', 17), kind) : "",
            rule(parameter.interpolation(0.0f), "step"), extrapolation,
            parameter.qstrDisplayName() == name ? "" : parameter.qstrDisplayName(),
            parameter.isHidden() ? "yes" : "no"};
}

/// Expects the parameters of `set` to be the rows of `table`, in order.
inline void expectParameterTable(Prm::ParameterSet const& set, char const* table)
{
    QVector<QStringList> rows = tableRows(QString::fromUtf8(table).split('\n'));
    QVector<Prm::ParameterWithoutType*> const parameters = set.parameterList();
    ASSERT_EQ(parameters.size(), rows.size());
    for (int i = 0; i < rows.size(); ++i) {
        rows[i][4] = qstrLimit(rows[i][4], rows[i][1]);
        rows[i][5] = qstrLimit(rows[i][5], rows[i][1]);
        EXPECT_EQ(parameterRowOf(*parameters[i]).join(" | ").toStdString(), rows[i].join(" | ").toStdString());
    }
}

} // namespace TQTest
