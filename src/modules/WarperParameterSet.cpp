#include "modules/WarperParameterSet.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstring>

namespace TQ {

namespace {

char const* const weightXName = QT_TRANSLATE_NOOP("Parameter", "Weight-%1-%2X");
char const* const weightYName = QT_TRANSLATE_NOOP("Parameter", "Weight-%1-%2Y");

// Gives a default-built cell parameter the name and curve of a weight. Filling in the templates with
// arg() would cost most of the grid's construction, so the untranslated name is printed directly.
void vMakeWeight(Prm::NumericParameter<float>& weight, char const* nameTemplate, QString const& shownTemplate,
                 int row, int column)
{
    char name[32];
    std::snprintf(name, sizeof name, "Weight-%d-%d%c", row, column, nameTemplate[std::strlen(nameTemplate) - 1]);
    Prm::NumericParameter<float> const fresh(true, name, 0.0f, -100.0f, 100.0f, Prm::InterpolationLinear,
                                             Prm::ExtrapolationHold);
    weight.Prm::Parameter<float>::operator=(fresh);
    weight.vSetMinimum(fresh.minimum());
    weight.vSetMaximum(fresh.maximum());
    // Untranslated, the display name is the script name, and the two share one text.
    bool const bTranslated = shownTemplate != QLatin1String(nameTemplate);
    weight.setDisplayName(bTranslated ? shownTemplate.arg(row).arg(column) : weight.qstrScriptName());
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
    QString const shownX = QCoreApplication::translate("Parameter", weightXName);
    QString const shownY = QCoreApplication::translate("Parameter", weightYName);
    for (int row = 0; row < iSize; ++row) {
        for (int column = 0; column < iSize; ++column) {
            vMakeWeight(cells[row][column].X, weightXName, shownX, row, column);
            vMakeWeight(cells[row][column].Y, weightYName, shownY, row, column);
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
    bAssignSet<TQ::Table::WarperParameters>(other, {&Render});
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
