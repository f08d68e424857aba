#include "modules/MatteParameterSet.h"

TQ_MatteParameterSet::TQ_MatteParameterSet() : TQ::ClipBoundParameterSet(QStringLiteral("Matte"))
{
    init();
}

TQ_MatteParameterSet::TQ_MatteParameterSet(TQ_MatteParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("Matte")), TQ::Table::MatteParameters(other)
{
    init();
}

TQ_MatteParameterSet& TQ_MatteParameterSet::operator=(TQ_MatteParameterSet const& other)
{
    bAssignSet<TQ::Table::MatteParameters>(other, {&Render});
    return *this;
}

TQ_MatteParameterSet::~TQ_MatteParameterSet() = default;

void TQ_MatteParameterSet::init()
{
    vAddParameters({&InputClipID, &BackgroundClipID, &CleanplateClipID, &OutputClipID, &CompositeBackgroundClipID,
                    &SmoothnessHueSat, &SmoothnessRGB, &SmoothnessAlpha, &ThresholdForeground, &ThresholdBackground,
                    &AutoEstimateColorThreshold, &MatteSubtype, &BorderWidth, &GaussRadius,
                    &AutoEstimateMaxNumNeighbourFramesToUse, &MaxNumNeighbourFramesToUse, &FillGapThreshold,
                    &RemoveClusterThreshold, &InnerColorSuppression, &EdgeColorSuppression, &UseEdge,
                    &EdgeMatteGlobalWidth});
    vListMovedParameters({&Render});
    vAddParameters({&MaxDiscr, &A1, &A2, &A3, &LambdaStart, &LambdaFactor, &NoLevels, &NoIterations,
                    &MinNumControlPointsInSpline, &MaxNumControlPointsInSpline, &ShrinkExpand, &EdgeWidth,
                    &ColorCorrectRGBEdge, &UseCleanPlates});
}

void TQ_MatteParameterSet::removeReferencesToClip(unsigned int clipId)
{
    vForgetClips({&InputClipID, &BackgroundClipID, &CleanplateClipID, &OutputClipID, &CompositeBackgroundClipID},
                 clipId);
}
