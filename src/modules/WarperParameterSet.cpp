#include "modules/WarperParameterSet.h"

#include <QCoreApplication>

namespace TQ {

namespace {

char const* const weightXName = "Weight-%1-%2X";
char const* const weightYName = "Weight-%1-%2Y";

// Gives a default-built cell parameter the name and curve of a weight.
void vMakeWeight(Prm::NumericParameter<float>& weight, char const* nameTemplate, int row, int column)
{
    QByteArray const name = QString::fromLatin1(nameTemplate).arg(row).arg(column).toLatin1();
    Prm::NumericParameter<float> const fresh(true, name.constData(), 0.0f, -100.0f, 100.0f,
                                             Prm::InterpolationLinear, Prm::ExtrapolationHold);
    weight.Prm::Parameter<float>::operator=(fresh);
    weight.vSetMinimum(fresh.minimum());
    weight.vSetMaximum(fresh.maximum());
    weight.setDisplayName(QCoreApplication::translate("Parameter", nameTemplate).arg(row).arg(column));
}

// Assigns a weight with its limits, as a parameter rather than as a numeric one.
void vAssignWeight(Prm::NumericParameter<float>& weight, Prm::NumericParameter<float> const& source)
{
    weight.Prm::Parameter<float>::operator=(source);
    weight.vSetMinimum(source.minimum());
    weight.vSetMaximum(source.maximum());
}

} // namespace

WarperWeightGrid::WarperWeightGrid()
{
    for (int row = 0; row < iSize; ++row) {
        for (int column = 0; column < iSize; ++column) {
            vMakeWeight(cells[row][column].X, weightXName, row, column);
            vMakeWeight(cells[row][column].Y, weightYName, row, column);
        }
    }
}

WarperWeightGrid::WarperWeightGrid(WarperWeightGrid const& other)
{
    for (int row = 0; row < iSize; ++row) {
        for (int column = 0; column < iSize; ++column) {
            vAssignWeight(cells[row][column].X, other.cells[row][column].X);
            vAssignWeight(cells[row][column].Y, other.cells[row][column].Y);
        }
    }
}

Gan_CubicBSplineWeights WarperWeightGrid::weights(float time) const
{
    Gan_CubicBSplineWeights result;
    for (int row = 0; row < iSize; ++row) {
        for (int column = 0; column < iSize; ++column) {
            result.weight[row][column].x = cells[row][column].X.value(time, nullptr);
            result.weight[row][column].y = cells[row][column].Y.value(time, nullptr);
        }
    }
    return result;
}

void WarperWeightGrid::setWeights(Gan_CubicBSplineWeights const& weights, float time)
{
    for (int row = 0; row < iSize; ++row) {
        for (int column = 0; column < iSize; ++column) {
            cells[row][column].X.vSetValue(Prm::tFromDouble<float>(weights.weight[row][column].x), time);
            cells[row][column].Y.vSetValue(Prm::tFromDouble<float>(weights.weight[row][column].y), time);
        }
    }
}

} // namespace TQ

TQ_WarperParameterSet::TQ_WarperParameterSet() : TQ::ClipBoundParameterSet(QStringLiteral("Warper"))
{
    init();
}

TQ_WarperParameterSet::TQ_WarperParameterSet(TQ_WarperParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("Warper")), TQ::Table::WarperParameters(other)
{
    init();
}

TQ_WarperParameterSet& TQ_WarperParameterSet::operator=(TQ_WarperParameterSet const& other)
{
    if (this == &other)
        return *this;
    Prm::ParameterSet::operator=(other);
    TQ::Table::WarperParameters::operator=(other);
    vListMovedParameters({&Render});
    setScriptName(other.qstrScriptName());
    return *this;
}

TQ_WarperParameterSet::~TQ_WarperParameterSet() = default;

void TQ_WarperParameterSet::init()
{
    vAddParameters({&InputClipID, &LayerClipID, &OutputClipID, &Rendered, &CubicBSplineLevel, &ApplyMatteToSource,
                    &ApplyMatteToDestination, &UseAlphaOfInputClip, &UseAlphaOfWarpClip, &ApplyEdgeLock,
                    &WarpInputClip});
    for (auto& row : Weights.cells) {
        for (TQ::WarperWeightGrid::Cell& cell : row) {
            addParameter(&cell.X);
            addParameter(&cell.Y);
        }
    }
    vListMovedParameters({&Render});
    CubicBSplineLevel.hide(true);
}

void TQ_WarperParameterSet::removeReferencesToClip(unsigned int clipId)
{
    vForgetClips({&InputClipID, &LayerClipID, &OutputClipID}, clipId);
}
