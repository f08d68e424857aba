#pragma once
#include "prm/NumericParameterWithoutType.h"
#include "prm/set/ParameterSet.h"
#include "prm/ParameterWithoutType.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

/// One row of a set's parameter table; `value` is the value's text at time 0, and NaN limits mark a
/// parameter without limits.
struct ParameterRow {
    QString name;
    bool bKeyed;
    QString value;
    double dMinimum;
    double dMaximum;
    Prm::Interpolation interpolation;
    Prm::Extrapolation extrapolation;
};

inline double const dNoLimit = std::numeric_limits<double>::quiet_NaN();

/// Expects `set`'s registered parameters to be exactly `rows`, in order.
inline void expectParameterTable(Prm::ParameterSet const& set, std::vector<ParameterRow> const& rows)
{
    QVector<Prm::ParameterWithoutType*> const parameters = set.parameterList();
    ASSERT_EQ(rows.size(), std::size_t(parameters.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        ParameterRow const& row = rows[i];
        Prm::ParameterWithoutType const& parameter = *parameters[int(i)];
        std::string const where = row.name.toStdString();
        EXPECT_EQ(row.name, parameter.qstrScriptName()) << "position " << i;
        EXPECT_EQ(row.name, parameter.qstrDisplayName()) << where;
        EXPECT_EQ(row.bKeyed, parameter.isKeyframed()) << where;
        EXPECT_EQ(row.value, parameter.valueString(0.0f, nullptr)) << where;
        if (row.bKeyed) {
            EXPECT_EQ(row.interpolation, parameter.interpolation(0.0f)) << where;
        }
        EXPECT_EQ(row.extrapolation, parameter.extrapolationBefore()) << where;
        EXPECT_EQ(row.extrapolation, parameter.extrapolationAfter()) << where;
        auto const* numeric = dynamic_cast<Prm::NumericParameterWithoutType const*>(&parameter);
        EXPECT_EQ(!std::isnan(row.dMinimum), numeric != nullptr) << where;
        if (numeric && !std::isnan(row.dMinimum)) {
            EXPECT_EQ(row.dMinimum, numeric->minAsDouble()) << where;
            EXPECT_EQ(row.dMaximum, numeric->maxAsDouble()) << where;
        }
    }
}
